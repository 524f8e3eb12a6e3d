// ParamInterface against the device emulator on loopback: the request each operation sends,
// what it logs on success and failure, how paged walks go, and how faults of the device end.
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cjson/cJSON.h>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "support/LogCapture.h"
#include "Plinth/Error.h"
#include "Plinth/StringUtil.h"
#include "logical/interface/ParamInterface.h"
#include "senvia/TransportTimings.h"
#include "support/EmulatorProcess.h"

namespace {

using velmora::ParamInterface;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;
using velmora::test::LogLine;
using Clock = std::chrono::steady_clock;

// The emulator of the whole suite; started once.
EmulatorProcess* g_emulator = nullptr;

bool capabilityFlag(const EmulatorProcess::Device& device, const char* key)
{
    cJSON* root = cJSON_Parse(device.capabilitiesJson.c_str());
    const bool value = cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(root, key));
    cJSON_Delete(root);
    return value;
}

std::string capabilityText(const EmulatorProcess::Device& device, const char* key)
{
    cJSON* root = cJSON_Parse(device.capabilitiesJson.c_str());
    const cJSON* item = cJSON_GetObjectItemCaseSensitive(root, key);
    std::string value = cJSON_IsString(item) ? item->valuestring : "";
    cJSON_Delete(root);
    return value;
}

// The first device of the category that has every capability flag named (empty: none).
std::string deviceWith(int category, const std::vector<const char*>& flags = {})
{
    for (const EmulatorProcess::Device& device : g_emulator->devices()) {
        if (device.category != category) {
            continue;
        }
        bool all = true;
        for (const char* flag : flags) {
            all = all && capabilityFlag(device, flag);
        }
        if (all) {
            return device.id;
        }
    }
    return std::string();
}

std::string bridgeCard(const std::string& id)
{
    return capabilityText(*g_emulator->device(id), "wirelessCardID");
}

// The body that a search condition carries, read back from the request.
struct SentCondition {
    std::string searchID;
    int maxResults = 0;
    int searchResultPosition = 0;
};

SentCondition conditionOf(const EmulatorProcess::Request& request, const char* root)
{
    SentCondition sent;
    cJSON* doc = cJSON_Parse(request.body.c_str());
    const cJSON* cond = cJSON_GetObjectItemCaseSensitive(doc, root);
    if (cJSON_IsObject(cond)) {
        const cJSON* id = cJSON_GetObjectItemCaseSensitive(cond, "searchID");
        sent.searchID = cJSON_IsString(id) ? id->valuestring : "";
        sent.maxResults = cJSON_GetObjectItemCaseSensitive(cond, "maxResults")->valueint;
        sent.searchResultPosition = cJSON_GetObjectItemCaseSensitive(cond, "searchResultPosition")->valueint;
    }
    cJSON_Delete(doc);
    return sent;
}

// What the device was asked, leaving out the digest challenges of the login.
std::vector<EmulatorProcess::Request> answered(const std::string& id)
{
    std::vector<EmulatorProcess::Request> found;
    for (const EmulatorProcess::Request& request : g_emulator->requestLog(id)) {
        if (request.status != 401) {
            found.push_back(request);
        }
    }
    return found;
}

std::vector<EmulatorProcess::Request> requestsTo(const std::string& id, const std::string& requestLine)
{
    std::vector<EmulatorProcess::Request> found;
    for (const EmulatorProcess::Request& request : answered(id)) {
        if (request.requestLine == requestLine) {
            found.push_back(request);
        }
    }
    return found;
}

bool startsWith(const std::string& text, const std::string& prefix) { return text.compare(0, prefix.size(), prefix) == 0; }

// A delayed answer that the client gave up on still reaches the emulator's request log
// when its delay is over; wait for that before the next test looks at the log.
void letDelayPass(Clock::time_point start, int delayMs)
{
    std::this_thread::sleep_until(start + std::chrono::milliseconds(delayMs + 300));
}

class ParamInterfaceTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        g_emulator = new EmulatorProcess("demo");
    }
    static void TearDownTestSuite()
    {
        delete g_emulator;
        g_emulator = nullptr;
    }

    void SetUp() override
    {
        ASSERT_TRUE(g_emulator->isRunning()) << g_emulator->errorString();
        g_emulator->clearFaults();
        g_emulator->clearRequestLog();
        // A device that timed out in one test is not held as unreachable in the next.
        senvia::forgetUnreachableDevices();
    }
    void TearDown() override { g_emulator->clearFaults(); }

    LogCapture m_log;
};

// One single-shot operation of the query layer, as the tests exercise it.
struct Operation {
    const char* name;
    std::function<std::string()> device;             // picks the device
    std::function<bool(const std::string&)> call;    // runs the operation on it
    std::function<std::string(const std::string&)> literal; // requestUrl as the operation writes it
    const char* successText;                         // null: no success log
    const char* failureText;
    const char* answerMark;                          // a piece of the answer the success log shows
};

std::string crlf(const std::string& line) { return line + "\r\n"; }
std::function<std::string(const std::string&)> fixed(const std::string& literal)
{
    return [literal](const std::string&) { return literal; };
}

