#pragma once
// One band of a stand-alone AP: the radio's switch, mode, channel and power, and the SSIDs
// of the band.
#include <QWidget>

#include "Quillon/WirelessRecords.h"
#include "ui_CWirelessStatusTab.h"

namespace velmora {

class CSSIDStatusModel;

class CWirelessStatusTab : public QWidget {
    Q_OBJECT
public:
    explicit CWirelessStatusTab(QWidget* parent = nullptr);

    // `band` 0 shows the 2.4 GHz radio and SSIDs, 1 the 5 GHz ones.
    void setWirelessInfo(int band, Quillon::RfParaCfgList rfList, Quillon::BssParaCfg bssCfg);

private:
    Ui::CWirelessStatusTab ui;
    CSSIDStatusModel* m_pSSIDStatusModel;
};

} // namespace velmora
