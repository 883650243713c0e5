#include "LinkLabel.h"

#include <QFocusEvent>

void LinkLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    const bool backwards = event->reason() == Qt::BacktabFocusReason;
    if (backwards || event->reason() == Qt::TabFocusReason)
        focusNextPrevChild(!backwards);
}
