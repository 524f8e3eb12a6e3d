#pragma once
// The fleet the dialog tests open: one device of every class the dialog knows, switches and
// routers with and without PoE, controllers with and without AP groups, and devices of the
// classes that have no rows. Started once per test program.
#include <gtest/gtest.h>

#include "support/TestFleet.h"

namespace velmora {
namespace test {

inline const char* dialogTestFleetJson()
{
    return R"({"name": "dialog-tests", "devices": [
  {"model": "QN-1062", "name": "poe-switch"},
  {"model": "QN-1066", "name": "plain-switch"},
  {"model": "QN-1066", "name": "distribution switch of the north wing, third floor, rack 2"},
  {"model": "QN-1180", "name": "poe-router"},
  {"model": "QN-1181", "name": "plain-router"},
  {"model": "QN-1098", "name": "bridge"},
  {"model": "QN-1137", "name": "fiber"},
  {"model": "QN-1160", "name": "ac-groups", "apCount": 3, "groups": 2, "searchGroups": 0},
  {"model": "QN-1164", "name": "ac-plain", "apCount": 3, "groups": 0},
  {"model": "QN-1140", "name": "ap"},
  {"model": "QN-1170", "name": "wireless-router"},
  {"model": "QN-1040", "name": "class-0", "category": 0},
  {"model": "QN-1040", "name": "class-119", "category": 119},
  {"model": "QN-1040", "name": "class-123", "category": 123},
  {"model": "QN-1040", "name": "class-127", "category": 127},
  {"model": "QN-1040", "name": "class-128", "category": 128},
  {"model": "QN-1040", "name": "class-129", "category": 129},
  {"model": "QN-1040", "name": "class-131", "category": 131}
]})";
}

// One emulator for the whole test program, on the fleet above.
class DialogTestFleet : public SharedTestFleet<DialogTestFleet> {
public:
    DialogTestFleet()
        : SharedTestFleet({"dialog-fleet.json", dialogTestFleetJson()})
    {
    }
};

inline ::testing::Environment* const kDialogTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new TestFleetEnvironment<DialogTestFleet>);

} // namespace test
} // namespace velmora

#define VELMORA_REQUIRE_FLEET()                                                                     \
    do {                                                                                            \
        ASSERT_TRUE(::velmora::test::DialogTestFleet::instance().isRunning())                       \
            << ::velmora::test::DialogTestFleet::instance().error();                                \
    } while (0)
