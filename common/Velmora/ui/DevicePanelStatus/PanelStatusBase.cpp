#include "PanelStatusBase.h"

#include <QHelpEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QStringList>
#include <QSvgRenderer>

#include "Quillon/SwitchRecords.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/PlainToolTip.h"

#include "ui_PanelStatusBase.h"

namespace velmora {

namespace {
// Size of the logo strip, whatever the SVG's own size is.
constexpr double kLogoWidth = 48.0;
constexpr double kLogoHeight = 7.0;
// The legend icons the form shows.
const char kElectricalLegendImage[] = ":/Tarvex7300/Velmora/Images/SwitchDevice/port_electrical_positive_unconnected.png";
const char kOpticalLegendImage[] = ":/Tarvex7300/Velmora/Images/SwitchDevice/port_optical_unconnected.png";
const char kFiberOpticalLegendImage[] = ":/Tarvex7300/Velmora/Images/FiberDevice/optical_port.png";
} // namespace

CPanelStatusBase::CPanelStatusBase(QWidget* parent)
    : QWidget(parent), ui(new Ui::UiPanelStatusBase)
{
    ui->setupUi(this);
    // The form names the 1x legend icons; a dense screen gets their twins.
    if (artRatio() > 1) {
        ui->label->setPixmap(sharedArt(kElectricalLegendImage));
        ui->optionalIconLabel->setPixmap(sharedArt(kOpticalLegendImage));
        ui->fiberOptionalIconLabel->setPixmap(sharedArt(kFiberOpticalLegendImage));
    }
}

CPanelStatusBase::~CPanelStatusBase()
{
    for (auto& entry : pixmaps)
        delete entry.second;
    pixmaps.clear();
    portPixmaps.clear();
    for (auto& entry : svgRenderers)
        delete entry.second;
    svgRenderers.clear();
    delete ui;
}

void CPanelStatusBase::setPortAlarm(unsigned port, bool alarmed)
{
    if (alarmed)
        alarmPorts.insert(port);
    else
        alarmPorts.erase(port);
}

void CPanelStatusBase::hideElectricalLegend(bool hidden)
{
    ui->label->setHidden(hidden);
    ui->label_2->setHidden(hidden);
}

void CPanelStatusBase::hideFiberOpticalLegend(bool hidden)
{
    ui->fiberOptionalIconLabel->setHidden(hidden);
    ui->fiberOptionalTextLabel->setHidden(hidden);
}

void CPanelStatusBase::hideConnectedLegend(bool hidden)
{
    ui->label_3->setHidden(hidden);
    ui->label_4->setHidden(hidden);
}

void CPanelStatusBase::hideOpticalLegend(bool hidden)
{
    ui->optionalIconLabel->setHidden(hidden);
    ui->optionalTextLabel->setHidden(hidden);
}

void CPanelStatusBase::hideTitleWidget(bool hidden)
{
    ui->titleWidget->setHidden(hidden);
}

QPoint CPanelStatusBase::frameOrigin() const
{
    const auto frame = pixmaps.find(0);
    const QRect area = ui->m_pPanelPanelFrame->geometry();
    // In device-independent pixels: an image drawn for a dense screen has the same place.
    const QSize imageSize = frame != pixmaps.end() && frame->second
                                ? frame->second->size() / frame->second->devicePixelRatio()
                                : QSize(0, 0);
    const int imageWidth = imageSize.width();
    const int imageHeight = imageSize.height();
    // Integer division truncates towards zero, also for an image larger than the area.
    return QPoint((area.width() - imageWidth) / 2 + area.x(), (area.height() - imageHeight) / 2 + area.y());
}

void CPanelStatusBase::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    if (pixmaps.empty())
        return;
    const QPoint origin = frameOrigin();
    QPainter painter(this);
    if (const QPixmap* frame = pixmaps.begin()->first == 0 ? pixmaps.begin()->second : nullptr)
        painter.drawPixmap(QPointF(origin), *frame);
    for (const auto& entry : portPixmaps) {
        const auto position = portPositions.find(entry.first);
        if (position == portPositions.end() || !entry.second)
            continue;
        painter.drawPixmap(QPointF(origin + position->second), *entry.second);
    }
    const auto logo = svgRenderers.find(0);
    if (logo == svgRenderers.end() || !logo->second)
        return;
    logo->second->render(&painter, QRectF(origin.x() + svgOffsetX, origin.y() + svgOffsetY, kLogoWidth, kLogoHeight));
}

void CPanelStatusBase::setPortNeighbours(const std::map<unsigned, PortNeighbour>& neighbours)
{
    portNeighbours = neighbours;
}

void CPanelStatusBase::setPoePowerShown(bool shown)
{
    poePowerShown = shown;
}

