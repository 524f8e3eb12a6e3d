#include "Topology.h"

#include "Hash.h"
#include "ModelCatalog.h"

#include <algorithm>
#include <cstdio>

namespace emulator {

namespace {

std::string guidFor(uint64_t a, uint64_t b)
{
    const uint64_t x = hashKeys({a, b, 0x746f706f});
    const uint64_t y = hashKeys({b, a, 0x6c696e65});
    char text[40];
    std::snprintf(text, sizeof text, "%08X-%04X-%04X-%04X-%012llX", static_cast<unsigned>(x >> 32),
                  static_cast<unsigned>((x >> 16) & 0xFFFF), static_cast<unsigned>(0x4000 | (x & 0x0FFF)),
                  static_cast<unsigned>(0x8000 | ((y >> 48) & 0x3FFF)), static_cast<unsigned long long>(y & 0xFFFFFFFFFFFFULL));
    return text;
}

std::string bandWidthOf(int mbps)
{
    if (mbps >= 10000)
        return std::to_string(mbps / 1000) + "G";
    return std::to_string(mbps) + "M";
}

} // namespace

int topoPortType(char type)
{
    switch (type) {
    case 'O': return 2;
    case 'M': return 3;
    case 'W': return 5;
    default: return 1;
    }
}

const TopoNode* Topology::find(const std::string& guid) const
{
    const auto it = m_byGuid.find(guid);
    return it == m_byGuid.end() ? nullptr : &m_nodes[static_cast<size_t>(it->second)];
}

int Topology::addSynthetic(TopoNode node)
{
    const int index = static_cast<int>(m_nodes.size());
    m_byGuid[node.guid] = index;
    m_nodes.push_back(std::move(node));
    m_used.emplace_back();
    return index;
}

// The next port of `node` that has no line yet: a fleet device's wired ports in order,
// its uplinks only when `allowUplink`; a synthetic node has port 1.
int Topology::nextFreePort(int node, bool allowUplink)
{
    const TopoNode& n = m_nodes[static_cast<size_t>(node)];
    std::vector<int>& used = m_used[static_cast<size_t>(node)];
    if (n.fleetIndex < 0) {
        const int port = used.empty() ? 1 : 0;
        return port;
    }
    const DevicePlan& d = m_fleet->devices[static_cast<size_t>(n.fleetIndex)];
    for (const PortPlan& p : d.ports) {
        if (p.type == 'W' || (p.uplink && !allowUplink))
            continue;
        if (std::find(used.begin(), used.end(), p.id) == used.end())
            return p.id;
    }
    return 0;
}

static void describePort(const Fleet& fleet, const TopoNode& n, int port, std::string& name, int& type, int& mbps)
{
    if (n.fleetIndex >= 0) {
        const PortPlan* p = fleet.devices[static_cast<size_t>(n.fleetIndex)].port(port);
        name = p ? p->name : "Port" + std::to_string(port);
        type = p ? topoPortType(p->type) : 1;
        mbps = p ? p->speedMbps : 1000;
    } else {
        name = n.category == kEncodingDevice ? "LAN" : "LAN" + std::to_string(port);
        type = 1;
        mbps = n.category == kEncodingDevice ? 100 : 1000;
    }
}

void Topology::link(int a, int portA, int b, int portB, int lineType)
{
    if (portA <= 0 || portB <= 0)
        return;
    m_used[static_cast<size_t>(a)].push_back(portA);
    m_used[static_cast<size_t>(b)].push_back(portB);
    const TopoNode& na = m_nodes[static_cast<size_t>(a)];
    const TopoNode& nb = m_nodes[static_cast<size_t>(b)];
    const std::string line = guidFor(hashText(na.guid) + static_cast<uint64_t>(portA), hashText(nb.guid) + static_cast<uint64_t>(portB));

    TopoLink la, lb;
    int mbpsA = 1000, mbpsB = 1000;
    describePort(*m_fleet, na, portA, la.localName, la.localType, mbpsA);
    describePort(*m_fleet, nb, portB, lb.localName, lb.localType, mbpsB);
    la.localPort = portA;
    lb.localPort = portB;
    la.lineGuid = lb.lineGuid = line;
    la.lineType = lb.lineType = lineType;
    la.bandWidth = lb.bandWidth = bandWidthOf(std::min(mbpsA, mbpsB));
    la.nodePosType = 2; // `a` is the upper end
    lb.nodePosType = 1;
    la.peers.push_back({b, portB, lb.localName, lb.localType});
    lb.peers.push_back({a, portA, la.localName, la.localType});
    m_nodes[static_cast<size_t>(a)].links.push_back(la);
    m_nodes[static_cast<size_t>(b)].links.push_back(lb);
}

// A second device on a port that already has a line (a small hub in between).
void Topology::addPeer(int a, int portA, int b, int portB)
{
    for (TopoLink& l : m_nodes[static_cast<size_t>(a)].links) {
        if (l.localPort != portA)
            continue;
        TopoLink lb;
        int mbps = 100;
        describePort(*m_fleet, m_nodes[static_cast<size_t>(b)], portB, lb.localName, lb.localType, mbps);
        lb.localPort = portB;
        lb.lineGuid = l.lineGuid;
        lb.bandWidth = "100M";
        lb.nodePosType = 1;
        lb.peers.push_back({a, portA, l.localName, l.localType});
        l.peers.push_back({b, portB, lb.localName, lb.localType});
        m_nodes[static_cast<size_t>(b)].links.push_back(lb);
        m_used[static_cast<size_t>(b)].push_back(portB);
        return;
    }
}

void Topology::build(Fleet& fleet)
{
    m_fleet = &fleet;
    m_nodes.clear();
    m_byGuid.clear();
    m_used.clear();
    for (const DevicePlan& d : fleet.devices) {
        TopoNode n;
        n.guid = d.id;
        n.name = d.name;
        n.ip = d.lanIp;
        n.category = d.category;
        n.sdkDeviceType = 2000 + d.category;
        n.classType = d.category;
        n.serialNo = d.serialNumber;
        n.fleetIndex = d.index;
        addSynthetic(n);
    }

    // The root: the first switch of the fleet (the core chassis of the named fleets).
    int root = 0;
    for (const DevicePlan& d : fleet.devices)
        if (d.category == kSwitch) {
            root = d.index;
            break;
        }
    m_nodes[static_cast<size_t>(root)].isRoot = true;

    std::vector<int> aggregation, access;
    for (const DevicePlan& d : fleet.devices) {
        if (d.index == root || d.category != kSwitch)
            continue;
        (d.ports.size() >= 24 || d.caps.bIsChassisDevice ? aggregation : access).push_back(d.index);
    }

    auto uplinkOf = [&](int node) {
        const DevicePlan& d = fleet.devices[static_cast<size_t>(node)];
        int port = 0;
        for (const PortPlan& p : d.ports)
            if (p.uplink && !p.wan)
                port = p.id; // the last uplink
        if (port == 0) {
            // Routers and controllers reach the site through their first LAN port.
            for (const PortPlan& p : d.ports)
                if (!p.wan && p.type != 'W') {
                    port = p.id;
                    break;
                }
        }
        if (port == 0 && !d.ports.empty())
            port = d.ports.front().id;
        return port;
    };
    // Attach `child` on `childPort` to the first parent of `parents` (from `start`, round the
    // list) that has a free port, else to the root.
    auto attach = [&](int child, int childPort, const std::vector<int>& parents, size_t start) {
        for (size_t k = 0; k < parents.size(); ++k) {
            const int parent = parents[(start + k) % parents.size()];
            if (parent == child)
                continue;
            const int port = nextFreePort(parent, false);
            if (port > 0) {
                link(parent, port, child, childPort, 1);
                return parent;
            }
        }
        const int port = nextFreePort(root, true);
        if (port > 0 && child != root) {
            link(root, port, child, childPort, 1);
            return root;
        }
        return -1;
    };

    const std::vector<int> rootOnly{root};
    for (int a : aggregation)
        attach(a, uplinkOf(a), rootOnly, 0);
    const std::vector<int>& accessParents = aggregation.empty() ? rootOnly : aggregation;
    for (size_t i = 0; i < access.size(); ++i)
        attach(access[i], uplinkOf(access[i]), accessParents, i);
    const std::vector<int>& edgeSwitches = access.empty() ? accessParents : access;

    uint64_t synthetic = 0;
    auto encoder = [&](bool recorder, const std::string& where) {
        ++synthetic;
        TopoNode n;
        n.guid = guidFor(0x656e63, synthetic);
        static const int recorderClasses[] = {1, 3, 51, 101, 201};
        static const int cameraClasses[] = {7, 9, 302};
        n.category = kEncodingDevice;
        n.classType = recorder ? recorderClasses[synthetic % 5] : cameraClasses[synthetic % 3];
        n.sdkDeviceType = recorder ? 31 : 11;
        char name[96];
        std::snprintf(name, sizeof name, "%s-%s-%02llu", recorder ? "NVR" : "IPC", where.c_str(),
                      static_cast<unsigned long long>(synthetic));
        n.name = name;
        n.ip = "10.30." + std::to_string(1 + synthetic / 200) + "." + std::to_string(10 + synthetic % 200);
        char serial[32];
        std::snprintf(serial, sizeof serial, "%s%010llu", recorder ? "NR" : "IC",
                      static_cast<unsigned long long>(hashKeys({synthetic, 5}) % 10000000000ULL));
        n.serialNo = serial;
        return addSynthetic(n);
    };

    size_t turn = 0;
    for (const DevicePlan& d : fleet.devices) {
        const int node = d.index;
        switch (d.category) {
        case kWirelessController:
        case kEnterpriseRouter:
        case kWirelessRouter:
            attach(node, uplinkOf(node), accessParents, turn++);
            break;
        case kWirelessAp:
            attach(node, uplinkOf(node), edgeSwitches, turn++);
            break;
        case kFiberConverter:
            if (d.family == "CFiberSendMachinePanelStatus") {
                const int camera = encoder(false, "Fiber");
                link(node, 1, camera, 1, 1);
            } else {
                attach(node, uplinkOf(node), edgeSwitches, turn++);
            }
            break;
        case kBridge:
            if (d.bridgeWorkType == 2 && d.pairedWith >= 0) {
                // The far end of a pair: cameras on its LAN ports, the air to its partner.
                for (const PortPlan& p : d.ports)
                    if (p.type == 'E')
                        link(node, p.id, encoder(false, "Bridge"), 1, 1);
            } else {
                attach(node, uplinkOf(node), edgeSwitches, turn++);
            }
            break;
        default:
            break;
        }
    }
    // Over the air between paired bridges, and over fiber between sending unit and receiving card.
    for (const DevicePlan& d : fleet.devices) {
        if (d.category == kBridge && d.bridgeWorkType == 1 && d.pairedWith >= 0) {
            const DevicePlan& far = fleet.devices[static_cast<size_t>(d.pairedWith)];
            int wa = 0, wb = 0;
            for (const PortPlan& p : d.ports)
                if (p.type == 'W')
                    wa = p.id;
            for (const PortPlan& p : far.ports)
                if (p.type == 'W')
                    wb = p.id;
            link(d.index, wa, far.index, wb, 2);
        }
    }
    int receiver = -1, sender = -1;
    for (const DevicePlan& d : fleet.devices) {
        if (d.family == "CFiberReceiveCardPanelStatus" && receiver < 0)
            receiver = d.index;
        if (d.family == "CFiberSendMachinePanelStatus" && sender < 0)
            sender = d.index;
    }
    if (receiver >= 0 && sender >= 0)
        link(receiver, 2, sender, 2, 1);

    // Cameras and recorders on the edge switches; the first one with a
    // free port has two cameras behind a hub.
    bool hub = false;
    for (size_t i = 0; i < edgeSwitches.size(); ++i) {
        const int sw = edgeSwitches[i];
        const DevicePlan& d = fleet.devices[static_cast<size_t>(sw)];
        const int cameras = static_cast<int>(rangeOf(1, 3, {hashText(d.id), 80}));
        for (int c = 0; c < cameras; ++c) {
            const int port = nextFreePort(sw, false);
            if (port <= 0)
                break;
            link(sw, port, encoder(false, "SW" + std::to_string(sw)), 1, 1);
            if (!hub) {
                addPeer(sw, port, encoder(false, "Hub"), 1);
                hub = true;
            }
        }
        if (i % 4 == 0) {
            const int port = nextFreePort(sw, false);
            if (port > 0)
                link(sw, port, encoder(true, "SW" + std::to_string(sw)), 1, 1);
        }
    }

    // Managed APs hang on the edge switches.
    for (const DevicePlan& d : fleet.devices) {
        for (size_t i = 0; i < d.aps.size(); ++i) {
            const ManagedApPlan& ap = d.aps[i];
            TopoNode n;
            n.guid = ap.id;
            n.name = ap.deviceName;
            n.ip = ap.ipAddress;
            n.category = kWirelessAp;
            n.sdkDeviceType = 2000 + kWirelessAp;
            n.classType = kWirelessAp;
            n.serialNo = ap.serialNumber;
            n.controllerIndex = d.index;
            n.apIndex = static_cast<int>(i);
            const int node = addSynthetic(n);
            attach(node, 1, edgeSwitches, turn++);
        }
    }

    // A device of a class the client leaves out, and an aggregated link on the root.
    {
        TopoNode n;
        n.guid = guidFor(0x313233, 1);
        n.name = "Door-Controller-01";
        n.ip = "10.23.1.10";
        n.category = kHiddenClass;
        n.sdkDeviceType = 2123;
        n.classType = kHiddenClass;
        n.serialNo = "DC0000012345";
        const int node = addSynthetic(n);
        const int port = nextFreePort(root, true);
        if (port > 0)
            link(root, port, node, 1, 1);
    }
    if (!aggregation.empty()) {
        const int far = aggregation.front();
        TopoLink trunk;
        trunk.localPort = 4001;
        trunk.localName = "Eth-Trunk1";
        trunk.localType = 4;
        trunk.nodePosType = 2;
        trunk.lineGuid = guidFor(0x7472756e6b, 1);
        trunk.bandWidth = "20G";
        trunk.peers.push_back({far, 4001, "Eth-Trunk1", 4});
        m_nodes[static_cast<size_t>(root)].links.push_back(trunk);
    }
    for (size_t i = 0; i < fleet.devices.size(); ++i)
        for (int port : m_used[i])
            for (PortPlan& p : fleet.devices[i].ports)
                if (p.id == port)
                    p.linked = true;
    for (TopoNode& n : m_nodes)
        std::sort(n.links.begin(), n.links.end(), [](const TopoLink& a, const TopoLink& b) { return a.localPort < b.localPort; });
}

} // namespace emulator
