// The AP, wireless router and gateway router panels.
#include <functional>
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/ApRouterPanels.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::state;
using A = PanelTestAccess;

class ApRouterPanelsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

std::unique_ptr<CLayoutPanel> make(const std::string& name)
{
    return std::unique_ptr<CLayoutPanel>(static_cast<CLayoutPanel*>(createPanel(name, kAnyMode, nullptr)));
}

using Pos = std::function<QPoint(int)>;
Pos at(int x, int y) { return [=](int) { return QPoint(x, y); }; }
Pos atW(int x, int k, int y) { return [=](int W) { return QPoint(x + k * W, y); }; }

TEST_F(ApRouterPanelsTest, PortsStandWhereTheProductSheetsSay)
{
    struct Expected {
        const char* name;
        const char* frame;
        const char* link; // image 2 of the set
        std::vector<Pos> ports;
    };
    const std::vector<Expected> rows = {
        {"CQ301APPannel", "APDevice/ap45Pannel.png", "APDevice/port_link2.png", {at(229, 24)}},
        {"CQ302APPannel", "APDevice/ap1Pannel.png", "APDevice/port_link.png", {at(133, 15), atW(364, 1, 35)}},
        {"CQ303APPannel", "APDevice/ap3Pannel.png", "APDevice/port_link.png", {at(411, 40), at(131, 28)}},
        {"CQ304APPannel", "APDevice/ap2Pannel.png", "APDevice/port_link.png", {at(411, 40), at(131, 28)}},
        {"CQ305APPannel", "APDevice/ap6Pannel.png", "APDevice/port_link3.png", {at(358, 20)}},
        {"CQ306APPannel", "APDevice/ap78Pannel.png", "APDevice/port_link4.png", {at(150, 24)}},
        {"CQ401Pannel", "WireRouterDevice/WR1&2.png", "WireRouterDevice/port_on1.png", {at(109, 42), atW(349, 1, 17)}},
        {"CQ402Pannel", "WireRouterDevice/WR4.png", "WireRouterDevice/port_on1.png", {at(286, 22)}},
        {"CQ403Pannel", "WireRouterDevice/WR3.png", "WireRouterDevice/port_on3.png", {}},
        {"CQ431Pannel", "WireRouterDevice/WR6.png", "WireRouterDevice/port_on2.png",
         {at(35, 14), atW(42, 1, 14), atW(49, 2, 14), atW(129, 3, 14)}},
        {"CQ432Pannel", "WireRouterDevice/WR8.png", "WireRouterDevice/port_on2.png",
         {atW(262, -3, 14), atW(270, -2, 14), atW(278, -1, 14), at(360, 14)}},
        {"CQ433Pannel", "WireRouterDevice/WR5.png", "WireRouterDevice/port_on2.png", {at(80, 26)}},
        {"CQ434Pannel", "WireRouterDevice/WR9.png", "WireRouterDevice/port_on3.png",
         {at(160, 35), atW(176, 1, 35), atW(192, 2, 35), atW(208, 3, 35), atW(224, 4, 35)}},
        {"CQ501GRouter", "GateRouterDevice/GRxPannel.png", "GateRouterDevice/port_on1.png",
         {at(86, 28), atW(104, 1, 28), atW(122, 2, 28), atW(140, 3, 28), atW(158, 4, 28)}},
        {"CQ502GRouter", "GateRouterDevice/GR4Pannel.png", "GateRouterDevice/port_on1.png",
         {at(265, 37), atW(289, 1, 37), atW(313, 2, 37), atW(337, 3, 37), atW(361, 4, 37)}},
        {"CQ503GRouter", "GateRouterDevice/GR2Pannel.png", "GateRouterDevice/port_on1.png",
         {at(265, 37), atW(281, 1, 37), atW(297, 2, 37), atW(313, 3, 37), at(163, 37)}},
        {"CQ504GRouter", "GateRouterDevice/GR1Pannel.png", "GateRouterDevice/port_on1.png",
         {at(265, 37), atW(275, 1, 37), atW(285, 2, 37), atW(295, 3, 37), atW(305, 4, 37)}},
        {"CQ505GRouter", "GateRouterDevice/GR3Pannel.png", "GateRouterDevice/port_on3.png",
         {atW(240, 4, 28), atW(230, 3, 28), atW(220, 2, 28), atW(210, 1, 28), at(200, 28)}},
        {"CQ506GRouter", "GateRouterDevice/GR5Pannel.png", "GateRouterDevice/port_on1.png",
         {at(161, 37), atW(177, 1, 37), atW(197, 2, 37), atW(216, 3, 37), atW(236, 4, 37)}},
    };
    ASSERT_EQ(rows.size(), accessPointLayouts().size());
    for (const Expected& e : rows) {
        auto panel = make(e.name);
        ASSERT_TRUE(panel) << e.name;
        EXPECT_EQ(panel->layout().framePath(kAnyMode), e.frame);
        EXPECT_STREQ(panel->layout().images->image(2)->path, e.link) << e.name;
        const int W = A::pixmaps(panel.get()).at(2)->width();
        const auto& positions = A::positions(panel.get());
        ASSERT_EQ(positions.size(), e.ports.size()) << e.name;
        const QRect frame = A::pixmaps(panel.get()).at(0)->rect();
        for (size_t i = 0; i < e.ports.size(); ++i) {
            const unsigned port = static_cast<unsigned>(i + 1);
            EXPECT_EQ(positions.at(port), e.ports[i](W)) << e.name << " port " << port;
            EXPECT_TRUE(frame.contains(QRect(positions.at(port), A::pixmaps(panel.get()).at(2)->size()))) << e.name;
        }
        // The connected legend stays; optical entries go.
        EXPECT_FALSE(A::ui(panel.get())->label_3->isHidden());
        EXPECT_TRUE(A::ui(panel.get())->optionalIconLabel->isHidden());
        EXPECT_TRUE(A::ui(panel.get())->fiberOptionalIconLabel->isHidden());
    }
}

