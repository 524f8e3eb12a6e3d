// The WAN page: one sortable row per WAN port with its translated state and way online, its
// addresses and its rates.
#include <QHeaderView>
#include <QTableView>
#include <QTimer>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "BridgeWanFiberTestFleet.h"
#include "PPPoEStatusModel.h"
#include "PPPoEStatusWidget.h"
#include "SpeedDataUintconvert.h"
#include "SwitchPorts.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/TableView.h"
#include "logical/interface/ParamInterface.h"

using velmora::CPPPoEStatusModel;
using velmora::CPPPoEStatusWidget;
using velmora::ParamInterface;
using velmora::PPPoEStatusInfo;
using velmora::SpeedDataUintconvert;
using velmora::test::BridgeWanFiberPageTest;
using velmora::test::EmulatorProcess;

namespace {

const char kConnected[] = "HasBeenConnectedToThWhTnXBYB";
const char kNotConnected[] = "NotConnectedToTheIntYbtmNqvC";

QTableView* table(QWidget& page)
{
    return page.findChild<QTableView*>("m_pPortStatisticsTreeView");
}

QString cell(QWidget& page, int row, int column)
{
    return table(page)->model()->index(row, column).data().toString();
}

QStringList column(QWidget& page, int columnIndex)
{
    QStringList texts;
    for (int row = 0; row < table(page)->model()->rowCount(); ++row)
        texts << cell(page, row, columnIndex);
    return texts;
}

// Column `columnIndex` in the device's order, whatever the view is sorted by.
QStringList sourceColumn(QWidget& page, int columnIndex)
{
    auto* proxy = dynamic_cast<QSortFilterProxyModel*>(table(page)->model());
    QStringList texts;
    if (!proxy)
        return texts;
    for (int row = 0; row < proxy->sourceModel()->rowCount(); ++row)
        texts << proxy->sourceModel()->index(row, columnIndex).data().toString();
    return texts;
}

QTimer* refreshTimer(QWidget& page)
{
    return page.findChild<QTimer*>();
}

Quillon::PPPoEStatus wan(const std::string& id, const std::string& status, const std::string& mode)
{
    Quillon::PPPoEStatus record;
    record.id = id;
    record.status = status;
    record.addressingType = mode;
    return record;
}

Quillon::SwitchBasePort basePort(int id, const std::string& name)
{
    Quillon::SwitchBasePort port;
    port.portId = id;
    port.portName = name;
    return port;
}

class PPPoEStatusWidgetTest : public BridgeWanFiberPageTest {
protected:
    static Quillon::PPPoEStatusList wans(const std::string& name)
    {
        Quillon::PPPoEStatusList list(static_cast<_xmlNode*>(nullptr));
        EXPECT_TRUE(ParamInterface::getPPPoEStatusList(list, fleet().id(name)));
        return list;
    }
    static Quillon::CSwitchBaseInfo baseInfo(const std::string& name)
    {
        Quillon::CSwitchBaseInfo info(std::string{});
        EXPECT_TRUE(ParamInterface::getSwitchBasicInfoConfig(info, fleet().id(name)));
        return info;
    }
};

} // namespace

// ---------------------------------------------------------------------------------------------
// The table model

TEST(PPPoEStatusModel, HasTenLeftAlignedHeaders)
{
    CPPPoEStatusModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPPPoEStatusModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 10);
    const char* keys[] = {"WANPortNamenxeWnkzx", "ConnectedToTheStateMffDqXn", "NetworkingWayNjuIMDOL",
                          "IPAddress", "SubnetMask", "TheGateway", "PrimaryDNSRnlSdXsd",
                          "OnceTheDNSikUnppHJ", "UplinkRate", "DescendingRate"};
    for (int c = 0; c < 10; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), keys[c]) << c;
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81) << c;
    }
}

TEST(PPPoEStatusModel, OnlyConnectedReadsAsConnected)
{
    EXPECT_EQ(CPPPoEStatusModel::statusText("connected"), kConnected);
    for (const char* other : {"disconnected", "Connected", "CONNECTED", "connected ", "", "connecting"})
        EXPECT_EQ(CPPPoEStatusModel::statusText(other), kNotConnected) << other;
}

