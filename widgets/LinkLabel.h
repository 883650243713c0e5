#pragma once

#include <QLabel>

/// A label that is one link, which has the focus when the label has it. In a plain QLabel the first press of Tab
/// reaches the label only, so that Return goes to the dialog, and Shift+Tab never leaves the link.
class LinkLabel : public QLabel {
    Q_OBJECT

public:
    explicit LinkLabel(QWidget* parent = nullptr);

    /// Does what a click on the link does.
    void follow();

protected:
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
};
