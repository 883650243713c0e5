#pragma once

#include <QString>

/// A duration as "HH:mm:ss", preceded by the number of whole days and "." from one day on.
QString elapsedTimeText(qint64 msecs);
