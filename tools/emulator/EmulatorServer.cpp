#include "EmulatorServer.h"

#include "RequestBody.h"

#include <httplib.h>

#include <arpa/inet.h>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <cstdlib>
#include <ctime>
#include <dirent.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/time.h>

namespace emulator {

namespace {

const char* const kJsonType = "application/json; charset=UTF-8";
const char* const kXmlType = "application/xml; charset=UTF-8";

std::string hostWithoutPort(std::string host)
{
    if (!host.empty() && host.front() == '[') {
        const size_t end = host.find(']');
        return end == std::string::npos ? host : host.substr(1, end - 1);
    }
    const size_t colon = host.find(':');
    if (colon != std::string::npos)
        host.erase(colon);
    for (char& c : host)
        if (c >= 'A' && c <= 'Z')
            c = static_cast<char>(c - 'A' + 'a');
    return host;
}

// Shuts down this process's sockets of connections to `serverPort`: the one whose far end
// is `remotePort`, or all of them when it is 0. A worker waiting on a kept-alive
// connection then wakes and ends it at once.
void shutdownConnections(int serverPort, int remotePort)
{
    DIR* dir = opendir("/proc/self/fd");
    if (!dir)
        return;
    while (dirent* entry = readdir(dir)) {
        const int fd = std::atoi(entry->d_name);
        if (fd <= 2)
            continue;
        sockaddr_storage local{}, peer{};
        socklen_t localLength = sizeof local, peerLength = sizeof peer;
        if (getsockname(fd, reinterpret_cast<sockaddr*>(&local), &localLength) != 0 || local.ss_family != AF_INET)
            continue;
        if (getpeername(fd, reinterpret_cast<sockaddr*>(&peer), &peerLength) != 0)
            continue;
        const int localPort = ntohs(reinterpret_cast<sockaddr_in*>(&local)->sin_port);
        const int peerPort = ntohs(reinterpret_cast<sockaddr_in*>(&peer)->sin_port);
        if (localPort == serverPort && (remotePort == 0 || peerPort == remotePort)) {
            ::shutdown(fd, SHUT_RDWR);
            if (remotePort != 0)
                break;
        }
    }
    closedir(dir);
}

// Closes the client's connection under the running request, so that it reads no answer.
void dropConnection(const httplib::Request& req, int serverPort)
{
    shutdownConnections(serverPort, req.remote_port);
}

// A body that no reader takes: cut in the middle and followed by stray characters.
std::string malformedBody(const std::string& body)
{
    const size_t cut = body.size() * 3 / 5;
    const bool json = body.find('{') < body.find('<');
    return body.substr(0, cut) + (json ? "\"}{,]:" : "<</ & <>");
}

// Worker threads for the connections. A kept-alive connection holds its worker while it
// waits for the next request, and clients keep one connection per device: so the pool
// grows by a thread whenever none is free (up to `limit`) instead of queueing.
class ElasticPool : public httplib::TaskQueue {
public:
    ElasticPool(size_t initial, size_t limit) : m_limit(std::max(initial, limit))
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (size_t i = 0; i < initial; ++i)
            spawn();
    }
    ~ElasticPool() override { shutdown(); }

    void enqueue(std::function<void()> fn) override
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_jobs.push_back(std::move(fn));
        if (m_idle < m_jobs.size() && m_threads.size() < m_limit)
            spawn();
        m_condition.notify_one();
    }

    void shutdown() override
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            if (m_stopping)
                return;
            m_stopping = true;
        }
        m_condition.notify_all();
        for (std::thread& t : m_threads)
            t.join();
    }

private:
    void spawn()
    {
        m_threads.emplace_back([this] { work(); });
    }

    void work()
    {
        for (;;) {
            std::function<void()> job;
            {
                std::unique_lock<std::mutex> lock(m_mutex);
                ++m_idle;
                m_condition.wait(lock, [this] { return m_stopping || !m_jobs.empty(); });
                --m_idle;
                if (m_jobs.empty())
                    return; // stopping
                job = std::move(m_jobs.front());
                m_jobs.pop_front();
            }
            job();
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_condition;
    std::deque<std::function<void()>> m_jobs;
    std::vector<std::thread> m_threads;
    size_t m_idle = 0;
    size_t m_limit;
    bool m_stopping = false;
};

std::string timestamp()
{
    const auto now = std::chrono::system_clock::now();
    const std::time_t t = std::chrono::system_clock::to_time_t(now);
    const long long ms = std::chrono::duration_cast<std::chrono::milliseconds>(now.time_since_epoch()).count() % 1000;
    std::tm tm{};
    localtime_r(&t, &tm);
    char text[48];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d.%03lld", tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday,
                  tm.tm_hour, tm.tm_min, tm.tm_sec, ms);
    return text;
}

} // namespace

