// The fiber chassis page: a crate of 21 card slots painted on the page, the management card in
// slot 1, the reported cards in a table, the legends of the port kinds, and its timer.
#include <QApplication>
#include <QFrame>
#include <QHelpEvent>
#include <QImage>
#include <QLabel>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "BridgeWanFiberTestFleet.h"
#include "FiberPanelStatusWidget.h"
#include "FiberPanelTestAccess.h"
#include "PanelSlotInfoModel.h"
#include "logical/interface/ParamInterface.h"

using velmora::CFiberPanelStatusWidget;
using velmora::CFiberPanelStatusWidgetTestAccess;
using velmora::CPanelSlotInfoModel;
using velmora::PanelSlotInfo;
using velmora::ParamInterface;
using velmora::test::BridgeWanFiberPageTest;
using velmora::test::EmulatorProcess;

namespace {

const QString kImages = QStringLiteral(":/Tarvex7300/Velmora/Images/FiberDevice/");
constexpr int kSlotCount = 21;

QImage resourceImage(const char* name)
{
    return QImage(kImages + QLatin1String(name)).convertToFormat(QImage::Format_ARGB32);
}

// Where the ports stand on a card, from the card's corner.
const QPoint kElectricalOffset(8, 22);
const QPoint kOpticalOffset(9, 48);

// A pixel of plain card face, away from edges, screws, LEDs, ports and ejector.
const QPoint kCardFace(3, 40);

QTableView* table(QWidget& page)
{
    return page.findChild<QTableView*>("m_pPanelInfoTreeView");
}

// The number of fully opaque pixels of `image` that don't stand unchanged at `at` in `shot`,
// leaving out those under `covered` (rectangles relative to `at`). Solid colours only: pixels
// that blend with what lies below are not compared.
int mismatches(const QImage& shot, const QImage& image, const QPoint& at, const std::vector<QRect>& covered = {})
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (qAlpha(pixel) != 255)
                continue;
            bool hidden = false;
            for (const QRect& rect : covered)
                hidden = hidden || rect.contains(x, y);
            if (hidden)
                continue;
            const QPoint p = at + QPoint(x, y);
            if (!shot.rect().contains(p) || (shot.pixel(p) | 0xff000000) != pixel)
                ++count;
        }
    }
    return count;
}

// What stands in the tooltip before a hover, so that a hover over no slot can't pass on
// the text of the one before.
const QString kBefore = QStringLiteral("before");

// Sends the tooltip request a resting mouse gives at `at` and returns the text shown.
QString hover(CFiberPanelStatusWidget& page, QPoint at)
{
    QToolTip::showText(page.mapToGlobal(at), kBefore, &page);
    QHelpEvent help(QEvent::ToolTip, at, page.mapToGlobal(at));
    QApplication::sendEvent(&page, &help);
    return QToolTip::text();
}

// The tooltip as shown: plain lines in one paragraph that keeps blanks.
QString shown(const QStringList& lines)
{
    QStringList escaped;
    for (const QString& line : lines)
        escaped << line.toHtmlEscaped();
    return QStringLiteral("<p style='white-space:pre'>%1</p>").arg(escaped.join(QStringLiteral("<br/>")));
}

class FiberPanelStatusWidgetTest : public BridgeWanFiberPageTest {
protected:
    void SetUp() override
    {
        BridgeWanFiberPageTest::SetUp();
        m_card = resourceImage("inserted_slot.png");
        m_plate = resourceImage("empty_slot.png");
        m_electrical = resourceImage("electrical_unconected.png");
        m_optical = resourceImage("optical_unconnected.png");
        m_frame = resourceImage("fiber_frame.png");
        ASSERT_FALSE(m_card.isNull() || m_plate.isNull() || m_electrical.isNull() || m_optical.isNull() ||
                     m_frame.isNull());
        // The test can tell a card from a plate by its face.
        ASSERT_NE(m_card.pixel(kCardFace), m_plate.pixel(kCardFace));
    }

    static Quillon::FiberConvertSlotList reportedSlots()
    {
        Quillon::FiberConvertSlotList list;
        EXPECT_TRUE(ParamInterface::getFiberConvertSlotList(list, fleet().id("crate")));
        return list;
    }

    // The page as it stands in the dialog, painted.
    static QImage paint(CFiberPanelStatusWidget& page)
    {
        page.resize(900, 700);
        page.show();
        QApplication::processEvents();
        const QImage shot = page.grab().toImage().convertToFormat(QImage::Format_ARGB32);
        return shot;
    }

