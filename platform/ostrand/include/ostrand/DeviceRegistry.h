#pragma once
// The device registry: the client's list of devices and how to reach them, read from the
// JSON file named by VELMORA_REGISTRY (default "velmora-registry.json" in the working
// directory). The emulator writes one; a real network is described by hand (README).
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "ostrand/IAbstractDevice.h"

namespace ostrand {

struct DeviceEntry {
    std::string id;
    std::string name;                 // UTF-8 display name
    int category = -1;                // tarvex7300::Device::DeviceCategory value
    std::string model;
    std::string address = "127.0.0.1";
    int port = 80;
    std::string scheme = "http";      // "http" or "https"
    std::string hostName;             // sent as the Host header when not empty
    std::string user;
    std::string password;
    std::string auth = "digest";      // "digest", "basic" or "none"
    bool verifyPeer = false;          // HTTPS certificate check
    std::string capabilitiesJson;     // the device's SwitchCapabilities object, as JSON text
};

struct ServiceEntry {
    std::string topology;             // base URL of the topology service, e.g. "http://127.0.0.1:18080"
    std::string alarm;                // base URL of the alarm service
};

// Process-wide registry. Reads the file on first use and again when its path or its
// modification time changes, so a test or the emulator may replace it at run time.
class CDeviceRegistry {
public:
    static CDeviceRegistry& instance();

    // Path of the registry file in use (VELMORA_REGISTRY or the default).
    std::string path() const;
    // Use `path` from now on, whatever the environment says; empty goes back to the environment.
    void setPath(const std::string& path);

    std::optional<DeviceEntry> find(const std::string& deviceGuid);
    std::vector<DeviceEntry> devices();
    ServiceEntry services();

    // Last load problem ("" when the file read well).
    std::string lastError();

private:
    CDeviceRegistry() = default;
    void reloadIfChanged();
    void load(const std::string& path);
    void clearEntries();

    mutable std::mutex m_mutex;
    std::string m_overridePath;
    std::string m_loadedPath;
    long long m_loadedMtime = -1;     // nanoseconds; kMissingFile when the file was absent
    long long m_loadedSize = -1;
    unsigned long long m_loadedInode = 0;
    std::map<std::string, DeviceEntry> m_devices;
    std::vector<std::string> m_order;
    ServiceEntry m_services;
    std::string m_lastError;
};

} // namespace ostrand
