#include "ostrand/RegistryDevice.h"

namespace ostrand {

CRegistryDevice::CRegistryDevice(const DeviceEntry& entry)
    : m_entry(entry)
{
}

std::string CRegistryDevice::getDeviceId() const
{
    return m_entry.id;
}

tarvex7300::Device::DeviceCategory CRegistryDevice::getDeviceCategory() const
{
    return static_cast<tarvex7300::Device::DeviceCategory>(m_entry.category);
}

std::string CRegistryDevice::getDeviceModel() const
{
    return m_entry.model;
}

std::string CRegistryDevice::getDeviceName() const
{
    return m_entry.name;
}

} // namespace ostrand
