// The status dialog against the emulator: its form, the opening road, clicks on rows, the
// walk from a controller to one of its APs and back, and the device look-up failing.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QSpacerItem>
#include <QStackedWidget>
#include <QStandardItemModel>
#include <QThreadPool>
#include <cjson/cJSON.h>

#include "DeviceStatusFactory.h"
#include "DeviceStatusOptionBase.h"
#include "DeviceStatusPages.h"
#include "DialogTestFleet.h"
#include "FormatRunTime.h"
#include "Quillon/SwitchRecords.h"
#include "Quillon/WirelessRecords.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/ToolPushButton.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "support/LogCapture.h"
#include "logical/interface/ParamInterface.h"

using velmora::CDeviceStatusFactory;
using velmora::CDeviceStatusOptionBase;
using velmora::CSwitchDeviceStatusWidget;
using velmora::ParamInterface;
using velmora::test::DialogTestFleet;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;

namespace {

const char kStatusRequest[] = "GET /NXRPC/System/status";
const char kPoeCapabilityRequest[] =
    "GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json";
const char kSearchCapabilityRequest[] = "GET /NXRPC/Transfers/Switches/workState/search/capabilities";
const char kApListRequest[] = "POST /NXRPC/Transfers/AP/basicInfo?format=json";

// Titles of the rows, by option key.
QString titleOf(int key)
{
    static const std::map<int, QString> titles = {
        {1, "DeviceStatus"},        {2, "PanelState"},
        {3, "BasicWirelessConfiguration"},
        {4, "PortStatus"},          {5, "ThePortStatistical"},
        {6, "POEPortState"},        {7, "BasicWirelessStateYrmZymEu"},
        {8, "ConnectedToTheStateMffDqXn"},
        {9, "StateOfTheWireless"},  {10, "DeviceStatus"},
        {11, "ClientListxBJDUZFw"}, {12, "ManagingAPListsAizrsShK"},
    };
    return titles.at(key);
}

// The keys of `keys` whose page this build holds, in order.
std::vector<int> offered(const std::vector<int>& keys)
{
    std::vector<int> result;
    for (int key : keys) {
        if (CDeviceStatusFactory::hasPageClass(key))
            result.push_back(key);
    }
    return result;
}

protocol::SwitchCapabilities capabilitiesOf(const std::string& id)
{
    const auto device = DialogTestFleet::instance().emulator().device(id);
    cJSON* json = device ? cJSON_Parse(device->capabilitiesJson.c_str()) : nullptr;
    protocol::SwitchCapabilities capability(json);
    cJSON_Delete(json);
    return capability;
}

struct DialogParts {
    TarvexGUIToolkit::CTreeView* tree = nullptr;
    QStackedWidget* stack = nullptr;
    QLabel* deviceName = nullptr;
    QLabel* runTime = nullptr;
    TarvexGUIToolkit::CToolPushButton* backButton = nullptr;
};

DialogParts partsOf(CSwitchDeviceStatusWidget& dialog)
{
    DialogParts parts;
    parts.tree = dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
    parts.stack = dialog.findChild<QStackedWidget*>("m_pStackedWidget");
    parts.deviceName = dialog.findChild<QLabel*>("deviceName");
    parts.runTime = dialog.findChild<QLabel*>("runTime");
    parts.backButton = dialog.findChild<TarvexGUIToolkit::CToolPushButton*>("m_pBackButton");
    return parts;
}

std::vector<int> rowKeys(const DialogParts& parts)
{
    std::vector<int> keys;
    if (!parts.tree->model())
        return keys;
    for (int row = 0; row < parts.tree->model()->rowCount(); ++row) {
        const QModelIndex index = parts.tree->model()->index(row, 0);
        EXPECT_EQ(index.data().toString(), titleOf(index.data(Qt::UserRole).toInt()));
        keys.push_back(index.data(Qt::UserRole).toInt());
    }
    return keys;
}

void clickRow(const DialogParts& parts, int row)
{
    const QModelIndex index = parts.tree->model()->index(row, 0);
    parts.tree->setCurrentIndex(index);
    emit parts.tree->SignalClicked(index);
}

class SwitchDeviceStatusWidgetTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        VELMORA_REQUIRE_FLEET();
        emulator().clearFaults();
        emulator().runClock();
        emulator().clearRequestLog();
    }
    void TearDown() override
    {
        if (DialogTestFleet::instance().isRunning()) {
            emulator().clearFaults();
            emulator().runClock();
        }
    }

    static EmulatorProcess& emulator() { return DialogTestFleet::instance().emulator(); }
    static std::string id(const std::string& name) { return DialogTestFleet::instance().id(name); }
    static std::vector<std::string> requests(const std::string& name)
    {
        return DialogTestFleet::instance().requestLinesOf(id(name));
    }

    std::unique_ptr<CSwitchDeviceStatusWidget> open(const std::string& name)
    {
        return std::make_unique<CSwitchDeviceStatusWidget>(id(name), capabilitiesOf(id(name)), nullptr);
    }

    // The run time text of the device at the frozen clock, read as the dialog reads it.
    QString deviceRunTime(const std::string& name)
    {
        Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
        EXPECT_TRUE(ParamInterface::getSwitchDeviceStatus(status, id(name)));
        return "RunTime " + velmora::formatRunTime(status.deviceUpTime);
    }

    std::vector<Quillon::ApInfo> managedAps(const std::string& name)
    {
        const std::string empty;
        Quillon::ApInfoList list(empty);
        EXPECT_TRUE(ParamInterface::getApInfoList(list, id(name)));
        return list.apList;
    }

    void openApView(CSwitchDeviceStatusWidget& dialog, const QString& ip, const QString& mac)
    {
        ASSERT_TRUE(QMetaObject::invokeMethod(&dialog, "onUpdateToApStatus", Qt::DirectConnection, Q_ARG(QString, ip),
                                              Q_ARG(QString, mac)));
    }
};

} // namespace

