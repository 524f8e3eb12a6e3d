#include "LiveModel.h"

#include "Hash.h"
#include "ModelCatalog.h"

#include <algorithm>
#include <cmath>

namespace emulator {

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kAmplitude = 0.45; // daily swing of the traffic around its mean

enum class Profile { StableUp, StableDown, Disabled, Flapping };

uint64_t deviceKey(const DevicePlan& d) { return hashText(d.id); }

uint32_t clampRate(double bps)
{
    if (bps <= 0.0)
        return 0;
    if (bps >= 4294967295.0)
        return 4294967295U;
    return static_cast<uint32_t>(bps);
}

std::string rateText(int mbps)
{
    if (mbps >= 1000 && mbps % 1000 == 0 && mbps > 1000)
        return std::to_string(mbps / 1000) + "G";
    if (mbps == 2500)
        return "2.5G";
    return std::to_string(mbps) + "M";
}

} // namespace

static Profile profileOf(uint64_t seed, const DevicePlan& d, const PortPlan& p)
{
    if (p.uplink || p.type == 'W')
        return Profile::StableUp;
    const double u = unitOf({seed, deviceKey(d), static_cast<uint64_t>(p.id), 11});
    // A port with a line of the topology is in use: up, but for the odd loose cable.
    if (p.linked)
        return u < 0.95 ? Profile::StableUp : Profile::Flapping;
    // Fiber cards and bridges have few ports and almost all of them in use.
    const double upShare = (d.category == kFiberConverter || d.category == kBridge) ? 0.85 : 0.58;
    if (u < upShare)
        return Profile::StableUp;
    if (u < 0.82)
        return Profile::StableDown;
    if (u < 0.86)
        return Profile::Disabled;
    return Profile::Flapping;
}

static long long flapPeriod(uint64_t seed, const DevicePlan& d, const PortPlan& p)
{
    return rangeOf(90, 600, {seed, deviceKey(d), static_cast<uint64_t>(p.id), 13});
}

static bool flapSegmentUp(uint64_t seed, const DevicePlan& d, const PortPlan& p, long long segment)
{
    return unitOf({seed, deviceKey(d), static_cast<uint64_t>(p.id), static_cast<uint64_t>(segment), 14}) < 0.6;
}

bool LiveModel::linkUp(const DevicePlan& d, const PortPlan& p, long long tick) const
{
    switch (profileOf(m_seed, d, p)) {
    case Profile::StableUp: return true;
    case Profile::StableDown:
    case Profile::Disabled: return false;
    case Profile::Flapping: break;
    }
    const long long period = flapPeriod(m_seed, d, p);
    return flapSegmentUp(m_seed, d, p, (tick >= 0 ? tick : 0) / period);
}

double LiveModel::meanRate(const DevicePlan& d, const PortPlan& p, int direction) const
{
    const double speed = static_cast<double>(p.speedMbps) * 1e6;
    const double u = unitOf({m_seed, deviceKey(d), static_cast<uint64_t>(p.id), 20, static_cast<uint64_t>(direction)});
    const double low = p.uplink ? 0.02 * speed : 5e3;
    const double high = p.uplink ? 0.35 * speed : 0.12 * speed;
    return std::exp(std::log(low) + u * (std::log(high) - std::log(low)));
}

// Bits carried between `from` and `to` at the smooth rate around `mean`.
double LiveModel::rateIntegral(uint64_t key, double mean, double from, double to) const
{
    if (to <= from)
        return 0.0;
    const double period = static_cast<double>(rangeOf(900, 7200, {m_seed, key, 21}));
    const double omega = 2.0 * kPi / period;
    const double phase = unitOf({m_seed, key, 22}) * 2.0 * kPi;
    auto primitive = [&](double t) { return mean * (t - kAmplitude / omega * std::cos(omega * t + phase)); };
    return primitive(to) - primitive(from);
}

double LiveModel::upSeconds(const DevicePlan& d, const PortPlan& p, long long from, long long to, uint64_t key,
                            double mean) const
{
    if (to <= from)
        return 0.0;
    switch (profileOf(m_seed, d, p)) {
    case Profile::StableUp: return rateIntegral(key, mean, static_cast<double>(from), static_cast<double>(to));
    case Profile::StableDown:
    case Profile::Disabled: return 0.0;
    case Profile::Flapping: break;
    }
    const long long period = flapPeriod(m_seed, d, p);
    double bits = 0.0;
    for (long long s = from / period; s * period < to; ++s) {
        if (!flapSegmentUp(m_seed, d, p, s))
            continue;
        const long long a = std::max(from, s * period);
        const long long b = std::min(to, (s + 1) * period);
        bits += rateIntegral(key, mean, static_cast<double>(a), static_cast<double>(b));
    }
    return bits;
}

