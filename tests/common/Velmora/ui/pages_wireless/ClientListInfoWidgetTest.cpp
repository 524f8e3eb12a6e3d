// The client list against the emulated APs and controllers: the AP's own BSS clients or the
// controller's terminals of one AP, a tab per band with the band titles, the SSID combo and
// the table, the no-data frame, vendors from the MAC, connect times and rates, SSIDs that
// come and go between refreshes, failures and the timer.
#include <QComboBox>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QTabBar>
#include <QTableView>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "ClientListInfoWidget.h"
#include "ClientModel.h"
#include "ClientTab.h"
#include "Quillon/MacCompanyHelper.h"
#include "SpeedDataUintconvert.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "WirelessPagesTestFleet.h"
#include "support/LogCapture.h"

using velmora::CClientListInfoWidget;
using velmora::CClientTab;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;
using velmora::test::WirelessPageTest;
using velmora::test::part;
using velmora::test::timerOf;

namespace {

const char kBand0[] = "GHZFrequencyBandJxjGQbMf";
const char kBand1[] = "GHZFrequencyBandckTTmKJx";
const char kBand1Of3[] = "GHZFrequencyBandtaVmJsgCA";
const char kBand2[] = "GHZFrequencyBandxmrbPirNUV";

using Row = QStringList;                          // the eight cells, as text
using BandRows = std::map<std::string, std::vector<Row>>; // by SSID
using Tabs = std::vector<std::pair<QString, BandRows>>;   // title and content, in tab order

// A terminal's row worked out independently of the page.
Row expectedRow(int number, const std::string& mac, const std::string& ip, int rssi, double send, double receive,
                int seconds)
{
    std::string little;
    for (char c : mac)
        if (c != '-' && little.size() < 6)
            little.push_back(static_cast<char>(std::tolower(static_cast<unsigned char>(c))));
    const std::string type = Quillon::CMacCompanyHelper().getCompanyNameByMAc(little);
    auto speed = [](double kbps) {
        return velmora::SpeedDataUintconvert::speedDataAdaptiveUintconvert(static_cast<unsigned>(kbps),
                                                                           velmora::SpeedDataUintconvert::Kbps);
    };
    const QString time = QString::asprintf("%02d:%02d:%02d", seconds / 3600, (seconds % 3600) / 60, seconds % 60);
    return {QString::number(number), QString::fromStdString(mac), QString::fromStdString(ip),
            type.empty() ? QString("--") : QString::fromUtf8(type.c_str()), QString::number(rssi) + "dBm",
            speed(send), speed(receive), time};
}

// What the page should show for one managed AP of a controller.
Tabs expectedFromAc(const std::vector<Quillon::AcTerminalInfo>& terminals, const std::string& apMac, bool threeRadios)
{
    BandRows bands[3];
    for (const Quillon::AcTerminalInfo& t : terminals) {
        if (t.apMacAddress != apMac || t.band < 0 || t.band > 2)
            continue;
        std::vector<Row>& rows = bands[t.band][t.ssid];
        rows.push_back(expectedRow(static_cast<int>(rows.size()) + 1, t.macAddress, t.ipAddress, t.rssi, t.sendRate,
                                   t.receiveRate, t.connectSeconds));
    }
    Tabs tabs;
    const QString titles[] = {kBand0, threeRadios ? kBand1Of3 : kBand1, kBand2};
    for (int band = 0; band < 3; ++band)
        if (!bands[band].empty())
            tabs.push_back({titles[band], bands[band]});
    return tabs;
}

Tabs expectedFromAp(const Quillon::BssClientInfoList& list)
{
    BandRows bands[2];
    bool present[2] = {false, false};
    for (const Quillon::BssClientInfo& bss : list.bssList) {
        if (bss.band < 0 || bss.band > 1)
            continue;
        present[bss.band] = true;
        if (bands[bss.band].count(bss.ssid))
            continue; // the first BSS of an SSID stands
        std::vector<Row>& rows = bands[bss.band][bss.ssid];
        for (const Quillon::BssClient& c : bss.clientList)
            rows.push_back(expectedRow(static_cast<int>(rows.size()) + 1, c.macAddress, c.ipAddress, c.rssi, c.sendRate,
                                       c.receiveRate, c.connectSeconds));
    }
    Tabs tabs;
    const QString titles[] = {kBand0, kBand1};
    for (int band = 0; band < 2; ++band)
        if (present[band])
            tabs.push_back({titles[band], bands[band]});
    return tabs;
}

TarvexGUIToolkit::CTabWidget* tabsOf(QWidget& page)
{
    auto* tabs = page.findChild<TarvexGUIToolkit::CTabWidget*>();
    EXPECT_NE(tabs, nullptr);
    return tabs;
}

QFrame* noDataOf(QWidget& page)
{
    return part<QFrame>(page, "m_pNoDataFrame");
}

std::vector<Row> tableRows(CClientTab& tab)
{
    std::vector<Row> rows;
    QAbstractItemModel* model = tab.findChild<QTableView*>("treeView")->model();
    for (int r = 0; r < model->rowCount(); ++r) {
        Row row;
        for (int c = 0; c < model->columnCount(); ++c)
            row << model->index(r, c).data().toString();
        rows.push_back(row);
    }
    return rows;
}

// Every tab's content, read by choosing each SSID in turn; the choice is put back.
Tabs shownTabs(QWidget& page)
{
    Tabs tabs;
    TarvexGUIToolkit::CTabWidget* widget = tabsOf(page);
    for (int i = 0; i < widget->count(); ++i) {
        auto* tab = qobject_cast<CClientTab*>(widget->widget(i));
        EXPECT_NE(tab, nullptr);
        if (!tab)
            continue;
        auto* combo = tab->findChild<QComboBox*>("comboBox");
        const int chosen = combo->currentIndex();
        BandRows rows;
        for (int k = 0; k < combo->count(); ++k) {
            combo->setCurrentIndex(k);
            rows[combo->itemText(k).toUtf8().toStdString()] = tableRows(*tab);
        }
        combo->setCurrentIndex(chosen);
        tabs.push_back({widget->tabText(i), rows});
    }
    return tabs;
}

std::string describe(const Tabs& tabs)
{
    std::string text;
    for (const auto& [title, rows] : tabs) {
        text += title.toStdString() + ":";
        for (const auto& [ssid, list] : rows)
            text += " " + ssid + "(" + std::to_string(list.size()) + ")";
        text += "; ";
    }
    return text;
}

bool logged(const LogCapture& log, const char* level, const std::string& message)
{
    for (const auto& line : log.lines(level))
        if (line.message == message)
            return true;
    return false;
}

class ClientListInfoWidgetTest : public WirelessPageTest {
protected:
    // The page on a managed AP of a controller, as the dialog's AP view sets it up.
    std::unique_ptr<CClientListInfoWidget> openOnAc(const std::string& controller, const Quillon::ApInfo& ap)
    {
        auto page = std::make_unique<CClientListInfoWidget>(nullptr);
        fleet().open(*page, controller);
        page->setApInfo(QString::fromStdString(ap.macAddress), QString::fromStdString(ap.ipAddress));
        showStatus(*page);
        return page;
    }
};

} // namespace

