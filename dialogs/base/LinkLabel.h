#pragma once

#include <QLabel>

/// A label whose link is reached with one press of Tab. A plain QLabel takes a second one to get from the label to the
/// link in it, and Return would go to the dialog meanwhile.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent* event) override;
};