TEST_F(SwitchDeviceStatusWidgetTest, FormHasTheDesignedLayout)
{
    CSwitchDeviceStatusWidget dialog(nullptr);
    const DialogParts parts = partsOf(dialog);
    ASSERT_TRUE(parts.tree && parts.stack && parts.deviceName && parts.runTime && parts.backButton);

    // The form is set up on the dialog's content widget, which keeps the toolkit's name.
    QWidget* form = dialog.GetSetUpUiWidget();
    EXPECT_EQ(form->windowTitle(), "CDeviceStatusDialog");
    EXPECT_EQ(form->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(form->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    EXPECT_TRUE(form->styleSheet().isEmpty());

    auto* grid = form->findChild<QGridLayout*>("gridLayout");
    ASSERT_NE(grid, nullptr);
    EXPECT_EQ(grid->spacing(), 6);
    EXPECT_EQ(grid->contentsMargins(), QMargins(24, 16, 24, 24));

    auto cellOf = [grid](QWidget* widget) {
        int row = -1, column = -1, rows = -1, columns = -1;
        grid->getItemPosition(grid->indexOf(widget), &row, &column, &rows, &columns);
        return std::vector<int>{row, column, rows, columns};
    };
    EXPECT_EQ(cellOf(parts.backButton), (std::vector<int>{0, 0, 1, 1}));
    EXPECT_EQ(cellOf(parts.deviceName), (std::vector<int>{1, 0, 1, 1}));
    EXPECT_EQ(cellOf(parts.runTime), (std::vector<int>{1, 2, 1, 1}));
    EXPECT_EQ(cellOf(parts.tree), (std::vector<int>{2, 0, 1, 1}));
    EXPECT_EQ(cellOf(parts.stack), (std::vector<int>{2, 1, 1, 2}));

    QSpacerItem* spacer = grid->itemAtPosition(1, 1) ? grid->itemAtPosition(1, 1)->spacerItem() : nullptr;
    ASSERT_NE(spacer, nullptr);
    EXPECT_EQ(spacer->sizeHint(), QSize(712, 20));
    EXPECT_EQ(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);

    EXPECT_EQ(parts.backButton->minimumSize(), QSize(64, 32));
    EXPECT_EQ(parts.backButton->maximumSize(), QSize(64, 32));
    EXPECT_EQ(parts.backButton->iconSize(), QSize(16, 16));
    EXPECT_FALSE(parts.backButton->icon().isNull());
    EXPECT_EQ(parts.backButton->text(), "ReturnD1QNBO6E");

    EXPECT_EQ(parts.deviceName->minimumWidth(), 180);
    EXPECT_EQ(parts.deviceName->maximumWidth(), 180);
    EXPECT_EQ(parts.runTime->minimumWidth(), 360);
    EXPECT_EQ(parts.runTime->maximumWidth(), 360);
    EXPECT_EQ(parts.runTime->layoutDirection(), Qt::LeftToRight);
    EXPECT_EQ(parts.runTime->textFormat(), Qt::RichText);
    EXPECT_EQ(static_cast<int>(parts.runTime->alignment()), 130);
    EXPECT_EQ(parts.tree->minimumWidth(), 180);
    EXPECT_EQ(parts.tree->maximumWidth(), 180);
    EXPECT_EQ(parts.stack->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(parts.stack->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(parts.stack->currentIndex(), -1);

    EXPECT_EQ(dialog.GetTitle(), "DeviceStatus");
    EXPECT_TRUE(dialog.IsCloseBtnVisible());
    EXPECT_EQ(dialog.size(), QSize(920, 700));
    EXPECT_TRUE(parts.backButton->isHidden());
    EXPECT_TRUE(parts.tree->isHeaderHidden());
    EXPECT_EQ(parts.tree->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(parts.tree->model(), nullptr);
    EXPECT_TRUE(dialog.getDeviceGuid().empty());
    EXPECT_EQ(dialog.getDeviceStatusWidget(), nullptr);
}

TEST_F(SwitchDeviceStatusWidgetTest, OpensASwitchOnItsFirstRow)
{
    ASSERT_TRUE(emulator().freezeClock(2 * 604800 + 86400 + 7 * 60));
    const QString runTime = deviceRunTime("poe-switch");
    emulator().clearRequestLog();

    auto dialog = open("poe-switch");
    const DialogParts parts = partsOf(*dialog);
    EXPECT_EQ(dialog->getDeviceGuid(), id("poe-switch"));
    EXPECT_EQ(parts.deviceName->text(), "Device poe-switch");
    EXPECT_EQ(parts.runTime->text(), runTime);
    EXPECT_EQ(rowKeys(parts), offered({1, 4, 5, 6}));
    EXPECT_TRUE(parts.backButton->isHidden());

    if (CDeviceStatusFactory::hasPageClass(1)) {
        EXPECT_EQ(parts.tree->currentIndex(), parts.tree->model()->index(0, 0));
        EXPECT_EQ(parts.stack->count(), 1);
        ASSERT_NE(parts.stack->currentWidget(), nullptr);
#if VELMORA_HAS_PAGE_CDeviceStatusWidget
        EXPECT_EQ(static_cast<QWidget*>(dialog->getDeviceStatusWidget()), parts.stack->currentWidget());
#endif
    }

    // The opening road: the PoE question of the rows, the work state mode (this switch
    // serves the paged search), the run time, then the first page's own queries.
    const std::vector<std::string> lines = requests("poe-switch");
    ASSERT_GE(lines.size(), 3u);
    EXPECT_EQ(lines[0], kPoeCapabilityRequest);
    EXPECT_EQ(lines[1], kSearchCapabilityRequest);
    EXPECT_EQ(lines[2], kStatusRequest);
}

TEST_F(SwitchDeviceStatusWidgetTest, ANameTooLongForItsLabelIsGivenWholeInTheTooltip)
{
    const std::string longName = "distribution switch of the north wing, third floor, rack 2";
    auto longDialog = open(longName);
    const DialogParts longParts = partsOf(*longDialog);
    const QString line = QString::fromStdString("Device " + longName);
    EXPECT_EQ(longParts.deviceName->text(), line);
    EXPECT_EQ(longParts.deviceName->maximumWidth(), 180);
    EXPECT_GT(longParts.deviceName->fontMetrics().horizontalAdvance(line), 180);
    EXPECT_EQ(longParts.deviceName->toolTip(), line);

    // A name that fits has no tooltip.
    auto shortDialog = open("poe-switch");
    const DialogParts shortParts = partsOf(*shortDialog);
    EXPECT_EQ(shortParts.deviceName->text(), "Device poe-switch");
    EXPECT_TRUE(shortParts.deviceName->toolTip().isEmpty());
}

TEST_F(SwitchDeviceStatusWidgetTest, AnUnknownDeviceLeavesATitledEmptyDialog)
{
    LogCapture log;
    CSwitchDeviceStatusWidget dialog("no-such-device", protocol::SwitchCapabilities(), nullptr);
    const DialogParts parts = partsOf(dialog);

    bool logged = false;
    for (const auto& line : log.lines("ERROR"))
        logged = logged || line.message == "call deviceManagerDelegate.createDeviceCopy failed.";
    EXPECT_TRUE(logged);
    EXPECT_EQ(dialog.GetTitle(), "DeviceStatus");
    EXPECT_EQ(dialog.size(), QSize(920, 700));
    EXPECT_EQ(dialog.getDeviceGuid(), "no-such-device");
    EXPECT_EQ(parts.tree->model(), nullptr);
    EXPECT_EQ(parts.stack->count(), 0);
    EXPECT_TRUE(parts.deviceName->text().isEmpty());
    EXPECT_TRUE(parts.runTime->text().isEmpty());
    EXPECT_EQ(dialog.getDeviceStatusWidget(), nullptr);
    // The slots are not connected: a click goes nowhere.
    QStandardItemModel other;
    other.appendRow(new QStandardItem("DeviceStatus"));
    other.item(0)->setData(1, Qt::UserRole);
    emit parts.tree->SignalClicked(other.index(0, 0));
    EXPECT_EQ(parts.stack->count(), 0);
}

TEST_F(SwitchDeviceStatusWidgetTest, AClickOnTheSelectedRowReloadsWithoutTouchingTheStack)
{
    auto dialog = open("poe-switch");
    const DialogParts parts = partsOf(*dialog);
    if (rowKeys(parts).empty())
        GTEST_SKIP() << "no row of a switch has its page built yet";
    QWidget* shown = parts.stack->currentWidget();
    const int count = parts.stack->count();
    emulator().clearRequestLog();

    clickRow(parts, 0);
    EXPECT_EQ(parts.stack->currentWidget(), shown);
    EXPECT_EQ(parts.stack->count(), count);
    EXPECT_FALSE(requests("poe-switch").empty()) << "the page loaded again";
}

TEST_F(SwitchDeviceStatusWidgetTest, EachRowsPageIsStackedOnceAndComesBackTheSame)
{
    auto dialog = open("poe-switch");
    const DialogParts parts = partsOf(*dialog);
    const std::vector<int> keys = rowKeys(parts);
    if (keys.size() < 2)
        GTEST_SKIP() << "fewer than two switch rows have their page built";
    QWidget* first = parts.stack->currentWidget();
    for (int row = 1; row < static_cast<int>(keys.size()); ++row) {
        clickRow(parts, row);
        EXPECT_EQ(parts.stack->count(), row + 1);
        EXPECT_NE(parts.stack->currentWidget(), first);
    }
    clickRow(parts, 0);
    EXPECT_EQ(parts.stack->currentWidget(), first);
    EXPECT_EQ(parts.stack->count(), static_cast<int>(keys.size()));
}

TEST_F(SwitchDeviceStatusWidgetTest, AKeyWithoutAPageLeavesTheShownPage)
{
    auto dialog = open("poe-switch");
    const DialogParts parts = partsOf(*dialog);
    QWidget* shown = parts.stack->currentWidget();
    const int count = parts.stack->count();

    QStandardItemModel other;
    for (int key : {0, 13, 99}) {
        auto* item = new QStandardItem("none");
        item->setData(key, Qt::UserRole);
        other.appendRow(item);
    }
    for (int row = 0; row < other.rowCount(); ++row)
        emit parts.tree->SignalClicked(other.index(row, 0));
    emit parts.tree->SignalClicked(QModelIndex());
    EXPECT_EQ(parts.stack->currentWidget(), shown);
    EXPECT_EQ(parts.stack->count(), count);
}

TEST_F(SwitchDeviceStatusWidgetTest, AClassWithoutRowsGivesAnEmptyTreeAndNoPage)
{
    auto dialog = open("class-129");
    const DialogParts parts = partsOf(*dialog);
    ASSERT_NE(parts.tree->model(), nullptr);
    EXPECT_EQ(parts.tree->model()->rowCount(), 0);
    EXPECT_FALSE(parts.tree->currentIndex().isValid());
    EXPECT_EQ(parts.stack->count(), 0);
    EXPECT_EQ(parts.deviceName->text(), "Device class-129");
}

TEST_F(SwitchDeviceStatusWidgetTest, AFailedStatusQueryLeavesTheRunTimeAlone)
{
    ASSERT_TRUE(emulator().setFault(id("plain-switch"), "/NXRPC/System/status", EmulatorProcess::Fault::httpStatus(500)));
    auto dialog = open("plain-switch");
    EXPECT_TRUE(partsOf(*dialog).runTime->text().isEmpty());
    EXPECT_EQ(rowKeys(partsOf(*dialog)), offered({1, 4, 5}));
}

TEST_F(SwitchDeviceStatusWidgetTest, InitDeviceInfoGivesTheDialogItsDeviceAndReusesModelAndFactory)
{
    CSwitchDeviceStatusWidget dialog(nullptr);
    const DialogParts parts = partsOf(dialog);
    dialog.initDeviceInfo(id("poe-switch"), capabilitiesOf(id("poe-switch")));
    EXPECT_EQ(dialog.getDeviceGuid(), id("poe-switch"));
    EXPECT_EQ(parts.deviceName->text(), "Device poe-switch");
    EXPECT_FALSE(parts.runTime->text().isEmpty());
    EXPECT_EQ(rowKeys(parts), offered({1, 4, 5, 6}));
    QAbstractItemModel* model = parts.tree->model();
    ASSERT_NE(model, nullptr);
    QWidget* firstPage = parts.stack->currentWidget();

    dialog.initDeviceInfo(id("plain-switch"), capabilitiesOf(id("plain-switch")));
    EXPECT_EQ(dialog.getDeviceGuid(), id("plain-switch"));
    EXPECT_EQ(parts.deviceName->text(), "Device plain-switch");
    EXPECT_EQ(parts.tree->model(), model);
    EXPECT_EQ(rowKeys(parts), offered({1, 4, 5}));
    EXPECT_EQ(parts.stack->currentWidget(), firstPage) << "pages are kept by key";

    // A failed look-up replaces the identifier and leaves tree and pages as they were.
    LogCapture log;
    dialog.initDeviceInfo("no-such-device", protocol::SwitchCapabilities());
    EXPECT_EQ(dialog.getDeviceGuid(), "no-such-device");
    EXPECT_EQ(rowKeys(parts), offered({1, 4, 5}));
    EXPECT_EQ(parts.deviceName->text(), "Device plain-switch");
    EXPECT_EQ(parts.stack->currentWidget(), firstPage);
    ASSERT_FALSE(log.lines("ERROR").empty());
    EXPECT_EQ(log.lines("ERROR").back().message, "call deviceManagerDelegate.createDeviceCopy failed.");
}

TEST_F(SwitchDeviceStatusWidgetTest, ApViewShowsTheApAndTheBackButtonReturnsToRowThree)
{
    auto dialog = open("ac-groups");
    const DialogParts parts = partsOf(*dialog);
    EXPECT_EQ(rowKeys(parts), offered({1, 8, 9, 12}));
    const std::vector<Quillon::ApInfo> aps = managedAps("ac-groups");
    ASSERT_FALSE(aps.empty());
    const Quillon::ApInfo ap = aps.back();
    QPointer<QWidget> devicePage = parts.stack->currentWidget();
    const int pagesBefore = parts.stack->count();

    ASSERT_TRUE(emulator().freezeClock(3 * 86400 + 5 * 3600));
    const QString acRunTime = deviceRunTime("ac-groups");
    const std::vector<Quillon::ApInfo> frozenAps = managedAps("ac-groups");
    QString apRunTime;
    for (const Quillon::ApInfo& each : frozenAps) {
        if (each.ipAddress == ap.ipAddress)
            apRunTime = "RunTime " + velmora::formatRunTime(each.runTime);
    }
    emulator().clearRequestLog();

    openApView(*dialog, QString::fromStdString(ap.ipAddress), QString::fromStdString(ap.macAddress));
    EXPECT_FALSE(parts.backButton->isHidden());
    EXPECT_EQ(parts.deviceName->text(), "Device " + QString::fromStdString(ap.ipAddress));
    EXPECT_EQ(parts.runTime->text(), apRunTime);
    EXPECT_EQ(rowKeys(parts), offered({10, 11}));
    const std::vector<std::string> lines = requests("ac-groups");
    EXPECT_NE(std::find(lines.begin(), lines.end(), kApListRequest), lines.end());
    if (CDeviceStatusFactory::hasPageClass(10)) {
        EXPECT_NE(parts.stack->currentWidget(), devicePage.data());
    }

    parts.backButton->click();
    EXPECT_TRUE(parts.backButton->isHidden());
    EXPECT_EQ(parts.deviceName->text(), "Device ac-groups");
    EXPECT_EQ(parts.runTime->text(), acRunTime);
    EXPECT_EQ(rowKeys(parts), offered({1, 8, 9, 12}));
    // Row 3 by number: the managed AP list once every row is built.
    EXPECT_EQ(parts.tree->currentIndex(), parts.tree->model()->index(3, 0));

    // The device's pages were kept by key across the views.
    EXPECT_FALSE(devicePage.isNull());
    EXPECT_GE(parts.stack->count(), pagesBefore);
    if (devicePage) {
        EXPECT_GE(parts.stack->indexOf(devicePage), 0);
        clickRow(parts, 0);
        EXPECT_EQ(parts.stack->currentWidget(), devicePage.data());
    }
}

TEST_F(SwitchDeviceStatusWidgetTest, AControllerWithoutApGroupsGoesBackByRowNumberToo)
{
    auto dialog = open("ac-plain");
    const DialogParts parts = partsOf(*dialog);
    const std::vector<int> keys = rowKeys(parts);
    const std::vector<Quillon::ApInfo> aps = managedAps("ac-plain");
    ASSERT_FALSE(aps.empty());
    openApView(*dialog, QString::fromStdString(aps.front().ipAddress), QString::fromStdString(aps.front().macAddress));
    EXPECT_FALSE(parts.backButton->isHidden());

    parts.backButton->click();
    EXPECT_TRUE(parts.backButton->isHidden());
    EXPECT_EQ(rowKeys(parts), keys);
    // Row 3 by its number, whatever option the row holds on this controller.
    if (keys.size() > 3) {
        EXPECT_EQ(parts.tree->currentIndex(), parts.tree->model()->index(3, 0));
        EXPECT_EQ(parts.tree->currentIndex().data(Qt::UserRole).toInt(), keys[3]);
    } else {
        EXPECT_FALSE(parts.tree->currentIndex().isValid());
    }
}

TEST_F(SwitchDeviceStatusWidgetTest, ApViewOfAnUnlistedApLeavesTheRunTime)
{
    auto dialog = open("ac-plain");
    const DialogParts parts = partsOf(*dialog);
    const QString before = parts.runTime->text();
    openApView(*dialog, "192.0.2.250", "00:00:00:00:00:00");
    EXPECT_EQ(parts.runTime->text(), before);
    EXPECT_EQ(parts.deviceName->text(), "Device 192.0.2.250");
}

TEST_F(SwitchDeviceStatusWidgetTest, AFailedApListIsLoggedAndLeavesTheRunTime)
{
    auto dialog = open("ac-plain");
    const DialogParts parts = partsOf(*dialog);
    const QString before = parts.runTime->text();
    const std::vector<Quillon::ApInfo> aps = managedAps("ac-plain");
    ASSERT_FALSE(aps.empty());
    ASSERT_TRUE(emulator().setFault(id("ac-plain"), "/NXRPC/Transfers/AP/basicInfo", EmulatorProcess::Fault::httpStatus(500)));

    LogCapture log;
    openApView(*dialog, QString::fromStdString(aps.front().ipAddress), QString::fromStdString(aps.front().macAddress));
    bool logged = false;
    for (const auto& line : log.lines("ERROR"))
        logged = logged || line.message == "Failed to get Ap Info List.";
    EXPECT_TRUE(logged);
    EXPECT_EQ(parts.runTime->text(), before);
    EXPECT_FALSE(parts.backButton->isHidden());
}

#if VELMORA_HAS_PAGE_CApInfoListWidget
namespace {
// Selects the managed AP list row `selections` times, lets the list's background reads end,
// then has the list choose its first AP. Returns the AP list walks that the choice caused.
struct ApChoice {
    bool backShown = false;
    long walks = 0;
};
ApChoice chooseAp(CSwitchDeviceStatusWidget& dialog, const Quillon::ApInfo& ap, int selections,
                  const std::string& deviceId)
{
    ApChoice choice;
    const DialogParts parts = partsOf(dialog);
    const std::vector<int> keys = rowKeys(parts);
    const auto row = std::find(keys.begin(), keys.end(), 12) - keys.begin();
    EXPECT_LT(row, static_cast<long>(keys.size()));
    if (row >= static_cast<long>(keys.size()))
        return choice;
    for (int i = 0; i < selections; ++i)
        clickRow(parts, static_cast<int>(row));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    auto* list = dynamic_cast<velmora::CApInfoListWidget*>(parts.stack->currentWidget());
    EXPECT_NE(list, nullptr);
    if (!list)
        return choice;
    DialogTestFleet::instance().emulator().clearRequestLog();
    emit list->signalUpdateToApStatus(QString::fromStdString(ap.ipAddress), QString::fromStdString(ap.macAddress));
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    choice.backShown = !parts.backButton->isHidden();
    const std::vector<std::string> lines = DialogTestFleet::instance().requestLinesOf(deviceId);
    choice.walks = std::count(lines.begin(), lines.end(), kApListRequest);
    return choice;
}
} // namespace
#endif

TEST_F(SwitchDeviceStatusWidgetTest, TheApListSignalOpensTheApViewOnlyOnAControllerWithApGroups)
{
#if VELMORA_HAS_PAGE_CApInfoListWidget
    for (const char* name : {"ac-groups", "ac-plain"}) {
        const std::vector<Quillon::ApInfo> aps = managedAps(name);
        ASSERT_FALSE(aps.empty());
        auto dialog = open(name);
        const ApChoice choice = chooseAp(*dialog, aps.front(), 1, id(name));
        const bool apGroups = std::string(name) == "ac-groups";
        EXPECT_EQ(choice.backShown, apGroups) << name;
        if (apGroups) {
            EXPECT_GT(choice.walks, 0) << name;
        } else {
            EXPECT_EQ(choice.walks, 0) << name;
        }
    }
#else
    GTEST_SKIP() << "the managed AP list page is not built yet";
#endif
}

TEST_F(SwitchDeviceStatusWidgetTest, PiledApListConnectionsEndAtTheFirstChoice)
{
#if VELMORA_HAS_PAGE_CApInfoListWidget
    // Every selection of the list's row connects once more; the choice of an AP takes all
    // the connections away as it starts, so Qt calls the later ones no more.
    const std::vector<Quillon::ApInfo> aps = managedAps("ac-groups");
    ASSERT_FALSE(aps.empty());
    auto once = open("ac-groups");
    const ApChoice single = chooseAp(*once, aps.front(), 1, id("ac-groups"));
    auto twice = open("ac-groups");
    const ApChoice piled = chooseAp(*twice, aps.front(), 2, id("ac-groups"));
    EXPECT_TRUE(piled.backShown);
    EXPECT_EQ(piled.walks, single.walks);
#else
    GTEST_SKIP() << "the managed AP list page is not built yet";
#endif
}

TEST_F(SwitchDeviceStatusWidgetTest, DestroyingTheDialogDeletesItsPages)
{
    auto dialog = open("poe-switch");
    const DialogParts parts = partsOf(*dialog);
    QList<QPointer<QWidget>> pages;
    for (int row = 0; row < static_cast<int>(rowKeys(parts).size()); ++row) {
        clickRow(parts, row);
        pages.append(parts.stack->currentWidget());
    }
    dialog.reset();
    for (const auto& page : pages)
        EXPECT_TRUE(page.isNull());
}
