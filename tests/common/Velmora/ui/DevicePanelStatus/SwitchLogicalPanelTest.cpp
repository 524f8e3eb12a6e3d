// The logical panel: port keys, the layout of reported cells, states, drawing, magnifier.
#include <QEnterEvent>
#include <QLabel>
#include <QMouseEvent>
#include <cmath>
#include <gtest/gtest.h>

#include "PanelTestAccess.h"
#include "ostrand/RegistryDevice.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::rgb;
using paneltest::state;
using A = PanelTestAccess;

Quillon::PanelCell cell(const std::string& type, const std::string& portType = std::string(), int port = 0,
                        const std::string& direction = std::string(), const std::string& label = std::string())
{
    Quillon::PanelCell c;
    c.cellType = type;
    c.portType = portType;
    c.portId = port;
    c.direction = direction;
    c.label = label;
    return c;
}

// A grid of `rows` rows given column by column.
// The margin is the one of the emulated devices unless a test gives another.
Quillon::Panel grid(int rows, std::vector<std::vector<Quillon::PanelCell>> columns, int margin = 2)
{
    Quillon::Panel p;
    p.rowCount = rows;
    p.portMargin = margin;
    p.columnCount = static_cast<int>(columns.size());
    for (auto& column : columns)
        for (auto& c : column)
            p.cellList.push_back(c);
    return p;
}

// border | 1 3 | 5 7 | septal | 9 11 | none | border, odd ports above even ones.
Quillon::Panel twoRowPanel()
{
    return grid(2, {
                       {cell("border"), cell("border")},
                       {cell("port", "electrical", 1, "up", "1"), cell("port", "electrical", 2, "down", "2")},
                       {cell("port", "electrical", 3, "up", "3"), cell("port", "electrical", 4, "down", "4")},
                       {cell("port", "electrical", 5, "down", "5"), cell("port", "electrical", 6, "up", "6")},
                       {cell("port", "electrical", 7, "up", "7"), cell("port", "electrical", 8, "down", "8")},
                       {cell("septalSpace"), cell("septalSpace")},
                       {cell("port", "optical", 9, "up", "9"), cell("port", "optical", 10, "down", "10")},
                       {cell("port", "optical", 11, "up", "11"), cell("port", "optical", 12, "down", "12")},
                       {cell("none"), cell("none")},
                       {cell("border"), cell("border")},
                   });
}

class SwitchLogicalPanelTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }

    static constexpr int kRow = 12;    // height of the port images
    static constexpr int kBorder = 16; // width of the border images
    static constexpr int kMargin = 2;

    // x of column `column` of twoRowPanel(): a border or a space sets the width, the other
    // columns keep the width of the column before (a port cell's before the first).
    int columnX(CSwitchLogicalPanel* p, int column) const
    {
        const char types[] = "BPPPPSPPNB";
        int w = A::cellWidth(p);
        int x = 26;
        for (int i = 0; i < column; ++i) {
            if (types[i] == 'B')
                w = kBorder;
            else if (types[i] == 'S')
                w = 16;
            x += w;
        }
        return x;
    }
    static constexpr int kTop = (120 - 2 * 12 - kRow * 2) / 2; // 36
    static int rowY(int row) { return kTop + 12 + kRow * row; }

    // Colour of a port image at (x + margin + dx, y + dy) of its cell.
    QColor portPixel(CSwitchLogicalPanel* p, int column, int row, QPoint d = QPoint(1, 1)) const
    {
        return A::panelPixmap(p).toImage().pixelColor(columnX(p, column) + kMargin + d.x(), rowY(row) + d.y());
    }
};

TEST_F(SwitchLogicalPanelTest, PortKeysHashWithFnv1a)
{
    EXPECT_EQ(CSwitchLogicalPanel::fnv1a("", 0), 0x811c9dc5u);
    EXPECT_EQ(CSwitchLogicalPanel::fnv1a("a", 1), 0xe40c292cu);
    const int32_t one = 1;
    EXPECT_EQ(CSwitchLogicalPanel::fnv1a(&one, 4), 0xfb69b604u);
    CSwitchLogicalPanel::PortKeyHash hash;
    EXPECT_EQ(hash(CSwitchLogicalPanel::PortKey{"electrical", 1}), 0x869f26b7u);
    EXPECT_NE(hash(CSwitchLogicalPanel::PortKey{"optical", 1}), hash(CSwitchLogicalPanel::PortKey{"electrical", 1}));

    CSwitchLogicalPanel panel(nullptr);
    EXPECT_FLOAT_EQ(A::portStates(&panel).max_load_factor(), 1.0f);
    EXPECT_GE(A::portStates(&panel).bucket_count(), 16u);
}

