#include "ContentCard.h"

#include <QEvent>
#include <QImage>
#include <QStyleOption>
#include <QStylePainter>

namespace {
QRgb middleOfPicture()
{
    const QImage picture(QStringLiteral(":/images/windowFrame.png"));
    return picture.pixel(picture.rect().center());
}
} // namespace

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
    // Qt draws no background, which the picture is, for widgets that promise to cover themselves. The picture's middle
    // is of one colour, and filling it takes a tenth of the time that stretching takes.
    const QRect middle = contentsRect();
    static const QRgb colour = middleOfPicture();
    QStyleOption option;
    option.initFrom(this);
    QStylePainter painter(this);
    painter.fillRect(middle, QColor(colour));
    painter.setClipRegion(QRegion(rect()) - middle);
    painter.drawPrimitive(QStyle::PE_Widget, option);
}