std::vector<Operation> operations()
{
    auto aSwitch = [] { return deviceWith(120); };
    auto batchSwitch = [] { return deviceWith(120, {"supportWorkStatusBatch"}); };
    auto chassis = [] { return deviceWith(120, {"bIsChassisDevice"}); };
    auto panelSwitch = [] { return deviceWith(120, {"bIsSupportPanelStatus"}); };
    auto fiber = [] { return deviceWith(122, {"supportCrateSlotStatus"}); };
    auto controller = [] { return deviceWith(124); };
    auto ap = [] { return deviceWith(125); };
    auto router = [] { return deviceWith(130); };
    auto bridge = [] { return deviceWith(121); };
    return {
        {"getSwitchDeviceStatus", aSwitch,
         [](const std::string& id) { Quillon::DeviceStatus r(static_cast<_xmlNode*>(nullptr)); return ParamInterface::getSwitchDeviceStatus(r, id); },
         fixed(crlf("GET /NXRPC/System/status")), "Get Switch Device Status:[%s].",
         "Failed To Get Switch Device Status:[%s].Error code is %d-%d.", "<DeviceStatus>"},
        {"getSwitchBasicInfoConfig", aSwitch,
         [](const std::string& id) { Quillon::CSwitchBaseInfo r(std::string{}); return ParamInterface::getSwitchBasicInfoConfig(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Switches/basicInfo")), "Get Switch Basic Info Config:[%s].",
         "Failed to Get Switch Basic Info Config:[%s].Error code is %d-%d.", "<SwitchBaseInfo>"},
        {"getSwitchesBasicInfo", aSwitch,
         [](const std::string& id) { Quillon::SwitchesBasicInfo r; return ParamInterface::getSwitchesBasicInfo(r, id); },
         fixed("GET /NXRPC/Transfers/Switches/basicInfo"), "Get Switch Basic Info:[%s].",
         "Failed to Get Switch Basic Info:[%s].Error code is %d-%d.", "<SwitchBaseInfo>"},
        {"getSwitchesWorkState", aSwitch,
         [](const std::string& id) { Quillon::SwitchesWorkState r(std::string{}); return ParamInterface::getSwitchesWorkState(r, id); },
         fixed("GET /NXRPC/Transfers/Switches/workState"), "Get Switch Work State:[%s].",
         "Failed to Get Switch Work State:[%s].Error code is %d-%d.", "<SwitchesWorkState>"},
        {"getSwitchesWorkStateEx", batchSwitch,
         [](const std::string& id) {
             Quillon::SwitchesWorkStateSearchRes r(std::string{});
             Quillon::SwitchesWorkStateSearchCond c;
             c.searchID = "TEST-SEARCH";
             c.maxResults = 8;
             c.searchResultPosition = 0;
             return ParamInterface::getSwitchesWorkStateEx(r, c, id);
         },
         fixed("POST /NXRPC/Transfers/Switches/workState/search"), "Get Switch Work StateEx:[%s].",
         "Failed to Get Switch Work StateEx:[%s].Error code is %d-%d.", "<SwitchesWorkStateSearchRes>"},
        {"getSwitchesWorkStateSearchAbility", batchSwitch,
         [](const std::string& id) { Quillon::SwitchesWorkStateSearchCap r(std::string{}); return ParamInterface::getSwitchesWorkStateSearchAbility(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Switches/workState/search/capabilities")),
         "Get Switch Workstate Search Ability:[%s].",
         "Failed to Get Switch Workstate Search Ability:[%s].Error code is %d-%d.", "<SwitchesWorkStateSearchCap>"},
        {"getSwitchPortBasicList", aSwitch,
         [](const std::string& id) { Quillon::PortBasicList r; return ParamInterface::getSwitchPortBasicList(r, id); },
         fixed("GET /NXRPC/Transfers/Switches/portCfg/portBasic"), "Get Switch Port Basic List:[%s].",
         "Failed To Get Switch Port Basic List:[%s].Error code is %d-%d.", "<PortBasicList>"},
        {"getSwitchPortRateList", aSwitch,
         [](const std::string& id) { Quillon::PortRateList r; return ParamInterface::getSwitchPortRateList(r, id); },
         fixed("GET /NXRPC/Transfers/Switches/portCfg/portRate"), "Get Switch Port Rate List:[%s].",
         "Failed to Get Switch Port Rate List:[%s].Error code is %d-%d.", "<PortRateList>"},
        {"setSwitchesPortSumClear", aSwitch,
         [](const std::string& id) { return ParamInterface::setSwitchesPortSumClear(id); },
         fixed("PUT /NXRPC/Transfers/Switches/portSumClear"), nullptr,
         "Failed to Get Switch Port Sum Clear:[%s].Error code is %d-%d.", ""},
        {"getPortPoeInfoCfgList", aSwitch,
         [](const std::string& id) { Quillon::PortPoeInfoList r(std::string{}); return ParamInterface::getPortPoeInfoCfgList(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo?format=json")), "Get Port Poe InfoCfg List:[%s].",
         "Failed to Get Port Poe InfoCfg List:[%s].Error code is %d-%d.", "\"PortPoeInfoList\""},
        {"getPortPoeInfoListCap", aSwitch,
         [](const std::string& id) { Quillon::PortPoeInfoListCap r(std::string{}); return ParamInterface::getPortPoeInfoListCap(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json")),
         "Get Poe Info List:[%s].", "Failed to Get Poe Info List:[%s].Error code is %d-%d.", "\"PortPoeInfoListCap\""},
        {"getSwitchSlotInfolList", chassis,
         [](const std::string& id) { Quillon::SwitchSlotInfolList r(std::string{}); return ParamInterface::getSwitchSlotInfolList(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Switches/slotInfo?format=json")), "Get Switch Slot Info List:[%s].",
         "Failed to Get Switch Slot Info List:[%s].Error code is %d-%d.", "\"SwitchSlotInfolList\""},
        {"getSwitchSlotPanelInfo", panelSwitch,
         [](const std::string& id) { Quillon::PanelStatus r(std::string{}); return ParamInterface::getSwitchSlotPanelInfo(r, id, 1); },
         fixed("GET /NXRPC/Transfers/Switches/slotInfo/1/panelStatus?format=json"), "Get Switch Panel Info List:[%s].",
         "Failed to Get Switch Panel Info List:[%s].Error code is %d-%d.", "\"PanelStatus\""},
        {"getFiberConvertSlotList", fiber,
         [](const std::string& id) { Quillon::FiberConvertSlotList r; return ParamInterface::getFiberConvertSlotList(r, id); },
         fixed("GET /NXRPC/Transfers/FiberConvert/slot?format=json"), "Get Fiber Convert Slot:[%s].",
         "Failed to Get Fiber Convert Slot:[%s].Error code is %d-%d.", "\"FiberConvertSlotList\""},
        {"getAcCapabilities", controller,
         [](const std::string& id) { Quillon::AcCapabilities r(std::string{}); return ParamInterface::getAcCapabilities(r, id); },
         fixed("GET /NXRPC/Transfers/AC/capabilities?format=json"), "get Ac Capabilities:[%s].",
         "Failed to get Ac Capabilities:[%s].Error code is %d-%d.", "\"AcCapabilities\""},
        {"getApGroupList", controller,
         [](const std::string& id) { Quillon::APGroupInfoList r; return ParamInterface::getApGroupList(r, id); },
         fixed("GET /NXRPC/Transfers/AC/APGroup?format=json"), "Get Ap Group List:[%s].",
         "Failed to Get Ap Group List:[%s].Error code is %d-%d.", "\"APGroupInfoList\""},
        {"GetAPGroupBSSList", controller,
         [](const std::string& id) { Quillon::APGroupBSSList r(std::string{}); return ParamInterface::GetAPGroupBSSList(r, id); },
         fixed("GET /NXRPC/System/Network/interfaces/bssParaCfg/APGroup?format=json"), "Get Bss Param Config:[%s].",
         "Failed to Get Bss Param Config:[%s].Error code is %d-%d.", "\"APGroupBSSList\""},
        {"getBssParaCfg", ap,
         [](const std::string& id) { Quillon::BssParaCfg r(std::string{}); return ParamInterface::getBssParaCfg(r, id); },
         fixed("GET /NXRPC/System/Network/interfaces/bssParaCfg?format=json"), "Get Bss Param Config:[%s].",
         "Failed to Get Bss Param Config:[%s].Error code is %d-%d.", "\"BssParaCfg\""},
        {"getBssClientInfoList", ap,
         [](const std::string& id) { Quillon::BssClientInfoList r(std::string{}); return ParamInterface::getBssClientInfoList(r, id); },
         fixed("GET /NXRPC/Transfers/AP/bssClientInfo?format=json"), "Get Basic Client Info List:[%s].",
         "Failed to Get Basic Client Info List:[%s].Error code is %d-%d.", "\"BssClientInfoList\""},
        {"getRfParaCfgList", ap,
         [](const std::string& id) { Quillon::RfParaCfgList r(std::string{}); return ParamInterface::getRfParaCfgList(r, id); },
         fixed("GET /NXRPC/System/Network/interfaces/rfParaCfg?format=json"), "Get Rf ParamCfg List:[%s].",
         "Failed to Get Rf ParamCfg List:[%s].Error code is %d-%d.", "\"RfParaCfgList\""},
        {"getPPPoEStatusList", router,
         [](const std::string& id) { Quillon::PPPoEStatusList r(static_cast<_xmlNode*>(nullptr)); return ParamInterface::getPPPoEStatusList(r, id); },
         fixed("GET /NXRPC/System/Network/PPPoE/status"), "Get Poe Status List:[%s].",
         "Failed to Get Poe Status List:[%s].Error code is %d-%d.", "<PPPoEStatusList>"},
        {"getTerminalInfoInfolList", router,
         [](const std::string& id) { Quillon::TerminalInfoList r; return ParamInterface::getTerminalInfoInfolList(r, id); },
         fixed(crlf("GET /NXRPC/Transfers/Routers/deviceInfo?format=json")), "Get Terminal Info List:[%s].",
         "Failed to Get Terminal Info List:[%s].Error code is %d-%d.", "\"TerminalInfoList\""},
        {"getNetworkPortWirelessInfo", bridge,
         [](const std::string& id) { Quillon::Wireless r(static_cast<_xmlNode*>(nullptr)); return ParamInterface::getNetworkPortWirelessInfo(r, id, bridgeCard(id)); },
         [](const std::string& id) { return "GET /NXRPC/System/Network/interfaces/" + bridgeCard(id) + "/wireless"; },
         "Get Network Wireless Info:[%s].", "Failed to Get Network Wireless Info:[%s].Error code is %d-%d.", "<Wireless>"},
        {"getWirelessTransmissionInfo", bridge,
         [](const std::string& id) { Quillon::TransmissionList r(std::string{}); return ParamInterface::getWirelessTransmissionInfo(r, id, bridgeCard(id)); },
         [](const std::string& id) { return "GET /NXRPC/System/Network/interfaces/" + bridgeCard(id) + "/wireless/transmissionList"; },
         "Get Wireless Transmission:[%s].", "Failed to Get Wireless Transmission:[%s].Error code is %d-%d.",
         "<TransmissionList>"},
        {"getBridgeRegion", bridge,
         [](const std::string& id) { Quillon::CBridgeRegion r; return ParamInterface::getBridgeRegion(r, id); },
         fixed("GET /NXRPC/System/Network/wirelessServer/Region"), "get Bridge Region:[%s].",
         "Failed to get Bridge Region:[%s].Error code is %d-%d.", "<BridgeRegion>"},
        {"getBridgeRegionCapabilities", bridge,
         [](const std::string& id) { Quillon::CBridgeRegionCapabilities r; return ParamInterface::getBridgeRegionCapabilities(r, id); },
         fixed("GET /NXRPC/System/Network/wirelessServer/RegionCapabilities"), "get Bridge Region Capabilities:[%s].",
         "Failed to get Bridge Region Capabilities:[%s].Error code is %d-%d.", "<BridgeRegionCapabilities>"},
        {"setBridgeRegion", bridge,
         [](const std::string& id) {
             Quillon::CBridgeRegion region;
             region.region = "CN";
             Quillon::CBridgeRegionRes result;
             return ParamInterface::setBridgeRegion(region, result, id);
         },
         fixed("PUT /NXRPC/System/Network/wirelessServer/Region"), "set Bridge Region:[%s].",
         "Failed to set Bridge Region:[%s].Error code is %d-%d.", "<BridgeRegionRes>"},
    };
}

std::string withoutCrLf(std::string line)
{
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) {
        line.pop_back();
    }
    return line;
}

TEST_F(ParamInterfaceTest, EveryOperationSendsItsRequestLineAndLogsTheWholeAnswer)
{
    for (const Operation& op : operations()) {
        SCOPED_TRACE(op.name);
        const std::string id = op.device();
        ASSERT_FALSE(id.empty()) << "the fleet has no device for " << op.name;
        g_emulator->clearRequestLog();
        m_log.clear();

        EXPECT_TRUE(op.call(id));

        const std::vector<EmulatorProcess::Request> log = answered(id);
        ASSERT_EQ(log.size(), 1u) << "one round trip, never retried";
        // The transport sends the literal without its CR LF.
        EXPECT_EQ(log[0].requestLine, withoutCrLf(op.literal(id)));
        EXPECT_EQ(log[0].status, 200);

        const std::vector<LogLine> infos = m_log.lines("INFO");
        if (op.successText == nullptr) {
            EXPECT_TRUE(infos.empty());
            continue;
        }
        ASSERT_EQ(infos.size(), 1u);
        const std::string format = op.successText;
        const std::string head = format.substr(0, format.find("%s"));
        const std::string tail = format.substr(format.find("%s") + 2);
        EXPECT_TRUE(startsWith(infos[0].message, head)) << infos[0].message;
        EXPECT_EQ(infos[0].message.substr(infos[0].message.size() - tail.size()), tail);
        EXPECT_NE(infos[0].message.find(op.answerMark), std::string::npos) << infos[0].message;
        EXPECT_TRUE(m_log.lines("ERROR").empty());
    }
}

TEST_F(ParamInterfaceTest, FailureLogsTheLiteralWithItsCrLfAndBothErrorNumbers)
{
    for (const Operation& op : operations()) {
        SCOPED_TRACE(op.name);
        const std::string id = op.device();
        ASSERT_FALSE(id.empty());
        ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::httpStatus(500)));
        g_emulator->clearRequestLog();
        m_log.clear();

        EXPECT_FALSE(op.call(id));
        const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
        EXPECT_TRUE(error.isError());
        EXPECT_EQ(error.module, 2);
        EXPECT_EQ(error.code, 500);
        EXPECT_EQ(answered(id).size(), 1u) << "a failed request is not retried";

        const std::vector<LogLine> errors = m_log.lines("ERROR");
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_EQ(errors[0].message, Plinth::StringUtil::FormatString(op.failureText, op.literal(id).c_str(),
                                                                        error.module, error.code));
        EXPECT_TRUE(m_log.lines("INFO").empty());
        g_emulator->clearFaults();
    }
}

TEST_F(ParamInterfaceTest, CrLfOfTheLiteralStandsInTheFailureText)
{
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::httpStatus(503)));
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    EXPECT_FALSE(ParamInterface::getSwitchDeviceStatus(status, id));
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message,
              "Failed To Get Switch Device Status:[GET /NXRPC/System/status\r\n].Error code is 2-503.");

    m_log.clear();
    Quillon::SwitchesWorkState state(std::string{});
    EXPECT_FALSE(ParamInterface::getSwitchesWorkState(state, id));
    ASSERT_EQ(m_log.lines("ERROR").size(), 1u);
    EXPECT_EQ(m_log.lines("ERROR")[0].message,
              "Failed to Get Switch Work State:[GET /NXRPC/Transfers/Switches/workState].Error code is 2-503.");
}

TEST_F(ParamInterfaceTest, UnknownDeviceFailsWithoutARequest)
{
    Quillon::CSwitchBaseInfo info(std::string{});
    EXPECT_FALSE(ParamInterface::getSwitchBasicInfoConfig(info, "no-such-device"));
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_TRUE(error.isError());
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message,
              Plinth::StringUtil::FormatString(
                  "Failed to Get Switch Basic Info Config:[GET /NXRPC/Transfers/Switches/basicInfo\r\n].Error code is %d-%d.",
                  error.module, error.code));
}

TEST_F(ParamInterfaceTest, SuccessfulQueryFillsTheRecord)
{
    const std::string id = deviceWith(120);
    Quillon::CSwitchBaseInfo info(std::string{});
    ASSERT_TRUE(ParamInterface::getSwitchBasicInfoConfig(info, id));
    EXPECT_FALSE(info.deviceModel.empty());
    EXPECT_FALSE(info.portList.empty());

    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(ParamInterface::getSwitchesWorkState(state, id));
    EXPECT_EQ(state.portList.size(), info.portList.size());

    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    ASSERT_TRUE(ParamInterface::getSwitchDeviceStatus(status, id));
    EXPECT_GT(status.deviceUpTime, 0);
    EXPECT_FALSE(status.cpuList.empty());
}

TEST_F(ParamInterfaceTest, FailedQueryLeavesTheRecordAsGiven)
{
    const std::string id = deviceWith(120);
    Quillon::CSwitchBaseInfo info(std::string{});
    info.deviceModel = "kept";
    info.portList.resize(3);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::httpStatus(404)));
    EXPECT_FALSE(ParamInterface::getSwitchBasicInfoConfig(info, id));
    EXPECT_EQ(info.deviceModel, "kept");
    EXPECT_EQ(info.portList.size(), 3u);
}

TEST_F(ParamInterfaceTest, MalformedAnswerIsStillASuccessWithDefaults)
{
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::malformed()));
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    EXPECT_TRUE(ParamInterface::getSwitchDeviceStatus(status, id));
    EXPECT_EQ(status.deviceUpTime, 0);
    EXPECT_TRUE(status.cpuList.empty());
    EXPECT_TRUE(status.memoryList.empty());
    EXPECT_EQ(m_log.lines("INFO").size(), 1u);
    EXPECT_TRUE(m_log.lines("ERROR").empty());

    Quillon::PortPoeInfoListCap cap(std::string{});
    EXPECT_TRUE(ParamInterface::getPortPoeInfoListCap(cap, id));
    EXPECT_FALSE(cap.isSupportPoe);
    EXPECT_TRUE(cap.portList.empty());
}

