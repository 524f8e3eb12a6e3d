// Faults injected per device and path, at start and at run time: delay, error status,
// dropped connection, truncated and malformed bodies, endless and failing paged searches,
// answers given in full.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <fstream>

using namespace velmora::test;
using Fault = EmulatorProcess::Fault;

namespace {

class EmulatorFaultsTest : public EmulatorSuite<EmulatorFaultsTest> {
public:
    static EmulatorOptions options() { return {"demo", 5, {}}; }

protected:
    void SetUp() override
    {
        EmulatorSuite::SetUp();
        if (HasFatalFailure())
            return;
        ASSERT_TRUE(s_emulator->clearFaults());
        m_switch = *s_emulator->device(s_emulator->deviceId(120, "QN-1040"));
        m_ac = *s_emulator->device(s_emulator->deviceId(124, "QN-1156"));
    }
    void TearDown() override { s_emulator->clearFaults(); }

    std::string apSearch(const std::string& searchId, int position)
    {
        return searchCondition("ApInfoSearchCond", searchId, 50, position, true);
    }

    EmulatorProcess::Device m_switch;
    EmulatorProcess::Device m_ac;
};

const char* const kStatus = "/NXRPC/System/status";
const char* const kApList = "/NXRPC/Transfers/AP/basicInfo?format=json";

} // namespace

TEST_F(EmulatorFaultsTest, DelayHoldsTheAnswerBack)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, Fault::delay(600)));
    const HttpResult slow = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(slow.status, 200);
    EXPECT_GE(slow.seconds, 0.6);
    EXPECT_EQ(checkAnswer(slow.body, "DeviceStatus", false), "");
    // Other paths and other devices are not delayed.
    EXPECT_LT(deviceRequest(*s_emulator, m_switch, "GET", "/NXRPC/Transfers/Switches/basicInfo").seconds, 0.5);
    EXPECT_LT(deviceRequest(*s_emulator, m_ac, "GET", kStatus).seconds, 0.5);
    // A client that waits less than the delay times out.
    RequestOptions impatient;
    impatient.timeoutMs = 300;
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus, std::string(), impatient).code, CURLE_OPERATION_TIMEDOUT);
}

TEST_F(EmulatorFaultsTest, StatusAnswersTheErrorBody)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, Fault::httpStatus(503)));
    const HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(r.status, 503);
    ASSERT_EQ(checkAnswer(r.body, "ResponseStatus", false), "");
    const XmlDoc doc = parseXml(r.body);
    EXPECT_EQ(text(child(doc.root(), "statusCode")), "2");
    EXPECT_EQ(text(child(doc.root(), "statusString")), "Device Busy");

    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "/NXRPC/Transfers/Switches/portCfg/portPOEInfo*", Fault::httpStatus(500)));
    const HttpResult json = deviceRequest(*s_emulator, m_switch, "GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo?format=json");
    EXPECT_EQ(json.status, 500);
    EXPECT_EQ(checkAnswer(json.body, "ResponseStatus", true), "");
}

TEST_F(EmulatorFaultsTest, DropClosesTheConnectionWithoutAnswer)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, Fault::drop()));
    const HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(r.code, CURLE_GOT_NOTHING);
    EXPECT_TRUE(r.body.empty());
}

TEST_F(EmulatorFaultsTest, TruncateCutsTheBody)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, Fault::truncate()));
    HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(r.code, CURLE_PARTIAL_FILE);
    ASSERT_TRUE(r.headers.count("content-length"));
    EXPECT_LT(r.body.size(), std::stoul(r.header("content-length")));
    EXPECT_GT(r.body.size(), 0u);
}

TEST_F(EmulatorFaultsTest, MalformedBodiesAreNotReadable)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "*", Fault::malformed()));
    const HttpResult xml = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(xml.status, 200);
    EXPECT_FALSE(parseXml(xml.body).ok());
    const HttpResult json = deviceRequest(*s_emulator, m_switch, "GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json");
    EXPECT_EQ(json.status, 200);
    EXPECT_EQ(parseJson(json.body), nullptr);
}

TEST_F(EmulatorFaultsTest, MoreForeverNeverEndsAWalk)
{
    ASSERT_TRUE(s_emulator->setFault(m_ac.id, kApList, Fault::moreForever()));
    for (int page = 0; page < 12; ++page) {
        const HttpResult r = deviceRequest(*s_emulator, m_ac, "POST", kApList, apSearch("endless", page * 50));
        ASSERT_EQ(r.status, 200);
        const JsonPtr json = parseJson(r.body);
        EXPECT_STREQ(cJSON_GetObjectItemCaseSensitive(jsonRecord(json.get(), "ApInfoSearchResult"), "responseStatus")->valuestring, "MORE");
    }
}

