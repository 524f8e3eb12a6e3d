#pragma once
// Queries that answer a resource together with the device that holds it.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/Device/DeviceJSONStruct.h"
#include "JSONStruct/Resource/ResourceJSONStruct.h"
#include "JSONStruct/FieldTable.h"

namespace protocol {

struct ChannelParamReq : public IInboundData {
    bool needZeroChennel = false;             // spelt so by the service
    std::vector<int32_t> channelIdxList;

    PROTOCOL_DECLARE_RECORD(ChannelParamReq)
    PROTOCOL_ROOT_NAME("channelParamReq")
};

struct TaskQueryReq : public IInboundData {
    bool needDeviceResponse = false;

    PROTOCOL_DECLARE_RECORD(TaskQueryReq)
    PROTOCOL_ROOT_NAME("taskQueryReq")
};

struct ChannelQueryReq : public IInboundData {
    bool needDeviceResponse = false;

    PROTOCOL_DECLARE_RECORD(ChannelQueryReq)
    PROTOCOL_ROOT_NAME("channelQueryReq")
};

struct AlarmInputQueryReq : public IInboundData {
    bool needDeviceResponse = false;
    int32_t type = 0;

    PROTOCOL_DECLARE_RECORD(AlarmInputQueryReq)
    PROTOCOL_ROOT_NAME("alarmInputQueryReq")
};

struct ZoneQueryReq : public IInboundData {
    bool needDeviceResponse = false;

    PROTOCOL_DECLARE_RECORD(ZoneQueryReq)
    PROTOCOL_ROOT_NAME("zoneQueryReq")
};

struct DoorQueryReq : public IInboundData {
    bool needDeviceResponse = false;

    PROTOCOL_DECLARE_RECORD(DoorQueryReq)
    PROTOCOL_ROOT_NAME("doorQueryReq")
};

struct CardReaderQueryReq : public IInboundData {
    bool needDeviceResponse = false;

    PROTOCOL_DECLARE_RECORD(CardReaderQueryReq)
    PROTOCOL_ROOT_NAME("cardReaderQueryReq")
};

struct ChannelAndDeviceInfoRsp : public IReturnData {
    Channel channel;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(ChannelAndDeviceInfoRsp)
};

struct TaskAndDeviceInfoRsp : public IReturnData {
    Task task;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(TaskAndDeviceInfoRsp)
};

struct ChannelsAndDeviceInfoRsp : public IReturnData {
    std::vector<Channel> channelList;
    DeviceNameInfo deviceNameInfo;

    PROTOCOL_DECLARE_RECORD(ChannelsAndDeviceInfoRsp)
};

struct AlarmInputAndDeviceInfoRsp : public IReturnData {
    AlarmInput alarmInput;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(AlarmInputAndDeviceInfoRsp)
};

struct ZoneAndDeviceInfoRsp : public IReturnData {
    Zone zone;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(ZoneAndDeviceInfoRsp)
};

struct DoorAndDeviceInfoRsp : public IReturnData {
    Door door;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(DoorAndDeviceInfoRsp)
};

struct CardReaderAndDeviceInfoRsp : public IReturnData {
    CardReader cardReader;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(CardReaderAndDeviceInfoRsp)
};

struct AudioInAndDeviceInfoRsp : public IReturnData {
    AudioInput audioIn;
    DeviceResponse deviceResponse;

    PROTOCOL_DECLARE_RECORD(AudioInAndDeviceInfoRsp)
};

struct AlarmInputAndDeviceInfoRspData : public IReturnData {
    AlarmInputAndDeviceInfoRsp alarmInputAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(AlarmInputAndDeviceInfoRspData)
};

struct AudioInAndDeviceInfoRspData : public IReturnData {
    AudioInAndDeviceInfoRsp audioInAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(AudioInAndDeviceInfoRspData)
};

struct CardReaderAndDeviceInfoRspData : public IReturnData {
    CardReaderAndDeviceInfoRsp cardReaderAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(CardReaderAndDeviceInfoRspData)
};

struct ChannelAndDeviceInfoRspData : public IReturnData {
    ChannelAndDeviceInfoRsp channelAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(ChannelAndDeviceInfoRspData)
};

struct ChannelsAndDeviceInfoRspData : public IReturnData {
    ChannelsAndDeviceInfoRsp channelsAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(ChannelsAndDeviceInfoRspData)
};

struct DoorAndDeviceInfoRspData : public IReturnData {
    DoorAndDeviceInfoRsp doorAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(DoorAndDeviceInfoRspData)
};

struct TaskAndDeviceInfoRspData : public IReturnData {
    TaskAndDeviceInfoRsp taskAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(TaskAndDeviceInfoRspData)
};

struct ZoneAndDeviceInfoRspData : public IReturnData {
    ZoneAndDeviceInfoRsp zoneAndDeviceInfoRsp;

    PROTOCOL_DECLARE_RECORD(ZoneAndDeviceInfoRspData)
};

} // namespace protocol
