#pragma once

#include <QPushButton>

/// A button that may carry the seconds left in parentheses behind its label. Screen readers hear the label alone as its
/// name, which so stays the same from second to second.
class CountdownButton final : public QPushButton {
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    void setSecondsLeft(qint64 seconds);

    QSize sizeHint() const override;

protected:
    bool event(QEvent* event) override;
};
