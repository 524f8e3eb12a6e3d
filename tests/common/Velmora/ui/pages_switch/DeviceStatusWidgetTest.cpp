// The device status page against the emulated site: usage bars, the panel that the model
// tables choose, the port table from the topology service, the alarm marks, and its timer.
#include <QFrame>
#include <QLayout>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <climits>
#include <cxxabi.h>
#include <gtest/gtest.h>
#include <set>
#include <tuple>

#include "DeviceStatusWidget.h"
#include "DeviceTypeString.h"
#include "JSONStruct/HTTP/HTTPCommonJSONStruct.h"
#include "PortDetailInfoModel.h"
#include "SwitchPagesTestFleet.h"
#include "TarvexGUIToolkit/File.h"
#include "TarvexGUIToolkit/ScrollArea.h"
#include "TarvexGUIToolkit/TableView.h"
#include "ui_UiPanelStatusWidget.h"
#include "support/LogCapture.h"
#include "logical/interface/ParamInterface.h"
#include "senvia/TopologyComm.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

namespace velmora {

// Device answers that the emulator never gives (a PoE budget of 0, a negative peak, missing
// groups) go straight to the part of the page that shows them.
struct CDeviceStatusWidgetTestAccess {
    static void showUsage(CDeviceStatusWidget& page, const Quillon::DeviceStatus& status) { page.showUsage(status); }
};

struct PanelTestAccess {
    static std::set<unsigned> alarmPorts(const CPanelStatusBase& panel) { return panel.alarmPorts; }
};

} // namespace velmora

using velmora::CDeviceStatusWidget;
using velmora::CPanelStatusBase;
using velmora::test::EmulatorProcess;
using velmora::test::LogCapture;
using velmora::test::SwitchPageTest;

namespace {

const char kStatusRequest[] = "GET /NXRPC/System/status";
const char kStatusPath[] = "/NXRPC/System/status";
const char kBasicInfoPath[] = "/NXRPC/Transfers/Switches/basicInfo";
const char kTopologyPath[] = "/topology/v1/deviceNode";
const char kAlarmPath[] = "/alarm/v1/switchPortAlarms";
const char kTopologyFailure[] = "Failed to Get Topo Config getOneDeviceNode.";

template <class T>
T* part(QWidget& page, const char* name)
{
    T* widget = page.findChild<T*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

QString text(QWidget& page, const char* name)
{
    QLabel* label = part<QLabel>(page, name);
    return label ? label->text() : QString();
}

bool shown(QWidget& page, const char* name)
{
    QWidget* widget = part<QWidget>(page, name);
    return widget && !widget->isHidden();
}

int barValue(QWidget& page, const char* name)
{
    QProgressBar* bar = part<QProgressBar>(page, name);
    return bar ? bar->value() : -1;
}

CPanelStatusBase* panelOf(QWidget& page)
{
    const QList<CPanelStatusBase*> panels = page.findChildren<CPanelStatusBase*>();
    EXPECT_LE(panels.size(), 1);
    return panels.isEmpty() ? nullptr : panels.front();
}

std::string className(const QObject& object)
{
    int status = 0;
    char* demangled = abi::__cxa_demangle(typeid(object).name(), nullptr, nullptr, &status);
    std::string name = status == 0 && demangled ? demangled : typeid(object).name();
    std::free(demangled);
    const size_t colon = name.rfind("::");
    return colon == std::string::npos ? name : name.substr(colon + 2);
}

QTimer* timerOf(QWidget& page)
{
    const QList<QTimer*> timers = page.findChildren<QTimer*>(QString(), Qt::FindDirectChildrenOnly);
    EXPECT_EQ(timers.size(), 1);
    return timers.isEmpty() ? nullptr : timers.front();
}

QAbstractItemModel* portTable(QWidget& page)
{
    auto* view = part<QTableView>(page, "m_pPortInfoTreeView");
    return view ? view->model() : nullptr;
}

struct Row {
    QString name, type, ip, alias;
    bool operator<(const Row& o) const { return std::tie(name, type, ip, alias) < std::tie(o.name, o.type, o.ip, o.alias); }
    bool operator==(const Row& o) const { return std::tie(name, type, ip, alias) == std::tie(o.name, o.type, o.ip, o.alias); }
};

std::vector<Row> rowsOf(QAbstractItemModel* model)
{
    std::vector<Row> rows;
    for (int r = 0; r < model->rowCount(); ++r)
        rows.push_back({model->index(r, 0).data().toString(), model->index(r, 1).data().toString(),
                        model->index(r, 2).data().toString(), model->index(r, 3).data().toString()});
    return rows;
}

// What the port table should hold, read from the topology service by the rules of the table:
// the first peer of each port, without devices of class 123 and without aggregated ports.
std::vector<Row> expectedRows(const std::string& deviceId, std::vector<int>* linkPorts = nullptr)
{
    std::vector<Row> rows;
    protocol::DeviceNode node;
    EXPECT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(deviceId, node));
    for (const protocol::PortNode& port : node.portNodeList) {
        if (port.peerNodeList.empty())
            continue;
        protocol::DeviceNode far;
        EXPECT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(port.peerNodeList.front().guid, far));
        if (far.deviceCategory == 123 || port.portType == 4)
            continue;
        QString type;
        if (far.deviceCategory == 0) {
            const int c = far.deviceClassType;
            type = (c >= 1 && c <= 6) || c == 51 || c == 101 || c == 201 ? "NVR" : "IPC";
        } else {
            type = velmora::deviceTypeToString(static_cast<tarvex7300::Device::DeviceCategory>(far.deviceCategory));
        }
        rows.push_back({QString::fromStdString(port.portName), type, QString::fromStdString(far.ip),
                        QString::fromStdString(far.name)});
        if (linkPorts)
            linkPorts->push_back(port.linkPort);
    }
    return rows;
}

