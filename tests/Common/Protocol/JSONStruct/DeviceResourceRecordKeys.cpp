// The keys of every device and resource record as the services define them: in order of
// writing, each with its kind and, where it isn't the kind's own, its default. Kinds:
// s string, i integer, b boolean, n boolean that takes any non-zero number, i>b integer
// written as a boolean, [s] [i] lists of strings and integers, [X] list of record X,
// {X} nested record X. A key read under another name gives it after "<".
#include "DeviceResourceRecordKeys.h"

namespace recordtest {

const std::vector<ExpectedRecord>& expectedDeviceResourceRecords()
{
    static const std::vector<ExpectedRecord> records = {
        {"DeviceAddReq", "deviceAddReq", {
            {"alias", "s", nullptr}, {"addMode", "i", nullptr}, {"addressList", "[s]", nullptr},
            {"port", "i", nullptr}, {"deviceInfo", "s", nullptr}, {"username", "s", nullptr},
            {"password", "s", nullptr}, {"deviceName", "s", nullptr}, {"isOffline", "b", nullptr},
            {"importGroup", "b", nullptr}, {"offlineCameras", "i", nullptr}, {"offlineAlarmInputs", "i", nullptr},
            {"timeSynchronization", "b", nullptr}, {"shortSerialNo", "s", nullptr},
            {"verificationCode", "s", nullptr}, {"enableDDNS", "b", nullptr}, {"upnpMappingMode", "i", nullptr},
            {"useTls", "i", nullptr}, {"remark", "s", nullptr}, {"token", "s", nullptr}, {"areaName", "s", nullptr},
            {"areaGUID", "s", nullptr}, {"uniqueId", "s", nullptr}
        }},
        {"DeviceResult", nullptr, {
            {"alias", "s", nullptr}, {"guid", "s", nullptr}, {"deviceCategory", "i", "-1"}, {"code", "s", nullptr},
            {"msg", "s", nullptr}
        }},
        {"DeviceList", "deviceList", {
            {"guidList", "[s]", nullptr}, {"token", "s", nullptr}
        }},
        {"DeviceQueryCondition", "deviceQueryCondition", {
            {"queryType", "i", nullptr}, {"token", "s", nullptr}, {"longSerial", "s", nullptr},
            {"resourceNo", "i", "-1"}, {"deviceCategoryFilterList", "[i]", nullptr},
            {"deviceFieldFilterList", "[s]", nullptr}, {"resourceFieldFilterList", "[s]", nullptr},
            {"refreshType", "i", nullptr}, {"pageNo", "i", nullptr}, {"pageSize", "i", nullptr},
            {"filterText", "s", nullptr}, {"auth", "b", "true"}, {"deviceMode", "i", "1"}
        }},
        {"DeviceResponse", nullptr, {
            {"isLocal", "b", nullptr}, {"guid", "s", nullptr}, {"deviceId", "i", nullptr}, {"alias", "s", nullptr},
            {"deviceCategory", "i", nullptr}, {"deviceType", "i", nullptr}, {"deviceTypeName", "s", nullptr},
            {"deviceClass", "i", nullptr}, {"addMode", "i", nullptr}, {"address", "s", nullptr},
            {"port", "i", nullptr}, {"httpPort", "i", nullptr}, {"deviceInfo", "s", nullptr},
            {"username", "s", nullptr}, {"password", "s", nullptr}, {"serialNo", "s", nullptr},
            {"loginMode", "i", nullptr}, {"enableDDNS", "b", nullptr}, {"useTls", "i", nullptr},
            {"upnpMappingMode", "i", nullptr}, {"deviceMode", "i", nullptr}, {"encrypt", "b", nullptr},
            {"streamKey", "s", nullptr}, {"isOnline", "b", nullptr}, {"code", "s", nullptr},
            {"loginIp", "s", nullptr}, {"loginPort", "i", nullptr}, {"loginFailParam", "{LoginFailParam}", nullptr},
            {"startChanNo", "i", nullptr}, {"startDChanNo", "i", nullptr}, {"startTalkDChan", "i", nullptr},
            {"audioChanNum", "i", nullptr}, {"encodeType", "i", nullptr}, {"softwareVersion", "s", nullptr},
            {"supportWeb", "b", nullptr}, {"supportWebInsert", "b", nullptr}, {"showClientRemote", "b", "true"},
            {"supportClientVCAConfig", "b", nullptr}, {"securityHasSet", "b", "true"}, {"support", "i", nullptr},
            {"support1", "i", nullptr}, {"support2", "i", nullptr}, {"support4", "i", nullptr},
            {"multiStreamProto", "i", nullptr}, {"componentId", "s", nullptr}, {"encryptLevel", "i", nullptr},
            {"sdkLoginMode", "i", nullptr}, {"supportKOPL", "i", nullptr},
            {"deviceUpgrade", "{DeviceUpgrade}", nullptr}, {"channelList", "[Channel]", nullptr},
            {"taskList", "[Task]", nullptr}, {"alarmInputList", "[AlarmInput]", nullptr},
            {"alarmOutputList", "[AlarmOutput]", nullptr}, {"radarList", "[Radar]", nullptr},
            {"doorList", "[Door]", nullptr}, {"cardReaderList", "[CardReader]", nullptr},
            {"laneControllerList", "[LaneController]", nullptr}, {"relayList", "[Relay]", nullptr},
            {"partitionList", "[Partition]", nullptr}, {"zoneList", "[Zone]", nullptr},
            {"portList", "[SwitchPort]", nullptr}, {"audioInputList", "[AudioInput]", nullptr},
            {"supportVideoback", "n", nullptr}, {"supportVideoQuality", "n", nullptr},
            {"supportTalkFromDevice", "n", nullptr}, {"supportTalk", "n", nullptr},
            {"supportChannelTalk", "n", nullptr}, {"supportPtz", "n", nullptr},
            {"supportBatteryManage", "n", nullptr}, {"supportSmartWifi", "n", nullptr},
            {"supportHorizontalPanoramic", "n", nullptr}, {"supportPlayBackSpeed", "n", nullptr},
            {"supportPlayBackSpeedLimit", "i", nullptr}, {"videoLevel", "[i]", nullptr},
            {"support4GDevice", "i", nullptr}, {"supportlowpower", "n", nullptr},
            {"supportConsumptTimeSleep", "n", nullptr}, {"supportNxrpc", "n", nullptr},
            {"supportquickstream", "n", nullptr}, {"supportSIM", "n", nullptr}, {"supportNetMethod", "n", nullptr},
            {"supportHumanFilter", "n", nullptr}, {"supportVehicleFilter", "n", nullptr},
            {"supportVideosClassifiedQuery", "n", nullptr}, {"supportCloudBackup", "n", nullptr},
            {"supportCloudStorage", "n", nullptr}, {"smsId", "s", nullptr}, {"smsName", "s", nullptr},
            {"smsAddress", "s", nullptr}, {"smsPreviewPort", "i", nullptr}, {"smsPlaybackPort", "i", nullptr},
            {"supportPtzPreset", "n", nullptr}, {"supportAutoTrack", "n", nullptr},
            {"supportAutoTrackIgnoreTip", "n", nullptr}, {"maxPatternNum", "i", nullptr},
            {"supportPatrols", "n", nullptr}, {"maxPatrolNum", "i", nullptr}, {"maxPatrolSequenceNum", "i", "32"},
            {"minPatrolSequenceDelay", "i", "15"}, {"maxPatrolSequenceDelay", "i", "30"},
            {"defaultPatrolSequenceDelay", "i", "25"}, {"supportPtzRange", "b", nullptr},
            {"supportPtzSelfCheck", "b", nullptr}, {"supportSmartSearch", "n", nullptr},
            {"supportGlobalCameraAndPosition3D", "b", nullptr}, {"supportGlobalCamera", "b", nullptr},
            {"supportPanoramaCamera", "b", nullptr}, {"supportPlayQuickOpt", "s", nullptr},
            {"supportPlaySlowOpt", "s", nullptr}, {"searchEnabled", "b", nullptr},
            {"supportTimelapse", "b", nullptr}, {"supportOnlyMainStream", "b", nullptr},
            {"liveStreamingTime", "i", "-1"}
        }},
        {"DeviceExtInfo", "deviceExtInfo", {
            {"streamKey", "s", nullptr}
        }},
        {"DeviceBasicInfo", "deviceBasicInfo", {
            {"alias", "s", nullptr}, {"addMode", "i", nullptr}, {"address", "s", nullptr}, {"port", "i", nullptr},
            {"deviceInfo", "s", nullptr}, {"username", "s", nullptr}, {"password", "s", nullptr},
            {"enableDDNS", "b", nullptr}, {"upnpMappingMode", "i", nullptr}, {"useTls", "i", nullptr},
            {"remark", "s", nullptr}, {"errorCode", "s", nullptr}, {"errorMsg", "s", nullptr},
            {"mLongStrGuid", "s", nullptr}
        }},
        {"DeviceModificationReq", "deviceModificationReq", {
            {"deviceBasicInfo", "{DeviceBasicInfo}", nullptr}, {"deviceExtInfo", "{DeviceExtInfo}", nullptr}
        }},
        {"DeviceNameInfo", nullptr, {
            {"alias", "s", nullptr}, {"deviceCategory", "i", nullptr}
        }},
        {"DeviceFailure", nullptr, {
            {"alias", "s", nullptr}, {"guid", "s", nullptr}, {"code", "s", nullptr}
        }},
        {"DeviceUpgrade", "deviceUpgrade", {
            {"state", "i", nullptr}, {"progress", "i", nullptr}, {"code", "s", nullptr}, {"version", "s", nullptr},
            {"newVersion", "s", nullptr}, {"content", "s", nullptr}
        }},
        {"DeviceUpgradeConfig", "deviceUpgradeConfig", {
            {"mode", "i", nullptr}, {"beginTime", "s", nullptr}, {"endTime", "s", nullptr}
        }},
        {"LoginFailParam", nullptr, {
            {"lock", "b", nullptr}, {"retryTimes", "i", nullptr}, {"lockTime", "i", nullptr}
        }},
        {"DeviceExisted", "deviceExisted", {
            {"ipAddress", "s", nullptr}, {"loginPort", "i", nullptr}, {"username", "s", nullptr},
            {"password", "s", nullptr}
        }},
        {"DeviceExistedResult", nullptr, {
            {"guid", "s", nullptr}, {"logined", "b", nullptr}, {"loginID", "i>b", "-1"}
        }},
        {"DeviceSync", nullptr, {
            {"state", "i", nullptr}, {"deviceGuid", "s", nullptr}, {"error", "i", nullptr}
        }},
        {"SyncDevice", "syncDevice", {
            {"guid", "s", nullptr}
        }},
        {"SynchronousReq", "synchronousReq", {
            {"msgGuid", "s", nullptr}, {"type", "i", nullptr}, {"startTime", "s", nullptr},
            {"endTime", "s", nullptr}, {"syncDeviceList", "[SyncDevice]", nullptr}
        }},
        {"SynchronousRet", nullptr, {
            {"strMsgGuid", "s", nullptr}, {"startTime", "s", nullptr}, {"endTime", "s", nullptr},
            {"syncState", "i", nullptr}, {"deviceSyncList", "[DeviceSync]", nullptr}
        }},
        {"ImportFiles", "importFiles", {
            {"uploadFileGuid", "s", nullptr}, {"password", "s", nullptr}, {"deviceGuid", "s", nullptr}
        }},
        {"UploadFileToDev", "uploadFileToDev", {
            {"path", "s", nullptr}, {"type", "i", nullptr}
        }},
        {"DownloadReq", "downloadReq", {
            {"url", "s", nullptr}
        }},
        {"DevicePermissionData", "DevicePermissionData", {
            {"OperateType", "i", "-1"}, {"OperateCode", "i", "-1"}, {"DeviceSerial", "s", nullptr}
        }},
        {"DevicePermissionDataReturn", nullptr, {
            {"OperateType", "i", "-1"}, {"OperateCode", "i", "-1"}, {"DeviceSerial", "s", nullptr}
        }},
        {"CertVerificationReq", "certVerificationReq", {
            {"deviceCert", "b", nullptr}
        }},
        {"CertVerificationResult", nullptr, {
            {"deviceCert", "b", nullptr}
        }},
        {"CertificationStandard", "certificationStandard", {
            {"standard", "s", nullptr}
        }},
        {"PurePwdDevice", nullptr, {
            {"DeviceName", "s", nullptr}, {"DeviceIP", "s", nullptr}
        }},
        {"PurePwdVerityEnableDeviceRsp", nullptr, {
            {"purePwdDeviceList", "[PurePwdDevice]", nullptr}
        }},
        {"QrCodesRsp", nullptr, {
            {"imageData", "s", nullptr}, {"deviceFailureList", "[DeviceFailure]", nullptr}
        }},
        {"NetworkParam", nullptr, {
            {"longGuid", "s", nullptr}, {"bondingEnable", "b", nullptr}, {"flow1SendSize", "i", nullptr},
            {"flow1RecvSize", "i", nullptr}, {"flow2SendSize", "i", nullptr}, {"flow2RecvSize", "i", nullptr}
        }},
        {"OnlineUser", nullptr, {
            {"id", "i", nullptr}, {"username", "s", nullptr}, {"userType", "i", nullptr}, {"ip", "s", nullptr},
            {"loginTime", "s", nullptr}
        }},
        {"KOPLDevice", nullptr, {
            {"deviceModel", "s", nullptr}, {"deviceName", "s", nullptr}, {"deviceSerial", "s", nullptr}
        }},
        {"DeviceResponseData", nullptr, {
            {"deviceResponse", "{DeviceResponse}", nullptr}, {"code", "s", nullptr}, {"msg", "s", nullptr}
        }},
        {"DeviceResponseListData", nullptr, {
            {"deviceResponseList", "[DeviceResponse]", nullptr}, {"deviceCount", "i", nullptr},
            {"code", "s", nullptr}, {"msg", "s", nullptr}
        }},
        {"Channel", nullptr, {
            {"type", "i", nullptr}, {"guid", "s", nullptr}, {"resourceGuid", "s", nullptr}, {"name", "s", nullptr},
            {"no", "i", nullptr}, {"enable", "b", nullptr}, {"online", "b", nullptr},
            {"enablePicture", "b", nullptr}, {"channelStatus", "i", nullptr}
        }},
        {"ChannelInfo", nullptr, {
            {"name", "s", nullptr}, {"type", "i", nullptr}, {"no", "i", nullptr}, {"enable", "b", nullptr},
            {"online", "b", nullptr}, {"relatedServer", "s", nullptr}, {"fishEyeType", "i", nullptr},
            {"falconet", "{Falconet}", nullptr}, {"support", "i", nullptr}, {"support1", "i", nullptr},
            {"support2", "i", nullptr}, {"support4", "i", nullptr}, {"multiStreamProto", "i", nullptr},
            {"enablePicture", "b", nullptr}, {"enableAddInfo", "b", nullptr}, {"relatedDoorGUID", "s", nullptr},
            {"relatedDoorGroupGUID", "s", nullptr}, {"streamKey", "s", nullptr}
        }},
        {"ChannelExtra", "channelExtra", {
            {"longDeviceGuid", "s", nullptr}, {"relatedServer", "s", nullptr}, {"fishEyeType", "i", nullptr},
            {"falconetInfo", "{FalconetInfo}", nullptr}, {"enablePicture", "b", nullptr},
            {"enableAddInfo", "b", nullptr}, {"relatedDoorGUID", "s", nullptr},
            {"relatedDoorGroupGUID", "s", nullptr}
        }},
        {"Falconet", nullptr, {
            {"type", "i", nullptr}, {"axisX", "s", nullptr}, {"axisY", "s", nullptr}, {"value", "s", nullptr}
        }},
        {"FalconetInfo", "falconetInfo", {
            {"type", "i", nullptr}, {"axisX", "s", nullptr}, {"axisY", "s", nullptr}, {"value", "s", nullptr}
        }},
        {"RelativeChannel", nullptr, {
            {"RelativeChannelStatus", "[i]", nullptr}
        }},
        {"AlarmInput", nullptr, {
            {"type", "i", nullptr}, {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr},
            {"online", "b", nullptr}
        }},
        {"AlarmInputInfo", nullptr, {
            {"type", "i", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"AlarmOutput", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"AlarmOutputInfo", nullptr, {
            {"alarmOutputParamList", "[AlarmOutputParam]", nullptr}
        }},
        {"AlarmOutputParam", nullptr, {
            {"id", "i", nullptr}, {"guid", "s", nullptr}, {"name", "s", nullptr}, {"state", "b", nullptr},
            {"deviceGuid", "s", nullptr}, {"deviceIp", "s", nullptr}
        }},
        {"AlarmOutputAttr", nullptr, {
            {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"Door", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"location", "s", nullptr}
        }},
        {"DoorInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"location", "s", nullptr}
        }},
        {"DoorModification", "doorModification", {
            {"name", "s", nullptr}, {"location", "s", nullptr}
        }},
        {"CardReader", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"doorNo", "i", nullptr}
        }},
        {"CardReaderInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"doorNo", "i", nullptr}
        }},
        {"CardReaderModification", "cardReaderModification", {
            {"name", "s", nullptr}
        }},
        {"LaneController", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"LaneControllerInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"Relay", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"type", "i", nullptr},
            {"online", "b", nullptr}, {"distractNo", "i", nullptr}
        }},
        {"RelayInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"type", "i", nullptr},
            {"online", "b", nullptr}, {"distractNo", "i", nullptr}
        }},
        {"Partition", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"PartitionInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"PartitionZoneInfo", nullptr, {
            {"zoneList", "[Zone]", nullptr}
        }},
        {"Zone", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"partitionNo", "i", nullptr}, {"detectorType", "s", nullptr}
        }},
        {"ZoneInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr},
            {"partitionNo", "i", nullptr}
        }},
        {"Radar", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"RadarAttr", nullptr, {
            {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"Task", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"ID", "s", nullptr},
            {"monitorPointIndex", "s", nullptr}, {"channelNo", "i", nullptr}
        }},
        {"TaskInfo", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"ID", "s", nullptr}, {"relatedServer", "s", nullptr},
            {"monitorPointIndex", "s", nullptr}, {"channelNo", "i", nullptr}, {"relateChannelNo", "i", nullptr},
            {"ruleInfoList", "[TaskRuleInfo]", nullptr}, {"algorithmType", "s", nullptr}
        }},
        {"TaskInfoReq", "taskInfoRequery", {
            {"relatedServer", "s", nullptr}, {"relateChannelNo", "i", nullptr}
        }},
        {"TaskRuleInfo", nullptr, {
            {"guid", "s", nullptr}, {"id", "s", nullptr}, {"name", "s", nullptr}, {"eventType", "s", nullptr}
        }},
        {"AudioInput", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"online", "b", nullptr}
        }},
        {"ChannelParamReq", "channelParamReq", {
            {"needZeroChennel", "b", nullptr}, {"channelIdxList", "[i]", nullptr}
        }},
        {"TaskQueryReq", "taskQueryReq", {
            {"needDeviceResponse", "b", nullptr}
        }},
        {"ChannelQueryReq", "channelQueryReq", {
            {"needDeviceResponse", "b", nullptr}
        }},
        {"AlarmInputQueryReq", "alarmInputQueryReq", {
            {"needDeviceResponse", "b", nullptr}, {"type", "i", nullptr}
        }},
        {"ZoneQueryReq", "zoneQueryReq", {
            {"needDeviceResponse", "b", nullptr}
        }},
        {"DoorQueryReq", "doorQueryReq", {
            {"needDeviceResponse", "b", nullptr}
        }},
        {"CardReaderQueryReq", "cardReaderQueryReq", {
            {"needDeviceResponse", "b", nullptr}
        }},
        {"ChannelAndDeviceInfoRsp", nullptr, {
            {"channel", "{Channel}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"TaskAndDeviceInfoRsp", nullptr, {
            {"task", "{Task}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"ChannelsAndDeviceInfoRsp", nullptr, {
            {"channelList", "[Channel]", nullptr}, {"deviceNameInfo", "{DeviceNameInfo}", nullptr}
        }},
        {"AlarmInputAndDeviceInfoRsp", nullptr, {
            {"alarmInput", "{AlarmInput}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"ZoneAndDeviceInfoRsp", nullptr, {
            {"zone", "{Zone}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"DoorAndDeviceInfoRsp", nullptr, {
            {"door", "{Door}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"CardReaderAndDeviceInfoRsp", nullptr, {
            {"cardReader", "{CardReader}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"AudioInAndDeviceInfoRsp", nullptr, {
            {"audioIn", "{AudioInput}", nullptr}, {"deviceResponse", "{DeviceResponse}", nullptr}
        }},
        {"VideoCapabilities", nullptr, {
            {"clickToThermometry", "b", nullptr}, {"MLOXPlatform", "b", nullptr}, {"MLOXPictureTask", "b", nullptr},
            {"MLOXPictureUpload", "b", nullptr}, {"AnalysisFace", "b", nullptr}
        }},
        {"PanicAlarmCapabilities", nullptr, {
            {"supportCallsWaiting", "b", nullptr}, {"supportRefuse", "b", nullptr},
            {"supportElecLocker", "b", nullptr}, {"supportSiren", "b", nullptr}, {"supportAudioIn", "b", nullptr},
            {"supportAudioOut", "b", nullptr}, {"supportAlarmLamp", "b", nullptr}
        }},
        {"SecurityCPCapabilities", nullptr, {
            {"sdkAlarmHostAbility", "s", nullptr}, {"nxrpcCapabilities", "s", nullptr},
            {"nxrpcControlCapabilities", "s", nullptr}, {"nxrpcStatusCapabilities", "s", nullptr},
            {"panicAlarmCapabilities", "{PanicAlarmCapabilities}", nullptr}
        }},
        {"SoftHardwareCapabilities", nullptr, {
            {"supportClientProxyWeb", "b", nullptr}, {"webLocation", "s", nullptr}, {"deviceId", "s", nullptr},
            {"supportClientProxyInsert", "b", nullptr}, {"supportGetFigure", "b", nullptr},
            {"videoInNum", "i<iVideoInNum", nullptr}, {"videoOutNum", "i", nullptr},
            {"showClientRemote", "b", "true"}
        }},
        {"ChannelDetectorCap", nullptr, {
            {"channelSupportSilence", "b", nullptr}, {"channelNo", "i", "-1"}
        }},
        {"DetectorCapability", nullptr, {
            {"supportSilence", "b", nullptr}, {"channelDetectorCapList", "[ChannelDetectorCap]", nullptr}
        }},
        {"CapabilitiesQueryCondition", "capabilitiesQueryCondition", {
            {"longDeviceGuid", "s", nullptr}, {"capabilitiesFieldFilterList", "[s]", nullptr}
        }},
        {"CloudP2PCapabilities", nullptr, {
            {"supportVideoLevel", "i", nullptr}, {"supportVoiceTalk", "b", nullptr}, {"supportPTZ", "i", nullptr},
            {"videoLev", "i", nullptr}, {"shared", "s", nullptr}, {"sptExtShort", "s", nullptr}
        }},
        {"AlarmInputAndDeviceInfoRspData", nullptr, {
            {"alarmInputAndDeviceInfoRsp", "{AlarmInputAndDeviceInfoRsp}", nullptr}
        }},
        {"AlarmInputInfoData", nullptr, {
            {"alarmInputInfo", "{AlarmInputInfo}", nullptr}
        }},
        {"AlarmOutputAttrData", nullptr, {
            {"alarmOutputAttr", "{AlarmOutputAttr}", nullptr}
        }},
        {"AlarmOutputInfoData", nullptr, {
            {"alarmOutputInfo", "{AlarmOutputInfo}", nullptr}
        }},
        {"AudioInAndDeviceInfoRspData", nullptr, {
            {"audioInAndDeviceInfoRsp", "{AudioInAndDeviceInfoRsp}", nullptr}
        }},
        {"AudioInputData", nullptr, {
            {"audioInputInfo", "{AudioInput}", nullptr}
        }},
        {"CardReaderAndDeviceInfoRspData", nullptr, {
            {"cardReaderAndDeviceInfoRsp", "{CardReaderAndDeviceInfoRsp}", nullptr}
        }},
        {"CardReaderInfoData", nullptr, {
            {"cardReaderInfo", "{CardReaderInfo}", nullptr}
        }},
        {"CertVerificationResultData", nullptr, {
            {"certVerificationResult", "{CertVerificationResult}", nullptr}
        }},
        {"CertificationStandardData", nullptr, {
            {"certificationStandard", "{CertificationStandard}", nullptr}
        }},
        {"ChannelAndDeviceInfoRspData", nullptr, {
            {"channelAndDeviceInfoRsp", "{ChannelAndDeviceInfoRsp}", nullptr}
        }},
        {"ChannelInfoData", nullptr, {
            {"channelInfo", "{ChannelInfo}", nullptr}
        }},
        {"ChannelsAndDeviceInfoRspData", nullptr, {
            {"channelsAndDeviceInfoRsp", "{ChannelsAndDeviceInfoRsp}", nullptr}
        }},
        {"CloudP2PCapabilitiesData", nullptr, {
            {"cloudP2PCapabilities", "{CloudP2PCapabilities}", nullptr}
        }},
        {"DeviceExistedResultData", nullptr, {
            {"deviceExistedResult", "{DeviceExistedResult}", nullptr}
        }},
        {"DeviceResultListData", nullptr, {
            {"deviceResultList", "[DeviceResult]", nullptr}
        }},
        {"DeviceUpgradeConfigData", nullptr, {
            {"deviceUpgradeConfig", "{DeviceUpgradeConfig}", nullptr}
        }},
        {"DoorAndDeviceInfoRspData", nullptr, {
            {"doorAndDeviceInfoRsp", "{DoorAndDeviceInfoRsp}", nullptr}
        }},
        {"DoorInfoData", nullptr, {
            {"doorInfo", "{DoorInfo}", nullptr}
        }},
        {"NetworkParamData", nullptr, {
            {"networkParam", "{NetworkParam}", nullptr}
        }},
        {"OnlineUserListData", nullptr, {
            {"onlineUserList", "[OnlineUser]", nullptr}
        }},
        {"PartitionInfoData", nullptr, {
            {"partitionInfo", "{PartitionInfo}", nullptr}
        }},
        {"PartitionZoneInfoData", nullptr, {
            {"partitionZoneInfo", "{PartitionZoneInfo}", nullptr}
        }},
        {"PurePwdVerityEnableDeviceRspData", nullptr, {
            {"purePwdVerityEnableDeviceRsp", "{PurePwdVerityEnableDeviceRsp}", nullptr}
        }},
        {"QrCodesRspData", nullptr, {
            {"qrCodesRsp", "{QrCodesRsp}", nullptr}
        }},
        {"RadarAttrData", nullptr, {
            {"radarAttr", "{RadarAttr}", nullptr}
        }},
        {"RelayInfoData", nullptr, {
            {"relayInfo", "{RelayInfo}", nullptr}
        }},
        {"SynchronousRetData", nullptr, {
            {"synchronousRet", "{SynchronousRet}", nullptr}
        }},
        {"TaskAndDeviceInfoRspData", nullptr, {
            {"taskAndDeviceInfoRsp", "{TaskAndDeviceInfoRsp}", nullptr}
        }},
        {"TaskInfoData", nullptr, {
            {"taskInfo", "{TaskInfo}", nullptr}
        }},
        {"TaskRuleInfoData", nullptr, {
            {"ruleInfo", "{TaskRuleInfo}", nullptr}
        }},
        {"ZoneAndDeviceInfoRspData", nullptr, {
            {"zoneAndDeviceInfoRsp", "{ZoneAndDeviceInfoRsp}", nullptr}
        }},
        {"ZoneInfoData", nullptr, {
            {"zoneInfo", "{ZoneInfo}", nullptr}
        }},
        {"SwitchPort", nullptr, {
            {"guid", "s", nullptr}, {"name", "s", nullptr}, {"no", "i", nullptr}, {"type", "i", nullptr}
        }},
    };
    return records;
}

} // namespace recordtest
