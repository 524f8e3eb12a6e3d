// What the query layer costs on top of the wire, measured against the device emulator on
// loopback:
//   - one query through ParamInterface against the same request made with bare libcurl on a
//     kept-alive connection;
//   - the paged work-state walk of a 1,000-port switch through WorkStatusInferface against
//     the same number of bare round trips with the same bodies, measured apart and also
//     taken in turn, walk by walk.
// The ratios (layer time / bare time; the goal is 1.3 or less) are printed after the table.
// Without --benchmark_repetitions each benchmark runs five times, the runs in random order,
// and the ratios are taken from the medians.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <algorithm>
#include <chrono>
#include <cjson/cJSON.h>
#include <cstdio>
#include <cstdlib>
#include <curl/curl.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "support/EmulatorProcess.h"

namespace {

using velmora::test::EmulatorProcess;

EmulatorProcess* g_emulator = nullptr;
std::string g_switch;         // a switch of the demo site
std::string g_bigSwitch;      // 1,000 ports, paged work state
int g_bigPageSize = 0;
int g_bigPages = 0;

// Share of the device's recent requests that were login challenges (401), a sign of a
// connection that logs in again for each request.
double challengeShare(const std::string& id)
{
    const std::vector<EmulatorProcess::Request> log = g_emulator->requestLog(id);
    std::size_t challenges = 0;
    for (const EmulatorProcess::Request& request : log) {
        challenges += request.status == 401 ? 1 : 0;
    }
    g_emulator->clearRequestLog();
    return log.empty() ? 0.0 : static_cast<double>(challenges) / static_cast<double>(log.size());
}

size_t collect(char* data, size_t size, size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, size * count);
    return size * count;
}

