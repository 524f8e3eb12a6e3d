// HTTP digest authentication of the emulated devices with the registry's credentials.
#include "EmulatorClient.h"
#include "ProtocolSchema.h"

#include <gtest/gtest.h>

using namespace velmora::test;

namespace {

class EmulatorAuthTest : public EmulatorSuite<EmulatorAuthTest> {
public:
    static EmulatorOptions options() { return {"demo", 1, {}}; }

protected:
    void SetUp() override
    {
        EmulatorSuite::SetUp();
        if (HasFatalFailure())
            return;
        m_device = *s_emulator->device(s_emulator->deviceId(121));
    }

    EmulatorProcess::Device m_device;
};

} // namespace

TEST_F(EmulatorAuthTest, RequestWithoutCredentialsGetsADigestChallenge)
{
    RequestOptions none;
    none.digest = false;
    const HttpResult r = deviceRequest(*s_emulator, m_device, "GET", "/NXRPC/System/status", std::string(), none);
    EXPECT_EQ(r.status, 401);
    const std::string challenge = r.header("www-authenticate");
    EXPECT_EQ(challenge.rfind("Digest ", 0), 0u) << challenge;
    EXPECT_NE(challenge.find("realm=\"NXRPC\""), std::string::npos);
    EXPECT_NE(challenge.find("qop=\"auth\""), std::string::npos);
    EXPECT_NE(challenge.find("nonce=\""), std::string::npos);
    EXPECT_NE(challenge.find("algorithm=MD5"), std::string::npos);
    ASSERT_EQ(checkAnswer(r.body, "ResponseStatus", false), "");
    EXPECT_EQ(text(child(parseXml(r.body).root(), "subStatusCode")), "unauthorized");
}

TEST_F(EmulatorAuthTest, RegistryCredentialsAreAccepted)
{
    const HttpResult r = deviceRequest(*s_emulator, m_device, "GET", "/NXRPC/System/status");
    EXPECT_EQ(r.status, 200);
    EXPECT_EQ(checkAnswer(r.body, "DeviceStatus", false), "");
}

TEST_F(EmulatorAuthTest, WrongPasswordIsRefused)
{
    RequestOptions wrong;
    wrong.password = m_device.password + "x";
    EXPECT_EQ(deviceRequest(*s_emulator, m_device, "GET", "/NXRPC/System/status", std::string(), wrong).status, 401);
    // Nor does another device's password open this one.
    const EmulatorProcess::Device other = *s_emulator->device(s_emulator->deviceId(120));
    ASSERT_NE(other.password, m_device.password);
    wrong.password = other.password;
    EXPECT_EQ(deviceRequest(*s_emulator, m_device, "GET", "/NXRPC/System/status", std::string(), wrong).status, 401);
}

TEST_F(EmulatorAuthTest, BasicCredentialsAreNotEnough)
{
    RequestOptions basic;
    basic.basic = true;
    EXPECT_EQ(deviceRequest(*s_emulator, m_device, "GET", "/NXRPC/System/status", std::string(), basic).status, 401);
}

TEST_F(EmulatorAuthTest, WritesAndPostsAreAuthenticatedToo)
{
    RequestOptions wrong;
    wrong.password = "nope";
    EXPECT_EQ(deviceRequest(*s_emulator, m_device, "PUT", "/NXRPC/Transfers/Switches/portSumClear", std::string(), wrong).status, 401);
    EXPECT_EQ(deviceRequest(*s_emulator, m_device, "PUT", "/NXRPC/Transfers/Switches/portSumClear").status, 200);
}
