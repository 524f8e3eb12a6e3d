#include "senvia/NXRPCPassThroughComm.h"

#include <chrono>
#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "LoopbackDeviceServer.h"
#include "Plinth/Error.h"
#include "platform/ostrand/RegistryFile.h"
#include "senvia/TransportTimings.h"

namespace {

using Clock = std::chrono::steady_clock;

std::string deviceJson(const std::string& id, int port, const std::string& auth, const std::string& password,
                       const std::string& extra = std::string())
{
    return R"({"id":")" + id + R"(","category":120,"model":"NX-S5750","address":"127.0.0.1","port":)"
           + std::to_string(port) + R"(,"user":"admin","password":")" + password + R"(","auth":")" + auth + "\""
           + extra + "}";
}

// One loopback device server and a registry naming it under several identities.
class PassThroughTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const int port = m_server.port();
        const std::string good = loopback::DeviceServer::kPassword;
        m_registry.write("{\"devices\":[" + deviceJson("open", port, "none", "") + ","
                         + deviceJson("hosted", port, "none", "", R"(,"hostName":"switch-7.example")") + ","
                         + deviceJson("digest", port, "digest", good) + ","
                         + deviceJson("digest-wrong", port, "digest", "not-the-password") + ","
                         + deviceJson("basic", port, "basic", good) + ","
                         + deviceJson("basic-wrong", port, "basic", "not-the-password") + ","
                         + deviceJson("closed", loopback::closedPort(), "none", "") + "]}");
        Plinth::Error::ClearLastError();
        // A device that timed out in one test is not held in the next.
        senvia::forgetUnreachableDevices();
    }

    // One request from the calling thread.
    static bool sendHere(const std::string& requestUrl, const std::string& device,
                         protocol::NxrpcPassThroughRspData& rsp, const std::string& body = std::string(),
                         int timeoutMs = 15000)
    {
        protocol::NxrpcPassThroughReq req;
        req.requestUrl = requestUrl;
        req.inBuffer = body;
        req.recvTimeOut = timeoutMs;
        return senvia::CNXRPCPassThroughComm::request(rsp, req, device);
    }

    // `count` requests in a row from one thread of its own; how many succeeded.
    static int sendInRow(int count, const std::string& requestUrl, const std::string& device)
    {
        return loopback::onOwnThread([&] {
            int succeeded = 0;
            protocol::NxrpcPassThroughRspData rsp;
            for (int i = 0; i < count; ++i)
                succeeded += sendHere(requestUrl, device, rsp) ? 1 : 0;
            return succeeded;
        });
    }

    // One request from a thread of its own (a connection of its own, closed afterwards).
    static bool send(const std::string& requestUrl, const std::string& device, protocol::NxrpcPassThroughRspData& rsp,
                     const std::string& body = std::string(), int timeoutMs = 15000)
    {
        return loopback::onOwnThread([&] { return sendHere(requestUrl, device, rsp, body, timeoutMs); });
    }

    loopback::DeviceServer m_server;
    TemporaryRegistry m_registry;
};

TEST_F(PassThroughTest, SuccessGivesBodyAndStatusLine)
{
    protocol::NxrpcPassThroughRspData rsp;
    ASSERT_TRUE(loopback::onOwnThread([&] {
        Plinth::Error::SetLastError(9, 9, "stale"); // cleared by the success
        return sendHere("GET /NXRPC/System/status\r\n", "open", rsp);
    }));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer,
              "<DeviceStatus><cpuUsage>17</cpuUsage><memoryUsage>42</memoryUsage></DeviceStatus>");
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.statusBuffer, "HTTP/1.1 200 OK");
    EXPECT_FALSE(Plinth::Error::GetLastError().isError());
}

TEST_F(PassThroughTest, RequestLineCrLfIsStrippedAndVerbPathBodyArrive)
{
    protocol::NxrpcPassThroughRspData rsp;
    ASSERT_TRUE(send("POST /echo?searchID=7\r\n", "open", rsp, "<SearchCond><maxResults>50</maxResults></SearchCond>"));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "POST /echo [<SearchCond><maxResults>50</maxResults></SearchCond>]");
    ASSERT_TRUE(send("PUT /echo", "open", rsp));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "PUT /echo []");
    ASSERT_TRUE(send("GET /echo?format=json", "open", rsp));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "GET /echo []");
    ASSERT_TRUE(send("POST /echo?format=json\r\n", "open", rsp, R"({"a":1})"));
    ASSERT_TRUE(send("DELETE /echo\n", "open", rsp));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "DELETE /echo []");

    const std::vector<loopback::SeenRequest> seen = m_server.requests();
    ASSERT_EQ(seen.size(), 5u);
    EXPECT_EQ(seen[0].method, "POST");
    EXPECT_EQ(seen[0].path, "/echo");
    EXPECT_EQ(seen[0].query, "searchID=7");
    EXPECT_EQ(seen[0].body, "<SearchCond><maxResults>50</maxResults></SearchCond>");
    EXPECT_EQ(seen[0].contentType, "application/xml");
    EXPECT_EQ(seen[1].method, "PUT");
    EXPECT_EQ(seen[1].body, "");
    EXPECT_EQ(seen[2].method, "GET");
    EXPECT_EQ(seen[2].query, "format=json");
    EXPECT_EQ(seen[3].contentType, "application/json");
    EXPECT_EQ(seen[3].body, R"({"a":1})");
    EXPECT_EQ(seen[4].method, "DELETE");
    EXPECT_EQ(seen[0].host, "127.0.0.1:" + std::to_string(m_server.port()));
}