TEST(PPPoEStatusModel, KnownWaysOnlineAreTranslatedOthersLeftEmpty)
{
    EXPECT_EQ(CPPPoEStatusModel::modeText("DialUpInternet"), "DialupInternetAccesssDGdtWIp");
    EXPECT_EQ(CPPPoEStatusModel::modeText("dynamicIP"), "DynamicIPSaygcUO");
    EXPECT_EQ(CPPPoEStatusModel::modeText("staticIP"), "StaticIPdhZgUYfz");
    EXPECT_EQ(CPPPoEStatusModel::modeText("bridgeMode"), "TheBridgeModelVafiDQkH");
    for (const char* other : {"LTE", "dialUpInternet", "StaticIP", "bridge", ""}) {
        EXPECT_TRUE(CPPPoEStatusModel::modeText(other).isEmpty()) << other;
    }
}

TEST(PPPoEStatusModel, RowsCarryTheTextsAndReplaceThePreviousOnes)
{
    CPPPoEStatusModel model(nullptr);
    PPPoEStatusInfo row{"WAN口1", "connected", "staticIP", "100.64.10.17", "255.255.255.248", "100.64.10.1",
                        "223.5.5.5", "", "1.500Mbps", "999.000Kbps"};
    model.setPPPoEStatus({row, row});
    ASSERT_EQ(model.rowCount(), 2);
    row.strStatus = "down";
    row.strMode = "LTE";
    model.setPPPoEStatus({row});
    ASSERT_EQ(model.rowCount(), 1);
    const QStringList expected = {QString::fromUtf8("WAN口1"), kNotConnected, "", "100.64.10.17", "255.255.255.248",
                                  "100.64.10.1", "223.5.5.5", "", "1.500Mbps", "999.000Kbps"};
    for (int c = 0; c < 10; ++c)
        EXPECT_EQ(model.index(0, c).data().toString(), expected[c]) << c;
}

// ---------------------------------------------------------------------------------------------
// Rows from the device's records

TEST(PPPoEStatusRows, IdentifierIsReadWithAtoi)
{
    Quillon::CSwitchBaseInfo info;
    info.portList = {basePort(0, "port-zero"), basePort(2, "WAN2"), basePort(2, "second WAN2"), basePort(12, "WAN12")};
    Quillon::PPPoEStatusList list;
    list.statusList = {wan("2", "connected", "dynamicIP"), wan("abc", "connected", "staticIP"),
                       wan("", "connected", "staticIP"), wan("12abc", "down", "bridgeMode"),
                       wan("7", "connected", "DialUpInternet")};
    const auto rows = CPPPoEStatusWidget::makePPPoEStatusInfo(list, info);
    ASSERT_EQ(rows.size(), 5u);
    EXPECT_EQ(rows[0].strPortName, "WAN2"); // the first port with the identifier
    // Not a number: port 0, when the device has one.
    EXPECT_EQ(rows[1].strPortName, "port-zero");
    EXPECT_EQ(rows[2].strPortName, "port-zero");
    EXPECT_EQ(rows[3].strPortName, "WAN12");
    // No such port: the row stays with an empty name.
    EXPECT_EQ(rows[4].strPortName, "");
    EXPECT_EQ(rows[4].strMode, "DialUpInternet");
}

TEST(PPPoEStatusRows, NonNumericIdentifierWithoutAPortZeroHasNoName)
{
    Quillon::CSwitchBaseInfo info;
    info.portList = {basePort(1, "WAN1")};
    Quillon::PPPoEStatusList list;
    list.statusList = {wan("wan1", "connected", "staticIP")};
    const auto rows = CPPPoEStatusWidget::makePPPoEStatusInfo(list, info);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].strPortName, "");
}

TEST(PPPoEStatusRows, PortNameEndsAtItsFirstNul)
{
    Quillon::CSwitchBaseInfo info;
    info.portList = {basePort(1, std::string("WAN1\0junk", 9))};
    Quillon::PPPoEStatusList list;
    list.statusList = {wan("1", "connected", "staticIP")};
    const auto rows = CPPPoEStatusWidget::makePPPoEStatusInfo(list, info);
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].strPortName, "WAN1");
}

