// Each class hands its own row of the layout tables to the shared panel.
#include "FixedSwitchPanels.h"

#include "ui/DevicePanelStatus/PanelLayouts.h"

namespace velmora {

#define VELMORA_PANEL(Class) \
    Class::Class(QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), layouts::kAnyMode, parent) {}
#define VELMORA_MODE_PANEL(Class) \
    Class::Class(int mode, QWidget* parent) : CLayoutPanel(layouts::layoutNamed(#Class), mode, parent) {}

VELMORA_MODE_PANEL(CQ101SwitchPanel)
VELMORA_MODE_PANEL(CQ103SerialSwitchPanel)
VELMORA_PANEL(CQ104SerialSwitchPanel)
VELMORA_PANEL(CQ105SwitchPanel)
VELMORA_MODE_PANEL(CQ106SerialSwitchPanel)
VELMORA_PANEL(CQ107SwitchPanel)
VELMORA_MODE_PANEL(CQ108SerialSwitchPanel)
VELMORA_PANEL(CQ109SwitchPanel)
VELMORA_PANEL(CQ110SwitchPanel)
VELMORA_PANEL(CQ111SwitchPanel)
VELMORA_PANEL(CQ112SwitchPanel)
VELMORA_PANEL(CQ113SwitchPanel)
VELMORA_PANEL(CQ114SwitchPanel)
VELMORA_PANEL(CQ115SwitchPanel)
VELMORA_PANEL(CQ116SwitchPanel)
VELMORA_PANEL(CQ117SwitchPanel)
VELMORA_PANEL(CQ118SwitchPanel)
VELMORA_MODE_PANEL(CQ119SwitchPanel)
VELMORA_PANEL(CQ120SwitchPanel)
VELMORA_MODE_PANEL(CQ121SwitchPanel)
VELMORA_MODE_PANEL(CQ122SwitchPanel)
VELMORA_PANEL(CQ123SwitchPanel)
VELMORA_PANEL(CQ124SwitchPanel)
VELMORA_PANEL(CQ125SwitchPanel)
VELMORA_PANEL(CQ126SwitchPanel)
VELMORA_PANEL(CQ127SwitchPanel)
VELMORA_PANEL(CQ128SwitchPanel)
VELMORA_PANEL(CQ129SwitchPanel)
VELMORA_PANEL(CQ130SwitchPanel)
VELMORA_PANEL(CQ131SwitchPanel)
VELMORA_PANEL(CQ132SwitchPanel)
VELMORA_PANEL(CQ133SwitchPanel)
VELMORA_PANEL(CQ134SwitchPanel)
VELMORA_PANEL(CQ135SwitchPanel)
VELMORA_PANEL(CQ136SwitchPanel)
VELMORA_PANEL(CQ137SwitchPanel)
VELMORA_PANEL(CQ138SwitchPanel)
VELMORA_PANEL(CQ139SwitchPanel)
VELMORA_PANEL(CQ140SwitchPanel)
VELMORA_PANEL(CQ141SwitchPanel)
VELMORA_PANEL(CQ142SwitchPanel)
VELMORA_PANEL(CQ143SwitchPanel)
VELMORA_PANEL(CQ144SwitchPanel)
VELMORA_PANEL(CQ201SwitchPanel)
VELMORA_PANEL(CQ202SwitchPanel)
VELMORA_PANEL(CQ203SwitchPanel)

} // namespace velmora