std::set<unsigned> serviceAlarms(const std::string& deviceId)
{
    protocol::SwitchAlarmListData alarms;
    EXPECT_TRUE(senvia::CTopoAlarmComm::request(alarms, deviceId));
    std::set<unsigned> ports;
    for (const protocol::SwitchAlarm& alarm : alarms.switchAlarmList)
        ports.insert(static_cast<unsigned>(alarm.port));
    return ports;
}

Quillon::DeviceStatus status(std::vector<Quillon::DeviceMemoryInfo> memory, std::vector<Quillon::DeviceCpuInfo> cpu,
                             std::vector<Quillon::DevicePoeInfo> poe)
{
    Quillon::DeviceStatus s;
    s.memoryList = memory;
    s.cpuList = cpu;
    s.poeList = poe;
    return s;
}

Quillon::DeviceMemoryInfo memory(float usage, float available)
{
    Quillon::DeviceMemoryInfo m;
    m.memoryUsage = usage;
    m.memoryAvailable = available;
    return m;
}

Quillon::DeviceCpuInfo cpu(int percent)
{
    Quillon::DeviceCpuInfo c;
    c.cpuUtilization = percent;
    return c;
}

Quillon::DevicePoeInfo poe(float used, float total, float peak)
{
    Quillon::DevicePoeInfo p;
    p.poeUsed = used;
    p.poeTotal = total;
    p.poePeak = peak;
    return p;
}

// A device that nobody knows: the registry, the devices and the topology service don't.
class UnknownDevice : public tarvex7300::IAbstractDevice {
public:
    std::string getDeviceId() const override { return "00000000-0000-0000-0000-00000000DEAD"; }
    tarvex7300::Device::DeviceCategory getDeviceCategory() const override { return tarvex7300::Device::Switch; }
    std::string getDeviceModel() const override { return "QN-1040"; }
    std::string getDeviceName() const override { return "nobody"; }
};

class DeviceStatusWidgetTest : public SwitchPageTest {};

} // namespace

// ---------------------------------------------------------------------------------------------
// Form and usage bars

