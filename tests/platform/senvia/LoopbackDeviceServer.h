#pragma once
// A device on loopback for transport tests: a real HTTP (or HTTPS) server that records what
// it was sent, answers per path, checks digest and basic credentials, and counts the
// connections it was reached on.
#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <httplib.h>
#include <map>
#include <memory>
#include <mutex>
#include <openssl/evp.h>
#include <openssl/rsa.h>
#include <openssl/x509.h>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <unistd.h>
#include <vector>

#include "Plinth/Error.h"

namespace loopback {

// `bytes` bytes in which every byte depends on its place, so that a piece lost, doubled or
// moved shows.
inline std::string largeBody(size_t bytes)
{
    std::string body(bytes, '\0');
    for (size_t i = 0; i < bytes; ++i)
        body[i] = static_cast<char>('a' + (i * 7 + i / 251) % 26);
    return body;
}

inline std::string md5Hex(const std::string& text)
{
    unsigned char digest[EVP_MAX_MD_SIZE];
    unsigned int length = 0;
    EVP_Digest(text.data(), text.size(), digest, &length, EVP_md5(), nullptr);
    static const char kHex[] = "0123456789abcdef";
    std::string hex;
    for (unsigned int i = 0; i < length; ++i) {
        hex.push_back(kHex[digest[i] >> 4]);
        hex.push_back(kHex[digest[i] & 0x0F]);
    }
    return hex;
}

inline std::string base64(const std::string& text)
{
    static const char kAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    size_t i = 0;
    for (; i + 2 < text.size(); i += 3) {
        const unsigned n = (static_cast<unsigned char>(text[i]) << 16) | (static_cast<unsigned char>(text[i + 1]) << 8)
                           | static_cast<unsigned char>(text[i + 2]);
        out += {kAlphabet[(n >> 18) & 63], kAlphabet[(n >> 12) & 63], kAlphabet[(n >> 6) & 63], kAlphabet[n & 63]};
    }
    if (i + 1 == text.size()) {
        const unsigned n = static_cast<unsigned char>(text[i]) << 16;
        out += {kAlphabet[(n >> 18) & 63], kAlphabet[(n >> 12) & 63], '=', '='};
    } else if (i + 2 == text.size()) {
        const unsigned n = (static_cast<unsigned char>(text[i]) << 16) | (static_cast<unsigned char>(text[i + 1]) << 8);
        out += {kAlphabet[(n >> 18) & 63], kAlphabet[(n >> 12) & 63], kAlphabet[(n >> 6) & 63], '='};
    }
    return out;
}

// key=value and key="value" pairs of an Authorization header after its scheme word.
inline std::map<std::string, std::string> authParameters(const std::string& header)
{
    std::map<std::string, std::string> result;
    size_t i = header.find(' ');
    while (i != std::string::npos && i < header.size()) {
        while (i < header.size() && (header[i] == ' ' || header[i] == ','))
            ++i;
        const size_t equals = header.find('=', i);
        if (equals == std::string::npos)
            break;
        const std::string key = header.substr(i, equals - i);
        std::string value;
        i = equals + 1;
        if (i < header.size() && header[i] == '"') {
            const size_t close = header.find('"', i + 1);
            value = header.substr(i + 1, close - i - 1);
            i = close == std::string::npos ? close : close + 1;
        } else {
            const size_t comma = header.find(',', i);
            value = header.substr(i, comma == std::string::npos ? std::string::npos : comma - i);
            i = comma;
        }
        result[key] = value;
    }
    return result;
}

// What one request looked like on arrival.
struct SeenRequest {
    std::string method;
    std::string path;
    std::string query;
    std::string body;
    std::string contentType;
    std::string host;
    int remotePort = 0;
};

// A self-signed certificate for 127.0.0.1, made in memory.
struct TestCertificate {
    X509* certificate = nullptr;
    EVP_PKEY* key = nullptr;

    TestCertificate()
    {
        key = EVP_RSA_gen(2048);
        certificate = X509_new();
        ASN1_INTEGER_set(X509_get_serialNumber(certificate), 1);
        X509_gmtime_adj(X509_getm_notBefore(certificate), 0);
        X509_gmtime_adj(X509_getm_notAfter(certificate), 3600);
        X509_set_pubkey(certificate, key);
        X509_NAME* name = X509_get_subject_name(certificate);
        X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("127.0.0.1"), -1,
                                   -1, 0);
        X509_set_issuer_name(certificate, name);
        X509_sign(certificate, key, EVP_sha256());
    }

