#include "LogsListModel.h"

#include "ActivityKeys.h"
#include "DisplayText.h"

#include <QFont>
#include <QLocale>

namespace {
// Enough for the rows of a few screens.
constexpr int keptTexts = 200;

QString timeText(const LogEntry& entry)
{
    // Not QDateTime::toString(), with which Qt 5 writes the digits of the system's locale.
    return QLocale::c().toString(entry.time.toLocalTime(), QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

QString plainText(const LogEntry& entry)
{
    return timeText(entry) + QLatin1Char(' ') + entry.actionText + QLatin1Char(' ') + entry.path;
}
} // namespace

LogsListModel::LogsListModel(QObject* parent) : QAbstractListModel(parent), shownTexts(keptTexts), metrics(QFont()) { }

int LogsListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(entries.size());
}

QVariant LogsListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return QVariant();
    const LogEntry& entry = entries[static_cast<size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return displayText(entry);
    case Qt::ToolTipRole:
        return entry.path;
    case PlainTextRole:
        return plainText(entry);
    default:
        return QVariant();
    }
}

void LogsListModel::addEntry(const LogEntry& entry)
{
    beginInsertRows(QModelIndex(), 0, 0);
    entries.push_front(entry);
    endInsertRows();
}

void LogsListModel::addEmptyEntry()
{
    addEntry(LogEntry());
}

void LogsListModel::clear()
{
    beginResetModel();
    entries.clear();
    shownTexts.clear();
    endResetModel();
}

QString LogsListModel::spokenText(int row) const
{
    const LogEntry& entry = entries[static_cast<size_t>(row)];
    QStringList parts{timeText(entry), entry.actionText, entry.path};
    parts.removeAll(QString());
    return withVisibleControls(parts.join(QLatin1Char(' ')));
}

void LogsListModel::setRowDisplay(const QFont& font, int newRowWidth, int newPathWidth)
{
    metrics = QFontMetrics(font);
    rowWidth = newRowWidth;
    pathWidth = newPathWidth;
    shownTexts.clear();
}

QString LogsListModel::displayText(const LogEntry& entry) const
{
    if (const QString* known = shownTexts.object(&entry))
        return *known;
    const QString text = html(entry);
    shownTexts.insert(&entry, new QString(text));
    return text;
}

QString LogsListModel::html(const LogEntry& entry) const
{
    const QString time = timeText(entry);
    const QString path = elidedWithVisibleControls(entry.path, metrics, Qt::ElideLeft, pathWidth);
    const int actionWidth = rowWidth - metrics.horizontalAdvance(time + QLatin1String("  ") + path);
    const QString action = elidedWithVisibleControls(entry.actionText, metrics, Qt::ElideRight, actionWidth);
    return QStringLiteral("<p><span style=\" font-size:14px; color:#a9adb3;\">%1 </span>"
                          "<span style=\" font-size:14px; color:%3;\">%2 </span>"
                          "<span style=\" font-size:14px; color:#f3f4f4;\">%4</span></p>")
        .arg(time, action.toHtmlEscaped(), logCategoryColor(entry.category), path.toHtmlEscaped());
}
