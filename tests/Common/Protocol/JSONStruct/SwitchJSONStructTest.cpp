// What a switch can do, and the capability records it sits among.
#include <gtest/gtest.h>

#include <type_traits>

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "RecordTestSupport.h"

using namespace protocol;
using recordtest::read;
using recordtest::written;

static_assert(std::is_default_constructible_v<SwitchCapabilities>);
static_assert(std::is_copy_constructible_v<SwitchCapabilities>);
static_assert(std::is_copy_assignable_v<SwitchCapabilities>);

TEST(SwitchCapabilitiesRecord, WritesFifteenKeysInOrder)
{
    SwitchCapabilities capabilities;
    EXPECT_EQ(written(capabilities),
              R"({"supportBasicInfo":false,"supportWorkStatusBatch":false,"supportCrateSlotStatus":false,)"
              R"("wirelessCardID":"","supportPortStatistic":false,"isLayer3Switch":false,"isDiscoveryMode":false,)"
              R"("bIsChassisDevice":false,"bIsSupportPanelStatus":false,"deviceTypeName":"","switchPriority":-1,)"
              R"("supportRegion":false,"isSupportAPGroup":false,"isSupportAutoSecurityEntry":false,)"
              R"("isSupportLinkNeighbors":false})");
}

TEST(SwitchCapabilitiesRecord, AbsentPriorityStaysMinusOne)
{
    SwitchCapabilities capabilities;
    read(capabilities, R"({"supportWorkStatusBatch":true})");
    EXPECT_EQ(capabilities.switchPriority, -1);
    EXPECT_TRUE(capabilities.supportWorkStatusBatch);
    read(capabilities, R"({"switchPriority":0})");
    EXPECT_EQ(capabilities.switchPriority, 0);
}

TEST(SwitchCapabilitiesRecord, CopyKeepsEverything)
{
    SwitchCapabilities capabilities;
    read(capabilities, R"({"bIsSupportPanelStatus":1,"wirelessCardID":"wlan0","isSupportAPGroup":true})");
    SwitchCapabilities copy(capabilities);
    EXPECT_TRUE(copy.bIsSupportPanelStatus);
    EXPECT_EQ(copy.wirelessCardID, "wlan0");
    EXPECT_TRUE(copy.isSupportAPGroup);
    EXPECT_EQ(copy.presentKeys.size(), 3u);
    SwitchCapabilities assigned;
    assigned = copy;
    EXPECT_EQ(written(assigned), written(capabilities));
}

TEST(CapabilitiesRecord, SwitchCapabilitiesKeyStartsWithACapital)
{
    CapabilitiesData data;
    read(data, R"({"capabilities":{"SwitchCapabilities":{"isLayer3Switch":true},"videoCapabilities":{"MLOXPlatform":true}}})");
    EXPECT_TRUE(data.capabilities.SwitchCapabilities.isLayer3Switch);
    EXPECT_TRUE(data.capabilities.videoCapabilities.MLOXPlatform);
    EXPECT_EQ(data.capabilities.presentKeys.count("SwitchCapabilities"), 1u);
    const std::string text = written(data);
    EXPECT_EQ(text.rfind(R"({"capabilities":{"softHardwareCapabilities":{)", 0), 0u) << text;
    EXPECT_NE(text.find(R"("detectorCapabilities":{"supportSilence":false,"channelDetectorCapList":[]},"SwitchCapabilities":{)"),
              std::string::npos)
        << text;
}

TEST(CapabilitiesRecord, VideoInputCountIsReadFromAnotherKey)
{
    SoftHardwareCapabilities capabilities;
    EXPECT_TRUE(capabilities.showClientRemote);
    read(capabilities, R"({"iVideoInNum":4,"videoOutNum":2})");
    EXPECT_EQ(capabilities.videoInNum, 4);
    EXPECT_EQ(capabilities.videoOutNum, 2);
    const std::string text = written(capabilities);
    EXPECT_NE(text.find(R"("videoInNum":4,"videoOutNum":2,"showClientRemote":true)"), std::string::npos) << text;
    SoftHardwareCapabilities again;
    read(again, text);
    EXPECT_EQ(again.videoInNum, 0);
}

TEST(CapabilitiesRecord, DetectorChannelsStartAtMinusOne)
{
    DetectorCapability detector;
    read(detector, R"({"channelDetectorCapList":[{"channelSupportSilence":true},{"channelNo":3}]})");
    ASSERT_EQ(detector.channelDetectorCapList.size(), 2u);
    EXPECT_EQ(detector.channelDetectorCapList[0].channelNo, -1);
    EXPECT_TRUE(detector.channelDetectorCapList[0].channelSupportSilence);
    EXPECT_EQ(detector.channelDetectorCapList[1].channelNo, 3);
}

TEST(CapabilitiesRecord, QueryConditionIsARequest)
{
    CapabilitiesQueryCondition condition;
    EXPECT_STREQ(condition.rootName(), "capabilitiesQueryCondition");
    EXPECT_EQ(written(condition), R"({"longDeviceGuid":"","capabilitiesFieldFilterList":[]})");
}