TEST_F(EmulatorFaultsTest, FailPageFailsTheNthPageOfAWalk)
{
    ASSERT_TRUE(s_emulator->setFault(m_ac.id, kApList, Fault::failPage(3, 503)));
    EXPECT_EQ(deviceRequest(*s_emulator, m_ac, "POST", kApList, apSearch("walk", 0)).status, 200);
    EXPECT_EQ(deviceRequest(*s_emulator, m_ac, "POST", kApList, apSearch("walk", 50)).status, 200);
    const HttpResult third = deviceRequest(*s_emulator, m_ac, "POST", kApList, apSearch("walk", 100));
    EXPECT_EQ(third.status, 503);
    EXPECT_EQ(checkAnswer(third.body, "ResponseStatus", true), "");
    // Another walk counts its own pages.
    EXPECT_EQ(deviceRequest(*s_emulator, m_ac, "POST", kApList, apSearch("other", 0)).status, 200);
}

TEST_F(EmulatorFaultsTest, CountLimitsAFaultAndClearingEndsAll)
{
    Fault once = Fault::httpStatus(500);
    once.count = 1;
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, once));
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 500);
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 200);

    ASSERT_TRUE(s_emulator->setFault("*", "*", Fault::httpStatus(500)));
    EXPECT_EQ(deviceRequest(*s_emulator, m_ac, "GET", kStatus).status, 500);
    ASSERT_TRUE(s_emulator->clearFaults());
    EXPECT_EQ(deviceRequest(*s_emulator, m_ac, "GET", kStatus).status, 200);
}

TEST_F(EmulatorFaultsTest, AnswerSendsTheGivenBodyInThePathsType)
{
    const std::string xml = "<DeviceStatus><cpuUsage>abc</cpuUsage></DeviceStatus>";
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, kStatus, Fault::answer(xml)));
    HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(r.body, xml);
    EXPECT_EQ(r.header("content-type").rfind("application/xml", 0), 0u);

    const char* const poe = "/NXRPC/Transfers/Switches/portCfg/portPOEInfo?format=json";
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "/NXRPC/Transfers/Switches/portCfg/portPOEInfo*",
                                     Fault::answer("{\"odd\": true}", 202)));
    r = deviceRequest(*s_emulator, m_switch, "GET", poe);
    EXPECT_EQ(r.status, 202);
    EXPECT_EQ(r.body, "{\"odd\": true}");
    EXPECT_EQ(r.header("content-type").rfind("application/json", 0), 0u);

    // The services take given answers too.
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "/topology/v1/deviceNode", Fault::answer("{\"code\": 7}")));
    EXPECT_EQ(serviceRequest(*s_emulator, "GET", "/topology/v1/deviceNode?guid=" + m_switch.id).body, "{\"code\": 7}");
}

TEST_F(EmulatorFaultsTest, AnAnswerFaultWithAnImpossibleStatusIsRefused)
{
    EXPECT_FALSE(s_emulator->setFault(m_switch.id, kStatus, Fault::answer("x", 99)));
    EXPECT_FALSE(s_emulator->setFault(m_switch.id, kStatus, Fault::answer("x", 600)));
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 200);
}

TEST_F(EmulatorFaultsTest, ServicesTakeFaultsByGuid)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "/topology/v1/deviceNode", Fault::httpStatus(500)));
    EXPECT_EQ(serviceRequest(*s_emulator, "GET", "/topology/v1/deviceNode?guid=" + m_switch.id).status, 500);
    EXPECT_EQ(serviceRequest(*s_emulator, "GET", "/topology/v1/deviceNode?guid=" + m_ac.id).status, 200);
}

TEST_F(EmulatorFaultsTest, FaultsCanBeSetAtStart)
{
    QTemporaryDir dir;
    const std::string file = dir.filePath("faults.json").toStdString();
    std::ofstream(file) << R"([{"device": "*", "path": "/NXRPC/Transfers/Switches/basicInfo", "kind": "status", "status": 404}])";
    EmulatorProcess faulty("demo", 5,
                           {"--fault", "device=*,path=/NXRPC/System/status,kind=status,status=503", "--faults", file});
    ASSERT_TRUE(faulty.isRunning()) << faulty.errorString();
    const EmulatorProcess::Device d = *faulty.device(faulty.deviceId(120, "QN-1040"));
    EXPECT_EQ(deviceRequest(faulty, d, "GET", kStatus).status, 503);
    EXPECT_EQ(deviceRequest(faulty, d, "GET", "/NXRPC/Transfers/Switches/basicInfo").status, 404);
    EXPECT_EQ(deviceRequest(faulty, d, "GET", "/NXRPC/Transfers/Switches/workState").status, 200);
}
