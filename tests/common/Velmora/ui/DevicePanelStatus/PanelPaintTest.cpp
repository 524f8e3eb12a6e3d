// Every panel painted offscreen: the colours at each port's place for linked, down and alarmed
// ports, and a PNG of each for a person to look at (written to the snapshot folder).
#include <QDir>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>

#include "PanelTestAccess.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::rgb;
using paneltest::state;
using A = PanelTestAccess;

struct ClassAndMode {
    std::string name;
    int mode;
};

void PrintTo(const ClassAndMode& c, std::ostream* out)
{
    *out << c.name;
    if (c.mode != layouts::kAnyMode)
        *out << " mode " << c.mode;
}

std::vector<ClassAndMode> allClasses()
{
    std::vector<ClassAndMode> result;
    for (const PanelLayout* row : allLayouts()) {
        if (row->family == Family::FiberCrate)
            continue;
        for (int mode : row->modes())
            result.push_back({row->className, mode});
    }
    return result;
}

enum class Wanted { Linked, Down, Alarmed, Internet };

// Port n is linked, down or alarmed in turn; on APs every fourth port reaches the internet.
Wanted wantedFor(int port, bool internet)
{
    if (internet && port % 4 == 0)
        return Wanted::Internet;
    switch (port % 3) {
    case 1:
        return Wanted::Linked;
    case 2:
        return Wanted::Down;
    default:
        return Wanted::Alarmed;
    }
}

QColor colorFor(Wanted w)
{
    switch (w) {
    case Wanted::Linked:
        return rgb(kNormalColor);
    case Wanted::Down:
        return rgb(kNotConnectedColor);
    case Wanted::Alarmed:
        return rgb(kAlarmColor);
    case Wanted::Internet:
        return rgb(kInternetColor);
    }
    return QColor();
}

class PanelPaintTest : public ::testing::TestWithParam<ClassAndMode> {
protected:
    static void SetUpTestSuite()
    {
        paneltest::initArt();
        QDir().mkpath(paneltest::snapshotDir());
    }
    static QString fileName(const ClassAndMode& c)
    {
        return paneltest::snapshotDir() + "/" + QString::fromStdString(c.name) +
               (c.mode == kAnyMode ? QString() : QStringLiteral("_mode%1").arg(c.mode)) + ".png";
    }
};

TEST_P(PanelPaintTest, PortsShowTheirStateColoursWhereTheyStand)
{
    const PanelLayout& row = layoutNamed(GetParam().name);
    std::unique_ptr<CPanelStatusBase> panel(createPanel(GetParam().name, GetParam().mode, nullptr));
    ASSERT_TRUE(panel);

    if (row.family == Family::Chassis) {
        Quillon::SwitchSlotInfolList boards;
        for (const layouts::Run& run : row.runs)
            for (int s = run.first; s <= run.last; ++s) {
                Quillon::SwitchSlotInfo info;
                info.slotId = s;
                info.boardType = run.kind == PortKind::MainBoard ? "mainBoard" : "interfaceBoard";
                info.inserted = s % 2 == 0;
                boards.slotList.push_back(info);
            }
        A::applySlots(static_cast<CChassisPanel*>(panel.get()), boards);
        const QImage image = paneltest::render(panel.get());
        for (const auto& info : boards.slotList) {
            const int h = A::portPixmaps(panel.get()).at(info.slotId)->height();
            EXPECT_EQ(paneltest::portColor(panel.get(), image, info.slotId, QPoint(2, h / 2)),
                      rgb(info.inserted ? kNormalColor : kNotConnectedColor))
                << "slot " << info.slotId;
        }
        EXPECT_TRUE(image.save(fileName(GetParam())));
        return;
    }

    auto* layoutPanel = static_cast<CLayoutPanel*>(panel.get());
    if (row.orderFromDevice)
        A::placePortRows(layoutPanel, true);
    const bool internet = row.images->internet >= 0;
    std::vector<Quillon::SwitchesWorkStateItem> items;
    std::vector<int> ports;
    for (const layouts::Run& run : row.runs) {
        if (run.kind == PortKind::Console)
            continue;
        for (int p = run.first; p <= run.last; p += run.step) {
            ports.push_back(p);
            const bool optical = run.kind == PortKind::Optical && row.images->hasKind(PortKind::Optical);
            const Wanted w = wantedFor(p, internet);
            items.push_back(item(p, optical ? "optical" : "electrical", w == Wanted::Linked ? "connected" : "disconnected",
                                 w == Wanted::Internet ? "connected" : ""));
        }
    }
    A::applyWorkState(layoutPanel, state(items));
    for (int p : ports)
        if (wantedFor(p, internet) == Wanted::Alarmed)
            panel->setPortAlarm(static_cast<unsigned>(p), true);
    // A refresh keeps the alarms.
    A::applyWorkState(layoutPanel, state(items));

    const QImage image = paneltest::render(panel.get());
    // Where a row scales its port images, the solid corner block moves with the scale.
    QPoint sample(2, 2);
    if (!row.scaledPorts.isEmpty()) {
        const Size drawn = shapeSize(row.images->images.front().shape);
        sample = QPoint(static_cast<int>(2.5 * row.scaledPorts.width / drawn.width),
                        static_cast<int>(2.5 * row.scaledPorts.height / drawn.height));
    }
    for (int p : ports)
        EXPECT_EQ(paneltest::portColor(panel.get(), image, static_cast<unsigned>(p), sample),
                  colorFor(wantedFor(p, internet)))
            << "port " << p;
    // Console ports show the unconnected jack.
    for (const layouts::Run& run : row.runs) {
        if (run.kind == PortKind::Console) {
            EXPECT_EQ(paneltest::portColor(panel.get(), image, static_cast<unsigned>(run.first), sample),
                      rgb(kNotConnectedColor));
        }
    }
    EXPECT_TRUE(image.save(fileName(GetParam())));
}

