#pragma once
// Look-up of devices in the client's registry (a JSON file; see README, "The registry").
#include <memory>
#include <string>

#include "ostrand/IAbstractDevice.h"
#include "ostrand/DeviceRegistry.h"

namespace ostrand {

// A value object built on the stack for each look-up.
class CDeviceManagerDelegate {
public:
    // A copy of the registry's device, or null when the identifier is unknown.
    std::shared_ptr<tarvex7300::IAbstractDevice> createDeviceCopy(const std::string& deviceGuid);
};

} // namespace ostrand
