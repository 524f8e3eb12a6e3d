// The topology and alarm records: defaults, odd keys, the safe-mode asymmetry, nested
// lists and the request validators.
#include <gtest/gtest.h>

#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "RecordTestSupport.h"

using namespace protocol;
using recordtest::read;
using recordtest::written;

TEST(TopologyRecords, DeviceNodeSafeModeIsWrittenAsBooleanAndReadBackAsOne)
{
    DeviceNode node;
    node.safeMode = 2;
    const std::string text = written(node);
    EXPECT_NE(text.find(R"("safeMode":true)"), std::string::npos);
    DeviceNode again;
    read(again, text);
    EXPECT_EQ(again.safeMode, 1);
    DeviceNode zero;
    EXPECT_NE(written(zero).find(R"("safeMode":false)"), std::string::npos);
    read(zero, R"({"safeMode":7})");
    EXPECT_EQ(zero.safeMode, 7);
}

TEST(TopologyRecords, DeviceNodeWritesEveryKeyInOrder)
{
    DeviceNode node;
    EXPECT_EQ(written(node),
              R"({"guid":"","name":"","ip":"","deviceCategory":0,"sdkDeviceType":0,"deviceClassType":0,)"
              R"("bridgeWorkType":0,"dataSource":0,"online":false,"wifiStrength":0,"serialNo":"","longSerialNo":"",)"
              R"("isRoot":false,"portNodeList":[],"lineList":[],"clientCount2_4":0,"clientCount5":0,)"
              R"("aPclientCount":0,"isSupportSafe":false,"isSafe":false,"safeMode":false})");
}

TEST(TopologyRecords, NestedListsAreEmptiedAtEveryLevel)
{
    DeviceNode node;
    read(node, R"({"portNodeList":[{"linkPort":1,"peerNodeList":[{"guid":"a"},{"guid":"b"}]}],)"
               R"("lineList":[{"lineGuid":"l","portDeviceList":[{"ip":"1.2.3.4","portBandWidth":"1000M"}]}]})");
    ASSERT_EQ(node.portNodeList.size(), 1u);
    ASSERT_EQ(node.portNodeList[0].peerNodeList.size(), 2u);
    EXPECT_EQ(node.portNodeList[0].peerNodeList[1].guid, "b");
    ASSERT_EQ(node.lineList.size(), 1u);
    ASSERT_EQ(node.lineList[0].portDeviceList.size(), 1u);
    EXPECT_EQ(node.lineList[0].portDeviceList[0].portBandWidth, "1000M");

    read(node, R"({"portNodeList":[{"linkPort":2}],"lineList":[{"lineGuid":"m"}]})");
    ASSERT_EQ(node.portNodeList.size(), 1u);
    EXPECT_EQ(node.portNodeList[0].linkPort, 2);
    EXPECT_TRUE(node.portNodeList[0].peerNodeList.empty());
    ASSERT_EQ(node.lineList.size(), 1u);
    EXPECT_TRUE(node.lineList[0].portDeviceList.empty());

    read(node, R"({"guid":"x"})");
    EXPECT_TRUE(node.portNodeList.empty());
    EXPECT_TRUE(node.lineList.empty());
}

TEST(TopologyRecords, LineEnableAndOnlineAreIntegers)
{
    Line line;
    read(line, R"({"enable":2,"online":true})");
    EXPECT_EQ(line.enable, 2);
    EXPECT_EQ(line.online, 1);
    EXPECT_NE(written(line).find(R"("enable":2,"online":1,)"), std::string::npos);
}

TEST(TopologyRecords, PortDeviceBandWidthIsText)
{
    PortDevice device;
    read(device, R"({"portBandWidth":1000})");
    EXPECT_EQ(device.portBandWidth, "");
    EXPECT_EQ(written(device),
              R"({"portDeviceType":0,"guid":"","ip":"","linkPort":0,"portName":"","portType":0,"portBandWidth":""})");
}

TEST(TopologyRecords, ListWrappersAndElements)
{
    EXPECT_EQ(written(*std::make_unique<DeviceNodeListData>()), R"({"deviceNodeList":[]})");
    EXPECT_EQ(written(*std::make_unique<LineListData>()), R"({"lineList":[]})");
    PortListData ports;
    read(ports, R"({"portList":[{"guid":"g","name":"GE1","no":1,"type":2}]})");
    ASSERT_EQ(ports.portList.size(), 1u);
    EXPECT_EQ(ports.portList[0].name, "GE1");
    EXPECT_EQ(written(ports), R"({"portList":[{"guid":"g","name":"GE1","no":1,"type":2}]})");
    SwitchAlarmListData alarms;
    read(alarms, R"({"switchAlarmList":[{"port":3,"isAlarm":false},{"port":4}]})");
    ASSERT_EQ(alarms.switchAlarmList.size(), 2u);
    EXPECT_EQ(alarms.switchAlarmList[1].port, 4);
    EXPECT_EQ(written(alarms), R"({"switchAlarmList":[{"port":3,"isAlarm":false},{"port":4,"isAlarm":false}]})");
}

