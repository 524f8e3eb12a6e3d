#pragma once
// Plain HTTP GET for the client's own services (topology, alarms).
#include <string>

namespace senvia {

struct HttpResult {
    long status = 0;       // HTTP status code; 0 when no answer came
    std::string body;
};

// GETs `url`, waiting at most `timeoutMs` ms (a non-positive value means 15000). The
// calling thread keeps its connection alive for the next call. True on a 2xx answer; on
// false Plinth's last error says why (docs/transport.md) and `result` holds what came.
bool httpGet(const std::string& url, long timeoutMs, HttpResult& result);

} // namespace senvia
