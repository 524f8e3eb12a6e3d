#pragma once
// What a network device can do; decides the dialog's rows and each page's options.
#include <cstdint>
#include <string>

#include "JSONStruct/Capability/CapabilityJSONStruct.h"
#include "JSONStruct/FieldTable.h"

namespace protocol {

struct SwitchCapabilities : public IReturnData {
    bool supportBasicInfo = false;
    bool supportWorkStatusBatch = false;
    bool supportCrateSlotStatus = false;
    std::string wirelessCardID;
    bool supportPortStatistic = false;
    bool isLayer3Switch = false;
    bool isDiscoveryMode = false;
    bool bIsChassisDevice = false;
    bool bIsSupportPanelStatus = false;
    std::string deviceTypeName;
    int32_t switchPriority = -1;          // -1: the key never came
    bool supportRegion = false;
    bool isSupportAPGroup = false;
    bool isSupportAutoSecurityEntry = false;
    bool isSupportLinkNeighbors = false;

    PROTOCOL_RECORD(SwitchCapabilities,
        PROTOCOL_FIELD(supportBasicInfo),
        PROTOCOL_FIELD(supportWorkStatusBatch),
        PROTOCOL_FIELD(supportCrateSlotStatus),
        PROTOCOL_FIELD(wirelessCardID),
        PROTOCOL_FIELD(supportPortStatistic),
        PROTOCOL_FIELD(isLayer3Switch),
        PROTOCOL_FIELD(isDiscoveryMode),
        PROTOCOL_FIELD(bIsChassisDevice),
        PROTOCOL_FIELD(bIsSupportPanelStatus),
        PROTOCOL_FIELD(deviceTypeName),
        PROTOCOL_FIELD(switchPriority),
        PROTOCOL_FIELD(supportRegion),
        PROTOCOL_FIELD(isSupportAPGroup),
        PROTOCOL_FIELD(isSupportAutoSecurityEntry),
        PROTOCOL_FIELD(isSupportLinkNeighbors))
};

// The capability records of one device.
struct Capabilities : public IReturnData {
    SoftHardwareCapabilities softHardwareCapabilities;
    SecurityCPCapabilities securityCPCapabilities;
    VideoCapabilities videoCapabilities;
    DetectorCapability detectorCapabilities;
    // This key alone starts with a capital; the member bears the key's name.
    protocol::SwitchCapabilities SwitchCapabilities;

    PROTOCOL_RECORD(Capabilities,
        PROTOCOL_FIELD(softHardwareCapabilities),
        PROTOCOL_FIELD(securityCPCapabilities),
        PROTOCOL_FIELD(videoCapabilities),
        PROTOCOL_FIELD(detectorCapabilities),
        PROTOCOL_FIELD(SwitchCapabilities))
};

struct CapabilitiesData : public IReturnData {
    Capabilities capabilities;

    PROTOCOL_RECORD(CapabilitiesData,
        PROTOCOL_FIELD(capabilities))
};

} // namespace protocol
