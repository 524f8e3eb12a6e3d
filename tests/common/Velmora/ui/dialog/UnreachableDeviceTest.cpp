// The status dialog on a device that cannot be reached, played by the emulator over
// loopback: a device that takes the connection and never answers, a port that refuses, and a
// port that accepts no connection. Opening the dialog, clicking every row, the page's tick
// and the managed AP list's read on the pool cost one wait, not one per query; the log says
// once that the device is held as unreachable; after the hold the next query reaches the
// device again and the page fills. The transport's waits are shortened for the test.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QMessageBox>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTableView>
#include <QTest>
#include <QThreadPool>
#include <QTimer>
#include <cjson/cJSON.h>

#include "DeviceStatusFactory.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/TreeView.h"
#include "senvia/TransportTimings.h"
#include "support/LogCapture.h"
#include "support/TestFleet.h"

using velmora::CSwitchDeviceStatusWidget;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;

namespace {

constexpr long kConnectMs = 300;
constexpr long kAnswerMs = 1000;
constexpr long kHoldMs = 1500;
// What a loopback round trip, the services and drawing the pages may add to a wait.
constexpr long kSlackMs = 700;
constexpr int kApListKey = 12;

const char kUnreachableText[] = "is considered unreachable until";
const char kStatusRequest[] = "GET /NXRPC/System/status";

const char* unreachableFleetJson()
{
    return R"({"name": "unreachable-tests", "devices": [
  {"model": "QN-1062", "name": "silent-switch"},
  {"model": "QN-1062", "name": "refusing-switch"},
  {"model": "QN-1062", "name": "blackhole-switch"},
  {"model": "QN-1164", "name": "silent-ac", "apCount": 3, "groups": 0},
  {"model": "QN-1164", "name": "refusing-ac", "apCount": 3, "groups": 0},
  {"model": "QN-1164", "name": "blackhole-ac", "apCount": 3, "groups": 0}
]})";
}

class UnreachableFleet : public velmora::test::SharedTestFleet<UnreachableFleet> {
public:
    UnreachableFleet()
        : SharedTestFleet({"unreachable-fleet.json", unreachableFleetJson(), false,
                           {"--own-port", "refusing-switch", "--own-port", "blackhole-switch", "--own-port",
                            "refusing-ac", "--own-port", "blackhole-ac"}})
    {
    }
};

::testing::Environment* const kUnreachableFleetEnvironment =
    ::testing::AddGlobalTestEnvironment(new velmora::test::TestFleetEnvironment<UnreachableFleet>);

// One way of being unreachable, the devices that play it and what a query fails with.
struct Unreachable {
    const char* kind;
    const char* switchName;
    const char* acName;
    const char* errorNumbers;  // as the query layer logs them
    long firstWaitMs;          // what the first failing query costs
};

std::ostream& operator<<(std::ostream& out, const Unreachable& u)
{
    return out << u.kind;
}

EmulatorProcess::Fault faultOf(const std::string& kind)
{
    if (kind == "silent")
        return EmulatorProcess::Fault::silent();
    if (kind == "refuse")
        return EmulatorProcess::Fault::refuse();
    return EmulatorProcess::Fault::blackhole();
}

protocol::SwitchCapabilities capabilitiesOf(const std::string& id)
{
    const auto device = UnreachableFleet::instance().emulator().device(id);
    cJSON* json = device ? cJSON_Parse(device->capabilitiesJson.c_str()) : nullptr;
    protocol::SwitchCapabilities capability(json);
    cJSON_Delete(json);
    return capability;
}

TarvexGUIToolkit::CTreeView* treeOf(CSwitchDeviceStatusWidget& dialog)
{
    return dialog.findChild<TarvexGUIToolkit::CTreeView*>("m_pItemTreeView");
}

QStackedWidget* stackOf(CSwitchDeviceStatusWidget& dialog)
{
    return dialog.findChild<QStackedWidget*>("m_pStackedWidget");
}

void clickRow(CSwitchDeviceStatusWidget& dialog, int row)
{
    TarvexGUIToolkit::CTreeView* tree = treeOf(dialog);
    const QModelIndex index = tree->model()->index(row, 0);
    tree->setCurrentIndex(index);
    emit tree->SignalClicked(index);
    QCoreApplication::processEvents();
}

int rowOfKey(CSwitchDeviceStatusWidget& dialog, int key)
{
    QAbstractItemModel* model = treeOf(dialog)->model();
    for (int row = 0; model && row < model->rowCount(); ++row) {
        if (model->index(row, 0).data(Qt::UserRole).toInt() == key)
            return row;
    }
    return -1;
}

QTimer* timerOf(QWidget* page)
{
    const QList<QTimer*> timers = page ? page->findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly)
                                       : QList<QTimer*>();
    return timers.size() == 1 ? timers.front() : nullptr;
}

bool waitUntil(const std::function<bool()>& done, int timeoutMs)
{
    QElapsedTimer clock;
    clock.start();
    while (!done()) {
        if (clock.elapsed() > timeoutMs)
            return false;
        QTest::qWait(20);
    }
    return true;
}

