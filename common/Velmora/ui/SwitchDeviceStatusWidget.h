#pragma once
// The status dialog of one network device: a tree of options on the left, the page of the
// chosen option on the right, the device's name and run time above. On a wireless
// controller a click in the managed AP list switches to the view of that AP, and the back
// button returns to the controller.
#include <QString>
#include <memory>
#include <string>

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "TarvexGUIToolkit/BaseDialog.h"
#include "ostrand/IAbstractDevice.h"

class QModelIndex;
class Ui_UiSwitchDeviceStatusWidget;

namespace velmora {

class CDeviceStatusFactory;
class CDeviceStatusItemModel;
class CDeviceStatusOptionBase;
class CDeviceStatusWidget;

class CSwitchDeviceStatusWidget : public TarvexGUIToolkit::CBaseDialog {
    Q_OBJECT
public:
    // Opens the dialog on `deviceGuid`: when it returns, the first page is shown.
    CSwitchDeviceStatusWidget(const std::string& deviceGuid, const protocol::SwitchCapabilities& capability,
                              QWidget* parent);
    // The empty dialog; initDeviceInfo gives it a device.
    explicit CSwitchDeviceStatusWidget(QWidget* parent);
    ~CSwitchDeviceStatusWidget() override;

    // Gives the dialog its device (again); model and factory are reused.
    void initDeviceInfo(const std::string& deviceGuid, const protocol::SwitchCapabilities& capability);
    std::string getDeviceGuid();
    // The device status page if it has been made (null before, or without a device).
    CDeviceStatusWidget* getDeviceStatusWidget();

protected Q_SLOTS:
    void onModelIndexChanged(const QModelIndex& index);
    void onUpdateToApStatus(const QString& apIp, const QString& apMac);
    void onUpdateToAcStatus();

private:
    bool setUpForm();
    void connectForm();
    bool lookUpDevice();
    void showDeviceName(const QString& name);
    bool ensureModelAndFactory();
    void initWorkStatusMode();
    void clickRow(int row);
    void showRunTime();
    void showApRunTime();

    Ui_UiSwitchDeviceStatusWidget* m_pUi;
    CDeviceStatusOptionBase* m_pCurrentPage;     // the page in front; not owned
    CDeviceStatusFactory* m_pStatusFactory;      // owns the pages
    CDeviceStatusItemModel* m_pItemModel;
    std::string m_strDeviceGuid;
    protocol::SwitchCapabilities m_capability;
    QString m_strApIp;                           // the AP of the AP view
    QString m_strApMac;
    std::shared_ptr<tarvex7300::IAbstractDevice> m_pDevice;
};

} // namespace velmora
