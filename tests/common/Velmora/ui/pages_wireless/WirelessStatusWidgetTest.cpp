// The radios and SSIDs of a stand-alone AP, against the emulated APs: a tab per band with
// the radio's switch, mode, channel and power and the band's SSIDs; the mode texts of each
// band; failures and the timer. Records with values no emulated AP reports go straight to
// the tab.
#include <QLabel>
#include <QTableView>
#include <gtest/gtest.h>
#include <set>

#include "SSIDStatusModel.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "TarvexGUIToolkit/TableView.h"
#include "WirelessPagesTestFleet.h"
#include "WirelessStatusTab.h"
#include "WirelessStatusWidget.h"

using velmora::CWirelessStatusTab;
using velmora::CWirelessStatusWidget;
using velmora::test::WirelessPageTest;
using velmora::test::labelText;
using velmora::test::part;
using velmora::test::timerOf;

namespace {

const char kRfPath[] = "/NXRPC/System/Network/interfaces/rfParaCfg";

// The mode text of each band by the device's mode number; none for "3" on 5 GHz.
QString expectedMode(int band, const std::string& mode)
{
    static const std::map<std::string, QString> band0 = {
        {"0", "802.11b/g"}, {"1", "802.11b"}, {"2", "802.11g"}, {"3", "802.11b/g/n"}};
    static const std::map<std::string, QString> band1 = {{"0", "802.11a"}, {"1", "802.11ac"}, {"2", "802.11a/n"}};
    const auto& table = band == 0 ? band0 : band1;
    const auto found = table.find(mode);
    return found == table.end() ? QString() : found->second;
}

struct Labels {
    QString rfSwitch, mode, channel, power;
};

Labels labelsOf(QWidget& tab)
{
    return {labelText(tab, "labelRfSwitch"), labelText(tab, "labelNetworkMode"), labelText(tab, "labelChanWidth"),
            labelText(tab, "labelPowerValue")};
}

QList<QStringList> rowsOf(QWidget& tab)
{
    QList<QStringList> rows;
    auto* view = tab.findChild<QTableView*>("treeView");
    QAbstractItemModel* model = view ? view->model() : nullptr;
    if (!model)
        return rows;
    for (int r = 0; r < model->rowCount(); ++r) {
        QStringList row;
        for (int c = 0; c < model->columnCount(); ++c)
            row << model->index(r, c).data().toString();
        rows << row;
    }
    return rows;
}

Quillon::RfParaCfg rf(int band, bool enabled, const std::string& mode, int power, int channel)
{
    Quillon::RfParaCfg r{std::string()};
    r.band = band;
    r.enabled = enabled;
    r.wirelessMode = mode;
    r.transmitPower = power;
    r.channel = channel;
    return r;
}

Quillon::BssParaCfgInfo bss(int band, const std::string& ssid, const std::string& security, bool enabled = true)
{
    Quillon::BssParaCfgInfo b{std::string()};
    b.band = band;
    b.ssid = ssid;
    b.securityMode = security;
    b.enabled = enabled;
    b.macAddress = "a0:b1:c2:00:00:" + std::to_string(10 + band);
    return b;
}

class WirelessStatusWidgetTest : public WirelessPageTest {};

} // namespace

