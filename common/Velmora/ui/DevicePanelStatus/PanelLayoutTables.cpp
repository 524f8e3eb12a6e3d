// The layout rows of every panel class: frames, image sets and port runs. A change to one
// model touches one row here; the panels and the art generator both read these rows.
//
// Every image path is written out whole, relative to kImageRoot: the build collects the paths
// from this file to know which files the art generator writes.
#include "PanelLayouts.h"

namespace velmora {
namespace layouts {
namespace {

using K = PortKind;
using F = RowForm;
using S = Shape;
using P = PortState;

// ---------------------------------------------------------------------------------------------
// Image sets. Within a set the ids of one port kind come in the order disconnected, alarm,
// normal (the fixed switches) or as the family's own numbering says.

// Small desktop switches: one jack form, electrical only.
const ImageSet kMidPorts4{
    "mid electrical",
    {
        {1, "SwitchDevice/mid_port_electrical_disconnected.png", S::MidElectrical, P::Down},
        {2, "SwitchDevice/mid_port_electrical_alarm.png", S::MidElectrical, P::Alarm},
        {3, "SwitchDevice/mid_port_electrical_normal.png", S::MidElectrical, P::Up},
    },
    {{K::Electrical, F::Any, 1, 2, 3}},
};

// Small desktop switches with optical uplinks. The optical names are the devices' own spelling.
const ImageSet kMidPorts7{
    "mid electrical and optical",
    {
        {1, "SwitchDevice/mid_port_electrical_disconnected.png", S::MidElectrical, P::Down},
        {2, "SwitchDevice/mid_port_electrical_alarm.png", S::MidElectrical, P::Alarm},
        {3, "SwitchDevice/mid_port_electrical_normal.png", S::MidElectrical, P::Up},
        {4, "SwitchDevice/mid_port_optional_disconnected.png", S::MidOptical, P::Down},
        {5, "SwitchDevice/mid_port_optional_alarm.png", S::MidOptical, P::Alarm},
        {6, "SwitchDevice/mid_port_optional_normal.png", S::MidOptical, P::Up},
    },
    {{K::Electrical, F::Any, 1, 2, 3}, {K::Optical, F::Any, 4, 5, 6}},
};

// Two rows of electrical jacks, the lower row turned over.
const ImageSet kTwoRowPorts7{
    "two-row electrical",
    {
        {1, "SwitchDevice/port_electrical_positive_unconnected.png", S::Electrical, P::Down},
        {2, "SwitchDevice/port_electrical_positive_alarm.png", S::Electrical, P::Alarm},
        {3, "SwitchDevice/port_electrical_positive_connected.png", S::Electrical, P::Up},
        {4, "SwitchDevice/port_electrical_negative_unconnected.png", S::ElectricalLower, P::Down},
        {5, "SwitchDevice/port_electrical_negative_alarm.png", S::ElectricalLower, P::Alarm},
        {6, "SwitchDevice/port_electrical_negative_connected.png", S::ElectricalLower, P::Up},
    },
    {{K::Electrical, F::Upper, 1, 2, 3}, {K::Electrical, F::Lower, 4, 5, 6}},
};

#define VELMORA_STD_PORT_IMAGES                                                                       \
    {1, "SwitchDevice/port_optical_unconnected.png", S::Optical, P::Down},                            \
        {2, "SwitchDevice/port_optical_alarm.png", S::Optical, P::Alarm},                             \
        {3, "SwitchDevice/port_optical_connected.png", S::Optical, P::Up},                            \
        {4, "SwitchDevice/port_electrical_positive_unconnected.png", S::Electrical, P::Down},         \
        {5, "SwitchDevice/port_electrical_positive_alarm.png", S::Electrical, P::Alarm},              \
        {6, "SwitchDevice/port_electrical_positive_connected.png", S::Electrical, P::Up},             \
        {7, "SwitchDevice/port_electrical_negative_unconnected.png", S::ElectricalLower, P::Down},    \
        {8, "SwitchDevice/port_electrical_negative_alarm.png", S::ElectricalLower, P::Alarm},         \
        {9, "SwitchDevice/port_electrical_negative_connected.png", S::ElectricalLower, P::Up}

// The rack switches: optical cages and both jack forms; console ports show id 4 for good.
const ImageSet kStdPorts10{
    "rack",
    {VELMORA_STD_PORT_IMAGES},
    {{K::Optical, F::Any, 1, 2, 3}, {K::Electrical, F::Upper, 4, 5, 6}, {K::Electrical, F::Lower, 7, 8, 9}},
    -1,
    4,
};

// Rack switches of optical ports only, with the jack of their management console.
const ImageSet kStdPorts11{
    "rack with console jack",
    {VELMORA_STD_PORT_IMAGES, {10, "SwitchDevice/port_console.png", S::Console, P::None}},
    {{K::Optical, F::Any, 1, 2, 3}, {K::Electrical, F::Upper, 4, 5, 6}, {K::Electrical, F::Lower, 7, 8, 9}},
    -1,
    10,
};

// Rack switches whose optical cages stand in two rows, the lower row turned over too.
const ImageSet kStdPorts13{
    "rack with two-row optical",
    {VELMORA_STD_PORT_IMAGES,
     {10, "SwitchDevice/port_optical_lower_unconnected.png", S::OpticalLower, P::Down},
     {11, "SwitchDevice/port_optical_lower_alarm.png", S::OpticalLower, P::Alarm},
     {12, "SwitchDevice/port_optical_lower_connected.png", S::OpticalLower, P::Up}},
    {{K::Optical, F::Upper, 1, 2, 3},
     {K::Optical, F::Lower, 10, 11, 12},
     {K::Electrical, F::Upper, 4, 5, 6},
     {K::Electrical, F::Lower, 7, 8, 9}},
    -1,
    4,
};

#undef VELMORA_STD_PORT_IMAGES

// Chassis: a "port" is a slot and its image a board. Down is "not inserted", up "inserted".
const ImageSet kChassisA{
    "chassis, half-width main boards",
    {
        {1, "SwitchDevice/chassis_a_maineboard_inserted.png", S::MainBoardA, P::Up},
        {2, "SwitchDevice/chassis_a_maineboard_not_inserted.png", S::MainBoardA, P::Down},
        {3, "SwitchDevice/chassis_b_interfaceboard_inserted.png", S::InterfaceBoard, P::Up},
        {4, "SwitchDevice/chassis_b_interfaceboard_not_inserted.png", S::InterfaceBoard, P::Down},
    },
    {{K::MainBoard, F::Any, 2, -1, 1}, {K::InterfaceBoard, F::Any, 4, -1, 3}},
};

const ImageSet kChassisB{
    "chassis, full-width main boards",
    {
        {1, "SwitchDevice/chassis_b_maineboard_inserted.png", S::MainBoardB, P::Up},
        {2, "SwitchDevice/chassis_b_maineboard_not_inserted.png", S::MainBoardB, P::Down},
        {3, "SwitchDevice/chassis_b_interfaceboard_inserted.png", S::InterfaceBoard, P::Up},
        {4, "SwitchDevice/chassis_b_interfaceboard_not_inserted.png", S::InterfaceBoard, P::Down},
    },
    {{K::MainBoard, F::Any, 2, -1, 1}, {K::InterfaceBoard, F::Any, 4, -1, 3}},
};

const ImageSet kChassisInterfaceOnly{
    "chassis, interface boards only",
    {
        {3, "SwitchDevice/chassis_b_interfaceboard_inserted.png", S::InterfaceBoard, P::Up},
        {4, "SwitchDevice/chassis_b_interfaceboard_not_inserted.png", S::InterfaceBoard, P::Down},
    },
    {{K::InterfaceBoard, F::Any, 4, -1, 3}},
};

// Bridges: 1 disconnected, 2 normal, 3 alarm.
const ImageSet kBridgePorts{
    "bridge",
    {
        {1, "BridgeDevice/bridge_port_disconnected.png", S::BridgePort, P::Down},
        {2, "BridgeDevice/bridge_port_normal.png", S::BridgePort, P::Up},
        {3, "BridgeDevice/bridge_port_alarm.png", S::BridgePort, P::Alarm},
    },
    {{K::Electrical, F::Any, 1, 3, 2}},
};

const ImageSet kBridgePortsUp{
    "bridge, upright jacks",
    {
        {1, "BridgeDevice/bridge_port_disconnected_up.png", S::BridgePortUp, P::Down},
        {2, "BridgeDevice/bridge_port_normal_up.png", S::BridgePortUp, P::Up},
        {3, "BridgeDevice/bridge_port_alarm_up.png", S::BridgePortUp, P::Alarm},
    },
    {{K::Electrical, F::Any, 1, 3, 2}},
};

// AP and router sets: 1 link down, 2 link up, 3 alarm, 4 connected to the internet.
#define VELMORA_AP_SET(var, label, shape, off, on, alarm, wan)                                        \
    const ImageSet var{label,                                                                         \
                       {{1, off, shape, P::Down}, {2, on, shape, P::Up}, {3, alarm, shape, P::Alarm}, \
                        {4, wan, shape, P::Internet}},                                                \
                       {{K::Electrical, F::Any, 1, 3, 2}},                                            \
                       4}

VELMORA_AP_SET(kApPorts, "AP", S::ApPort, "APDevice/port_unlink.png", "APDevice/port_link.png",
               "APDevice/port_alarm.png", "APDevice/port_wan.png");
VELMORA_AP_SET(kApPorts2, "AP set 2", S::ApPort2, "APDevice/port_unlink2.png", "APDevice/port_link2.png",
               "APDevice/port_alarm2.png", "APDevice/port_wan2.png");
VELMORA_AP_SET(kApPorts3, "AP set 3", S::ApPort3, "APDevice/port_unlink3.png", "APDevice/port_link3.png",
               "APDevice/port_alarm3.png", "APDevice/port_wan3.png");
VELMORA_AP_SET(kApPorts4, "AP set 4", S::ApPort4, "APDevice/port_unlink4.png", "APDevice/port_link4.png",
               "APDevice/port_alarm4.png", "APDevice/port_wan4.png");
// The wireless routers of sets 1 and 2 spell their alarm file "alram".
VELMORA_AP_SET(kWireRouterPorts1, "wireless router set 1", S::WireRouterPort1, "WireRouterDevice/port_off1.png",
               "WireRouterDevice/port_on1.png", "WireRouterDevice/port_alram1.png", "WireRouterDevice/port_wan1.png");
VELMORA_AP_SET(kWireRouterPorts2, "wireless router set 2", S::WireRouterPort2, "WireRouterDevice/port_off2.png",
               "WireRouterDevice/port_on2.png", "WireRouterDevice/port_alram2.png", "WireRouterDevice/port_wan2.png");
VELMORA_AP_SET(kWireRouterPorts3, "wireless router set 3", S::WireRouterPort3, "WireRouterDevice/port_off3.png",
               "WireRouterDevice/port_on3.png", "WireRouterDevice/port_alarm3.png", "WireRouterDevice/port_wan3.png");
VELMORA_AP_SET(kGateRouterPorts1, "gateway router set 1", S::GateRouterPort1, "GateRouterDevice/port_off1.png",
               "GateRouterDevice/port_on1.png", "GateRouterDevice/port_alarm1.png", "GateRouterDevice/port_wan1.png");
VELMORA_AP_SET(kGateRouterPorts3, "gateway router set 3", S::GateRouterPort3, "GateRouterDevice/port_off3.png",
               "GateRouterDevice/port_on3.png", "GateRouterDevice/port_alarm3.png", "GateRouterDevice/port_wan3.png");

#undef VELMORA_AP_SET

// The router of set 3 that draws no ports loads no link-down image (id 1 stays missing) and
// names its alarm file "alram", unlike its sibling of the same set.
const ImageSet kWireRouterPorts3NoLinkDown{
    "wireless router set 3, no link-down image",
    {
        {2, "WireRouterDevice/port_on3.png", S::WireRouterPort3, P::Up},
        {3, "WireRouterDevice/port_alram3.png", S::WireRouterPort3, P::Alarm},
        {4, "WireRouterDevice/port_wan3.png", S::WireRouterPort3, P::Internet},
    },
    {{K::Electrical, F::Any, 1, 3, 2}},
    4,
};

// Fiber cards: 1 disconnected, 2 normal, 3 alarm, then the optical port 4, 5, 6 alike.
const ImageSet kNetMgCardPorts{
    "network management card",
    {
        {1, "FiberDevice/big_electrical_disconnected.png", S::BigElectrical, P::Down},
        {2, "FiberDevice/big_electrical_normal.png", S::BigElectrical, P::Up},
        {3, "FiberDevice/big_electrical_alarm.png", S::BigElectrical, P::Alarm},
    },
    {{K::Electrical, F::Any, 1, 3, 2}},
};

const ImageSet kReceiveCardPorts{
    "receiving card",
    {
        {1, "FiberDevice/big_electrical_disconnected.png", S::BigElectrical, P::Down},
        {2, "FiberDevice/big_electrical_normal.png", S::BigElectrical, P::Up},
        {3, "FiberDevice/big_electrical_alarm.png", S::BigElectrical, P::Alarm},
        {4, "FiberDevice/small_optical_disconnected.png", S::SmallOptical, P::Down},
        {5, "FiberDevice/small_optical_normal.png", S::SmallOptical, P::Up},
        {6, "FiberDevice/small_optical_alarm.png", S::SmallOptical, P::Alarm},
    },
    {{K::Electrical, F::Any, 1, 3, 2}, {K::Optical, F::Any, 4, 6, 5}},
};

const ImageSet kSendMachinePorts{
    "sending unit",
    {
        {1, "SwitchDevice/big_port_electrical_disconnected.png", S::BigElectrical, P::Down},
        {2, "SwitchDevice/big_port_electrical_normal.png", S::BigElectrical, P::Up},
        {3, "SwitchDevice/big_port_electrical_alarm.png", S::BigElectrical, P::Alarm},
        {4, "FiberDevice/big_optical_disconnected.png", S::BigOptical, P::Down},
        {5, "FiberDevice/big_optical_normal.png", S::BigOptical, P::Up},
        {6, "FiberDevice/big_optical_alarm.png", S::BigOptical, P::Alarm},
    },
    {{K::Electrical, F::Any, 1, 3, 2}, {K::Optical, F::Any, 4, 6, 5}},
};

// The fiber crate page: a card and a blanking plate per slot, and the ports on a card.
const ImageSet kFiberCrate{
    "fiber crate",
    {
        {1, "FiberDevice/inserted_slot.png", S::FiberSlotCard, P::Up},
        {2, "FiberDevice/empty_slot.png", S::FiberSlotEmpty, P::Down},
        {3, "FiberDevice/electrical_unconected.png", S::FiberSlotElectrical, P::Down},
        {4, "FiberDevice/optical_unconnected.png", S::FiberSlotOptical, P::Down},
    },
    {{K::InterfaceBoard, F::Any, 2, -1, 1}},
};

PanelLayout fixed(const char* name, const ImageSet& set, std::vector<Run> runs)
{
    return PanelLayout(name, Family::FixedSwitch, set, std::move(runs));
}

constexpr KindRange allElectrical{0, kNoLastPort, K::Electrical};

} // namespace

// ---------------------------------------------------------------------------------------------
// Fixed switches. Two-row groups list the odd run first; its partner (same x, next port) is
// the other row.

const std::vector<PanelLayout>& fixedSwitchLayouts()
{
    static const std::vector<PanelLayout> rows = {
        fixed("CQ101SwitchPanel", kMidPorts4, {
            E(1, 4, 1, 89, 4 + We, 22),
            E(5, 113 + 4 * We, 22)})
            .frame(1, "SwitchDevice/5_port_switch_frame.png", "PoE")
            .frame(2, "SwitchDevice/5_port_switch_frame_sp.png", "Hi-PoE")
            .multiplexIgnored().alarmByPortNumber({allElectrical}),

        fixed("CQ103SerialSwitchPanel", kMidPorts4, {
            E(1, 8, 1, 50, 4 + We, 22),
            E(9, 90 + 8 * We, 22)})
            .frame(0, "SwitchDevice/9_port_switch_frame_not_poe.png")
            .frame(1, "SwitchDevice/9_port_switch_frame.png", "PoE")
            .frame(2, "SwitchDevice/9_port_switch_frame_sp.png", "Hi-PoE")
            .alarmByPortNumber({allElectrical}),

        fixed("CQ104SerialSwitchPanel", kStdPorts10, {
            E(1, 7, 2, 310, 34, 47),
            E(2, 8, 2, 310, 34, 18),
            E(9, 458, 47),
            E(10, 458, 18),
            O(11, 12, 1, 508, 45, 54)})
            .frame("SwitchDevice/switch_q002.png"),

        fixed("CQ105SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 189, 4 + We, 37 + He),
            E(2, 8, 2, 189, 4 + We, 31),
            E(9, 15, 2, 221 + 4 * We, 4 + We, 37 + He),
            E(10, 16, 2, 221 + 4 * We, 4 + We, 31),
            O(17, 18, 1, 397, 37, 52)})
            .frame("SwitchDevice/18_port_switch_frame_sp.png", "Hi-PoE")
            .portOrderFromDevice(),

        fixed("CQ106SerialSwitchPanel", kStdPorts10, {
            E(1, 7, 2, 255, 4 + We, 37 + He),
            E(2, 8, 2, 255, 4 + We, 31),
            E(9, 15, 2, 277 + 4 * We, 4 + We, 37 + He),
            E(10, 16, 2, 277 + 4 * We, 4 + We, 31),
            E(17, 309 + 8 * We, 37 + He),
            E(18, 309 + 8 * We, 31),
            O(19, 20, 1, 490, 36, 54)})
            .frame(0, "SwitchDevice/18_port_switch_frame_not_poe.png")
            .frame(1, "SwitchDevice/18_port_switch_frame.png", "PoE"),

        fixed("CQ107SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 189, 4 + We, 37 + He),
            E(2, 8, 2, 189, 4 + We, 31),
            E(9, 15, 2, 221 + 4 * We, 4 + We, 37 + He),
            E(10, 16, 2, 221 + 4 * We, 4 + We, 31),
            E(17, 23, 2, 253 + 8 * We, 4 + We, 37 + He),
            E(18, 24, 2, 253 + 8 * We, 4 + We, 31),
            E(25, 26, 1, 501, 19 + We, 52)})
            .frame("SwitchDevice/switch_frame_sp.png", "Hi-PoE")
            .portOrderFromDevice(),

