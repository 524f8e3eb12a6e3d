#pragma once
// Answer and request records of the switch side of the NXRPC device protocol.
//
// Each record is a plain structure of value members. The wire form of every record follows
// docs/protocol.md: in XML a root element named after the record with one child element per
// member, in JSON one object (optionally wrapped in a key of the record's name) with one key
// per member. One generic reader, driven by a single field list per record
// (platform/Quillon/records), fills every record from either form.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

struct _xmlNode; // libxml2's element node (typedef xmlNode)

// The forms every record offers:
//  - by default: every member at its default;
//  - from the text of a device answer, XML or JSON (the program passes the empty text, which
//    leaves the record empty and valid);
//  - from an XML element of a larger answer (a null node leaves the record empty);
//  - Parse(text): fills the record from an answer. It reports nothing: what can't be read
//    (a missing member, a value of the wrong type, a malformed document) keeps its value.
#define QUILLON_RECORD_FORMS(Type)          \
    Type();                                 \
    Type(const std::string& text);          \
    Type(_xmlNode* node);                   \
    void Parse(const std::string& text)

namespace Quillon {

// ---------------------------------------------------------------------------------------------
// Device load: "GET /NXRPC/System/status"

struct DeviceCpuInfo {
    QUILLON_RECORD_FORMS(DeviceCpuInfo);
    int32_t cpuUtilization = 0; // percent
};

struct DeviceMemoryInfo {
    QUILLON_RECORD_FORMS(DeviceMemoryInfo);
    float memoryUsage = 0.0f;     // both in one unit
    float memoryAvailable = 0.0f;
};

struct DevicePoeInfo {
    QUILLON_RECORD_FORMS(DevicePoeInfo);
    float poeUsed = 0.0f;  // watts
    float poeTotal = 0.0f; // watts
    float poePeak = -1.0f; // watts, highest of the last seven days; negative when the device has none
};

struct DeviceStatus {
    QUILLON_RECORD_FORMS(DeviceStatus);
    int32_t deviceUpTime = 0; // seconds since the device started
    std::vector<DeviceCpuInfo> cpuList;
    std::vector<DeviceMemoryInfo> memoryList;
    std::vector<DevicePoeInfo> poeList;
};

// ---------------------------------------------------------------------------------------------
// Port work state: "GET /NXRPC/Transfers/Switches/workState" and its paged search

struct SwitchesWorkStateItem {
    QUILLON_RECORD_FORMS(SwitchesWorkStateItem);
    int32_t portId = 0;
    bool portEnabled = false;        // administratively up
    std::string linkState;           // "connected", "disconnected"
    std::string rate;                // as the device writes it
    bool flowCtrl = false;
    std::string duplex;              // "duplex", "halfDuplex", "auto"
    std::string portType;            // "electrical", "optical", "multiplex", "wireless"
    std::string bytesSent;           // decimal counters as text
    uint32_t sendRate = 0;           // bit/s
    std::string packetsSent;
    int32_t sendReserved = 0;
    std::string bytesReceived;
    uint32_t receiveRate = 0;        // bit/s
    std::string packetsReceived;
    std::array<int32_t, 3> counterReserved{{0, 0, 0}};
    uint32_t peakSendRate = 0;       // bit/s, last seven days; 0 when unknown
    uint32_t peakReceiveRate = 0;
    float poePower = 0.0f;           // watts
    std::string portRemark;          // "connected": the port reaches the internet
};

struct SwitchesWorkState {
    QUILLON_RECORD_FORMS(SwitchesWorkState);
    std::vector<SwitchesWorkStateItem> portList;
    std::string portOrder; // "portNO1" when port 1 stands first in its row, or empty
};

struct SwitchesWorkStateSearchCond {
    QUILLON_RECORD_FORMS(SwitchesWorkStateSearchCond);
    std::string searchID;             // one GUID for the whole walk
    int32_t maxResults = 0;           // page size
    int32_t searchResultPosition = 0; // position of the first item wanted
    std::string createXml() const;    // the request body
};

struct SwitchesWorkStateSearchRes {
    QUILLON_RECORD_FORMS(SwitchesWorkStateSearchRes);
    std::string responseStatus; // "MORE" while more pages remain, "OK" on the last
    std::vector<SwitchesWorkStateItem> portList;
    std::string searchID;       // echoed
    int32_t numOfMatches = 0;   // items in this page
};

struct SwitchesWorkStateSearchCap {
    QUILLON_RECORD_FORMS(SwitchesWorkStateSearchCap);
    int32_t maxResults = 0; // the largest page the device serves
};

// ---------------------------------------------------------------------------------------------
// Basic information: "GET /NXRPC/Transfers/Switches/basicInfo"

struct SwitchBasePort {
    QUILLON_RECORD_FORMS(SwitchBasePort);
    int32_t portId = 0;
    std::string portName; // UTF-8
};

// Both records read the same answer.
struct CSwitchBaseInfo {
    QUILLON_RECORD_FORMS(CSwitchBaseInfo);
    std::string deviceModel; // the model as the device reports it
    std::vector<SwitchBasePort> portList;
    std::string deviceName;  // UTF-8
    std::string serialNumber;
    std::string macAddress;
    std::string firmwareVersion;
    std::string hardwareVersion;
    int32_t portNum = 0;
};

struct SwitchesBasicInfo {
    QUILLON_RECORD_FORMS(SwitchesBasicInfo);
    std::string deviceModel;
    std::vector<SwitchBasePort> portList;
    std::string deviceName;
    std::string serialNumber;
    std::string macAddress;
    std::string firmwareVersion;
    std::string hardwareVersion;
    int32_t portNum = 0;
};

// ---------------------------------------------------------------------------------------------
// Port configuration: ".../portCfg/portBasic", ".../portCfg/portRate"

struct PortBasic {
    QUILLON_RECORD_FORMS(PortBasic);
    int32_t portId = 0;
    std::string portName;
    bool portEnabled = false;
    std::string portType;
    std::string maxSpeed; // "1000M", "10G"
    std::string duplex;
    bool flowCtrl = false;
    std::string portDescription;
};

struct PortBasicList {
    QUILLON_RECORD_FORMS(PortBasicList);
    std::vector<PortBasic> portList;
};

struct PortRate {
    QUILLON_RECORD_FORMS(PortRate);
    int32_t portId = 0;
    bool rateLimitEnabled = false;
    uint32_t ingressRate = 0; // Kbps; 0: no limit
    uint32_t egressRate = 0;  // Kbps; 0: no limit
};

struct PortRateList {
    QUILLON_RECORD_FORMS(PortRateList);
    std::vector<PortRate> portList;
};

// ---------------------------------------------------------------------------------------------
// PoE: ".../portCfg/portPOEInfo?format=json" and its capabilities

struct PortPoeInfo {
    QUILLON_RECORD_FORMS(PortPoeInfo);
    int32_t portId = 0;
    bool poeEnable = false;
    std::string poeStatus;     // "powering", "searching", "disabled"
    float poePower = 0.0f;     // watts
    float poeMaxPower = 0.0f;  // watts
};

struct PortPoeInfoList {
    QUILLON_RECORD_FORMS(PortPoeInfoList);
    std::vector<PortPoeInfo> portList;
};

struct PortPoeInfoCap {
    QUILLON_RECORD_FORMS(PortPoeInfoCap);
    int32_t portId = 0;
    std::vector<bool> poeEnableOptions; // the values poeEnable may take; two: PoE can be switched
};

struct PortPoeInfoListCap {
    QUILLON_RECORD_FORMS(PortPoeInfoListCap);
    bool isSupportPoe = false;
    std::vector<PortPoeInfoCap> portList;
};

// ---------------------------------------------------------------------------------------------
// Logical front panel: ".../slotInfo/<slot>/panelStatus?format=json"

struct PanelCell {
    QUILLON_RECORD_FORMS(PanelCell);
    std::string cellType;  // "none", "port", "border", "septalSpace"
    std::string portType;  // "electrical", "optical"
    int32_t portId = 0;    // port number
    std::string label;
    std::string direction; // "up", "down"
};

struct Panel {
    QUILLON_RECORD_FORMS(Panel);
    int32_t rowCount = 0;
    std::vector<PanelCell> cellList; // column by column: cells rowCount apart share a row
    int32_t columnCount = 0;
    int32_t portMargin = 0;          // pixels left and right of a port image
};

struct PanelStatus {
    QUILLON_RECORD_FORMS(PanelStatus);
    std::vector<Panel> panelList;
};

// ---------------------------------------------------------------------------------------------
// Chassis slots: ".../slotInfo?format=json"; fiber converter crate: ".../FiberConvert/slot"

struct SwitchSlotInfo {
    QUILLON_RECORD_FORMS(SwitchSlotInfo);
    int32_t slotId = 0;
    std::string boardType; // "mainBoard", "interfaceBoard"
    bool inserted = false;
    std::string boardName; // empty when not inserted
    int32_t portNum = 0;   // ports on the board
};

struct SwitchSlotInfolList {
    QUILLON_RECORD_FORMS(SwitchSlotInfolList);
    std::vector<SwitchSlotInfo> slotList;
};

struct FiberConvertSlot {
    QUILLON_RECORD_FORMS(FiberConvertSlot);
    int32_t slotId = 0;
    std::string receivingCardIP;           // texts in UTF-8
    std::string receiveCardSerialNumber;
    std::string transmitterIP;
    std::string transmitterSerialNumber;
    std::string senderName;
};

struct FiberConvertSlotList {
    QUILLON_RECORD_FORMS(FiberConvertSlotList);
    std::vector<FiberConvertSlot> slotList;
};

} // namespace Quillon