TEST_F(DeviceStatusWidgetTest, FormHasTheDocumentedBlocks)
{
    CDeviceStatusWidget page(nullptr);
    EXPECT_EQ(page.objectName(), QString("UiPanelStatusWidget"));
    EXPECT_EQ(page.windowTitle(), QString("Form"));
    EXPECT_EQ(page.styleSheet(), TarvexGUIToolkit::CFile::ReadAll(":/ClientCommon/Qss/Qss/Velmora/Velmora.qss"));
    EXPECT_NE(page.findChild<TarvexGUIToolkit::CScrollArea*>("scrollArea"), nullptr);
    const std::pair<const char*, const char*> titles[] = {
        {"PanelUsageLabel", "EquipmentUsageInformation"}, {"memoryLabel", "MemoryUsage"},
        {"cpuLabel", "CPUUsage"}, {"poeLabel", "POEPower"}, {"wholeMachinePOELabel", "POEPowerPeak"},
        {"label", "EquipmentPanelStatus"}, {"label_13", "PortInformation"}};
    for (const auto& t : titles) {
        EXPECT_EQ(text(page, t.first), QString(t.second));
        EXPECT_EQ(part<QLabel>(page, t.first)->maximumHeight(), 32) << t.first;
    }
    for (const char* value : {"memoryPercentLabel", "cpuPercentLabel", "poePercentLabel", "wholeMachinePOEValue"})
        EXPECT_TRUE(text(page, value).isEmpty()) << value;
    for (const char* bar : {"m_memoryProgressBar", "m_cpuProgressBar", "m_poeProgressBar", "m_wholePOEProgressBar"})
        EXPECT_FALSE(part<QProgressBar>(page, bar)->isTextVisible()) << bar;
    QFrame* frame = part<QFrame>(page, "m_pPanelFrame");
    EXPECT_EQ(frame->minimumHeight(), 160);
    EXPECT_EQ(frame->maximumHeight(), 160);
    auto* view = page.findChild<TarvexGUIToolkit::CTableView*>("m_pPortInfoTreeView");
    ASSERT_NE(view, nullptr);
    EXPECT_EQ(view->minimumHeight(), 200);
    EXPECT_EQ(view->maximumHeight(), QWIDGETSIZE_MAX);
    EXPECT_EQ(view->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_NE(qobject_cast<velmora::CPortDetailInfoModel*>(view->model()), nullptr);
    const int widths[] = {150, 120, 120, 120};
    for (int c = 0; c < 4; ++c)
        EXPECT_EQ(view->columnWidth(c), widths[c]);
    // The timer waits for the first showStatus().
    ASSERT_NE(timerOf(page), nullptr);
    EXPECT_FALSE(timerOf(page)->isActive());
    EXPECT_EQ(panelOf(page), nullptr);
}

TEST(DeviceStatusForm, SizesAreThoseOfTheForm)
{
    // The form alone, as designed; the page's style sheet may restyle the bars.
    QWidget widget;
    Ui_UiPanelStatusWidget form;
    form.setupUi(&widget);
    EXPECT_EQ(widget.objectName(), QString("UiPanelStatusWidget"));
    for (QLabel* label : {form.PanelUsageLabel, form.memoryLabel, form.cpuLabel, form.poeLabel,
                          form.wholeMachinePOELabel, form.label, form.label_13}) {
        EXPECT_EQ(label->minimumHeight(), 32) << label->objectName().toStdString();
        EXPECT_EQ(label->maximumHeight(), 32) << label->objectName().toStdString();
    }
    for (QProgressBar* bar : {form.m_memoryProgressBar, form.m_cpuProgressBar, form.m_poeProgressBar,
                              form.m_wholePOEProgressBar}) {
        EXPECT_EQ(bar->minimumHeight(), 5);
        EXPECT_EQ(bar->maximumHeight(), 5);
    }
    int row = -1, column = -1, rowSpan = 0, columnSpan = 0;
    const QWidget* grid[4][3] = {{form.memoryLabel, form.m_memoryProgressBar, form.memoryPercentLabel},
                                 {form.cpuLabel, form.m_cpuProgressBar, form.cpuPercentLabel},
                                 {form.poeLabel, form.m_poeProgressBar, form.poePercentLabel},
                                 {form.wholeMachinePOELabel, form.m_wholePOEProgressBar, form.wholeMachinePOEValue}};
    for (int r = 0; r < 4; ++r) {
        for (int c = 0; c < 3; ++c) {
            form.gridLayout_7->getItemPosition(form.gridLayout_7->indexOf(const_cast<QWidget*>(grid[r][c])), &row,
                                               &column, &rowSpan, &columnSpan);
            EXPECT_EQ(row, r);
            EXPECT_EQ(column, c);
        }
    }
    form.gridLayout_3->getItemPosition(form.gridLayout_3->indexOf(form.m_pPanelFrame), &row, &column, &rowSpan,
                                       &columnSpan);
    EXPECT_EQ(row, 1);
    EXPECT_EQ(column, 0);
    EXPECT_EQ(rowSpan, 1);
    EXPECT_EQ(columnSpan, 2);
    EXPECT_EQ(form.scrollArea->widget(), form.scrollAreaWidgetContents);
    EXPECT_EQ(form.scrollAreaWidgetContents->layout(), form.gridLayout_8);
}

TEST_F(DeviceStatusWidgetTest, UsageBarsShowTheDeviceStatus)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);

    Quillon::DeviceStatus s(static_cast<_xmlNode*>(nullptr));
    ASSERT_TRUE(velmora::ParamInterface::getSwitchDeviceStatus(s, fleet().id("poe-switch")));
    ASSERT_FALSE(s.memoryList.empty());
    ASSERT_FALSE(s.cpuList.empty());
    ASSERT_FALSE(s.poeList.empty());

    const Quillon::DeviceMemoryInfo& m = s.memoryList.front();
    const int memoryPercent = static_cast<int>(m.memoryUsage * 100.0f / (m.memoryAvailable + m.memoryUsage));
    EXPECT_EQ(text(page, "memoryPercentLabel"), QString("%1%").arg(memoryPercent));
    EXPECT_EQ(barValue(page, "m_memoryProgressBar"), memoryPercent);
    EXPECT_EQ(text(page, "cpuPercentLabel"), QString("%1%").arg(s.cpuList.front().cpuUtilization));
    EXPECT_EQ(barValue(page, "m_cpuProgressBar"), s.cpuList.front().cpuUtilization);

    const Quillon::DevicePoeInfo& p = s.poeList.front();
    ASSERT_GT(p.poeTotal, 0.0f);
    EXPECT_EQ(text(page, "poePercentLabel"), QString("%1W/%2W")
                                                 .arg(QString::number(double(p.poeUsed), 'f', 1))
                                                 .arg(QString::number(double(p.poeTotal), 'f', 1)));
    EXPECT_EQ(barValue(page, "m_poeProgressBar"), static_cast<int>(p.poeUsed * 100.0f / p.poeTotal));
    EXPECT_EQ(text(page, "wholeMachinePOEValue"), QString("%1W/%2W(InSevenDays)")
                                                      .arg(QString::number(double(p.poePeak), 'f', 1))
                                                      .arg(QString::number(double(p.poeTotal), 'f', 1)));
    EXPECT_EQ(barValue(page, "m_wholePOEProgressBar"), static_cast<int>(p.poePeak * 100.0f / p.poeTotal));
    for (const char* name : {"PanelUsageLabel", "memoryLabel", "m_memoryProgressBar", "memoryPercentLabel", "cpuLabel",
                             "m_cpuProgressBar", "cpuPercentLabel", "poeLabel", "m_poeProgressBar", "poePercentLabel",
                             "wholeMachinePOELabel", "m_wholePOEProgressBar", "wholeMachinePOEValue"})
        EXPECT_TRUE(shown(page, name)) << name;
}

TEST_F(DeviceStatusWidgetTest, SwitchWithoutPoEHasNoPoERows)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "plain-switch");
    showStatus(page);
    for (const char* name : {"poeLabel", "m_poeProgressBar", "poePercentLabel", "wholeMachinePOELabel",
                             "m_wholePOEProgressBar", "wholeMachinePOEValue"})
        EXPECT_FALSE(shown(page, name)) << name;
    for (const char* name : {"PanelUsageLabel", "memoryLabel", "m_memoryProgressBar", "cpuLabel", "m_cpuProgressBar"})
        EXPECT_TRUE(shown(page, name)) << name;
}

