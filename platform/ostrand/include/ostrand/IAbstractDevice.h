#pragma once
// The client's view of one device: identifier, category, model and name.
#include <string>

namespace tarvex7300 {
namespace Device {

// The client's device classes; the module sees them only as numbers.
enum DeviceCategory : int {
    UnknownDevice = -1,
    EncodingDevice = 0,
    Switch = 120,
    WirelessBridge = 121,
    FiberConverter = 122,
    WirelessController = 124,
    WirelessAP = 125,
    WirelessRouter = 126,
    EnterpriseRouter = 130,
};

} // namespace Device

// Derive and implement the four getters; the registry's device is one such class.
class IAbstractDevice {
public:
    virtual ~IAbstractDevice() = default;
    virtual std::string getDeviceId() const = 0;
    virtual Device::DeviceCategory getDeviceCategory() const = 0;
    virtual std::string getDeviceModel() const = 0;
    virtual std::string getDeviceName() const = 0; // UTF-8
};

} // namespace tarvex7300
