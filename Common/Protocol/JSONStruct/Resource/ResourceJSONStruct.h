#pragma once
// Resources that a device holds: channels, alarm inputs and outputs, doors, card readers,
// lane controllers, relays, partitions, zones, radars, tasks and audio inputs.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct Channel : public IReturnData {
    int32_t type = 0;
    std::string guid;
    std::string resourceGuid;
    std::string name;
    int32_t no = 0;
    bool enable = false;
    bool online = false;
    bool enablePicture = false;
    int32_t channelStatus = 0;

    PROTOCOL_DECLARE_RECORD(Channel)
};

struct Falconet : public IReturnData {
    int32_t type = 0;
    std::string axisX;
    std::string axisY;
    std::string value;

    PROTOCOL_DECLARE_RECORD(Falconet)
};

struct ChannelInfo : public IReturnData {
    std::string name;
    int32_t type = 0;
    int32_t no = 0;
    bool enable = false;
    bool online = false;
    std::string relatedServer;
    int32_t fishEyeType = 0;
    Falconet falconet;
    int32_t support = 0;
    int32_t support1 = 0;
    int32_t support2 = 0;
    int32_t support4 = 0;
    int32_t multiStreamProto = 0;
    bool enablePicture = false;
    bool enableAddInfo = false;
    std::string relatedDoorGUID;
    std::string relatedDoorGroupGUID;
    std::string streamKey;

    PROTOCOL_DECLARE_RECORD(ChannelInfo)
};

struct FalconetInfo : public IInboundData {
    int32_t type = 0;
    std::string axisX;
    std::string axisY;
    std::string value;

    PROTOCOL_DECLARE_RECORD(FalconetInfo)
    PROTOCOL_ROOT_NAME("falconetInfo")

    bool validate(std::string& error) override;
};

struct ChannelExtra : public IInboundData {
    std::string longDeviceGuid;
    std::string relatedServer;
    int32_t fishEyeType = 0;
    FalconetInfo falconetInfo;
    bool enablePicture = false;
    bool enableAddInfo = false;
    std::string relatedDoorGUID;
    std::string relatedDoorGroupGUID;

    PROTOCOL_DECLARE_RECORD(ChannelExtra)
    PROTOCOL_ROOT_NAME("channelExtra")

    bool validate(std::string& error) override;
};

// The key starts with a capital, as the service has it.
struct RelativeChannel : public IReturnData {
    std::vector<int32_t> RelativeChannelStatus;

    PROTOCOL_DECLARE_RECORD(RelativeChannel)
};

struct AlarmInput : public IReturnData {
    int32_t type = 0;
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(AlarmInput)
};

struct AlarmInputInfo : public IReturnData {
    int32_t type = 0;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(AlarmInputInfo)
};

struct AlarmOutput : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(AlarmOutput)
};

struct AlarmOutputParam : public IReturnData {
    int32_t id = 0;
    std::string guid;
    std::string name;
    bool state = false;
    std::string deviceGuid;
    std::string deviceIp;

    PROTOCOL_DECLARE_RECORD(AlarmOutputParam)
};

struct AlarmOutputInfo : public IReturnData {
    std::vector<AlarmOutputParam> alarmOutputParamList;

    PROTOCOL_DECLARE_RECORD(AlarmOutputInfo)
};

struct AlarmOutputAttr : public IReturnData {
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(AlarmOutputAttr)
};

struct Door : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    std::string location;

    PROTOCOL_DECLARE_RECORD(Door)
};

struct DoorInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    std::string location;

    PROTOCOL_DECLARE_RECORD(DoorInfo)
};

struct DoorModification : public IInboundData {
    std::string name;
    std::string location;

    PROTOCOL_DECLARE_RECORD(DoorModification)
    PROTOCOL_ROOT_NAME("doorModification")

    bool validate(std::string& error) override;
};

struct CardReader : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    int32_t doorNo = 0;

    PROTOCOL_DECLARE_RECORD(CardReader)
};

struct CardReaderInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    int32_t doorNo = 0;

    PROTOCOL_DECLARE_RECORD(CardReaderInfo)
};

struct CardReaderModification : public IInboundData {
    std::string name;

    PROTOCOL_DECLARE_RECORD(CardReaderModification)
    PROTOCOL_ROOT_NAME("cardReaderModification")

    bool validate(std::string& error) override;
};

struct LaneController : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(LaneController)
};

struct LaneControllerInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(LaneControllerInfo)
};

struct Relay : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    int32_t type = 0;
    bool online = false;
    int32_t distractNo = 0;

    PROTOCOL_DECLARE_RECORD(Relay)
};