TEST(PPPoEStatusRows, AddressesAsTheyAreAndRatesInAdaptiveUnitsFromKbps)
{
    Quillon::PPPoEStatus record = wan("1", "connected", "staticIP");
    record.ipAddress = "100.64.10.17";
    record.subnetMask = "255.255.255.248";
    record.gateway = "100.64.10.1";
    record.primaryDNS = "223.5.5.5";
    record.secondaryDNS = "119.29.29.29";
    record.uplinkRate = 1500.9f;   // truncated to 1500 Kbps
    record.downlinkRate = 999.99f; // truncated to 999 Kbps
    Quillon::PPPoEStatusList list;
    list.statusList = {record};
    record.uplinkRate = -3.5f;
    record.downlinkRate = 0.0f;
    list.statusList.push_back(record);
    const auto rows = CPPPoEStatusWidget::makePPPoEStatusInfo(list, Quillon::CSwitchBaseInfo());
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].strStatus, "connected");
    EXPECT_EQ(rows[0].strMode, "staticIP");
    EXPECT_EQ(rows[0].strIp, "100.64.10.17");
    EXPECT_EQ(rows[0].strMask, "255.255.255.248");
    EXPECT_EQ(rows[0].strGateway, "100.64.10.1");
    EXPECT_EQ(rows[0].strDns1, "223.5.5.5");
    EXPECT_EQ(rows[0].strDns2, "119.29.29.29");
    EXPECT_EQ(rows[0].strUplinkRate, "1.500Mbps");
    EXPECT_EQ(rows[0].strDownlinkRate, "999.000Kbps");
    EXPECT_EQ(rows[1].strUplinkRate, "0.000Kbps");
    EXPECT_EQ(rows[1].strDownlinkRate, "0.000Kbps");
}

// ---------------------------------------------------------------------------------------------
// The page

TEST(PPPoEStatusWidget, FormHasTitleRowAndTable)
{
    CPPPoEStatusWidget page(nullptr);
    EXPECT_EQ(page.windowTitle(), "CActiveDeviceDialog");
    EXPECT_EQ(page.size(), QSize(624, 393));
    auto* title = page.findChild<QLabel*>("refreshRateLabel");
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->text(), "WANPortInformationltxodRIP");
    QTableView* view = table(page);
    ASSERT_NE(view, nullptr);
    EXPECT_NE(dynamic_cast<TarvexGUIToolkit::CTableView*>(view), nullptr);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_TRUE(view->isSortingEnabled());
}

TEST(PPPoEStatusWidget, TableSortsThroughAProxyThatDoesNotFollowItsSource)
{
    CPPPoEStatusWidget page(nullptr);
    auto* proxy = dynamic_cast<TarvexGUIToolkit::CMutilColumnFilterProxyModel*>(table(page)->model());
    ASSERT_NE(proxy, nullptr);
    EXPECT_FALSE(proxy->dynamicSortFilter());
    EXPECT_EQ(proxy->sortRole(), Qt::DisplayRole);
    EXPECT_NE(dynamic_cast<CPPPoEStatusModel*>(proxy->sourceModel()), nullptr);
}

