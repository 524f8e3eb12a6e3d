// The port statistics page: counters and rates per wired port, the refresh interval that all
// pages share, and clearing the device's counters with the short shot that follows.
#include <QComboBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/LogCapture.h"

#include "PortStatisticModel.h"
#include "PortStatisticWidget.h"
#include "SpeedDataUintconvert.h"
#include "SwitchPagesTestFleet.h"
#include "SwitchPorts.h"
#include "logical/interface/ParamInterface.h"

using velmora::CPortStatisticModel;
using velmora::CPortStatisticWidget;
using velmora::PortStatisticData;
using velmora::test::EmulatorProcess;
using velmora::test::SwitchPageTest;

namespace {

const char kClearRequest[] = "PUT /NXRPC/Transfers/Switches/portSumClear";
const char kClearPath[] = "/NXRPC/Transfers/Switches/portSumClear";
const char kBasicInfoPath[] = "/NXRPC/Transfers/Switches/basicInfo";

struct Parts {
    QComboBox* combo = nullptr;
    QPushButton* refresh = nullptr;
    QPushButton* clear = nullptr;
    QTableView* view = nullptr;
    QTimer* timer = nullptr;
};

Parts partsOf(CPortStatisticWidget& page)
{
    Parts parts;
    parts.combo = page.findChild<QComboBox*>("m_pRefreshRatecomboBox");
    parts.refresh = page.findChild<QPushButton*>("m_pRefreshButton");
    parts.clear = page.findChild<QPushButton*>("m_pClearButton");
    parts.view = page.findChild<QTableView*>("m_pPortStatisticsTreeView");
    const QList<QTimer*> timers = page.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    if (timers.size() == 1)
        parts.timer = timers.front();
    return parts;
}

QString cell(const Parts& parts, int row, int column)
{
    return parts.view->model()->index(row, column).data().toString();
}

std::string rate(uint32_t bitsPerSecond)
{
    return velmora::SpeedDataUintconvert::speedDataAdaptiveUintconvert(bitsPerSecond, velmora::SpeedDataUintconvert::bps)
        .toStdString();
}

Quillon::SwitchesWorkStateItem linkedPort()
{
    Quillon::SwitchesWorkStateItem port;
    port.portId = 3;
    port.linkState = "connected";
    port.portType = "optical";
    port.bytesSent = "1234567";
    port.bytesReceived = "123";
    port.packetsSent = "1000";
    port.packetsReceived = "";
    port.sendRate = 1500000;
    port.receiveRate = 999;
    port.peakSendRate = 0;
    port.peakReceiveRate = 1000;
    return port;
}

class PortStatisticWidgetTest : public SwitchPageTest {
protected:
    void TearDown() override
    {
        CPortStatisticWidget::nRefreshRate = 10;
        SwitchPageTest::TearDown();
    }
};

} // namespace

TEST(PortStatisticModel, HasNineLeftAlignedHeadersInColumnOrder)
{
    CPortStatisticModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPortStatisticModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 9);
    const char* keys[] = {"PortName", "NumberOfBytesSent", "NumberOfMessagesSent", "NumberOfBytesReceived",
                          "NumberOfMessagesReceived", "SendingRate", "ReceivingRate",
                          "PeakRateOfTransmission(InSevenDays)", "ReceivingPeakRate(InSevenDays)"};
    for (int c = 0; c < 9; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), QString(keys[c]));
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81);
    }
}

