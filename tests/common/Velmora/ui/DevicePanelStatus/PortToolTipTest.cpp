// The port tooltips of every panel family: what a person reads when hovering a port, from
// the state answers the panel applied, its alarm marks and the page's neighbours, and the
// new values after a refresh.
#include <QHelpEvent>
#include <QTest>
#include <QToolTip>
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/ApRouterPanels.h"
#include "ui/DevicePanelStatus/BridgePanels.h"
#include "ui/DevicePanelStatus/ChassisSwitchPanels.h"
#include "ui/DevicePanelStatus/FiberCardPanels.h"
#include "ui/DevicePanelStatus/FixedSwitchPanels.h"

namespace velmora {
namespace {

using A = PanelTestAccess;

class PortToolTipTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

Quillon::SwitchesWorkStateItem port(int id, const std::string& link, const std::string& rate,
                                    const std::string& duplex, float poe = 0.0f,
                                    const std::string& type = "electrical")
{
    Quillon::SwitchesWorkStateItem i = paneltest::item(id, type, link);
    i.rate = rate;
    i.duplex = duplex;
    i.poePower = poe;
    return i;
}

std::unique_ptr<CLayoutPanel> make(const std::string& name)
{
    return std::unique_ptr<CLayoutPanel>(static_cast<CLayoutPanel*>(createPanel(name, layouts::kAnyMode, nullptr)));
}

// What stands in the tooltip before a hover, so that a hover that finds no port can't pass
// on the text of the one before.
const QString kBefore = QStringLiteral("before");

// Sends the tooltip request a resting mouse gives at `at` and returns the text shown.
QString hover(CPanelStatusBase* panel, QPoint at)
{
    QToolTip::showText(panel->mapToGlobal(at), kBefore, panel);
    QHelpEvent help(QEvent::ToolTip, at, panel->mapToGlobal(at));
    QApplication::sendEvent(panel, &help);
    return QToolTip::text();
}

// The middle of a port as drawn.
QPoint middleOf(CPanelStatusBase* panel, unsigned number)
{
    const QPixmap* image = A::portPixmaps(panel).at(number);
    const QSize size = image->size() / image->devicePixelRatio();
    return A::frameOrigin(panel) + A::positions(panel).at(number) + QPoint(size.width() / 2, size.height() / 2);
}

void checkLayoutPanel(const std::string& className)
{
    SCOPED_TRACE(className);
    auto panel = make(className);
    ASSERT_TRUE(panel);
    paneltest::render(panel.get());
    CPanelStatusBase::PortNeighbour far;
    far.name = QString::fromUtf8("核心交换机, A");
    far.deviceClass = "Switch";
    far.address = "10.1.2.3";
    panel->setPortNeighbours({{1u, far}});
    panel->setPoePowerShown(true);

    A::applyWorkState(panel.get(), paneltest::state({port(1, "connected", "1000M", "duplex", 6.5f)}));
    EXPECT_EQ(panel->portToolTip(1), QString::fromUtf8("Port 1\nLink: Connected\nRate: 1000M, Full duplex\n"
                                                       "PoE output power: 6.5 W\nAlarm: None\n"
                                                       "Neighbour: 核心交换机, A (Switch), 10.1.2.3"));
    // What the mouse shows is that text, escaped, one fact per line.
    const QString shown = hover(panel.get(), middleOf(panel.get(), 1));
    EXPECT_TRUE(shown.contains("Link: Connected<br/>")) << shown.toStdString();
    EXPECT_TRUE(shown.contains(QString::fromUtf8("核心交换机, A (Switch)"))) << shown.toStdString();

    // A refresh that took the link down, halved the rate and cut the power; then an alarm.
    A::applyWorkState(panel.get(), paneltest::state({port(1, "disconnected", "100M", "halfDuplex", 0.0f)}));
    panel->setPortAlarm(1, true);
    EXPECT_EQ(panel->portToolTip(1), QString::fromUtf8("Port 1\nLink: Not connected\nRate: 100M, Half duplex\n"
                                                       "PoE output power: 0.0 W\nAlarm: In alarm\n"
                                                       "Neighbour: 核心交换机, A (Switch), 10.1.2.3"));
    EXPECT_TRUE(hover(panel.get(), middleOf(panel.get(), 1)).contains("Alarm: In alarm"));

    // Without PoE and without a neighbour the lines are left out; a port never reported
    // has no tooltip.
    panel->setPoePowerShown(false);
    panel->setPortNeighbours({});
    panel->setPortAlarm(1, false);
    EXPECT_EQ(panel->portToolTip(1), QString("Port 1\nLink: Not connected\nRate: 100M, Half duplex\nAlarm: None"));
    EXPECT_TRUE(panel->portToolTip(999).isEmpty());
    // Away from every port nothing is shown.
    EXPECT_EQ(hover(panel.get(), QPoint(1, 1)), kBefore);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }, 2000));
}

TEST_F(PortToolTipTest, FixedSwitchPortTellsItsStateAndNeighbour) { checkLayoutPanel("CQ110SwitchPanel"); }

TEST_F(PortToolTipTest, BridgePortTellsItsStateAndNeighbour) { checkLayoutPanel("CMutliPortBridgePanelStatus"); }

TEST_F(PortToolTipTest, AccessPointPortTellsItsStateAndNeighbour) { checkLayoutPanel("CQ302APPannel"); }

