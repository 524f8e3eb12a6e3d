#pragma once
// The capability records of a device that Capabilities groups, and the query for them.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct VideoCapabilities : public IReturnData {
    bool clickToThermometry = false;
    bool MLOXPlatform = false;
    bool MLOXPictureTask = false;
    bool MLOXPictureUpload = false;
    bool AnalysisFace = false;

    PROTOCOL_RECORD(VideoCapabilities,
        PROTOCOL_FIELD(clickToThermometry),
        PROTOCOL_FIELD(MLOXPlatform),
        PROTOCOL_FIELD(MLOXPictureTask),
        PROTOCOL_FIELD(MLOXPictureUpload),
        PROTOCOL_FIELD(AnalysisFace))
};

struct PanicAlarmCapabilities : public IReturnData {
    bool supportCallsWaiting = false;
    bool supportRefuse = false;
    bool supportElecLocker = false;
    bool supportSiren = false;
    bool supportAudioIn = false;
    bool supportAudioOut = false;
    bool supportAlarmLamp = false;

    PROTOCOL_RECORD(PanicAlarmCapabilities,
        PROTOCOL_FIELD(supportCallsWaiting),
        PROTOCOL_FIELD(supportRefuse),
        PROTOCOL_FIELD(supportElecLocker),
        PROTOCOL_FIELD(supportSiren),
        PROTOCOL_FIELD(supportAudioIn),
        PROTOCOL_FIELD(supportAudioOut),
        PROTOCOL_FIELD(supportAlarmLamp))
};

struct SecurityCPCapabilities : public IReturnData {
    std::string sdkAlarmHostAbility;
    std::string nxrpcCapabilities;
    std::string nxrpcControlCapabilities;
    std::string nxrpcStatusCapabilities;
    PanicAlarmCapabilities panicAlarmCapabilities;

    PROTOCOL_RECORD(SecurityCPCapabilities,
        PROTOCOL_FIELD(sdkAlarmHostAbility),
        PROTOCOL_FIELD(nxrpcCapabilities),
        PROTOCOL_FIELD(nxrpcControlCapabilities),
        PROTOCOL_FIELD(nxrpcStatusCapabilities),
        PROTOCOL_FIELD(panicAlarmCapabilities))
};

struct SoftHardwareCapabilities : public IReturnData {
    bool supportClientProxyWeb = false;
    std::string webLocation;
    std::string deviceId;
    bool supportClientProxyInsert = false;
    bool supportGetFigure = false;
    int32_t videoInNum = 0;
    int32_t videoOutNum = 0;
    bool showClientRemote = true;

    PROTOCOL_RECORD(SoftHardwareCapabilities,
        PROTOCOL_FIELD(supportClientProxyWeb),
        PROTOCOL_FIELD(webLocation),
        PROTOCOL_FIELD(deviceId),
        PROTOCOL_FIELD(supportClientProxyInsert),
        PROTOCOL_FIELD(supportGetFigure),
        // The service sends the count as "iVideoInNum" and takes it back as "videoInNum";
        // a record written and read again loses it. Kept so on purpose.
        PROTOCOL_FIELD(videoInNum).readFrom("iVideoInNum"),
        PROTOCOL_FIELD(videoOutNum),
        PROTOCOL_FIELD(showClientRemote))
};

struct ChannelDetectorCap : public IReturnData {
    bool channelSupportSilence = false;
    int32_t channelNo = -1;

    PROTOCOL_RECORD(ChannelDetectorCap,
        PROTOCOL_FIELD(channelSupportSilence),
        PROTOCOL_FIELD(channelNo))
};

struct DetectorCapability : public IReturnData {
    bool supportSilence = false;
    std::vector<ChannelDetectorCap> channelDetectorCapList;

    PROTOCOL_RECORD(DetectorCapability,
        PROTOCOL_FIELD(supportSilence),
        PROTOCOL_FIELD(channelDetectorCapList))
};

struct CapabilitiesQueryCondition : public IInboundData {
    std::string longDeviceGuid;
    std::vector<std::string> capabilitiesFieldFilterList;

    PROTOCOL_RECORD(CapabilitiesQueryCondition,
        PROTOCOL_FIELD(longDeviceGuid),
        PROTOCOL_FIELD(capabilitiesFieldFilterList))
    PROTOCOL_ROOT_NAME("capabilitiesQueryCondition")
};

struct CloudP2PCapabilities : public IReturnData {
    int32_t supportVideoLevel = 0;
    bool supportVoiceTalk = false;
    int32_t supportPTZ = 0;
    int32_t videoLev = 0;
    std::string shared;
    std::string sptExtShort;

    PROTOCOL_RECORD(CloudP2PCapabilities,
        PROTOCOL_FIELD(supportVideoLevel),
        PROTOCOL_FIELD(supportVoiceTalk),
        PROTOCOL_FIELD(supportPTZ),
        PROTOCOL_FIELD(videoLev),
        PROTOCOL_FIELD(shared),
        PROTOCOL_FIELD(sptExtShort))
};

} // namespace protocol