TEST_F(WirelessStatusWidgetTest, TheFormHasTwoBandTabs)
{
    CWirelessStatusWidget page(nullptr);
    EXPECT_EQ(page.size(), QSize(400, 300));
    auto* tabs = part<TarvexGUIToolkit::CTabWidget>(page, "tabWidget");
    ASSERT_NE(tabs, nullptr);
    ASSERT_EQ(tabs->count(), 2);
    EXPECT_EQ(tabs->widget(0), page.findChild<CWirelessStatusTab*>("tab2_4"));
    EXPECT_EQ(tabs->widget(1), page.findChild<CWirelessStatusTab*>("tab5"));
    EXPECT_EQ(tabs->tabText(0), "GHZFrequencyBandJxjGQbMf");
    EXPECT_EQ(tabs->tabText(1), "GHZFrequencyBandckTTmKJx");
    EXPECT_EQ(tabs->currentIndex(), 0);

    CWirelessStatusTab& tab = *page.findChild<CWirelessStatusTab*>("tab2_4");
    EXPECT_EQ(tab.size(), QSize(607, 370));
    const std::map<const char*, const char*> captions = {
        {"label", "RadioFrequencyrfStateyHKLESFF"}, {"label_2", "RfSwitchsUhDVSL"},
        {"label_3", "NetworkModerDdYSkUn"},         {"label_4", "ChannelyKNHOqXm"},
        {"label_5", "TransmissionPowerEGHZexeA"},   {"label_6", "SSIDStateHKBQMWvM"}};
    for (const auto& [name, key] : captions)
        EXPECT_EQ(labelText(tab, name), key) << name;
    auto* view = tab.findChild<TarvexGUIToolkit::CTableView*>("treeView");
    ASSERT_NE(view, nullptr);
    EXPECT_NE(qobject_cast<velmora::CSSIDStatusModel*>(view->model()), nullptr);
    EXPECT_EQ(view->columnWidth(0), 200);
    EXPECT_EQ(view->columnWidth(1), 200);
    EXPECT_EQ(view->columnWidth(2), 100);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);

    // The timer runs from construction.
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
}

// Every stand-alone AP of the fleet, each band checked against the device's own records.
TEST_F(WirelessStatusWidgetTest, EachBandShowsItsRadioAndSsidsAsTheApReports)
{
    std::set<std::pair<int, std::string>> modesSeen;
    bool sawNone = false, sawOther = false, sawDisabled = false, sawChannelZero = false;
    std::vector<std::string> names = fleet().namesStartingWith("ap-many-");
    ASSERT_EQ(names.size(), 24u);
    names.push_back("ap");
    names.push_back("ap-quiet");
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        CWirelessStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);

        Quillon::RfParaCfgList radios{std::string()};
        Quillon::BssParaCfg ssids{std::string()};
        ASSERT_TRUE(velmora::ParamInterface::getRfParaCfgList(radios, fleet().id(name)));
        ASSERT_TRUE(velmora::ParamInterface::getBssParaCfg(ssids, fleet().id(name)));
        CWirelessStatusTab* tabs[] = {page.findChild<CWirelessStatusTab*>("tab2_4"),
                                      page.findChild<CWirelessStatusTab*>("tab5")};
        for (int band = 0; band < 2; ++band) {
            SCOPED_TRACE(band);
            Labels expected;
            for (const Quillon::RfParaCfg& r : radios.rfList) {
                if (r.band != band)
                    continue;
                modesSeen.insert({band, r.wirelessMode});
                expected.rfSwitch = r.enabled ? "OpenCUMN5SS7" : "ShutDown42HTMCDN";
                if (!expectedMode(band, r.wirelessMode).isEmpty())
                    expected.mode = expectedMode(band, r.wirelessMode);
                expected.channel = r.channel == 0 ? "N/A" : QString::number(r.channel);
                sawChannelZero = sawChannelZero || r.channel == 0;
                expected.power = QString::number(r.transmitPower) + "dBm";
            }
            const Labels shown = labelsOf(*tabs[band]);
            EXPECT_EQ(shown.rfSwitch, expected.rfSwitch);
            EXPECT_EQ(shown.mode, expected.mode);
            EXPECT_EQ(shown.channel, expected.channel);
            EXPECT_EQ(shown.power, expected.power);

            QList<QStringList> rows;
            for (const Quillon::BssParaCfgInfo& b : ssids.bssList) {
                if (b.band != band)
                    continue;
                const QString security =
                    b.securityMode == "none" ? QString("None") : QString::fromStdString(b.securityMode);
                sawNone = sawNone || b.securityMode == "none";
                sawOther = sawOther || b.securityMode != "none";
                sawDisabled = sawDisabled || !b.enabled;
                rows << QStringList{QString::fromUtf8(b.ssid.c_str()), QString::fromStdString(b.macAddress), security,
                                    b.enabled ? "IsEnabled" : "Disabled"};
            }
            EXPECT_EQ(rowsOf(*tabs[band]), rows);
        }
    }
    EXPECT_TRUE(sawNone && sawOther && sawDisabled);
    EXPECT_TRUE(sawChannelZero);
    // The fleet's APs spread over the modes of both bands, "3" on 5 GHz included.
    for (int band = 0; band < 2; ++band)
        for (const char* mode : {"0", "1", "2", "3"})
            EXPECT_TRUE(modesSeen.count({band, mode})) << band << " " << mode;
}

