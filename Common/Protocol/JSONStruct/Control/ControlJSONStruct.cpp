#include "JSONStruct/Control/ControlJSONStruct.h"

#include "JSONStruct/Validators.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(Guard,
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(autoGuard))

PROTOCOL_DEFINE_RECORD(DeviceGuard,
    PROTOCOL_FIELD(guardList))

PROTOCOL_DEFINE_RECORD(GuardResult,
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(guard),
    PROTOCOL_FIELD(errorCode))

PROTOCOL_DEFINE_RECORD(DeviceGuardState,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(deviceCategory),
    PROTOCOL_FIELD(autoGuard),
    PROTOCOL_FIELD(guard),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_RECORD(AlarmOutputControl,
    PROTOCOL_FIELD(enable),
    PROTOCOL_FIELD(alarmOutPort))

PROTOCOL_DEFINE_RECORD(AcsManualCaptureParam,
    PROTOCOL_FIELD(pictureSize),
    PROTOCOL_FIELD(pictureQuality))

PROTOCOL_DEFINE_RECORD(DoorControl,
    PROTOCOL_FIELD(cmd),
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(DoorControlResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_MEMBER_RECORD(DoorControlRsp,
    PROTOCOL_FIELD(doorControlResultList))

PROTOCOL_DEFINE_RECORD(PartitionControl,
    PROTOCOL_FIELD(cmd),
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(PartitionControlResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_MEMBER_RECORD(PartitionControlRsp,
    PROTOCOL_FIELD(partitionControlResultList))

PROTOCOL_DEFINE_RECORD(ZoneControl,
    PROTOCOL_FIELD(cmd),
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(ZoneControlResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_MEMBER_RECORD(ZoneControlRsp,
    PROTOCOL_FIELD(zoneControlResultList))

PROTOCOL_DEFINE_RECORD(RelayControl,
    PROTOCOL_FIELD(cmd),
    PROTOCOL_FIELD(noList))

PROTOCOL_DEFINE_RECORD(RelayControlResult,
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_MEMBER_RECORD(RelayControlRsp,
    PROTOCOL_FIELD(relayControlResultList))

PROTOCOL_DEFINE_RECORD(ChannlGuid,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(deviceGuid))

PROTOCOL_DEFINE_RECORD(WiperReq,
    PROTOCOL_FIELD(channlGuidList),
    PROTOCOL_FIELD(enable))

PROTOCOL_DEFINE_RECORD(WiperControlResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(deviceGuid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_RECORD(RoomNo,
    PROTOCOL_FIELD(period),
    PROTOCOL_FIELD(buildingNo),
    PROTOCOL_FIELD(unitNo),
    PROTOCOL_FIELD(floorNo),
    PROTOCOL_FIELD(roomNo))

PROTOCOL_DEFINE_RECORD(IntercomControl,
    PROTOCOL_FIELD(controlMode),
    PROTOCOL_FIELD(cmdType),
    PROTOCOL_FIELD(sessionID),
    PROTOCOL_FIELD(roomNo))

PROTOCOL_DEFINE_RECORD(PresetInfo,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(name),
    PROTOCOL_FIELD(no),
    PROTOCOL_FIELD(cloudP2PNo))

PROTOCOL_DEFINE_RECORD(PresetList,
    PROTOCOL_FIELD(longDeviceGuid),
    PROTOCOL_FIELD(guidList))

PROTOCOL_DEFINE_RECORD(PresetResult,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(code))

PROTOCOL_DEFINE_RECORD(DeviceGuardStateListData,
    PROTOCOL_FIELD(deviceGuardStateList))

PROTOCOL_DEFINE_RECORD(DoorControlRspData,
    PROTOCOL_FIELD(doorControlRsp))

PROTOCOL_DEFINE_RECORD(GuardResultListData,
    PROTOCOL_FIELD(guardResultList))

PROTOCOL_DEFINE_RECORD(PartitionControlRspData,
    PROTOCOL_FIELD(partitionControlRsp))

PROTOCOL_DEFINE_RECORD(PresetInfoListData,
    PROTOCOL_FIELD(presetInfoList))

PROTOCOL_DEFINE_RECORD(PresetResultListData,
    PROTOCOL_FIELD(presetResultList))

PROTOCOL_DEFINE_RECORD(RelayControlRspData,
    PROTOCOL_FIELD(relayControlRsp))

PROTOCOL_DEFINE_RECORD(WiperControlResultListData,
    PROTOCOL_FIELD(wiperControlResultList))

PROTOCOL_DEFINE_RECORD(ZoneControlRspData,
    PROTOCOL_FIELD(zoneControlRsp))

bool AlarmOutputControl::validate(std::string& error)
{
    return checkFieldExists(error, *this, "enable", true);
}

// Commands are compared exactly: doors want capitals, relays small letters.
bool DoorControl::validate(std::string& error)
{
    return checkCommand(error, *this, "cmd", cmd, {"OPEN", "CLOSE", "ALWAYSOPEN", "ALWAYSCLOSE"}, "guidList", guidList);
}

bool PartitionControl::validate(std::string& error)
{
    return checkCommand(error, *this, "cmd", cmd,
                        {"away", "instant", "stay", "disarm", "clearAlarm", "bypass", "bypassRecover"}, "guidList",
                        guidList);
}

bool RelayControl::validate(std::string& error)
{
    return checkCommand(error, *this, "cmd", cmd, {"open", "close"}, "noList", noList);
}

} // namespace protocol