TEST(PortStatisticModel, ColumnsShowTheRecordMembersInTheirOrder)
{
    CPortStatisticModel model(nullptr);
    PortStatisticData row;
    row.bConnected = true;
    row.strPortName = u8"Port-Ü";
    row.strBytesSent = "bs";
    row.strPacketsSent = "ps";
    row.strSendRate = "sr";
    row.strBytesReceived = "br";
    row.strPacketsReceived = "pr";
    row.strReceiveRate = "rr";
    row.strPeakSendRate = "psr";
    row.strPeakReceiveRate = "prr";
    model.setPortStatistic({row, row});
    ASSERT_EQ(model.rowCount(), 2);
    const char* expected[] = {"", "bs", "ps", "br", "pr", "sr", "rr", "psr", "prr"};
    EXPECT_EQ(model.index(0, 0).data().toString(), QString::fromUtf8(u8"Port-Ü"));
    for (int c = 1; c < 9; ++c)
        EXPECT_EQ(model.index(1, c).data().toString(), QString(expected[c])) << c;
    model.setPortStatistic({});
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(PortStatisticRow, LinkedPortGroupsCountersAndFormatsRates)
{
    Quillon::CSwitchBaseInfo info;
    Quillon::SwitchBasePort base;
    base.portId = 3;
    base.portName = "XGE1/0/3";
    info.portList.push_back(base);
    const PortStatisticData row = CPortStatisticWidget::makePortStatisticData(linkedPort(), info);
    EXPECT_TRUE(row.bConnected);
    EXPECT_EQ(row.strPortName, "XGE1/0/3");
    EXPECT_EQ(row.strBytesSent, "1,234,567");
    EXPECT_EQ(row.strBytesReceived, "123"); // three digits stand as they are
    EXPECT_EQ(row.strPacketsSent, "1,000");
    EXPECT_EQ(row.strPacketsReceived, "");
    EXPECT_EQ(row.strSendRate, "1.500Mbps");
    EXPECT_EQ(row.strReceiveRate, "999.000bps");
    // A peak of 0 is unknown, while its rate column is formatted.
    EXPECT_EQ(row.strPeakSendRate, "--");
    EXPECT_EQ(row.strPeakReceiveRate, "1.000Kbps");
}

TEST(PortStatisticRow, DisconnectedPortShowsDashesAndKeepsItsName)
{
    Quillon::SwitchesWorkStateItem port = linkedPort();
    port.linkState = "disconnected";
    const PortStatisticData row = CPortStatisticWidget::makePortStatisticData(port, Quillon::CSwitchBaseInfo());
    EXPECT_FALSE(row.bConnected);
    EXPECT_EQ(row.strPortName, "");
    for (const std::string* text : {&row.strBytesSent, &row.strPacketsSent, &row.strSendRate, &row.strBytesReceived,
                                    &row.strPacketsReceived, &row.strReceiveRate, &row.strPeakSendRate,
                                    &row.strPeakReceiveRate})
        EXPECT_EQ(*text, "--");
}

TEST(PortStatisticRefreshRates, AreTenTwentyAndThirtySeconds)
{
    ASSERT_EQ(CPortStatisticWidget::mapRefreshRate.size(), 3u);
    EXPECT_EQ(CPortStatisticWidget::mapRefreshRate.at("10s"), 10);
    EXPECT_EQ(CPortStatisticWidget::mapRefreshRate.at("20s"), 20);
    EXPECT_EQ(CPortStatisticWidget::mapRefreshRate.at("30s"), 30);
}

TEST_F(PortStatisticWidgetTest, FormAndTimerFromConstruction)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    EXPECT_EQ(page.objectName(), QString("UiPortStatisticWidget"));
    EXPECT_EQ(page.size(), QSize(624, 393));
    EXPECT_EQ(page.windowTitle(), QString("CActiveDeviceDialog"));
    const Parts parts = partsOf(page);
    ASSERT_NE(parts.combo, nullptr);
    ASSERT_NE(parts.refresh, nullptr);
    ASSERT_NE(parts.clear, nullptr);
    ASSERT_NE(parts.view, nullptr);
    ASSERT_NE(parts.timer, nullptr);
    EXPECT_NE(qobject_cast<TarvexGUIToolkit::CComboBox*>(parts.combo), nullptr);
    EXPECT_NE(qobject_cast<TarvexGUIToolkit::CPushButton*>(parts.refresh), nullptr);
    EXPECT_EQ(parts.refresh->text(), QString("ManuallyRefresh"));
    EXPECT_EQ(parts.clear->text(), QString("Clear"));
    EXPECT_GE(parts.refresh->minimumWidth(), 64);
    EXPECT_GE(parts.clear->minimumWidth(), 64);
    auto* label = page.findChild<QLabel*>("refreshRateLabel");
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), QString("RefreshRate"));
    ASSERT_EQ(parts.combo->count(), 3);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(parts.combo->itemText(i), QString("%1s").arg(10 * (i + 1)));
        EXPECT_EQ(parts.combo->itemData(i, Qt::UserRole).toInt(), 10 * (i + 1));
    }
    EXPECT_EQ(parts.combo->currentText(), QString("10s"));
    EXPECT_EQ(parts.view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(parts.view->columnWidth(0), 150);
    EXPECT_EQ(parts.view->columnWidth(7), 150);
    EXPECT_EQ(parts.view->columnWidth(8), 150);
    // The timer runs from construction, before the page is ever shown.
    EXPECT_TRUE(parts.timer->isActive());
    EXPECT_EQ(parts.timer->interval(), 10000);
}

