// The control, status and service records: every record against its expected keys, the
// rules of the record frame on one record of each family, and the records whose reading
// differs from their writing or whose keys bear blanks and capitals.
#include <gtest/gtest.h>

#include "JSONStruct/Control/ControlJSONStruct.h"
#include "JSONStruct/Service/AppJSONStruct.h"
#include "JSONStruct/Service/CloudP2PJSONStruct.h"
#include "JSONStruct/Service/FarlinkJSONStruct.h"
#include "JSONStruct/Service/SmsJSONStruct.h"
#include "JSONStruct/Status/StatusJSONStruct.h"
#include "RecordKeyTableTests.h"

#define CONTROL_STATUS_SERVICE_RECORDS(X)                                                                             \
    X(Guard) X(DeviceGuard) X(GuardResult) X(DeviceGuardState) X(AlarmOutputControl) X(AcsManualCaptureParam)         \
    X(DoorControl) X(DoorControlResult) X(DoorControlRsp) X(PartitionControl) X(PartitionControlResult)               \
    X(PartitionControlRsp) X(ZoneControl) X(ZoneControlResult) X(ZoneControlRsp) X(RelayControl)                      \
    X(RelayControlResult) X(RelayControlRsp) X(ChannlGuid) X(WiperReq) X(WiperControlResult) X(IntercomControl)       \
    X(RoomNo) X(PresetInfo) X(PresetList) X(PresetResult)                                                             \
    X(DoorStatusReq) X(DoorStatus) X(DoorStatusRsp) X(PartitionStatus) X(PartitionStatusRsp) X(ZoneStatus)            \
    X(ZoneStatusRsp) X(RelayStatusReq) X(RelayStatus) X(RelayStatusRsp) X(Siren) X(SecurityCPStatus)                  \
    X(ChannelStatus) X(VideoDeviceStatus) X(DeviceStatus) X(AlarmOutputStatusRsp) X(IntercomStatusRsp)                \
    X(PtzSelfCheckResponseData) X(DeviceStatusResponse) X(DoorS) X(HostS) X(CardReaderS) X(AlarmOutputS)              \
    X(AlarmInputS) X(EventS) X(DoorSafeS) X(DefenceS) X(GateHostNumberS) X(GateAllS) X(GateRayS) X(GateDeviceS)       \
    X(SmsAddInfo) X(SmsResult) X(SmsResponse) X(SmsGuidList) X(SmsModificationReq) X(CloudP2PConfigs)                 \
    X(CloudP2PAccountResult) X(CloudP2PAccountInfo) X(FarlinkSMSPort) X(FarlinkPreview) X(SessionIDData)              \
    X(PushStream) X(FarlinkVoice) X(FarlinkFindRecFileParam) X(RecFileInfo) X(FarlinkRecFindResult) X(StreamSever)    \
    X(PlayBackbyTime) X(PlayBackbyName) X(FarlinkPlayBackParam) X(FarlinkPlayBackOperateParam) X(AppTask) X(AppInfo)  \
    X(AppList) X(AppManage) X(SorrelApp) X(SorrelAppListData) X(CommodityAppIdData) X(CommodityIdData) X(AppVersion)                     \
    X(AppVersionListData)                                                                                             \
    X(AlarmOutputStatusRspData) X(AppListData) X(CloudP2PAccountResultData) X(CloudP2PConfigsData)                    \
    X(DeviceGuardStateListData) X(DeviceStatusData) X(DoorControlRspData) X(DoorStatusRspData) X(FarlinkSMSPortData)  \
    X(GuardResultListData) X(IntercomStatusRspData) X(LaneControllerInfoData) X(PartitionControlRspData) X(PartitionStatusRspData)              \
    X(PresetInfoListData) X(PresetResultListData) X(RelayControlRspData) X(RelayStatusRspData) X(SmsResponseData)     \
    X(SmsResponseListData) X(SmsResultListData) X(WiperControlResultListData) X(ZoneControlRspData)                   \
    X(ZoneStatusRspData)

RECORDKEYS_INSTANTIATE(ControlStatusService, CONTROL_STATUS_SERVICE_RECORDS)

namespace recordkeys {
// One record or two of each family, chosen to hold as many kinds of key as it has.
using ControlStatusServiceFamilies =
    ::testing::Types<protocol::DeviceGuardState, protocol::DoorControl, protocol::VideoDeviceStatus,
                     protocol::DeviceStatusResponse, protocol::SmsAddInfo, protocol::CloudP2PAccountResult,
                     protocol::FarlinkPreview, protocol::FarlinkRecFindResult, protocol::AppVersion,
                     protocol::SorrelAppListData>;
INSTANTIATE_TYPED_TEST_SUITE_P(ControlStatusService, RecordFrameworkEdgeCases, ControlStatusServiceFamilies,
                               RecordNameGenerator);
} // namespace recordkeys

