#include "PanelSelection.h"

#include <new>

#include "ui/DevicePanelStatus/ApRouterPanels.h"
#include "ui/DevicePanelStatus/BridgePanels.h"
#include "ui/DevicePanelStatus/ChassisSwitchPanels.h"
#include "ui/DevicePanelStatus/FiberCardPanels.h"
#include "ui/DevicePanelStatus/FixedSwitchPanels.h"

namespace velmora {

namespace {

template <class Panel>
CPanelStatusBase* makePanel(QWidget* parent)
{
    return new (std::nothrow) Panel(parent);
}

template <class Panel, int Mode>
CPanelStatusBase* makePanelInMode(QWidget* parent)
{
    return new (std::nothrow) Panel(Mode, parent);
}

// The last four fields of a row: the class by name, its mode, the frame height, its maker.
#define PANEL(Class) #Class, PanelChoice::kNoMode, 0, &makePanel<Class>
#define PANEL_MODE(Class, Mode) #Class, Mode, 0, &makePanelInMode<Class, Mode>
#define CHASSIS_PANEL(Class, FrameHeight) #Class, PanelChoice::kNoMode, FrameHeight, &makePanel<Class>

constexpr ModelTest Contains = ModelTest::Contains;
constexpr ModelTest Equals = ModelTest::Equals;

std::vector<PanelTable> buildPanelTables()
{
    return {
        // Switches. The first block looks into the client's model text, so a longer text
        // stands before any shorter one that it contains; the "equals" block compares the
        // model that the device reports; the last block is the client's text again.
        {120, true, {
            {Contains, {"QN-1001", "QN-1002", "QN-1003"}, PANEL_MODE(CQ101SwitchPanel, 1)},
            {Contains, {"QN-1004", "QN-1005"}, PANEL_MODE(CQ101SwitchPanel, 2)},
            {Contains, {"QN-1006", "QN-1007", "QN-1008"}, PANEL(CQ109SwitchPanel)},
            {Contains, {"QN-1009", "QN-1010"}, PANEL_MODE(CQ103SerialSwitchPanel, 2)},
            {Contains, {"QN-1011", "QN-1012", "QN-1013"}, PANEL_MODE(CQ103SerialSwitchPanel, 1)},
            {Contains, {"QN-1014", "QN-1015", "QN-1016"}, PANEL_MODE(CQ103SerialSwitchPanel, 0)},
            {Contains, {"QN-1017"}, PANEL(CQ104SerialSwitchPanel)},
            {Contains, {"QN-1018", "QN-1019", "QN-1020"}, PANEL(CQ111SwitchPanel)},
            {Contains, {"QN-1021", "QN-1022"}, PANEL(CQ105SwitchPanel)},
            {Contains, {"QN-1023", "QN-1024", "QN-1025"}, PANEL_MODE(CQ106SerialSwitchPanel, 1)},
            {Contains, {"QN-1026", "QN-1027", "QN-1028"}, PANEL_MODE(CQ106SerialSwitchPanel, 0)},
            {Contains, {"QN-1029", "QN-1030", "QN-1031"}, PANEL(CQ113SwitchPanel)},
            {Contains, {"QN-1032", "QN-1033"}, PANEL(CQ107SwitchPanel)},
            {Contains, {"QN-1034", "QN-1035", "QN-1036"}, PANEL_MODE(CQ108SerialSwitchPanel, 1)},
            {Contains, {"QN-1037", "QN-1038", "QN-1039"}, PANEL_MODE(CQ108SerialSwitchPanel, 0)},
            {Contains, {"QN-1040", "QN-1041", "QN-1042", "QN-1043", "QN-1044"}, PANEL(CQ110SwitchPanel)},
            {Contains, {"QN-1045", "QN-1046", "QN-1047", "QN-1048", "QN-1049"}, PANEL(CQ112SwitchPanel)},
            {Contains, {"QN-1050", "QN-1051", "QN-1052", "QN-1053", "QN-1054"}, PANEL(CQ114SwitchPanel)},
            {Contains, {"QN-1055"}, PANEL(CQ143SwitchPanel)},
            {Contains, {"QN-1056"}, PANEL(CQ144SwitchPanel)},
            {Contains, {"QN-1057"}, PANEL(CQ138SwitchPanel)},
            {Contains, {"QN-1058"}, PANEL(CQ136SwitchPanel)},
            {Contains, {"QN-1059"}, PANEL(CQ141SwitchPanel)},
            {Contains, {"QN-1060"}, PANEL(CQ140SwitchPanel)},
            {Contains, {"QN-1061"}, PANEL(CQ133SwitchPanel)},
            // This model and "QN-1068" below are built on another family's panel on purpose.
            {Contains, {"QN-1062"}, PANEL(CQ129SwitchPanel)},
            {Contains, {"QN-1063"}, PANEL(CQ135SwitchPanel)},
            {Contains, {"QN-1064"}, PANEL(CQ131SwitchPanel)},
            {Contains, {"QN-1065"}, PANEL(CQ130SwitchPanel)},
            {Contains, {"QN-1066"}, PANEL(CQ132SwitchPanel)},
            {Contains, {"QN-1067", "QN-1068"}, PANEL(CQ126SwitchPanel)},
            {Contains, {"QN-1069"}, PANEL(CQ128SwitchPanel)},
            {Equals, {"QN-1070"}, PANEL(CQ116SwitchPanel)},
            {Equals, {"QN-1071"}, PANEL(CQ120SwitchPanel)},
            {Equals, {"QN-1072"}, PANEL(CQ117SwitchPanel)},
            {Equals, {"QN-1073"}, PANEL(CQ115SwitchPanel)},
            {Equals, {"QN-1074", "QN-1075"}, PANEL_MODE(CQ119SwitchPanel, 1)},
            {Equals, {"QN-1076"}, PANEL(CQ118SwitchPanel)},
            {Equals, {"QN-1077"}, PANEL(CQ123SwitchPanel)},
            {Equals, {"QN-1078"}, PANEL(CQ124SwitchPanel)},
            {Equals, {"QN-1079"}, PANEL(CQ125SwitchPanel)},
            {Equals, {"QN-1080"}, PANEL(CQ134SwitchPanel)},
            {Equals, {"QN-1081"}, PANEL_MODE(CQ121SwitchPanel, 3)},
            {Equals, {"QN-1082"}, PANEL_MODE(CQ122SwitchPanel, 3)},
            {Equals, {"QN-1083"}, PANEL_MODE(CQ119SwitchPanel, 0)},
            {Equals, {"QN-1084"}, PANEL_MODE(CQ121SwitchPanel, 0)},
            {Equals, {"QN-1085"}, PANEL_MODE(CQ122SwitchPanel, 0)},
            {Equals, {"QN-1086"}, PANEL(CQ127SwitchPanel)},
            {Equals, {"QN-1087"}, PANEL(CQ137SwitchPanel)},
            {Equals, {"QN-1088"}, PANEL(CQ139SwitchPanel)},
            {Equals, {"QN-1089"}, PANEL(CQ142SwitchPanel)},
            {Contains, {"QN-1090"}, PANEL(CQ203SwitchPanel)},
            {Contains, {"QN-1091"}, PANEL(CQ201SwitchPanel)},
            {Contains, {"QN-1092"}, PANEL(CQ202SwitchPanel)},
            // Chassis: the page's panel frame takes the height of the boards.
            {Contains, {"QN-1093"}, CHASSIS_PANEL(CQ145SwitchPanel, 248)},
            {Contains, {"QN-1094"}, CHASSIS_PANEL(CQ146SwitchPanel, 301)},
            {Contains, {"QN-1095"}, CHASSIS_PANEL(CQ147SwitchPanel, 499)},
            {Contains, {"QN-1096"}, CHASSIS_PANEL(CQ148SwitchPanel, 596)},
            {Contains, {"QN-1097"}, CHASSIS_PANEL(CQ102SwitchPanel, 636)},
        }},
        // Wireless bridges, by the reported model.
        {121, true, {
            {Equals, {"QN-1098"}, PANEL(CSinglePortElevatorBridgePanelStatus)},
            {Equals, {"QN-1099"}, PANEL(CThreePortElevatorBridgePanelStatus)},
            {Equals, {"QN-1100", "QN-1101", "QN-1102", "QN-1103", "QN-1104", "QN-1105", "QN-1106", "QN-1107"},
             PANEL(CSiteBridgePanelStatus)},
            {Equals, {"QN-1108", "QN-1109", "QN-1110", "QN-1111"}, PANEL(CPairedBridgePanelStatus)},
            {Equals, {"QN-1112", "QN-1113"}, PANEL(CACElevatorBridgePanelStatus)},
            {Equals, {"QN-1114"}, PANEL(C2D4G100MElevatorBridgePannel)},
            {Equals, {"QN-1115"}, PANEL(C2D4G1KMOutDoorBridgePannel)},
            {Equals, {"QN-1116"}, PANEL(C2D4G500MElevatorBridgePannel)},
            {Equals, {"QN-1117"}, PANEL(C2D4G200MElevatorBridgePannel)},
            {Equals, {"QN-1118"}, PANEL(C5D8G1KMOutDoorBridgePannel)},
            {Equals, {"QN-1119", "QN-1120"}, PANEL(C5D8G3KMOutDoorBridgePannel)},
            {Equals, {"QN-1121", "QN-1122", "QN-1123", "QN-1124", "QN-1125", "QN-1126", "QN-1127", "QN-1128",
                      "QN-1129", "QN-1130", "QN-1131", "QN-1132"},
             PANEL(C5KMGigabitBridgeChassisStatus)},
            {Equals, {"QN-1133", "QN-1134"}, PANEL(CMutliPortBridgePanelStatus)},
            {Equals, {"QN-1135", "QN-1136"}, PANEL(CLowEnd1KMOutDoorBridgePannel)},
        }},
        // Fiber converter cards, by the client's model text.
        {122, true, {
            {Contains, {"QN-1137"}, PANEL(CFiberNetMgCardPanelStatus)},
            {Contains, {"QN-1138"}, PANEL(CFiberReceiveCardPanelStatus)},
            {Contains, {"QN-1139"}, PANEL(CFiberSendMachinePanelStatus)},
        }},
        // Wireless controllers, by the reported model; these keep the internet legend.
        {124, false, {
            {Equals, {"QN-1156", "QN-1157"}, PANEL(CQ505GRouter)},
            {Equals, {"QN-1158", "QN-1159"}, PANEL(CQ506GRouter)},
            {Equals, {"QN-1160", "QN-1161"}, PANEL(CQ501GRouter)},
            {Equals, {"QN-1162", "QN-1163"}, PANEL(CQ503GRouter)},
            {Equals, {"QN-1164", "QN-1165", "QN-1166", "QN-1167"}, PANEL(CQ502GRouter)},
            {Equals, {"QN-1168", "QN-1169"}, PANEL(CQ504GRouter)},
        }},
        // Wireless APs, by the reported model.
        {125, false, {
            {Equals, {"QN-1140", "QN-1141"}, PANEL(CQ302APPannel)},
            {Equals, {"QN-1142", "QN-1143"}, PANEL(CQ304APPannel)},
            {Equals, {"QN-1144", "QN-1145"}, PANEL(CQ303APPannel)},
            {Equals, {"QN-1146", "QN-1147", "QN-1148", "QN-1149"}, PANEL(CQ301APPannel)},
            {Equals, {"QN-1150", "QN-1151"}, PANEL(CQ305APPannel)},
            {Equals, {"QN-1152", "QN-1153", "QN-1154", "QN-1155"}, PANEL(CQ306APPannel)},
        }},
        // Wireless routers, by the reported model.
        {126, false, {
            {Equals, {"QN-1170", "QN-1171"}, PANEL(CQ401Pannel)},
            {Equals, {"QN-1172"}, PANEL(CQ403Pannel)},
            {Equals, {"QN-1173"}, PANEL(CQ402Pannel)},
            {Equals, {"QN-1174"}, PANEL(CQ433Pannel)},
            {Equals, {"QN-1175", "QN-1176"}, PANEL(CQ431Pannel)},
            {Equals, {"QN-1177"}, PANEL(CQ432Pannel)},
            {Equals, {"QN-1178"}, PANEL(CQ434Pannel)},
        }},
    };
}

#undef PANEL
#undef PANEL_MODE
#undef CHASSIS_PANEL

} // namespace

bool PanelChoice::holds(const std::string& clientModel, const std::string& reportedModel) const
{
    for (const std::string& model : models) {
        if (test == ModelTest::Contains ? clientModel.find(model, 0) != std::string::npos : reportedModel == model)
            return true;
    }
    return false;
}

const std::vector<PanelTable>& panelTables()
{
    static const std::vector<PanelTable> tables = buildPanelTables();
    return tables;
}

const PanelTable* panelTableForCategory(int category)
{
    for (const PanelTable& table : panelTables()) {
        if (table.category == category)
            return &table;
    }
    return nullptr;
}

const PanelChoice* choosePanel(int category, const std::string& clientModel, const std::string& reportedModel)
{
    const PanelTable* table = panelTableForCategory(category);
    if (!table)
        return nullptr;
    for (const PanelChoice& row : table->rows) {
        if (row.holds(clientModel, reportedModel))
            return &row;
    }
    return nullptr;
}

} // namespace velmora
