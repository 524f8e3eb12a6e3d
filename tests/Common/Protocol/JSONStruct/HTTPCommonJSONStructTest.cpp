// The service envelopes and the error code text: parsing, failures and their log lines,
// the text each envelope writes, and answers nested too deeply.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "DeepJson.h"
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

// ---------------------------------------------------------------------------------------------
// Answers nested deeper than any record: each envelope refuses them with its log line, or
// reads them when they stay within the depth cJSON allows; on the GUI thread and on a pool
// thread with a small stack alike.

namespace {

constexpr std::size_t kVeryDeep = 100000;
constexpr std::size_t kDeepest = CJSON_NESTING_LIMIT; // the depth all three envelopes still read

struct ThreeEnvelopes {
    bool parsed[3] = {false, false, false};
    std::vector<std::string> errors;
};

ThreeEnvelopes parseWithEachEnvelope(const std::string& text)
{
    ThreeEnvelopes result;
    LogCapture log;
    ReturnData service(std::make_shared<DeviceNode>());
    ReturnDataForVideoWall wall(std::make_shared<SwitchAlarmListData>());
    RJReturnData rapid(std::make_shared<RJRecordAdapter>(std::make_shared<DeviceNodeListData>()));
    result.parsed[0] = service.Parse(text);
    result.parsed[1] = wall.Parse(text);
    result.parsed[2] = rapid.parse(text);
    // What was read is written out again, as a caller may do.
    if (result.parsed[0])
        service.Serialize();
    if (result.parsed[1])
        wall.Serialize();
    if (result.parsed[2])
        rapid.Serialize();
    result.errors = log.errors();
    return result;
}

void expectRefusedByAll(const ThreeEnvelopes& result, const std::string& what)
{
    for (bool parsed : result.parsed)
        EXPECT_FALSE(parsed) << what;
    ASSERT_EQ(result.errors.size(), 3u) << what;
    EXPECT_EQ(result.errors[0].rfind("Failed to cJSON_Parse( [", 0), 0u) << what;
    EXPECT_EQ(result.errors[1].rfind("Failed to cJSON_Parse( [", 0), 0u) << what;
    EXPECT_EQ(result.errors[2].rfind("Parsing JSON fails.[ParseErrorCode=" +
                                         std::to_string(rapidjson::kParseErrorTermination) + ",",
                                     0),
              0u)
        << what;
}

void expectReadByAll(const ThreeEnvelopes& result, const std::string& what)
{
    for (bool parsed : result.parsed)
        EXPECT_TRUE(parsed) << what;
    EXPECT_TRUE(result.errors.empty()) << what;
}

struct DeepCase {
    const char* what;
    std::string text;
    bool read;
};

std::vector<DeepCase> deepCases()
{
    using namespace recordtest;
    return {
        {"arrays 100000 deep", nestedArrays(kVeryDeep), false},
        {"objects 100000 deep", nestedObjects(kVeryDeep), false},
        {"data of objects 100000 deep", answerWithData(nestedObjects(kVeryDeep)), false},
        {"data of arrays 100000 deep", answerWithData(nestedArrays(kVeryDeep)), false},
        {"unclosed arrays 100000 deep", std::string(kVeryDeep, '['), false},
        {"one level too deep", answerWithData(nestedObjects(kDeepest)), false},
        {"arrays one level too deep", nestedArrays(kDeepest + 1), false},
        {"data as deep as allowed", answerWithData(nestedObjects(kDeepest - 1)), true},
        {"arrays as deep as allowed", nestedArrays(kDeepest), true},
    };
}

void checkDeepCases()
{
    for (const DeepCase& c : deepCases()) {
        const ThreeEnvelopes result = parseWithEachEnvelope(c.text);
        if (c.read)
            expectReadByAll(result, c.what);
        else
            expectRefusedByAll(result, c.what);
    }
}

} // namespace

TEST(DeeplyNestedAnswers, AreRefusedWithALogLineOrReadByAllThreeEnvelopes)
{
    checkDeepCases();
}

TEST(DeeplyNestedAnswers, OnAPoolThreadWithASmallStackToo)
{
    recordtest::runOnPoolThread(checkDeepCases);
}

TEST(DeeplyNestedAnswers, DataAsDeepAsAllowedReachesTheRecord)
{
    // The record reads what it knows next to a deep value it doesn't.
    const std::string text = recordtest::answerWithData(R"({"SWITCHALARMLIST":[{"port":7,"isAlarm":true}],"deep":)" +
                                                        recordtest::nestedArrays(kDeepest - 2) + "}");
    auto run = [&] {
        auto alarms = std::make_shared<SwitchAlarmListData>();
        RJReturnData rapid(std::make_shared<RJRecordAdapter>(alarms));
        EXPECT_TRUE(rapid.parse(text));
        ASSERT_EQ(alarms->switchAlarmList.size(), 1u);
        EXPECT_EQ(alarms->switchAlarmList[0].port, 7);
        auto viaCJson = std::make_shared<SwitchAlarmListData>();
        ReturnData service(viaCJson);
        EXPECT_TRUE(service.Parse(text));
        ASSERT_EQ(viaCJson->switchAlarmList.size(), 1u);
        EXPECT_EQ(viaCJson->switchAlarmList[0].port, 7);
    };
    run();
    recordtest::runOnPoolThread(run);
}

TEST(DeeplyNestedAnswers, RecordAdapterLogsAValueTooDeepForCJson)
{
    rapidjson::Document document;
    document.Parse(recordtest::nestedArrays(kDeepest + 1).c_str());
    ASSERT_FALSE(document.HasParseError());
    auto alarms = std::make_shared<SwitchAlarmListData>();
    RJRecordAdapter adapter(alarms);
    LogCapture log;
    adapter.fromJSON(document);
    ASSERT_EQ(log.errors().size(), 1u);
    EXPECT_EQ(log.errors()[0].rfind("Failed to cJSON_Parse( [", 0), 0u);
    EXPECT_TRUE(alarms->switchAlarmList.empty());
}
