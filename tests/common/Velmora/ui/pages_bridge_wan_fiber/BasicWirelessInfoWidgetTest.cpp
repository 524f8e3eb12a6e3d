// The bridge's wireless card page: pairs that show only when the bridge reports them, the
// connected-device table, the 5-second refresh, and the card named by the capabilities.
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>

#include "BasicWirelessInfoWidget.h"
#include "BridgeWanFiberTestFleet.h"
#include "ConnectedDeviceInfoModel.h"
#include "FormatConnectTime.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {
// Hands the page a card record as if the bridge had answered it.
struct CBasicWirelessInfoWidgetTestAccess {
    static void showWirelessPairs(CBasicWirelessInfoWidget& page, const Quillon::Wireless& wireless)
    {
        page.showWirelessPairs(wireless);
    }
};
} // namespace velmora

using velmora::CBasicWirelessInfoWidget;
using velmora::CBasicWirelessInfoWidgetTestAccess;
using velmora::CConnectedDeviceInfoModel;
using velmora::ConnectedDeviceInfo;
using velmora::ParamInterface;
using velmora::test::BridgeWanFiberPageTest;
using velmora::test::EmulatorProcess;

namespace {

// Caption and value object of each pair, in the order the page goes through them.
struct PairNames {
    const char* caption;
    const char* captionKey;
    const char* value;
};
const PairNames kPairs[] = {
    {"label_1", "SSID", "m_pSSIDLabel"},
    {"label_5", "AtTheEndOfTheNoise", "m_pBottomNoiseLabel"},
    {"label_8", "TheChannelWidth", "m_pChannelWidthLabel"},
    {"label_7", "SecurityMode", "m_pSafetyMddeLabel"},
    {"label_9", "ChannelFrequency", "m_pChannelFreqlabel"},
    {"label_6", "WirelessMode", "m_pWirelessModeLabel"},
    {"label_2", "WorkScene", "m_pWorkingModeLabel"},
    {"label_4", "TransmissionPower", "m_pTransmitPowerLabel"},
    {"label_3", "AntennaGainibUuWqlaY", "m_pAntennaGainLabel"},
};

QLabel* label(QWidget& page, const char* name)
{
    auto* found = page.findChild<QLabel*>(name);
    EXPECT_NE(found, nullptr) << name;
    return found;
}

QString text(QWidget& page, const char* name)
{
    QLabel* found = label(page, name);
    return found ? found->text() : QString();
}

// Both widgets of the pair of `value` hidden (explicitly; the page itself is never shown).
bool pairHidden(QWidget& page, const char* value)
{
    for (const PairNames& pair : kPairs) {
        if (std::string(pair.value) == value) {
            QLabel* caption = label(page, pair.caption);
            QLabel* shown = label(page, pair.value);
            EXPECT_EQ(caption->isHidden(), shown->isHidden()) << value;
            return shown->isHidden();
        }
    }
    ADD_FAILURE() << "no pair " << value;
    return false;
}

QTableView* table(QWidget& page)
{
    return page.findChild<QTableView*>("m_pConnectedDeviceTreeView");
}

QString cell(QWidget& page, int row, int column)
{
    return table(page)->model()->index(row, column).data().toString();
}

QTimer* refreshTimer(QWidget& page)
{
    return page.findChild<QTimer*>();
}

class BasicWirelessInfoWidgetTest : public BridgeWanFiberPageTest {
protected:
    // The card's record and its peers, read directly from the bridge called `name`.
    static Quillon::Wireless wireless(const std::string& name)
    {
        Quillon::Wireless record(static_cast<_xmlNode*>(nullptr));
        EXPECT_TRUE(ParamInterface::getNetworkPortWirelessInfo(record, fleet().id(name),
                                                               fleet().capabilities(name).wirelessCardID));
        return record;
    }
    static Quillon::TransmissionList peers(const std::string& name)
    {
        Quillon::TransmissionList list(std::string{});
        EXPECT_TRUE(ParamInterface::getWirelessTransmissionInfo(list, fleet().id(name),
                                                                fleet().capabilities(name).wirelessCardID));
        return list;
    }
    static int requestsEndingWith(const std::string& name, const std::string& tail)
    {
        int count = 0;
        for (const std::string& line : fleet().requestLines(name)) {
            if (line.size() >= tail.size() && line.compare(line.size() - tail.size(), tail.size(), tail) == 0)
                ++count;
        }
        return count;
    }
};

} // namespace

