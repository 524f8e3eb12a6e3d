// The service envelopes and the error code text: parsing, failures and their log lines,
// and the text each envelope writes.
#include <gtest/gtest.h>

#include <memory>

#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "RecordTestSupport.h"

using namespace protocol;
using recordtest::LogCapture;

TEST(ErrorCodeText, TwoPiecesGiveModuleAndCode)
{
    LogCapture log;
    Plinth::Error::ErrorCode code = Str2ErrorCode("7-9");
    EXPECT_EQ(code.module, 7);
    EXPECT_EQ(code.code, 9);
    EXPECT_EQ(code.text, "");
    code = Str2ErrorCode("7--9");
    EXPECT_EQ(code.module, 7);
    EXPECT_EQ(code.code, 9);
    code = Str2ErrorCode("-1-5");
    EXPECT_EQ(code.module, 1);
    EXPECT_EQ(code.code, 5);
    EXPECT_TRUE(log.errors().empty());
}

TEST(ErrorCodeText, OtherShapesLogAndGiveZero)
{
    for (const char* text : {"1-2-3", "12", ""}) {
        LogCapture log;
        const Plinth::Error::ErrorCode code = Str2ErrorCode(text);
        EXPECT_EQ(code.module, 0) << text;
        EXPECT_EQ(code.code, 0) << text;
        ASSERT_EQ(log.errors().size(), 1u) << text;
        EXPECT_EQ(log.errors()[0], std::string("Invalid return code. code: [") + text + "].");
    }
}

TEST(ErrorCodeText, WrittenAsModuleDashCode)
{
    Plinth::Error::ErrorCode code;
    code.module = 12;
    code.code = -3;
    EXPECT_EQ(ErrorCode2Str(code), "12--3");
    EXPECT_EQ(ErrorCode2Str(Plinth::Error::ErrorCode()), "0-0");
}

TEST(ReturnDataEnvelope, EmptyObjectParses)
{
    ReturnData envelope;
    EXPECT_TRUE(envelope.Parse("{}"));
    EXPECT_FALSE(envelope.code.isError());
    EXPECT_EQ(envelope.msg, "");
}

TEST(ReturnDataEnvelope, EmptyTextFailsWithoutLog)
{
    LogCapture log;
    ReturnData envelope;
    EXPECT_FALSE(envelope.Parse(""));
    EXPECT_TRUE(log.all().empty());
}

TEST(ReturnDataEnvelope, BrokenTextFailsWithLog)
{
    LogCapture log;
    ReturnData envelope;
    EXPECT_FALSE(envelope.Parse("{\"code\":"));
    ASSERT_EQ(log.errors().size(), 1u);
    EXPECT_EQ(log.errors()[0].rfind("Failed to cJSON_Parse( [{\"code\":] ). Error info: [", 0), 0u) << log.errors()[0];
}

TEST(ReturnDataEnvelope, ReadsCodeMessageAndData)
{
    auto node = std::make_shared<DeviceNode>();
    ReturnData envelope(node);
    EXPECT_TRUE(envelope.Parse(R"({"code":"3-14","msg":"no such device","data":{"guid":"g","name":"n"}})"));
    EXPECT_EQ(envelope.code.module, 3);
    EXPECT_EQ(envelope.code.code, 14);
    EXPECT_EQ(envelope.msg, "no such device");
    EXPECT_EQ(node->guid, "g");
    EXPECT_EQ(node->name, "n");
}

TEST(ReturnDataEnvelope, MissingKeysLeaveMembers)
{
    ReturnData envelope;
    envelope.code.module = 4;
    envelope.msg = "kept";
    EXPECT_TRUE(envelope.Parse(R"({"data":{}})"));
    EXPECT_EQ(envelope.code.module, 4);
    EXPECT_EQ(envelope.msg, "kept");
}

TEST(ReturnDataEnvelope, NumericCodeCountsAsEmptyText)
{
    LogCapture log;
    ReturnData envelope;
    envelope.code.module = 4;
    EXPECT_TRUE(envelope.Parse(R"({"code":0,"msg":"ok"})"));
    EXPECT_FALSE(envelope.code.isError());
    ASSERT_EQ(log.errors().size(), 1u);
    EXPECT_EQ(log.errors()[0], "Invalid return code. code: [].");
}

TEST(ReturnDataEnvelope, SerializeWritesIndentedCodeMessageAndData)
{
    auto alarms = std::make_shared<SwitchAlarmListData>();
    alarms->switchAlarmList.resize(1);
    alarms->switchAlarmList[0].port = 2;
    ReturnData envelope(alarms);
    envelope.code.module = 1;
    envelope.code.code = 2;
    envelope.msg = "m";
    const std::string text = envelope.Serialize();
    EXPECT_NE(text.find('\n'), std::string::npos);
    recordtest::Json json = recordtest::parse(text);
    EXPECT_EQ(recordtest::print(json.get()),
              R"({"code":"1-2","msg":"m","data":{"switchAlarmList":[{"port":2,"isAlarm":false}]}})");

    ReturnData bare;
    EXPECT_EQ(recordtest::print(recordtest::parse(bare.Serialize()).get()), R"({"code":"0-0","msg":""})");
}

