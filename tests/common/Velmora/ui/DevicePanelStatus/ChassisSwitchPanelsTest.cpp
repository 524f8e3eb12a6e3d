// The chassis switch panels: slots, boards and their images.
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/ChassisSwitchPanels.h"

namespace velmora {
namespace {

using namespace layouts;
using A = PanelTestAccess;

Quillon::SwitchSlotInfo slot(int id, const std::string& type, bool inserted)
{
    Quillon::SwitchSlotInfo s;
    s.slotId = id;
    s.boardType = type;
    s.inserted = inserted;
    return s;
}

Quillon::SwitchSlotInfolList slotList(std::vector<Quillon::SwitchSlotInfo> list)
{
    Quillon::SwitchSlotInfolList l;
    l.slotList = std::move(list);
    return l;
}

class ChassisSwitchPanelsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
    static QSize sizeOf(CPanelStatusBase* panel, unsigned id) { return A::pixmaps(panel).at(id)->size(); }
};

TEST_F(ChassisSwitchPanelsTest, TwoMainBoardsSideBySideAndLineCardsBelow)
{
    CQ145SwitchPanel panel(nullptr);
    const QSize main = sizeOf(&panel, 1);
    const QSize line = sizeOf(&panel, 3);
    const auto& at = A::positions(&panel);
    ASSERT_EQ(at.size(), 4u);
    EXPECT_EQ(at.at(0), QPoint(4, 63));
    EXPECT_EQ(at.at(1), QPoint(4 + main.width() + 5, 63));
    EXPECT_EQ(at.at(2), QPoint(4, 136));
    EXPECT_EQ(at.at(3), QPoint(4, 136 + line.height() + 5));

    CQ146SwitchPanel bigger(nullptr);
    ASSERT_EQ(A::positions(&bigger).size(), 5u);
    EXPECT_EQ(A::positions(&bigger).at(1), QPoint(4 + main.width() + 5, 63));
    EXPECT_EQ(A::positions(&bigger).at(4), QPoint(4, 136 + 2 * (line.height() + 5)));
}

TEST_F(ChassisSwitchPanelsTest, StacksOfSlots)
{
    CQ147SwitchPanel q147(nullptr);
    const int mainH = sizeOf(&q147, 1).height();
    const int lineH = sizeOf(&q147, 3).height();
    EXPECT_EQ(A::positions(&q147).at(0), QPoint(5, 63));
    EXPECT_EQ(A::positions(&q147).at(1), QPoint(5, 63 + mainH + 2));
    for (unsigned s = 2; s <= 7; ++s)
        EXPECT_EQ(A::positions(&q147).at(s), QPoint(5, 187 + static_cast<int>(s - 2) * (lineH + 2))) << s;

    CQ148SwitchPanel q148(nullptr);
    ASSERT_EQ(A::positions(&q148).size(), 10u);
    for (unsigned s = 0; s <= 9; ++s)
        EXPECT_EQ(A::positions(&q148).at(s), QPoint(5, 63 + static_cast<int>(s) * (lineH + 4))) << s;

    // The two main boards in the middle of the stack.
    CQ102SwitchPanel q102(nullptr);
    int y = 63;
    for (unsigned s = 0; s <= 9; ++s) {
        EXPECT_EQ(A::positions(&q102).at(s), QPoint(5, y)) << s;
        y += (s == 4 || s == 5) ? mainH + 5 : lineH + 5;
    }
}

TEST_F(ChassisSwitchPanelsTest, BoardsShowWhetherTheyAreInserted)
{
    CQ145SwitchPanel panel(nullptr);
    auto& images = A::pixmaps(&panel);
    A::applySlots(&panel, slotList({slot(0, "mainBoard", true), slot(1, "mainBoard", false),
                                 slot(2, "interfaceBoard", true), slot(3, "interfaceBoard", false)}));
    EXPECT_EQ(A::portPixmaps(&panel)[0], images[1]);
    EXPECT_EQ(A::portPixmaps(&panel)[1], images[2]);
    EXPECT_EQ(A::portPixmaps(&panel)[2], images[3]);
    EXPECT_EQ(A::portPixmaps(&panel)[3], images[4]);
    // Another board type leaves the slot as it was; an unlisted slot keeps its image.
    A::applySlots(&panel, slotList({slot(0, "powerBoard", false)}));
    EXPECT_EQ(A::portPixmaps(&panel)[0], images[1]);
    EXPECT_EQ(A::portPixmaps(&panel)[3], images[4]);
}

TEST_F(ChassisSwitchPanelsTest, MainBoardImagesDifferBetweenTheChassisFamilies)
{
    for (const PanelLayout& row : chassisLayouts()) {
        auto panel = std::unique_ptr<CPanelStatusBase>(createPanel(row.className, kAnyMode, nullptr));
        const std::string frame = row.framePath(kAnyMode);
        const bool halfWidth = std::string(row.className) == "CQ145SwitchPanel" || std::string(row.className) == "CQ146SwitchPanel";
        if (std::string(row.className) == "CQ148SwitchPanel") {
            EXPECT_FALSE(row.images->image(1)) << row.className;
        } else {
            EXPECT_STREQ(row.images->image(1)->path, halfWidth ? "SwitchDevice/chassis_a_maineboard_inserted.png"
                                                               : "SwitchDevice/chassis_b_maineboard_inserted.png");
            EXPECT_STREQ(row.images->image(2)->path, halfWidth ? "SwitchDevice/chassis_a_maineboard_not_inserted.png"
                                                               : "SwitchDevice/chassis_b_maineboard_not_inserted.png");
        }
        EXPECT_STREQ(row.images->image(3)->path, "SwitchDevice/chassis_b_interfaceboard_inserted.png");
        EXPECT_STREQ(row.images->image(4)->path, "SwitchDevice/chassis_b_interfaceboard_not_inserted.png");
        EXPECT_TRUE(A::ui(panel.get())->titleWidget->isHidden()) << row.className;
    }
    EXPECT_EQ(layoutNamed("CQ145SwitchPanel").framePath(kAnyMode), "SwitchDevice/switch_q034.png");
    EXPECT_EQ(layoutNamed("CQ146SwitchPanel").framePath(kAnyMode), "SwitchDevice/switch_q035.png");
    EXPECT_EQ(layoutNamed("CQ147SwitchPanel").framePath(kAnyMode), "SwitchDevice/switch_q036.png");
    EXPECT_EQ(layoutNamed("CQ102SwitchPanel").framePath(kAnyMode), "SwitchDevice/switch_q001.png");
    EXPECT_EQ(layoutNamed("CQ148SwitchPanel").framePath(kAnyMode), "SwitchDevice/switch_q037.png");
}

TEST_F(ChassisSwitchPanelsTest, ChassisOfLineCardsIgnoresAMainBoard)
{
    CQ148SwitchPanel panel(nullptr);
    A::applySlots(&panel, slotList({slot(0, "mainBoard", true), slot(1, "interfaceBoard", true)}));
    EXPECT_FALSE(A::portPixmaps(&panel).count(0));
    EXPECT_EQ(A::portPixmaps(&panel)[1], A::pixmaps(&panel)[3]);
}

TEST_F(ChassisSwitchPanelsTest, SlotWithoutPositionIsStoredButNotDrawn)
{
    CQ145SwitchPanel panel(nullptr);
    A::applySlots(&panel, slotList({slot(12, "interfaceBoard", true), slot(2, "interfaceBoard", true)}));
    EXPECT_EQ(A::portPixmaps(&panel)[12], A::pixmaps(&panel)[3]);
    EXPECT_FALSE(A::positions(&panel).count(12));
    const QImage image = paneltest::render(&panel);
    EXPECT_EQ(paneltest::portColor(&panel, image, 2, QPoint(2, 20)), paneltest::rgb(kNormalColor));
}

TEST_F(ChassisSwitchPanelsTest, AlarmsChangeNoBoardImage)
{
    CQ147SwitchPanel panel(nullptr);
    A::applySlots(&panel, slotList({slot(2, "interfaceBoard", true)}));
    const auto before = A::portPixmaps(&panel);
    panel.setPortAlarm(2, true);
    panel.setPortAlarm(5, true);
    EXPECT_EQ(A::portPixmaps(&panel), before);
    EXPECT_EQ(A::alarms(&panel), (std::set<unsigned>{2, 5}));
}

TEST_F(ChassisSwitchPanelsTest, WithoutADeviceNothingIsAsked)
{
    CQ102SwitchPanel panel(nullptr);
    panel.showPanelStatus();
    EXPECT_TRUE(A::portPixmaps(&panel).empty());
}

TEST_F(ChassisSwitchPanelsTest, BoardsSitInsideTheFrame)
{
    for (const PanelLayout& row : chassisLayouts()) {
        auto panel = std::unique_ptr<CPanelStatusBase>(createPanel(row.className, kAnyMode, nullptr));
        const QRect frame = A::pixmaps(panel.get()).at(0)->rect();
        for (const layouts::Run& run : row.runs) {
            const ImageGroup* g = row.images->group(run.kind, RowForm::Any);
            for (int s = run.first; s <= run.last; ++s)
                EXPECT_TRUE(frame.contains(QRect(A::positions(panel.get()).at(s), sizeOf(panel.get(), g->up))))
                    << row.className << " slot " << s;
        }
    }
}

} // namespace
} // namespace velmora
