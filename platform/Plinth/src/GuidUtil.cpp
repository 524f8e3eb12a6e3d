// Random version 4 GUIDs; each thread draws from its own generator, so no lock is needed.
#include "Plinth/GuidUtil.h"

#include <cstdint>
#include <cstdio>
#include <random>

namespace Plinth {
namespace GuidUtil {

namespace {

std::mt19937_64& generator()
{
    thread_local std::mt19937_64 engine([] {
        std::random_device device;
        std::seed_seq seed{device(), device(), device(), device(), device(), device(), device(), device()};
        return std::mt19937_64(seed);
    }());
    return engine;
}

} // namespace

std::string CreateGuid()
{
    std::mt19937_64& engine = generator();
    uint64_t high = engine();
    uint64_t low = engine();
    // Version 4 in the top nibble of the third group, variant 10xx in the fourth.
    high = (high & 0xFFFFFFFFFFFF0FFFULL) | 0x0000000000004000ULL;
    low = (low & 0x3FFFFFFFFFFFFFFFULL) | 0x8000000000000000ULL;

    char text[37];
    std::snprintf(text, sizeof(text), "%08X-%04X-%04X-%04X-%012llX",
                  static_cast<unsigned>(high >> 32),
                  static_cast<unsigned>((high >> 16) & 0xFFFF),
                  static_cast<unsigned>(high & 0xFFFF),
                  static_cast<unsigned>(low >> 48),
                  static_cast<unsigned long long>(low & 0xFFFFFFFFFFFFULL));
    return std::string(text);
}

} // namespace GuidUtil
} // namespace Plinth
