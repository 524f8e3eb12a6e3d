// The option factory: the rows of each device class (with the PoE question to switches and
// enterprise routers, against the emulator), the AP view's rows, and the pages it makes and
// keeps by key.
#include <gtest/gtest.h>

#include <QPointer>
#include <QWidget>

#include "DeviceStatusFactory.h"
#include "DeviceStatusItemModel.h"
#include "DeviceStatusOptionBase.h"
#include "DeviceStatusPages.h"
#include "DialogTestFleet.h"
#include "support/LogCapture.h"
#include "ostrand/DeviceManagerDelegate.h"

using velmora::CDeviceStatusFactory;
using velmora::CDeviceStatusItemModel;
using velmora::CDeviceStatusOptionBase;
using velmora::test::DialogTestFleet;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;

namespace {

const char kPoeCapabilityRequest[] =
    "GET /NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities?format=json";

// Title keys of the rows, by option key.
const std::map<int, QString> kTitles = {
    {1, "DeviceStatus"},
    {2, "PanelState"},
    {3, "BasicWirelessConfiguration"},
    {4, "PortStatus"},
    {5, "ThePortStatistical"},
    {6, "POEPortState"},
    {7, "BasicWirelessStateYrmZymEu"},
    {8, "ConnectedToTheStateMffDqXn"},
    {9, "StateOfTheWireless"},
    {10, "DeviceStatus"},
    {11, "ClientListxBJDUZFw"},
    {12, "ManagingAPListsAizrsShK"},
};

std::map<int, QString> titled(const std::vector<int>& keys)
{
    std::map<int, QString> items;
    for (int key : keys)
        items[key] = kTitles.at(key);
    return items;
}

std::shared_ptr<tarvex7300::IAbstractDevice> fleetDevice(const std::string& name)
{
    const std::string id = DialogTestFleet::instance().id(name);
    EXPECT_FALSE(id.empty()) << "no fleet device " << name;
    return ostrand::CDeviceManagerDelegate().createDeviceCopy(id);
}

std::map<int, QString> modelRows(const CDeviceStatusItemModel& model)
{
    std::map<int, QString> rows;
    int lastKey = 0;
    for (int row = 0; row < model.rowCount(); ++row) {
        const QModelIndex index = model.index(row, 0);
        const int key = index.data(Qt::UserRole).toInt();
        EXPECT_GT(key, lastKey) << "rows stand in key order";
        lastKey = key;
        rows[key] = index.data().toString();
    }
    return rows;
}

class DeviceStatusFactoryTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        VELMORA_REQUIRE_FLEET();
        DialogTestFleet::instance().emulator().clearFaults();
        DialogTestFleet::instance().emulator().clearRequestLog();
    }

    // The rows `name` calls for with `capability`, and the rows it puts in a model.
    struct Rows {
        bool hasList = false;
        std::map<int, QString> called;
        std::map<int, QString> offered;
    };
    Rows rowsOf(const std::string& name, const protocol::SwitchCapabilities& capability = {})
    {
        Rows rows;
        auto device = fleetDevice(name);
        if (!device)
            return rows;
        CDeviceStatusFactory factory(device, capability);
        rows.hasList = factory.deviceOptionItems(rows.called);
        CDeviceStatusItemModel model;
        factory.setDeviceItem(&model);
        rows.offered = modelRows(model);
        return rows;
    }

    int poeQueries(const std::string& name)
    {
        int count = 0;
        for (const std::string& line : DialogTestFleet::instance().requestLinesOf(DialogTestFleet::instance().id(name)))
            count += line == kPoeCapabilityRequest ? 1 : 0;
        return count;
    }
};

} // namespace

TEST_F(DeviceStatusFactoryTest, SwitchWithPoeHasRowsOneFourFiveSix)
{
    const Rows rows = rowsOf("poe-switch");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 4, 5, 6}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
    // One PoE question for the row list, one more for the model's rows.
    EXPECT_EQ(poeQueries("poe-switch"), 2);
}