    ~TestCertificate()
    {
        X509_free(certificate);
        EVP_PKEY_free(key);
    }
};

class DeviceServer {
public:
    static constexpr const char* kRealm = "velmora-loopback";
    static constexpr const char* kUser = "admin";
    static constexpr const char* kPassword = "Adm1n-secret";

    explicit DeviceServer(bool https = false)
    {
        if (https) {
            m_certificate = std::make_unique<TestCertificate>();
            m_server = std::make_unique<httplib::SSLServer>(m_certificate->certificate, m_certificate->key);
        } else {
            m_server = std::make_unique<httplib::Server>();
        }
        m_server->new_task_queue = [] { return new httplib::ThreadPool(32); };
        m_server->set_keep_alive_max_count(10000);
        // Headers and body leave in separate writes; without this Nagle's algorithm meets
        // the client's delayed ACK and every answer waits 40 ms.
        m_server->set_tcp_nodelay(true);
        // An idle kept-alive connection holds stop() until this runs out; tests make their
        // calls on threads of their own, whose connections close when the thread ends.
        m_server->set_keep_alive_timeout(10);
        route();
        m_port = m_server->bind_to_any_port("127.0.0.1");
        m_thread = std::thread([this] { m_server->listen_after_bind(); });
        while (!m_server->is_running())
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }

    ~DeviceServer()
    {
        m_server->stop();
        m_thread.join();
    }

    int port() const { return m_port; }

    std::vector<SeenRequest> requests()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_requests;
    }

    // Distinct client connections (remote ports) the server was reached on.
    size_t connectionCount()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_remotePorts.size();
    }

    int challengesSent() const { return m_challenges.load(); }

    // As a device does after a restart: earlier nonces are no longer accepted.
    void forgetNonces()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_nonces.clear();
    }

