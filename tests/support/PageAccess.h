#pragma once
// Lets tests call a page's protected showStatus() the way the dialog does.
#include "DeviceStatusOptionBase.h"

namespace velmora {
struct CDeviceStatusOptionBaseTestAccess {
    static void showStatus(CDeviceStatusOptionBase* page) { page->showStatus(); }
};
} // namespace velmora
