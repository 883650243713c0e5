#pragma once

#include <QObject>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Keeps the mouse wheel from changing a spin box or combo box that does not have the focus, and from giving it that.
class WheelGuard final : public QObject {
public:
    /// Guards @p field for as long as that lives.
    explicit WheelGuard(QWidget* field);

    bool eventFilter(QObject* field, QEvent* event) override;
};
