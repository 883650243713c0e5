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

    /// The font that rows are shown in, and the width in it that paths are shortened to.
    void setPathDisplay(const QFont& font, int width);

private:
    Q_DISABLE_COPY(LogsListModel)

    QString displayText(const LogEntry& entry) const;
    QString html(const LogEntry& entry) const;

    /// Entries stay where they are in memory when others are added.
    std::deque<LogEntry> entries;
    /// The HTML of the entries last shown, which are shown again and again.
    mutable QCache<const LogEntry*, QString> shownTexts;
    QFontMetrics pathMetrics;
    int pathWidth = 178;
};