TEST_F(DeviceStatusWidgetTest, NoGroupAtAllHidesTheSectionTitleToo)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);
    ASSERT_TRUE(shown(page, "PanelUsageLabel"));

    // A body that can't be read still counts as an answer: the record stays empty.
    ASSERT_TRUE(emulator().setFault(fleet().id("poe-switch"), kStatusPath, EmulatorProcess::Fault::malformed()));
    Quillon::DeviceStatus s(static_cast<_xmlNode*>(nullptr));
    ASSERT_TRUE(velmora::ParamInterface::getSwitchDeviceStatus(s, fleet().id("poe-switch")));
    ASSERT_TRUE(s.memoryList.empty() && s.cpuList.empty() && s.poeList.empty());
    showStatus(page);
    for (const char* name : {"PanelUsageLabel", "memoryLabel", "m_memoryProgressBar", "memoryPercentLabel", "cpuLabel",
                             "m_cpuProgressBar", "cpuPercentLabel", "poeLabel", "m_poeProgressBar", "poePercentLabel",
                             "wholeMachinePOELabel", "m_wholePOEProgressBar", "wholeMachinePOEValue"})
        EXPECT_FALSE(shown(page, name)) << name;

    emulator().clearFaults();
    showStatus(page);
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));
    EXPECT_TRUE(shown(page, "m_wholePOEProgressBar"));
}

TEST_F(DeviceStatusWidgetTest, FailedStatusQueryKeepsTheBars)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);
    const QString memoryText = text(page, "memoryPercentLabel");
    const QString poeText = text(page, "poePercentLabel");
    const int cpuValue = barValue(page, "m_cpuProgressBar");
    ASSERT_FALSE(memoryText.isEmpty());

    emulator().runClock();
    ASSERT_TRUE(emulator().setFault(fleet().id("poe-switch"), kStatusPath, EmulatorProcess::Fault::httpStatus(503)));
    showStatus(page);
    EXPECT_EQ(text(page, "memoryPercentLabel"), memoryText);
    EXPECT_EQ(text(page, "poePercentLabel"), poeText);
    EXPECT_EQ(barValue(page, "m_cpuProgressBar"), cpuValue);
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));
}

TEST_F(DeviceStatusWidgetTest, PoEBudgetOfZeroGivesZeroBarsWithoutDivision)
{
    CDeviceStatusWidget page(nullptr);
    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({memory(1, 3)}, {cpu(5)}, {poe(0, 0, 0)}));
    EXPECT_EQ(text(page, "poePercentLabel"), QString("0.0W/0.0W"));
    EXPECT_EQ(barValue(page, "m_poeProgressBar"), 0);
    // A peak of 0 still shows its row, with 0 in the bar.
    EXPECT_TRUE(shown(page, "m_wholePOEProgressBar"));
    EXPECT_TRUE(shown(page, "wholeMachinePOELabel"));
    EXPECT_EQ(text(page, "wholeMachinePOEValue"), QString("0.0W/0.0W(InSevenDays)"));
    EXPECT_EQ(barValue(page, "m_wholePOEProgressBar"), 0);

    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({memory(1, 3)}, {cpu(5)}, {poe(12.5f, 0, 30)}));
    EXPECT_EQ(text(page, "poePercentLabel"), QString("12.5W/0.0W"));
    EXPECT_EQ(barValue(page, "m_poeProgressBar"), 0);
    EXPECT_EQ(barValue(page, "m_wholePOEProgressBar"), 0);
    EXPECT_EQ(text(page, "memoryPercentLabel"), QString("25%"));
}

TEST_F(DeviceStatusWidgetTest, ADeviceWithoutMemoryCpuBudgetOrPeakShowsWhatItHas)
{
    // A switch that reports neither memory nor CPU, and PoE without a budget or a peak.
    ASSERT_TRUE(emulator().setFault(fleet().id("poe-switch"), "/NXRPC/System/status",
                                    EmulatorProcess::Fault::answer(R"(<?xml version="1.0" encoding="UTF-8"?>
<DeviceStatus><deviceUpTime>10</deviceUpTime><cpuList></cpuList><memoryList></memoryList>
<poeList><DevicePoeInfo><poeUsed>12.5</poeUsed><poeTotal>0</poeTotal><poePeak>-1</poePeak></DevicePoeInfo></poeList>
</DeviceStatus>)")));
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "poe-switch");
    showStatus(page);
    for (const char* name : {"memoryLabel", "m_memoryProgressBar", "memoryPercentLabel", "cpuLabel", "m_cpuProgressBar",
                             "cpuPercentLabel", "wholeMachinePOELabel", "m_wholePOEProgressBar", "wholeMachinePOEValue"})
        EXPECT_FALSE(shown(page, name)) << name;
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));
    EXPECT_TRUE(shown(page, "poeLabel"));
    EXPECT_EQ(text(page, "poePercentLabel"), QString("12.5W/0.0W"));
    EXPECT_EQ(barValue(page, "m_poeProgressBar"), 0);
}

TEST_F(DeviceStatusWidgetTest, NegativePeakHidesItsRowButNotTheSection)
{
    CDeviceStatusWidget page(nullptr);
    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({}, {}, {poe(30, 120, -1)}));
    EXPECT_FALSE(shown(page, "memoryLabel"));
    EXPECT_FALSE(shown(page, "cpuLabel"));
    EXPECT_TRUE(shown(page, "poeLabel"));
    EXPECT_EQ(text(page, "poePercentLabel"), QString("30.0W/120.0W"));
    EXPECT_EQ(barValue(page, "m_poeProgressBar"), 25);
    EXPECT_FALSE(shown(page, "wholeMachinePOELabel"));
    EXPECT_FALSE(shown(page, "m_wholePOEProgressBar"));
    EXPECT_FALSE(shown(page, "wholeMachinePOEValue"));
    // Two groups gone and the peak row hidden: the section title stays.
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));
}