TEST(VideoWallEnvelope, ReadsBareNumbersAndModuleBesideMessage)
{
    auto progress = std::make_shared<ProgressData>();
    ReturnDataForVideoWall envelope(progress);
    EXPECT_TRUE(envelope.Parse(R"({"code":"17","msg":"busy","module":"5","data":{"progress":{"percent":40}}})"));
    EXPECT_EQ(envelope.code.code, 17);
    EXPECT_EQ(envelope.code.module, 5);
    EXPECT_EQ(envelope.msg, "busy");
    EXPECT_EQ(progress->progress.percent, 40);
}

TEST(VideoWallEnvelope, ModuleWithoutMessageIsNotRead)
{
    ReturnDataForVideoWall envelope;
    EXPECT_TRUE(envelope.Parse(R"({"code":"2","module":"5"})"));
    EXPECT_EQ(envelope.code.code, 2);
    EXPECT_EQ(envelope.code.module, 0);
}

TEST(VideoWallEnvelope, FailuresAsTheServiceEnvelope)
{
    LogCapture log;
    ReturnDataForVideoWall envelope;
    EXPECT_FALSE(envelope.Parse(""));
    EXPECT_TRUE(log.all().empty());
    EXPECT_FALSE(envelope.Parse("nope"));
    ASSERT_EQ(log.errors().size(), 1u);
    EXPECT_EQ(log.errors()[0].rfind("Failed to cJSON_Parse( [nope] ). Error info: [", 0), 0u);
}

TEST(VideoWallEnvelope, SerializeWritesNumbers)
{
    ReturnDataForVideoWall envelope;
    envelope.code.code = 17;
    envelope.code.module = 5;
    envelope.msg = "m";
    const std::string text = envelope.Serialize();
    EXPECT_NE(text.find('\n'), std::string::npos);
    EXPECT_EQ(recordtest::print(recordtest::parse(text).get()), R"({"code":17,"msg":"m","module":5})");
}

TEST(RapidJsonEnvelope, ReadsCodeMessageAndObjectData)
{
    auto alarms = std::make_shared<SwitchAlarmListData>();
    RJReturnData envelope(std::make_shared<RJRecordAdapter>(alarms));
    EXPECT_TRUE(envelope.parse(R"({"code":"0-0","msg":"fine","data":{"SWITCHALARMLIST":[{"port":7,"isAlarm":true}]}})"));
    EXPECT_FALSE(envelope.code.isError());
    EXPECT_EQ(envelope.msg, "fine");
    ASSERT_EQ(alarms->switchAlarmList.size(), 1u);
    EXPECT_EQ(alarms->switchAlarmList[0].port, 7);
    EXPECT_TRUE(alarms->switchAlarmList[0].isAlarm);
}

TEST(RapidJsonEnvelope, DataThatIsNotAnObjectIsNotPassed)
{
    auto alarms = std::make_shared<SwitchAlarmListData>();
    alarms->switchAlarmList.resize(2);
    RJReturnData envelope(std::make_shared<RJRecordAdapter>(alarms));
    EXPECT_TRUE(envelope.parse(R"({"data":[1,2]})"));
    EXPECT_EQ(alarms->switchAlarmList.size(), 2u);
}

TEST(RapidJsonEnvelope, CodeOfAnotherTypeLogsAndGivesZero)
{
    LogCapture log;
    RJReturnData envelope;
    envelope.code.module = 9;
    EXPECT_TRUE(envelope.parse(R"({"code":5,"msg":7})"));
    EXPECT_FALSE(envelope.code.isError());
    EXPECT_EQ(envelope.msg, "");
    ASSERT_EQ(log.errors().size(), 1u);
    EXPECT_EQ(log.errors()[0], "Invalid return code. code: [].");
}

TEST(RapidJsonEnvelope, FailuresAreReportedWithCodeAndOffset)
{
    LogCapture log;
    RJReturnData envelope;
    EXPECT_FALSE(envelope.parse(""));
    EXPECT_TRUE(log.all().empty());
    EXPECT_FALSE(envelope.parse("{\"code\" 1}"));
    ASSERT_EQ(log.errors().size(), 1u);
    // RapidJSON's kParseErrorObjectMissColon is 5, found at offset 8.
    EXPECT_EQ(log.errors()[0], "Parsing JSON fails.[ParseErrorCode=5,ErrorOffset=8,json={\"code\" 1}]");
}

TEST(RapidJsonEnvelope, DocumentThatIsNotAnObjectHasNoKeys)
{
    RJReturnData envelope;
    envelope.msg = "kept";
    EXPECT_TRUE(envelope.parse("[1]"));
    EXPECT_TRUE(envelope.parse("5"));
    EXPECT_EQ(envelope.msg, "kept");
}

TEST(RapidJsonEnvelope, SerializeThroughTheWriter)
{
    auto alarms = std::make_shared<SwitchAlarmListData>();
    alarms->switchAlarmList.resize(1);
    RJReturnData envelope(std::make_shared<RJRecordAdapter>(alarms));
    envelope.code.module = 2;
    envelope.code.code = 8;
    envelope.msg = "m";
    EXPECT_EQ(envelope.Serialize(), R"({"code":"2-8","msg":"m","data":{"switchAlarmList":[{"port":0,"isAlarm":false}]}})");
    RJReturnData bare;
    EXPECT_EQ(bare.Serialize(), R"({"code":"0-0","msg":""})");
}
