// The managed AP list against the emulated controllers: the rows and their radio columns,
// state texts and the online count; the read on the thread pool that leaves the event loop
// running while the controller is slow; the link colour; the click on a device name,
// through the sorting proxy; failures and the timer.
#include <QElapsedTimer>
#include <QThreadPool>
#include <atomic>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <gtest/gtest.h>
#include <map>

#include "ApInfoListModel.h"
#include "ApInfoListWidget.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/TableView.h"
#include "WirelessPagesTestFleet.h"
#include "support/LogCapture.h"

using velmora::CApInfoListModel;
using velmora::CApInfoListWidget;
using velmora::test::EmulatorProcess;
using velmora::test::WirelessPageTest;
using velmora::test::labelText;
using velmora::test::part;
using velmora::test::timerOf;
using velmora::test::waitUntil;

namespace {

const char kApListPath[] = "/NXRPC/Transfers/AP/basicInfo";
const QColor kLinkColour(0x43, 0x90, 0xFA, 0xFF);

// The row the table should hold for a record, worked out independently of the model.
QStringList expectedRow(const Quillon::ApInfo& ap)
{
    static const std::map<std::string, QString> states = {
        {"offline", "Offline"},      {"online", "Online"},       {"waitUpgrade", "WaitingUpgrade"},
        {"receiveFirmwar", "ReceiveTheFirmwarejztLMjAd"},        {"updating", "InTheUpgrade"},
        {"success", "UpgradeSuccessQXfimbFV"},                   {"failed", "UpgradeFailedBQBDY5IP"}};
    QStringList bands, powers, channels, clients;
    for (const Quillon::rfInfo& rf : ap.rfList) {
        QString band = rf.band == 0 ? "2.4GHz" : rf.band == 2 ? "5GHz(2)" : ap.rfList.size() == 3 ? "5GHz(1)" : "5GHz";
        bands << band;
        powers << QString::number(rf.transmitPower) + "dbm";
        channels << QString::number(rf.channel);
        clients << QString::number(rf.onlineCount) + "(" + band + ")";
    }
    const auto state = states.find(ap.state);
    return {QString::fromUtf8(ap.model.c_str()),        QString::fromUtf8(ap.deviceName.c_str()),
            QString::fromUtf8(ap.softwareVersion.c_str()), QString::fromUtf8(ap.serialNumber.c_str()),
            QString::fromUtf8(ap.ipAddress.c_str()),    QString::fromUtf8(ap.macAddress.c_str()),
            bands.join("/"),                            powers.join("/"),
            channels.join("/"),                         clients.join("/ "),
            state == states.end() ? QString("Offline") : state->second};
}

QTableView* viewOf(QWidget& page)
{
    return part<QTableView>(page, "m_pPortStatisticsTreeView");
}

QList<QStringList> shownRows(QWidget& page)
{
    QList<QStringList> rows;
    QAbstractItemModel* model = viewOf(page)->model();
    for (int r = 0; r < model->rowCount(); ++r) {
        QStringList row;
        for (int c = 0; c < model->columnCount(); ++c)
            row << model->index(r, c).data().toString();
        rows << row;
    }
    return rows;
}

// Shows the page and waits until the read that showStatus starts has reached the table.
bool showAndWait(CApInfoListWidget& page, int timeoutMs = 20000)
{
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    velmora::CDeviceStatusOptionBaseTestAccess::showStatus(&page);
    const bool ended = waitUntil(
        [&] { return updates.count() > 0 && QThreadPool::globalInstance()->activeThreadCount() == 0; }, timeoutMs);
    // The hand-over was queued before the read ended.
    QCoreApplication::processEvents();
    return ended;
}

// A left click on the cell of the view's `row` and `column`, as a user makes it.
void clickCell(QTableView* view, int row, int column)
{
    view->scrollTo(view->model()->index(row, column));
    const QRect rect = view->visualRect(view->model()->index(row, column));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, rect.center());
}