double LiveModel::poeBase(const DevicePlan& d, const PortPlan& p) const
{
    if (!p.poe)
        return 0.0;
    const uint64_t key = hashKeys({m_seed, deviceKey(d), static_cast<uint64_t>(p.id), 30});
    if (unitOf({key, 1}) > 0.75)
        return 0.0; // nothing powered on this port
    return 2.5 + unitOf({key, 2}) * 23.0;
}

PortSample LiveModel::port(const DevicePlan& d, const PortPlan& p, long long tick, long long clearTick) const
{
    PortSample s;
    const Profile profile = profileOf(m_seed, d, p);
    s.enabled = profile != Profile::Disabled;
    s.up = linkUp(d, p, tick);
    const uint64_t dk = deviceKey(d);
    const uint64_t sendKey = hashKeys({dk, static_cast<uint64_t>(p.id), 1});
    const uint64_t receiveKey = hashKeys({dk, static_cast<uint64_t>(p.id), 2});
    const double meanSend = meanRate(d, p, 1);
    const double meanReceive = meanRate(d, p, 2);

    if (s.up) {
        auto instant = [&](uint64_t key, double mean) {
            const double period = static_cast<double>(rangeOf(900, 7200, {m_seed, key, 21}));
            const double phase = unitOf({m_seed, key, 22}) * 2.0 * kPi;
            const double smooth = mean * (1.0 + kAmplitude * std::sin(2.0 * kPi * static_cast<double>(tick) / period + phase));
            return smooth * (0.92 + 0.16 * noise(key, tick));
        };
        s.sendRate = clampRate(instant(sendKey, meanSend));
        s.receiveRate = clampRate(instant(receiveKey, meanReceive));
    }

    // Counters: what the port carried before the emulator started (nothing after a clear),
    // plus what it carried since.
    const long long from = clearTick >= 0 ? clearTick : 0;
    double sentBits = upSeconds(d, p, from, tick, sendKey, meanSend);
    double receivedBits = upSeconds(d, p, from, tick, receiveKey, meanReceive);
    if (clearTick < 0 && profile != Profile::Disabled) {
        const double history = static_cast<double>(rangeOf(2 * 86400, 180 * 86400, {m_seed, dk, 40})) * (profile == Profile::StableDown ? 0.02 : 0.6);
        sentBits += meanSend * history;
        receivedBits += meanReceive * history;
    }
    s.bytesSent = static_cast<uint64_t>(sentBits / 8.0);
    s.bytesReceived = static_cast<uint64_t>(receivedBits / 8.0);
    const uint64_t packetSize = static_cast<uint64_t>(rangeOf(180, 1400, {m_seed, dk, static_cast<uint64_t>(p.id), 23}));
    s.packetsSent = s.bytesSent / packetSize;
    s.packetsReceived = s.bytesReceived / (packetSize > 400 ? packetSize - 120 : packetSize);

    const bool peakKnown = profile != Profile::StableDown && profile != Profile::Disabled &&
                           unitOf({m_seed, dk, static_cast<uint64_t>(p.id), 24}) > 0.08;
    if (peakKnown) {
        s.peakSendRate = clampRate(meanSend * (1.0 + kAmplitude) * 1.25);
        s.peakReceiveRate = clampRate(meanReceive * (1.0 + kAmplitude) * 1.25);
    }

    const double base = poeBase(d, p);
    if (base > 0.0 && s.up)
        s.poePower = std::round(base * (0.95 + 0.1 * noise(hashKeys({dk, static_cast<uint64_t>(p.id), 31}), tick)) * 10.0) / 10.0;

    if (s.up) {
        int mbps = p.speedMbps;
        if (p.type == 'E' && !p.uplink && unitOf({m_seed, dk, static_cast<uint64_t>(p.id), 25}) < 0.12)
            mbps = 100;
        s.rate = rateText(mbps);
        s.duplex = (mbps == 100 && unitOf({m_seed, dk, static_cast<uint64_t>(p.id), 26}) < 0.3) ? "halfDuplex" : "duplex";
    } else {
        s.duplex = "auto";
    }
    s.flowCtrl = unitOf({m_seed, dk, static_cast<uint64_t>(p.id), 27}) < 0.3;
    return s;
}

