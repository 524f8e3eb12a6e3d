#include "DeviceStatusWidget.h"

#include <QGridLayout>
#include <QHideEvent>
#include <QTimer>
#include <climits>
#include <cmath>
#include <new>
#include <vector>

#include "PanelSelection.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "PortDetailInfoModel.h"
#include "Quillon/SwitchRecords.h"
#include "TarvexGUIToolkit/File.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "senvia/TopologyComm.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"
#include "ui/DevicePanelStatus/SwitchLogicalPanel.h"
#include "ui_UiPanelStatusWidget.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 10; // the usage bars follow the device every 10 s

// The topology service's numbers for what the port table leaves out.
constexpr int kSkippedFarCategory = 123;
constexpr int kSkippedPortType = 4;

const int kPortColumnWidths[] = {150, 120, 120, 120};

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

// Truncation of a single-precision percent towards zero. A value that has no integer
// (not-a-number, out of range) gives INT_MIN, as the processor's truncating conversion
// does; written out so that the conversion is defined.
int truncatePercent(float value)
{
    if (std::isnan(value) || value >= 2147483648.0f || value < -2147483648.0f)
        return INT_MIN;
    return static_cast<int>(value);
}

QString watts(float value)
{
    return QString::number(static_cast<double>(value), 'f', 1);
}

} // namespace

CDeviceStatusWidget::CDeviceStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pPortDetailInfoModel(new (std::nothrow) CPortDetailInfoModel(this))
    , m_pPanelStatus(nullptr)
    , m_pPanelLayout(nullptr)
    , m_pUi(new (std::nothrow) Ui_UiPanelStatusWidget())
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
{
    if (m_pUi)
        m_pUi->setupUi(this);
    setStyleSheet(TarvexGUIToolkit::CFile::ReadAll(":/ClientCommon/Qss/Qss/Velmora/Velmora.qss"));
    if (m_pRefreshTimer)
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CDeviceStatusWidget::onRefreshUtilization);
    initControl();
}

CDeviceStatusWidget::~CDeviceStatusWidget()
{
    delete m_pPortDetailInfoModel;
    m_pPortDetailInfoModel = nullptr;
    delete m_pPanelStatus;
    m_pPanelStatus = nullptr;
    delete m_pUi;
    m_pUi = nullptr;
}

void CDeviceStatusWidget::initControl()
{
    if (!m_pUi)
        return;
    if (m_pPortDetailInfoModel)
        m_pUi->m_pPortInfoTreeView->setModel(m_pPortDetailInfoModel);
    int column = 0;
    for (int width : kPortColumnWidths)
        m_pUi->m_pPortInfoTreeView->setColumnWidth(column++, width);
    m_pUi->m_pPortInfoTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (QProgressBar* bar : {m_pUi->m_memoryProgressBar, m_pUi->m_cpuProgressBar, m_pUi->m_poeProgressBar,
                              m_pUi->m_wholePOEProgressBar})
        bar->setTextVisible(false);
}

void CDeviceStatusWidget::showStatusPublic()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    initWorkStatusMode();
    showStatus();
}

void CDeviceStatusWidget::setPortAlarmState(int port, bool alarm)
{
    if (m_pPanelStatus)
        m_pPanelStatus->setPortAlarm(static_cast<unsigned>(port), alarm);
}

void CDeviceStatusWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start(kRefreshSeconds * 1000);
    showProgressBarWidget();
    showPortDetailInfo();
    showPanelStatus();
    refreshUnConfirmedPortAlarmByDeviceGuid();
}

void CDeviceStatusWidget::hideEvent(QHideEvent*)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
}

void CDeviceStatusWidget::onRefreshUtilization()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    showProgressBarWidget();
}

void CDeviceStatusWidget::deletePanelStatus()
{
    delete m_pPanelStatus;
    m_pPanelStatus = nullptr;
}

void CDeviceStatusWidget::showProgressBarWidget()
{
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    if (!ParamInterface::getSwitchDeviceStatus(status, m_pDevice->getDeviceId()))
        return;
    showUsage(status);
}

