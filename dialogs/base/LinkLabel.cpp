#include "LinkLabel.h"

#include <QFocusEvent>

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason && !hasSelectedText())
        focusNextPrevChild(event->reason() != Qt::BacktabFocusReason);
}
