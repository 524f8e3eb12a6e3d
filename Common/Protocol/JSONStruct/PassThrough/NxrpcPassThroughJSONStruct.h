#pragma once
// The NXRPC pass-through pair: one request line and body to a device, and its answer.
#include <cstdint>
#include <string>

#include "JSONStruct/FieldTable.h"

namespace protocol {

struct NxrpcPassThroughReq : public IInboundData {
    std::string operateType;
    std::string requestUrl;               // verb, one blank, path and query
    std::string inBuffer;                 // request body
    std::string inBufferEncoding = "raw";
    std::string outBufferEncoding = "raw";
    std::string picBuffer;
    std::string jsonBuffer;
    int32_t recvTimeOut = 15000;          // milliseconds
    int32_t numOfMultiPart = 0;
    bool forceEncrypt = false;

    // Written in the order the service expects, which is not the order of the members.
    PROTOCOL_RECORD(NxrpcPassThroughReq,
        PROTOCOL_FIELD(requestUrl),
        PROTOCOL_FIELD(inBuffer),
        PROTOCOL_FIELD(picBuffer),
        PROTOCOL_FIELD(jsonBuffer),
        PROTOCOL_FIELD(inBufferEncoding),
        PROTOCOL_FIELD(outBufferEncoding),
        PROTOCOL_FIELD(recvTimeOut),
        PROTOCOL_FIELD(numOfMultiPart),
        PROTOCOL_FIELD(forceEncrypt),
        // Read from "operateType" but noted in presentKeys with a capital; kept so on purpose.
        PROTOCOL_FIELD(operateType).presentAs("OperateType"))
    PROTOCOL_ROOT_NAME("nxrpcPassThroughReq")
};

struct NxrpcPassThroughRsp : public IReturnData {
    std::string outBuffer;                // the device's answer body
    std::string statusBuffer;             // the device's status line

    PROTOCOL_MEMBER_RECORD(NxrpcPassThroughRsp,
        PROTOCOL_FIELD(outBuffer),
        PROTOCOL_FIELD(statusBuffer))
};

struct NxrpcPassThroughRspData : public IReturnData {
    NxrpcPassThroughRsp nxrpcPassThroughRsp;

    PROTOCOL_RECORD(NxrpcPassThroughRspData,
        PROTOCOL_FIELD(nxrpcPassThroughRsp))
};

} // namespace protocol
