// The fleets: the registry the emulator writes, and the 500-device fleet with its switches
// of a thousand ports.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <fstream>
#include <set>

using namespace velmora::test;

TEST(EmulatorFleetTest, RegistryDescribesEveryDeviceAndTheServices)
{
    EmulatorProcess emulator("demo");
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    QFile file(QString::fromStdString(emulator.registryPath()));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonObject root = QJsonDocument::fromJson(file.readAll()).object();
    EXPECT_EQ(root.value("services").toObject().value("topology").toString().toStdString(), emulator.baseUrl());
    EXPECT_EQ(root.value("services").toObject().value("alarm").toString().toStdString(), emulator.baseUrl());
    const QStringList capabilityKeys = {"supportBasicInfo", "supportWorkStatusBatch", "supportCrateSlotStatus", "wirelessCardID",
                                        "supportPortStatistic", "isLayer3Switch", "isDiscoveryMode", "bIsChassisDevice",
                                        "bIsSupportPanelStatus", "deviceTypeName", "switchPriority", "supportRegion",
                                        "isSupportAPGroup", "isSupportAutoSecurityEntry", "isSupportLinkNeighbors"};
    std::set<QString> ids, hosts;
    for (const QJsonValue& v : root.value("devices").toArray()) {
        const QJsonObject d = v.toObject();
        for (const char* key : {"id", "name", "model", "address", "scheme", "hostName", "user", "password", "auth"})
            EXPECT_TRUE(d.value(key).isString()) << key;
        EXPECT_EQ(d.value("address").toString(), "127.0.0.1");
        EXPECT_EQ(d.value("port").toInt(), emulator.port());
        EXPECT_EQ(d.value("scheme").toString(), "http");
        EXPECT_EQ(d.value("auth").toString(), "digest");
        EXPECT_TRUE(d.value("category").isDouble());
        EXPECT_EQ(d.value("capabilities").toObject().keys().size(), capabilityKeys.size());
        for (const QString& key : capabilityKeys)
            EXPECT_TRUE(d.value("capabilities").toObject().contains(key)) << key.toStdString();
        ids.insert(d.value("id").toString());
        hosts.insert(d.value("hostName").toString());
    }
    EXPECT_EQ(ids.size(), emulator.devices().size());
    EXPECT_EQ(hosts.size(), emulator.devices().size());
    EXPECT_FALSE(emulator.deviceIds(120).empty());
    EXPECT_FALSE(emulator.deviceIdsByModel("QN-1098").empty());
}

TEST(EmulatorFleetTest, HostWithPortNamesTheDeviceToo)
{
    EmulatorProcess emulator("demo");
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    EmulatorProcess::Device d = *emulator.device(emulator.deviceId(122));
    d.hostName += ":" + std::to_string(emulator.port());
    EXPECT_EQ(deviceRequest(emulator, d, "GET", "/NXRPC/System/status").status, 200);
}

TEST(EmulatorFleetTest, FleetFileDescribesDevices)
{
    QTemporaryDir dir;
    const std::string path = dir.filePath("fleet.json").toStdString();
    std::ofstream(path) << R"({"name": "lab", "devices": [
        {"model": "QN-1040", "count": 3, "password": "secret"},
        {"model": "QN-7000", "category": 120, "ports": 200, "batch": 50, "name": "Big"}]})";
    EmulatorProcess emulator(path);
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    ASSERT_EQ(emulator.devices().size(), 4u);
    EXPECT_EQ(emulator.deviceIdsByModel("QN-1040").size(), 3u);
    EXPECT_EQ(emulator.devices().front().password, "secret");
    const EmulatorProcess::Device big = *emulator.device(emulator.deviceId(120, "QN-7000"));
    EXPECT_EQ(big.name, "Big");
    const XmlDoc cap = parseXml(deviceRequest(emulator, big, "GET", "/NXRPC/Transfers/Switches/workState/search/capabilities").body);
    EXPECT_EQ(text(child(cap.root(), "maxResults")), "50");
}

