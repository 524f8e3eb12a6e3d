// The page of one AP seen through its controller, against the emulated controllers: the
// record picked by address, the bars, a tab per radio with the band titles of two- and
// three-radio APs, the current tab across refreshes, failures and the timer.
#include <QLabel>
#include <QPixmap>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <gtest/gtest.h>
#include <optional>

#include "ApDeviceStatusWidget.h"
#include "RfInfoTab.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "WirelessPagesTestFleet.h"
#include "support/LogCapture.h"

namespace velmora {

// Shows radio lists that no emulated controller reports.
struct CApDeviceStatusWidgetTestAccess {
    static void showRadios(CApDeviceStatusWidget& page, const std::vector<Quillon::rfInfo>& radios, bool threeRadios)
    {
        page.m_apInfo.rfList = radios;
        page.m_bThreeRadios = threeRadios;
        page.showRfStatus();
    }
};

} // namespace velmora

using velmora::CApDeviceStatusWidget;
using velmora::CApDeviceStatusWidgetTestAccess;
using velmora::CRfInfoTab;
using velmora::test::LogCapture;
using velmora::test::WirelessPageTest;
using velmora::test::labelText;
using velmora::test::part;
using velmora::test::timerOf;

namespace {

const char kApListPath[] = "/NXRPC/Transfers/AP/basicInfo";
const char kApListRequest[] = "POST /NXRPC/Transfers/AP/basicInfo?format=json";
const char* const kUsageWidgets[] = {"memoryLabel", "m_memoryProgressBar", "memoryPercentLabel",
                                     "cpuLabel",    "m_cpuProgressBar",    "cpuPercentLabel"};
const char* const kPoeWidgets[] = {"poeLabel",     "m_poeProgressBar",      "poePercentLabel",
                                   "wholeMachinePOELabel", "m_wholePOEProgressBar", "wholeMachinePOEValue"};

TarvexGUIToolkit::CTabWidget* tabsOf(QWidget& page)
{
    auto* tabs = page.findChild<TarvexGUIToolkit::CTabWidget*>();
    EXPECT_NE(tabs, nullptr);
    return tabs;
}

QStringList titles(QTabWidget* tabs)
{
    QStringList list;
    for (int i = 0; i < tabs->count(); ++i)
        list << tabs->tabText(i);
    return list;
}

// The title each radio of a record should get, in order.
QStringList expectedTitles(const Quillon::ApInfo& ap)
{
    QStringList list;
    for (const Quillon::rfInfo& rf : ap.rfList) {
        if (rf.band == 0)
            list << "GHZFrequencyBandJxjGQbMf";
        else if (rf.band == 1)
            list << (ap.rfList.size() == 3 ? "GHZFrequencyBandtaVmJsgCA" : "GHZFrequencyBandckTTmKJx");
        else if (rf.band == 2)
            list << "GHZFrequencyBandxmrbPirNUV";
    }
    return list;
}

std::optional<Quillon::ApInfo> firstAp(const std::vector<Quillon::ApInfo>& aps, size_t radios)
{
    for (const Quillon::ApInfo& ap : aps) {
        if (ap.rfList.size() == radios && ap.state == "online")
            return ap;
    }
    return std::nullopt;
}

Quillon::rfInfo radio(int band, int channel)
{
    Quillon::rfInfo rf{std::string()};
    rf.band = band;
    rf.channel = channel;
    return rf;
}

class ApDeviceStatusWidgetTest : public WirelessPageTest {
protected:
    std::unique_ptr<CApDeviceStatusWidget> openPage(const std::string& controller, const std::string& ip)
    {
        auto page = std::make_unique<CApDeviceStatusWidget>(nullptr);
        fleet().open(*page, controller);
        page->setApIP(QString::fromStdString(ip));
        return page;
    }
};

} // namespace

