#include "JSONStruct/PassThrough/DagPassThroughJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(DagPassThroughReq,
    PROTOCOL_FIELD(command),
    PROTOCOL_FIELD(condBuffer),
    PROTOCOL_FIELD(inBuffer))

PROTOCOL_DEFINE_MEMBER_RECORD(DagPassThroughRsp,
    PROTOCOL_FIELD(outBuffer),
    PROTOCOL_FIELD(statusBuffer))

PROTOCOL_DEFINE_RECORD(DagPassThroughRspData,
    PROTOCOL_FIELD(dagPassThroughRsp))

} // namespace protocol
