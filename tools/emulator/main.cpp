// velmora-emulator: a whole fleet of network devices on one loopback port, for the viewer,
// the integration tests and the benchmarks. See docs/emulator.md.
#include "EmulatorServer.h"
#include "Faults.h"
#include "DevicePorts.h"
#include "Fleet.h"
#include "Hash.h"
#include "Network.h"

#include <cjson/cJSON.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <pthread.h>
#include <sstream>
#include <string>
#include <vector>

using namespace emulator;

namespace {

const char* const kUsage =
    "Usage: velmora-emulator [options]\n"
    "\n"
    "Plays a fleet of network devices (switches, bridges, fiber converters, wireless\n"
    "controllers, APs, routers) on one HTTP port of 127.0.0.1, writes the client's device\n"
    "registry and serves the topology and alarm services on the same port.\n"
    "\n"
    "Options:\n"
    "  --help                 this text\n"
    "  --fleet NAME|FILE      \"demo\" (default: one device per family), \"large\" (520\n"
    "                         devices, two of 1000 ports) or a JSON fleet file\n"
    "  --seed N               seed of everything that moves (default 1)\n"
    "  --port N               port on 127.0.0.1; 0 picks a free one (default 0)\n"
    "  --registry FILE        where to write the device registry\n"
    "                         (default ./velmora-registry.json)\n"
    "  --fault RULE           a fault, repeatable:\n"
    "                         device=<id|*>,path=<path|prefix*|*>,kind=<kind>[,ms=N]\n"
    "                         [,status=N][,page=N][,count=N][,method=VERB]\n"
    "                         kinds: delay status drop truncate malformed moreForever failPage answer\n"
    "                         silent refuse blackhole (the last two on --own-port devices)\n"
    "  --faults FILE          faults from a JSON file (an array of fault objects)\n"
    "  --own-port ID|NAME     the device listens on a port of its own (repeatable), which\n"
    "                         the faults refuse and blackhole close or leave unanswered\n"
    "  --tick-ms N            wall milliseconds per second of device time (default 1000)\n"
    "  --freeze-tick N        start with the device clock stopped at tick N\n"
    "  --threads N            worker threads at start, more when all are busy (default 32)\n"
    "  --log-file FILE        request log lines go here instead of stderr\n"
    "  --quiet                no request log lines\n"
    "  --list                 print the fleet (id, category, model, host, name) and exit\n"
    "\n"
    "Once it listens it prints \"listening on 127.0.0.1:<port>\" on stdout. Control endpoint\n"
    "(any Host that is not a device): /_emulator/health, /_emulator/faults,\n"
    "/_emulator/requests?device=<id>, /_emulator/clock.\n";

bool readFile(const std::string& path, std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    std::stringstream ss;
    ss << in.rdbuf();
    text = ss.str();
    return true;
}

bool writeFileAtomically(const std::string& path, const std::string& text)
{
    const std::string temporary = path + ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out)
            return false;
        out << text;
        if (!out.flush())
            return false;
    }
    return std::rename(temporary.c_str(), path.c_str()) == 0;
}

