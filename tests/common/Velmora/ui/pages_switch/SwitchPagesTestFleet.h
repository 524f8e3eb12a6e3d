#pragma once
// The emulated site that the switch page tests open, started once per test program, and the
// steps that tests share: a page given its device as the dialog gives it, the device's own
// records read directly, and the far side of the panel and the topology service.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cjson/cJSON.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ostrand/DeviceManagerDelegate.h"
#include "support/EmulatorProcess.h"
#include "support/PageAccess.h"

namespace velmora {
namespace test {

// The first switch is the root of the topology: a chassis with an aggregated trunk and a
// device of a class the client leaves out. "edge" is the first access switch, with a port
// that has two peers behind a hub.
inline const char* switchPagesFleetJson()
{
    return R"({"name": "switch-pages-tests", "devices": [
  {"model": "QN-1093", "name": "core"},
  {"model": "QN-1045", "name": "aggregation", "ports": "1-24E,25-28O"},
  {"model": "QN-1040", "name": "edge"},
  {"model": "QN-1040", "name": "wireless-port", "ports": "1-8E,9-10O,11W"},
  {"model": "QN-1062", "name": "poe-switch", "poe": 1},
  {"model": "QN-1066", "name": "plain-switch", "poe": 0},
  {"model": "QN-1001", "name": "logical", "panelStatus": 1},
  {"model": "Net QN-1040-X", "name": "contains-around", "category": 120, "ports": "1-8E,9-10O"},
  {"model": "QN-1070 rev2", "name": "equals-around", "category": 120, "ports": "1-8E"},
  {"model": "QN-1070", "name": "equals"},
  {"model": "QN-7777", "name": "unknown-model", "category": 120, "ports": "1-8E"},
  {"model": "QN-1040", "name": "batch", "batch": 4},
  {"model": "QN-1040", "name": "category-123", "category": 123},
  {"model": "QN-1098", "name": "bridge"},
  {"model": "QN-1140", "name": "ap"}
]})";
}

class SwitchPagesTestFleet {
public:
    static SwitchPagesTestFleet& instance()
    {
        if (!holder())
            holder().reset(new SwitchPagesTestFleet);
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

    // Gives `page` the device called `name` as the dialog does (device, capabilities, and the
    // work state road of the device).
    void open(CDeviceStatusOptionBase& page, const std::string& name) const
    {
        const protocol::SwitchCapabilities capability = capabilities(name);
        page.setDeviceBasicInfo(device(name));
        page.setDeviceCapbility(capability);
        WorkStatusInferface::getInstance()->initMode(id(name), capability);
    }

    // Request lines that the device received, oldest first.
    std::vector<std::string> requestLines(const std::string& name) const
    {
        std::vector<std::string> lines;
        for (const EmulatorProcess::Request& request : m_emulator->requestLog(id(name)))
            lines.push_back(request.requestLine);
        return lines;
    }

private:
    static std::unique_ptr<SwitchPagesTestFleet>& holder()
    {
        static std::unique_ptr<SwitchPagesTestFleet> fleet;
        return fleet;
    }

    SwitchPagesTestFleet()
    {
        if (!m_dir.isValid()) {
            m_error = "no temporary folder";
            return;
        }
        const QString path = QDir(m_dir.path()).filePath("switch-pages-fleet.json");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(switchPagesFleetJson()) < 0) {
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
class SwitchPagesTestFleetEnvironment : public ::testing::Environment {
public:
    void TearDown() override { SwitchPagesTestFleet::stopIfStarted(); }
};
inline ::testing::Environment* const kSwitchPagesTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new SwitchPagesTestFleetEnvironment);

// A fixture for page tests: the fleet up, no faults, an empty request log, the device clock
// stopped so that two reads of the same record agree.
class SwitchPageTest : public ::testing::Test {
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

    static SwitchPagesTestFleet& fleet() { return SwitchPagesTestFleet::instance(); }
    static EmulatorProcess& emulator() { return fleet().emulator(); }
    static void showStatus(CDeviceStatusOptionBase& page) { CDeviceStatusOptionBaseTestAccess::showStatus(&page); }
};

} // namespace test
} // namespace velmora
