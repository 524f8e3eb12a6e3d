// Renders each switch page of one emulated switch, and the usage chart, to PNG files under
// <build>/snapshots/pages_switch, for people to look at.
#include <QDir>
#include <QImage>
#include <QPixmap>
#include <QTableView>
#include <cstdlib>
#include <gtest/gtest.h>

#include "DeviceStatusWidget.h"
#include "POEPortStatusWidget.h"
#include "PortStatisticWidget.h"
#include "PortStatusWidget.h"
#include "SwitchPagesTestFleet.h"
#include "UsageRateChart.h"

using velmora::test::SwitchPageTest;

namespace {

QString snapshotDir()
{
    const char* build = std::getenv("VELMORA_BUILD_DIR");
    QDir dir(build ? QString::fromLocal8Bit(build) : QDir::currentPath());
    dir.mkpath("snapshots/pages_switch");
    return dir.filePath("snapshots/pages_switch");
}

// Writes the page as it would stand in the dialog's stack and checks the file.
void snapshot(QWidget& page, const QString& name, const QSize& size = QSize(900, 760))
{
    page.resize(size);
    page.show();
    QCoreApplication::processEvents();
    const QPixmap pixmap = page.grab();
    page.hide();
    ASSERT_FALSE(pixmap.isNull());
    const QString path = QDir(snapshotDir()).filePath(name + ".png");
    ASSERT_TRUE(pixmap.save(path)) << path.toStdString();
    const QImage image(path);
    EXPECT_EQ(image.size(), size);
    // Not a blank picture: more than one colour on it.
    const QRgb first = image.pixel(0, 0);
    bool varied = false;
    for (int y = 0; y < image.height() && !varied; y += 7)
        for (int x = 0; x < image.width() && !varied; x += 7)
            varied = image.pixel(x, y) != first;
    EXPECT_TRUE(varied) << name.toStdString();
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