bool messageBoxShown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMessageBox*>(widget) && widget->isVisible())
            return true;
    }
    return false;
}

class UnreachableDeviceTest : public ::testing::TestWithParam<Unreachable> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(UnreachableFleet::instance().isRunning()) << UnreachableFleet::instance().error();
        m_oldTimings = senvia::transportTimings();
        senvia::TransportTimings timings;
        timings.connectTimeOutMs = kConnectMs;
        timings.answerTimeOutCapMs = kAnswerMs;
        timings.unreachableHoldMs = kHoldMs;
        senvia::setTransportTimings(timings);
        emulator().clearFaults();
        emulator().clearRequestLog();
    }
    void TearDown() override
    {
        QThreadPool::globalInstance()->waitForDone();
        if (UnreachableFleet::instance().isRunning())
            emulator().clearFaults();
        senvia::setTransportTimings(m_oldTimings);
    }

    static EmulatorProcess& emulator() { return UnreachableFleet::instance().emulator(); }
    static std::string id(const std::string& name) { return UnreachableFleet::instance().id(name); }

    void breakDevice(const std::string& name)
    {
        ASSERT_TRUE(emulator().setFault(id(name), "*", faultOf(GetParam().kind)));
    }

    std::unique_ptr<CSwitchDeviceStatusWidget> open(const std::string& name)
    {
        return std::make_unique<CSwitchDeviceStatusWidget>(id(name), capabilitiesOf(id(name)), nullptr);
    }

    // Requests of the device that the emulator answered (a held silent one is not answered).
    static long answered(const std::string& name)
    {
        long count = 0;
        for (const EmulatorProcess::Request& request : emulator().requestLog(id(name)))
            count += request.status != 0 ? 1 : 0;
        return count;
    }
    static long received(const std::string& name) { return static_cast<long>(emulator().requestLog(id(name)).size()); }

    static long countContaining(const std::vector<velmora::test::LogLine>& lines, const std::string& text)
    {
        return std::count_if(lines.begin(), lines.end(),
                             [&](const velmora::test::LogLine& l) { return l.message.find(text) != std::string::npos; });
    }

    senvia::TransportTimings m_oldTimings;
};

} // namespace

TEST_P(UnreachableDeviceTest, OpeningAndClickingEveryRowCostsOneWait)
{
    const Unreachable& u = GetParam();
    breakDevice(u.switchName);
    LogCapture log;

    QElapsedTimer clock;
    clock.start();
    auto dialog = open(u.switchName);
    const int rows = treeOf(*dialog)->model()->rowCount();
    ASSERT_GT(rows, 1);
    for (int row = 0; row < rows; ++row)
        clickRow(*dialog, row);
    const qint64 elapsed = clock.elapsed();

    EXPECT_LE(elapsed, u.firstWaitMs + kSlackMs) << rows << " rows";
    EXPECT_FALSE(messageBoxShown());
    // One line says why the device is silent; every failed query names the same numbers.
    EXPECT_EQ(countContaining(log.lines("WARN"), kUnreachableText), 1);
    const std::vector<velmora::test::LogLine> errors = log.lines("ERROR");
    const long numbered = countContaining(errors, "Error code is ");
    EXPECT_GE(numbered, 2);
    EXPECT_EQ(countContaining(errors, std::string("Error code is ") + u.errorNumbers + "."), numbered);
    // Nothing but at most the first query got to the device.
    EXPECT_LE(received(u.switchName), 1);
    EXPECT_EQ(answered(u.switchName), 0);
}

TEST_P(UnreachableDeviceTest, TicksWhileHeldFailAtOnceWithoutReachingTheDevice)
{
    const Unreachable& u = GetParam();
    breakDevice(u.switchName);
    auto dialog = open(u.switchName);
    QTimer* timer = timerOf(stackOf(*dialog)->currentWidget());
    ASSERT_NE(timer, nullptr);
    ASSERT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
    const long before = received(u.switchName);

    LogCapture log;
    timer->setInterval(20);
    QSignalSpy ticks(timer, &QTimer::timeout);
    QTest::qWait(600);
    timer->stop();
    // A tick that waited for the device would take the whole answer or connect time-out.
    EXPECT_GE(ticks.count(), 5);
    EXPECT_EQ(received(u.switchName), before);
    EXPECT_GE(countContaining(log.lines("ERROR"), std::string("Error code is ") + u.errorNumbers + "."), 5);
    EXPECT_EQ(countContaining(log.lines("WARN"), kUnreachableText), 0);
    EXPECT_FALSE(messageBoxShown());
}

