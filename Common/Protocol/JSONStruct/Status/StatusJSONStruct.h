#pragma once
// Status replies of doors, partitions, zones, relays, alarm panels, video devices, PTZ
// self-checks and access controllers, and the requests for them.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"
#include "JSONStruct/Resource/ResourceJSONStruct.h"

namespace protocol {

struct DoorStatusReq : public IInboundData {
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(DoorStatusReq)
    PROTOCOL_ROOT_NAME("doorStatusReq")
    bool validate(std::string& error) override;
};

struct DoorStatus : public IReturnData {
    std::string guid;
    std::string status;

    PROTOCOL_DECLARE_RECORD(DoorStatus)
};

struct DoorStatusRsp : public IReturnData {
    std::vector<DoorStatus> doorStatusList;

    PROTOCOL_DECLARE_MEMBER_RECORD(DoorStatusRsp)
};

struct PartitionStatus : public IReturnData {
    std::string arming;
    std::string alarm;
    std::string partitionsGuardStatus;
    std::string partitionsEnableStatus;

    PROTOCOL_DECLARE_RECORD(PartitionStatus)
};

struct PartitionStatusRsp : public IReturnData {
    std::vector<PartitionStatus> partitionStatusList;

    PROTOCOL_DECLARE_MEMBER_RECORD(PartitionStatusRsp)
};

struct ZoneStatus : public IReturnData {
    std::string status;
    std::string alarm;
    std::string detectorPower;

    PROTOCOL_DECLARE_RECORD(ZoneStatus)
};

struct ZoneStatusRsp : public IReturnData {
    std::vector<ZoneStatus> zoneStatusList;

    PROTOCOL_DECLARE_MEMBER_RECORD(ZoneStatusRsp)
};

struct RelayStatusReq : public IInboundData {
    std::vector<int32_t> noList;

    PROTOCOL_DECLARE_RECORD(RelayStatusReq)
    PROTOCOL_ROOT_NAME("relayStatusReq")
};

struct RelayStatus : public IReturnData {
    int32_t no = 0;
    std::string name;
    std::string status;
    std::string linkageStatus;

    PROTOCOL_DECLARE_RECORD(RelayStatus)
};

struct RelayStatusRsp : public IReturnData {
    std::vector<RelayStatus> relayStatusList;

    PROTOCOL_DECLARE_MEMBER_RECORD(RelayStatusRsp)
};

struct Siren : public IReturnData {
    std::string name;
    std::string status;
    std::string tamperEvident;
    std::string charge;

    PROTOCOL_DECLARE_RECORD(Siren)
};

struct SecurityCPStatus : public IReturnData {
    std::string wired;
    std::string wired2;
    std::string wifi;
    int32_t wifiSignal = 0;
    std::string mobile;
    int32_t mobileSignal = 0;
    double flow = 0.0;
    int32_t monFlowLimit = 0;
    std::string cloud;
    std::vector<Siren> sirenList;

    PROTOCOL_DECLARE_MEMBER_RECORD(SecurityCPStatus)
};

struct ChannelStatus : public IReturnData {
    std::string name;
    bool isRecording = false;
    int32_t signalStatus = 0;
    int32_t hardwareStatus = 0;
    int32_t connectionStatus = 0;
    int32_t ipcConnectionStatus = 0;
    int32_t brokenRecordStatus = 0;
    int32_t gasDetectorStates = 0;
    int32_t temperatureDetectorStates = 0;
    int32_t mazeDetectorStates = 0;
    int32_t shelterDetectorStates = 0;
    int32_t motionDetectorStates = 0;
    int32_t tamperDetectorStates = 0;

    PROTOCOL_DECLARE_RECORD(ChannelStatus)
};

struct VideoDeviceStatus : public IReturnData {
    std::string alias;
    std::string deviceGuid;
    bool hdIsNormal = false;
    int32_t hdFreeSpace = 0;
    int32_t hdAllSpace = 0;
    bool isCVR = false;
    bool isSupportDetectorCameraStates = false;
    std::vector<ChannelStatus> channelStatusList;

    PROTOCOL_DECLARE_MEMBER_RECORD(VideoDeviceStatus)
};

struct DeviceStatus : public IReturnData {
    VideoDeviceStatus videoDeviceStatus;
    SecurityCPStatus securityCPStatus;

    PROTOCOL_DECLARE_MEMBER_RECORD(DeviceStatus)
};

struct AlarmOutputStatusRsp : public IReturnData {
    std::string status;

    PROTOCOL_DECLARE_MEMBER_RECORD(AlarmOutputStatusRsp)
};

struct IntercomStatusRsp : public IReturnData {
    std::string armStatus;

    PROTOCOL_DECLARE_MEMBER_RECORD(IntercomStatusRsp)
};

struct PtzSelfCheckResponseData : public IReturnData {
    std::string status;
    int32_t initializationPercent = 0;
    std::string code = "0";               // "0" until the device answers otherwise
    std::string msg;

    PROTOCOL_DECLARE_RECORD(PtzSelfCheckResponseData)
};

struct DoorS : public IInboundData {
    int32_t index = 0;
    int32_t doorStatus = 0;
    int32_t lockStauts = 0;               // the device spells the key so
    int32_t magnetic = 0;

