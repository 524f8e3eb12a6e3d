#pragma once
// The SSIDs of a controller by AP group: a combo of the groups and, for the chosen one, a
// row per SSID with its state on each band.
#include <QString>
#include <string>

#include "DeviceStatusOptionBase.h"
#include "Quillon/WirelessRecords.h"
#include "ui_AcWirelessStatusWidget.h"

class QHideEvent;
class QTimer;

namespace TarvexGUIToolkit {
class CMutilColumnFilterProxyModel;
}

namespace velmora {

class CAcSSIDStatusModel;

class CAcWirelessStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CAcWirelessStatusWidget(QWidget* parent);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshWirelessPortInfo();
    void onGroupChange(QString strApGroup);

private:
    void getApGroupList();
    void updateGroupComBox();
    void showGroupSSID(std::string strGroupName);

    Ui::AcWirelessStatusWidget ui;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    CAcSSIDStatusModel* m_pSSIDModel;
    Quillon::APGroupBSSList m_apGroupList; // the groups of the last successful read
    QTimer* m_pRefreshTimer;

    friend struct CAcWirelessStatusWidgetTestAccess; // tests show groups the emulator never gives
};

} // namespace velmora
