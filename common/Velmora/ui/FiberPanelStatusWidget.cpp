#include "FiberPanelStatusWidget.h"

#include <QHelpEvent>
#include <QHideEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QStringList>
#include <QTimer>
#include <new>
#include <set>
#include <string>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "logical/interface/ParamInterface.h"
#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PixmapSizes.h"
#include "ui/DevicePanelStatus/PlainToolTip.h"
#include "ui_UiFiberPanelStatusWidget.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 10;
constexpr int kMillisecondsPerSecond = 1000;

// The crate's geometry is the page's row of the layout tables (layouts::fiberCrateLayout):
// slots 1 to 21 at y 4, the first at x 25 plus one gap of 1, each further one a gap and a
// card width on, and the images of frame, card, blanking plate and ports. The art generator
// draws the images from the same row. What follows is where the ports sit on a card.
constexpr int kManagementCardSlot = 1;
const char kElectricalLegendImage[] = ":/Tarvex7300/Velmora/Images/FiberDevice/electrical_port.png";
const char kOpticalLegendImage[] = ":/Tarvex7300/Velmora/Images/FiberDevice/optical_port.png";
constexpr QPoint kElectricalPortOffset(8, 22);
constexpr QPoint kOpticalPortOffset(9, 48);
// The management card has a second electrical port where the other cards have the optical
// one, a pixel further left and down.
constexpr QPoint kSecondElectricalPortOffset = kOpticalPortOffset + QPoint(-1, 1);

// Widths of the slot table, column by column.
constexpr int kColumnWidths[CPanelSlotInfoModel::COLUMN_COUNT] = {80, 120, 120, 120, 120, 150};

QString utf8(const std::string& text)
{
    return QString::fromUtf8(text.c_str());
}

// The table row of one reported card.
PanelSlotInfo slotRow(const Quillon::FiberConvertSlot& slot)
{
    PanelSlotInfo row;
    row.strSlotNo = QString::number(slot.slotId);
    row.strReceivingCardIP = utf8(slot.receivingCardIP);
    row.strReceiveCardSerialNumber = utf8(slot.receiveCardSerialNumber);
    row.strTransmitterIP = utf8(slot.transmitterIP);
    row.strTransmitterSerialNumber = utf8(slot.transmitterSerialNumber);
    row.strSenderName = utf8(slot.senderName);
    return row;
}

} // namespace

CFiberPanelStatusWidget::CFiberPanelStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , ui(nullptr)
    , m_pSlotModel(new (std::nothrow) CPanelSlotInfoModel(this))
    , m_pTimer(new (std::nothrow) QTimer(this))
{
    ui = new (std::nothrow) Ui::UiFiberPanelStatusWidget;
    if (ui) {
        ui->setupUi(this);
    } else {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Error(
            "", Plinth::StringUtil::FormatString("Ui::UiFiberPanelStatusWidget create failed."), PLINTH_LOCATION);
    }
    initControl();
    initPictureInfo();
    initPaintInfo();
    if (m_pTimer)
        connect(m_pTimer, &QTimer::timeout, this, &CFiberPanelStatusWidget::onRefreshSlotInformation);
}

CFiberPanelStatusWidget::~CFiberPanelStatusWidget()
{
    for (auto& [id, pixmap] : m_pixmaps) {
        delete pixmap;
        pixmap = nullptr;
    }
    m_pixmaps.clear();
    delete ui;
    ui = nullptr;
}

void CFiberPanelStatusWidget::initControl()
{
    if (!ui)
        return;
    if (m_pSlotModel)
        ui->m_pPanelInfoTreeView->setModel(m_pSlotModel);
    for (int column = 0; column < CPanelSlotInfoModel::COLUMN_COUNT; ++column)
        ui->m_pPanelInfoTreeView->setColumnWidth(column, kColumnWidths[column]);
    ui->m_pPanelInfoTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // No port on a crate card is ever shown alarmed, normal or connected: only the port kinds
    // stay in the legend.
    for (QWidget* legend : {static_cast<QWidget*>(ui->label_5), static_cast<QWidget*>(ui->label_6),
                            static_cast<QWidget*>(ui->label_7), static_cast<QWidget*>(ui->label_8),
                            static_cast<QWidget*>(ui->label_9), static_cast<QWidget*>(ui->label_10)})
        legend->hide();
    // The legend icons of the form, drawn for a dense screen when there is one.
    if (artRatio() > 1) {
        ui->electricalIconLabel->setPixmap(loadArt(kElectricalLegendImage));
        ui->opticalIconLabel->setPixmap(loadArt(kOpticalLegendImage));
    }
}

