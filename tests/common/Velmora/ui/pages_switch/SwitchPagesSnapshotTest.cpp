// Renders each switch page of one emulated switch, and the usage chart, to PNG files under
// <build>/snapshots/pages_switch, for people to look at.
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QTableView>
#include <cstdlib>
#include <gtest/gtest.h>

#include "support/Snapshot.h"

#include "DeviceStatusWidget.h"
#include "POEPortStatusWidget.h"
#include "PortStatisticWidget.h"
#include "PortStatusWidget.h"
#include "SwitchPagesTestFleet.h"
#include "UsageRateChart.h"

using velmora::test::SwitchPageTest;

namespace {

void snapshot(QWidget& page, const QString& name, const QSize& size = QSize(900, 760))
{
    velmora::test::writeSnapshot(page, "pages_switch", name, size);
}

class SwitchPagesSnapshotTest : public SwitchPageTest {};

} // namespace

TEST_F(SwitchPagesSnapshotTest, EveryPageOfOneSwitch)
{
    for (const char* name : {"poe-switch", "core"}) {
        SCOPED_TRACE(name);
        const QString prefix = QString::fromLatin1(name) + "-";
        {
            velmora::CDeviceStatusWidget page(nullptr);
            fleet().open(page, name);
            showStatus(page);
            snapshot(page, prefix + "1-device-status", std::string(name) == "core" ? QSize(1100, 1000) : QSize(900, 760));
        }
        {
            velmora::CPortStatusWidget page(nullptr);
            fleet().open(page, name);
            showStatus(page);
            snapshot(page, prefix + "4-port-status");
        }
        {
            velmora::CPortStatisticWidget page(nullptr);
            fleet().open(page, name);
            showStatus(page);
            snapshot(page, prefix + "5-port-statistics", QSize(1300, 760));
        }
        {
            velmora::CPOEPortStatusWidget page(nullptr);
            fleet().open(page, name);
            showStatus(page);
            snapshot(page, prefix + "6-poe-ports");
        }
    }
}

TEST(SwitchPagesSnapshot, UsageRateChart)
{
    QWidget strip;
    strip.setStyleSheet("background-color: #2b2b2b;");
    const double rates[] = {0, 12.5, 50, 87.25, 100};
    int x = 0;
    for (double rate : rates) {
        auto* chart = new velmora::CUsageRateChart(&strip);
        chart->setGeometry(x, 0, 120, 120);
        chart->setUsageRate(rate);
        x += 130;
    }
    snapshot(strip, "usage-rate-chart", QSize(x, 120));
}
