#pragma once
// Answer and request records of the wireless side of the NXRPC device protocol: access
// points, controllers, bridges and WAN ports. Same forms and wire rules as the switch records.
//
// Band index, in every record: 0 is 2.4 GHz, 1 is 5 GHz (the first one on a three-radio AP),
// 2 the second 5 GHz radio.
#include <cstdint>
#include <string>
#include <vector>

#include "Quillon/SwitchRecords.h"

namespace Quillon {

// ---------------------------------------------------------------------------------------------
// Managed access points of a controller: "POST /NXRPC/Transfers/AP/basicInfo?format=json"

struct rfInfo {
    QUILLON_RECORD_FORMS(rfInfo);
    int32_t band = 0;                 // band index
    int32_t transmitPower = 0;        // dBm
    int32_t channel = 0;
    uint32_t channelInterference = 0;
    int32_t onlineCount = 0;          // clients on this radio
    int32_t sendUtilization = 0;      // percent
    int32_t receiveUtilization = 0;   // percent
};

struct ApInfo {
    QUILLON_RECORD_FORMS(ApInfo);
    std::string deviceName;      // UTF-8
    std::string model;
    std::string macAddress;
    std::string ipAddress;       // the key by which pages find an AP
    std::string serialNumber;
    std::string softwareVersion;
    std::string state;           // "offline", "online", "waitUpgrade", "receiveFirmwar", "updating", "success", "failed"
    int32_t runTime = 0;         // seconds since the AP started
    int32_t cpuUsage = 0;        // percent
    int32_t memoryUsage = 0;     // percent
    std::vector<rfInfo> rfList;  // one per radio, in the device's order
};

struct ApInfoList {
    QUILLON_RECORD_FORMS(ApInfoList);
    std::vector<ApInfo> apList;
};

struct ApInfoSearchCond {
    QUILLON_RECORD_FORMS(ApInfoSearchCond);
    std::string searchID;
    int32_t maxResults = 0;
    int32_t searchResultPosition = 0;
    std::string Make() const; // the request body (JSON)
};

struct ApInfoSearchResult {
    QUILLON_RECORD_FORMS(ApInfoSearchResult);
    std::string responseStatus; // "MORE" while more pages remain
    std::vector<ApInfo> apList;
    std::string searchID;
    int32_t numOfMatches = 0;
};

// ---------------------------------------------------------------------------------------------
// Radios and SSIDs of a device that is itself an AP: ".../rfParaCfg", ".../bssParaCfg"

struct RfParaCfg {
    QUILLON_RECORD_FORMS(RfParaCfg);
    int32_t band = 0;          // band index (0 or 1)
    bool enabled = false;
    std::string wirelessMode;  // "0" to "3"
    int32_t transmitPower = 0; // dBm
    int32_t channel = 0;       // 0: not set
};

struct RfParaCfgList {
    QUILLON_RECORD_FORMS(RfParaCfgList);
    std::vector<RfParaCfg> rfList;
};

struct BssParaCfgInfo {
    QUILLON_RECORD_FORMS(BssParaCfgInfo);
    std::string macAddress;
    int32_t band = 0;
    bool enabled = false;
    std::string ssid;         // UTF-8
    std::string securityMode; // "none" or the mode's name
};

struct BssParaCfg {
    QUILLON_RECORD_FORMS(BssParaCfg);
    std::vector<BssParaCfgInfo> bssList;
};

struct BssParaCfgSearchCond {
    QUILLON_RECORD_FORMS(BssParaCfgSearchCond);
    std::string searchKey;    // what the SSIDs are searched by
    std::string Make() const; // the request body (JSON)
};

// ---------------------------------------------------------------------------------------------
// AP groups of a controller: ".../AC/APGroup", ".../bssParaCfg/APGroup", ".../SearchAPGroup"

struct APGroupInfo {
    QUILLON_RECORD_FORMS(APGroupInfo);
    int32_t groupId = 0;
    std::string groupName;
    int32_t apNum = 0;
    std::string description;
};

struct APGroupInfoList {
    QUILLON_RECORD_FORMS(APGroupInfoList);
    std::vector<APGroupInfo> groupList;
};

struct APGroupBssParaCfg {
    QUILLON_RECORD_FORMS(APGroupBssParaCfg);
    int32_t ssidIndex = 0;    // joins the entries of one SSID on several bands
    int32_t band = 0;
    bool enabled = false;
    std::string ssid;         // UTF-8
    std::string securityMode; // "none" or the mode's name
};

struct APGroupBSS {
    QUILLON_RECORD_FORMS(APGroupBSS);
    std::string groupName; // UTF-8
    std::vector<APGroupBssParaCfg> bssList;
};

struct APGroupBSSList {
    QUILLON_RECORD_FORMS(APGroupBSSList);
    std::vector<APGroupBSS> groupList;
};

struct APGroupBssSearchCond {
    QUILLON_RECORD_FORMS(APGroupBssSearchCond);
    std::string searchID;
    int32_t maxResults = 0;
    int32_t searchResultPosition = 0;
    std::string Make() const; // the request body (JSON)
};

struct APGroupBssSearchResult {
    QUILLON_RECORD_FORMS(APGroupBssSearchResult);
    std::string responseStatus; // "MORE" while more pages remain
    std::vector<APGroupBSS> groupList;
    std::string searchID;
    int32_t numOfMatches = 0;
};

struct AcCapabilities {
    QUILLON_RECORD_FORMS(AcCapabilities);
    bool isSupportSearchAPGroup = false; // the AC answers the paged group search
    int32_t maxAPNum = 0;
    int32_t maxAPGroupNum = 0;
    int32_t maxTerminalNum = 0;
};

// ---------------------------------------------------------------------------------------------
// Terminals: ".../AC/terminalInfo?format=json" (controller), ".../Routers/deviceInfo",
// ".../AP/bssClientInfo?format=json" (a device that is itself an AP)

struct AcTerminalInfo {
    QUILLON_RECORD_FORMS(AcTerminalInfo);
    std::string ipAddress;
    std::string macAddress;
    std::string apMacAddress; // the AP the terminal is on
    int32_t rssi = 0;         // dBm
    double receiveRate = 0.0; // Kbps
    double sendRate = 0.0;    // Kbps
    int32_t connectSeconds = 0;
    int32_t band = 0;         // band index, 0 to 2
    std::string ssid;         // UTF-8
};

struct AcTerminalInfoList {
    QUILLON_RECORD_FORMS(AcTerminalInfoList);
    std::vector<AcTerminalInfo> terminalList;
};

struct TerminalInfoSearchCond {
    QUILLON_RECORD_FORMS(TerminalInfoSearchCond);
    std::string searchID;
    int32_t maxResults = 0;
    int32_t searchResultPosition = 0;
    std::string Make() const; // the request body (JSON)
};

struct TerminalInfoSearchResult {
    QUILLON_RECORD_FORMS(TerminalInfoSearchResult);
    std::string responseStatus; // "MORE" while more pages remain
    std::vector<AcTerminalInfo> terminalList;
    std::string searchID;
    int32_t numOfMatches = 0;
};

struct TerminalInfo {
    QUILLON_RECORD_FORMS(TerminalInfo);
    std::string ipAddress;
    std::string macAddress;
    std::string deviceName;
    std::string connectType; // "wired", "wireless"
    int32_t band = 0;        // band index; -1 for wired
    int32_t onlineSeconds = 0;
};

struct TerminalInfoList {
    QUILLON_RECORD_FORMS(TerminalInfoList);
    std::vector<TerminalInfo> terminalList;
};

struct BssClient {
    QUILLON_RECORD_FORMS(BssClient);
    std::string ipAddress;
    std::string macAddress;
    int32_t rssi = 0;         // dBm
    double receiveRate = 0.0; // Kbps
    double sendRate = 0.0;    // Kbps
    int32_t connectSeconds = 0;
};

struct BssClientInfo {
    QUILLON_RECORD_FORMS(BssClientInfo);
    std::string ssid;
    int32_t band = 0; // band index, 0 or 1
    std::vector<BssClient> clientList;
};

struct BssClientInfoList {
    QUILLON_RECORD_FORMS(BssClientInfoList);
    std::vector<BssClientInfo> bssList;
};

// ---------------------------------------------------------------------------------------------
// Bridge wireless card: ".../interfaces/<id>/wireless" and ".../wireless/transmissionList"

struct Wireless {
    QUILLON_RECORD_FORMS(Wireless);
    std::string ssid;
    std::string securityMode;     // "WPA2-personal", "disable", ...
    std::string workScene;        // "computerRoom", "monitorTerminal", "centralTerminal", ...
    std::string wirelessMode;
    std::string channelWidthMode;
    std::string channelWidth;     // MHz
    std::string channel;          // channel or frequency
    int32_t transmitPower = -1;   // dBm; -1 when absent
    int32_t noise = -1;           // dBm; -1 when absent
    bool antennaGainPresent = false; // antennaGain below is valid; an answer with a gain but without this flag sets it
    int32_t antennaGain = -1;     // dBi; -1 when absent
};

struct Transmission {
    QUILLON_RECORD_FORMS(Transmission);
    std::string macAddress;
    std::string ipAddress;      // IPv4
    int32_t signal = 0;         // dBm
    int32_t noise = -1000;      // dBm; -1000 when absent
    float sendRate = 0.0f;      // Mbps
    float receiveRate = 0.0f;   // Mbps
    float distance = -1.0f;     // km; negative when absent
    int32_t connectSeconds = 0;
};

struct TransmissionList {
    QUILLON_RECORD_FORMS(TransmissionList);
    std::vector<Transmission> transmissionList;
};

// ---------------------------------------------------------------------------------------------
// WAN ports: "GET /NXRPC/System/Network/PPPoE/status"

struct PPPoEStatus {
    QUILLON_RECORD_FORMS(PPPoEStatus);
    std::string id;             // decimal port identifier
    std::string ipAddress;
    std::string subnetMask;
    std::string gateway;
    std::string primaryDNS;
    std::string secondaryDNS;
    std::string status;         // "connected" or other
    std::string addressingType; // "DialUpInternet", "dynamicIP", "staticIP", "bridgeMode", ...
    float uplinkRate = 0.0f;    // Kbps
    float downlinkRate = 0.0f;  // Kbps
};

struct PPPoEStatusList {
    QUILLON_RECORD_FORMS(PPPoEStatusList);
    std::vector<PPPoEStatus> statusList;
};

// ---------------------------------------------------------------------------------------------
// Bridge country or region: ".../wirelessServer/Region", ".../RegionCapabilities"

struct CBridgeRegion {
    QUILLON_RECORD_FORMS(CBridgeRegion);
    std::string region;           // country or region code
    std::string createXml() const; // the request body of a change
};

struct CBridgeRegionCapabilities {
    QUILLON_RECORD_FORMS(CBridgeRegionCapabilities);
    std::vector<std::string> regionList; // the codes the bridge accepts
};

struct CBridgeRegionRes {
    QUILLON_RECORD_FORMS(CBridgeRegionRes);
    int32_t statusCode = 0; // 1: done
    std::string statusString;
    std::string region;     // the region now set
    bool needReboot = false;
};

} // namespace Quillon