TEST_F(ParamInterfaceTest, TruncatedAnswerFailsAndLogs)
{
    // The device promises the whole body and closes after half of it.
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::truncate()));
    Quillon::CSwitchBaseInfo info(std::string{});
    info.deviceModel = "kept";
    const Clock::time_point start = Clock::now();
    EXPECT_FALSE(ParamInterface::getSwitchBasicInfoConfig(info, id));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(15));
    EXPECT_EQ(info.deviceModel, "kept");
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_EQ(error.module, 1);
    EXPECT_NE(error.code, 0);
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message,
              Plinth::StringUtil::FormatString(
                  "Failed to Get Switch Basic Info Config:[GET /NXRPC/Transfers/Switches/basicInfo\r\n].Error code is %d-%d.",
                  error.module, error.code));
}

TEST_F(ParamInterfaceTest, SlowDeviceWithinTheTimeOutIsWaitedFor)
{
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::delay(1500)));
    const Clock::time_point start = Clock::now();
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    EXPECT_TRUE(ParamInterface::getSwitchDeviceStatus(status, id));
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(1400));
    EXPECT_GT(status.deviceUpTime, 0);
}

TEST_F(ParamInterfaceTest, SlowDeviceBeyondTheDefaultTimeOutFailsAfterFifteenSeconds)
{
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::delay(20000)));
    const Clock::time_point start = Clock::now();
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    EXPECT_FALSE(ParamInterface::getSwitchDeviceStatus(status, id));
    const auto waited = Clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(14500));
    EXPECT_LT(waited, std::chrono::milliseconds(17000));
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message, Plinth::StringUtil::FormatString(
                                     "Failed To Get Switch Device Status:[GET /NXRPC/System/status\r\n].Error code is %d-%d.",
                                     error.module, error.code));
    EXPECT_EQ(error.module, 1);
    EXPECT_EQ(error.code, 28); // the transport's time-out
    letDelayPass(start, 20000);
}

