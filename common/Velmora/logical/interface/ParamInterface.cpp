#include "logical/interface/ParamInterface.h"

#include <utility>
#include <vector>

#include "logical/interface/PagedItems.h"
#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "Plinth/Error.h"
#include "Plinth/GuidUtil.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "senvia/NXRPCPassThroughComm.h"

namespace velmora {

namespace {

// The closed transport takes the request line as the client has always written it: some
// literals end in CR LF and others don't. Both sets are part of the contract with the
// transport and stay exactly as they are; the CR LF shows in the failure log too.
#define CRLF "\r\n"

// One single-shot query: its request line, and the texts logged on success (the whole answer
// for %s; null: nothing is logged) and on failure (request line, then both error numbers).
struct Query {
    const char* requestUrl;
    const char* successText;
    const char* failureText;
};

const Query kSwitchDeviceStatus{"GET /NXRPC/System/status" CRLF, "Get Switch Device Status:[%s].",
                                "Failed To Get Switch Device Status:[%s].Error code is %d-%d."};
const Query kSwitchBasicInfoConfig{"GET /NXRPC/Transfers/Switches/basicInfo" CRLF, "Get Switch Basic Info Config:[%s].",
                                   "Failed to Get Switch Basic Info Config:[%s].Error code is %d-%d."};
const Query kSwitchesBasicInfo{"GET /NXRPC/Transfers/Switches/basicInfo", "Get Switch Basic Info:[%s].",
                               "Failed to Get Switch Basic Info:[%s].Error code is %d-%d."};
const Query kSwitchesWorkState{"GET /NXRPC/Transfers/Switches/workState", "Get Switch Work State:[%s].",
                               "Failed to Get Switch Work State:[%s].Error code is %d-%d."};
const Query kSwitchesWorkStateEx{"POST /NXRPC/Transfers/Switches/workState/search", "Get Switch Work StateEx:[%s].",
                                 "Failed to Get Switch Work StateEx:[%s].Error code is %d-%d."};
const Query kSwitchesWorkStateSearchAbility{"GET /NXRPC/Transfers/Switches/workState/search/capabilities" CRLF,
                                            "Get Switch Workstate Search Ability:[%s].",
                                            "Failed to Get Switch Workstate Search Ability:[%s].Error code is %d-%d."};
const Query kSwitchPortBasicList{"GET /NXRPC/Transfers/Switches/portCfg/portBasic", "Get Switch Port Basic List:[%s].",
                                 "Failed To Get Switch Port Basic List:[%s].Error code is %d-%d."};
const Query kSwitchPortRateList{"GET /NXRPC/Transfers/Switches/portCfg/portRate", "Get Switch Port Rate List:[%s].",
                                "Failed to Get Switch Port Rate List:[%s].Error code is %d-%d."};
// A write whose failure text says "Get": the client's log readers search for this text.
const Query kSwitchesPortSumClear{"PUT /NXRPC/Transfers/Switches/portSumClear", nullptr,
                                  "Failed to Get Switch Port Sum Clear:[%s].Error code is %d-%d."};
const Query kPortPoeInfoCfgList{"GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo?format=json" CRLF,
                                "Get Port Poe InfoCfg List:[%s].",
                                "Failed to Get Port Poe InfoCfg List:[%s].Error code is %d-%d."};
const Query kPortPoeInfoListCap{"GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json" CRLF,
                                "Get Poe Info List:[%s].", "Failed to Get Poe Info List:[%s].Error code is %d-%d."};
const Query kSwitchSlotInfolList{"GET /NXRPC/Transfers/Switches/slotInfo?format=json" CRLF,
                                 "Get Switch Slot Info List:[%s].",
                                 "Failed to Get Switch Slot Info List:[%s].Error code is %d-%d."};
const Query kSwitchSlotPanelInfo{nullptr /* built per slot */, "Get Switch Panel Info List:[%s].",
                                 "Failed to Get Switch Panel Info List:[%s].Error code is %d-%d."};
const Query kFiberConvertSlotList{"GET /NXRPC/Transfers/FiberConvert/slot?format=json", "Get Fiber Convert Slot:[%s].",
                                  "Failed to Get Fiber Convert Slot:[%s].Error code is %d-%d."};
const Query kAcCapabilities{"GET /NXRPC/Transfers/AC/capabilities?format=json", "get Ac Capabilities:[%s].",
                            "Failed to get Ac Capabilities:[%s].Error code is %d-%d."};
const Query kApGroupList{"GET /NXRPC/Transfers/AC/APGroup?format=json", "Get Ap Group List:[%s].",
                         "Failed to Get Ap Group List:[%s].Error code is %d-%d."};
const Query kAPGroupBSSList{"GET /NXRPC/System/Network/interfaces/bssParaCfg/APGroup?format=json",
                            "Get Bss Param Config:[%s].", "Failed to Get Bss Param Config:[%s].Error code is %d-%d."};
const Query kBssParaCfg{"GET /NXRPC/System/Network/interfaces/bssParaCfg?format=json", "Get Bss Param Config:[%s].",
                        "Failed to Get Bss Param Config:[%s].Error code is %d-%d."};
const Query kBssClientInfoList{"GET /NXRPC/Transfers/AP/bssClientInfo?format=json", "Get Basic Client Info List:[%s].",
                               "Failed to Get Basic Client Info List:[%s].Error code is %d-%d."};
const Query kRfParaCfgList{"GET /NXRPC/System/Network/interfaces/rfParaCfg?format=json", "Get Rf ParamCfg List:[%s].",
                           "Failed to Get Rf ParamCfg List:[%s].Error code is %d-%d."};
// "Poe" in the success text of the PPPoE query is the client's own wording.
const Query kPPPoEStatusList{"GET /NXRPC/System/Network/PPPoE/status", "Get Poe Status List:[%s].",
                             "Failed to Get Poe Status List:[%s].Error code is %d-%d."};
const Query kTerminalInfoInfolList{"GET /NXRPC/Transfers/Routers/deviceInfo?format=json" CRLF,
                                   "Get Terminal Info List:[%s].",
                                   "Failed to Get Terminal Info List:[%s].Error code is %d-%d."};
const Query kNetworkPortWirelessInfo{nullptr /* built per interface */, "Get Network Wireless Info:[%s].",
                                     "Failed to Get Network Wireless Info:[%s].Error code is %d-%d."};
const Query kWirelessTransmissionInfo{nullptr /* built per interface */, "Get Wireless Transmission:[%s].",
                                      "Failed to Get Wireless Transmission:[%s].Error code is %d-%d."};
const Query kBridgeRegion{"GET /NXRPC/System/Network/wirelessServer/Region", "get Bridge Region:[%s].",
                          "Failed to get Bridge Region:[%s].Error code is %d-%d."};
const Query kBridgeRegionCapabilities{"GET /NXRPC/System/Network/wirelessServer/RegionCapabilities",
                                      "get Bridge Region Capabilities:[%s].",
                                      "Failed to get Bridge Region Capabilities:[%s].Error code is %d-%d."};
const Query kSetBridgeRegion{"PUT /NXRPC/System/Network/wirelessServer/Region", "set Bridge Region:[%s].",
                             "Failed to set Bridge Region:[%s].Error code is %d-%d."};

const char* const kPostBssParaCfgUrl = "POST /NXRPC/System/Network/interfaces/bssParaCfg?format=json";
const int kPostBssParaCfgTimeOut = 5000; // ms

// One paged walk of a device-side search. The first position follows the device's own
// counting for that search: the AP list counts from 0, the other two from 1.
struct PagedQuery {
    const char* requestUrl;
    int maxResults;
    int firstPosition;
    int step;
    int recvTimeOut; // ms, per page
    const char* successText; // device identifier, then the whole answer
    const char* failureText; // device identifier
};

const PagedQuery kAPGroupBssWalk{"POST /NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup?format=json",
                                 15, 1, 15, 20000, "Get device %s apGroup BSS List %s.",
                                 "Failed to Get APGroup Bss List:[%s]"};
const PagedQuery kApInfoWalk{"POST /NXRPC/Transfers/AP/basicInfo?format=json", 50, 0, 50, 5000,
                             "Get device %s apInfo list %s.", "Failed to Get Ap Info List:[%s]"};
const PagedQuery kApTerminalWalk{"POST /NXRPC/Transfers/AC/terminalInfo?format=json", 50, 1, 50, 5000,
                                 "Get device %s Terminal Info list %s.", "Failed to Get Ac terminal Info List:[%s]"};

#undef CRLF

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

// Success lines carry the whole answer, often many kilobytes: format them only when they
// will be written.
bool infoEnabled()
{
    return logger().logger()->isInfoEnabled();
}

// Sends one request; on success `outBuffer` holds the answer. A failure is logged with the
// request line and both error numbers of the transport.
bool send(const std::string& requestUrl, const std::string& body, int recvTimeOut, const Query& row,
          const std::string& deviceGuid, std::string& outBuffer)
{
    protocol::NxrpcPassThroughRspData response;
    protocol::NxrpcPassThroughReq request;
    request.requestUrl = requestUrl;
    request.inBuffer = body;
    request.recvTimeOut = recvTimeOut;
    if (!senvia::CNXRPCPassThroughComm::request(response, request, deviceGuid)) {
        const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
        logger().Error("",
                       Plinth::StringUtil::FormatString(row.failureText, request.requestUrl.c_str(), error.module,
                                                        error.code),
                       PLINTH_LOCATION);
        return false;
    }
    outBuffer = std::move(response.nxrpcPassThroughRsp.outBuffer);
    if (row.successText != nullptr && infoEnabled()) {
        logger().Info("", Plinth::StringUtil::FormatString(row.successText, outBuffer.c_str()), PLINTH_LOCATION);
    }
    return true;
}

// The plain query: one request, the answer logged whole, then parsed into `record`. The
// record stays as the caller gave it when the request fails.
template <typename Record>
bool query(Record& record, const Query& row, const std::string& deviceGuid,
           const std::string& requestUrl = std::string(), const std::string& body = std::string())
{
    std::string answer;
    const int defaultTimeOut = protocol::NxrpcPassThroughReq().recvTimeOut;
    if (!send(requestUrl.empty() ? row.requestUrl : requestUrl, body, defaultTimeOut, row, deviceGuid, answer)) {
        return false;
    }
    record.Parse(answer);
    return true;
}

// The paged walk: the same search (one searchID) page after page while the device answers
// "MORE". Items are appended to `output` after what it already holds (it isn't cleared
// first), in the order they came; after a failure the pages read so far stay in it. Nothing but the device ends a "MORE" walk.
template <typename Condition, typename Result, typename Output, typename Item>
bool walk(Output& output, std::vector<Item> Output::*outputList, std::vector<Item> Result::*resultList,
          const PagedQuery& paged, const std::string& deviceGuid)
{
    Condition condition;
    condition.searchID = Plinth::GuidUtil::CreateGuid();
    condition.maxResults = paged.maxResults;
    condition.searchResultPosition = paged.firstPosition;

    protocol::NxrpcPassThroughRspData response;
    protocol::NxrpcPassThroughReq request;
    PagedItems<Item> pages(output.*outputList);
    for (;;) {
        request.requestUrl = paged.requestUrl;
        request.inBuffer = condition.Make();
        request.recvTimeOut = paged.recvTimeOut;
        Result result(std::string{});
        if (!senvia::CNXRPCPassThroughComm::request(response, request, deviceGuid)) {
            pages.flush();
            logger().Error("", Plinth::StringUtil::FormatString(paged.failureText, deviceGuid.c_str()), PLINTH_LOCATION);
            return false;
        }
        const std::string& answer = response.nxrpcPassThroughRsp.outBuffer;
        result.Parse(answer);
        if (infoEnabled()) {
            logger().Info("", Plinth::StringUtil::FormatString(paged.successText, deviceGuid.c_str(), answer.c_str()),
                          PLINTH_LOCATION);
        }
        pages.add(result.*resultList);
        if (result.responseStatus != "MORE") {
            pages.flush();
            return true;
        }
        condition.searchResultPosition += paged.step;
    }
}

} // namespace

bool ParamInterface::getSwitchDeviceStatus(Quillon::DeviceStatus& status, const std::string& deviceGuid)
{
    return query(status, kSwitchDeviceStatus, deviceGuid);
}

bool ParamInterface::getSwitchBasicInfoConfig(Quillon::CSwitchBaseInfo& info, const std::string& deviceGuid)
{
    return query(info, kSwitchBasicInfoConfig, deviceGuid);
}

bool ParamInterface::getSwitchesBasicInfo(Quillon::SwitchesBasicInfo& info, const std::string& deviceGuid)
{
    return query(info, kSwitchesBasicInfo, deviceGuid);
}

bool ParamInterface::getSwitchesWorkState(Quillon::SwitchesWorkState& state, const std::string& deviceGuid)
{
    return query(state, kSwitchesWorkState, deviceGuid);
}

bool ParamInterface::getSwitchesWorkStateEx(Quillon::SwitchesWorkStateSearchRes& result,
                                            Quillon::SwitchesWorkStateSearchCond& cond, const std::string& deviceGuid)
{
    return query(result, kSwitchesWorkStateEx, deviceGuid, std::string(), cond.createXml());
}

bool ParamInterface::getSwitchesWorkStateSearchAbility(Quillon::SwitchesWorkStateSearchCap& cap,
                                                       const std::string& deviceGuid)
{
    return query(cap, kSwitchesWorkStateSearchAbility, deviceGuid);
}

bool ParamInterface::getSwitchPortBasicList(Quillon::PortBasicList& list, const std::string& deviceGuid)
{
    return query(list, kSwitchPortBasicList, deviceGuid);
}

bool ParamInterface::getSwitchPortRateList(Quillon::PortRateList& list, const std::string& deviceGuid)
{
    return query(list, kSwitchPortRateList, deviceGuid);
}

bool ParamInterface::setSwitchesPortSumClear(const std::string& deviceGuid)
{
    std::string answer;
    return send(kSwitchesPortSumClear.requestUrl, std::string(), protocol::NxrpcPassThroughReq().recvTimeOut,
                kSwitchesPortSumClear, deviceGuid, answer);
}

bool ParamInterface::getPortPoeInfoCfgList(Quillon::PortPoeInfoList& list, const std::string& deviceGuid)
{
    return query(list, kPortPoeInfoCfgList, deviceGuid);
}

bool ParamInterface::getPortPoeInfoListCap(Quillon::PortPoeInfoListCap& cap, const std::string& deviceGuid)
{
    return query(cap, kPortPoeInfoListCap, deviceGuid);
}

bool ParamInterface::getSwitchSlotInfolList(Quillon::SwitchSlotInfolList& list, const std::string& deviceGuid)
{
    return query(list, kSwitchSlotInfolList, deviceGuid);
}

bool ParamInterface::getSwitchSlotPanelInfo(Quillon::PanelStatus& status, const std::string& deviceGuid,
                                            unsigned int slot)
{
    const std::string url = "GET /NXRPC/Transfers/Switches/slotInfo/" + std::to_string(slot) + "/panelStatus?format=json";
    return query(status, kSwitchSlotPanelInfo, deviceGuid, url);
}

bool ParamInterface::getFiberConvertSlotList(Quillon::FiberConvertSlotList& list, const std::string& deviceGuid)
{
    return query(list, kFiberConvertSlotList, deviceGuid);
}

bool ParamInterface::getAcCapabilities(Quillon::AcCapabilities& caps, const std::string& deviceGuid)
{
    return query(caps, kAcCapabilities, deviceGuid);
}

bool ParamInterface::getApGroupList(Quillon::APGroupInfoList& list, const std::string& deviceGuid)
{
    return query(list, kApGroupList, deviceGuid);
}

bool ParamInterface::GetAPGroupBSSList(Quillon::APGroupBSSList& list, const std::string& deviceGuid)
{
    return query(list, kAPGroupBSSList, deviceGuid);
}

bool ParamInterface::getBssParaCfg(Quillon::BssParaCfg& config, const std::string& deviceGuid)
{
    return query(config, kBssParaCfg, deviceGuid);
}

bool ParamInterface::getBssClientInfoList(Quillon::BssClientInfoList& list, const std::string& deviceGuid)
{
    return query(list, kBssClientInfoList, deviceGuid);
}

bool ParamInterface::getRfParaCfgList(Quillon::RfParaCfgList& list, const std::string& deviceGuid)
{
    return query(list, kRfParaCfgList, deviceGuid);
}

bool ParamInterface::getPPPoEStatusList(Quillon::PPPoEStatusList& list, const std::string& deviceGuid)
{
    return query(list, kPPPoEStatusList, deviceGuid);
}

bool ParamInterface::getTerminalInfoInfolList(Quillon::TerminalInfoList& list, const std::string& deviceGuid)
{
    return query(list, kTerminalInfoInfolList, deviceGuid);
}

bool ParamInterface::getNetworkPortWirelessInfo(Quillon::Wireless& wireless, const std::string& deviceGuid,
                                                const std::string& interfaceId)
{
    const std::string url = "GET /NXRPC/System/Network/interfaces/" + interfaceId + "/wireless";
    return query(wireless, kNetworkPortWirelessInfo, deviceGuid, url);
}

bool ParamInterface::getWirelessTransmissionInfo(Quillon::TransmissionList& list, const std::string& deviceGuid,
                                                 const std::string& interfaceId)
{
    const std::string url = "GET /NXRPC/System/Network/interfaces/" + interfaceId + "/wireless/transmissionList";
    return query(list, kWirelessTransmissionInfo, deviceGuid, url);
}

bool ParamInterface::getBridgeRegion(Quillon::CBridgeRegion& region, const std::string& deviceGuid)
{
    return query(region, kBridgeRegion, deviceGuid);
}

bool ParamInterface::getBridgeRegionCapabilities(Quillon::CBridgeRegionCapabilities& caps,
                                                 const std::string& deviceGuid)
{
    return query(caps, kBridgeRegionCapabilities, deviceGuid);
}

bool ParamInterface::setBridgeRegion(Quillon::CBridgeRegion& region, Quillon::CBridgeRegionRes& result,
                                     const std::string& deviceGuid)
{
    return query(result, kSetBridgeRegion, deviceGuid, std::string(), region.createXml());
}

bool ParamInterface::PostBssParaCfg(Quillon::BssParaCfg& config, const std::string& deviceGuid,
                                    const std::string& searchKey)
{
    Quillon::BssParaCfgSearchCond condition;
    condition.searchKey = searchKey;

    protocol::NxrpcPassThroughRspData response;
    protocol::NxrpcPassThroughReq request;
    request.requestUrl = kPostBssParaCfgUrl;
    request.inBuffer = condition.Make();
    request.recvTimeOut = kPostBssParaCfgTimeOut;
    if (!senvia::CNXRPCPassThroughComm::request(response, request, deviceGuid)) {
        // Only the device is named here, without the error numbers.
        logger().Error("", Plinth::StringUtil::FormatString("Failed to Post Bss ParaCfg:[%s]", deviceGuid.c_str()),
                    PLINTH_LOCATION);
        return false;
    }
    config.Parse(response.nxrpcPassThroughRsp.outBuffer);
    return true;
}

bool ParamInterface::PostAPGroupBssParaCfg(Quillon::APGroupBSSList& list, const std::string& deviceGuid)
{
    return walk<Quillon::APGroupBssSearchCond, Quillon::APGroupBssSearchResult>(
        list, &Quillon::APGroupBSSList::groupList, &Quillon::APGroupBssSearchResult::groupList, kAPGroupBssWalk,
        deviceGuid);
}

bool ParamInterface::getApInfoList(Quillon::ApInfoList& list, const std::string& deviceGuid)
{
    return walk<Quillon::ApInfoSearchCond, Quillon::ApInfoSearchResult>(
        list, &Quillon::ApInfoList::apList, &Quillon::ApInfoSearchResult::apList, kApInfoWalk, deviceGuid);
}

bool ParamInterface::getApTerminalInfoList(Quillon::AcTerminalInfoList& list, const std::string& deviceGuid)
{
    return walk<Quillon::TerminalInfoSearchCond, Quillon::TerminalInfoSearchResult>(
        list, &Quillon::AcTerminalInfoList::terminalList, &Quillon::TerminalInfoSearchResult::terminalList,
        kApTerminalWalk, deviceGuid);
}

} // namespace velmora
