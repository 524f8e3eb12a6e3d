#include "SwitchPorts.h"

#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"

namespace velmora {

bool readSwitchPorts(const std::string& deviceGuid, Quillon::CSwitchBaseInfo& baseInfo,
                     Quillon::SwitchesWorkState& workState)
{
    if (!ParamInterface::getSwitchBasicInfoConfig(baseInfo, deviceGuid))
        return false;
    return WorkStatusInferface::getInstance()->queryWorkState(workState);
}

std::string switchPortName(const Quillon::CSwitchBaseInfo& baseInfo, int32_t portId)
{
    for (const Quillon::SwitchBasePort& port : baseInfo.portList) {
        if (port.portId == portId)
            return port.portName;
    }
    return std::string();
}

} // namespace velmora
