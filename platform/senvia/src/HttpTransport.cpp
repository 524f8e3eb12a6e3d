#include "HttpTransport.h"

#include <chrono>
#include <map>
#include <mutex>

#include "Plinth/Error.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"

namespace senvia {
namespace detail {

namespace {

void globalInit()
{
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_ALL); });
}

// Easy handles of one thread by key; libcurl keeps each handle's connections open between
// transfers, which is what keeps a device connection alive across queries.
struct HandleCache {
    std::map<std::string, CURL*> handles;

    ~HandleCache()
    {
        for (auto& entry : handles)
            curl_easy_cleanup(entry.second);
    }
};

size_t onBody(char* data, size_t size, size_t count, void* user)
{
    auto* answer = static_cast<HttpAnswer*>(user);
    answer->body.append(data, size * count);
    return size * count;
}

// The room set aside for a body from its announced length, at most: a larger body still
// arrives whole, growing as it comes, and a false length costs no more than this.
constexpr size_t kMaxBodyReserve = size_t{16} << 20;

// The value of a "Content-Length" header line, or 0 when `line` is another header or the
// value is not a plain decimal number.
size_t announcedLength(const std::string& line)
{
    static const char kName[] = "content-length:";
    const size_t nameLength = sizeof(kName) - 1;
    if (line.size() <= nameLength)
        return 0;
    for (size_t i = 0; i < nameLength; ++i) {
        const char c = line[i];
        if ((c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c) != kName[i])
            return 0;
    }
    size_t at = nameLength;
    while (at < line.size() && (line[at] == ' ' || line[at] == '\t'))
        ++at;
    size_t length = 0;
    bool digits = false;
    for (; at < line.size() && line[at] >= '0' && line[at] <= '9'; ++at) {
        digits = true;
        length = length * 10 + static_cast<size_t>(line[at] - '0');
        if (length > kMaxBodyReserve)
            return kMaxBodyReserve;
    }
    return digits ? length : 0;
}

size_t onHeader(char* data, size_t size, size_t count, void* user)
{
    auto* answer = static_cast<HttpAnswer*>(user);
    std::string line(data, size * count);
    if (line.compare(0, 5, "HTTP/") == 0) {
        // A new answer starts (after a 100 Continue or an authentication challenge): only
        // the last one is reported.
        while (!line.empty() && (line.back() == '\r' || line.back() == '\n'))
            line.pop_back();
        answer->statusLine = line;
        answer->body.clear();
    } else if (const size_t length = announcedLength(line)) {
        // The body then comes into one buffer instead of one that is copied as it grows.
        answer->body.reserve(length);
    }
    return size * count;
}

void logDebug(const std::string& message)
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Debug("", message, PLINTH_LOCATION);
}

} // namespace

CURL* threadHandle(const std::string& key)
{
    globalInit();
    thread_local HandleCache cache;
    auto found = cache.handles.find(key);
    if (found != cache.handles.end())
        return found->second;
    CURL* handle = curl_easy_init();
    if (handle != nullptr)
        cache.handles.emplace(key, handle);
    return handle;
}

