#pragma once
// Company names of network adapters, from the first three bytes of a MAC address (the
// organisationally unique identifier, OUI). The table is the IEEE MA-L registry, compiled
// in at build time.

#include <cstddef>
#include <string>

namespace Quillon {

class CMacCompanyHelper {
public:
    CMacCompanyHelper();
    ~CMacCompanyHelper();

    // The company registered for the OUI of `mac`, UTF-8; empty when the OUI is not
    // registered or `mac` is not a MAC prefix.
    //
    // `mac` holds hexadecimal digits in either case, optionally grouped by ":", "-" or
    // "."; its first six digits are the OUI, so "aabbcc", "AA-BB-CC" and a whole address
    // "aa:bb:cc:11:22:33" all name the same company. Any other character, or fewer than six
    // digits, makes it malformed.
    std::string getCompanyNameByMAc(const std::string& mac) const;

    // Number of OUIs in the table.
    static std::size_t getCompanyCount();
};

} // namespace Quillon