TEST_F(DeviceStatusFactoryTest, SwitchWithoutPoeHasRowsOneFourFive)
{
    const Rows rows = rowsOf("plain-switch");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 4, 5}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
}

TEST_F(DeviceStatusFactoryTest, SwitchWhosePoeQueryFailsKeepsRowsOneFourFiveAndWarns)
{
    const std::string id = DialogTestFleet::instance().id("poe-switch");
    ASSERT_TRUE(DialogTestFleet::instance().emulator().setFault(
        id, "/NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities", EmulatorProcess::Fault::httpStatus(503)));
    LogCapture log;
    const Rows rows = rowsOf("poe-switch");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 4, 5}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(titled({1, 4, 5})));

    int warnings = 0;
    for (const auto& line : log.lines("WARN"))
        warnings += line.message == "Failed to getPortPoeInfoListCap" ? 1 : 0;
    EXPECT_EQ(warnings, 2);
}

TEST_F(DeviceStatusFactoryTest, EnterpriseRouterTakesTheSwitchRoad)
{
    EXPECT_EQ(rowsOf("poe-router").called, titled({1, 4, 5, 6}));
    EXPECT_EQ(rowsOf("plain-router").called, titled({1, 4, 5}));
    EXPECT_GT(poeQueries("poe-router"), 0);
}

TEST_F(DeviceStatusFactoryTest, BridgeHasRowsOneThreeFourFiveWithoutAskingForPoe)
{
    const Rows rows = rowsOf("bridge");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 3, 4, 5}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
    EXPECT_EQ(poeQueries("bridge"), 0);
}

