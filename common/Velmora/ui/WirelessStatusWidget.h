#pragma once
// The radios and SSIDs of a device that is itself an AP, one tab per band.
#include "DeviceStatusOptionBase.h"
#include "ui_CWirelessStatusWidget.h"

class QHideEvent;
class QTimer;

namespace velmora {

class CWirelessStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CWirelessStatusWidget(QWidget* parent);

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshPortStatisticData();

private:
    Ui::CWirelessStatusWidget ui;
    QTimer* m_pRefreshTimer;
};

} // namespace velmora
