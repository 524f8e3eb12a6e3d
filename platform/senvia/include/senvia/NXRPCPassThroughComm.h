#pragma once
// The pass-through transport: one NXRPC request to one device of the registry.
#include <string>

#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"

namespace senvia {

class CNXRPCPassThroughComm {
public:
    // Sends `request.requestUrl` ("VERB /path?query", a trailing CR LF accepted) with
    // `request.inBuffer` as body to the device `deviceGuid`, waiting at most
    // `request.recvTimeOut` ms. True with the answer body in `response...outBuffer` and the
    // status line in `statusBuffer`; false with Plinth's last error set (docs/transport.md).
    // The connection must be accepted within senvia::kConnectTimeOutMs. After a time-out or
    // a failed connection the device is held as unreachable for senvia::kUnreachableHoldMs:
    // its queries fail at once with the same error numbers, and nothing is ever retried
    // (senvia/TransportTimings.h). Safe to call from several threads at once.
    static bool request(protocol::NxrpcPassThroughRspData& response,
                        const protocol::NxrpcPassThroughReq& request,
                        const std::string& deviceGuid);
};

} // namespace senvia
