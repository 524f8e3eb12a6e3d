#pragma once
// How the emulated network moves: link states, rates and counters, CPU, memory, PoE,
// alarms and clients, each a pure function of the seed, the device, the port or client
// and the device clock (one tick = one second of device time). Actions of the client
// (clearing counters) enter as the tick at which they happened.
#include "Fleet.h"

#include <cstdint>
#include <string>

namespace emulator {

struct PortSample {
    bool enabled = true;
    bool up = false;
    uint32_t sendRate = 0;     // bits per second
    uint32_t receiveRate = 0;
    uint64_t bytesSent = 0;
    uint64_t bytesReceived = 0;
    uint64_t packetsSent = 0;
    uint64_t packetsReceived = 0;
    uint32_t peakSendRate = 0;
    uint32_t peakReceiveRate = 0;
    double poePower = 0.0;     // watts
    std::string rate;          // "1000M", "" when down
    std::string duplex;        // "duplex", "halfDuplex", "auto"
    bool flowCtrl = false;
};

struct DeviceSample {
    long long upTime = 0;
    int cpu = 0;
    double memoryUsed = 0.0;      // MB
    double memoryAvailable = 0.0; // MB
    double poeUsed = 0.0;
    double poeTotal = 0.0;
    double poePeak = 0.0;
};

// A client that comes and goes: present or not at a tick, and since when.
struct Presence {
    bool present = false;
    long long connectedSeconds = 0;
};

class LiveModel {
public:
    explicit LiveModel(uint64_t seed) : m_seed(seed) {}

    uint64_t seed() const { return m_seed; }

    // `clearTick` is the tick of the last counter reset (-1: never).
    PortSample port(const DevicePlan& device, const PortPlan& port, long long tick, long long clearTick) const;
    bool linkUp(const DevicePlan& device, const PortPlan& port, long long tick) const;
    DeviceSample device(const DevicePlan& device, long long tick) const;
    // Ports in alarm now (unconfirmed alarms of the alarm service).
    bool portAlarm(const DevicePlan& device, const PortPlan& port, long long tick) const;

    // Generic presence of item `item` of a group keyed by `group`: present with probability
    // `share` in each stay, stays lasting `minStay` to `maxStay` ticks.
    Presence presence(uint64_t group, uint64_t item, long long tick, double share, int minStay, int maxStay) const;

    // A smooth value between low and high that wanders with the clock.
    double wander(uint64_t key, long long tick, double low, double high, int period) const;
    // Noise in [0, 1) for one key and tick.
    double noise(uint64_t key, long long tick) const;

private:
    double meanRate(const DevicePlan& device, const PortPlan& port, int direction) const;
    double rateIntegral(uint64_t key, double mean, double from, double to) const;
    double upSeconds(const DevicePlan& device, const PortPlan& port, long long from, long long to, uint64_t key,
                     double mean) const;
    double poeBase(const DevicePlan& device, const PortPlan& port) const;

    uint64_t m_seed;
};

} // namespace emulator
