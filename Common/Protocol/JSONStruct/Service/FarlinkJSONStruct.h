#pragma once
// The device-to-platform protocol: preview, voice, push streams, the search of recorded
// files and their playback. Most of its keys start with a capital, as the platform spells them.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct FarlinkSMSPort : public IReturnData {
    std::string strIP;
    int32_t videoPort = 0;
    int32_t videoPortVIC = 0;
    int32_t audioPort = 0;
    int32_t playbackPort = 0;

    PROTOCOL_DECLARE_MEMBER_RECORD(FarlinkSMSPort)
};

struct FarlinkPreview : public IInboundData {
    int32_t channel = 0;
    int32_t linkMode = 0;
    int32_t streamType = 0;
    std::string strIP;
    int32_t videoPort = 0;
    bool isDailPreview = false;           // the platform spells the key so

    PROTOCOL_DECLARE_RECORD(FarlinkPreview)
    PROTOCOL_ROOT_NAME("farlinkPreview")
};

struct SessionIDData : public IReturnData {
    int32_t sessionID = 0;
    std::string deviceID;

    PROTOCOL_DECLARE_RECORD(SessionIDData)
};

struct PushStream : public IInboundData {
    int32_t streamSessionID = 0;
    int32_t streamType = 0;

    PROTOCOL_DECLARE_RECORD(PushStream)
    PROTOCOL_ROOT_NAME("pushStream")
};

struct FarlinkVoice : public IInboundData {
    int32_t channel = 0;
    std::string strIP;
    int32_t audioPort = 0;

    PROTOCOL_DECLARE_RECORD(FarlinkVoice)
    PROTOCOL_ROOT_NAME("farlinkVoice")
};

struct FarlinkFindRecFileParam : public IInboundData {
    int32_t SearchType = 0;
    int32_t Channel = 0;
    int32_t RecordType = 0;
    std::string StartTime;
    std::string stopTime;
    int32_t StartIndex = 0;
    int32_t MaxFileCountPer = 0;
    int32_t TimeType = 0;

    PROTOCOL_DECLARE_RECORD(FarlinkFindRecFileParam)
    PROTOCOL_ROOT_NAME("FarlinkFindRecFileParam")
};

struct RecFileInfo : public IReturnData {
    std::string FileName;
    std::string StartTime;
    std::string stopTime;
    int32_t FileSize = 0;
    int32_t FileMainType = 0;
    int32_t FileSubType = 0;
    int32_t FileIndex = 0;
    int32_t TimeDiffH = 0;
    int32_t TimeDiffM = 0;

    PROTOCOL_DECLARE_RECORD(RecFileInfo)
};

struct FarlinkRecFindResult : public IReturnData {
    std::vector<RecFileInfo> RecFileInfoList;

    PROTOCOL_DECLARE_RECORD(FarlinkRecFindResult)
};

// The root key is spelt "StreamSever" by the platform.
struct StreamSever : public IInboundData {
    std::string StreamIP;
    int32_t StreamPlayBackPort = 0;

    PROTOCOL_DECLARE_RECORD(StreamSever)
    PROTOCOL_ROOT_NAME("StreamSever")
};

struct PlayBackbyTime : public IInboundData {
    std::string StartTime;
    std::string StopTime;
    int32_t LocalOrUTC = 0;
    int32_t DuplicateSegment = 0;

    PROTOCOL_DECLARE_RECORD(PlayBackbyTime)
    PROTOCOL_ROOT_NAME("PlayBackbyTime")
};

struct PlayBackbyName : public IInboundData {
    std::string FileName;
    int32_t SeekType = 0;
    int32_t FileOffset = 0;
    int32_t FileSpan = 0;

    PROTOCOL_DECLARE_RECORD(PlayBackbyName)
    PROTOCOL_ROOT_NAME("PlayBackbyName")
};

struct FarlinkPlayBackParam : public IInboundData {
    int32_t Channel = 0;
    int32_t PlayBackMode = 0;
    int32_t StreamPackage = 0;
    protocol::PlayBackbyName PlayBackbyName;
    protocol::PlayBackbyTime PlayBackbyTime;
    protocol::StreamSever StreamSever;

    PROTOCOL_DECLARE_RECORD(FarlinkPlayBackParam)
    PROTOCOL_ROOT_NAME("FarlinkPlayBackParam")
};

struct FarlinkPlayBackOperateParam : public IInboundData {
    int32_t OperateMode = 0;
    int32_t SessionID = 0;

    PROTOCOL_DECLARE_RECORD(FarlinkPlayBackOperateParam)
    PROTOCOL_ROOT_NAME("FarlinkPlayBackOperateParam")
};

struct FarlinkSMSPortData : public IReturnData {
    FarlinkSMSPort farlinkSMSPort;

    PROTOCOL_DECLARE_RECORD(FarlinkSMSPortData)
};

} // namespace protocol
