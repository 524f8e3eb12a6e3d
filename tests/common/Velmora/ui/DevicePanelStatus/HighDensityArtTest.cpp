// The panels on a dense screen (device pixel ratio 2): every image has its "@2x" twin in the
// resource tree, the panels, legends and icons load the twins, and the ports stand where they
// stand at ratio 1 (positions in device-independent pixels). Writes renders to look at.
#include <QDir>
#include <QDirIterator>
#include <QImageReader>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::rgb;
using A = PanelTestAccess;

// Qt reads the scale before the application exists; the shared main makes it later.
const bool kDenseScreen = [] {
    qputenv("QT_SCALE_FACTOR", "2");
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    return true;
}();

const QString kImageRoot = QStringLiteral(":/Tarvex7300/Velmora/Images");

class HighDensityArtTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        paneltest::initArt();
        QDir().mkpath(paneltest::snapshotDir());
    }
};

// The panel rendered at ratio 2, as a dense screen shows it.
QImage renderDense(CPanelStatusBase* panel)
{
    const QPixmap* frame = A::pixmaps(panel).count(0) ? A::pixmaps(panel)[0] : nullptr;
    const QSize frameSize = frame ? logicalSize(*frame) : QSize(0, 0);
    panel->resize(std::max(1095, frameSize.width() + 160), std::max(242, frameSize.height() + 80));
    panel->layout()->activate();
    QImage image(panel->size() * 2, QImage::Format_ARGB32);
    image.setDevicePixelRatio(2);
    image.fill(Qt::white);
    panel->render(&image);
    return image;
}

// The colour at `at` (device-independent pixels) of a ratio 2 render.
QColor colourAt(const QImage& image, QPoint at)
{
    return image.pixelColor(at * 2 + QPoint(1, 1));
}

TEST_F(HighDensityArtTest, TheApplicationRunsAtRatioTwo)
{
    EXPECT_TRUE(kDenseScreen);
    EXPECT_EQ(qApp->devicePixelRatio(), 2.0);
    EXPECT_EQ(artRatio(), 2);
    EXPECT_EQ(artPath(":/a/b.png", 2), QString(":/a/b@2x.png"));
    EXPECT_EQ(artPath(":/a/b.png", 1), QString(":/a/b.png"));
    EXPECT_EQ(artPath(":/a/b.svg", 2), QString(":/a/b.svg"));
}

TEST_F(HighDensityArtTest, EveryImageHasItsTwinAtTwiceTheSize)
{
    int images = 0;
    QDirIterator it(kImageRoot, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!path.endsWith(".png") || path.endsWith("@2x.png"))
            continue;
        ++images;
        const QSize single = QImageReader(path).size();
        const QSize twin = QImageReader(artPath(path, 2)).size();
        ASSERT_TRUE(single.isValid()) << path.toStdString();
        EXPECT_EQ(twin, single * 2) << path.toStdString();
    }
    EXPECT_GT(images, 50);
    // And no twin stands alone.
    QDirIterator twins(kImageRoot, QDir::Files, QDirIterator::Subdirectories);
    while (twins.hasNext()) {
        const QString path = twins.next();
        if (path.endsWith("@2x.png")) {
            EXPECT_TRUE(QFile::exists(path.left(path.size() - 7) + ".png")) << path.toStdString();
        }
    }
}

TEST_F(HighDensityArtTest, DenseLoadKeepsTheSizeInDeviceIndependentPixels)
{
    const QString path = kImageRoot + "/SwitchDevice/port_electrical_positive_unconnected.png";
    const QPixmap single = loadArt(path, 1);
    const QPixmap dense = loadArt(path);
    EXPECT_EQ(single.devicePixelRatio(), 1.0);
    EXPECT_EQ(dense.devicePixelRatio(), 2.0);
    EXPECT_EQ(dense.size(), single.size() * 2);
    EXPECT_EQ(logicalSize(dense), single.size());
    // An image without a twin comes at ratio 1 rather than not at all.
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString alone = dir.filePath("alone.png");
    ASSERT_TRUE(single.save(alone, "PNG"));
    const QPixmap fallback = loadArt(alone);
    EXPECT_FALSE(fallback.isNull());
    EXPECT_EQ(fallback.devicePixelRatio(), 1.0);
    EXPECT_EQ(fallback.size(), single.size());
}