        fixed("CQ108SerialSwitchPanel", kStdPorts10, {
            E(1, 7, 2, 189, 2 + Wo, 37 + He),
            E(2, 8, 2, 189, 2 + Wo, 31),
            E(9, 15, 2, 203 + 4 * Wo, 2 + Wo, 37 + He),
            E(10, 16, 2, 203 + 4 * Wo, 2 + Wo, 31),
            E(17, 23, 2, 217 + 8 * Wo, 2 + Wo, 37 + He),
            E(18, 24, 2, 217 + 8 * Wo, 2 + Wo, 31),
            E(25, 239 + 12 * Wo, 37 + He),
            E(26, 239 + 12 * Wo, 31),
            O(27, 28, 1, 515, 36, 54)})
            .frame(0, "SwitchDevice/switch_frame_not_poe.png")
            .frame(1, "SwitchDevice/switch_frame.png", "PoE"),

        fixed("CQ109SwitchPanel", kMidPorts4, {
            E(1, 8, 1, 76, 4 + We, 22)})
            .frame("SwitchDevice/8_port_switch_frame.png")
            .alarmByPortNumber({allElectrical}),

        fixed("CQ110SwitchPanel", kMidPorts7, {
            E(1, 8, 1, 77, 5 + We, 22),
            O(9, 10, 1, 485, 5 + Wo, 44)})
            .frame("SwitchDevice/10_port_switch_frame.png")
            .alarmByPortNumber({{0, 8, K::Electrical}, {9, kNoLastPort, K::Optical}}),

