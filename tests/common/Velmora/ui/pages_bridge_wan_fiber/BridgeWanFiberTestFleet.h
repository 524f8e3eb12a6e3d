#pragma once
// The emulated site of the bridge, WAN and fiber chassis page tests, started once per test
// program: a page given its device as the dialog gives it, the device's own records read
// directly, and the request log.
#include <QString>
#include <gtest/gtest.h>

#include <ostream>

#include "support/TestFleet.h"

// Texts in test messages as text.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace velmora {
namespace test {

// Bridges take their answers' gaps from their place among the bridges of the fleet:
//  - "bridge-a": no noise, no wireless mode, a channel width without its mode setting, no
//    antenna gain; encryption off, camera side; its peer has neither noise nor distance;
//  - "bridge-b": an unknown security mode, centre side, no transmit power; its peer's noise
//    is the "no value" mark -1000 and its distance is left out;
//  - "bridge-c": no SSID, no security mode, no channel, an unknown work scene; its peer
//    stands at distance 0;
//  - "bridge-d": everything, with WPA2 personal, machine room side, a measured distance;
//  - "bridge-nocard": no wireless card in its capabilities.
// The enterprise routers have a third WAN port whose way online is "LTE" on an even fleet
// place and "bridgeMode" on an odd one.
inline const char* bridgeWanFiberFleetJson()
{
    return R"({"name": "bridge-wan-fiber-tests", "devices": [
  {"model": "QN-1098", "name": "bridge-a"},
  {"model": "QN-1098", "name": "bridge-b"},
  {"model": "QN-1098", "name": "bridge-c"},
  {"model": "QN-1098", "name": "bridge-d"},
  {"model": "QN-1098", "name": "bridge-nocard", "wirelessCardID": ""},
  {"model": "QN-1170", "name": "router"},
  {"model": "QN-1180", "name": "enterprise-even"},
  {"model": "QN-1180", "name": "enterprise-odd"},
  {"model": "QN-1164", "name": "controller"},
  {"model": "QN-1137-21S", "name": "crate"}
]})";
}

class BridgeWanFiberTestFleet : public SharedTestFleet<BridgeWanFiberTestFleet> {
public:
    BridgeWanFiberTestFleet()
        : SharedTestFleet({"bridge-wan-fiber-fleet.json", bridgeWanFiberFleetJson()})
    {
    }
};

inline ::testing::Environment* const kBridgeWanFiberTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new TestFleetEnvironment<BridgeWanFiberTestFleet>);

using BridgeWanFiberPageTest = FleetPageTest<BridgeWanFiberTestFleet>;

} // namespace test
} // namespace velmora
