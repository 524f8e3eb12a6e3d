#include "Resources.h"

#include <QtGlobal>

#include <mutex>

// Q_INIT_RESOURCE declares a function of the global namespace, so it is called from here.
static void initTarvexGUIToolkitResources()
{
    Q_INIT_RESOURCE(TarvexGUIToolkit);
}

namespace TarvexGUIToolkit {
namespace details {

const char* const kPreviousPageIcon = ":/TarvexGUIToolkit/Dialog/Images/Dialog/PreviousPage.png";
const char* const kCloseIcon = ":/TarvexGUIToolkit/Dialog/Images/Dialog/Close.png";

void InitToolkitResources()
{
    static std::once_flag once;
    std::call_once(once, initTarvexGUIToolkitResources);
}

} // namespace details
} // namespace TarvexGUIToolkit