// ---------------------------------------------------------------------------------------------
// The table model

TEST(ConnectedDeviceInfoModel, HasSevenHeadersWithUnitsOutsideTheKeys)
{
    CConnectedDeviceInfoModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CConnectedDeviceInfoModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 7);
    const char* headers[] = {"TheMACAddress", "IPV4", "SignalIntensity(dBm)", "Receive/sendRate(Mbps)",
                             "Distance(km)", "AtTheEndOfTheNoise(dBm)", "ConnectionTime"};
    for (int column = 0; column < 7; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), headers[column]) << column;
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81) << column;
    }
}

TEST(ConnectedDeviceInfoModel, ReplacesAllRowsInOrder)
{
    CConnectedDeviceInfoModel model(nullptr);
    ConnectedDeviceInfo first{"AA:BB:CC:00:00:01", "10.0.0.1", -61, "-95", "120/80", "1.25", "5s"};
    ConnectedDeviceInfo second{"AA:BB:CC:00:00:02", "10.0.0.2", -44, "--", "3/0", "--", "1m 0s"};
    model.setConnectedDevice({first, second, first});
    ASSERT_EQ(model.rowCount(), 3);
    model.setConnectedDevice({second});
    ASSERT_EQ(model.rowCount(), 1);
    const QStringList expected = {"AA:BB:CC:00:00:02", "10.0.0.2", "-44", "3/0", "--", "--", "1m 0s"};
    for (int column = 0; column < 7; ++column)
        EXPECT_EQ(model.index(0, column).data().toString(), expected[column]) << column;
    model.setConnectedDevice({});
    EXPECT_EQ(model.rowCount(), 0);
}

// ---------------------------------------------------------------------------------------------
// Rows from the peers' records

TEST(BasicWirelessInfoRows, RatesAreTruncatedTowardZeroReceiveFirst)
{
    Quillon::TransmissionList list;
    Quillon::Transmission peer;
    peer.receiveRate = 3.9f;
    peer.sendRate = 433.99f;
    list.transmissionList.push_back(peer);
    peer.receiveRate = -2.7f;
    peer.sendRate = 0.2f;
    list.transmissionList.push_back(peer);
    const auto rows = CBasicWirelessInfoWidget::makeConnectedDeviceInfo(list);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].strRate, "3/433");
    EXPECT_EQ(rows[1].strRate, "-2/0");
}

TEST(BasicWirelessInfoRows, NoiseOfMinusThousandAndNegativeDistanceReadAsNoValue)
{
    Quillon::TransmissionList list;
    Quillon::Transmission peer;
    peer.noise = -1000;
    peer.distance = -1.0f;
    list.transmissionList.push_back(peer);
    peer.noise = -1;
    peer.distance = 0.0f;
    list.transmissionList.push_back(peer);
    peer.noise = -93;
    peer.distance = 1.5f;
    list.transmissionList.push_back(peer);
    peer.distance = -0.001f;
    list.transmissionList.push_back(peer);
    const auto rows = CBasicWirelessInfoWidget::makeConnectedDeviceInfo(list);
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].strNoise, "--");
    EXPECT_EQ(rows[0].strDistance, "--");
    EXPECT_EQ(rows[1].strNoise, "-1");
    EXPECT_EQ(rows[1].strDistance, "0.00");
    EXPECT_EQ(rows[2].strNoise, "-93");
    EXPECT_EQ(rows[2].strDistance, "1.50");
    EXPECT_EQ(rows[3].strDistance, "--");
}

TEST(BasicWirelessInfoRows, KeepsAddressesSignalAndConnectTime)
{
    Quillon::TransmissionList list;
    Quillon::Transmission peer;
    peer.macAddress = "58:50:ED:11:22:33";
    peer.ipAddress = "10.21.200.20";
    peer.signal = -57;
    peer.connectSeconds = 3600;
    list.transmissionList.push_back(peer);
    const auto rows = CBasicWirelessInfoWidget::makeConnectedDeviceInfo(list);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].strMac, "58:50:ED:11:22:33");
    EXPECT_EQ(rows[0].strIp, "10.21.200.20");
    EXPECT_EQ(rows[0].nSignal, -57);
    EXPECT_EQ(rows[0].strConnectTime, "1h 0m 0s");
}