        fixed("CQ111SwitchPanel", kTwoRowPorts7, {
            E(1, 7, 2, 173, 8 + We, 25 + He),
            E(2, 8, 2, 173, 8 + We, 19),
            E(9, 15, 2, 215 + 4 * We, 8 + We, 25 + He),
            E(10, 16, 2, 215 + 4 * We, 8 + We, 19)})
            .frame("SwitchDevice/16_port_switch_frame.png")
            .alarmByPortNumber({allElectrical}),

        fixed("CQ112SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 351, 2 + We, 25 + He),
            E(2, 8, 2, 351, 2 + We, 19),
            E(9, 15, 2, 366 + 4 * We, 2 + We, 25 + He),
            E(10, 16, 2, 366 + 4 * We, 2 + We, 19),
            E(17, 18, 1, 527, 3 + We, 45)})
            .frame("SwitchDevice/18_port_switch_frame_poe.png", "PoE")
            .portOrderFromDevice(),

        fixed("CQ113SwitchPanel", kTwoRowPorts7, {
            E(1, 7, 2, 186, 8 + We, 25 + He),
            E(2, 8, 2, 186, 8 + We, 19),
            E(9, 15, 2, 228 + 4 * We, 8 + We, 25 + He),
            E(10, 16, 2, 228 + 4 * We, 8 + We, 19),
            E(17, 23, 2, 270 + 8 * We, 8 + We, 25 + He),
            E(18, 24, 2, 270 + 8 * We, 8 + We, 19)})
            .frame("SwitchDevice/24_port_switch_frame.png")
            .alarmByPortNumber({allElectrical}),

