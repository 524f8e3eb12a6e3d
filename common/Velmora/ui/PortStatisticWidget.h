#pragma once
// Port statistics page: counters and rates of each wired port, refreshed at the interval
// that the user chooses (shared by every page of the process), with a clear on the device.
#include <QString>
#include <map>
#include <vector>

#include "DeviceStatusOptionBase.h"
#include "PortStatisticModel.h"
#include "Quillon/SwitchRecords.h"
#include "ui_UiPortStatisticWidget.h"

class QHideEvent;
class QTimer;

namespace velmora {

class CPortStatisticWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CPortStatisticWidget(QWidget* parent);

    // The row of one wired port of the work state, named from the basic information.
    static PortStatisticData makePortStatisticData(const Quillon::SwitchesWorkStateItem& port,
                                                   const Quillon::CSwitchBaseInfo& baseInfo);

    // The choices of the refresh combo: text to seconds.
    static const std::map<QString, int> mapRefreshRate;
    // The seconds chosen last on any page; a new page starts with it.
    static int nRefreshRate;

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshPortStatisticData();
    void onRefreshRateChanged(int index);
    void onClearPortStatisticData();

private:
    Ui::UiPortStatisticWidget ui;
    CPortStatisticModel* m_pPortStatisticModel;
    QTimer* m_pRefreshTimer;
    std::vector<PortStatisticData> m_vecPortStatistic;
    bool m_bCleared;
};

} // namespace velmora
