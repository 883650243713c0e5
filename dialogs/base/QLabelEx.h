#pragma once

#include <QLabel>

/// A label that acts as a button: it emits click() on every mouse press, whatever the button.
class QLabelEx : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

Q_SIGNALS:
    void click();

protected:
    void mousePressEvent(QMouseEvent* event) override;
};
