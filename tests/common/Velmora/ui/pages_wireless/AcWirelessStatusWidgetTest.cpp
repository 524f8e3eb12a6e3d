// The SSIDs of a controller's AP groups, against the emulated controllers: the paged or the
// plain read by the controller's capability, the group combo, one row per SSID index with
// its state on each band, groups that vanish, failures and the timer.
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "AcSSIDStatusModel.h"
#include "AcWirelessStatusWidget.h"
#include "TarvexGUIToolkit/ComboBox.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "WirelessPagesTestFleet.h"
#include "support/LogCapture.h"

namespace velmora {

// Shows group lists that no emulated controller reports.
struct CAcWirelessStatusWidgetTestAccess {
    static void showGroups(CAcWirelessStatusWidget& page, const Quillon::APGroupBSSList& groups,
                           const std::string& name)
    {
        page.m_apGroupList = groups;
        page.showGroupSSID(name);
    }
};

} // namespace velmora

using velmora::CAcWirelessStatusWidget;
using velmora::CAcWirelessStatusWidgetTestAccess;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;
using velmora::test::WirelessPageTest;
using velmora::test::part;
using velmora::test::timerOf;

namespace {

const char kSearchRequest[] = "POST /NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup?format=json";
const char kPlainRequest[] = "GET /NXRPC/System/Network/interfaces/bssParaCfg/APGroup?format=json";
const char kCapabilitiesPath[] = "/NXRPC/Transfers/AC/capabilities";
const char kSearchPath[] = "/NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup";
const char kPlainPath[] = "/NXRPC/System/Network/interfaces/bssParaCfg/APGroup";

using Row = std::vector<QString>; // SSID, 2.4 GHz, 5 GHz (1), 5 GHz (2), security

// The rows a group should show, worked out from the controller's own answer.
std::set<Row> expectedRows(const Quillon::APGroupBSSList& groups, const std::string& name)
{
    std::map<int, Row> byIndex;
    for (const Quillon::APGroupBSS& group : groups.groupList) {
        if (group.groupName != name)
            continue;
        for (const Quillon::APGroupBssParaCfg& bss : group.bssList) {
            Row& row = byIndex.emplace(bss.ssidIndex, Row(5)).first->second;
            row[0] = QString::fromUtf8(bss.ssid.c_str());
            const QString state = bss.enabled ? "OpenWSYVR9KO" : "NotAllow";
            if (bss.band >= 0 && bss.band <= 2)
                row[1 + bss.band] = state;
            if (bss.band == 0)
                row[4] = bss.securityMode == "none" ? QString("None") : QString::fromStdString(bss.securityMode);
        }
    }
    std::set<Row> rows;
    for (const auto& [index, row] : byIndex)
        rows.insert(row);
    return rows;
}

QAbstractItemModel* tableOf(QWidget& page)
{
    auto* view = part<QTableView>(page, "m_pConnectedDeviceTreeView");
    return view ? view->model() : nullptr;
}

std::vector<Row> shownRows(QWidget& page)
{
    std::vector<Row> rows;
    QAbstractItemModel* model = tableOf(page);
    for (int r = 0; model && r < model->rowCount(); ++r) {
        Row row;
        for (int c = 0; c < 5; ++c)
            row.push_back(model->index(r, c).data().toString());
        rows.push_back(row);
    }
    return rows;
}

std::set<Row> asSet(const std::vector<Row>& rows)
{
    return std::set<Row>(rows.begin(), rows.end());
}

QStringList comboItems(QWidget& page)
{
    QStringList items;
    auto* combo = part<QComboBox>(page, "m_pGroupComBox");
    for (int i = 0; combo && i < combo->count(); ++i)
        items << combo->itemText(i);
    return items;
}

Quillon::APGroupBSSList readGroups(const std::string& controller)
{
    Quillon::APGroupBSSList groups{std::string()};
    EXPECT_TRUE(velmora::ParamInterface::GetAPGroupBSSList(groups, velmora::test::WirelessPagesTestFleet::instance().id(controller)));
    return groups;
}

Quillon::APGroupBssParaCfg entry(int index, int band, const std::string& ssid, bool enabled, const std::string& security)
{
    Quillon::APGroupBssParaCfg e{std::string()};
    e.ssidIndex = index;
    e.band = band;
    e.ssid = ssid;
    e.enabled = enabled;
    e.securityMode = security;
    return e;
}

Quillon::APGroupBSS group(const std::string& name, std::vector<Quillon::APGroupBssParaCfg> entries)
{
    Quillon::APGroupBSS g{std::string()};
    g.groupName = name;
    g.bssList = std::move(entries);
    return g;
}

bool logged(const LogCapture& log, const char* message)
{
    for (const auto& line : log.lines("INFO"))
        if (line.message == message)
            return true;
    return false;
}

class AcWirelessStatusWidgetTest : public WirelessPageTest {};

} // namespace

