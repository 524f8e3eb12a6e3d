// NXRPC pass-through: the request line names verb and path; the registry names the device's
// address, scheme and credentials; libcurl carries the exchange.
#include "senvia/NXRPCPassThroughComm.h"

#include "DeviceBreaker.h"
#include "HttpTransport.h"
#include "Plinth/Error.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "ostrand/DeviceRegistry.h"
#include "senvia/TransportTimings.h"

namespace senvia {

namespace {

// Splits "VERB /path?query" into verb and target. Trailing CR LF are part of some callers'
// literals and are dropped here; an optional " HTTP/1.x" after the target is accepted.
bool parseRequestLine(const std::string& requestUrl, std::string& verb, std::string& target)
{
    std::string line = requestUrl;
    while (!line.empty() && (line.back() == '\r' || line.back() == '\n'))
        line.pop_back();

    const size_t blank = line.find(' ');
    if (blank == std::string::npos || blank == 0)
        return false;
    verb = line.substr(0, blank);
    for (char c : verb) {
        if (c < 'A' || c > 'Z')
            return false;
    }

    target = line.substr(blank + 1);
    const size_t version = target.rfind(" HTTP/1.");
    if (version != std::string::npos && version + 9 == target.size())
        target.erase(version);
    if (target.empty() || target[0] != '/')
        return false;
    for (char c : target) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte <= 0x20 || byte == 0x7F)
            return false;
    }
    return true;
}

std::string deviceUrl(const ostrand::DeviceEntry& device, const std::string& target)
{
    std::string host = device.address;
    if (host.find(':') != std::string::npos && host.front() != '[')
        host = "[" + host + "]";
    return device.scheme + "://" + host + ":" + std::to_string(device.port) + target;
}

bool hasJsonFormat(const std::string& target)
{
    const size_t query = target.find('?');
    if (query == std::string::npos)
        return false;
    const std::string parameters = "&" + target.substr(query + 1) + "&";
    return parameters.find("&format=json&") != std::string::npos;
}

void fail(int32_t module, const std::string& text, const std::string& requestUrl, const std::string& deviceGuid)
{
    Plinth::Error::SetLastError(module, 0, text);
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Debug(
        "", Plinth::StringUtil::FormatString("NXRPC [%s] to device [%s] not sent: %s. Error code is %d-%d.",
                                             requestUrl.c_str(), deviceGuid.c_str(), text.c_str(),
                                             static_cast<int>(module), 0),
        PLINTH_LOCATION);
}

} // namespace

bool CNXRPCPassThroughComm::request(protocol::NxrpcPassThroughRspData& response,
                                    const protocol::NxrpcPassThroughReq& request,
                                    const std::string& deviceGuid)
{
    protocol::NxrpcPassThroughRsp& answer = response.nxrpcPassThroughRsp;

    std::string verb;
    std::string target;
    if (!parseRequestLine(request.requestUrl, verb, target)) {
        fail(detail::kMalformedRequestLine, "malformed request line", request.requestUrl, deviceGuid);
        return false;
    }

    const std::optional<ostrand::DeviceEntry> device = ostrand::CDeviceRegistry::instance().find(deviceGuid);
    if (!device) {
        fail(detail::kUnknownDevice, "unknown device", request.requestUrl, deviceGuid);
        return false;
    }

    // A device that has just timed out or refused is not asked again until its hold is over.
    detail::CDeviceBreaker& breaker = detail::CDeviceBreaker::instance();
    if (!breaker.admit(deviceGuid)) {
        // As after a transport failure: nothing came.
        answer.outBuffer.clear();
        answer.statusBuffer.clear();
        return false;
    }

    const TransportTimings timings = transportTimings();
    detail::HttpCall call;
    call.method = verb;
    call.url = deviceUrl(*device, target);
    call.body = request.inBuffer;
    call.contentType = hasJsonFormat(target) ? "application/json" : "application/xml";
    call.hostHeader = device->hostName;
    call.timeoutMs = request.recvTimeOut > 0 ? request.recvTimeOut : detail::kDefaultTimeoutMs;
    if (timings.answerTimeOutCapMs > 0 && call.timeoutMs > timings.answerTimeOutCapMs)
        call.timeoutMs = timings.answerTimeOutCapMs;
    call.connectTimeoutMs = timings.connectTimeOutMs;
    call.auth = device->auth;
    call.user = device->user;
    call.password = device->password;
    call.verifyPeer = device->verifyPeer;

    detail::HttpAnswer result;
    // One handle per device and thread: the device's connection stays open between queries.
    const bool ok = detail::perform(detail::threadHandle("device:" + deviceGuid), call, result);
    breaker.settle(deviceGuid, device->address + ":" + std::to_string(device->port), ok,
                   ok ? Plinth::Error::ErrorCode() : Plinth::Error::GetLastError());
    answer.outBuffer = std::move(result.body);
    answer.statusBuffer = std::move(result.statusLine);
    return ok;
}

} // namespace senvia
