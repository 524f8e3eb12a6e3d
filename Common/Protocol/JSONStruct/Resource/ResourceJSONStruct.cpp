#include "JSONStruct/Resource/ResourceJSONStruct.h"

#include "JSONStruct/Validators.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(Channel,
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(resourceGuid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(enable),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(enablePicture),
    PROTOCOL_FIELD(channelStatus))

PROTOCOL_DEFINE_RECORD(Falconet,
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(axisX),
    PROTOCOL_FIELD(axisY),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(ChannelInfo,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(enable),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(relatedServer),
    PROTOCOL_FIELD(fishEyeType),
    PROTOCOL_FIELD(falconet),
    PROTOCOL_FIELD(support),
    PROTOCOL_FIELD(support1),
    PROTOCOL_FIELD(support2),
    PROTOCOL_FIELD(support4),
    PROTOCOL_FIELD(multiStreamProto),
    PROTOCOL_FIELD(enablePicture),
    PROTOCOL_FIELD(enableAddInfo),
    PROTOCOL_FIELD(relatedDoorGUID),
    PROTOCOL_FIELD(relatedDoorGroupGUID),
    PROTOCOL_FIELD(streamKey))

PROTOCOL_DEFINE_RECORD(FalconetInfo,
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(axisX),
    PROTOCOL_FIELD(axisY),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(ChannelExtra,
    PROTOCOL_FIELD(longDeviceGuid),
    PROTOCOL_FIELD(relatedServer),
    PROTOCOL_FIELD(fishEyeType),
    PROTOCOL_FIELD(falconetInfo),
    PROTOCOL_FIELD(enablePicture),
    PROTOCOL_FIELD(enableAddInfo),
    PROTOCOL_FIELD(relatedDoorGUID),
    PROTOCOL_FIELD(relatedDoorGroupGUID))

PROTOCOL_DEFINE_RECORD(RelativeChannel,
    PROTOCOL_FIELD(RelativeChannelStatus))

PROTOCOL_DEFINE_RECORD(AlarmInput,
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(AlarmInputInfo,
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(AlarmOutput,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(AlarmOutputParam,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(state),
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(deviceIp))

PROTOCOL_DEFINE_RECORD(AlarmOutputInfo,
    PROTOCOL_FIELD(alarmOutputParamList))

PROTOCOL_DEFINE_RECORD(AlarmOutputAttr,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(Door,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(location))

PROTOCOL_DEFINE_RECORD(DoorInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(location))

PROTOCOL_DEFINE_RECORD(DoorModification,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(location))

PROTOCOL_DEFINE_RECORD(CardReader,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(doorNo))

PROTOCOL_DEFINE_RECORD(CardReaderInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(doorNo))

PROTOCOL_DEFINE_RECORD(CardReaderModification,
    PROTOCOL_FIELD(name))

PROTOCOL_DEFINE_RECORD(LaneController,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(LaneControllerInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(Relay,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(distractNo))

PROTOCOL_DEFINE_RECORD(RelayInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(distractNo))

PROTOCOL_DEFINE_RECORD(Partition,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(PartitionInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(Zone,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(partitionNo),
    PROTOCOL_FIELD(detectorType))

PROTOCOL_DEFINE_RECORD(PartitionZoneInfo,
    PROTOCOL_FIELD(zoneList))

PROTOCOL_DEFINE_RECORD(ZoneInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(partitionNo))

PROTOCOL_DEFINE_RECORD(Radar,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(RadarAttr,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(Task,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(ID),
    PROTOCOL_FIELD(monitorPointIndex),
    PROTOCOL_FIELD(channelNo))

PROTOCOL_DEFINE_RECORD(TaskRuleInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(eventType))

PROTOCOL_DEFINE_RECORD(TaskInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(ID),
    PROTOCOL_FIELD(relatedServer),
    PROTOCOL_FIELD(monitorPointIndex),
    PROTOCOL_FIELD(channelNo),
    PROTOCOL_FIELD(relateChannelNo),
    PROTOCOL_FIELD(ruleInfoList),
    PROTOCOL_FIELD(algorithmType))

PROTOCOL_DEFINE_RECORD(TaskInfoReq,
    PROTOCOL_FIELD(relatedServer),
    PROTOCOL_FIELD(relateChannelNo))

PROTOCOL_DEFINE_RECORD(AudioInput,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(online))

PROTOCOL_DEFINE_RECORD(AlarmInputInfoData,
    PROTOCOL_FIELD(alarmInputInfo))

PROTOCOL_DEFINE_RECORD(AlarmOutputAttrData,
    PROTOCOL_FIELD(alarmOutputAttr))

PROTOCOL_DEFINE_RECORD(AlarmOutputInfoData,
    PROTOCOL_FIELD(alarmOutputInfo))

PROTOCOL_DEFINE_RECORD(AudioInputData,
    PROTOCOL_FIELD(audioInputInfo))

PROTOCOL_DEFINE_RECORD(CardReaderInfoData,
    PROTOCOL_FIELD(cardReaderInfo))

PROTOCOL_DEFINE_RECORD(ChannelInfoData,
    PROTOCOL_FIELD(channelInfo))

PROTOCOL_DEFINE_RECORD(DoorInfoData,
    PROTOCOL_FIELD(doorInfo))

PROTOCOL_DEFINE_RECORD(PartitionInfoData,
    PROTOCOL_FIELD(partitionInfo))

PROTOCOL_DEFINE_RECORD(PartitionZoneInfoData,
    PROTOCOL_FIELD(partitionZoneInfo))

PROTOCOL_DEFINE_RECORD(RadarAttrData,
    PROTOCOL_FIELD(radarAttr))

PROTOCOL_DEFINE_RECORD(RelayInfoData,
    PROTOCOL_FIELD(relayInfo))

PROTOCOL_DEFINE_RECORD(TaskInfoData,
    PROTOCOL_FIELD(taskInfo))

PROTOCOL_DEFINE_RECORD(TaskRuleInfoData,
    PROTOCOL_FIELD(ruleInfo))

PROTOCOL_DEFINE_RECORD(ZoneInfoData,
    PROTOCOL_FIELD(zoneInfo))

bool FalconetInfo::validate(std::string& error)
{
    return checkIfPresent(*this, "type", [&] { return checkEnumValue(error, "type", type, {0, 1}); });
}

bool ChannelExtra::validate(std::string& error)
{
    if (!checkIfPresent(*this, "fishEyeType", [&] { return checkEnumValue(error, "fishEyeType", fishEyeType, {2, 3}); }))
        return false;
    return falconetInfo.validate(error);
}

bool DoorModification::validate(std::string& error)
{
    if (!checkAnyFieldExists(error, *this))
        return false;
    // The location may be anything, also empty.
    return checkIfPresent(*this, "name", [&] { return checkFormat(error, "name", name, "^.{1,32}$"); });
}

bool CardReaderModification::validate(std::string& error)
{
    return checkFieldExists(error, *this, "name", true) && checkStringNotEmpty(error, "name", name);
}

} // namespace protocol
