// Every path of the device protocol on every device of the demo fleet, checked against the
// records of docs/protocol.md; paths a device class does not serve give the 404 error body.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>

using namespace velmora::test;

namespace {

struct Caps {
    bool batch = false;
    bool chassis = false;
    bool panel = false;
    bool crate = false;
    bool apGroup = false;
    std::string wirelessCardId;
};

Caps capsOf(const EmulatorProcess::Device& d)
{
    Caps c;
    const JsonPtr json = parseJson(d.capabilitiesJson);
    auto flag = [&json](const char* key) { return cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(json.get(), key)); };
    c.batch = flag("supportWorkStatusBatch");
    c.chassis = flag("bIsChassisDevice");
    c.panel = flag("bIsSupportPanelStatus");
    c.crate = flag("supportCrateSlotStatus");
    c.apGroup = flag("isSupportAPGroup");
    const cJSON* id = cJSON_GetObjectItemCaseSensitive(json.get(), "wirelessCardID");
    c.wirelessCardId = cJSON_IsString(id) ? id->valuestring : "";
    return c;
}

struct PathCase {
    std::string method;
    std::string target;
    std::string record;
    std::string body;
    std::function<bool(const EmulatorProcess::Device&, const Caps&)> serves;
};

bool isJson(const std::string& target) { return target.find("format=json") != std::string::npos; }

std::vector<PathCase> pathCases(const std::string& wirelessId)
{
    auto all = [](const EmulatorProcess::Device&, const Caps&) { return true; };
    auto category = [](std::set<int> set) {
        return [set](const EmulatorProcess::Device& d, const Caps&) { return set.count(d.category) > 0; };
    };
    return {
        {"GET", "/NXRPC/System/status", "DeviceStatus", "", all},
        {"GET", "/NXRPC/Transfers/Switches/basicInfo", "SwitchBaseInfo", "", all},
        {"GET", "/NXRPC/Transfers/Switches/workState", "SwitchesWorkState", "", all},
        {"GET", "/NXRPC/Transfers/Switches/workState/search/capabilities", "SwitchesWorkStateSearchCap", "",
         [](const EmulatorProcess::Device&, const Caps& c) { return c.batch; }},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portBasic", "PortBasicList", "", all},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portRate", "PortRateList", "", all},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo?format=json", "PortPoeInfoList", "", all},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json", "PortPoeInfoListCap", "", all},
        {"GET", "/NXRPC/Transfers/Switches/slotInfo?format=json", "SwitchSlotInfolList", "",
         [](const EmulatorProcess::Device& d, const Caps& c) { return c.chassis && d.category == 120; }},
        {"GET", "/NXRPC/Transfers/Switches/slotInfo/1/panelStatus?format=json", "PanelStatus", "",
         [](const EmulatorProcess::Device&, const Caps& c) { return c.panel; }},
        {"GET", "/NXRPC/Transfers/FiberConvert/slot?format=json", "FiberConvertSlotList", "",
         [](const EmulatorProcess::Device&, const Caps& c) { return c.crate; }},
        {"GET", "/NXRPC/Transfers/AC/capabilities?format=json", "AcCapabilities", "", category({124})},
        {"GET", "/NXRPC/Transfers/AC/APGroup?format=json", "APGroupInfoList", "", category({124})},
        {"GET", "/NXRPC/System/Network/interfaces/bssParaCfg/APGroup?format=json", "APGroupBSSList", "", category({124})},
        {"GET", "/NXRPC/System/Network/interfaces/bssParaCfg?format=json", "BssParaCfg", "", category({125, 126})},
        {"POST", "/NXRPC/System/Network/interfaces/bssParaCfg?format=json", "BssParaCfg",
         "{\"BssParaCfgSearchCond\": {\"searchKey\": \"\"}}", category({125, 126})},
        {"GET", "/NXRPC/Transfers/AP/bssClientInfo?format=json", "BssClientInfoList", "", category({125, 126})},
        {"GET", "/NXRPC/System/Network/interfaces/rfParaCfg?format=json", "RfParaCfgList", "", category({125, 126})},
        {"GET", "/NXRPC/System/Network/PPPoE/status", "PPPoEStatusList", "", category({124, 126, 130})},
        {"GET", "/NXRPC/Transfers/Routers/deviceInfo?format=json", "TerminalInfoList", "", category({124, 126, 130})},
        {"GET", "/NXRPC/System/Network/interfaces/" + wirelessId + "/wireless", "Wireless", "", category({121})},
        {"GET", "/NXRPC/System/Network/interfaces/" + wirelessId + "/wireless/transmissionList", "TransmissionList", "",
         category({121})},
        {"GET", "/NXRPC/System/Network/wirelessServer/Region", "BridgeRegion", "", category({121})},
        {"GET", "/NXRPC/System/Network/wirelessServer/RegionCapabilities", "BridgeRegionCapabilities", "", category({121})},
    };
}

class EmulatorPathsTest : public EmulatorSuite<EmulatorPathsTest> {
public:
    static EmulatorOptions options() { return {"demo", 7, {}}; }

};

} // namespace

TEST_F(EmulatorPathsTest, EveryDeviceAnswersEveryPathOfItsClassAsDocumented)
{
    std::set<int> categoriesSeen;
    std::map<std::string, int> answered;
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        const Caps caps = capsOf(d);
        categoriesSeen.insert(d.category);
        for (const PathCase& p : pathCases(caps.wirelessCardId.empty() ? "1" : caps.wirelessCardId)) {
            SCOPED_TRACE(d.model + " " + d.name + ": " + p.method + " " + p.target);
            const HttpResult r = deviceRequest(*s_emulator, d, p.method, p.target, p.body);
            ASSERT_EQ(r.code, CURLE_OK);
            if (p.serves(d, caps)) {
                EXPECT_EQ(r.status, 200);
                EXPECT_EQ(checkAnswer(r.body, p.record, isJson(p.target)), "");
                ++answered[p.record];
            } else {
                EXPECT_EQ(r.status, 404);
                EXPECT_EQ(checkAnswer(r.body, "ResponseStatus", isJson(p.target)), "");
            }
        }
    }
    EXPECT_EQ(categoriesSeen, (std::set<int>{120, 121, 122, 124, 125, 126, 130}));
    // Each record was answered by at least one device.
    for (const PathCase& p : pathCases("1"))
        EXPECT_GT(answered[p.record], 0) << p.record;
}