using namespace protocol;
using recordtest::read;
using recordtest::written;

TEST(ControlStatusServiceRecords, ListAndKeyTableNameTheSameRecords)
{
    recordkeys::expectSameRecords(recordkeys::controlStatusServiceRecordKeys(),
                                  recordkeys::ControlStatusServiceRecordNames());
}

TEST(ControlStatusServiceRecords, AppListGivenAnArrayReadsAllElements)
{
    SorrelAppListData data;
    read(data, R"([{"appName":"a","commodityId":1},{"APPNAME":"b","commodityId":2},{}])");
    ASSERT_EQ(data.appList.size(), 3u);
    EXPECT_EQ(data.appList[0].appName, "a");
    EXPECT_EQ(data.appList[0].commodityId, "1");
    EXPECT_EQ(data.appList[1].appName, "b");
    EXPECT_EQ(data.appList[2].appName, "");
    EXPECT_EQ(data.appList[2].commodityId, "");
    EXPECT_TRUE(data.presentKeys.empty());
    EXPECT_EQ(written(data), R"({"appList":[{"appName":"a","commodityId":"1"},{"appName":"b","commodityId":"2"},)"
                             R"({"appName":"","commodityId":""}]})");
}

TEST(ControlStatusServiceRecords, AppListGivenAnObjectWalksItsMembersAsElements)
{
    SorrelAppListData data;
    read(data, R"({"appList":[{"appName":"inner"}],"second":{"appName":"b","commodityId":7},"third":5})");
    // The value under "appList" is itself an element: an array, in which no key is found.
    ASSERT_EQ(data.appList.size(), 3u);
    EXPECT_EQ(data.appList[0].appName, "");
    EXPECT_EQ(data.appList[1].appName, "b");
    EXPECT_EQ(data.appList[1].commodityId, "7");
    EXPECT_EQ(data.appList[2].appName, "");
    EXPECT_TRUE(data.presentKeys.empty());

    read(data, "{}");
    EXPECT_TRUE(data.appList.empty());
    data.appList.resize(1);
    data.fromJSON(nullptr);
    EXPECT_EQ(data.appList.size(), 1u);
}

TEST(ControlStatusServiceRecords, VersionListIsReadFromTheNodeAndWrittenUnderItsKey)
{
    AppVersionListData data;
    read(data, R"([{"version":"1.2","commodityAppId":12.5,"merchantId":3}])");
    ASSERT_EQ(data.AppVersionList.size(), 1u);
    EXPECT_EQ(data.AppVersionList[0].version, "1.2");
    EXPECT_DOUBLE_EQ(data.AppVersionList[0].commodityAppId, 12.5);
    EXPECT_EQ(data.AppVersionList[0].merchantId, 3);
    recordtest::Json json(data.toJSON());
    ASSERT_NE(cJSON_GetObjectItemCaseSensitive(json.get(), "AppVersionList"), nullptr);
    EXPECT_EQ(cJSON_GetArraySize(cJSON_GetObjectItemCaseSensitive(json.get(), "AppVersionList")), 1);

    // Its own written form, read back, is an object of one member: one element of defaults.
    AppVersionListData again;
    read(again, written(data));
    ASSERT_EQ(again.AppVersionList.size(), 1u);
    EXPECT_EQ(again.AppVersionList[0].version, "");
}

TEST(ControlStatusServiceRecords, CommodityIdIsReadAsA64BitNumberAndWrittenAsText)
{
    const std::pair<const char*, const char*> cases[] = {
        {"4611686018427387904", "4611686018427387904"},  // 2^62, exact in a double
        {"-4611686018427387904", "-4611686018427387904"},
        {"12.9", "12"},
        {"1e30", "9223372036854775807"},
        {"-1e30", "-9223372036854775808"},
        {"\"123\"", "0"},  // a string isn't a number
        {"true", "0"},
    };
    for (const auto& [value, expected] : cases) {
        SorrelApp app;
        read(app, std::string(R"({"commodityId":)") + value + "}");
        EXPECT_EQ(app.commodityId, expected) << value;
        EXPECT_EQ(app.presentKeys.count("commodityId"), 1u);
        EXPECT_EQ(written(app), std::string(R"({"appName":"","commodityId":")") + expected + "\"}") << value;
    }
}