TEST_F(ParamInterfaceTest, DroppedConnectionFailsAndLogs)
{
    const std::string id = deviceWith(120);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::drop()));
    const Clock::time_point start = Clock::now();
    Quillon::SwitchesWorkState state(std::string{});
    EXPECT_FALSE(ParamInterface::getSwitchesWorkState(state, id));
    EXPECT_LT(Clock::now() - start, std::chrono::seconds(15));
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_EQ(error.module, 1);
    EXPECT_NE(error.code, 0);
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message, Plinth::StringUtil::FormatString(
                                     "Failed to Get Switch Work State:[GET /NXRPC/Transfers/Switches/workState].Error code is %d-%d.",
                                     error.module, error.code));

    // The device's next answer comes through again.
    g_emulator->clearFaults();
    EXPECT_TRUE(ParamInterface::getSwitchesWorkState(state, id));
}

TEST_F(ParamInterfaceTest, WorkStateSearchSendsTheConditionAsXml)
{
    const std::string id = deviceWith(120, {"supportWorkStatusBatch"});
    ASSERT_FALSE(id.empty());
    Quillon::SwitchesWorkStateSearchCond cond;
    cond.searchID = "4C7A-TEST";
    cond.maxResults = 4;
    cond.searchResultPosition = 2;
    Quillon::SwitchesWorkStateSearchRes result(std::string{});
    ASSERT_TRUE(ParamInterface::getSwitchesWorkStateEx(result, cond, id));
    const std::vector<EmulatorProcess::Request> sent = answered(id);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].body, cond.createXml());
    EXPECT_EQ(result.responseStatus, "MORE");
    ASSERT_EQ(result.portList.size(), 4u);
    EXPECT_EQ(result.portList[0].portId, 3); // position 2 counted from 0
}