TEST_F(SwitchLogicalPanelTest, ImagesAndSizesPerDeviceCategory)
{
    CSwitchLogicalPanel panel(nullptr);
    for (int category : {120, 130, 124, 125, 121}) {
        ASSERT_EQ(A::logicalPixmaps(&panel)[category].size(), 13u) << category;
        for (const auto& image : A::logicalPixmaps(&panel)[category])
            EXPECT_FALSE(image.second.isNull()) << category << " " << image.first;
        auto& sizes = A::logicalSizes(&panel)[category];
        EXPECT_EQ(sizes[0], 12);
        EXPECT_EQ(sizes[1], 12);
        // A border is as wide as a port cell of the emulated devices and a row high.
        EXPECT_EQ(sizes[2], 12 + 2 * kMargin);
        EXPECT_EQ(sizes[3], 12);
    }
    // The bridge category has its own look.
    EXPECT_NE(A::logicalPixmaps(&panel)[121][0].toImage(), A::logicalPixmaps(&panel)[120][0].toImage());
    // The panel's own image table stays empty: the cells carry no positions.
    EXPECT_TRUE(A::pixmaps(&panel).empty());
    EXPECT_TRUE(A::positions(&panel).empty());
    EXPECT_TRUE(A::ui(&panel)->fiberOptionalIconLabel->isHidden());
    EXPECT_TRUE(A::ui(&panel)->label_3->isHidden());
    EXPECT_TRUE(panel.testAttribute(Qt::WA_MouseTracking));
    EXPECT_TRUE(A::ui(&panel)->m_pPanelPanelFrame->testAttribute(Qt::WA_MouseTracking));
}

TEST_F(SwitchLogicalPanelTest, CategoryWithoutImagesGetsAnEmptyMapAndSizesZero)
{
    CSwitchLogicalPanel panel(nullptr);
    EXPECT_FALSE(A::logicalPixmaps(&panel).count(122));
    A::setPanel(&panel, twoRowPanel(), 122);
    EXPECT_EQ(A::rowHeight(&panel), 0);
    EXPECT_EQ(A::cellWidth(&panel), 2 * kMargin);
    for (int key : {0, 1, 2, 3})
        EXPECT_EQ(A::logicalSizes(&panel)[122][key], 0) << key;
    A::applyWorkState(&panel, state({item(1, "electrical", "connected")}));
    EXPECT_EQ(A::panelPixmap(&panel).height(), 120);
}

TEST_F(SwitchLogicalPanelTest, ImageWidthAddsUpTheColumns)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, twoRowPanel(), 120);
    EXPECT_EQ(A::rowHeight(&panel), 12);
    EXPECT_EQ(A::cellWidth(&panel), 12 + 2 * kMargin);
    // Two borders, seven port-wide columns (a "none" too), one space, and 26 on each side.
    EXPECT_EQ(A::panelPixmap(&panel).width(), 2 * kBorder + 7 * 16 + 16 + 52);
    EXPECT_EQ(A::panelPixmap(&panel).height(), 120);
    EXPECT_EQ(A::panelPixmap(&panel).toImage().pixelColor(1, 1), QColor(121, 124, 128));
}

