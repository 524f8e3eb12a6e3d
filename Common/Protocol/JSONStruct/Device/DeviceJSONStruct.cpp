#include "JSONStruct/Device/DeviceJSONStruct.h"

#include "JSONStruct/Validators.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(DeviceAddReq,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(addMode),
    PROTOCOL_FIELD(addressList),
    PROTOCOL_FIELD(port),
    PROTOCOL_FIELD(deviceInfo),
    PROTOCOL_FIELD(username),
    PROTOCOL_FIELD(password),
    PROTOCOL_FIELD(deviceName),
    PROTOCOL_FIELD(isOffline),
    PROTOCOL_FIELD(importGroup),
    PROTOCOL_FIELD(offlineCameras),
    PROTOCOL_FIELD(offlineAlarmInputs),
    PROTOCOL_FIELD(timeSynchronization),
    PROTOCOL_FIELD(shortSerialNo),
    PROTOCOL_FIELD(verificationCode),
    PROTOCOL_FIELD(enableDDNS),
    PROTOCOL_FIELD(upnpMappingMode),
    PROTOCOL_FIELD(useTls),
    PROTOCOL_FIELD(remark),
    PROTOCOL_FIELD(token),
    PROTOCOL_FIELD(areaName),
    PROTOCOL_FIELD(areaGUID),
    PROTOCOL_FIELD(uniqueId))

PROTOCOL_DEFINE_RECORD(DeviceResult,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(deviceCategory),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(msg))

PROTOCOL_DEFINE_RECORD(DeviceList,
    PROTOCOL_FIELD(guidList),
    PROTOCOL_FIELD(token))

PROTOCOL_DEFINE_RECORD(DeviceQueryCondition,
    PROTOCOL_FIELD(queryType),
    PROTOCOL_FIELD(token),
    PROTOCOL_FIELD(longSerial),
    PROTOCOL_FIELD(resourceNo),
    PROTOCOL_FIELD(deviceCategoryFilterList),
    PROTOCOL_FIELD(deviceFieldFilterList),
    PROTOCOL_FIELD(resourceFieldFilterList),
    PROTOCOL_FIELD(refreshType),
    PROTOCOL_FIELD(pageNo),
    PROTOCOL_FIELD(pageSize),
    PROTOCOL_FIELD(filterText),
    PROTOCOL_FIELD(auth),
    PROTOCOL_FIELD(deviceMode))

PROTOCOL_DEFINE_RECORD(LoginFailParam,
    PROTOCOL_FIELD(lock),
    PROTOCOL_FIELD(retryTimes),
    PROTOCOL_FIELD(lockTime))

PROTOCOL_DEFINE_RECORD(DeviceUpgrade,
    PROTOCOL_FIELD(state),
    PROTOCOL_FIELD(progress),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(version),
    PROTOCOL_FIELD(newVersion),
    PROTOCOL_FIELD(content))

