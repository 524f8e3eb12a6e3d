#pragma once
// Records of the client's device list: adding, listing, changing, finding and upgrading
// devices, with the device answer that carries all of a device's resources.
#include <cstdint>
#include <string>
#include <vector>

#include "JSONStruct/Capability/CapabilityJSONStruct.h"
#include "JSONStruct/Resource/ResourceJSONStruct.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "JSONStruct/FieldTable.h"

namespace protocol {

struct DeviceAddReq : public IInboundData {
    std::string alias;
    int32_t addMode = 0;
    std::vector<std::string> addressList;
    int32_t port = 0;
    std::string deviceInfo;
    std::string username;
    std::string password;
    std::string deviceName;
    bool isOffline = false;
    bool importGroup = false;
    int32_t offlineCameras = 0;
    int32_t offlineAlarmInputs = 0;
    bool timeSynchronization = false;
    std::string shortSerialNo;
    std::string verificationCode;
    bool enableDDNS = false;
    int32_t upnpMappingMode = 0;
    int32_t useTls = 0;
    std::string remark;
    std::string token;
    std::string areaName;
    std::string areaGUID;
    std::string uniqueId;

    PROTOCOL_DECLARE_RECORD(DeviceAddReq)
    PROTOCOL_ROOT_NAME("deviceAddReq")

    bool validate(std::string& error) override;
};

struct DeviceResult : public IReturnData {
    std::string alias;
    std::string guid;
    int32_t deviceCategory = -1;
    std::string code;
    std::string msg;

    PROTOCOL_DECLARE_RECORD(DeviceResult)
};

struct DeviceList : public IInboundData {
    std::vector<std::string> guidList;
    std::string token;

    PROTOCOL_DECLARE_RECORD(DeviceList)
    PROTOCOL_ROOT_NAME("deviceList")
};

struct DeviceQueryCondition : public IInboundData {
    int32_t queryType = 0;
    std::string token;
    std::string longSerial;
    int32_t resourceNo = -1;
    std::vector<int32_t> deviceCategoryFilterList;
    std::vector<std::string> deviceFieldFilterList;
    std::vector<std::string> resourceFieldFilterList;
    int32_t refreshType = 0;
    int32_t pageNo = 0;
    int32_t pageSize = 0;
    std::string filterText;
    bool auth = true;
    int32_t deviceMode = 1;

    PROTOCOL_DECLARE_RECORD(DeviceQueryCondition)
    PROTOCOL_ROOT_NAME("deviceQueryCondition")
};

struct LoginFailParam : public IReturnData {
    bool lock = false;
    int32_t retryTimes = 0;
    int32_t lockTime = 0;

    PROTOCOL_DECLARE_RECORD(LoginFailParam)
};

struct DeviceUpgrade : public IInboundData {
    int32_t state = 0;
    int32_t progress = 0;
    std::string code;
    std::string version;
    std::string newVersion;
    std::string content;

