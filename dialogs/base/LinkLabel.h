#pragma once

#include <QLabel>

/// A label that is one link. The Tab key leads to the link itself: a plain label takes one Tab that shows nothing and
/// another one for its link.
class LinkLabel final : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent* event) override;
};
