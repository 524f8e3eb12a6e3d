// The topology and alarm service clients against a small service on loopback: answers
// with a number code and with a text code, error codes, HTTP errors, bodies of no use,
// a service that is down and a registry that names no service.
#include <gtest/gtest.h>

#include <httplib.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <map>
#include <mutex>
#include <thread>

#include <unistd.h>

#include "Plinth/Error.h"
#include "ostrand/DeviceRegistry.h"
#include "senvia/TopologyComm.h"

namespace {

// Transport modules of the last error, and the service client's own.
constexpr int32_t kTransportModule = 1;
constexpr int32_t kHttpStatusModule = 2;
constexpr int32_t kNoServiceAddressModule = 21;
constexpr int32_t kMalformedAnswerModule = 22;
constexpr int32_t kServiceErrorCodeModule = 23;
constexpr int32_t kNoDataModule = 24;

struct Answer {
    int status = 200;
    std::string body;
};

// Both services on one loopback port; each answers what the test set for the guid asked.
class ServiceStub {
public:
    ServiceStub()
    {
        m_server.Get("/topology/v1/deviceNode", [this](const httplib::Request& request, httplib::Response& response) {
            answer(m_nodes, request, response);
        });
        m_server.Get("/alarm/v1/switchPortAlarms", [this](const httplib::Request& request, httplib::Response& response) {
            answer(m_alarms, request, response);
        });
        // One request per connection: a kept-alive connection would hold stop() until it idles out.
        m_server.set_keep_alive_max_count(1);
        m_port = m_server.bind_to_any_port("127.0.0.1");
        m_thread = std::thread([this] { m_server.listen_after_bind(); });
        while (!m_server.is_running())
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    ~ServiceStub() { stop(); }

    void stop()
    {
        if (m_thread.joinable()) {
            m_server.stop();
            m_thread.join();
        }
    }

    void setNode(const std::string& guid, Answer answer)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_nodes[guid] = std::move(answer);
    }
    void setAlarms(const std::string& guid, Answer answer)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_alarms[guid] = std::move(answer);
    }
    std::string baseUrl() const { return "http://127.0.0.1:" + std::to_string(m_port); }
    int requests() const { return m_requests; }

private:
    void answer(const std::map<std::string, Answer>& answers, const httplib::Request& request,
                httplib::Response& response)
    {
        ++m_requests;
        std::lock_guard<std::mutex> lock(m_mutex);
        const auto found = answers.find(request.get_param_value("guid"));
        if (found == answers.end()) {
            response.status = 404;
            response.set_content(R"({"code":404,"msg":"unknown guid"})", "application/json");
            return;
        }
        response.status = found->second.status;
        response.set_content(found->second.body, "application/json");
    }

    httplib::Server m_server;
    std::thread m_thread;
    int m_port = 0;
    std::mutex m_mutex;
    std::map<std::string, Answer> m_nodes;
    std::map<std::string, Answer> m_alarms;
    std::atomic<int> m_requests{0};
};

class TopologyComm : public ::testing::Test {
protected:
    void SetUp() override { useRegistry(m_stub.baseUrl(), m_stub.baseUrl()); }
    void TearDown() override
    {
        ostrand::CDeviceRegistry::instance().setPath(std::string());
        for (const std::string& file : m_files)
            std::remove(file.c_str());
    }

    void useRegistry(const std::string& topology, const std::string& alarm)
    {
        // A new file each time, so the registry sees the change whatever the clock says; the
        // process id keeps tests that CTest runs side by side off each other's files.
        const std::string file = ::testing::TempDir() + "topology-comm-registry-" + std::to_string(::getpid()) + "-"
            + std::to_string(m_files.size()) + "-" + std::to_string(reinterpret_cast<uintptr_t>(this)) + ".json";
        std::ofstream(file) << R"({"services":{"topology":")" << topology << R"(","alarm":")" << alarm
                            << R"("},"devices":[]})";
        m_files.push_back(file);
        ostrand::CDeviceRegistry::instance().setPath(file);
    }

    static void expectLastError(int32_t module, int32_t code)
    {
        const Plinth::Error::ErrorCode error = Plinth::Error::GetLastError();
        EXPECT_EQ(error.module, module);
        EXPECT_EQ(error.code, code);
    }

    ServiceStub m_stub;
    std::vector<std::string> m_files;
};

const char kSwitchNode[] = R"({"code":0,"msg":"success","data":{"guid":"sw-1","name":"Core","ip":"10.0.0.2",)"
                           R"("deviceCategory":40,"online":true,"safeMode":2,"portNodeList":[)"
                           R"({"linkPort":1,"portName":"GE1/0/1","portType":1,"peerNodeList":[{"guid":"cam-7"},{"guid":"cam-8"}]},)"
                           R"({"linkPort":2,"portName":"GE1/0/2","peerNodeList":[]}]}})";

} // namespace

TEST_F(TopologyComm, DeviceNodeIsReadFromTheAnswer)
{
    m_stub.setNode("sw-1", {200, kSwitchNode});
    Plinth::Error::SetLastError(9, 9);
    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode("sw-1", node));
    EXPECT_EQ(node.guid, "sw-1");
    EXPECT_EQ(node.name, "Core");
    EXPECT_EQ(node.deviceCategory, 40);
    EXPECT_TRUE(node.online);
    EXPECT_EQ(node.safeMode, 2);
    ASSERT_EQ(node.portNodeList.size(), 2u);
    EXPECT_EQ(node.portNodeList[0].portName, "GE1/0/1");
    ASSERT_EQ(node.portNodeList[0].peerNodeList.size(), 2u);
    EXPECT_EQ(node.portNodeList[0].peerNodeList[0].guid, "cam-7");
    EXPECT_TRUE(node.portNodeList[1].peerNodeList.empty());
    EXPECT_EQ(node.presentKeys.count("portNodeList"), 1u);
    expectLastError(0, 0);
}