TEST_F(ParamInterfaceTest, PostBssParaCfgSendsTheKeyAndLogsOnlyItsFailure)
{
    const std::string id = deviceWith(125);
    Quillon::BssParaCfg all(std::string{});
    ASSERT_TRUE(ParamInterface::getBssParaCfg(all, id));
    ASSERT_FALSE(all.bssList.empty());
    const std::string key = all.bssList[0].ssid;

    g_emulator->clearRequestLog();
    m_log.clear();
    Quillon::BssParaCfg found(std::string{});
    ASSERT_TRUE(ParamInterface::PostBssParaCfg(found, id, key));
    const std::vector<EmulatorProcess::Request> sent = answered(id);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].requestLine, "POST /NXRPC/System/Network/interfaces/bssParaCfg?format=json");
    Quillon::BssParaCfgSearchCond expected;
    expected.searchKey = key;
    EXPECT_EQ(sent[0].body, expected.Make());
    ASSERT_FALSE(found.bssList.empty());
    for (const Quillon::BssParaCfgInfo& bss : found.bssList) {
        EXPECT_NE(bss.ssid.find(key), std::string::npos);
    }
    EXPECT_TRUE(m_log.lines("INFO").empty());
    EXPECT_TRUE(m_log.lines("ERROR").empty());

    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::httpStatus(500)));
    EXPECT_FALSE(ParamInterface::PostBssParaCfg(found, id, key));
    const std::vector<LogLine> errors = m_log.lines("ERROR");
    ASSERT_EQ(errors.size(), 1u);
    EXPECT_EQ(errors[0].message, "Failed to Post Bss ParaCfg:[" + id + "]");
}

