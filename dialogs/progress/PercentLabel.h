#pragma once

#include <QLabel>

/// A label for a percentage. A screen reader that asks finds it as the value of a progress bar, which is unknown while
/// the label is hidden. It is told of every ten percent, not of each change, as it would be of a label's text.
class PercentLabel final : public QLabel {
    Q_OBJECT

public:
    explicit PercentLabel(QWidget* parent = nullptr);

    void setPercent(int percent);

    /// Within 0 to 100, also where the label shows more.
    int value() const;

private:
    int percent = 0;
};
