// Each class hands its own row of the layout tables to the shared panel.
#include "FiberCardPanels.h"

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

#define VELMORA_PANEL(Class) \
    Class::Class(QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), layouts::kAnyMode, parent) {}
#define VELMORA_MODE_PANEL(Class) \
    Class::Class(int mode, QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), mode, parent) {}

VELMORA_PANEL(CFiberNetMgCardPanelStatus)
VELMORA_PANEL(CFiberReceiveCardPanelStatus)
VELMORA_PANEL(CFiberSendMachinePanelStatus)

} // namespace velmora
