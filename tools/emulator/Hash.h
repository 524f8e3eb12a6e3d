#pragma once
// Deterministic randomness: every value of the emulated network is a function of the
// seed, of stable keys (device, port, client) and of the device clock, never of a
// random generator's history. So two runs with one seed answer alike tick by tick.
#include <cstdint>
#include <initializer_list>
#include <string>

namespace emulator {

inline uint64_t mix64(uint64_t x)
{
    x += 0x9e3779b97f4a7c15ULL;
    x = (x ^ (x >> 30)) * 0xbf58476d1ce4e5b9ULL;
    x = (x ^ (x >> 27)) * 0x94d049bb133111ebULL;
    return x ^ (x >> 31);
}

inline uint64_t hashKeys(std::initializer_list<uint64_t> keys)
{
    uint64_t h = 0x243f6a8885a308d3ULL;
    for (uint64_t k : keys)
        h = mix64(h ^ mix64(k));
    return h;
}

inline uint64_t hashText(const std::string& text)
{
    uint64_t h = 1469598103934665603ULL;
    for (unsigned char c : text) {
        h ^= c;
        h *= 1099511628211ULL;
    }
    return mix64(h);
}

// A number in [0, 1) from the keys.
inline double unitOf(std::initializer_list<uint64_t> keys)
{
    return static_cast<double>(hashKeys(keys) >> 11) * (1.0 / 9007199254740992.0);
}

// An integer in [low, high] from the keys.
inline long long rangeOf(long long low, long long high, std::initializer_list<uint64_t> keys)
{
    if (high <= low)
        return low;
    return low + static_cast<long long>(hashKeys(keys) % static_cast<uint64_t>(high - low + 1));
}

} // namespace emulator