// ---------------------------------------------------------------------------------------------
// The page

TEST(BasicWirelessInfoWidget, FormHoldsNinePairsAboveTheTable)
{
    CBasicWirelessInfoWidget page(nullptr);
    EXPECT_EQ(page.windowTitle(), "CActiveDeviceDialog");
    EXPECT_EQ(page.size(), QSize(738, 653));
    auto* frame = page.findChild<QFrame*>("basicItemFrame");
    ASSERT_NE(frame, nullptr);
    for (const PairNames& pair : kPairs) {
        QLabel* caption = label(page, pair.caption);
        QLabel* value = label(page, pair.value);
        ASSERT_TRUE(caption && value);
        EXPECT_EQ(caption->text(), pair.captionKey);
        EXPECT_TRUE(frame->isAncestorOf(caption));
        EXPECT_TRUE(frame->isAncestorOf(value));
    }
    QTableView* view = table(page);
    ASSERT_NE(view, nullptr);
    EXPECT_NE(dynamic_cast<TarvexGUIToolkit::CTableView*>(view), nullptr);
    EXPECT_FALSE(frame->isAncestorOf(view));
}

TEST(BasicWirelessInfoWidget, TableHasItsModelWidthsAndNoEditing)
{
    CBasicWirelessInfoWidget page(nullptr);
    QTableView* view = table(page);
    ASSERT_NE(view, nullptr);
    ASSERT_NE(dynamic_cast<CConnectedDeviceInfoModel*>(view->model()), nullptr);
    const int widths[] = {140, 100, 100, 140, 100, 100, 170};
    for (int column = 0; column < 6; ++column)
        EXPECT_EQ(view->columnWidth(column), widths[column]) << column;
    // The last column stretches in the toolkit's table, so its width is where it starts.
    EXPECT_GE(view->columnWidth(6), 0);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_FALSE(view->isSortingEnabled());
}

TEST(BasicWirelessInfoWidget, TimerWaitsForTheFirstShowStatus)
{
    CBasicWirelessInfoWidget page(nullptr);
    QTimer* timer = refreshTimer(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive());
}

// Cards that the emulated bridges never report: the page is handed the record directly.

TEST(BasicWirelessInfoWidget, AnAntennaGainFlaggedInvalidIsHidden)
{
    CBasicWirelessInfoWidget page(nullptr);
    Quillon::Wireless wireless;
    wireless.ssid = "Link";
    wireless.antennaGainPresent = false;
    wireless.antennaGain = 5;
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
    EXPECT_TRUE(pairHidden(page, "m_pAntennaGainLabel"));

    // Flagged valid but at the "absent" mark: hidden as well.
    wireless.antennaGainPresent = true;
    wireless.antennaGain = -1;
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
    EXPECT_TRUE(pairHidden(page, "m_pAntennaGainLabel"));

    // Valid, even at 0 dBi: shown again.
    wireless.antennaGain = 0;
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
    EXPECT_FALSE(pairHidden(page, "m_pAntennaGainLabel"));
    EXPECT_EQ(text(page, "m_pAntennaGainLabel"), "0dBi");
}

TEST(BasicWirelessInfoWidget, OnlyMinusOneMeansNoNoiseOrPower)
{
    CBasicWirelessInfoWidget page(nullptr);
    Quillon::Wireless wireless;
    wireless.noise = -1000;
    wireless.transmitPower = 0;
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
    EXPECT_FALSE(pairHidden(page, "m_pBottomNoiseLabel"));
    EXPECT_EQ(text(page, "m_pBottomNoiseLabel"), "-1000dBm");
    EXPECT_FALSE(pairHidden(page, "m_pTransmitPowerLabel"));
    EXPECT_EQ(text(page, "m_pTransmitPowerLabel"), "0dBm");
    EXPECT_FALSE(page.findChild<QFrame*>("basicItemFrame")->isHidden());
}