TEST_F(EmulatorPathsTest, AnswersFollowTheFormatAskedByThePath)
{
    const EmulatorProcess::Device d = *s_emulator->device(s_emulator->deviceId(120, "QN-1040"));
    HttpResult xml = deviceRequest(*s_emulator, d, "GET", "/NXRPC/System/status");
    EXPECT_EQ(xml.header("content-type").rfind("application/xml", 0), 0u);
    EXPECT_EQ(checkAnswer(xml.body, "DeviceStatus", false), "");
    HttpResult json = deviceRequest(*s_emulator, d, "GET", "/NXRPC/System/status?format=json");
    EXPECT_EQ(json.header("content-type").rfind("application/json", 0), 0u);
    EXPECT_EQ(checkAnswer(json.body, "DeviceStatus", true), "");
}

TEST_F(EmulatorPathsTest, UnknownPathAndWrongVerbGiveTheErrorBody)
{
    const EmulatorProcess::Device d = *s_emulator->device(s_emulator->deviceId(120, "QN-1040"));
    HttpResult r = deviceRequest(*s_emulator, d, "GET", "/NXRPC/No/such/path");
    EXPECT_EQ(r.status, 404);
    ASSERT_EQ(checkAnswer(r.body, "ResponseStatus", false), "");
    XmlDoc doc = parseXml(r.body);
    EXPECT_EQ(text(child(doc.root(), "requestURL")), "/NXRPC/No/such/path");
    EXPECT_EQ(text(child(doc.root(), "statusCode")), "4");
    EXPECT_EQ(text(child(doc.root(), "statusString")), "Invalid Operation");
    EXPECT_EQ(text(child(doc.root(), "subStatusCode")), "notSupport");

    r = deviceRequest(*s_emulator, d, "POST", "/NXRPC/System/status", "<x/>");
    EXPECT_EQ(r.status, 405);
    doc = parseXml(r.body);
    EXPECT_EQ(text(child(doc.root(), "subStatusCode")), "methodNotAllowed");

    r = deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/AC/capabilities?format=json");
    EXPECT_EQ(r.status, 404);
    const JsonPtr json = parseJson(r.body);
    const cJSON* status = jsonRecord(json.get(), "ResponseStatus");
    ASSERT_NE(status, nullptr);
    EXPECT_STREQ(cJSON_GetObjectItemCaseSensitive(status, "requestURL")->valuestring, "/NXRPC/Transfers/AC/capabilities?format=json");
}

TEST_F(EmulatorPathsTest, ReportedModelIsTheRegistryModel)
{
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        const HttpResult r = deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/basicInfo");
        const XmlDoc doc = parseXml(r.body);
        ASSERT_TRUE(doc.ok()) << d.model;
        EXPECT_EQ(text(child(doc.root(), "deviceModel")), d.model);
        EXPECT_EQ(text(child(doc.root(), "deviceName")), d.name);
    }
}

TEST_F(EmulatorPathsTest, WorkStateListsEveryPortOfTheBasicInformation)
{
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        SCOPED_TRACE(d.model);
        const XmlDoc info = parseXml(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/basicInfo").body);
        const XmlDoc state = parseXml(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/workState").body);
        std::vector<std::string> infoIds, stateIds;
        for (xmlNode* p : children(child(info.root(), "portList")))
            infoIds.push_back(text(child(p, "portId")));
        for (xmlNode* p : children(child(state.root(), "portList"))) {
            stateIds.push_back(text(child(p, "portId")));
            const std::string link = text(child(p, "linkState"));
            EXPECT_TRUE(link == "connected" || link == "disconnected") << link;
            const std::string type = text(child(p, "portType"));
            EXPECT_TRUE(type == "electrical" || type == "optical" || type == "multiplex" || type == "wireless") << type;
        }
        EXPECT_EQ(infoIds, stateIds);
        EXPECT_FALSE(stateIds.empty());
    }
}

TEST_F(EmulatorPathsTest, FleetCoversEveryPanelFamilyAndCapability)
{
    std::set<std::string> models;
    int batch = 0, plain = 0, panel = 0, chassis = 0, apGroups = 0, controllersWithoutGroups = 0;
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        models.insert(d.model);
        const Caps c = capsOf(d);
        (c.batch ? batch : plain) += 1;
        panel += c.panel ? 1 : 0;
        chassis += c.chassis && d.category == 120 ? 1 : 0;
        if (d.category == 124)
            (c.apGroup ? apGroups : controllersWithoutGroups) += 1;
    }
    for (const char* m : {"QN-1093", "QN-1094", "QN-1095", "QN-1096", "QN-1097", "QN-1137", "QN-1138", "QN-1139",
                          "QN-1098", "QN-1135", "QN-1140", "QN-1152", "QN-1156", "QN-1170", "QN-1178"})
        EXPECT_TRUE(models.count(m)) << m;
    EXPECT_GT(batch, 0);
    EXPECT_GT(plain, 0);
    EXPECT_GT(panel, 0);
    EXPECT_EQ(chassis, 5);
    EXPECT_GT(apGroups, 0);
    EXPECT_GT(controllersWithoutGroups, 0);
}
