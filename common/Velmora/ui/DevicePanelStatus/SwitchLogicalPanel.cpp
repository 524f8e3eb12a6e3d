#include "SwitchLogicalPanel.h"

#include <QEvent>
#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PartPixmap.h"
#include "ui_PanelStatusBase.h"

namespace velmora {

namespace {

// The off-screen image: a grey plate 120 high, 26 free on each side of the cells.
constexpr int kImageHeight = 120;
constexpr int kSideMargin = 26;
constexpr int kStripHeight = 12; // label strip above the first and below the last row
constexpr int kSeptalWidth = 16;
constexpr int kBorderInset = 8;
const QColor kPlateColor(121, 124, 128, 255);
const QColor kStripColor(132, 135, 138, 255);
const QColor kCellColor(144, 147, 150, 255);
const QColor kMagnifierShade(0, 0, 0, 50);

// Keys of logicalSizes.
enum { kPortWidth = 0, kPortHeight = 1, kBorderWidth = 2, kBorderHeight = 3 };
// Image ids.
enum { kOrderRight = 11, kOrderLeft = 12 };

const char* const kConnected = "connected";

// A label strip is one column wide; its label takes the largest of these sizes that fits.
constexpr int kLabelPixelSize = 9;
constexpr int kSmallestLabelPixelSize = 5;

QFont labelFont(QFont font, const QString& text, int width)
{
    for (int size = kLabelPixelSize; size >= kSmallestLabelPixelSize; --size) {
        font.setPixelSize(size);
        if (QFontMetrics(font).horizontalAdvance(text) <= width)
            break;
    }
    return font;
}

} // namespace

uint32_t CSwitchLogicalPanel::fnv1a(const void* data, std::size_t size)
{
    uint32_t hash = 0x811c9dc5u;
    const auto* bytes = static_cast<const unsigned char*>(data);
    for (std::size_t i = 0; i < size; ++i) {
        hash ^= bytes[i];
        hash *= 16777619u;
    }
    return hash;
}

std::size_t CSwitchLogicalPanel::PortKeyHash::operator()(const PortKey& key) const
{
    return fnv1a(&key.portId, sizeof key.portId) ^ fnv1a(key.portType.data(), key.portType.size());
}

CSwitchLogicalPanel::CSwitchLogicalPanel(QWidget* parent) : CPanelStatusBase(parent)
{
    portStates.max_load_factor(1.0f);
    portStates.rehash(16);
    partPixmap = new CPartPixmap(this);
    hideFiberOpticalLegend(true);
    hideConnectedLegend(true);
    initPixmaps();
    initPortPositions();
    installEventFilter(this);
    ui->m_pPanelPanelFrame->installEventFilter(this);
    setAttribute(Qt::WA_MouseTracking);
    ui->m_pPanelPanelFrame->setAttribute(Qt::WA_MouseTracking);
}

void CSwitchLogicalPanel::initPixmaps()
{
    if (!logicalPixmaps.empty() && !logicalSizes.empty())
        return;
    for (const layouts::LogicalImages& set : layouts::logicalPanelImages()) {
        for (int deviceCategory : set.categories) {
            std::map<int, QPixmap>& images = logicalPixmaps[deviceCategory];
            for (const layouts::Image& image : set.images)
                images[image.id] = sharedArt(QString::fromStdString(layouts::resourcePath(image.path)));
            // Sizes in device-independent pixels, whatever density the images were drawn for.
            std::map<int, int>& sizes = logicalSizes[deviceCategory];
            sizes[kPortWidth] = logicalSize(images[0]).width();
            sizes[kPortHeight] = logicalSize(images[0]).height();
            sizes[kBorderWidth] = logicalSize(images[kOrderRight]).width();
            sizes[kBorderHeight] = logicalSize(images[kOrderRight]).height();
        }
    }
}

void CSwitchLogicalPanel::initPortPositions()
{
    // The cells place themselves: there is no position table.
}

void CSwitchLogicalPanel::showPanelStatus()
{
    if (!panelDevice)
        return;
    const int deviceCategory = static_cast<int>(panelDevice->getDeviceCategory());
    if (deviceCategory == tarvex7300::Device::WirelessController)
        hideConnectedLegend(false);
    Quillon::PanelStatus status{std::string()};
    if (!ParamInterface::getSwitchSlotPanelInfo(status, panelDevice->getDeviceId(), 1) || status.panelList.empty())
        return;
    setPanel(status.panelList.front(), deviceCategory);
    Quillon::SwitchesWorkState state{std::string()};
    WorkStatusInferface* workState = WorkStatusInferface::getInstance();
    if (!workState || !workState->queryWorkState(state))
        return;
    applyWorkState(state);
}

void CSwitchLogicalPanel::setPanel(const Quillon::Panel& reported, int deviceCategory)
{
    panel = reported;
    category = deviceCategory;
    for (const Quillon::PanelCell& cell : panel.cellList)
        if (cell.cellType == "port")
            rememberPortLabel(static_cast<unsigned>(cell.portId), QString::fromStdString(cell.label));
    std::map<int, int>& sizes = logicalSizes[category];
    rowHeight = sizes[kPortHeight];
    borderWidth = sizes[kBorderWidth];
    borderHeight = sizes[kBorderHeight];
    cellWidth = rowHeight + 2 * panel.portMargin;

    const int rows = panel.rowCount;
    const int cells = static_cast<int>(panel.cellList.size());
    int width = 0;
    // A panel without rows has no columns to walk.
    for (int i = 0; rows > 0 && i <= cells - rows; i += rows) {
        const std::string& type = panel.cellList[static_cast<std::size_t>(i)].cellType;
        if (type == "none" || type == "port")
            width += cellWidth;
        else if (type == "border")
            width += borderWidth;
        else if (type == "septalSpace")
            width += kSeptalWidth;
    }
    // Drawn for the screen's density; every coordinate stays in device-independent pixels.
    const int ratio = artRatio();
    panelPixmap = QPixmap(QSize(width + 2 * kSideMargin, kImageHeight) * ratio);
    panelPixmap.setDevicePixelRatio(ratio);
    panelPixmap.fill(kPlateColor);
}

void CSwitchLogicalPanel::applyWorkState(const Quillon::SwitchesWorkState& state)
{
    rememberPortStates(state);
    directionFromCells = state.portOrder.empty();
    if (!directionFromCells)
        oddPortsUp = state.portOrder == "portNO1";
    portStates.clear();
    for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
        int value = kUnlinked;
        if (alarmPorts.count(static_cast<unsigned>(item.portId)))
            value = kAlarmed;
        // A linked port shows as linked here; the page marks its alarms afterwards.
        if (item.linkState == kConnected)
            value = kLinked;
        if (item.portRemark == kConnected)
            value = kInternet;
        portStates.insert({PortKey{item.portType, item.portId}, value});
    }
    renderPanelPixmap();
    update();
}