    PROTOCOL_DECLARE_RECORD(DeviceUpgrade)
    PROTOCOL_ROOT_NAME("deviceUpgrade")
};

// A device of the list with everything it holds. Built with the service's defaults: the
// client remote shown, security set, patrol sequences of at most 32 steps with delays of 15
// to 30 (25 unless set), and no live streaming time (-1).
struct DeviceResponse : public IReturnData {
    bool isLocal = false;
    std::string guid;
    int32_t deviceId = 0;
    std::string alias;
    int32_t deviceCategory = 0;
    int32_t deviceType = 0;
    std::string deviceTypeName;
    int32_t deviceClass = 0;
    int32_t addMode = 0;
    std::string address;
    int32_t port = 0;
    int32_t httpPort = 0;
    std::string deviceInfo;
    std::string username;
    std::string password;
    std::string serialNo;
    int32_t loginMode = 0;
    bool enableDDNS = false;
    int32_t useTls = 0;
    int32_t upnpMappingMode = 0;
    int32_t deviceMode = 0;
    bool encrypt = false;
    std::string streamKey;
    bool isOnline = false;
    std::string code;
    std::string loginIp;
    int32_t loginPort = 0;
    LoginFailParam loginFailParam;
    int32_t startChanNo = 0;
    int32_t startDChanNo = 0;
    int32_t startTalkDChan = 0;
    int32_t audioChanNum = 0;
    int32_t encodeType = 0;
    std::string softwareVersion;
    bool supportWeb = false;
    bool supportWebInsert = false;
    bool showClientRemote = true;
    bool supportClientVCAConfig = false;
    bool securityHasSet = true;
    int32_t support = 0;
    int32_t support1 = 0;
    int32_t support2 = 0;
    int32_t support4 = 0;
    int32_t multiStreamProto = 0;
    std::string componentId;
    int32_t encryptLevel = 0;
    int32_t sdkLoginMode = 0;
    int32_t supportKOPL = 0;
    DeviceUpgrade deviceUpgrade;
    std::vector<Channel> channelList;
    std::vector<Task> taskList;
    std::vector<AlarmInput> alarmInputList;
    std::vector<AlarmOutput> alarmOutputList;
    std::vector<Radar> radarList;
    std::vector<Door> doorList;
    std::vector<CardReader> cardReaderList;
    std::vector<LaneController> laneControllerList;
    std::vector<Relay> relayList;
    std::vector<Partition> partitionList;
    std::vector<Zone> zoneList;
    std::vector<SwitchPort> portList;
    std::vector<AudioInput> audioInputList;
    bool supportVideoback = false;
    bool supportVideoQuality = false;
    bool supportTalkFromDevice = false;
    bool supportTalk = false;
    bool supportChannelTalk = false;
    bool supportPtz = false;
    bool supportBatteryManage = false;
    bool supportSmartWifi = false;
    bool supportHorizontalPanoramic = false;
    bool supportPlayBackSpeed = false;
    int32_t supportPlayBackSpeedLimit = 0;
    std::vector<int32_t> videoLevel;
    int32_t support4GDevice = 0;
    bool supportlowpower = false;             // lower case, as the service spells it
    bool supportConsumptTimeSleep = false;
    bool supportNxrpc = false;
    bool supportquickstream = false;          // lower case, as the service spells it
    bool supportSIM = false;
    bool supportNetMethod = false;
    bool supportHumanFilter = false;
    bool supportVehicleFilter = false;
    bool supportVideosClassifiedQuery = false;
    bool supportCloudBackup = false;
    bool supportCloudStorage = false;
    std::string smsId;
    std::string smsName;
    std::string smsAddress;
    int32_t smsPreviewPort = 0;
    int32_t smsPlaybackPort = 0;
    bool supportPtzPreset = false;
    bool supportAutoTrack = false;
    bool supportAutoTrackIgnoreTip = false;
    int32_t maxPatternNum = 0;
    bool supportPatrols = false;
    int32_t maxPatrolNum = 0;
    int32_t maxPatrolSequenceNum = 32;
    int32_t minPatrolSequenceDelay = 15;
    int32_t maxPatrolSequenceDelay = 30;
    int32_t defaultPatrolSequenceDelay = 25;
    bool supportPtzRange = false;
    bool supportPtzSelfCheck = false;
    bool supportSmartSearch = false;
    bool supportGlobalCameraAndPosition3D = false;
    bool supportGlobalCamera = false;
    bool supportPanoramaCamera = false;
    std::string supportPlayQuickOpt;
    std::string supportPlaySlowOpt;
    bool searchEnabled = false;
    bool supportTimelapse = false;
    bool supportOnlyMainStream = false;
    int32_t liveStreamingTime = -1;

    PROTOCOL_DECLARE_RECORD(DeviceResponse)
};

struct DeviceExtInfo : public IInboundData {
    std::string streamKey;

    PROTOCOL_DECLARE_RECORD(DeviceExtInfo)
    PROTOCOL_ROOT_NAME("deviceExtInfo")
};

struct DeviceBasicInfo : public IInboundData {
    std::string alias;
    int32_t addMode = 0;
    std::string address;
    int32_t port = 0;
    std::string deviceInfo;
    std::string username;
    std::string password;
    bool enableDDNS = false;
    int32_t upnpMappingMode = 0;
    int32_t useTls = 0;
    std::string remark;
    std::string errorCode;
    std::string errorMsg;
    std::string mLongStrGuid;                 // spelt so by the service

    PROTOCOL_DECLARE_RECORD(DeviceBasicInfo)
    PROTOCOL_ROOT_NAME("deviceBasicInfo")
};

struct DeviceModificationReq : public IInboundData {
    DeviceBasicInfo deviceBasicInfo;
    DeviceExtInfo deviceExtInfo;

