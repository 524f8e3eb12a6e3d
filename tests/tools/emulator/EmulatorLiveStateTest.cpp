// The emulated network moves with its clock, deterministically for a seed, and takes the
// client's actions: clearing counters, setting the bridge region, the BSS search.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

using namespace velmora::test;

namespace {

struct PortState {
    std::string link;
    unsigned long long bytesSent = 0;
    unsigned long long bytesReceived = 0;
    std::string portType;
};

std::map<std::string, PortState> workState(const EmulatorProcess& emulator, const EmulatorProcess::Device& d)
{
    std::map<std::string, PortState> ports;
    const XmlDoc doc = parseXml(deviceRequest(emulator, d, "GET", "/NXRPC/Transfers/Switches/workState").body);
    for (xmlNode* item : children(child(doc.root(), "portList"))) {
        PortState s;
        s.link = text(child(item, "linkState"));
        s.bytesSent = std::stoull(text(child(item, "bytesSent")));
        s.bytesReceived = std::stoull(text(child(item, "bytesReceived")));
        s.portType = text(child(item, "portType"));
        ports[text(child(item, "portId"))] = s;
    }
    return ports;
}

long long upTime(const EmulatorProcess& emulator, const EmulatorProcess::Device& d)
{
    const XmlDoc doc = parseXml(deviceRequest(emulator, d, "GET", "/NXRPC/System/status").body);
    return std::stoll(text(child(doc.root(), "deviceUpTime")));
}

std::string terminalsBody(const EmulatorProcess& emulator, const EmulatorProcess::Device& ac, const std::string& id)
{
    return deviceRequest(emulator, ac, "POST", "/NXRPC/Transfers/AC/terminalInfo?format=json",
                         searchCondition("TerminalInfoSearchCond", id, 64, 1, true))
        .body;
}

class EmulatorLiveStateTest : public EmulatorSuite<EmulatorLiveStateTest> {
public:
    static EmulatorOptions options() { return {"demo", 9, {"--freeze-tick", "1000"}}; }

protected:
    void SetUp() override
    {
        EmulatorSuite::SetUp();
        if (HasFatalFailure())
            return;
        ASSERT_TRUE(s_emulator->freezeClock(1000));
    }

};

} // namespace

TEST_F(EmulatorLiveStateTest, CountersGrowWithTheClock)
{
    const EmulatorProcess::Device d = device(120, "QN-1050");
    const auto before = workState(*s_emulator, d);
    const long long upBefore = upTime(*s_emulator, d);
    ASSERT_TRUE(s_emulator->freezeClock(1600));
    const auto after = workState(*s_emulator, d);
    EXPECT_EQ(upTime(*s_emulator, d), upBefore + 600);
    int grown = 0;
    for (const auto& [id, state] : before) {
        EXPECT_GE(after.at(id).bytesSent, state.bytesSent) << id;
        EXPECT_GE(after.at(id).bytesReceived, state.bytesReceived) << id;
        if (state.link == "connected" && after.at(id).link == "connected" && after.at(id).bytesSent > state.bytesSent)
            ++grown;
    }
    EXPECT_GT(grown, 0);
}

TEST_F(EmulatorLiveStateTest, LinksAndClientsChangeNowAndThen)
{
    const EmulatorProcess::Device d = device(120, "QN-1062");
    const auto first = workState(*s_emulator, d);
    bool linkChanged = false;
    for (long long tick = 2000; tick <= 40000 && !linkChanged; tick += 1500) {
        ASSERT_TRUE(s_emulator->freezeClock(tick));
        const auto later = workState(*s_emulator, d);
        for (const auto& [id, state] : first)
            linkChanged |= later.at(id).link != state.link;
    }
    EXPECT_TRUE(linkChanged);

    const EmulatorProcess::Device ac = device(124, "QN-1156");
    ASSERT_TRUE(s_emulator->freezeClock(1000));
    const std::string early = terminalsBody(*s_emulator, ac, "early");
    ASSERT_TRUE(s_emulator->freezeClock(9000));
    const std::string late = terminalsBody(*s_emulator, ac, "late");
    EXPECT_NE(early, late);
}

TEST_F(EmulatorLiveStateTest, SameSeedSameTickSameAnswers)
{
    EmulatorProcess twin("demo", 9, {"--freeze-tick", "1000"});
    EmulatorProcess other("demo", 10, {"--freeze-tick", "1000"});
    ASSERT_TRUE(twin.isRunning() && other.isRunning());
    for (const char* model : {"QN-1040", "QN-1097", "QN-2048"}) {
        const EmulatorProcess::Device d = device(120, model);
        EXPECT_EQ(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/workState").body,
                  deviceRequest(twin, *twin.device(d.id), "GET", "/NXRPC/Transfers/Switches/workState").body);
        EXPECT_EQ(deviceRequest(*s_emulator, d, "GET", "/NXRPC/System/status").body,
                  deviceRequest(twin, *twin.device(d.id), "GET", "/NXRPC/System/status").body);
        EXPECT_NE(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/workState").body,
                  deviceRequest(other, *other.device(d.id), "GET", "/NXRPC/Transfers/Switches/workState").body);
    }
    const EmulatorProcess::Device ac = device(124, "QN-1156");
    EXPECT_EQ(terminalsBody(*s_emulator, ac, "same"), terminalsBody(twin, *twin.device(ac.id), "same"));
}

