// The dialog offers the bridge's wireless card (row 3), the WAN ports (row 8) and the fiber
// chassis crate (row 2), and makes the right page behind each of them.
#include <QWidget>
#include <gtest/gtest.h>

#include <map>
#include <vector>

#include "BasicWirelessInfoWidget.h"
#include "BridgeWanFiberTestFleet.h"
#include "DeviceStatusFactory.h"
#include "DeviceStatusItemModel.h"
#include "FiberPanelStatusWidget.h"
#include "PPPoEStatusWidget.h"

using velmora::CBasicWirelessInfoWidget;
using velmora::CDeviceStatusFactory;
using velmora::CDeviceStatusItemModel;
using velmora::CFiberPanelStatusWidget;
using velmora::CPPPoEStatusWidget;
using velmora::test::BridgeWanFiberPageTest;

namespace {

std::vector<int> rowKeys(const CDeviceStatusItemModel& model)
{
    std::vector<int> keys;
    for (int row = 0; row < model.rowCount(); ++row)
        keys.push_back(model.index(row, 0).data(Qt::UserRole).toInt());
    return keys;
}

class BridgeWanFiberPagesInDialogTest : public BridgeWanFiberPageTest {
protected:
    std::vector<int> rowsOf(const char* name)
    {
        CDeviceStatusFactory factory(fleet().device(name), fleet().capabilities(name));
        CDeviceStatusItemModel model;
        factory.setDeviceItem(&model);
        return rowKeys(model);
    }
};

} // namespace

TEST(BridgeWanFiberPagesInDialog, TheBuildHoldsThePagesOfRowsTwoThreeAndEight)
{
    EXPECT_TRUE(CDeviceStatusFactory::hasPageClass(velmora::OptionPanelState));
    EXPECT_TRUE(CDeviceStatusFactory::hasPageClass(velmora::OptionBasicWireless));
    EXPECT_TRUE(CDeviceStatusFactory::hasPageClass(velmora::OptionPPPoEStatus));
}

TEST_F(BridgeWanFiberPagesInDialogTest, EachDeviceClassGetsItsRows)
{
    EXPECT_EQ(rowsOf("bridge-d"), (std::vector<int>{1, 3, 4, 5}));
    EXPECT_EQ(rowsOf("router"), (std::vector<int>{1, 8}));
    EXPECT_EQ(rowsOf("controller"), (std::vector<int>{1, 8, 9, 12}));
    ASSERT_TRUE(fleet().capabilities("crate").supportCrateSlotStatus);
    EXPECT_EQ(rowsOf("crate"), (std::vector<int>{1, 2, 4, 5}));
}

TEST_F(BridgeWanFiberPagesInDialogTest, TheFactoryMakesThePageBehindEachRow)
{
    QWidget dialog;
    CDeviceStatusFactory factory(fleet().device("crate"), fleet().capabilities("crate"));
    EXPECT_NE(dynamic_cast<CFiberPanelStatusWidget*>(factory.getOptionPage(velmora::OptionPanelState, &dialog)), nullptr);
    EXPECT_NE(dynamic_cast<CBasicWirelessInfoWidget*>(factory.getOptionPage(velmora::OptionBasicWireless, &dialog)),
              nullptr);
    EXPECT_NE(dynamic_cast<CPPPoEStatusWidget*>(factory.getOptionPage(velmora::OptionPPPoEStatus, &dialog)), nullptr);
    // Made once, kept by key.
    EXPECT_EQ(factory.getOptionPage(velmora::OptionPanelState, &dialog), factory.findOptionPage(velmora::OptionPanelState));
}