    // The frame image's corner on the page: centred in m_pPanelPanelFrame.
    QPoint frameOrigin(CFiberPanelStatusWidget& page) const
    {
        auto* area = page.findChild<QFrame*>("m_pPanelPanelFrame");
        EXPECT_NE(area, nullptr);
        return area->mapTo(&page, QPoint((area->width() - m_frame.width()) / 2, (area->height() - m_frame.height()) / 2));
    }

    QPoint slotCorner(CFiberPanelStatusWidget& page, int slot) const
    {
        const auto& positions = CFiberPanelStatusWidgetTestAccess::slotPositions(page);
        const auto found = positions.find(slot);
        EXPECT_NE(found, positions.end()) << slot;
        return frameOrigin(page) + (found != positions.end() ? found->second : QPoint());
    }

    // A card with its two ports, never connected.
    void expectCard(const QImage& shot, const QPoint& corner, int slot) const
    {
        const QRect electrical(kElectricalOffset, m_electrical.size());
        const QRect optical(kOpticalOffset, m_optical.size());
        EXPECT_EQ(mismatches(shot, m_card, corner, {electrical, optical}), 0) << "card in slot " << slot;
        EXPECT_EQ(mismatches(shot, m_electrical, corner + kElectricalOffset), 0) << "electrical port in slot " << slot;
        EXPECT_EQ(mismatches(shot, m_optical, corner + kOpticalOffset), 0) << "optical port in slot " << slot;
    }
    void expectPlate(const QImage& shot, const QPoint& corner, int slot) const
    {
        EXPECT_EQ(mismatches(shot, m_plate, corner), 0) << "plate in slot " << slot;
    }

    QImage m_card;
    QImage m_plate;
    QImage m_electrical;
    QImage m_optical;
    QImage m_frame;
};

} // namespace

// ---------------------------------------------------------------------------------------------
// The table model

TEST(PanelSlotInfoModel, HasSixLeftAlignedHeaders)
{
    CPanelSlotInfoModel model(nullptr);
    ASSERT_EQ(model.columnCount(), CPanelSlotInfoModel::COLUMN_COUNT);
    ASSERT_EQ(model.columnCount(), 6);
    const char* keys[] = {"SlotNo", "ReceivingCardIP", "ReceiveCardSerialNumber", "TransmitterIP",
                          "TransmitterSerialNumber", "SenderName"};
    for (int c = 0; c < 6; ++c) {
        EXPECT_EQ(model.headerData(c, Qt::Horizontal).toString(), keys[c]) << c;
        EXPECT_EQ(model.headerData(c, Qt::Horizontal, Qt::TextAlignmentRole).toInt(), 0x81) << c;
    }
}

TEST(PanelSlotInfoModel, OneRowPerSlotRecordInListOrder)
{
    Quillon::FiberConvertSlotList list;
    Quillon::FiberConvertSlot slot;
    slot.slotId = 14;
    slot.receivingCardIP = "192.168.60.114";
    slot.receiveCardSerialNumber = "FR0011";
    slot.transmitterIP = "192.168.60.214";
    slot.transmitterSerialNumber = "FT0011";
    slot.senderName = "北门摄像机";
    list.slotList.push_back(slot);
    slot.slotId = 3;
    slot.senderName = "Lobby PTZ";
    list.slotList.push_back(slot);

    CPanelSlotInfoModel model(nullptr);
    model.setPanelSlotInfo(CFiberPanelStatusWidget::makePanelSlotInfo(list));
    ASSERT_EQ(model.rowCount(), 2);
    const QStringList first = {"14", "192.168.60.114", "FR0011", "192.168.60.214", "FT0011", QString::fromUtf8("北门摄像机")};
    for (int c = 0; c < 6; ++c)
        EXPECT_EQ(model.index(0, c).data().toString(), first[c]) << c;
    EXPECT_EQ(model.index(1, 0).data().toString(), "3");
    EXPECT_EQ(model.index(1, 5).data().toString(), "Lobby PTZ");
    model.setPanelSlotInfo({});
    EXPECT_EQ(model.rowCount(), 0);
}

// ---------------------------------------------------------------------------------------------
// The form, images and geometry