std::string testName(const ::testing::TestParamInfo<ClassAndMode>& info)
{
    return info.param.name + (info.param.mode == kAnyMode ? std::string() : "_mode" + std::to_string(info.param.mode));
}

INSTANTIATE_TEST_SUITE_P(AllPanels, PanelPaintTest, ::testing::ValuesIn(allClasses()), testName);

// The logical panel of a 26-port switch, for the eye.
TEST(LogicalPanelPaint, SnapshotOfAReportedLayout)
{
    paneltest::initArt();
    Quillon::Panel grid;
    grid.rowCount = 2;
    grid.portMargin = 3;
    auto add = [&](const std::string& type, const std::string& portType, int port, const std::string& dir) {
        Quillon::PanelCell c;
        c.cellType = type;
        c.portType = portType;
        c.portId = port;
        c.direction = dir;
        c.label = port ? std::to_string(port) : std::string();
        grid.cellList.push_back(c);
    };
    add("border", "", 0, "");
    add("border", "", 0, "");
    for (int c = 0; c < 12; ++c) {
        if (c == 6) {
            add("septalSpace", "", 0, "");
            add("septalSpace", "", 0, "");
        }
        add("port", "electrical", 2 * c + 1, "up");
        add("port", "electrical", 2 * c + 2, "down");
    }
    add("septalSpace", "", 0, "");
    add("septalSpace", "", 0, "");
    add("port", "optical", 25, "up");
    add("port", "optical", 26, "down");
    add("border", "", 0, "");
    add("border", "", 0, "");
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, grid, 120);
    std::vector<Quillon::SwitchesWorkStateItem> items;
    for (int p = 1; p <= 26; ++p)
        items.push_back(item(p, p > 24 ? "optical" : "electrical", p % 3 ? "connected" : "disconnected",
                             p == 1 ? "connected" : ""));
    A::applyWorkState(&panel, state(items, "portNO1"));
    panel.setPortAlarm(5, true);
    panel.setPortAlarm(25, true);
    const QImage image = paneltest::render(&panel);
    QDir().mkpath(paneltest::snapshotDir());
    EXPECT_TRUE(image.save(paneltest::snapshotDir() + "/CSwitchLogicalPanel.png"));
    EXPECT_TRUE(A::panelPixmap(&panel).save(paneltest::snapshotDir() + "/CSwitchLogicalPanel_image.png"));
}

} // namespace
} // namespace velmora