TEST_F(ApDeviceStatusWidgetTest, TheFormBeforeAnyRead)
{
    CApDeviceStatusWidget page(nullptr);
    EXPECT_EQ(page.size(), QSize(700, 634));
    auto* scroll = part<QScrollArea>(page, "m_pScrollArea");
    ASSERT_NE(scroll, nullptr);
    EXPECT_EQ(scroll->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_EQ(labelText(page, "PanelUsageLabel"), "EquipmentUsageInformation");
    EXPECT_EQ(part<QLabel>(page, "PanelUsageLabel")->font().weight(), 75);
    EXPECT_EQ(part<QWidget>(page, "m_RfFrame")->minimumHeight(), 450);
    EXPECT_EQ(part<QWidget>(page, "m_RfFrame")->maximumHeight(), 450);
    EXPECT_EQ(labelText(page, "memoryLabel"), "MemoryUsage");
    EXPECT_EQ(labelText(page, "cpuLabel"), "CPUUsage");
    EXPECT_EQ(labelText(page, "poeLabel"), "POEPower");
    EXPECT_EQ(labelText(page, "wholeMachinePOELabel"), "POEPowerPeak");
    for (const char* name : kUsageWidgets)
        EXPECT_TRUE(part<QWidget>(page, name)->isHidden()) << name;
    for (const char* name : kPoeWidgets)
        EXPECT_TRUE(part<QWidget>(page, name)->isHidden()) << name;
    for (QProgressBar* bar : page.findChildren<QProgressBar*>())
        EXPECT_FALSE(bar->isTextVisible());
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(page);
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->parentWidget(), part<QWidget>(page, "m_RfFrame"));
    EXPECT_EQ(tabs->tabBar()->styleSheet(), "QTabBar::tab{ min-width: 90px;}");
    EXPECT_EQ(tabs->count(), 0);
    ASSERT_NE(timerOf(page), nullptr);
    EXPECT_FALSE(timerOf(page)->isActive());
    EXPECT_TRUE(fleet().requestLines("ac-search").empty());
}

TEST_F(ApDeviceStatusWidgetTest, TwoAndThreeRadiosGetTheirBandTitles)
{
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    for (size_t radios : {size_t(2), size_t(3)}) {
        const std::optional<Quillon::ApInfo> ap = firstAp(aps, radios);
        ASSERT_TRUE(ap.has_value()) << radios;
        SCOPED_TRACE(ap->ipAddress);
        auto page = openPage("ac-search", ap->ipAddress);
        showStatus(*page);
        TarvexGUIToolkit::CTabWidget* tabs = tabsOf(*page);
        EXPECT_EQ(titles(tabs), expectedTitles(*ap));
        if (radios == 2)
            EXPECT_EQ(titles(tabs), (QStringList{"GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandckTTmKJx"}));
        else
            EXPECT_EQ(titles(tabs), (QStringList{"GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandtaVmJsgCA",
                                                 "GHZFrequencyBandxmrbPirNUV"}));
        for (int i = 0; i < tabs->count(); ++i) {
            auto* tab = qobject_cast<CRfInfoTab*>(tabs->widget(i));
            ASSERT_NE(tab, nullptr);
            EXPECT_EQ(labelText(*tab, "m_pChannelLabel"), QString::number(ap->rfList[i].channel));
            EXPECT_EQ(labelText(*tab, "m_pTransmitPowerLabel"), QString::number(ap->rfList[i].transmitPower));
        }
        EXPECT_EQ(part<QProgressBar>(*page, "m_memoryProgressBar")->value(), ap->memoryUsage);
        EXPECT_EQ(part<QProgressBar>(*page, "m_cpuProgressBar")->value(), ap->cpuUsage);
        EXPECT_EQ(labelText(*page, "memoryPercentLabel"), QString("%1%").arg(ap->memoryUsage));
        EXPECT_EQ(labelText(*page, "cpuPercentLabel"), QString("%1%").arg(ap->cpuUsage));
        for (const char* name : kUsageWidgets)
            EXPECT_FALSE(part<QWidget>(*page, name)->isHidden()) << name;
        for (const char* name : kPoeWidgets)
            EXPECT_TRUE(part<QWidget>(*page, name)->isHidden()) << name;
        const std::vector<std::string> lines = fleet().requestLines("ac-search");
        EXPECT_NE(std::find(lines.begin(), lines.end(), kApListRequest), lines.end());
        emulator().clearRequestLog();
    }
}

TEST_F(ApDeviceStatusWidgetTest, TheCurrentTabSurvivesARefresh)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 3);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    showStatus(*page);
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(*page);
    ASSERT_EQ(tabs->count(), 3);
    tabs->setCurrentIndex(2);
    QWidget* chosen = tabs->currentWidget();
    for (long long tick : {kFrozenTick + 10, kFrozenTick + 700}) {
        emulator().freezeClock(tick);
        ASSERT_TRUE(QMetaObject::invokeMethod(page.get(), "onRefreshUtilization"));
        EXPECT_EQ(tabs->count(), 3);
        EXPECT_EQ(tabs->currentIndex(), 2);
        EXPECT_EQ(tabs->currentWidget(), chosen); // the same tab page, refilled
    }
    // A band that has gone leaves the tab widget's own choice.
    CApDeviceStatusWidgetTestAccess::showRadios(*page, {radio(0, 6), radio(1, 36)}, false);
    EXPECT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->indexOf(chosen), -1);
}

