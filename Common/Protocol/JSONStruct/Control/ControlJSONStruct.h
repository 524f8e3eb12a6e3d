#pragma once
// Commands to a device's guards, alarm outputs, doors, partitions, zones, relays,
// wipers, intercom and presets, and the outcome of each for its targets.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct Guard : public IInboundData {
    std::string deviceGuid;
    bool autoGuard = false;

    PROTOCOL_DECLARE_RECORD(Guard)
    PROTOCOL_ROOT_NAME("guard")
};

struct DeviceGuard : public IInboundData {
    std::vector<Guard> guardList;

    PROTOCOL_DECLARE_RECORD(DeviceGuard)
    PROTOCOL_ROOT_NAME("deviceGuard")
};

struct GuardResult : public IReturnData {
    std::string deviceGuid;
    bool guard = false;
    std::string errorCode;

    PROTOCOL_DECLARE_RECORD(GuardResult)
};

struct DeviceGuardState : public IReturnData {
    std::string guid;
    std::string name;
    int32_t deviceCategory = 0;
    bool autoGuard = false;
    bool guard = false;
    std::string code;

    PROTOCOL_DECLARE_RECORD(DeviceGuardState)
};

struct AlarmOutputControl : public IInboundData {
    bool enable = false;
    int32_t alarmOutPort = 0;

    PROTOCOL_DECLARE_RECORD(AlarmOutputControl)
    PROTOCOL_ROOT_NAME("alarmOutputControl")
    bool validate(std::string& error) override;
};

struct AcsManualCaptureParam : public IInboundData {
    int32_t pictureSize = 0;
    int32_t pictureQuality = 0;

    PROTOCOL_DECLARE_RECORD(AcsManualCaptureParam)
    PROTOCOL_ROOT_NAME("acsManualCaptureParam")
};

struct DoorControl : public IInboundData {
    std::string cmd;
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(DoorControl)
    PROTOCOL_ROOT_NAME("doorControl")
    bool validate(std::string& error) override;
};

struct DoorControlResult : public IReturnData {
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(DoorControlResult)
};

struct DoorControlRsp : public IReturnData {
    std::vector<DoorControlResult> doorControlResultList;

    PROTOCOL_DECLARE_MEMBER_RECORD(DoorControlRsp)
};

struct PartitionControl : public IInboundData {
    std::string cmd;
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(PartitionControl)
    PROTOCOL_ROOT_NAME("partitionControl")
    bool validate(std::string& error) override;
};

struct PartitionControlResult : public IReturnData {
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(PartitionControlResult)
};

struct PartitionControlRsp : public IReturnData {
    std::vector<PartitionControlResult> partitionControlResultList;

    PROTOCOL_DECLARE_MEMBER_RECORD(PartitionControlRsp)
};

struct ZoneControl : public IInboundData {
    std::string cmd;
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(ZoneControl)
    PROTOCOL_ROOT_NAME("zoneControl")
};

struct ZoneControlResult : public IReturnData {
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(ZoneControlResult)
};

struct ZoneControlRsp : public IReturnData {
    std::vector<ZoneControlResult> zoneControlResultList;

    PROTOCOL_DECLARE_MEMBER_RECORD(ZoneControlRsp)
};

struct RelayControl : public IInboundData {
    std::string cmd;
    std::vector<int32_t> noList;

    PROTOCOL_DECLARE_RECORD(RelayControl)
    PROTOCOL_ROOT_NAME("relayControl")
    bool validate(std::string& error) override;
};

struct RelayControlResult : public IReturnData {
    int32_t no = 0;
    std::string code;

    PROTOCOL_DECLARE_RECORD(RelayControlResult)
};

struct RelayControlRsp : public IReturnData {
    std::vector<RelayControlResult> relayControlResultList;

    PROTOCOL_DECLARE_MEMBER_RECORD(RelayControlRsp)
};

// Name and root key spelt "Channl" by the service.
struct ChannlGuid : public IInboundData {
    std::string guid;
    std::string deviceGuid;

    PROTOCOL_DECLARE_RECORD(ChannlGuid)
    PROTOCOL_ROOT_NAME("channlGuid")
};

struct WiperReq : public IInboundData {
    std::vector<ChannlGuid> channlGuidList;
    bool enable = false;

    PROTOCOL_DECLARE_RECORD(WiperReq)
    PROTOCOL_ROOT_NAME("wiperReq")
};

struct WiperControlResult : public IReturnData {
    std::string guid;
    std::string deviceGuid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(WiperControlResult)
};

// The address of a flat; a request record nested in IntercomControl.
struct RoomNo : public IInboundData {
    int32_t period = 0;
    int32_t buildingNo = 0;
    int32_t unitNo = 0;
    int32_t floorNo = 0;
    int32_t roomNo = 0;

    PROTOCOL_DECLARE_RECORD(RoomNo)
    PROTOCOL_ROOT_NAME("roomNo")
};

struct IntercomControl : public IInboundData {
    int32_t controlMode = 0;
    int32_t cmdType = 0;
    std::string sessionID;
    RoomNo roomNo;

    PROTOCOL_DECLARE_RECORD(IntercomControl)
    PROTOCOL_ROOT_NAME("intercomControl")
};

struct PresetInfo : public IInboundData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    int32_t cloudP2PNo = 0;

    PROTOCOL_DECLARE_RECORD(PresetInfo)
    PROTOCOL_ROOT_NAME("presetInfo")
};

struct PresetList : public IInboundData {
    std::string longDeviceGuid;
    std::vector<std::string> guidList;

    PROTOCOL_DECLARE_RECORD(PresetList)
    PROTOCOL_ROOT_NAME("presetList")
};

struct PresetResult : public IReturnData {
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(PresetResult)
};

struct DeviceGuardStateListData : public IReturnData {
    std::vector<DeviceGuardState> deviceGuardStateList;

    PROTOCOL_DECLARE_RECORD(DeviceGuardStateListData)
};

struct DoorControlRspData : public IReturnData {
    DoorControlRsp doorControlRsp;

    PROTOCOL_DECLARE_RECORD(DoorControlRspData)
};

struct GuardResultListData : public IReturnData {
    std::vector<GuardResult> guardResultList;

    PROTOCOL_DECLARE_RECORD(GuardResultListData)
};

struct PartitionControlRspData : public IReturnData {
    PartitionControlRsp partitionControlRsp;

    PROTOCOL_DECLARE_RECORD(PartitionControlRspData)
};

struct PresetInfoListData : public IReturnData {
    std::vector<PresetInfo> presetInfoList;

    PROTOCOL_DECLARE_RECORD(PresetInfoListData)
};

struct PresetResultListData : public IReturnData {
    std::vector<PresetResult> presetResultList;

    PROTOCOL_DECLARE_RECORD(PresetResultListData)
};

struct RelayControlRspData : public IReturnData {
    RelayControlRsp relayControlRsp;

    PROTOCOL_DECLARE_RECORD(RelayControlRspData)
};

struct WiperControlResultListData : public IReturnData {
    std::vector<WiperControlResult> wiperControlResultList;

    PROTOCOL_DECLARE_RECORD(WiperControlResultListData)
};

struct ZoneControlRspData : public IReturnData {
    ZoneControlRsp zoneControlRsp;

    PROTOCOL_DECLARE_RECORD(ZoneControlRspData)
};

} // namespace protocol
