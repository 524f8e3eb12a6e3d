#pragma once
// What a network device can do; decides the dialog's rows and each page's options.
#include <cstdint>
#include <string>

namespace protocol {

struct SwitchCapabilities {
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
    int32_t switchPriority = -1;
    bool supportRegion = false;
    bool isSupportAPGroup = false;
    bool isSupportAutoSecurityEntry = false;
    bool isSupportLinkNeighbors = false;
};

} // namespace protocol
