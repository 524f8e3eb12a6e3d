#include "DevicePorts.h"

#include <arpa/inet.h>
#include <cerrno>
#include <fcntl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <list>

namespace emulator {

namespace {

sockaddr_in loopback(int port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<uint16_t>(port));
    return address;
}

// A listening socket on 127.0.0.1:`port` (0: any free port), or -1.
int listenOn(int port, int backlog)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return -1;
    const int yes = 1;
    ::setsockopt(fd, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    const sockaddr_in address = loopback(port);
    if (::bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 || ::listen(fd, backlog) != 0) {
        ::close(fd);
        return -1;
    }
    return fd;
}

int boundPort(int fd)
{
    sockaddr_in address{};
    socklen_t length = sizeof address;
    if (::getsockname(fd, reinterpret_cast<sockaddr*>(&address), &length) != 0)
        return -1;
    return ntohs(address.sin_port);
}

// Copies what one side sends to the other until both have closed or one fails.
void pump(int a, int b)
{
    char buffer[16384];
    bool open[2] = {true, true};
    const int fds[2] = {a, b};
    while (open[0] || open[1]) {
        pollfd polls[2] = {{a, static_cast<short>(open[0] ? POLLIN : 0), 0}, {b, static_cast<short>(open[1] ? POLLIN : 0), 0}};
        if (::poll(polls, 2, -1) < 0) {
            if (errno == EINTR)
                continue;
            break;
        }
        bool failed = false;
        for (int i = 0; i < 2 && !failed; ++i) {
            if (!open[i] || polls[i].revents == 0)
                continue;
            const ssize_t n = ::recv(fds[i], buffer, sizeof buffer, 0);
            if (n <= 0) {
                open[i] = false;
                ::shutdown(fds[1 - i], SHUT_WR);
                failed = n < 0;
                continue;
            }
            for (ssize_t sent = 0; sent < n;) {
                const ssize_t m = ::send(fds[1 - i], buffer + sent, static_cast<size_t>(n - sent), MSG_NOSIGNAL);
                if (m <= 0) {
                    failed = true;
                    break;
                }
                sent += m;
            }
        }
        if (failed)
            break;
    }
}

} // namespace

// One device's port: a pass-through listener with its connections, or a closed port, or a
// listener whose backlog is full.
class DevicePort {
public:
    DevicePort(int port, int fleetPort) : m_port(port), m_fleetPort(fleetPort) {}
    ~DevicePort() { close(); }

    int port() const { return m_port; }
    const std::string& mode() const { return m_mode; }

    bool passThrough()
    {
        close();
        // Until it listens again the port is closed, as a refusing one.
        m_mode = "refuse";
        m_listen = listenOn(m_port, 128);
        if (m_listen < 0)
            return false;
        if (::pipe2(m_wake, O_CLOEXEC) != 0) {
            ::close(m_listen);
            m_listen = -1;
            return false;
        }
        m_mode.clear();
        m_acceptor = std::thread([this] { acceptLoop(); });
        return true;
    }

    void refuse()
    {
        close();
        m_mode = "refuse";
    }

    // A listener with a backlog of one, filled by connections of our own that are never
    // accepted: the kernel drops every further SYN, and the caller's connect never completes.
    bool blackhole()
    {
        close();
        m_listen = listenOn(m_port, 0);
        if (m_listen < 0)
            return false;
        m_mode = "blackhole";
        for (int i = 0; i < 2; ++i) {
            const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
            if (fd < 0)
                break;
            const sockaddr_in address = loopback(m_port);
            ::connect(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address);
            m_fillers.push_back(fd);
            // The first filler must sit in the queue before anyone else knocks.
            pollfd wait{fd, POLLOUT, 0};
            if (i == 0)
                ::poll(&wait, 1, 1000);
        }
        return true;
    }