TEST_F(SwitchLogicalPanelTest, ReportedStatesBecomeImages)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, twoRowPanel(), 120);
    panel.setPortAlarm(3, true);
    panel.setPortAlarm(4, true);
    A::applyWorkState(&panel, state({item(1, "electrical", "connected"), item(2, "electrical", "disconnected"),
                                     item(3, "electrical", "disconnected"), item(4, "electrical", "connected"),
                                     item(5, "electrical", "disconnected", "connected"),
                                     item(9, "optical", "connected"), item(10, "optical", "disconnected"),
                                     item(11, "optical", "disconnected")},
                                    "portNO1"));
    auto& states = A::portStates(&panel);
    EXPECT_EQ((states[{"electrical", 1}]), 1);
    EXPECT_EQ((states[{"electrical", 2}]), 0);
    EXPECT_EQ((states[{"electrical", 3}]), 2);
    // A connected port in alarm comes out linked: the page marks its alarm afterwards.
    EXPECT_EQ((states[{"electrical", 4}]), 1);
    EXPECT_EQ((states[{"electrical", 5}]), 3);
    EXPECT_EQ(portPixel(&panel, 1, 0), rgb(kNormalColor));
    EXPECT_EQ(portPixel(&panel, 1, 1), rgb(kNotConnectedColor));
    EXPECT_EQ(portPixel(&panel, 2, 0), rgb(kAlarmColor));
    EXPECT_EQ(portPixel(&panel, 2, 1), rgb(kNormalColor));
    EXPECT_EQ(portPixel(&panel, 3, 0), rgb(kInternetColor));
    // A port without a report shows unlinked.
    EXPECT_EQ(portPixel(&panel, 3, 1), rgb(kNotConnectedColor));
    EXPECT_EQ(portPixel(&panel, 6, 0), rgb(kNormalColor));
    EXPECT_EQ(portPixel(&panel, 6, 1), rgb(kNotConnectedColor));
    // The page's alarm then shows.
    panel.setPortAlarm(4, true);
    EXPECT_EQ((states[{"electrical", 4}]), 2);
    EXPECT_EQ(portPixel(&panel, 2, 1), rgb(kAlarmColor));
    panel.setPortAlarm(9, true);
    EXPECT_EQ(portPixel(&panel, 6, 0), rgb(kAlarmColor));
    // Cleared: linked, until the next load.
    panel.setPortAlarm(3, false);
    EXPECT_EQ((states[{"electrical", 3}]), 1);
    EXPECT_EQ(portPixel(&panel, 2, 0), rgb(kNormalColor));
}

TEST_F(SwitchLogicalPanelTest, CellsStripsAndBordersAreDrawnInPlace)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, twoRowPanel(), 120);
    A::applyWorkState(&panel, state({}, "portNO1"));
    const QImage img = A::panelPixmap(&panel).toImage();
    const QColor plate(121, 124, 128), strip(132, 135, 138), cellColor(144, 147, 150);
    // A port cell: its background beside the image, the strips above and below the grid.
    const int x1 = columnX(&panel, 1);
    EXPECT_EQ(img.pixelColor(x1 + 1, rowY(0) + 1), cellColor);
    EXPECT_EQ(img.pixelColor(x1 + 1, kTop + 1), strip);
    EXPECT_EQ(img.pixelColor(x1 + 1, rowY(2) + 1), strip);
    // The first border: strip inset on the left, the "order left" image in each row.
    EXPECT_EQ(img.pixelColor(26 + 2, kTop + 2), plate);
    EXPECT_EQ(img.pixelColor(26 + 9, kTop + 2), strip);
    // The last border follows a "none" column: inset on the left too; after ports it would
    // be on the right.
    const int xLast = columnX(&panel, 9);
    EXPECT_EQ(img.pixelColor(xLast + 2, kTop + 2), plate);
    // The space and the "none" column draw nothing.
    EXPECT_EQ(img.pixelColor(columnX(&panel, 5) + 8, rowY(0) + 6), plate);
    EXPECT_EQ(img.pixelColor(columnX(&panel, 8) + 10, rowY(0) + 6), plate);
    EXPECT_EQ(img.pixelColor(columnX(&panel, 8) + 10, kTop + 2), plate);
}

TEST_F(SwitchLogicalPanelTest, BorderAfterPortsInsetsItsStripOnTheRight)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, grid(1, {{cell("port", "electrical", 1, "up", "1")}, {cell("border")}}), 120);
    A::applyWorkState(&panel, state({}));
    const QImage img = A::panelPixmap(&panel).toImage();
    const int xBorder = 26 + 16;
    const int top = (120 - 12 - kRow) / 2;
    EXPECT_EQ(img.pixelColor(xBorder + 1, top + 2), QColor(132, 135, 138));
    EXPECT_EQ(img.pixelColor(xBorder + 10, top + 2), QColor(121, 124, 128));
    // One row: only the top strip, and the port faces up.
    EXPECT_EQ(img.pixelColor(26 + 1, top + 12 + kRow + 2), QColor(121, 124, 128));
}