void CPanelStatusBase::rememberPortStates(const Quillon::SwitchesWorkState& state)
{
    for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
        PortFacts& facts = portFacts[static_cast<unsigned>(item.portId)];
        facts.isSlot = false;
        facts.linkState = item.linkState;
        facts.rate = item.rate;
        facts.duplex = item.duplex;
        facts.poePower = item.poePower;
    }
}

void CPanelStatusBase::rememberSlots(const Quillon::SwitchSlotInfolList& slotList)
{
    for (const Quillon::SwitchSlotInfo& slot : slotList.slotList) {
        PortFacts& facts = portFacts[static_cast<unsigned>(slot.slotId)];
        facts.isSlot = true;
        facts.inserted = slot.inserted;
        facts.boardName = slot.boardName;
    }
}

void CPanelStatusBase::rememberPortLabel(unsigned port, const QString& label)
{
    if (!label.isEmpty())
        portFacts[port].label = label;
}

QString CPanelStatusBase::portToolTip(unsigned port) const
{
    const auto facts = portFacts.find(port);
    const auto neighbour = portNeighbours.find(port);
    const bool alarmed = alarmPorts.count(port) != 0;
    if (facts == portFacts.end() && neighbour == portNeighbours.end() && !alarmed)
        return QString();
    // An absent device value shows as "--", as everywhere in the dialog.
    auto orDashes = [](const std::string& value) {
        return value.empty() ? QStringLiteral("--") : QString::fromStdString(value);
    };

    QStringList lines;
    const bool isSlot = facts != portFacts.end() && facts->second.isSlot;
    if (neighbour != portNeighbours.end() && !neighbour->second.portName.isEmpty())
        lines << neighbour->second.portName;
    else if (facts != portFacts.end() && !facts->second.label.isEmpty() &&
             facts->second.label != QString::number(port))
        lines << facts->second.label; // a bare number reads better as "Port n"
    else
        lines << (isSlot ? tr("Slot %1") : tr("Port %1")).arg(port);

    if (isSlot) {
        lines << (facts->second.inserted ? tr("Board: %1").arg(orDashes(facts->second.boardName)) : tr("No board"));
    } else if (facts != portFacts.end()) {
        const PortFacts& f = facts->second;
        QString link = orDashes(f.linkState);
        if (f.linkState == "connected")
            link = tr("Connected");
        else if (f.linkState == "disconnected")
            link = tr("Not connected");
        lines << tr("Link: %1").arg(link);
        QString duplex = orDashes(f.duplex);
        if (f.duplex == "duplex")
            duplex = tr("Full duplex");
        else if (f.duplex == "halfDuplex")
            duplex = tr("Half duplex");
        else if (f.duplex == "auto")
            duplex = tr("Auto");
        lines << tr("Rate: %1, %2").arg(orDashes(f.rate), duplex);
        if (poePowerShown)
            lines << tr("PoE output power: %1 W").arg(QString::number(static_cast<double>(f.poePower), 'f', 1));
    }
    lines << tr("Alarm: %1").arg(alarmed ? tr("In alarm") : tr("None"));
    if (neighbour != portNeighbours.end()) {
        const PortNeighbour& n = neighbour->second;
        lines << tr("Neighbour: %1 (%2), %3")
                     .arg(n.name.isEmpty() ? QStringLiteral("--") : n.name,
                          n.deviceClass.isEmpty() ? QStringLiteral("--") : n.deviceClass,
                          n.address.isEmpty() ? QStringLiteral("--") : n.address);
    }
    return lines.join(QLatin1Char('\n'));
}

bool CPanelStatusBase::portAt(const QPoint& pos, unsigned& port, QRect& area) const
{
    const QPoint origin = frameOrigin();
    // Later ports are drawn over earlier ones, so the last hit is the one seen.
    for (auto entry = portPixmaps.rbegin(); entry != portPixmaps.rend(); ++entry) {
        const auto position = portPositions.find(entry->first);
        if (position == portPositions.end() || !entry->second || entry->second->isNull())
            continue;
        const QSizeF size = QSizeF(entry->second->size()) / entry->second->devicePixelRatioF();
        const QRectF drawn(QPointF(origin + position->second), size);
        if (drawn.contains(pos)) {
            port = entry->first;
            area = drawn.toAlignedRect();
            return true;
        }
    }
    return false;
}

bool CPanelStatusBase::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    auto* help = static_cast<QHelpEvent*>(event);
    unsigned port = 0;
    QRect area;
    const QString text = portAt(help->pos(), port, area) ? portToolTip(port) : QString();
    return showPlainToolTip(help, this, text, area);
}

} // namespace velmora