    PROTOCOL_DECLARE_RECORD(DeviceModificationReq)
    PROTOCOL_ROOT_NAME("deviceModificationReq")
};

struct DeviceNameInfo : public IReturnData {
    std::string alias;
    int32_t deviceCategory = 0;

    PROTOCOL_DECLARE_RECORD(DeviceNameInfo)
};

struct DeviceFailure : public IReturnData {
    std::string alias;
    std::string guid;
    std::string code;

    PROTOCOL_DECLARE_RECORD(DeviceFailure)
};

struct DeviceUpgradeConfig : public IInboundData {
    int32_t mode = 0;
    std::string beginTime;
    std::string endTime;

    PROTOCOL_DECLARE_RECORD(DeviceUpgradeConfig)
    PROTOCOL_ROOT_NAME("deviceUpgradeConfig")
};

struct DeviceExisted : public IInboundData {
    std::string ipAddress;
    int32_t loginPort = 0;
    std::string username;
    std::string password;

    PROTOCOL_DECLARE_RECORD(DeviceExisted)
    PROTOCOL_ROOT_NAME("deviceExisted")
};

struct DeviceExistedResult : public IReturnData {
    std::string guid;
    bool logined = false;
    int32_t loginID = -1;                     // an integer, written as a boolean: -1 goes out as true

    PROTOCOL_DECLARE_RECORD(DeviceExistedResult)
};

struct DeviceSync : public IReturnData {
    int32_t state = 0;
    std::string deviceGuid;
    int32_t error = 0;

    PROTOCOL_DECLARE_RECORD(DeviceSync)
};

struct SyncDevice : public IInboundData {
    std::string guid;

    PROTOCOL_DECLARE_RECORD(SyncDevice)
    PROTOCOL_ROOT_NAME("syncDevice")
};

struct SynchronousReq : public IInboundData {
    std::string msgGuid;
    int32_t type = 0;
    std::string startTime;
    std::string endTime;
    std::vector<SyncDevice> syncDeviceList;

    PROTOCOL_DECLARE_RECORD(SynchronousReq)
    PROTOCOL_ROOT_NAME("synchronousReq")
};

struct SynchronousRet : public IReturnData {
    std::string strMsgGuid;
    std::string startTime;
    std::string endTime;
    int32_t syncState = 0;
    std::vector<DeviceSync> deviceSyncList;

    PROTOCOL_DECLARE_RECORD(SynchronousRet)
};

struct ImportFiles : public IInboundData {
    std::string uploadFileGuid;
    std::string password;
    std::string deviceGuid;

    PROTOCOL_DECLARE_RECORD(ImportFiles)
    PROTOCOL_ROOT_NAME("importFiles")
};

struct UploadFileToDev : public IInboundData {
    std::string path;
    int32_t type = 0;

    PROTOCOL_DECLARE_RECORD(UploadFileToDev)
    PROTOCOL_ROOT_NAME("uploadFileToDev")
};

struct DownloadReq : public IInboundData {
    std::string url;

    PROTOCOL_DECLARE_RECORD(DownloadReq)
    PROTOCOL_ROOT_NAME("downloadReq")
};

// Keys and root key start with a capital, as the permission service has them.
struct DevicePermissionData : public IInboundData {
    int32_t OperateType = -1;
    int32_t OperateCode = -1;
    std::string DeviceSerial;

    PROTOCOL_DECLARE_RECORD(DevicePermissionData)
    PROTOCOL_ROOT_NAME("DevicePermissionData")
};

// Keys start with a capital, as the permission service has them.
struct DevicePermissionDataReturn : public IReturnData {
    int32_t OperateType = -1;
    int32_t OperateCode = -1;
    std::string DeviceSerial;

    PROTOCOL_DECLARE_RECORD(DevicePermissionDataReturn)
};

struct CertVerificationReq : public IInboundData {
    bool deviceCert = false;

    PROTOCOL_DECLARE_RECORD(CertVerificationReq)
    PROTOCOL_ROOT_NAME("certVerificationReq")
};

struct CertVerificationResult : public IReturnData {
    bool deviceCert = false;

    PROTOCOL_DECLARE_RECORD(CertVerificationResult)
};

struct CertificationStandard : public IInboundData {
    std::string standard;

