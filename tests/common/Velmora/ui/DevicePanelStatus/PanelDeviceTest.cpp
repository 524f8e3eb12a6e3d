// The panels against emulated devices: the work state, slots and reported layouts they read
// over the device protocol, drawn where the tables put them.
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cjson/cJSON.h>
#include <gtest/gtest.h>
#include <memory>

#include "PanelTestAccess.h"
#include "logical/interface/ParamInterface.h"
#include "logical/interface/WorkStatusInferface.h"
#include "ostrand/DeviceRegistry.h"
#include "ostrand/RegistryDevice.h"
#include "support/EmulatorProcess.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::rgb;
using A = PanelTestAccess;
using velmora::test::EmulatorProcess;

// The fleet of this test: one device per family it looks at, two of the switch that reports
// its port order, and a logical panel far wider than its frame (on the plain work state
// query: the paged search carries no order text).
const char* const kFleet = R"({"name": "panels", "devices": [
  {"model": "QN-1040"},
  {"model": "QN-1021", "portOrder": "portNO1", "name": "order-one"},
  {"model": "QN-1021", "portOrder": "portNO2", "name": "order-two"},
  {"model": "QN-1058"},
  {"model": "QN-1093"},
  {"model": "QN-1097"},
  {"model": "QN-1133"},
  {"model": "QN-1140"},
  {"model": "QN-1170"},
  {"model": "QN-1138"},
  {"model": "QN-2024", "portOrder": ""},
  {"model": "QN-2048", "ports": "1-192E,193-200O", "name": "wide-logical", "portOrder": "portNO1", "batch": 0},
  {"model": "QN-2048", "name": "demo-logical"},
  {"model": "QN-2048", "ports": "1-960E,961-1000O", "name": "thousand-logical", "batch": 100}
]})";

// The panel class each model of the fleet gets from the page's model tables.
const std::map<std::string, std::pair<std::string, int>> kClassOf = {
    {"QN-1040", {"CQ110SwitchPanel", kAnyMode}},     {"QN-1021", {"CQ105SwitchPanel", kAnyMode}},
    {"QN-1058", {"CQ136SwitchPanel", kAnyMode}},     {"QN-1093", {"CQ145SwitchPanel", kAnyMode}},
    {"QN-1097", {"CQ102SwitchPanel", kAnyMode}},     {"QN-1133", {"CMutliPortBridgePanelStatus", kAnyMode}},
    {"QN-1140", {"CQ302APPannel", kAnyMode}},        {"QN-1170", {"CQ401Pannel", kAnyMode}},
    {"QN-1138", {"CFiberReceiveCardPanelStatus", kAnyMode}},
};

class PanelDeviceTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        paneltest::initArt();
        s_dir = new QTemporaryDir;
        const QString fleet = s_dir->filePath("panels-fleet.json");
        QFile file(fleet);
        if (file.open(QIODevice::WriteOnly))
            file.write(kFleet);
        file.close();
        s_emulator = new EmulatorProcess(fleet.toStdString());
    }
    static void TearDownTestSuite()
    {
        delete s_emulator;
        s_emulator = nullptr;
        delete s_dir;
        s_dir = nullptr;
    }
    void SetUp() override
    {
        ASSERT_TRUE(s_emulator->isRunning()) << s_emulator->errorString();
        s_emulator->clearFaults();
    }

    static std::string idOf(const std::string& model, const std::string& name = std::string())
    {
        for (const EmulatorProcess::Device& d : s_emulator->devices())
            if (d.model == model && (name.empty() || d.name == name))
                return d.id;
        return std::string();
    }

    // Chooses the device for the work state, as the dialog does on opening it.
    static std::shared_ptr<tarvex7300::IAbstractDevice> open(const std::string& id)
    {
        const auto device = s_emulator->device(id);
        protocol::SwitchCapabilities caps;
        if (device) {
            if (cJSON* json = cJSON_Parse(device->capabilitiesJson.c_str())) {
                caps.fromJSON(json);
                cJSON_Delete(json);
            }
        }
        WorkStatusInferface::getInstance()->initMode(id, caps);
        const auto entry = ostrand::CDeviceRegistry::instance().find(id);
        return entry ? std::make_shared<ostrand::CRegistryDevice>(*entry) : nullptr;
    }

    static Quillon::SwitchesWorkState workState()
    {
        Quillon::SwitchesWorkState state{std::string()};
        EXPECT_TRUE(WorkStatusInferface::getInstance()->queryWorkState(state));
        return state;
    }

    static QTemporaryDir* s_dir;
    static EmulatorProcess* s_emulator;
};

QTemporaryDir* PanelDeviceTest::s_dir = nullptr;
EmulatorProcess* PanelDeviceTest::s_emulator = nullptr;