    PROTOCOL_DECLARE_RECORD(DoorS)
    PROTOCOL_ROOT_NAME("doorS")
};

struct HostS : public IInboundData {
    std::string name;
    int32_t value = 0;

    PROTOCOL_DECLARE_RECORD(HostS)
    PROTOCOL_ROOT_NAME("hostS")
};

struct CardReaderS : public IInboundData {
    int32_t index = 0;
    int32_t cardNum = 0;
    int32_t onlineStatus = 0;
    int32_t antiDismantleStatus = 0;
    int32_t verifyMode = 0;
    int32_t netReaderOnlineStatus = 0;

    PROTOCOL_DECLARE_RECORD(CardReaderS)
    PROTOCOL_ROOT_NAME("cardReaderS")
};

struct AlarmOutputS : public IInboundData {
    int32_t index = 0;
    int32_t AlarmOutStatus = 0;

    PROTOCOL_DECLARE_RECORD(AlarmOutputS)
    PROTOCOL_ROOT_NAME("alarmOutputS")
};

struct AlarmInputS : public IInboundData {
    int32_t index = 0;
    int32_t setUpStatus = 0;
    int32_t alarmIn = 0;

    PROTOCOL_DECLARE_RECORD(AlarmInputS)
    PROTOCOL_ROOT_NAME("alarmInputS")
};

struct EventS : public IInboundData {
    int32_t index = 0;
    int32_t caseIn = 0;

    PROTOCOL_DECLARE_RECORD(EventS)
    PROTOCOL_ROOT_NAME("eventS")
};

struct DoorSafeS : public IInboundData {
    int32_t index = 0;
    int32_t online = 0;
    int32_t desmantel = 0;                // the device spells the key so

    PROTOCOL_DECLARE_RECORD(DoorSafeS)
    PROTOCOL_ROOT_NAME("doorSafeS")
};

struct DefenceS : public IInboundData {
    int32_t index = 0;
    std::string ip;
    int32_t type = 0;

    PROTOCOL_DECLARE_RECORD(DefenceS)
    PROTOCOL_ROOT_NAME("defenceS")
};

struct GateHostNumberS : public IInboundData {
    std::string name;
    std::string value;

    PROTOCOL_DECLARE_RECORD(GateHostNumberS)
    PROTOCOL_ROOT_NAME("gateHostNumberS")
};

struct GateAllS : public IInboundData {
    std::string name;
    std::string value;

    PROTOCOL_DECLARE_RECORD(GateAllS)
    PROTOCOL_ROOT_NAME("gateAllS")
};

struct GateRayS : public IInboundData {
    std::string name;
    std::string value;

    PROTOCOL_DECLARE_RECORD(GateRayS)
    PROTOCOL_ROOT_NAME("gateRayS")
};

struct GateDeviceS : public IInboundData {
    std::string name;
    std::string value;

    PROTOCOL_DECLARE_RECORD(GateDeviceS)
    PROTOCOL_ROOT_NAME("gateDeviceS")
};

struct DeviceStatusResponse : public IInboundData {
    std::vector<DoorS> doorState;
    std::vector<HostS> hostState;
    std::vector<CardReaderS> cardReaderState;
    std::vector<AlarmOutputS> alarmOutputState;
    std::vector<AlarmInputS> alarmInputState;
    std::vector<EventS> eventState;
    std::vector<DoorSafeS> doorSafeState;
    std::vector<DefenceS> defenceState;
    std::vector<GateHostNumberS> gateHostNumberState;
    std::vector<GateAllS> gateAllState;
    std::vector<GateRayS> gateRayState;
    std::vector<GateDeviceS> gateDeviceState;
    std::vector<std::string> supportStatus;

    PROTOCOL_DECLARE_RECORD(DeviceStatusResponse)
    PROTOCOL_ROOT_NAME("deviceStatusResponse")
};

struct AlarmOutputStatusRspData : public IReturnData {
    AlarmOutputStatusRsp alarmOutputStatusRsp;

    PROTOCOL_DECLARE_RECORD(AlarmOutputStatusRspData)
};

struct DeviceStatusData : public IReturnData {
    DeviceStatus deviceStatus;

    PROTOCOL_DECLARE_RECORD(DeviceStatusData)
};

struct DoorStatusRspData : public IReturnData {
    DoorStatusRsp doorStatusRsp;

    PROTOCOL_DECLARE_RECORD(DoorStatusRspData)
};

struct IntercomStatusRspData : public IReturnData {
    protocol::IntercomStatusRsp IntercomStatusRsp;

    PROTOCOL_DECLARE_RECORD(IntercomStatusRspData)
};

struct LaneControllerInfoData : public IReturnData {
    LaneControllerInfo laneControllerInfo;

    PROTOCOL_DECLARE_RECORD(LaneControllerInfoData)
};

struct PartitionStatusRspData : public IReturnData {
    PartitionStatusRsp partitionStatusRsp;

    PROTOCOL_DECLARE_RECORD(PartitionStatusRspData)
};

struct RelayStatusRspData : public IReturnData {
    RelayStatusRsp relayStatusRsp;

    PROTOCOL_DECLARE_RECORD(RelayStatusRspData)
};

struct ZoneStatusRspData : public IReturnData {
    ZoneStatusRsp zoneStatusRsp;

    PROTOCOL_DECLARE_RECORD(ZoneStatusRspData)
};

} // namespace protocol