        fixed("CQ114SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 264, 2 + We, 25 + He),
            E(2, 8, 2, 264, 2 + We, 19),
            E(9, 15, 2, 279 + 4 * We, 2 + We, 25 + He),
            E(10, 16, 2, 279 + 4 * We, 2 + We, 19),
            E(17, 23, 2, 294 + 8 * We, 2 + We, 25 + He),
            E(18, 24, 2, 294 + 8 * We, 2 + We, 19),
            E(25, 26, 1, 527, 3 + We, 45)})
            .frame("SwitchDevice/26_port_switch_frame_poe.png", "PoE")
            .portOrderFromDevice(),

        fixed("CQ115SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 332, 3 + We, 30),
            E(2, 8, 2, 332, 3 + We, 36 + He),
            E(9, 433, 30),
            E(10, 433, 36 + He),
            O(11, 12, 1, 465, 5 + Wo, 55),
            console(13, 525, 51)})
            .frame("SwitchDevice/switch_q003.png")
            .comboMultiplex({{11, 12}}),

        fixed("CQ116SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 332, 3 + We, 30),
            E(2, 8, 2, 332, 3 + We, 36 + He),
            E(9, 433, 30),
            E(10, 433, 36 + He),
            O(11, 12, 1, 465, 8 + Wo, 55),
            console(13, 525, 51)})
            .frame("SwitchDevice/switch_q006.png")
            .multiplexIgnored(),

        fixed("CQ117SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 278, 3 + We, 30),
            E(2, 8, 2, 278, 3 + We, 36 + He),
            E(9, 15, 2, 303 + 4 * We, 3 + We, 30),
            E(10, 16, 2, 303 + 4 * We, 3 + We, 36 + He),
            E(17, 472, 30),
            E(18, 472, 36 + He),
            O(19, 20, 1, 500, 4 + Wo, 55),
            console(21, 554, 51)})
            .frame("SwitchDevice/switch_q007.png"),

        fixed("CQ118SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 224, 1 + We, 30),
            E(2, 8, 2, 224, 1 + We, 36 + He),
            E(9, 15, 2, 239 + 4 * We, 1 + We, 30),
            E(10, 16, 2, 239 + 4 * We, 1 + We, 36 + He),
            E(17, 23, 2, 254 + 8 * We, 1 + We, 30),
            E(18, 24, 2, 254 + 8 * We, 1 + We, 36 + He),
            E(25, 485, 30),
            E(26, 485, 36 + He),
            O(27, 28, 1, 511, 4 + Wo, 55),
            console(29, 563, 51)})
            .frame("SwitchDevice/switch_q008.png")
            .comboMultiplex({{25, 28}}),

        fixed("CQ119SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 166, 1 + We, 29 + He),
            E(2, 8, 2, 166, 1 + We, 24),
            E(9, 15, 2, 176 + 4 * We, 1 + We, 29 + He),
            E(10, 16, 2, 176 + 4 * We, 1 + We, 24),
            E(17, 23, 2, 186 + 8 * We, 1 + We, 29 + He),
            E(18, 24, 2, 186 + 8 * We, 1 + We, 24),
            O(25, 26, 1, 545, 8 + Wo, 64),
            console(27, 511, 51)})
            .frame(0, "SwitchDevice/switch_q010.png")
            .frame(1, "SwitchDevice/switch_q009.png", "PoE")
            .comboMultiplex({{25, 26}})
            .logoStrip(5, 15).portsScaledTo(15, 12),

        fixed("CQ120SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 224, 1 + We, 30),
            E(2, 8, 2, 224, 1 + We, 36 + He),
            E(9, 15, 2, 239 + 4 * We, 1 + We, 30),
            E(10, 16, 2, 239 + 4 * We, 1 + We, 36 + He),
            E(17, 23, 2, 254 + 8 * We, 1 + We, 30),
            E(18, 24, 2, 254 + 8 * We, 1 + We, 36 + He),
            E(25, 485, 30),
            E(26, 485, 36 + He),
            O(27, 28, 1, 511, 4 + Wo, 55),
            console(29, 563, 51)})
            .frame("SwitchDevice/switch_q011.png"),

        fixed("CQ121SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 162, 5 + We, 24 + He),
            E(2, 8, 2, 162, 5 + We, 20),
            O(9, 10, 1, 383, 2 + Wo, 64),
            console(11, 331, 51)})
            .frame(0, "SwitchDevice/switch_q013.png")
            .frame(3, "SwitchDevice/switch_q004.png", "S")
            .comboMultiplex({{9, 10}})
            .logoStrip(535, 15).portsScaledTo(15, 12),

        fixed("CQ122SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 287, 5 + We, 24 + He),
            E(2, 8, 2, 287, 5 + We, 20),
            O(9, 10, 1, 517, 2 + Wo, 64),
            console(11, 465, 51)})
            .frame(0, "SwitchDevice/switch_q014.png")
            .frame(3, "SwitchDevice/switch_q005.png", "S")
            .comboMultiplex({{9, 10}})
            .logoStrip(12, 15).portsScaledTo(15, 12),

        fixed("CQ123SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 354, 3 + We, 30),
            E(2, 8, 2, 354, 3 + We, 36 + He),
            O(9, 10, 1, 449, 5 + Wo, 55),
            console(11, 509, 51)})
            .frame("SwitchDevice/switch_q012.png")
            .multiplexIgnored(),

        fixed("CQ124SwitchPanel", kStdPorts13, {
            E(1, 7, 2, 278, 3 + We, 30),
            E(2, 8, 2, 278, 3 + We, 36 + He),
            E(9, 15, 2, 303 + 4 * We, 3 + We, 30),
            E(10, 16, 2, 303 + 4 * We, 3 + We, 36 + He),
            O(17, 555, 28),
            O(18, 555, 36 + Ho),
            console(19, 524, 51)})
            .frame("SwitchDevice/switch_q015.png"),

        fixed("CQ125SwitchPanel", kStdPorts13, {
            E(1, 7, 2, 244, 1 + We, 30),
            E(2, 8, 2, 244, 1 + We, 36 + He),
            E(9, 15, 2, 259 + 4 * We, 1 + We, 30),
            E(10, 16, 2, 259 + 4 * We, 1 + We, 36 + He),
            E(17, 23, 2, 274 + 8 * We, 1 + We, 30),
            E(18, 24, 2, 274 + 8 * We, 1 + We, 36 + He),
            O(25, 555, 28),
            O(26, 555, 36 + Ho),
            console(27, 507, 51)})
            .frame("SwitchDevice/switch_q016.png"),

        fixed("CQ126SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 16, 3 + We, 21),
            E(2, 8, 2, 16, 3 + We, 27 + He),
            E(9, 15, 2, 42 + 4 * We, 3 + We, 21),
            E(10, 16, 2, 42 + 4 * We, 3 + We, 27 + He),
            E(17, 23, 2, 68 + 8 * We, 3 + We, 21),
            E(18, 24, 2, 68 + 8 * We, 3 + We, 27 + He),
            E(25, 28, 1, 315, 20 + We, 44),
            console(29, 481, 45)})
            .frame("SwitchDevice/switch_q018.png"),

        fixed("CQ127SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 124, 2 + We, 33 + He),
            E(2, 8, 2, 124, 2 + We, 28),
            E(9, 15, 2, 138 + 4 * We, 2 + We, 33 + He),
            E(10, 16, 2, 138 + 4 * We, 2 + We, 28),
            E(17, 23, 2, 152 + 8 * We, 2 + We, 33 + He),
            E(18, 24, 2, 152 + 8 * We, 2 + We, 28),
            E(25, 27, 2, 166 + 12 * We, 2 + We, 33 + He),
            E(26, 28, 2, 166 + 12 * We, 2 + We, 28),
            O(29, 32, 1, 520, 5 + Wo, 61),
            console(33, 489, 51)})
            .frame("SwitchDevice/switch_q017.png")
            .comboMultiplex({{25, 32}})
            .logoStrip(5, 15).portsScaledTo(15, 12),

        fixed("CQ128SwitchPanel", kStdPorts10, {
            E(1, 11, 2, 11, 1 + We, 22),
            E(2, 12, 2, 11, 1 + We, 28 + He),
            E(13, 23, 2, 25 + 6 * We, 1 + We, 22),
            E(14, 24, 2, 25 + 6 * We, 1 + We, 28 + He),
            E(25, 35, 2, 39 + 12 * We, 1 + We, 22),
            E(26, 36, 2, 39 + 12 * We, 1 + We, 28 + He),
            E(37, 47, 2, 53 + 18 * We, 1 + We, 22),
            E(38, 48, 2, 53 + 18 * We, 1 + We, 28 + He),
            O(49, 52, 1, 499, Wo, 45),
            console(53, 513, 20)})
            .frame("SwitchDevice/switch_q020.png"),

        fixed("CQ129SwitchPanel", kStdPorts10, {
            E(1, 11, 2, 11, 1 + We, 22),
            E(2, 12, 2, 11, 1 + We, 28 + He),
            E(13, 23, 2, 25 + 6 * We, 1 + We, 22),
            E(14, 24, 2, 25 + 6 * We, 1 + We, 28 + He),
            E(25, 35, 2, 39 + 12 * We, 1 + We, 22),
            E(26, 36, 2, 39 + 12 * We, 1 + We, 28 + He),
            E(37, 47, 2, 53 + 18 * We, 1 + We, 22),
            E(38, 48, 2, 53 + 18 * We, 1 + We, 28 + He),
            O(49, 52, 1, 499, Wo, 45),
            console(53, 513, 20)})
            .frame("SwitchDevice/switch_q019.png"),

        fixed("CQ130SwitchPanel", kStdPorts13, {
            O(1, 7, 2, 10, 3 + Wo, 18),
            O(2, 8, 2, 10, 3 + Wo, 28 + Ho),
            O(9, 15, 2, 36 + 4 * Wo, 3 + Wo, 18),
            O(10, 16, 2, 36 + 4 * Wo, 3 + Wo, 28 + Ho),
            O(17, 23, 2, 62 + 8 * Wo, 3 + Wo, 18),
            O(18, 24, 2, 62 + 8 * Wo, 3 + Wo, 28 + Ho),
            O(25, 28, 1, 434, 1 + Wo, 44),
            E(31, 37, 2, 339, 3 + We, 21),
            E(32, 38, 2, 339, 3 + We, 27 + He),
            console(39, 528, 44)})
            .frame("SwitchDevice/switch_q021.png")
            .comboMultiplex({{31, 38}}),

        fixed("CQ131SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 16, 3 + We, 21),
            E(2, 8, 2, 16, 3 + We, 27 + He),
            E(9, 15, 2, 42 + 4 * We, 3 + We, 21),
            E(10, 16, 2, 42 + 4 * We, 3 + We, 27 + He),
            E(17, 23, 2, 68 + 8 * We, 3 + We, 21),
            E(18, 24, 2, 68 + 8 * We, 3 + We, 27 + He),
            O(25, 28, 1, 315, 17 + Wo, 44),
            console(29, 481, 45)})
            .frame("SwitchDevice/switch_q018.png"),

        fixed("CQ132SwitchPanel", kStdPorts10, {
            E(1, 11, 2, 11, 1 + We, 22),
            E(2, 12, 2, 11, 1 + We, 28 + He),
            E(13, 23, 2, 25 + 6 * We, 1 + We, 22),
            E(14, 24, 2, 25 + 6 * We, 1 + We, 28 + He),
            E(25, 35, 2, 39 + 12 * We, 1 + We, 22),
            E(26, 36, 2, 39 + 12 * We, 1 + We, 28 + He),
            E(37, 47, 2, 53 + 18 * We, 1 + We, 22),
            E(38, 48, 2, 53 + 18 * We, 1 + We, 28 + He),
            O(49, 52, 1, 499, Wo, 45),
            console(53, 513, 20)})
            .frame("SwitchDevice/switch_q022.png"),

        fixed("CQ133SwitchPanel", kStdPorts13, {
            O(1, 11, 2, 11, Wo, 17),
            O(2, 12, 2, 11, Wo, 30 + Ho),
            O(13, 23, 2, 21 + 6 * Wo, Wo, 17),
            O(14, 24, 2, 21 + 6 * Wo, Wo, 30 + Ho),
            O(25, 28, 1, 403, 1 + Wo, 45),
            E(31, 37, 2, 289, 3 + We, 21),
            E(32, 38, 2, 289, 3 + We, 27 + He),
            E(39, 40, 1, 423, 10 + We, 12)})
            .frame("SwitchDevice/switch_q024.png"),

        fixed("CQ134SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 207, 1 + We, 30),
            E(2, 8, 2, 207, 1 + We, 36 + He),
            E(9, 15, 2, 218 + 4 * We, 1 + We, 30),
            E(10, 16, 2, 218 + 4 * We, 1 + We, 36 + He),
            E(17, 23, 2, 229 + 8 * We, 1 + We, 30),
            E(18, 24, 2, 229 + 8 * We, 1 + We, 36 + He),
            O(25, 28, 1, 453, 1 + Wo, 55),
            console(29, 537, 51)})
            .frame("SwitchDevice/switch_q023.png"),

        fixed("CQ135SwitchPanel", kStdPorts10, {
            O(1, 11, 2, 10, Wo, 19),
            O(2, 12, 2, 10, Wo, 33 + Ho),
            O(13, 23, 2, 18 + 6 * Wo, Wo, 19),
            O(14, 24, 2, 18 + 6 * Wo, Wo, 33 + Ho),
            O(25, 35, 2, 26 + 12 * Wo, Wo, 19),
            O(26, 36, 2, 26 + 12 * Wo, Wo, 33 + Ho),
            O(37, 47, 2, 34 + 18 * Wo, Wo, 19),
            O(38, 48, 2, 34 + 18 * Wo, Wo, 33 + Ho),
            E(49, 52, 1, 500, 1 + We, 45),
            O(53, 54, 1, 502, 1 + Wo, 12),
            console(55, 548, 12)})
            .frame("SwitchDevice/switch_q025.png")
            .noElectricalLegend(),

        fixed("CQ136SwitchPanel", kStdPorts13, {
            O(1, 11, 2, 11, Wo, 17),
            O(2, 12, 2, 11, Wo, 29 + Ho),
            O(13, 23, 2, 21 + 6 * Wo, Wo, 17),
            O(14, 24, 2, 21 + 6 * Wo, Wo, 29 + Ho),
            O(25, 28, 1, 439, 1 + Wo, 45),
            E(31, 37, 2, 289, 3 + We, 21),
            E(32, 38, 2, 289, 3 + We, 27 + He),
            E(39, 40, 1, 443, 2 + We, 12)})
            .frame("SwitchDevice/switch_q026.png")
            .comboMultiplex({{17, 24}, {31, kNoLastPort}}),

        fixed("CQ137SwitchPanel", kStdPorts13, {
            E(1, 7, 2, 151, 2 + We, 33 + He),
            E(2, 8, 2, 151, 2 + We, 28),
            O(9, 15, 2, 254, 2 + Wo, 39 + Ho),
            O(10, 16, 2, 254, 2 + Wo, 28),
            O(17, 23, 2, 269 + 4 * Wo, 2 + Wo, 39 + Ho),
            O(18, 24, 2, 269 + 4 * Wo, 2 + Wo, 28),
            O(25, 31, 2, 284 + 8 * Wo, 2 + Wo, 39 + Ho),
            O(26, 32, 2, 284 + 8 * Wo, 2 + Wo, 28),
            O(33, 35, 2, 544, 2 + Wo, 39 + Ho),
            O(34, 36, 2, 544, 2 + Wo, 28),
            console(37, 119, 51)})
            .frame("SwitchDevice/switch_q027.png")
            .logoStrip(5, 15).portsScaledTo(15, 12),

        fixed("CQ138SwitchPanel", kStdPorts10, {
            E(1, 11, 2, 15, 3 + We, 24),
            E(2, 12, 2, 15, 3 + We, 30 + He),
            E(13, 23, 2, 44 + 6 * We, 3 + We, 24),
            E(14, 24, 2, 44 + 6 * We, 3 + We, 30 + He),
            O(25, 32, 1, 286, 1 + Wo, 48),
            O(33, 36, 1, 447, Wo, 48),
            E(37, 38, 1, 443, 3 + We, 12)})
            .frame("SwitchDevice/odm_q_frame.png"),

        fixed("CQ139SwitchPanel", kStdPorts13, {
            O(1, 7, 2, 146, 2 + Wo, 39 + Ho),
            O(2, 8, 2, 146, 2 + Wo, 28),
            E(9, 15, 2, 239, 2 + We, 33 + He),
            E(10, 16, 2, 239, 2 + We, 28),
            E(17, 23, 2, 252 + 4 * We, 2 + We, 33 + He),
            E(18, 24, 2, 252 + 4 * We, 2 + We, 28),
            E(25, 31, 2, 265 + 8 * We, 2 + We, 33 + He),
            E(26, 32, 2, 265 + 8 * We, 2 + We, 28),
            O(33, 35, 2, 545, 2 + Wo, 39 + Ho),
            O(34, 36, 2, 545, 2 + Wo, 28),
            console(37, 117, 51)})
            .frame("SwitchDevice/switch_q028.png")
            .logoStrip(5, 15).portsScaledTo(15, 12),

        fixed("CQ140SwitchPanel", kStdPorts10, {
            O(1, 11, 2, 10, Wo, 14),
            O(2, 12, 2, 10, Wo, 28 + Ho),
            O(13, 23, 2, 18 + 6 * Wo, Wo, 14),
            O(14, 24, 2, 18 + 6 * Wo, Wo, 28 + Ho),
            O(25, 35, 2, 26 + 12 * Wo, Wo, 14),
            O(26, 36, 2, 26 + 12 * Wo, Wo, 28 + Ho),
            O(37, 47, 2, 34 + 18 * Wo, Wo, 14),
            O(38, 48, 2, 34 + 18 * Wo, Wo, 28 + Ho),
            E(49, 52, 1, 500, 1 + We, 40),
            O(53, 54, 1, 502, 1 + Wo, 12)})
            .frame("SwitchDevice/switch_q029.png")
            .multiplexIgnored().noElectricalLegend(),

        fixed("CQ141SwitchPanel", kStdPorts10, {
            E(1, 11, 2, 12, 1 + We, 22),
            E(2, 12, 2, 12, 1 + We, 28 + He),
            E(13, 23, 2, 26 + 6 * We, 1 + We, 22),
            E(14, 24, 2, 26 + 6 * We, 1 + We, 28 + He),
            E(25, 35, 2, 40 + 12 * We, 1 + We, 22),
            E(26, 36, 2, 40 + 12 * We, 1 + We, 28 + He),
            E(37, 47, 2, 54 + 18 * We, 1 + We, 22),
            E(38, 48, 2, 54 + 18 * We, 1 + We, 28 + He),
            O(49, 52, 1, 499, Wo, 45),
            E(53, 54, 1, 502, 2 + We, 15)})
            .frame("SwitchDevice/switch_q030.png"),

        fixed("CQ142SwitchPanel", kStdPorts13, {
            O(1, 11, 2, 56, 1 + Wo, 41 + Ho),
            O(2, 12, 2, 56, 1 + Wo, 30),
            O(13, 23, 2, 69 + 6 * Wo, 1 + Wo, 41 + Ho),
            O(14, 24, 2, 69 + 6 * Wo, 1 + Wo, 30),
            E(25, 35, 2, 304, 1 + We, 35 + He),
            E(26, 36, 2, 304, 1 + We, 30),
            E(37, 47, 2, 316 + 6 * We, 1 + We, 35 + He),
            E(38, 48, 2, 316 + 6 * We, 1 + We, 30),
            O(49, 51, 2, 545, 1 + Wo, 41 + Ho),
            O(50, 52, 2, 545, 1 + Wo, 30),
            console(53, 24, 55)})
            .frame("SwitchDevice/switch_q031.png"),

        fixed("CQ143SwitchPanel", kStdPorts11, {
            O(1, 11, 2, 189, 3 + Wo, 18),
            O(2, 12, 2, 189, 3 + Wo, 28 + Ho),
            O(13, 23, 2, 216 + 6 * Wo, 3 + Wo, 18),
            O(14, 24, 2, 216 + 6 * Wo, 3 + Wo, 28 + Ho),
            O(25, 26, 1, 503, 3 + Wo, 44),
            E(27, 28, 1, 495, 2 + We, 9)})
            .frame("SwitchDevice/switch_q032.png")
            .multiplexIgnored().noElectricalLegend(),

        fixed("CQ144SwitchPanel", kStdPorts11, {
            O(1, 11, 2, 12, 1 + Wo, 25),
            O(2, 12, 2, 12, 1 + Wo, 31 + Ho),
            O(13, 23, 2, 23 + 6 * Wo, 1 + Wo, 25),
            O(14, 24, 2, 23 + 6 * Wo, 1 + Wo, 31 + Ho),
            O(25, 35, 2, 34 + 12 * Wo, 1 + Wo, 25),
            O(26, 36, 2, 34 + 12 * Wo, 1 + Wo, 31 + Ho),
            O(37, 47, 2, 45 + 18 * Wo, 1 + Wo, 25),
            O(38, 48, 2, 45 + 18 * Wo, 1 + Wo, 31 + Ho),
            O(49, 50, 1, 520, 3 + Wo, 45),
            E(51, 52, 1, 515, 2 + We, 10)})
            .frame("SwitchDevice/switch_q033.png")
            .multiplexIgnored().noElectricalLegend(),

        fixed("CQ201SwitchPanel", kMidPorts7, {
            E(1, 4, 1, 157, 5 + We, 40),
            O(5, 6, 1, 336, 53, 49)})
            .frame("SwitchDevice/switch_q038.png")
            .multiplexIgnored()
            .alarmByPortNumber({{0, 4, K::Electrical}, {5, kNoLastPort, K::Optical}}),

        fixed("CQ202SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 189, 4 + We, 31),
            E(2, 8, 2, 189, 4 + We, 37 + He),
            E(9, 15, 2, 211 + 4 * We, 4 + We, 31),
            E(10, 16, 2, 211 + 4 * We, 4 + We, 37 + He),
            E(17, 23, 2, 233 + 8 * We, 4 + We, 31),
            E(18, 24, 2, 233 + 8 * We, 4 + We, 37 + He),
            O(25, 28, 1, 472, 8 + Wo, 56)})
            .frame("SwitchDevice/switch_q039.png")
            .multiplexIgnored(),

        fixed("CQ203SwitchPanel", kStdPorts10, {
            E(1, 7, 2, 80, 5 + We, 19),
            E(2, 8, 2, 80, 5 + We, 23 + He),
            O(9, 12, 1, 259, 26 + Wo, 55)})
            .frame("SwitchDevice/switch_q040.png")
            .multiplexIgnored(),
    };
    return rows;
}

