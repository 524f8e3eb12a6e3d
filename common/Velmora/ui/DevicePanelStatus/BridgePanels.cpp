// Each class hands its own row of the layout tables to the shared panel.
#include "BridgePanels.h"

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

#define VELMORA_PANEL(Class) \
    Class::Class(QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), layouts::kAnyMode, parent) {}
#define VELMORA_MODE_PANEL(Class) \
    Class::Class(int mode, QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), mode, parent) {}

VELMORA_PANEL(CSinglePortElevatorBridgePanelStatus)
VELMORA_PANEL(CThreePortElevatorBridgePanelStatus)
VELMORA_PANEL(CSiteBridgePanelStatus)
VELMORA_PANEL(CPairedBridgePanelStatus)
VELMORA_PANEL(C5KMGigabitBridgeChassisStatus)
VELMORA_PANEL(CACElevatorBridgePanelStatus)
VELMORA_PANEL(C2D4G100MElevatorBridgePannel)
VELMORA_PANEL(C2D4G200MElevatorBridgePannel)
VELMORA_PANEL(C2D4G500MElevatorBridgePannel)
VELMORA_PANEL(C2D4G1KMOutDoorBridgePannel)
VELMORA_PANEL(C5D8G1KMOutDoorBridgePannel)
VELMORA_PANEL(C5D8G3KMOutDoorBridgePannel)
VELMORA_PANEL(CLowEnd1KMOutDoorBridgePannel)
VELMORA_PANEL(CMutliPortBridgePanelStatus)

} // namespace velmora
