#include "senvia/HttpClient.h"

#include <gtest/gtest.h>

#include "LoopbackDeviceServer.h"
#include "Plinth/Error.h"

namespace {

std::string baseUrl(const loopback::DeviceServer& server)
{
    return "http://127.0.0.1:" + std::to_string(server.port());
}

// One GET from a thread of its own, so that its connection is closed afterwards.
bool get(const std::string& url, long timeoutMs, senvia::HttpResult& result)
{
    return loopback::onOwnThread([&] { return senvia::httpGet(url, timeoutMs, result); });
}

TEST(HttpClientTest, GetGivesStatusAndBody)
{
    loopback::DeviceServer server;
    senvia::HttpResult result;
    ASSERT_TRUE(loopback::onOwnThread([&] {
        Plinth::Error::SetLastError(5, 5); // cleared by the success
        return senvia::httpGet(baseUrl(server) + "/echo?guid=SW-1", 2000, result);
    }));
    EXPECT_EQ(result.status, 200);
    EXPECT_EQ(result.body, "GET /echo []");
    EXPECT_FALSE(Plinth::Error::GetLastError().isError());
    ASSERT_EQ(server.requests().size(), 1u);
    EXPECT_EQ(server.requests()[0].query, "guid=SW-1");
}

TEST(HttpClientTest, ErrorStatusFailsWithBodyKept)
{
    loopback::DeviceServer server;
    senvia::HttpResult result;
    EXPECT_FALSE(get(baseUrl(server) + "/broken", 2000, result));
    EXPECT_EQ(result.status, 500);
    EXPECT_EQ(result.body, R"({"code":500,"msg":"internal"})");
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "2-500");
}

TEST(HttpClientTest, ALargeAnswerArrivesWholeWithOrWithoutItsLength)
{
    loopback::DeviceServer server;
    senvia::HttpResult result;
    // The announced length sets the room aside at once.
    ASSERT_TRUE(get(baseUrl(server) + "/large", 5000, result));
    EXPECT_EQ(result.status, 200);
    EXPECT_TRUE(result.body == loopback::largeBody(size_t{3} << 20)) << result.body.size();
    // Chunks without a length grow the body as they come.
    ASSERT_TRUE(get(baseUrl(server) + "/large?chunked=1&bytes=1000003", 5000, result));
    EXPECT_TRUE(result.body == loopback::largeBody(1000003)) << result.body.size();
    // Above the room that a length may set aside, the body still arrives whole.
    ASSERT_TRUE(get(baseUrl(server) + "/large?bytes=" + std::to_string((size_t{16} << 20) + 5), 20000, result));
    EXPECT_TRUE(result.body == loopback::largeBody((size_t{16} << 20) + 5)) << result.body.size();
    // An empty body.
    ASSERT_TRUE(get(baseUrl(server) + "/large?bytes=0", 5000, result));
    EXPECT_TRUE(result.body.empty());
}

TEST(HttpClientTest, RefusedAndTimedOut)
{
    senvia::HttpResult result;
    EXPECT_FALSE(get("http://127.0.0.1:" + std::to_string(loopback::closedPort()) + "/x", 2000, result));
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-7");

    loopback::DeviceServer server;
    EXPECT_FALSE(get(baseUrl(server) + "/slow?ms=800", 200, result));
    EXPECT_EQ(Plinth::Error::GetLastError().toString(), "1-28");
}

TEST(HttpClientTest, ConnectionIsKeptAlivePerThread)
{
    loopback::DeviceServer server;
    senvia::HttpResult result;
    const int succeeded = loopback::onOwnThread([&] {
        int count = 0;
        for (int i = 0; i < 10; ++i)
            count += senvia::httpGet(baseUrl(server) + "/echo", 2000, result) ? 1 : 0;
        return count;
    });
    EXPECT_EQ(succeeded, 10);
    EXPECT_EQ(server.connectionCount(), 1u);
}

} // namespace