TEST(EmulatorFleetTest, LargeFleetStartsWithFiveHundredDevices)
{
    EmulatorProcess emulator("large", 4, {}, 120000);
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    ASSERT_GE(emulator.devices().size(), 500u);

    // A sample of the fleet answers, each with its own credentials.
    for (size_t i = 0; i < emulator.devices().size(); i += 25) {
        const EmulatorProcess::Device& d = emulator.devices()[i];
        const HttpResult r = deviceRequest(emulator, d, "GET", "/NXRPC/System/status");
        EXPECT_EQ(r.status, 200) << d.name;
        EXPECT_EQ(checkAnswer(r.body, "DeviceStatus", false), "") << d.name;
    }

    // The switches of a thousand ports, walked page by page.
    int thousandPortSwitches = 0;
    for (const EmulatorProcess::Device& d : emulator.devices()) {
        if (d.category != 120)
            continue;
        const XmlDoc info = parseXml(deviceRequest(emulator, d, "GET", "/NXRPC/Transfers/Switches/basicInfo").body);
        if (text(child(info.root(), "portNum")) != "1000")
            continue;
        ++thousandPortSwitches;
        const XmlDoc cap = parseXml(deviceRequest(emulator, d, "GET", "/NXRPC/Transfers/Switches/workState/search/capabilities").body);
        const int pageSize = std::stoi(text(child(cap.root(), "maxResults")));
        std::set<std::string> seen;
        for (int position = 0;; position += pageSize) {
            const HttpResult r = deviceRequest(emulator, d, "POST", "/NXRPC/Transfers/Switches/workState/search",
                                               searchCondition("SwitchesWorkStateSearchCond", "big-walk", pageSize, position, false));
            ASSERT_EQ(r.status, 200);
            const XmlDoc page = parseXml(r.body);
            for (xmlNode* item : children(child(page.root(), "portList")))
                seen.insert(text(child(item, "portId")));
            if (text(child(page.root(), "responseStatus")) != "MORE")
                break;
            ASSERT_LT(position, 2000);
        }
        EXPECT_EQ(seen.size(), 1000u);
        const HttpResult whole = deviceRequest(emulator, d, "GET", "/NXRPC/Transfers/Switches/workState");
        EXPECT_EQ(checkAnswer(whole.body, "SwitchesWorkState", false), "");
    }
    EXPECT_EQ(thousandPortSwitches, 2);
}

TEST(EmulatorFleetTest, ManyKeptConnectionsDoNotHoldOthersBack)
{
    EmulatorProcess emulator("demo");
    ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
    // A client that keeps one connection per device, as the transport does.
    std::vector<CURL*> handles;
    auto write = +[](char*, size_t size, size_t count, void*) { return size * count; };
    for (int i = 0; i < 150; ++i) {
        const EmulatorProcess::Device& d = emulator.devices()[static_cast<size_t>(i) % emulator.devices().size()];
        CURL* curl = curl_easy_init();
        ASSERT_NE(curl, nullptr);
        handles.push_back(curl);
        curl_slist* headers = curl_slist_append(nullptr, ("Host: " + d.hostName).c_str());
        curl_easy_setopt(curl, CURLOPT_URL, (emulator.baseUrl() + "/NXRPC/System/status").c_str());
        curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers);
        curl_easy_setopt(curl, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(curl, CURLOPT_USERNAME, d.user.c_str());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, d.password.c_str());
        curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, write);
        curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, 20000L);
        curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
        EXPECT_EQ(curl_easy_perform(curl), CURLE_OK);
        long status = 0;
        curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
        EXPECT_EQ(status, 200);
        curl_easy_setopt(curl, CURLOPT_HTTPHEADER, nullptr);
        curl_slist_free_all(headers);
    }
    const HttpResult r = deviceRequest(emulator, emulator.devices().back(), "GET", "/NXRPC/System/status");
    EXPECT_EQ(r.status, 200);
    EXPECT_LT(r.seconds, 2.0);
    for (CURL* curl : handles)
        curl_easy_cleanup(curl);
}
