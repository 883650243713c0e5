#include "LogsListView.h"

#include "DisplayText.h"
#include "LogsListAccessible.h"
#include "LogsListModel.h"
#include "PlainToolTip.h"
#include "RichTextDelegate.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

LogsListView::LogsListView(QWidget* parent) : QListView(parent)
{
    installLogsListAccessible();
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Scrolling then moves what is painted instead of painting it again.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
}

int LogsListView::textWidth(int listWidth) const
{
    // The margin that styles keep at both sides of an item's text.
    const int itemMargin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
    const auto* delegate = qobject_cast<RichTextDelegate*>(itemDelegate());
    const int margin = itemMargin + (delegate ? delegate->margin() : 0);
    return listWidth - verticalScrollBar()->sizeHint().width() - 2 * margin;
}

QRect LogsListView::visualRect(const QModelIndex& index) const
{
    if (!index.isValid() || index.model() != model())
        return QRect();
    layOutNow();
    return {0, index.row() * rowHeight - verticalOffset(), viewport()->width(), rowHeight};
}

QModelIndex LogsListView::indexAt(const QPoint& point) const
{
    const int row = rowAt(point.y());
    return row >= 0 && row < rowCount() ? model()->index(row, 0) : QModelIndex();
}

void LogsListView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    const QRect row = visualRect(index);
    const int room = viewport()->height() - rowHeight;
    if (row.isNull() || (hint == EnsureVisible && row.top() >= 0 && row.top() <= room))
        return;
    int top = 0;
    if (hint == PositionAtCenter)
        top = room / 2;
    else if (hint == PositionAtBottom || (hint == EnsureVisible && row.top() > room))
        top = room;
    verticalScrollBar()->setValue(verticalOffset() + row.top() - top);
}

void LogsListView::doItemsLayout()
{
    measureRow();
    QAbstractItemView::doItemsLayout();
}

void LogsListView::reset()
{
    rowsAddedAbove = 0;
    QListView::reset();
}

void LogsListView::keyboardSearch(const QString&) { }

void LogsListView::rowsInserted(const QModelIndex& parent, int start, int end)
{
    QListView::rowsInserted(parent, start, end);
    if (rowHeight > 0 && start <= verticalOffset() / rowHeight)
        rowsAddedAbove += end - start + 1;
}

void LogsListView::updateGeometries()
{
    QScrollBar* const bar = verticalScrollBar();
    const bool atNewest = bar->value() == 0;
    bar->setSingleStep(rowHeight);
    bar->setPageStep(viewport()->height());
    bar->setRange(0, qMax(0, rowCount() * rowHeight - viewport()->height()));
    if (!atNewest)
        bar->setValue(bar->value() + rowsAddedAbove * rowHeight);
    rowsAddedAbove = 0;
    QAbstractItemView::updateGeometries();
}

int LogsListView::horizontalOffset() const
{
    return 0;
}

int LogsListView::verticalOffset() const
{
    return verticalScrollBar()->value();
}

void LogsListView::scrollContentsBy(int dx, int dy)
{
    scrollDirtyRegion(dx, dy);
    viewport()->scroll(dx, dy);
    scrollingDown = dy < 0;
    rowsToPrepare = rowsPerPage() + 1;
    nextRow = scrollingDown ? rowAt(viewport()->height()) : rowAt(0) - 1;
    idle.start(0, this);
}

QModelIndex LogsListView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int last = rowCount() - 1;
    if (last < 0)
        return QModelIndex();
    const int current = currentIndex().row();
    int row = current;
    switch (action) {
    case MoveHome:
        row = 0;
        break;
    case MoveEnd:
        row = last;
        break;
    case MovePageUp:
        row -= rowsPerPage();
        break;
    case MovePageDown:
        row += rowsPerPage();
        break;
    case MoveUp:
    case MoveLeft:
    case MovePrevious:
        --row;
        break;
    case MoveDown:
    case MoveRight:
    case MoveNext:
        ++row;
        break;
    }
    return model()->index(qBound(0, row, last), 0);
}

void LogsListView::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    // The rectangle begins where the selection does, so its bottom is above its top when the person selects upward.
    const auto ends = std::minmax({rect.top(), rect.bottom()});
    const int first = qMax(0, rowAt(ends.first));
    const int last = qMin(rowAt(ends.second), rowCount() - 1);
    QItemSelection selection;
    if (first <= last)
        selection.select(model()->index(first, 0), model()->index(last, 0));
    selectionModel()->select(selection, command);
}

QRegion LogsListView::visualRegionForSelection(const QItemSelection& selection) const
{
    QRegion region;
    for (const QItemSelectionRange& range : selection)
        region += visualRect(range.topLeft()) | visualRect(range.bottomRight());
    return region & viewport()->rect();
}