// Lets the read that was just started reach the controller, which answers late.
void letTheReadStart()
{
    QElapsedTimer clock;
    clock.start();
    waitUntil([&] { return clock.elapsed() >= 120; });
}

class ApInfoListWidgetTest : public WirelessPageTest {};

} // namespace

TEST_F(ApInfoListWidgetTest, TheFormAndTheTable)
{
    CApInfoListWidget page(nullptr);
    EXPECT_EQ(page.size(), QSize(624, 393));
    EXPECT_EQ(page.windowTitle(), "CActiveDeviceDialog");
    EXPECT_EQ(page.layout()->contentsMargins(), QMargins(0, 6, 0, 0));
    EXPECT_EQ(labelText(page, "m_ApCountLabel"), "");
    EXPECT_EQ(labelText(page, "label"), "");
    QTableView* view = viewOf(page);
    ASSERT_NE(qobject_cast<TarvexGUIToolkit::CTableView*>(view), nullptr);
    auto* proxy = qobject_cast<TarvexGUIToolkit::CMutilColumnFilterProxyModel*>(view->model());
    ASSERT_NE(proxy, nullptr);
    EXPECT_FALSE(proxy->dynamicSortFilter());
    EXPECT_EQ(proxy->sortRole(), Qt::DisplayRole);
    EXPECT_NE(qobject_cast<CApInfoListModel*>(proxy->sourceModel()), nullptr);
    EXPECT_TRUE(view->isSortingEnabled());
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorSection(), 0);
    EXPECT_EQ(view->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    // The timer runs from construction.
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 30000);
}

TEST_F(ApInfoListWidgetTest, ListsEveryManagedApWithStatesAndTheOnlineCount)
{
    for (const char* name : {"ac-search", "ac-plain", "ac-nogroups"}) {
        SCOPED_TRACE(name);
        CApInfoListWidget page(nullptr);
        fleet().open(page, name);
        ASSERT_TRUE(showAndWait(page));
        const std::vector<Quillon::ApInfo> aps = fleet().managedAps(name);
        // The table is sorted by column 0; compare as sets of rows plus the order of column 0.
        QList<QStringList> expected;
        int online = 0;
        for (const Quillon::ApInfo& ap : aps) {
            expected << expectedRow(ap);
            online += ap.state == "online" ? 1 : 0;
        }
        QList<QStringList> shown = shownRows(page);
        ASSERT_EQ(shown.size(), expected.size());
        for (int r = 1; r < shown.size(); ++r)
            EXPECT_LE(shown[r - 1][0], shown[r][0]);
        std::sort(shown.begin(), shown.end());
        std::sort(expected.begin(), expected.end());
        EXPECT_EQ(shown, expected);
        EXPECT_EQ(labelText(page, "m_ApCountLabel"), "NumberOfOnlineAPycQFRVlW/TotalDeviceNum:");
        EXPECT_EQ(labelText(page, "label"), QString("%1/%2").arg(online).arg(aps.size()));
    }
}