TEST_F(PortToolTipTest, RouterPortTellsItsStateAndNeighbour) { checkLayoutPanel("CQ501GRouter"); }

TEST_F(PortToolTipTest, FiberCardPortTellsItsStateAndNeighbour) { checkLayoutPanel("CFiberReceiveCardPanelStatus"); }

TEST_F(PortToolTipTest, ChassisSlotTellsItsBoardAndAlarm)
{
    CQ145SwitchPanel panel(nullptr);
    paneltest::render(&panel);
    Quillon::SwitchSlotInfolList boards;
    Quillon::SwitchSlotInfo slot;
    slot.slotId = 2;
    slot.boardType = "interfaceBoard";
    slot.inserted = true;
    slot.boardName = "LSU-24GT";
    boards.slotList = {slot};
    A::applySlots(&panel, boards);
    EXPECT_EQ(panel.portToolTip(2), QString("Slot 2\nBoard: LSU-24GT\nAlarm: None"));
    EXPECT_TRUE(hover(&panel, middleOf(&panel, 2)).startsWith("<p style='white-space:pre'>Slot 2<br/>"));

    // The board was pulled.
    boards.slotList.front().inserted = false;
    boards.slotList.front().boardName.clear();
    A::applySlots(&panel, boards);
    panel.setPortAlarm(2, true);
    EXPECT_EQ(panel.portToolTip(2), QString("Slot 2\nNo board\nAlarm: In alarm"));
    EXPECT_TRUE(hover(&panel, middleOf(&panel, 2)).contains("No board"));
}

// One row, ports 1 and 2, on the switch category's images.
Quillon::Panel logicalRow(int ports)
{
    Quillon::Panel p;
    p.rowCount = 1;
    p.portMargin = 3;
    Quillon::PanelCell border;
    border.cellType = "border";
    p.cellList.push_back(border);
    for (int i = 1; i <= ports; ++i) {
        Quillon::PanelCell c;
        c.cellType = "port";
        c.portType = "electrical";
        c.portId = i;
        c.direction = "up";
        c.label = i == 2 ? "GE0/2" : std::to_string(i);
        p.cellList.push_back(c);
    }
    p.cellList.push_back(border);
    p.columnCount = static_cast<int>(p.cellList.size());
    return p;
}

TEST_F(PortToolTipTest, LogicalPanelPortTellsItsStateUnderTheMouse)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, logicalRow(2), 120);
    A::applyWorkState(&panel, paneltest::state({port(1, "connected", "10G", "auto"), port(2, "disconnected", "", "")}));
    panel.resize(1095, 242);
    panel.layout()->activate();
    EXPECT_EQ(panel.portToolTip(1), QString("Port 1\nLink: Connected\nRate: 10G, Auto\nAlarm: None"));
    // A label of the device's own stands as the port's name; absent values show as "--".
    EXPECT_EQ(panel.portToolTip(2), QString("GE0/2\nLink: Not connected\nRate: --, --\nAlarm: None"));

    // The image sits centred in the frame: the first port cell starts after the side margin
    // and the border column.
    const QFrame* frame = A::ui(&panel)->m_pPanelPanelFrame;
    const QPixmap& image = A::panelPixmap(&panel);
    const QPoint origin = frame->pos() + QPoint((frame->width() - image.width()) >> 1,
                                                (frame->height() - image.height()) >> 1);
    const int border = A::logicalSizes(&panel)[120][2];
    const int firstCell = 26 + border;
    const int cellY = image.height() / 2;
    EXPECT_TRUE(hover(&panel, origin + QPoint(firstCell + 2, cellY)).contains("Port 1<br/>"));
    EXPECT_TRUE(hover(&panel, origin + QPoint(firstCell + A::cellWidth(&panel) + 2, cellY)).contains("GE0/2"));

    // After a refresh the same place tells the new state.
    A::applyWorkState(&panel, paneltest::state({port(1, "disconnected", "10G", "auto")}));
    EXPECT_TRUE(hover(&panel, origin + QPoint(firstCell + 2, cellY)).contains("Link: Not connected"));
}

TEST_F(PortToolTipTest, ShrunkLogicalPanelTellsThePortTheMagnifierShows)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, logicalRow(60), 120);
    A::applyWorkState(&panel, paneltest::state({port(40, "connected", "1000M", "duplex")}));
    panel.resize(700, 242);
    panel.layout()->activate();
    const QFrame* frame = A::ui(&panel)->m_pPanelPanelFrame;
    const QPixmap& image = A::panelPixmap(&panel);
    ASSERT_GT(image.width(), frame->width());
    const double ratio = static_cast<double>(frame->width()) / image.width();
    // The middle of port 40's column in the image, mapped onto the shrunk drawing. After the
    // leading border every column keeps the border's width.
    const int border = A::logicalSizes(&panel)[120][2];
    const double cellMiddle = 26 + border + 39 * border + border / 2.0;
    const int x = frame->x() + static_cast<int>(cellMiddle * ratio);
    const int y = frame->y() + frame->height() / 2;
    const QString shown = hover(&panel, QPoint(x, y));
    EXPECT_TRUE(shown.contains("Port 40<br/>Link: Connected")) << shown.toStdString();
}

} // namespace
} // namespace velmora
