#include "Quillon/MacCompanyHelper.h"

#include <algorithm>

#include "OuiTable.h"

namespace Quillon {

namespace {

constexpr int kOuiDigits = 6;

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

bool isGroupSeparator(char c)
{
    return c == ':' || c == '-' || c == '.';
}

// The OUI of `mac` as a 24-bit number, or -1 when `mac` is malformed.
long parseOui(const std::string& mac)
{
    long oui = 0;
    int digits = 0;
    for (char c : mac) {
        if (isGroupSeparator(c))
            continue;
        const int value = hexValue(c);
        if (value < 0)
            return -1;
        if (digits < kOuiDigits)
            oui = (oui << 4) | value;
        ++digits;
    }
    return digits >= kOuiDigits ? oui : -1;
}

} // namespace

CMacCompanyHelper::CMacCompanyHelper() = default;

CMacCompanyHelper::~CMacCompanyHelper() = default;

std::string CMacCompanyHelper::getCompanyNameByMAc(const std::string& mac) const
{
    const long oui = parseOui(mac);
    if (oui < 0)
        return std::string();
    const details::OuiEntry* begin = details::g_ouiEntries;
    const details::OuiEntry* end = begin + details::g_ouiEntryCount;
    const details::OuiEntry* found = std::lower_bound(
        begin, end, static_cast<std::uint32_t>(oui),
        [](const details::OuiEntry& entry, std::uint32_t value) { return entry.oui < value; });
    if (found == end || found->oui != static_cast<std::uint32_t>(oui))
        return std::string();
    return std::string(details::g_ouiNames + found->nameOffset);
}

std::size_t CMacCompanyHelper::getCompanyCount()
{
    return details::g_ouiEntryCount;
}

} // namespace Quillon
