#include "DeviceBreaker.h"

#include <atomic>
#include <ctime>
#include <curl/curl.h>

#include "HttpTransport.h"
#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"
#include "senvia/TransportTimings.h"

namespace senvia {

namespace {

std::atomic<long> g_connectTimeOutMs{kConnectTimeOutMs};
std::atomic<long> g_unreachableHoldMs{kUnreachableHoldMs};
std::atomic<long> g_answerTimeOutCapMs{0};

std::string localTimeText(std::chrono::system_clock::time_point when)
{
    const std::time_t t = std::chrono::system_clock::to_time_t(when);
    std::tm tm{};
    localtime_r(&t, &tm);
    char text[32];
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S", &tm);
    return text;
}

} // namespace

TransportTimings transportTimings()
{
    TransportTimings timings;
    timings.connectTimeOutMs = g_connectTimeOutMs.load();
    timings.unreachableHoldMs = g_unreachableHoldMs.load();
    timings.answerTimeOutCapMs = g_answerTimeOutCapMs.load();
    return timings;
}

void setTransportTimings(const TransportTimings& timings)
{
    g_connectTimeOutMs = timings.connectTimeOutMs;
    g_unreachableHoldMs = timings.unreachableHoldMs;
    g_answerTimeOutCapMs = timings.answerTimeOutCapMs;
    detail::CDeviceBreaker::instance().forgetAll();
}

void forgetUnreachableDevices()
{
    detail::CDeviceBreaker::instance().forgetAll();
}

namespace detail {

CDeviceBreaker& CDeviceBreaker::instance()
{
    static CDeviceBreaker breaker;
    return breaker;
}

bool CDeviceBreaker::meansUnreachable(const Plinth::Error::ErrorCode& error)
{
    return error.module == kTransportError &&
           (error.code == CURLE_OPERATION_TIMEDOUT || error.code == CURLE_COULDNT_CONNECT);
}

bool CDeviceBreaker::admit(const std::string& device)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    auto found = m_holds.find(device);
    if (found == m_holds.end())
        return true;
    Hold& hold = found->second;
    if (!hold.probing && std::chrono::steady_clock::now() >= hold.until) {
        hold.probing = true; // this query is the probe
        return true;
    }
    Plinth::Error::SetLastError(hold.error.module, hold.error.code,
                                "considered unreachable until " + hold.untilText + ": " + hold.error.text);
    return false;
}

void CDeviceBreaker::settle(const std::string& device, const std::string& where, bool ok,
                            const Plinth::Error::ErrorCode& error)
{
    const long holdMs = g_unreachableHoldMs.load();
    if (ok || !meansUnreachable(error) || holdMs <= 0) {
        // The device answered (or holds are off): queries go to it again.
        std::lock_guard<std::mutex> lock(m_mutex);
        m_holds.erase(device);
        return;
    }

    Hold hold;
    const auto now = std::chrono::steady_clock::now();
    hold.until = now + std::chrono::milliseconds(holdMs);
    hold.untilText = localTimeText(std::chrono::system_clock::now() + std::chrono::milliseconds(holdMs));
    hold.error = error;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto found = m_holds.find(device);
        // A query that went out before another one opened the hold (the AP list's read on the
        // pool beside the GUI thread) ends in the same hold: one log line per hold.
        if (found != m_holds.end() && !found->second.probing && now < found->second.until)
            return;
        m_holds[device] = hold;
    }
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn(
        "",
        Plinth::StringUtil::FormatString(
            "Device [%s] at %s is considered unreachable until %s: %s. Error code is %d-%d. Its queries fail at once "
            "until then.",
            device.c_str(), where.c_str(), hold.untilText.c_str(), error.text.c_str(), static_cast<int>(error.module),
            static_cast<int>(error.code)),
        PLINTH_LOCATION);
}

void CDeviceBreaker::forgetAll()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_holds.clear();
}

} // namespace detail
} // namespace senvia