TEST_F(AcWirelessStatusWidgetTest, TheFormBeforeAnyRead)
{
    CAcWirelessStatusWidget page(nullptr);
    EXPECT_EQ(page.size(), QSize(738, 653));
    EXPECT_EQ(page.windowTitle(), "CActiveDeviceDialog");
    auto* label = part<QLabel>(page, "m_pGroupLabel");
    EXPECT_EQ(label->text(), "Group");
    EXPECT_EQ(label->minimumWidth(), 30);
    EXPECT_EQ(label->maximumWidth(), 50);
    auto* combo = page.findChild<TarvexGUIToolkit::CComboBox*>("m_pGroupComBox");
    ASSERT_NE(combo, nullptr);
    EXPECT_EQ(combo->minimumWidth(), 150);
    EXPECT_EQ(combo->maximumWidth(), 150);
    auto* view = part<QTableView>(page, "m_pConnectedDeviceTreeView");
    auto* proxy = qobject_cast<TarvexGUIToolkit::CMutilColumnFilterProxyModel*>(view->model());
    ASSERT_NE(proxy, nullptr);
    EXPECT_FALSE(proxy->dynamicSortFilter());
    EXPECT_EQ(proxy->sortRole(), Qt::DisplayRole);
    EXPECT_NE(qobject_cast<velmora::CAcSSIDStatusModel*>(proxy->sourceModel()), nullptr);
    const int widths[] = {200, 100, 100, 100, 100};
    for (int c = 0; c < 5; ++c)
        EXPECT_EQ(view->columnWidth(c), widths[c]) << c;
    EXPECT_TRUE(view->isSortingEnabled());
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorSection(), 0);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    ASSERT_NE(timerOf(page), nullptr);
    EXPECT_FALSE(timerOf(page)->isActive());
}

TEST_F(AcWirelessStatusWidgetTest, TheControllersCapabilityChoosesThePagedOrThePlainRead)
{
    for (const char* name : {"ac-search", "ac-plain"}) {
        SCOPED_TRACE(name);
        emulator().clearRequestLog();
        CAcWirelessStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        const std::vector<std::string> lines = fleet().requestLines(name);
        const bool paged = std::string(name) == "ac-search";
        EXPECT_EQ(std::count(lines.begin(), lines.end(), kSearchRequest) > 0, paged);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), kPlainRequest) > 0, !paged);

        const Quillon::APGroupBSSList groups = readGroups(name);
        QStringList names;
        for (const auto& g : groups.groupList)
            names << QString::fromUtf8(g.groupName.c_str());
        ASSERT_FALSE(names.isEmpty());
        EXPECT_EQ(comboItems(page), names);
        auto* combo = part<QComboBox>(page, "m_pGroupComBox");
        EXPECT_EQ(combo->currentIndex(), 0);
        EXPECT_EQ(asSet(shownRows(page)), expectedRows(groups, groups.groupList.front().groupName));
    }
}

