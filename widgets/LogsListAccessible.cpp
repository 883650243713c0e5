#include "LogsListAccessible.h"

#include "AccessibleFactory.h"
#include "LogsListModel.h"
#include "LogsListView.h"

#include <QAccessibleWidget>
#include <QHash>
#include <QPersistentModelIndex>
#include <QWindow>

namespace {
class RowAccessible final : public QAccessibleInterface {
public:
    RowAccessible(LogsListView* listView, const QModelIndex& modelIndex) : view(listView), index(modelIndex) { }

    bool isValid() const override
    {
        return index.isValid();
    }

    QObject* object() const override
    {
        return nullptr;
    }

    QAccessibleInterface* parent() const override
    {
        return QAccessible::queryAccessibleInterface(view);
    }

    QWindow* window() const override
    {
        return view->window()->windowHandle();
    }

    int childCount() const override
    {
        return 0;
    }

    QAccessibleInterface* child(int) const override
    {
        return nullptr;
    }

    QAccessibleInterface* childAt(int, int) const override
    {
        return nullptr;
    }

    int indexOfChild(const QAccessibleInterface*) const override
    {
        return -1;
    }

    QString text(QAccessible::Text type) const override
    {
        const auto* log = qobject_cast<const LogsListModel*>(index.model());
        return type == QAccessible::Name && log ? log->spokenText(index.row()) : QString();
    }

    void setText(QAccessible::Text, const QString&) override { }

    QRect rect() const override
    {
        const QRect row = view->visualRect(index);
        return {view->viewport()->mapToGlobal(row.topLeft()), row.size()};
    }

    QAccessible::Role role() const override
    {
        return QAccessible::ListItem;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        const bool shown = view->viewport()->rect().intersects(view->visualRect(index));
        state.invisible = !view->isVisible();
        state.offscreen = !shown;
        state.selectable = true;
        state.focusable = true;
        state.readOnly = true;
        state.selected = view->selectionModel()->isSelected(index);
        state.focused = view->hasFocus() && view->currentIndex() == index;
        return state;
    }

    int row() const
    {
        return index.row();
    }

private:
    LogsListView* const view;
    const QPersistentModelIndex index;
};

class LogsListAccessible final : public QAccessibleWidget {
public:
    explicit LogsListAccessible(LogsListView* listView) : QAccessibleWidget(listView, QAccessible::List), view(listView)
    {
    }

    int childCount() const override
    {
        return view->model() ? view->model()->rowCount() : 0;
    }

    QAccessibleInterface* child(int row) const override
    {
        if (row < 0 || row >= childCount())
            return nullptr;
        // The model removes its rows by a reset only, so all indexes expire together.
        if (!rows.isEmpty() && !rows.constBegin().key().isValid())
            forgetRows();
        const QModelIndex index = view->model()->index(row, 0);
        QAccessible::Id& id = rows[index];
        if (id == 0)
            id = QAccessible::registerAccessibleInterface(new RowAccessible(view, index));
        return QAccessible::accessibleInterface(id);
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        return child(view->indexAt(view->viewport()->mapFromGlobal(QPoint(x, y))).row());
    }

    QAccessibleInterface* focusChild() const override
    {
        return child(view->currentIndex().row());
    }

    int indexOfChild(const QAccessibleInterface* iface) const override
    {
        return iface->role() == QAccessible::ListItem ? static_cast<const RowAccessible*>(iface)->row() : -1;
    }

private:
    ~LogsListAccessible() override
    {
        forgetRows();
    }

    void forgetRows() const
    {
        for (const QAccessible::Id id : qAsConst(rows))
            QAccessible::deleteAccessibleInterface(id);
        rows.clear();
    }

    LogsListView* const view;
    /// The rows asked for so far. Rows move down as others are added, so their number cannot name them.
    mutable QHash<QPersistentModelIndex, QAccessible::Id> rows;
};
} // namespace

void installLogsListAccessible()
{
    installAccessible<LogsListAccessible, LogsListView>();
}