TEST(ControlStatusServiceRecords, ReviewStatesAreReadAndKeptButNeverWritten)
{
    CommodityAppIdData data;
    read(data, R"({"commodityAppId":4.25,"enableFlag":"1","auditStatus":"passed","PACKSTATUS":"packed"})");
    EXPECT_DOUBLE_EQ(data.commodityAppId, 4.25);
    EXPECT_EQ(data.auditStatus, "passed");
    EXPECT_EQ(data.packStatus, "packed");
    EXPECT_EQ(data.presentKeys,
              (std::unordered_set<std::string>{"commodityAppId", "enableFlag", "auditStatus", "packStatus"}));
    EXPECT_EQ(written(data), R"({"commodityAppId":4.25,"enableFlag":"1"})");
    const CommodityAppIdData copy(data);
    EXPECT_EQ(copy.auditStatus, "passed");
}

TEST(ControlStatusServiceRecords, KeysWithBlanksAreFoundOnlyWithTheirBlanks)
{
    RecFileInfo file;
    read(file, R"({"FileName":"plain","StartTime":"t"})");
    EXPECT_EQ(file.FileName, "");
    EXPECT_EQ(file.StartTime, "t");
    read(file, R"({" filename ":"padded"})");
    EXPECT_EQ(file.FileName, "padded");
    EXPECT_EQ(file.presentKeys.count(" FileName "), 1u);
    EXPECT_EQ(written(file).rfind(R"({" FileName ":"padded",)", 0), 0u);

    FarlinkRecFindResult result;
    read(result, R"({"RecFileInfoList":[{}]})");
    EXPECT_TRUE(result.RecFileInfoList.empty());
    read(result, R"({" RecFileInfoList":[{" FileName ":"a"},{}]})");
    ASSERT_EQ(result.RecFileInfoList.size(), 2u);
    EXPECT_EQ(result.RecFileInfoList[0].FileName, "a");
    EXPECT_EQ(written(result).rfind(R"({" RecFileInfoList":[{" FileName ":"a",)", 0), 0u);

    // The plain key of the playback by name has no blanks.
    PlayBackbyName byName;
    read(byName, R"({"FileName":"f"})");
    EXPECT_EQ(byName.FileName, "f");
}

TEST(ControlStatusServiceRecords, RootKeysKeepTheirBlankAndCapitals)
{
    EXPECT_STREQ(CloudP2PAccountInfo().rootName(), " CloudP2PAccountInfo");
    EXPECT_STREQ(StreamSever().rootName(), "StreamSever");
    EXPECT_STREQ(PlayBackbyTime().rootName(), "PlayBackbyTime");
    EXPECT_STREQ(PlayBackbyName().rootName(), "PlayBackbyName");
    EXPECT_STREQ(FarlinkFindRecFileParam().rootName(), "FarlinkFindRecFileParam");
    EXPECT_STREQ(AppManage().rootName(), "AppManage");
    EXPECT_STREQ(ChannlGuid().rootName(), "channlGuid");
}

TEST(ControlStatusServiceRecords, SelfCheckCodeStartsAtZeroText)
{
    PtzSelfCheckResponseData check;
    EXPECT_EQ(check.code, "0");
    read(check, R"({"status":"running","initializationPercent":40})");
    EXPECT_EQ(check.code, "0");
    EXPECT_EQ(check.initializationPercent, 40);
    read(check, R"({"code":5})");
    EXPECT_EQ(check.code, "");
    read(check, R"({"code":"0x1"})");
    EXPECT_EQ(check.code, "0x1");
}

