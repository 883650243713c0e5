#pragma once

#include <QLabel>

/// A heading of one line in a box that is no higher than its letters. A plain label centres the line with the space
/// above and below it, and so cuts letters that would fit.
class LowHeading final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
