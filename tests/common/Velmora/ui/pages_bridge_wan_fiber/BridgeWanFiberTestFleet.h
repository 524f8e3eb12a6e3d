#pragma once
// The emulated site of the bridge, WAN and fiber chassis page tests, started once per test
// program: a page given its device as the dialog gives it, the device's own records read
// directly, and the request log.
#include <QDir>
#include <QString>
#include <QFile>
#include <QTemporaryDir>
#include <cjson/cJSON.h>
#include <gtest/gtest.h>

#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "ostrand/DeviceManagerDelegate.h"
#include "support/EmulatorProcess.h"
#include "support/PageAccess.h"

// Texts in test messages as text.
inline void PrintTo(const QString& text, std::ostream* os)
{
    *os << '"' << text.toStdString() << '"';
}

namespace velmora {
namespace test {

// Bridges take their answers' gaps from their place among the bridges of the fleet:
//  - "bridge-a": no noise, no wireless mode, a channel width without its mode setting, no
//    antenna gain; encryption off, camera side; its peer has neither noise nor distance;
//  - "bridge-b": an unknown security mode, centre side, no transmit power; its peer's noise
//    is the "no value" mark -1000 and its distance is left out;
//  - "bridge-c": no SSID, no security mode, no channel, an unknown work scene; its peer
//    stands at distance 0;
//  - "bridge-d": everything, with WPA2 personal, machine room side, a measured distance;
//  - "bridge-nocard": no wireless card in its capabilities.
// The enterprise routers have a third WAN port whose way online is "LTE" on an even fleet
// place and "bridgeMode" on an odd one.
inline const char* bridgeWanFiberFleetJson()
{
    return R"({"name": "bridge-wan-fiber-tests", "devices": [
  {"model": "QN-1098", "name": "bridge-a"},
  {"model": "QN-1098", "name": "bridge-b"},
  {"model": "QN-1098", "name": "bridge-c"},
  {"model": "QN-1098", "name": "bridge-d"},
  {"model": "QN-1098", "name": "bridge-nocard", "wirelessCardID": ""},
  {"model": "QN-1170", "name": "router"},
  {"model": "QN-1180", "name": "enterprise-even"},
  {"model": "QN-1180", "name": "enterprise-odd"},
  {"model": "QN-1164", "name": "controller"},
  {"model": "QN-1137-21S", "name": "crate"}
]})";
}

class BridgeWanFiberTestFleet {
public:
    static BridgeWanFiberTestFleet& instance()
    {
        if (!holder())
            holder().reset(new BridgeWanFiberTestFleet);
        return *holder();
    }
    // Stops the emulator while Qt still runs (the test program's last step).
    static void stopIfStarted() { holder().reset(); }

    EmulatorProcess& emulator() { return *m_emulator; }
    bool isRunning() const { return m_emulator && m_emulator->isRunning(); }
    std::string error() const { return m_emulator ? m_emulator->errorString() : m_error; }

    // The identifier of the fleet device called `name`; empty when there is none.
    std::string id(const std::string& name) const
    {
        if (!m_emulator)
            return std::string();
        for (const EmulatorProcess::Device& device : m_emulator->devices()) {
            if (device.name == name)
                return device.id;
        }
        return std::string();
    }

    std::shared_ptr<tarvex7300::IAbstractDevice> device(const std::string& name) const
    {
        const std::string deviceId = id(name);
        EXPECT_FALSE(deviceId.empty()) << "no fleet device " << name;
        return ostrand::CDeviceManagerDelegate().createDeviceCopy(deviceId);
    }

    // The capability record that the registry holds for the device called `name`.
    protocol::SwitchCapabilities capabilities(const std::string& name) const
    {
        protocol::SwitchCapabilities capability;
        const auto device = m_emulator->device(id(name));
        if (!device)
            return capability;
        cJSON* root = cJSON_Parse(device->capabilitiesJson.c_str());
        if (root)
            capability.fromJSON(root);
        cJSON_Delete(root);
        return capability;
    }

    // Gives `page` the device called `name` as the dialog does.
    void open(CDeviceStatusOptionBase& page, const std::string& name) const
    {
        page.setDeviceBasicInfo(device(name));
        page.setDeviceCapbility(capabilities(name));
    }

    // Request lines that the device answered, oldest first; the digest challenges that come
    // before an answer are left out.
    std::vector<std::string> requestLines(const std::string& name) const
    {
        constexpr int kChallenge = 401;
        std::vector<std::string> lines;
        for (const EmulatorProcess::Request& request : m_emulator->requestLog(id(name))) {
            if (request.status != kChallenge)
                lines.push_back(request.requestLine);
        }
        return lines;
    }

private:
    static std::unique_ptr<BridgeWanFiberTestFleet>& holder()
    {
        static std::unique_ptr<BridgeWanFiberTestFleet> fleet;
        return fleet;
    }

    BridgeWanFiberTestFleet()
    {
        if (!m_dir.isValid()) {
            m_error = "no temporary folder";
            return;
        }
        const QString path = QDir(m_dir.path()).filePath("bridge-wan-fiber-fleet.json");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bridgeWanFiberFleetJson()) < 0) {
            m_error = "cannot write the fleet file";
            return;
        }
        file.close();
        m_emulator = std::make_unique<EmulatorProcess>(path.toStdString());
    }

    QTemporaryDir m_dir;
    std::unique_ptr<EmulatorProcess> m_emulator;
    std::string m_error;
};

// Stops the fleet after the last test, before the application object goes.
class BridgeWanFiberTestFleetEnvironment : public ::testing::Environment {
public:
    void TearDown() override { BridgeWanFiberTestFleet::stopIfStarted(); }
};
inline ::testing::Environment* const kBridgeWanFiberTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new BridgeWanFiberTestFleetEnvironment);

// A fixture for page tests: the fleet up, no faults, an empty request log, the device clock
// stopped so that the page and the test read the same answers.
class BridgeWanFiberPageTest : public ::testing::Test {
protected:
    static constexpr long long kFrozenTick = 5000;

    void SetUp() override
    {
        ASSERT_TRUE(fleet().isRunning()) << fleet().error();
        emulator().clearFaults();
        emulator().freezeClock(kFrozenTick);
        emulator().clearRequestLog();
    }
    void TearDown() override
    {
        if (fleet().isRunning()) {
            emulator().clearFaults();
            emulator().runClock();
        }
    }

    static BridgeWanFiberTestFleet& fleet() { return BridgeWanFiberTestFleet::instance(); }
    static EmulatorProcess& emulator() { return fleet().emulator(); }
    static void showStatus(CDeviceStatusOptionBase& page) { CDeviceStatusOptionBaseTestAccess::showStatus(&page); }
};

} // namespace test
} // namespace velmora