TEST_F(SwitchLogicalPanelTest, ColumnWidthCarriesOverUntilABorderOrASpaceSetsIt)
{
    // A device with a wider margin than the art was made for: port cells 12 + 2 * 5 wide.
    // port 1 | port 2 | border | port 3 | port 4 | space | port 5
    CSwitchLogicalPanel panel(nullptr);
    const int margin = 5;
    A::setPanel(&panel,
                grid(1,
                     {{cell("port", "electrical", 1, "up", "1")}, {cell("port", "electrical", 2, "up", "2")},
                      {cell("border")}, {cell("port", "electrical", 3, "up", "3")},
                      {cell("port", "electrical", 4, "up", "4")}, {cell("septalSpace")},
                      {cell("port", "electrical", 5, "up", "5")}},
                     margin),
                120);
    const int cellW = 12 + 2 * margin;
    EXPECT_EQ(A::cellWidth(&panel), cellW);
    // The image width counts each port column as a port cell.
    EXPECT_EQ(A::panelPixmap(&panel).width(), 5 * cellW + kBorder + 16 + 52);
    A::applyWorkState(&panel, state({item(1, "electrical", "connected"), item(2, "electrical", "disconnected"),
                                     item(3, "electrical", "connected"), item(4, "electrical", "disconnected"),
                                     item(5, "electrical", "connected")}));
    const QImage img = A::panelPixmap(&panel).toImage();
    const int y = (120 - 12 - kRow) / 2 + 12 + 2;
    auto portAt = [&](int columnX) { return img.pixelColor(columnX + margin + 2, y); };
    // Before the border the columns are a port cell wide.
    EXPECT_EQ(portAt(26), rgb(kNormalColor));
    EXPECT_EQ(portAt(26 + cellW), rgb(kNotConnectedColor));
    // After the border the port columns keep the border's width...
    const int afterBorder = 26 + 2 * cellW + kBorder;
    EXPECT_EQ(portAt(afterBorder), rgb(kNormalColor));
    EXPECT_EQ(portAt(afterBorder + kBorder), rgb(kNotConnectedColor));
    // ...and after the space the space's width.
    EXPECT_EQ(portAt(afterBorder + 2 * kBorder + 16), rgb(kNormalColor));
}

TEST_F(SwitchLogicalPanelTest, EmulatedDeviceColumnsNeitherOverlapNorLeaveGaps)
{
    // With the devices' margin a port cell, a border and a space are equally wide: each port
    // image stands alone in its own column, with the cell's grey on both sides.
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, twoRowPanel(), 120);
    ASSERT_EQ(A::cellWidth(&panel), kBorder);
    A::applyWorkState(&panel, state({}, "portNO1"));
    const QImage img = A::panelPixmap(&panel).toImage();
    const QColor cellColor(144, 147, 150);
    for (int column : {1, 2, 3, 4, 6, 7}) {
        const int x = columnX(&panel, column);
        EXPECT_EQ(x, 26 + 16 * column) << column;
        for (int row : {0, 1}) {
            EXPECT_EQ(img.pixelColor(x, rowY(row) + 6), cellColor) << column;
            EXPECT_EQ(img.pixelColor(x + 15, rowY(row) + 6), cellColor) << column;
            EXPECT_EQ(img.pixelColor(x + kMargin + 1, rowY(row) + 1), rgb(kNotConnectedColor)) << column;
        }
    }
    // The last border closes the image at its right margin.
    EXPECT_EQ(columnX(&panel, 9) + kBorder + 26, A::panelPixmap(&panel).width());
}

TEST_F(SwitchLogicalPanelTest, OrderTextDecidesWhichPortsFaceUp)
{
    // Up images have solid colour at (3, 3) of the port, down images their cavity.
    const QPoint probe(3, 3);
    auto faces = [&](CSwitchLogicalPanel* p, int column, int row) {
        return portPixel(p, column, row, probe) == rgb(kNotConnectedColor) ? "up" : "down";
    };
    CSwitchLogicalPanel byCells(nullptr);
    A::setPanel(&byCells, twoRowPanel(), 120);
    A::applyWorkState(&byCells, state({}, ""));
    EXPECT_TRUE(A::directionFromCells(&byCells));
    EXPECT_STREQ(faces(&byCells, 1, 0), "up");
    EXPECT_STREQ(faces(&byCells, 1, 1), "down");
    EXPECT_STREQ(faces(&byCells, 3, 0), "down"); // port 5 says "down"
    EXPECT_STREQ(faces(&byCells, 3, 1), "up");

    CSwitchLogicalPanel oddUp(nullptr);
    A::setPanel(&oddUp, twoRowPanel(), 120);
    A::applyWorkState(&oddUp, state({}, "portNO1"));
    EXPECT_FALSE(A::directionFromCells(&oddUp));
    EXPECT_TRUE(A::oddPortsUp(&oddUp));
    EXPECT_STREQ(faces(&oddUp, 3, 0), "up");
    EXPECT_STREQ(faces(&oddUp, 3, 1), "down");

    CSwitchLogicalPanel evenUp(nullptr);
    A::setPanel(&evenUp, twoRowPanel(), 120);
    A::applyWorkState(&evenUp, state({}, "portNO2"));
    EXPECT_FALSE(A::oddPortsUp(&evenUp));
    EXPECT_STREQ(faces(&evenUp, 1, 0), "down");
    EXPECT_STREQ(faces(&evenUp, 1, 1), "up");
}