TEST_F(ClientListInfoWidgetTest, ThePageAndItsNoDataFrame)
{
    CClientListInfoWidget page(nullptr);
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(page);
    ASSERT_NE(tabs, nullptr);
    EXPECT_EQ(tabs->tabBar()->styleSheet(), "QTabBar::tab{ min-width: 90px;}");
    EXPECT_EQ(tabs->count(), 0);
    QFrame* frame = noDataOf(page);
    ASSERT_NE(frame, nullptr);
    EXPECT_EQ(frame->minimumSize(), QSize(700, 560));
    auto* grid = qobject_cast<QGridLayout*>(frame->layout());
    ASSERT_NE(grid, nullptr);
    const int rowStretches[] = {150, 120, 32, 260};
    const int columnStretches[] = {290, 121, 290};
    for (int r = 0; r < 4; ++r)
        EXPECT_EQ(grid->rowStretch(r), rowStretches[r]);
    for (int c = 0; c < 3; ++c)
        EXPECT_EQ(grid->columnStretch(c), columnStretches[c]);
    auto* image = part<QLabel>(page, "m_pNoDataPixLabel");
    auto* text = part<QLabel>(page, "m_pNoDataTextLabel");
    EXPECT_EQ(grid->indexOf(image), grid->indexOf(grid->itemAtPosition(1, 1)->widget()));
    EXPECT_EQ(grid->itemAtPosition(2, 1)->widget(), text);
    EXPECT_GE(image->minimumWidth(), 121);
    EXPECT_GE(image->minimumHeight(), 120);
    ASSERT_FALSE(image->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(image->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_ARGB32),
              QImage(":/Tarvex7300/Velmora/Images/APDevice/clientlist_no_data.png").convertToFormat(QImage::Format_ARGB32));
    EXPECT_EQ(text->text(), "NoData");
    EXPECT_EQ(text->minimumSize(), QSize(121, 32));
    EXPECT_EQ(text->alignment(), Qt::AlignCenter);
    // The timer runs from construction.
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);

    CClientTab tab;
    EXPECT_EQ(tab.objectName(), "CCTab");
    EXPECT_EQ(tab.size(), QSize(607, 370));
    EXPECT_EQ(part<QLabel>(tab, "label_2")->text(), "SSID");
    auto* view = part<QTableView>(tab, "treeView");
    auto* proxy = qobject_cast<TarvexGUIToolkit::CMutilColumnFilterProxyModel*>(view->model());
    ASSERT_NE(proxy, nullptr);
    EXPECT_FALSE(proxy->dynamicSortFilter());
    EXPECT_EQ(proxy->sortRole(), Qt::DisplayRole);
    EXPECT_TRUE(view->isSortingEnabled());
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorSection(), 0);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
}