TEST_F(ParamInterfaceTest, PostBssParaCfgGivesUpAfterFiveSeconds)
{
    const std::string id = deviceWith(125);
    ASSERT_TRUE(g_emulator->setFault(id, "*", EmulatorProcess::Fault::delay(9000)));
    const Clock::time_point start = Clock::now();
    Quillon::BssParaCfg found(std::string{});
    EXPECT_FALSE(ParamInterface::PostBssParaCfg(found, id, ""));
    const auto waited = Clock::now() - start;
    EXPECT_GE(waited, std::chrono::milliseconds(4500));
    EXPECT_LT(waited, std::chrono::milliseconds(7000));
    letDelayPass(start, 9000);
}

TEST_F(ParamInterfaceTest, SetBridgeRegionSendsTheRegionAsXml)
{
    const std::string id = deviceWith(121);
    Quillon::CBridgeRegion region;
    ASSERT_TRUE(ParamInterface::getBridgeRegion(region, id));
    ASSERT_FALSE(region.region.empty());
    Quillon::CBridgeRegionCapabilities caps;
    ASSERT_TRUE(ParamInterface::getBridgeRegionCapabilities(caps, id));
    ASSERT_FALSE(caps.regionList.empty());

    g_emulator->clearRequestLog();
    Quillon::CBridgeRegion wanted;
    wanted.region = caps.regionList.back();
    Quillon::CBridgeRegionRes result;
    ASSERT_TRUE(ParamInterface::setBridgeRegion(wanted, result, id));
    const std::vector<EmulatorProcess::Request> sent = answered(id);
    ASSERT_EQ(sent.size(), 1u);
    EXPECT_EQ(sent[0].body, wanted.createXml());
    EXPECT_EQ(result.region, wanted.region);

    // Put the region back for the other tests.
    ASSERT_TRUE(ParamInterface::setBridgeRegion(region, result, id));
}