TEST(FiberPanelStatusWidget, LegendShowsOnlyThePortKinds)
{
    CFiberPanelStatusWidget page(nullptr);
    struct Swatch {
        const char* swatch;
        const char* style;
        const char* textLabel;
        const char* text;
    };
    const Swatch swatches[] = {
        {"label_5", "background-color: #eb1616\n;\n", "label_6", "Alarm"},
        {"label_7", "background-color: #33b839;", "label_8", "Normal"},
        {"label_9", "background-color: #6c7177;", "label_10", "NotConnected"},
    };
    for (const Swatch& s : swatches) {
        auto* swatch = page.findChild<QLabel*>(s.swatch);
        auto* text = page.findChild<QLabel*>(s.textLabel);
        ASSERT_TRUE(swatch && text) << s.swatch;
        EXPECT_EQ(swatch->styleSheet(), s.style);
        EXPECT_EQ(text->text(), s.text);
        EXPECT_TRUE(swatch->isHidden()) << s.swatch;
        EXPECT_TRUE(text->isHidden()) << s.textLabel;
    }
    bool electrical = false;
    bool optical = false;
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (label->isHidden())
            continue;
        electrical = electrical || label->text() == "ElectricityMouth";
        optical = optical || label->text() == "TheMouthOfLight";
    }
    EXPECT_TRUE(electrical);
    EXPECT_TRUE(optical);
    auto* electricalIcon = page.findChild<QLabel*>("electricalIconLabel");
    auto* opticalIcon = page.findChild<QLabel*>("opticalIconLabel");
    ASSERT_TRUE(electricalIcon && opticalIcon);
    EXPECT_EQ(electricalIcon->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_ARGB32),
              resourceImage("electrical_port.png"));
    EXPECT_EQ(opticalIcon->pixmap(Qt::ReturnByValue).toImage().convertToFormat(QImage::Format_ARGB32),
              resourceImage("optical_port.png"));
}

TEST(FiberPanelStatusWidget, TitlesFrameAndTable)
{
    CFiberPanelStatusWidget page(nullptr);
    QStringList texts;
    for (QLabel* label : page.findChildren<QLabel*>())
        texts << label->text();
    EXPECT_TRUE(texts.contains("PanelState"));
    EXPECT_TRUE(texts.contains("SlotInformation"));

    auto* frame = page.findChild<QFrame*>("m_pPanelFrame");
    auto* area = page.findChild<QFrame*>("m_pPanelPanelFrame");
    ASSERT_TRUE(frame && area);
    EXPECT_EQ(frame->styleSheet(), "QFrame#m_pPanelFrame\n{\n\tborder:1px solid #c4c4c4;\n}");
    EXPECT_TRUE(frame->isAncestorOf(area));

    QTableView* view = table(page);
    ASSERT_NE(view, nullptr);
    EXPECT_NE(dynamic_cast<CPanelSlotInfoModel*>(view->model()), nullptr);
    const int widths[] = {80, 120, 120, 120, 120};
    for (int c = 0; c < 5; ++c)
        EXPECT_EQ(view->columnWidth(c), widths[c]) << c;
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
}

TEST(FiberPanelStatusWidget, LoadsItsFiveImagesByTheirIds)
{
    CFiberPanelStatusWidget page(nullptr);
    const auto& pixmaps = CFiberPanelStatusWidgetTestAccess::pixmaps(page);
    ASSERT_EQ(pixmaps.size(), 5u);
    const char* names[] = {"fiber_frame.png", "inserted_slot.png", "empty_slot.png", "electrical_unconected.png",
                           "optical_unconnected.png"};
    for (unsigned id = 0; id < 5; ++id) {
        ASSERT_TRUE(pixmaps.count(id)) << id;
        ASSERT_NE(pixmaps.at(id), nullptr);
        ASSERT_FALSE(pixmaps.at(id)->isNull()) << names[id];
        EXPECT_EQ(pixmaps.at(id)->toImage().convertToFormat(QImage::Format_ARGB32), resourceImage(names[id])) << names[id];
    }
}