TEST(BasicWirelessInfoWidget, ChannelWidthIsTestedOnItsModeAndShownFromItsValue)
{
    CBasicWirelessInfoWidget page(nullptr);
    Quillon::Wireless wireless;
    wireless.channelWidthMode = "auto";
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
    EXPECT_FALSE(pairHidden(page, "m_pChannelWidthLabel"));
    EXPECT_EQ(text(page, "m_pChannelWidthLabel"), "MHz");
}

TEST(BasicWirelessInfoWidget, SecurityModesAreMatchedExactly)
{
    for (const char* mode : {"wpa2-personal", "WPA2-Personal", "Disable", "none", "WPA2-personal "}) {
        CBasicWirelessInfoWidget page(nullptr);
        Quillon::Wireless wireless;
        wireless.securityMode = mode;
        CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, wireless);
        EXPECT_EQ(text(page, "m_pSafetyMddeLabel"), "--") << mode;
    }
}

TEST(BasicWirelessInfoWidget, ACardWithoutAnyValueHidesTheFrame)
{
    CBasicWirelessInfoWidget page(nullptr);
    CBasicWirelessInfoWidgetTestAccess::showWirelessPairs(page, Quillon::Wireless());
    for (const PairNames& pair : kPairs)
        EXPECT_TRUE(pairHidden(page, pair.value)) << pair.value;
    EXPECT_TRUE(page.findChild<QFrame*>("basicItemFrame")->isHidden());
}

TEST_F(BasicWirelessInfoWidgetTest, ShowStatusStartsAFiveSecondTimerAndHidingStopsIt)
{
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-d");
    showStatus(page);
    QTimer* timer = refreshTimer(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 5000);

    page.show();
    page.hide();
    EXPECT_FALSE(timer->isActive());
    // Shown again by the window system: nothing restarts the timer but showStatus.
    page.show();
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    page.hide();
}

TEST_F(BasicWirelessInfoWidgetTest, ATickReadsCardAndPeersAgain)
{
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-d");
    showStatus(page);
    const std::string card = fleet().capabilities("bridge-d").wirelessCardID;
    ASSERT_FALSE(card.empty());
    const std::string wirelessPath = "/interfaces/" + card + "/wireless";
    EXPECT_EQ(requestsEndingWith("bridge-d", wirelessPath), 1);
    EXPECT_EQ(requestsEndingWith("bridge-d", wirelessPath + "/transmissionList"), 1);
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshWirelessPortInfo"));
    EXPECT_EQ(requestsEndingWith("bridge-d", wirelessPath), 2);
    EXPECT_EQ(requestsEndingWith("bridge-d", wirelessPath + "/transmissionList"), 2);
}

TEST_F(BasicWirelessInfoWidgetTest, ABridgeThatReportsEverythingShowsAllNinePairs)
{
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-d");
    showStatus(page);
    const Quillon::Wireless record = wireless("bridge-d");
    for (const PairNames& pair : kPairs)
        EXPECT_FALSE(pairHidden(page, pair.value)) << pair.value;
    EXPECT_FALSE(page.findChild<QFrame*>("basicItemFrame")->isHidden());
    EXPECT_EQ(text(page, "m_pSSIDLabel"), QString::fromStdString(record.ssid));
    EXPECT_EQ(text(page, "m_pBottomNoiseLabel"), QString::number(record.noise) + "dBm");
    EXPECT_EQ(text(page, "m_pChannelWidthLabel"), "80MHz");
    EXPECT_EQ(text(page, "m_pSafetyMddeLabel"), "WPA2-PSK");
    EXPECT_EQ(text(page, "m_pChannelFreqlabel"), "149");
    EXPECT_EQ(text(page, "m_pWirelessModeLabel"), "802.11ac");
    EXPECT_EQ(text(page, "m_pWorkingModeLabel"), "EngineRoomSide");
    EXPECT_EQ(text(page, "m_pTransmitPowerLabel"), "23dBm");
    EXPECT_EQ(text(page, "m_pAntennaGainLabel"), "14dBi");
}