TEST(PPPoEStatusWidget, TimerRunsFromConstructionEveryTenSeconds)
{
    CPPPoEStatusWidget page(nullptr);
    QTimer* timer = refreshTimer(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
}

TEST_F(PPPoEStatusWidgetTest, HidingStopsTheTimerAndShowStatusStartsItAgain)
{
    CPPPoEStatusWidget page(nullptr);
    fleet().open(page, "router");
    page.show();
    page.hide();
    QTimer* timer = refreshTimer(page);
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
}

TEST_F(PPPoEStatusWidgetTest, ShowsEveryWanPortOfTheDevice)
{
    for (const char* device : {"router", "controller", "enterprise-even", "enterprise-odd"}) {
        SCOPED_TRACE(device);
        CPPPoEStatusWidget page(nullptr);
        fleet().open(page, device);
        showStatus(page);
        const Quillon::PPPoEStatusList list = wans(device);
        const Quillon::CSwitchBaseInfo info = baseInfo(device);
        ASSERT_FALSE(list.statusList.empty());
        ASSERT_EQ(table(page)->model()->rowCount(), static_cast<int>(list.statusList.size()));
        auto* proxy = dynamic_cast<QSortFilterProxyModel*>(table(page)->model());
        ASSERT_NE(proxy, nullptr);
        for (size_t i = 0; i < list.statusList.size(); ++i) {
            const Quillon::PPPoEStatus& record = list.statusList[i];
            const int row = proxy->mapFromSource(proxy->sourceModel()->index(static_cast<int>(i), 0)).row();
            const QString name = QString::fromStdString(velmora::switchPortName(info, std::stoi(record.id)));
            EXPECT_FALSE(name.isEmpty());
            EXPECT_EQ(cell(page, row, 0), name);
            EXPECT_EQ(cell(page, row, 1), CPPPoEStatusModel::statusText(record.status));
            EXPECT_EQ(cell(page, row, 2), CPPPoEStatusModel::modeText(record.addressingType));
            EXPECT_EQ(cell(page, row, 3), QString::fromStdString(record.ipAddress));
            EXPECT_EQ(cell(page, row, 4), QString::fromStdString(record.subnetMask));
            EXPECT_EQ(cell(page, row, 5), QString::fromStdString(record.gateway));
            EXPECT_EQ(cell(page, row, 6), QString::fromStdString(record.primaryDNS));
            EXPECT_EQ(cell(page, row, 7), QString::fromStdString(record.secondaryDNS));
            EXPECT_EQ(cell(page, row, 8), SpeedDataUintconvert::speedDataAdaptiveUintconvert(
                                              static_cast<unsigned>(record.uplinkRate), SpeedDataUintconvert::Kbps));
            EXPECT_EQ(cell(page, row, 9), SpeedDataUintconvert::speedDataAdaptiveUintconvert(
                                              static_cast<unsigned>(record.downlinkRate), SpeedDataUintconvert::Kbps));
        }
    }
}

TEST_F(PPPoEStatusWidgetTest, WaysOnlineOfTheEmulatedRouters)
{
    struct Case {
        const char* device;
        std::vector<std::string> modes;
        QStringList texts;
    };
    const Case cases[] = {
        {"router", {"DialUpInternet", "dynamicIP"}, {"DialupInternetAccesssDGdtWIp", "DynamicIPSaygcUO"}},
        {"enterprise-even", {"staticIP", "DialUpInternet", "LTE"}, {"StaticIPdhZgUYfz", "DialupInternetAccesssDGdtWIp", ""}},
        {"enterprise-odd",
         {"staticIP", "DialUpInternet", "bridgeMode"},
         {"StaticIPdhZgUYfz", "DialupInternetAccesssDGdtWIp", "TheBridgeModelVafiDQkH"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.device);
        const Quillon::PPPoEStatusList list = wans(c.device);
        ASSERT_EQ(list.statusList.size(), c.modes.size());
        for (size_t i = 0; i < c.modes.size(); ++i)
            ASSERT_EQ(list.statusList[i].addressingType, c.modes[i]);
        CPPPoEStatusWidget page(nullptr);
        fleet().open(page, c.device);
        showStatus(page);
        EXPECT_EQ(sourceColumn(page, 2), c.texts);
    }
}

TEST_F(PPPoEStatusWidgetTest, ADroppedLinkReadsAsNotConnected)
{
    // The second WAN of an enterprise router drops now and then: look for a moment when it is
    // down.
    bool seenDown = false;
    bool seenUp = false;
    for (long long tick = 0; tick < 40 * 900 && !(seenDown && seenUp); tick += 900) {
        ASSERT_TRUE(emulator().freezeClock(tick));
        const Quillon::PPPoEStatusList list = wans("enterprise-odd");
        ASSERT_GE(list.statusList.size(), 2u);
        CPPPoEStatusWidget page(nullptr);
        fleet().open(page, "enterprise-odd");
        showStatus(page);
        const bool up = list.statusList[1].status == "connected";
        EXPECT_EQ(sourceColumn(page, 1).value(1), up ? kConnected : kNotConnected);
        (up ? seenUp : seenDown) = true;
    }
    EXPECT_TRUE(seenDown);
    EXPECT_TRUE(seenUp);
}

TEST_F(PPPoEStatusWidgetTest, SortedColumnHoldsAcrossRefreshes)
{
    CPPPoEStatusWidget page(nullptr);
    fleet().open(page, "enterprise-odd");
    showStatus(page);
    QTableView* view = table(page);
    ASSERT_EQ(view->model()->rowCount(), 3);

    view->sortByColumn(CPPPoEStatusModel::PORT_NAME, Qt::DescendingOrder);
    QStringList names = column(page, 0);
    QStringList sorted = names;
    std::sort(sorted.begin(), sorted.end(), [](const QString& a, const QString& b) { return a > b; });
    ASSERT_EQ(names, sorted);

    // Refreshes by the timer's slot and by a click rebuild the source and sort again.
    for (int refresh = 0; refresh < 3; ++refresh) {
        ASSERT_TRUE(emulator().freezeClock(kFrozenTick + 600 * (refresh + 1)));
        if (refresh % 2 == 0)
            ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefresh"));
        else
            showStatus(page);
        auto* proxy = dynamic_cast<QSortFilterProxyModel*>(view->model());
        EXPECT_EQ(proxy->sortColumn(), CPPPoEStatusModel::PORT_NAME);
        EXPECT_EQ(proxy->sortOrder(), Qt::DescendingOrder);
        EXPECT_EQ(column(page, 0), sorted) << refresh;
    }

    view->sortByColumn(CPPPoEStatusModel::MODE, Qt::AscendingOrder);
    showStatus(page);
    QStringList modes = column(page, 2);
    QStringList modesSorted = modes;
    std::sort(modesSorted.begin(), modesSorted.end());
    EXPECT_EQ(modes, modesSorted);
}

TEST_F(PPPoEStatusWidgetTest, OddValuesFromTheDeviceShowAsFarAsTheyAreKnown)
{
    // A router that names a WAN port by text, reports a state and a way online the client
    // does not know, and leaves a rate out.
    const std::string answer = R"(<?xml version="1.0" encoding="UTF-8"?>
<PPPoEStatusList><statusList>
<PPPoEStatus><id>1</id><ipAddress>100.64.0.2</ipAddress><subnetMask>255.255.255.252</subnetMask>
<gateway>100.64.0.1</gateway><primaryDNS>223.5.5.5</primaryDNS><secondaryDNS></secondaryDNS>
<status>connected</status><addressingType>staticIP</addressingType>
<uplinkRate>1536.0</uplinkRate><downlinkRate>2048.9</downlinkRate></PPPoEStatus>
<PPPoEStatus><id>wan2</id><ipAddress></ipAddress><status>dialing</status>
<addressingType>LTE</addressingType><uplinkRate>0</uplinkRate></PPPoEStatus>
</statusList></PPPoEStatusList>
)";
    const Quillon::CSwitchBaseInfo info = baseInfo("enterprise-even");
    ASSERT_TRUE(emulator().setFault(fleet().id("enterprise-even"), "/NXRPC/System/Network/PPPoE/status",
                                    EmulatorProcess::Fault::answer(answer)));
    CPPPoEStatusWidget page(nullptr);
    fleet().open(page, "enterprise-even");
    showStatus(page);
    ASSERT_EQ(table(page)->model()->rowCount(), 2);
    const QStringList names = sourceColumn(page, 0);
    EXPECT_EQ(names.value(0), QString::fromStdString(velmora::switchPortName(info, 1)));
    EXPECT_FALSE(names.value(0).isEmpty());
    // "wan2" reads as port 0, which the router does not have.
    EXPECT_EQ(names.value(1), QString::fromStdString(velmora::switchPortName(info, 0)));
    EXPECT_EQ(sourceColumn(page, 1), QStringList({kConnected, kNotConnected}));
    EXPECT_EQ(sourceColumn(page, 2), QStringList({"StaticIPdhZgUYfz", ""}));
    EXPECT_EQ(sourceColumn(page, 3), QStringList({"100.64.0.2", ""}));
    EXPECT_EQ(sourceColumn(page, 8).value(0),
              SpeedDataUintconvert::speedDataAdaptiveUintconvert(1536, SpeedDataUintconvert::Kbps));
    EXPECT_EQ(sourceColumn(page, 9).value(0),
              SpeedDataUintconvert::speedDataAdaptiveUintconvert(2048, SpeedDataUintconvert::Kbps));
    EXPECT_EQ(sourceColumn(page, 9).value(1),
              SpeedDataUintconvert::speedDataAdaptiveUintconvert(0, SpeedDataUintconvert::Kbps));
}

TEST_F(PPPoEStatusWidgetTest, AFailedReadLeavesTheTableAsItWas)
{
    CPPPoEStatusWidget page(nullptr);
    fleet().open(page, "router");
    showStatus(page);
    const QStringList before = column(page, 3);
    ASSERT_FALSE(before.isEmpty());

    ASSERT_TRUE(emulator().setFault(fleet().id("router"), "/NXRPC/System/Network/PPPoE/status",
                                    EmulatorProcess::Fault::httpStatus(500)));
    showStatus(page);
    EXPECT_EQ(column(page, 3), before);

    // The port names are part of the read: a failure there stops it too.
    ASSERT_TRUE(emulator().clearFaults());
    ASSERT_TRUE(emulator().setFault(fleet().id("router"), "/NXRPC/Transfers/Switches/basicInfo*",
                                    EmulatorProcess::Fault::drop()));
    showStatus(page);
    EXPECT_EQ(column(page, 3), before);
}
