#include "ClientListInfoWidget.h"

#include <QFrame>
#include <QGridLayout>
#include <QHideEvent>
#include <QLabel>
#include <QPixmap>
#include <QSpacerItem>
#include <QTabBar>
#include <QTimer>
#include <cctype>
#include <new>

#include "ClientTab.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "Quillon/MacCompanyHelper.h"
#include "Quillon/WirelessRecords.h"
#include "SpeedDataUintconvert.h"
#include "TarvexGUIToolkit/StringConvert.h"
#include "TarvexGUIToolkit/TabWidget.h"
#include "logical/interface/ParamInterface.h"
#include "ui/DevicePanelStatus/PanelResources.h"

namespace velmora {

namespace {

constexpr int kRefreshMs = 10 * 1000;
constexpr size_t kThreeRadios = 3;
constexpr size_t kOuiLength = 6;

const char kTabBarStyle[] = "QTabBar::tab{ min-width: 90px;}";
const char kNoDataImage[] = ":/Tarvex7300/Velmora/Images/APDevice/clientlist_no_data.png";

// The no-data frame: a 3 x 4 grid whose middle column holds the image over the text.
constexpr int kNoDataMinimumWidth = 700;
constexpr int kNoDataMinimumHeight = 560;
const int kNoDataRowStretches[] = {150, 120, 32, 260};
const int kNoDataColumnStretches[] = {290, 121, 290};
constexpr int kNoDataImageRow = 1;
constexpr int kNoDataTextRow = 2;
constexpr int kNoDataColumn = 1;
const QSize kNoDataImageMinimum(121, 120);
const QSize kNoDataTextMinimum(121, 32);

Plinth::details::CLog& logger()
{
    return Plinth::CSingleton<Plinth::details::CLog>::Instance();
}

// A rate in Kbps as the whole number that the speed text takes; negative and not-a-number
// rates count as 0, rates beyond the unsigned range as its top.
unsigned int truncateRate(double rate)
{
    if (!(rate > 0.0))
        return 0;
    if (rate >= 4294967295.0)
        return 4294967295u;
    return static_cast<unsigned int>(rate);
}

// Adds the rows of one terminal to the band's terminals of its SSID.
void addClient(ClientInfoBySsid& clients, const std::string& ssid, const ClientInfo& row)
{
    auto found = clients.find(ssid);
    if (found != clients.end())
        found->second.push_back(row);
    else
        clients.emplace(ssid, std::vector<ClientInfo>{row});
}

} // namespace

CClientListInfoWidget::CClientListInfoWidget(QWidget* parent)
    : CDeviceStatusOptionBase(parent)
    , m_pClientModel(new (std::nothrow) CClientModel(this))
    , m_pRefreshTimer(new (std::nothrow) QTimer(this))
    , m_pTabWidget(nullptr)
    , m_pNoDataFrame(nullptr)
    , m_pNoDataPixLabel(nullptr)
    , m_pNoDataTextLabel(nullptr)
    , m_pClientTab24G(nullptr)
    , m_pClientTab5G(nullptr)
    , m_pClientTab5G2(nullptr)
    , m_bSupport5_2G(false)
{
    auto* layout = new (std::nothrow) QGridLayout(this);
    m_pTabWidget = new (std::nothrow) TarvexGUIToolkit::CTabWidget(this);
    if (m_pTabWidget) {
        m_pTabWidget->tabBar()->setStyleSheet(kTabBarStyle);
        if (layout)
            layout->addWidget(m_pTabWidget, 0, 0);
    }
    initNoDataFrame();
    if (m_pNoDataFrame && layout)
        layout->addWidget(m_pNoDataFrame, 1, 0);

    if (m_pRefreshTimer) {
        m_pRefreshTimer->start(kRefreshMs);
        connect(m_pRefreshTimer, &QTimer::timeout, this, &CClientListInfoWidget::onRefresh);
    }
}

void CClientListInfoWidget::initNoDataFrame()
{
    m_pNoDataFrame = new (std::nothrow) QFrame(this);
    if (!m_pNoDataFrame)
        return;
    m_pNoDataFrame->setObjectName("m_pNoDataFrame");
    m_pNoDataFrame->setMinimumSize(kNoDataMinimumWidth, kNoDataMinimumHeight);
    m_pNoDataFrame->hide();
    auto* grid = new (std::nothrow) QGridLayout(m_pNoDataFrame);
    if (!grid)
        return;
    for (int row = 0; row < static_cast<int>(std::size(kNoDataRowStretches)); ++row) {
        grid->setRowStretch(row, kNoDataRowStretches[row]);
        if (row != kNoDataImageRow && row != kNoDataTextRow)
            grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Expanding), row, kNoDataColumn);
    }
    for (int column = 0; column < static_cast<int>(std::size(kNoDataColumnStretches)); ++column) {
        grid->setColumnStretch(column, kNoDataColumnStretches[column]);
        if (column != kNoDataColumn)
            grid->addItem(new QSpacerItem(0, 0, QSizePolicy::Expanding, QSizePolicy::Minimum), kNoDataImageRow,
                          column);
    }

    m_pNoDataPixLabel = new (std::nothrow) QLabel(m_pNoDataFrame);
    if (m_pNoDataPixLabel) {
        m_pNoDataPixLabel->setObjectName("m_pNoDataPixLabel");
        m_pNoDataPixLabel->setMinimumSize(kNoDataImageMinimum);
        m_pNoDataPixLabel->setAlignment(Qt::AlignCenter);
        m_pNoDataPixLabel->setPixmap(loadArt(kNoDataImage));
        grid->addWidget(m_pNoDataPixLabel, kNoDataImageRow, kNoDataColumn);
    }
    m_pNoDataTextLabel = new (std::nothrow) QLabel(m_pNoDataFrame);
    if (m_pNoDataTextLabel) {
        m_pNoDataTextLabel->setObjectName("m_pNoDataTextLabel");
        m_pNoDataTextLabel->setMinimumSize(kNoDataTextMinimum);
        m_pNoDataTextLabel->setAlignment(Qt::AlignCenter);
        m_pNoDataTextLabel->setText(tr("NoData"));
        grid->addWidget(m_pNoDataTextLabel, kNoDataTextRow, kNoDataColumn);
    }
}

