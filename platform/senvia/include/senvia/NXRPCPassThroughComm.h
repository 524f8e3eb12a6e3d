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
    // Safe to call from several threads at once.
    static bool request(protocol::NxrpcPassThroughRspData& response,
                        const protocol::NxrpcPassThroughReq& request,
                        const std::string& deviceGuid);
};

} // namespace senvia