TEST(FiberPanelStatusWidget, SlotsStandInARowOneGapAndOneCardWidthApart)
{
    CFiberPanelStatusWidget page(nullptr);
    const int cardWidth = resourceImage("inserted_slot.png").width();
    ASSERT_GT(cardWidth, 0);
    const auto& positions = CFiberPanelStatusWidgetTestAccess::slotPositions(page);
    ASSERT_EQ(positions.size(), static_cast<size_t>(kSlotCount));
    int slot = 1;
    for (const auto& [number, position] : positions) {
        EXPECT_EQ(number, slot);
        EXPECT_EQ(position, QPoint(26 + (slot - 1) * (1 + cardWidth), 4)) << slot;
        ++slot;
    }
    // The last slot ends inside the frame image.
    const QImage frame = resourceImage("fiber_frame.png");
    EXPECT_LE(positions.at(kSlotCount).x() + cardWidth, frame.width());
    EXPECT_LE(4 + resourceImage("inserted_slot.png").height(), frame.height());
}

TEST(FiberPanelStatusWidget, TimerWaitsForTheFirstShowStatus)
{
    CFiberPanelStatusWidget page(nullptr);
    QTimer* timer = page.findChild<QTimer*>();
    ASSERT_NE(timer, nullptr);
    EXPECT_FALSE(timer->isActive());
}

// ---------------------------------------------------------------------------------------------
// Against the emulated chassis

TEST_F(FiberPanelStatusWidgetTest, ShowStatusStartsATenSecondTimerAndHidingStopsIt)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    page.showStatusPublic(); // the host's door: the same load
    QTimer* timer = page.findChild<QTimer*>();
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
    EXPECT_EQ(fleet().requestLines("crate").size(), 1u);
    page.show();
    page.hide();
    EXPECT_FALSE(timer->isActive());
    page.show();
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    CFiberPanelStatusWidgetTestAccess::refresh(page);
    EXPECT_EQ(fleet().requestLines("crate").size(), 3u);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, TableListsTheReportedCards)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    const Quillon::FiberConvertSlotList list = reportedSlots();
    ASSERT_FALSE(list.slotList.empty());
    auto* model = table(page)->model();
    ASSERT_EQ(model->rowCount(), static_cast<int>(list.slotList.size()));
    for (size_t i = 0; i < list.slotList.size(); ++i) {
        const Quillon::FiberConvertSlot& slot = list.slotList[i];
        const int row = static_cast<int>(i);
        EXPECT_EQ(model->index(row, 0).data().toString(), QString::number(slot.slotId));
        EXPECT_EQ(model->index(row, 1).data().toString(), QString::fromStdString(slot.receivingCardIP));
        EXPECT_EQ(model->index(row, 2).data().toString(), QString::fromStdString(slot.receiveCardSerialNumber));
        EXPECT_EQ(model->index(row, 3).data().toString(), QString::fromStdString(slot.transmitterIP));
        EXPECT_EQ(model->index(row, 4).data().toString(), QString::fromStdString(slot.transmitterSerialNumber));
        EXPECT_EQ(model->index(row, 5).data().toString(), QString::fromStdString(slot.senderName));
    }
}

