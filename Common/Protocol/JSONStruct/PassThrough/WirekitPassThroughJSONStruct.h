#pragma once
// The device SDK pass-through: one SDK call with its payloads, and what came back. The
// payloads are carried as they stand; the encoding fields only name their form.
#include <cstdint>
#include <string>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct WirekitPassThroughReq : public IInboundData {
    std::string func;                     // name of the SDK call
    int32_t command = 0;                  // command number of that call
    int32_t resourceNo = 0;               // number of the resource addressed
    int32_t count = 0;                    // item count of the call
    int32_t outBufferLen = 0;             // length of the output buffer
    std::string condBuffer;
    std::string condBufferEncoding = "raw";
    std::string inBuffer;
    std::string inBufferEncoding = "raw";

    PROTOCOL_DECLARE_RECORD(WirekitPassThroughReq)
    PROTOCOL_ROOT_NAME("wirekitPassThroughReq")
};

// The encodings of an answer start empty; only requests default to "raw".
struct WirekitPassThroughRsp : public IReturnData {
    std::string outBuffer;
    std::string outBufferEncoding;
    std::string statusBuffer;             // the status payload of the call
    std::string statusBufferEncoding;

    PROTOCOL_DECLARE_MEMBER_RECORD(WirekitPassThroughRsp)
};

struct WirekitPassThroughRspData : public IReturnData {
    WirekitPassThroughRsp wirekitPassThroughRsp;

    PROTOCOL_DECLARE_RECORD(WirekitPassThroughRspData)
};

} // namespace protocol