// One kept-alive libcurl handle to one device of the emulator, with its digest login.
class BareDevice {
public:
    explicit BareDevice(const std::string& id)
        : m_handle(curl_easy_init())
    {
        const EmulatorProcess::Device device = *g_emulator->device(id);
        m_base = g_emulator->baseUrl();
        m_headers = curl_slist_append(m_headers, ("Host: " + device.hostName).c_str());
        m_headers = curl_slist_append(m_headers, "Expect:");
        curl_easy_setopt(m_handle, CURLOPT_HTTPHEADER, m_headers);
        curl_easy_setopt(m_handle, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(m_handle, CURLOPT_USERNAME, device.user.c_str());
        curl_easy_setopt(m_handle, CURLOPT_PASSWORD, device.password.c_str());
        curl_easy_setopt(m_handle, CURLOPT_NOSIGNAL, 1L);
        // The query's own time-out; without one libcurl waits longer between its polls.
        curl_easy_setopt(m_handle, CURLOPT_TIMEOUT_MS, 15000L);
        curl_easy_setopt(m_handle, CURLOPT_WRITEFUNCTION, &collect);
        curl_easy_setopt(m_handle, CURLOPT_WRITEDATA, &m_body);
    }
    ~BareDevice()
    {
        curl_slist_free_all(m_headers);
        curl_easy_cleanup(m_handle);
    }
    BareDevice(const BareDevice&) = delete;
    BareDevice& operator=(const BareDevice&) = delete;

    bool get(const std::string& target)
    {
        curl_easy_setopt(m_handle, CURLOPT_URL, (m_base + target).c_str());
        curl_easy_setopt(m_handle, CURLOPT_HTTPGET, 1L);
        return perform();
    }
    bool post(const std::string& target, const std::string& body)
    {
        curl_easy_setopt(m_handle, CURLOPT_URL, (m_base + target).c_str());
        curl_easy_setopt(m_handle, CURLOPT_POSTFIELDS, body.c_str());
        curl_easy_setopt(m_handle, CURLOPT_POSTFIELDSIZE, static_cast<long>(body.size()));
        return perform();
    }
    const std::string& body() const { return m_body; }

private:
    bool perform()
    {
        m_body.clear();
        long status = 0;
        return curl_easy_perform(m_handle) == CURLE_OK &&
               curl_easy_getinfo(m_handle, CURLINFO_RESPONSE_CODE, &status) == CURLE_OK && status == 200;
    }

    CURL* m_handle;
    curl_slist* m_headers = nullptr;
    std::string m_base;
    std::string m_body;
};

void SingleQueryParamInterface(benchmark::State& state)
{
    g_emulator->clearRequestLog();
    for (auto _ : state) {
        Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
        if (!velmora::ParamInterface::getSwitchDeviceStatus(status, g_switch)) {
            state.SkipWithError("query failed");
            break;
        }
        benchmark::DoNotOptimize(status.deviceUpTime);
    }
    state.counters["challenges"] = challengeShare(g_switch);
}

void SingleQueryBareCurl(benchmark::State& state)
{
    g_emulator->clearRequestLog();
    BareDevice device(g_switch);
    device.get("/NXRPC/System/status"); // the login of the kept-alive connection
    for (auto _ : state) {
        if (!device.get("/NXRPC/System/status")) {
            state.SkipWithError("request failed");
            break;
        }
        benchmark::DoNotOptimize(device.body().data());
    }
    state.counters["challenges"] = challengeShare(g_switch);
}

void WorkStateWalkInterface(benchmark::State& state)
{
    g_emulator->clearRequestLog();
    protocol::SwitchCapabilities capability;
    capability.supportWorkStatusBatch = true;
    velmora::WorkStatusInferface* access = velmora::WorkStatusInferface::getInstance();
    access->initMode(g_bigSwitch, capability);
    for (auto _ : state) {
        Quillon::SwitchesWorkState workState(std::string{});
        if (!access->queryWorkState(workState) || workState.portList.size() != 1000) {
            state.SkipWithError("walk failed");
            break;
        }
        benchmark::DoNotOptimize(workState.portList.data());
    }
    state.counters["pages"] = g_bigPages;
    state.counters["challenges"] = challengeShare(g_bigSwitch);
}

// The request bodies of one walk's pages under one search ID, as the walk writes them.
std::vector<std::string> walkBodies(const std::string& searchId)
{
    std::vector<std::string> pages;
    for (int page = 0; page < g_bigPages; ++page) {
        Quillon::SwitchesWorkStateSearchCond cond;
        cond.searchID = searchId;
        cond.maxResults = g_bigPageSize;
        cond.searchResultPosition = page * g_bigPageSize;
        pages.push_back(cond.createXml());
    }
    return pages;
}

void WorkStateWalkBareCurl(benchmark::State& state)
{
    g_emulator->clearRequestLog();
    BareDevice device(g_bigSwitch);
    device.get("/NXRPC/Transfers/Switches/workState/search/capabilities");
    // The same bodies as the walk's, one search per walk like the walk; built beforehand.
    std::vector<std::vector<std::string>> bodies;
    int walk = 0;
    for (auto _ : state) {
        if (walk % 64 == 0) {
            state.PauseTiming();
            bodies.clear();
            for (int w = walk; w < walk + 64; ++w) {
                bodies.push_back(walkBodies("BENCH-SEARCH-" + std::to_string(w)));
            }
            state.ResumeTiming();
        }
        for (const std::string& body : bodies[static_cast<std::size_t>(walk % 64)]) {
            if (!device.post("/NXRPC/Transfers/Switches/workState/search", body)) {
                state.SkipWithError("request failed");
                return;
            }
            benchmark::DoNotOptimize(device.body().data());
        }
        ++walk;
    }
    state.counters["pages"] = g_bigPages;
    state.counters["challenges"] = challengeShare(g_bigSwitch);
}

// The same two walks taken in turn, one through the interface and one bare, so that both see
// the same machine: on a shared machine the two separate benchmarks above can meet different
// loads seconds apart. Reports the median time of each walk and their ratio.
double g_alternatingRatio = 0.0;

double medianOf(std::vector<double> values)
{
    if (values.empty()) {
        return 0.0;
    }
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2.0;
}

void WorkStateWalkAlternating(benchmark::State& state)
{
    using Clock = std::chrono::steady_clock;
    g_emulator->clearRequestLog();
    protocol::SwitchCapabilities capability;
    capability.supportWorkStatusBatch = true;
    velmora::WorkStatusInferface* access = velmora::WorkStatusInferface::getInstance();
    access->initMode(g_bigSwitch, capability);
    BareDevice device(g_bigSwitch);
    device.get("/NXRPC/Transfers/Switches/workState/search/capabilities");
    std::vector<double> layerTimes;
    std::vector<double> bareTimes;
    int walk = 0;
    for (auto _ : state) {
        const std::vector<std::string> bodies = walkBodies("BENCH-TURN-" + std::to_string(walk));
        ++walk;

        const Clock::time_point start = Clock::now();
        Quillon::SwitchesWorkState workState(std::string{});
        if (!access->queryWorkState(workState) || workState.portList.size() != 1000) {
            state.SkipWithError("walk failed");
            return;
        }
        benchmark::DoNotOptimize(workState.portList.data());
        const Clock::time_point layerEnd = Clock::now();
        for (const std::string& body : bodies) {
            if (!device.post("/NXRPC/Transfers/Switches/workState/search", body)) {
                state.SkipWithError("request failed");
                return;
            }
            benchmark::DoNotOptimize(device.body().data());
        }
        const Clock::time_point bareEnd = Clock::now();
        const double layer = std::chrono::duration<double>(layerEnd - start).count();
        const double bare = std::chrono::duration<double>(bareEnd - layerEnd).count();
        layerTimes.push_back(layer);
        bareTimes.push_back(bare);
        state.SetIterationTime(layer + bare);
    }
    const double layer = medianOf(layerTimes);
    const double bare = medianOf(bareTimes);
    state.counters["layer_ms"] = layer * 1e3;
    state.counters["bare_ms"] = bare * 1e3;
    state.counters["ratio"] = bare > 0.0 ? layer / bare : 0.0;
    g_alternatingRatio = bare > 0.0 ? layer / bare : 0.0;
}

BENCHMARK(SingleQueryParamInterface)->Unit(benchmark::kMicrosecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(SingleQueryBareCurl)->Unit(benchmark::kMicrosecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(WorkStateWalkInterface)->Unit(benchmark::kMillisecond)->MinTime(3.0)->UseRealTime();
BENCHMARK(WorkStateWalkBareCurl)->Unit(benchmark::kMillisecond)->MinTime(3.0)->UseRealTime();
BENCHMARK(WorkStateWalkAlternating)->Unit(benchmark::kMillisecond)->MinTime(6.0)->UseManualTime();

// Keeps the real time of each benchmark for the ratios: the median of the repetitions when
// run with --benchmark_repetitions, else the one run.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                continue;
            }
            const std::string& name = run.run_name.function_name;
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                m_times[name] = run.GetAdjustedRealTime();
                m_fromMedian[name] = true;
            } else if (run.run_type == Run::RT_Iteration && !m_fromMedian[name]) {
                m_times[name] = run.GetAdjustedRealTime();
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    void printRatio(const char* what, const char* layer, const char* bare) const
    {
        const auto l = m_times.find(layer);
        const auto b = m_times.find(bare);
        if (l == m_times.end() || b == m_times.end() || b->second <= 0.0) {
            std::printf("%-44s n/a\n", what);
            return;
        }
        const double ratio = l->second / b->second;
        std::printf("%-44s %.3f  (goal <= 1.3: %s)\n", what, ratio, ratio <= 1.3 ? "met" : "NOT met");
    }

private:
    std::map<std::string, double> m_times;
    std::map<std::string, bool> m_fromMedian;
};

bool pickDevices()
{
    for (const EmulatorProcess::Device& device : g_emulator->devices()) {
        if (device.category != 120) {
            continue;
        }
        if (g_switch.empty()) {
            g_switch = device.id;
        }
        Quillon::SwitchesBasicInfo info;
        Quillon::SwitchesWorkStateSearchCap cap(std::string{});
        if (g_bigSwitch.empty() && device.capabilitiesJson.find("\"supportWorkStatusBatch\":true") != std::string::npos &&
            velmora::ParamInterface::getSwitchesBasicInfo(info, device.id) && info.portList.size() == 1000 &&
            velmora::ParamInterface::getSwitchesWorkStateSearchAbility(cap, device.id) && cap.maxResults > 0) {
            g_bigSwitch = device.id;
            g_bigPageSize = cap.maxResults;
            g_bigPages = (1000 + cap.maxResults - 1) / cap.maxResults;
        }
    }
    return !g_switch.empty() && !g_bigSwitch.empty();
}

} // namespace