TEST_F(FiberPanelStatusWidgetTest, ReportedSlotsShowCardsWithUnconnectedPortsOthersPlates)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    const Quillon::FiberConvertSlotList list = reportedSlots();
    std::set<int> reported;
    for (const Quillon::FiberConvertSlot& slot : list.slotList)
        reported.insert(slot.slotId);
    // The emulated chassis leaves some slots empty and never reports slot 1.
    ASSERT_FALSE(reported.empty());
    ASSERT_LT(reported.size(), 20u);
    ASSERT_EQ(reported.count(1), 0u);

    const QImage shot = paint(page);
    const QPoint origin = frameOrigin(page);
    // The frame around the slots.
    const QRect slotRow(26, 4, kSlotCount * (1 + m_card.width()), m_card.height());
    EXPECT_EQ(mismatches(shot, m_frame, origin, {slotRow}), 0);
    for (int slot = 1; slot <= kSlotCount; ++slot) {
        const QPoint corner = slotCorner(page, slot);
        if (reported.count(slot)) {
            expectCard(shot, corner, slot);
            EXPECT_EQ(shot.pixel(corner + kCardFace) | 0xff000000, m_card.pixel(kCardFace)) << slot;
        } else {
            // Slot 1 too: its plate covers the management card.
            expectPlate(shot, corner, slot);
            EXPECT_EQ(shot.pixel(corner + kCardFace) | 0xff000000, m_plate.pixel(kCardFace)) << slot;
        }
    }
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, AReportedSlotOneShowsACardThere)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    Quillon::FiberConvertSlot management;
    management.slotId = 1;
    CFiberPanelStatusWidgetTestAccess::slotList(page).slotList = {management};
    const QImage shot = paint(page);
    // The reported card is drawn over the management card, ports and all.
    expectCard(shot, slotCorner(page, 1), 1);
    for (int slot = 2; slot <= kSlotCount; ++slot)
        expectPlate(shot, slotCorner(page, slot), slot);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, AnEmptyAnswerEmptiesTableAndCrateSlotOneIncluded)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    ASSERT_GT(table(page)->model()->rowCount(), 0);

    // A body that can't be read is still an answer: the list comes back empty.
    ASSERT_TRUE(emulator().setFault(fleet().id("crate"), "/NXRPC/Transfers/FiberConvert/slot*",
                                    EmulatorProcess::Fault::malformed()));
    showStatus(page);
    EXPECT_EQ(table(page)->model()->rowCount(), 0);
    EXPECT_TRUE(CFiberPanelStatusWidgetTestAccess::slotList(page).slotList.empty());
    const QImage shot = paint(page);
    for (int slot = 1; slot <= kSlotCount; ++slot)
        expectPlate(shot, slotCorner(page, slot), slot);
    EXPECT_EQ(mismatches(shot, m_frame, frameOrigin(page),
                         {QRect(26, 4, kSlotCount * (1 + m_card.width()), m_card.height())}),
              0);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, AFailedQueryEmptiesTheCrateButKeepsTheTable)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    const int rows = table(page)->model()->rowCount();
    ASSERT_GT(rows, 0);

    ASSERT_TRUE(emulator().setFault(fleet().id("crate"), "/NXRPC/Transfers/FiberConvert/slot*",
                                    EmulatorProcess::Fault::httpStatus(500)));
    showStatus(page);
    EXPECT_EQ(table(page)->model()->rowCount(), rows);
    const QImage shot = paint(page);
    for (int slot = 1; slot <= kSlotCount; ++slot)
        expectPlate(shot, slotCorner(page, slot), slot);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, ASlotAboveTwentyOneIsDrawnAtTheFrameCornerAndStaysASlot)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    Quillon::FiberConvertSlot stray;
    stray.slotId = 25;
    CFiberPanelStatusWidgetTestAccess::slotList(page).slotList = {stray};
    ASSERT_EQ(CFiberPanelStatusWidgetTestAccess::slotPositions(page).count(25), 0u);

    QImage shot = paint(page);
    const auto& positions = CFiberPanelStatusWidgetTestAccess::slotPositions(page);
    ASSERT_EQ(positions.count(25), 1u);
    EXPECT_EQ(positions.at(25), QPoint(0, 0));
    EXPECT_EQ(positions.size(), static_cast<size_t>(kSlotCount + 1));
    const QPoint origin = frameOrigin(page);
    expectCard(shot, origin, 25);

    // Next paint without it: the new slot is an empty slot like the others.
    CFiberPanelStatusWidgetTestAccess::slotList(page).slotList.clear();
    page.update();
    shot = paint(page);
    expectPlate(shot, origin, 25);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, CardsTheDeviceReportsInSlotOneAndAboveTwentyOneComeOverTheWire)
{
    // A crate that reports a card in the management slot and one in a slot it does not have.
    const std::string answer = R"({"FiberConvertSlotList": {"slotList": [
  {"slotId": 1, "receivingCardIP": "192.168.60.101", "receiveCardSerialNumber": "FR1",
   "transmitterIP": "192.168.60.201", "transmitterSerialNumber": "FT1", "senderName": "Gate"},
  {"slotId": 25, "receivingCardIP": "192.168.60.125", "receiveCardSerialNumber": "FR25",
   "transmitterIP": "192.168.60.225", "transmitterSerialNumber": "FT25", "senderName": "Yard"}]}})";
    ASSERT_TRUE(emulator().setFault(fleet().id("crate"), "/NXRPC/Transfers/FiberConvert/slot*",
                                    EmulatorProcess::Fault::answer(answer)));
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);

    auto* model = table(page)->model();
    ASSERT_EQ(model->rowCount(), 2);
    EXPECT_EQ(model->index(0, 0).data().toString(), "1");
    EXPECT_EQ(model->index(0, 5).data().toString(), "Gate");
    EXPECT_EQ(model->index(1, 0).data().toString(), "25");
    EXPECT_EQ(model->index(1, 1).data().toString(), "192.168.60.125");

    const QImage shot = paint(page);
    expectCard(shot, slotCorner(page, 1), 1);
    for (int slot = 2; slot <= kSlotCount; ++slot)
        expectPlate(shot, slotCorner(page, slot), slot);
    EXPECT_EQ(CFiberPanelStatusWidgetTestAccess::slotPositions(page).at(25), QPoint(0, 0));
    expectCard(shot, frameOrigin(page), 25);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, AnAnswerWithoutCardsEmptiesTableAndCrate)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    ASSERT_GT(table(page)->model()->rowCount(), 0);

    ASSERT_TRUE(emulator().setFault(fleet().id("crate"), "/NXRPC/Transfers/FiberConvert/slot*",
                                    EmulatorProcess::Fault::answer(R"({"FiberConvertSlotList": {"slotList": []}})")));
    showStatus(page);
    EXPECT_EQ(table(page)->model()->rowCount(), 0);
    const QImage shot = paint(page);
    for (int slot = 1; slot <= kSlotCount; ++slot)
        expectPlate(shot, slotCorner(page, slot), slot);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, WithoutImagesNothingIsPainted)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    std::map<unsigned, QPixmap*> kept;
    kept.swap(CFiberPanelStatusWidgetTestAccess::pixmaps(page));
    const QImage shot = paint(page);
    kept.swap(CFiberPanelStatusWidgetTestAccess::pixmaps(page));
    // Where the frame would stand there is only the page's background.
    const QPoint origin = frameOrigin(page);
    const QRgb background = page.palette().color(QPalette::Window).rgb();
    EXPECT_EQ(shot.pixel(origin + QPoint(30, 40)) | 0xff000000, background);
    EXPECT_EQ(shot.pixel(origin + QPoint(300, 60)) | 0xff000000, background);
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, HoveringASlotNamesItAndTheCardItHolds)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    showStatus(page);
    const Quillon::FiberConvertSlotList list = reportedSlots();
    ASSERT_FALSE(list.slotList.empty());
    paint(page);
    const QPoint middle(m_card.width() / 2, m_card.height() / 2);

    // A reported card: its facts under the table's column titles (the keys here).
    Quillon::FiberConvertSlot card = list.slotList.front();
    EXPECT_EQ(hover(page, slotCorner(page, card.slotId) + middle),
              shown({QStringLiteral("Slot %1").arg(card.slotId),
                     "ReceivingCardIP: " + QString::fromStdString(card.receivingCardIP),
                     "ReceiveCardSerialNumber: " + QString::fromStdString(card.receiveCardSerialNumber),
                     "TransmitterIP: " + QString::fromStdString(card.transmitterIP),
                     "TransmitterSerialNumber: " + QString::fromStdString(card.transmitterSerialNumber),
                     "SenderName: " + QString::fromStdString(card.senderName)}));

    // Slot 1 unreported holds the management card; another unreported slot is empty.
    std::set<int> reported;
    for (const Quillon::FiberConvertSlot& slot : list.slotList)
        reported.insert(slot.slotId);
    ASSERT_EQ(reported.count(1), 0u);
    EXPECT_EQ(hover(page, slotCorner(page, 1) + middle), shown({"Slot 1", "Management card"}));
    int empty = 2;
    while (reported.count(empty) != 0)
        ++empty;
    ASSERT_LE(empty, kSlotCount);
    EXPECT_EQ(hover(page, slotCorner(page, empty) + middle),
              shown({QStringLiteral("Slot %1").arg(empty), "Empty slot"}));

    // Away from the slots the tooltip before is not replaced, and it goes.
    EXPECT_EQ(hover(page, QPoint(2, 2)), kBefore);
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }, 2000));
    page.hide();
}

TEST_F(FiberPanelStatusWidgetTest, ASlotTooltipShowsAbsentValuesAsDashesAndNamesAsText)
{
    CFiberPanelStatusWidget page(nullptr);
    fleet().open(page, "crate");
    Quillon::FiberConvertSlot card;
    card.slotId = 5;
    card.senderName = "<b>Gate & yard</b>";
    CFiberPanelStatusWidgetTestAccess::slotList(page).slotList = {card};
    paint(page);
    const QPoint middle(m_card.width() / 2, m_card.height() / 2);
    EXPECT_EQ(hover(page, slotCorner(page, 5) + middle),
              shown({"Slot 5", "ReceivingCardIP: --", "ReceiveCardSerialNumber: --", "TransmitterIP: --",
                     "TransmitterSerialNumber: --", "SenderName: <b>Gate & yard</b>"}));
    page.hide();
}
