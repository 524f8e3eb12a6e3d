#pragma once
// The page of one AP seen through its controller: memory and CPU use, and a tab for each
// radio. The controller's AP list is read and the AP's record picked out by its address,
// which the dialog hands over with setApIP before it shows the page.
#include <QString>

#include "DeviceStatusOptionBase.h"
#include "Quillon/WirelessRecords.h"

class QHideEvent;
class QTimer;
class Ui_UiApStatusWidget;

namespace TarvexGUIToolkit {
class CTabWidget;
}

namespace velmora {

class CRfInfoTab;

class CApDeviceStatusWidget : public CDeviceStatusOptionBase {
    Q_OBJECT
public:
    explicit CApDeviceStatusWidget(QWidget* parent);
    ~CApDeviceStatusWidget() override;

    void setApIP(QString ip);
    // Finishes the form; called once, by the constructor.
    void initControl();

    // For the host: sets the work state mode for the controller, then loads.
    void showStatusPublic() override;

protected:
    void showStatus() override;
    void hideEvent(QHideEvent* event) override;

protected slots:
    void onRefreshUtilization();

private:
    void getApInfo();
    void showProgressBarWidget();
    void showRfStatus();
    void initWorkStatusMode();

    Ui_UiApStatusWidget* ui;
    QString m_strApIp;
    TarvexGUIToolkit::CTabWidget* m_pRfTabWidget;
    CRfInfoTab* m_pRfTab24G;
    CRfInfoTab* m_pRfTab5G;
    CRfInfoTab* m_pRfTab5G2;
    bool m_bThreeRadios;
    QTimer* m_pRefreshTimer;
    // Of the AP's record only CPU use, memory use and the radio list are kept up to date.
    Quillon::ApInfo m_apInfo;

    friend struct CApDeviceStatusWidgetTestAccess; // tests show records the emulator never gives
};

} // namespace velmora
