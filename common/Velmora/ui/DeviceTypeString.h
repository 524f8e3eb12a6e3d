#pragma once
// The display name of a device category.
#include <QString>

#include "ostrand/IAbstractDevice.h"

namespace velmora {

// The translated name of `category`; every category without a name of its own reads as
// an encoding device. Texts come from the generic QObject translation context.
QString deviceTypeToString(tarvex7300::Device::DeviceCategory category);

} // namespace velmora
