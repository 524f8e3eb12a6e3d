// The device-side paged searches: both ways of counting positions, page sizes, the end of
// a walk and conditions out of range.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

using namespace velmora::test;

namespace {

struct Page {
    long status = 0;
    std::string responseStatus;
    int numOfMatches = -1;
    std::vector<std::string> keys; // one text per item, to compare items
};

class EmulatorPagingTest : public EmulatorSuite<EmulatorPagingTest> {
public:
    static EmulatorOptions options() { return {"demo", 3, {"--freeze-tick", "4000"}}; }

protected:
    // One page of a JSON search; `key` names the item field that identifies an item.
    static Page jsonPage(const EmulatorProcess::Device& d, const std::string& target, const std::string& condRoot,
                         const std::string& resultRoot, const std::string& listName, const std::string& key,
                         const std::string& searchId, int maxResults, int position)
    {
        Page page;
        const HttpResult r = deviceRequest(*s_emulator, d, "POST", target, searchCondition(condRoot, searchId, maxResults, position, true));
        page.status = r.status;
        if (r.status != 200)
            return page;
        EXPECT_EQ(checkAnswer(r.body, resultRoot, true), "");
        const JsonPtr json = parseJson(r.body);
        const cJSON* record = jsonRecord(json.get(), resultRoot);
        if (!record)
            return page;
        page.responseStatus = cJSON_GetObjectItemCaseSensitive(record, "responseStatus")->valuestring;
        page.numOfMatches = cJSON_GetObjectItemCaseSensitive(record, "numOfMatches")->valueint;
        const cJSON* item = nullptr;
        cJSON_ArrayForEach(item, cJSON_GetObjectItemCaseSensitive(record, listName.c_str()))
            page.keys.push_back(cJSON_GetObjectItemCaseSensitive(item, key.c_str())->valuestring);
        return page;
    }

    static Page workStatePage(const EmulatorProcess::Device& d, const std::string& searchId, int maxResults, int position)
    {
        Page page;
        const HttpResult r = deviceRequest(*s_emulator, d, "POST", "/NXRPC/Transfers/Switches/workState/search",
                                           searchCondition("SwitchesWorkStateSearchCond", searchId, maxResults, position, false));
        page.status = r.status;
        if (r.status != 200)
            return page;
        EXPECT_EQ(checkAnswer(r.body, "SwitchesWorkStateSearchRes", false), "");
        const XmlDoc doc = parseXml(r.body);
        page.responseStatus = text(child(doc.root(), "responseStatus"));
        page.numOfMatches = std::stoi(text(child(doc.root(), "numOfMatches")));
        EXPECT_EQ(text(child(doc.root(), "searchID")), searchId);
        for (xmlNode* item : children(child(doc.root(), "portList")))
            page.keys.push_back(text(child(item, "portId")));
        return page;
    }

};

EmulatorProcess::Device batchSwitch(EmulatorProcess& emulator)
{
    for (const EmulatorProcess::Device& d : emulator.devices())
        if (d.category == 120 && d.capabilitiesJson.find("\"supportWorkStatusBatch\":true") != std::string::npos)
            return d;
    return EmulatorProcess::Device();
}

} // namespace

