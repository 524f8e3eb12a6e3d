// How long the window freezes when the dialog is opened on a device that cannot be reached:
// the dialog's constructor, then a click on every row, each a step that blocks the GUI
// thread. Prints the longest step (the longest freeze) and the sum of the steps (the total
// frozen time) for a device that never answers, a port that refuses, and a connect that
// never completes, each beside the same flow on the healthy device, with the goals: the total
// at most one answer time-out + 10 % for the silent device, at most the connect time-out
// + 10 % for the other two.
//
//   velmora-bench-unreachable               the transport's own timings
//   velmora-bench-unreachable --before      the transport as it was before the connect
//                                           time-out and the hold (both off)
//   --answer-cap MS                         no query waits longer than MS (for a quick run;
//                                           the figures then scale with the cap)
//
// VELMORA_BENCH_DEVICE picks another switch model (default QN-1062).
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTreeView>
#include <QAbstractItemModel>
#include <cjson/cJSON.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "senvia/TransportTimings.h"
#include "support/EmulatorProcess.h"

namespace {

using velmora::test::EmulatorProcess;

constexpr long kPlainAnswerTimeOutMs = 15000; // recvTimeOut of the plain queries

struct Flow {
    std::vector<double> stepsMs; // the constructor, then one per row
    double longest() const { return stepsMs.empty() ? 0.0 : *std::max_element(stepsMs.begin(), stepsMs.end()); }
    double total() const
    {
        double sum = 0.0;
        for (double ms : stepsMs)
            sum += ms;
        return sum;
    }
};

protocol::SwitchCapabilities capabilitiesOf(const EmulatorProcess::Device& device)
{
    cJSON* json = cJSON_Parse(device.capabilitiesJson.c_str());
    protocol::SwitchCapabilities capability(json);
    cJSON_Delete(json);
    return capability;
}

Flow runFlow(const std::string& deviceId, const protocol::SwitchCapabilities& capability)
{
    Flow flow;
    QElapsedTimer clock;
    clock.start();
    velmora::CSwitchDeviceStatusWidget dialog(deviceId, capability, nullptr);
    QCoreApplication::processEvents();
    flow.stepsMs.push_back(clock.nsecsElapsed() / 1e6);
    auto* tree = dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
    const int rows = tree && tree->model() ? tree->model()->rowCount() : 0;
    for (int row = 0; row < rows; ++row) {
        clock.restart();
        const QModelIndex index = tree->model()->index(row, 0);
        tree->setCurrentIndex(index);
        emit tree->SignalClicked(index);
        QCoreApplication::processEvents();
        flow.stepsMs.push_back(clock.nsecsElapsed() / 1e6);
    }
    return flow;
}

void print(const char* name, const Flow& flow, double goalMs)
{
    std::printf("%-28s steps %2zu  longest freeze %9.1f ms  total frozen %9.1f ms", name, flow.stepsMs.size(),
                flow.longest(), flow.total());
    if (goalMs > 0.0)
        std::printf("  goal <= %7.0f ms: %s", goalMs, flow.total() <= goalMs ? "met" : "NOT met");
    std::printf("\n    steps:");
    for (double ms : flow.stepsMs)
        std::printf(" %.0f", ms);
    std::printf("\n");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    // Failed queries and the unreachable line are logged; the answers of the healthy flow not.
    if (!std::getenv("VELMORA_LOG_LEVEL"))
        setenv("VELMORA_LOG_LEVEL", "warn", 1);
    QApplication app(argc, argv);

    senvia::TransportTimings timings = senvia::transportTimings();
    bool before = false;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--before") == 0) {
            before = true;
            timings.connectTimeOutMs = 0;  // the answer time-out bounded the connect too
            timings.unreachableHoldMs = 0; // every query went to the device
        } else if (std::strcmp(argv[i], "--answer-cap") == 0 && i + 1 < argc) {
            timings.answerTimeOutCapMs = std::atol(argv[++i]);
        } else {
            std::fprintf(stderr, "usage: %s [--before] [--answer-cap MS]\n", argv[0]);
            return 2;
        }
    }
    senvia::setTransportTimings(timings);

    const char* modelVariable = std::getenv("VELMORA_BENCH_DEVICE");
    const std::string model = modelVariable ? modelVariable : "QN-1062";
    QTemporaryDir dir;
    const std::string fleetPath = dir.filePath("bench-unreachable.json").toStdString();
    std::ofstream(fleetPath) << R"({"name": "bench-unreachable", "devices": [{"model": ")" << model
                             << R"(", "name": "switch"}]})";
    EmulatorProcess emulator(fleetPath, 1, {"--own-port", "switch"});
    if (!emulator.isRunning() || emulator.devices().empty()) {
        std::fprintf(stderr, "the emulator did not start: %s\n", emulator.errorString().c_str());
        return 1;
    }
    const EmulatorProcess::Device device = emulator.devices().front();
    const protocol::SwitchCapabilities capability = capabilitiesOf(device);

    const long answerMs = timings.answerTimeOutCapMs > 0 ? std::min(timings.answerTimeOutCapMs, kPlainAnswerTimeOutMs)
                                                         : kPlainAnswerTimeOutMs;
    const long connectMs = timings.connectTimeOutMs > 0 ? std::min(timings.connectTimeOutMs, answerMs) : answerMs;
    std::printf("%s %s on its own port; %s; answer time-out %ld ms, connect time-out %ld ms, hold %ld ms\n",
                device.model.c_str(), device.name.c_str(), before ? "transport as before (no connect time-out, no hold)"
                                                                  : "transport with connect time-out and hold",
                answerMs, connectMs, timings.unreachableHoldMs);

    runFlow(device.id, capability); // warm: connections, images, fonts
    const Flow healthy = runFlow(device.id, capability);
    print("healthy", healthy, 0.0);

    struct Case {
        const char* name;
        EmulatorProcess::Fault fault;
        double goalMs;
    };
    const Case cases[] = {
        {"(a) never answers", EmulatorProcess::Fault::silent(), answerMs * 1.1},
        {"(b) refused port", EmulatorProcess::Fault::refuse(), connectMs * 1.1},
        {"(c) connect never completes", EmulatorProcess::Fault::blackhole(), connectMs * 1.1},
    };
    for (const Case& c : cases) {
        senvia::forgetUnreachableDevices();
        emulator.setFault(device.id, "*", c.fault);
        const Flow flow = runFlow(device.id, capability);
        emulator.clearFaults();
        print(c.name, flow, c.goalMs);
        std::printf("    vs healthy: longest %+.1f ms, total %+.1f ms\n", flow.longest() - healthy.longest(),
                    flow.total() - healthy.total());
    }
    return 0;
}
