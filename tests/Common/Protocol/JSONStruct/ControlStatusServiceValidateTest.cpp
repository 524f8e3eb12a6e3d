// The checks of the command, status and short message server requests: the first failing
// check of each with its message, their order, a passing record, and what they leave in
// the message.
#include <gtest/gtest.h>

#include "JSONStruct/Control/ControlJSONStruct.h"
#include "JSONStruct/Service/SmsJSONStruct.h"
#include "JSONStruct/Status/StatusJSONStruct.h"
#include "JSONStruct/Validators.h"
#include "RecordTestSupport.h"

using namespace protocol;

namespace {

struct Outcome {
    bool valid;
    std::string error;
};

// Reads `text` into a fresh record of type Record and checks it, starting from an old message.
template <class Record>
Outcome checked(const std::string& text)
{
    Record record;
    recordtest::read(record, text);
    Outcome outcome{false, "old message"};
    outcome.valid = record.validate(outcome.error);
    return outcome;
}

void expectFails(const Outcome& outcome, const std::string& message, const std::string& text)
{
    EXPECT_FALSE(outcome.valid) << text;
    EXPECT_EQ(outcome.error, message) << text;
}

void expectPasses(const Outcome& outcome, const std::string& text)
{
    EXPECT_TRUE(outcome.valid) << text;
    EXPECT_EQ(outcome.error, "") << text;
}

} // namespace

TEST(AlarmOutputControlValidate, EnableMustHaveBeenSent)
{
    expectFails(checked<AlarmOutputControl>("{}"), "enable field not exist!", "{}");
    expectFails(checked<AlarmOutputControl>(R"({"alarmOutPort":1})"), "enable field not exist!", "port only");
    expectPasses(checked<AlarmOutputControl>(R"({"enable":false})"), "enable false");
    expectPasses(checked<AlarmOutputControl>(R"({"ENABLE":"yes","alarmOutPort":-1})"), "any value of enable");

    // Set by code but never read, the field counts as missing.
    AlarmOutputControl control;
    control.enable = true;
    std::string error;
    EXPECT_FALSE(control.validate(error));
    EXPECT_EQ(error, "enable field not exist!");
}

TEST(DoorControlValidate, ChecksCommandThenTargetsInOrder)
{
    const std::pair<const char*, const char*> failures[] = {
        {R"({})", "cmd field not exist!"},
        {R"({"guidList":["g"]})", "cmd field not exist!"},
        {R"({"cmd":"","guidList":[]})", "cmd can't be empty!"},
        {R"({"cmd":5,"guidList":["g"]})", "cmd can't be empty!"},
        {R"({"cmd":"open","guidList":["g"]})", "Unknown cmd value."},
        {R"({"cmd":"OPEN "})", "Unknown cmd value."},
        {R"({"cmd":"OPEN"})", "guidList field not exist!"},
        {R"({"cmd":"OPEN","guidList":[]})", "guidList can't be empty!"},
        {R"({"cmd":"CLOSE","guidList":{}})", "guidList can't be empty!"},
    };
    for (const auto& [text, message] : failures)
        expectFails(checked<DoorControl>(text), message, text);
}