void CClientListInfoWidget::setApInfo(QString strApMac, QString strApIP)
{
    m_strApMac = strApMac;
    m_bSupport5_2G = isSupport5_2G(strApIP);
}

std::string CClientListInfoWidget::reduceMacToOui(const std::string& mac)
{
    // Only "-" goes: a MAC written with colons keeps them, and so names no maker.
    std::string reduced;
    for (char c : mac) {
        if (c != '-')
            reduced.push_back(c);
    }
    if (reduced.size() > kOuiLength)
        reduced.resize(kOuiLength);
    for (char& c : reduced)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return reduced;
}

QString CClientListInfoWidget::formatClientConnectTime(int seconds)
{
    const QChar zero('0');
    return QString("%1").arg(seconds / 3600, 2, 10, zero) + ":" + QString("%1").arg((seconds % 3600) / 60, 2, 10, zero)
           + ":" + QString("%1").arg(seconds % 60, 2, 10, zero);
}

ClientInfo CClientListInfoWidget::makeClientInfo(const Quillon::CMacCompanyHelper& companies, const char* source,
                                                 const std::string& mac, const std::string& ip, int rssi,
                                                 double sendRate, double receiveRate, int connectSeconds)
{
    ClientInfo row;
    row.strMac = TarvexGUIToolkit::ConvertToUnicode(mac, nullptr);
    row.strIp = TarvexGUIToolkit::ConvertToUnicode(ip, nullptr);
    const std::string littleMac = reduceMacToOui(mac);
    const std::string type = companies.getCompanyNameByMAc(littleMac);
    row.strType = TarvexGUIToolkit::ConvertToUnicode(type, nullptr);
    logger().Info("",
                  Plinth::StringUtil::FormatString("CClientListInfoWidget::%s(): strDeviceMac[%s];strLittleMac[%s];strType[%s]",
                                                   source, mac.c_str(), littleMac.c_str(), type.c_str()),
                  PLINTH_LOCATION);
    row.strRssi = QString::number(rssi) + "dBm";
    row.strSendRate =
        SpeedDataUintconvert::speedDataAdaptiveUintconvert(truncateRate(sendRate), SpeedDataUintconvert::Kbps);
    row.strReceiveRate =
        SpeedDataUintconvert::speedDataAdaptiveUintconvert(truncateRate(receiveRate), SpeedDataUintconvert::Kbps);
    row.strConnectTime = formatClientConnectTime(connectSeconds);
    return row;
}

bool CClientListInfoWidget::isSupport5_2G(const QString ip)
{
    Quillon::ApInfoList apInfoList{std::string()};
    if (!ParamInterface::getApInfoList(apInfoList, m_pDevice->getDeviceId())) {
        logger().Error("", Plinth::StringUtil::FormatString("Failed to get Ap Info List."), PLINTH_LOCATION);
        return false;
    }
    const std::string apIp = ip.toStdString();
    for (const Quillon::ApInfo& apInfo : apInfoList.apList) {
        if (apInfo.ipAddress == apIp && apInfo.rfList.size() == kThreeRadios)
            return true;
    }
    return false;
}