TEST_F(ApDeviceStatusWidgetTest, RadioListsThatNoControllerReports)
{
    CApDeviceStatusWidget page(nullptr);
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(page);
    // Two radios of one band share a single tab that shows the last one.
    CApDeviceStatusWidgetTestAccess::showRadios(page, {radio(0, 1), radio(0, 11), radio(1, 36)}, false);
    ASSERT_EQ(titles(tabs), (QStringList{"GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandckTTmKJx"}));
    EXPECT_EQ(labelText(*tabs->widget(0), "m_pChannelLabel"), "11");
    // Unknown bands are skipped; the flag alone decides the band-1 title.
    CApDeviceStatusWidgetTestAccess::showRadios(page, {radio(5, 1), radio(1, 44), radio(-1, 2)}, true);
    EXPECT_EQ(titles(tabs), (QStringList{"GHZFrequencyBandtaVmJsgCA"}));
    // An empty radio list empties the tab widget.
    CApDeviceStatusWidgetTestAccess::showRadios(page, {}, false);
    EXPECT_EQ(tabs->count(), 0);
}

namespace {

// The controller's answer for one AP at `ip` with the radios given as JSON objects.
std::string apListAnswer(const std::string& ip, const std::vector<std::string>& radios)
{
    std::string list;
    for (const std::string& radio : radios)
        list += (list.empty() ? "" : ",") + radio;
    return R"({"ApInfoSearchResult": {"searchID": "S", "responseStatus": "OK", "numOfMatches": 1, "apList": [
        {"deviceName": "hall", "model": "QA-210", "macAddress": "aa:bb:cc:00:00:01", "ipAddress": ")" +
           ip + R"(", "serialNumber": "SN1", "softwareVersion": "V1.2", "state": "online", "runTime": 3600,
         "cpuUsage": 12, "memoryUsage": 48, "rfList": [)" +
           list + "]}]}}";
}

std::string radioJson(int band, int channel)
{
    return R"({"band": )" + std::to_string(band) + R"(, "transmitPower": 20, "channel": )" + std::to_string(channel) +
           R"(, "channelInterference": 0, "onlineCount": 1, "sendUtilization": 3, "receiveUtilization": 2})";
}

} // namespace

TEST_F(ApDeviceStatusWidgetTest, AnApAnswerWithAnEmptyRadioListEmptiesTheTabsAndShowsTheBars)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 3);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    showStatus(*page);
    ASSERT_EQ(tabsOf(*page)->count(), 3);
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), kApListPath,
                                    velmora::test::EmulatorProcess::Fault::answer(apListAnswer(ap->ipAddress, {}))));
    showStatus(*page);
    EXPECT_EQ(tabsOf(*page)->count(), 0);
    EXPECT_EQ(part<QProgressBar>(*page, "m_memoryProgressBar")->value(), 48);
    EXPECT_EQ(part<QProgressBar>(*page, "m_cpuProgressBar")->value(), 12);
    EXPECT_EQ(labelText(*page, "cpuPercentLabel"), "12%");
    for (const char* name : kUsageWidgets)
        EXPECT_FALSE(part<QWidget>(*page, name)->isHidden()) << name;
}

TEST_F(ApDeviceStatusWidgetTest, AFourRadioApTitlesBandOneAsATwoRadioApDoes)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 2);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    const std::string answer =
        apListAnswer(ap->ipAddress, {radioJson(0, 6), radioJson(1, 36), radioJson(2, 149), radioJson(1, 44)});
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), kApListPath,
                                    velmora::test::EmulatorProcess::Fault::answer(answer)));
    showStatus(*page);
    // The test is for exactly three radios; with four, band 1 takes the two-radio title. Its
    // two radios share one tab that shows the last and, added again, stands last.
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(*page);
    EXPECT_EQ(titles(tabs), (QStringList{"GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandxmrbPirNUV",
                                         "GHZFrequencyBandckTTmKJx"}));
    ASSERT_EQ(tabs->count(), 3);
    EXPECT_EQ(labelText(*tabs->widget(1), "m_pChannelLabel"), "149");
    EXPECT_EQ(labelText(*tabs->widget(2), "m_pChannelLabel"), "44");
}

TEST_F(ApDeviceStatusWidgetTest, AnAddressWithoutRecordChangesNothing)
{
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    const std::optional<Quillon::ApInfo> ap = firstAp(aps, 2);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    showStatus(*page);
    const QStringList before = titles(tabsOf(*page));
    const QString memory = labelText(*page, "memoryPercentLabel");

    for (const char* ip : {"10.9.9.9", "", "172.16.0.2 "}) {
        page->setApIP(ip);
        showStatus(*page);
        EXPECT_EQ(titles(tabsOf(*page)), before) << ip;
        EXPECT_EQ(labelText(*page, "memoryPercentLabel"), memory) << ip;
    }
}