void LogsListView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    // Not QListView's: it looks rows up in its own layout, which this list does not use, and lists every selected row.
    QAbstractItemView::selectionChanged(selected, deselected);
    if (!QAccessible::isActive())
        return;
    const auto tell = [this](QAccessible::Event type, const QItemSelection& rows) {
        if (rows.isEmpty())
            return;
        QAccessibleEvent event(this, type);
        event.setChild(rows.first().top());
        QAccessible::updateAccessibility(&event);
    };
    tell(QAccessible::SelectionRemove, deselected);
    tell(QAccessible::SelectionAdd, selected);
}

void LogsListView::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    // Not QListView's, for the same reason as in selectionChanged().
    QAbstractItemView::currentChanged(current, previous);
    if (QAccessible::isActive() && current.isValid()) {
        QAccessibleEvent event(this, QAccessible::Focus);
        event.setChild(current.row());
        QAccessible::updateAccessibility(&event);
    }
}

bool LogsListView::viewportEvent(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QListView::viewportEvent(event);
    // The role returns the path exactly as the host gave it.
    const auto* help = static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help->pos());
    const QString path = withVisibleControls(index.data(Qt::ToolTipRole).toString());
    showPlainToolTip(help->globalPos(), path, Qt::ElideLeft);
    return true;
}

void LogsListView::paintEvent(QPaintEvent* event)
{
    layOutNow();
    QPainter painter(viewport());
    painter.fillRect(event->rect(), palette().base());
    QStyleOptionViewItem option = rowOption();
    const QStyle::State state = option.state;
    const bool focused = hasFocus();
    const int last = qMin(rowAt(event->rect().bottom()), rowCount() - 1);
    for (int row = rowAt(event->rect().top()); row <= last; ++row) {
        const QModelIndex index = model()->index(row, 0);
        option.rect = visualRect(index);
        option.state = state;
        option.state.setFlag(QStyle::State_Selected, selectionModel()->isSelected(index));
        option.state.setFlag(QStyle::State_HasFocus, focused && index == currentIndex());
        itemDelegate()->paint(&painter, option, index);
    }
    if (focused && last < 0) {
        // An empty list has no current row to mark; a frame shows that it has the focus.
        painter.setPen(palette().color(QPalette::Text));
        painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
    }
}

void LogsListView::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        rowHeight = 0;
        scheduleDelayedItemsLayout();
    }
    QListView::changeEvent(event);
}

void LogsListView::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copySelectedRows();
    else
        QListView::keyPressEvent(event);
}

void LogsListView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == idle.timerId())
        prepareNextRow();
    else
        QListView::timerEvent(event);
}

void LogsListView::prepareNextRow()
{
    const auto* delegate = qobject_cast<RichTextDelegate*>(itemDelegate());
    const QModelIndex index = nextRow >= 0 && nextRow < rowCount() ? model()->index(nextRow, 0) : QModelIndex();
    if (!delegate || !index.isValid() || rowsToPrepare-- == 0) {
        idle.stop();
        return;
    }
    delegate->prepare(rowOption(), index);
    nextRow += scrollingDown ? 1 : -1;
}

QStyleOptionViewItem LogsListView::rowOption() const
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return viewOptions();
#else
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    return option;
#endif
}

int LogsListView::rowCount() const
{
    return model() ? model()->rowCount() : 0;
}

int LogsListView::rowsPerPage() const
{
    return rowHeight > 0 ? qMax(1, viewport()->height() / rowHeight) : 1;
}

void LogsListView::layOutNow() const
{
    // As every item view does before it answers where a row is.
    const_cast<LogsListView*>(this)->executeDelayedItemsLayout();
}

int LogsListView::rowAt(int y) const
{
    layOutNow();
    return rowHeight > 0 ? (y + verticalOffset()) / rowHeight : -1;
}

void LogsListView::measureRow()
{
    if (rowHeight > 0 || rowCount() == 0)
        return;
    QStyleOptionViewItem option = rowOption();
    // So wide that not even the longest row would wrap.
    option.rect = QRect(0, 0, QWIDGETSIZE_MAX, 0);
    rowHeight = qMax(1, itemDelegate()->sizeHint(option, model()->index(0, 0)).height());
}

void LogsListView::copySelectedRows() const
{
    QModelIndexList rows = selectionModel()->selectedIndexes();
    if (rows.isEmpty())
        return;
    std::sort(rows.begin(), rows.end());
    QStringList lines;
    lines.reserve(rows.size());
    for (const QModelIndex& row : qAsConst(rows))
        lines.append(row.data(LogsListModel::PlainTextRole).toString());
    QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}
