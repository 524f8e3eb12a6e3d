#include "PPPoEStatusWidget.h"

#include <QHideEvent>
#include <QTimer>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <new>
#include <string>

#include "SpeedDataUintconvert.h"
#include "SwitchPorts.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

constexpr int kRefreshMilliseconds = 10000;

// A rate in Kbps as the speed text takes it: truncated toward zero to an unsigned number.
// Negative rates, and those that are not numbers, read 0; rates beyond the unsigned range its
// largest value.
unsigned int truncatedRate(float rate)
{
    if (!(rate > 0.0f))
        return 0;
    if (rate >= static_cast<float>(std::numeric_limits<unsigned int>::max()))
        return std::numeric_limits<unsigned int>::max();
    return static_cast<unsigned int>(rate);
}

std::string rateText(float rate)
{
    return SpeedDataUintconvert::speedDataAdaptiveUintconvert(truncatedRate(rate), SpeedDataUintconvert::Kbps)
        .toStdString();
}

} // namespace

CPPPoEStatusWidget::CPPPoEStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pProxyModel(nullptr)
    , m_pPPPoEStatusModel(new (std::nothrow) CPPPoEStatusModel(this))
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
{
    ui.setupUi(this);
    m_pProxyModel = new (std::nothrow) TarvexGUIToolkit::CMutilColumnFilterProxyModel(this);
    if (m_pProxyModel) {
        m_pProxyModel->setDynamicSortFilter(false);
        if (m_pPPPoEStatusModel)
            m_pProxyModel->setSourceModel(m_pPPPoEStatusModel);
        m_pProxyModel->setSortRole(Qt::DisplayRole);
        ui.m_pPortStatisticsTreeView->setModel(m_pProxyModel);
    }
    ui.m_pPortStatisticsTreeView->setSortingEnabled(true);
    ui.m_pPortStatisticsTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (m_pRefreshTimer) {
        m_pRefreshTimer->start(kRefreshMilliseconds);
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CPPPoEStatusWidget::onRefresh);
    }
}

void CPPPoEStatusWidget::onRefresh()
{
    showStatus();
}

void CPPPoEStatusWidget::hideEvent(QHideEvent* event)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
    QWidget::hideEvent(event);
}

void CPPPoEStatusWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start();

    Quillon::PPPoEStatusList list(static_cast<_xmlNode*>(nullptr));
    if (!ParamInterface::getPPPoEStatusList(list, m_pDevice->getDeviceId()))
        return;
    const std::string emptyAnswer;
    Quillon::CSwitchBaseInfo baseInfo(emptyAnswer);
    if (!ParamInterface::getSwitchBasicInfoConfig(baseInfo, m_pDevice->getDeviceId()))
        return;

    const std::vector<PPPoEStatusInfo> rows = makePPPoEStatusInfo(list, baseInfo);
    if (m_pPPPoEStatusModel)
        m_pPPPoEStatusModel->setPPPoEStatus(rows);
    // The proxy doesn't follow its source by itself: sort again by the user's column.
    if (m_pProxyModel)
        m_pProxyModel->sort(m_pProxyModel->sortColumn(), m_pProxyModel->sortOrder());
}

std::vector<PPPoEStatusInfo> CPPPoEStatusWidget::makePPPoEStatusInfo(const Quillon::PPPoEStatusList& list,
                                                                     const Quillon::CSwitchBaseInfo& baseInfo)
{
    std::vector<PPPoEStatusInfo> rows;
    rows.reserve(list.statusList.size());
    for (const Quillon::PPPoEStatus& status : list.statusList) {
        PPPoEStatusInfo row;
        // atoi on purpose: an identifier that isn't a number reads as port 0. A port without a
        // name keeps its row with an empty name; a name ends at its first NUL.
        row.strPortName = switchPortName(baseInfo, std::atoi(status.id.c_str())).c_str();
        row.strStatus = status.status;
        row.strMode = status.addressingType;
        row.strIp = status.ipAddress;
        row.strMask = status.subnetMask;
        row.strGateway = status.gateway;
        row.strDns1 = status.primaryDNS;
        row.strDns2 = status.secondaryDNS;
        row.strUplinkRate = rateText(status.uplinkRate);
        row.strDownlinkRate = rateText(status.downlinkRate);
        rows.push_back(row);
    }
    return rows;
}

} // namespace velmora