TEST_F(DeviceStatusWidgetTest, EachGroupHidesByItself)
{
    CDeviceStatusWidget page(nullptr);
    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({memory(512, 512)}, {}, {}));
    EXPECT_TRUE(shown(page, "memoryLabel"));
    EXPECT_EQ(text(page, "memoryPercentLabel"), QString("50%"));
    EXPECT_FALSE(shown(page, "cpuLabel"));
    EXPECT_FALSE(shown(page, "cpuPercentLabel"));
    EXPECT_FALSE(shown(page, "m_poeProgressBar"));
    EXPECT_FALSE(shown(page, "wholeMachinePOEValue"));
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));

    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({}, {cpu(77)}, {}));
    EXPECT_FALSE(shown(page, "memoryLabel"));
    EXPECT_TRUE(shown(page, "cpuLabel"));
    EXPECT_EQ(text(page, "cpuPercentLabel"), QString("77%"));
    EXPECT_EQ(barValue(page, "m_cpuProgressBar"), 77);
    EXPECT_TRUE(shown(page, "PanelUsageLabel"));

    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({}, {}, {}));
    EXPECT_FALSE(shown(page, "PanelUsageLabel"));
}

TEST_F(DeviceStatusWidgetTest, MemoryPercentTruncatesInSinglePrecision)
{
    CDeviceStatusWidget page(nullptr);
    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({memory(2, 1)}, {cpu(1)}, {}));
    EXPECT_EQ(text(page, "memoryPercentLabel"), QString("66%"));
    EXPECT_EQ(barValue(page, "m_memoryProgressBar"), 66);
    // Usage and availability both 0 are not guarded: the percent of not-a-number is what the
    // truncating conversion gives, and the bar, out of its range, keeps its value.
    velmora::CDeviceStatusWidgetTestAccess::showUsage(page, status({memory(0, 0)}, {cpu(1)}, {}));
    EXPECT_EQ(text(page, "memoryPercentLabel"), QString("%1%").arg(INT_MIN));
    EXPECT_EQ(barValue(page, "m_memoryProgressBar"), 66);
}

// ---------------------------------------------------------------------------------------------
// Timer

TEST_F(DeviceStatusWidgetTest, ShowStatusStartsTheTimerAndHideStopsIt)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
    EXPECT_FALSE(timer->isActive()); // being shown is not enough
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);

    // A running timer is left alone by the next showStatus(): with a short interval set by
    // hand it keeps firing while showStatus() runs again and again.
    timer->setInterval(300);
    QSignalSpy ticks(timer, &QTimer::timeout);
    for (int i = 0; i < 10; ++i) {
        showStatus(page);
        QTest::qWait(100);
    }
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 300);
    EXPECT_GE(ticks.count(), 2);

    page.hide();
    EXPECT_FALSE(timer->isActive());
    page.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&page));
    EXPECT_FALSE(timer->isActive());
    showStatus(page);
    EXPECT_TRUE(timer->isActive());
    page.hide();
}

TEST_F(DeviceStatusWidgetTest, TickReadsOnlyTheUsage)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    CPanelStatusBase* panel = panelOf(page);
    ASSERT_NE(panel, nullptr);
    const std::vector<Row> table = rowsOf(portTable(page));
    QTimer* timer = timerOf(page);
    ASSERT_NE(timer, nullptr);

    emulator().clearRequestLog();
    timer->setInterval(20);
    QSignalSpy ticks(timer, &QTimer::timeout);
    ASSERT_TRUE(ticks.wait(3000));
    timer->stop();
    const std::vector<std::string> lines = fleet().requestLines("edge");
    ASSERT_FALSE(lines.empty());
    for (const std::string& line : lines)
        EXPECT_EQ(line, kStatusRequest);
    EXPECT_EQ(panelOf(page), panel); // the panel was not rebuilt
    EXPECT_EQ(rowsOf(portTable(page)), table);
}

// ---------------------------------------------------------------------------------------------
// Panel

TEST_F(DeviceStatusWidgetTest, PanelIsChosenByCategoryAndModel)
{
    enum Legend { Hidden, Shown, PanelsOwn };
    struct Case {
        const char* device;
        const char* panelClass; // "" for no panel
        Legend connectedLegend;
    };
    const Case cases[] = {
        {"core", "CQ145SwitchPanel", Hidden},
        {"aggregation", "CQ112SwitchPanel", Hidden},
        {"edge", "CQ110SwitchPanel", Hidden},
        {"poe-switch", "CQ129SwitchPanel", Hidden},
        {"plain-switch", "CQ132SwitchPanel", Hidden},
        {"contains-around", "CQ110SwitchPanel", Hidden},
        {"equals", "CQ116SwitchPanel", Hidden},
        {"equals-around", "", Hidden},
        {"unknown-model", "", Hidden},
        {"category-123", "", Hidden},
        // A reported layout: the page leaves the legend to the panel.
        {"logical", "CSwitchLogicalPanel", PanelsOwn},
        {"bridge", "CSinglePortElevatorBridgePanelStatus", Hidden},
        {"ap", "CQ302APPannel", Shown},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.device);
        CDeviceStatusWidget page(nullptr);
        fleet().open(page, c.device);
        const std::shared_ptr<tarvex7300::IAbstractDevice> device = fleet().device(c.device);
        page.setDeviceBasicInfo(device);
        showStatus(page);
        CPanelStatusBase* panel = panelOf(page);
        if (!*c.panelClass) {
            EXPECT_EQ(panel, nullptr);
            continue;
        }
        ASSERT_NE(panel, nullptr);
        EXPECT_EQ(className(*panel), c.panelClass);
        EXPECT_EQ(panel->panelDevice, device);
        EXPECT_EQ(panel->parentWidget(), part<QFrame>(page, "m_pPanelFrame"));
        QWidget* legend = panel->findChild<QWidget*>("label_3");
        ASSERT_NE(legend, nullptr);
        if (c.connectedLegend != PanelsOwn) {
            EXPECT_EQ(legend->isHidden(), c.connectedLegend == Hidden);
        }
        // Only the chassis change the frame's height.
        const int height = std::string(c.device) == "core" ? 248 : 160;
        EXPECT_EQ(part<QFrame>(page, "m_pPanelFrame")->maximumHeight(), height);
    }
}

