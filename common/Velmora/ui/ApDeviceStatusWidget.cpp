#include "ApDeviceStatusWidget.h"

#include <QGridLayout>
#include <QHideEvent>
#include <QTabBar>
#include <QTimer>
#include <new>
#include <string>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "RfInfoTab.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ui_UiApStatusWidget.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 10;
// A controller reports exactly three radios for an AP with two 5 GHz radios.
constexpr size_t kThreeRadios = 3;

const char kTabBarStyle[] = "QTabBar::tab{ min-width: 90px;}";

} // namespace

CApDeviceStatusWidget::CApDeviceStatusWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , ui(new (std::nothrow) Ui_UiApStatusWidget())
    , m_pRfTabWidget(nullptr)
    , m_pRfTab24G(nullptr)
    , m_pRfTab5G(nullptr)
    , m_pRfTab5G2(nullptr)
    , m_bThreeRadios(false)
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
    , m_apInfo(std::string())
{
    if (ui)
        ui->setupUi(this);
    if (m_pRefreshTimer)
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CApDeviceStatusWidget::onRefreshUtilization);
    initControl();
}

CApDeviceStatusWidget::~CApDeviceStatusWidget()
{
    delete ui;
    ui = nullptr;
}

void CApDeviceStatusWidget::setApIP(QString ip)
{
    m_strApIp = ip;
}

void CApDeviceStatusWidget::initControl()
{
    if (!ui)
        return;
    for (QProgressBar* bar : {ui->m_memoryProgressBar, ui->m_cpuProgressBar, ui->m_poeProgressBar,
                              ui->m_wholePOEProgressBar})
        bar->setTextVisible(false);
    // The PoE rows stay hidden for good: the controller knows nothing of an AP's PoE.
    for (QWidget* widget : std::initializer_list<QWidget*>{
             ui->memoryLabel, ui->m_memoryProgressBar, ui->memoryPercentLabel, ui->cpuLabel, ui->m_cpuProgressBar,
             ui->cpuPercentLabel, ui->poeLabel, ui->m_poeProgressBar, ui->poePercentLabel, ui->wholeMachinePOELabel,
             ui->m_wholePOEProgressBar, ui->wholeMachinePOEValue})
        widget->hide();

    auto* layout = new (std::nothrow) QGridLayout(ui->m_RfFrame);
    m_pRfTabWidget = new (std::nothrow) TarvexGUIToolkit::CTabWidget(ui->m_RfFrame);
    if (!m_pRfTabWidget)
        return;
    m_pRfTabWidget->tabBar()->setStyleSheet(kTabBarStyle);
    if (layout)
        layout->addWidget(m_pRfTabWidget);
}

void CApDeviceStatusWidget::showStatusPublic()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    initWorkStatusMode();
    showStatus();
}

void CApDeviceStatusWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start(kRefreshSeconds * 1000);
    getApInfo();
    showProgressBarWidget();
    showRfStatus();
}

void CApDeviceStatusWidget::hideEvent(QHideEvent*)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
}

void CApDeviceStatusWidget::onRefreshUtilization()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    QWidget* current = m_pRfTabWidget ? m_pRfTabWidget->currentWidget() : nullptr;
    getApInfo();
    showProgressBarWidget();
    showRfStatus();
    if (!m_pRfTabWidget)
        return;
    const int index = m_pRfTabWidget->indexOf(current);
    if (index != -1)
        m_pRfTabWidget->setCurrentIndex(index);
}

void CApDeviceStatusWidget::getApInfo()
{
    // Cleared before the request: after a failure the tabs use the two-radio titles.
    m_bThreeRadios = false;
    Quillon::ApInfoList apInfoList{std::string()};
    if (!ParamInterface::getApInfoList(apInfoList, m_pDevice->getDeviceId())) {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Error(
            "", Plinth::StringUtil::FormatString("Failed to get Ap Info List."), PLINTH_LOCATION);
        return;
    }
    const std::string apIp = m_strApIp.toStdString();
    // No stop at a match: of two records with the address the last one counts.
    for (const Quillon::ApInfo& apInfo : apInfoList.apList) {
        if (apInfo.ipAddress != apIp)
            continue;
        m_apInfo.cpuUsage = apInfo.cpuUsage;
        m_apInfo.memoryUsage = apInfo.memoryUsage;
        if (apInfo.rfList.size() == kThreeRadios)
            m_bThreeRadios = true;
        m_apInfo.rfList.clear();
        for (const Quillon::rfInfo& radio : apInfo.rfList) {
            Quillon::rfInfo kept{std::string()};
            kept.band = radio.band;
            kept.transmitPower = radio.transmitPower;
            kept.channel = radio.channel;
            kept.channelInterference = radio.channelInterference;
            kept.sendUtilization = radio.sendUtilization;
            kept.receiveUtilization = radio.receiveUtilization;
            m_apInfo.rfList.push_back(kept);
        }
    }
}

void CApDeviceStatusWidget::showProgressBarWidget()
{
    if (!ui)
        return;
    ui->m_memoryProgressBar->show();
    ui->memoryLabel->show();
    ui->memoryPercentLabel->show();
    ui->m_memoryProgressBar->setValue(m_apInfo.memoryUsage);
    ui->memoryPercentLabel->setText(QString("%1%").arg(m_apInfo.memoryUsage));

    ui->m_cpuProgressBar->show();
    ui->cpuLabel->show();
    ui->cpuPercentLabel->show();
    ui->m_cpuProgressBar->setValue(m_apInfo.cpuUsage);
    ui->cpuPercentLabel->setText(QString("%1%").arg(m_apInfo.cpuUsage));
}

void CApDeviceStatusWidget::showRfStatus()
{
    if (!m_pRfTabWidget)
        return;
    // The tab pages survive the clear and keep their values.
    m_pRfTabWidget->clear();
    for (const Quillon::rfInfo& radio : m_apInfo.rfList) {
        CRfInfoTab** tab = nullptr;
        QString title;
        switch (radio.band) {
        case 0:
            tab = &m_pRfTab24G;
            title = tr("GHZFrequencyBandJxjGQbMf");
            break;
        case 1:
            tab = &m_pRfTab5G;
            title = m_bThreeRadios ? tr("GHZFrequencyBandtaVmJsgCA") : tr("GHZFrequencyBandckTTmKJx");
            break;
        case 2:
            tab = &m_pRfTab5G2;
            title = tr("GHZFrequencyBandxmrbPirNUV");
            break;
        default:
            continue;
        }
        if (!*tab)
            *tab = new (std::nothrow) CRfInfoTab(this);
        if (!*tab)
            continue;
        (*tab)->setRfInfo(radio);
        // Two radios of one band share the tab: it keeps the last values and stays single.
        m_pRfTabWidget->addTab(*tab, title);
    }
}

void CApDeviceStatusWidget::initWorkStatusMode()
{
    const protocol::SwitchCapabilities capability = m_capability;
    if (WorkStatusInferface* workStatus = WorkStatusInferface::getInstance())
        workStatus->initMode(m_pDevice->getDeviceId(), capability);
}

} // namespace velmora