void CClientListInfoWidget::getApTerminalInfoFromAc(bool& has24G, bool& has5G, bool& has5G2,
                                                    ClientInfoBySsid& map24G, ClientInfoBySsid& map5G,
                                                    ClientInfoBySsid& map5G2)
{
    Quillon::AcTerminalInfoList terminals{std::string()};
    if (!ParamInterface::getApTerminalInfoList(terminals, m_pDevice->getDeviceId())) {
        logger().Error("", Plinth::StringUtil::FormatString("call getApTerminalInfoList failed."), PLINTH_LOCATION);
        return;
    }
    const Quillon::CMacCompanyHelper companies;
    const std::string apMac = m_strApMac.toStdString();
    for (const Quillon::AcTerminalInfo& terminal : terminals.terminalList) {
        if (terminal.apMacAddress != apMac)
            continue;
        const ClientInfo row = makeClientInfo(companies, "getApTerminalInfoFromAc", terminal.macAddress,
                                              terminal.ipAddress, terminal.rssi, terminal.sendRate,
                                              terminal.receiveRate, terminal.connectSeconds);
        switch (terminal.band) {
        case 0:
            has24G = true;
            addClient(map24G, terminal.ssid, row);
            break;
        case 1:
            has5G = true;
            addClient(map5G, terminal.ssid, row);
            break;
        case 2:
            has5G2 = true;
            addClient(map5G2, terminal.ssid, row);
            break;
        default:
            break;
        }
    }
}

void CClientListInfoWidget::getApTerminalInfoFromAp(bool& has24G, bool& has5G, ClientInfoBySsid& map24G,
                                                    ClientInfoBySsid& map5G)
{
    Quillon::BssClientInfoList bssList{std::string()};
    if (!ParamInterface::getBssClientInfoList(bssList, m_pDevice->getDeviceId())) {
        logger().Error("", Plinth::StringUtil::FormatString("call getBssClientInfoList failed."), PLINTH_LOCATION);
        return;
    }
    const Quillon::CMacCompanyHelper companies;
    for (const Quillon::BssClientInfo& bss : bssList.bssList) {
        std::vector<ClientInfo> rows;
        for (const Quillon::BssClient& client : bss.clientList)
            rows.push_back(makeClientInfo(companies, "getApTerminalInfoFromAp", client.macAddress, client.ipAddress,
                                          client.rssi, client.sendRate, client.receiveRate, client.connectSeconds));
        // insert keeps the first BSS of an SSID on a band: a second one's rows are dropped.
        if (bss.band == 0) {
            has24G = true;
            map24G.insert({bss.ssid, rows});
        } else if (bss.band == 1) {
            has5G = true;
            map5G.insert({bss.ssid, rows});
        }
    }
}

void CClientListInfoWidget::showStatus()
{
    if (!hasDevice(m_pRefreshTimer))
        return;
    if (m_pRefreshTimer && !m_pRefreshTimer->isActive())
        m_pRefreshTimer->start();

    bool has24G = false;
    bool has5G = false;
    bool has5G2 = false;
    ClientInfoBySsid map24G;
    ClientInfoBySsid map5G;
    ClientInfoBySsid map5G2;
    if (!m_capability.isSupportAPGroup)
        getApTerminalInfoFromAp(has24G, has5G, map24G, map5G);
    else
        getApTerminalInfoFromAc(has24G, has5G, has5G2, map24G, map5G, map5G2);

    const bool nothing = !has24G && !has5G && !has5G2;
    if (nothing) {
        if (m_pTabWidget)
            m_pTabWidget->hide();
        if (m_pNoDataFrame)
            m_pNoDataFrame->show();
    } else {
        if (m_pNoDataFrame)
            m_pNoDataFrame->hide();
        if (m_pTabWidget)
            m_pTabWidget->show();
    }
    if (!m_pTabWidget)
        return;
    // The tab pages survive the clear.
    m_pTabWidget->clear();

    struct Band {
        bool present;
        CClientTab** tab;
        const ClientInfoBySsid* clients;
        QString title;
    };
    const Band bands[] = {
        {has24G, &m_pClientTab24G, &map24G, tr("GHZFrequencyBandJxjGQbMf")},
        {has5G, &m_pClientTab5G, &map5G, m_bSupport5_2G ? tr("GHZFrequencyBandtaVmJsgCA") : tr("GHZFrequencyBandckTTmKJx")},
        {has5G2, &m_pClientTab5G2, &map5G2, tr("GHZFrequencyBandxmrbPirNUV")},
    };
    for (const Band& band : bands) {
        if (!band.present)
            continue;
        if (!*band.tab)
            *band.tab = new (std::nothrow) CClientTab(this);
        if (!*band.tab)
            continue;
        (*band.tab)->setClientInfo(*band.clients);
        m_pTabWidget->addTab(*band.tab, band.title);
    }
}

void CClientListInfoWidget::hideEvent(QHideEvent* event)
{
    if (m_pRefreshTimer && m_pRefreshTimer->isActive())
        m_pRefreshTimer->stop();
    QWidget::hideEvent(event);
}

void CClientListInfoWidget::onRefresh()
{
    QWidget* current = m_pTabWidget ? m_pTabWidget->currentWidget() : nullptr;
    showStatus();
    if (!m_pTabWidget)
        return;
    const int index = m_pTabWidget->indexOf(current);
    if (index != -1)
        m_pTabWidget->setCurrentIndex(index);
}

} // namespace velmora
