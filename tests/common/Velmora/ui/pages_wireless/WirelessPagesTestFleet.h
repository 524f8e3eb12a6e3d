#pragma once
// The emulated site that the wireless page tests open, started once per test program, and
// the steps they share: a page given its device as the dialog gives it, the device's own
// records read directly, waiting for the event loop, and the widgets of a page by name.
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QThread>
#include <QTimer>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "Quillon/WirelessRecords.h"
#include "logical/interface/ParamInterface.h"
#include "QtPrinters.h"
#include "support/TestFleet.h"

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

class WirelessPagesTestFleet : public SharedTestFleet<WirelessPagesTestFleet> {
public:
    WirelessPagesTestFleet()
        : SharedTestFleet({"wireless-pages-fleet.json", wirelessPagesFleetJson()})
    {
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
};

inline ::testing::Environment* const kWirelessPagesTestFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new TestFleetEnvironment<WirelessPagesTestFleet>);

using WirelessPageTest = FleetPageTest<WirelessPagesTestFleet>;

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

} // namespace test
} // namespace velmora