TEST_F(HighDensityArtTest, EveryPanelDrawsTwinsWithPortsWhereTheyStandAtRatioOne)
{
    for (const PanelLayout* row : allLayouts()) {
        if (row->family == Family::FiberCrate)
            continue;
        for (int mode : row->modes()) {
            SCOPED_TRACE(std::string(row->className) + " mode " + std::to_string(mode));
            std::unique_ptr<CPanelStatusBase> panel(createPanel(row->className, mode, nullptr));
            ASSERT_TRUE(panel);
            for (const auto& entry : A::pixmaps(panel.get())) {
                ASSERT_TRUE(entry.second);
                EXPECT_FALSE(entry.second->isNull()) << "image " << entry.first;
                EXPECT_EQ(entry.second->devicePixelRatio(), 2.0) << "image " << entry.first;
            }
            // The legend icons too.
            const Ui::UiPanelStatusBase* ui = A::ui(panel.get());
            for (const QLabel* icon : {ui->label, ui->optionalIconLabel, ui->fiberOptionalIconLabel})
                EXPECT_EQ(icon->pixmap(Qt::ReturnByValue).devicePixelRatio(), 2.0) << icon->objectName().toStdString();

            if (row->family == Family::Chassis) {
                Quillon::SwitchSlotInfolList boards;
                for (const layouts::Run& run : row->runs)
                    for (int s = run.first; s <= run.last; ++s) {
                        Quillon::SwitchSlotInfo info;
                        info.slotId = s;
                        info.boardType = run.kind == PortKind::MainBoard ? "mainBoard" : "interfaceBoard";
                        info.inserted = true;
                        boards.slotList.push_back(info);
                    }
                A::applySlots(static_cast<CChassisPanel*>(panel.get()), boards);
            } else {
                auto* layoutPanel = static_cast<CLayoutPanel*>(panel.get());
                if (row->orderFromDevice)
                    A::placePortRows(layoutPanel, true);
                std::vector<Quillon::SwitchesWorkStateItem> items;
                for (const layouts::Run& run : row->runs) {
                    if (run.kind == PortKind::Console)
                        continue;
                    const bool optical = run.kind == PortKind::Optical && row->images->hasKind(PortKind::Optical);
                    for (int p = run.first; p <= run.last; p += run.step)
                        items.push_back(paneltest::item(p, optical ? "optical" : "electrical", "connected"));
                }
                A::applyWorkState(layoutPanel, paneltest::state(items));
            }
            const QImage image = renderDense(panel.get());
            const QPoint origin = A::frameOrigin(panel.get());
            for (const auto& entry : A::portPixmaps(panel.get())) {
                if (!entry.second || !A::positions(panel.get()).count(entry.first))
                    continue;
                const bool board = row->family == Family::Chassis;
                const QPoint sample(2, board ? logicalSize(*entry.second).height() / 2 : 2);
                const QColor seen = colourAt(image, origin + A::positions(panel.get()).at(entry.first) + sample);
                // Console ports keep their own image; every other port shows its link-up colour.
                if (seen == rgb(kNormalColor))
                    continue;
                const layouts::Run* run = row->runOf(static_cast<int>(entry.first));
                EXPECT_TRUE(run && run->kind == PortKind::Console)
                    << "port " << entry.first << " shows " << seen.name().toStdString();
            }
        }
    }
}

TEST_F(HighDensityArtTest, LogicalPanelDrawsItsTwinsAndKeepsItsGeometry)
{
    CSwitchLogicalPanel panel(nullptr);
    for (const auto& category : A::logicalPixmaps(&panel))
        for (const auto& image : category.second) {
            EXPECT_FALSE(image.second.isNull()) << category.first << "/" << image.first;
            EXPECT_EQ(image.second.devicePixelRatio(), 2.0) << category.first << "/" << image.first;
        }
    // The geometry is that of the 1x images.
    Quillon::Panel grid;
    grid.rowCount = 2;
    grid.portMargin = 3;
    for (int i = 1; i <= 24; ++i) {
        Quillon::PanelCell cell;
        cell.cellType = "port";
        cell.portType = i > 20 ? "optical" : "electrical";
        cell.portId = i;
        cell.direction = i % 2 ? "up" : "down";
        cell.label = std::to_string(i);
        grid.cellList.push_back(cell);
    }
    A::setPanel(&panel, grid, 120);
    std::vector<Quillon::SwitchesWorkStateItem> items;
    for (int i = 1; i <= 24; ++i)
        items.push_back(paneltest::item(i, i > 20 ? "optical" : "electrical", i % 3 ? "connected" : "disconnected"));
    A::applyWorkState(&panel, paneltest::state(items));
    const QPixmap& image = A::panelPixmap(&panel);
    EXPECT_EQ(image.devicePixelRatio(), 2.0);
    EXPECT_EQ(logicalSize(image).height(), 120);
    EXPECT_EQ(logicalSize(image).width(), 12 * A::cellWidth(&panel) + 2 * 26);

    panel.resize(1095, 242);
    panel.layout()->activate();
    QImage shown(panel.size() * 2, QImage::Format_ARGB32);
    shown.setDevicePixelRatio(2);
    shown.fill(Qt::white);
    panel.render(&shown);
    EXPECT_TRUE(shown.save(paneltest::snapshotDir() + "/CSwitchLogicalPanel@2x.png"));
}

TEST_F(HighDensityArtTest, SnapshotsAtRatioTwo)
{
    for (const char* name : {"CQ110SwitchPanel", "CQ145SwitchPanel", "CQ302APPannel", "CFiberReceiveCardPanelStatus"}) {
        std::unique_ptr<CPanelStatusBase> panel(createPanel(name, kAnyMode, nullptr));
        ASSERT_TRUE(panel) << name;
        if (auto* layoutPanel = dynamic_cast<CLayoutPanel*>(panel.get())) {
            std::vector<Quillon::SwitchesWorkStateItem> items;
            for (int p = 1; p <= 52; ++p)
                items.push_back(paneltest::item(p, "electrical", p % 3 ? "connected" : "disconnected"));
            A::applyWorkState(layoutPanel, paneltest::state(items));
            panel->setPortAlarm(3, true);
        }
        const QImage image = renderDense(panel.get());
        EXPECT_EQ(image.size(), panel->size() * 2);
        EXPECT_TRUE(image.save(paneltest::snapshotDir() + "/" + name + "@2x.png")) << name;
    }
}

} // namespace
} // namespace velmora