TEST_F(EmulatorLiveStateTest, PortSumClearZeroesTheCounters)
{
    const EmulatorProcess::Device d = device(120, "QN-1045");
    ASSERT_TRUE(s_emulator->freezeClock(5000));
    const auto before = workState(*s_emulator, d);
    const HttpResult r = deviceRequest(*s_emulator, d, "PUT", "/NXRPC/Transfers/Switches/portSumClear");
    EXPECT_EQ(r.status, 200);
    ASSERT_EQ(checkAnswer(r.body, "ResponseStatus", false), "");
    EXPECT_EQ(text(child(parseXml(r.body).root(), "statusString")), "OK");
    for (const auto& [id, state] : workState(*s_emulator, d)) {
        EXPECT_EQ(state.bytesSent, 0u) << id;
        EXPECT_EQ(state.bytesReceived, 0u) << id;
    }
    ASSERT_TRUE(s_emulator->freezeClock(5300));
    int counting = 0;
    for (const auto& [id, state] : workState(*s_emulator, d)) {
        EXPECT_LT(state.bytesSent, before.at(id).bytesSent + 1) << id;
        counting += state.bytesSent > 0 ? 1 : 0;
    }
    EXPECT_GT(counting, 0);
}

TEST_F(EmulatorLiveStateTest, BridgeRegionIsSetAndRead)
{
    const EmulatorProcess::Device bridge = device(121);
    const std::string path = "/NXRPC/System/Network/wirelessServer/Region";
    const HttpResult set = deviceRequest(*s_emulator, bridge, "PUT", path,
                                         "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<BridgeRegion><region>US</region></BridgeRegion>");
    EXPECT_EQ(set.status, 200);
    ASSERT_EQ(checkAnswer(set.body, "BridgeRegionRes", false), "");
    EXPECT_EQ(text(child(parseXml(set.body).root(), "region")), "US");
    EXPECT_EQ(text(child(parseXml(deviceRequest(*s_emulator, bridge, "GET", path).body).root(), "region")), "US");

    const HttpResult refused = deviceRequest(*s_emulator, bridge, "PUT", path, "<BridgeRegion><region>XX</region></BridgeRegion>");
    EXPECT_EQ(refused.status, 400);
    EXPECT_EQ(text(child(parseXml(refused.body).root(), "subStatusCode")), "badParameters");
    EXPECT_EQ(text(child(parseXml(deviceRequest(*s_emulator, bridge, "GET", path).body).root(), "region")), "US");
}

TEST_F(EmulatorLiveStateTest, BssSearchFiltersByKey)
{
    const EmulatorProcess::Device ap = device(125);
    const std::string path = "/NXRPC/System/Network/interfaces/bssParaCfg?format=json";
    auto ssids = [&](const std::string& key, std::vector<std::string>* macs = nullptr) {
        std::vector<std::string> out;
        const HttpResult r = deviceRequest(*s_emulator, ap, "POST", path, "{\"BssParaCfgSearchCond\": {\"searchKey\": \"" + key + "\"}}");
        EXPECT_EQ(checkAnswer(r.body, "BssParaCfg", true), "");
        const JsonPtr json = parseJson(r.body);
        const cJSON* item = nullptr;
        cJSON_ArrayForEach(item, cJSON_GetObjectItemCaseSensitive(jsonRecord(json.get(), "BssParaCfg"), "bssList"))
        {
            out.push_back(cJSON_GetObjectItemCaseSensitive(item, "ssid")->valuestring);
            if (macs)
                macs->push_back(cJSON_GetObjectItemCaseSensitive(item, "macAddress")->valuestring);
        }
        return out;
    };
    std::vector<std::string> macs;
    const auto all = ssids("", &macs);
    ASSERT_GE(all.size(), 2u);
    for (const std::string& s : ssids("Office"))
        EXPECT_NE(s.find("Office"), std::string::npos);
    EXPECT_FALSE(ssids("Office").empty());
    EXPECT_EQ(ssids(macs.front()).size(), 1u);
    EXPECT_TRUE(ssids("no-such-ssid").empty());
}

TEST_F(EmulatorLiveStateTest, RequestLogKeepsTheExactRequests)
{
    const EmulatorProcess::Device ac = device(124, "QN-1156");
    ASSERT_TRUE(s_emulator->clearRequestLog());
    const std::string body = searchCondition("ApInfoSearchCond", "log-check", 50, 0, true);
    ASSERT_EQ(deviceRequest(*s_emulator, ac, "POST", "/NXRPC/Transfers/AP/basicInfo?format=json", body).status, 200);
    const auto log = s_emulator->requestLog(ac.id);
    ASSERT_EQ(log.size(), 2u); // the challenge, then the answer
    EXPECT_EQ(log[0].status, 401);
    EXPECT_EQ(log[1].status, 200);
    EXPECT_EQ(log[1].requestLine, "POST /NXRPC/Transfers/AP/basicInfo?format=json");
    EXPECT_EQ(log[1].body, body);
    EXPECT_LT(log[0].seq, log[1].seq);
    EXPECT_TRUE(s_emulator->requestLog(device(120).id).empty());
}