bool needValue(int argc, char** argv, int& i, std::string& value)
{
    if (i + 1 >= argc) {
        std::fprintf(stderr, "velmora-emulator: %s needs a value\n", argv[i]);
        return false;
    }
    value = argv[++i];
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    std::string fleetName = "demo";
    std::string registryPath = "velmora-registry.json";
    std::string logPath;
    uint64_t seed = 1;
    int port = 0;
    int tickMs = 1000;
    long long freezeTick = -1;
    int threads = 32;
    bool quiet = false;
    bool list = false;
    std::vector<std::string> faultRules;
    std::vector<std::string> faultFiles;
    std::vector<std::string> ownPortDevices;

    for (int i = 1; i < argc; ++i) {
        const std::string arg = argv[i];
        std::string value;
        if (arg == "--help" || arg == "-h") {
            std::fputs(kUsage, stdout);
            return 0;
        } else if (arg == "--quiet") {
            quiet = true;
        } else if (arg == "--list") {
            list = true;
        } else if (arg == "--fleet" || arg == "--seed" || arg == "--port" || arg == "--registry" || arg == "--fault" ||
                   arg == "--faults" || arg == "--tick-ms" || arg == "--freeze-tick" || arg == "--threads" ||
                   arg == "--log-file" || arg == "--own-port") {
            if (!needValue(argc, argv, i, value))
                return 2;
            if (arg == "--fleet")
                fleetName = value;
            else if (arg == "--seed")
                seed = std::strtoull(value.c_str(), nullptr, 10);
            else if (arg == "--port")
                port = std::atoi(value.c_str());
            else if (arg == "--registry")
                registryPath = value;
            else if (arg == "--fault")
                faultRules.push_back(value);
            else if (arg == "--faults")
                faultFiles.push_back(value);
            else if (arg == "--own-port")
                ownPortDevices.push_back(value);
            else if (arg == "--tick-ms")
                tickMs = std::atoi(value.c_str());
            else if (arg == "--freeze-tick")
                freezeTick = std::atoll(value.c_str());
            else if (arg == "--threads")
                threads = std::atoi(value.c_str());
            else
                logPath = value;
        } else {
            std::fprintf(stderr, "velmora-emulator: unknown option %s (see --help)\n", arg.c_str());
            return 2;
        }
    }
    if (port < 0 || port > 65535 || tickMs <= 0 || threads <= 0) {
        std::fprintf(stderr, "velmora-emulator: --port, --tick-ms or --threads out of range\n");
        return 2;
    }

    Fleet fleet;
    std::string error;
    if (!buildFleet(fleetName, fleet, error)) {
        std::fprintf(stderr, "velmora-emulator: %s\n", error.c_str());
        return 1;
    }
    if (list) {
        for (const DevicePlan& d : fleet.devices)
            std::printf("%s %3d %-12s %-38s %s\n", d.id.c_str(), d.category, d.model.c_str(), d.hostName.c_str(), d.name.c_str());
        return 0;
    }

    // Faults are read now and put in force once the devices' own ports are open.
    std::vector<FaultRule> startRules;
    for (const std::string& text : faultRules) {
        FaultRule rule;
        if (!FaultTable::parseRule(text, rule, error)) {
            std::fprintf(stderr, "velmora-emulator: --fault %s: %s\n", text.c_str(), error.c_str());
            return 2;
        }
        startRules.push_back(rule);
    }
    std::vector<std::string> ownPortIds;
    for (const std::string& wanted : ownPortDevices) {
        const DevicePlan* device = fleet.find(wanted);
        for (const DevicePlan& d : fleet.devices) {
            if (!device && d.name == wanted)
                device = &d;
        }
        if (!device) {
            std::fprintf(stderr, "velmora-emulator: --own-port %s: no such device\n", wanted.c_str());
            return 2;
        }
        ownPortIds.push_back(device->id);
    }

    FILE* log = quiet ? nullptr : stderr;
    if (!logPath.empty() && !quiet) {
        log = std::fopen(logPath.c_str(), "a");
        if (!log) {
            std::fprintf(stderr, "velmora-emulator: cannot open %s\n", logPath.c_str());
            return 1;
        }
    }

    // Signals are taken by sigwait below; every thread started from here on blocks them.
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    Network network(std::move(fleet), seed, tickMs, freezeTick);
    ServerOptions options;
    options.port = port;
    options.threads = threads;
    options.log = log;
    FaultTable faults;
    EmulatorServer server(network, faults, options);
    const int bound = server.start(error);
    if (bound <= 0) {
        std::fprintf(stderr, "velmora-emulator: %s\n", error.c_str());
        return 1;
    }
    DevicePorts ownPorts(bound);
    for (const std::string& id : ownPortIds) {
        if (ownPorts.open(id, error) <= 0) {
            std::fprintf(stderr, "velmora-emulator: %s\n", error.c_str());
            server.stop();
            return 1;
        }
    }
    faults.setPortCheck([&ownPorts](const std::string& device) { return ownPorts.has(device); });
    faults.setOnChange([&ownPorts, &faults] {
        ownPorts.apply([&faults](const std::string& device) { return faults.portMode(device); });
    });
    for (const FaultRule& rule : startRules) {
        if (!faults.acceptable(rule, error)) {
            std::fprintf(stderr, "velmora-emulator: --fault: %s\n", error.c_str());
            server.stop();
            return 2;
        }
        faults.add(rule);
    }
    for (const std::string& file : faultFiles) {
        std::string text;
        std::vector<long long> ids;
        if (!readFile(file, text) || !faults.addJson(text, ids, error)) {
            std::fprintf(stderr, "velmora-emulator: --faults %s: %s\n", file.c_str(), text.empty() ? "cannot read" : error.c_str());
            server.stop();
            return 2;
        }
    }

    const std::string baseUrl = "http://127.0.0.1:" + std::to_string(bound);
    if (!writeFileAtomically(registryPath, registryJson(network.fleet(), baseUrl, bound, ownPorts.ports()))) {
        std::fprintf(stderr, "velmora-emulator: cannot write the registry %s\n", registryPath.c_str());
        server.stop();
        return 1;
    }
    if (log)
        std::fprintf(log, "velmora-emulator: fleet \"%s\" of %zu devices, seed %llu, registry %s\n",
                     network.fleet().name.c_str(), network.fleet().devices.size(), static_cast<unsigned long long>(seed),
                     registryPath.c_str());
    std::printf("listening on 127.0.0.1:%d\n", bound);
    std::fflush(stdout);

    int received = 0;
    sigwait(&signals, &received);
    faults.setOnChange(nullptr);
    ownPorts.stop();
    server.stop();
    if (log && log != stderr)
        std::fclose(log);
    return 0;
}
