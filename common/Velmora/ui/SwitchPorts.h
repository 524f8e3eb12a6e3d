#pragma once
// The ports of a switch as the port pages read them: the names from the basic information
// and the states from the work state, whichever road the device serves it by.
#include <cstdint>
#include <string>

#include "Quillon/SwitchRecords.h"

namespace velmora {

// Reads the basic information of `deviceGuid`, then the work state of the device chosen last
// with WorkStatusInferface::initMode. False as soon as one read fails; the failed query has
// been logged by the query layer.
bool readSwitchPorts(const std::string& deviceGuid, Quillon::CSwitchBaseInfo& baseInfo,
                     Quillon::SwitchesWorkState& workState);

// The name of the first port of `baseInfo` with `portId`; empty when there is none.
std::string switchPortName(const Quillon::CSwitchBaseInfo& baseInfo, int32_t portId);

} // namespace velmora