TEST_F(DeviceStatusWidgetTest, ReportedPanelLayoutWinsOverTheModelTable)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge"); // a model with a table row
    protocol::SwitchCapabilities capability = fleet().capabilities("edge");
    capability.bIsSupportPanelStatus = true;
    page.setDeviceCapbility(capability);
    showStatus(page);
    CPanelStatusBase* panel = panelOf(page);
    ASSERT_NE(panel, nullptr);
    EXPECT_EQ(className(*panel), "CSwitchLogicalPanel");
}

TEST_F(DeviceStatusWidgetTest, ChassisHeightStaysForTheNextPanel)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "core");
    showStatus(page);
    QFrame* frame = part<QFrame>(page, "m_pPanelFrame");
    EXPECT_EQ(frame->minimumHeight(), 248);
    EXPECT_EQ(frame->maximumHeight(), 248);
    fleet().open(page, "edge");
    showStatus(page);
    ASSERT_NE(panelOf(page), nullptr);
    EXPECT_EQ(className(*panelOf(page)), "CQ110SwitchPanel");
    EXPECT_EQ(frame->maximumHeight(), 248);
}

TEST_F(DeviceStatusWidgetTest, EachShowBuildsTheTableAndPanelAfresh)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    QPointer<CPanelStatusBase> first = panelOf(page);
    ASSERT_FALSE(first.isNull());
    showStatus(page);
    EXPECT_TRUE(first.isNull()); // deleted
    ASSERT_NE(panelOf(page), nullptr);
    QFrame* frame = part<QFrame>(page, "m_pPanelFrame");
    ASSERT_NE(frame->layout(), nullptr);
    EXPECT_EQ(frame->layout()->count(), 1);
    EXPECT_EQ(frame->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
}

TEST_F(DeviceStatusWidgetTest, FailedBasicInformationLeavesNoPanel)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    ASSERT_NE(panelOf(page), nullptr);
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kBasicInfoPath, EmulatorProcess::Fault::httpStatus(500)));
    LogCapture log;
    showStatus(page);
    EXPECT_EQ(panelOf(page), nullptr);
    bool logged = false;
    for (const velmora::test::LogLine& line : log.lines("ERROR"))
        logged = logged || line.message == "call getSwitchBasicInfoConfig failed[QN-1040, ].";
    EXPECT_TRUE(logged);
}

// ---------------------------------------------------------------------------------------------
// Port table

TEST_F(DeviceStatusWidgetTest, PortTableListsTheFirstPeerOfEachPortInPortOrder)
{
    for (const char* name : {"core", "aggregation", "edge", "poe-switch", "bridge"}) {
        SCOPED_TRACE(name);
        CDeviceStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        std::vector<int> linkPorts;
        std::vector<Row> expected = expectedRows(fleet().id(name), &linkPorts);
        const std::vector<Row> rows = rowsOf(portTable(page));
        ASSERT_EQ(rows.size(), expected.size());
        // In port order: the service lists ports in order and no port here is above 255.
        EXPECT_TRUE(std::is_sorted(linkPorts.begin(), linkPorts.end()));
        EXPECT_TRUE(std::all_of(linkPorts.begin(), linkPorts.end(), [](int p) { return p < 256; }));
        EXPECT_EQ(rows, expected);
    }
}

TEST_F(DeviceStatusWidgetTest, PortTableSkipsHiddenClassesAggregatedPortsAndSecondPeers)
{
    // The root holds a device of class 123 and an aggregated trunk.
    CDeviceStatusWidget core(nullptr);
    fleet().open(core, "core");
    showStatus(core);
    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(fleet().id("core"), node));
    bool trunk = false, hiddenClass = false;
    for (const protocol::PortNode& port : node.portNodeList) {
        if (port.peerNodeList.empty())
            continue;
        protocol::DeviceNode far;
        ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(port.peerNodeList.front().guid, far));
        trunk = trunk || port.portType == 4;
        hiddenClass = hiddenClass || far.deviceCategory == 123;
        for (const Row& row : rowsOf(portTable(core))) {
            if (port.portType == 4) {
                EXPECT_NE(row.name.toStdString(), port.portName);
            }
            if (far.deviceCategory == 123) {
                EXPECT_NE(row.alias.toStdString(), far.name);
            }
        }
    }
    EXPECT_TRUE(trunk);
    EXPECT_TRUE(hiddenClass);

    // The first access switch has two cameras behind a hub on one port: only the first shows.
    CDeviceStatusWidget edge(nullptr);
    fleet().open(edge, "edge");
    showStatus(edge);
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(fleet().id("edge"), node));
    bool twoPeers = false;
    for (const protocol::PortNode& port : node.portNodeList) {
        if (port.peerNodeList.size() < 2)
            continue;
        twoPeers = true;
        protocol::DeviceNode first, second;
        ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(port.peerNodeList[0].guid, first));
        ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(port.peerNodeList[1].guid, second));
        int rowsOfPort = 0;
        for (const Row& row : rowsOf(portTable(edge))) {
            if (row.name.toStdString() != port.portName)
                continue;
            ++rowsOfPort;
            EXPECT_EQ(row.alias.toStdString(), first.name);
            EXPECT_EQ(row.ip.toStdString(), first.ip);
        }
        EXPECT_EQ(rowsOfPort, 1);
    }
    EXPECT_TRUE(twoPeers);
}

