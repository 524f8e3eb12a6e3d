#pragma once
// The first page of every device: usage bars, the drawn front panel with its alarm marks,
// and what hangs on each port. The host reaches it through the dialog to push port alarms
// and to ask for a full refresh.
#include <map>

#include "DeviceStatusOptionBase.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace Quillon {
struct DeviceStatus;
}

class QGridLayout;
class QHideEvent;
class QTimer;
class Ui_UiPanelStatusWidget;

namespace velmora {

class CPanelStatusBase;
class CPortDetailInfoModel;

class CDeviceStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CDeviceStatusWidget(QWidget* parent);
    ~CDeviceStatusWidget() override;

    void initControl();

    // For the host: sets the work state mode for this device, then loads everything.
    void showStatusPublic() override;

    // Marks or clears the alarm of one port on the panel; nothing without a panel.
    void setPortAlarmState(int port, bool alarm);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshUtilization();

private:
    void deletePanelStatus();
    void showProgressBarWidget();
    void showUsage(const Quillon::DeviceStatus& status);
    void showPortDetailInfo();
    void showPanelStatus();
    void refreshUnConfirmedPortAlarmByDeviceGuid();
    void initWorkStatusMode();

    CPortDetailInfoModel* m_pPortDetailInfoModel;
    CPanelStatusBase* m_pPanelStatus;
    QGridLayout* m_pPanelLayout;
    Ui_UiPanelStatusWidget* m_pUi;
    QTimer* m_pRefreshTimer;
    // What the last load learnt for the panel's port tooltips: the far devices by port
    // number, and whether the device reports PoE.
    std::map<unsigned, CPanelStatusBase::PortNeighbour> m_portNeighbours;
    bool m_bReportsPoe = false;

    friend struct CDeviceStatusWidgetTestAccess; // tests feed device answers the emulator never gives
};

} // namespace velmora
