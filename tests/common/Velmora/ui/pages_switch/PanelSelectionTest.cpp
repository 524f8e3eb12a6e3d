// The model tables that choose a device's front panel: every model text of every table,
// the near misses, and the order in which rows are tried.
#include <QWidget>
#include <cxxabi.h>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <typeinfo>

#include "PanelSelection.h"
#include "ui/DevicePanelStatus/PanelStatusBase.h"

using velmora::choosePanel;
using velmora::ModelTest;
using velmora::PanelChoice;
using velmora::panelTableForCategory;

namespace {

constexpr ModelTest Contains = ModelTest::Contains;
constexpr ModelTest Equals = ModelTest::Equals;
constexpr int kNoMode = PanelChoice::kNoMode;

struct Expected {
    int category;
    ModelTest test;
    const char* model;
    const char* panelClass;
    int mode;
};

// Category, test, model text, panel class and mode, as the product range defines them.
const Expected kExpected[] = {
    {120, Contains, "QN-1001", "CQ101SwitchPanel", 1},
    {120, Contains, "QN-1002", "CQ101SwitchPanel", 1},
    {120, Contains, "QN-1003", "CQ101SwitchPanel", 1},
    {120, Contains, "QN-1004", "CQ101SwitchPanel", 2},
    {120, Contains, "QN-1005", "CQ101SwitchPanel", 2},
    {120, Contains, "QN-1006", "CQ109SwitchPanel", kNoMode},
    {120, Contains, "QN-1007", "CQ109SwitchPanel", kNoMode},
    {120, Contains, "QN-1008", "CQ109SwitchPanel", kNoMode},
    {120, Contains, "QN-1009", "CQ103SerialSwitchPanel", 2},
    {120, Contains, "QN-1010", "CQ103SerialSwitchPanel", 2},
    {120, Contains, "QN-1011", "CQ103SerialSwitchPanel", 1},
    {120, Contains, "QN-1012", "CQ103SerialSwitchPanel", 1},
    {120, Contains, "QN-1013", "CQ103SerialSwitchPanel", 1},
    {120, Contains, "QN-1014", "CQ103SerialSwitchPanel", 0},
    {120, Contains, "QN-1015", "CQ103SerialSwitchPanel", 0},
    {120, Contains, "QN-1016", "CQ103SerialSwitchPanel", 0},
    {120, Contains, "QN-1017", "CQ104SerialSwitchPanel", kNoMode},
    {120, Contains, "QN-1018", "CQ111SwitchPanel", kNoMode},
    {120, Contains, "QN-1019", "CQ111SwitchPanel", kNoMode},
    {120, Contains, "QN-1020", "CQ111SwitchPanel", kNoMode},
    {120, Contains, "QN-1021", "CQ105SwitchPanel", kNoMode},
    {120, Contains, "QN-1022", "CQ105SwitchPanel", kNoMode},
    {120, Contains, "QN-1023", "CQ106SerialSwitchPanel", 1},
    {120, Contains, "QN-1024", "CQ106SerialSwitchPanel", 1},
    {120, Contains, "QN-1025", "CQ106SerialSwitchPanel", 1},
    {120, Contains, "QN-1026", "CQ106SerialSwitchPanel", 0},
    {120, Contains, "QN-1027", "CQ106SerialSwitchPanel", 0},
    {120, Contains, "QN-1028", "CQ106SerialSwitchPanel", 0},
    {120, Contains, "QN-1029", "CQ113SwitchPanel", kNoMode},
    {120, Contains, "QN-1030", "CQ113SwitchPanel", kNoMode},
    {120, Contains, "QN-1031", "CQ113SwitchPanel", kNoMode},
    {120, Contains, "QN-1032", "CQ107SwitchPanel", kNoMode},
    {120, Contains, "QN-1033", "CQ107SwitchPanel", kNoMode},
    {120, Contains, "QN-1034", "CQ108SerialSwitchPanel", 1},
    {120, Contains, "QN-1035", "CQ108SerialSwitchPanel", 1},
    {120, Contains, "QN-1036", "CQ108SerialSwitchPanel", 1},
    {120, Contains, "QN-1037", "CQ108SerialSwitchPanel", 0},
    {120, Contains, "QN-1038", "CQ108SerialSwitchPanel", 0},
    {120, Contains, "QN-1039", "CQ108SerialSwitchPanel", 0},
    {120, Contains, "QN-1040", "CQ110SwitchPanel", kNoMode},
    {120, Contains, "QN-1041", "CQ110SwitchPanel", kNoMode},
    {120, Contains, "QN-1042", "CQ110SwitchPanel", kNoMode},
    {120, Contains, "QN-1043", "CQ110SwitchPanel", kNoMode},
    {120, Contains, "QN-1044", "CQ110SwitchPanel", kNoMode},
    {120, Contains, "QN-1045", "CQ112SwitchPanel", kNoMode},
    {120, Contains, "QN-1046", "CQ112SwitchPanel", kNoMode},
    {120, Contains, "QN-1047", "CQ112SwitchPanel", kNoMode},
    {120, Contains, "QN-1048", "CQ112SwitchPanel", kNoMode},
    {120, Contains, "QN-1049", "CQ112SwitchPanel", kNoMode},
    {120, Contains, "QN-1050", "CQ114SwitchPanel", kNoMode},
    {120, Contains, "QN-1051", "CQ114SwitchPanel", kNoMode},
    {120, Contains, "QN-1052", "CQ114SwitchPanel", kNoMode},
    {120, Contains, "QN-1053", "CQ114SwitchPanel", kNoMode},
    {120, Contains, "QN-1054", "CQ114SwitchPanel", kNoMode},
    {120, Contains, "QN-1055", "CQ143SwitchPanel", kNoMode},
    {120, Contains, "QN-1056", "CQ144SwitchPanel", kNoMode},
    {120, Contains, "QN-1057", "CQ138SwitchPanel", kNoMode},
    {120, Contains, "QN-1058", "CQ136SwitchPanel", kNoMode},
    {120, Contains, "QN-1059", "CQ141SwitchPanel", kNoMode},
    {120, Contains, "QN-1060", "CQ140SwitchPanel", kNoMode},
    {120, Contains, "QN-1061", "CQ133SwitchPanel", kNoMode},
    {120, Contains, "QN-1062", "CQ129SwitchPanel", kNoMode},
    {120, Contains, "QN-1063", "CQ135SwitchPanel", kNoMode},
    {120, Contains, "QN-1064", "CQ131SwitchPanel", kNoMode},
    {120, Contains, "QN-1065", "CQ130SwitchPanel", kNoMode},
    {120, Contains, "QN-1066", "CQ132SwitchPanel", kNoMode},
    {120, Contains, "QN-1067", "CQ126SwitchPanel", kNoMode},
    {120, Contains, "QN-1068", "CQ126SwitchPanel", kNoMode},
    {120, Contains, "QN-1069", "CQ128SwitchPanel", kNoMode},
    {120, Equals, "QN-1070", "CQ116SwitchPanel", kNoMode},
    {120, Equals, "QN-1071", "CQ120SwitchPanel", kNoMode},
    {120, Equals, "QN-1072", "CQ117SwitchPanel", kNoMode},
    {120, Equals, "QN-1073", "CQ115SwitchPanel", kNoMode},
    {120, Equals, "QN-1074", "CQ119SwitchPanel", 1},
    {120, Equals, "QN-1075", "CQ119SwitchPanel", 1},
    {120, Equals, "QN-1076", "CQ118SwitchPanel", kNoMode},
    {120, Equals, "QN-1077", "CQ123SwitchPanel", kNoMode},
    {120, Equals, "QN-1078", "CQ124SwitchPanel", kNoMode},
    {120, Equals, "QN-1079", "CQ125SwitchPanel", kNoMode},
    {120, Equals, "QN-1080", "CQ134SwitchPanel", kNoMode},
    {120, Equals, "QN-1081", "CQ121SwitchPanel", 3},
    {120, Equals, "QN-1082", "CQ122SwitchPanel", 3},
    {120, Equals, "QN-1083", "CQ119SwitchPanel", 0},
    {120, Equals, "QN-1084", "CQ121SwitchPanel", 0},
    {120, Equals, "QN-1085", "CQ122SwitchPanel", 0},
    {120, Equals, "QN-1086", "CQ127SwitchPanel", kNoMode},
    {120, Equals, "QN-1087", "CQ137SwitchPanel", kNoMode},
    {120, Equals, "QN-1088", "CQ139SwitchPanel", kNoMode},
    {120, Equals, "QN-1089", "CQ142SwitchPanel", kNoMode},
    {120, Contains, "QN-1090", "CQ203SwitchPanel", kNoMode},
    {120, Contains, "QN-1091", "CQ201SwitchPanel", kNoMode},
    {120, Contains, "QN-1092", "CQ202SwitchPanel", kNoMode},
    {120, Contains, "QN-1093", "CQ145SwitchPanel", kNoMode},
    {120, Contains, "QN-1094", "CQ146SwitchPanel", kNoMode},
    {120, Contains, "QN-1095", "CQ147SwitchPanel", kNoMode},
    {120, Contains, "QN-1096", "CQ148SwitchPanel", kNoMode},
    {120, Contains, "QN-1097", "CQ102SwitchPanel", kNoMode},
    {121, Equals, "QN-1098", "CSinglePortElevatorBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1099", "CThreePortElevatorBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1100", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1101", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1102", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1103", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1104", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1105", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1106", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1107", "CSiteBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1108", "CPairedBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1109", "CPairedBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1110", "CPairedBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1111", "CPairedBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1112", "CACElevatorBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1113", "CACElevatorBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1114", "C2D4G100MElevatorBridgePannel", kNoMode},
    {121, Equals, "QN-1115", "C2D4G1KMOutDoorBridgePannel", kNoMode},
    {121, Equals, "QN-1116", "C2D4G500MElevatorBridgePannel", kNoMode},
    {121, Equals, "QN-1117", "C2D4G200MElevatorBridgePannel", kNoMode},
    {121, Equals, "QN-1118", "C5D8G1KMOutDoorBridgePannel", kNoMode},
    {121, Equals, "QN-1119", "C5D8G3KMOutDoorBridgePannel", kNoMode},
    {121, Equals, "QN-1120", "C5D8G3KMOutDoorBridgePannel", kNoMode},
    {121, Equals, "QN-1121", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1122", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1123", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1124", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1125", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1126", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1127", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1128", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1129", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1130", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1131", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1132", "C5KMGigabitBridgeChassisStatus", kNoMode},
    {121, Equals, "QN-1133", "CMutliPortBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1134", "CMutliPortBridgePanelStatus", kNoMode},
    {121, Equals, "QN-1135", "CLowEnd1KMOutDoorBridgePannel", kNoMode},
    {121, Equals, "QN-1136", "CLowEnd1KMOutDoorBridgePannel", kNoMode},
    {122, Contains, "QN-1137", "CFiberNetMgCardPanelStatus", kNoMode},
    {122, Contains, "QN-1138", "CFiberReceiveCardPanelStatus", kNoMode},
    {122, Contains, "QN-1139", "CFiberSendMachinePanelStatus", kNoMode},
    {124, Equals, "QN-1156", "CQ505GRouter", kNoMode},
    {124, Equals, "QN-1157", "CQ505GRouter", kNoMode},
    {124, Equals, "QN-1158", "CQ506GRouter", kNoMode},
    {124, Equals, "QN-1159", "CQ506GRouter", kNoMode},
    {124, Equals, "QN-1160", "CQ501GRouter", kNoMode},
    {124, Equals, "QN-1161", "CQ501GRouter", kNoMode},
    {124, Equals, "QN-1162", "CQ503GRouter", kNoMode},
    {124, Equals, "QN-1163", "CQ503GRouter", kNoMode},
    {124, Equals, "QN-1164", "CQ502GRouter", kNoMode},
    {124, Equals, "QN-1165", "CQ502GRouter", kNoMode},
    {124, Equals, "QN-1166", "CQ502GRouter", kNoMode},
    {124, Equals, "QN-1167", "CQ502GRouter", kNoMode},
    {124, Equals, "QN-1168", "CQ504GRouter", kNoMode},
    {124, Equals, "QN-1169", "CQ504GRouter", kNoMode},
    {125, Equals, "QN-1140", "CQ302APPannel", kNoMode},
    {125, Equals, "QN-1141", "CQ302APPannel", kNoMode},
    {125, Equals, "QN-1142", "CQ304APPannel", kNoMode},
    {125, Equals, "QN-1143", "CQ304APPannel", kNoMode},
    {125, Equals, "QN-1144", "CQ303APPannel", kNoMode},
    {125, Equals, "QN-1145", "CQ303APPannel", kNoMode},
    {125, Equals, "QN-1146", "CQ301APPannel", kNoMode},
    {125, Equals, "QN-1147", "CQ301APPannel", kNoMode},
    {125, Equals, "QN-1148", "CQ301APPannel", kNoMode},
    {125, Equals, "QN-1149", "CQ301APPannel", kNoMode},
    {125, Equals, "QN-1150", "CQ305APPannel", kNoMode},
    {125, Equals, "QN-1151", "CQ305APPannel", kNoMode},
    {125, Equals, "QN-1152", "CQ306APPannel", kNoMode},
    {125, Equals, "QN-1153", "CQ306APPannel", kNoMode},
    {125, Equals, "QN-1154", "CQ306APPannel", kNoMode},
    {125, Equals, "QN-1155", "CQ306APPannel", kNoMode},
    {126, Equals, "QN-1170", "CQ401Pannel", kNoMode},
    {126, Equals, "QN-1171", "CQ401Pannel", kNoMode},
    {126, Equals, "QN-1172", "CQ403Pannel", kNoMode},
    {126, Equals, "QN-1173", "CQ402Pannel", kNoMode},
    {126, Equals, "QN-1174", "CQ433Pannel", kNoMode},
    {126, Equals, "QN-1175", "CQ431Pannel", kNoMode},
    {126, Equals, "QN-1176", "CQ431Pannel", kNoMode},
    {126, Equals, "QN-1177", "CQ432Pannel", kNoMode},
    {126, Equals, "QN-1178", "CQ434Pannel", kNoMode},
};

// What a row decides for a device whose matching model text is `model`: a "contains" row
// looks into the client's model text, an "equals" row at the reported one.
const PanelChoice* chooseFor(const Expected& e, const std::string& model)
{
    return e.test == Contains ? choosePanel(e.category, model, std::string())
                              : choosePanel(e.category, std::string(), model);
}

std::string className(const velmora::CPanelStatusBase& panel)
{
    int status = 0;
    char* demangled = abi::__cxa_demangle(typeid(panel).name(), nullptr, nullptr, &status);
    std::string name = status == 0 && demangled ? demangled : typeid(panel).name();
    std::free(demangled);
    const size_t colon = name.rfind("::");
    return colon == std::string::npos ? name : name.substr(colon + 2);
}

} // namespace

TEST(PanelSelection, EveryModelTextSelectsItsPanelAndMode)
{
    for (const Expected& e : kExpected) {
        SCOPED_TRACE(std::to_string(e.category) + " " + e.model);
        const PanelChoice* choice = chooseFor(e, e.model);
        ASSERT_NE(choice, nullptr);
        EXPECT_STREQ(choice->panelClass, e.panelClass);
        EXPECT_EQ(choice->mode, e.mode);
        EXPECT_EQ(choice->test, e.test);
    }
}

TEST(PanelSelection, TablesHoldExactlyTheKnownModelTexts)
{
    size_t total = 0;
    for (const velmora::PanelTable& table : velmora::panelTables()) {
        for (const PanelChoice& row : table.rows)
            total += row.models.size();
    }
    EXPECT_EQ(total, sizeof(kExpected) / sizeof(kExpected[0]));
}

TEST(PanelSelection, ClientModelWithTextAroundMatchesContainsRow)
{
    for (const Expected& e : kExpected) {
        if (e.test != Contains)
            continue;
        SCOPED_TRACE(e.model);
        const PanelChoice* choice = choosePanel(e.category, std::string("Net ") + e.model + "-V2 (B)", "");
        ASSERT_NE(choice, nullptr);
        EXPECT_STREQ(choice->panelClass, e.panelClass);
        EXPECT_EQ(choice->mode, e.mode);
    }
}

TEST(PanelSelection, ReportedModelWithTextAroundMatchesNoEqualsRow)
{
    for (const Expected& e : kExpected) {
        if (e.test != Equals)
            continue;
        SCOPED_TRACE(e.model);
        EXPECT_EQ(choosePanel(e.category, "", std::string(e.model) + " "), nullptr);
        EXPECT_EQ(choosePanel(e.category, "", std::string("x") + e.model), nullptr);
        EXPECT_EQ(choosePanel(e.category, "", std::string(e.model).substr(0, 6)), nullptr);
    }
}

TEST(PanelSelection, EqualsIsCaseSensitive)
{
    EXPECT_EQ(choosePanel(120, "", "qn-1070"), nullptr);
    EXPECT_EQ(choosePanel(125, "", "Qn-1140"), nullptr);
    EXPECT_EQ(choosePanel(120, "qn-1001", ""), nullptr);
}

TEST(PanelSelection, EachTestLooksOnlyAtItsOwnModelText)
{
    for (const Expected& e : kExpected) {
        SCOPED_TRACE(e.model);
        // The text in the other place selects nothing.
        if (e.test == Contains)
            EXPECT_EQ(choosePanel(e.category, "", e.model), nullptr);
        else
            EXPECT_EQ(choosePanel(e.category, e.model, ""), nullptr);
    }
}

TEST(PanelSelection, UnknownSwitchModelHasNoPanel)
{
    EXPECT_EQ(choosePanel(120, "QN-9999", "QN-9998"), nullptr);
    EXPECT_EQ(choosePanel(120, "", ""), nullptr);
    EXPECT_EQ(choosePanel(120, "QN-100", "QN-107"), nullptr);
}

TEST(PanelSelection, TwoModelsCrossFamiliesOnPurpose)
{
    ASSERT_NE(choosePanel(120, "QN-1062", ""), nullptr);
    EXPECT_STREQ(choosePanel(120, "QN-1062", "")->panelClass, "CQ129SwitchPanel");
    ASSERT_NE(choosePanel(120, "QN-1068", ""), nullptr);
    EXPECT_STREQ(choosePanel(120, "QN-1068", "")->panelClass, "CQ126SwitchPanel");
}

TEST(PanelSelection, FirstHoldingRowDecides)
{
    // Two model texts in one client text: the earlier row wins, whatever the text's order.
    const PanelChoice* choice = choosePanel(120, "QN-1055/QN-1001", "");
    ASSERT_NE(choice, nullptr);
    EXPECT_STREQ(choice->panelClass, "CQ101SwitchPanel");
    EXPECT_EQ(choice->mode, 1);
    // The first "contains" block comes before the "equals" block...
    choice = choosePanel(120, "QN-1014", "QN-1070");
    ASSERT_NE(choice, nullptr);
    EXPECT_STREQ(choice->panelClass, "CQ103SerialSwitchPanel");
    EXPECT_EQ(choice->mode, 0);
    // ...and the "equals" block before the last "contains" block.
    choice = choosePanel(120, "QN-1093", "QN-1083");
    ASSERT_NE(choice, nullptr);
    EXPECT_STREQ(choice->panelClass, "CQ119SwitchPanel");
    EXPECT_EQ(choice->mode, 0);
}

TEST(PanelSelection, CategoriesWithoutTableHaveNoPanel)
{
    for (int category : {-1, 0, 119, 123, 127, 128, 129, 130, 131}) {
        SCOPED_TRACE(category);
        EXPECT_EQ(panelTableForCategory(category), nullptr);
        EXPECT_EQ(choosePanel(category, "QN-1001", "QN-1070"), nullptr);
        EXPECT_EQ(choosePanel(category, "QN-1140", "QN-1140"), nullptr);
    }
}

TEST(PanelSelection, ModelTextOfAnotherCategoryHasNoPanel)
{
    EXPECT_EQ(choosePanel(121, "QN-1001", "QN-1070"), nullptr);
    EXPECT_EQ(choosePanel(120, "QN-1137", "QN-1098"), nullptr);
    EXPECT_EQ(choosePanel(125, "", "QN-1170"), nullptr);
    EXPECT_EQ(choosePanel(126, "", "QN-1140"), nullptr);
}

TEST(PanelSelection, OnlyChassisModelsFixTheFrameHeight)
{
    const std::pair<const char*, int> chassis[] = {
        {"QN-1093", 248}, {"QN-1094", 301}, {"QN-1095", 499}, {"QN-1096", 596}, {"QN-1097", 636}};
    for (const auto& c : chassis) {
        ASSERT_NE(choosePanel(120, c.first, ""), nullptr);
        EXPECT_EQ(choosePanel(120, c.first, "")->frameHeight, c.second) << c.first;
    }
    int withHeight = 0;
    for (const velmora::PanelTable& table : velmora::panelTables()) {
        for (const PanelChoice& row : table.rows)
            withHeight += row.frameHeight > 0 ? 1 : 0;
    }
    EXPECT_EQ(withHeight, 5);
}

TEST(PanelSelection, SwitchBridgeAndFiberPanelsHideTheConnectedLegend)
{
    for (int category : {120, 121, 122}) {
        ASSERT_NE(panelTableForCategory(category), nullptr);
        EXPECT_TRUE(panelTableForCategory(category)->hideConnectedLegend) << category;
    }
    for (int category : {124, 125, 126}) {
        ASSERT_NE(panelTableForCategory(category), nullptr);
        EXPECT_FALSE(panelTableForCategory(category)->hideConnectedLegend) << category;
    }
}

TEST(PanelSelection, EveryRowBuildsTheClassItNames)
{
    QWidget page;
    std::set<std::string> seen;
    for (const velmora::PanelTable& table : velmora::panelTables()) {
        for (const PanelChoice& row : table.rows) {
            SCOPED_TRACE(row.panelClass);
            std::unique_ptr<velmora::CPanelStatusBase> panel(row.create(&page));
            ASSERT_NE(panel, nullptr);
            EXPECT_EQ(className(*panel), row.panelClass);
            EXPECT_EQ(panel->parentWidget(), &page);
            seen.insert(row.panelClass);
        }
    }
    EXPECT_EQ(seen.size(), 87u); // distinct panel classes of all tables
}