struct RelayInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    int32_t type = 0;
    bool online = false;
    int32_t distractNo = 0;

    PROTOCOL_DECLARE_RECORD(RelayInfo)
};

struct Partition : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(Partition)
};

struct PartitionInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(PartitionInfo)
};

struct Zone : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    int32_t partitionNo = 0;
    std::string detectorType;

    PROTOCOL_DECLARE_RECORD(Zone)
};

struct PartitionZoneInfo : public IReturnData {
    std::vector<Zone> zoneList;

    PROTOCOL_DECLARE_RECORD(PartitionZoneInfo)
};

struct ZoneInfo : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;
    int32_t partitionNo = 0;

    PROTOCOL_DECLARE_RECORD(ZoneInfo)
};

struct Radar : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(Radar)
};

struct RadarAttr : public IReturnData {
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(RadarAttr)
};

struct Task : public IReturnData {
    std::string guid;
    std::string name;
    std::string ID;
    std::string monitorPointIndex;
    int32_t channelNo = 0;

    PROTOCOL_DECLARE_RECORD(Task)
};

struct TaskRuleInfo : public IReturnData {
    std::string guid;
    std::string id;
    std::string name;
    std::string eventType;

    PROTOCOL_DECLARE_RECORD(TaskRuleInfo)
};

struct TaskInfo : public IReturnData {
    std::string guid;
    std::string name;
    std::string ID;
    std::string relatedServer;
    std::string monitorPointIndex;
    int32_t channelNo = 0;
    int32_t relateChannelNo = 0;
    std::vector<TaskRuleInfo> ruleInfoList;
    std::string algorithmType;

    PROTOCOL_DECLARE_RECORD(TaskInfo)
};

// The root key is "taskInfoRequery", not the record's name.
struct TaskInfoReq : public IInboundData {
    std::string relatedServer;
    int32_t relateChannelNo = 0;

    PROTOCOL_DECLARE_RECORD(TaskInfoReq)
    PROTOCOL_ROOT_NAME("taskInfoRequery")
};

struct AudioInput : public IReturnData {
    std::string guid;
    std::string name;
    int32_t no = 0;
    bool online = false;

    PROTOCOL_DECLARE_RECORD(AudioInput)
};

struct AlarmInputInfoData : public IReturnData {
    AlarmInputInfo alarmInputInfo;

    PROTOCOL_DECLARE_RECORD(AlarmInputInfoData)
};

struct AlarmOutputAttrData : public IReturnData {
    AlarmOutputAttr alarmOutputAttr;

    PROTOCOL_DECLARE_RECORD(AlarmOutputAttrData)
};

struct AlarmOutputInfoData : public IReturnData {
    AlarmOutputInfo alarmOutputInfo;

    PROTOCOL_DECLARE_RECORD(AlarmOutputInfoData)
};

struct AudioInputData : public IReturnData {
    AudioInput audioInputInfo;

    PROTOCOL_DECLARE_RECORD(AudioInputData)
};

struct CardReaderInfoData : public IReturnData {
    CardReaderInfo cardReaderInfo;

    PROTOCOL_DECLARE_RECORD(CardReaderInfoData)
};

struct ChannelInfoData : public IReturnData {
    ChannelInfo channelInfo;

    PROTOCOL_DECLARE_RECORD(ChannelInfoData)
};

struct DoorInfoData : public IReturnData {
    DoorInfo doorInfo;

    PROTOCOL_DECLARE_RECORD(DoorInfoData)
};

struct PartitionInfoData : public IReturnData {
    PartitionInfo partitionInfo;

    PROTOCOL_DECLARE_RECORD(PartitionInfoData)
};

struct PartitionZoneInfoData : public IReturnData {
    PartitionZoneInfo partitionZoneInfo;

    PROTOCOL_DECLARE_RECORD(PartitionZoneInfoData)
};

struct RadarAttrData : public IReturnData {
    RadarAttr radarAttr;

    PROTOCOL_DECLARE_RECORD(RadarAttrData)
};

struct RelayInfoData : public IReturnData {
    RelayInfo relayInfo;

    PROTOCOL_DECLARE_RECORD(RelayInfoData)
};

struct TaskInfoData : public IReturnData {
    TaskInfo taskInfo;

    PROTOCOL_DECLARE_RECORD(TaskInfoData)
};

struct TaskRuleInfoData : public IReturnData {
    TaskRuleInfo ruleInfo;

    PROTOCOL_DECLARE_RECORD(TaskRuleInfoData)
};

struct ZoneInfoData : public IReturnData {
    ZoneInfo zoneInfo;

    PROTOCOL_DECLARE_RECORD(ZoneInfoData)
};

} // namespace protocol
