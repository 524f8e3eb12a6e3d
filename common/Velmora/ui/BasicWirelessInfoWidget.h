#pragma once
// The wireless card of a bridge: its basic parameters as caption and value pairs that show
// only when the bridge reports them, and the devices connected to it over the air. The card
// is the interface that the capabilities name (wirelessCardID).
#include <vector>

#include "ConnectedDeviceInfoModel.h"
#include "DeviceStatusOptionBase.h"
#include "Quillon/WirelessRecords.h"
#include "ui_UiBasicWirelessInfoWidget.h"

class QHideEvent;
class QTimer;

namespace velmora {

class CBasicWirelessInfoWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CBasicWirelessInfoWidget(QWidget* parent);
    ~CBasicWirelessInfoWidget() override;

    // The table rows of the peers in `list`, in its order.
    static std::vector<ConnectedDeviceInfo> makeConnectedDeviceInfo(const Quillon::TransmissionList& list);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshWirelessPortInfo();

private:
    void showBasicInfo();
    // The pairs of `wireless`: those without a value hidden, the frame too when none has one.
    void showWirelessPairs(const Quillon::Wireless& wireless);
    void showConnectedDevices();

    Ui::UiBasicWirelessInfoWidget ui;
    CConnectedDeviceInfoModel* m_pConnectedDeviceInfoModel;
    QTimer* m_pRefreshTimer;

    friend struct CBasicWirelessInfoWidgetTestAccess; // tests feed cards the emulator never reports
};

} // namespace velmora
