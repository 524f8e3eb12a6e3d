// The transport against devices that cannot be reached: the connect time-out apart from the
// answer time-out, and the hold after a time-out or a refused connection (queries fail at once
// with the same numbers, one log line, one probe after the hold, any answer ends it).
#include "senvia/NXRPCPassThroughComm.h"

#include <arpa/inet.h>
#include <atomic>
#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "LoopbackDeviceServer.h"
#include "Plinth/Error.h"
#include "platform/ostrand/RegistryFile.h"
#include "senvia/TransportTimings.h"
#include "support/LogCapture.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr long kHoldMs = 400;
const char kUnreachableText[] = "is considered unreachable until";

long msSince(Clock::time_point start)
{
    return static_cast<long>(std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count());
}

// A loopback port whose backlog is full and never accepted: a connect to it never completes.
class FullBacklogPort {
public:
    FullBacklogPort()
    {
        m_listen = ::socket(AF_INET, SOCK_STREAM, 0);
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        ::bind(m_listen, reinterpret_cast<sockaddr*>(&address), sizeof address);
        ::listen(m_listen, 0);
        ::getsockname(m_listen, reinterpret_cast<sockaddr*>(&address), &length);
        m_port = ntohs(address.sin_port);
        for (int i = 0; i < 2; ++i) {
            const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
            ::connect(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
            pollfd wait{fd, POLLOUT, 0};
            if (i == 0)
                ::poll(&wait, 1, 1000);
            m_fillers.push_back(fd);
        }
    }
    ~FullBacklogPort()
    {
        for (int fd : m_fillers)
            ::close(fd);
        ::close(m_listen);
    }
    int port() const { return m_port; }

private:
    int m_listen = -1;
    int m_port = 0;
    std::vector<int> m_fillers;
};

std::string deviceJson(const std::string& id, int port)
{
    return R"({"id":")" + id + R"(","category":120,"model":"NX-S5750","address":"127.0.0.1","port":)" +
           std::to_string(port) + R"(,"auth":"none"})";
}

class DeviceHoldTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_oldTimings = senvia::transportTimings();
        senvia::TransportTimings timings;
        timings.connectTimeOutMs = 300;
        timings.unreachableHoldMs = kHoldMs;
        senvia::setTransportTimings(timings);
        m_registry.write("{\"devices\":[" + deviceJson("device", m_server.port()) + "," +
                         deviceJson("other", m_server.port()) + "," + deviceJson("closed", loopback::closedPort()) +
                         "," + deviceJson("full", m_full.port()) + "]}");
    }
    void TearDown() override { senvia::setTransportTimings(m_oldTimings); }

    // One query from a thread of its own; its last error comes back to the caller's thread.
    static bool send(const std::string& requestUrl, const std::string& device, int timeoutMs = 300,
                     protocol::NxrpcPassThroughRspData* answer = nullptr)
    {
        return loopback::onOwnThread([&] {
            protocol::NxrpcPassThroughRspData rsp;
            protocol::NxrpcPassThroughReq req;
            req.requestUrl = requestUrl;
            req.recvTimeOut = timeoutMs;
            const bool ok = senvia::CNXRPCPassThroughComm::request(rsp, req, device);
            if (answer)
                *answer = rsp;
            return ok;
        });
    }

    static long unreachableLines(const velmora::test::LogCapture& log)
    {
        long count = 0;
        for (const velmora::test::LogLine& line : log.lines("WARN"))
            count += line.message.find(kUnreachableText) != std::string::npos ? 1 : 0;
        return count;
    }

    senvia::TransportTimings m_oldTimings;
    loopback::DeviceServer m_server;
    FullBacklogPort m_full;
    TemporaryRegistry m_registry;
};

} // namespace

TEST_F(DeviceHoldTest, AConnectThatNeverCompletesEndsAtTheConnectTimeOut)
{
    senvia::forgetUnreachableDevices();
    const Clock::time_point start = Clock::now();
    EXPECT_FALSE(send("GET /NXRPC/System/status\r\n", "full", 5000));
    const long elapsed = msSince(start);
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-28");
    EXPECT_GE(elapsed, 250);
    EXPECT_LT(elapsed, 1500); // not the 5 s of the answer time-out
}

