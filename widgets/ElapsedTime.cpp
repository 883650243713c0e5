#include "ElapsedTime.h"

#include <QLocale>
#include <QTime>

QString elapsedTimeText(qint64 msecs)
{
    constexpr qint64 dayLength = qint64(24) * 60 * 60 * 1000;
    const qint64 days = msecs / dayLength;
    // Not QTime::toString(), with which Qt 5 writes the digits of the system's locale.
    const QString time = QLocale::c().toString(QTime::fromMSecsSinceStartOfDay(static_cast<int>(msecs % dayLength)),
                                               QStringLiteral("HH:mm:ss"));
    return days == 0 ? time : QString::number(days) + QLatin1Char('.') + time;
}
