#pragma once
// The emulated site that the wireless page tests open, started once per test program, and
// the steps they share: a page given its device as the dialog gives it, the device's own
// records read directly, waiting for the event loop, and the widgets of a page by name.
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QThread>
#include <QThreadPool>
#include <QTimer>
#include <cjson/cJSON.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "Quillon/WirelessRecords.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ostrand/DeviceManagerDelegate.h"
#include "QtPrinters.h"
#include "support/EmulatorProcess.h"
#include "support/PageAccess.h"

namespace velmora {
namespace test {

// Controllers with the paged group search, with the plain group query and without groups;
// stand-alone APs with clients, without clients, and a dozen more for the spread of radio
// modes. Managed APs cycle through the AP models, so every seventh to tenth of them has
// three radios; on "ac-search" APs 17, 34, ..., 102 keep an upgrade state.
inline const char* wirelessPagesFleetJson()
{
    return R"({"name": "wireless-pages-tests", "devices": [
  {"model": "QN-1156", "name": "ac-search", "apCount": 120, "groups": 20, "searchGroups": 1, "terminalsPerAp": 4},
  {"model": "QN-1160", "name": "ac-plain", "apCount": 24, "groups": 5, "searchGroups": 0, "terminalsPerAp": 1},
  {"model": "QN-1164", "name": "ac-nogroups", "apCount": 8, "groups": 0, "terminalsPerAp": 2},
  {"model": "QN-1140", "name": "ap"},
  {"model": "QN-1142", "name": "ap-quiet", "clientsPerBss": 0},
  {"model": "QN-1144", "name": "ap-many", "count": 24}
]})";
}

class WirelessPagesTestFleet {
public:
    static WirelessPagesTestFleet& instance()
    {
        if (!holder())
            holder().reset(new WirelessPagesTestFleet);
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

    // The names of the fleet devices whose names start with `prefix`, in registry order (the
    // devices of an entry with a count are numbered by the emulator).
    std::vector<std::string> namesStartingWith(const std::string& prefix) const
    {
        std::vector<std::string> names;
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
        const auto entry = m_emulator->device(id(name));
        if (!entry)
            return capability;
        cJSON* root = cJSON_Parse(entry->capabilitiesJson.c_str());
        if (root)
            capability.fromJSON(root);
        cJSON_Delete(root);
        return capability;
    }

    // Gives `page` the device called `name` as the factory does.
    void open(CDeviceStatusOptionBase& page, const std::string& name) const
    {
        page.setDeviceBasicInfo(device(name));
        page.setDeviceCapbility(capabilities(name));
    }

    // Request lines that the device answered, oldest first, without the authentication
    // challenges.
    std::vector<std::string> requestLines(const std::string& name) const
    {
        std::vector<std::string> lines;
        for (const EmulatorProcess::Request& request : m_emulator->requestLog(id(name))) {
            if (request.status != 401)
                lines.push_back(request.requestLine);
        }
        return lines;
    }

    // The managed APs of a controller as it answers now.
    std::vector<Quillon::ApInfo> managedAps(const std::string& name) const
    {
        Quillon::ApInfoList list{std::string()};
        EXPECT_TRUE(ParamInterface::getApInfoList(list, id(name))) << name;
        return list.apList;
    }

    std::vector<Quillon::AcTerminalInfo> terminals(const std::string& name) const
    {
        Quillon::AcTerminalInfoList list{std::string()};
        EXPECT_TRUE(ParamInterface::getApTerminalInfoList(list, id(name))) << name;
        return list.terminalList;
    }

private:
    static std::unique_ptr<WirelessPagesTestFleet>& holder()
    {
        static std::unique_ptr<WirelessPagesTestFleet> fleet;
        return fleet;
    }

    WirelessPagesTestFleet()
    {
        if (!m_dir.isValid()) {
            m_error = "no temporary folder";
            return;
        }
        const QString path = QDir(m_dir.path()).filePath("wireless-pages-fleet.json");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(wirelessPagesFleetJson()) < 0) {
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
class WirelessPagesTestFleetEnvironment : public ::testing::Environment {
public:
    void TearDown() override
    {
        QThreadPool::globalInstance()->waitForDone();
        WirelessPagesTestFleet::stopIfStarted();
    }
};
inline ::testing::Environment* const kWirelessPagesTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new WirelessPagesTestFleetEnvironment);

// Runs the event loop until `done` holds or `timeoutMs` has passed; true when it holds.
inline bool waitUntil(const std::function<bool()>& done, int timeoutMs = 20000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        QThread::msleep(5);
    }
    return true;
}

template <class T>
T* part(QWidget& page, const char* name)
{
    T* widget = page.findChild<T*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

inline QString labelText(QWidget& page, const char* name)
{
    QLabel* label = part<QLabel>(page, name);
    return label ? label->text() : QString();
}

// The page's own timer (its only direct QTimer child).
inline QTimer* timerOf(QWidget& page)
{
    const QList<QTimer*> timers = page.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(timers.size(), 1);
    return timers.isEmpty() ? nullptr : timers.front();
}

// A fixture for page tests: the fleet up, no faults, an empty request log, the device clock
// stopped so that the page and the test read the same answers.
class WirelessPageTest : public ::testing::Test {
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
        // Reads of the managed AP list may still run on the pool.
        QThreadPool::globalInstance()->waitForDone();
        if (fleet().isRunning()) {
            emulator().clearFaults();
            emulator().runClock();
        }
    }

    static WirelessPagesTestFleet& fleet() { return WirelessPagesTestFleet::instance(); }
    static EmulatorProcess& emulator() { return fleet().emulator(); }
    static void showStatus(CDeviceStatusOptionBase& page) { CDeviceStatusOptionBaseTestAccess::showStatus(&page); }
};

} // namespace test
} // namespace velmora