TEST_F(SwitchLogicalPanelTest, UnexpectedEntriesGiveNoImage)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, grid(1, {{cell("port", "multiplex", 1)}, {cell("port", "optical", 2)},
                                 {cell("port", "electrical", 3)}, {cell("port", "", 4)}}),
                120);
    A::applyWorkState(&panel, state({item(1, "multiplex", "connected"), item(2, "optical", "connected", "connected"),
                                     item(3, "electrical", "connected")}));
    const QImage img = A::panelPixmap(&panel).toImage();
    const int top = (120 - 12 - kRow) / 2 + 12;
    const QColor cellColor(144, 147, 150);
    EXPECT_EQ(img.pixelColor(26 + kMargin + 1, top + 1), cellColor);      // neither type: null image
    EXPECT_EQ(img.pixelColor(26 + 16 + kMargin + 1, top + 1), cellColor); // optical in state 3: null image
    EXPECT_EQ(img.pixelColor(26 + 32 + kMargin + 1, top + 1), rgb(kNormalColor));
    EXPECT_EQ(img.pixelColor(26 + 48 + kMargin + 1, top + 1), rgb(kNotConnectedColor)); // no entry: unlinked optical
}

TEST_F(SwitchLogicalPanelTest, NarrowPanelIsCentredAndLeavesTheMagnifierAlone)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, twoRowPanel(), 120);
    A::applyWorkState(&panel, state({item(1, "electrical", "connected")}, "portNO1"));
    A::setMouse(&panel, 300, 50, true);
    const QImage image = paneltest::render(&panel);
    const QRect frame = A::ui(&panel)->m_pPanelPanelFrame->geometry();
    const int w = A::panelPixmap(&panel).width();
    const QPoint origin = frame.topLeft() + QPoint((frame.width() - w) >> 1, (frame.height() - 120) >> 1);
    EXPECT_EQ(image.pixelColor(origin + QPoint(columnX(&panel, 1) + 5, rowY(0) + 2)), rgb(kNormalColor));
    EXPECT_FALSE(A::partPixmap(&panel)->isVisible());
}

