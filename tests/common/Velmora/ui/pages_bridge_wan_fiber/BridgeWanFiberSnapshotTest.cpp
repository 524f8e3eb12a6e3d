// Renders the wireless card page of each emulated bridge, the WAN page of the routers and the
// controller, and the fiber chassis page to PNG files under
// <build>/snapshots/pages_bridge_wan_fiber, for people to look at.
#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <cstdlib>
#include <gtest/gtest.h>

#include "support/Snapshot.h"

#include "BasicWirelessInfoWidget.h"
#include "BridgeWanFiberTestFleet.h"
#include "FiberPanelStatusWidget.h"
#include "PPPoEStatusWidget.h"

using velmora::test::BridgeWanFiberPageTest;

namespace {

void snapshot(QWidget& page, const QString& name, const QSize& size)
{
    velmora::test::writeSnapshot(page, "pages_bridge_wan_fiber", name, size);
}

class BridgeWanFiberSnapshotTest : public BridgeWanFiberPageTest {};

} // namespace

TEST_F(BridgeWanFiberSnapshotTest, WirelessCardOfEveryBridge)
{
    for (const char* name : {"bridge-a", "bridge-b", "bridge-c", "bridge-d", "bridge-nocard"}) {
        SCOPED_TRACE(name);
        velmora::CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        snapshot(page, QString::fromLatin1(name) + "-3-basic-wireless", QSize(900, 480));
    }
}

TEST_F(BridgeWanFiberSnapshotTest, WanPortsOfRoutersAndController)
{
    for (const char* name : {"router", "enterprise-even", "enterprise-odd", "controller"}) {
        SCOPED_TRACE(name);
        velmora::CPPPoEStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        snapshot(page, QString::fromLatin1(name) + "-8-wan-status", QSize(1200, 300));
    }
}

TEST_F(BridgeWanFiberSnapshotTest, FiberChassisCrate)
{
    velmora::CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    snapshot(page, "crate-2-panel-state", QSize(820, 620));
}
