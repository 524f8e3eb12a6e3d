#include "JSONStruct/Service/FarlinkJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_MEMBER_RECORD(FarlinkSMSPort,
    PROTOCOL_FIELD(strIP),
    PROTOCOL_FIELD(videoPort),
    PROTOCOL_FIELD(videoPortVIC),
    PROTOCOL_FIELD(audioPort),
    PROTOCOL_FIELD(playbackPort))

PROTOCOL_DEFINE_RECORD(FarlinkPreview,
    PROTOCOL_FIELD(channel),
    PROTOCOL_FIELD(linkMode),
    PROTOCOL_FIELD(streamType),
    PROTOCOL_FIELD(strIP),
    PROTOCOL_FIELD(videoPort),
    PROTOCOL_FIELD(isDailPreview))

PROTOCOL_DEFINE_RECORD(SessionIDData,
    PROTOCOL_FIELD(sessionID),
    PROTOCOL_FIELD(deviceID))

PROTOCOL_DEFINE_RECORD(PushStream,
    PROTOCOL_FIELD(streamSessionID),
    PROTOCOL_FIELD(streamType))

PROTOCOL_DEFINE_RECORD(FarlinkVoice,
    PROTOCOL_FIELD(channel),
    PROTOCOL_FIELD(strIP),
    PROTOCOL_FIELD(audioPort))

PROTOCOL_DEFINE_RECORD(FarlinkFindRecFileParam,
    PROTOCOL_FIELD(SearchType),
    PROTOCOL_FIELD(Channel),
    PROTOCOL_FIELD(RecordType),
    PROTOCOL_FIELD(StartTime),
    PROTOCOL_FIELD(stopTime),
    PROTOCOL_FIELD(StartIndex),
    PROTOCOL_FIELD(MaxFileCountPer),
    PROTOCOL_FIELD(TimeType))

PROTOCOL_DEFINE_RECORD(RecFileInfo,
    // The platform's key has a blank on both sides; the look-up doesn't trim it.
    PROTOCOL_KEYED_FIELD(" FileName ", FileName),
    PROTOCOL_FIELD(StartTime),
    PROTOCOL_FIELD(stopTime),
    PROTOCOL_FIELD(FileSize),
    PROTOCOL_FIELD(FileMainType),
    PROTOCOL_FIELD(FileSubType),
    PROTOCOL_FIELD(FileIndex),
    PROTOCOL_FIELD(TimeDiffH),
    PROTOCOL_FIELD(TimeDiffM))

PROTOCOL_DEFINE_RECORD(FarlinkRecFindResult,
    // The platform's key starts with a blank.
    PROTOCOL_KEYED_FIELD(" RecFileInfoList", RecFileInfoList))

PROTOCOL_DEFINE_RECORD(StreamSever,
    PROTOCOL_FIELD(StreamIP),
    PROTOCOL_FIELD(StreamPlayBackPort))

PROTOCOL_DEFINE_RECORD(PlayBackbyTime,
    PROTOCOL_FIELD(StartTime),
    PROTOCOL_FIELD(StopTime),
    PROTOCOL_FIELD(LocalOrUTC),
    PROTOCOL_FIELD(DuplicateSegment))

PROTOCOL_DEFINE_RECORD(PlayBackbyName,
    PROTOCOL_FIELD(FileName),
    PROTOCOL_FIELD(SeekType),
    PROTOCOL_FIELD(FileOffset),
    PROTOCOL_FIELD(FileSpan))

PROTOCOL_DEFINE_RECORD(FarlinkPlayBackParam,
    PROTOCOL_FIELD(Channel),
    PROTOCOL_FIELD(PlayBackMode),
    PROTOCOL_FIELD(StreamPackage),
    PROTOCOL_FIELD(PlayBackbyName),
    PROTOCOL_FIELD(PlayBackbyTime),
    PROTOCOL_FIELD(StreamSever))

PROTOCOL_DEFINE_RECORD(FarlinkPlayBackOperateParam,
    PROTOCOL_FIELD(OperateMode),
    PROTOCOL_FIELD(SessionID))

PROTOCOL_DEFINE_RECORD(FarlinkSMSPortData,
    PROTOCOL_FIELD(farlinkSMSPort))

} // namespace protocol
