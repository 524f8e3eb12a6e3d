// Every record of the pass-through, control, status and service families under the
// fuzzer's tree.
#include "RecordsFuzzSupport.h"

#include "JSONStruct/Control/ControlJSONStruct.h"
#include "JSONStruct/PassThrough/BatchPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/DagPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/SdkPassThroughJSONStruct.h"
#include "JSONStruct/PassThrough/WirekitPassThroughJSONStruct.h"
#include "JSONStruct/Service/AppJSONStruct.h"
#include "JSONStruct/Service/CloudP2PJSONStruct.h"
#include "JSONStruct/Service/FarlinkJSONStruct.h"
#include "JSONStruct/Service/SmsJSONStruct.h"
#include "JSONStruct/Status/StatusJSONStruct.h"

namespace recordsfuzz {

using namespace protocol;

void fuzzPassThroughControlStatusServiceRecords(const cJSON* json)
{
    exerciseAll<NxrpcPassThroughReq, NxrpcPassThroughRspData, WirekitPassThroughReq, WirekitPassThroughRspData,
                BatchPassThroughReq, BatchSendData, BatchPassThroughRspData, BatchReturnData, CredCfgCond,
                DagPassThroughReq, DagPassThroughRspData, SdkPassThrough, SdkPassThroughResponseData>(json);
    exerciseAll<Guard, DeviceGuard, GuardResult, DeviceGuardState, AlarmOutputControl, AcsManualCaptureParam,
                DoorControl, DoorControlResult, DoorControlRsp, PartitionControl, PartitionControlResult,
                PartitionControlRsp, ZoneControl, ZoneControlResult, ZoneControlRsp, RelayControl, RelayControlResult,
                RelayControlRsp, ChannlGuid, WiperReq, WiperControlResult, IntercomControl, RoomNo, PresetInfo,
                PresetList, PresetResult, DoorControlRspData, PartitionControlRspData, ZoneControlRspData,
                RelayControlRspData, GuardResultListData, DeviceGuardStateListData, PresetInfoListData,
                PresetResultListData, WiperControlResultListData>(json);
    exerciseAll<DoorStatusReq, DoorStatus, DoorStatusRsp, PartitionStatus, PartitionStatusRsp, ZoneStatus,
                ZoneStatusRsp, RelayStatusReq, RelayStatus, RelayStatusRsp, Siren, SecurityCPStatus, ChannelStatus,
                VideoDeviceStatus, DeviceStatus, AlarmOutputStatusRsp, IntercomStatusRsp, PtzSelfCheckResponseData,
                DeviceStatusResponse, DoorS, HostS, CardReaderS, AlarmOutputS, AlarmInputS, EventS, DoorSafeS,
                DefenceS, GateHostNumberS, GateAllS, GateRayS, GateDeviceS, AlarmOutputStatusRspData, DeviceStatusData,
                DoorStatusRspData, IntercomStatusRspData, LaneControllerInfoData, PartitionStatusRspData, RelayStatusRspData,
                ZoneStatusRspData>(json);
    exerciseAll<SmsAddInfo, SmsResult, SmsResponse, SmsGuidList, SmsModificationReq, SmsResponseData,
                SmsResponseListData, SmsResultListData, CloudP2PConfigs, CloudP2PAccountResult, CloudP2PAccountInfo,
                CloudP2PAccountResultData, CloudP2PConfigsData, FarlinkSMSPort, FarlinkPreview, SessionIDData,
                PushStream, FarlinkVoice, FarlinkFindRecFileParam, RecFileInfo, FarlinkRecFindResult, StreamSever,
                PlayBackbyTime, PlayBackbyName, FarlinkPlayBackParam, FarlinkPlayBackOperateParam, FarlinkSMSPortData,
                AppTask, AppInfo, AppList, AppManage, SorrelApp, SorrelAppListData, CommodityAppIdData, CommodityIdData, AppVersion,
                AppVersionListData, AppListData>(json);
}

} // namespace recordsfuzz
