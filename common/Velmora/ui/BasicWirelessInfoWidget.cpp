#include "BasicWirelessInfoWidget.h"

#include <QHideEvent>
#include <QTimer>
#include <cmath>
#include <limits>
#include <new>
#include <string>

#include "FormatConnectTime.h"
#include "logical/interface/ParamInterface.h"

namespace velmora {

namespace {

constexpr int kRefreshSeconds = 5;
constexpr int kMillisecondsPerSecond = 1000;

// The wireless record's mark of a number the bridge didn't report.
constexpr int32_t kAbsentValue = -1;
// A transmission entry's noise when the bridge didn't report one.
constexpr int32_t kAbsentPeerNoise = -1000;

const char kNoValue[] = "--";

// Widths of the connected-device table, column by column.
constexpr int kColumnWidths[CConnectedDeviceInfoModel::COLUMN_COUNT] = {140, 100, 100, 140, 100, 100, 170};

QString utf8(const std::string& text)
{
    return QString::fromUtf8(text.c_str());
}

QString securityModeText(const std::string& mode)
{
    if (mode == "WPA2-personal")
        return QStringLiteral("WPA2-PSK");
    if (mode == "disable")
        return CBasicWirelessInfoWidget::tr("Not-Encrypted");
    return QString::fromLatin1(kNoValue);
}

// The text of a known work scene; false for any other, which leaves the label as it was.
bool workSceneText(const std::string& scene, QString& text)
{
    if (scene == "computerRoom")
        text = CBasicWirelessInfoWidget::tr("EngineRoomSide");
    else if (scene == "monitorTerminal")
        text = CBasicWirelessInfoWidget::tr("TheCamerasEndmTYxgqlwl");
    else if (scene == "centralTerminal")
        text = CBasicWirelessInfoWidget::tr("TheCenterForEndkwNQXqnbiw");
    else
        return false;
    return true;
}

// A rate truncated toward zero. Rates are Mbps of one radio link; a value beyond the range
// of int, or not a number at all, can't come from a device and is pinned to the range.
int truncatedRate(float rate)
{
    if (std::isnan(rate))
        return 0;
    if (rate >= static_cast<float>(std::numeric_limits<int>::max()))
        return std::numeric_limits<int>::max();
    if (rate <= static_cast<float>(std::numeric_limits<int>::min()))
        return std::numeric_limits<int>::min();
    return static_cast<int>(rate);
}

} // namespace

CBasicWirelessInfoWidget::CBasicWirelessInfoWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pConnectedDeviceInfoModel(new (std::nothrow) CConnectedDeviceInfoModel(nullptr))
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
{
    ui.setupUi(this);
    if (m_pConnectedDeviceInfoModel)
        ui.m_pConnectedDeviceTreeView->setModel(m_pConnectedDeviceInfoModel);
    for (int column = 0; column < CConnectedDeviceInfoModel::COLUMN_COUNT; ++column)
        ui.m_pConnectedDeviceTreeView->setColumnWidth(column, kColumnWidths[column]);
    ui.m_pConnectedDeviceTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    if (m_pRefreshTimer)
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CBasicWirelessInfoWidget::onRefreshWirelessPortInfo);
}

CBasicWirelessInfoWidget::~CBasicWirelessInfoWidget()
{
    delete m_pConnectedDeviceInfoModel;
    m_pConnectedDeviceInfoModel = nullptr;
}

void CBasicWirelessInfoWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive()) {
        m_pRefreshTimer->stop();
        m_pRefreshTimer->start(kRefreshSeconds * kMillisecondsPerSecond);
    }
    onRefreshWirelessPortInfo();
}

void CBasicWirelessInfoWidget::hideEvent(QHideEvent* /*event*/)
{
    // Nothing goes on to QWidget: its handler does nothing either.
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
}

void CBasicWirelessInfoWidget::onRefreshWirelessPortInfo()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    showBasicInfo();
    // Without a card there is nobody to ask for peers; the table keeps what it has.
    if (!m_capability.wirelessCardID.empty())
        showConnectedDevices();
}

void CBasicWirelessInfoWidget::showBasicInfo()
{
    // The result isn't looked at: after a failure the record's "absent" values hide the pairs.
    Quillon::Wireless wireless(static_cast<_xmlNode*>(nullptr));
    ParamInterface::getNetworkPortWirelessInfo(wireless, m_pDevice->getDeviceId(), m_capability.wirelessCardID);
    showWirelessPairs(wireless);
}