TEST_F(PortStatisticWidgetTest, RowsFollowTheWorkStateOfTheDevice)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    const Parts parts = partsOf(page);

    Quillon::CSwitchBaseInfo info(std::string{});
    ASSERT_TRUE(velmora::ParamInterface::getSwitchBasicInfoConfig(info, fleet().id("edge")));
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(velmora::WorkStatusInferface::getInstance()->queryWorkState(state));
    ASSERT_EQ(parts.view->model()->rowCount(), static_cast<int>(state.portList.size()));
    int linked = 0;
    for (size_t i = 0; i < state.portList.size(); ++i) {
        const Quillon::SwitchesWorkStateItem& port = state.portList[i];
        const int r = static_cast<int>(i);
        EXPECT_EQ(cell(parts, r, 0).toStdString(), velmora::switchPortName(info, port.portId));
        EXPECT_FALSE(cell(parts, r, 0).isEmpty());
        if (port.linkState == "disconnected") {
            for (int c = 1; c < 9; ++c)
                EXPECT_EQ(cell(parts, r, c), QString("--"));
            continue;
        }
        ++linked;
        EXPECT_EQ(cell(parts, r, 1).toStdString(), velmora::groupDigits(port.bytesSent));
        EXPECT_EQ(cell(parts, r, 2).toStdString(), velmora::groupDigits(port.packetsSent));
        EXPECT_EQ(cell(parts, r, 3).toStdString(), velmora::groupDigits(port.bytesReceived));
        EXPECT_EQ(cell(parts, r, 4).toStdString(), velmora::groupDigits(port.packetsReceived));
        EXPECT_EQ(cell(parts, r, 5).toStdString(), rate(port.sendRate));
        EXPECT_EQ(cell(parts, r, 6).toStdString(), rate(port.receiveRate));
        EXPECT_EQ(cell(parts, r, 7).toStdString(), port.peakSendRate ? rate(port.peakSendRate) : "--");
        EXPECT_EQ(cell(parts, r, 8).toStdString(), port.peakReceiveRate ? rate(port.peakReceiveRate) : "--");
    }
    EXPECT_GT(linked, 0);
}

TEST_F(PortStatisticWidgetTest, WirelessPortHasNoRow)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "wireless-port");
    showStatus(page);
    Quillon::SwitchesWorkState state(std::string{});
    ASSERT_TRUE(velmora::WorkStatusInferface::getInstance()->queryWorkState(state));
    ASSERT_EQ(state.portList.size(), 11u);
    EXPECT_EQ(partsOf(page).view->model()->rowCount(), 10);
}

TEST_F(PortStatisticWidgetTest, ClearZeroesLinkedRowsAtOnceAndTheDeviceFollows)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    const Parts parts = partsOf(page);
    const int rows = parts.view->model()->rowCount();
    ASSERT_GT(rows, 0);
    std::vector<bool> linked;
    for (int r = 0; r < rows; ++r)
        linked.push_back(cell(parts, r, 1) != "--");
    ASSERT_NE(std::count(linked.begin(), linked.end(), true), 0);
    ASSERT_NE(std::count(linked.begin(), linked.end(), false), 0) << "the test wants a port that is down";

    emulator().clearRequestLog();
    parts.clear->click();
    // Zeros at once, in every column but the name; "--" stays on ports that are down.
    for (int r = 0; r < rows; ++r) {
        EXPECT_FALSE(cell(parts, r, 0).isEmpty());
        for (int c = 1; c < 9; ++c)
            EXPECT_EQ(cell(parts, r, c), linked[r] ? QString("0") : QString("--")) << r << "," << c;
    }
    const std::vector<std::string> lines = fleet().requestLines("edge");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines.front(), kClearRequest);
    // The short shot brings the device's own values.
    EXPECT_TRUE(parts.timer->isActive());
    EXPECT_EQ(parts.timer->interval(), 2000);
    QSignalSpy ticks(parts.timer, &QTimer::timeout);
    ASSERT_TRUE(ticks.wait(4000));
    EXPECT_EQ(parts.timer->interval(), 10000);
    EXPECT_TRUE(parts.timer->isActive());
    // The clock stands still, so the counters cleared on the device read 0 again.
    for (int r = 0; r < rows; ++r) {
        if (!linked[r])
            continue;
        EXPECT_EQ(cell(parts, r, 1), QString("0")) << r;
        EXPECT_EQ(cell(parts, r, 2), QString("0")) << r;
    }
}

TEST_F(PortStatisticWidgetTest, RefusedClearShowsNoZerosButTakesTheShortShot)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    const Parts parts = partsOf(page);
    std::vector<QString> before;
    for (int r = 0; r < parts.view->model()->rowCount(); ++r)
        before.push_back(cell(parts, r, 1));
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kClearPath, EmulatorProcess::Fault::httpStatus(500)));
    parts.clear->click();
    ASSERT_EQ(parts.view->model()->rowCount(), static_cast<int>(before.size()));
    for (int r = 0; r < parts.view->model()->rowCount(); ++r)
        EXPECT_EQ(cell(parts, r, 1), before[static_cast<size_t>(r)]);
    EXPECT_TRUE(parts.timer->isActive());
    EXPECT_EQ(parts.timer->interval(), 2000);
}