TEST_F(DeviceStatusWidgetTest, EncodingDevicesReadAsRecordersOrCameras)
{
    int recorders = 0, cameras = 0;
    for (const char* name : {"core", "aggregation", "edge", "wireless-port", "poe-switch", "plain-switch"}) {
        CDeviceStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        for (const Row& row : rowsOf(portTable(page))) {
            if (row.alias.startsWith("NVR-")) {
                ++recorders;
                EXPECT_EQ(row.type, QString("NVR")) << row.alias.toStdString();
            } else if (row.alias.startsWith("IPC-")) {
                ++cameras;
                EXPECT_EQ(row.type, QString("IPC")) << row.alias.toStdString();
            }
        }
    }
    EXPECT_GT(recorders, 0);
    EXPECT_GT(cameras, 0);
}

TEST_F(DeviceStatusWidgetTest, UnknownFarDeviceDropsOnlyItsPort)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    const std::vector<Row> all = rowsOf(portTable(page));
    ASSERT_GE(all.size(), 2u);

    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(fleet().id("edge"), node));
    std::string farGuid, portName;
    for (const protocol::PortNode& port : node.portNodeList) {
        if (!port.peerNodeList.empty()) {
            farGuid = port.peerNodeList.front().guid;
            portName = port.portName;
            break;
        }
    }
    ASSERT_FALSE(farGuid.empty());
    ASSERT_TRUE(emulator().setFault(farGuid, kTopologyPath, EmulatorProcess::Fault::httpStatus(500)));
    LogCapture log;
    showStatus(page);
    const std::vector<Row> rows = rowsOf(portTable(page));
    EXPECT_EQ(rows.size(), all.size() - 1);
    for (const Row& row : rows)
        EXPECT_NE(row.name.toStdString(), portName);
    int failures = 0;
    for (const velmora::test::LogLine& line : log.lines("ERROR"))
        failures += line.message == kTopologyFailure ? 1 : 0;
    EXPECT_EQ(failures, 1);
}

TEST_F(DeviceStatusWidgetTest, LinkPorts257And1ShareTheirKeyAndSortTogether)
{
    // The device's own node, its ports renumbered 2, 257, 1 and 3, all towards one far device.
    protocol::DeviceNode node;
    ASSERT_TRUE(senvia::CTopologyConfigComm::getOneDeviceNode(fleet().id("edge"), node));
    const std::vector<Row> real = expectedRows(fleet().id("edge"));
    ASSERT_FALSE(real.empty());
    protocol::PortNode linked;
    for (const protocol::PortNode& port : node.portNodeList)
        if (port.portName == real.front().name.toStdString())
            linked = port;
    ASSERT_FALSE(linked.peerNodeList.empty());
    node.portNodeList.clear();
    for (int linkPort : {2, 257, 1, 3}) {
        protocol::PortNode port = linked;
        port.linkPort = linkPort;
        port.portName = "port-" + std::to_string(linkPort);
        node.portNodeList.push_back(port);
    }
    protocol::ReturnData answer(std::make_shared<protocol::DeviceNode>(node));
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kTopologyPath, EmulatorProcess::Fault::answer(answer.Serialize())));

    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    const std::vector<Row> rows = rowsOf(portTable(page));
    ASSERT_EQ(rows.size(), 4u);
    // The key is the low byte of the port number: 257 and 1 come first, in either order,
    // before 2 and 3.
    const std::set<QString> firstTwo = {rows[0].name, rows[1].name};
    EXPECT_EQ(firstTwo, (std::set<QString>{"port-1", "port-257"}));
    EXPECT_EQ(rows[2].name, QString("port-2"));
    EXPECT_EQ(rows[3].name, QString("port-3"));
}

TEST_F(DeviceStatusWidgetTest, FailedLookUpOfTheDeviceLeavesAnEmptyTable)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    showStatus(page);
    ASSERT_GT(portTable(page)->rowCount(), 0);
    ASSERT_TRUE(emulator().setFault(fleet().id("edge"), kTopologyPath, EmulatorProcess::Fault::httpStatus(500)));
    LogCapture log;
    showStatus(page);
    EXPECT_EQ(portTable(page)->rowCount(), 0);
    int failures = 0;
    for (const velmora::test::LogLine& line : log.lines("ERROR"))
        failures += line.message == kTopologyFailure ? 1 : 0;
    EXPECT_EQ(failures, 1);

    // A device that nobody knows: the same, and the page goes on without a panel.
    page.setDeviceBasicInfo(std::make_shared<UnknownDevice>());
    emulator().clearFaults();
    showStatus(page);
    EXPECT_EQ(portTable(page)->rowCount(), 0);
    EXPECT_EQ(panelOf(page), nullptr);
}

// ---------------------------------------------------------------------------------------------
// Alarms

namespace {

// A switch of the fleet with unconfirmed alarms at some tick, and that tick.
bool findAlarmedSwitch(EmulatorProcess& emulator, velmora::test::SwitchPagesTestFleet& fleet, std::string& name)
{
    for (long long tick = 5000; tick < 5000 + 12 * 1800; tick += 1800) {
        emulator.freezeClock(tick);
        for (const char* candidate : {"edge", "aggregation", "poe-switch", "plain-switch", "wireless-port", "equals",
                                      "contains-around", "batch", "core"}) {
            if (!serviceAlarms(fleet.id(candidate)).empty()) {
                name = candidate;
                return true;
            }
        }
    }
    return false;
}

} // namespace

