#include "ElidedLabel.h"

#include "DisplayText.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

void ElidedLabel::keepOffTextOf(const QLabel* label)
{
    neighbour = label;
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    if (neighbour) {
        const int textWidth = neighbour->sizeHint().width();
        const bool isRightAligned = neighbour->alignment().testFlag(Qt::AlignRight);
        const int textStart = isRightAligned ? neighbour->geometry().right() - textWidth : neighbour->x();
        const int farthest = textStart - fontMetrics().horizontalAdvance(QLatin1Char(' ')) - x();
        const int nameEnd = area.center().x() + fontMetrics().horizontalAdvance(text()) / 2;
        if (nameEnd > farthest)
            area.setRight(qMin(area.right(), farthest));
    }
    const QString line = elidedWithVisibleControls(text(), fontMetrics(), Qt::ElideMiddle, area.width());
    // Otherwise a right-to-left text would stand at the far end.
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, area, static_cast<int>(place), palette(), isEnabled(), line, foregroundRole());
}
