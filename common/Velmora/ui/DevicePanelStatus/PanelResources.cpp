#include "PanelResources.h"

#include <QtCore/qglobal.h>

// Q_INIT_RESOURCE declares the registration function in the scope it is used in, so it must
// stand outside any namespace.
static void registerVelmoraResources()
{
    Q_INIT_RESOURCE(velmora_art);
    Q_INIT_RESOURCE(velmora_style);
}

namespace velmora {

void initResources()
{
    static const bool registered = (registerVelmoraResources(), true);
    (void)registered;
}

} // namespace velmora
