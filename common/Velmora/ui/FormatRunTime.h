#pragma once
// How long a device has been running, as the dialog's run time line shows it.
#include <QString>

namespace velmora {

// The units that the run time and the connect times are counted in.
inline constexpr int kSecondsPerMinute = 60;
inline constexpr int kSecondsPerHour = 3600;
inline constexpr int kSecondsPerDay = 86400;
inline constexpr int kSecondsPerWeek = 604800;

// Weeks, days, hours and minutes of `seconds`, largest first, each unit only from the first
// non-zero one on ("1Week 1Daythdetynday 0h 5m"); the seconds are dropped. Texts come from
// the generic QObject translation context.
QString formatRunTime(int seconds);

} // namespace velmora