TEST_F(AcWirelessStatusWidgetTest, EachGroupShowsOneRowPerSsidWithItsBands)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-search");
    showStatus(page);
    const Quillon::APGroupBSSList groups = readGroups("ac-search");
    auto* combo = part<QComboBox>(page, "m_pGroupComBox");
    bool sawBothBands = false, sawFiveOnly = false, sawNone = false, sawOther = false;
    for (int i = 0; i < combo->count(); ++i) {
        combo->setCurrentIndex(i);
        const std::string name = combo->itemText(i).toStdString();
        SCOPED_TRACE(name);
        const std::vector<Row> rows = shownRows(page);
        EXPECT_EQ(asSet(rows), expectedRows(groups, name));
        for (const Row& row : rows) {
            sawBothBands = sawBothBands || (!row[1].isEmpty() && !row[2].isEmpty());
            // An SSID only on the 5 GHz radios has no security text.
            if (row[1].isEmpty() && !row[2].isEmpty()) {
                sawFiveOnly = true;
                EXPECT_EQ(row[4], "");
            }
            sawNone = sawNone || row[4] == "None";
            sawOther = sawOther || (!row[4].isEmpty() && row[4] != "None");
        }
    }
    EXPECT_TRUE(sawBothBands);
    EXPECT_TRUE(sawFiveOnly);
    EXPECT_TRUE(sawNone && sawOther);
}

TEST_F(AcWirelessStatusWidgetTest, TheChosenGroupStaysAcrossRefreshesAndAVanishedOneFallsBackToTheFirst)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-search");
    showStatus(page);
    auto* combo = part<QComboBox>(page, "m_pGroupComBox");
    const int lab = combo->findText("Lab");
    ASSERT_GE(lab, 0);
    combo->setCurrentIndex(lab);
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshWirelessPortInfo"));
    EXPECT_EQ(combo->currentText(), "Lab");
    EXPECT_EQ(asSet(shownRows(page)), expectedRows(readGroups("ac-search"), "Lab"));
    showStatus(page);
    EXPECT_EQ(combo->currentText(), "Lab");

    // The same page on a controller that has no group "Lab" (the groups it keeps are named alike).
    fleet().open(page, "ac-plain");
    showStatus(page);
    const Quillon::APGroupBSSList groups = readGroups("ac-plain");
    EXPECT_EQ(combo->currentIndex(), 0);
    EXPECT_EQ(combo->currentText(), QString::fromUtf8(groups.groupList.front().groupName.c_str()));
    EXPECT_EQ(asSet(shownRows(page)), expectedRows(groups, groups.groupList.front().groupName));

    // A group both controllers have stays chosen.
    combo->setCurrentIndex(combo->findText("HQ-2F"));
    fleet().open(page, "ac-search");
    showStatus(page);
    EXPECT_EQ(combo->currentText(), "HQ-2F");
    EXPECT_EQ(asSet(shownRows(page)), expectedRows(readGroups("ac-search"), "HQ-2F"));
}

TEST_F(AcWirelessStatusWidgetTest, AControllerWithoutGroupsLeavesTheComboAndTableEmpty)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-nogroups");
    showStatus(page);
    EXPECT_TRUE(comboItems(page).isEmpty());
    EXPECT_TRUE(shownRows(page).empty());
}

TEST_F(AcWirelessStatusWidgetTest, FailedReadsAreLoggedAtInfoAndKeepTheLastGroups)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-search");
    showStatus(page);
    auto* combo = part<QComboBox>(page, "m_pGroupComBox");
    combo->setCurrentIndex(combo->findText("Warehouse"));
    const QStringList items = comboItems(page);
    const std::vector<Row> rows = shownRows(page);
    const std::string id = fleet().id("ac-search");

    {
        // The paged read fails: no fall-back to the plain one.
        ASSERT_TRUE(emulator().setFault(id, kSearchPath, EmulatorProcess::Fault::httpStatus(500)));
        emulator().clearRequestLog();
        LogCapture log;
        showStatus(page);
        EXPECT_TRUE(logged(log, "call PostAPGroupBssParaCfg failed"));
        const std::vector<std::string> lines = fleet().requestLines("ac-search");
        EXPECT_EQ(std::count(lines.begin(), lines.end(), kPlainRequest), 0);
        EXPECT_EQ(comboItems(page), items);
        EXPECT_EQ(combo->currentText(), "Warehouse");
        EXPECT_EQ(asSet(shownRows(page)), asSet(rows));
        emulator().clearFaults();
    }
    {
        // Without the capability record the plain read is used.
        ASSERT_TRUE(emulator().setFault(id, kCapabilitiesPath, EmulatorProcess::Fault::httpStatus(503)));
        emulator().clearRequestLog();
        LogCapture log;
        showStatus(page);
        EXPECT_TRUE(logged(log, "call getAcCapabilities failed"));
        const std::vector<std::string> lines = fleet().requestLines("ac-search");
        EXPECT_GT(std::count(lines.begin(), lines.end(), kPlainRequest), 0);
        EXPECT_EQ(std::count(lines.begin(), lines.end(), kSearchRequest), 0);
        EXPECT_EQ(combo->currentText(), "Warehouse");
        emulator().clearFaults();
    }
    {
        CAcWirelessStatusWidget plain(nullptr);
        fleet().open(plain, "ac-plain");
        showStatus(plain);
        const QStringList before = comboItems(plain);
        ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kPlainPath, EmulatorProcess::Fault::httpStatus(500)));
        LogCapture log;
        showStatus(plain);
        EXPECT_TRUE(logged(log, "call GetAPGroupBSSList failed"));
        EXPECT_EQ(comboItems(plain), before);
    }
}