private:
    void record(const httplib::Request& request)
    {
        SeenRequest seen;
        seen.method = request.method;
        seen.path = request.path;
        for (const auto& parameter : request.params)
            seen.query += (seen.query.empty() ? "" : "&") + parameter.first + "=" + parameter.second;
        seen.body = request.body;
        seen.contentType = request.get_header_value("Content-Type");
        seen.host = request.get_header_value("Host");
        seen.remotePort = request.remote_port;
        std::lock_guard<std::mutex> lock(m_mutex);
        m_requests.push_back(seen);
        m_remotePorts.insert(request.remote_port);
    }

    void route()
    {
        // After routing the body has been read.
        m_server->set_post_routing_handler([this](const httplib::Request& request, httplib::Response&) {
            record(request);
        });

        m_server->Get("/NXRPC/System/status", [](const httplib::Request&, httplib::Response& response) {
            response.set_content("<DeviceStatus><cpuUsage>17</cpuUsage><memoryUsage>42</memoryUsage></DeviceStatus>",
                                 "application/xml");
        });

        const auto echo = [](const httplib::Request& request, httplib::Response& response) {
            response.set_content(request.method + " " + request.path + " [" + request.body + "]", "text/plain");
        };
        m_server->Get("/echo", echo);
        m_server->Post("/echo", echo);
        m_server->Put("/echo", echo);
        m_server->Delete("/echo", echo);

        m_server->Get("/slow", [](const httplib::Request& request, httplib::Response& response) {
            const int delay = request.has_param("ms") ? std::stoi(request.get_param_value("ms")) : 1000;
            std::this_thread::sleep_for(std::chrono::milliseconds(delay));
            response.set_content("late", "text/plain");
        });

        // A body of `bytes` bytes (default 3 MB) that tells each byte's place, with its length
        // announced, or in chunks without one when `chunked` is given.
        m_server->Get("/large", [](const httplib::Request& request, httplib::Response& response) {
            const size_t bytes =
                request.has_param("bytes") ? std::stoul(request.get_param_value("bytes")) : size_t{3} << 20;
            auto body = std::make_shared<std::string>(largeBody(bytes));
            if (!request.has_param("chunked")) {
                response.set_content(*body, "text/plain");
                return;
            }
            response.set_chunked_content_provider("text/plain", [body](size_t offset, httplib::DataSink& sink) {
                const size_t piece = std::min<size_t>(body->size() - offset, 7000);
                if (piece > 0)
                    sink.write(body->data() + offset, piece);
                if (offset + piece >= body->size())
                    sink.done();
                return true;
            });
        });

        m_server->Get("/missing", [](const httplib::Request&, httplib::Response& response) {
            response.status = 404;
            response.set_content("<error>no such resource</error>", "application/xml");
        });

        m_server->Get("/broken", [](const httplib::Request&, httplib::Response& response) {
            response.status = 500;
            response.set_content(R"({"code":500,"msg":"internal"})", "application/json");
        });

        m_server->Get("/digest/status", [this](const httplib::Request& request, httplib::Response& response) {
            if (!checkDigest(request, response))
                return;
            response.set_content("<DeviceStatus>digest ok</DeviceStatus>", "application/xml");
        });
        m_server->Post("/digest/search", [this](const httplib::Request& request, httplib::Response& response) {
            if (!checkDigest(request, response))
                return;
            response.set_content("<found>" + request.body + "</found>", "application/xml");
        });

        m_server->Get("/basic/status", [](const httplib::Request& request, httplib::Response& response) {
            const std::string expected = std::string("Basic ") + base64(std::string(kUser) + ":" + kPassword);
            if (request.get_header_value("Authorization") != expected) {
                response.status = 401;
                response.set_header("WWW-Authenticate", std::string("Basic realm=\"") + kRealm + "\"");
                return;
            }
            response.set_content("<DeviceStatus>basic ok</DeviceStatus>", "application/xml");
        });
    }

    // RFC 2617 digest with qop=auth: response = MD5(HA1:nonce:nc:cnonce:qop:HA2) where
    // HA1 = MD5(user:realm:password) and HA2 = MD5(method:uri).
    bool checkDigest(const httplib::Request& request, httplib::Response& response)
    {
        const std::string header = request.get_header_value("Authorization");
        if (header.compare(0, 7, "Digest ") == 0) {
            std::map<std::string, std::string> p = authParameters(header);
            bool knownNonce = false;
            {
                std::lock_guard<std::mutex> lock(m_mutex);
                knownNonce = m_nonces.count(p["nonce"]) != 0;
            }
            const std::string ha1 = md5Hex(p["username"] + ":" + kRealm + ":" + kPassword);
            const std::string ha2 = md5Hex(request.method + ":" + p["uri"]);
            const std::string expected =
                md5Hex(ha1 + ":" + p["nonce"] + ":" + p["nc"] + ":" + p["cnonce"] + ":" + p["qop"] + ":" + ha2);
            const std::string target = request.target.empty() ? request.path : request.target;
            if (knownNonce && p["username"] == kUser && p["realm"] == kRealm && p["qop"] == "auth"
                && p["uri"] == target && p["response"] == expected)
                return true;
        }
        std::string nonce = freshNonce();
        response.status = 401;
        response.set_header("WWW-Authenticate", std::string("Digest realm=\"") + kRealm + "\", qop=\"auth\", nonce=\""
                                                    + nonce + "\", opaque=\"5ccc069c403ebaf9f0171e9517f40e41\"");
        response.set_content("<error>unauthorized</error>", "application/xml");
        ++m_challenges;
        return false;
    }

    std::string freshNonce()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        std::ostringstream text;
        text << std::hex << m_random() << m_random();
        m_nonces.insert(text.str());
        return text.str();
    }

    std::unique_ptr<TestCertificate> m_certificate;
    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
    int m_port = 0;
    std::mutex m_mutex;
    std::vector<SeenRequest> m_requests;
    std::set<int> m_remotePorts;
    std::set<std::string> m_nonces;
    std::mt19937_64 m_random{std::random_device{}()};
    std::atomic<int> m_challenges{0};
};

// Runs `work` on a thread of its own and waits for it. The transport keeps connections
// per thread, so they close when that thread ends and the server can stop at once. The
// thread's last error is handed to the calling thread.
template <class Work>
auto onOwnThread(Work work) -> decltype(work())
{
    decltype(work()) result {};
    Plinth::Error::ErrorCode error;
    std::thread worker([&] {
        result = work();
        error = Plinth::Error::GetLastError();
    });
    worker.join();
    Plinth::Error::SetLastError(error);
    return result;
}

// A loopback port with nothing listening on it.
inline int closedPort()
{
    const int probe = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = 0;
    socklen_t length = sizeof(address);
    ::bind(probe, reinterpret_cast<sockaddr*>(&address), sizeof(address));
    ::getsockname(probe, reinterpret_cast<sockaddr*>(&address), &length);
    ::close(probe);
    return ntohs(address.sin_port);
}

} // namespace loopback
