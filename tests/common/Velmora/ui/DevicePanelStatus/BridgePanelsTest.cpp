// The wireless bridge panels.
#include <gtest/gtest.h>
#include <functional>
#include <memory>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/BridgePanels.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::state;
using A = PanelTestAccess;

class BridgePanelsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

std::unique_ptr<CLayoutPanel> make(const std::string& name)
{
    return std::unique_ptr<CLayoutPanel>(static_cast<CLayoutPanel*>(createPanel(name, kAnyMode, nullptr)));
}

TEST_F(BridgePanelsTest, PortsStandWhereTheProductSheetsSay)
{
    auto w = [](CLayoutPanel* p) { return A::pixmaps(p).at(2)->width(); };
    struct Expected {
        const char* name;
        const char* frame;
        std::vector<std::function<QPoint(int)>> ports;
    };
    const std::vector<Expected> rows = {
        {"CSinglePortElevatorBridgePanelStatus", "bridge_frame.png", {[](int) { return QPoint(151, 50); }}},
        {"CThreePortElevatorBridgePanelStatus", "3_port_bridge_frame.png",
         {[](int) { return QPoint(151, 49); }, [](int W) { return QPoint(163 + W, 49); },
          [](int W) { return QPoint(166 + 2 * W, 49); }}},
        {"CSiteBridgePanelStatus", "site_bridge_frame.png",
         {[](int) { return QPoint(93, 52); }, [](int W) { return QPoint(96 + W, 52); }}},
        {"CPairedBridgePanelStatus", "paird_bridge_frame.png",
         {[](int) { return QPoint(93, 52); }, [](int W) { return QPoint(96 + W, 52); }}},
        {"C5KMGigabitBridgeChassisStatus", "bridge_5km_gigabit.png",
         {[](int) { return QPoint(93, 52); }, [](int W) { return QPoint(96 + W, 52); }}},
        {"CACElevatorBridgePanelStatus", "elevator_bridge_ac_frame.png",
         {[](int) { return QPoint(93, 52); }, [](int W) { return QPoint(96 + W, 52); },
          [](int W) { return QPoint(99 + 2 * W, 52); }}},
        {"C2D4G100MElevatorBridgePannel", "2d4g_100m_elevator_bridge_frame.png", {[](int) { return QPoint(116, 30); }}},
        {"C2D4G200MElevatorBridgePannel", "2d4g_200m_elevator_bridge_frame.png", {[](int) { return QPoint(60, 36); }}},
        {"C2D4G500MElevatorBridgePannel", "2d4g_500m_elevator_bridge_frame.png",
         {[](int) { return QPoint(188, 48); }, [](int W) { return QPoint(191 + W, 48); },
          [](int) { return QPoint(359, 48); }}},
        {"C2D4G1KMOutDoorBridgePannel", "2d4g_1km_outdoor_bridge_frame.png",
         {[](int) { return QPoint(131, 46); }, [](int W) { return QPoint(134 + W, 46); }}},
        {"C5D8G1KMOutDoorBridgePannel", "5d8g_1km_outdoor_bridge_frame.png",
         {[](int) { return QPoint(61, 45); }, [](int) { return QPoint(178, 45); }}},
        {"C5D8G3KMOutDoorBridgePannel", "5d8g_3km_outdoor_bridge_frame.png",
         {[](int) { return QPoint(94, 21); }, [](int) { return QPoint(155, 21); }}},
        {"CLowEnd1KMOutDoorBridgePannel", "low-end_1km_outdoor_bridge_frame.png", {[](int) { return QPoint(180, 34); }}},
        {"CMutliPortBridgePanelStatus", "multi_port_bridge_frame.png",
         {[](int) { return QPoint(136, 25); }, [](int W) { return QPoint(150 + W, 25); },
          [](int W) { return QPoint(164 + 2 * W, 25); }, [](int W) { return QPoint(178 + 3 * W, 25); }}},
    };
    ASSERT_EQ(rows.size(), bridgeLayouts().size());
    for (const Expected& e : rows) {
        auto panel = make(e.name);
        ASSERT_TRUE(panel) << e.name;
        EXPECT_EQ(panel->layout().framePath(kAnyMode), std::string("BridgeDevice/") + e.frame);
        const auto& at = A::positions(panel.get());
        ASSERT_EQ(at.size(), e.ports.size()) << e.name;
        const QRect frame = A::pixmaps(panel.get()).at(0)->rect();
        for (size_t i = 0; i < e.ports.size(); ++i) {
            const unsigned port = static_cast<unsigned>(i + 1);
            EXPECT_EQ(at.at(port), e.ports[i](w(panel.get()))) << e.name << " port " << port;
            EXPECT_TRUE(frame.contains(QRect(at.at(port), A::pixmaps(panel.get()).at(2)->size()))) << e.name;
        }
        EXPECT_TRUE(A::ui(panel.get())->optionalIconLabel->isHidden());
        EXPECT_TRUE(A::ui(panel.get())->fiberOptionalIconLabel->isHidden());
        EXPECT_FALSE(A::ui(panel.get())->label->isHidden());
    }
}