// ---------------------------------------------------------------------------------------------
// Chassis switches: slots from 0, a board image per slot.

const std::vector<PanelLayout>& chassisLayouts()
{
    static const std::vector<PanelLayout> rows = {
        // Two main boards side by side, the line cards in a column under them.
        PanelLayout("CQ145SwitchPanel", Family::Chassis, kChassisA, {
            slotsAcross(K::MainBoard, 0, 1, 4, 63, 5 + Wm),
            slotsDown(K::InterfaceBoard, 2, 3, 4, 136, 5 + Hi)})
            .frame("SwitchDevice/switch_q034.png"),

        PanelLayout("CQ146SwitchPanel", Family::Chassis, kChassisA, {
            slotsAcross(K::MainBoard, 0, 1, 4, 63, 5 + Wm),
            slotsDown(K::InterfaceBoard, 2, 4, 4, 136, 5 + Hi)})
            .frame("SwitchDevice/switch_q035.png"),

        PanelLayout("CQ147SwitchPanel", Family::Chassis, kChassisB, {
            slotsDown(K::MainBoard, 0, 1, 5, 63, 2 + Hm),
            slotsDown(K::InterfaceBoard, 2, 7, 5, 187, 2 + Hi)})
            .frame("SwitchDevice/switch_q036.png"),

        PanelLayout("CQ148SwitchPanel", Family::Chassis, kChassisInterfaceOnly, {
            slotsDown(K::InterfaceBoard, 0, 9, 5, 63, 4 + Hi)})
            .frame("SwitchDevice/switch_q037.png"),

        // Ten slots in one stack with the two main boards (slots 4 and 5) in the middle.
        PanelLayout("CQ102SwitchPanel", Family::Chassis, kChassisB, {
            slotsDown(K::InterfaceBoard, 0, 3, 5, 63, 5 + Hi),
            slotsDown(K::MainBoard, 4, 5, 5, 83 + 4 * Hi, 5 + Hm),
            slotsDown(K::InterfaceBoard, 6, 9, 5, 93 + 4 * Hi + 2 * Hm, 5 + Hi)})
            .frame("SwitchDevice/switch_q001.png"),
    };
    return rows;
}