TEST_F(DeviceStatusFactoryTest, FiberConverterRowsFollowCrateSlotsAndStatistics)
{
    protocol::SwitchCapabilities capability;
    EXPECT_EQ(rowsOf("fiber", capability).called, titled({1, 4}));
    capability.supportCrateSlotStatus = true;
    EXPECT_EQ(rowsOf("fiber", capability).called, titled({1, 2, 4}));
    capability.supportPortStatistic = true;
    EXPECT_EQ(rowsOf("fiber", capability).called, titled({1, 2, 4, 5}));
    capability.supportCrateSlotStatus = false;
    const Rows rows = rowsOf("fiber", capability);
    EXPECT_EQ(rows.called, titled({1, 4, 5}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
    EXPECT_EQ(poeQueries("fiber"), 0);
}

TEST_F(DeviceStatusFactoryTest, ControllerRowsFollowApGroups)
{
    protocol::SwitchCapabilities capability;
    EXPECT_EQ(rowsOf("ac-plain", capability).called, titled({1, 8, 12}));
    capability.isSupportAPGroup = true;
    const Rows rows = rowsOf("ac-groups", capability);
    EXPECT_EQ(rows.called, titled({1, 8, 9, 12}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
}

TEST_F(DeviceStatusFactoryTest, ApHasRowsOneSevenEleven)
{
    const Rows rows = rowsOf("ap");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 7, 11}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
}

TEST_F(DeviceStatusFactoryTest, WirelessRouterHasRowsOneEight)
{
    const Rows rows = rowsOf("wireless-router");
    EXPECT_TRUE(rows.hasList);
    EXPECT_EQ(rows.called, titled({1, 8}));
    EXPECT_EQ(rows.offered, CDeviceStatusFactory::offeredItems(rows.called));
}

TEST_F(DeviceStatusFactoryTest, ClassesWithoutARowListLeaveTheModelAlone)
{
    for (const char* name : {"class-0", "class-119", "class-123", "class-127", "class-128", "class-129", "class-131"}) {
        auto device = fleetDevice(name);
        ASSERT_TRUE(device) << name;
        CDeviceStatusFactory factory(device, protocol::SwitchCapabilities());
        std::map<int, QString> items;
        EXPECT_FALSE(factory.deviceOptionItems(items)) << name;
        EXPECT_TRUE(items.empty()) << name;

        CDeviceStatusItemModel model;
        model.setOptionItems({{7, "kept"}, {9, "also kept"}});
        factory.setDeviceItem(&model);
        const std::map<int, QString> kept = {{7, "kept"}, {9, "also kept"}};
        EXPECT_EQ(modelRows(model), kept) << name;
        EXPECT_EQ(poeQueries(name), 0) << name;
    }
}

TEST_F(DeviceStatusFactoryTest, ApViewRowsAreTenAndElevenWhateverTheClass)
{
    EXPECT_EQ(CDeviceStatusFactory::apOptionItems(), titled({10, 11}));
    for (const char* name : {"ac-groups", "poe-switch", "class-129"}) {
        CDeviceStatusFactory factory(fleetDevice(name), protocol::SwitchCapabilities());
        CDeviceStatusItemModel model;
        model.setOptionItems({{1, "DeviceStatus"}});
        factory.setApDeviceItem(&model);
        EXPECT_EQ(modelRows(model), CDeviceStatusFactory::offeredItems(titled({10, 11}))) << name;
    }
}

TEST_F(DeviceStatusFactoryTest, OffersOnlyRowsWhosePageIsBuiltKeepingKeyOrder)
{
    const std::map<int, bool> built = {
        {1, VELMORA_HAS_PAGE_CDeviceStatusWidget},      {2, VELMORA_HAS_PAGE_CFiberPanelStatusWidget},
        {3, VELMORA_HAS_PAGE_CBasicWirelessInfoWidget}, {4, VELMORA_HAS_PAGE_CPortStatusWidget},
        {5, VELMORA_HAS_PAGE_CPortStatisticWidget},     {6, VELMORA_HAS_PAGE_CPOEPortStatusWidget},
        {7, VELMORA_HAS_PAGE_CWirelessStatusWidget},    {8, VELMORA_HAS_PAGE_CPPPoEStatusWidget},
        {9, VELMORA_HAS_PAGE_CAcWirelessStatusWidget},  {10, VELMORA_HAS_PAGE_CApDeviceStatusWidget},
        {11, VELMORA_HAS_PAGE_CClientListInfoWidget},   {12, VELMORA_HAS_PAGE_CApInfoListWidget},
    };
    std::map<int, QString> expected;
    for (const auto& [key, isBuilt] : built) {
        EXPECT_EQ(CDeviceStatusFactory::hasPageClass(key), isBuilt) << "key " << key;
        if (isBuilt)
            expected[key] = kTitles.at(key);
    }
    EXPECT_FALSE(CDeviceStatusFactory::hasPageClass(0));
    EXPECT_FALSE(CDeviceStatusFactory::hasPageClass(13));
    EXPECT_EQ(CDeviceStatusFactory::offeredItems(kTitles), expected);
}

TEST_F(DeviceStatusFactoryTest, KeysOutsideOneToTwelveGiveNoPageAndStoreNothing)
{
    QWidget parent;
    CDeviceStatusFactory factory(fleetDevice("poe-switch"), protocol::SwitchCapabilities());
    for (int key : {0, 13, -1, 256}) {
        EXPECT_EQ(factory.getOptionPage(key, &parent), nullptr) << key;
        EXPECT_EQ(factory.findOptionPage(key), nullptr) << key;
    }
    for (int key = 1; key <= 12; ++key)
        EXPECT_EQ(factory.findOptionPage(key), nullptr) << key;
    EXPECT_TRUE(parent.findChildren<CDeviceStatusOptionBase*>().isEmpty());
}

TEST_F(DeviceStatusFactoryTest, MakesEachBuiltPageOnceWithTheGivenParentAndKeepsIt)
{
    QWidget parent;
    CDeviceStatusFactory factory(fleetDevice("poe-switch"), protocol::SwitchCapabilities());
    int made = 0;
    for (int key = 1; key <= 12; ++key) {
        CDeviceStatusOptionBase* page = factory.getOptionPage(key, &parent);
        if (!CDeviceStatusFactory::hasPageClass(key)) {
            EXPECT_EQ(page, nullptr) << key;
            EXPECT_EQ(factory.findOptionPage(key), nullptr) << key;
            continue;
        }
        ASSERT_NE(page, nullptr) << key;
        ++made;
        EXPECT_EQ(page->parentWidget(), &parent);
        EXPECT_EQ(factory.findOptionPage(key), page);
        EXPECT_EQ(factory.getOptionPage(key, nullptr), page) << "a page is made once";
    }
    EXPECT_EQ(parent.findChildren<CDeviceStatusOptionBase*>(QString(), Qt::FindDirectChildrenOnly).size(), made);
}

TEST_F(DeviceStatusFactoryTest, EveryLookUpHandsThePageTheFactorysDevice)
{
    int key = 0;
    for (int candidate = 1; candidate <= 12 && !key; ++candidate)
        key = CDeviceStatusFactory::hasPageClass(candidate) ? candidate : 0;
    if (!key)
        GTEST_SKIP() << "no page class is built yet";

    QWidget parent;
    auto first = fleetDevice("poe-switch");
    auto second = fleetDevice("plain-switch");
    CDeviceStatusFactory factory(first, protocol::SwitchCapabilities());
    const long factoryOnly = first.use_count();
    CDeviceStatusOptionBase* page = factory.getOptionPage(key, &parent);
    ASSERT_NE(page, nullptr);
    EXPECT_EQ(first.use_count(), factoryOnly + 1) << "the page holds the device";

    // The factory's new device reaches the page at its next look-up, not before.
    factory.updateDeviceInfo(second, protocol::SwitchCapabilities());
    EXPECT_EQ(first.use_count(), factoryOnly);
    EXPECT_EQ(factory.findOptionPage(key), page);
    EXPECT_EQ(first.use_count(), factoryOnly) << "findOptionPage updates nothing";
    const long secondBefore = second.use_count();
    EXPECT_EQ(factory.getOptionPage(key, &parent), page);
    EXPECT_EQ(first.use_count(), factoryOnly - 1) << "the second look-up drops the first reference";
    EXPECT_EQ(second.use_count(), secondBefore + 1);
}

TEST_F(DeviceStatusFactoryTest, DeletesEveryPageItMadeWhenItDies)
{
    QWidget parent;
    QList<QPointer<CDeviceStatusOptionBase>> pages;
    {
        CDeviceStatusFactory factory(fleetDevice("poe-switch"), protocol::SwitchCapabilities());
        for (int key = 1; key <= 12; ++key) {
            if (CDeviceStatusOptionBase* page = factory.getOptionPage(key, &parent))
                pages.append(page);
        }
    }
    for (const auto& page : pages)
        EXPECT_TRUE(page.isNull());
    EXPECT_TRUE(parent.findChildren<CDeviceStatusOptionBase*>().isEmpty());
}

TEST_F(DeviceStatusFactoryTest, PagesWithoutTheirOwnHostEntryDoNotLoadThroughIt)
{
    // The port status, port statistics and PoE pages keep the base's showStatusPublic.
    QWidget parent;
    CDeviceStatusFactory factory(fleetDevice("poe-switch"), protocol::SwitchCapabilities());
    int tried = 0;
    for (int key : {4, 5, 6}) {
        CDeviceStatusOptionBase* page = factory.getOptionPage(key, &parent);
        if (!page)
            continue;
        ++tried;
        DialogTestFleet::instance().emulator().clearRequestLog();
        page->showStatusPublic();
        EXPECT_TRUE(DialogTestFleet::instance().requestLinesOf(DialogTestFleet::instance().id("poe-switch")).empty())
            << "key " << key;
    }
    if (!tried)
        GTEST_SKIP() << "none of the port pages is built yet";
}
