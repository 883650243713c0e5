#include "ElapsedTime.h"

#include <QTime>

QString elapsedTimeText(qint64 msecs)
{
    constexpr qint64 dayLength = qint64(24) * 60 * 60 * 1000;
    const qint64 days = msecs / dayLength;
    const QString time =
        QTime::fromMSecsSinceStartOfDay(static_cast<int>(msecs % dayLength)).toString(QStringLiteral("HH:mm:ss"));
    return days == 0 ? time : QString::number(days) + QLatin1Char('.') + time;
}
