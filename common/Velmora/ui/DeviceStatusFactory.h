#pragma once
// Which rows a device shows in the status dialog and which page stands behind each row.
// The factory makes every page on first use and keeps it, by option key, until it dies.
#include <QString>
#include <map>
#include <memory>

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "ostrand/IAbstractDevice.h"

class QWidget;

namespace velmora {

class CDeviceStatusItemModel;
class CDeviceStatusOptionBase;

// Option keys, stored in the rows of the option tree under Qt::UserRole.
enum DeviceStatusOption : int {
    OptionDeviceStatus = 1,        // CDeviceStatusWidget
    OptionPanelState = 2,          // CFiberPanelStatusWidget
    OptionBasicWireless = 3,       // CBasicWirelessInfoWidget
    OptionPortStatus = 4,          // CPortStatusWidget
    OptionPortStatistic = 5,       // CPortStatisticWidget
    OptionPoePortStatus = 6,       // CPOEPortStatusWidget
    OptionWirelessStatus = 7,      // CWirelessStatusWidget
    OptionPPPoEStatus = 8,         // CPPPoEStatusWidget
    OptionAcWirelessStatus = 9,    // CAcWirelessStatusWidget
    OptionApDeviceStatus = 10,     // CApDeviceStatusWidget, the AP seen through its controller
    OptionClientList = 11,         // CClientListInfoWidget
    OptionApList = 12,             // CApInfoListWidget
};

class CDeviceStatusFactory {
public:
    CDeviceStatusFactory(std::shared_ptr<tarvex7300::IAbstractDevice> device,
                         const protocol::SwitchCapabilities& capability);
    // Deletes every page made, in key order.
    virtual ~CDeviceStatusFactory();

    CDeviceStatusFactory(const CDeviceStatusFactory&) = delete;
    CDeviceStatusFactory& operator=(const CDeviceStatusFactory&) = delete;

    // Replaces device and capabilities; each page gets them at its next getOptionPage.
    void updateDeviceInfo(std::shared_ptr<tarvex7300::IAbstractDevice> device,
                          const protocol::SwitchCapabilities& capability);

    // The rows of the device's own view, chosen by its category (switches and enterprise
    // routers ask the device whether it has PoE). A category without a row list leaves the
    // model as it is.
    void setDeviceItem(CDeviceStatusItemModel* model);
    // The rows of the view of one AP managed by a controller.
    void setApDeviceItem(CDeviceStatusItemModel* model);

    // The page of `key`, made on first use with `parent`, given the factory's device and
    // capabilities at every call. Null for a key without a page class.
    CDeviceStatusOptionBase* getOptionPage(int key, QWidget* parent);
    // The page of `key` if it has been made; neither makes nor updates it.
    CDeviceStatusOptionBase* findOptionPage(int key);

    // The rows that the device's category calls for, key to title, before the check for
    // built pages; false for a category without a row list. Queries the device for PoE.
    bool deviceOptionItems(std::map<int, QString>& items);
    static std::map<int, QString> apOptionItems();
    // `items` without the rows whose page class this build doesn't hold, in key order.
    static std::map<int, QString> offeredItems(const std::map<int, QString>& items);
    // True when this build holds the page class of `key`.
    static bool hasPageClass(int key);

private:
    bool devicePowersPorts();

    std::map<int, CDeviceStatusOptionBase*> m_pages;
    std::shared_ptr<tarvex7300::IAbstractDevice> m_pDevice;
    protocol::SwitchCapabilities m_capability;
};

} // namespace velmora