// The support flags marked nonZero come from devices as any number: every one but 0 is
// true. The other booleans, support flags among them, are true only for true and 1.
PROTOCOL_DEFINE_RECORD(DeviceResponse,
    PROTOCOL_FIELD(isLocal),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(deviceId),
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(deviceCategory),
    PROTOCOL_FIELD(deviceType),
    PROTOCOL_FIELD(deviceTypeName),
    PROTOCOL_FIELD(deviceClass),
    PROTOCOL_FIELD(addMode),
    PROTOCOL_FIELD(address),
    PROTOCOL_FIELD(port),
    PROTOCOL_FIELD(httpPort),
    PROTOCOL_FIELD(deviceInfo),
    PROTOCOL_FIELD(username),
    PROTOCOL_FIELD(password),
    PROTOCOL_FIELD(serialNo),
    PROTOCOL_FIELD(loginMode),
    PROTOCOL_FIELD(enableDDNS),
    PROTOCOL_FIELD(useTls),
    PROTOCOL_FIELD(upnpMappingMode),
    PROTOCOL_FIELD(deviceMode),
    PROTOCOL_FIELD(encrypt),
    PROTOCOL_FIELD(streamKey),
    PROTOCOL_FIELD(isOnline),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(loginIp),
    PROTOCOL_FIELD(loginPort),
    PROTOCOL_FIELD(loginFailParam),
    PROTOCOL_FIELD(startChanNo),
    PROTOCOL_FIELD(startDChanNo),
    PROTOCOL_FIELD(startTalkDChan),
    PROTOCOL_FIELD(audioChanNum),
    PROTOCOL_FIELD(encodeType),
    PROTOCOL_FIELD(softwareVersion),
    PROTOCOL_FIELD(supportWeb),
    PROTOCOL_FIELD(supportWebInsert),
    PROTOCOL_FIELD(showClientRemote),
    PROTOCOL_FIELD(supportClientVCAConfig),
    PROTOCOL_FIELD(securityHasSet),
    PROTOCOL_FIELD(support),
    PROTOCOL_FIELD(support1),
    PROTOCOL_FIELD(support2),
    PROTOCOL_FIELD(support4),
    PROTOCOL_FIELD(multiStreamProto),
    PROTOCOL_FIELD(componentId),
    PROTOCOL_FIELD(encryptLevel),
    PROTOCOL_FIELD(sdkLoginMode),
    PROTOCOL_FIELD(supportKOPL),
    PROTOCOL_FIELD(deviceUpgrade),
    PROTOCOL_FIELD(channelList),
    PROTOCOL_FIELD(taskList),
    PROTOCOL_FIELD(alarmInputList),
    PROTOCOL_FIELD(alarmOutputList),
    PROTOCOL_FIELD(radarList),
    PROTOCOL_FIELD(doorList),
    PROTOCOL_FIELD(cardReaderList),
    PROTOCOL_FIELD(laneControllerList),
    PROTOCOL_FIELD(relayList),
    PROTOCOL_FIELD(partitionList),
    PROTOCOL_FIELD(zoneList),
    PROTOCOL_FIELD(portList),
    PROTOCOL_FIELD(audioInputList),
    PROTOCOL_FIELD(supportVideoback).nonZero(),
    PROTOCOL_FIELD(supportVideoQuality).nonZero(),
    PROTOCOL_FIELD(supportTalkFromDevice).nonZero(),
    PROTOCOL_FIELD(supportTalk).nonZero(),
    PROTOCOL_FIELD(supportChannelTalk).nonZero(),
    PROTOCOL_FIELD(supportPtz).nonZero(),
    PROTOCOL_FIELD(supportBatteryManage).nonZero(),
    PROTOCOL_FIELD(supportSmartWifi).nonZero(),
    PROTOCOL_FIELD(supportHorizontalPanoramic).nonZero(),
    PROTOCOL_FIELD(supportPlayBackSpeed).nonZero(),
    PROTOCOL_FIELD(supportPlayBackSpeedLimit),
    PROTOCOL_FIELD(videoLevel),
    PROTOCOL_FIELD(support4GDevice),
    PROTOCOL_FIELD(supportlowpower).nonZero(),
    PROTOCOL_FIELD(supportConsumptTimeSleep).nonZero(),
    PROTOCOL_FIELD(supportNxrpc).nonZero(),
    PROTOCOL_FIELD(supportquickstream).nonZero(),
    PROTOCOL_FIELD(supportSIM).nonZero(),
    PROTOCOL_FIELD(supportNetMethod).nonZero(),
    PROTOCOL_FIELD(supportHumanFilter).nonZero(),
    PROTOCOL_FIELD(supportVehicleFilter).nonZero(),
    PROTOCOL_FIELD(supportVideosClassifiedQuery).nonZero(),
    PROTOCOL_FIELD(supportCloudBackup).nonZero(),
    PROTOCOL_FIELD(supportCloudStorage).nonZero(),
    PROTOCOL_FIELD(smsId),
    PROTOCOL_FIELD(smsName),
    PROTOCOL_FIELD(smsAddress),
    PROTOCOL_FIELD(smsPreviewPort),
    PROTOCOL_FIELD(smsPlaybackPort),
    PROTOCOL_FIELD(supportPtzPreset).nonZero(),
    PROTOCOL_FIELD(supportAutoTrack).nonZero(),
    PROTOCOL_FIELD(supportAutoTrackIgnoreTip).nonZero(),
    PROTOCOL_FIELD(maxPatternNum),
    PROTOCOL_FIELD(supportPatrols).nonZero(),
    PROTOCOL_FIELD(maxPatrolNum),
    PROTOCOL_FIELD(maxPatrolSequenceNum),
    PROTOCOL_FIELD(minPatrolSequenceDelay),
    PROTOCOL_FIELD(maxPatrolSequenceDelay),
    PROTOCOL_FIELD(defaultPatrolSequenceDelay),
    PROTOCOL_FIELD(supportPtzRange),
    PROTOCOL_FIELD(supportPtzSelfCheck),
    PROTOCOL_FIELD(supportSmartSearch).nonZero(),
    PROTOCOL_FIELD(supportGlobalCameraAndPosition3D),
    PROTOCOL_FIELD(supportGlobalCamera),
    PROTOCOL_FIELD(supportPanoramaCamera),
    PROTOCOL_FIELD(supportPlayQuickOpt),
    PROTOCOL_FIELD(supportPlaySlowOpt),
    PROTOCOL_FIELD(searchEnabled),
    PROTOCOL_FIELD(supportTimelapse),
    PROTOCOL_FIELD(supportOnlyMainStream),
    PROTOCOL_FIELD(liveStreamingTime))

