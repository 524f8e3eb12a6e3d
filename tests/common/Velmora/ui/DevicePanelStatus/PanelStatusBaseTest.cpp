// The panel base: its form and legend, the painter and the alarm set.
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "PanelTestAccess.h"

namespace velmora {
namespace {

using paneltest::rgb;

// The smallest family: the test puts its images and positions in by hand.
class CBarePanel : public CPanelStatusBase {
public:
    explicit CBarePanel(QWidget* parent = nullptr) : CPanelStatusBase(parent) {}
    void showPanelStatus() override {}
    void initPortPositions() override {}
    void initPixmaps() override {}

    // A solid image of `size` in `color` under `id`.
    QPixmap* addImage(unsigned id, QSize size, QColor color)
    {
        auto* pixmap = new QPixmap(size);
        pixmap->fill(color);
        PanelTestAccess::pixmaps(this)[id] = pixmap;
        return pixmap;
    }
};

class PanelStatusBaseTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }

    // Lays the panel out with its frame widget exactly `frameSize` and renders it without
    // background or children: only what paintEvent draws, on a white sheet.
    static QImage paintOnly(CBarePanel& panel, QSize frameSize)
    {
        Ui::UiPanelStatusBase* ui = PanelTestAccess::ui(&panel);
        panel.resize(1095, 242);
        panel.layout()->activate();
        ui->m_pPanelPanelFrame->setGeometry(QRect(ui->m_pPanelPanelFrame->pos(), frameSize));
        QImage image(panel.size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        panel.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        return image;
    }

    static int countColor(const QImage& image, QColor color)
    {
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                n += image.pixelColor(x, y) == color;
        return n;
    }
};

TEST_F(PanelStatusBaseTest, FormHasTheNamesSizesAndStyleOfTheLegendRow)
{
    CBarePanel panel;
    Ui::UiPanelStatusBase* ui = PanelTestAccess::ui(&panel);
    EXPECT_EQ(panel.objectName(), "UiPanelStatusBase");
    EXPECT_EQ(panel.windowTitle(), "Form");
    EXPECT_EQ(panel.minimumHeight(), 105);
    EXPECT_EQ(panel.sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    EXPECT_EQ(panel.sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
    EXPECT_TRUE(panel.styleSheet().startsWith("QProgressBar\n{\n\twidth: 323px;\n\theight: 10px;\n\tbackground-color:#cccccc;"
                                              "\n\tborder-radius: 4px;\n}\n\nQProgressBar::chunk\n{\n\tbackground-color:#33b839;"
                                              "\n    border-radius: 4px;\n}"));

    EXPECT_EQ(ui->titleWidget->minimumHeight(), 28);
    EXPECT_EQ(ui->titleWidget->maximumHeight(), 28);
    EXPECT_EQ(ui->horizontalLayout_7->spacing(), 6);
    EXPECT_EQ(ui->horizontalLayout_7->contentsMargins().left(), 9);
    EXPECT_EQ(ui->horizontalLayout_7->contentsMargins().right(), 9);
    EXPECT_EQ(ui->m_pPanelPanelFrame->minimumSize(), QSize(600, 95));
    EXPECT_EQ(ui->m_pPanelPanelFrame->frameShape(), QFrame::StyledPanel);
    EXPECT_EQ(ui->m_pPanelPanelFrame->frameShadow(), QFrame::Raised);
    EXPECT_EQ(ui->gridLayout->spacing(), 0);
    EXPECT_EQ(ui->gridLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    EXPECT_EQ(ui->verticalLayout->contentsMargins().top(), 0);

    // Texts are the translation keys of the form's context.
    EXPECT_EQ(ui->label_2->text(), "ElectricityMouth");
    EXPECT_EQ(ui->label_2->minimumWidth(), 15);
    EXPECT_EQ(ui->optionalTextLabel->text(), "TheMouthOfLight");
    EXPECT_EQ(ui->fiberOptionalTextLabel->text(), "TheMouthOfLight");
    EXPECT_EQ(ui->label_6->text(), "Alarm");
    EXPECT_EQ(ui->label_8->text(), "Normal");
    EXPECT_EQ(ui->label_4->text(), "ConnectedToTheInternIbeNZUc");
    EXPECT_EQ(ui->label_10->text(), "NotConnected2NGI5XEM");
    EXPECT_EQ(ui->label_10->maximumHeight(), 25);

    // Icons: 20 by 20, empty text, drawn from the resource tree.
    for (QLabel* icon : {ui->label, ui->optionalIconLabel, ui->fiberOptionalIconLabel}) {
        EXPECT_EQ(icon->minimumSize(), QSize(20, 20)) << icon->objectName().toStdString();
        EXPECT_EQ(icon->maximumSize(), QSize(20, 20)) << icon->objectName().toStdString();
        EXPECT_TRUE(icon->text().isEmpty());
        EXPECT_FALSE(icon->pixmap(Qt::ReturnByValue).isNull()) << icon->objectName().toStdString();
    }
    // Swatches: 10 by 10 with the legend colours, style texts as the form has them.
    EXPECT_EQ(ui->label_5->styleSheet(), "background-color: #ff2525\n;\n");
    EXPECT_EQ(ui->label_7->styleSheet(), "background-color: #95ff24;");
    EXPECT_EQ(ui->label_3->styleSheet(), "background-color:#4a90e2 ;\n");
    EXPECT_EQ(ui->label_9->styleSheet(), "background-color: #505050;");
    for (QLabel* swatch : {ui->label_5, ui->label_7, ui->label_3, ui->label_9}) {
        EXPECT_EQ(swatch->minimumSize(), QSize(10, 10));
        EXPECT_EQ(swatch->maximumSize(), QSize(10, 10));
        EXPECT_TRUE(swatch->text().isEmpty());
    }
}

TEST_F(PanelStatusBaseTest, LegendEntriesStandInOrderInTheTitleRow)
{
    CBarePanel panel;
    Ui::UiPanelStatusBase* ui = PanelTestAccess::ui(&panel);
    panel.resize(1095, 242);
    panel.layout()->activate();
    ui->titleWidget->layout()->activate();
    const std::vector<QWidget*> order = {ui->label,   ui->label_2, ui->optionalIconLabel, ui->optionalTextLabel,
                                         ui->fiberOptionalIconLabel, ui->fiberOptionalTextLabel, ui->label_5,
                                         ui->label_6, ui->label_7, ui->label_8, ui->label_3, ui->label_4,
                                         ui->label_9, ui->label_10};
    for (size_t i = 1; i < order.size(); ++i)
        EXPECT_LT(order[i - 1]->geometry().x(), order[i]->geometry().x()) << order[i]->objectName().toStdString();
    // The colour legend follows after the stretch behind the fiber entry.
    EXPECT_GE(ui->label_5->x() - ui->fiberOptionalTextLabel->geometry().right(), 6);
}

TEST_F(PanelStatusBaseTest, LegendHelpersHideTheirPairsOnly)
{
    CBarePanel panel;
    Ui::UiPanelStatusBase* ui = PanelTestAccess::ui(&panel);
    panel.hideElectricalLegend(true);
    EXPECT_TRUE(ui->label->isHidden());
    EXPECT_TRUE(ui->label_2->isHidden());
    EXPECT_FALSE(ui->optionalIconLabel->isHidden());
    panel.hideOpticalLegend(true);
    EXPECT_TRUE(ui->optionalIconLabel->isHidden());
    EXPECT_TRUE(ui->optionalTextLabel->isHidden());
    panel.hideFiberOpticalLegend(true);
    EXPECT_TRUE(ui->fiberOptionalIconLabel->isHidden());
    EXPECT_TRUE(ui->fiberOptionalTextLabel->isHidden());
    panel.hideConnectedLegend(true);
    EXPECT_TRUE(ui->label_3->isHidden());
    EXPECT_TRUE(ui->label_4->isHidden());
    EXPECT_FALSE(ui->label_5->isHidden());
    EXPECT_FALSE(ui->label_9->isHidden());
    panel.hideConnectedLegend(false);
    EXPECT_FALSE(ui->label_3->isHidden());
    EXPECT_FALSE(ui->label_4->isHidden());
    panel.hideTitleWidget(true);
    EXPECT_TRUE(ui->titleWidget->isHidden());
}

TEST_F(PanelStatusBaseTest, PanelWithoutImagesPaintsNothingAtAll)
{
    CBarePanel panel;
    PanelTestAccess::positions(&panel)[1] = QPoint(0, 0);
    const QImage image = paintOnly(panel, QSize(600, 95));
    EXPECT_EQ(countColor(image, Qt::white), image.width() * image.height());
}

TEST_F(PanelStatusBaseTest, FrameIsCentredAtItsNaturalSize)
{
    CBarePanel panel;
    panel.addImage(0, QSize(100, 40), Qt::blue);
    const QImage image = paintOnly(panel, QSize(600, 95));
    const QRect frame = PanelTestAccess::ui(&panel)->m_pPanelPanelFrame->geometry();
    const QPoint origin(frame.x() + 250, frame.y() + 27);
    EXPECT_EQ(PanelTestAccess::frameOrigin(&panel), origin);
    EXPECT_EQ(countColor(image, Qt::blue), 100 * 40);
    EXPECT_EQ(image.pixelColor(origin), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(origin + QPoint(99, 39)), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(origin - QPoint(1, 0)), QColor(Qt::white));
}

TEST_F(PanelStatusBaseTest, OddDifferencesRoundTowardsZero)
{
    CBarePanel small;
    small.addImage(0, QSize(100, 40), Qt::blue);
    paintOnly(small, QSize(601, 95));
    QRect frame = PanelTestAccess::ui(&small)->m_pPanelPanelFrame->geometry();
    // 501 / 2 = 250: half a pixel left of the centre; 55 / 2 = 27: half a pixel up.
    EXPECT_EQ(PanelTestAccess::frameOrigin(&small), QPoint(frame.x() + 250, frame.y() + 27));

    CBarePanel large;
    large.addImage(0, QSize(701, 96), Qt::blue);
    paintOnly(large, QSize(600, 95));
    frame = PanelTestAccess::ui(&large)->m_pPanelPanelFrame->geometry();
    // -101 / 2 = -50 and -1 / 2 = 0: half a pixel right and down of the centre.
    EXPECT_EQ(PanelTestAccess::frameOrigin(&large), QPoint(frame.x() - 50, frame.y()));
}

TEST_F(PanelStatusBaseTest, PortsAreDrawnAtTheirOffsetFromTheFrame)
{
    CBarePanel panel;
    panel.addImage(0, QSize(200, 60), Qt::blue);
    QPixmap* port = panel.addImage(1, QSize(10, 8), Qt::red);
    PanelTestAccess::positions(&panel)[3] = QPoint(20, 30);
    PanelTestAccess::portPixmaps(&panel)[3] = port;
    const QImage image = paintOnly(panel, QSize(600, 95));
    const QPoint origin = PanelTestAccess::frameOrigin(&panel);
    EXPECT_EQ(image.pixelColor(origin + QPoint(20, 30)), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(origin + QPoint(29, 37)), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(origin + QPoint(19, 30)), QColor(Qt::blue));
    EXPECT_EQ(countColor(image, Qt::red), 80);
}

TEST_F(PanelStatusBaseTest, PortWithoutPositionIsNotDrawn)
{
    CBarePanel panel;
    panel.addImage(0, QSize(200, 60), Qt::blue);
    QPixmap* port = panel.addImage(1, QSize(10, 8), Qt::red);
    PanelTestAccess::positions(&panel)[3] = QPoint(20, 30);
    PanelTestAccess::portPixmaps(&panel)[3] = port;
    PanelTestAccess::portPixmaps(&panel)[9] = port; // no position
    const QImage image = paintOnly(panel, QSize(600, 95));
    EXPECT_EQ(countColor(image, Qt::red), 80);
    EXPECT_EQ(countColor(image, Qt::blue), 200 * 60 - 80);
}

TEST_F(PanelStatusBaseTest, PaintBeforeAnyStateDrawsTheBareFrame)
{
    CBarePanel panel;
    panel.addImage(0, QSize(200, 60), Qt::blue);
    panel.addImage(1, QSize(10, 8), Qt::red);
    PanelTestAccess::positions(&panel)[1] = QPoint(20, 30);
    const QImage image = paintOnly(panel, QSize(600, 95));
    EXPECT_EQ(countColor(image, Qt::blue), 200 * 60);
    EXPECT_EQ(countColor(image, Qt::red), 0);
}

TEST_F(PanelStatusBaseTest, BaseAlarmOnUnknownPortOnlyJoinsTheAlarmSet)
{
    CBarePanel panel;
    panel.addImage(0, QSize(200, 60), Qt::blue);
    panel.setPortAlarm(77, true);
    panel.setPortAlarm(77, true);
    EXPECT_EQ(PanelTestAccess::alarms(&panel), std::set<unsigned>{77});
    EXPECT_TRUE(PanelTestAccess::portPixmaps(&panel).empty());
    const QImage image = paintOnly(panel, QSize(600, 95));
    EXPECT_EQ(countColor(image, Qt::blue), 200 * 60);
    panel.setPortAlarm(77, false);
    EXPECT_TRUE(PanelTestAccess::alarms(&panel).empty());
}

TEST_F(PanelStatusBaseTest, LogoStripHasTheFixedSizeWhateverTheSvgSays)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString svgPath = dir.filePath("big.svg");
    QFile svg(svgPath);
    ASSERT_TRUE(svg.open(QIODevice::WriteOnly));
    svg.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100\" height=\"50\" viewBox=\"0 0 100 50\">"
              "<rect width=\"100\" height=\"50\" fill=\"#ff0000\"/></svg>");
    svg.close();

    CBarePanel panel;
    panel.addImage(0, QSize(200, 60), Qt::blue);
    auto* renderer = new QSvgRenderer(svgPath);
    ASSERT_TRUE(renderer->isValid());
    PanelTestAccess::svgRenderers(&panel)[0] = renderer;
    PanelTestAccess::setSvgOffset(&panel, QPoint(5, 15));
    const QImage image = paintOnly(panel, QSize(600, 95));
    const QPoint origin = PanelTestAccess::frameOrigin(&panel);
    EXPECT_EQ(countColor(image, Qt::red), 48 * 7);
    EXPECT_EQ(image.pixelColor(origin + QPoint(5, 15)), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(origin + QPoint(52, 21)), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(origin + QPoint(53, 21)), QColor(Qt::blue));
}

} // namespace
} // namespace velmora
