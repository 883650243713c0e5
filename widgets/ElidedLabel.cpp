#include "ElidedLabel.h"

#include "DisplayText.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

void ElidedLabel::keepOffTextOf(const QLabel* label)
{
    neighbour = label;
}

bool ElidedLabel::isElided() const
{
    ensurePolished();
    return lineWithin(textArea()) != withVisibleControls(text());
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    const QRect area = textArea();
    // Otherwise a right-to-left text would stand at the far end.
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, area, static_cast<int>(place), palette(), isEnabled(), lineWithin(area),
                          foregroundRole());
}

QRect ElidedLabel::textArea() const
{
    QRect area = contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    if (!neighbour)
        return area;
    const int textWidth = neighbour->sizeHint().width();
    const bool isRightAligned = neighbour->alignment().testFlag(Qt::AlignRight);
    const int textStart = isRightAligned ? neighbour->geometry().right() - textWidth : neighbour->x();
    const int farthest = textStart - fontMetrics().horizontalAdvance(QLatin1Char(' ')) - x();
    const int nameEnd = area.center().x() + fontMetrics().horizontalAdvance(text()) / 2;
    if (nameEnd > farthest)
        area.setRight(qMin(area.right(), farthest));
    return area;
}

QString ElidedLabel::lineWithin(const QRect& area) const
{
    return elidedWithVisibleControls(text(), fontMetrics(), Qt::ElideMiddle, area.width());
}