void CFiberPanelStatusWidget::initPictureInfo()
{
    initResources();
    const layouts::PanelLayout& crate = layouts::fiberCrateLayout();
    auto load = [this](unsigned id, const std::string& path) {
        QPixmap* pixmap = new (std::nothrow) QPixmap(loadArt(QString::fromStdString(layouts::resourcePath(path))));
        if (pixmap)
            m_pixmaps[id] = pixmap;
    };
    load(FRAME_IMAGE, crate.framePath(layouts::kAnyMode));
    for (const layouts::Image& image : crate.images->images)
        load(static_cast<unsigned>(image.id), image.path);
}

void CFiberPanelStatusWidget::initPaintInfo()
{
    // The positions read the card width from the image that the page loaded.
    const CPixmapSizes sizes(m_pixmaps);
    for (const layouts::Placement& slot : layouts::placePorts(layouts::fiberCrateLayout(), sizes))
        m_slotPositions[slot.port] = QPoint(slot.position.x, slot.position.y);
}

void CFiberPanelStatusWidget::showStatusPublic()
{
    showStatus();
}

void CFiberPanelStatusWidget::showStatus()
{
    if (!hasDevice(m_pTimer))
        return;
    if (m_pTimer && !m_pTimer->isActive())
        m_pTimer->start(kRefreshSeconds * kMillisecondsPerSecond);
    showPanelInfoPrivate();
}

void CFiberPanelStatusWidget::hideEvent(QHideEvent* event)
{
    if (m_pTimer && m_pTimer->isActive())
        m_pTimer->stop();
    QWidget::hideEvent(event);
}

void CFiberPanelStatusWidget::onRefreshSlotInformation()
{
    if (!hasDevice(m_pTimer))
        return;
    showPanelInfoPrivate();
}

void CFiberPanelStatusWidget::showPanelInfoPrivate()
{
    // A failed query leaves the crate empty for the next paint but keeps the table's rows.
    m_slotList = Quillon::FiberConvertSlotList();
    if (!ParamInterface::getFiberConvertSlotList(m_slotList, m_pDevice->getDeviceId()))
        return;
    if (m_pSlotModel)
        m_pSlotModel->setPanelSlotInfo(makePanelSlotInfo(m_slotList));
    update();
}

std::vector<PanelSlotInfo> CFiberPanelStatusWidget::makePanelSlotInfo(const Quillon::FiberConvertSlotList& list)
{
    std::vector<PanelSlotInfo> rows;
    rows.reserve(list.slotList.size());
    for (const Quillon::FiberConvertSlot& slot : list.slotList)
        rows.push_back(slotRow(slot));
    return rows;
}

void CFiberPanelStatusWidget::drawImage(QPainter& painter, unsigned id, const QPoint& at) const
{
    const auto found = m_pixmaps.find(id);
    if (found != m_pixmaps.end() && found->second)
        painter.drawPixmap(at, *found->second);
}

QPoint CFiberPanelStatusWidget::crateOrigin() const
{
    // The frame image centred at its natural size in m_pPanelPanelFrame.
    const auto frame = m_pixmaps.find(FRAME_IMAGE);
    const QSize frameSize = frame != m_pixmaps.end() && frame->second ? logicalSize(*frame->second) : QSize(0, 0);
    if (!ui)
        return QPoint();
    const QPoint centred((ui->m_pPanelPanelFrame->width() - frameSize.width()) / 2,
                         (ui->m_pPanelPanelFrame->height() - frameSize.height()) / 2);
    return ui->m_pPanelFrame->mapTo(this, ui->m_pPanelPanelFrame->mapTo(ui->m_pPanelFrame, centred));
}

