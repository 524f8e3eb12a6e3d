#include "Fleet.h"

#include "Hash.h"
#include "ModelCatalog.h"
#include "DigestAuth.h"
#include "RecordWriter.h"

#include <cjson/cJSON.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <sstream>

namespace emulator {

namespace {

// What a fleet entry may say about its devices; unset values come from the model.
struct EntryOptions {
    std::string model;
    int category = -1;
    std::string name;
    std::string ports;          // port runs, overrides the model's
    int portCount = 0;          // a number of ports instead of runs
    int batch = -1;             // page cap of the paged work state; 0 = none
    int panelStatus = -1;
    int poe = -1;
    std::string user;
    std::string password;
    std::string auth;
    int apCount = -1;
    int groups = -1;
    int searchGroups = -1;
    int terminalsPerAp = -1;
    int clientsPerBss = -1;
    bool hasWirelessCardId = false;
    std::string wirelessCardId;
    bool hasPortOrder = false;
    std::string portOrder;
    std::string region;
    int count = 1;
};

std::string guidOf(uint64_t salt, int index)
{
    const uint64_t a = hashKeys({salt, static_cast<uint64_t>(index), 1});
    const uint64_t b = hashKeys({salt, static_cast<uint64_t>(index), 2});
    char text[40];
    std::snprintf(text, sizeof text, "%08X-%04X-%04X-%04X-%012llX", static_cast<unsigned>(a >> 32),
                  static_cast<unsigned>((a >> 16) & 0xFFFF), static_cast<unsigned>(0x4000 | (a & 0x0FFF)),
                  static_cast<unsigned>(0x8000 | ((b >> 48) & 0x3FFF)),
                  static_cast<unsigned long long>(b & 0xFFFFFFFFFFFFULL));
    return text;
}

std::string macOf(uint64_t key, const char* separator = ":", bool upper = false)
{
    // Locally administered addresses of the emulated equipment (first octet 0x0A... | 0x02).
    const uint64_t h = hashKeys({key, 0x4d4143});
    unsigned char bytes[6];
    bytes[0] = static_cast<unsigned char>(0x02 | 0x0C);
    for (int i = 1; i < 6; ++i)
        bytes[i] = static_cast<unsigned char>(h >> (8 * i));
    std::string out;
    char part[4];
    for (int i = 0; i < 6; ++i) {
        std::snprintf(part, sizeof part, upper ? "%02X" : "%02x", bytes[i]);
        if (i)
            out += separator;
        out += part;
    }
    return out;
}

std::string lowerText(std::string text)
{
    for (char& c : text)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return text;
}

std::string serialOf(const char* prefix, uint64_t key)
{
    char text[40];
    std::snprintf(text, sizeof text, "%s%08llu%04llu", prefix,
                  static_cast<unsigned long long>(hashKeys({key, 7}) % 100000000ULL),
                  static_cast<unsigned long long>(hashKeys({key, 8}) % 10000ULL));
    return text;
}

std::string ipv4(int a, int b, int c, int d)
{
    return std::to_string(a) + "." + std::to_string(b) + "." + std::to_string(c) + "." + std::to_string(d);
}

const char* typeName(int category)
{
    switch (category) {
    case kSwitch: return "Switch";
    case kBridge: return "WirelessBridge";
    case kFiberConverter: return "FiberConverter";
    case kWirelessController: return "WirelessController";
    case kWirelessAp: return "WirelessAP";
    case kWirelessRouter: return "WirelessRouter";
    case kEnterpriseRouter: return "EnterpriseRouter";
    default: return "Device";
    }
}

// Display names; a few in other scripts, as a real site has them.
std::string defaultName(const DevicePlan& d, int ordinal)
{
    char number[16];
    std::snprintf(number, sizeof number, "%02d", ordinal);
    switch (d.category) {
    case kSwitch:
        if (d.caps.bIsChassisDevice)
            return std::string(ordinal == 1 ? "Core-Chassis-" : "Chassis-") + number;
        if (ordinal % 11 == 5)
            return std::string("仓库交换机-") + number;
        if (ordinal % 13 == 7)
            return std::string("Étage-") + number + "-Switch";
        return (d.ports.size() >= 24 ? std::string("Agg-SW-") : std::string("Access-SW-")) + number;
    case kBridge:
        return std::string(d.bridgeWorkType == 1 ? "Bridge-AP-" : "Bridge-ST-") + number;
    case kFiberConverter:
        return std::string(d.fiberCards.empty() ? "Fiber-" : "Fiber-Crate-") + number;
    case kWirelessController:
        return std::string(ordinal == 2 ? "无线控制器-" : "AC-") + number;
    case kWirelessAp:
        return std::string(ordinal % 3 == 1 ? "Lobby AP – " : "AP-") + number;
    case kWirelessRouter:
        return std::string("WR-") + number;
    case kEnterpriseRouter:
        return std::string("Edge-Router-") + number;
    default:
        return std::string("Device-") + number;
    }
}

std::string portName(const DevicePlan& d, const PortPlan& p, int slot)
{
    const std::string n = std::to_string(p.id);
    switch (d.category) {
    case kSwitch:
        if (p.type == 'O')
            return (p.speedMbps >= 10000 ? "XGE" : "GE") + std::to_string(slot) + "/0/" + n;
        return "GE" + std::to_string(slot) + "/0/" + n;
    case kBridge:
        return p.type == 'W' ? "WLAN" : (p.type == 'O' ? "SFP" + n : "LAN" + n);
    case kFiberConverter:
        return p.type == 'O' ? "FX" + n : "ETH" + n;
    case kWirelessController:
        return p.id <= 2 ? "WAN" + n : "LAN" + n;
    case kWirelessAp:
        return p.id == 1 ? "LAN1(PoE)" : "LAN" + n;
    case kWirelessRouter:
        return p.id == 1 ? "WAN" : "LAN" + std::to_string(p.id - 1);
    case kEnterpriseRouter:
        return p.id <= 2 ? "WAN" + n : (p.type == 'O' ? "SFP" + n : "LAN" + n);
    default:
        return "Port" + n;
    }
}

void addPorts(DevicePlan& d, const std::vector<PortRun>& runs, int slot, bool fastEthernet)
{
    int total = 0;
    for (const PortRun& r : runs)
        total += r.last - r.first + 1;
    for (const PortRun& r : runs) {
        for (int id = r.first; id <= r.last; ++id) {
            PortPlan p;
            p.id = id;
            p.type = r.type;
            switch (r.type) {
            case 'O': p.speedMbps = total >= 24 ? 10000 : 1000; break;
            case 'W': p.speedMbps = 866; break;
            default: p.speedMbps = fastEthernet ? 100 : 1000;
            }
            p.name = portName(d, p, slot);
            d.ports.push_back(p);
        }
    }
}

void markUplinksAndPoe(DevicePlan& d)
{
    std::vector<PortPlan*> wired;
    for (PortPlan& p : d.ports)
        if (p.type != 'W')
            wired.push_back(&p);
    if (wired.empty())
        return;
    switch (d.category) {
    case kWirelessController:
    case kWirelessRouter:
    case kEnterpriseRouter:
        for (const WanPlan& w : d.wans)
            for (PortPlan* p : wired)
                if (p->id == w.portId) {
                    p->uplink = true;
                    p->wan = true;
                }
        break;
    case kWirelessAp:
        wired.front()->uplink = true;
        wired.front()->wan = true;
        break;
    case kBridge:
    case kFiberConverter:
        wired.front()->uplink = true;
        break;
    default:
        wired.back()->uplink = true;
        if (wired.size() >= 8)
            wired[wired.size() - 2]->uplink = true;
    }
    if (!d.poe)
        return;
    int poePorts = 0;
    for (PortPlan* p : wired)
        if (p->type == 'E' && !p->uplink) {
            p->poe = true;
            ++poePorts;
        }
    static const double budgets[] = {60.0, 120.0, 185.0, 370.0, 740.0};
    d.poeBudget = poePorts <= 5 ? budgets[0] : poePorts <= 9 ? budgets[1] : poePorts <= 16 ? budgets[2]
                : poePorts <= 24 ? budgets[3] : budgets[4];
}

void buildChassis(DevicePlan& d, int slotCount, const std::string& mainSlots, int portTotal)
{
    std::vector<int> mains;
    std::stringstream ss(mainSlots);
    std::string piece;
    while (std::getline(ss, piece, ','))
        if (!piece.empty())
            mains.push_back(std::atoi(piece.c_str()));
    std::vector<int> interfaceSlots;
    for (int s = 0; s < slotCount; ++s) {
        SlotPlan slot;
        slot.slotId = s;
        slot.mainBoard = std::find(mains.begin(), mains.end(), s) != mains.end();
        d.slots.push_back(slot);
        if (!slot.mainBoard)
            interfaceSlots.push_back(s);
    }
    // One interface slot stays empty and, on a chassis with two main boards, the standby
    // board is pulled on every third chassis: both show as "not inserted".
    if (interfaceSlots.size() > 2 && portTotal <= 0)
        d.slots[static_cast<size_t>(interfaceSlots.back())].inserted = false;
    if (mains.size() == 2 && d.index % 3 == 2)
        d.slots[static_cast<size_t>(mains[1])].inserted = false;

    std::vector<SlotPlan*> boards;
    for (SlotPlan& s : d.slots) {
        if (s.mainBoard) {
            s.boardName = s.inserted ? "MPU-X2" : "";
            continue;
        }
        if (s.inserted)
            boards.push_back(&s);
    }
    const int perBoard = portTotal > 0 ? std::max(1, (portTotal + static_cast<int>(boards.size()) - 1) /
                                                          std::max<int>(1, static_cast<int>(boards.size())))
                                       : 24;
    int next = 1;
    int remaining = portTotal > 0 ? portTotal : perBoard * static_cast<int>(boards.size());
    for (SlotPlan* s : boards) {
        const int count = std::min(perBoard, remaining);
        remaining -= count;
        s->portCount = count;
        s->boardName = count > 24 ? "LPU-48GT4XS" : "LPU-20GT4XS";
        const int optical = count > 24 ? 4 : std::min(4, count / 5);
        for (int k = 0; k < count; ++k) {
            PortPlan p;
            p.id = next++;
            p.type = k >= count - optical ? 'O' : 'E';
            p.speedMbps = p.type == 'O' ? 10000 : 1000;
            p.name = (p.type == 'O' ? "XGE" : "GE") + std::to_string(s->slotId) + "/0/" + std::to_string(k + 1);
            d.ports.push_back(p);
        }
    }
}

void buildRadiosAndSsids(DevicePlan& d, int radioCount)
{
    const uint64_t key = hashText(d.id);
    RadioPlan r24;
    r24.band = 0;
    r24.wirelessMode = std::to_string(rangeOf(0, 3, {key, 1}));
    static const int channels24[] = {1, 6, 11};
    r24.channel = channels24[rangeOf(0, 2, {key, 2})];
    r24.transmitPower = static_cast<int>(rangeOf(14, 20, {key, 3}));
    d.radios.push_back(r24);
    if (radioCount >= 2) {
        RadioPlan r5;
        r5.band = 1;
        // Mode "3" is what some 5 GHz radios report although it names no 5 GHz mode.
        r5.wirelessMode = std::to_string(rangeOf(0, 3, {key, 4}));
        static const int channels5[] = {0, 36, 44, 149, 157, 161};
        r5.channel = channels5[rangeOf(0, 5, {key, 5})];
        r5.transmitPower = static_cast<int>(rangeOf(17, 23, {key, 6}));
        r5.enabled = unitOf({key, 7}) > 0.15;
        d.radios.push_back(r5);
    }
    static const char* names[] = {"Velmora-Office", "Velmora-Guest", "监控专网", "IoT-Sensors", "Café Wi-Fi"};
    static const char* security[] = {"WPA2-personal", "none", "WPA2-enterprise", "WPA2-personal", "WPA3-personal"};
    const int ssidCount = static_cast<int>(rangeOf(2, 5, {key, 8}));
    for (int i = 0; i < ssidCount; ++i) {
        SsidPlan s;
        s.ssidIndex = i + 1;
        s.ssid = names[i];
        s.securityMode = security[i];
        s.enabled = !(i == 3 && unitOf({key, 9}) < 0.5);
        if (i == 1)
            s.bands = {0};
        else if (i == 2)
            s.bands = {1};
        else
            s.bands = {0, 1};
        if (radioCount < 2)
            s.bands = {0};
        d.ssids.push_back(s);
    }
    d.clientsPerBss = static_cast<int>(rangeOf(3, 10, {key, 10}));
}

void buildController(DevicePlan& d, int apCount, int groupCount, int terminalsPerAp)
{
    const uint64_t key = hashText(d.id);
    static const char* groupBase[] = {"Default", "HQ-1F", "HQ-2F", "HQ-3F", "Warehouse", "会议室", "Lab",
                                      "Parking", "Canteen", "Dormitory-A", "Dormitory-B", "Outdoor"};
    for (int g = 0; g < groupCount; ++g) {
        std::string name = g < 12 ? groupBase[g] : std::string("Site-") + std::to_string(g);
        d.groupNames.push_back(name);
        std::vector<SsidPlan> ssids;
        const int n = static_cast<int>(rangeOf(1, 4, {key, 100, static_cast<uint64_t>(g)}));
        static const char* names[] = {"Corp", "Guest", "Staff-5G", "Voice"};
        static const char* security[] = {"WPA2-enterprise", "none", "WPA2-personal", "WPA-WPA2-personal"};
        for (int i = 0; i < n; ++i) {
            SsidPlan s;
            s.ssidIndex = i + 1;
            s.ssid = std::string(names[i]) + (g ? "-" + name : std::string());
            s.securityMode = security[i];
            s.enabled = unitOf({key, 101, static_cast<uint64_t>(g), static_cast<uint64_t>(i)}) > 0.1;
            // An SSID on 5 GHz only, one on all three radios, the rest on both classic bands.
            if (i == 2)
                s.bands = {1, 2};
            else if (i == 3)
                s.bands = {0, 1, 2};
            else
                s.bands = {0, 1};
            ssids.push_back(s);
        }
        d.groupSsids.push_back(ssids);
    }
    static const char* fixedStates[] = {"waitUpgrade", "receiveFirmwar", "updating", "success", "failed", "rebooting"};
    const auto& catalog = modelCatalog();
    std::vector<const ModelInfo*> apModels;
    for (const ModelInfo& m : catalog)
        if (m.category == kWirelessAp)
            apModels.push_back(&m);
    for (int i = 0; i < apCount; ++i) {
        ManagedApPlan ap;
        const uint64_t apKey = hashKeys({key, 200, static_cast<uint64_t>(i)});
        ap.id = guidOf(apKey, i);
        const ModelInfo* m = apModels[static_cast<size_t>(i) % apModels.size()];
        ap.model = m->model;
        ap.radios = m->radios;
        char name[64];
        std::snprintf(name, sizeof name, "%s-AP-%03d", d.groupNames.empty() ? "Site" : d.groupNames[static_cast<size_t>(i) % d.groupNames.size()].c_str(), i + 1);
        ap.deviceName = name;
        ap.macAddress = macOf(apKey);
        ap.ipAddress = ipv4(172, 16 + (d.index % 16), 10 + i / 250, 2 + i % 250);
        ap.serialNumber = serialOf("QA", apKey);
        ap.softwareVersion = i % 7 == 3 ? "V2.1.0 build 230811" : "V2.2.4 build 240312";
        ap.group = d.groupNames.empty() ? 0 : i % static_cast<int>(d.groupNames.size());
        if (i > 0 && i % 17 == 0)
            ap.fixedState = fixedStates[(i / 17 - 1) % 6];
        d.aps.push_back(ap);
    }
    d.terminalsPerAp = terminalsPerAp;
}

void buildWans(DevicePlan& d)
{
    const int third = 10 + d.index % 200;
    WanPlan w1;
    w1.portId = 1;
    w1.addressingType = d.category == kEnterpriseRouter ? "staticIP" : "DialUpInternet";
    w1.ipAddress = ipv4(100, 64 + d.index % 60, third, 17);
    w1.subnetMask = d.category == kEnterpriseRouter ? "255.255.255.248" : "255.255.255.255";
    w1.gateway = ipv4(100, 64 + d.index % 60, third, 1);
    w1.primaryDNS = "223.5.5.5";
    w1.secondaryDNS = "119.29.29.29";
    d.wans.push_back(w1);
    if (d.category == kWirelessRouter && d.ports.size() < 2)
        return;
    WanPlan w2;
    w2.portId = 2;
    w2.addressingType = d.category == kEnterpriseRouter ? "DialUpInternet" : "dynamicIP";
    w2.ipAddress = ipv4(192, 168, 100 + d.index % 50, 23);
    w2.subnetMask = "255.255.255.0";
    w2.gateway = ipv4(192, 168, 100 + d.index % 50, 1);
    w2.primaryDNS = "192.168.1.1";
    w2.secondaryDNS = "";
    w2.alwaysUp = false;
    if (d.category == kWirelessRouter || d.category == kWirelessController || d.category == kEnterpriseRouter)
        d.wans.push_back(w2);
    if (d.category == kEnterpriseRouter && d.ports.size() >= 3) {
        WanPlan w3;
        w3.portId = 3;
        // A mode outside the four the client names; its page shows an empty cell.
        w3.addressingType = d.index % 2 ? "bridgeMode" : "LTE";
        w3.alwaysUp = false;
        d.wans.push_back(w3);
    }
}

void buildFiberCrate(DevicePlan& d)
{
    const uint64_t key = hashText(d.id);
    static const char* senders[] = {"North Gate Camera", "北门摄像机", "Loading Dock", "Lobby PTZ", "Parking-East",
                                    "Server Room", "Perimeter-07", "停车场入口", "Corridor B2", "Roof Deck"};
    int n = 0;
    for (int slot = 2; slot <= 21; ++slot) {
        if (unitOf({key, 300, static_cast<uint64_t>(slot)}) < 0.3)
            continue;
        FiberCardPlan c;
        c.slotId = slot;
        c.receivingCardIP = ipv4(192, 168, 60, 100 + slot);
        c.receiveCardSerialNumber = serialOf("FR", hashKeys({key, 301, static_cast<uint64_t>(slot)}));
        c.transmitterIP = ipv4(192, 168, 60, 200 + slot);
        c.transmitterSerialNumber = serialOf("FT", hashKeys({key, 302, static_cast<uint64_t>(slot)}));
        c.senderName = senders[n++ % 10];
        d.fiberCards.push_back(c);
    }
}

DevicePlan makeDevice(int index, const EntryOptions& o, int ordinal, uint64_t fleetSalt)
{
    DevicePlan d;
    d.index = index;
    d.id = guidOf(fleetSalt, index);
    const ModelInfo* info = findModel(o.model);
    d.model = o.model;
    d.reportedModel = o.model;
    d.category = o.category >= 0 ? o.category : (info ? info->category : kSwitch);
    d.family = info ? info->family : "";
    const uint64_t key = hashText(d.id);

    d.serialNumber = serialOf("QN", key);
    d.macAddress = macOf(key);
    d.firmwareVersion = d.category == kSwitch ? "V5.3.1 build 240105" : "V3.0.8 build 231120";
    d.hardwareVersion = "1.0";
    d.lanIp = ipv4(10, d.category == kEncodingDevice ? 30 : (d.category - 100), 1 + index / 200, 10 + index % 200);

    const std::string runsText = !o.ports.empty() ? o.ports : (info ? info->ports : "1-8E");
    const bool chassis = info && info->slots > 0 && d.category == kSwitch;
    const bool fiberCrate = info && info->slots > 0 && d.category == kFiberConverter;
    d.caps.bIsChassisDevice = chassis || fiberCrate;
    d.poe = o.poe >= 0 ? o.poe != 0 : (info && info->poe);
    if (d.category == kBridge)
        d.bridgeWorkType = ordinal % 2 ? 1 : 2;

    if (chassis) {
        buildChassis(d, info->slots, info->mainSlots, o.portCount);
    } else if (o.portCount > 0) {
        addPorts(d, {{1, o.portCount, 'E'}}, 1, false);
    } else {
        const bool fastEthernet = info && d.category == kSwitch && std::string(info->model) <= "QN-1016";
        addPorts(d, parsePortRuns(runsText), 1, fastEthernet);
    }
    // The WAN set-up names ports, so it comes after them.
    if (d.category == kWirelessRouter || d.category == kWirelessController || d.category == kEnterpriseRouter)
        buildWans(d);
    markUplinksAndPoe(d);

    // Paged work state on the big switches, the chassis and wherever the fleet asks for it.
    static const int caps[] = {32, 64, 100, 128};
    if (o.batch >= 0)
        d.workStatePageCap = o.batch;
    else if (d.ports.size() >= 48 || chassis)
        d.workStatePageCap = caps[rangeOf(0, 3, {key, 20})];
    d.caps.supportWorkStatusBatch = d.workStatePageCap > 0;

    d.caps.bIsSupportPanelStatus = o.panelStatus >= 0 ? o.panelStatus != 0 : d.family == "CSwitchLogicalPanel";
    if (d.caps.bIsSupportPanelStatus)
        d.family = "CSwitchLogicalPanel";
    if (o.hasPortOrder)
        d.portOrder = o.portOrder;
    else if (d.family == "CQ105SwitchPanel" || d.family == "CQ107SwitchPanel" || d.family == "CQ112SwitchPanel" ||
             d.family == "CQ114SwitchPanel")
        d.portOrder = ordinal % 2 ? "portNO1" : "portNO2";
    else if (d.caps.bIsSupportPanelStatus)
        d.portOrder = ordinal % 3 == 1 ? "" : (ordinal % 3 == 2 ? "portNO1" : "portNO2");

    d.caps.deviceTypeName = typeName(d.category);
    d.caps.supportPortStatistic = d.category != kFiberConverter || fiberCrate || d.family == "CFiberNetMgCardPanelStatus";
    d.caps.isLayer3Switch = d.category == kSwitch && (chassis || d.ports.size() >= 24);
    d.caps.switchPriority = d.category == kSwitch ? (chassis ? 4096 : 32768) : -1;
    d.caps.isSupportLinkNeighbors = d.category == kSwitch;
    d.caps.isSupportAutoSecurityEntry = d.category == kSwitch && d.ports.size() >= 24;

    if (fiberCrate) {
        d.caps.supportCrateSlotStatus = true;
        buildFiberCrate(d);
    }
    if (d.category == kBridge) {
        for (const PortPlan& p : d.ports)
            if (p.type == 'W')
                d.caps.wirelessCardID = std::to_string(p.id);
        if (o.hasWirelessCardId)
            d.caps.wirelessCardID = o.wirelessCardId;
        d.caps.supportRegion = true;
        d.bridgeFlavour = ordinal % 4;
        static const char* regions[] = {"CN", "EU", "US", "JP"};
        d.region = o.region.empty() ? regions[ordinal % 4] : o.region;
    }
    if (d.category == kWirelessAp || d.category == kWirelessRouter)
        buildRadiosAndSsids(d, info && info->radios ? std::min(info->radios, 2) : 2);
    if (d.category == kWirelessAp || d.category == kWirelessRouter) {
        if (o.clientsPerBss >= 0)
            d.clientsPerBss = o.clientsPerBss;
    }
    if (d.category == kWirelessController) {
        const int groups = o.groups >= 0 ? o.groups : 6;
        d.caps.isSupportAPGroup = groups > 0;
        d.acSearchGroups = o.searchGroups >= 0 ? o.searchGroups != 0 : groups > 0;
        buildController(d, o.apCount >= 0 ? o.apCount : 24, groups, o.terminalsPerAp >= 0 ? o.terminalsPerAp : 4);
    }

    d.name = o.name.empty() ? defaultName(d, ordinal) : (o.count > 1 ? o.name + "-" + std::to_string(ordinal) : o.name);
    char host[96];
    std::snprintf(host, sizeof host, "%s-%03d.emu.velmora.lan", lowerText(d.model).c_str(), index + 1);
    d.hostName = host;
    for (char& c : d.hostName)
        if (!((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '.' || c == '-'))
            c = '-';
    if (!o.user.empty())
        d.user = o.user;
    d.password = !o.password.empty() ? o.password : "Emu#" + md5Hex(d.id).substr(0, 8);
    if (!o.auth.empty())
        d.auth = o.auth;
    return d;
}

// Bridges stand in pairs: each one's far end over the air is the next one.
void pairBridges(Fleet& fleet)
{
    int open = -1;
    for (DevicePlan& d : fleet.devices) {
        if (d.category != kBridge)
            continue;
        if (open < 0) {
            open = d.index;
            d.bridgeWorkType = 1;
        } else {
            d.bridgeWorkType = 2;
            d.pairedWith = open;
            fleet.devices[static_cast<size_t>(open)].pairedWith = d.index;
            open = -1;
        }
    }
}

void addEntry(std::vector<EntryOptions>& entries, const std::string& model, int count = 1)
{
    EntryOptions o;
    o.model = model;
    o.count = count;
    entries.push_back(o);
}

void addController(std::vector<EntryOptions>& entries, const std::string& model, int aps, int groups, bool searchGroups)
{
    EntryOptions o;
    o.model = model;
    o.apCount = aps;
    o.groups = groups;
    o.searchGroups = searchGroups ? 1 : 0;
    o.terminalsPerAp = 4;
    entries.push_back(o);
}

std::vector<EntryOptions> demoEntries()
{
    std::vector<EntryOptions> e;
    // The core of the site first: the root of the topology.
    addEntry(e, "QN-1097");
    for (const char* m : {"QN-1093", "QN-1094", "QN-1095", "QN-1096"})
        addEntry(e, m);
    // One switch for each panel family and frame variant.
    for (const char* m : {"QN-1001", "QN-1004", "QN-1006", "QN-1009", "QN-1011", "QN-1014", "QN-1017", "QN-1018",
                          "QN-1021", "QN-1023", "QN-1026", "QN-1029", "QN-1032", "QN-1034", "QN-1037", "QN-1040",
                          "QN-1045", "QN-1050", "QN-1055", "QN-1056", "QN-1057", "QN-1058", "QN-1059", "QN-1060",
                          "QN-1061", "QN-1062", "QN-1063", "QN-1064", "QN-1065", "QN-1066", "QN-1067", "QN-1068",
                          "QN-1069", "QN-1070", "QN-1071", "QN-1072", "QN-1073", "QN-1074", "QN-1076", "QN-1077",
                          "QN-1078", "QN-1079", "QN-1080", "QN-1081", "QN-1082", "QN-1083", "QN-1084", "QN-1085",
                          "QN-1086", "QN-1087", "QN-1088", "QN-1089", "QN-1090", "QN-1091", "QN-1092"})
        addEntry(e, m);
    addEntry(e, "QN-2024");
    addEntry(e, "QN-2048");
    for (const char* m : {"QN-1098", "QN-1099", "QN-1100", "QN-1108", "QN-1112", "QN-1114", "QN-1115", "QN-1116",
                          "QN-1117", "QN-1118", "QN-1119", "QN-1121", "QN-1133", "QN-1135", "QN-2208"})
        addEntry(e, m);
    for (const char* m : {"QN-1137-21S", "QN-1137", "QN-1138", "QN-1139"})
        addEntry(e, m);
    // Controllers: AP groups with the paged group search, groups by the plain query, no groups.
    addController(e, "QN-1156", 120, 20, true);
    addController(e, "QN-1160", 12, 5, false);
    addController(e, "QN-1164", 8, 0, false);
    for (const char* m : {"QN-1140", "QN-1142", "QN-1144", "QN-1146", "QN-1150", "QN-1152"})
        addEntry(e, m);
    for (const char* m : {"QN-1170", "QN-1172", "QN-1173", "QN-1174", "QN-1175", "QN-1177", "QN-1178"})
        addEntry(e, m);
    addEntry(e, "QN-1180");
    addEntry(e, "QN-1181");
    return e;
}

std::vector<EntryOptions> largeEntries()
{
    std::vector<EntryOptions> e = demoEntries();
    // Two switches of a thousand ports, both answering the paged work state.
    EntryOptions big;
    big.model = "QN-1096";
    big.portCount = 1000;
    big.batch = 128;
    e.push_back(big);
    big = EntryOptions();
    big.model = "QN-2048";
    big.ports = "1-960E,961-1000O";
    big.batch = 100;
    e.push_back(big);
    // Then the whole catalog, round after round, until the fleet passes 520 devices.
    int total = 0;
    for (const EntryOptions& o : e)
        total += o.count;
    const auto& catalog = modelCatalog();
    size_t i = 0;
    while (total < 520) {
        const ModelInfo& m = catalog[i++ % catalog.size()];
        EntryOptions o;
        o.model = m.model;
        if (m.category == kWirelessController) {
            o.apCount = 16;
            o.groups = (i % 3) ? 4 : 0;
        }
        e.push_back(o);
        ++total;
    }
    return e;
}

bool readEntry(const cJSON* item, EntryOptions& o, std::string& error)
{
    auto str = [item](const char* key, std::string& out) {
        const cJSON* v = cJSON_GetObjectItemCaseSensitive(item, key);
        if (cJSON_IsString(v))
            out = v->valuestring;
        return cJSON_IsString(v);
    };
    auto num = [item](const char* key, int& out) {
        const cJSON* v = cJSON_GetObjectItemCaseSensitive(item, key);
        if (cJSON_IsNumber(v))
            out = v->valueint;
        else if (cJSON_IsBool(v))
            out = cJSON_IsTrue(v) ? 1 : 0;
    };
    if (!cJSON_IsObject(item)) {
        error = "a fleet entry is not an object";
        return false;
    }
    str("model", o.model);
    if (o.model.empty()) {
        error = "a fleet entry has no \"model\"";
        return false;
    }
    num("category", o.category);
    if (o.category < 0 && !findModel(o.model)) {
        error = "model \"" + o.model + "\" is not in the catalog: give its \"category\" and \"ports\"";
        return false;
    }
    str("name", o.name);
    const cJSON* ports = cJSON_GetObjectItemCaseSensitive(item, "ports");
    if (cJSON_IsNumber(ports))
        o.portCount = ports->valueint;
    else if (cJSON_IsString(ports))
        o.ports = ports->valuestring;
    num("batch", o.batch);
    if (o.batch == 1)
        o.batch = 64; // "batch": true
    num("panelStatus", o.panelStatus);
    num("poe", o.poe);
    str("user", o.user);
    str("password", o.password);
    str("auth", o.auth);
    num("apCount", o.apCount);
    num("groups", o.groups);
    num("searchGroups", o.searchGroups);
    num("terminalsPerAp", o.terminalsPerAp);
    num("clientsPerBss", o.clientsPerBss);
    o.hasWirelessCardId = str("wirelessCardID", o.wirelessCardId);
    o.hasPortOrder = str("portOrder", o.portOrder);
    str("region", o.region);
    num("count", o.count);
    if (o.count < 1)
        o.count = 1;
    if (o.portCount > 4096) {
        error = "at most 4096 ports per device";
        return false;
    }
    return true;
}

bool readFleetFile(const std::string& path, std::string& name, std::vector<EntryOptions>& entries, std::string& error)
{
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        error = "cannot read fleet file " + path;
        return false;
    }
    std::stringstream buffer;
    buffer << in.rdbuf();
    cJSON* root = cJSON_Parse(buffer.str().c_str());
    if (!root) {
        error = "fleet file " + path + " is not valid JSON";
        return false;
    }
    const cJSON* list = root;
    if (cJSON_IsObject(root)) {
        const cJSON* n = cJSON_GetObjectItemCaseSensitive(root, "name");
        if (cJSON_IsString(n))
            name = n->valuestring;
        const cJSON* include = cJSON_GetObjectItemCaseSensitive(root, "include");
        if (cJSON_IsString(include)) {
            const std::string base = include->valuestring;
            if (base == "demo")
                entries = demoEntries();
            else if (base == "large")
                entries = largeEntries();
            else {
                error = "unknown fleet to include: " + base;
                cJSON_Delete(root);
                return false;
            }
        }
        list = cJSON_GetObjectItemCaseSensitive(root, "devices");
    }
    if (!cJSON_IsArray(list)) {
        error = "fleet file " + path + " has no \"devices\" array";
        cJSON_Delete(root);
        return false;
    }
    const cJSON* item = nullptr;
    cJSON_ArrayForEach(item, list)
    {
        EntryOptions o;
        if (!readEntry(item, o, error)) {
            cJSON_Delete(root);
            return false;
        }
        entries.push_back(o);
    }
    cJSON_Delete(root);
    return true;
}

void appendBool(std::string& out, const char* key, bool value, bool comma = true)
{
    out += "\"";
    out += key;
    out += "\": ";
    out += value ? "true" : "false";
    if (comma)
        out += ", ";
}

void appendText(std::string& out, const char* key, const std::string& value, bool comma = true)
{
    out += "\"";
    out += key;
    out += "\": \"" + jsonEscape(value) + "\"";
    if (comma)
        out += ", ";
}

} // namespace

const PortPlan* DevicePlan::port(int portId) const
{
    for (const PortPlan& p : ports)
        if (p.id == portId)
            return &p;
    return nullptr;
}

const DevicePlan* Fleet::find(const std::string& id) const
{
    for (const DevicePlan& d : devices)
        if (d.id == id)
            return &d;
    return nullptr;
}

const DevicePlan* Fleet::findByHost(const std::string& hostName) const
{
    const std::string host = lowerText(hostName);
    for (const DevicePlan& d : devices)
        if (d.hostName == host)
            return &d;
    return nullptr;
}

std::vector<std::string> builtinFleetNames()
{
    return {"demo", "large"};
}

bool buildFleet(const std::string& nameOrFile, Fleet& fleet, std::string& error)
{
    std::vector<EntryOptions> entries;
    fleet.name = nameOrFile;
    if (nameOrFile == "demo")
        entries = demoEntries();
    else if (nameOrFile == "large")
        entries = largeEntries();
    else if (!readFleetFile(nameOrFile, fleet.name, entries, error))
        return false;

    const uint64_t salt = hashText("velmora-fleet:" + fleet.name);
    std::map<int, int> ordinals; // per category
    for (const EntryOptions& o : entries) {
        for (int k = 0; k < o.count; ++k) {
            const int category = o.category >= 0 ? o.category : (findModel(o.model) ? findModel(o.model)->category : kSwitch);
            const int ordinal = ++ordinals[category];
            fleet.devices.push_back(makeDevice(static_cast<int>(fleet.devices.size()), o, ordinal, salt));
        }
    }
    if (fleet.devices.empty()) {
        error = "the fleet has no devices";
        return false;
    }
    pairBridges(fleet);
    return true;
}

std::string registryJson(const Fleet& fleet, const std::string& baseUrl, int port,
                         const std::map<std::string, int>& ownPorts)
{
    std::string out = "{\n  \"services\": {\"topology\": \"" + baseUrl + "\", \"alarm\": \"" + baseUrl + "\"},\n";
    out += "  \"devices\": [";
    bool first = true;
    for (const DevicePlan& d : fleet.devices) {
        out += first ? "\n    {" : ",\n    {";
        first = false;
        appendText(out, "id", d.id);
        appendText(out, "name", d.name);
        out += "\"category\": " + std::to_string(d.category) + ", ";
        appendText(out, "model", d.model);
        appendText(out, "address", "127.0.0.1");
        const auto own = ownPorts.find(d.id);
        out += "\"port\": " + std::to_string(own == ownPorts.end() ? port : own->second) + ", ";
        appendText(out, "scheme", "http");
        appendText(out, "hostName", d.hostName);
        appendText(out, "user", d.user);
        appendText(out, "password", d.password);
        appendText(out, "auth", d.auth);
        const Capabilities& c = d.caps;
        out += "\"capabilities\": {";
        appendBool(out, "supportBasicInfo", c.supportBasicInfo);
        appendBool(out, "supportWorkStatusBatch", c.supportWorkStatusBatch);
        appendBool(out, "supportCrateSlotStatus", c.supportCrateSlotStatus);
        appendText(out, "wirelessCardID", c.wirelessCardID);
        appendBool(out, "supportPortStatistic", c.supportPortStatistic);
        appendBool(out, "isLayer3Switch", c.isLayer3Switch);
        appendBool(out, "isDiscoveryMode", c.isDiscoveryMode);
        appendBool(out, "bIsChassisDevice", c.bIsChassisDevice);
        appendBool(out, "bIsSupportPanelStatus", c.bIsSupportPanelStatus);
        appendText(out, "deviceTypeName", c.deviceTypeName);
        out += "\"switchPriority\": " + std::to_string(c.switchPriority) + ", ";
        appendBool(out, "supportRegion", c.supportRegion);
        appendBool(out, "isSupportAPGroup", c.isSupportAPGroup);
        appendBool(out, "isSupportAutoSecurityEntry", c.isSupportAutoSecurityEntry);
        appendBool(out, "isSupportLinkNeighbors", c.isSupportLinkNeighbors, false);
        out += "}}";
    }
    out += "\n  ]\n}\n";
    return out;
}

} // namespace emulator