// ---------------------------------------------------------------------------------------------
// Wireless bridges: electrical ports only. W is the width of the link-up image.

const std::vector<PanelLayout>& bridgeLayouts()
{
    auto bridge = [](const char* name, const ImageSet& set, std::vector<Run> runs) {
        return PanelLayout(name, Family::Bridge, set, std::move(runs)).alarmByPortNumber({allElectrical});
    };
    static const std::vector<PanelLayout> rows = {
        bridge("CSinglePortElevatorBridgePanelStatus", kBridgePorts, {
            E(1, 151, 50)})
            .frame("BridgeDevice/bridge_frame.png"),
        bridge("CThreePortElevatorBridgePanelStatus", kBridgePorts, {
            E(1, 151, 49), E(2, 163 + W, 49), E(3, 166 + 2 * W, 49)})
            .frame("BridgeDevice/3_port_bridge_frame.png"),
        bridge("CSiteBridgePanelStatus", kBridgePorts, {
            E(1, 93, 52), E(2, 96 + W, 52)})
            .frame("BridgeDevice/site_bridge_frame.png"),
        bridge("CPairedBridgePanelStatus", kBridgePorts, {
            E(1, 93, 52), E(2, 96 + W, 52)})
            .frame("BridgeDevice/paird_bridge_frame.png"),
        bridge("C5KMGigabitBridgeChassisStatus", kBridgePorts, {
            E(1, 93, 52), E(2, 96 + W, 52)})
            .frame("BridgeDevice/bridge_5km_gigabit.png"),
        bridge("CACElevatorBridgePanelStatus", kBridgePorts, {
            E(1, 93, 52), E(2, 96 + W, 52), E(3, 99 + 2 * W, 52)})
            .frame("BridgeDevice/elevator_bridge_ac_frame.png"),
        bridge("C2D4G100MElevatorBridgePannel", kBridgePorts, {
            E(1, 116, 30)})
            .frame("BridgeDevice/2d4g_100m_elevator_bridge_frame.png"),
        bridge("C2D4G200MElevatorBridgePannel", kBridgePorts, {
            E(1, 60, 36)})
            .frame("BridgeDevice/2d4g_200m_elevator_bridge_frame.png"),
        bridge("C2D4G500MElevatorBridgePannel", kBridgePorts, {
            E(1, 188, 48), E(2, 191 + W, 48), E(3, 359, 48)})
            .frame("BridgeDevice/2d4g_500m_elevator_bridge_frame.png"),
        bridge("C2D4G1KMOutDoorBridgePannel", kBridgePorts, {
            E(1, 131, 46), E(2, 134 + W, 46)})
            .frame("BridgeDevice/2d4g_1km_outdoor_bridge_frame.png"),
        bridge("C5D8G1KMOutDoorBridgePannel", kBridgePorts, {
            E(1, 61, 45), E(2, 178, 45)})
            .frame("BridgeDevice/5d8g_1km_outdoor_bridge_frame.png"),
        bridge("C5D8G3KMOutDoorBridgePannel", kBridgePorts, {
            E(1, 94, 21), E(2, 155, 21)})
            .frame("BridgeDevice/5d8g_3km_outdoor_bridge_frame.png"),
        bridge("CLowEnd1KMOutDoorBridgePannel", kBridgePortsUp, {
            E(1, 180, 34)})
            .frame("BridgeDevice/low-end_1km_outdoor_bridge_frame.png")
            .logsQueryFailure(),
        bridge("CMutliPortBridgePanelStatus", kBridgePortsUp, {
            E(1, 136, 25), E(2, 150 + W, 25), E(3, 164 + 2 * W, 25), E(4, 178 + 3 * W, 25)})
            .frame("BridgeDevice/multi_port_bridge_frame.png")
            .portsScaledTo(63, 52),
    };
    return rows;
}