TEST_F(BasicWirelessInfoWidgetTest, AbsentValuesHideTheirPairs)
{
    // No noise (-1), a width without its mode setting, no wireless mode, no antenna gain.
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-a");
    showStatus(page);
    const Quillon::Wireless record = wireless("bridge-a");
    ASSERT_EQ(record.noise, -1);
    ASSERT_TRUE(record.channelWidthMode.empty());
    ASSERT_FALSE(record.channelWidth.empty());
    EXPECT_TRUE(pairHidden(page, "m_pBottomNoiseLabel"));
    EXPECT_TRUE(pairHidden(page, "m_pChannelWidthLabel"));
    EXPECT_TRUE(pairHidden(page, "m_pWirelessModeLabel"));
    EXPECT_TRUE(pairHidden(page, "m_pAntennaGainLabel"));
    EXPECT_FALSE(pairHidden(page, "m_pSSIDLabel"));
    EXPECT_FALSE(pairHidden(page, "m_pChannelFreqlabel"));
    EXPECT_EQ(text(page, "m_pChannelFreqlabel"), "5745MHz");
    EXPECT_EQ(text(page, "m_pTransmitPowerLabel"), "20dBm");
    EXPECT_FALSE(page.findChild<QFrame*>("basicItemFrame")->isHidden());
}

TEST_F(BasicWirelessInfoWidgetTest, AGainSentBesideAFalseFlagIsHidden)
{
    // The flavour of bridge that sends its gain with the flag false, and the same card
    // answered in JSON: the answer's flag stands and the gain stays hidden.
    const std::string card = fleet().capabilities("bridge-b").wirelessCardID;
    const std::string path = "/NXRPC/System/Network/interfaces/" + card + "/wireless";
    const std::string answers[] = {
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Wireless><ssid>Link-B</ssid>"
        "<securityMode>WPA3-SAE</securityMode><channel>6</channel><noise>-90</noise>"
        "<antennaGainPresent>false</antennaGainPresent><antennaGain>5</antennaGain></Wireless>\n",
        R"({"Wireless": {"ssid": "Link-B", "channel": "6", "noise": -90, "antennaGainPresent": false,
            "antennaGain": 5}})",
    };
    for (const std::string& answer : answers) {
        ASSERT_TRUE(emulator().setFault(fleet().id("bridge-b"), path, EmulatorProcess::Fault::answer(answer)));
        CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, "bridge-b");
        showStatus(page);
        EXPECT_TRUE(pairHidden(page, "m_pAntennaGainLabel")) << answer;
        EXPECT_FALSE(pairHidden(page, "m_pSSIDLabel")) << answer;
        EXPECT_EQ(text(page, "m_pSSIDLabel"), "Link-B");
        EXPECT_EQ(text(page, "m_pBottomNoiseLabel"), "-90dBm");
        ASSERT_TRUE(emulator().clearFaults());
    }

    // Without a fault the bridge's own answer (flag false, gain 5) reads the same way.
    const Quillon::Wireless own = wireless("bridge-b");
    EXPECT_EQ(own.antennaGain, 5);
    EXPECT_FALSE(own.antennaGainPresent);
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-b");
    showStatus(page);
    EXPECT_TRUE(pairHidden(page, "m_pAntennaGainLabel"));
}

TEST_F(BasicWirelessInfoWidgetTest, SecurityModeTexts)
{
    struct Case {
        const char* bridge;
        const char* text;
    };
    // WPA2 personal is shown by its short name, no encryption by its text, any other mode as
    // no value.
    for (const Case& c : {Case{"bridge-d", "WPA2-PSK"}, Case{"bridge-a", "Not-Encrypted"}, Case{"bridge-b", "--"}}) {
        CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, c.bridge);
        showStatus(page);
        EXPECT_FALSE(pairHidden(page, "m_pSafetyMddeLabel")) << c.bridge;
        EXPECT_EQ(text(page, "m_pSafetyMddeLabel"), c.text) << c.bridge;
    }
    ASSERT_EQ(wireless("bridge-b").securityMode, "WPA3-SAE");
    // No security mode at all hides the pair.
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-c");
    showStatus(page);
    EXPECT_TRUE(pairHidden(page, "m_pSafetyMddeLabel"));
}