TEST_F(PassThroughTest, HostNameOfRegistryIsSentAsHostHeader)
{
    protocol::NxrpcPassThroughRspData rsp;
    ASSERT_TRUE(send("GET /NXRPC/System/status", "hosted", rsp));
    const std::vector<loopback::SeenRequest> seen = m_server.requests();
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0].host, "switch-7.example");
}

TEST_F(PassThroughTest, TimeoutIsHonoured)
{
    protocol::NxrpcPassThroughRspData rsp;
    const Clock::time_point start = Clock::now();
    EXPECT_FALSE(send("GET /slow?ms=1500", "open", rsp, std::string(), 300));
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    EXPECT_GE(elapsed, 250);
    EXPECT_LT(elapsed, 1000);
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_EQ(error.module, 1);
    EXPECT_EQ(error.code, 28); // CURLE_OPERATION_TIMEDOUT

    // The device is now held as unreachable; once that is forgotten, a wait long enough lets
    // the same answer through.
    senvia::forgetUnreachableDevices();
    EXPECT_TRUE(send("GET /slow?ms=100", "open", rsp, std::string(), 3000));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "late");
}

TEST_F(PassThroughTest, RefusedConnectionIsTransportError)
{
    protocol::NxrpcPassThroughRspData rsp;
    EXPECT_FALSE(send("GET /NXRPC/System/status\r\n", "closed", rsp));
    const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
    EXPECT_EQ(error.toString(), "1-7"); // CURLE_COULDNT_CONNECT
    EXPECT_FALSE(error.text.empty());
}

TEST_F(PassThroughTest, HttpErrorStatusFailsAndKeepsBody)
{
    protocol::NxrpcPassThroughRspData rsp;
    EXPECT_FALSE(send("GET /missing", "open", rsp));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-404");
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<error>no such resource</error>");
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.statusBuffer, "HTTP/1.1 404 Not Found");
}

TEST_F(PassThroughTest, DigestChallengeIsAnswered)
{
    protocol::NxrpcPassThroughRspData rsp;
    ASSERT_TRUE(send("GET /digest/status\r\n", "digest", rsp)) << Plinth::Error::GetLastError().toString();
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<DeviceStatus>digest ok</DeviceStatus>");
    EXPECT_GE(m_server.challengesSent(), 1);

    ASSERT_TRUE(send("POST /digest/search?format=json", "digest", rsp, "<cond/>"));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<found><cond/></found>");
}

TEST_F(PassThroughTest, DigestWithWrongPasswordIsRefused)
{
    protocol::NxrpcPassThroughRspData rsp;
    EXPECT_FALSE(send("GET /digest/status", "digest-wrong", rsp));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-401");
    // Without credentials at all the device refuses the same way.
    EXPECT_FALSE(send("GET /digest/status", "open", rsp));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-401");
}

TEST_F(PassThroughTest, BasicAuthentication)
{
    protocol::NxrpcPassThroughRspData rsp;
    ASSERT_TRUE(send("GET /basic/status", "basic", rsp));
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<DeviceStatus>basic ok</DeviceStatus>");
    EXPECT_FALSE(send("GET /basic/status", "basic-wrong", rsp));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-401");
}

TEST_F(PassThroughTest, ConnectionIsKeptAliveAcrossCalls)
{
    EXPECT_EQ(sendInRow(10, "GET /NXRPC/System/status\r\n", "open"), 10);
    EXPECT_EQ(m_server.requests().size(), 10u);
    EXPECT_EQ(m_server.connectionCount(), 1u);
}

TEST_F(PassThroughTest, DigestConnectionIsKeptAliveAcrossCalls)
{
    EXPECT_EQ(sendInRow(10, "GET /digest/status", "digest"), 10);
    EXPECT_EQ(m_server.connectionCount(), 1u);
    // The nonce of the first challenge serves the later calls too.
    EXPECT_EQ(m_server.challengesSent(), 1);
    EXPECT_EQ(m_server.requests().size(), 11u);
}

