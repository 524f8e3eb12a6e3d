#include "JSONStruct/Topology/TopologyJSONStruct.h"

namespace protocol {

bool TopologyParam::validate(std::string& error)
{
    if (firstLevelThreshold <= secondLevelThreshold)
        return true;
    error = "the primary threshold cannot greater than the second threshold.";
    return false;
}

bool QueryCondition::validate(std::string& /*error*/)
{
    return method == "local" || method == "refresh";
}

bool RootNode::validate(std::string& /*error*/)
{
    return !guid.empty();
}

bool GatewayNode::validate(std::string& /*error*/)
{
    return !guid.empty();
}

} // namespace protocol