TEST_F(DeviceStatusWidgetTest, AlarmsOfTheServiceAreMarkedAfterEachRebuild)
{
    std::string name;
    ASSERT_TRUE(findAlarmedSwitch(emulator(), fleet(), name)) << "no switch with alarms";
    const std::set<unsigned> alarms = serviceAlarms(fleet().id(name));
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, name);
    showStatus(page);
    ASSERT_NE(panelOf(page), nullptr);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)), alarms);

    // The host's push adds and removes marks...
    unsigned extra = 1;
    while (alarms.count(extra))
        ++extra;
    page.setPortAlarmState(static_cast<int>(extra), true);
    std::set<unsigned> withExtra = alarms;
    withExtra.insert(extra);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)), withExtra);
    page.setPortAlarmState(static_cast<int>(*alarms.begin()), false);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)).count(*alarms.begin()), 0u);

    // ...and a rebuild drops them all, then restores those of the server.
    page.setPortAlarmState(static_cast<int>(extra), true);
    showStatus(page);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)), alarms);
}

TEST_F(DeviceStatusWidgetTest, FailedAlarmQueryMarksNothingAndLogsNothing)
{
    std::string name;
    ASSERT_TRUE(findAlarmedSwitch(emulator(), fleet(), name));
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, name);
    ASSERT_TRUE(emulator().setFault(fleet().id(name), kAlarmPath, EmulatorProcess::Fault::httpStatus(500)));
    LogCapture log;
    showStatus(page);
    ASSERT_NE(panelOf(page), nullptr);
    EXPECT_TRUE(velmora::PanelTestAccess::alarmPorts(*panelOf(page)).empty());
    // The service client traces its failure at debug level; the page adds nothing.
    for (const char* level : {"INFO", "WARN", "ERROR"}) {
        for (const velmora::test::LogLine& line : log.lines(level))
            EXPECT_EQ(line.message.find("switchPortAlarms"), std::string::npos) << line.message;
    }
}

TEST_F(DeviceStatusWidgetTest, AlarmPushWithoutPanelIsLost)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "unknown-model");
    page.setPortAlarmState(3, true); // before the first load: nothing to mark
    showStatus(page);
    EXPECT_EQ(panelOf(page), nullptr);
    page.setPortAlarmState(3, true); // no panel for this model: nothing either

    CDeviceStatusWidget other(nullptr);
    fleet().open(other, "edge");
    other.setPortAlarmState(3, true);
    showStatus(other);
    ASSERT_NE(panelOf(other), nullptr);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(other)), serviceAlarms(fleet().id("edge")));
}

TEST_F(DeviceStatusWidgetTest, AlarmPushBeforeTheFirstLoadOnAPortTheServerDoesNotListIsLost)
{
    const std::set<unsigned> server = serviceAlarms(fleet().id("edge"));
    unsigned unlisted = 2;
    while (server.count(unlisted))
        ++unlisted;
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    page.setPortAlarmState(static_cast<int>(unlisted), true);
    showStatus(page);
    ASSERT_NE(panelOf(page), nullptr);
    // Only what the server lists is marked: the early push is gone.
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)), server);
    EXPECT_EQ(velmora::PanelTestAccess::alarmPorts(*panelOf(page)).count(unlisted), 0u);
}

// ---------------------------------------------------------------------------------------------
// The host's entry

TEST_F(DeviceStatusWidgetTest, ShowStatusPublicSetsTheWorkStateDeviceThenLoads)
{
    CDeviceStatusWidget page(nullptr);
    fleet().open(page, "edge");
    // Another dialog chose another device meanwhile.
    velmora::WorkStatusInferface::getInstance()->initMode(fleet().id("batch"), fleet().capabilities("batch"));
    emulator().clearRequestLog();
    page.showStatusPublic();
    const std::vector<std::string> lines = fleet().requestLines("edge");
    EXPECT_NE(std::find(lines.begin(), lines.end(), kStatusRequest), lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "GET /NXRPC/Transfers/Switches/workState"), lines.end());
    EXPECT_TRUE(fleet().requestLines("batch").empty());
    EXPECT_NE(panelOf(page), nullptr);
    EXPECT_TRUE(timerOf(page)->isActive());
}

// ---------------------------------------------------------------------------------------------
// Port tooltips of the panel

TEST_F(DeviceStatusWidgetTest, PanelTooltipsTellTheNeighboursAndPowerThePageRead)
{
    for (const char* name : {"poe-switch", "plain-switch"}) {
        SCOPED_TRACE(name);
        const bool poe = std::string(name) == "poe-switch";
        CDeviceStatusWidget page(nullptr);
        fleet().open(page, name);
        showStatus(page);
        CPanelStatusBase* panel = panelOf(page);
        ASSERT_NE(panel, nullptr);
        std::vector<int> linkPorts;
        const std::vector<Row> rows = expectedRows(fleet().id(name), &linkPorts);
        ASSERT_FALSE(rows.empty());
        ASSERT_TRUE(emulator().clearRequestLog());
        for (size_t i = 0; i < rows.size(); ++i) {
            const QString tip = panel->portToolTip(static_cast<unsigned>(linkPorts[i]));
            // The port's own name and its far device, as the port table shows them.
            EXPECT_TRUE(tip.startsWith(rows[i].name + "\n")) << tip.toStdString();
            EXPECT_TRUE(tip.endsWith(QString("\nNeighbour: %1 (%2), %3").arg(rows[i].alias, rows[i].type, rows[i].ip)))
                << tip.toStdString();
            EXPECT_EQ(tip.contains("\nPoE output power: "), poe) << tip.toStdString();
        }
        // Reading the tooltips asks the device nothing.
        EXPECT_TRUE(emulator().requestLog(fleet().id(name)).empty());
    }
}
