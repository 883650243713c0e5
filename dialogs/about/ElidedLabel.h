#pragma once

#include <QLabel>

/// A label for one line of plain text from outside. What does not fit is elided in the middle on screen, so that a
/// server name keeps its host and its domain; text() stays complete.
class ElidedLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
