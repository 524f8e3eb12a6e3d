// Devices that cannot be reached: a device that takes the connection and never answers, and
// a device port of its own that passes connections through, refuses them, or accepts none.
#include "EmulatorClient.h"

#include <gtest/gtest.h>

#include <chrono>
#include <thread>

using namespace velmora::test;
using Fault = EmulatorProcess::Fault;

namespace {

const char kOwnPortSwitch[] = "Access-SW-21"; // the demo fleet's QN-1040
const char* const kStatus = "/NXRPC/System/status";

class EmulatorUnreachableTest : public EmulatorSuite<EmulatorUnreachableTest> {
public:
    static EmulatorOptions options() { return {"demo", 1, {"--own-port", kOwnPortSwitch}}; }

protected:
    void SetUp() override
    {
        EmulatorSuite::SetUp();
        if (HasFatalFailure())
            return;
        ASSERT_TRUE(s_emulator->clearFaults());
        ASSERT_TRUE(s_emulator->clearRequestLog());
        m_switch = *s_emulator->device(s_emulator->deviceId(120, "QN-1040"));
        m_other = *s_emulator->device(s_emulator->deviceId(124, "QN-1156"));
    }
    void TearDown() override { s_emulator->clearFaults(); }

    static RequestOptions waiting(long ms)
    {
        RequestOptions options;
        options.timeoutMs = ms;
        return options;
    }

    EmulatorProcess::Device m_switch;
    EmulatorProcess::Device m_other;
};

} // namespace

TEST_F(EmulatorUnreachableTest, TheOwnPortIsInTheRegistryAndPassesRequestsThrough)
{
    EXPECT_NE(m_switch.port, s_emulator->port());
    EXPECT_GT(m_switch.port, 0);
    EXPECT_EQ(m_other.port, s_emulator->port());
    const HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus);
    EXPECT_EQ(r.code, CURLE_OK);
    EXPECT_EQ(r.status, 200);
    EXPECT_NE(r.body.find("DeviceStatus"), std::string::npos);
}

TEST_F(EmulatorUnreachableTest, ASilentDeviceSendsNotEvenTheChallengeUntilCleared)
{
    ASSERT_TRUE(s_emulator->setFault(m_other.id, "*", Fault::silent()));
    const HttpResult r = deviceRequest(*s_emulator, m_other, "GET", kStatus, std::string(), waiting(500));
    EXPECT_EQ(r.code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_EQ(r.status, 0); // no 401 challenge came either
    EXPECT_TRUE(r.body.empty());
    // Other devices answer.
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 200);

    ASSERT_TRUE(s_emulator->clearFaults());
    EXPECT_EQ(deviceRequest(*s_emulator, m_other, "GET", kStatus).status, 200);
    // The held request is logged as dropped once it is let go (within the emulator's 50 ms
    // look at the fault table).
    bool dropped = false;
    for (int i = 0; i < 20 && !dropped; ++i) {
        for (const EmulatorProcess::Request& request : s_emulator->requestLog(m_other.id))
            dropped = dropped || (request.status == 0 && request.target == kStatus);
        if (!dropped)
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    EXPECT_TRUE(dropped);
}

TEST_F(EmulatorUnreachableTest, ASilentFaultWithATimeEndsEachHoldWithoutAnAnswer)
{
    Fault fault = Fault::silent();
    fault.delayMs = 200;
    ASSERT_TRUE(s_emulator->setFault(m_other.id, kStatus, fault));
    const HttpResult r = deviceRequest(*s_emulator, m_other, "GET", kStatus, std::string(), waiting(3000));
    EXPECT_NE(r.code, CURLE_OK);
    EXPECT_GE(r.seconds, 0.19);
    EXPECT_LT(r.seconds, 2.0);
}

TEST_F(EmulatorUnreachableTest, ARefusingPortRefusesAtOnceAndPassesThroughWhenCleared)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "*", Fault::refuse()));
    const HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus, std::string(), waiting(3000));
    EXPECT_EQ(r.code, CURLE_COULDNT_CONNECT);
    EXPECT_LT(r.seconds, 0.5);
    // The fleet's port is not touched.
    EXPECT_EQ(deviceRequest(*s_emulator, m_other, "GET", kStatus).status, 200);

    ASSERT_TRUE(s_emulator->clearFaults());
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 200);
}

TEST_F(EmulatorUnreachableTest, ABlackholePortNeverCompletesAConnect)
{
    ASSERT_TRUE(s_emulator->setFault(m_switch.id, "*", Fault::blackhole()));
    const HttpResult r = deviceRequest(*s_emulator, m_switch, "GET", kStatus, std::string(), waiting(600));
    EXPECT_EQ(r.code, CURLE_OPERATION_TIMEDOUT);
    EXPECT_GE(r.seconds, 0.55);
    EXPECT_TRUE(s_emulator->requestLog(m_switch.id).empty()); // nothing reached the device

    ASSERT_TRUE(s_emulator->clearFaults());
    EXPECT_EQ(deviceRequest(*s_emulator, m_switch, "GET", kStatus).status, 200);
}

TEST_F(EmulatorUnreachableTest, PortFaultsNeedADeviceWithItsOwnPort)
{
    EXPECT_FALSE(s_emulator->setFault(m_other.id, "*", Fault::refuse()));
    EXPECT_FALSE(s_emulator->setFault(m_other.id, "*", Fault::blackhole()));
    EXPECT_EQ(deviceRequest(*s_emulator, m_other, "GET", kStatus).status, 200);
}
