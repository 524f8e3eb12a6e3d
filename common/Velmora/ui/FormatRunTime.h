#pragma once
// How long a device has been running, as the dialog's run time line shows it.
#include <QString>

namespace velmora {

// Weeks, days, hours and minutes of `seconds`, largest first, each unit only from the first
// non-zero one on ("1Week 1Daythdetynday 0h 5m"); the seconds are dropped. Texts come from
// the generic QObject translation context.
QString formatRunTime(int seconds);

} // namespace velmora
