#pragma once
// The OUI table written at build time from the IEEE registry (see generator/).

#include <cstddef>
#include <cstdint>

namespace Quillon {
namespace details {

struct OuiEntry {
    std::uint32_t oui;        // the 24-bit OUI, 0xAABBCC for AA-BB-CC
    std::uint32_t nameOffset; // offset of the NUL-terminated UTF-8 name in g_ouiNames
};

// Sorted by oui, each OUI once.
extern const OuiEntry g_ouiEntries[];
extern const std::size_t g_ouiEntryCount;
// Every distinct name once, each followed by a NUL.
extern const char g_ouiNames[];

} // namespace details
} // namespace Quillon
