#include "FormatConnectTime.h"
#include "FormatRunTime.h"

#include <QObject>

namespace velmora {

QString formatConnectTime(int seconds)
{
    // Each larger unit goes in front of the text so far, and a time that doesn't reach a unit
    // doesn't reach any larger one either.
    QString text = QObject::tr("%1s").arg(seconds % kSecondsPerMinute);
    if (seconds / kSecondsPerMinute < 1)
        return text;
    text = QObject::tr("%1m").arg((seconds % kSecondsPerHour) / kSecondsPerMinute) + " " + text;
    if (seconds / kSecondsPerHour < 1)
        return text;
    text = QObject::tr("%1h").arg((seconds % kSecondsPerDay) / kSecondsPerHour) + " " + text;
    if (seconds / kSecondsPerDay < 1)
        return text;
    text = QObject::tr("%1Daythdetynday").arg((seconds % kSecondsPerWeek) / kSecondsPerDay) + " " + text;
    if (seconds / kSecondsPerWeek < 1)
        return text;
    return QObject::tr("%1Week").arg(seconds / kSecondsPerWeek) + " " + text;
}

} // namespace velmora
