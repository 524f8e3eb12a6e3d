#include "SpeedDataUintconvert.h"

namespace velmora {

namespace {
constexpr double kUnitStep = 1000.0;
constexpr std::size_t kDigitGroup = 3;

const char* speedSuffix(int unit)
{
    switch (unit) {
    case SpeedDataUintconvert::bps:
        return "bps";
    case SpeedDataUintconvert::Kbps:
        return "Kbps";
    case SpeedDataUintconvert::Mbps:
        return "Mbps";
    case SpeedDataUintconvert::Gbps:
        return "Gbps";
    default:
        return "";
    }
}
} // namespace

QString SpeedDataUintconvert::speedDataAdaptiveUintconvert(unsigned int value, SpeedDataUintconvert::SpeedUint unit)
{
    // Through double first, so that values with the top bit set stay positive; the speed
    // is then kept in single precision, rounded again after every division.
    float speed = static_cast<float>(static_cast<double>(value));
    int scaledUnit = unit;
    while (scaledUnit < Gbps && speed >= kUnitStep) {
        speed = static_cast<float>(static_cast<double>(speed) / kUnitStep);
        ++scaledUnit;
    }
    return QString("%1").arg(static_cast<double>(speed), 0, 'f', 3, QChar('0')) + speedSuffix(scaledUnit);
}

std::string groupDigits(std::string digits)
{
    std::string grouped;
    while (digits.size() > kDigitGroup) {
        grouped = "," + digits.substr(digits.size() - kDigitGroup) + grouped;
        digits.erase(digits.size() - kDigitGroup);
    }
    return digits + grouped;
}

} // namespace velmora
