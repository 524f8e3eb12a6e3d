#include "PanelFactory.h"

#include "ui/DevicePanelStatus/ApRouterPanels.h"
#include "ui/DevicePanelStatus/BridgePanels.h"
#include "ui/DevicePanelStatus/ChassisSwitchPanels.h"
#include "ui/DevicePanelStatus/FiberCardPanels.h"
#include "ui/DevicePanelStatus/FixedSwitchPanels.h"
#include "ui/DevicePanelStatus/SwitchLogicalPanel.h"

namespace velmora {

namespace {

struct Maker {
    const char* name;
    bool takesMode;
    CPanelStatusBase* (*create)(int mode, QWidget* parent);
};

#define PANEL(Class) {#Class, false, [](int, QWidget* parent) -> CPanelStatusBase* { return new Class(parent); }}
#define MODE_PANEL(Class) {#Class, true, [](int mode, QWidget* parent) -> CPanelStatusBase* { return new Class(mode, parent); }}

// clang-format off
const std::vector<Maker>& makers()
{
    static const std::vector<Maker> list = {
        MODE_PANEL(CQ101SwitchPanel),
        MODE_PANEL(CQ103SerialSwitchPanel),
        PANEL(CQ104SerialSwitchPanel),
        PANEL(CQ105SwitchPanel),
        MODE_PANEL(CQ106SerialSwitchPanel),
        PANEL(CQ107SwitchPanel),
        MODE_PANEL(CQ108SerialSwitchPanel),
        PANEL(CQ109SwitchPanel),
        PANEL(CQ110SwitchPanel),
        PANEL(CQ111SwitchPanel),
        PANEL(CQ112SwitchPanel),
        PANEL(CQ113SwitchPanel),
        PANEL(CQ114SwitchPanel),
        PANEL(CQ115SwitchPanel),
        PANEL(CQ116SwitchPanel),
        PANEL(CQ117SwitchPanel),
        PANEL(CQ118SwitchPanel),
        MODE_PANEL(CQ119SwitchPanel),
        PANEL(CQ120SwitchPanel),
        MODE_PANEL(CQ121SwitchPanel),
        MODE_PANEL(CQ122SwitchPanel),
        PANEL(CQ123SwitchPanel),
        PANEL(CQ124SwitchPanel),
        PANEL(CQ125SwitchPanel),
        PANEL(CQ126SwitchPanel),
        PANEL(CQ127SwitchPanel),
        PANEL(CQ128SwitchPanel),
        PANEL(CQ129SwitchPanel),
        PANEL(CQ130SwitchPanel),
        PANEL(CQ131SwitchPanel),
        PANEL(CQ132SwitchPanel),
        PANEL(CQ133SwitchPanel),
        PANEL(CQ134SwitchPanel),
        PANEL(CQ135SwitchPanel),
        PANEL(CQ136SwitchPanel),
        PANEL(CQ137SwitchPanel),
        PANEL(CQ138SwitchPanel),
        PANEL(CQ139SwitchPanel),
        PANEL(CQ140SwitchPanel),
        PANEL(CQ141SwitchPanel),
        PANEL(CQ142SwitchPanel),
        PANEL(CQ143SwitchPanel),
        PANEL(CQ144SwitchPanel),
        PANEL(CQ201SwitchPanel),
        PANEL(CQ202SwitchPanel),
        PANEL(CQ203SwitchPanel),
        PANEL(CQ145SwitchPanel),
        PANEL(CQ146SwitchPanel),
        PANEL(CQ147SwitchPanel),
        PANEL(CQ148SwitchPanel),
        PANEL(CQ102SwitchPanel),
        PANEL(CSinglePortElevatorBridgePanelStatus),
        PANEL(CThreePortElevatorBridgePanelStatus),
        PANEL(CSiteBridgePanelStatus),
        PANEL(CPairedBridgePanelStatus),
        PANEL(C5KMGigabitBridgeChassisStatus),
        PANEL(CACElevatorBridgePanelStatus),
        PANEL(C2D4G100MElevatorBridgePannel),
        PANEL(C2D4G200MElevatorBridgePannel),
        PANEL(C2D4G500MElevatorBridgePannel),
        PANEL(C2D4G1KMOutDoorBridgePannel),
        PANEL(C5D8G1KMOutDoorBridgePannel),
        PANEL(C5D8G3KMOutDoorBridgePannel),
        PANEL(CLowEnd1KMOutDoorBridgePannel),
        PANEL(CMutliPortBridgePanelStatus),
        PANEL(CQ301APPannel),
        PANEL(CQ302APPannel),
        PANEL(CQ303APPannel),
        PANEL(CQ304APPannel),
        PANEL(CQ305APPannel),
        PANEL(CQ306APPannel),
        PANEL(CQ401Pannel),
        PANEL(CQ402Pannel),
        PANEL(CQ403Pannel),
        PANEL(CQ431Pannel),
        PANEL(CQ432Pannel),
        PANEL(CQ433Pannel),
        PANEL(CQ434Pannel),
        PANEL(CQ501GRouter),
        PANEL(CQ502GRouter),
        PANEL(CQ503GRouter),
        PANEL(CQ504GRouter),
        PANEL(CQ505GRouter),
        PANEL(CQ506GRouter),
        PANEL(CFiberNetMgCardPanelStatus),
        PANEL(CFiberReceiveCardPanelStatus),
        PANEL(CFiberSendMachinePanelStatus),
        PANEL(CSwitchLogicalPanel),
    };
    return list;
}
// clang-format on

#undef PANEL
#undef MODE_PANEL

const Maker* makerOf(const std::string& className)
{
    for (const Maker& maker : makers())
        if (className == maker.name)
            return &maker;
    return nullptr;
}

} // namespace

CPanelStatusBase* createPanel(const std::string& className, int mode, QWidget* parent)
{
    const Maker* maker = makerOf(className);
    return maker ? maker->create(mode, parent) : nullptr;
}

std::vector<std::string> panelClassNames()
{
    std::vector<std::string> names;
    for (const Maker& maker : makers())
        names.emplace_back(maker.name);
    return names;
}

bool panelTakesMode(const std::string& className)
{
    const Maker* maker = makerOf(className);
    return maker && maker->takesMode;
}

} // namespace velmora