TEST_F(ApInfoListWidgetTest, UpgradeStatesAndThreeRadioAps)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-search");
    ASSERT_TRUE(showAndWait(page));
    std::map<QString, QString> stateByName;
    std::map<QString, QString> bandsByName;
    for (const QStringList& row : shownRows(page)) {
        stateByName[row[1]] = row[10];
        bandsByName[row[1]] = row[6];
    }
    // The controller keeps an upgrade state on APs 17, 34, 51, 68, 85 and 102; "rebooting"
    // is no state the client knows.
    const std::map<int, QString> fixed = {{17, "WaitingUpgrade"}, {34, "ReceiveTheFirmwarejztLMjAd"},
                                          {51, "InTheUpgrade"},   {68, "UpgradeSuccessQXfimbFV"},
                                          {85, "UpgradeFailedBQBDY5IP"}, {102, "Offline"}};
    const std::vector<Quillon::ApInfo> aps = fleet().managedAps("ac-search");
    int onlineOrSuccess = 0, online = 0;
    for (const auto& [index, text] : fixed) {
        const QString name = QString::fromUtf8(aps[static_cast<size_t>(index)].deviceName.c_str());
        EXPECT_EQ(stateByName[name], text) << index;
    }
    int threeRadios = 0;
    for (const Quillon::ApInfo& ap : aps) {
        online += ap.state == "online";
        onlineOrSuccess += ap.state == "online" || ap.state == "success";
        if (ap.rfList.size() == 3) {
            ++threeRadios;
            EXPECT_EQ(bandsByName[QString::fromUtf8(ap.deviceName.c_str())], "2.4GHz/5GHz(1)/5GHz(2)");
        } else {
            EXPECT_EQ(bandsByName[QString::fromUtf8(ap.deviceName.c_str())], "2.4GHz/5GHz");
        }
    }
    EXPECT_GT(threeRadios, 0);
    // "success" runs like "online" on the device but is not counted as online.
    EXPECT_GT(onlineOrSuccess, online);
    EXPECT_EQ(labelText(page, "label"), QString("%1/%2").arg(online).arg(aps.size()));
}

TEST_F(ApInfoListWidgetTest, TheReadLeavesTheEventLoopRunningWhileTheControllerIsSlow)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-plain");
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::delay(1500)));
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    int ticks = 0;
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, [&] { ++ticks; });
    ticker.start(20);

    QElapsedTimer clock;
    clock.start();
    showStatus(page);
    const qint64 blocked = clock.elapsed();
    EXPECT_LT(blocked, 500) << "showStatus waited for the controller";
    EXPECT_EQ(labelText(page, "label"), "");

    ASSERT_TRUE(waitUntil([&] { return !labelText(page, "label").isEmpty(); }));
    const qint64 took = clock.elapsed();
    EXPECT_GE(took, 1400);
    // The GUI thread kept turning: about one tick per 20 ms of the wait.
    EXPECT_GT(ticks, static_cast<int>(took / 20 / 3));
    EXPECT_EQ(updates.count(), 1);
    EXPECT_EQ(shownRows(page).size(), static_cast<int>(fleet().managedAps("ac-plain").size()));
}

TEST_F(ApInfoListWidgetTest, RequestsDuringARunningReadAreServedByOneMoreRead)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-plain");
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::delay(300)));
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    showStatus(page);
    letTheReadStart();
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData"));
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData"));
    // The two ticks came while the first read ran: one more read answers both.
    ASSERT_TRUE(waitUntil([&] { return updates.count() == 2; }));
    ASSERT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(updates.count(), 2);
    EXPECT_EQ(shownRows(page).size(), static_cast<int>(fleet().managedAps("ac-plain").size()));
}

TEST_F(ApInfoListWidgetTest, TheLastReadIsShownEvenWhenAnotherReadFollowsAtOnce)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-plain");
    const int total = static_cast<int>(fleet().managedAps("ac-plain").size());
    // A controller slower than the ticks: a read is always running or asked for.
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::delay(250)));
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    int shown = 0;
    QObject::connect(
        &page, &CApInfoListWidget::signalUpdateData, &page,
        [&] {
            // Queued after the page's own slot: every hand-over has reached the table and label.
            const int rows = shownRows(page).size();
            if (rows > 0 && labelText(page, "label").section('/', 1) == QString::number(rows))
                ++shown;
        },
        Qt::QueuedConnection);
    showStatus(page);
    QTimer ticker;
    QObject::connect(&ticker, &QTimer::timeout, &page, [&] {
        QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData");
    });
    ticker.start(60);
    // Reads follow one another while the ticks go on; each hand-over reaches the table.
    const bool updatedWhileTicking = waitUntil([&] { return shown >= 3; }, 5000);
    const int updatesWhileTicking = updates.count();
    ticker.stop();
    EXPECT_TRUE(updatedWhileTicking) << "the table stopped updating while reads followed one another";
    EXPECT_EQ(shownRows(page).size(), total);
    // No backlog: once the ticks stop, at most the one read asked for is still to come.
    ASSERT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 3000));
    QCoreApplication::processEvents();
    EXPECT_LE(updates.count(), updatesWhileTicking + 1);
    EXPECT_EQ(shown, updates.count());
    EXPECT_EQ(labelText(page, "label").section('/', 1), QString::number(total));
}