// ---------------------------------------------------------------------------------------------
// Paged walks

struct Walk {
    const char* name;
    int category;
    const char* requestLine;
    const char* conditionRoot;
    int maxResults;
    int firstPosition;
    const char* successText;
    const char* failureText;
    std::function<bool(const std::string&, std::size_t&)> run; // runs the walk once, tells the item count
};

std::vector<Walk> walks()
{
    return {
        {"PostAPGroupBssParaCfg", 124, "POST /NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup?format=json",
         "APGroupBssSearchCond", 15, 1, "Get device %s apGroup BSS List %s.", "Failed to Get APGroup Bss List:[%s]",
         [](const std::string& id, std::size_t& items) {
             Quillon::APGroupBSSList list(std::string{});
             const bool ok = ParamInterface::PostAPGroupBssParaCfg(list, id);
             items = list.groupList.size();
             return ok;
         }},
        {"getApInfoList", 124, "POST /NXRPC/Transfers/AP/basicInfo?format=json", "ApInfoSearchCond", 50, 0,
         "Get device %s apInfo list %s.", "Failed to Get Ap Info List:[%s]",
         [](const std::string& id, std::size_t& items) {
             Quillon::ApInfoList list(std::string{});
             const bool ok = ParamInterface::getApInfoList(list, id);
             items = list.apList.size();
             return ok;
         }},
        {"getApTerminalInfoList", 124, "POST /NXRPC/Transfers/AC/terminalInfo?format=json", "TerminalInfoSearchCond",
         50, 1, "Get device %s Terminal Info list %s.", "Failed to Get Ac terminal Info List:[%s]",
         [](const std::string& id, std::size_t& items) {
             Quillon::AcTerminalInfoList list(std::string{});
             const bool ok = ParamInterface::getApTerminalInfoList(list, id);
             items = list.terminalList.size();
             return ok;
         }},
    };
}

// A controller that answers the paged group search.
std::string searchingController()
{
    for (const std::string& id : g_emulator->deviceIds(124)) {
        Quillon::AcCapabilities caps(std::string{});
        if (ParamInterface::getAcCapabilities(caps, id) && caps.isSupportSearchAPGroup) {
            return id;
        }
    }
    return std::string();
}

TEST_F(ParamInterfaceTest, WalkSendsOneSearchFromItsFirstPositionAndLogsEachPage)
{
    const std::string controller = searchingController();
    ASSERT_FALSE(controller.empty());
    for (const Walk& walk : walks()) {
        SCOPED_TRACE(walk.name);
        g_emulator->clearRequestLog();
        m_log.clear();
        std::size_t items = 0;
        ASSERT_TRUE(walk.run(controller, items));
        const std::vector<EmulatorProcess::Request> sent = requestsTo(controller, walk.requestLine);
        ASSERT_GE(sent.size(), 1u);
        EXPECT_EQ(sent.size(), answered(controller).size());
        const SentCondition first = conditionOf(sent[0], walk.conditionRoot);
        EXPECT_FALSE(first.searchID.empty());
        EXPECT_EQ(first.maxResults, walk.maxResults);
        EXPECT_EQ(first.searchResultPosition, walk.firstPosition);
        for (std::size_t page = 1; page < sent.size(); ++page) {
            const SentCondition next = conditionOf(sent[page], walk.conditionRoot);
            EXPECT_EQ(next.searchID, first.searchID);
            EXPECT_EQ(next.searchResultPosition, walk.firstPosition + static_cast<int>(page) * walk.maxResults);
        }
        const std::vector<LogLine> infos = m_log.lines("INFO");
        ASSERT_EQ(infos.size(), sent.size());
        const std::string head = Plinth::StringUtil::FormatString(walk.successText, controller.c_str(), "");
        EXPECT_TRUE(startsWith(infos[0].message, head.substr(0, head.size() - 1))) << infos[0].message;
        EXPECT_NE(infos[0].message.find("responseStatus"), std::string::npos);
    }
}

TEST_F(ParamInterfaceTest, WalkThatFailsOnItsThirdPageKeepsTwoPagesAndLogsTheDevice)
{
    const std::string controller = searchingController();
    ASSERT_FALSE(controller.empty());
    for (const Walk& walk : walks()) {
        SCOPED_TRACE(walk.name);
        g_emulator->clearFaults();
        std::size_t all = 0;
        ASSERT_TRUE(walk.run(controller, all));
        // Pages without end, the third of which fails.
        ASSERT_TRUE(g_emulator->setFault(controller, "*", EmulatorProcess::Fault::moreForever()));
        ASSERT_TRUE(g_emulator->setFault(controller, "*", EmulatorProcess::Fault::failPage(3)));
        g_emulator->clearRequestLog();
        m_log.clear();

        std::size_t items = 0;
        const bool ok = walk.run(controller, items);
        EXPECT_FALSE(ok);
        const std::vector<EmulatorProcess::Request> sent = requestsTo(controller, walk.requestLine);
        EXPECT_EQ(sent.size(), 3u);
        const std::vector<LogLine> infos = m_log.lines("INFO");
        EXPECT_EQ(infos.size(), 2u);
        const std::vector<LogLine> errors = m_log.lines("ERROR");
        ASSERT_EQ(errors.size(), 1u);
        EXPECT_EQ(errors[0].message, Plinth::StringUtil::FormatString(walk.failureText, controller.c_str()));
        EXPECT_EQ(items, std::min<std::size_t>(all, 2 * static_cast<std::size_t>(walk.maxResults)))
            << "the items of the two pages stay";
    }
}