TEST_F(ClientListInfoWidgetTest, AnApListsTheClientsOfItsOwnSsids)
{
    std::vector<std::string> names = fleet().namesStartingWith("ap-many-");
    ASSERT_FALSE(names.empty());
    names.resize(2);
    names.insert(names.begin(), "ap");
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        CClientListInfoWidget page(nullptr);
        fleet().open(page, name);
        page.show();
        showStatus(page);
        Quillon::BssClientInfoList list{std::string()};
        ASSERT_TRUE(velmora::ParamInterface::getBssClientInfoList(list, fleet().id(name)));
        const Tabs expected = expectedFromAp(list);
        ASSERT_FALSE(expected.empty());
        EXPECT_EQ(shownTabs(page), expected) << describe(shownTabs(page)) << " / " << describe(expected);
        EXPECT_FALSE(tabsOf(page)->isHidden());
        EXPECT_TRUE(noDataOf(page)->isHidden());
        page.hide();
    }
}

TEST_F(ClientListInfoWidgetTest, AnApWithoutClientsShowsItsSsidsWithEmptyTables)
{
    CClientListInfoWidget page(nullptr);
    fleet().open(page, "ap-quiet");
    showStatus(page);
    const Tabs tabs = shownTabs(page);
    ASSERT_FALSE(tabs.empty());
    for (const auto& [title, rows] : tabs) {
        EXPECT_FALSE(rows.empty()) << title.toStdString();
        for (const auto& [ssid, list] : rows)
            EXPECT_TRUE(list.empty()) << ssid;
    }
    EXPECT_TRUE(noDataOf(page)->isHidden());
}

TEST_F(ClientListInfoWidgetTest, AControllerListsTheTerminalsOfTheChosenApOnly)
{
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    const std::vector<Quillon::AcTerminalInfo> terminals = fleet().terminals("ac-search");
    int withTerminals = 0, without = 0, threeRadioTabs = 0;
    for (size_t i = 0; i < aps.size() && i < 40; ++i) {
        const Quillon::ApInfo& ap = aps[i];
        SCOPED_TRACE(ap.ipAddress);
        auto page = openOnAc("ac-search", ap);
        const Tabs expected = expectedFromAc(terminals, ap.macAddress, ap.rfList.size() == 3);
        if (expected.empty()) {
            ++without;
            EXPECT_FALSE(noDataOf(*page)->isHidden());
            EXPECT_TRUE(tabsOf(*page)->isHidden());
            EXPECT_EQ(tabsOf(*page)->count(), 0);
        } else {
            ++withTerminals;
            EXPECT_TRUE(noDataOf(*page)->isHidden());
            EXPECT_FALSE(tabsOf(*page)->isHidden());
            const Tabs shown = shownTabs(*page);
            EXPECT_EQ(shown, expected) << describe(shown) << " / " << describe(expected);
            for (const auto& tab : shown)
                threeRadioTabs += tab.first == kBand1Of3 || tab.first == kBand2;
        }
    }
    EXPECT_GT(withTerminals, 0);
    EXPECT_GT(without, 0); // APs that are off line or have no terminal show the no-data frame
    EXPECT_GT(threeRadioTabs, 0);
}

