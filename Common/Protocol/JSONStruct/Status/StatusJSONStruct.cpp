#include "JSONStruct/Status/StatusJSONStruct.h"

#include "JSONStruct/Validators.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(DoorStatusReq,
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(DoorStatus,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(status))

PROTOCOL_DEFINE_MEMBER_RECORD(DoorStatusRsp,
    PROTOCOL_FIELD(doorStatusList))

PROTOCOL_DEFINE_RECORD(PartitionStatus,
    PROTOCOL_FIELD(arming),
    PROTOCOL_FIELD(alarm),
    PROTOCOL_FIELD(partitionsGuardStatus),
    PROTOCOL_FIELD(partitionsEnableStatus))

PROTOCOL_DEFINE_MEMBER_RECORD(PartitionStatusRsp,
    PROTOCOL_FIELD(partitionStatusList))

PROTOCOL_DEFINE_RECORD(ZoneStatus,
    PROTOCOL_FIELD(status),
    PROTOCOL_FIELD(alarm),
    PROTOCOL_FIELD(detectorPower))

PROTOCOL_DEFINE_MEMBER_RECORD(ZoneStatusRsp,
    PROTOCOL_FIELD(zoneStatusList))

PROTOCOL_DEFINE_RECORD(RelayStatusReq,
    PROTOCOL_FIELD(noList))

PROTOCOL_DEFINE_RECORD(RelayStatus,
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(status),
    PROTOCOL_FIELD(linkageStatus))

PROTOCOL_DEFINE_MEMBER_RECORD(RelayStatusRsp,
    PROTOCOL_FIELD(relayStatusList))

PROTOCOL_DEFINE_RECORD(Siren,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(status),
    PROTOCOL_FIELD(tamperEvident),
    PROTOCOL_FIELD(charge))

PROTOCOL_DEFINE_MEMBER_RECORD(SecurityCPStatus,
    PROTOCOL_FIELD(wired),
    PROTOCOL_FIELD(wired2),
    PROTOCOL_FIELD(wifi),
    PROTOCOL_FIELD(wifiSignal),
    PROTOCOL_FIELD(mobile),
    PROTOCOL_FIELD(mobileSignal),
    PROTOCOL_FIELD(flow),
    PROTOCOL_FIELD(monFlowLimit),
    PROTOCOL_FIELD(cloud),
    PROTOCOL_FIELD(sirenList))

PROTOCOL_DEFINE_RECORD(ChannelStatus,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(isRecording),
    PROTOCOL_FIELD(signalStatus),
    PROTOCOL_FIELD(hardwareStatus),
    PROTOCOL_FIELD(connectionStatus),
    PROTOCOL_FIELD(ipcConnectionStatus),
    PROTOCOL_FIELD(brokenRecordStatus),
    PROTOCOL_FIELD(gasDetectorStates),
    PROTOCOL_FIELD(temperatureDetectorStates),
    PROTOCOL_FIELD(mazeDetectorStates),
    PROTOCOL_FIELD(shelterDetectorStates),
    PROTOCOL_FIELD(motionDetectorStates),
    PROTOCOL_FIELD(tamperDetectorStates))

PROTOCOL_DEFINE_MEMBER_RECORD(VideoDeviceStatus,
    PROTOCOL_FIELD(alias),
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(hdIsNormal),
    PROTOCOL_FIELD(hdFreeSpace),
    PROTOCOL_FIELD(hdAllSpace),
    PROTOCOL_FIELD(isCVR),
    PROTOCOL_FIELD(isSupportDetectorCameraStates),
    PROTOCOL_FIELD(channelStatusList))

PROTOCOL_DEFINE_MEMBER_RECORD(DeviceStatus,
    PROTOCOL_FIELD(videoDeviceStatus),
    PROTOCOL_FIELD(securityCPStatus))

PROTOCOL_DEFINE_MEMBER_RECORD(AlarmOutputStatusRsp,
    PROTOCOL_FIELD(status))

PROTOCOL_DEFINE_MEMBER_RECORD(IntercomStatusRsp,
    PROTOCOL_FIELD(armStatus))

PROTOCOL_DEFINE_RECORD(PtzSelfCheckResponseData,
    PROTOCOL_FIELD(status),
    PROTOCOL_FIELD(initializationPercent),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(msg))

PROTOCOL_DEFINE_RECORD(DoorS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(doorStatus),
    PROTOCOL_FIELD(lockStauts),
    PROTOCOL_FIELD(magnetic))

PROTOCOL_DEFINE_RECORD(HostS,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(CardReaderS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(cardNum),
    PROTOCOL_FIELD(onlineStatus),
    PROTOCOL_FIELD(antiDismantleStatus),
    PROTOCOL_FIELD(verifyMode),
    PROTOCOL_FIELD(netReaderOnlineStatus))

PROTOCOL_DEFINE_RECORD(AlarmOutputS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(AlarmOutStatus))

PROTOCOL_DEFINE_RECORD(AlarmInputS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(setUpStatus),
    PROTOCOL_FIELD(alarmIn))

PROTOCOL_DEFINE_RECORD(EventS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(caseIn))

PROTOCOL_DEFINE_RECORD(DoorSafeS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(online),
    PROTOCOL_FIELD(desmantel))

PROTOCOL_DEFINE_RECORD(DefenceS,
    PROTOCOL_FIELD(index),
    PROTOCOL_FIELD(ip),
    PROTOCOL_FIELD(type))

PROTOCOL_DEFINE_RECORD(GateHostNumberS,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(GateAllS,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(GateRayS,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(GateDeviceS,
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(value))

PROTOCOL_DEFINE_RECORD(DeviceStatusResponse,
    PROTOCOL_FIELD(doorState),
    PROTOCOL_FIELD(hostState),
    PROTOCOL_FIELD(cardReaderState),
    PROTOCOL_FIELD(alarmOutputState),
    PROTOCOL_FIELD(alarmInputState),
    PROTOCOL_FIELD(eventState),
    PROTOCOL_FIELD(doorSafeState),
    PROTOCOL_FIELD(defenceState),
    PROTOCOL_FIELD(gateHostNumberState),
    PROTOCOL_FIELD(gateAllState),
    PROTOCOL_FIELD(gateRayState),
    PROTOCOL_FIELD(gateDeviceState),
    PROTOCOL_FIELD(supportStatus))

PROTOCOL_DEFINE_RECORD(AlarmOutputStatusRspData,
    PROTOCOL_FIELD(alarmOutputStatusRsp))

PROTOCOL_DEFINE_RECORD(DeviceStatusData,
    PROTOCOL_FIELD(deviceStatus))

PROTOCOL_DEFINE_RECORD(DoorStatusRspData,
    PROTOCOL_FIELD(doorStatusRsp))

PROTOCOL_DEFINE_RECORD(IntercomStatusRspData,
    PROTOCOL_FIELD(IntercomStatusRsp))

PROTOCOL_DEFINE_RECORD(LaneControllerInfoData,
    PROTOCOL_FIELD(laneControllerInfo))

PROTOCOL_DEFINE_RECORD(PartitionStatusRspData,
    PROTOCOL_FIELD(partitionStatusRsp))

PROTOCOL_DEFINE_RECORD(RelayStatusRspData,
    PROTOCOL_FIELD(relayStatusRsp))

PROTOCOL_DEFINE_RECORD(ZoneStatusRspData,
    PROTOCOL_FIELD(zoneStatusRsp))

bool DoorStatusReq::validate(std::string& error)
{
    return checkListSentAndNotEmpty(error, *this, "guidList", guidList);
}

} // namespace protocol