    PROTOCOL_DECLARE_RECORD(CertificationStandard)
    PROTOCOL_ROOT_NAME("certificationStandard")
};

// Keys start with a capital, as the service has them.
struct PurePwdDevice : public IReturnData {
    std::string DeviceName;
    std::string DeviceIP;

    PROTOCOL_DECLARE_RECORD(PurePwdDevice)
};

struct PurePwdVerityEnableDeviceRsp : public IReturnData {
    std::vector<PurePwdDevice> purePwdDeviceList;

    PROTOCOL_DECLARE_RECORD(PurePwdVerityEnableDeviceRsp)
};

struct QrCodesRsp : public IReturnData {
    std::string imageData;
    std::vector<DeviceFailure> deviceFailureList;

    PROTOCOL_DECLARE_RECORD(QrCodesRsp)
};

struct NetworkParam : public IReturnData {
    std::string longGuid;
    bool bondingEnable = false;
    int32_t flow1SendSize = 0;
    int32_t flow1RecvSize = 0;
    int32_t flow2SendSize = 0;
    int32_t flow2RecvSize = 0;

    PROTOCOL_DECLARE_RECORD(NetworkParam)
};

struct OnlineUser : public IReturnData {
    int32_t id = 0;
    std::string username;
    int32_t userType = 0;
    std::string ip;
    std::string loginTime;

    PROTOCOL_DECLARE_RECORD(OnlineUser)
};

struct KOPLDevice : public IReturnData {
    std::string deviceModel;
    std::string deviceName;
    std::string deviceSerial;

    PROTOCOL_DECLARE_RECORD(KOPLDevice)
};

struct DeviceResponseData : public IReturnData {
    DeviceResponse deviceResponse;
    std::string code;
    std::string msg;

    PROTOCOL_DECLARE_RECORD(DeviceResponseData)
};

struct DeviceResponseListData : public IReturnData {
    std::vector<DeviceResponse> deviceResponseList;
    int32_t deviceCount = 0;
    std::string code;
    std::string msg;

    PROTOCOL_DECLARE_RECORD(DeviceResponseListData)
};

struct CertVerificationResultData : public IReturnData {
    CertVerificationResult certVerificationResult;

    PROTOCOL_DECLARE_RECORD(CertVerificationResultData)
};

struct CertificationStandardData : public IReturnData {
    CertificationStandard certificationStandard;

    PROTOCOL_DECLARE_RECORD(CertificationStandardData)
};

struct CloudP2PCapabilitiesData : public IReturnData {
    CloudP2PCapabilities cloudP2PCapabilities;

    PROTOCOL_DECLARE_RECORD(CloudP2PCapabilitiesData)
};

struct DeviceExistedResultData : public IReturnData {
    DeviceExistedResult deviceExistedResult;

    PROTOCOL_DECLARE_RECORD(DeviceExistedResultData)
};

struct DeviceResultListData : public IReturnData {
    std::vector<DeviceResult> deviceResultList;

    PROTOCOL_DECLARE_RECORD(DeviceResultListData)
};

struct DeviceUpgradeConfigData : public IReturnData {
    DeviceUpgradeConfig deviceUpgradeConfig;

    PROTOCOL_DECLARE_RECORD(DeviceUpgradeConfigData)
};

struct NetworkParamData : public IReturnData {
    NetworkParam networkParam;

    PROTOCOL_DECLARE_RECORD(NetworkParamData)
};

struct OnlineUserListData : public IReturnData {
    std::vector<OnlineUser> onlineUserList;

    PROTOCOL_DECLARE_RECORD(OnlineUserListData)
};

struct PurePwdVerityEnableDeviceRspData : public IReturnData {
    PurePwdVerityEnableDeviceRsp purePwdVerityEnableDeviceRsp;

    PROTOCOL_DECLARE_RECORD(PurePwdVerityEnableDeviceRspData)
};

struct QrCodesRspData : public IReturnData {
    QrCodesRsp qrCodesRsp;

    PROTOCOL_DECLARE_RECORD(QrCodesRspData)
};

struct SynchronousRetData : public IReturnData {
    SynchronousRet synchronousRet;

    PROTOCOL_DECLARE_RECORD(SynchronousRetData)
};

} // namespace protocol