TEST_F(PortStatisticWidgetTest, RefreshButtonAfterClearRestoresTheChosenIntervalAtOnce)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    const Parts parts = partsOf(page);
    parts.combo->setCurrentIndex(1);
    showStatus(page);
    parts.clear->click();
    EXPECT_EQ(parts.timer->interval(), 2000);
    emulator().clearRequestLog();
    parts.refresh->click();
    EXPECT_EQ(parts.timer->interval(), 20000);
    EXPECT_TRUE(parts.timer->isActive());
    EXPECT_FALSE(fleet().requestLines("edge").empty()); // the refresh read the device
    // Without a clear before, a refresh leaves the interval alone.
    parts.timer->setInterval(12345);
    parts.refresh->click();
    EXPECT_EQ(parts.timer->interval(), 12345);
}

TEST_F(PortStatisticWidgetTest, FailedRefreshAfterClearStillRestoresTheInterval)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    const Parts parts = partsOf(page);
    showStatus(page);
    parts.clear->click();
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kBasicInfoPath, EmulatorProcess::Fault::httpStatus(500)));
    parts.refresh->click();
    EXPECT_EQ(parts.timer->interval(), 10000);
    // The zeros stay: the failed read left the table.
    bool zero = false;
    for (int r = 0; r < parts.view->model()->rowCount(); ++r)
        zero = zero || cell(parts, r, 1) == "0";
    EXPECT_TRUE(zero);
}

TEST_F(PortStatisticWidgetTest, ChosenRateIsSharedWithPagesMadeLater)
{
    {
        CPortStatisticWidget first(nullptr);
        fleet().open(first, "edge");
        const Parts parts = partsOf(first);
        parts.combo->setCurrentIndex(parts.combo->findText("30s"));
        EXPECT_EQ(CPortStatisticWidget::nRefreshRate, 30);
        // A running timer takes the new interval and keeps running.
        EXPECT_TRUE(parts.timer->isActive());
        EXPECT_EQ(parts.timer->interval(), 30000);
    }
    CPortStatisticWidget second(nullptr);
    fleet().open(second, "batch");
    const Parts parts = partsOf(second);
    EXPECT_EQ(parts.combo->currentText(), QString("30s"));
    EXPECT_EQ(parts.timer->interval(), 30000);
    EXPECT_TRUE(parts.timer->isActive());
}

TEST_F(PortStatisticWidgetTest, ARateTheComboDoesNotOfferFallsBackToTheDefaultLoggedOnce)
{
    for (int rate : {15, 0, -10}) {
        SCOPED_TRACE(rate);
        velmora::test::LogCapture log;
        CPortStatisticWidget::nRefreshRate = rate;
        CPortStatisticWidget page(nullptr);
        fleet().open(page, "edge");
        const Parts parts = partsOf(page);
        // Never an interval of 0, which would ask the device without pause.
        EXPECT_EQ(parts.combo->currentText(), QString("10s"));
        EXPECT_TRUE(parts.timer->isActive());
        EXPECT_EQ(parts.timer->interval(), 10000);
        EXPECT_EQ(CPortStatisticWidget::nRefreshRate, 10);
        // The first refresh after a clear puts back the same interval.
        parts.clear->click();
        QMetaObject::invokeMethod(parts.timer, "timeout");
        EXPECT_EQ(parts.timer->interval(), 10000);
        const auto lines = log.lines("WARN");
        const std::string expected = "Refresh rate " + std::to_string(rate) + " s is not offered; 10 s is used.";
        EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                                [&](const velmora::test::LogLine& line) { return line.message == expected; }),
                  1);
    }
}

TEST_F(PortStatisticWidgetTest, HideStopsTheTimerAndShowStatusStartsIt)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    const Parts parts = partsOf(page);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
    page.hide();
    EXPECT_FALSE(parts.timer->isActive());
    // Shown by the window system only: still stopped.
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
    EXPECT_FALSE(parts.timer->isActive());
    showStatus(page);
    EXPECT_TRUE(parts.timer->isActive());
    EXPECT_EQ(parts.timer->interval(), 10000);
    page.hide();
}

TEST_F(PortStatisticWidgetTest, TimerTickReadsTheDeviceAgain)
{
    CPortStatisticWidget page(nullptr);
    fleet().open(page, "edge");
    const Parts parts = partsOf(page);
    parts.timer->setInterval(50);
    emulator().clearRequestLog();
    QSignalSpy ticks(parts.timer, &QTimer::timeout);
    ASSERT_TRUE(ticks.wait(3000));
    QTest::qWait(20);
    bool readWorkState = false;
    for (const std::string& line : fleet().requestLines("edge"))
        readWorkState = readWorkState || line.find("/NXRPC/Transfers/Switches/workState") != std::string::npos;
    EXPECT_TRUE(readWorkState);
    EXPECT_GT(parts.view->model()->rowCount(), 0);
    parts.timer->stop();
}