QPixmap CSwitchLogicalPanel::portImage(const Quillon::PanelCell& cell, bool up) const
{
    const auto images = logicalPixmaps.find(category);
    auto image = [&](int id) {
        if (images == logicalPixmaps.end())
            return QPixmap();
        const auto it = images->second.find(id);
        return it == images->second.end() ? QPixmap() : it->second;
    };
    const auto entry = portStates.find(PortKey{cell.portType, cell.portId});
    if (entry == portStates.end()) {
        if (cell.portType == "electrical")
            return image(up ? 2 : 6);
        return image(10);
    }
    const int state = entry->second;
    if (cell.portType == "electrical") {
        switch (state) {
        case kUnlinked:
            return image(up ? 2 : 6);
        case kLinked:
            return image(up ? 0 : 4);
        case kAlarmed:
            return image(up ? 1 : 5);
        case kInternet:
            return image(up ? 3 : 7);
        default:
            return QPixmap();
        }
    }
    if (cell.portType == "optical") {
        switch (state) {
        case kUnlinked:
            return image(10);
        case kLinked:
            return image(9);
        case kAlarmed:
            return image(8);
        default:
            return QPixmap();
        }
    }
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Debug(
        "", Plinth::StringUtil::FormatString("[qrx] unexpected type %s", cell.portType.c_str()), PLINTH_LOCATION);
    return QPixmap();
}

