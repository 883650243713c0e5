#include "LowHeading.h"

#include <QPainter>

void LowHeading::paintEvent(QPaintEvent*)
{
    const QRect letters = fontMetrics().tightBoundingRect(text());
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    painter.drawText(0, (height() - letters.height()) / 2 - letters.top(), text());
}