// Walks device time until an AP of the controller has terminals on 5 GHz only, and one that
// is on line without terminals.
TEST_F(ClientListInfoWidgetTest, ClientsOn5GhzOnlyGiveOneTabAndNoneGiveTheNoDataFrame)
{
    bool fiveOnly = false, onlineWithout = false;
    for (long long tick = kFrozenTick; tick < kFrozenTick + 300 * 200 && !(fiveOnly && onlineWithout); tick += 300) {
        emulator().freezeClock(tick);
        const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-plain");
        const std::vector<Quillon::AcTerminalInfo> terminals = fleet().terminals("ac-plain");
        for (const Quillon::ApInfo& ap : aps) {
            std::set<int> bands;
            for (const auto& t : terminals)
                if (t.apMacAddress == ap.macAddress)
                    bands.insert(t.band);
            const bool wantFive = !fiveOnly && bands == std::set<int>{1};
            const bool wantNone = !onlineWithout && bands.empty() && ap.state == "online";
            if (!wantFive && !wantNone)
                continue;
            SCOPED_TRACE(ap.ipAddress + " at " + std::to_string(tick));
            auto page = openOnAc("ac-plain", ap);
            if (wantFive) {
                fiveOnly = true;
                const Tabs shown = shownTabs(*page);
                ASSERT_EQ(shown.size(), 1u);
                EXPECT_EQ(shown.front().first, ap.rfList.size() == 3 ? kBand1Of3 : kBand1);
                EXPECT_EQ(shown, expectedFromAc(terminals, ap.macAddress, ap.rfList.size() == 3));
            } else {
                onlineWithout = true;
                EXPECT_FALSE(noDataOf(*page)->isHidden());
                EXPECT_TRUE(tabsOf(*page)->isHidden());
            }
        }
    }
    EXPECT_TRUE(fiveOnly);
    EXPECT_TRUE(onlineWithout);
}

// An SSID chosen by the user stays chosen while the AP has terminals on it; when the last
// one leaves, the combo falls back to the first SSID.
TEST_F(ClientListInfoWidgetTest, SsidsThatComeAndGoBetweenRefreshes)
{
    bool kept = false, vanished = false;
    for (long long tick = kFrozenTick; tick < kFrozenTick + 300 * 120 && !(kept && vanished); tick += 300) {
        emulator().freezeClock(tick);
        const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
        const std::vector<Quillon::AcTerminalInfo> before = fleet().terminals("ac-search");
        emulator().freezeClock(tick + 600);
        const std::vector<Quillon::AcTerminalInfo> after = fleet().terminals("ac-search");
        for (const Quillon::ApInfo& ap : aps) {
            const Tabs first = expectedFromAc(before, ap.macAddress, ap.rfList.size() == 3);
            const Tabs second = expectedFromAc(after, ap.macAddress, ap.rfList.size() == 3);
            if (first.empty() || second.empty() || first.front().first != second.front().first)
                continue;
            const BandRows& was = first.front().second;
            const BandRows& is = second.front().second;
            if (was.size() < 2)
                continue;
            const std::string chosen = std::prev(was.end())->first; // not the first key
            const bool stays = is.count(chosen) > 0;
            if ((stays && kept) || (!stays && vanished))
                continue;
            SCOPED_TRACE(ap.ipAddress + " at " + std::to_string(tick) + ", SSID " + chosen);
            emulator().freezeClock(tick);
            auto page = openOnAc("ac-search", ap);
            auto* tab = qobject_cast<CClientTab*>(tabsOf(*page)->widget(0));
            ASSERT_NE(tab, nullptr);
            auto* combo = tab->findChild<QComboBox*>("comboBox");
            combo->setCurrentIndex(combo->findText(QString::fromUtf8(chosen.c_str())));
            ASSERT_EQ(combo->currentText().toUtf8().toStdString(), chosen);
            emulator().freezeClock(tick + 600);
            ASSERT_TRUE(QMetaObject::invokeMethod(page.get(), "onRefresh"));
            if (stays) {
                kept = true;
                EXPECT_EQ(combo->currentText().toUtf8().toStdString(), chosen);
                EXPECT_EQ(tableRows(*tab), is.at(chosen));
            } else {
                vanished = true;
                EXPECT_EQ(combo->currentIndex(), 0);
                EXPECT_EQ(combo->currentText().toUtf8().toStdString(), is.begin()->first);
                EXPECT_EQ(tableRows(*tab), is.begin()->second);
            }
            emulator().freezeClock(tick + 600);
        }
    }
    EXPECT_TRUE(kept);
    EXPECT_TRUE(vanished);
}