// ---------------------------------------------------------------------------------------------
// APs, wireless routers and gateway routers. W is the width of the link-up image.

const std::vector<PanelLayout>& accessPointLayouts()
{
    auto ap = [](const char* name, const ImageSet& set, std::vector<Run> runs) {
        return PanelLayout(name, Family::AccessPoint, set, std::move(runs)).alarmByPortNumber({allElectrical});
    };
    static const std::vector<PanelLayout> rows = {
        ap("CQ301APPannel", kApPorts2, {
            E(1, 229, 24)})
            .frame("APDevice/ap45Pannel.png"),
        ap("CQ302APPannel", kApPorts, {
            E(1, 133, 15), E(2, 364 + W, 35)})
            .frame("APDevice/ap1Pannel.png"),
        ap("CQ303APPannel", kApPorts, {
            E(1, 411, 40), E(2, 131, 28)})
            .frame("APDevice/ap3Pannel.png"),
        ap("CQ304APPannel", kApPorts, {
            E(1, 411, 40), E(2, 131, 28)})
            .frame("APDevice/ap2Pannel.png"),
        ap("CQ305APPannel", kApPorts3, {
            E(1, 358, 20)})
            .frame("APDevice/ap6Pannel.png"),
        ap("CQ306APPannel", kApPorts4, {
            E(1, 150, 24)})
            .frame("APDevice/ap78Pannel.png"),
        ap("CQ401Pannel", kWireRouterPorts1, {
            E(1, 109, 42), E(2, 349 + W, 17)})
            .frame("WireRouterDevice/WR1&2.png"),
        ap("CQ402Pannel", kWireRouterPorts1, {
            E(1, 286, 22)})
            .frame("WireRouterDevice/WR4.png"),
        // Draws no ports at all.
        ap("CQ403Pannel", kWireRouterPorts3NoLinkDown, {})
            .frame("WireRouterDevice/WR3.png"),
        ap("CQ431Pannel", kWireRouterPorts2, {
            E(1, 35, 14), E(2, 42 + W, 14), E(3, 49 + 2 * W, 14), E(4, 129 + 3 * W, 14)})
            .frame("WireRouterDevice/WR6.png"),
        // Ports 1 to 3 count back from the fixed port 4.
        ap("CQ432Pannel", kWireRouterPorts2, {
            E(1, 262 - 3 * W, 14), E(2, 270 - 2 * W, 14), E(3, 278 - W, 14), E(4, 360, 14)})
            .frame("WireRouterDevice/WR8.png"),
        ap("CQ433Pannel", kWireRouterPorts2, {
            E(1, 80, 26)})
            .frame("WireRouterDevice/WR5.png"),
        ap("CQ434Pannel", kWireRouterPorts3, {
            E(1, 160, 35), E(2, 176 + W, 35), E(3, 192 + 2 * W, 35), E(4, 208 + 3 * W, 35),
            E(5, 224 + 4 * W, 35)})
            .frame("WireRouterDevice/WR9.png"),
        ap("CQ501GRouter", kGateRouterPorts1, {
            E(1, 86, 28), E(2, 104 + W, 28), E(3, 122 + 2 * W, 28), E(4, 140 + 3 * W, 28),
            E(5, 158 + 4 * W, 28)})
            .frame("GateRouterDevice/GRxPannel.png"),
        ap("CQ502GRouter", kGateRouterPorts1, {
            E(1, 265, 37), E(2, 289 + W, 37), E(3, 313 + 2 * W, 37), E(4, 337 + 3 * W, 37),
            E(5, 361 + 4 * W, 37)})
            .frame("GateRouterDevice/GR4Pannel.png"),
        // Port 5 stands left of ports 1 to 4.
        ap("CQ503GRouter", kGateRouterPorts1, {
            E(1, 265, 37), E(2, 281 + W, 37), E(3, 297 + 2 * W, 37), E(4, 313 + 3 * W, 37),
            E(5, 163, 37)})
            .frame("GateRouterDevice/GR2Pannel.png"),
        ap("CQ504GRouter", kGateRouterPorts1, {
            E(1, 265, 37), E(2, 275 + W, 37), E(3, 285 + 2 * W, 37), E(4, 295 + 3 * W, 37),
            E(5, 305 + 4 * W, 37)})
            .frame("GateRouterDevice/GR1Pannel.png"),
        // Counts its ports from right to left.
        ap("CQ505GRouter", kGateRouterPorts3, {
            E(1, 240 + 4 * W, 28), E(2, 230 + 3 * W, 28), E(3, 220 + 2 * W, 28), E(4, 210 + W, 28),
            E(5, 200, 28)})
            .frame("GateRouterDevice/GR3Pannel.png"),
        ap("CQ506GRouter", kGateRouterPorts1, {
            E(1, 161, 37), E(2, 177 + W, 37), E(3, 197 + 2 * W, 37), E(4, 216 + 3 * W, 37),
            E(5, 236 + 4 * W, 37)})
            .frame("GateRouterDevice/GR5Pannel.png"),
    };
    return rows;
}

