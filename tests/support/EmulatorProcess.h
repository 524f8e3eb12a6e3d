#pragma once
// Starts the device emulator (tools/emulator) for a test: a fleet on a free loopback port,
// its registry in a temporary folder, the client's registry pointed at it, and faults and
// the request log steered through the emulator's control endpoint. The process dies with
// the object.
//
//     velmora::test::EmulatorProcess emulator("demo");
//     ASSERT_TRUE(emulator.isRunning()) << emulator.errorString();
//     const std::string id = emulator.deviceId(120, "QN-1040");
//     emulator.setFault(id, "/NXRPC/System/status", EmulatorProcess::Fault::status(503));
//
// Tests that link `ostrand` (directly or through `velmora`) get the registry path set on
// ostrand::CDeviceRegistry as well; all tests get VELMORA_REGISTRY in the environment.
#include <optional>
#include <string>
#include <vector>

#if __has_include("ostrand/DeviceRegistry.h")
#include "ostrand/DeviceRegistry.h"
#define VELMORA_TEST_EMULATOR_HAS_OSTRAND 1
#endif

namespace velmora {
namespace test {

class EmulatorProcess {
public:
    // One device of the registry the emulator wrote.
    struct Device {
        std::string id;
        std::string name;
        int category = -1;
        std::string model;
        std::string hostName;
        std::string user;
        std::string password;
        std::string capabilitiesJson; // the SwitchCapabilities object as JSON text
        int port = 0;                 // the fleet's port, or the device's own (--own-port)
    };

    // A fault of one device and path; built by the named constructors.
    struct Fault {
        std::string kind;       // "delay", "status", "drop", "truncate", "malformed", "moreForever", "failPage", "answer",
                                // "silent", "refuse", "blackhole"
        int delayMs = 0;        // "delay": added wait; "silent": how long each request is held (0: until cleared)
        int status = 0;         // "status", "failPage": HTTP status answered (failPage: 500 when 0)
        int page = 0;           // "failPage": the page of a walk that fails, from 1
        int count = 0;          // how many matching requests it hits; 0 = all of them
        std::string method;     // only requests of this verb; empty = any
        std::string body;       // "answer": the body sent instead of the device's own
        std::string contentType; // "answer": its type; empty = the type the path answers in

        static Fault delay(int ms) { Fault f; f.kind = "delay"; f.delayMs = ms; return f; }
        static Fault httpStatus(int code) { Fault f; f.kind = "status"; f.status = code; return f; }
        static Fault drop() { Fault f; f.kind = "drop"; return f; }
        static Fault truncate() { Fault f; f.kind = "truncate"; return f; }
        static Fault malformed() { Fault f; f.kind = "malformed"; return f; }
        static Fault moreForever() { Fault f; f.kind = "moreForever"; return f; }
        // The device answers `text` as it stands (values the fleet itself never sends).
        static Fault answer(const std::string& text, int code = 200) { Fault f; f.kind = "answer"; f.body = text; f.status = code; return f; }
        static Fault failPage(int pageNumber, int code = 500) { Fault f; f.kind = "failPage"; f.page = pageNumber; f.status = code; return f; }
        // The device takes the connection and never answers, not even the challenge.
        static Fault silent() { Fault f; f.kind = "silent"; return f; }
        // The device's own port (emulator started with --own-port) refuses connections, or
        // accepts none: its backlog is full and a connect never completes.
        static Fault refuse() { Fault f; f.kind = "refuse"; return f; }
        static Fault blackhole() { Fault f; f.kind = "blackhole"; return f; }
    };

    // One request as the emulator received it.
    struct Request {
        long long seq = 0;
        std::string method;
        std::string target;      // path and query as sent
        std::string requestLine; // "<method> <target>"
        std::string body;
        int status = 0;          // the status the emulator answered
    };

    // Starts the emulator with a named fleet ("demo", "large") or a fleet file, and waits
    // until it listens (at most `startTimeoutMs`). `extraArgs` go to its command line.
    explicit EmulatorProcess(const std::string& fleet = "demo", unsigned seed = 1,
                             const std::vector<std::string>& extraArgs = {},
                             int startTimeoutMs = 60000)
    {
        start(fleet, seed, extraArgs, startTimeoutMs);
        attachRegistry();
    }
    ~EmulatorProcess();

    EmulatorProcess(const EmulatorProcess&) = delete;
    EmulatorProcess& operator=(const EmulatorProcess&) = delete;

    bool isRunning() const;
    std::string errorString() const { return m_error; }

    int port() const { return m_port; }
    std::string baseUrl() const; // "http://127.0.0.1:<port>", also the services' base
    std::string registryPath() const { return m_registryPath; }
    std::string logPath() const { return m_logPath; }
    // Process id of the emulator (0 when it is not running).
    long long processId() const;

    // The registry's devices, in its order.
    const std::vector<Device>& devices() const { return m_devices; }
    std::optional<Device> device(const std::string& id) const;
    std::vector<std::string> deviceIds(int category) const;
    std::vector<std::string> deviceIdsByModel(const std::string& model) const;
    // The first device of the category (and model, when given); empty when there is none.
    std::string deviceId(int category, const std::string& model = std::string()) const;

    // Faults through the control endpoint; path "*" or a prefix ending in "*" matches more.
    bool setFault(const std::string& deviceId, const std::string& path, const Fault& fault);
    bool clearFaults();

    // What the device received, oldest first (the emulator keeps the last 2000 per device).
    std::vector<Request> requestLog(const std::string& deviceId) const;
    bool clearRequestLog();

    // Stops the device clock at `tick` (seconds of device time), or lets it run again.
    bool freezeClock(long long tick);
    bool runClock();

    // A raw request to the emulator's port with the given Host (empty: the service host);
    // returns the status (0 when the connection failed) and fills `body`.
    int httpRequest(const std::string& method, const std::string& target, const std::string& body,
                    std::string* responseBody, const std::string& host = std::string()) const;

private:
    void start(const std::string& fleet, unsigned seed, const std::vector<std::string>& extraArgs, int startTimeoutMs);
    bool readRegistry();
    void setRegistryEnvironment();
    void restoreRegistryEnvironment();

    // Inline so that only tests that can see ostrand depend on it.
    void attachRegistry()
    {
#ifdef VELMORA_TEST_EMULATOR_HAS_OSTRAND
        if (!m_registryPath.empty())
            ostrand::CDeviceRegistry::instance().setPath(m_registryPath);
        m_detachRegistry = [] { ostrand::CDeviceRegistry::instance().setPath(std::string()); };
#endif
    }

    struct Private;
    Private* d = nullptr; // owned; a plain pointer so that the inline constructor needs no complete type

    void (*m_detachRegistry)() = nullptr;
    int m_port = 0;
    std::string m_error;
    std::string m_registryPath;
    std::string m_logPath;
    std::vector<Device> m_devices;
    bool m_hadEnvironment = false;
    std::string m_oldEnvironment;
};

} // namespace test
} // namespace velmora