TEST_F(PanelDeviceTest, PortPanelsDrawTheDevicesPortStates)
{
    for (const auto& entry : kClassOf) {
        const PanelLayout& row = layoutNamed(entry.second.first);
        if (row.family == Family::Chassis || row.orderFromDevice)
            continue;
        const std::string id = idOf(entry.first);
        ASSERT_FALSE(id.empty()) << entry.first;
        auto device = open(id);
        std::unique_ptr<CPanelStatusBase> panel(createPanel(entry.second.first, entry.second.second, nullptr));
        panel->panelDevice = device;
        panel->showPanelStatus();
        const Quillon::SwitchesWorkState state = workState();
        ASSERT_FALSE(state.portList.empty()) << entry.first;
        const QImage image = paneltest::render(panel.get());
        QPoint sample(2, 2);
        if (!row.scaledPorts.isEmpty()) {
            const Size drawn = shapeSize(row.images->images.front().shape);
            sample = QPoint(static_cast<int>(2.5 * row.scaledPorts.width / drawn.width),
                            static_cast<int>(2.5 * row.scaledPorts.height / drawn.height));
        }
        int checked = 0;
        for (const Quillon::SwitchesWorkStateItem& item : state.portList) {
            const unsigned port = static_cast<unsigned>(item.portId);
            if (!A::positions(panel.get()).count(port) || row.runOf(item.portId)->kind == PortKind::Console)
                continue;
            QColor expected;
            if (row.images->internet >= 0 && item.portRemark == "connected")
                expected = rgb(kInternetColor);
            else if (item.portType == "electrical" ||
                     (item.portType == "optical" && row.images->hasKind(PortKind::Optical)))
                expected = rgb(item.linkState == "connected" ? kNormalColor : kNotConnectedColor);
            else if (item.portType == "multiplex" && row.multiplex == Multiplex::ComboPorts && row.isCombo(item.portId))
                expected = rgb(kNotConnectedColor);
            else if (item.portType == "multiplex" && row.multiplex == Multiplex::AsElectrical)
                expected = rgb(item.linkState == "connected" ? kNormalColor : kNotConnectedColor);
            else
                continue;
            EXPECT_EQ(paneltest::portColor(panel.get(), image, port, sample), expected)
                << entry.second.first << " port " << port << " " << item.portType << " " << item.linkState;
            ++checked;
        }
        EXPECT_GT(checked, 0) << entry.second.first;
    }
}

TEST_F(PanelDeviceTest, AlarmsFromThePageOutliveARefreshFromTheDevice)
{
    auto device = open(idOf("QN-1040"));
    std::unique_ptr<CPanelStatusBase> panel(createPanel("CQ110SwitchPanel", kAnyMode, nullptr));
    panel->panelDevice = device;
    panel->showPanelStatus();
    panel->setPortAlarm(1, true);
    panel->setPortAlarm(9, true);
    panel->showPanelStatus();
    QImage image = paneltest::render(panel.get());
    EXPECT_EQ(paneltest::portColor(panel.get(), image, 1), rgb(kAlarmColor));
    EXPECT_EQ(paneltest::portColor(panel.get(), image, 9), rgb(kAlarmColor));
    panel->setPortAlarm(1, false);
    image = paneltest::render(panel.get());
    EXPECT_EQ(paneltest::portColor(panel.get(), image, 1), rgb(kNormalColor));
}

TEST_F(PanelDeviceTest, FailedWorkStateLeavesThePanelAsItWas)
{
    const std::string id = idOf("QN-1040");
    auto device = open(id);
    std::unique_ptr<CPanelStatusBase> panel(createPanel("CQ110SwitchPanel", kAnyMode, nullptr));
    panel->panelDevice = device;
    panel->showPanelStatus();
    const auto before = A::portPixmaps(panel.get());
    ASSERT_FALSE(before.empty());
    ASSERT_TRUE(s_emulator->setFault(id, "/NXRPC/Transfers/Switches/workState*", EmulatorProcess::Fault::httpStatus(503)));
    panel->showPanelStatus();
    EXPECT_EQ(A::portPixmaps(panel.get()), before);
}

