#pragma once

#include <QLabel>

/// Shows a large picture at the label's own size. It is scaled once for all labels of a size, where a plain label with
/// scaled contents does so anew for every dialog that is made.
class PictureLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent* event) override;
};
