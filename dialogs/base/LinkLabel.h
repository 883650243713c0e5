#pragma once

#include <QLabel>

/// A label with a link that takes one Tab to reach and Return to follow. A plain QLabel takes the focus first and
/// shows it on its link only after a second Tab.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    void focusInEvent(QFocusEvent* event) override;
};