// ---------------------------------------------------------------------------------------------
// Fiber devices standing alone. The cards with an optical port take port 1 as electrical and
// port 2 as optical for their alarm image, whatever the device reports.

const std::vector<PanelLayout>& fiberCardLayouts()
{
    static const std::vector<PanelLayout> rows = {
        PanelLayout("CFiberNetMgCardPanelStatus", Family::FiberCard, kNetMgCardPorts, {
            E(1, 79, 4), E(2, 160, 4)})
            .frame("FiberDevice/fiber_networkmanagementcard_frame.png")
            .alarmByPortNumber({allElectrical}),
        PanelLayout("CFiberReceiveCardPanelStatus", Family::FiberCard, kReceiveCardPorts, {
            E(1, 73, 4), O(2, 149, 17)})
            .frame("FiberDevice/fiber_receivecard_frame.png")
            .alarmByPortNumber({{1, 1, K::Electrical}, {2, 2, K::Optical}}),
        PanelLayout("CFiberSendMachinePanelStatus", Family::FiberCard, kSendMachinePorts, {
            E(1, 475, 34), O(2, 87, 36)})
            .frame("FiberDevice/fiber_sendmachine_frame.png")
            .alarmByPortNumber({{1, 1, K::Electrical}, {2, 2, K::Optical}}),
    };
    return rows;
}

// The crate of the fiber chassis page: slots 1 to 21 from x 26 (the first slot's x 25 plus
// one gap), each one gap and one card width further, at y 4.
const PanelLayout& fiberCrateLayout()
{
    static const PanelLayout row = PanelLayout("CFiberPanelStatusWidget", Family::FiberCrate, kFiberCrate, {
        slotsAcross(K::InterfaceBoard, 1, 21, 26, 4, 1 + Wi)})
        .frame("FiberDevice/fiber_frame.png");
    return row;
}

// ---------------------------------------------------------------------------------------------
// The logical panel, ids 0 to 12 per device category. Two of the bridge files have a blank
// before "unlink" in their names, and the optical "normal" files are spelt "normol".

const std::vector<LogicalImages>& logicalPanelImages()
{
    static const std::vector<LogicalImages> sets = {
        {{120, 130, 124, 125},
         {
             {0, "LogicalRes/electrical_up_normal.svg", S::LogicalElectricalUp, P::Up},
             {1, "LogicalRes/electrical_up_alarm.svg", S::LogicalElectricalUp, P::Alarm},
             {2, "LogicalRes/electrical_up_unlink.svg", S::LogicalElectricalUp, P::Down},
             {3, "LogicalRes/electrical_up_netconnected.svg", S::LogicalElectricalUp, P::Internet},
             {4, "LogicalRes/electrical_down_normal.svg", S::LogicalElectricalDown, P::Up},
             {5, "LogicalRes/electrical_down_alarm.svg", S::LogicalElectricalDown, P::Alarm},
             {6, "LogicalRes/electrical_down_unlink.svg", S::LogicalElectricalDown, P::Down},
             {7, "LogicalRes/electrical_down_netconnected.svg", S::LogicalElectricalDown, P::Internet},
             {8, "LogicalRes/light_alarm.svg", S::LogicalOptical, P::Alarm},
             {9, "LogicalRes/light_normol.svg", S::LogicalOptical, P::Up},
             {10, "LogicalRes/light_unlink.svg", S::LogicalOptical, P::Down},
             {11, "LogicalRes/order_right.svg", S::LogicalOrderRight, P::None},
             {12, "LogicalRes/order_left.svg", S::LogicalOrderLeft, P::None},
         }},
        {{121},
         {
             {0, "LogicalRes/bridge_electrical_up_normal.svg", S::LogicalElectricalUp, P::Up},
             {1, "LogicalRes/bridge_electrical_up_alarm.svg", S::LogicalElectricalUp, P::Alarm},
             {2, "LogicalRes/bridge_electrical_up_ unlink.svg", S::LogicalElectricalUp, P::Down},
             {3, "LogicalRes/bridge_electrical_up_netconnected.svg", S::LogicalElectricalUp, P::Internet},
             {4, "LogicalRes/bridge_electrical_down_normal.svg", S::LogicalElectricalDown, P::Up},
             {5, "LogicalRes/bridge_electrical_down_alarm.svg", S::LogicalElectricalDown, P::Alarm},
             {6, "LogicalRes/bridge_electrical_down_ unlink.svg", S::LogicalElectricalDown, P::Down},
             {7, "LogicalRes/bridge_electrical_down_netconnected.svg", S::LogicalElectricalDown, P::Internet},
             {8, "LogicalRes/bridge_light_alarm.svg", S::LogicalOptical, P::Alarm},
             {9, "LogicalRes/bridge_light_normol.svg", S::LogicalOptical, P::Up},
             {10, "LogicalRes/bridge_light_unlink.svg", S::LogicalOptical, P::Down},
             {11, "LogicalRes/bridge_order_right.svg", S::LogicalOrderRight, P::None},
             {12, "LogicalRes/bridge_order_left.svg", S::LogicalOrderLeft, P::None},
         }},
    };
    return sets;
}

// ---------------------------------------------------------------------------------------------

const char* const kLogoImage = "SwitchDevice/logo.svg";

const std::vector<Image>& otherImages()
{
    static const std::vector<Image> images = {
        // Legend icons of the panels and of the fiber crate page.
        {0, "FiberDevice/optical_port.png", S::LegendFiberOptical, P::None},
        {0, "FiberDevice/electrical_port.png", S::LegendElectrical, P::None},
        // Radio channel state of the radio tab.
        {0, "APDevice/channel_status_normal.png", S::ChannelStatus, P::Up},
        {0, "APDevice/channel_status_interference.png", S::ChannelStatus, P::Alarm},
        // Picture of an empty client list.
        {0, "APDevice/clientlist_no_data.png", S::NoData, P::None},
        // Word mark of the logo strip.
        {0, kLogoImage, S::Logo, P::None},
    };
    return images;
}

} // namespace layouts
} // namespace velmora