DeviceSample LiveModel::device(const DevicePlan& d, long long tick) const
{
    DeviceSample s;
    const uint64_t dk = deviceKey(d);
    s.upTime = rangeOf(2 * 86400, 180 * 86400, {m_seed, dk, 40}) + tick;
    const double cpuLow = 3.0 + unitOf({m_seed, dk, 41}) * 30.0;
    s.cpu = static_cast<int>(std::lround(std::clamp(wander(hashKeys({dk, 42}), tick, cpuLow, cpuLow + 25.0, 300), 1.0, 99.0)));

    double total = 512.0;
    switch (d.category) {
    case kSwitch: total = d.caps.bIsChassisDevice ? 4096.0 : (d.ports.size() >= 24 ? 1024.0 : 512.0); break;
    case kWirelessController: total = 2048.0; break;
    case kEnterpriseRouter: total = 1024.0; break;
    case kWirelessAp: total = 256.0; break;
    case kWirelessRouter:
    case kBridge: total = 128.0; break;
    case kFiberConverter: total = 64.0; break;
    default: break;
    }
    const double used = std::round(total * wander(hashKeys({dk, 43}), tick, 0.3, 0.75, 900) * 10.0) / 10.0;
    s.memoryUsed = used;
    s.memoryAvailable = std::round((total - used) * 10.0) / 10.0;

    if (d.poe) {
        double used = 0.0;
        double peak = 0.0;
        for (const PortPlan& p : d.ports) {
            const double base = poeBase(d, p);
            if (base <= 0.0)
                continue;
            peak += base * 1.05;
            if (linkUp(d, p, tick))
                used += base * (0.95 + 0.1 * noise(hashKeys({dk, static_cast<uint64_t>(p.id), 31}), tick));
        }
        s.poeTotal = d.poeBudget;
        s.poeUsed = std::round(std::min(used, d.poeBudget) * 10.0) / 10.0;
        s.poePeak = std::round(std::min(std::max(peak * 1.1, s.poeUsed), d.poeBudget) * 10.0) / 10.0;
    }
    return s;
}

bool LiveModel::portAlarm(const DevicePlan& d, const PortPlan& p, long long tick) const
{
    const uint64_t dk = deviceKey(d);
    const long long t = tick >= 0 ? tick : 0;
    // One port of about a third of the devices keeps an alarm for two of every three half hours.
    if (unitOf({m_seed, dk, 50}) < 0.35) {
        const int wired = static_cast<int>(std::count_if(d.ports.begin(), d.ports.end(), [](const PortPlan& q) { return q.type != 'W'; }));
        if (wired > 0) {
            const long long pick = rangeOf(0, wired - 1, {m_seed, dk, 51});
            if (d.ports[static_cast<size_t>(pick)].id == p.id && (t / 1800) % 3 != 2)
                return true;
        }
    }
    // Others alarm now and then, for a quarter of an hour.
    return linkUp(d, p, tick) && unitOf({m_seed, dk, static_cast<uint64_t>(p.id), static_cast<uint64_t>(t / 900), 52}) < 0.03;
}

Presence LiveModel::presence(uint64_t group, uint64_t item, long long tick, double share, int minStay, int maxStay) const
{
    Presence p;
    const long long t = tick >= 0 ? tick : 0;
    const long long stay = rangeOf(minStay, maxStay, {m_seed, group, item, 60});
    const long long offset = rangeOf(0, stay - 1, {m_seed, group, item, 61});
    const long long epoch = (t + offset) / stay;
    p.present = unitOf({m_seed, group, item, static_cast<uint64_t>(epoch), 62}) < share;
    p.connectedSeconds = (t + offset) - epoch * stay + 1;
    if (p.present && epoch > 0 && unitOf({m_seed, group, item, static_cast<uint64_t>(epoch - 1), 62}) < share)
        p.connectedSeconds += stay; // also there during the stay before
    return p;
}

double LiveModel::wander(uint64_t key, long long tick, double low, double high, int period) const
{
    const double phase = unitOf({m_seed, key, 70}) * 2.0 * kPi;
    const double x = 0.5 + 0.35 * std::sin(2.0 * kPi * static_cast<double>(tick) / period + phase) +
                     0.15 * (noise(key, tick) - 0.5);
    return low + (high - low) * x;
}

double LiveModel::noise(uint64_t key, long long tick) const
{
    return unitOf({m_seed, key, static_cast<uint64_t>(tick), 71});
}

} // namespace emulator