TEST_F(AcWirelessStatusWidgetTest, GroupsNoEmulatedControllerReports)
{
    CAcWirelessStatusWidget page(nullptr);
    Quillon::APGroupBSSList groups{std::string()};
    // Two groups of one name add up; band 3 gives a row with only its SSID.
    groups.groupList = {group("Twin", {entry(1, 0, "One", true, "none"), entry(1, 1, "One", false, "WPA2-personal")}),
                        group("Other", {entry(2, 0, "Other", true, "none")}),
                        group("Twin", {entry(2, 2, "Two", true, "WPA3-personal"), entry(5, 3, "Odd", true, "none")})};
    CAcWirelessStatusWidgetTestAccess::showGroups(page, groups, "Twin");
    EXPECT_EQ(asSet(shownRows(page)), (std::set<Row>{{"One", "OpenWSYVR9KO", "NotAllow", "", "None"},
                                                    {"Two", "", "", "OpenWSYVR9KO", ""},
                                                    {"Odd", "", "", "", ""}}));
    // The SSID of an index is its last entry's; the 2.4 GHz entry decides the security.
    groups.groupList = {group("G", {entry(1, 0, "A", true, "WPA2-personal"), entry(1, 1, "B", true, "none")})};
    CAcWirelessStatusWidgetTestAccess::showGroups(page, groups, "G");
    EXPECT_EQ(asSet(shownRows(page)), (std::set<Row>{{"B", "OpenWSYVR9KO", "OpenWSYVR9KO", "", "WPA2-personal"}}));
    // An empty name empties the table.
    CAcWirelessStatusWidgetTestAccess::showGroups(page, groups, "");
    EXPECT_TRUE(shownRows(page).empty());
}

TEST_F(AcWirelessStatusWidgetTest, TheTableKeepsTheUsersSortAcrossARefresh)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-search");
    showStatus(page);
    auto* combo = part<QComboBox>(page, "m_pGroupComBox");
    // The group with the most SSIDs.
    const Quillon::APGroupBSSList groups = readGroups("ac-search");
    size_t most = 0;
    QString name;
    for (const auto& g : groups.groupList) {
        if (expectedRows(groups, g.groupName).size() > most) {
            most = expectedRows(groups, g.groupName).size();
            name = QString::fromUtf8(g.groupName.c_str());
        }
    }
    ASSERT_GE(most, 3u);
    combo->setCurrentIndex(combo->findText(name));
    auto* view = part<QTableView>(page, "m_pConnectedDeviceTreeView");
    view->sortByColumn(0, Qt::DescendingOrder);
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshWirelessPortInfo"));
    const std::vector<Row> rows = shownRows(page);
    ASSERT_EQ(rows.size(), most);
    for (size_t i = 1; i < rows.size(); ++i)
        EXPECT_GE(rows[i - 1][0], rows[i][0]);
}

TEST_F(AcWirelessStatusWidgetTest, TheTimerStartsWithTheFirstShowAndStopsWhenHidden)
{
    CAcWirelessStatusWidget page(nullptr);
    fleet().open(page, "ac-plain");
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    page.show();
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 45000);
    page.hide();
    EXPECT_FALSE(timer->isActive());
}