TEST_F(ApInfoListWidgetTest, AFailedReadShowsAnEmptyTable)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-plain");
    ASSERT_TRUE(showAndWait(page));
    ASSERT_FALSE(shownRows(page).isEmpty());
    ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::httpStatus(500)));
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    showStatus(page);
    ASSERT_TRUE(waitUntil([&] { return updates.count() > 0 && labelText(page, "label") == "0/0"; }));
    EXPECT_TRUE(shownRows(page).isEmpty());
    // The next read recovers.
    emulator().clearFaults();
    ASSERT_TRUE(showAndWait(page));
    EXPECT_FALSE(shownRows(page).isEmpty());
}

TEST_F(ApInfoListWidgetTest, DeviceNamesAreLinksOnControllersWithApGroups)
{
    for (const char* name : {"ac-search", "ac-nogroups"}) {
        SCOPED_TRACE(name);
        CApInfoListWidget page(nullptr);
        fleet().open(page, name);
        ASSERT_TRUE(showAndWait(page));
        const bool groups = fleet().capabilities(name).isSupportAPGroup;
        QAbstractItemModel* model = viewOf(page)->model();
        for (int r = 0; r < model->rowCount(); ++r) {
            const QVariant brush = model->index(r, 1).data(Qt::ForegroundRole);
            if (groups)
                EXPECT_EQ(brush.value<QBrush>().color(), kLinkColour) << r;
            else
                EXPECT_FALSE(brush.isValid()) << r;
            EXPECT_FALSE(model->index(r, 0).data(Qt::ForegroundRole).isValid());
        }
    }
}

TEST_F(ApInfoListWidgetTest, AClickOnADeviceNameAsksForThatAp)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-search");
    page.resize(1200, 700);
    page.show();
    ASSERT_TRUE(showAndWait(page));
    QTableView* view = viewOf(page);
    QSignalSpy asked(&page, &CApInfoListWidget::signalUpdateToApStatus);

    std::map<QString, std::pair<QString, QString>> addressByName;
    for (const Quillon::ApInfo& ap : fleet().managedAps("ac-search"))
        addressByName[QString::fromUtf8(ap.deviceName.c_str())] = {QString::fromStdString(ap.ipAddress),
                                                                    QString::fromStdString(ap.macAddress)};

    // Any other column asks for nothing.
    for (int column : {0, 2, 4, 5, 10}) {
        clickCell(view, 1, column);
        EXPECT_EQ(asked.count(), 0) << column;
    }
    // Sorted by name, falling: the click reports the row under the mouse.
    view->sortByColumn(1, Qt::DescendingOrder);
    for (int row : {0, 3}) {
        clickCell(view, row, 1);
        ASSERT_EQ(asked.count(), 1);
        const QString name = view->model()->index(row, 1).data().toString();
        const QList<QVariant> arguments = asked.takeFirst();
        EXPECT_EQ(arguments[0].toString(), addressByName[name].first) << name.toStdString();
        EXPECT_EQ(arguments[1].toString(), addressByName[name].second) << name.toStdString();
    }
    // A refresh keeps the user's order.
    ASSERT_TRUE(showAndWait(page));
    QAbstractItemModel* model = view->model();
    for (int r = 1; r < model->rowCount(); ++r)
        EXPECT_GE(model->index(r - 1, 1).data().toString(), model->index(r, 1).data().toString());
    page.hide();
}