bool perform(CURL* handle, const HttpCall& call, HttpAnswer& answer)
{
    answer = HttpAnswer();
    if (handle == nullptr) {
        Plinth::Error::SetLastError(kTransportError, CURLE_FAILED_INIT, curl_easy_strerror(CURLE_FAILED_INIT));
        logDebug(Plinth::StringUtil::FormatString("HTTP %s %s failed: no curl handle.", call.method.c_str(),
                                                  call.url.c_str()));
        return false;
    }

    // No curl_easy_reset: it would forget the digest nonce, and each query would pay one
    // more round trip for a fresh challenge. Every option that a call may change is set
    // here on every call instead.
    char errorText[CURL_ERROR_SIZE] = {0};
    const long timeoutMs = call.timeoutMs > 0 ? call.timeoutMs : kDefaultTimeoutMs;
    const long connectTimeoutMs =
        call.connectTimeoutMs > 0 && call.connectTimeoutMs < timeoutMs ? call.connectTimeoutMs : timeoutMs;

    curl_easy_setopt(handle, CURLOPT_URL, call.url.c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(handle, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, timeoutMs);
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS, connectTimeoutMs);
    curl_easy_setopt(handle, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, errorText);
    curl_easy_setopt(handle, CURLOPT_WRITEFUNCTION, &onBody);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, &answer);
    curl_easy_setopt(handle, CURLOPT_HEADERFUNCTION, &onHeader);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, &answer);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYPEER, call.verifyPeer ? 1L : 0L);
    curl_easy_setopt(handle, CURLOPT_SSL_VERIFYHOST, call.verifyPeer ? 2L : 0L);

    const bool hasBody = !call.body.empty();
    curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, nullptr);
    curl_easy_setopt(handle, CURLOPT_NOBODY, 0L);
    if (call.method == "GET" && !hasBody) {
        curl_easy_setopt(handle, CURLOPT_HTTPGET, 1L);
    } else if (call.method == "HEAD") {
        curl_easy_setopt(handle, CURLOPT_NOBODY, 1L);
    } else {
        curl_easy_setopt(handle, CURLOPT_POSTFIELDS, call.body.data());
        curl_easy_setopt(handle, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(call.body.size()));
        curl_easy_setopt(handle, CURLOPT_CUSTOMREQUEST, call.method.c_str());
    }

    curl_slist* headers = nullptr;
    if (!call.hostHeader.empty())
        headers = curl_slist_append(headers, ("Host: " + call.hostHeader).c_str());
    if (!call.contentType.empty() && (hasBody || (call.method != "GET" && call.method != "HEAD")))
        headers = curl_slist_append(headers, ("Content-Type: " + call.contentType).c_str());
    // The whole body goes at once; no waiting for "100 Continue".
    headers = curl_slist_append(headers, "Expect:");
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, headers);

    if (call.auth == "basic" || call.auth == "digest") {
        curl_easy_setopt(handle, CURLOPT_HTTPAUTH, call.auth == "basic" ? CURLAUTH_BASIC : CURLAUTH_DIGEST);
        curl_easy_setopt(handle, CURLOPT_USERNAME, call.user.c_str());
        curl_easy_setopt(handle, CURLOPT_PASSWORD, call.password.c_str());
    } else {
        curl_easy_setopt(handle, CURLOPT_HTTPAUTH, CURLAUTH_NONE);
        curl_easy_setopt(handle, CURLOPT_USERNAME, nullptr);
        curl_easy_setopt(handle, CURLOPT_PASSWORD, nullptr);
    }

    const auto start = std::chrono::steady_clock::now();
    CURLcode result = curl_easy_perform(handle);
    long status = 0;
    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &status);
    if (result == CURLE_OK && status == 401 && call.auth == "digest") {
        // The handle answered with the nonce of an earlier call, and the device no longer
        // knows it (restart, expiry) and did not mark its new challenge stale. The handle now
        // holds the fresh nonce: one more try, within what is left of the time allowed.
        const long spentMs = static_cast<long>(
            std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count());
        if (spentMs < timeoutMs) {
            answer = HttpAnswer();
            curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, timeoutMs - spentMs);
            result = curl_easy_perform(handle);
        }
    }
    // Nothing of this call may outlive it in the handle.
    curl_easy_setopt(handle, CURLOPT_HTTPHEADER, nullptr);
    curl_easy_setopt(handle, CURLOPT_ERRORBUFFER, nullptr);
    curl_easy_setopt(handle, CURLOPT_WRITEDATA, nullptr);
    curl_easy_setopt(handle, CURLOPT_HEADERDATA, nullptr);
    curl_easy_setopt(handle, CURLOPT_POSTFIELDS, nullptr);
    curl_slist_free_all(headers);

    if (result != CURLE_OK) {
        const std::string text = errorText[0] != '\0' ? std::string(errorText) : curl_easy_strerror(result);
        Plinth::Error::SetLastError(kTransportError, static_cast<int32_t>(result), text);
        logDebug(Plinth::StringUtil::FormatString("HTTP %s %s failed: %s. Error code is %d-%d.", call.method.c_str(),
                                                  call.url.c_str(), text.c_str(), static_cast<int>(kTransportError),
                                                  static_cast<int>(result)));
        return false;
    }

    curl_easy_getinfo(handle, CURLINFO_RESPONSE_CODE, &answer.status);
    if (answer.statusLine.empty())
        answer.statusLine = "HTTP " + std::to_string(answer.status);
    if (answer.status < 200 || answer.status > 299) {
        Plinth::Error::SetLastError(kHttpStatusError, static_cast<int32_t>(answer.status), answer.statusLine);
        logDebug(Plinth::StringUtil::FormatString("HTTP %s %s answered [%s]. Error code is %d-%d.",
                                                  call.method.c_str(), call.url.c_str(), answer.statusLine.c_str(),
                                                  static_cast<int>(kHttpStatusError), static_cast<int>(answer.status)));
        return false;
    }

    Plinth::Error::ClearLastError();
    return true;
}

} // namespace detail
} // namespace senvia