void CBasicWirelessInfoWidget::showWirelessPairs(const Quillon::Wireless& wireless)
{
    struct Pair {
        QLabel* caption;
        QLabel* value;
        bool present;
        bool hasText;  // false: the label keeps its text (an unknown work scene)
        QString text;
        bool showAgain; // shown again when it comes back; the other pairs stay hidden for good
    };
    QString workScene;
    const bool knownWorkScene = workSceneText(wireless.workScene, workScene);
    // The channel width is tested on its mode setting and shown from the width value: a bridge
    // has to send both for a complete line.
    const Pair pairs[] = {
        {ui.label_1, ui.m_pSSIDLabel, !wireless.ssid.empty(), true, utf8(wireless.ssid), false},
        {ui.label_5, ui.m_pBottomNoiseLabel, wireless.noise != kAbsentValue, true,
         QString::number(wireless.noise) + QStringLiteral("dBm"), false},
        {ui.label_8, ui.m_pChannelWidthLabel, !wireless.channelWidthMode.empty(), true,
         utf8(wireless.channelWidth) + QStringLiteral("MHz"), false},
        {ui.label_7, ui.m_pSafetyMddeLabel, !wireless.securityMode.empty(), true,
         securityModeText(wireless.securityMode), false},
        {ui.label_9, ui.m_pChannelFreqlabel, !wireless.channel.empty(), true, utf8(wireless.channel), false},
        {ui.label_6, ui.m_pWirelessModeLabel, !wireless.wirelessMode.empty(), true, utf8(wireless.wirelessMode), false},
        {ui.label_2, ui.m_pWorkingModeLabel, !wireless.workScene.empty(), knownWorkScene, workScene, false},
        {ui.label_4, ui.m_pTransmitPowerLabel, wireless.transmitPower != kAbsentValue, true,
         QString::number(wireless.transmitPower) + QStringLiteral("dBm"), false},
        {ui.label_3, ui.m_pAntennaGainLabel, wireless.antennaGainPresent && wireless.antennaGain != kAbsentValue, true,
         QString::number(wireless.antennaGain) + QStringLiteral("dBi"), true},
    };

    int presentCount = 0;
    for (const Pair& pair : pairs) {
        if (!pair.present) {
            pair.caption->hide();
            pair.value->hide();
            continue;
        }
        ++presentCount;
        if (pair.hasText)
            pair.value->setText(pair.text);
        if (pair.showAgain) {
            pair.caption->show();
            pair.value->show();
        }
    }
    if (presentCount == 0)
        ui.basicItemFrame->hide();
}

void CBasicWirelessInfoWidget::showConnectedDevices()
{
    // The result isn't looked at: after a failure the list is empty and so is the table.
    const std::string emptyAnswer;
    Quillon::TransmissionList list(emptyAnswer);
    ParamInterface::getWirelessTransmissionInfo(list, m_pDevice->getDeviceId(), m_capability.wirelessCardID);
    if (m_pConnectedDeviceInfoModel)
        m_pConnectedDeviceInfoModel->setConnectedDevice(makeConnectedDeviceInfo(list));
}

std::vector<ConnectedDeviceInfo> CBasicWirelessInfoWidget::makeConnectedDeviceInfo(const Quillon::TransmissionList& list)
{
    std::vector<ConnectedDeviceInfo> rows;
    rows.reserve(list.transmissionList.size());
    for (const Quillon::Transmission& peer : list.transmissionList) {
        ConnectedDeviceInfo row;
        row.strMac = utf8(peer.macAddress);
        row.strIp = utf8(peer.ipAddress);
        row.nSignal = peer.signal;
        row.strNoise = peer.noise == kAbsentPeerNoise ? QString::fromLatin1(kNoValue) : QString::number(peer.noise);
        row.strRate = QString::number(truncatedRate(peer.receiveRate)) + QStringLiteral("/") +
                      QString::number(truncatedRate(peer.sendRate));
        row.strDistance = peer.distance < 0.0f ? QString::fromLatin1(kNoValue)
                                               : QString::number(static_cast<double>(peer.distance), 'f', 2);
        row.strConnectTime = formatConnectTime(peer.connectSeconds);
        rows.push_back(row);
    }
    return rows;
}

} // namespace velmora
