#include "RfInfoTab.h"

#include <QPixmap>
#include <cstdint>
#include <new>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "ui/DevicePanelStatus/PanelResources.h"

namespace velmora {

namespace {

const char kNormalStyle[] = "color: rgb(41, 204, 64);font: bold 21px;";
const char kInterferenceStyle[] = "color: rgb(203, 94, 94);font: bold 21px;";

// The verdict on a channel's interference level. Only 10 to 14 counts as interference: the
// device reports 15 to 20 for a channel that is usable again, so those read as normal. The
// rows without a style leave the label's colour as it was and blank text and image.
struct InterferenceBand {
    uint32_t first;
    uint32_t last;
    const char* textKey;
    int image;
    const char* style; // null: out of the device's range
};

const InterferenceBand kInterferenceBands[] = {
    {0, 0, QT_TRANSLATE_NOOP("velmora::CRfInfoTab", "Normal"), CRfInfoTab::ChannelNormal, kNormalStyle},
    {1, 9, "", CRfInfoTab::ChannelUnknown, nullptr},
    {10, 14, QT_TRANSLATE_NOOP("velmora::CRfInfoTab", "InterferenceULcuQKdYGZ"), CRfInfoTab::ChannelInterference,
     kInterferenceStyle},
    {15, 20, QT_TRANSLATE_NOOP("velmora::CRfInfoTab", "Normal"), CRfInfoTab::ChannelNormal, kNormalStyle},
    {21, UINT32_MAX, "", CRfInfoTab::ChannelUnknown, nullptr},
};

const InterferenceBand& interferenceBand(uint32_t level)
{
    for (const InterferenceBand& band : kInterferenceBands) {
        if (level >= band.first && level <= band.last)
            return band;
    }
    return kInterferenceBands[0]; // not reached: the bands cover every value
}

} // namespace

CRfInfoTab::CRfInfoTab(QWidget* parent)
    : QWidget(parent)
{
    ui.setupUi(this);
    m_mapChannelPixmap[ChannelNormal] =
        new (std::nothrow) QPixmap(loadArt(":/Tarvex7300/Velmora/Images/APDevice/channel_status_normal.png"));
    m_mapChannelPixmap[ChannelInterference] =
        new (std::nothrow) QPixmap(loadArt(":/Tarvex7300/Velmora/Images/APDevice/channel_status_interference.png"));
    m_mapChannelPixmap[ChannelUnknown] = new (std::nothrow) QPixmap(QString());
}

CRfInfoTab::~CRfInfoTab()
{
    for (auto& [key, pixmap] : m_mapChannelPixmap) {
        delete pixmap;
        pixmap = nullptr;
    }
}

void CRfInfoTab::setRfInfo(const Quillon::rfInfo& rf)
{
    ui.m_pSendRateValueLabel->setUsageRate(static_cast<double>(rf.sendUtilization));
    ui.m_pReceiveRateLabel->setUsageRate(static_cast<double>(rf.receiveUtilization));
    ui.m_pTransmitPowerLabel->setText(QString("%1").arg(rf.transmitPower));
    ui.m_pChannelLabel->setText(QString("%1").arg(rf.channel));

    const InterferenceBand& band = interferenceBand(rf.channelInterference);
    ui.m_pChannelStatusLabel->setText(tr(band.textKey));
    if (const QPixmap* pixmap = m_mapChannelPixmap[band.image])
        ui.m_pChannelStatusPixLabel->setPixmap(*pixmap);
    if (band.style) {
        ui.m_pChannelStatusLabel->setStyleSheet(band.style);
    } else {
        Plinth::CSingleton<Plinth::details::CLog>::Instance().Error(
            "", Plinth::StringUtil::FormatString("Out of channel interference range"), PLINTH_LOCATION);
    }
}

} // namespace velmora