TEST_F(PanelDeviceTest, PortOrderOfTheDevicePicksTheRows)
{
    for (const char* name : {"order-one", "order-two"}) {
        auto device = open(idOf("QN-1021", name));
        std::unique_ptr<CPanelStatusBase> panel(createPanel("CQ105SwitchPanel", kAnyMode, nullptr));
        panel->panelDevice = device;
        auto* layoutPanel = static_cast<CLayoutPanel*>(panel.get());
        const bool one = std::string(name) == "order-one";
        EXPECT_EQ(A::portNoOneFirst(layoutPanel), one);
        const int he = A::pixmaps(panel.get()).at(6)->height();
        ASSERT_EQ(A::positions(panel.get()).size(), 18u) << name;
        EXPECT_EQ(A::positions(panel.get()).at(1), QPoint(189, one ? 31 : 37 + he)) << name;
        EXPECT_EQ(A::positions(panel.get()).at(2), QPoint(189, one ? 37 + he : 31)) << name;
        panel->showPanelStatus();
        for (const auto& item : workState().portList) {
            if (item.portType != "electrical" || item.portId > 16)
                continue;
            const bool upper = (item.portId % 2 == 1) == one;
            const int id = item.linkState == "connected" ? (upper ? 6 : 9) : (upper ? 4 : 7);
            EXPECT_EQ(A::portPixmaps(panel.get())[item.portId], A::pixmaps(panel.get())[id])
                << name << " port " << item.portId;
        }
    }
}

TEST_F(PanelDeviceTest, ChassisShowTheirBoards)
{
    for (const char* model : {"QN-1093", "QN-1097"}) {
        auto device = open(idOf(model));
        const std::string cls = kClassOf.at(model).first;
        std::unique_ptr<CPanelStatusBase> panel(createPanel(cls, kAnyMode, nullptr));
        panel->panelDevice = device;
        panel->showPanelStatus();
        Quillon::SwitchSlotInfolList list{std::string()};
        ASSERT_TRUE(ParamInterface::getSwitchSlotInfolList(list, device->getDeviceId()));
        ASSERT_FALSE(list.slotList.empty());
        const QImage image = paneltest::render(panel.get());
        for (const Quillon::SwitchSlotInfo& slot : list.slotList) {
            const unsigned s = static_cast<unsigned>(slot.slotId);
            if (!A::positions(panel.get()).count(s))
                continue;
            const int h = A::portPixmaps(panel.get()).at(s)->height();
            EXPECT_EQ(paneltest::portColor(panel.get(), image, s, QPoint(2, h / 2)),
                      rgb(slot.inserted ? kNormalColor : kNotConnectedColor))
                << cls << " slot " << s;
        }
    }
}

// Where each column of a reported layout starts: a border or a space sets the width, every
// other column is as wide as the one before, a port cell's before the first.
std::vector<int> columnStarts(const Quillon::Panel& reported, int cellWidth, int borderWidth)
{
    std::vector<int> starts;
    int x = 26;
    int w = cellWidth;
    const size_t rows = static_cast<size_t>(reported.rowCount);
    for (size_t i = 0; rows > 0 && i + rows <= reported.cellList.size(); i += rows) {
        const std::string& type = reported.cellList[i].cellType;
        if (type == "border")
            w = borderWidth;
        else if (type == "septalSpace")
            w = 16;
        starts.push_back(x);
        x += w;
    }
    starts.push_back(x);
    return starts;
}

// Checks that every port cell of `panel` shows the state the device reports, in the column
// where the layout puts it, and that the columns neither overlap nor leave gaps: each is
// a port cell wide and the last ends at the image's right margin. Returns the ports checked.
int expectPortsInTheirColumns(CSwitchLogicalPanel& panel, const std::string& deviceId,
                              const Quillon::SwitchesWorkState& state)
{
    Quillon::PanelStatus status{std::string()};
    EXPECT_TRUE(ParamInterface::getSwitchSlotPanelInfo(status, deviceId, 1));
    if (status.panelList.empty())
        return 0;
    const Quillon::Panel& reported = status.panelList.front();
    const int rowHeight = A::rowHeight(&panel);
    const int cellWidth = rowHeight + 2 * reported.portMargin;
    EXPECT_EQ(A::cellWidth(&panel), cellWidth);
    const std::vector<int> starts = columnStarts(reported, cellWidth, A::logicalSizes(&panel)[120][2]);
    for (size_t c = 1; c < starts.size(); ++c)
        EXPECT_EQ(starts[c] - starts[c - 1], cellWidth) << "column " << c - 1;
    EXPECT_EQ(starts.back() + 26, A::panelPixmap(&panel).width());

    std::map<int, const Quillon::SwitchesWorkStateItem*> items;
    for (const auto& item : state.portList)
        items[item.portId] = &item;
    const QImage img = A::panelPixmap(&panel).toImage();
    const int rows = reported.rowCount;
    const int top = (120 - std::min(rows, 2) * 12 - rowHeight * rows) / 2;
    const QColor cellColor(144, 147, 150);
    int checked = 0;
    for (size_t i = 0, column = 0; i + rows <= reported.cellList.size(); i += rows, ++column) {
        const int x = starts[column];
        for (int r = 0; r < rows; ++r) {
            const Quillon::PanelCell& c = reported.cellList[i + r];
            if (c.cellType != "port" || !items.count(c.portId))
                continue;
            const auto* item = items[c.portId];
            const QColor expected = item->portRemark == "connected" && c.portType == "electrical"
                                        ? rgb(kInternetColor)
                                        : rgb(item->linkState == "connected" ? kNormalColor : kNotConnectedColor);
            const int y = top + 12 + rowHeight * r;
            EXPECT_EQ(img.pixelColor(x + reported.portMargin + 1, y + 1), expected) << "port " << c.portId;
            EXPECT_EQ(img.pixelColor(x + reported.portMargin + rowHeight - 2, y + 1), expected) << "port " << c.portId;
            // The cell's own grey on both sides: no neighbour drawn over it.
            EXPECT_EQ(img.pixelColor(x, y + rowHeight / 2), cellColor) << "port " << c.portId;
            EXPECT_EQ(img.pixelColor(x + cellWidth - 1, y + rowHeight / 2), cellColor) << "port " << c.portId;
            ++checked;
        }
    }
    return checked;
}