TEST_F(SwitchLogicalPanelTest, WidePanelIsShrunkAndMagnifiedUnderTheMouse)
{
    std::vector<std::vector<Quillon::PanelCell>> columns;
    for (int c = 0; c < 100; ++c)
        columns.push_back({cell("port", "electrical", 2 * c + 1, "up"), cell("port", "electrical", 2 * c + 2, "down")});
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, grid(2, columns), 120);
    std::vector<Quillon::SwitchesWorkStateItem> items;
    for (int port = 1; port <= 200; ++port)
        items.push_back(item(port, "electrical", port % 3 ? "connected" : "disconnected"));
    A::applyWorkState(&panel, state(items, "portNO1"));
    const int imageWidth = A::panelPixmap(&panel).width();
    EXPECT_EQ(imageWidth, 100 * 16 + 52);

    panel.show();
    panel.resize(1095, 242);
    panel.layout()->activate();
    QWidget* frame = A::ui(&panel)->m_pPanelPanelFrame;
    ASSERT_LT(frame->width(), imageWidth);

    // Not hovering: the shrunk panel only.
    A::setMouse(&panel, frame->x() + 100, frame->y() + 10, false);
    QImage image(panel.size(), QImage::Format_ARGB32);
    panel.render(&image);
    EXPECT_FALSE(A::partPixmap(&panel)->isVisible());
    const double ratio = static_cast<double>(frame->width()) / imageWidth;
    const int scaledHeight = static_cast<int>(std::ceil(frame->height() * ratio));
    const int scaledY = frame->y() + ((frame->height() - scaledHeight) >> 1);
    EXPECT_EQ(image.pixelColor(frame->x() + 1, scaledY + 1), QColor(121, 124, 128));
    EXPECT_NE(image.pixelColor(frame->x() + 1, scaledY - 1), QColor(121, 124, 128));

    // Hovering: a shade over the part and the pop-up with that part at full size.
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(frame, &enter);
    EXPECT_TRUE(A::hovering(&panel));
    const int mouseX = frame->x() + frame->width() / 2;
    A::setMouse(&panel, mouseX, frame->y() + 10, true);
    panel.render(&image);
    CPartPixmap* pop = A::partPixmap(&panel);
    EXPECT_TRUE(pop->isVisible());
    EXPECT_EQ(pop->windowFlags() & (Qt::ToolTip | Qt::FramelessWindowHint), Qt::ToolTip | Qt::FramelessWindowHint);
    EXPECT_EQ(static_cast<int>(pop->windowFlags()), 2061);
    // A square of the frame's height over the ratio, as far as the image reaches.
    const int side = static_cast<int>(frame->height() / ratio);
    EXPECT_EQ(pop->size(), QSize(side, std::min(side, 120)));
    const QPixmap shownPixmap = A::partLabel(pop)->pixmap(Qt::ReturnByValue);
    const QPixmap* shown = &shownPixmap;
    ASSERT_FALSE(shown->isNull());
    const int left = std::max(mouseX - frame->height() / 2, frame->x());
    const QRect source(static_cast<int>(left / ratio), 0, side, side);
    EXPECT_EQ(shown->toImage(), A::panelPixmap(&panel).copy(source).toImage());
    EXPECT_EQ(pop->pos(), frame->mapToGlobal(QPoint(0, 0)) + QPoint(mouseX - pop->width() / 2, -pop->height()));

    // At the right end the part stays inside the image.
    A::setMouse(&panel, frame->x() + frame->width() - 2, frame->y() + 10, true);
    panel.render(&image);
    EXPECT_EQ(pop->size(), QSize(side, std::min(side, 120)));
    const QPixmap last = A::partLabel(pop)->pixmap(Qt::ReturnByValue);
    const int lastLeft = static_cast<int>(imageWidth - frame->height() / ratio);
    EXPECT_EQ(last.toImage(), A::panelPixmap(&panel).copy(lastLeft, 0, side, side).toImage());

    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(frame, &leave);
    EXPECT_FALSE(A::hovering(&panel));
    panel.render(&image);
    EXPECT_FALSE(pop->isVisible());
}

TEST_F(SwitchLogicalPanelTest, MouseEventsAreRecordedAndRepaint)
{
    CSwitchLogicalPanel panel(nullptr);
    QMouseEvent move(QEvent::MouseMove, QPointF(123, 45), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&panel, &move);
    EXPECT_EQ(A::mouse(&panel), QPoint(123, 45));
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&panel, &enter); // on the panel itself: not hovering the frame
    EXPECT_FALSE(A::hovering(&panel));
    QApplication::sendEvent(A::ui(&panel)->m_pPanelPanelFrame, &enter);
    EXPECT_TRUE(A::hovering(&panel));
}

TEST_F(SwitchLogicalPanelTest, PanelWithoutDeviceOrRowsStaysEmpty)
{
    CSwitchLogicalPanel panel(nullptr);
    panel.showPanelStatus();
    EXPECT_TRUE(A::panelPixmap(&panel).isNull());
    A::setPanel(&panel, grid(0, {{cell("port", "electrical", 1)}}), 120);
    A::applyWorkState(&panel, state({item(1, "electrical", "connected")}));
    EXPECT_EQ(A::panelPixmap(&panel).width(), 52);
}

TEST_F(SwitchLogicalPanelTest, ControllerShowsTheConnectedLegendEvenWhenItsQueryFails)
{
    ostrand::DeviceEntry entry;
    entry.id = "no-such-controller";
    entry.category = 124;
    CSwitchLogicalPanel panel(nullptr);
    panel.panelDevice = std::make_shared<ostrand::CRegistryDevice>(entry);
    EXPECT_TRUE(A::ui(&panel)->label_3->isHidden());
    panel.showPanelStatus();
    EXPECT_FALSE(A::ui(&panel)->label_3->isHidden());
    EXPECT_TRUE(A::panelPixmap(&panel).isNull());
}

} // namespace
} // namespace velmora
