// The layout tables: their arithmetic, their agreement with the product sheets, and the art
// drawn from them.
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <set>

#include "PanelTestAccess.h"

namespace velmora {
namespace {

using namespace layouts;

class FixedSizes : public SizeSource {
public:
    Size sizeOf(int id) const override { return id == 6 ? Size{16, 13} : id == 3 ? Size{20, 11} : Size{}; }
};

class PanelLayoutsTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

TEST_F(PanelLayoutsTest, ExpressionsAddConstantsAndMultiplesOfImageSizes)
{
    const PanelLayout& row = layoutNamed("CQ105SwitchPanel");
    const FixedSizes sizes;
    EXPECT_EQ(evaluate(221 + 4 * We, *row.images, sizes), 221 + 64);
    EXPECT_EQ(evaluate(4 + We, *row.images, sizes), 20);
    EXPECT_EQ(evaluate(37 + He, *row.images, sizes), 50);
    EXPECT_EQ(evaluate(239 + 12 * Wo, *row.images, sizes), 239 + 240);
    EXPECT_EQ(evaluate(36 + Ho, *row.images, sizes), 47);
    EXPECT_EQ(evaluate(262 - 3 * W, *row.images, sizes), 262 - 48);
    EXPECT_EQ(evaluate(278 - W, *row.images, sizes), 262);
    EXPECT_EQ(evaluate(93 + 4 * He + 2 * Wo, *row.images, sizes), 93 + 52 + 40);
    EXPECT_EQ(evaluate(Expr(17), *row.images, sizes), 17);
}

TEST_F(PanelLayoutsTest, EveryPanelClassHasItsRow)
{
    for (const std::string& name : panelClassNames()) {
        if (name == "CSwitchLogicalPanel")
            continue;
        const PanelLayout* row = findLayout(name);
        ASSERT_NE(row, nullptr) << name;
        EXPECT_EQ(row->className, name);
        EXPECT_FALSE(row->frames.empty()) << name;
    }
    EXPECT_EQ(findLayout("CQ999SwitchPanel"), nullptr);
    EXPECT_TRUE(layoutNamed("CQ999SwitchPanel").runs.empty());
    EXPECT_EQ(fixedSwitchLayouts().size(), 46u);
    EXPECT_EQ(chassisLayouts().size(), 5u);
    EXPECT_EQ(bridgeLayouts().size(), 14u);
    EXPECT_EQ(accessPointLayouts().size(), 19u);
    EXPECT_EQ(fiberCardLayouts().size(), 3u);
}

TEST_F(PanelLayoutsTest, ImageCountsFollowTheProductSheets)
{
    const std::map<std::string, int> counts = {
        {"CQ101SwitchPanel", 4},  {"CQ103SerialSwitchPanel", 4}, {"CQ104SerialSwitchPanel", 10},
        {"CQ105SwitchPanel", 10}, {"CQ106SerialSwitchPanel", 10}, {"CQ107SwitchPanel", 10},
        {"CQ108SerialSwitchPanel", 10}, {"CQ109SwitchPanel", 4}, {"CQ110SwitchPanel", 7},
        {"CQ111SwitchPanel", 7},  {"CQ112SwitchPanel", 10}, {"CQ113SwitchPanel", 7},  {"CQ114SwitchPanel", 10},
        {"CQ115SwitchPanel", 10}, {"CQ116SwitchPanel", 10}, {"CQ117SwitchPanel", 10}, {"CQ118SwitchPanel", 10},
        {"CQ119SwitchPanel", 10}, {"CQ120SwitchPanel", 10}, {"CQ121SwitchPanel", 10}, {"CQ122SwitchPanel", 10},
        {"CQ123SwitchPanel", 10}, {"CQ124SwitchPanel", 13}, {"CQ125SwitchPanel", 13}, {"CQ126SwitchPanel", 10},
        {"CQ127SwitchPanel", 10}, {"CQ128SwitchPanel", 10}, {"CQ129SwitchPanel", 10}, {"CQ130SwitchPanel", 13},
        {"CQ131SwitchPanel", 10}, {"CQ132SwitchPanel", 10}, {"CQ133SwitchPanel", 13}, {"CQ134SwitchPanel", 10},
        {"CQ135SwitchPanel", 10}, {"CQ136SwitchPanel", 13}, {"CQ137SwitchPanel", 13}, {"CQ138SwitchPanel", 10},
        {"CQ139SwitchPanel", 13}, {"CQ140SwitchPanel", 10}, {"CQ141SwitchPanel", 10}, {"CQ142SwitchPanel", 13},
        {"CQ143SwitchPanel", 11}, {"CQ144SwitchPanel", 11}, {"CQ201SwitchPanel", 7},  {"CQ202SwitchPanel", 10},
        {"CQ203SwitchPanel", 10},
        // Chassis: frame and four boards; the interface-only chassis two.
        {"CQ145SwitchPanel", 5}, {"CQ146SwitchPanel", 5}, {"CQ147SwitchPanel", 5}, {"CQ102SwitchPanel", 5},
        {"CQ148SwitchPanel", 3},
        // Bridges: frame and three; APs and routers: frame and four, but the router without ports.
        {"CMutliPortBridgePanelStatus", 4}, {"CQ301APPannel", 5}, {"CQ403Pannel", 4}, {"CQ434Pannel", 5},
        {"CFiberNetMgCardPanelStatus", 4}, {"CFiberReceiveCardPanelStatus", 7}, {"CFiberSendMachinePanelStatus", 7},
    };
    for (const auto& entry : counts)
        EXPECT_EQ(layoutNamed(entry.first).imageCount(), entry.second) << entry.first;
}

TEST_F(PanelLayoutsTest, TwoRowPairsAgreeOnWhichRowHoldsTheOddPorts)
{
    for (const PanelLayout* row : allLayouts()) {
        const ArtSizes sizes(*row);
        const auto placed = placePorts(*row, sizes);
        std::map<int, Point> at;
        for (const Placement& p : placed)
            at[p.port] = p.position;
        const bool oddUp = oddPortsUp(*row, sizes);
        for (const layouts::Run& run : row->runs) {
            if (run.first % 2 == 0 || run.kind == PortKind::Console)
                continue;
            for (const layouts::Run& other : row->runs) {
                if (other.first != run.first + 1 || other.kind == PortKind::Console)
                    continue;
                if (at[run.first].x != at[other.first].x)
                    continue;
                EXPECT_EQ(at[run.first].y < at[other.first].y, oddUp) << row->className << " port " << run.first;
            }
        }
    }
}

TEST_F(PanelLayoutsTest, SwappedRowsTradeTheYOfEachPair)
{
    const PanelLayout& row = layoutNamed("CQ105SwitchPanel");
    const ArtSizes sizes(row);
    std::map<int, Point> plain, swapped;
    for (const Placement& p : placePorts(row, sizes, false))
        plain[p.port] = p.position;
    for (const Placement& p : placePorts(row, sizes, true))
        swapped[p.port] = p.position;
    const int he = sizes.sizeOf(6).height;
    EXPECT_EQ(plain[1].y, 37 + he);
    EXPECT_EQ(plain[2].y, 31);
    EXPECT_EQ(swapped[1].y, 31);
    EXPECT_EQ(swapped[2].y, 37 + he);
    for (int port = 1; port <= 18; ++port)
        EXPECT_EQ(plain[port].x, swapped[port].x) << port;
    // The single uplink row stays.
    EXPECT_EQ(swapped[17].y, 52);
    EXPECT_EQ(swapped[18].y, 52);
    EXPECT_FALSE(oddPortsUp(row, sizes, false));
    EXPECT_TRUE(oddPortsUp(row, sizes, true));
}

TEST_F(PanelLayoutsTest, NoTwoPortsOfARowOverlap)
{
    for (const PanelLayout* row : allLayouts()) {
        const ArtSizes sizes(*row);
        std::vector<std::pair<int, QRect>> rects;
        for (const Placement& p : placePorts(*row, sizes)) {
            const ImageGroup* g =
                row->images->group(p.kind == PortKind::Console ? PortKind::Electrical : p.kind, RowForm::Upper);
            const int id = p.kind == PortKind::Console ? row->images->console : g ? g->up : -1;
            const Size s = sizes.sizeOf(id);
            const QRect r(p.position.x, p.position.y, s.width, s.height);
            for (const auto& other : rects)
                EXPECT_FALSE(r.intersects(other.second)) << row->className << " ports " << p.port << " and " << other.first;
            rects.push_back({p.port, r});
        }
    }
}

TEST_F(PanelLayoutsTest, EveryImageOfTheTablesIsInTheResourceTreeAtItsDrawnSize)
{
    std::set<std::string> seen;
    auto check = [&](const Image& image) {
        const std::string path = resourcePath(image.path);
        if (!seen.insert(path).second)
            return;
        ASSERT_TRUE(QFile::exists(QString::fromStdString(path))) << path;
        if (image.shape == Shape::Frame)
            return;
        const Size s = shapeSize(image.shape);
        const QSize size = QImageReader(QString::fromStdString(path)).size();
        EXPECT_EQ(size, QSize(s.width, s.height)) << path;
    };
    for (const PanelLayout* row : allLayouts()) {
        for (const Frame& f : row->frames) {
            const std::string path = resourcePath(f.path);
            EXPECT_TRUE(QFile::exists(QString::fromStdString(path))) << path;
        }
        for (const Image& image : row->images->images)
            check(image);
    }
    for (const LogicalImages& set : logicalPanelImages())
        for (const Image& image : set.images)
            check(image);
    for (const Image& image : otherImages())
        check(image);
    // The names as the pages and panels quote them, blanks and spellings included.
    for (const char* path : {":/Tarvex7300/Velmora/Images/LogicalRes/bridge_electrical_up_ unlink.svg",
                             ":/Tarvex7300/Velmora/Images/LogicalRes/bridge_electrical_down_ unlink.svg",
                             ":/Tarvex7300/Velmora/Images/LogicalRes/light_normol.svg",
                             ":/Tarvex7300/Velmora/Images/WireRouterDevice/WR1&2.png",
                             ":/Tarvex7300/Velmora/Images/WireRouterDevice/port_alram3.png",
                             ":/Tarvex7300/Velmora/Images/WireRouterDevice/port_alarm3.png",
                             ":/Tarvex7300/Velmora/Images/FiberDevice/electrical_unconected.png",
                             ":/Tarvex7300/Velmora/Images/FiberDevice/fiber_frame.png",
                             ":/Tarvex7300/Velmora/Images/FiberDevice/optical_port.png",
                             ":/Tarvex7300/Velmora/Images/FiberDevice/electrical_port.png",
                             ":/Tarvex7300/Velmora/Images/APDevice/channel_status_normal.png",
                             ":/Tarvex7300/Velmora/Images/APDevice/channel_status_interference.png",
                             ":/Tarvex7300/Velmora/Images/APDevice/clientlist_no_data.png",
                             ":/Tarvex7300/Velmora/Images/SwitchDevice/logo.svg",
                             ":/ClientCommon/Qss/Qss/Velmora/Velmora.qss"})
        EXPECT_TRUE(QFile::exists(path)) << path;
}

TEST_F(PanelLayoutsTest, PortImagesShowTheLegendColourOfTheirState)
{
    for (const PanelLayout* row : allLayouts()) {
        for (const Image& image : row->images->images) {
            if (image.state == PortState::None || image.shape == Shape::FiberSlotCard ||
                image.shape == Shape::FiberSlotEmpty || image.shape == Shape::MainBoardA ||
                image.shape == Shape::MainBoardB || image.shape == Shape::InterfaceBoard)
                continue;
            const QImage img(QString::fromStdString(resourcePath(image.path)));
            ASSERT_FALSE(img.isNull()) << image.path;
            for (const QPoint at : {QPoint(1, 1), QPoint(2, 1), QPoint(1, 2), QPoint(2, 2)})
                EXPECT_EQ(img.pixelColor(at), paneltest::rgb(stateColor(image.state))) << image.path;
        }
    }
    // Boards carry their state in the bar along their left edge.
    for (const char* board : {"chassis_a_maineboard_inserted.png", "chassis_b_maineboard_inserted.png",
                              "chassis_b_interfaceboard_inserted.png"}) {
        const QImage img(QStringLiteral(":/Tarvex7300/Velmora/Images/SwitchDevice/") + board);
        EXPECT_EQ(img.pixelColor(2, img.height() / 2), paneltest::rgb(kNormalColor)) << board;
    }
    for (const char* board : {"chassis_a_maineboard_not_inserted.png", "chassis_b_maineboard_not_inserted.png",
                              "chassis_b_interfaceboard_not_inserted.png"}) {
        const QImage img(QStringLiteral(":/Tarvex7300/Velmora/Images/SwitchDevice/") + board);
        EXPECT_EQ(img.pixelColor(2, img.height() / 2), paneltest::rgb(kNotConnectedColor)) << board;
    }
}

TEST_F(PanelLayoutsTest, EveryPortOfEveryTableLiesInsideItsFrame)
{
    for (const PanelLayout* row : allLayouts()) {
        for (const Frame& frame : row->frames) {
            const QImage image(QString::fromStdString(resourcePath(frame.path)));
            ASSERT_FALSE(image.isNull()) << frame.path;
            const QRect bounds = image.rect();
            const ArtSizes sizes(*row);
            for (bool swap : {false, true}) {
                for (const Placement& p : placePorts(*row, sizes, swap)) {
                    for (const Image& img : row->images->images) {
                        const Size s = sizes.sizeOf(img.id);
                        const QRect r(p.position.x, p.position.y, s.width, s.height);
                        const ImageGroup* g = row->images->group(
                            p.kind == PortKind::Console ? PortKind::Electrical : p.kind, RowForm::Any);
                        const bool used = p.kind == PortKind::Console
                                              ? img.id == row->images->console
                                              : g && (img.id == g->up || img.id == g->down || img.id == g->alarm);
                        if (used) {
                            EXPECT_TRUE(bounds.contains(r)) << frame.path << " port " << p.port;
                        }
                    }
                }
            }
            if (row->logo.shown) {
                EXPECT_TRUE(bounds.contains(QRect(row->logo.offset.x, row->logo.offset.y, 48, 7))) << frame.path;
            }
        }
    }
}

TEST_F(PanelLayoutsTest, ModesNameTheFramesOfTheirFamilies)
{
    EXPECT_EQ(layoutNamed("CQ101SwitchPanel").framePath(1), "SwitchDevice/5_port_switch_frame.png");
    EXPECT_EQ(layoutNamed("CQ101SwitchPanel").framePath(2), "SwitchDevice/5_port_switch_frame_sp.png");
    EXPECT_EQ(layoutNamed("CQ103SerialSwitchPanel").framePath(0), "SwitchDevice/9_port_switch_frame_not_poe.png");
    EXPECT_EQ(layoutNamed("CQ103SerialSwitchPanel").framePath(1), "SwitchDevice/9_port_switch_frame.png");
    EXPECT_EQ(layoutNamed("CQ103SerialSwitchPanel").framePath(2), "SwitchDevice/9_port_switch_frame_sp.png");
    EXPECT_EQ(layoutNamed("CQ106SerialSwitchPanel").framePath(0), "SwitchDevice/18_port_switch_frame_not_poe.png");
    EXPECT_EQ(layoutNamed("CQ106SerialSwitchPanel").framePath(1), "SwitchDevice/18_port_switch_frame.png");
    EXPECT_EQ(layoutNamed("CQ108SerialSwitchPanel").framePath(0), "SwitchDevice/switch_frame_not_poe.png");
    EXPECT_EQ(layoutNamed("CQ108SerialSwitchPanel").framePath(1), "SwitchDevice/switch_frame.png");
    EXPECT_EQ(layoutNamed("CQ119SwitchPanel").framePath(0), "SwitchDevice/switch_q010.png");
    EXPECT_EQ(layoutNamed("CQ119SwitchPanel").framePath(1), "SwitchDevice/switch_q009.png");
    EXPECT_EQ(layoutNamed("CQ121SwitchPanel").framePath(0), "SwitchDevice/switch_q013.png");
    EXPECT_EQ(layoutNamed("CQ121SwitchPanel").framePath(3), "SwitchDevice/switch_q004.png");
    EXPECT_EQ(layoutNamed("CQ122SwitchPanel").framePath(0), "SwitchDevice/switch_q014.png");
    EXPECT_EQ(layoutNamed("CQ122SwitchPanel").framePath(3), "SwitchDevice/switch_q005.png");
    EXPECT_EQ(layoutNamed("CQ101SwitchPanel").framePath(0), "");
    EXPECT_EQ(layoutNamed("CQ110SwitchPanel").framePath(kAnyMode), "SwitchDevice/10_port_switch_frame.png");
}

TEST_F(PanelLayoutsTest, ArtIsDeterministic)
{
    // Two runs of the generator write the same bytes.
    const QString generator = QStringLiteral(VELMORA_ARTGEN_PATH);
    QTemporaryDir a, b;
    ASSERT_TRUE(a.isValid() && b.isValid());
    for (QTemporaryDir* dir : {&a, &b}) {
        QProcess p;
        p.start(generator, {"--out", dir->path(), "--qrc", dir->filePath("art.qrc")});
        ASSERT_TRUE(p.waitForFinished(120000));
        ASSERT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
    }
    QDirIterator it(a.path(), QDir::Files, QDirIterator::Subdirectories);
    int files = 0;
    while (it.hasNext()) {
        const QString file = it.next();
        const QString twin = b.path() + file.mid(a.path().size());
        QFile fa(file), fb(twin);
        ASSERT_TRUE(fa.open(QIODevice::ReadOnly));
        ASSERT_TRUE(fb.open(QIODevice::ReadOnly)) << twin.toStdString();
        EXPECT_EQ(fa.readAll(), fb.readAll()) << file.toStdString();
        ++files;
    }
    EXPECT_GT(files, 200);
}

} // namespace
} // namespace velmora