TEST_P(UnreachableDeviceTest, TheApListReadOnThePoolFailsAtOnceWhileHeld)
{
    const Unreachable& u = GetParam();
    breakDevice(u.acName);
    LogCapture log;
    auto dialog = open(u.acName);
    const int row = rowOfKey(*dialog, kApListKey);
    if (row < 0 || !velmora::CDeviceStatusFactory::hasPageClass(kApListKey))
        GTEST_SKIP() << "the managed AP list page is not built";

    QElapsedTimer clock;
    clock.start();
    clickRow(*dialog, row);
    const qint64 clickMs = clock.elapsed();
    ASSERT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 10000));
    const qint64 readMs = clock.elapsed();
    QCoreApplication::processEvents();

    EXPECT_LT(clickMs, 300);  // the read runs on the pool
    EXPECT_LT(readMs, 500);   // and fails at once: the device is held since the opening
    EXPECT_EQ(countContaining(log.lines("ERROR"), "Failed to Get Ap Info List:[" + id(u.acName) + "]"), 1);
    EXPECT_EQ(countContaining(log.lines("WARN"), kUnreachableText), 1);
    auto* view = stackOf(*dialog)->currentWidget()->findChild<QTableView*>("m_pPortStatisticsTreeView");
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->model()->rowCount(), 0);
    EXPECT_EQ(answered(u.acName), 0);
}

TEST_P(UnreachableDeviceTest, QueriesFromTheGuiAndThePoolAtOnceOpenOneHold)
{
    const Unreachable& u = GetParam();
    auto dialog = open(u.acName);
    const int row = rowOfKey(*dialog, kApListKey);
    if (row < 0 || !velmora::CDeviceStatusFactory::hasPageClass(kApListKey))
        GTEST_SKIP() << "the managed AP list page is not built";
    clickRow(*dialog, 0);
    QThreadPool::globalInstance()->waitForDone();

    breakDevice(u.acName);
    LogCapture log;
    // The pool's read and the GUI thread's status query go out side by side.
    clickRow(*dialog, row);
    clickRow(*dialog, 0);
    QThreadPool::globalInstance()->waitForDone();
    QCoreApplication::processEvents();
    EXPECT_EQ(countContaining(log.lines("WARN"), kUnreachableText), 1);
    EXPECT_FALSE(messageBoxShown());
}

TEST_P(UnreachableDeviceTest, AfterTheHoldTheNextQueryReachesTheDeviceAndThePageFills)
{
    const Unreachable& u = GetParam();
    breakDevice(u.switchName);
    auto dialog = open(u.switchName);
    QWidget* page = stackOf(*dialog)->currentWidget();
    auto* cpu = page->findChild<QLabel*>("cpuPercentLabel");
    ASSERT_NE(cpu, nullptr);
    const QString unfilled = cpu->text();
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);

    // The device answers again, but within the hold nothing goes to it.
    ASSERT_TRUE(emulator().clearFaults());
    ASSERT_TRUE(waitUntil([&] { return received(u.switchName) == (std::string(u.kind) == "silent" ? 1 : 0); }, 3000));
    emulator().clearRequestLog();
    timer->setInterval(20);
    {
        QSignalSpy ticks(timer, &QTimer::timeout);
        ASSERT_TRUE(ticks.wait(2000));
    }
    timer->stop();
    EXPECT_EQ(received(u.switchName), 0);
    EXPECT_EQ(cpu->text(), unfilled);

    // After it, the next tick's query is the one that goes out, and the page fills.
    QTest::qWait(kHoldMs);
    LogCapture log;
    timer->start(20);
    QSignalSpy ticks(timer, &QTimer::timeout);
    ASSERT_TRUE(ticks.wait(3000));
    timer->stop();
    const std::vector<EmulatorProcess::Request> requests = emulator().requestLog(id(u.switchName));
    ASSERT_FALSE(requests.empty());
    EXPECT_EQ(requests.front().requestLine, kStatusRequest);
    EXPECT_EQ(answered(u.switchName), static_cast<long>(requests.size()));
    EXPECT_NE(cpu->text(), unfilled);
    EXPECT_TRUE(cpu->text().endsWith("%")) << cpu->text().toStdString();
    EXPECT_EQ(countContaining(log.lines("ERROR"), "Error code is "), 0);

    // The managed AP list of a controller that came back fills on its next read as well.
    const std::string ac = u.acName;
    breakDevice(ac);
    auto acDialog = open(ac);
    ASSERT_TRUE(emulator().clearFaults());
    QTest::qWait(kHoldMs + 100);
    const int row = rowOfKey(*acDialog, kApListKey);
    if (row < 0 || !velmora::CDeviceStatusFactory::hasPageClass(kApListKey))
        return;
    clickRow(*acDialog, row);
    auto* view = stackOf(*acDialog)->currentWidget()->findChild<QTableView*>("m_pPortStatisticsTreeView");
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(waitUntil([&] { return view->model()->rowCount() == 3; }, 5000));
}

INSTANTIATE_TEST_SUITE_P(
    Faults, UnreachableDeviceTest,
    ::testing::Values(Unreachable{"silent", "silent-switch", "silent-ac", "1-28", kAnswerMs},
                      Unreachable{"refuse", "refusing-switch", "refusing-ac", "1-7", 0},
                      Unreachable{"blackhole", "blackhole-switch", "blackhole-ac", "1-28", kConnectMs}),
    [](const ::testing::TestParamInfo<Unreachable>& info) { return std::string(info.param.kind); });
