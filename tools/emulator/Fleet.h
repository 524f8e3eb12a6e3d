#pragma once
// The fleet: every device the emulator plays, with what does not change while it runs
// (identity, ports, boards, radios, SSIDs, managed APs, WAN set-up). Built from a named
// fleet ("demo", "large") or from a JSON fleet file, and written out as the client's
// device registry.
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace emulator {

// The fifteen keys of the device's capability record, in their order.
struct Capabilities {
    bool supportBasicInfo = true;
    bool supportWorkStatusBatch = false;
    bool supportCrateSlotStatus = false;
    std::string wirelessCardID;
    bool supportPortStatistic = false;
    bool isLayer3Switch = false;
    bool isDiscoveryMode = false;
    bool bIsChassisDevice = false;
    bool bIsSupportPanelStatus = false;
    std::string deviceTypeName;
    int switchPriority = -1;
    bool supportRegion = false;
    bool isSupportAPGroup = false;
    bool isSupportAutoSecurityEntry = false;
    bool isSupportLinkNeighbors = false;
};

struct PortPlan {
    int id = 0;
    char type = 'E';       // 'E', 'O', 'M', 'W'
    std::string name;
    bool poe = false;
    bool uplink = false;   // stays up, carries the most traffic
    bool wan = false;      // reaches the internet (portRemark "connected")
    bool linked = false;   // a line of the topology ends here: the port stays up
    int speedMbps = 1000;
};

struct SlotPlan {
    int slotId = 0;
    bool mainBoard = false;
    bool inserted = true;
    std::string boardName;
    int portCount = 0;
};

struct FiberCardPlan {
    int slotId = 0;
    std::string receivingCardIP;
    std::string receiveCardSerialNumber;
    std::string transmitterIP;
    std::string transmitterSerialNumber;
    std::string senderName;
};

struct RadioPlan {
    int band = 0;
    bool enabled = true;
    std::string wirelessMode; // "0" to "3"
    int transmitPower = 20;
    int channel = 0;
};

struct SsidPlan {
    int ssidIndex = 1;
    std::string ssid;
    std::string securityMode;
    std::vector<int> bands;
    bool enabled = true;
};

struct ManagedApPlan {
    std::string id;           // topology identifier
    std::string deviceName;
    std::string model;
    std::string macAddress;
    std::string ipAddress;
    std::string serialNumber;
    std::string softwareVersion;
    int radios = 2;
    int group = 0;            // index into the controller's groups
    std::string fixedState;   // a state other than online/offline that the AP keeps ("" = live)
};

struct WanPlan {
    int portId = 1;
    std::string addressingType;
    std::string ipAddress;
    std::string subnetMask;
    std::string gateway;
    std::string primaryDNS;
    std::string secondaryDNS;
    bool alwaysUp = true;
};

struct DevicePlan {
    int index = 0;
    std::string id;
    std::string name;
    int category = 120;
    std::string model;          // the client's model text (registry)
    std::string reportedModel;  // what the device reports in its basic information
    std::string family;         // the panel family the model selects ("" = none)
    std::string hostName;
    std::string user = "admin";
    std::string password;
    std::string auth = "digest";
    std::string lanIp;
    std::string serialNumber;
    std::string macAddress;
    std::string firmwareVersion;
    std::string hardwareVersion;
    Capabilities caps;

    std::vector<PortPlan> ports;
    std::string portOrder;       // "portNO1", "portNO2" or ""
    bool poe = false;
    double poeBudget = 0.0;      // watts
    int workStatePageCap = 0;    // largest page of the paged work state; 0 = no paged search

    std::vector<SlotPlan> slots;           // chassis switches
    int panelRows = 2;                     // reported panel layout
    std::vector<FiberCardPlan> fiberCards; // fiber converter chassis

    std::vector<RadioPlan> radios;         // APs and wireless routers
    std::vector<SsidPlan> ssids;
    int clientsPerBss = 0;

    bool acSearchGroups = false;           // controller: paged group search
    std::vector<std::string> groupNames;   // controller: AP groups (empty: none)
    std::vector<std::vector<SsidPlan>> groupSsids; // controller: the SSIDs of each group
    std::vector<ManagedApPlan> aps;        // controller: managed APs
    int terminalsPerAp = 0;

    std::vector<WanPlan> wans;

    // Bridges.
    int bridgeFlavour = 0;       // picks which values the wireless card leaves out
    std::string region = "CN";
    int bridgeWorkType = 1;      // 1 access point side, 2 station side
    int pairedWith = -1;         // fleet index of the bridge at the other end, -1 none

    const PortPlan* port(int id) const;
};

struct Fleet {
    std::string name;
    std::vector<DevicePlan> devices;
    const DevicePlan* find(const std::string& id) const;
    const DevicePlan* findByHost(const std::string& hostName) const;
};

// "demo", "large", or the path of a JSON fleet file. False with `error` set on failure.
bool buildFleet(const std::string& nameOrFile, Fleet& fleet, std::string& error);

// The registry file of ostrand: every device with credentials and capabilities, and the
// services at `baseUrl`.
// `ownPorts`: devices that listen on a port of their own (--own-port) instead of `port`.
std::string registryJson(const Fleet& fleet, const std::string& baseUrl, int port,
                         const std::map<std::string, int>& ownPorts = {});

// Names of the built-in fleets, for --help.
std::vector<std::string> builtinFleetNames();

} // namespace emulator
