#include "ostrand/DeviceRegistry.h"

#include <atomic>
#include <cstdlib>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "RegistryFile.h"

namespace {

const char kTwoDevices[] = R"({
  "services": {"topology": "http://127.0.0.1:18080", "alarm": "http://127.0.0.1:18081"},
  "devices": [
    {"id": "SW-0001", "name": "Core \u4ea4\u6362\u673a", "category": 120, "model": "NX-S5750-24GT4XF",
     "address": "192.0.2.10", "port": 8443, "scheme": "https", "hostName": "core.example",
     "user": "admin", "password": "Passw0rd", "auth": "basic", "verifyPeer": true,
     "capabilities": {"supportWorkStatusBatch": true, "isSupportAPGroup": false, "wirelessCardID": "2"}},
    {"id": "AP-0002", "category": 125, "model": "NX-AP310"}
  ]
})";

TEST(DeviceRegistryTest, ReadsDevicesAndServices)
{
    TemporaryRegistry registry;
    registry.write(kTwoDevices);
    ostrand::CDeviceRegistry& devices = ostrand::CDeviceRegistry::instance();

    EXPECT_EQ(devices.path(), registry.path());
    EXPECT_EQ(devices.lastError(), "");
    const ostrand::ServiceEntry services = devices.services();
    EXPECT_EQ(services.topology, "http://127.0.0.1:18080");
    EXPECT_EQ(services.alarm, "http://127.0.0.1:18081");

    const std::optional<ostrand::DeviceEntry> sw = devices.find("SW-0001");
    ASSERT_TRUE(sw.has_value());
    EXPECT_EQ(sw->name, "Core \xE4\xBA\xA4\xE6\x8D\xA2\xE6\x9C\xBA");
    EXPECT_EQ(sw->category, 120);
    EXPECT_EQ(sw->model, "NX-S5750-24GT4XF");
    EXPECT_EQ(sw->address, "192.0.2.10");
    EXPECT_EQ(sw->port, 8443);
    EXPECT_EQ(sw->scheme, "https");
    EXPECT_EQ(sw->hostName, "core.example");
    EXPECT_EQ(sw->user, "admin");
    EXPECT_EQ(sw->password, "Passw0rd");
    EXPECT_EQ(sw->auth, "basic");
    EXPECT_TRUE(sw->verifyPeer);
    EXPECT_EQ(sw->capabilitiesJson, R"({"supportWorkStatusBatch":true,"isSupportAPGroup":false,"wirelessCardID":"2"})");

    // Absent keys keep their defaults.
    const std::optional<ostrand::DeviceEntry> ap = devices.find("AP-0002");
    ASSERT_TRUE(ap.has_value());
    EXPECT_EQ(ap->name, "");
    EXPECT_EQ(ap->address, "127.0.0.1");
    EXPECT_EQ(ap->port, 80);
    EXPECT_EQ(ap->scheme, "http");
    EXPECT_EQ(ap->auth, "digest");
    EXPECT_FALSE(ap->verifyPeer);
    EXPECT_EQ(ap->capabilitiesJson, "");

    const std::vector<ostrand::DeviceEntry> all = devices.devices();
    ASSERT_EQ(all.size(), 2u);
    EXPECT_EQ(all[0].id, "SW-0001");
    EXPECT_EQ(all[1].id, "AP-0002");
}

TEST(DeviceRegistryTest, UnknownIdIsNotFound)
{
    TemporaryRegistry registry;
    registry.write(kTwoDevices);
    EXPECT_FALSE(ostrand::CDeviceRegistry::instance().find("SW-9999").has_value());
    EXPECT_FALSE(ostrand::CDeviceRegistry::instance().find("").has_value());
    EXPECT_FALSE(ostrand::CDeviceRegistry::instance().find("sw-0001").has_value());
}

TEST(DeviceRegistryTest, ReloadsWhenFileChanges)
{
    TemporaryRegistry registry;
    registry.write(R"({"devices":[{"id":"A","model":"first"}]})");
    ostrand::CDeviceRegistry& devices = ostrand::CDeviceRegistry::instance();
    ASSERT_TRUE(devices.find("A").has_value());
    EXPECT_EQ(devices.find("A")->model, "first");

    // Rewritten at once: same second, different content and size.
    registry.write(R"({"devices":[{"id":"A","model":"second model"},{"id":"B"}]})");
    ASSERT_TRUE(devices.find("A").has_value());
    EXPECT_EQ(devices.find("A")->model, "second model");
    EXPECT_TRUE(devices.find("B").has_value());

    registry.write(R"({"devices":[]})");
    EXPECT_FALSE(devices.find("A").has_value());
    EXPECT_TRUE(devices.devices().empty());
}