TEST_F(EmulatorPagingTest, WorkStateSearchCountsFromZeroAndMatchesThePlainQuery)
{
    const EmulatorProcess::Device d = batchSwitch(*s_emulator);
    ASSERT_FALSE(d.id.empty());
    const XmlDoc capDoc = parseXml(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/workState/search/capabilities").body);
    const int cap = std::stoi(text(child(capDoc.root(), "maxResults")));
    ASSERT_GT(cap, 0);

    std::vector<std::string> plain;
    const XmlDoc state = parseXml(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/workState").body);
    for (xmlNode* item : children(child(state.root(), "portList")))
        plain.push_back(text(child(item, "portId")));
    ASSERT_GT(plain.size(), static_cast<size_t>(cap)) << "the walk should take several pages";

    std::vector<std::string> walked;
    int position = 0;
    for (int pages = 0; pages < 100; ++pages) {
        const Page page = workStatePage(d, "walk-1", cap, position);
        ASSERT_EQ(page.status, 200);
        EXPECT_EQ(page.numOfMatches, static_cast<int>(page.keys.size()));
        walked.insert(walked.end(), page.keys.begin(), page.keys.end());
        if (page.responseStatus != "MORE") {
            EXPECT_EQ(page.responseStatus, "OK");
            break;
        }
        EXPECT_EQ(page.numOfMatches, cap);
        position += cap;
    }
    EXPECT_EQ(walked, plain);

    // Position 0 is the first port; a position past the end is an empty last page.
    EXPECT_EQ(workStatePage(d, "walk-2", 1, 0).keys, std::vector<std::string>{plain.front()});
    const Page past = workStatePage(d, "walk-3", cap, static_cast<int>(plain.size()));
    EXPECT_EQ(past.status, 200);
    EXPECT_EQ(past.responseStatus, "OK");
    EXPECT_EQ(past.numOfMatches, 0);
    // A page larger than the device serves is cut to its largest page.
    EXPECT_EQ(workStatePage(d, "walk-4", cap * 4, 0).numOfMatches, cap);
}

TEST_F(EmulatorPagingTest, ConditionsOutOfRangeAreRefused)
{
    const EmulatorProcess::Device d = batchSwitch(*s_emulator);
    EXPECT_EQ(workStatePage(d, "bad-1", 0, 0).status, 400);
    EXPECT_EQ(workStatePage(d, "bad-2", -1, 0).status, 400);
    EXPECT_EQ(workStatePage(d, "bad-3", 10, -1).status, 400);
    const HttpResult r = deviceRequest(*s_emulator, d, "POST", "/NXRPC/Transfers/Switches/workState/search", "<not-closed>");
    EXPECT_EQ(r.status, 400);
    const XmlDoc doc = parseXml(r.body);
    EXPECT_EQ(text(child(doc.root(), "subStatusCode")), "badXmlContent");

    const EmulatorProcess::Device ac = device(124, "QN-1156");
    EXPECT_EQ(jsonPage(ac, "/NXRPC/Transfers/AC/terminalInfo?format=json", "TerminalInfoSearchCond", "TerminalInfoSearchResult",
                       "terminalList", "macAddress", "t-bad", 50, 0)
                  .status,
              400);
    EXPECT_EQ(jsonPage(ac, "/NXRPC/Transfers/AP/basicInfo?format=json", "ApInfoSearchCond", "ApInfoSearchResult", "apList",
                       "macAddress", "a-bad", 50, -1)
                  .status,
              400);
}

TEST_F(EmulatorPagingTest, ManagedApListCountsFromZero)
{
    const EmulatorProcess::Device ac = device(124, "QN-1156");
    const std::string target = "/NXRPC/Transfers/AP/basicInfo?format=json";
    std::vector<std::string> all;
    std::vector<std::string> statuses;
    for (int position = 0;; position += 50) {
        const Page page = jsonPage(ac, target, "ApInfoSearchCond", "ApInfoSearchResult", "apList", "macAddress", "aps", 50, position);
        ASSERT_EQ(page.status, 200);
        statuses.push_back(page.responseStatus);
        all.insert(all.end(), page.keys.begin(), page.keys.end());
        if (page.responseStatus != "MORE" || statuses.size() > 10)
            break;
    }
    EXPECT_EQ(all.size(), 120u);
    EXPECT_EQ(statuses, (std::vector<std::string>{"MORE", "MORE", "OK"}));
    const Page first = jsonPage(ac, target, "ApInfoSearchCond", "ApInfoSearchResult", "apList", "macAddress", "one", 1, 0);
    ASSERT_EQ(first.keys.size(), 1u);
    EXPECT_EQ(first.keys.front(), all.front());
    const Page second = jsonPage(ac, target, "ApInfoSearchCond", "ApInfoSearchResult", "apList", "macAddress", "two", 1, 1);
    EXPECT_EQ(second.keys.front(), all[1]);
    EXPECT_EQ(jsonPage(ac, target, "ApInfoSearchCond", "ApInfoSearchResult", "apList", "macAddress", "big", 1000, 0).numOfMatches, 64);
}

TEST_F(EmulatorPagingTest, TerminalListCountsFromOne)
{
    const EmulatorProcess::Device ac = device(124, "QN-1156");
    const std::string target = "/NXRPC/Transfers/AC/terminalInfo?format=json";
    std::vector<std::string> all;
    int pages = 0;
    for (int position = 1;; position += 50) {
        const Page page = jsonPage(ac, target, "TerminalInfoSearchCond", "TerminalInfoSearchResult", "terminalList", "macAddress",
                                   "terminals", 50, position);
        ASSERT_EQ(page.status, 200);
        ++pages;
        all.insert(all.end(), page.keys.begin(), page.keys.end());
        if (page.responseStatus != "MORE" || pages > 40)
            break;
    }
    EXPECT_GT(pages, 1);
    ASSERT_GT(all.size(), 2u);
    const Page first = jsonPage(ac, target, "TerminalInfoSearchCond", "TerminalInfoSearchResult", "terminalList", "macAddress",
                                "t-one", 1, 1);
    EXPECT_EQ(first.keys, std::vector<std::string>{all[0]});
    const Page second = jsonPage(ac, target, "TerminalInfoSearchCond", "TerminalInfoSearchResult", "terminalList", "macAddress",
                                 "t-two", 1, 2);
    EXPECT_EQ(second.keys, std::vector<std::string>{all[1]});
}

TEST_F(EmulatorPagingTest, ApGroupSearchCountsFromOneAndMatchesThePlainQuery)
{
    const EmulatorProcess::Device ac = device(124, "QN-1156");
    std::vector<std::string> plain;
    const JsonPtr json = parseJson(deviceRequest(*s_emulator, ac, "GET", "/NXRPC/System/Network/interfaces/bssParaCfg/APGroup?format=json").body);
    const cJSON* item = nullptr;
    cJSON_ArrayForEach(item, cJSON_GetObjectItemCaseSensitive(jsonRecord(json.get(), "APGroupBSSList"), "groupList"))
        plain.push_back(cJSON_GetObjectItemCaseSensitive(item, "groupName")->valuestring);
    ASSERT_EQ(plain.size(), 20u);

    const std::string target = "/NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup?format=json";
    const Page one = jsonPage(ac, target, "APGroupBssSearchCond", "APGroupBssSearchResult", "groupList", "groupName", "g", 15, 1);
    const Page two = jsonPage(ac, target, "APGroupBssSearchCond", "APGroupBssSearchResult", "groupList", "groupName", "g", 15, 16);
    EXPECT_EQ(one.responseStatus, "MORE");
    EXPECT_EQ(two.responseStatus, "OK");
    std::vector<std::string> walked = one.keys;
    walked.insert(walked.end(), two.keys.begin(), two.keys.end());
    EXPECT_EQ(walked, plain);

    // A controller whose groups come only by the plain query has no search.
    const EmulatorProcess::Device plainAc = device(124, "QN-1160");
    EXPECT_EQ(deviceRequest(*s_emulator, plainAc, "POST", target, searchCondition("APGroupBssSearchCond", "x", 15, 1, true)).status, 404);
    const JsonPtr caps = parseJson(deviceRequest(*s_emulator, plainAc, "GET", "/NXRPC/Transfers/AC/capabilities?format=json").body);
    EXPECT_TRUE(cJSON_IsFalse(cJSON_GetObjectItemCaseSensitive(jsonRecord(caps.get(), "AcCapabilities"), "isSupportSearchAPGroup")));
}