TEST_F(ClientListInfoWidgetTest, VendorsTimesRatesAndTheLogLine)
{
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    const std::vector<Quillon::AcTerminalInfo> terminals = fleet().terminals("ac-search");
    // A terminal whose maker is unknown, and one whose maker is known.
    const Quillon::AcTerminalInfo* unknown = nullptr;
    const Quillon::AcTerminalInfo* known = nullptr;
    for (const auto& t : terminals) {
        const std::string type =
            Quillon::CMacCompanyHelper().getCompanyNameByMAc(CClientListInfoWidget::reduceMacToOui(t.macAddress));
        if (type.empty() && !unknown)
            unknown = &t;
        if (!type.empty() && !known)
            known = &t;
    }
    ASSERT_NE(unknown, nullptr);
    ASSERT_NE(known, nullptr);
    for (const Quillon::AcTerminalInfo* terminal : {unknown, known}) {
        const Quillon::ApInfo* ap = nullptr;
        for (const auto& a : aps)
            if (a.macAddress == terminal->apMacAddress)
                ap = &a;
        ASSERT_NE(ap, nullptr);
        LogCapture log;
        auto page = openOnAc("ac-search", *ap);
        const std::string little = CClientListInfoWidget::reduceMacToOui(terminal->macAddress);
        const std::string type = Quillon::CMacCompanyHelper().getCompanyNameByMAc(little);
        const std::string line = "CClientListInfoWidget::getApTerminalInfoFromAc(): strDeviceMac[" + terminal->macAddress +
                                 "];strLittleMac[" + little + "];strType[" + type + "]";
        EXPECT_TRUE(logged(log, "INFO", line)) << line;
        bool found = false;
        for (const auto& [title, rows] : shownTabs(*page))
            for (const auto& [ssid, list] : rows)
                for (const Row& row : list)
                    if (row[1] == QString::fromStdString(terminal->macAddress)) {
                        found = true;
                        EXPECT_EQ(row[3], type.empty() ? QString("--") : QString::fromUtf8(type.c_str()));
                        EXPECT_EQ(row[4], QString::number(terminal->rssi) + "dBm");
                        EXPECT_TRUE(row[5].endsWith("bps"));
                        EXPECT_EQ(row[7].count(':'), 2);
                    }
        EXPECT_TRUE(found);
    }
    // The AP source logs under its own name.
    LogCapture log;
    CClientListInfoWidget page(nullptr);
    fleet().open(page, "ap");
    showStatus(page);
    bool apLine = false;
    for (const auto& l : log.lines("INFO"))
        apLine = apLine || l.message.rfind("CClientListInfoWidget::getApTerminalInfoFromAp(): strDeviceMac[", 0) == 0;
    EXPECT_TRUE(apLine);
}

TEST_F(ClientListInfoWidgetTest, MacReductionAndConnectTimes)
{
    EXPECT_EQ(CClientListInfoWidget::reduceMacToOui("AA-BB-CC-11-22-33"), "aabbcc");
    EXPECT_EQ(CClientListInfoWidget::reduceMacToOui("aa:bb:cc:11:22:33"), "aa:bb:"); // colons stay
    EXPECT_EQ(CClientListInfoWidget::reduceMacToOui("A-B"), "ab");
    EXPECT_EQ(CClientListInfoWidget::reduceMacToOui(""), "");
    EXPECT_EQ(CClientListInfoWidget::formatClientConnectTime(0), "00:00:00");
    EXPECT_EQ(CClientListInfoWidget::formatClientConnectTime(59), "00:00:59");
    EXPECT_EQ(CClientListInfoWidget::formatClientConnectTime(3661), "01:01:01");
    EXPECT_EQ(CClientListInfoWidget::formatClientConnectTime(360000), "100:00:00");
}