void CFiberPanelStatusWidget::paintEvent(QPaintEvent* event)
{
    if (m_pixmaps.empty())
        return;

    const QPoint origin = crateOrigin();

    QPainter painter(this);
    drawImage(painter, FRAME_IMAGE, origin);

    // Slot 1 always holds the management card, reported or not.
    const QPoint managementCard = origin + m_slotPositions[kManagementCardSlot];
    drawImage(painter, INSERTED_SLOT_IMAGE, managementCard);
    drawImage(painter, ELECTRICAL_PORT_IMAGE, managementCard + kElectricalPortOffset);
    drawImage(painter, ELECTRICAL_PORT_IMAGE, managementCard + kSecondElectricalPortOffset);

    // A slot number outside the crate gets the position (0, 0), and stays a slot from then on.
    std::set<int> reported;
    for (const Quillon::FiberConvertSlot& slot : m_slotList.slotList) {
        reported.insert(slot.slotId);
        const QPoint card = origin + m_slotPositions[slot.slotId];
        drawImage(painter, INSERTED_SLOT_IMAGE, card);
        drawImage(painter, ELECTRICAL_PORT_IMAGE, card + kElectricalPortOffset);
        drawImage(painter, OPTICAL_PORT_IMAGE, card + kOpticalPortOffset);
    }

    // Every slot not reported gets its blanking plate; an unreported slot 1 too, over the
    // management card.
    for (const auto& [slot, position] : m_slotPositions) {
        if (reported.count(slot) == 0)
            drawImage(painter, EMPTY_SLOT_IMAGE, origin + position);
    }
    painter.end();

    QWidget::paintEvent(event);
}

bool CFiberPanelStatusWidget::slotAt(const QPoint& pos, int& slot, QRect& area) const
{
    // Cards and blanking plates have one size; a slot without a position of its own (a
    // number outside the crate) is drawn at the frame's corner and, drawn later, wins there.
    const auto card = m_pixmaps.find(INSERTED_SLOT_IMAGE);
    if (card == m_pixmaps.end() || !card->second || card->second->isNull())
        return false;
    const QSize size = logicalSize(*card->second);
    const QPoint origin = crateOrigin();
    bool found = false;
    for (const auto& [number, position] : m_slotPositions) {
        const QRect drawn(origin + position, size);
        if (drawn.contains(pos)) {
            slot = number;
            area = drawn;
            found = true;
        }
    }
    return found;
}

QString CFiberPanelStatusWidget::slotToolTip(int slot) const
{
    QStringList lines;
    lines << tr("Slot %1").arg(slot);
    const Quillon::FiberConvertSlot* reported = nullptr;
    for (const Quillon::FiberConvertSlot& entry : m_slotList.slotList) {
        if (entry.slotId == slot) {
            reported = &entry;
            break;
        }
    }
    if (!reported) {
        lines << (slot == kManagementCardSlot ? tr("Management card") : tr("Empty slot"));
        return lines.join(QLatin1Char('\n'));
    }
    // The card's facts under the table's own column titles; an absent value shows as "--".
    const PanelSlotInfo row = slotRow(*reported);
    const QString values[] = {row.strReceivingCardIP, row.strReceiveCardSerialNumber, row.strTransmitterIP,
                              row.strTransmitterSerialNumber, row.strSenderName};
    int column = 1;
    for (const QString& value : values) {
        const QString title = m_pSlotModel ? m_pSlotModel->headerData(column, Qt::Horizontal).toString() : QString();
        lines << tr("%1: %2").arg(title, value.isEmpty() ? QStringLiteral("--") : value);
        ++column;
    }
    return lines.join(QLatin1Char('\n'));
}

bool CFiberPanelStatusWidget::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return CDeviceStatusOptionBase::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    int slot = 0;
    QRect area;
    return showPlainToolTip(help, this, slotAt(help->pos(), slot, area) ? slotToolTip(slot) : QString(), area);
}

} // namespace velmora
