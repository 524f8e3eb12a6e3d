#pragma once
// One radio of an AP as a tab page: channel and transmit power tiles, two channel use
// gauges, and the channel's interference verdict with its image.
#include <QWidget>
#include <map>

#include "Quillon/WirelessRecords.h"
#include "ui_RfInfoTab.h"

class QPixmap;

namespace velmora {

class CRfInfoTab : public QWidget {
    Q_OBJECT
public:
    // Keys of the channel state images.
    enum ChannelStateImage { ChannelNormal = 0, ChannelInterference = 1, ChannelUnknown = 2 };

    explicit CRfInfoTab(QWidget* parent = nullptr);
    ~CRfInfoTab() override;

    CRfInfoTab(const CRfInfoTab&) = delete;
    CRfInfoTab& operator=(const CRfInfoTab&) = delete;

    void setRfInfo(const Quillon::rfInfo& rf);

private:
    Ui::RfInfoTab ui;
    std::map<int, QPixmap*> m_mapChannelPixmap; // owned
};

} // namespace velmora
