#include "ElidedLabel.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    // A line break would be a second line that nobody sees.
    const QString line = QString(text()).replace(QLatin1Char('\n'), QLatin1Char(' '));
    const QString visible = fontMetrics().elidedText(line, Qt::ElideMiddle, area.width());
    style()->drawItemText(&painter, area, static_cast<int>(alignment()), palette(), isEnabled(), visible,
                          foregroundRole());
}
