#pragma once

#include <QPushButton>

/// A button that may carry the seconds left in parentheses behind its label. A screen reader hears the label as its
/// name and the time as its description: what it names the button stays the same from second to second.
class CountdownButton final : public QPushButton {
    Q_OBJECT

public:
    explicit CountdownButton(QWidget* parent = nullptr);

    /// The text without the countdown.
    QString label() const;
    /// The seconds in the text, 0 when there are none.
    qint64 secondsLeft() const;
    void setSecondsLeft(qint64 seconds);

    QSize sizeHint() const override;
};