TEST_F(ClientListInfoWidgetTest, TheSortAndTheCurrentTabSurviveARefresh)
{
    CClientListInfoWidget page(nullptr);
    fleet().open(page, "ap");
    showStatus(page);
    TarvexGUIToolkit::CTabWidget* tabs = tabsOf(page);
    ASSERT_EQ(tabs->count(), 2);
    tabs->setCurrentIndex(1);
    QWidget* chosen = tabs->currentWidget();
    auto* tab = qobject_cast<CClientTab*>(chosen);
    auto* view = tab->findChild<QTableView*>("treeView");
    view->sortByColumn(2, Qt::DescendingOrder);
    emulator().freezeClock(kFrozenTick + 900);
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefresh"));
    EXPECT_EQ(tabs->currentWidget(), chosen);
    const std::vector<Row> rows = tableRows(*tab);
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_GE(rows[i - 1][2], rows[i][2]);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorSection(), 2);
}

TEST_F(ClientListInfoWidgetTest, FailedReadsShowTheNoDataFrame)
{
    {
        CClientListInfoWidget page(nullptr);
        fleet().open(page, "ap");
        showStatus(page);
        ASSERT_TRUE(tabsOf(page)->count() > 0);
        ASSERT_TRUE(emulator().setFault(fleet().id("ap"), "/NXRPC/Transfers/AP/bssClientInfo",
                                        EmulatorProcess::Fault::httpStatus(500)));
        LogCapture log;
        showStatus(page);
        EXPECT_TRUE(logged(log, "ERROR", "call getBssClientInfoList failed."));
        EXPECT_FALSE(noDataOf(page)->isHidden());
        EXPECT_TRUE(tabsOf(page)->isHidden());
        EXPECT_EQ(tabsOf(page)->count(), 0);
    }
    {
        const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
        ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), "/NXRPC/Transfers/AC/terminalInfo",
                                        EmulatorProcess::Fault::httpStatus(503)));
        LogCapture log;
        auto page = openOnAc("ac-search", aps.front());
        EXPECT_TRUE(logged(log, "ERROR", "call getApTerminalInfoList failed."));
        EXPECT_FALSE(noDataOf(*page)->isHidden());
    }
    {
        // Without the AP list the band-1 title is that of a two-radio AP.
        emulator().clearFaults();
        const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
        const std::vector<Quillon::AcTerminalInfo> terminals = fleet().terminals("ac-search");
        const Quillon::ApInfo* three = nullptr;
        for (const auto& ap : aps) {
            std::set<int> bands;
            for (const auto& t : terminals)
                if (t.apMacAddress == ap.macAddress)
                    bands.insert(t.band);
            if (ap.rfList.size() == 3 && bands.count(1))
                three = &ap;
        }
        ASSERT_NE(three, nullptr);
        ASSERT_TRUE(emulator().setFault(fleet().id("ac-search"), "/NXRPC/Transfers/AP/basicInfo",
                                        EmulatorProcess::Fault::httpStatus(500)));
        LogCapture log;
        auto page = openOnAc("ac-search", *three);
        EXPECT_TRUE(logged(log, "ERROR", "Failed to get Ap Info List."));
        QStringList titles;
        for (int i = 0; i < tabsOf(*page)->count(); ++i)
            titles << tabsOf(*page)->tabText(i);
        EXPECT_TRUE(titles.contains(kBand1));
        EXPECT_FALSE(titles.contains(kBand1Of3));
    }
}

TEST_F(ClientListInfoWidgetTest, HidingStopsTheTimerAndShowingStartsIt)
{
    CClientListInfoWidget page(nullptr);
    fleet().open(page, "ap");
    QTimer* timer = timerOf(page);
    page.show();
    page.hide();
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
}