TEST_F(DeviceHoldTest, AfterATimeOutTheDeviceFailsAtOnceWithTheSameNumbersAndOneLogLine)
{
    velmora::test::LogCapture log;
    EXPECT_FALSE(send("GET /slow?ms=700", "device"));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-28");
    const size_t seen = m_server.requests().size();

    for (int i = 0; i < 3; ++i) {
        const Clock::time_point start = Clock::now();
        EXPECT_FALSE(send("GET /NXRPC/System/status\r\n", "device"));
        EXPECT_LT(msSince(start), 100);
        const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
        EXPECT_EQ(error.toString(), "1-28");
        EXPECT_NE(error.text.find("considered unreachable until"), std::string::npos) << error.text;
    }
    EXPECT_EQ(m_server.requests().size(), seen); // nothing went out
    EXPECT_EQ(unreachableLines(log), 1);
    bool named = false;
    for (const velmora::test::LogLine& line : log.lines("WARN"))
        named = named || (line.message.find("[device]") != std::string::npos &&
                          line.message.find("Error code is 1-28.") != std::string::npos);
    EXPECT_TRUE(named);

    // Another device on the same address is not held.
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "other"));
}

TEST_F(DeviceHoldTest, AfterTheHoldOneProbeGoesOutAndItsAnswerEndsTheHold)
{
    EXPECT_FALSE(send("GET /slow?ms=700", "device"));
    std::this_thread::sleep_for(std::chrono::milliseconds(kHoldMs + 50));
    const size_t seen = m_server.requests().size();

    // The probe is slow; a query of another thread meanwhile fails at once.
    std::atomic<bool> probeOk{false};
    std::thread probe([&] { probeOk = send("GET /slow?ms=300", "device", 2000); });
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    const Clock::time_point start = Clock::now();
    EXPECT_FALSE(send("GET /NXRPC/System/status\r\n", "device"));
    EXPECT_LT(msSince(start), 100);
    probe.join();
    EXPECT_TRUE(probeOk);
    EXPECT_EQ(m_server.requests().size(), seen + 1);

    // Closed again: every query goes to the device.
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "device"));
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "device"));
    EXPECT_EQ(m_server.requests().size(), seen + 3);
}

TEST_F(DeviceHoldTest, ARefusedDeviceIsHeldAndAFailedProbeHoldsItAgain)
{
    velmora::test::LogCapture log;
    EXPECT_FALSE(send("GET /NXRPC/System/status", "closed"));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-7");
    EXPECT_FALSE(send("GET /NXRPC/System/status", "closed"));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-7");
    EXPECT_EQ(unreachableLines(log), 1);

    std::this_thread::sleep_for(std::chrono::milliseconds(kHoldMs + 50));
    EXPECT_FALSE(send("GET /NXRPC/System/status", "closed")); // the probe, refused again
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-7");
    EXPECT_EQ(unreachableLines(log), 2);
}

TEST_F(DeviceHoldTest, HttpErrorsDoNotHoldTheDevice)
{
    velmora::test::LogCapture log;
    EXPECT_FALSE(send("GET /missing", "device"));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-404");
    EXPECT_FALSE(send("GET /digest/status", "device")); // no credentials: 401
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-401");
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "device"));
    EXPECT_EQ(m_server.requests().size(), 3u);
    EXPECT_EQ(unreachableLines(log), 0);
}

TEST_F(DeviceHoldTest, AnAnswerOfAQuerySentBeforeTheHoldEndsIt)
{
    // A slow query that gets its answer, while a query of another thread times out.
    std::atomic<bool> slowOk{false};
    std::thread slow([&] { slowOk = send("GET /slow?ms=600", "device", 2000); });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_FALSE(send("GET /slow?ms=700", "device", 200));
    slow.join();
    EXPECT_TRUE(slowOk);
    // The device answered after the time-out: it is reachable.
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "device"));
}

TEST_F(DeviceHoldTest, TheHoldCanBeTurnedOff)
{
    senvia::TransportTimings timings = senvia::transportTimings();
    timings.unreachableHoldMs = 0;
    senvia::setTransportTimings(timings);
    EXPECT_FALSE(send("GET /slow?ms=700", "device"));
    EXPECT_TRUE(send("GET /NXRPC/System/status\r\n", "device"));
}
