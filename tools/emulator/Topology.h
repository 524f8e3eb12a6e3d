#pragma once
// The site's topology as the client's topology service knows it: every device of the fleet,
// the APs managed by the controllers, cameras and recorders hanging on the switches, and the
// lines between their ports. Built once from the fleet; states are read live when asked.
#include "Fleet.h"

#include <map>
#include <string>
#include <vector>

namespace emulator {

struct TopoPeer {
    int node = -1;
    int linkPort = 0;
    std::string portName;
    int portType = 1;
};

struct TopoLink {
    int localPort = 0;
    std::string localName;
    int localType = 1;      // 1 electrical, 2 optical, 3 combo, 4 virtual/aggregated, 5 wireless
    int nodePosType = 2;    // 1 upstream, 2 downstream
    std::string lineGuid;
    int lineType = 1;       // 1 wired, 2 wireless
    std::string bandWidth;  // "1000M"
    std::vector<TopoPeer> peers;
};

struct TopoNode {
    std::string guid;
    std::string name;
    std::string ip;
    int category = 0;
    int sdkDeviceType = 0;
    int classType = 0;
    std::string serialNo;
    bool isRoot = false;
    int fleetIndex = -1;      // a device of the fleet, or -1
    int controllerIndex = -1; // a managed AP: its controller's fleet index
    int apIndex = -1;         // and its place in the controller's list
    std::vector<TopoLink> links;
};

class Topology {
public:
    // Also marks the fleet's ports that a line ends on (PortPlan::linked).
    void build(Fleet& fleet);
    const TopoNode* find(const std::string& guid) const;
    const std::vector<TopoNode>& nodes() const { return m_nodes; }

private:
    int addSynthetic(TopoNode node);
    int nextFreePort(int node, bool allowUplink);
    void link(int a, int portA, int b, int portB, int lineType);
    void addPeer(int a, int portA, int b, int portB);

    const Fleet* m_fleet = nullptr;
    std::vector<TopoNode> m_nodes;
    std::map<std::string, int> m_byGuid;
    std::vector<std::vector<int>> m_used; // ports in use per node
};

// Port type number of the topology service for a port type letter.
int topoPortType(char type);

} // namespace emulator