TEST_F(BasicWirelessInfoWidgetTest, WorkSceneTexts)
{
    struct Case {
        const char* bridge;
        const char* text;
    };
    for (const Case& c : {Case{"bridge-d", "EngineRoomSide"}, Case{"bridge-a", "TheCamerasEndmTYxgqlwl"},
                          Case{"bridge-b", "TheCenterForEndkwNQXqnbiw"}}) {
        CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, c.bridge);
        showStatus(page);
        EXPECT_FALSE(pairHidden(page, "m_pWorkingModeLabel")) << c.bridge;
        EXPECT_EQ(text(page, "m_pWorkingModeLabel"), c.text) << c.bridge;
    }
}

TEST_F(BasicWirelessInfoWidgetTest, AnUnknownWorkSceneKeepsTheLabelAndCountsAsPresent)
{
    ASSERT_EQ(wireless("bridge-c").workScene, "elevatorCar");
    CBasicWirelessInfoWidget page(nullptr);
    const QString before = text(page, "m_pWorkingModeLabel");
    fleet().open(page, "bridge-c");
    showStatus(page);
    EXPECT_FALSE(pairHidden(page, "m_pWorkingModeLabel"));
    EXPECT_EQ(text(page, "m_pWorkingModeLabel"), before);

    // After a known scene the label keeps that scene's text.
    fleet().open(page, "bridge-d");
    showStatus(page);
    ASSERT_EQ(text(page, "m_pWorkingModeLabel"), "EngineRoomSide");
    fleet().open(page, "bridge-c");
    showStatus(page);
    EXPECT_EQ(text(page, "m_pWorkingModeLabel"), "EngineRoomSide");
    EXPECT_FALSE(pairHidden(page, "m_pWorkingModeLabel"));
}

TEST_F(BasicWirelessInfoWidgetTest, HiddenPairsStayHiddenButTheAntennaGainComesBack)
{
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-a");
    showStatus(page);
    ASSERT_TRUE(pairHidden(page, "m_pBottomNoiseLabel"));
    ASSERT_TRUE(pairHidden(page, "m_pAntennaGainLabel"));

    // The same page reads a card that has every value.
    fleet().open(page, "bridge-d");
    showStatus(page);
    const Quillon::Wireless record = wireless("bridge-d");
    EXPECT_TRUE(pairHidden(page, "m_pBottomNoiseLabel"));
    EXPECT_TRUE(pairHidden(page, "m_pChannelWidthLabel"));
    EXPECT_TRUE(pairHidden(page, "m_pWirelessModeLabel"));
    // A hidden label still takes the new text.
    EXPECT_EQ(text(page, "m_pBottomNoiseLabel"), QString::number(record.noise) + "dBm");
    EXPECT_EQ(text(page, "m_pWirelessModeLabel"), "802.11ac");
    EXPECT_FALSE(pairHidden(page, "m_pAntennaGainLabel"));
    EXPECT_EQ(text(page, "m_pAntennaGainLabel"), "14dBi");
}

TEST_F(BasicWirelessInfoWidgetTest, AFailedFirstReadHidesEverythingForGoodButTheAntennaGain)
{
    const std::string card = fleet().capabilities("bridge-d").wirelessCardID;
    const std::string path = "/NXRPC/System/Network/interfaces/" + card + "/wireless";
    ASSERT_TRUE(emulator().setFault(fleet().id("bridge-d"), path, EmulatorProcess::Fault::httpStatus(500)));
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-d");
    showStatus(page);
    for (const PairNames& pair : kPairs)
        EXPECT_TRUE(pairHidden(page, pair.value)) << pair.value;
    auto* frame = page.findChild<QFrame*>("basicItemFrame");
    EXPECT_TRUE(frame->isHidden());

    ASSERT_TRUE(emulator().clearFaults());
    showStatus(page);
    for (const PairNames& pair : kPairs) {
        if (std::string(pair.value) == "m_pAntennaGainLabel")
            EXPECT_FALSE(pairHidden(page, pair.value));
        else
            EXPECT_TRUE(pairHidden(page, pair.value)) << pair.value;
    }
    EXPECT_TRUE(frame->isHidden());
}

