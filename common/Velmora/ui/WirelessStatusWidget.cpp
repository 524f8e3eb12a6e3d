#include "WirelessStatusWidget.h"

#include <QHideEvent>
#include <QTimer>
#include <new>
#include <string>

#include "Quillon/WirelessRecords.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 10;

} // namespace

CWirelessStatusWidget::CWirelessStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
{
    ui.setupUi(this);
    if (m_pRefreshTimer) {
        m_pRefreshTimer->start(kRefreshSeconds * 1000);
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CWirelessStatusWidget::onRefreshPortStatisticData);
    }
}

void CWirelessStatusWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start();

    // A failed read leaves both tabs as they are; the query layer has logged it.
    Quillon::RfParaCfgList rfList{std::string()};
    if (!ParamInterface::getRfParaCfgList(rfList, m_pDevice->getDeviceId()))
        return;
    Quillon::BssParaCfg bssCfg{std::string()};
    if (!ParamInterface::getBssParaCfg(bssCfg, m_pDevice->getDeviceId()))
        return;
    ui.tab2_4->setWirelessInfo(0, rfList, bssCfg);
    ui.tab5->setWirelessInfo(1, rfList, bssCfg);
}

void CWirelessStatusWidget::hideEvent(QHideEvent* event)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
    QWidget::hideEvent(event);
}

void CWirelessStatusWidget::onRefreshPortStatisticData()
{
    showStatus();
}

} // namespace velmora