TEST_F(PassThroughTest, DigestRecoversWhenDeviceForgetsNonce)
{
    // Both calls on one thread: the second answers with the nonce of the first.
    protocol::NxrpcPassThroughRspData rsp;
    int challenges = 0;
    const bool ok = loopback::onOwnThread([&] {
        if (!sendHere("GET /digest/status", "digest", rsp))
            return false;
        challenges = m_server.challengesSent();
        m_server.forgetNonces();
        return sendHere("GET /digest/status", "digest", rsp);
    });
    ASSERT_TRUE(ok) << Plinth::Error::GetLastError().toString();
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<DeviceStatus>digest ok</DeviceStatus>");
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.statusBuffer, "HTTP/1.1 200 OK");
    EXPECT_GT(m_server.challengesSent(), challenges);
}

TEST_F(PassThroughTest, ParallelCallsFromEightThreads)
{
    constexpr int kThreads = 8;
    constexpr int kCalls = 15;
    std::vector<std::thread> threads;
    std::vector<int> correct(kThreads, 0);
    std::vector<int> errorsCleared(kThreads, 0);
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([t, &correct, &errorsCleared] {
            const std::string device = t % 2 == 0 ? "open" : "digest";
            for (int i = 0; i < kCalls; ++i) {
                const std::string body = "<call thread=\"" + std::to_string(t) + "\" n=\"" + std::to_string(i) + "\"/>";
                protocol::NxrpcPassThroughRspData rsp;
                if (t % 2 == 0) {
                    if (sendHere("POST /echo\r\n", device, rsp, body)
                        && rsp.nxrpcPassThroughRsp.outBuffer == "POST /echo [" + body + "]")
                        ++correct[t];
                } else {
                    if (sendHere("POST /digest/search", device, rsp, body)
                        && rsp.nxrpcPassThroughRsp.outBuffer == "<found>" + body + "</found>")
                        ++correct[t];
                }
                if (!Plinth::Error::GetLastError().isError())
                    ++errorsCleared[t];
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int t = 0; t < kThreads; ++t) {
        EXPECT_EQ(correct[t], kCalls) << "thread " << t;
        EXPECT_EQ(errorsCleared[t], kCalls) << "thread " << t;
    }
    // Each thread keeps one connection to the device.
    EXPECT_EQ(m_server.connectionCount(), static_cast<size_t>(kThreads));
}

TEST_F(PassThroughTest, UnknownDeviceFailsWithoutTraffic)
{
    protocol::NxrpcPassThroughRspData rsp;
    EXPECT_FALSE(send("GET /NXRPC/System/status\r\n", "no-such-device", rsp));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "3-0");
    EXPECT_TRUE(m_server.requests().empty());
}

TEST_F(PassThroughTest, MalformedRequestLineFailsWithoutTraffic)
{
    for (const char* line : {"", "\r\n", "GET", "GET ", "get /echo", "GET echo", "GET  /echo", "GET /a b", "/echo",
                             "GET /echo\tx"}) {
        protocol::NxrpcPassThroughRspData rsp;
        Plinth::Error::ClearLastError();
        EXPECT_FALSE(send(line, "open", rsp)) << "[" << line << "]";
        EXPECT_EQ(Plinth::Error::GetLastError().toString(), "4-0") << "[" << line << "]";
    }
    EXPECT_TRUE(m_server.requests().empty());
    // A trailing protocol version is accepted.
    protocol::NxrpcPassThroughRspData rsp;
    EXPECT_TRUE(send("GET /echo HTTP/1.1\r\n", "open", rsp));
}

TEST(PassThroughHttpsTest, HttpsWithAndWithoutPeerCheck)
{
    loopback::DeviceServer server(true);
    TemporaryRegistry registry;
    const int port = server.port();
    registry.write("{\"devices\":[" + deviceJson("tls", port, "digest", loopback::DeviceServer::kPassword,
                                                   R"(,"scheme":"https")")
                   + "," + deviceJson("tls-checked", port, "none", "", R"(,"scheme":"https","verifyPeer":true)")
                   + "]}");
    protocol::NxrpcPassThroughReq req;
    req.requestUrl = "GET /digest/status\r\n";
    protocol::NxrpcPassThroughRspData rsp;
    const auto request = [&](const std::string& device) {
        return loopback::onOwnThread([&] { return senvia::CNXRPCPassThroughComm::request(rsp, req, device); });
    };
    ASSERT_TRUE(request("tls")) << Plinth::Error::GetLastError().text;
    EXPECT_EQ(rsp.nxrpcPassThroughRsp.outBuffer, "<DeviceStatus>digest ok</DeviceStatus>");

    // The self-signed certificate does not pass a peer check.
    req.requestUrl = "GET /NXRPC/System/status";
    EXPECT_FALSE(request("tls-checked"));
    EXPECT_EQ(Plinth::Error::GetLastError().module, 1);
    EXPECT_EQ(Plinth::Error::GetLastError().code, 60); // CURLE_PEER_FAILED_VERIFICATION
}

} // namespace
