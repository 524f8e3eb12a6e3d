#pragma once
// The one door from the program to a device: static, blocking queries that send one NXRPC
// pass-through request each (or one per page for the paged walks) and parse the answer into
// a Quillon record. Every operation returns true when the answer came and was handed to the
// record's parser, false after logging the failure; none throws, none keeps state.
#include <string>

#include "Quillon/SwitchRecords.h"
#include "Quillon/WirelessRecords.h"

namespace velmora {

class ParamInterface {
public:
    // Switch side
    static bool getSwitchDeviceStatus(Quillon::DeviceStatus& status, const std::string& deviceGuid);
    static bool getSwitchBasicInfoConfig(Quillon::CSwitchBaseInfo& info, const std::string& deviceGuid);
    static bool getSwitchesBasicInfo(Quillon::SwitchesBasicInfo& info, const std::string& deviceGuid);
    static bool getSwitchesWorkState(Quillon::SwitchesWorkState& state, const std::string& deviceGuid);
    static bool getSwitchesWorkStateEx(Quillon::SwitchesWorkStateSearchRes& result,
                                       Quillon::SwitchesWorkStateSearchCond& cond,
                                       const std::string& deviceGuid);
    static bool getSwitchesWorkStateSearchAbility(Quillon::SwitchesWorkStateSearchCap& cap,
                                                  const std::string& deviceGuid);
    static bool getSwitchPortBasicList(Quillon::PortBasicList& list, const std::string& deviceGuid);
    static bool getSwitchPortRateList(Quillon::PortRateList& list, const std::string& deviceGuid);
    static bool setSwitchesPortSumClear(const std::string& deviceGuid);
    static bool getPortPoeInfoCfgList(Quillon::PortPoeInfoList& list, const std::string& deviceGuid);
    static bool getPortPoeInfoListCap(Quillon::PortPoeInfoListCap& cap, const std::string& deviceGuid);
    static bool getSwitchSlotInfolList(Quillon::SwitchSlotInfolList& list, const std::string& deviceGuid);
    static bool getSwitchSlotPanelInfo(Quillon::PanelStatus& status, const std::string& deviceGuid,
                                       unsigned int slot);
    static bool getFiberConvertSlotList(Quillon::FiberConvertSlotList& list, const std::string& deviceGuid);

    // Wireless side
    static bool getAcCapabilities(Quillon::AcCapabilities& caps, const std::string& deviceGuid);
    static bool getApGroupList(Quillon::APGroupInfoList& list, const std::string& deviceGuid);
    static bool GetAPGroupBSSList(Quillon::APGroupBSSList& list, const std::string& deviceGuid);
    static bool getBssParaCfg(Quillon::BssParaCfg& config, const std::string& deviceGuid);
    static bool getBssClientInfoList(Quillon::BssClientInfoList& list, const std::string& deviceGuid);
    static bool getRfParaCfgList(Quillon::RfParaCfgList& list, const std::string& deviceGuid);
    static bool getPPPoEStatusList(Quillon::PPPoEStatusList& list, const std::string& deviceGuid);
    static bool getTerminalInfoInfolList(Quillon::TerminalInfoList& list, const std::string& deviceGuid);
    static bool getNetworkPortWirelessInfo(Quillon::Wireless& wireless, const std::string& deviceGuid,
                                           const std::string& interfaceId);
    static bool getWirelessTransmissionInfo(Quillon::TransmissionList& list, const std::string& deviceGuid,
                                            const std::string& interfaceId);
    static bool getBridgeRegion(Quillon::CBridgeRegion& region, const std::string& deviceGuid);
    static bool getBridgeRegionCapabilities(Quillon::CBridgeRegionCapabilities& caps,
                                            const std::string& deviceGuid);
    static bool setBridgeRegion(Quillon::CBridgeRegion& region, Quillon::CBridgeRegionRes& result,
                                const std::string& deviceGuid);
    static bool PostBssParaCfg(Quillon::BssParaCfg& config, const std::string& deviceGuid,
                               const std::string& searchKey);

    // Paged walks: one request per page until the device stops answering "MORE". Items are
    // appended to what the output record already holds; after a failure the pages read so
    // far stay in it.
    static bool PostAPGroupBssParaCfg(Quillon::APGroupBSSList& list, const std::string& deviceGuid);
    static bool getApInfoList(Quillon::ApInfoList& list, const std::string& deviceGuid);
    static bool getApTerminalInfoList(Quillon::AcTerminalInfoList& list, const std::string& deviceGuid);
};

} // namespace velmora
