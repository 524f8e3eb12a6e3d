#pragma once
// The fleet the dialog tests open: one device of every class the dialog knows, switches and
// routers with and without PoE, controllers with and without AP groups, and devices of the
// classes that have no rows. Started once per test program.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/EmulatorProcess.h"

namespace velmora {
namespace test {

inline const char* dialogTestFleetJson()
{
    return R"({"name": "dialog-tests", "devices": [
  {"model": "QN-1062", "name": "poe-switch"},
  {"model": "QN-1066", "name": "plain-switch"},
  {"model": "QN-1180", "name": "poe-router"},
  {"model": "QN-1181", "name": "plain-router"},
  {"model": "QN-1098", "name": "bridge"},
  {"model": "QN-1137", "name": "fiber"},
  {"model": "QN-1160", "name": "ac-groups", "apCount": 3, "groups": 2, "searchGroups": 0},
  {"model": "QN-1164", "name": "ac-plain", "apCount": 3, "groups": 0},
  {"model": "QN-1140", "name": "ap"},
  {"model": "QN-1170", "name": "wireless-router"},
  {"model": "QN-1040", "name": "class-0", "category": 0},
  {"model": "QN-1040", "name": "class-119", "category": 119},
  {"model": "QN-1040", "name": "class-123", "category": 123},
  {"model": "QN-1040", "name": "class-127", "category": 127},
  {"model": "QN-1040", "name": "class-128", "category": 128},
  {"model": "QN-1040", "name": "class-129", "category": 129},
  {"model": "QN-1040", "name": "class-131", "category": 131}
]})";
}

// One emulator for the whole test program, on the fleet above.
class DialogTestFleet {
public:
    static DialogTestFleet& instance()
    {
        if (!holder())
            holder().reset(new DialogTestFleet);
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

    // Request lines the device answered, oldest first; the authentication challenges
    // that precede a connection's first request are left out.
    std::vector<std::string> requestLines(const std::string& deviceId) const
    {
        std::vector<std::string> lines;
        for (const EmulatorProcess::Request& request : m_emulator->requestLog(deviceId)) {
            if (request.status != 401)
                lines.push_back(request.requestLine);
        }
        return lines;
    }

private:
    static std::unique_ptr<DialogTestFleet>& holder()
    {
        static std::unique_ptr<DialogTestFleet> fleet;
        return fleet;
    }

    DialogTestFleet()
    {
        if (!m_dir.isValid()) {
            m_error = "no temporary folder";
            return;
        }
        const QString path = QDir(m_dir.path()).filePath("dialog-fleet.json");
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(dialogTestFleetJson()) < 0) {
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
class DialogTestFleetEnvironment : public ::testing::Environment {
public:
    void TearDown() override { DialogTestFleet::stopIfStarted(); }
};
inline ::testing::Environment* const kDialogTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new DialogTestFleetEnvironment);

} // namespace test
} // namespace velmora

#define VELMORA_REQUIRE_FLEET()                                                                     \
    do {                                                                                            \
        ASSERT_TRUE(::velmora::test::DialogTestFleet::instance().isRunning())                       \
            << ::velmora::test::DialogTestFleet::instance().error();                                \
    } while (0)