TEST_F(ApDeviceStatusWidgetTest, AFailedReadIsLoggedAndTheLastRecordStays)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 3);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    showStatus(*page);
    const QString cpu = labelText(*page, "cpuPercentLabel");
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), kApListPath,
                                    velmora::test::EmulatorProcess::Fault::httpStatus(500)));
    LogCapture log;
    showStatus(*page);
    bool logged = false;
    for (const auto& line : log.lines("ERROR"))
        logged = logged || line.message == "Failed to get Ap Info List.";
    EXPECT_TRUE(logged);
    EXPECT_EQ(labelText(*page, "cpuPercentLabel"), cpu);
    // The radios are shown again from the kept list, band 1 titled as on a two-radio AP.
    EXPECT_EQ(titles(tabsOf(*page)), (QStringList{"GHZFrequencyBandJxjGQbMf", "GHZFrequencyBandckTTmKJx",
                                                  "GHZFrequencyBandxmrbPirNUV"}));
}

TEST_F(ApDeviceStatusWidgetTest, TheTimerRunsFromShowingUntilHiding)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 2);
    ASSERT_TRUE(ap.has_value());
    auto page = openPage("ac-search", ap->ipAddress);
    QTimer* timer = timerOf(*page);
    ASSERT_NE(timer, nullptr);
    page->show();
    showStatus(*page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
    const int remaining = timer->remainingTime();
    QThread::msleep(30);
    showStatus(*page); // a running timer keeps its phase
    EXPECT_LT(timer->remainingTime(), remaining);
    page->hide();
    EXPECT_FALSE(timer->isActive());
    page->show();
    EXPECT_FALSE(timer->isActive());
    showStatus(*page);
    EXPECT_TRUE(timer->isActive());
    page->hide();
}

TEST_F(ApDeviceStatusWidgetTest, TheHostsEntrySetsTheWorkStateModeAndLoads)
{
    const std::optional<Quillon::ApInfo> ap = firstAp(fleet().managedAps("ac-search"), 2);
    ASSERT_TRUE(ap.has_value());
    emulator().clearRequestLog();
    auto page = openPage("ac-search", ap->ipAddress);
    page->showStatusPublic();
    EXPECT_EQ(titles(tabsOf(*page)), expectedTitles(*ap));
    const std::vector<std::string> lines = fleet().requestLines("ac-search");
    EXPECT_NE(std::find(lines.begin(), lines.end(), kApListRequest), lines.end());
}

TEST_F(ApDeviceStatusWidgetTest, ANegativeChannelInterferenceReadsAsOutOfRange)
{
    // The controller answers a level below zero for the first radio: the tab blanks its
    // verdict and image, leaves the label's colour and logs the level as out of range; the
    // second radio's level in the interference band is shown as such.
    const char answer[] = R"({"ApInfoSearchResult": {"searchID": "S", "responseStatus": "OK", "numOfMatches": 1,
        "apList": [{"deviceName": "AP", "model": "QA-210", "macAddress": "aa:bb:cc:00:00:09", "ipAddress": "10.9.0.5",
        "state": "online", "runTime": 60, "cpuUsage": 3, "memoryUsage": 4, "rfList": [
        {"band": 0, "transmitPower": 20, "channel": 6, "channelInterference": -3, "onlineCount": 0,
         "sendUtilization": 1, "receiveUtilization": 2},
        {"band": 1, "transmitPower": 23, "channel": 149, "channelInterference": 12, "onlineCount": 0,
         "sendUtilization": 1, "receiveUtilization": 2}]}]}})";
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), kApListPath,
                                    velmora::test::EmulatorProcess::Fault::answer(answer)));
    auto page = openPage("ac-search", "10.9.0.5");
    LogCapture log;
    showStatus(*page);
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(*page);
    ASSERT_EQ(tabs->count(), 2);

    QWidget* first = tabs->widget(0);
    EXPECT_EQ(labelText(*first, "m_pChannelLabel"), "6");
    EXPECT_EQ(labelText(*first, "m_pChannelStatusLabel"), "");
    EXPECT_EQ(part<QLabel>(*first, "m_pChannelStatusLabel")->styleSheet(), "");
    EXPECT_TRUE(part<QLabel>(*first, "m_pChannelStatusPixLabel")->pixmap(Qt::ReturnByValue).isNull());
    int outOfRange = 0;
    for (const auto& line : log.lines("ERROR"))
        outOfRange += line.message == "Out of channel interference range" ? 1 : 0;
    EXPECT_EQ(outOfRange, 1);

    QWidget* second = tabs->widget(1);
    EXPECT_EQ(labelText(*second, "m_pChannelStatusLabel"), "InterferenceULcuQKdYGZ");
    EXPECT_EQ(part<QLabel>(*second, "m_pChannelStatusLabel")->styleSheet(),
              "color: rgb(203, 94, 94);font: bold 21px;");
    ASSERT_TRUE(emulator().clearFaults());
}