TEST_F(TopologyComm, TextCodeOfZeroIsSuccessToo)
{
    m_stub.setNode("ap-2", {200, R"({"code":"0-0","msg":"","data":{"guid":"ap-2","deviceCategory":41}})"});
    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode("ap-2", node));
    EXPECT_EQ(node.deviceCategory, 41);
}

TEST_F(TopologyComm, GuidIsSentEncoded)
{
    m_stub.setNode("a b&c=d/é", {200, R"({"code":0,"msg":"","data":{"name":"odd"}})"});
    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode("a b&c=d/é", node));
    EXPECT_EQ(node.name, "odd");
}

TEST_F(TopologyComm, NumberErrorCodeFailsWithItsMessage)
{
    m_stub.setNode("gone", {200, R"({"code":1002,"msg":"device not found","data":{"guid":"x"}})"});
    protocol::DeviceNode node;
    node.name = "before";
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("gone", node));
    expectLastError(kServiceErrorCodeModule, 1002);
    EXPECT_EQ(Plinth::Error::GetLastError().text, "device not found");
    EXPECT_EQ(node.name, "before");
}

TEST_F(TopologyComm, TextErrorCodeFailsWithModuleAndCode)
{
    m_stub.setNode("gone", {200, R"({"code":"3-14","msg":"no topology yet"})"});
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("gone", node));
    expectLastError(3, 14);
    EXPECT_EQ(Plinth::Error::GetLastError().text, "no topology yet");
}

TEST_F(TopologyComm, HttpErrorStatusFails)
{
    m_stub.setNode("broken", {500, R"({"code":0,"msg":"","data":{}})"});
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("broken", node));
    expectLastError(kHttpStatusModule, 500);
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("never-set", node));
    expectLastError(kHttpStatusModule, 404);
}

TEST_F(TopologyComm, AnswerThatIsNotJsonFails)
{
    m_stub.setNode("html", {200, "<html>maintenance</html>"});
    m_stub.setNode("array", {200, "[1,2]"});
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("html", node));
    expectLastError(kMalformedAnswerModule, 0);
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("array", node));
    expectLastError(kMalformedAnswerModule, 0);
}

TEST_F(TopologyComm, SuccessWithoutDataFails)
{
    m_stub.setNode("empty", {200, R"({"code":0,"msg":"ok"})"});
    m_stub.setNode("scalar", {200, R"({"code":"0-0","msg":"ok","data":"none"})"});
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("empty", node));
    expectLastError(kNoDataModule, 0);
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("scalar", node));
    expectLastError(kNoDataModule, 0);
}

TEST_F(TopologyComm, ServiceThatIsDownFails)
{
    m_stub.setNode("sw-1", {200, kSwitchNode});
    m_stub.stop();
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("sw-1", node));
    EXPECT_EQ(Plinth::Error::GetLastError().module, kTransportModule);
    EXPECT_NE(Plinth::Error::GetLastError().code, 0);
    protocol::SwitchAlarmListData alarms;
    EXPECT_FALSE(senvia::CTopoAlarmComm::request(alarms, "sw-1"));
    EXPECT_EQ(Plinth::Error::GetLastError().module, kTransportModule);
}

TEST_F(TopologyComm, RegistryWithoutServicesFails)
{
    useRegistry("", "");
    protocol::DeviceNode node;
    EXPECT_FALSE(senvia::CTopologyConfigComm::getOneDeviceNode("sw-1", node));
    expectLastError(kNoServiceAddressModule, 0);
    protocol::SwitchAlarmListData alarms;
    EXPECT_FALSE(senvia::CTopoAlarmComm::request(alarms, "sw-1"));
    expectLastError(kNoServiceAddressModule, 0);
    EXPECT_EQ(m_stub.requests(), 0);
}

TEST_F(TopologyComm, BaseUrlWithTrailingSlashIsAccepted)
{
    useRegistry(m_stub.baseUrl() + "/", m_stub.baseUrl() + "/");
    m_stub.setAlarms("sw-1", {200, R"({"code":0,"msg":"","data":{"switchAlarmList":[]}})"});
    protocol::SwitchAlarmListData alarms;
    EXPECT_TRUE(senvia::CTopoAlarmComm::request(alarms, "sw-1"));
}

TEST_F(TopologyComm, AlarmsAreReadFromTheAnswer)
{
    m_stub.setAlarms("sw-1", {200, R"({"code":0,"msg":"success","data":{"switchAlarmList":[)"
                                   R"({"port":3,"isAlarm":true},{"port":12,"isAlarm":false}]}})"});
    protocol::SwitchAlarmListData alarms;
    ASSERT_TRUE(senvia::CTopoAlarmComm::request(alarms, "sw-1"));
    ASSERT_EQ(alarms.switchAlarmList.size(), 2u);
    EXPECT_EQ(alarms.switchAlarmList[0].port, 3);
    EXPECT_TRUE(alarms.switchAlarmList[0].isAlarm);
    EXPECT_EQ(alarms.switchAlarmList[1].port, 12);
    expectLastError(0, 0);
}

TEST_F(TopologyComm, AlarmErrorCodeFails)
{
    m_stub.setAlarms("sw-1", {200, R"({"code":7,"msg":"alarm service busy"})"});
    protocol::SwitchAlarmListData alarms;
    alarms.switchAlarmList.resize(1);
    EXPECT_FALSE(senvia::CTopoAlarmComm::request(alarms, "sw-1"));
    expectLastError(kServiceErrorCodeModule, 7);
    EXPECT_EQ(alarms.switchAlarmList.size(), 1u);
}
