#include "senvia/HttpClient.h"

#include "HttpTransport.h"

namespace senvia {

bool httpGet(const std::string& url, long timeoutMs, HttpResult& result)
{
    detail::HttpCall call;
    call.method = "GET";
    call.url = url;
    call.timeoutMs = timeoutMs;

    detail::HttpAnswer answer;
    // One handle per thread for all service calls; libcurl keeps a connection per host.
    const bool ok = detail::perform(detail::threadHandle("service"), call, answer);
    result.status = answer.status;
    result.body = std::move(answer.body);
    return ok;
}

} // namespace senvia
