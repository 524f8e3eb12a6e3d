#pragma once
// The client's topology and alarm services (base URLs from the registry's "services").
#include <string>

#include "JSONStruct/Topology/TopologyJSONStruct.h"

namespace senvia {

class CTopologyConfigComm {
public:
    // The node of one device with its ports and peers; false on any failure, last error set.
    static bool getOneDeviceNode(std::string deviceGuid, protocol::DeviceNode& node);
};

class CTopoAlarmComm {
public:
    // The unconfirmed port alarms of one device; false on any failure, last error set.
    static bool request(protocol::SwitchAlarmListData& alarms, const std::string& deviceGuid);
};

} // namespace senvia