EmulatorServer::EmulatorServer(Network& network, FaultTable& faults, ServerOptions options)
    : m_network(network),
      m_faults(faults),
      m_options(options),
      m_auth("NXRPC", "velmora-emulator:" + std::to_string(network.live().seed()) + ":" +
                          std::to_string(std::chrono::steady_clock::now().time_since_epoch().count())),
      m_server(std::make_unique<httplib::Server>())
{
}

EmulatorServer::~EmulatorServer()
{
    stop();
}

int EmulatorServer::start(std::string& error)
{
    const size_t threads = static_cast<size_t>(m_options.threads > 0 ? m_options.threads : 32);
    m_server->new_task_queue = [threads] { return new ElasticPool(threads, 4096); };
    // Clients keep their connections: serve many requests on one, and wait a while between them.
    m_server->set_keep_alive_max_count(1000000);
    m_server->set_keep_alive_timeout(10);
    m_server->set_read_timeout(30, 0);
    m_server->set_write_timeout(30, 0);
    m_server->set_payload_max_length(4 * 1024 * 1024);
    m_server->set_tcp_nodelay(true);
    auto handler = [this](const httplib::Request& req, httplib::Response& res) { handle(req, res); };
    m_server->Get(".*", handler);
    m_server->Post(".*", handler);
    m_server->Put(".*", handler);
    m_server->Delete(".*", handler);
    m_server->Patch(".*", handler);

    if (m_options.port == 0) {
        m_port = m_server->bind_to_any_port("127.0.0.1");
    } else {
        m_port = m_server->bind_to_port("127.0.0.1", m_options.port) ? m_options.port : -1;
    }
    if (m_port <= 0) {
        error = "cannot bind 127.0.0.1:" + std::to_string(m_options.port);
        m_port = -1;
        return -1;
    }
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    for (int i = 0; i < 500 && !m_server->is_running(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    if (!m_server->is_running()) {
        error = "the server did not start";
        return -1;
    }
    return m_port;
}

void EmulatorServer::pause(int ms)
{
    std::unique_lock<std::mutex> lock(m_stopMutex);
    m_stopped.wait_for(lock, std::chrono::milliseconds(ms), [this] { return m_stopping; });
}

void EmulatorServer::stop()
{
    {
        std::lock_guard<std::mutex> lock(m_stopMutex);
        m_stopping = true;
    }
    m_stopped.notify_all();
    if (m_server && m_server->is_running()) {
        m_server->stop();
        // Kept-alive connections would hold their workers until they time out.
        shutdownConnections(m_port, 0);
    }
    if (m_thread.joinable())
        m_thread.join();
}

void EmulatorServer::logLine(const httplib::Request& req, const std::string& who, int status, size_t bytes, double ms)
{
    if (!m_options.log)
        return;
    const std::string statusText = status > 0 ? std::to_string(status) : std::string("dropped");
    std::lock_guard<std::mutex> lock(m_logMutex);
    std::fprintf(m_options.log, "%s %-6s %s %s -> %s %zu bytes %.1f ms\n", timestamp().c_str(), req.method.c_str(),
                 who.c_str(), req.target.c_str(), statusText.c_str(), bytes, ms);
    std::fflush(m_options.log);
}

void EmulatorServer::handle(const httplib::Request& req, httplib::Response& res)
{
    const auto start = std::chrono::steady_clock::now();
    const std::string host = hostWithoutPort(req.get_header_value("Host"));
    const DevicePlan* device = host.empty() ? nullptr : m_network.fleet().findByHost(host);
    std::string who;
    int status = 0;
    if (device) {
        who = device->hostName + " [" + device->name + "]";
        handleDevice(*device, req, res, status);
    } else if (req.path.compare(0, 11, "/_emulator/") == 0) {
        who = "control";
        handleControl(req, res);
        status = res.status;
    } else {
        who = "service";
        handleService(req, res);
        status = res.status;
    }
    const double ms = std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
    const size_t bytes = res.content_length_ ? res.content_length_ : res.body.size();
    logLine(req, who, status, status > 0 ? bytes : 0, ms);
}

void EmulatorServer::handleDevice(const DevicePlan& d, const httplib::Request& req, httplib::Response& res, int& statusLogged)
{
    const std::string& target = req.target;
    const bool json = req.has_param("format") && req.get_param_value("format") == "json";
    LoggedRequest entry;
    entry.method = req.method;
    entry.target = target;
    entry.body = req.body;
    // Closes the connection without any answer; the request log shows status 0.
    auto dropAnswer = [&] {
        dropConnection(req, m_port);
        res.status = 500;
        entry.status = 0;
        m_network.logRequest(d, entry);
        statusLogged = 0;
    };

    // A silent device took the connection and says nothing, not even the challenge. The
    // request is held until the fault is cleared (or its `ms` ran out, or the emulator
    // stops); then the connection is closed without an answer.
    const SilentHold silent = m_faults.silent(d.id, req.method, req.path, target);
    if (silent.rule != 0) {
        const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(silent.ms);
        for (;;) {
            {
                std::unique_lock<std::mutex> lock(m_stopMutex);
                if (m_stopping)
                    break;
                m_stopped.wait_for(lock, std::chrono::milliseconds(50));
                if (m_stopping)
                    break;
            }
            if (!m_faults.contains(silent.rule) || (silent.ms > 0 && std::chrono::steady_clock::now() >= until))
                break;
        }
        dropAnswer();
        return;
    }

    if (d.auth != "none") {
        const std::string authorization = req.get_header_value("Authorization");
        const bool basic = d.auth == "basic";
        const DigestAuth::Result result = basic ? DigestAuth::checkBasic(authorization, d.user, d.password)
                                                : m_auth.check(authorization, req.method, target, d.user, d.password);
        if (result != DigestAuth::Result::Ok) {
            const Answer a = Network::errorAnswer(401, target, json);
            res.status = 401;
            res.set_header("WWW-Authenticate", basic ? std::string("Basic realm=\"NXRPC\"")
                                                     : m_auth.challenge(result == DigestAuth::Result::Stale));
            res.set_content(a.body, a.contentType);
            entry.status = 401;
            m_network.logRequest(d, entry);
            statusLogged = 401;
            return;
        }
    }

    const FaultEffect f = m_faults.match(d.id, req.method, req.path, target);
    if (f.delayMs > 0)
        pause(f.delayMs);
    if (f.drop) {
        dropAnswer();
        return;
    }
    Answer a;
    if (f.answer) {
        a = Answer{f.answerStatus, f.answerBody,
                   f.answerContentType.empty() ? std::string(json ? kJsonType : kXmlType) : f.answerContentType};
    } else if (f.status) {
        a = Network::errorAnswer(f.status, target, json);
    } else {
        SearchFault search;
        search.moreForever = f.moreForever;
        search.failPage = f.failPage;
        search.failStatus = f.failStatus;
        a = m_network.deviceRequest(d, req.method, req.path, target, json, req.body, search);
    }
    if (f.malformed)
        a.body = malformedBody(a.body);
    res.status = a.status;
    if (f.truncate) {
        // The header promises the whole body; half of it comes and the connection closes.
        auto body = std::make_shared<std::string>(std::move(a.body));
        res.set_content_provider(body->size(), a.contentType,
                                 [body](size_t offset, size_t, httplib::DataSink& sink) {
                                     const size_t half = body->size() / 2;
                                     if (offset < half)
                                         sink.write(body->data() + offset, half - offset);
                                     return false;
                                 });
    } else {
        res.set_content(a.body, a.contentType);
    }
    entry.status = a.status;
    m_network.logRequest(d, entry);
    statusLogged = a.status;
}

void EmulatorServer::handleService(const httplib::Request& req, httplib::Response& res)
{
    const std::string guid = req.has_param("guid") ? req.get_param_value("guid") : std::string();
    // Faults reach the services too, by the guid asked for.
    const FaultEffect f = m_faults.match(guid.empty() ? "*" : guid, req.method, req.path, req.target);
    if (f.delayMs > 0)
        pause(f.delayMs);
    if (f.drop) {
        dropConnection(req, m_port);
        res.status = 500;
        return;
    }
    Answer a;
    if (f.answer)
        a = Answer{f.answerStatus, f.answerBody, f.answerContentType.empty() ? std::string(kJsonType) : f.answerContentType};
    else if (f.status)
        a = Answer{f.status, "{\"code\": " + std::to_string(f.status) + ", \"msg\": \"injected fault\", \"data\": {}}\n", kJsonType};
    else
        a = m_network.serviceRequest(req.method, req.path, guid);
    if (f.malformed)
        a.body = malformedBody(a.body);
    res.status = a.status;
    res.set_content(a.body, a.contentType);
}

void EmulatorServer::handleControl(const httplib::Request& req, httplib::Response& res)
{
    const std::string& path = req.path;
    auto reply = [&res](int status, const std::string& body) {
        res.status = status;
        res.set_content(body, kJsonType);
    };
    if (path == "/_emulator/health" && req.method == "GET") {
        reply(200, "{\"fleet\": \"" + jsonEscape(m_network.fleet().name) + "\", \"devices\": " +
                       std::to_string(m_network.fleet().devices.size()) + ", \"seed\": " +
                       std::to_string(m_network.live().seed()) + ", \"tick\": " + std::to_string(m_network.clock().tick()) +
                       ", \"frozen\": " + (m_network.clock().frozen() ? "true" : "false") + "}\n");
        return;
    }
    if (path == "/_emulator/faults") {
        if (req.method == "GET") {
            reply(200, m_faults.toJson());
        } else if (req.method == "POST") {
            std::vector<long long> ids;
            std::string error;
            if (!m_faults.addJson(req.body, ids, error)) {
                reply(400, "{\"error\": \"" + jsonEscape(error) + "\"}\n");
                return;
            }
            std::string list;
            for (long long id : ids)
                list += (list.empty() ? "" : ", ") + std::to_string(id);
            reply(200, "{\"ids\": [" + list + "]}\n");
        } else if (req.method == "DELETE") {
            m_faults.clear(req.has_param("device") ? req.get_param_value("device") : std::string());
            reply(200, "{\"faults\": []}\n");
        } else {
            reply(405, "{\"error\": \"GET, POST or DELETE\"}\n");
        }
        return;
    }
    if (path == "/_emulator/requests") {
        if (req.method == "DELETE") {
            m_network.clearRequestLogs();
            reply(200, "{\"requests\": []}\n");
            return;
        }
        const std::string id = req.get_param_value("device");
        if (!m_network.fleet().find(id)) {
            reply(404, "{\"error\": \"unknown device\"}\n");
            return;
        }
        std::string out = "{\"device\": \"" + jsonEscape(id) + "\", \"requests\": [";
        bool first = true;
        for (const LoggedRequest& r : m_network.requestLog(id)) {
            out += first ? "\n  " : ",\n  ";
            first = false;
            out += "{\"seq\": " + std::to_string(r.seq) + ", \"method\": \"" + jsonEscape(r.method) + "\", \"target\": \"" +
                   jsonEscape(r.target) + "\", \"requestLine\": \"" + jsonEscape(r.method + " " + r.target) +
                   "\", \"body\": \"" + jsonEscape(r.body) + "\", \"status\": " + std::to_string(r.status) + "}";
        }
        out += "\n]}\n";
        reply(200, out);
        return;
    }
    if (path == "/_emulator/clock" && req.method == "POST") {
        std::map<std::string, std::string> fields;
        BodyFormat format;
        if (!readBodyFields(req.body, fields, format)) {
            reply(400, "{\"error\": \"expected {\\\"tick\\\": n} or {\\\"run\\\": true}\"}\n");
            return;
        }
        if (fields.count("tick"))
            m_network.clock().freeze(std::atoll(fields["tick"].c_str()));
        else if (fields["run"] == "true")
            m_network.clock().run();
        reply(200, "{\"tick\": " + std::to_string(m_network.clock().tick()) + ", \"frozen\": " +
                       (m_network.clock().frozen() ? "true" : "false") + "}\n");
        return;
    }
    reply(404, "{\"error\": \"unknown control path\"}\n");
}

} // namespace emulator
