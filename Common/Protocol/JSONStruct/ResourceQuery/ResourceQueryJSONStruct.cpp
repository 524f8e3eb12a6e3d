#include "JSONStruct/ResourceQuery/ResourceQueryJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(ChannelParamReq,
    PROTOCOL_FIELD(needZeroChennel),
    PROTOCOL_FIELD(channelIdxList))

PROTOCOL_DEFINE_RECORD(TaskQueryReq,
    PROTOCOL_FIELD(needDeviceResponse))

PROTOCOL_DEFINE_RECORD(ChannelQueryReq,
    PROTOCOL_FIELD(needDeviceResponse))

PROTOCOL_DEFINE_RECORD(AlarmInputQueryReq,
    PROTOCOL_FIELD(needDeviceResponse),
    PROTOCOL_FIELD(type))

PROTOCOL_DEFINE_RECORD(ZoneQueryReq,
    PROTOCOL_FIELD(needDeviceResponse))

PROTOCOL_DEFINE_RECORD(DoorQueryReq,
    PROTOCOL_FIELD(needDeviceResponse))

PROTOCOL_DEFINE_RECORD(CardReaderQueryReq,
    PROTOCOL_FIELD(needDeviceResponse))

PROTOCOL_DEFINE_RECORD(ChannelAndDeviceInfoRsp,
    PROTOCOL_FIELD(channel),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(TaskAndDeviceInfoRsp,
    PROTOCOL_FIELD(task),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(ChannelsAndDeviceInfoRsp,
    PROTOCOL_FIELD(channelList),
    PROTOCOL_FIELD(deviceNameInfo))

PROTOCOL_DEFINE_RECORD(AlarmInputAndDeviceInfoRsp,
    PROTOCOL_FIELD(alarmInput),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(ZoneAndDeviceInfoRsp,
    PROTOCOL_FIELD(zone),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(DoorAndDeviceInfoRsp,
    PROTOCOL_FIELD(door),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(CardReaderAndDeviceInfoRsp,
    PROTOCOL_FIELD(cardReader),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(AudioInAndDeviceInfoRsp,
    PROTOCOL_FIELD(audioIn),
    PROTOCOL_FIELD(deviceResponse))

PROTOCOL_DEFINE_RECORD(AlarmInputAndDeviceInfoRspData,
    PROTOCOL_FIELD(alarmInputAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(AudioInAndDeviceInfoRspData,
    PROTOCOL_FIELD(audioInAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(CardReaderAndDeviceInfoRspData,
    PROTOCOL_FIELD(cardReaderAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(ChannelAndDeviceInfoRspData,
    PROTOCOL_FIELD(channelAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(ChannelsAndDeviceInfoRspData,
    PROTOCOL_FIELD(channelsAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(DoorAndDeviceInfoRspData,
    PROTOCOL_FIELD(doorAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(TaskAndDeviceInfoRspData,
    PROTOCOL_FIELD(taskAndDeviceInfoRsp))

PROTOCOL_DEFINE_RECORD(ZoneAndDeviceInfoRspData,
    PROTOCOL_FIELD(zoneAndDeviceInfoRsp))

} // namespace protocol
