#pragma once

#include <QObject>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Makes screen readers speak @p text now, wherever the focus is. On screen nothing changes. @p window is where the
/// text comes from.
void announce(QWidget* window, const QString& text);

/// What announce() shows to screen readers for a while.
class Announcement final : public QObject {
    Q_OBJECT

public:
    Announcement(QWidget* window, const QString& spokenText);

    const QString text;
};
