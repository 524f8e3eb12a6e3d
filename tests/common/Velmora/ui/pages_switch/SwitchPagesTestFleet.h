#pragma once
// The emulated site that the switch page tests open, started once per test program, and the
// steps that tests share: a page given its device as the dialog gives it, the device's own
// records read directly, and the far side of the panel and the topology service.
#include <gtest/gtest.h>

#include "support/TestFleet.h"

namespace velmora {
namespace test {

// The first switch is the root of the topology: a chassis with an aggregated trunk and a
// device of a class the client leaves out. "edge" is the first access switch, with a port
// that has two peers behind a hub.
inline const char* switchPagesFleetJson()
{
    return R"({"name": "switch-pages-tests", "devices": [
  {"model": "QN-1093", "name": "core"},
  {"model": "QN-1045", "name": "aggregation", "ports": "1-24E,25-28O"},
  {"model": "QN-1040", "name": "edge"},
  {"model": "QN-1040", "name": "wireless-port", "ports": "1-8E,9-10O,11W"},
  {"model": "QN-1062", "name": "poe-switch", "poe": 1},
  {"model": "QN-1066", "name": "plain-switch", "poe": 0},
  {"model": "QN-1001", "name": "logical", "panelStatus": 1},
  {"model": "Net QN-1040-X", "name": "contains-around", "category": 120, "ports": "1-8E,9-10O"},
  {"model": "QN-1070 rev2", "name": "equals-around", "category": 120, "ports": "1-8E"},
  {"model": "QN-1070", "name": "equals"},
  {"model": "QN-7777", "name": "unknown-model", "category": 120, "ports": "1-8E"},
  {"model": "QN-1040", "name": "batch", "batch": 4},
  {"model": "QN-1040", "name": "category-123", "category": 123},
  {"model": "QN-1098", "name": "bridge"},
  {"model": "QN-1140", "name": "ap"}
]})";
}

class SwitchPagesTestFleet : public SharedTestFleet<SwitchPagesTestFleet> {
public:
    SwitchPagesTestFleet()
        : SharedTestFleet({"switch-pages-fleet.json", switchPagesFleetJson(), true})
    {
    }
};

inline ::testing::Environment* const kSwitchPagesTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new TestFleetEnvironment<SwitchPagesTestFleet>);

using SwitchPageTest = FleetPageTest<SwitchPagesTestFleet>;

} // namespace test
} // namespace velmora
