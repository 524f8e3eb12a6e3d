#pragma once
// The DAG pass-through: one command with its condition and input payloads, and the output
// and status payloads that came back.
#include <cstdint>
#include <string>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct DagPassThroughReq : public IInboundData {
    int32_t command = 0;
    std::string condBuffer;
    std::string inBuffer;

    PROTOCOL_DECLARE_RECORD(DagPassThroughReq)
    PROTOCOL_ROOT_NAME("dagPassThroughReq")
};

struct DagPassThroughRsp : public IReturnData {
    std::string outBuffer;
    std::string statusBuffer;

    PROTOCOL_DECLARE_MEMBER_RECORD(DagPassThroughRsp)
};

struct DagPassThroughRspData : public IReturnData {
    DagPassThroughRsp dagPassThroughRsp;

    PROTOCOL_DECLARE_RECORD(DagPassThroughRspData)
};

} // namespace protocol
