// Each class hands its own row of the layout tables to the shared panel.
#include "ChassisSwitchPanels.h"

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

#define VELMORA_PANEL(Class) \
    Class::Class(QWidget* parent) : CChassisPanel(layouts::layoutNamed(#Class), parent) {}

VELMORA_PANEL(CQ145SwitchPanel)
VELMORA_PANEL(CQ146SwitchPanel)
VELMORA_PANEL(CQ147SwitchPanel)
VELMORA_PANEL(CQ148SwitchPanel)
VELMORA_PANEL(CQ102SwitchPanel)

} // namespace velmora