TEST_F(ParamInterfaceTest, WalkGoesOnWhileTheDeviceSaysMoreAndAppendsToTheOutput)
{
    const std::string controller = searchingController();
    ASSERT_FALSE(controller.empty());
    Quillon::ApInfoList once(std::string{});
    ASSERT_TRUE(ParamInterface::getApInfoList(once, controller));
    ASSERT_FALSE(once.apList.empty());

    // The output isn't cleared: a second walk into the same record doubles its items.
    Quillon::ApInfoList twice = once;
    ASSERT_TRUE(ParamInterface::getApInfoList(twice, controller));
    ASSERT_EQ(twice.apList.size(), 2 * once.apList.size());
    for (std::size_t i = 0; i < once.apList.size(); ++i) {
        EXPECT_EQ(twice.apList[once.apList.size() + i].ipAddress, once.apList[i].ipAddress);
    }

    // A device that answers "MORE" forever keeps the walk going; no page count stops it.
    // The test ends it by taking the fault away after some pages.
    g_emulator->clearRequestLog();
    ASSERT_TRUE(g_emulator->setFault(controller, "*", EmulatorProcess::Fault::moreForever()));
    std::atomic<bool> done{false};
    bool result = false;
    Quillon::ApInfoList endless(std::string{});
    std::thread walker([&] {
        result = ParamInterface::getApInfoList(endless, controller);
        done = true;
    });
    const int pagesBeforeStop = 12;
    const Clock::time_point deadline = Clock::now() + std::chrono::seconds(60);
    while (!done && Clock::now() < deadline &&
           requestsTo(controller, "POST /NXRPC/Transfers/AP/basicInfo?format=json").size() < std::size_t(pagesBeforeStop)) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    EXPECT_FALSE(done.load()) << "the walk stopped on its own";
    g_emulator->clearFaults();
    walker.join();
    EXPECT_TRUE(result);
    const std::vector<EmulatorProcess::Request> sent =
        requestsTo(controller, "POST /NXRPC/Transfers/AP/basicInfo?format=json");
    EXPECT_GE(sent.size(), std::size_t(pagesBeforeStop));
    const SentCondition first = conditionOf(sent.front(), "ApInfoSearchCond");
    for (std::size_t page = 0; page < sent.size(); ++page) {
        const SentCondition cond = conditionOf(sent[page], "ApInfoSearchCond");
        EXPECT_EQ(cond.searchID, first.searchID);
        EXPECT_EQ(cond.searchResultPosition, static_cast<int>(page) * 50);
    }
}

TEST_F(ParamInterfaceTest, WalkPageTimeOutsDifferBySearch)
{
    const std::string controller = searchingController();
    ASSERT_FALSE(controller.empty());
    ASSERT_TRUE(g_emulator->setFault(controller, "*", EmulatorProcess::Fault::delay(7000)));

    // A page of the AP walk may take 5 seconds ...
    Clock::time_point start = Clock::now();
    Quillon::ApInfoList aps(std::string{});
    EXPECT_FALSE(ParamInterface::getApInfoList(aps, controller));
    EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(6500));
    ASSERT_EQ(m_log.lines("ERROR").size(), 1u);
    EXPECT_EQ(m_log.lines("ERROR")[0].message, "Failed to Get Ap Info List:[" + controller + "]");
    letDelayPass(start, 7000);

    // ... a page of the group walk 20. (The time-out above holds the controller as
    // unreachable; that is forgotten so that the walk goes out.)
    g_emulator->clearFaults();
    senvia::forgetUnreachableDevices();
    ASSERT_TRUE(g_emulator->setFault(controller, "*", EmulatorProcess::Fault::delay(6000)));
    Quillon::APGroupBSSList groups(std::string{});
    start = Clock::now();
    EXPECT_TRUE(ParamInterface::PostAPGroupBssParaCfg(groups, controller));
    EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(5900));
}

TEST_F(ParamInterfaceTest, OperationsRunOnSeveralThreadsAtOnce)
{
    const std::string id = deviceWith(120);
    std::atomic<int> succeeded{0};
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back([&] {
            for (int i = 0; i < 5; ++i) {
                Quillon::SwitchesWorkState state(std::string{});
                if (ParamInterface::getSwitchesWorkState(state, id) && !state.portList.empty()) {
                    ++succeeded;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(succeeded.load(), 20);
}

} // namespace