TEST(ControlStatusServiceRecords, NestedRequestRecordsAreWrittenWithoutTheirRootKeys)
{
    IntercomControl control;
    control.controlMode = 1;
    control.sessionID = "s";
    control.roomNo.buildingNo = 3;
    control.roomNo.roomNo = 1201;
    EXPECT_STREQ(control.roomNo.rootName(), "roomNo");
    EXPECT_EQ(written(control), R"({"controlMode":1,"cmdType":0,"sessionID":"s",)"
                                R"("roomNo":{"period":0,"buildingNo":3,"unitNo":0,"floorNo":0,"roomNo":1201}})");

    FarlinkPlayBackParam playback;
    read(playback, R"({"channel":2,"playbackbyname":{"FileName":"f","SeekType":1},)"
                   R"("PlayBackbyTime":{"StartTime":"a","StopTime":"b","LocalOrUTC":1},)"
                   R"("StreamSever":{"StreamIP":"10.0.0.1","StreamPlayBackPort":554}})");
    EXPECT_EQ(playback.Channel, 2);
    EXPECT_EQ(playback.PlayBackbyName.FileName, "f");
    EXPECT_EQ(playback.PlayBackbyName.SeekType, 1);
    EXPECT_EQ(playback.PlayBackbyTime.StopTime, "b");
    EXPECT_EQ(playback.PlayBackbyTime.LocalOrUTC, 1);
    EXPECT_EQ(playback.StreamSever.StreamIP, "10.0.0.1");
    EXPECT_EQ(playback.StreamSever.StreamPlayBackPort, 554);
    EXPECT_EQ(playback.presentKeys,
              (std::unordered_set<std::string>{"Channel", "PlayBackbyName", "PlayBackbyTime", "StreamSever"}));
}

TEST(ControlStatusServiceRecords, WrappersWithCapitalKeysTakeTheirContentUnderThem)
{
    recordtest::Json json = recordtest::parse(
        R"({"IntercomStatusRsp":{"armStatus":"armed"},"AppList":{"AppInfoList":[{"id":4,"name":"n"}]},)"
        R"("CloudP2PAccountResult":{"name":"me","online":true},"cloudP2PConfigs":{"appKey":"k"}})");
    const IntercomStatusRspData intercom(json.get());
    EXPECT_EQ(intercom.IntercomStatusRsp.armStatus, "armed");
    const AppListData apps(json.get());
    ASSERT_EQ(apps.AppList.AppInfoList.size(), 1u);
    EXPECT_EQ(apps.AppList.AppInfoList[0].id, 4);
    const CloudP2PAccountResultData account(json.get());
    EXPECT_EQ(account.CloudP2PAccountResult.name, "me");
    EXPECT_TRUE(account.CloudP2PAccountResult.online);
    const CloudP2PConfigsData configs(json.get());
    EXPECT_EQ(configs.cloudP2PConfigs.appKey, "k");
}

TEST(ControlStatusServiceRecords, DeviceStatusHoldsVideoAndAlarmPanelStatus)
{
    DeviceStatusData data;
    read(data, R"({"deviceStatus":{"videoDeviceStatus":{"alias":"nvr","hdIsNormal":1,"hdFreeSpace":100,)"
               R"("channelStatusList":[{"name":"c1","isRecording":true,"signalStatus":2}]},)"
               R"("securityCPStatus":{"wifiSignal":-60,"flow":1.5,"sirenList":[{"name":"s","charge":"80"}]}}})");
    const VideoDeviceStatus& video = data.deviceStatus.videoDeviceStatus;
    EXPECT_EQ(video.alias, "nvr");
    EXPECT_TRUE(video.hdIsNormal);
    EXPECT_EQ(video.hdFreeSpace, 100);
    ASSERT_EQ(video.channelStatusList.size(), 1u);
    EXPECT_TRUE(video.channelStatusList[0].isRecording);
    EXPECT_EQ(video.channelStatusList[0].signalStatus, 2);
    const SecurityCPStatus& panel = data.deviceStatus.securityCPStatus;
    EXPECT_EQ(panel.wifiSignal, -60);
    EXPECT_DOUBLE_EQ(panel.flow, 1.5);
    ASSERT_EQ(panel.sirenList.size(), 1u);
    EXPECT_EQ(panel.sirenList[0].charge, "80");
}

TEST(ControlStatusServiceRecords, AccessControllerStatusKeepsTheDevicesSpelling)
{
    DeviceStatusResponse response;
    read(response, R"({"doorState":[{"index":1,"lockStauts":2,"magnetic":1}],"doorSafeState":[{"desmantel":1}],)"
                   R"("alarmOutputState":[{"alarmoutstatus":1}],"supportStatus":["doorState","x"]})");
    ASSERT_EQ(response.doorState.size(), 1u);
    EXPECT_EQ(response.doorState[0].lockStauts, 2);
    ASSERT_EQ(response.doorSafeState.size(), 1u);
    EXPECT_EQ(response.doorSafeState[0].desmantel, 1);
    ASSERT_EQ(response.alarmOutputState.size(), 1u);
    EXPECT_EQ(response.alarmOutputState[0].AlarmOutStatus, 1);
    EXPECT_EQ(response.supportStatus, (std::vector<std::string>{"doorState", "x"}));
    EXPECT_TRUE(response.hostState.empty());
}
