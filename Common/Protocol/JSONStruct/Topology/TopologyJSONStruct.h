#pragma once
// Records of the topology and alarm services: a device's node with its ports, lines and
// peers, the unconfirmed port alarms, and the requests and replies of the same service.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

// A device at the far side of a port.
struct PeerNode : public IReturnData {
    std::string guid;
    int32_t linkPort = 0;
    std::string portName;
    int32_t portType = 0;

    PROTOCOL_RECORD(PeerNode,
        PROTOCOL_FIELD(guid),
        PROTOCOL_FIELD(linkPort),
        PROTOCOL_FIELD(portName),
        PROTOCOL_FIELD(portType))
};

struct PortNode : public IReturnData {
    std::string guid;
    int32_t linkPort = 0;                 // port number
    std::string portName;
    int32_t portType = 0;
    int32_t nodePosType = 0;
    std::string lineGuid;
    std::vector<PeerNode> peerNodeList;

    PROTOCOL_RECORD(PortNode,
        PROTOCOL_FIELD(guid),
        PROTOCOL_FIELD(linkPort),
        PROTOCOL_FIELD(portName),
        PROTOCOL_FIELD(portType),
        PROTOCOL_FIELD(nodePosType),
        PROTOCOL_FIELD(lineGuid),
        PROTOCOL_FIELD(peerNodeList))
};

// A device at one end of a line.
struct PortDevice : public IReturnData {
    int32_t portDeviceType = 0;
    std::string guid;
    std::string ip;
    int32_t linkPort = 0;
    std::string portName;
    int32_t portType = 0;
    std::string portBandWidth;            // text, not a number

    PROTOCOL_RECORD(PortDevice,
        PROTOCOL_FIELD(portDeviceType),
        PROTOCOL_FIELD(guid),
        PROTOCOL_FIELD(ip),
        PROTOCOL_FIELD(linkPort),
        PROTOCOL_FIELD(portName),
        PROTOCOL_FIELD(portType),
        PROTOCOL_FIELD(portBandWidth))
};

struct Line : public IReturnData {
    std::string lineGuid;
    int32_t enable = 0;                   // an integer here, unlike the requests' boolean enable
    int32_t online = 0;                   // an integer here, unlike DeviceNode's boolean online
    int32_t lineType = 0;
    int32_t uploadSpeed = 0;
    int32_t downSpeed = 0;
    int32_t sendUseRatio = 0;
    int32_t recvUseRatio = 0;
    std::vector<PortDevice> portDeviceList;

    PROTOCOL_RECORD(Line,
        PROTOCOL_FIELD(lineGuid),
        PROTOCOL_FIELD(enable),
        PROTOCOL_FIELD(online),
        PROTOCOL_FIELD(lineType),
        PROTOCOL_FIELD(uploadSpeed),
        PROTOCOL_FIELD(downSpeed),
        PROTOCOL_FIELD(sendUseRatio),
        PROTOCOL_FIELD(recvUseRatio),
        PROTOCOL_FIELD(portDeviceList))
};

// A device's place in the network topology.
struct DeviceNode : public IReturnData {
    std::string guid;
    std::string name;
    std::string ip;
    int32_t deviceCategory = 0;
    int32_t sdkDeviceType = 0;
    int32_t deviceClassType = 0;
    int32_t bridgeWorkType = 0;
    int32_t dataSource = 0;
    bool online = false;
    int32_t wifiStrength = 0;
    std::string serialNo;
    std::string longSerialNo;
    bool isRoot = false;
    std::vector<PortNode> portNodeList;
    std::vector<Line> lineList;
    int32_t clientCount2_4 = 0;
    int32_t clientCount5 = 0;
    int32_t aPclientCount = 0;
    bool isSupportSafe = false;
    bool isSafe = false;
    int32_t safeMode = 0;

    PROTOCOL_RECORD(DeviceNode,
        PROTOCOL_FIELD(guid),
        PROTOCOL_FIELD(name),
        PROTOCOL_FIELD(ip),
        PROTOCOL_FIELD(deviceCategory),
        PROTOCOL_FIELD(sdkDeviceType),
        PROTOCOL_FIELD(deviceClassType),
        PROTOCOL_FIELD(bridgeWorkType),
        PROTOCOL_FIELD(dataSource),
        PROTOCOL_FIELD(online),
        PROTOCOL_FIELD(wifiStrength),
        PROTOCOL_FIELD(serialNo),
        PROTOCOL_FIELD(longSerialNo),
        PROTOCOL_FIELD(isRoot),
        PROTOCOL_FIELD(portNodeList),
        PROTOCOL_FIELD(lineList),
        PROTOCOL_FIELD(clientCount2_4),
        PROTOCOL_FIELD(clientCount5),
        PROTOCOL_FIELD(aPclientCount),
        PROTOCOL_FIELD(isSupportSafe),
        PROTOCOL_FIELD(isSafe),
        // Read as a number but written as a boolean on purpose: 2 comes back as 1.
        PROTOCOL_FIELD(safeMode).writtenAsBoolean())
};