// Each group of bars that the device reports no data for is hidden; the section title goes
// only when all three are gone.
void CDeviceStatusWidget::showUsage(const Quillon::DeviceStatus& status)
{
    if (!m_pUi)
        return;
    Ui_UiPanelStatusWidget& ui = *m_pUi;
    int hidden = 0;

    const bool hasMemory = !status.memoryList.empty();
    ui.m_memoryProgressBar->setVisible(hasMemory);
    ui.memoryLabel->setVisible(hasMemory);
    ui.memoryPercentLabel->setVisible(hasMemory);
    if (!hasMemory) {
        ++hidden;
    } else {
        const Quillon::DeviceMemoryInfo& memory = status.memoryList.front();
        const float usage = memory.memoryUsage;
        const float available = memory.memoryAvailable;
        // Not guarded: a device that reports 0 and 0 shows what the truncation gives.
        const int percent = truncatePercent(usage * 100.0f / (available + usage));
        logger().Info("",
                      Plinth::StringUtil::FormatString(
                          "CDeviceStatusWidget::showProgressBarWidget(): MemoryUsage[%f];MemoryAvailable[%f];"
                          "usagePercentage[%d]",
                          static_cast<double>(usage), static_cast<double>(available), percent),
                      PLINTH_LOCATION);
        ui.m_memoryProgressBar->setValue(percent);
        ui.memoryPercentLabel->setText(QString("%1%").arg(percent));
    }

    const bool hasCpu = !status.cpuList.empty();
    ui.m_cpuProgressBar->setVisible(hasCpu);
    ui.cpuLabel->setVisible(hasCpu);
    ui.cpuPercentLabel->setVisible(hasCpu);
    if (!hasCpu) {
        ++hidden;
    } else {
        const int percent = status.cpuList.front().cpuUtilization;
        ui.m_cpuProgressBar->setValue(percent);
        logger().Info("",
                      Plinth::StringUtil::FormatString("CDeviceStatusWidget::showProgressBarWidget(): cpuUtilization[%d];",
                                                       percent),
                      PLINTH_LOCATION);
        ui.cpuPercentLabel->setText(QString("%1%").arg(percent));
    }

    const bool hasPoe = !status.poeList.empty();
    m_bReportsPoe = hasPoe;
    if (m_pPanelStatus)
        m_pPanelStatus->setPoePowerShown(hasPoe);
    ui.m_poeProgressBar->setVisible(hasPoe);
    ui.poeLabel->setVisible(hasPoe);
    ui.poePercentLabel->setVisible(hasPoe);
    if (!hasPoe) {
        ui.m_wholePOEProgressBar->setVisible(false);
        ui.wholeMachinePOELabel->setVisible(false);
        ui.wholeMachinePOEValue->setVisible(false);
        ++hidden;
    } else {
        const Quillon::DevicePoeInfo& poe = status.poeList.front();
        const float used = poe.poeUsed;
        const float total = poe.poeTotal;
        const float peak = poe.poePeak;
        ui.m_poeProgressBar->setValue(total > 0.0f ? truncatePercent(used * 100.0f / total) : 0);
        ui.poePercentLabel->setText(QString("%1W/%2W").arg(watts(used), watts(total)));
        // A negative peak means the device keeps none; that row goes, the section stays.
        const bool hasPeak = !(peak < 0.0f);
        ui.m_wholePOEProgressBar->setVisible(hasPeak);
        ui.wholeMachinePOELabel->setVisible(hasPeak);
        ui.wholeMachinePOEValue->setVisible(hasPeak);
        if (hasPeak) {
            ui.m_wholePOEProgressBar->setValue(total > 0.0f ? truncatePercent(peak * 100.0f / total) : 0);
            ui.wholeMachinePOEValue->setText(
                QString("%1W/%2W(%3)").arg(watts(peak), watts(total), tr("InSevenDays")));
        }
    }

    ui.PanelUsageLabel->setVisible(hidden < 3);
}

