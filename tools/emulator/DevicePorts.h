#pragma once
// Ports of their own for chosen devices (--own-port), to play devices that cannot be reached.
// The registry names such a device with its own port on 127.0.0.1. While no port fault is in
// force the port passes every connection through to the fleet's port (the Host header still
// names the device); a "refuse" fault closes it, so that a connect is refused at once, and a
// "blackhole" fault leaves it listening with a full backlog that is never accepted, so that a
// connect is never completed and the client's connect time-out runs out.
#include <atomic>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace emulator {

class DevicePort;

class DevicePorts {
public:
    explicit DevicePorts(int fleetPort);
    ~DevicePorts();
    DevicePorts(const DevicePorts&) = delete;
    DevicePorts& operator=(const DevicePorts&) = delete;

    // Opens a free port on 127.0.0.1 for the device; its number, or -1 with `error`.
    int open(const std::string& device, std::string& error);
    bool has(const std::string& device) const;
    // The device's port, or 0.
    int portOf(const std::string& device) const;
    std::map<std::string, int> ports() const;

    // Puts each port in the mode that the fault table wants: "" (pass through), "refuse" or
    // "blackhole". `modeOf` gives the mode of a device.
    template <class ModeOf>
    void apply(ModeOf modeOf)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (auto& entry : m_ports)
            setMode(*entry.second, modeOf(entry.first));
    }

    void stop();

private:
    void setMode(DevicePort& port, const std::string& mode);

    int m_fleetPort;
    mutable std::mutex m_mutex;
    std::map<std::string, std::unique_ptr<DevicePort>> m_ports;
};

} // namespace emulator
