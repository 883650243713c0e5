#include "LinkLabel.h"

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    if (!hasSelectedText())
        QLabel::focusNextPrevChild(true);
}

bool LinkLabel::focusNextPrevChild(bool next)
{
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call): not to the next link
}