TEST(TopologyRecords, TopologyParamSecondThresholdKeyEndsInABlank)
{
    TopologyParam param;
    read(param, R"({"secondLevelThreshold":5})");
    EXPECT_EQ(param.secondLevelThreshold, 0);
    EXPECT_EQ(param.presentKeys.count("secondLevelThreshold "), 0u);
    read(param, R"({"secondLevelThreshold ":5,"defalutLevel":2})");
    EXPECT_EQ(param.secondLevelThreshold, 5);
    EXPECT_EQ(param.defalutLevel, 2);
    EXPECT_EQ(param.presentKeys.count("secondLevelThreshold "), 1u);
    EXPECT_EQ(written(param),
              R"({"enable":false,"defalutLevel":2,"firstLevelThreshold":0,"secondLevelThreshold ":5})");
    EXPECT_STREQ(param.rootName(), "param");
}

TEST(TopologyRecords, TopologyParamThresholdsMayBeEqual)
{
    TopologyParam param;
    param.firstLevelThreshold = 3;
    param.secondLevelThreshold = 3;
    std::string error = "untouched";
    EXPECT_TRUE(param.validate(error));
    EXPECT_EQ(error, "untouched");
    param.firstLevelThreshold = 4;
    EXPECT_FALSE(param.validate(error));
    EXPECT_EQ(error, "the primary threshold cannot greater than the second threshold.");
}

TEST(TopologyRecords, QueryConditionComparesMethodExactly)
{
    QueryCondition condition;
    std::string error = "untouched";
    read(condition, R"({"METHOD":"Local"})");
    EXPECT_EQ(condition.method, "Local");
    EXPECT_FALSE(condition.validate(error));
    EXPECT_EQ(error, "untouched");
    condition.method = "local";
    EXPECT_TRUE(condition.validate(error));
    condition.method = "refresh";
    EXPECT_TRUE(condition.validate(error));
    condition.method = "";
    EXPECT_FALSE(condition.validate(error));
    EXPECT_EQ(error, "untouched");
    EXPECT_STREQ(condition.rootName(), "queryCondition");
}

TEST(TopologyRecords, RootAndGatewayNodeNeedAGuid)
{
    RootNode root;
    GatewayNode gateway;
    std::string error = "untouched";
    EXPECT_FALSE(root.validate(error));
    EXPECT_FALSE(gateway.validate(error));
    EXPECT_EQ(error, "untouched");
    root.guid = "r";
    gateway.guid = "g";
    EXPECT_TRUE(root.validate(error));
    EXPECT_TRUE(gateway.validate(error));
    EXPECT_STREQ(root.rootName(), "rootNode");
    EXPECT_STREQ(gateway.rootName(), "gatewayNode");
}

TEST(TopologyRecords, OtherRequestsAlwaysValidate)
{
    RefreshCondition refresh;
    ResetPercent reset;
    PortSecurity security;
    std::string error = "untouched";
    EXPECT_TRUE(refresh.validate(error));
    EXPECT_TRUE(reset.validate(error));
    EXPECT_TRUE(security.validate(error));
    EXPECT_EQ(error, "untouched");
    EXPECT_STREQ(refresh.rootName(), "refreshCondition");
    EXPECT_STREQ(reset.rootName(), "resetPercent");
    EXPECT_STREQ(security.rootName(), "portSecurity");
    EXPECT_EQ(written(security), R"({"enabled":false})");
}

TEST(TopologyRecords, PortSecurityRspStartsAsFirstCreate)
{
    PortSecurityRsp rsp;
    EXPECT_EQ(written(rsp), R"({"enabled":false,"isFirstCreate":true})");
    read(rsp, R"({"isFirstCreate":0})");
    EXPECT_FALSE(rsp.isFirstCreate);
}

TEST(TopologyRecords, ProgressDataHoldsItsProgress)
{
    ProgressData data;
    read(data, R"({"progress":{"percent":55}})");
    EXPECT_EQ(data.progress.percent, 55);
    EXPECT_EQ(written(data), R"({"progress":{"percent":55}})");
}
