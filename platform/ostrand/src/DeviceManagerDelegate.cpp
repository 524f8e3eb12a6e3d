#include "ostrand/DeviceManagerDelegate.h"

#include "ostrand/RegistryDevice.h"

namespace ostrand {

std::shared_ptr<tarvex7300::IAbstractDevice> CDeviceManagerDelegate::createDeviceCopy(const std::string& deviceGuid)
{
    const std::optional<DeviceEntry> entry = CDeviceRegistry::instance().find(deviceGuid);
    if (!entry)
        return nullptr;
    return std::make_shared<CRegistryDevice>(*entry);
}

} // namespace ostrand
