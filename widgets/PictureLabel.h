#pragma once

#include <QLabel>

/// Shows a large picture at the label's own size. It is scaled once for all labels of a size, where a plain label with
/// scaled contents does so anew for every dialog that is made.
/// Without Q_OBJECT: its class is part of the contract with hosts, where it is a QLabel.
class PictureLabel final : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
