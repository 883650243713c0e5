#pragma once

#include <QLabel>

/// A label for a percentage. A screen reader that asks finds it as the value of a progress bar; it is not told of each
/// change, as it would be of a label's text.
class PercentLabel final : public QLabel {
    Q_OBJECT

public:
    explicit PercentLabel(QWidget* parent = nullptr);
};