TEST_F(BasicWirelessInfoWidgetTest, TableShowsThePeersAsTheBridgeReportsThem)
{
    for (const char* bridge : {"bridge-a", "bridge-b", "bridge-c", "bridge-d"}) {
        SCOPED_TRACE(bridge);
        CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, bridge);
        showStatus(page);
        const Quillon::TransmissionList list = peers(bridge);
        ASSERT_FALSE(list.transmissionList.empty());
        ASSERT_EQ(table(page)->model()->rowCount(), static_cast<int>(list.transmissionList.size()));
        for (size_t i = 0; i < list.transmissionList.size(); ++i) {
            const Quillon::Transmission& peer = list.transmissionList[i];
            const int row = static_cast<int>(i);
            EXPECT_EQ(cell(page, row, 0), QString::fromStdString(peer.macAddress));
            EXPECT_EQ(cell(page, row, 1), QString::fromStdString(peer.ipAddress));
            EXPECT_EQ(cell(page, row, 2), QString::number(peer.signal));
            EXPECT_EQ(cell(page, row, 3), QString::number(static_cast<int>(peer.receiveRate)) + "/" +
                                              QString::number(static_cast<int>(peer.sendRate)));
            EXPECT_EQ(cell(page, row, 4),
                      peer.distance < 0.0f ? QString("--") : QString::number(double(peer.distance), 'f', 2));
            EXPECT_EQ(cell(page, row, 5), peer.noise == -1000 ? QString("--") : QString::number(peer.noise));
            EXPECT_EQ(cell(page, row, 6), velmora::formatConnectTime(peer.connectSeconds));
        }
    }
}

TEST_F(BasicWirelessInfoWidgetTest, OddPeerValuesOfTheEmulatedBridges)
{
    // bridge-b's peer carries the noise mark -1000; bridge-a's peer reports distance -1;
    // bridge-c's peer stands at distance 0.
    std::map<std::string, std::pair<QString, QString>> firstRow; // noise, distance
    for (const char* bridge : {"bridge-a", "bridge-b", "bridge-c"}) {
        CBasicWirelessInfoWidget page(nullptr);
        fleet().open(page, bridge);
        showStatus(page);
        ASSERT_GE(table(page)->model()->rowCount(), 1) << bridge;
        firstRow[bridge] = {cell(page, 0, 5), cell(page, 0, 4)};
    }
    EXPECT_EQ(peers("bridge-b").transmissionList[0].noise, -1000);
    EXPECT_EQ(firstRow["bridge-b"].first, "--");
    EXPECT_EQ(peers("bridge-a").transmissionList[0].distance, -1.0f);
    EXPECT_EQ(firstRow["bridge-a"].second, "--");
    EXPECT_EQ(firstRow["bridge-c"].second, "0.00");
}

TEST_F(BasicWirelessInfoWidgetTest, WithoutACardTheTableStaysEmptyAndPeersAreNotAsked)
{
    ASSERT_TRUE(fleet().capabilities("bridge-nocard").wirelessCardID.empty());
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-nocard");
    showStatus(page);
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshWirelessPortInfo"));
    EXPECT_EQ(table(page)->model()->rowCount(), 0);
    EXPECT_EQ(requestsEndingWith("bridge-nocard", "/transmissionList"), 0);
    // The card's parameters are still asked for, under the empty interface name.
    EXPECT_EQ(requestsEndingWith("bridge-nocard", "/interfaces//wireless"), 2);
}

TEST_F(BasicWirelessInfoWidgetTest, AFailedPeerReadEmptiesTheTable)
{
    CBasicWirelessInfoWidget page(nullptr);
    fleet().open(page, "bridge-d");
    showStatus(page);
    ASSERT_GT(table(page)->model()->rowCount(), 0);
    const std::string path = "/NXRPC/System/Network/interfaces/" + fleet().capabilities("bridge-d").wirelessCardID +
                             "/wireless/transmissionList";
    ASSERT_TRUE(emulator().setFault(fleet().id("bridge-d"), path, EmulatorProcess::Fault::httpStatus(503)));
    showStatus(page);
    EXPECT_EQ(table(page)->model()->rowCount(), 0);
}