TEST_F(PanelDeviceTest, LogicalPanelFollowsTheReportedLayout)
{
    auto device = open(idOf("QN-2024"));
    CSwitchLogicalPanel panel(nullptr);
    panel.panelDevice = device;
    panel.showPanelStatus();
    // An empty order text leaves the direction to each cell.
    EXPECT_TRUE(A::directionFromCells(&panel));
    EXPECT_GT(expectPortsInTheirColumns(panel, device->getDeviceId(), workState()), 20);
}

TEST_F(PanelDeviceTest, LogicalPanelsOfTheDemoAndOfAThousandPortsDrawEveryPortInItsColumn)
{
    QDir().mkpath(paneltest::snapshotDir());
    struct Device {
        std::string model, name;
        int ports;
    };
    for (const Device& d : {Device{"QN-2024", "", 24}, Device{"QN-2048", "demo-logical", 48},
                            Device{"QN-2048", "thousand-logical", 1000}}) {
        SCOPED_TRACE(d.model + " " + d.name);
        auto device = open(idOf(d.model, d.name));
        ASSERT_TRUE(device);
        CSwitchLogicalPanel panel(nullptr);
        panel.panelDevice = device;
        panel.showPanelStatus();
        EXPECT_GE(expectPortsInTheirColumns(panel, device->getDeviceId(), workState()), d.ports);
        const std::string file = "/CSwitchLogicalPanel_" + d.model + (d.name.empty() ? "" : "_" + d.name) + ".png";
        EXPECT_TRUE(A::panelPixmap(&panel).save(paneltest::snapshotDir() + QString::fromStdString(file)));
        // The panel as the page shows it, shrunk to its frame where it is wider.
        panel.resize(1095, 242);
        EXPECT_TRUE(paneltest::render(&panel).save(paneltest::snapshotDir() +
                                                   QString::fromStdString("/CSwitchLogicalPanel_" + d.model +
                                                                          (d.name.empty() ? "" : "_" + d.name) +
                                                                          "_shown.png")));
    }
}

TEST_F(PanelDeviceTest, WideLogicalPanelIsMagnifiedUnderTheMouse)
{
    auto device = open(idOf("QN-2048", "wide-logical"));
    CSwitchLogicalPanel panel(nullptr);
    panel.panelDevice = device;
    panel.showPanelStatus();
    EXPECT_FALSE(A::directionFromCells(&panel));
    EXPECT_TRUE(A::oddPortsUp(&panel));
    panel.show();
    panel.resize(1095, 242);
    panel.layout()->activate();
    QWidget* frame = A::ui(&panel)->m_pPanelPanelFrame;
    ASSERT_GT(A::panelPixmap(&panel).width(), frame->width());
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(frame, &enter);
    A::setMouse(&panel, frame->x() + 200, frame->y() + 20, true);
    QImage image(panel.size(), QImage::Format_ARGB32);
    panel.render(&image);
    EXPECT_TRUE(A::partPixmap(&panel)->isVisible());
    EXPECT_FALSE(A::partLabel(A::partPixmap(&panel))->pixmap(Qt::ReturnByValue).isNull());
    QDir().mkpath(paneltest::snapshotDir());
    image.save(paneltest::snapshotDir() + "/CSwitchLogicalPanel_wide.png");
    A::partLabel(A::partPixmap(&panel))->pixmap(Qt::ReturnByValue).save(paneltest::snapshotDir() +
                                                                           "/CSwitchLogicalPanel_magnifier.png");
}

} // namespace
} // namespace velmora
