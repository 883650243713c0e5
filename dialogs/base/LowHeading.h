#pragma once

#include <QLabel>

/// A heading in a box that is no higher than its letters: the text stands as high as it can, so that those that reach
/// below the line are not cut.
class LowHeading final : public QLabel {
    Q_OBJECT

public:
    explicit LowHeading(QWidget* parent = nullptr);
};
