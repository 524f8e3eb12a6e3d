#pragma once
// Base of every page of the status dialog. Derive, implement showStatus() (start the
// page's timer when it is stopped, then load at once) and stop the timer in hideEvent.
// Device and capabilities arrive after construction, through the factory.
#include <QWidget>
#include <memory>

class QTimer;

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "ostrand/IAbstractDevice.h"

namespace velmora {

class CDeviceStatusOptionBase : public QWidget {
    Q_OBJECT
public:
    explicit CDeviceStatusOptionBase(QWidget* parent);
    ~CDeviceStatusOptionBase() override;

    void setDeviceBasicInfo(std::shared_ptr<tarvex7300::IAbstractDevice> device);
    void setDeviceCapbility(protocol::SwitchCapabilities capability);

    // For the host, through a page pointer from the dialog; the base does nothing.
    virtual void showStatusPublic();

protected:
    // Load the page's data and show it now. The dialog calls it at every click on the
    // page's row, also when the page is already in front.
    virtual void showStatus() = 0;

    // True when the page has a device to ask. Without one the page loads nothing: `timer`
    // (when given) is stopped, so that a page without a device never polls, and the first
    // such call of the page logs it. Call it first in showStatus() and in each timer slot.
    bool hasDevice(QTimer* timer);

    friend class CSwitchDeviceStatusWidget;
    friend struct CDeviceStatusOptionBaseTestAccess; // tests drive pages as the dialog does

    protocol::SwitchCapabilities m_capability;
    std::shared_ptr<tarvex7300::IAbstractDevice> m_pDevice;

private:
    bool m_bNoDeviceLogged = false;
};

} // namespace velmora
