#pragma once
// The emulated network at run time: the fleet, its topology, the device clock, what the
// client changed on the devices, and the answer of every path of the device protocol and
// of the client's topology and alarm services (docs/protocol.md).
#include "Fleet.h"
#include "LiveModel.h"
#include "RecordWriter.h"
#include "Topology.h"

#include <atomic>
#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace emulator {

struct Answer {
    int status = 200;
    std::string body;
    std::string contentType;
};

// What a fault does to a paged search (Faults.h decides when).
struct SearchFault {
    bool moreForever = false;
    int failPage = 0;       // the page of a walk that fails, from 1; 0 none
    int failStatus = 500;
};

// One request as the device received it, for the control endpoint.
struct LoggedRequest {
    long long seq = 0;
    std::string method;
    std::string target;
    std::string body;
    int status = 0;
};

// The device clock: ticks of device time since start, or frozen at a tick.
class Clock {
public:
    explicit Clock(int tickMs, long long frozenAt = -1);
    long long tick() const;
    void freeze(long long tick);
    void run();
    bool frozen() const;

private:
    mutable std::mutex m_mutex;
    int m_tickMs;
    long long m_base = 0;
    std::chrono::steady_clock::time_point m_start;
    long long m_frozen = -1;
};

class Network {
public:
    // One BSS of an AP or wireless router: an SSID on one radio.
    struct BssView;

    Network(Fleet fleet, uint64_t seed, int tickMs, long long frozenAt);

    const Fleet& fleet() const { return m_fleet; }
    const Topology& topology() const { return m_topology; }
    const LiveModel& live() const { return m_live; }
    Clock& clock() { return m_clock; }

    // One request of the device protocol. `path` has no query; `target` is path and query.
    Answer deviceRequest(const DevicePlan& device, const std::string& method, const std::string& path,
                         const std::string& target, bool json, const std::string& body, const SearchFault& fault);
    // The topology and alarm services.
    Answer serviceRequest(const std::string& method, const std::string& path, const std::string& guid);

    // The error answer of the device protocol for `httpStatus` (subStatus "" = the default).
    static Answer errorAnswer(int httpStatus, const std::string& target, bool json, const std::string& subStatus = std::string());

    void logRequest(const DevicePlan& device, LoggedRequest entry);
    std::vector<LoggedRequest> requestLog(const std::string& deviceId) const;
    void clearRequestLogs();

private:
    struct Session {
        long long tick = 0;
        int pages = 0;
        long long lastUse = 0;
    };
    struct Runtime {
        mutable std::mutex mutex;
        long long clearTick = -1;
        std::string region;
        std::map<std::string, Session> sessions;
        std::deque<LoggedRequest> log;
    };
    struct Context;
    using Handler = Answer (Network::*)(Context&);
    struct Route {
        const char* method;
        const char* path;   // a trailing "{}" part stands for one path segment
        bool (*serves)(const DevicePlan&);
        Handler handler;
    };
    static const std::vector<Route>& routes();

    Runtime& runtime(const DevicePlan& device);
    Answer write(const Record& record, bool json) const;

    // Answers, one per path (docs/protocol.md).
    Answer deviceStatus(Context& c);
    Answer basicInfo(Context& c);
    Answer workState(Context& c);
    Answer workStateSearch(Context& c);
    Answer workStateSearchCap(Context& c);
    Answer portBasic(Context& c);
    Answer portRate(Context& c);
    Answer portSumClear(Context& c);
    Answer poeInfo(Context& c);
    Answer poeInfoCap(Context& c);
    Answer slotInfo(Context& c);
    Answer panelStatus(Context& c);
    Answer fiberSlots(Context& c);
    Answer acCapabilities(Context& c);
    Answer apGroups(Context& c);
    Answer apGroupBss(Context& c);
    Answer apGroupBssSearch(Context& c);
    Answer apInfoSearch(Context& c);
    Answer terminalSearch(Context& c);
    Answer bssParaCfg(Context& c);
    Answer bssParaCfgSearch(Context& c);
    Answer bssClients(Context& c);
    Answer rfParaCfg(Context& c);
    Answer pppoeStatus(Context& c);
    Answer routerTerminals(Context& c);
    Answer wireless(Context& c);
    Answer transmissionList(Context& c);
    Answer region(Context& c);
    Answer regionCapabilities(Context& c);
    Answer setRegion(Context& c);

    // Shared parts.
    long long clearTickOf(const DevicePlan& device);
    void addWorkStateItem(Record& list, const DevicePlan& device, const PortPlan& port, long long tick, long long clearTick) const;
    bool wanConnected(const DevicePlan& device, const WanPlan& wan, long long tick) const;
    struct Terminal;
    std::vector<Terminal> terminals(const DevicePlan& controller, long long tick) const;
    std::string apState(const DevicePlan& controller, size_t ap, long long tick) const;
    void addApInfo(Record& list, const DevicePlan& controller, size_t ap, long long tick,
                   const std::vector<Terminal>& present) const;
    void addGroupBss(Record& list, const DevicePlan& controller, size_t group) const;
    std::vector<BssView> bssOf(const DevicePlan& device) const;
    int clientsOn(const DevicePlan& device, const BssView& bss, long long tick, Record* list) const;
    // A paged search: condition from the body, session by searchID, the page cut by the
    // device's counting. `write` adds `count` items from `first` (0-based) at `tick`.
    template <typename CountFn, typename WriteFn>
    Answer pagedSearch(Context& c, const char* root, const char* listName, int firstPosition, int largestPage,
                       CountFn count, WriteFn write);

    // Topology and alarm services.
    Answer deviceNode(const std::string& guid);
    Answer portAlarms(const std::string& guid);
    static Answer envelope(int httpStatus, int code, const std::string& msg, const std::string& data);

    Fleet m_fleet;
    Topology m_topology;
    LiveModel m_live;
    Clock m_clock;
    std::vector<std::unique_ptr<Runtime>> m_runtimes;
    std::atomic<long long> m_seq{0};
};

} // namespace emulator
