#include "WirelessStatusTab.h"

#include <new>
#include <string>
#include <vector>

#include "SSIDStatusModel.h"
#include "TarvexGUIToolkit/StringConvert.h"

namespace velmora {

namespace {

const int kColumnWidths[] = {200, 200, 100};

// Radio mode texts by band and the device's mode number "0" to "3". The 5 GHz radio has
// no mode "3": a device that reports it leaves the label as it was.
const char* const kModeTexts[2][4] = {
    {"802.11b/g", "802.11b", "802.11g", "802.11b/g/n"},
    {"802.11a", "802.11ac", "802.11a/n", nullptr},
};

const char* modeText(int band, const std::string& mode)
{
    if (band < 0 || band > 1 || mode.size() != 1 || mode[0] < '0' || mode[0] > '3')
        return nullptr;
    return kModeTexts[band][mode[0] - '0'];
}

} // namespace

CWirelessStatusTab::CWirelessStatusTab(QWidget* parent)
    : QWidget(parent)
    , m_pSSIDStatusModel(new (std::nothrow) CSSIDStatusModel(this))
{
    ui.setupUi(this);
    if (m_pSSIDStatusModel)
        ui.treeView->setModel(m_pSSIDStatusModel);
    for (int column = 0; column < static_cast<int>(std::size(kColumnWidths)); ++column)
        ui.treeView->setColumnWidth(column, kColumnWidths[column]);
    ui.treeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void CWirelessStatusTab::setWirelessInfo(int band, Quillon::RfParaCfgList rfList, Quillon::BssParaCfg bssCfg)
{
    if (band == 0 || band == 1) {
        // Several radios of the band: the last one decides.
        for (const Quillon::RfParaCfg& radio : rfList.rfList) {
            if (radio.band != band)
                continue;
            ui.labelRfSwitch->setText(radio.enabled ? tr("OpenCUMN5SS7") : tr("ShutDown42HTMCDN"));
            if (const char* mode = modeText(band, radio.wirelessMode))
                ui.labelNetworkMode->setText(QString::fromLatin1(mode));
            ui.labelChanWidth->setText(radio.channel == 0 ? QStringLiteral("N/A") : QString::number(radio.channel));
            ui.labelPowerValue->setText(QString::number(radio.transmitPower) + "dBm");
        }
    }

    // The table is rebuilt at each SSID of the band; a band without SSIDs keeps its rows.
    std::vector<SSIDRowData> rows;
    for (const Quillon::BssParaCfgInfo& bss : bssCfg.bssList) {
        if (bss.band != band)
            continue;
        SSIDRowData row;
        row.strSSID = QString::fromUtf8(bss.ssid.c_str(), static_cast<int>(bss.ssid.size()));
        row.strMac = TarvexGUIToolkit::ConvertToUnicode(bss.macAddress, nullptr);
        row.strEnable = bss.enabled ? tr("IsEnabled") : tr("Disabled");
        row.strSecurity = bss.securityMode == "none" ? tr("None")
                                                     : TarvexGUIToolkit::ConvertToUnicode(bss.securityMode, nullptr);
        rows.push_back(row);
        if (m_pSSIDStatusModel)
            m_pSSIDStatusModel->setSSIDInfo(rows);
    }
}

} // namespace velmora
