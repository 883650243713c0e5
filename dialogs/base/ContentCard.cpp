#include "ContentCard.h"

#include <QEvent>
#include <QStyleOption>
#include <QStylePainter>

bool ContentCard::event(QEvent* event)
{
    const bool handled = QLabel::event(event);
    // Style sheets take the attribute away from every widget that they polish.
    if (event->type() == QEvent::Polish)
        setAttribute(Qt::WA_OpaquePaintEvent);
    return handled;
}

void ContentCard::paintEvent(QPaintEvent*)
{
    // Qt draws no background, which the picture is, for widgets that promise to cover themselves.
    QStyleOption option;
    option.initFrom(this);
    QStylePainter(this).drawPrimitive(QStyle::PE_Widget, option);
}