int main(int argc, char** argv)
{
    // Answers are logged whole at info level; the comparison is of the query path, not of
    // the console.
    setenv("VELMORA_LOG_LEVEL", "warn", 0);
    QCoreApplication app(argc, argv);
    // Unless told otherwise, five repetitions of each benchmark in random order, so that a
    // change of the machine's load falls on the query layer and on bare libcurl alike; the
    // ratios then come from the medians.
    std::vector<char*> args(argv, argv + argc);
    bool repetitionsGiven = false;
    for (int i = 1; i < argc; ++i) {
        repetitionsGiven = repetitionsGiven || std::string(argv[i]).rfind("--benchmark_repetitions", 0) == 0;
    }
    static char repetitions[] = "--benchmark_repetitions=5";
    static char interleaving[] = "--benchmark_enable_random_interleaving=true";
    static char aggregatesOnly[] = "--benchmark_report_aggregates_only=true";
    if (!repetitionsGiven) {
        args.push_back(repetitions);
        args.push_back(interleaving);
        args.push_back(aggregatesOnly);
    }
    int benchmarkArgc = static_cast<int>(args.size());
    args.push_back(nullptr);
    benchmark::Initialize(&benchmarkArgc, args.data());

    EmulatorProcess emulator("large");
    if (!emulator.isRunning()) {
        std::fprintf(stderr, "emulator did not start: %s\n", emulator.errorString().c_str());
        return 1;
    }
    g_emulator = &emulator;
    if (!pickDevices()) {
        std::fprintf(stderr, "the fleet has no switch of 1,000 ports with the paged work state\n");
        return 1;
    }

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::printf("\nRatios of the query layer over bare libcurl (kept-alive, same requests):\n");
    reporter.printRatio("single query (GET /NXRPC/System/status)", "SingleQueryParamInterface", "SingleQueryBareCurl");
    reporter.printRatio("work-state walk, 1,000 ports", "WorkStateWalkInterface", "WorkStateWalkBareCurl");
    if (g_alternatingRatio > 0.0) {
        std::printf("%-44s %.3f  (goal <= 1.3: %s)\n", "the same, the two walks taken in turn", g_alternatingRatio,
                    g_alternatingRatio <= 1.3 ? "met" : "NOT met");
    }
    benchmark::Shutdown();
    return 0;
}
