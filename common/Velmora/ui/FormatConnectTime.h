#pragma once
// How long a peer has been connected to a bridge, as its connected-device table shows it.
#include <QString>

namespace velmora {

// Weeks, days, hours, minutes and seconds of `seconds`, largest first, each unit only from
// the first one that the whole time reaches ("1h 0m 0s", "59s"). Texts come from the generic
// QObject translation context.
QString formatConnectTime(int seconds);

} // namespace velmora