TEST_F(WirelessStatusWidgetTest, ModeTextsOfEachBand)
{
    CWirelessStatusTab tab;
    for (int band = 0; band < 2; ++band) {
        for (const char* mode : {"0", "1", "2", "3"}) {
            Quillon::RfParaCfgList radios{std::string()};
            radios.rfList = {rf(band, true, "0", 20, 6)};
            tab.setWirelessInfo(band, radios, Quillon::BssParaCfg{std::string()});
            radios.rfList = {rf(band, true, mode, 20, 6)};
            tab.setWirelessInfo(band, radios, Quillon::BssParaCfg{std::string()});
            const QString expected = expectedMode(band, mode).isEmpty() ? expectedMode(band, "0") : expectedMode(band, mode);
            EXPECT_EQ(labelText(tab, "labelNetworkMode"), expected) << band << " " << mode;
        }
    }
    // Mode strings are matched exactly.
    Quillon::RfParaCfgList radios{std::string()};
    radios.rfList = {rf(0, true, "1", 20, 6)};
    tab.setWirelessInfo(0, radios, Quillon::BssParaCfg{std::string()});
    for (const char* mode : {"4", "", "01", " 2", "b"}) {
        radios.rfList = {rf(0, true, mode, 20, 6)};
        tab.setWirelessInfo(0, radios, Quillon::BssParaCfg{std::string()});
        EXPECT_EQ(labelText(tab, "labelNetworkMode"), "802.11b") << mode;
    }
}

TEST_F(WirelessStatusWidgetTest, RecordsNoEmulatedApReports)
{
    CWirelessStatusTab tab;
    Quillon::RfParaCfgList radios{std::string()};
    // Several radios of the band: the last one decides all four labels.
    radios.rfList = {rf(1, true, "1", 23, 149), rf(0, true, "3", 18, 11), rf(1, false, "2", 0, 0)};
    Quillon::BssParaCfg ssids{std::string()};
    ssids.bssList = {bss(1, "Office", "none"), bss(0, "Guest", "WPA2-personal"), bss(1, "Lab", "None", false),
                     bss(1, "Café", "WPA3-personal")};
    tab.setWirelessInfo(1, radios, ssids);
    const Labels shown = labelsOf(tab);
    EXPECT_EQ(shown.rfSwitch, "ShutDown42HTMCDN");
    EXPECT_EQ(shown.mode, "802.11a/n");
    EXPECT_EQ(shown.channel, "N/A");
    EXPECT_EQ(shown.power, "0dBm");
    const QList<QStringList> rows = rowsOf(tab);
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[0], (QStringList{"Office", "a0:b1:c2:00:00:11", "None", "IsEnabled"}));
    EXPECT_EQ(rows[1], (QStringList{"Lab", "a0:b1:c2:00:00:11", "None", "Disabled"})); // the device's "None" as is
    EXPECT_EQ(rows[2][0], QString::fromUtf8("Café"));
    EXPECT_EQ(rows[2][2], "WPA3-personal");

    // A band without SSIDs and radios keeps the rows and labels it had.
    Quillon::RfParaCfgList none{std::string()};
    tab.setWirelessInfo(1, none, Quillon::BssParaCfg{std::string()});
    EXPECT_EQ(rowsOf(tab), rows);
    EXPECT_EQ(labelText(tab, "labelPowerValue"), "0dBm");
    // Any other band touches nothing but can empty nothing either.
    tab.setWirelessInfo(2, radios, ssids);
    EXPECT_EQ(rowsOf(tab), rows);
    EXPECT_EQ(labelText(tab, "labelRfSwitch"), "ShutDown42HTMCDN");
}

