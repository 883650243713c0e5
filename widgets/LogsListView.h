#pragma once

#include <QBasicTimer>
#include <QListView>

/// A list view for a log that grows at its top by hundreds of rows a second and may reach millions.
///
/// All rows have one height, so every position follows from the row number. A plain list view would lay out all rows
/// again for each batch of new ones. Rows added while the person has scrolled away from the top leave in place what is
/// being read. Copy takes the plain text of the selected rows.
class LogsListView final : public QListView {
    Q_OBJECT

public:
    explicit LogsListView(QWidget* parent = nullptr);

    /// The width that the text of a row has in a list of @p listWidth whose scroll bar is shown.
    int textWidth(int listWidth) const;

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    void doItemsLayout() override;
    void reset() override;
    /// Does nothing: a search would render every row there is.
    void keyboardSearch(const QString& search) override;

protected:
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void updateGeometries() override;
    int horizontalOffset() const override;
    int verticalOffset() const override;
    void scrollContentsBy(int dx, int dy) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;
    QRegion visualRegionForSelection(const QItemSelection& selection) const override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    Q_DISABLE_COPY(LogsListView)

    /// What all rows are drawn with.
    QStyleOptionViewItem rowOption() const;
    int rowCount() const;
    int rowsPerPage() const;
    void layOutNow() const;
    /// The row at a height of the viewport, which may be a row that does not exist.
    int rowAt(int y) const;
    void measureRow();
    void copySelectedRows() const;
    void prepareNextRow();

    int rowHeight = 0;
    /// Rows added above what is shown, for which the next layout has to make up.
    int rowsAddedAbove = 0;

    // While nothing else is to be done, the page that scrolling will show next is prepared row by row.
    QBasicTimer idle;
    int nextRow = 0;
    int rowsToPrepare = 0;
    bool scrollingDown = true;
};