TEST(DeviceRegistryTest, FollowsPathAndEnvironment)
{
    TemporaryRegistry first;
    first.write(R"({"devices":[{"id":"FIRST"}]})");
    TemporaryRegistry second; // points the registry at itself
    second.write(R"({"devices":[{"id":"SECOND"}]})");
    ostrand::CDeviceRegistry& devices = ostrand::CDeviceRegistry::instance();
    EXPECT_TRUE(devices.find("SECOND").has_value());
    EXPECT_FALSE(devices.find("FIRST").has_value());

    devices.setPath(std::string());
    setenv("VELMORA_REGISTRY", first.path().c_str(), 1);
    EXPECT_EQ(devices.path(), first.path());
    EXPECT_TRUE(devices.find("FIRST").has_value());
    EXPECT_FALSE(devices.find("SECOND").has_value());

    unsetenv("VELMORA_REGISTRY");
    EXPECT_EQ(devices.path(), "velmora-registry.json");
    devices.setPath(second.path());
}

TEST(DeviceRegistryTest, MalformedFileGivesEmptyRegistryAndError)
{
    TemporaryRegistry registry;
    registry.write(kTwoDevices);
    ostrand::CDeviceRegistry& devices = ostrand::CDeviceRegistry::instance();
    ASSERT_TRUE(devices.find("SW-0001").has_value());

    registry.write(R"({"devices":[{"id":"SW-0001",)");
    EXPECT_FALSE(devices.find("SW-0001").has_value());
    EXPECT_TRUE(devices.devices().empty());
    EXPECT_EQ(devices.services().topology, "");
    EXPECT_NE(devices.lastError().find("JSON syntax error"), std::string::npos) << devices.lastError();

    registry.write(R"({"devices":{"id":"SW-0001"}})");
    EXPECT_FALSE(devices.find("SW-0001").has_value());
    EXPECT_NE(devices.lastError(), "");

    registry.write(R"([1,2,3])");
    EXPECT_TRUE(devices.devices().empty());
    EXPECT_NE(devices.lastError().find("not an object"), std::string::npos) << devices.lastError();

    // A good file again clears the error.
    registry.write(kTwoDevices);
    EXPECT_TRUE(devices.find("SW-0001").has_value());
    EXPECT_EQ(devices.lastError(), "");
}

TEST(DeviceRegistryTest, MissingFileGivesEmptyRegistryAndError)
{
    TemporaryRegistry registry; // nothing written
    EXPECT_FALSE(ostrand::CDeviceRegistry::instance().find("SW-0001").has_value());
    EXPECT_NE(ostrand::CDeviceRegistry::instance().lastError().find("cannot open"), std::string::npos);
}

TEST(DeviceRegistryTest, EntriesWithoutIdAreSkipped)
{
    TemporaryRegistry registry;
    registry.write(R"({"devices":[{"name":"no id"}, 5, {"id":"OK"}, {"id":"OK","model":"duplicate"}]})");
    const std::vector<ostrand::DeviceEntry> all = ostrand::CDeviceRegistry::instance().devices();
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0].id, "OK");
    EXPECT_EQ(all[0].model, "");
}

TEST(DeviceRegistryTest, ParallelReadersDuringReplacements)
{
    TemporaryRegistry registry;
    registry.replace(kTwoDevices);
    std::atomic<bool> writing{true};
    std::atomic<int> lookups{0};
    std::atomic<int> found{0};
    std::vector<std::thread> readers;
    for (int t = 0; t < 4; ++t) {
        readers.emplace_back([&] {
            while (writing.load() || lookups.load() < 400) {
                ++lookups;
                if (ostrand::CDeviceRegistry::instance().find("AP-0002").has_value())
                    ++found;
            }
        });
    }
    // Alternate between two registries that both hold the device.
    for (int i = 0; i < 50; ++i)
        registry.replace(i % 2 == 0 ? std::string(R"({"devices":[{"id":"AP-0002","model":"other"}]})") : kTwoDevices);
    writing = false;
    for (std::thread& reader : readers)
        reader.join();
    EXPECT_EQ(found.load(), lookups.load());
}

} // namespace
