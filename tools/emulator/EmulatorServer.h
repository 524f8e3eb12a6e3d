#pragma once
// The HTTP side of the emulator: one loopback port for the whole fleet. The Host header
// names the device; any other host is the service host (topology and alarm services, and
// the control endpoint under /_emulator/). Digest authentication, faults, the request log
// and one log line per request live here.
#include "DigestAuth.h"
#include "Faults.h"
#include "Network.h"

#include <condition_variable>
#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace httplib {
class Server;
struct Request;
struct Response;
} // namespace httplib

namespace emulator {

struct ServerOptions {
    int port = 0;
    int threads = 32;     // worker threads at start; more are made while all are busy
    FILE* log = stderr;   // one line per request; null: none
};

class EmulatorServer {
public:
    EmulatorServer(Network& network, FaultTable& faults, ServerOptions options);
    ~EmulatorServer();

    // Binds 127.0.0.1 and starts serving; the port actually bound, or -1.
    int start(std::string& error);
    void stop();
    int port() const { return m_port; }

private:
    void handle(const httplib::Request& req, httplib::Response& res);
    void handleDevice(const DevicePlan& device, const httplib::Request& req, httplib::Response& res, int& statusLogged);
    void handleService(const httplib::Request& req, httplib::Response& res);
    void handleControl(const httplib::Request& req, httplib::Response& res);
    // Waits `ms` milliseconds, or less when the server stops.
    void pause(int ms);
    void logLine(const httplib::Request& req, const std::string& who, int status, size_t bytes, double ms);

    Network& m_network;
    FaultTable& m_faults;
    ServerOptions m_options;
    DigestAuth m_auth;
    std::unique_ptr<httplib::Server> m_server;
    std::thread m_thread;
    int m_port = -1;
    std::mutex m_logMutex;
    std::mutex m_stopMutex;
    std::condition_variable m_stopped;
    bool m_stopping = false;
};

} // namespace emulator
