#include "JSONStruct/PassThrough/BatchPassThroughJSONStruct.h"

namespace protocol {

PROTOCOL_DEFINE_RECORD(BatchSendData,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(inBuffer),
    PROTOCOL_FIELD(inBufferEncoding))

PROTOCOL_DEFINE_RECORD(BatchPassThroughReq,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(flagGuid),
    PROTOCOL_FIELD(cancel),
    PROTOCOL_FIELD(getPreviousData),
    PROTOCOL_FIELD(command),
    PROTOCOL_FIELD(hasNext),
    PROTOCOL_FIELD(condBuffer),
    PROTOCOL_FIELD(condBufferEncoding),
    PROTOCOL_FIELD(maxResultNum),
    PROTOCOL_FIELD(batchSendDataList))

PROTOCOL_DEFINE_RECORD(BatchReturnData,
    PROTOCOL_FIELD(id),
    PROTOCOL_FIELD(code),
    PROTOCOL_FIELD(outBuffer),
    PROTOCOL_FIELD(outBufferEncoding),
    PROTOCOL_FIELD(statusBuffer),
    PROTOCOL_FIELD(statusBufferEncoding))

PROTOCOL_DEFINE_MEMBER_RECORD(BatchPassThroughRsp,
    PROTOCOL_FIELD(guid),
    PROTOCOL_FIELD(isFinish),
    PROTOCOL_FIELD(batchReturnDataList))

PROTOCOL_DEFINE_RECORD(BatchPassThroughRspData,
    PROTOCOL_FIELD(batchPassThroughRsp))

PROTOCOL_DEFINE_RECORD(CredCfgCond,
    PROTOCOL_FIELD(totalNum),
    PROTOCOL_FIELD(enableCardReader))

} // namespace protocol
