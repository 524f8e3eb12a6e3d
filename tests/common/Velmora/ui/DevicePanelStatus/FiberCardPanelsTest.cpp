// The fiber card panels: network management card, receiving card, sending unit.
#include <gtest/gtest.h>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/FiberCardPanels.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::state;
using A = PanelTestAccess;

class FiberCardPanelsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

TEST_F(FiberCardPanelsTest, FixedPositionsAndImages)
{
    CFiberNetMgCardPanelStatus netMg(nullptr);
    EXPECT_EQ(A::positions(&netMg).at(1), QPoint(79, 4));
    EXPECT_EQ(A::positions(&netMg).at(2), QPoint(160, 4));
    EXPECT_EQ(netMg.layout().framePath(kAnyMode), "FiberDevice/fiber_networkmanagementcard_frame.png");
    EXPECT_EQ(A::pixmaps(&netMg).size(), 4u);

    CFiberReceiveCardPanelStatus receive(nullptr);
    EXPECT_EQ(A::positions(&receive).at(1), QPoint(73, 4));
    EXPECT_EQ(A::positions(&receive).at(2), QPoint(149, 17));
    EXPECT_EQ(receive.layout().framePath(kAnyMode), "FiberDevice/fiber_receivecard_frame.png");
    EXPECT_STREQ(receive.layout().images->image(4)->path, "FiberDevice/small_optical_disconnected.png");
    EXPECT_STREQ(receive.layout().images->image(5)->path, "FiberDevice/small_optical_normal.png");
    EXPECT_STREQ(receive.layout().images->image(6)->path, "FiberDevice/small_optical_alarm.png");
    EXPECT_STREQ(receive.layout().images->image(1)->path, "FiberDevice/big_electrical_disconnected.png");

    CFiberSendMachinePanelStatus send(nullptr);
    EXPECT_EQ(A::positions(&send).at(1), QPoint(475, 34));
    EXPECT_EQ(A::positions(&send).at(2), QPoint(87, 36));
    EXPECT_EQ(send.layout().framePath(kAnyMode), "FiberDevice/fiber_sendmachine_frame.png");
    EXPECT_STREQ(send.layout().images->image(1)->path, "SwitchDevice/big_port_electrical_disconnected.png");
    EXPECT_STREQ(send.layout().images->image(2)->path, "SwitchDevice/big_port_electrical_normal.png");
    EXPECT_STREQ(send.layout().images->image(3)->path, "SwitchDevice/big_port_electrical_alarm.png");
    EXPECT_STREQ(send.layout().images->image(4)->path, "FiberDevice/big_optical_disconnected.png");

    for (CLayoutPanel* panel : std::initializer_list<CLayoutPanel*>{&netMg, &receive, &send}) {
        const QRect frame = A::pixmaps(panel).at(0)->rect();
        EXPECT_TRUE(frame.contains(QRect(A::positions(panel).at(1), A::pixmaps(panel).at(2)->size())));
        const unsigned second = panel == &netMg ? 2u : 5u;
        EXPECT_TRUE(frame.contains(QRect(A::positions(panel).at(2), A::pixmaps(panel).at(second)->size())));
    }
}

TEST_F(FiberCardPanelsTest, LegendsShowTheFiberEntryOnTheCardsWithAnOpticalPort)
{
    CFiberNetMgCardPanelStatus netMg(nullptr);
    EXPECT_TRUE(A::ui(&netMg)->optionalIconLabel->isHidden());
    EXPECT_TRUE(A::ui(&netMg)->fiberOptionalIconLabel->isHidden());
    CFiberReceiveCardPanelStatus receive(nullptr);
    EXPECT_TRUE(A::ui(&receive)->optionalIconLabel->isHidden());
    EXPECT_FALSE(A::ui(&receive)->fiberOptionalIconLabel->isHidden());
    CFiberSendMachinePanelStatus send(nullptr);
    EXPECT_TRUE(A::ui(&send)->optionalTextLabel->isHidden());
    EXPECT_FALSE(A::ui(&send)->fiberOptionalTextLabel->isHidden());
}

TEST_F(FiberCardPanelsTest, StatesByReportedType)
{
    CFiberReceiveCardPanelStatus receive(nullptr);
    auto& images = A::pixmaps(&receive);
    A::applyWorkState(&receive, state({item(1, "electrical", "connected"), item(2, "optical", "disconnected")}));
    EXPECT_EQ(A::portPixmaps(&receive)[1], images[2]);
    EXPECT_EQ(A::portPixmaps(&receive)[2], images[4]);
    A::applyWorkState(&receive, state({item(2, "optical", "connected")}));
    EXPECT_EQ(A::portPixmaps(&receive)[2], images[5]);

    CFiberNetMgCardPanelStatus netMg(nullptr);
    A::applyWorkState(&netMg, state({item(2, "optical", "connected"), item(1, "electrical", "disconnected")}));
    EXPECT_FALSE(A::portPixmaps(&netMg).count(2));
    EXPECT_EQ(A::portPixmaps(&netMg)[1], A::pixmaps(&netMg)[1]);
}

TEST_F(FiberCardPanelsTest, AlarmOnAPortTheReceivingCardDoesNotHaveOnlyJoinsTheAlarmSet)
{
    CFiberReceiveCardPanelStatus receive(nullptr);
    receive.setPortAlarm(3, true);
    EXPECT_FALSE(A::portPixmaps(&receive).count(3));
    EXPECT_TRUE(A::alarms(&receive).count(3));
    receive.setPortAlarm(0, true);
    EXPECT_FALSE(A::portPixmaps(&receive).count(0));
}

TEST_F(FiberCardPanelsTest, SendingUnitTakesPort2AsOpticalForItsAlarm)
{
    CFiberSendMachinePanelStatus send(nullptr);
    auto& images = A::pixmaps(&send);
    A::applyWorkState(&send, state({item(2, "electrical", "connected")}));
    EXPECT_EQ(A::portPixmaps(&send)[2], images[2]);
    send.setPortAlarm(2, true);
    EXPECT_EQ(A::portPixmaps(&send)[2], images[6]);
    send.setPortAlarm(2, false);
    EXPECT_EQ(A::portPixmaps(&send)[2], images[5]);
    send.setPortAlarm(1, true);
    EXPECT_EQ(A::portPixmaps(&send)[1], images[3]);
}

TEST_F(FiberCardPanelsTest, ManagementCardAlarmsEveryPortAsElectrical)
{
    CFiberNetMgCardPanelStatus netMg(nullptr);
    auto& images = A::pixmaps(&netMg);
    netMg.setPortAlarm(2, true);
    EXPECT_EQ(A::portPixmaps(&netMg)[2], images[3]);
    netMg.setPortAlarm(7, true);
    EXPECT_EQ(A::portPixmaps(&netMg)[7], images[3]);
    netMg.setPortAlarm(2, false);
    EXPECT_EQ(A::portPixmaps(&netMg)[2], images[2]);
    netMg.setPortAlarm(0x80000000u, true);
    EXPECT_EQ(A::portPixmaps(&netMg)[0x80000000u], images[3]);
    netMg.setPortAlarm(0xffffffffu, true);
    EXPECT_EQ(A::portPixmaps(&netMg)[0xffffffffu], images[3]);
}

} // namespace
} // namespace velmora
