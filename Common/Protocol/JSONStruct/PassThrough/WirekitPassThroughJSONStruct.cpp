#include "JSONStruct/PassThrough/WirekitPassThroughJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(WirekitPassThroughReq,
    PROTOCOL_FIELD(func),
    PROTOCOL_FIELD(command),
    PROTOCOL_FIELD(resourceNo),
    PROTOCOL_FIELD(count),
    PROTOCOL_FIELD(outBufferLen),
    PROTOCOL_FIELD(condBuffer),
    PROTOCOL_FIELD(condBufferEncoding),
    PROTOCOL_FIELD(inBuffer),
    PROTOCOL_FIELD(inBufferEncoding))

PROTOCOL_DEFINE_MEMBER_RECORD(WirekitPassThroughRsp,
    PROTOCOL_FIELD(outBuffer),
    PROTOCOL_FIELD(outBufferEncoding),
    PROTOCOL_FIELD(statusBuffer),
    PROTOCOL_FIELD(statusBufferEncoding))

PROTOCOL_DEFINE_RECORD(WirekitPassThroughRspData,
    PROTOCOL_FIELD(wirekitPassThroughRsp))

} // namespace protocol