TEST(DoorControlValidate, AcceptsItsFourCommandsInCapitals)
{
    for (const char* command : {"OPEN", "CLOSE", "ALWAYSOPEN", "ALWAYSCLOSE"}) {
        const std::string text = std::string(R"({"cmd":")") + command + R"(","guidList":["a","b"]})";
        expectPasses(checked<DoorControl>(text), text);
    }
    // A list of anything holds elements.
    expectPasses(checked<DoorControl>(R"({"CMD":"OPEN","GUIDLIST":[1]})"), "keys in capitals, a number");
}

TEST(PartitionControlValidate, ChecksCommandThenTargetsInOrder)
{
    const std::pair<const char*, const char*> failures[] = {
        {R"({"guidList":["g"]})", "cmd field not exist!"},
        {R"({"cmd":""})", "cmd can't be empty!"},
        {R"({"cmd":"Away","guidList":["g"]})", "Unknown cmd value."},
        {R"({"cmd":"OPEN","guidList":["g"]})", "Unknown cmd value."},
        {R"({"cmd":"clearalarm","guidList":["g"]})", "Unknown cmd value."},
        {R"({"cmd":"stay"})", "guidList field not exist!"},
        {R"({"cmd":"disarm","guidList":[]})", "guidList can't be empty!"},
    };
    for (const auto& [text, message] : failures)
        expectFails(checked<PartitionControl>(text), message, text);
    for (const char* command : {"away", "instant", "stay", "disarm", "clearAlarm", "bypass", "bypassRecover"}) {
        const std::string text = std::string(R"({"cmd":")") + command + R"(","guidList":["p1"]})";
        expectPasses(checked<PartitionControl>(text), text);
    }
}

TEST(RelayControlValidate, ComparesCommandsExactlyAndWantsNumbers)
{
    const std::pair<const char*, const char*> failures[] = {
        {R"({"noList":[1]})", "cmd field not exist!"},
        {R"({"cmd":"","noList":[1]})", "cmd can't be empty!"},
        {R"({"cmd":"OPEN","noList":[1]})", "Unknown cmd value."},
        {R"({"cmd":"Close","noList":[1]})", "Unknown cmd value."},
        {R"({"cmd":"open"})", "noList field not exist!"},
        {R"({"cmd":"open","guidList":["g"]})", "noList field not exist!"},
        {R"({"cmd":"close","noList":[]})", "noList can't be empty!"},
    };
    for (const auto& [text, message] : failures)
        expectFails(checked<RelayControl>(text), message, text);
    expectPasses(checked<RelayControl>(R"({"cmd":"open","noList":[1,2]})"), "open");
    expectPasses(checked<RelayControl>(R"({"cmd":"close","noList":[0]})"), "close");
    // "open" passes the relay's check and fails the door's.
    expectFails(checked<DoorControl>(R"({"cmd":"open","guidList":["g"]})"), "Unknown cmd value.", "door open");
}

TEST(ZoneControlValidate, AcceptsEverythingAndLeavesTheMessageAlone)
{
    const Outcome outcome = checked<ZoneControl>("{}");
    EXPECT_TRUE(outcome.valid);
    EXPECT_EQ(outcome.error, "old message");
}

TEST(DoorStatusReqValidate, ListMustHaveBeenSentAndHoldAnElement)
{
    expectFails(checked<DoorStatusReq>("{}"), "guidList field not exist!", "{}");
    expectFails(checked<DoorStatusReq>(R"({"guidList":[]})"), "guidList can't be empty!", "[]");
    expectPasses(checked<DoorStatusReq>(R"({"guidList":["d1"]})"), "one door");

    // Filled by code but never read, the list counts as missing.
    DoorStatusReq request;
    request.guidList = {"d1"};
    std::string error;
    EXPECT_FALSE(request.validate(error));
    EXPECT_EQ(error, "guidList field not exist!");
}

TEST(SmsGuidListValidate, OnlyTheListsElementsCount)
{
    expectFails(checked<SmsGuidList>("{}"), "guidList can't be empty!", "{}");
    expectFails(checked<SmsGuidList>(R"({"guidList":[]})"), "guidList can't be empty!", "[]");
    expectPasses(checked<SmsGuidList>(R"({"guidList":["s"]})"), "one server");

    // Unlike the status request, a list filled by code passes without having been read.
    SmsGuidList list;
    list.guidList = {"s"};
    std::string error = "old";
    EXPECT_TRUE(list.validate(error));
    EXPECT_EQ(error, "");
}

TEST(SmsModificationReqValidate, WantsAFieldAndChecksTheFormatsOfThoseSent)
{
    const std::string alias32(32, 'a');
    const std::string ip64(64, '1');
    const std::pair<std::string, const char*> failures[] = {
        {"{}", "no field exist!"},
        {R"({"other":1})", "no field exist!"},
        {R"({"alias":""})", "alias can't be empty!"},
        {R"({"alias":")" + alias32 + R"(a"})", "alias not match format!"},
        {R"({"alias":"a\nb"})", "alias not match format!"},
        {R"({"alias":"","ip":""})", "alias can't be empty!"},
        {R"({"alias":"a","ip":""})", "ip can't be empty!"},
        {R"({"ip":")" + ip64 + R"(1"})", "ip not match format!"},
        {R"({"alias":5,"ip":"1.1.1.1"})", "alias can't be empty!"},
    };
    for (const auto& [text, message] : failures)
        expectFails(checked<SmsModificationReq>(text), message, text);

    const std::string passes[] = {
        R"({"port":8000})",
        R"({"port":-1})",
        R"({"alias":")" + alias32 + R"("})",
        R"({"ip":")" + ip64 + R"("})",
        R"({"alias":"sms","ip":"10.0.0.2","port":554})",
    };
    for (const std::string& text : passes)
        expectPasses(checked<SmsModificationReq>(text), text);
}

TEST(SmsModificationReqValidate, RecordFilledByCodeHasNoFieldSent)
{
    SmsModificationReq request;
    request.alias = "sms";
    request.port = 554;
    std::string error;
    EXPECT_FALSE(request.validate(error));
    EXPECT_EQ(error, "no field exist!");
}

TEST(CommandChecks, SharedHelpersKeepTheirOrderForAnyKeys)
{
    DoorControl record;
    recordtest::read(record, R"({"mode":"x","targets":[]})");
    std::string error;
    EXPECT_FALSE(checkCommand(error, record, "mode", "x", {"y"}, "targets", std::vector<std::string>{}));
    EXPECT_EQ(error, "mode field not exist!");
    RelayControl relay;
    recordtest::read(relay, R"({"cmd":"x"})");
    EXPECT_FALSE(checkListSentAndNotEmpty(error, relay, "noList", relay.noList));
    EXPECT_EQ(error, "noList field not exist!");
    EXPECT_TRUE(checkFormatIfSent(error, relay, "other", "", "^x$"));
    EXPECT_EQ(error, "");
    EXPECT_FALSE(checkFormatIfSent(error, relay, "cmd", relay.cmd, "^y$"));
    EXPECT_EQ(error, "cmd not match format!");
}
