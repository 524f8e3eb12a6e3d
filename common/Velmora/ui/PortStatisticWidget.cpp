#include "PortStatisticWidget.h"

#include <QHideEvent>
#include <QTimer>
#include <new>

#include "Plinth/Log.h"
#include "Plinth/Singleton.h"
#include "Plinth/StringUtil.h"
#include "SpeedDataUintconvert.h"
#include "SwitchPorts.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

const char kNoValue[] = "--";
const char kCleared[] = "0";
constexpr int kAfterClearMs = 2000; // the device's own values are read again this soon after a clear
constexpr int kDefaultRefreshSeconds = 10;

std::string formatRate(uint32_t bitsPerSecond)
{
    return SpeedDataUintconvert::speedDataAdaptiveUintconvert(bitsPerSecond, SpeedDataUintconvert::bps)
        .toStdString();
}

// A peak of 0 means the device has none.
std::string formatPeakRate(uint32_t bitsPerSecond)
{
    return bitsPerSecond == 0 ? std::string(kNoValue) : formatRate(bitsPerSecond);
}

} // namespace

const std::map<QString, int> CPortStatisticWidget::mapRefreshRate = {
    {QStringLiteral("10s"), 10},
    {QStringLiteral("20s"), 20},
    {QStringLiteral("30s"), 30},
};

int CPortStatisticWidget::nRefreshRate = kDefaultRefreshSeconds;

CPortStatisticWidget::CPortStatisticWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pPortStatisticModel(new (std::nothrow) CPortStatisticModel(this))
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
    , m_bCleared(false)
{
    ui.setupUi(this);
    for (const auto& rate : mapRefreshRate)
        ui.m_pRefreshRatecomboBox->AddItem(rate.first, rate.second);
    if (m_pPortStatisticModel)
        ui.m_pPortStatisticsTreeView->setModel(m_pPortStatisticModel);
    ui.m_pPortStatisticsTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (int column : {int(CPortStatisticModel::PEAK_SEND_RATE), int(CPortStatisticModel::PEAK_RECEIVE_RATE),
                       int(CPortStatisticModel::PORT_NAME)})
        ui.m_pPortStatisticsTreeView->setColumnWidth(column, 150);
    connect(ui.m_pRefreshButton, &QPushButton::clicked, this, &CPortStatisticWidget::onRefreshPortStatisticData);
    connect(ui.m_pRefreshRatecomboBox, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CPortStatisticWidget::onRefreshRateChanged);
    connect(ui.m_pClearButton, &QPushButton::clicked, this, &CPortStatisticWidget::onClearPortStatisticData);
    const auto findRate = [this](int seconds) {
        return ui.m_pRefreshRatecomboBox->findData(seconds, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    };
    int rateIndex = findRate(nRefreshRate);
    if (rateIndex < 0) {
        // The shared rate is one the combo doesn't offer. Without an entry the interval would
        // be 0 and the page would poll the device without pause, so the default is taken.
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
            "",
            Plinth::StringUtil::FormatString("Refresh rate %d s is not offered; %d s is used.", nRefreshRate,
                                             kDefaultRefreshSeconds),
            PLINTH_LOCATION);
        nRefreshRate = kDefaultRefreshSeconds;
        rateIndex = findRate(nRefreshRate);
    }
    ui.m_pRefreshRatecomboBox->setCurrentIndex(rateIndex);
    if (m_pRefreshTimer) {
        m_pRefreshTimer->start(ui.m_pRefreshRatecomboBox->currentData(Qt::UserRole).toInt() * 1000);
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CPortStatisticWidget::onRefreshPortStatisticData);
    }
}

PortStatisticData CPortStatisticWidget::makePortStatisticData(const Quillon::SwitchesWorkStateItem& port,
                                                              const Quillon::CSwitchBaseInfo& baseInfo)
{
    PortStatisticData row;
    row.strPortName = switchPortName(baseInfo, port.portId);
    if (port.linkState == "disconnected") {
        row.bConnected = false;
        row.strBytesSent = row.strPacketsSent = row.strSendRate = row.strBytesReceived = row.strPacketsReceived =
            row.strReceiveRate = row.strPeakSendRate = row.strPeakReceiveRate = kNoValue;
        return row;
    }
    row.bConnected = true;
    row.strBytesSent = groupDigits(port.bytesSent);
    row.strBytesReceived = groupDigits(port.bytesReceived);
    row.strPacketsSent = groupDigits(port.packetsSent);
    row.strPacketsReceived = groupDigits(port.packetsReceived);
    row.strSendRate = formatRate(port.sendRate);
    row.strReceiveRate = formatRate(port.receiveRate);
    row.strPeakSendRate = formatPeakRate(port.peakSendRate);
    row.strPeakReceiveRate = formatPeakRate(port.peakReceiveRate);
    return row;
}

void CPortStatisticWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start();

    Quillon::CSwitchBaseInfo baseInfo(std::string{});
    Quillon::SwitchesWorkState workState(std::string{});
    if (!readSwitchPorts(m_pDevice->getDeviceId(), baseInfo, workState))
        return;

    m_vecPortStatistic.clear();
    for (const Quillon::SwitchesWorkStateItem& port : workState.portList) {
        if (port.portType != "wireless")
            m_vecPortStatistic.push_back(makePortStatisticData(port, baseInfo));
    }
    if (m_pPortStatisticModel)
        m_pPortStatisticModel->setPortStatistic(m_vecPortStatistic);
}

void CPortStatisticWidget::hideEvent(QHideEvent* event)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
    QWidget::hideEvent(event);
}

void CPortStatisticWidget::onRefreshPortStatisticData()
{
    showStatus();
    // The first refresh after a clear puts the chosen interval back in place of the short shot.
    if (m_bCleared) {
        m_bCleared = false;
        if (m_pRefreshTimer)
            m_pRefreshTimer->setInterval(ui.m_pRefreshRatecomboBox->currentData(Qt::UserRole).toInt() * 1000);
    }
}

void CPortStatisticWidget::onRefreshRateChanged(int index)
{
    if (index < 0)
        return;
    const int seconds = ui.m_pRefreshRatecomboBox->currentData(Qt::UserRole).toInt();
    nRefreshRate = seconds;
    if (m_pRefreshTimer)
        m_pRefreshTimer->setInterval(seconds * 1000);
}

void CPortStatisticWidget::onClearPortStatisticData()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    m_bCleared = true;
    if (m_pRefreshTimer)
        m_pRefreshTimer->stop();
    if (ParamInterface::setSwitchesPortSumClear(m_pDevice->getDeviceId())) {
        // Show zeros at once; the device's own values follow with the next refresh.
        for (PortStatisticData& row : m_vecPortStatistic) {
            if (!row.bConnected)
                continue;
            row.strBytesSent = row.strPacketsSent = row.strSendRate = row.strBytesReceived = row.strPacketsReceived =
                row.strReceiveRate = row.strPeakSendRate = row.strPeakReceiveRate = kCleared;
        }
    }
    if (m_pPortStatisticModel)
        m_pPortStatisticModel->setPortStatistic(m_vecPortStatistic);
    if (m_pRefreshTimer)
        m_pRefreshTimer->start(kAfterClearMs);
}

} // namespace velmora