TEST_F(WirelessStatusWidgetTest, AOneBandApKeepsBothBandTabs)
{
    CWirelessStatusWidget page(nullptr);
    fleet().open(page, "ap-quiet");
    auto* tabs = page.findChild<QTabWidget*>();
    ASSERT_NE(tabs, nullptr);
    const int count = tabs->count();
    ASSERT_EQ(count, 2);
    auto* tab5 = page.findChild<CWirelessStatusTab*>("tab5");
    ASSERT_NE(tab5, nullptr);
    const Labels formDefaults = labelsOf(*tab5);
    // The AP reports a 2.4 GHz radio only.
    ASSERT_TRUE(emulator().setFault(fleet().id("ap-quiet"), kRfPath,
                                    velmora::test::EmulatorProcess::Fault::answer(
                                        R"({"RfParaCfgList": {"rfList": [{"band": 0, "enabled": true,
                                           "wirelessMode": "3", "transmitPower": 18, "channel": 11}]}})")));
    showStatus(page);
    EXPECT_EQ(tabs->count(), count);
    EXPECT_NE(tabs->indexOf(tab5), -1);
    EXPECT_NE(tabs->indexOf(page.findChild<CWirelessStatusTab*>("tab2_4")), -1);
    const Labels shown24 = labelsOf(*page.findChild<CWirelessStatusTab*>("tab2_4"));
    EXPECT_EQ(shown24.mode, "802.11b/g/n");
    EXPECT_EQ(shown24.power, "18dBm");
    // The 5 GHz tab stays with the labels of its form.
    const Labels shown5 = labelsOf(*tab5);
    EXPECT_EQ(shown5.rfSwitch, formDefaults.rfSwitch);
    EXPECT_EQ(shown5.mode, formDefaults.mode);
    EXPECT_EQ(shown5.channel, formDefaults.channel);
    EXPECT_EQ(shown5.power, formDefaults.power);
}

TEST_F(WirelessStatusWidgetTest, AFailedReadLeavesBothTabs)
{
    CWirelessStatusWidget page(nullptr);
    fleet().open(page, "ap");
    showStatus(page);
    auto* tab = page.findChild<CWirelessStatusTab*>("tab2_4");
    const Labels before = labelsOf(*tab);
    const QList<QStringList> rows = rowsOf(*tab);
    ASSERT_FALSE(rows.isEmpty());
    // Another AP behind the page would change the labels, but its radios can't be read.
    fleet().open(page, "ap-quiet");
    ASSERT_TRUE(emulator().setFault(fleet().id("ap-quiet"), kRfPath,
                                    velmora::test::EmulatorProcess::Fault::httpStatus(503)));
    showStatus(page);
    EXPECT_EQ(labelsOf(*tab).power, before.power);
    EXPECT_EQ(labelsOf(*tab).mode, before.mode);
    EXPECT_EQ(rowsOf(*tab), rows);
}

TEST_F(WirelessStatusWidgetTest, TheTimerStopsWhenHiddenAndTheNextShowStartsIt)
{
    CWirelessStatusWidget page(nullptr);
    fleet().open(page, "ap");
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    page.show();
    page.hide();
    EXPECT_FALSE(timer->isActive());
    page.show();
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
    emulator().clearRequestLog();
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData")); // what a tick runs
    const std::vector<std::string> lines = fleet().requestLines("ap");
    EXPECT_NE(std::find(lines.begin(), lines.end(), "GET /NXRPC/System/Network/interfaces/rfParaCfg?format=json"),
              lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "GET /NXRPC/System/Network/interfaces/bssParaCfg?format=json"),
              lines.end());
    page.hide();
}
