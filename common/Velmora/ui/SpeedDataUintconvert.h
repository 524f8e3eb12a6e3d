#pragma once
// Display texts of traffic numbers: a speed in the largest unit that keeps it below 1000,
// and a decimal counter with its digits grouped by three.
#include <QString>
#include <string>

namespace velmora {

struct SpeedDataUintconvert {
    // The unit a speed is given in. Fixed underlying type: callers may pass a value above
    // Gbps, which is printed without a suffix.
    enum SpeedUint : int {
        bps = 0,
        Kbps = 1,
        Mbps = 2,
        Gbps = 3,
    };

    // `value` in `unit`, divided by 1000 while it is at least 1000 and the unit is below
    // Gbps, printed with three decimals and the unit's suffix: (1500, Kbps) is "1.500Mbps".
    // The value is held in single precision, so 16777217 counts as 16777216.
    static QString speedDataAdaptiveUintconvert(unsigned int value, SpeedDataUintconvert::SpeedUint unit);
};

// `digits` with a "," before every group of three counted from the right, whatever the
// locale: "1234567" is "1,234,567".
std::string groupDigits(std::string digits);

} // namespace velmora