    void close()
    {
        if (m_acceptor.joinable()) {
            const char byte = 0;
            if (::write(m_wake[1], &byte, 1) < 0) {
                // The acceptor also ends when the listener is shut down below.
            }
            ::shutdown(m_listen, SHUT_RDWR);
            m_acceptor.join();
        }
        if (m_wake[0] >= 0) {
            ::close(m_wake[0]);
            ::close(m_wake[1]);
            m_wake[0] = m_wake[1] = -1;
        }
        {
            std::lock_guard<std::mutex> lock(m_connectionsMutex);
            for (Connection& c : m_connections) {
                ::shutdown(c.client, SHUT_RDWR);
                ::shutdown(c.fleet, SHUT_RDWR);
            }
        }
        for (Connection& c : m_connections) {
            c.thread.join();
            ::close(c.client);
            ::close(c.fleet);
        }
        m_connections.clear();
        for (int fd : m_fillers)
            ::close(fd);
        m_fillers.clear();
        if (m_listen >= 0)
            ::close(m_listen);
        m_listen = -1;
    }

private:
    struct Connection {
        int client = -1;
        int fleet = -1;
        std::thread thread;
        std::shared_ptr<std::atomic<bool>> done;
    };

    void acceptLoop()
    {
        for (;;) {
            pollfd polls[2] = {{m_listen, POLLIN, 0}, {m_wake[0], POLLIN, 0}};
            if (::poll(polls, 2, -1) < 0) {
                if (errno == EINTR)
                    continue;
                return;
            }
            if (polls[1].revents != 0)
                return;
            const int client = ::accept4(m_listen, nullptr, nullptr, SOCK_CLOEXEC);
            if (client < 0) {
                if (errno == EINTR || errno == ECONNABORTED)
                    continue;
                return;
            }
            const int fleet = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const sockaddr_in address = loopback(m_fleetPort);
            if (fleet < 0 || ::connect(fleet, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
                if (fleet >= 0)
                    ::close(fleet);
                ::close(client);
                continue;
            }
            const int yes = 1;
            ::setsockopt(client, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
            ::setsockopt(fleet, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
            reapFinished();
            std::lock_guard<std::mutex> lock(m_connectionsMutex);
            Connection c;
            c.client = client;
            c.fleet = fleet;
            c.done = std::make_shared<std::atomic<bool>>(false);
            c.thread = std::thread([client, fleet, done = c.done] {
                pump(client, fleet);
                *done = true;
            });
            m_connections.push_back(std::move(c));
        }
    }

    // Joins and closes the connections whose pump ended.
    void reapFinished()
    {
        std::lock_guard<std::mutex> lock(m_connectionsMutex);
        for (auto it = m_connections.begin(); it != m_connections.end();) {
            if (*it->done) {
                it->thread.join();
                ::close(it->client);
                ::close(it->fleet);
                it = m_connections.erase(it);
            } else {
                ++it;
            }
        }
    }

    const int m_port;
    const int m_fleetPort;
    std::string m_mode;
    int m_listen = -1;
    int m_wake[2] = {-1, -1};
    std::thread m_acceptor;
    std::vector<int> m_fillers;
    std::mutex m_connectionsMutex;
    std::list<Connection> m_connections;
};

DevicePorts::DevicePorts(int fleetPort) : m_fleetPort(fleetPort) {}

DevicePorts::~DevicePorts()
{
    stop();
}

int DevicePorts::open(const std::string& device, std::string& error)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_ports.count(device))
        return m_ports[device]->port();
    // A free port, found by binding port 0, kept by the pass-through listener from then on.
    const int probe = listenOn(0, 1);
    const int port = probe >= 0 ? boundPort(probe) : -1;
    if (probe >= 0)
        ::close(probe);
    auto devicePort = std::make_unique<DevicePort>(port, m_fleetPort);
    if (port <= 0 || !devicePort->passThrough()) {
        error = "cannot open a port of its own for device " + device;
        return -1;
    }
    m_ports[device] = std::move(devicePort);
    return port;
}

bool DevicePorts::has(const std::string& device) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_ports.count(device) != 0;
}

int DevicePorts::portOf(const std::string& device) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    auto found = m_ports.find(device);
    return found == m_ports.end() ? 0 : found->second->port();
}

std::map<std::string, int> DevicePorts::ports() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::map<std::string, int> result;
    for (const auto& entry : m_ports)
        result[entry.first] = entry.second->port();
    return result;
}

void DevicePorts::setMode(DevicePort& port, const std::string& mode)
{
    if (mode == port.mode())
        return;
    if (mode == "refuse")
        port.refuse();
    else if (mode == "blackhole")
        port.blackhole();
    else
        port.passThrough();
}

void DevicePorts::stop()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (auto& entry : m_ports)
        entry.second->close();
    m_ports.clear();
}

} // namespace emulator