void CDeviceStatusWidget::showPortDetailInfo()
{
    std::vector<PortDetailInfo> rows;
    if (m_pPortDetailInfoModel)
        m_pPortDetailInfoModel->setPortDetailData(rows);
    m_portNeighbours.clear();

    protocol::DeviceNode node;
    if (!senvia::CTopologyConfigComm::getOneDeviceNode(m_pDevice->getDeviceId(), node)) {
        logger().Error("", "Failed to Get Topo Config getOneDeviceNode.", PLINTH_LOCATION);
        return;
    }
    for (const protocol::PortNode& port : node.portNodeList) {
        if (port.peerNodeList.empty())
            continue;
        // Only the first peer of a port counts.
        protocol::DeviceNode farNode;
        if (!senvia::CTopologyConfigComm::getOneDeviceNode(port.peerNodeList.front().guid, farNode)) {
            logger().Error("", "Failed to Get Topo Config getOneDeviceNode.", PLINTH_LOCATION);
            continue;
        }
        if (farNode.deviceCategory == kSkippedFarCategory || port.portType == kSkippedPortType)
            continue;
        PortDetailInfo row;
        row.strPortKey = std::string(1, static_cast<char>(port.linkPort & 0xFF));
        row.strPortName = port.portName;
        row.nDeviceCategory = farNode.deviceCategory;
        row.nDeviceClassType = farNode.deviceClassType;
        row.strIp = farNode.ip;
        row.strAlias = farNode.name;
        rows.push_back(row);
        CPanelStatusBase::PortNeighbour& neighbour = m_portNeighbours[static_cast<unsigned>(port.linkPort)];
        neighbour.portName = QString::fromStdString(port.portName);
        neighbour.name = QString::fromStdString(farNode.name);
        neighbour.deviceClass = CPortDetailInfoModel::oppositeDeviceType(farNode.deviceCategory, farNode.deviceClassType);
        neighbour.address = QString::fromStdString(farNode.ip);
    }
    if (m_pPortDetailInfoModel)
        m_pPortDetailInfoModel->setPortDetailData(rows);
}

void CDeviceStatusWidget::showPanelStatus()
{
    deletePanelStatus();

    if (m_capability.bIsSupportPanelStatus) {
        // The device describes its own panel; the model text plays no part.
        m_pPanelStatus = new (std::nothrow) CSwitchLogicalPanel(this);
    } else {
        const std::string clientModel = m_pDevice->getDeviceModel();
        Quillon::CSwitchBaseInfo baseInfo(std::string{});
        if (!ParamInterface::getSwitchBasicInfoConfig(baseInfo, m_pDevice->getDeviceId())) {
            logger().Error("",
                           Plinth::StringUtil::FormatString("call getSwitchBasicInfoConfig failed[%s, %s].",
                                                            clientModel.c_str(), baseInfo.deviceModel.c_str()),
                           PLINTH_LOCATION);
            return;
        }
        const int category = static_cast<int>(m_pDevice->getDeviceCategory());
        const PanelChoice* choice = choosePanel(category, clientModel, baseInfo.deviceModel);
        if (choice) {
            m_pPanelStatus = choice->create(this);
            if (m_pPanelStatus && panelTableForCategory(category)->hideConnectedLegend)
                m_pPanelStatus->hideConnectedLegend(true);
            if (choice->frameHeight > 0 && m_pUi)
                m_pUi->m_pPanelFrame->setFixedHeight(choice->frameHeight);
        }
    }

    if (!m_pPanelStatus || !m_pUi)
        return;
    if (!m_pPanelLayout)
        m_pPanelLayout = new (std::nothrow) QGridLayout(m_pUi->m_pPanelFrame);
    if (m_pPanelLayout) {
        while (QLayoutItem* item = m_pPanelLayout->takeAt(0))
            delete item;
        m_pPanelLayout->setContentsMargins(0, 0, 0, 0);
        m_pPanelLayout->addWidget(m_pPanelStatus, 0, 0, 1, 1);
    }
    m_pPanelStatus->panelDevice = m_pDevice;
    m_pPanelStatus->setPortNeighbours(m_portNeighbours);
    m_pPanelStatus->setPoePowerShown(m_bReportsPoe);
    m_pPanelStatus->showPanelStatus();
}

void CDeviceStatusWidget::refreshUnConfirmedPortAlarmByDeviceGuid()
{
    if (!m_pPanelStatus)
        return;
    protocol::SwitchAlarmListData alarms;
    if (!senvia::CTopoAlarmComm::request(alarms, m_pDevice->getDeviceId()))
        return;
    // Being listed means being in alarm; nothing here clears a mark, as the panel was
    // rebuilt just before.
    for (const protocol::SwitchAlarm& alarm : alarms.switchAlarmList)
        m_pPanelStatus->setPortAlarm(static_cast<unsigned>(alarm.port), true);
}

void CDeviceStatusWidget::initWorkStatusMode()
{
    WorkStatusInferface::getInstance()->initMode(m_pDevice->getDeviceId(), m_capability);
}

} // namespace velmora