void CSwitchLogicalPanel::renderPanelPixmap()
{
    const int rows = panel.rowCount;
    if (rows <= 0 || panelPixmap.isNull())
        return;
    const int cells = static_cast<int>(panel.cellList.size());
    // Unsigned on purpose: a grid taller than the image wraps and is drawn off the image.
    const unsigned top = static_cast<unsigned>(kImageHeight - std::min(rows, 2) * kStripHeight - rowHeight * rows) / 2u;
    const unsigned bottom = static_cast<unsigned>(rowHeight * rows + kStripHeight) + top;
    const auto images = logicalPixmaps.find(category);
    auto image = [&](int id) {
        if (images == logicalPixmaps.end())
            return QPixmap();
        const auto it = images->second.find(id);
        return it == images->second.end() ? QPixmap() : it->second;
    };

    QPainter painter(&panelPixmap);
    portCells.clear();
    int x = kSideMargin;
    // The column width starts as a port cell's; only a border or a space sets it, and every
    // other column draws as wide as the one before. The border images are made as wide as a
    // port cell, so that the columns after a border neither overlap nor leave a gap.
    int w = cellWidth;
    for (int i = 0; i <= cells - rows; i += rows) {
        for (int r = 0; r < rows; ++r) {
            const Quillon::PanelCell& cell = panel.cellList[static_cast<std::size_t>(i + r)];
            const bool isPort = cell.cellType == "port";
            const bool isBorder = cell.cellType == "border";
            if (isBorder)
                w = borderWidth;
            else if (cell.cellType == "septalSpace")
                w = kSeptalWidth;
            const bool previousIsPort =
                i >= rows && panel.cellList[static_cast<std::size_t>(i - rows + r)].cellType == "port";

            // The label strips above the first row and below the last.
            for (int strip = 0; strip < 2; ++strip) {
                const bool drawn = strip == 0 ? r == 0 : (r == rows - 1 && rows > 1);
                if (!drawn || (!isPort && !isBorder))
                    continue;
                QRect rect(x, static_cast<int>(strip == 0 ? top : bottom), w, kStripHeight);
                if (isBorder)
                    rect = previousIsPort ? rect.adjusted(0, 0, -kBorderInset, 0) : rect.adjusted(kBorderInset, 0, 0, 0);
                painter.setPen(Qt::NoPen);
                painter.setBrush(kStripColor);
                painter.drawRect(rect);
                if (isPort) {
                    const QString label = QString::fromStdString(cell.label);
                    painter.setPen(Qt::white);
                    painter.setFont(labelFont(font(), label, rect.width()));
                    painter.drawText(rect, Qt::AlignCenter, label);
                }
            }

            const int y = static_cast<int>(top) + kStripHeight + rowHeight * r;
            if (isPort) {
                painter.setPen(Qt::NoPen);
                painter.setBrush(kCellColor);
                painter.drawRect(QRect(x, y, cellWidth, rowHeight));
                // The port answers the mouse over its own column, so that a cell wider than
                // the carried-over column width never claims its neighbour's place.
                portCells[static_cast<unsigned>(cell.portId)] = QRect(x, y, w, rowHeight);
                bool up;
                if (directionFromCells)
                    up = cell.direction == "up";
                else if (rows == 1)
                    up = true;
                else if (oddPortsUp)
                    up = cell.portId % 2 != 0;
                else
                    up = cell.portId % 2 == 0;
                const QPixmap portPixmap = portImage(cell, up);
                if (!portPixmap.isNull())
                    painter.drawPixmap(x + panel.portMargin, y, portPixmap);
            } else if (isBorder) {
                const QPixmap arrow = image(previousIsPort ? kOrderRight : kOrderLeft);
                if (!arrow.isNull())
                    painter.drawPixmap(x, y, arrow);
            }
        }
        x += w;
    }
}

void CSwitchLogicalPanel::setPortAlarm(unsigned port, bool alarmed)
{
    CPanelStatusBase::setPortAlarm(port, alarmed);
    for (auto& entry : portStates) {
        if (static_cast<unsigned>(entry.first.portId) == port) {
            entry.second = alarmed ? kAlarmed : kLinked;
            break;
        }
    }
    renderPanelPixmap();
    update();
}

bool CSwitchLogicalPanel::eventFilter(QObject* watched, QEvent* event)
{
    bool repaint = false;
    if (event->type() == QEvent::Enter || event->type() == QEvent::Leave) {
        if (watched == ui->m_pPanelPanelFrame)
            hovering = event->type() == QEvent::Enter;
        repaint = true;
    }
    if (const auto* mouse = dynamic_cast<QMouseEvent*>(event)) {
        mouseX = mouse->x();
        mouseY = mouse->y();
        repaint = true;
    }
    if (repaint)
        update();
    return QObject::eventFilter(watched, event);
}

