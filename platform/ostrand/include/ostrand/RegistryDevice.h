#pragma once
// The device that the registry hands out: a copy of one registry entry behind IAbstractDevice.
#include "ostrand/DeviceRegistry.h"
#include "ostrand/IAbstractDevice.h"

namespace ostrand {

class CRegistryDevice : public tarvex7300::IAbstractDevice {
public:
    explicit CRegistryDevice(const DeviceEntry& entry);

    std::string getDeviceId() const override;
    tarvex7300::Device::DeviceCategory getDeviceCategory() const override;
    std::string getDeviceModel() const override;
    std::string getDeviceName() const override;

    // The whole registry entry, as it was when the copy was made.
    const DeviceEntry& entry() const { return m_entry; }

private:
    DeviceEntry m_entry;
};

} // namespace ostrand
