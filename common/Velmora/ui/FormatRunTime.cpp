#include "FormatRunTime.h"

#include <QObject>

namespace velmora {

QString formatRunTime(int seconds)
{
    const int minutes = (seconds % kSecondsPerHour) / kSecondsPerMinute;
    const int hours = (seconds % kSecondsPerDay) / kSecondsPerHour;
    const int days = (seconds % kSecondsPerWeek) / kSecondsPerDay;
    const int weeks = seconds / kSecondsPerWeek;

    // Each larger unit goes in front of the text so far. Whether a unit shows depends on the
    // whole time, not on its own count: a week and a day with no hours still read "0h".
    QString text = QObject::tr("%1m").arg(minutes);
    if (seconds / kSecondsPerHour > 0)
        text = QObject::tr("%1h").arg(hours) + " " + text;
    if (seconds / kSecondsPerDay > 0)
        text = QObject::tr("%1Daythdetynday").arg(days) + " " + text;
    if (weeks > 0)
        text = QObject::tr("%1Week").arg(weeks) + " " + text;
    return text;
}

} // namespace velmora