TEST_F(BridgePanelsTest, UprightJacksOfTwoModelsAndTheScaledOnes)
{
    auto low = make("CLowEnd1KMOutDoorBridgePannel");
    EXPECT_STREQ(low->layout().images->image(1)->path, "BridgeDevice/bridge_port_disconnected_up.png");
    EXPECT_STREQ(low->layout().images->image(2)->path, "BridgeDevice/bridge_port_normal_up.png");
    EXPECT_STREQ(low->layout().images->image(3)->path, "BridgeDevice/bridge_port_alarm_up.png");
    auto multi = make("CMutliPortBridgePanelStatus");
    for (unsigned id = 1; id <= 3; ++id)
        EXPECT_EQ(A::pixmaps(multi.get()).at(id)->size(), QSize(63, 52));
    auto site = make("CSiteBridgePanelStatus");
    EXPECT_STREQ(site->layout().images->image(1)->path, "BridgeDevice/bridge_port_disconnected.png");
    EXPECT_STREQ(site->layout().images->image(2)->path, "BridgeDevice/bridge_port_normal.png");
    EXPECT_STREQ(site->layout().images->image(3)->path, "BridgeDevice/bridge_port_alarm.png");
}

TEST_F(BridgePanelsTest, ElectricalStatesAndAlarms)
{
    for (const PanelLayout& row : bridgeLayouts()) {
        auto panel = make(row.className);
        auto& images = A::pixmaps(panel.get());
        A::applyWorkState(panel.get(), state({item(1, "electrical", "connected"), item(2, "electrical", "disconnected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[1], images[2]) << row.className;
        EXPECT_EQ(A::portPixmaps(panel.get())[2], images[1]) << row.className;
        panel->setPortAlarm(1, true);
        EXPECT_EQ(A::portPixmaps(panel.get())[1], images[3]);
        A::applyWorkState(panel.get(), state({item(1, "electrical", "disconnected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[1], images[3]);
        // Cleared: image 2 even on a port that has gone down.
        panel->setPortAlarm(1, false);
        EXPECT_EQ(A::portPixmaps(panel.get())[1], images[2]);
        // The port need not exist.
        panel->setPortAlarm(30, true);
        EXPECT_EQ(A::portPixmaps(panel.get())[30], images[3]);
        // Nor stay below 2^31.
        for (unsigned port : {0x80000000u, 0xffffffffu}) {
            panel->setPortAlarm(port, true);
            EXPECT_EQ(A::portPixmaps(panel.get())[port], images[3]) << row.className << " " << port;
            panel->setPortAlarm(port, false);
            EXPECT_EQ(A::portPixmaps(panel.get())[port], images[2]) << row.className << " " << port;
        }
    }
}

TEST_F(BridgePanelsTest, OpticalOrMultiplexPortKeepsItsImage)
{
    auto panel = make("CSiteBridgePanelStatus");
    A::applyWorkState(panel.get(), state({item(1, "optical", "connected"), item(2, "multiplex", "connected")}));
    EXPECT_FALSE(A::portPixmaps(panel.get()).count(1));
    EXPECT_FALSE(A::portPixmaps(panel.get()).count(2));
    A::applyWorkState(panel.get(), state({item(1, "electrical", "disconnected")}));
    A::applyWorkState(panel.get(), state({item(1, "optical", "connected")}));
    EXPECT_EQ(A::portPixmaps(panel.get())[1], A::pixmaps(panel.get())[1]);
}

TEST_F(BridgePanelsTest, PortBeyondTheTableIsStoredAndNotDrawn)
{
    auto panel = make("CSinglePortElevatorBridgePanelStatus");
    A::applyWorkState(panel.get(), state({item(3, "electrical", "connected")}));
    EXPECT_EQ(A::portPixmaps(panel.get())[3], A::pixmaps(panel.get())[2]);
    EXPECT_FALSE(A::positions(panel.get()).count(3));
}

TEST_F(BridgePanelsTest, OnlyTheLowEndModelLogsAFailedQuery)
{
    for (const PanelLayout& row : bridgeLayouts())
        EXPECT_EQ(row.logQueryFailure, std::string(row.className) == "CLowEnd1KMOutDoorBridgePannel") << row.className;
    auto panel = make("CLowEnd1KMOutDoorBridgePannel");
    A::applyWorkState(panel.get(), state({item(1, "electrical", "connected")}));
    const auto before = A::portPixmaps(panel.get());
    panel->showPanelStatus(); // no device: the query fails, the images stay
    EXPECT_EQ(A::portPixmaps(panel.get()), before);
}

} // namespace
} // namespace velmora