PROTOCOL_DEFINE_RECORD(DeviceExtInfo,
    PROTOCOL_FIELD(streamKey))

PROTOCOL_DEFINE_RECORD(DeviceBasicInfo,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(addMode),
    PROTOCOL_FIELD(address),
    PROTOCOL_FIELD(port),
    PROTOCOL_FIELD(deviceInfo),
    PROTOCOL_FIELD(username),
    PROTOCOL_FIELD(password),
    PROTOCOL_FIELD(enableDDNS),
    PROTOCOL_FIELD(upnpMappingMode),
    PROTOCOL_FIELD(useTls),
    PROTOCOL_FIELD(remark),
    PROTOCOL_FIELD(errorCode),
    PROTOCOL_FIELD(errorMsg),
    PROTOCOL_FIELD(mLongStrGuid))

PROTOCOL_DEFINE_RECORD(DeviceModificationReq,
    PROTOCOL_FIELD(deviceBasicInfo),
    PROTOCOL_FIELD(deviceExtInfo))

PROTOCOL_DEFINE_RECORD(DeviceNameInfo,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(deviceCategory))

PROTOCOL_DEFINE_RECORD(DeviceFailure,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_RECORD(DeviceUpgradeConfig,
    PROTOCOL_FIELD(mode),
    PROTOCOL_FIELD(beginTime),
    PROTOCOL_FIELD(endTime))

PROTOCOL_DEFINE_RECORD(DeviceExisted,
    PROTOCOL_FIELD(ipAddress),
    PROTOCOL_FIELD(loginPort),
    PROTOCOL_FIELD(username),
    PROTOCOL_FIELD(password))

// The login handle goes back as a mere yes or no: not 0 is true, the default -1 included.
PROTOCOL_DEFINE_RECORD(DeviceExistedResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(logined),
    PROTOCOL_FIELD(loginID).writtenAsBoolean())

PROTOCOL_DEFINE_RECORD(DeviceSync,
    PROTOCOL_FIELD(state),
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(error))

PROTOCOL_DEFINE_RECORD(SyncDevice,
    PROTOCOL_FIELD(guid))

PROTOCOL_DEFINE_RECORD(SynchronousReq,
    PROTOCOL_FIELD(msgGuid),
    PROTOCOL_FIELD(type),
    PROTOCOL_FIELD(startTime),
    PROTOCOL_FIELD(endTime),
    PROTOCOL_FIELD(syncDeviceList))

PROTOCOL_DEFINE_RECORD(SynchronousRet,
    PROTOCOL_FIELD(strMsgGuid),
    PROTOCOL_FIELD(startTime),
    PROTOCOL_FIELD(endTime),
    PROTOCOL_FIELD(syncState),
    PROTOCOL_FIELD(deviceSyncList))

PROTOCOL_DEFINE_RECORD(ImportFiles,
    PROTOCOL_FIELD(uploadFileGuid),
    PROTOCOL_FIELD(password),
    PROTOCOL_FIELD(deviceGuid))

PROTOCOL_DEFINE_RECORD(UploadFileToDev,
    PROTOCOL_FIELD(path),
    PROTOCOL_FIELD(type))

PROTOCOL_DEFINE_RECORD(DownloadReq,
    PROTOCOL_FIELD(url))

PROTOCOL_DEFINE_RECORD(DevicePermissionData,
    PROTOCOL_FIELD(OperateType),
    PROTOCOL_FIELD(OperateCode),
    PROTOCOL_FIELD(DeviceSerial))

PROTOCOL_DEFINE_RECORD(DevicePermissionDataReturn,
    PROTOCOL_FIELD(OperateType),
    PROTOCOL_FIELD(OperateCode),
    PROTOCOL_FIELD(DeviceSerial))

PROTOCOL_DEFINE_RECORD(CertVerificationReq,
    PROTOCOL_FIELD(deviceCert))

PROTOCOL_DEFINE_RECORD(CertVerificationResult,
    PROTOCOL_FIELD(deviceCert))

PROTOCOL_DEFINE_RECORD(CertificationStandard,
    PROTOCOL_FIELD(standard))

PROTOCOL_DEFINE_RECORD(PurePwdDevice,
    PROTOCOL_FIELD(DeviceName),
    PROTOCOL_FIELD(DeviceIP))

PROTOCOL_DEFINE_RECORD(PurePwdVerityEnableDeviceRsp,
    PROTOCOL_FIELD(purePwdDeviceList))

PROTOCOL_DEFINE_RECORD(QrCodesRsp,
    PROTOCOL_FIELD(imageData),
    PROTOCOL_FIELD(deviceFailureList))

PROTOCOL_DEFINE_RECORD(NetworkParam,
    PROTOCOL_FIELD(longGuid),
    PROTOCOL_FIELD(bondingEnable),
    PROTOCOL_FIELD(flow1SendSize),
    PROTOCOL_FIELD(flow1RecvSize),
    PROTOCOL_FIELD(flow2SendSize),
    PROTOCOL_FIELD(flow2RecvSize))

PROTOCOL_DEFINE_RECORD(OnlineUser,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(username),
    PROTOCOL_FIELD(userType),
    PROTOCOL_FIELD(ip),
    PROTOCOL_FIELD(loginTime))

PROTOCOL_DEFINE_RECORD(KOPLDevice,
    PROTOCOL_FIELD(deviceModel),
    PROTOCOL_FIELD(deviceName),
    PROTOCOL_FIELD(deviceSerial))

PROTOCOL_DEFINE_RECORD(DeviceResponseData,
    PROTOCOL_FIELD(deviceResponse),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(msg))

PROTOCOL_DEFINE_RECORD(DeviceResponseListData,
    PROTOCOL_FIELD(deviceResponseList),
    PROTOCOL_FIELD(deviceCount),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(msg))

PROTOCOL_DEFINE_RECORD(CertVerificationResultData,
    PROTOCOL_FIELD(certVerificationResult))

PROTOCOL_DEFINE_RECORD(CertificationStandardData,
    PROTOCOL_FIELD(certificationStandard))

PROTOCOL_DEFINE_RECORD(CloudP2PCapabilitiesData,
    PROTOCOL_FIELD(cloudP2PCapabilities))

PROTOCOL_DEFINE_RECORD(DeviceExistedResultData,
    PROTOCOL_FIELD(deviceExistedResult))

PROTOCOL_DEFINE_RECORD(DeviceResultListData,
    PROTOCOL_FIELD(deviceResultList))

PROTOCOL_DEFINE_RECORD(DeviceUpgradeConfigData,
    PROTOCOL_FIELD(deviceUpgradeConfig))

PROTOCOL_DEFINE_RECORD(NetworkParamData,
    PROTOCOL_FIELD(networkParam))

PROTOCOL_DEFINE_RECORD(OnlineUserListData,
    PROTOCOL_FIELD(onlineUserList))

PROTOCOL_DEFINE_RECORD(PurePwdVerityEnableDeviceRspData,
    PROTOCOL_FIELD(purePwdVerityEnableDeviceRsp))

PROTOCOL_DEFINE_RECORD(QrCodesRspData,
    PROTOCOL_FIELD(qrCodesRsp))

PROTOCOL_DEFINE_RECORD(SynchronousRetData,
    PROTOCOL_FIELD(synchronousRet))

namespace {

// The add modes that validate knows.
constexpr int32_t kAddModeAddress = 0;
constexpr int32_t kAddModeDomain = 3;
constexpr int32_t kAddModeRegistration = 6;
constexpr int32_t kAddModeSerial = 7;

constexpr int32_t kLowestPort = 1;
constexpr int32_t kHighestPort = 65535;
constexpr int32_t kDomainPort = 80;
constexpr int32_t kMostOfflineResources = 32;

} // namespace

bool DeviceAddReq::validate(std::string& error)
{
    error.clear();
    if (presentKeys.count("addMode") == 0)
        return false;
    if (!checkEnumValue(error, "addMode", addMode, {kAddModeAddress, kAddModeDomain, kAddModeRegistration, kAddModeSerial}))
        return false;

    if (addMode == kAddModeSerial) {
        if (!checkFormat(error, "shortSerialNo", shortSerialNo, "^[a-zA-Z0-9]{1,9}$")
            || !checkFormat(error, "verificationCode", verificationCode, "^.{1,12}$")
            || !checkEnumValue(error, "upnpMappingMode", upnpMappingMode, {0, 1}))
            return false;
    } else if (!(addMode == kAddModeAddress && addressList.size() > 1)) {
        // A list of several addresses has its alias left unchecked.
        if (!checkName(error, "alias", alias))
            return false;
    }

    if (!(addMode == kAddModeRegistration || (addMode == kAddModeSerial && !enableDDNS))) {
        if (!checkStringNotEmpty(error, "username", username) || !checkStringNotEmpty(error, "password", password))
            return false;
    }

    // Only steers the address checks: in the registration and serial modes it fails and its
    // message stays in `error` even when validate succeeds. Callers read the result.
    if (checkEnumValue(error, "addMode", addMode, {kAddModeAddress, kAddModeDomain})) {
        if (!checkListNotEmpty(error, "addressList", addressList))
            return false;
        if (addMode == kAddModeDomain && addressList.size() > 1)
            return false;
        if (isOffline) {
            if (!checkRange(error, "offlineCameras", offlineCameras, 0, kMostOfflineResources)
                || !checkRange(error, "offlineAlarmInputs", offlineAlarmInputs, 0, kMostOfflineResources))
                return false;
        }
    }

    switch (addMode) {
    case kAddModeAddress:
        return checkRange(error, "port", port, kLowestPort, kHighestPort);
    case kAddModeDomain:
        if (port != kDomainPort) {
            error = "port is not match.";
            return false;
        }
        return checkFormat(error, "deviceInfo", deviceInfo, "^.{1,64}$");
    case kAddModeRegistration:
        return checkFormat(error, "deviceInfo", deviceInfo, "^.{1,64}$");
    default:
        break;
    }

    // Serial number mode.
    if (!enableDDNS)
        return true;
    // The message names upnpMappingMode although the value tested is the port; kept so.
    if (upnpMappingMode == 1 && !checkRange(error, "upnpMappingMode", port, kLowestPort, kHighestPort))
        return false;
    if (shortSerialNo == deviceInfo)
        return true;
    // A domain name: lower case letters, digits and hyphens, not ending in a hyphen, starting
    // with a letter.
    if (!checkFormat(error, "deviceInfo", deviceInfo, "^[a-z0-9-]{6,32}$"))
        return false;
    if (deviceInfo.back() == '-')
        return false;
    const int8_t first = static_cast<int8_t>(deviceInfo.front());
    const int8_t lowest = 'a';
    const int8_t highest = 'z';
    return checkRange(error, "deviceInfo", first, lowest, highest);
}

} // namespace protocol
