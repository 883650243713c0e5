#include "ElidedLabel.h"

#include "DisplayText.h"

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
    const QString line = elidedWithVisibleControls(text(), fontMetrics(), Qt::ElideMiddle, area.width());
    // Otherwise a right-to-left text would stand at the far end.
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, area, static_cast<int>(place), palette(), isEnabled(), line, foregroundRole());
}
