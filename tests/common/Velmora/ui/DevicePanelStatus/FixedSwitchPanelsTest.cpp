// The fixed switch panels: every class over its table row, and the rules the families add.
#include <gtest/gtest.h>
#include <memory>
#include <ostream>

#include "PanelTestAccess.h"
#include "ui/DevicePanelStatus/FixedSwitchPanels.h"

namespace velmora {
namespace {

using namespace layouts;
using paneltest::item;
using paneltest::rgb;
using paneltest::state;
using A = PanelTestAccess;

struct ClassAndMode {
    std::string name;
    int mode;
};

void PrintTo(const ClassAndMode& c, std::ostream* out)
{
    *out << c.name;
    if (c.mode != layouts::kAnyMode)
        *out << " mode " << c.mode;
}

std::vector<ClassAndMode> fixedClasses()
{
    std::vector<ClassAndMode> result;
    for (const PanelLayout& row : fixedSwitchLayouts())
        for (int mode : row.modes())
            result.push_back({row.className, mode});
    return result;
}

std::unique_ptr<CLayoutPanel> makePanel(const std::string& name, int mode = kAnyMode)
{
    return std::unique_ptr<CLayoutPanel>(static_cast<CLayoutPanel*>(createPanel(name, mode, nullptr)));
}

QColor colorOf(const QPixmap* pixmap)
{
    return pixmap ? pixmap->toImage().pixelColor(2, 2) : QColor();
}

// The stored images of a panel as the row's size source.
class StoredSizes : public SizeSource {
public:
    explicit StoredSizes(CPanelStatusBase* panel) : m_panel(panel) {}
    Size sizeOf(int id) const override
    {
        const auto& pixmaps = A::pixmaps(m_panel);
        const auto it = pixmaps.find(static_cast<unsigned>(id));
        return it == pixmaps.end() ? Size{} : Size{it->second->width(), it->second->height()};
    }

private:
    CPanelStatusBase* m_panel;
};

class FixedSwitchClassTest : public ::testing::TestWithParam<ClassAndMode> {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }

    void SetUp() override
    {
        row = &layoutNamed(GetParam().name);
        panel = makePanel(GetParam().name, GetParam().mode);
        ASSERT_TRUE(panel);
        if (row->orderFromDevice) {
            // No device answers here: the panel has no ports until the rows are placed.
            EXPECT_TRUE(A::positions(panel.get()).empty());
            A::placePortRows(panel.get(), false);
        }
    }

    std::vector<int> dataPorts() const
    {
        std::vector<int> ports;
        for (const layouts::Run& run : row->runs)
            if (run.kind != PortKind::Console)
                for (int p = run.first; p <= run.last; p += run.step)
                    ports.push_back(p);
        return ports;
    }

