#pragma once
// An emulated site for one test program: the emulator started on a fleet file of the
// program's own, once, and stopped after the last test while Qt still runs. A program
// declares its fleet as a class over `SharedTestFleet` that names its fleet text, and its
// page tests use `FleetPageTest<ThatFleet>` as their fixture.
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QThreadPool>
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

// What sets one test program's fleet apart from another's.
struct TestFleetOptions {
    const char* fileName;  // the fleet file written in a temporary folder
    const char* fleetJson; // its text
    // Opening a page also chooses the device's work state road, as the dialog does
    // before it shows a page that reads ports.
    bool initWorkStateOnOpen = false;
    // More options of the emulator's command line (e.g. "--own-port", "<device name>").
    std::vector<std::string> emulatorArgs = {};
};

class TestFleet {
public:
    explicit TestFleet(const TestFleetOptions& options)
        : m_options(options)
    {
        if (!m_dir.isValid()) {
            m_error = "no temporary folder";
            return;
        }
        const QString path = QDir(m_dir.path()).filePath(QString::fromUtf8(options.fileName));
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(options.fleetJson) < 0) {
            m_error = "cannot write the fleet file";
            return;
        }
        file.close();
        m_emulator = std::make_unique<EmulatorProcess>(path.toStdString(), 1, options.emulatorArgs);
    }
    virtual ~TestFleet() = default;
    TestFleet(const TestFleet&) = delete;
    TestFleet& operator=(const TestFleet&) = delete;

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

    // The names of the fleet devices whose names start with `prefix`, in registry order (the
    // devices of an entry with a count are numbered by the emulator).
    std::vector<std::string> namesStartingWith(const std::string& prefix) const
    {
        std::vector<std::string> names;
        if (!m_emulator)
            return names;
        for (const EmulatorProcess::Device& device : m_emulator->devices()) {
            if (device.name.rfind(prefix, 0) == 0)
                names.push_back(device.name);
        }
        return names;
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
        if (!m_emulator)
            return capability;
        const auto entry = m_emulator->device(id(name));
        if (!entry)
            return capability;
        cJSON* root = cJSON_Parse(entry->capabilitiesJson.c_str());
        if (root)
            capability.fromJSON(root);
        cJSON_Delete(root);
        return capability;
    }

    // Gives `page` the device called `name` as the dialog does.
    void open(CDeviceStatusOptionBase& page, const std::string& name) const
    {
        const protocol::SwitchCapabilities capability = capabilities(name);
        page.setDeviceBasicInfo(device(name));
        page.setDeviceCapbility(capability);
        if (m_options.initWorkStateOnOpen)
            WorkStatusInferface::getInstance()->initMode(id(name), capability);
    }

    // Request lines that the device with identifier `deviceId` answered, oldest first; the
    // digest challenges that come before a connection's first answer are left out.
    std::vector<std::string> requestLinesOf(const std::string& deviceId) const
    {
        constexpr int kChallenge = 401;
        std::vector<std::string> lines;
        if (!m_emulator)
            return lines;
        for (const EmulatorProcess::Request& request : m_emulator->requestLog(deviceId)) {
            if (request.status != kChallenge)
                lines.push_back(request.requestLine);
        }
        return lines;
    }
    std::vector<std::string> requestLines(const std::string& name) const { return requestLinesOf(id(name)); }

private:
    TestFleetOptions m_options;
    QTemporaryDir m_dir;
    std::unique_ptr<EmulatorProcess> m_emulator;
    std::string m_error;
};

// The one fleet of a test program, made on first use. `Fleet` derives from this class and
// has a default constructor that passes its options on.
template <class Fleet>
class SharedTestFleet : public TestFleet {
public:
    using TestFleet::TestFleet;

    static Fleet& instance()
    {
        if (!holder())
            holder().reset(new Fleet);
        return *holder();
    }
    // Stops the emulator while Qt still runs (the test program's last step).
    static void stopIfStarted() { holder().reset(); }

private:
    static std::unique_ptr<Fleet>& holder()
    {
        static std::unique_ptr<Fleet> fleet;
        return fleet;
    }
};

// Stops the fleet after the last test, before the application object goes; reads that
// pages left on the global pool finish first.
template <class Fleet>
class TestFleetEnvironment : public ::testing::Environment {
public:
    void TearDown() override
    {
        QThreadPool::globalInstance()->waitForDone();
        Fleet::stopIfStarted();
    }
};

// A fixture for page tests: the fleet up, no faults, an empty request log, the device clock
// stopped so that the page and the test read the same answers.
template <class Fleet>
class FleetPageTest : public ::testing::Test {
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
        // Reads that a page handed to the pool may still run.
        QThreadPool::globalInstance()->waitForDone();
        if (fleet().isRunning()) {
            emulator().clearFaults();
            emulator().runClock();
        }
    }

    static Fleet& fleet() { return Fleet::instance(); }
    static EmulatorProcess& emulator() { return fleet().emulator(); }
    static void showStatus(CDeviceStatusOptionBase& page) { CDeviceStatusOptionBaseTestAccess::showStatus(&page); }
};

} // namespace test
} // namespace velmora
