#include "PanelStatusBase.h"

#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include "ui_PanelStatusBase.h"

namespace velmora {

namespace {
// Size of the logo strip, whatever the SVG's own size is.
constexpr double kLogoWidth = 48.0;
constexpr double kLogoHeight = 7.0;
} // namespace

CPanelStatusBase::CPanelStatusBase(QWidget* parent)
    : QWidget(parent), ui(new Ui::UiPanelStatusBase)
{
    ui->setupUi(this);
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
    const int imageWidth = frame != pixmaps.end() && frame->second ? frame->second->width() : 0;
    const int imageHeight = frame != pixmaps.end() && frame->second ? frame->second->height() : 0;
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

} // namespace velmora
