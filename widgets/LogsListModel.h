#pragma once

#include <QAbstractListModel>
#include <QCache>
#include <QDateTime>
#include <QFontMetrics>

#include <deque>

/// One line of the activity log.
struct LogEntry {
    /// In UTC; only rows that are shown are worth the conversion to local time.
    QDateTime time;
    int category = 0;
    QString actionText;
    /// As the host gave it. Its shortened form is made when the row is shown, which few rows ever are.
    QString path;
};

/// The activity log, newest entry first. Adding an entry costs the same however many there are.
class LogsListModel final : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        PlainTextRole = Qt::UserRole + 1 ///< Time, action and full path without markup.
    };

    explicit LogsListModel(QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    void addEntry(const LogEntry& entry);
    void addEmptyEntry();
    void clear();

    /// What screen readers say for a row: its visible text, with the whole path and without superfluous blanks.
    QString spokenText(int row) const;

    /// The font that rows are shown in, the width of their text, and the width that paths are shortened to. An action
    /// is shortened to what time and path leave.
    void setRowDisplay(const QFont& font, int rowWidth, int pathWidth);

private:
    Q_DISABLE_COPY(LogsListModel)

    QString displayText(const LogEntry& entry) const;
    QString html(const LogEntry& entry) const;

    /// Entries stay where they are in memory when others are added.
    std::deque<LogEntry> entries;
    /// The HTML of the entries last shown, which are shown again and again.
    mutable QCache<const LogEntry*, QString> shownTexts;
    QFontMetrics metrics;
    int rowWidth = 0;
    int pathWidth = 0;
};