bool CSwitchLogicalPanel::portAt(const QPoint& pos, unsigned& port, QRect& area) const
{
    if (panelPixmap.isNull())
        return false;
    // The same geometry as paintEvent: centred at full size, or shrunk to the frame's width.
    const QSize frameSize = ui->m_pPanelPanelFrame->size();
    const QPoint framePos = ui->m_pPanelPanelFrame->pos();
    const QSize imageSize = panelPixmap.size() / panelPixmap.devicePixelRatio();
    // From image to widget coordinates: a scale in each direction and an offset.
    QPointF inImage;
    double scaleX = 1.0;
    double scaleY = 1.0;
    QPointF offset;
    if (imageSize.width() <= frameSize.width()) {
        const QPoint origin = framePos + QPoint((frameSize.width() - imageSize.width()) >> 1,
                                                (frameSize.height() - imageSize.height()) >> 1);
        inImage = QPointF(pos - origin);
        offset = QPointF(origin);
    } else {
        const double ratio = static_cast<double>(frameSize.width()) / imageSize.width();
        const int scaledHeight = static_cast<int>(std::ceil(frameSize.height() * ratio));
        if (scaledHeight <= 0 || imageSize.height() <= 0)
            return false;
        const int scaledY = framePos.y() + ((frameSize.height() - scaledHeight) >> 1);
        scaleX = ratio;
        scaleY = static_cast<double>(scaledHeight) / imageSize.height();
        offset = QPointF(framePos.x(), scaledY);
        inImage = QPointF((pos.x() - offset.x()) / scaleX, (pos.y() - offset.y()) / scaleY);
    }
    for (const auto& cell : portCells) {
        if (QRectF(cell.second).contains(inImage)) {
            port = cell.first;
            const QRectF c(cell.second);
            area = QRectF(offset + QPointF(c.x() * scaleX, c.y() * scaleY), QSizeF(c.width() * scaleX, c.height() * scaleY))
                       .toAlignedRect();
            return true;
        }
    }
    return false;
}

void CSwitchLogicalPanel::paintEvent(QPaintEvent* event)
{
    const QSize frameSize = ui->m_pPanelPanelFrame->size();
    const QPoint framePos = ui->m_pPanelPanelFrame->pos();
    // Sizes in device-independent pixels; `density` is what the image was drawn for.
    const qreal density = panelPixmap.devicePixelRatio();
    const int imageWidth = logicalSize(panelPixmap).width();
    QPainter painter(this);
    if (imageWidth <= frameSize.width()) {
        painter.drawPixmap(framePos + QPoint((frameSize.width() - imageWidth) >> 1,
                                             (frameSize.height() - logicalSize(panelPixmap).height()) >> 1),
                           panelPixmap);
    } else {
        const double ratio = static_cast<double>(frameSize.width()) / imageWidth;
        const QSize scaledSize(frameSize.width(), static_cast<int>(std::ceil(frameSize.height() * ratio)));
        QPixmap scaled = panelPixmap.scaled(scaledSize * density, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        scaled.setDevicePixelRatio(density);
        const int scaledY = framePos.y() + ((frameSize.height() - scaledSize.height()) >> 1);
        painter.drawPixmap(framePos.x(), scaledY, scaled);
        if (!hovering) {
            partPixmap->hide();
        } else {
            // The part under the mouse, a square of the frame's height, at full size.
            const int side = frameSize.height();
            const int half = side / 2;
            int left = std::max(mouseX - half, framePos.x());
            if (mouseX + half > framePos.x() + scaledSize.width())
                left = framePos.x() - side + scaledSize.width();
            painter.fillRect(QRect(left, scaledY, side, scaledSize.height()), kMagnifierShade);
            const int sourceSide = static_cast<int>(side / ratio);
            QRect source(static_cast<int>(left / ratio), 0, sourceSide, sourceSide);
            if (source.x() + source.width() > imageWidth)
                source.moveLeft(static_cast<int>(imageWidth - side / ratio));
            // copy() counts device pixels.
            QPixmap part = panelPixmap.copy(QRect(source.topLeft() * density, source.size() * density));
            part.setDevicePixelRatio(density);
            partPixmap->setPixmap(part);
            partPixmap->move(ui->m_pPanelPanelFrame->mapToGlobal(QPoint(0, 0)) +
                             QPoint(mouseX - partPixmap->width() / 2, -partPixmap->height()));
            partPixmap->show();
        }
    }
    painter.end();
    QWidget::paintEvent(event);
}

} // namespace velmora