TEST_F(ApRouterPanelsTest, SetsNameTheirImagesAsTheDevicesSpellThem)
{
    const std::map<std::string, std::vector<const char*>> sets = {
        {"CQ302APPannel", {"APDevice/port_unlink.png", "APDevice/port_link.png", "APDevice/port_alarm.png", "APDevice/port_wan.png"}},
        {"CQ301APPannel", {"APDevice/port_unlink2.png", "APDevice/port_link2.png", "APDevice/port_alarm2.png", "APDevice/port_wan2.png"}},
        {"CQ305APPannel", {"APDevice/port_unlink3.png", "APDevice/port_link3.png", "APDevice/port_alarm3.png", "APDevice/port_wan3.png"}},
        {"CQ306APPannel", {"APDevice/port_unlink4.png", "APDevice/port_link4.png", "APDevice/port_alarm4.png", "APDevice/port_wan4.png"}},
        {"CQ401Pannel", {"WireRouterDevice/port_off1.png", "WireRouterDevice/port_on1.png", "WireRouterDevice/port_alram1.png", "WireRouterDevice/port_wan1.png"}},
        {"CQ431Pannel", {"WireRouterDevice/port_off2.png", "WireRouterDevice/port_on2.png", "WireRouterDevice/port_alram2.png", "WireRouterDevice/port_wan2.png"}},
        {"CQ434Pannel", {"WireRouterDevice/port_off3.png", "WireRouterDevice/port_on3.png", "WireRouterDevice/port_alarm3.png", "WireRouterDevice/port_wan3.png"}},
        {"CQ501GRouter", {"GateRouterDevice/port_off1.png", "GateRouterDevice/port_on1.png", "GateRouterDevice/port_alarm1.png", "GateRouterDevice/port_wan1.png"}},
        {"CQ505GRouter", {"GateRouterDevice/port_off3.png", "GateRouterDevice/port_on3.png", "GateRouterDevice/port_alarm3.png", "GateRouterDevice/port_wan3.png"}},
    };
    for (const auto& entry : sets) {
        const ImageSet& set = *layoutNamed(entry.first).images;
        for (int id = 1; id <= 4; ++id)
            EXPECT_STREQ(set.image(id)->path, entry.second[id - 1]) << entry.first << " " << id;
    }
    const ImageSet& noLinkDown = *layoutNamed("CQ403Pannel").images;
    EXPECT_EQ(noLinkDown.image(1), nullptr);
    EXPECT_STREQ(noLinkDown.image(2)->path, "WireRouterDevice/port_on3.png");
    EXPECT_STREQ(noLinkDown.image(3)->path, "WireRouterDevice/port_alram3.png");
    EXPECT_STREQ(noLinkDown.image(4)->path, "WireRouterDevice/port_wan3.png");
}

TEST_F(ApRouterPanelsTest, PortReachingTheInternetShowsTheInternetImageWhateverItsType)
{
    auto panel = make("CQ501GRouter");
    auto& images = A::pixmaps(panel.get());
    A::applyWorkState(panel.get(), state({item(1, "electrical", "connected"), item(2, "electrical", "disconnected"),
                                          item(3, "optical", "disconnected", "connected"),
                                          item(4, "electrical", "disconnected", "connected")}));
    EXPECT_EQ(A::portPixmaps(panel.get())[1], images[2]);
    EXPECT_EQ(A::portPixmaps(panel.get())[2], images[1]);
    EXPECT_EQ(A::portPixmaps(panel.get())[3], images[4]);
    EXPECT_EQ(A::portPixmaps(panel.get())[4], images[4]);
    const QImage image = paneltest::render(panel.get());
    EXPECT_EQ(paneltest::portColor(panel.get(), image, 4), paneltest::rgb(kInternetColor));
}

TEST_F(ApRouterPanelsTest, AlarmedPortIsSkippedSoTheInternetImageDoesNotReplaceIt)
{
    auto panel = make("CQ434Pannel");
    auto& images = A::pixmaps(panel.get());
    panel->setPortAlarm(2, true);
    EXPECT_EQ(A::portPixmaps(panel.get())[2], images[3]);
    A::applyWorkState(panel.get(), state({item(2, "electrical", "connected", "connected")}));
    EXPECT_EQ(A::portPixmaps(panel.get())[2], images[3]);
    panel->setPortAlarm(2, false);
    EXPECT_EQ(A::portPixmaps(panel.get())[2], images[2]);
    // Every unsigned port number takes the alarm image, existing or not.
    for (unsigned port : {0x80000000u, 0xffffffffu}) {
        panel->setPortAlarm(port, true);
        EXPECT_EQ(A::portPixmaps(panel.get())[port], images[3]) << port;
    }
}

TEST_F(ApRouterPanelsTest, RouterWithoutPortsFindsNoLinkDownImage)
{
    auto panel = make("CQ403Pannel");
    EXPECT_TRUE(A::positions(panel.get()).empty());
    EXPECT_FALSE(A::pixmaps(panel.get()).count(1));
    A::applyWorkState(panel.get(), state({item(1, "electrical", "disconnected")}));
    ASSERT_TRUE(A::portPixmaps(panel.get()).count(1));
    EXPECT_EQ(A::portPixmaps(panel.get())[1], nullptr);
    EXPECT_FALSE(A::pixmaps(panel.get()).count(1));
    // Nothing but the frame is drawn.
    const QImage image = paneltest::render(panel.get());
    EXPECT_FALSE(image.isNull());
}

} // namespace
} // namespace velmora
