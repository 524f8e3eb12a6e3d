#pragma once
// The NXRPC pass-through pair: one request line and body to a device, and its answer.
#include <cstdint>
#include <string>

namespace protocol {

struct NxrpcPassThroughReq {
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
};

struct NxrpcPassThroughRsp {
    std::string outBuffer;                // the device's answer body
    std::string statusBuffer;             // the device's status line
};

struct NxrpcPassThroughRspData {
    NxrpcPassThroughRsp nxrpcPassThroughRsp;
};

} // namespace protocol