    const PanelLayout* row = nullptr;
    std::unique_ptr<CLayoutPanel> panel;
};

TEST_P(FixedSwitchClassTest, IsItsOwnNamedClassWithTheRowsImages)
{
    EXPECT_EQ(std::string(panel->metaObject()->className()), "velmora::" + GetParam().name);
    EXPECT_EQ(&panel->layout(), row);
    EXPECT_EQ(static_cast<int>(A::pixmaps(panel.get()).size()), row->imageCount());
    const QImage expectedFrame(QString::fromStdString(resourcePath(row->framePath(GetParam().mode))));
    ASSERT_FALSE(expectedFrame.isNull());
    EXPECT_EQ(A::pixmaps(panel.get()).at(0)->toImage().convertToFormat(QImage::Format_ARGB32),
              expectedFrame.convertToFormat(QImage::Format_ARGB32));
    for (const auto& entry : A::pixmaps(panel.get()))
        EXPECT_FALSE(entry.second->isNull()) << "image " << entry.first;
    if (!row->scaledPorts.isEmpty()) {
        for (const Image& img : row->images->images)
            EXPECT_EQ(A::pixmaps(panel.get()).at(img.id)->size(), QSize(row->scaledPorts.width, row->scaledPorts.height));
    }
}

TEST_P(FixedSwitchClassTest, PositionsAreTheTableForTheDrawnImageSizes)
{
    const ArtSizes drawn(*row);
    std::map<unsigned, QPoint> expected;
    for (const Placement& p : placePorts(*row, drawn))
        expected[static_cast<unsigned>(p.port)] = QPoint(p.position.x, p.position.y);
    EXPECT_EQ(A::positions(panel.get()), expected);
    // The stored images have the drawn sizes.
    for (const Image& img : row->images->images) {
        const Size s = drawn.sizeOf(img.id);
        EXPECT_EQ(A::pixmaps(panel.get()).at(img.id)->size(), QSize(s.width, s.height)) << img.path;
    }
}

TEST_P(FixedSwitchClassTest, EveryPortLiesInsideTheFrame)
{
    const QRect frame = A::pixmaps(panel.get()).at(0)->rect();
    const StoredSizes sizes(panel.get());
    for (const Placement& p : placePorts(*row, sizes)) {
        for (const auto& entry : A::pixmaps(panel.get())) {
            if (entry.first == 0)
                continue;
            // Any of the port images could stand there; all of a kind have one size.
            const Image* img = row->images->image(static_cast<int>(entry.first));
            const bool sameKind = p.kind == PortKind::Console ? static_cast<int>(entry.first) == row->images->console
                                                               : (row->images->group(p.kind, RowForm::Upper) &&
                                                                  row->images->group(p.kind, RowForm::Upper)->up == img->id);
            if (sameKind) {
                EXPECT_TRUE(frame.contains(QRect(A::positions(panel.get()).at(p.port), entry.second->size())))
                    << "port " << p.port;
            }
        }
    }
    if (row->logo.shown) {
        EXPECT_TRUE(frame.contains(QRect(A::svgOffset(panel.get()), QSize(48, 7))));
    }
}

TEST_P(FixedSwitchClassTest, ReportedTypeAndLinkStatePickTheImage)
{
    const bool hasOptical = row->images->hasKind(PortKind::Optical);
    for (int port : dataPorts()) {
        const unsigned p = static_cast<unsigned>(port);
        A::applyWorkState(panel.get(), state({item(port, "electrical", "connected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kNormalColor)) << "port " << port;
        A::applyWorkState(panel.get(), state({item(port, "electrical", "disconnected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kNotConnectedColor)) << "port " << port;
        const QPixmap* before = A::portPixmaps(panel.get())[p];
        A::applyWorkState(panel.get(), state({item(port, "optical", "connected")}));
        if (hasOptical) {
            EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kNormalColor)) << "port " << port;
        } else {
            EXPECT_EQ(A::portPixmaps(panel.get())[p], before) << "port " << port;
        }
        // An unknown type leaves the image as it was.
        const QPixmap* kept = A::portPixmaps(panel.get())[p];
        A::applyWorkState(panel.get(), state({item(port, "wireless", "connected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[p], kept) << "port " << port;
    }
}

TEST_P(FixedSwitchClassTest, JackFormFollowsTheRowAPortStandsIn)
{
    const ImageGroup* upper = row->images->group(PortKind::Electrical, RowForm::Upper);
    const ImageGroup* lower = row->images->group(PortKind::Electrical, RowForm::Lower);
    const auto& positions = A::positions(panel.get());
    if (!row->images->hasTwoForms(PortKind::Electrical)) {
        // One jack form: every electrical port takes it, whatever its row.
        for (int port : dataPorts()) {
            A::applyWorkState(panel.get(), state({item(port, "electrical", "connected")}));
            EXPECT_EQ(A::portPixmaps(panel.get())[port], A::pixmaps(panel.get())[upper->up]) << "port " << port;
        }
        return;
    }
    for (const layouts::Run& run : row->runs) {
        if (run.kind != PortKind::Electrical || run.first % 2 == 0)
            continue;
        const layouts::Run* partner = nullptr;
        for (const layouts::Run& other : row->runs)
            if (other.first == run.first + 1 && positions.at(other.first).x() == positions.at(run.first).x())
                partner = &other;
        if (!partner)
            continue;
        const bool oddAbove = positions.at(run.first).y() < positions.at(partner->first).y();
        A::applyWorkState(panel.get(), state({item(run.first, "electrical", "connected"),
                                              item(partner->first, "electrical", "connected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[run.first], A::pixmaps(panel.get())[(oddAbove ? upper : lower)->up])
            << "port " << run.first;
        EXPECT_EQ(A::portPixmaps(panel.get())[partner->first], A::pixmaps(panel.get())[(oddAbove ? lower : upper)->up])
            << "port " << partner->first;
    }
}

TEST_P(FixedSwitchClassTest, AlarmsLastThroughRefreshesUntilCleared)
{
    for (int port : dataPorts()) {
        const unsigned p = static_cast<unsigned>(port);
        A::applyWorkState(panel.get(), state({item(port, "electrical", "disconnected")}));
        panel->setPortAlarm(p, true);
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kAlarmColor)) << "port " << port;
        A::applyWorkState(panel.get(), state({item(port, "electrical", "connected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kAlarmColor)) << "port " << port;
        A::applyWorkState(panel.get(), state({item(port, "electrical", "disconnected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kAlarmColor)) << "port " << port;
        // Cleared: the connected image, although the port is down, until the next refresh.
        panel->setPortAlarm(p, false);
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kNormalColor)) << "port " << port;
        EXPECT_FALSE(A::alarms(panel.get()).count(p));
        A::applyWorkState(panel.get(), state({item(port, "electrical", "disconnected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kNotConnectedColor)) << "port " << port;
    }
}

TEST_P(FixedSwitchClassTest, LegendShowsTheKindsOfPortsTheModelHas)
{
    Ui::UiPanelStatusBase* ui = A::ui(panel.get());
    EXPECT_TRUE(ui->fiberOptionalIconLabel->isHidden());
    EXPECT_TRUE(ui->fiberOptionalTextLabel->isHidden());
    // Decided by the ports of the table, not by the images the model loads.
    const bool noOptical = !row->hasPortOfKind(PortKind::Optical);
    EXPECT_EQ(ui->optionalIconLabel->isHidden(), noOptical);
    EXPECT_EQ(ui->optionalTextLabel->isHidden(), noOptical);
    EXPECT_EQ(ui->label->isHidden(), row->hideElectricalLegend);
    EXPECT_EQ(ui->label_2->isHidden(), row->hideElectricalLegend);
    // The page hides the connected entry of switches; the panel itself leaves it.
    EXPECT_FALSE(ui->label_3->isHidden());
}

TEST_P(FixedSwitchClassTest, UnknownTypeOnAPortWithoutAnImageLeavesItWithout)
{
    for (int port : dataPorts()) {
        const unsigned p = static_cast<unsigned>(port);
        if (A::portPixmaps(panel.get()).count(p))
            continue;
        for (const char* type : {"wireless", "Electrical", "fiber", ""}) {
            A::applyWorkState(panel.get(), state({item(port, type, "connected")}));
            const auto& images = A::portPixmaps(panel.get());
            const auto it = images.find(p);
            EXPECT_TRUE(it == images.end() || it->second == nullptr) << "port " << port << " type " << type;
        }
    }
    // What is drawn is only the frame where no port has an image.
    EXPECT_FALSE(paneltest::render(panel.get()).isNull());
}

TEST_P(FixedSwitchClassTest, ConsolePortShowsItsImageForGood)
{
    for (const layouts::Run& run : row->runs) {
        if (run.kind != PortKind::Console)
            continue;
        const unsigned p = static_cast<unsigned>(run.first);
        EXPECT_EQ(A::portPixmaps(panel.get())[p], A::pixmaps(panel.get())[row->images->console]);
        // Only a report of the port itself could change it; the others leave it.
        A::applyWorkState(panel.get(), state({item(1, "electrical", "connected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[p], A::pixmaps(panel.get())[row->images->console]);
    }
}

std::string testName(const ::testing::TestParamInfo<ClassAndMode>& info)
{
    return info.param.name + (info.param.mode == kAnyMode ? std::string() : "_mode" + std::to_string(info.param.mode));
}

INSTANTIATE_TEST_SUITE_P(AllModels, FixedSwitchClassTest, ::testing::ValuesIn(fixedClasses()), testName);

// ---------------------------------------------------------------------------------------------

class FixedSwitchRulesTest : public ::testing::Test {
protected:
    static void SetUpTestSuite() { paneltest::initArt(); }
};

TEST_F(FixedSwitchRulesTest, TenPortPanelUsesItsOwnImageNumbers)
{
    CQ110SwitchPanel panel(nullptr);
    auto& images = A::pixmaps(&panel);
    const QSize we = images.at(3)->size();
    const QSize wo = images.at(6)->size();
    for (unsigned port = 1; port <= 8; ++port)
        EXPECT_EQ(A::positions(&panel).at(port), QPoint(77 + static_cast<int>(port - 1) * (5 + we.width()), 22));
    EXPECT_EQ(A::positions(&panel).at(9), QPoint(485, 44));
    EXPECT_EQ(A::positions(&panel).at(10), QPoint(485 + 5 + wo.width(), 44));

    A::applyWorkState(&panel, state({item(1, "electrical", "connected"), item(2, "electrical", "disconnected"),
                                     item(9, "optical", "connected"), item(10, "optical", "disconnected")}));
    EXPECT_EQ(A::portPixmaps(&panel)[1], images[3]);
    EXPECT_EQ(A::portPixmaps(&panel)[2], images[1]);
    EXPECT_EQ(A::portPixmaps(&panel)[9], images[6]);
    EXPECT_EQ(A::portPixmaps(&panel)[10], images[4]);
}

TEST_F(FixedSwitchRulesTest, MultiplexCountsAsElectricalButTheAlarmFollowsThePortNumber)
{
    CQ110SwitchPanel panel(nullptr);
    auto& images = A::pixmaps(&panel);
    A::applyWorkState(&panel, state({item(9, "multiplex", "connected"), item(10, "multiplex", "disconnected")}));
    EXPECT_EQ(A::portPixmaps(&panel)[9], images[3]);
    EXPECT_EQ(A::portPixmaps(&panel)[10], images[1]);
    panel.setPortAlarm(9, true);
    EXPECT_EQ(A::portPixmaps(&panel)[9], images[5]);
    panel.setPortAlarm(9, false);
    EXPECT_EQ(A::portPixmaps(&panel)[9], images[6]);
    // Port 0 counts as electrical.
    panel.setPortAlarm(0, true);
    EXPECT_EQ(A::portPixmaps(&panel)[0], images[2]);
    panel.setPortAlarm(8, true);
    EXPECT_EQ(A::portPixmaps(&panel)[8], images[2]);
}

TEST_F(FixedSwitchRulesTest, PortBeyondTheTableIsStoredAndNeverDrawn)
{
    CQ110SwitchPanel panel(nullptr);
    A::applyWorkState(&panel, state({item(40, "electrical", "connected")}));
    EXPECT_EQ(A::portPixmaps(&panel)[40], A::pixmaps(&panel)[3]);
    EXPECT_FALSE(A::positions(&panel).count(40));
}

TEST_F(FixedSwitchRulesTest, PortOrderOfTheDeviceSwapsTheRows)
{
    CQ105SwitchPanel panel(nullptr);
    const int he = A::pixmaps(&panel).at(6)->height();
    auto& images = A::pixmaps(&panel);

    // Port 1 first in its row: odd ports above, with the upper jack form.
    A::setPortNoOneFirst(&panel, true);
    A::placePortRows(&panel, true);
    EXPECT_EQ(A::positions(&panel).at(1), QPoint(189, 31));
    EXPECT_EQ(A::positions(&panel).at(2), QPoint(189, 37 + he));
    A::applyWorkState(&panel, state({item(1, "electrical", "connected"), item(2, "electrical", "connected"),
                                     item(3, "multiplex", "disconnected"), item(4, "electrical", "disconnected")}));
    EXPECT_EQ(A::portPixmaps(&panel)[1], images[6]);
    EXPECT_EQ(A::portPixmaps(&panel)[2], images[9]);
    EXPECT_EQ(A::portPixmaps(&panel)[3], images[4]);
    EXPECT_EQ(A::portPixmaps(&panel)[4], images[7]);
    panel.setPortAlarm(1, true);
    EXPECT_EQ(A::portPixmaps(&panel)[1], images[5]);
    panel.setPortAlarm(2, true);
    EXPECT_EQ(A::portPixmaps(&panel)[2], images[8]);

    // Any other order text: the same ports in swapped rows and forms.
    CQ105SwitchPanel other(nullptr);
    A::setPortNoOneFirst(&other, false);
    A::placePortRows(&other, false);
    EXPECT_EQ(A::positions(&other).at(1), QPoint(189, 37 + he));
    EXPECT_EQ(A::positions(&other).at(2), QPoint(189, 31));
    auto& otherImages = A::pixmaps(&other);
    A::applyWorkState(&other, state({item(1, "electrical", "connected"), item(2, "electrical", "connected")}));
    EXPECT_EQ(A::portPixmaps(&other)[1], otherImages[9]);
    EXPECT_EQ(A::portPixmaps(&other)[2], otherImages[6]);
    other.setPortAlarm(1, true);
    EXPECT_EQ(A::portPixmaps(&other)[1], otherImages[8]);
    other.setPortAlarm(2, true);
    EXPECT_EQ(A::portPixmaps(&other)[2], otherImages[5]);
}

TEST_F(FixedSwitchRulesTest, WithoutAnOrderAnswerThePanelHasNoPorts)
{
    for (const char* name : {"CQ105SwitchPanel", "CQ107SwitchPanel", "CQ112SwitchPanel", "CQ114SwitchPanel"}) {
        auto panel = makePanel(name);
        EXPECT_TRUE(A::positions(panel.get()).empty()) << name;
        EXPECT_FALSE(A::portNoOneFirst(panel.get())) << name;
        EXPECT_TRUE(panel->layout().orderFromDevice) << name;
    }
    for (const PanelLayout& row : fixedSwitchLayouts()) {
        const std::string name = row.className;
        const bool asks = name == "CQ105SwitchPanel" || name == "CQ107SwitchPanel" || name == "CQ112SwitchPanel" ||
                          name == "CQ114SwitchPanel";
        EXPECT_EQ(row.orderFromDevice, asks) << name;
    }
}

TEST_F(FixedSwitchRulesTest, AlarmOnAPortWithoutReportedKindOnlyJoinsTheAlarmSet)
{
    CQ116SwitchPanel panel(nullptr);
    panel.setPortAlarm(3, true);
    EXPECT_FALSE(A::portPixmaps(&panel).count(3));
    EXPECT_TRUE(A::alarms(&panel).count(3));
    // A port last reported with another kind keeps its image too.
    A::applyWorkState(&panel, state({item(4, "electrical", "connected"), item(4, "wireless", "connected")}));
    const QPixmap* before = A::portPixmaps(&panel)[4];
    EXPECT_EQ(A::portKinds(&panel)[4], CLayoutPanel::kOtherKind);
    panel.setPortAlarm(4, true);
    EXPECT_EQ(A::portPixmaps(&panel)[4], before);
}

TEST_F(FixedSwitchRulesTest, IgnoringFamiliesKeepTheImageOfAMultiplexPort)
{
    for (const char* name : {"CQ101SwitchPanel", "CQ116SwitchPanel", "CQ123SwitchPanel", "CQ140SwitchPanel",
                             "CQ143SwitchPanel", "CQ144SwitchPanel", "CQ201SwitchPanel", "CQ202SwitchPanel",
                             "CQ203SwitchPanel"}) {
        auto panel = makePanel(name, name == std::string("CQ101SwitchPanel") ? 1 : kAnyMode);
        EXPECT_EQ(panel->layout().multiplex, Multiplex::Ignored) << name;
        A::applyWorkState(panel.get(), state({item(1, "multiplex", "connected")}));
        EXPECT_FALSE(A::portPixmaps(panel.get()).count(1)) << name;
        A::applyWorkState(panel.get(), state({item(1, "electrical", "disconnected")}));
        const QPixmap* before = A::portPixmaps(panel.get())[1];
        A::applyWorkState(panel.get(), state({item(1, "multiplex", "connected")}));
        EXPECT_EQ(A::portPixmaps(panel.get())[1], before) << name;
    }
}

TEST_F(FixedSwitchRulesTest, ElectricalFamiliesTreatMultiplexAsElectricalOnEveryPort)
{
    for (const char* name : {"CQ103SerialSwitchPanel", "CQ105SwitchPanel", "CQ107SwitchPanel", "CQ109SwitchPanel",
                             "CQ110SwitchPanel", "CQ111SwitchPanel", "CQ112SwitchPanel", "CQ113SwitchPanel",
                             "CQ114SwitchPanel", "CQ117SwitchPanel", "CQ120SwitchPanel", "CQ124SwitchPanel",
                             "CQ125SwitchPanel", "CQ126SwitchPanel", "CQ128SwitchPanel", "CQ129SwitchPanel",
                             "CQ131SwitchPanel", "CQ132SwitchPanel", "CQ134SwitchPanel", "CQ141SwitchPanel"}) {
        auto panel = makePanel(name, name == std::string("CQ103SerialSwitchPanel") ? 1 : kAnyMode);
        EXPECT_EQ(panel->layout().multiplex, Multiplex::AsElectrical) << name;
        A::applyWorkState(panel.get(), state({item(1, "multiplex", "connected"), item(2, "multiplex", "disconnected")}));
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[1]), rgb(kNormalColor)) << name;
        EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[2]), rgb(kNotConnectedColor)) << name;
    }
}

TEST_F(FixedSwitchRulesTest, ComboPortsShowTheirRunsLinkDownImageInEitherState)
{
    const std::map<std::string, std::vector<int>> combos = {
        {"CQ115SwitchPanel", {11, 12}},         {"CQ118SwitchPanel", {25, 26, 27, 28}},
        {"CQ119SwitchPanel", {25, 26}},         {"CQ121SwitchPanel", {9, 10}},
        {"CQ122SwitchPanel", {9, 10}},          {"CQ127SwitchPanel", {25, 26, 27, 28, 29, 30, 31, 32}},
        {"CQ130SwitchPanel", {31, 34, 38}},     {"CQ136SwitchPanel", {17, 20, 24, 31, 38, 39, 40}},
    };
    for (const auto& entry : combos) {
        const PanelLayout& row = layoutNamed(entry.first);
        auto panel = makePanel(entry.first, row.modes().front());
        EXPECT_EQ(row.multiplex, Multiplex::ComboPorts) << entry.first;
        for (int port : entry.second) {
            const unsigned p = static_cast<unsigned>(port);
            const layouts::Run* run = row.runOf(port);
            ASSERT_NE(run, nullptr) << entry.first << " " << port;
            for (const char* link : {"connected", "disconnected"}) {
                A::applyWorkState(panel.get(), state({item(port, "multiplex", link)}));
                const ImageGroup* group = row.images->group(
                    run->kind, row.images->hasTwoForms(run->kind)
                                   ? formOf(port, oddPortsUp(row, StoredSizes(panel.get())))
                                   : RowForm::Any);
                EXPECT_EQ(A::portPixmaps(panel.get())[p], A::pixmaps(panel.get())[group->down])
                    << entry.first << " port " << port << " " << link;
            }
            // The alarm follows the run's kind.
            panel->setPortAlarm(p, true);
            EXPECT_EQ(colorOf(A::portPixmaps(panel.get())[p]), rgb(kAlarmColor)) << entry.first << " " << port;
            panel->setPortAlarm(p, false);
        }
        // Ports outside the combo ranges keep their image.
        A::applyWorkState(panel.get(), state({item(1, "multiplex", "connected")}));
        EXPECT_FALSE(A::portPixmaps(panel.get()).count(1)) << entry.first;
    }
}

TEST_F(FixedSwitchRulesTest, ConsolePortOfTheTableShowsElectricalUnconnected)
{
    CQ116SwitchPanel panel(nullptr);
    EXPECT_EQ(A::positions(&panel).at(13), QPoint(525, 51));
    EXPECT_EQ(A::portPixmaps(&panel).at(13), A::pixmaps(&panel).at(4));
    A::applyWorkState(&panel, state({item(1, "electrical", "connected"), item(12, "optical", "connected")}));
    EXPECT_EQ(A::portPixmaps(&panel).at(13), A::pixmaps(&panel).at(4));
}

TEST_F(FixedSwitchRulesTest, LogoStripPanelsScaleTheirPortsAndPlaceTheStrip)
{
    const std::map<std::string, QPoint> offsets = {
        {"CQ119SwitchPanel", QPoint(5, 15)},  {"CQ127SwitchPanel", QPoint(5, 15)},  {"CQ137SwitchPanel", QPoint(5, 15)},
        {"CQ139SwitchPanel", QPoint(5, 15)},  {"CQ121SwitchPanel", QPoint(535, 15)}, {"CQ122SwitchPanel", QPoint(12, 15)},
    };
    for (const PanelLayout& row : fixedSwitchLayouts()) {
        auto panel = makePanel(row.className, row.modes().front());
        const auto it = offsets.find(row.className);
        if (it == offsets.end()) {
            EXPECT_TRUE(A::svgRenderers(panel.get()).empty()) << row.className;
            EXPECT_EQ(A::svgOffset(panel.get()), QPoint(0, 0)) << row.className;
            continue;
        }
        ASSERT_EQ(A::svgRenderers(panel.get()).size(), 1u) << row.className;
        ASSERT_TRUE(A::svgRenderers(panel.get()).count(0));
        EXPECT_TRUE(A::svgRenderers(panel.get())[0]->isValid()) << row.className;
        EXPECT_EQ(A::svgOffset(panel.get()), it->second) << row.className;
    }
}

TEST_F(FixedSwitchRulesTest, LegendsOfTheModelsWithoutElectricalPorts)
{
    for (const char* name : {"CQ135SwitchPanel", "CQ140SwitchPanel", "CQ143SwitchPanel", "CQ144SwitchPanel"}) {
        auto panel = makePanel(name);
        EXPECT_TRUE(A::ui(panel.get())->label->isHidden()) << name;
        EXPECT_FALSE(A::ui(panel.get())->optionalIconLabel->isHidden()) << name;
    }
    for (const char* name : {"CQ109SwitchPanel", "CQ111SwitchPanel", "CQ113SwitchPanel"}) {
        auto panel = makePanel(name);
        EXPECT_TRUE(A::ui(panel.get())->optionalIconLabel->isHidden()) << name;
        EXPECT_FALSE(A::ui(panel.get())->label->isHidden()) << name;
    }
}

TEST_F(FixedSwitchRulesTest, ModelWithOpticalImagesButNoOpticalPortHidesTheOpticalLegend)
{
    // Models that load an image set with optical images but place only electrical ports.
    std::vector<std::string> names;
    for (const PanelLayout& row : fixedSwitchLayouts())
        if (row.images->hasKind(PortKind::Optical) && !row.hasPortOfKind(PortKind::Optical))
            names.push_back(row.className);
    ASSERT_FALSE(names.empty());
    for (const std::string& name : names) {
        auto panel = makePanel(name, layoutNamed(name).modes().front());
        EXPECT_TRUE(A::ui(panel.get())->optionalIconLabel->isHidden()) << name;
        EXPECT_TRUE(A::ui(panel.get())->optionalTextLabel->isHidden()) << name;
        EXPECT_FALSE(A::ui(panel.get())->label->isHidden()) << name;
    }
    // The ten-port model has two optical ports and keeps the entry.
    CQ110SwitchPanel withOptical(nullptr);
    EXPECT_FALSE(A::ui(&withOptical)->optionalIconLabel->isHidden());
    EXPECT_FALSE(A::ui(&withOptical)->optionalTextLabel->isHidden());
}

TEST_F(FixedSwitchRulesTest, AlarmByPortNumberCoversEveryUnsignedPortNumber)
{
    CQ110SwitchPanel panel(nullptr);
    auto& images = A::pixmaps(&panel);
    // A port above 8 is optical, whether it exists or not, up to the largest number.
    for (unsigned port : {9u, 40u, 0x7fffffffu, 0x80000000u, 0x80000001u, 0xfffffffeu, 0xffffffffu}) {
        panel.setPortAlarm(port, true);
        EXPECT_EQ(A::portPixmaps(&panel)[port], images[5]) << port;
        EXPECT_TRUE(A::alarms(&panel).count(port)) << port;
        panel.setPortAlarm(port, false);
        EXPECT_EQ(A::portPixmaps(&panel)[port], images[6]) << port;
        EXPECT_FALSE(A::alarms(&panel).count(port)) << port;
    }
    // Models that treat every port as electrical do so above 2^31 too.
    CQ109SwitchPanel electrical(nullptr);
    electrical.setPortAlarm(0x80000000u, true);
    EXPECT_EQ(colorOf(A::portPixmaps(&electrical)[0x80000000u]), rgb(kAlarmColor));
    electrical.setPortAlarm(0xffffffffu, false);
    EXPECT_EQ(colorOf(A::portPixmaps(&electrical)[0xffffffffu]), rgb(kNormalColor));
    // Painting with alarms on ports without a position draws nothing for them and survives.
    panel.setPortAlarm(0xffffffffu, true);
    EXPECT_FALSE(paneltest::render(&panel).isNull());
}

TEST_F(FixedSwitchRulesTest, AModeWithoutAFrameLeavesAnEmptyFrame)
{
    CQ101SwitchPanel panel(7, nullptr);
    EXPECT_TRUE(A::pixmaps(&panel).at(0)->isNull());
    EXPECT_EQ(A::positions(&panel).size(), 5u);
    CQ101SwitchPanel poe(2, nullptr);
    EXPECT_FALSE(A::pixmaps(&poe).at(0)->isNull());
}

TEST_F(FixedSwitchRulesTest, FailedQueryLeavesEveryImage)
{
    CQ110SwitchPanel panel(nullptr);
    A::applyWorkState(&panel, state({item(1, "electrical", "connected")}));
    const auto before = A::portPixmaps(&panel);
    panel.showPanelStatus(); // no device answers in this test
    EXPECT_EQ(A::portPixmaps(&panel), before);
}

} // namespace
} // namespace velmora
