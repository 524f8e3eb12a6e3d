// The client's topology and alarm services that the emulator serves beside the devices.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

#include <set>

using namespace velmora::test;

namespace {

class EmulatorServicesTest : public EmulatorSuite<EmulatorServicesTest> {
public:
    static EmulatorOptions options() { return {"demo", 2, {}}; }

protected:
    // The envelope's data object after checking code 0 and the record; null on failure.
    static const cJSON* data(const JsonPtr& json, const std::string& record)
    {
        if (!json)
            return nullptr;
        const cJSON* code = cJSON_GetObjectItemCaseSensitive(json.get(), "code");
        const cJSON* msg = cJSON_GetObjectItemCaseSensitive(json.get(), "msg");
        const cJSON* d = cJSON_GetObjectItemCaseSensitive(json.get(), "data");
        EXPECT_TRUE(cJSON_IsNumber(code) && code->valueint == 0);
        EXPECT_TRUE(cJSON_IsString(msg));
        EXPECT_EQ(checkJsonRecord(d, record), "");
        return d;
    }

    static JsonPtr node(const std::string& guid)
    {
        const HttpResult r = serviceRequest(*s_emulator, "GET", "/topology/v1/deviceNode?guid=" + guid);
        EXPECT_EQ(r.status, 200);
        return parseJson(r.body);
    }

};

int intOf(const cJSON* o, const char* key) { return cJSON_GetObjectItemCaseSensitive(o, key)->valueint; }
std::string textOf(const cJSON* o, const char* key) { return cJSON_GetObjectItemCaseSensitive(o, key)->valuestring; }

} // namespace

TEST_F(EmulatorServicesTest, EveryDeviceHasATopologyNodeWhosePeersResolve)
{
    std::set<std::string> peers;
    int roots = 0;
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        SCOPED_TRACE(d.name);
        const JsonPtr json = node(d.id);
        const cJSON* n = data(json, "DeviceNode");
        ASSERT_NE(n, nullptr);
        EXPECT_EQ(textOf(n, "guid"), d.id);
        EXPECT_EQ(textOf(n, "name"), d.name);
        EXPECT_EQ(intOf(n, "deviceCategory"), d.category);
        roots += cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(n, "isRoot")) ? 1 : 0;
        const cJSON* port = nullptr;
        cJSON_ArrayForEach(port, cJSON_GetObjectItemCaseSensitive(n, "portNodeList"))
        {
            const cJSON* peer = nullptr;
            cJSON_ArrayForEach(peer, cJSON_GetObjectItemCaseSensitive(port, "peerNodeList"))
                peers.insert(textOf(peer, "guid"));
        }
    }
    EXPECT_EQ(roots, 1);
    ASSERT_FALSE(peers.empty());

    std::set<int> categories;
    std::set<std::string> encoders;
    for (const std::string& guid : peers) {
        const JsonPtr json = node(guid);
        const cJSON* n = data(json, "DeviceNode");
        ASSERT_NE(n, nullptr) << guid;
        categories.insert(intOf(n, "deviceCategory"));
        if (intOf(n, "deviceCategory") == 0) {
            const int cls = intOf(n, "deviceClassType");
            const bool recorder = (cls >= 1 && cls <= 6) || cls == 51 || cls == 101 || cls == 201;
            encoders.insert(recorder ? "NVR" : "IPC");
        }
    }
    EXPECT_TRUE(categories.count(0)) << "cameras and recorders hang on the switches";
    EXPECT_TRUE(categories.count(123)) << "a device of a class the client leaves out";
    EXPECT_TRUE(categories.count(125)) << "managed APs";
    EXPECT_EQ(encoders, (std::set<std::string>{"IPC", "NVR"}));
}

TEST_F(EmulatorServicesTest, TopologyHasTheOddPortsTheClientSkips)
{
    bool aggregated = false, sharedPort = false, bigPortNumber = false;
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        const JsonPtr json = node(d.id);
        const cJSON* port = nullptr;
        cJSON_ArrayForEach(port, cJSON_GetObjectItemCaseSensitive(cJSON_GetObjectItemCaseSensitive(json.get(), "data"), "portNodeList"))
        {
            aggregated |= intOf(port, "portType") == 4;
            sharedPort |= cJSON_GetArraySize(cJSON_GetObjectItemCaseSensitive(port, "peerNodeList")) > 1;
            bigPortNumber |= intOf(port, "linkPort") > 255;
        }
    }
    EXPECT_TRUE(aggregated);
    EXPECT_TRUE(sharedPort);
    EXPECT_TRUE(bigPortNumber);
}

TEST_F(EmulatorServicesTest, AlarmsListPortsOfTheDevice)
{
    int devicesWithAlarms = 0;
    for (const EmulatorProcess::Device& d : s_emulator->devices()) {
        SCOPED_TRACE(d.name);
        const HttpResult r = serviceRequest(*s_emulator, "GET", "/alarm/v1/switchPortAlarms?guid=" + d.id);
        EXPECT_EQ(r.status, 200);
        const JsonPtr json = parseJson(r.body);
        const cJSON* alarms = data(json, "SwitchAlarmListData");
        ASSERT_NE(alarms, nullptr);
        const cJSON* list = cJSON_GetObjectItemCaseSensitive(alarms, "switchAlarmList");
        if (cJSON_GetArraySize(list) == 0)
            continue;
        ++devicesWithAlarms;
        std::set<std::string> ports;
        const XmlDoc info = parseXml(deviceRequest(*s_emulator, d, "GET", "/NXRPC/Transfers/Switches/basicInfo").body);
        for (xmlNode* p : children(child(info.root(), "portList")))
            ports.insert(text(child(p, "portId")));
        const cJSON* alarm = nullptr;
        cJSON_ArrayForEach(alarm, list)
        {
            EXPECT_TRUE(ports.count(std::to_string(intOf(alarm, "port"))));
            EXPECT_TRUE(cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(alarm, "isAlarm")));
        }
    }
    EXPECT_GT(devicesWithAlarms, 0);
}

TEST_F(EmulatorServicesTest, FailuresComeAsEnvelopeCodes)
{
    JsonPtr json = parseJson(serviceRequest(*s_emulator, "GET", "/topology/v1/deviceNode?guid=no-such-device").body);
    ASSERT_NE(json, nullptr);
    EXPECT_EQ(intOf(json.get(), "code"), 1002);
    EXPECT_EQ(textOf(json.get(), "msg"), "device not found");
    json = parseJson(serviceRequest(*s_emulator, "GET", "/alarm/v1/switchPortAlarms").body);
    EXPECT_EQ(intOf(json.get(), "code"), 1001);
    const HttpResult unknown = serviceRequest(*s_emulator, "GET", "/topology/v2/other");
    EXPECT_EQ(unknown.status, 404);
    EXPECT_EQ(intOf(parseJson(unknown.body).get(), "code"), 1404);
}
