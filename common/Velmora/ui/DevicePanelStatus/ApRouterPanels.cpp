// Each class hands its own row of the layout tables to the shared panel.
#include "ApRouterPanels.h"

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

#define VELMORA_PANEL(Class) \
    Class::Class(QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), layouts::kAnyMode, parent) {}
#define VELMORA_MODE_PANEL(Class) \
    Class::Class(int mode, QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), mode, parent) {}

VELMORA_PANEL(CQ301APPannel)
VELMORA_PANEL(CQ302APPannel)
VELMORA_PANEL(CQ303APPannel)
VELMORA_PANEL(CQ304APPannel)
VELMORA_PANEL(CQ305APPannel)
VELMORA_PANEL(CQ306APPannel)
VELMORA_PANEL(CQ401Pannel)
VELMORA_PANEL(CQ402Pannel)
VELMORA_PANEL(CQ403Pannel)
VELMORA_PANEL(CQ431Pannel)
VELMORA_PANEL(CQ432Pannel)
VELMORA_PANEL(CQ433Pannel)
VELMORA_PANEL(CQ434Pannel)
VELMORA_PANEL(CQ501GRouter)
VELMORA_PANEL(CQ502GRouter)
VELMORA_PANEL(CQ503GRouter)
VELMORA_PANEL(CQ504GRouter)
VELMORA_PANEL(CQ505GRouter)
VELMORA_PANEL(CQ506GRouter)

} // namespace velmora