TEST_F(ApInfoListWidgetTest, TheClickAsksEvenWithoutApGroups)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-nogroups");
    page.resize(1200, 500);
    page.show();
    ASSERT_TRUE(showAndWait(page));
    QSignalSpy asked(&page, &CApInfoListWidget::signalUpdateToApStatus);
    clickCell(viewOf(page), 0, 1);
    EXPECT_EQ(asked.count(), 1);
    page.hide();
}

TEST_F(ApInfoListWidgetTest, HidingStopsTheTimerAndShowingStartsIt)
{
    CApInfoListWidget page(nullptr);
    fleet().open(page, "ac-plain");
    QTimer* timer = timerOf(page);
    page.show();
    page.hide();
    EXPECT_FALSE(timer->isActive());
    ASSERT_TRUE(showAndWait(page));
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 30000);
}

TEST_F(ApInfoListWidgetTest, DestroyingThePageWaitsOnlyForTheReadInFlight)
{
    constexpr int kDelayMs = 500;
    QElapsedTimer sinceRead;
    qint64 gone = 0;
    {
        CApInfoListWidget page(nullptr);
        fleet().open(page, "ac-plain");
        ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::delay(kDelayMs)));
        sinceRead.start();
        showStatus(page);
        ASSERT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() > 0; }, 2000));
        letTheReadStart();
        // Asked again while the first read runs: that one more read is never made.
        ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData"));
    }
    gone = sinceRead.elapsed();
    // The page went once the delayed answer had come back, and not a second read later.
    EXPECT_GE(gone, kDelayMs);
    EXPECT_LT(gone, 2 * kDelayMs);
    EXPECT_TRUE(waitUntil([] { return QThreadPool::globalInstance()->activeThreadCount() == 0; }, 2000));
    EXPECT_LT(sinceRead.elapsed(), 2 * kDelayMs);
    QCoreApplication::processEvents();
}

TEST_F(ApInfoListWidgetTest, AReadStillWaitingForAPoolThreadNeverRunsOnTheGuiThread)
{
    constexpr int kDelayMs = 400;
    QThreadPool* pool = QThreadPool::globalInstance();
    const int threads = pool->maxThreadCount();
    // Every pool thread busy: the page's read waits in the queue.
    std::atomic<bool> release{false};
    pool->setMaxThreadCount(1);
    pool->start([&] {
        while (!release)
            QThread::msleep(5);
    });
    QElapsedTimer clock;
    {
        CApInfoListWidget page(nullptr);
        fleet().open(page, "ac-plain");
        ASSERT_TRUE(emulator().setFault(fleet().id("ac-plain"), kApListPath, EmulatorProcess::Fault::delay(kDelayMs)));
        QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
        showStatus(page);
        clock.start();
    }
    // The page went at once: its read was not taken out of the queue and run here.
    EXPECT_LT(clock.elapsed(), kDelayMs / 2);
    release = true;
    // The read starts, finds the page gone and asks nothing.
    EXPECT_TRUE(pool->waitForDone(5000));
    EXPECT_LT(clock.elapsed(), kDelayMs);
    pool->setMaxThreadCount(threads);
    QCoreApplication::processEvents();
}

TEST_F(ApInfoListWidgetTest, APageWithoutADeviceNeitherReadsNorPolls)
{
    velmora::test::LogCapture log;
    CApInfoListWidget page(nullptr);
    QTimer* timer = timerOf(page);
    QSignalSpy updates(&page, &CApInfoListWidget::signalUpdateData);
    // The constructor started the timer: its first tick finds no device and stops it.
    ASSERT_TRUE(QMetaObject::invokeMethod(&page, "onRefreshPortStatisticData"));
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_FALSE(timer->isActive());
    QCoreApplication::processEvents();
    EXPECT_EQ(updates.count(), 0);
    EXPECT_EQ(QThreadPool::globalInstance()->activeThreadCount(), 0);
    const auto lines = log.lines("ERROR");
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const velmora::test::LogLine& line) {
                                return line.message == "velmora::CApInfoListWidget has no device; nothing is loaded.";
                            }),
              1);
}
