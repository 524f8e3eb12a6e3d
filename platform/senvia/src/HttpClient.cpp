#include "senvia/HttpClient.h"

#include "HttpTransport.h"
#include "senvia/TransportTimings.h"

namespace senvia {

bool httpGet(const std::string& url, long timeoutMs, HttpResult& result)
{
    detail::HttpCall call;
    call.method = "GET";
    call.url = url;
    call.timeoutMs = timeoutMs;
    call.connectTimeoutMs = transportTimings().connectTimeOutMs;

    detail::HttpAnswer answer;
    // One handle per thread for all service calls; libcurl keeps a connection per host.
    const bool ok = detail::perform(detail::threadHandle("service"), call, answer);
    result.status = answer.status;
    result.body = std::move(answer.body);
    return ok;
}

} // namespace senvia
