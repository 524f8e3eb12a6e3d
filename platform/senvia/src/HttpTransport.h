#pragma once
// One HTTP exchange over libcurl, shared by the NXRPC transport and the service client.
// Each thread keeps its own easy handles, so connections stay alive between calls without
// any lock and no handle is ever used by two threads.
#include <cstdint>
#include <curl/curl.h>
#include <string>

namespace senvia {
namespace detail {

// The module number of Plinth's last error after a failure (docs/transport.md).
enum ErrorModule : int32_t {
    kTransportError = 1,        // code: the CURLcode
    kHttpStatusError = 2,       // code: the HTTP status
    kUnknownDevice = 3,         // code: 0
    kMalformedRequestLine = 4,  // code: 0
};

constexpr long kDefaultTimeoutMs = 15000;

struct HttpCall {
    std::string method = "GET";
    std::string url;
    std::string body;
    std::string contentType;    // sent when the request has a body or is not a GET
    std::string hostHeader;     // replaces the Host header when not empty
    long timeoutMs = kDefaultTimeoutMs;       // the whole exchange
    long connectTimeoutMs = 0;                // the TCP connection alone, within timeoutMs; <= 0: timeoutMs
    std::string auth = "none";  // "digest", "basic" or "none"
    std::string user;
    std::string password;
    bool verifyPeer = false;
};

struct HttpAnswer {
    long status = 0;
    std::string statusLine;     // e.g. "HTTP/1.1 200 OK", of the last answer received
    std::string body;
};

// The calling thread's easy handle for `key`, made on first use and cleaned up when the
// thread ends.
CURL* threadHandle(const std::string& key);

// Runs `call` on `handle`. True on a 2xx answer, with Plinth's last error cleared; false
// otherwise, with the last error set (transport or HTTP status) and a debug log line.
bool perform(CURL* handle, const HttpCall& call, HttpAnswer& answer);

} // namespace detail
} // namespace senvia