struct SwitchPort : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    int32_t type = 0;

    PROTOCOL_RECORD(SwitchPort,
        PROTOCOL_FIELD(guid),
        PROTOCOL_FIELD(name),
        PROTOCOL_FIELD(no),
        PROTOCOL_FIELD(type))
};

struct SwitchAlarm : public IReturnData {
    int32_t port = 0;                     // the port's number
    bool isAlarm = false;

    PROTOCOL_RECORD(SwitchAlarm,
        PROTOCOL_FIELD(port),
        PROTOCOL_FIELD(isAlarm))
};

struct DeviceNodeListData : public IReturnData {
    std::vector<DeviceNode> deviceNodeList;

    PROTOCOL_RECORD(DeviceNodeListData,
        PROTOCOL_FIELD(deviceNodeList))
};

struct LineListData : public IReturnData {
    std::vector<Line> lineList;

    PROTOCOL_RECORD(LineListData,
        PROTOCOL_FIELD(lineList))
};

struct PortListData : public IReturnData {
    std::vector<SwitchPort> portList;

    PROTOCOL_RECORD(PortListData,
        PROTOCOL_FIELD(portList))
};

// The unconfirmed port alarms of one switch; being listed means being in alarm.
struct SwitchAlarmListData : public IReturnData {
    std::vector<SwitchAlarm> switchAlarmList;

    PROTOCOL_RECORD(SwitchAlarmListData,
        PROTOCOL_FIELD(switchAlarmList))
};

struct TopologyParam : public IInboundData {
    bool enable = false;
    int32_t defalutLevel = 0;             // spelt so by the service
    int32_t firstLevelThreshold = 0;
    int32_t secondLevelThreshold = 0;

    PROTOCOL_RECORD(TopologyParam,
        PROTOCOL_FIELD(enable),
        PROTOCOL_FIELD(defalutLevel),
        PROTOCOL_FIELD(firstLevelThreshold),
        // The service's key ends in a blank, in both directions.
        PROTOCOL_KEYED_FIELD("secondLevelThreshold ", secondLevelThreshold))
    PROTOCOL_ROOT_NAME("param")

    // The first threshold may not exceed the second.
    bool validate(std::string& error) override;
};

struct QueryCondition : public IInboundData {
    std::string method;                   // "local" or "refresh"

    PROTOCOL_RECORD(QueryCondition,
        PROTOCOL_FIELD(method))
    PROTOCOL_ROOT_NAME("queryCondition")

    // Fails without a message for any other method; values are compared exactly.
    bool validate(std::string& error) override;
};

struct RefreshCondition : public IInboundData {
    bool enable = false;

    PROTOCOL_RECORD(RefreshCondition,
        PROTOCOL_FIELD(enable))
    PROTOCOL_ROOT_NAME("refreshCondition")
};

struct ResetPercent : public IInboundData {
    bool enable = false;

    PROTOCOL_RECORD(ResetPercent,
        PROTOCOL_FIELD(enable))
    PROTOCOL_ROOT_NAME("resetPercent")
};

struct RootNode : public IInboundData {
    std::string guid;

    PROTOCOL_RECORD(RootNode,
        PROTOCOL_FIELD(guid))
    PROTOCOL_ROOT_NAME("rootNode")

    // Fails without a message when guid is empty.
    bool validate(std::string& error) override;
};

struct GatewayNode : public IInboundData {
    std::string guid;

    PROTOCOL_RECORD(GatewayNode,
        PROTOCOL_FIELD(guid))
    PROTOCOL_ROOT_NAME("gatewayNode")

    // Fails without a message when guid is empty.
    bool validate(std::string& error) override;
};

struct PortSecurity : public IInboundData {
    bool enabled = false;

    PROTOCOL_RECORD(PortSecurity,
        PROTOCOL_FIELD(enabled))
    PROTOCOL_ROOT_NAME("portSecurity")
};

struct Progress : public IReturnData {
    int32_t percent = 0;

    PROTOCOL_MEMBER_RECORD(Progress,
        PROTOCOL_FIELD(percent))
};

struct ProgressData : public IReturnData {
    Progress progress;

    PROTOCOL_RECORD(ProgressData,
        PROTOCOL_FIELD(progress))
};

struct PortSecurityRsp : public IReturnData {
    bool enabled = false;
    bool isFirstCreate = true;

    PROTOCOL_RECORD(PortSecurityRsp,
        PROTOCOL_FIELD(enabled),
        PROTOCOL_FIELD(isFirstCreate))
};

} // namespace protocol
