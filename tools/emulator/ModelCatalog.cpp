#include "ModelCatalog.h"

#include <cstdlib>
#include <cstring>

namespace emulator {

const std::vector<ModelInfo>& modelCatalog()
{
    // model, category, family, ports, poe, slots, main slots, radios
    static const std::vector<ModelInfo> catalog = {
        // Switches: the client's first block matches the model as a substring.
        {"QN-1001", kSwitch, "CQ101SwitchPanel", "1-5E", true, 0, "", 0},
        {"QN-1002", kSwitch, "CQ101SwitchPanel", "1-5E", true, 0, "", 0},
        {"QN-1003", kSwitch, "CQ101SwitchPanel", "1-5E", true, 0, "", 0},
        {"QN-1004", kSwitch, "CQ101SwitchPanel", "1-5E", true, 0, "", 0},
        {"QN-1005", kSwitch, "CQ101SwitchPanel", "1-5E", true, 0, "", 0},
        {"QN-1006", kSwitch, "CQ109SwitchPanel", "1-8E", false, 0, "", 0},
        {"QN-1007", kSwitch, "CQ109SwitchPanel", "1-8E", false, 0, "", 0},
        {"QN-1008", kSwitch, "CQ109SwitchPanel", "1-8E", false, 0, "", 0},
        {"QN-1009", kSwitch, "CQ103SerialSwitchPanel", "1-9E", true, 0, "", 0},
        {"QN-1010", kSwitch, "CQ103SerialSwitchPanel", "1-9E", true, 0, "", 0},
        {"QN-1011", kSwitch, "CQ103SerialSwitchPanel", "1-9E", true, 0, "", 0},
        {"QN-1012", kSwitch, "CQ103SerialSwitchPanel", "1-9E", true, 0, "", 0},
        {"QN-1013", kSwitch, "CQ103SerialSwitchPanel", "1-9E", true, 0, "", 0},
        {"QN-1014", kSwitch, "CQ103SerialSwitchPanel", "1-9E", false, 0, "", 0},
        {"QN-1015", kSwitch, "CQ103SerialSwitchPanel", "1-9E", false, 0, "", 0},
        {"QN-1016", kSwitch, "CQ103SerialSwitchPanel", "1-9E", false, 0, "", 0},
        {"QN-1017", kSwitch, "CQ104SerialSwitchPanel", "1-10E,11-12O", true, 0, "", 0},
        {"QN-1018", kSwitch, "CQ111SwitchPanel", "1-16E", false, 0, "", 0},
        {"QN-1019", kSwitch, "CQ111SwitchPanel", "1-16E", false, 0, "", 0},
        {"QN-1020", kSwitch, "CQ111SwitchPanel", "1-16E", false, 0, "", 0},
        {"QN-1021", kSwitch, "CQ105SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1022", kSwitch, "CQ105SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1023", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", true, 0, "", 0},
        {"QN-1024", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", true, 0, "", 0},
        {"QN-1025", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", true, 0, "", 0},
        {"QN-1026", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", false, 0, "", 0},
        {"QN-1027", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", false, 0, "", 0},
        {"QN-1028", kSwitch, "CQ106SerialSwitchPanel", "1-18E,19-20O", false, 0, "", 0},
        {"QN-1029", kSwitch, "CQ113SwitchPanel", "1-24E", false, 0, "", 0},
        {"QN-1030", kSwitch, "CQ113SwitchPanel", "1-24E", false, 0, "", 0},
        {"QN-1031", kSwitch, "CQ113SwitchPanel", "1-24E", false, 0, "", 0},
        {"QN-1032", kSwitch, "CQ107SwitchPanel", "1-26E", true, 0, "", 0},
        {"QN-1033", kSwitch, "CQ107SwitchPanel", "1-26E", true, 0, "", 0},
        {"QN-1034", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", true, 0, "", 0},
        {"QN-1035", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", true, 0, "", 0},
        {"QN-1036", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", true, 0, "", 0},
        {"QN-1037", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", false, 0, "", 0},
        {"QN-1038", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", false, 0, "", 0},
        {"QN-1039", kSwitch, "CQ108SerialSwitchPanel", "1-26E,27-28O", false, 0, "", 0},
        {"QN-1040", kSwitch, "CQ110SwitchPanel", "1-8E,9-10O", false, 0, "", 0},
        {"QN-1041", kSwitch, "CQ110SwitchPanel", "1-8E,9-10O", false, 0, "", 0},
        {"QN-1042", kSwitch, "CQ110SwitchPanel", "1-8E,9-10O", false, 0, "", 0},
        {"QN-1043", kSwitch, "CQ110SwitchPanel", "1-8E,9-10O", true, 0, "", 0},
        {"QN-1044", kSwitch, "CQ110SwitchPanel", "1-8E,9-10O", true, 0, "", 0},
        {"QN-1045", kSwitch, "CQ112SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1046", kSwitch, "CQ112SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1047", kSwitch, "CQ112SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1048", kSwitch, "CQ112SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1049", kSwitch, "CQ112SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1050", kSwitch, "CQ114SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1051", kSwitch, "CQ114SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1052", kSwitch, "CQ114SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1053", kSwitch, "CQ114SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1054", kSwitch, "CQ114SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1055", kSwitch, "CQ143SwitchPanel", "1-28O", false, 0, "", 0},
        {"QN-1056", kSwitch, "CQ144SwitchPanel", "1-52O", false, 0, "", 0},
        {"QN-1057", kSwitch, "CQ138SwitchPanel", "1-24E,25-36O,37-38E", false, 0, "", 0},
        {"QN-1058", kSwitch, "CQ136SwitchPanel", "1-16O,17-24M,25-28O,31-40M", false, 0, "", 0},
        {"QN-1059", kSwitch, "CQ141SwitchPanel", "1-48E,49-52O,53-54E", true, 0, "", 0},
        {"QN-1060", kSwitch, "CQ140SwitchPanel", "1-54O", false, 0, "", 0},
        {"QN-1061", kSwitch, "CQ133SwitchPanel", "1-28O,31-40E", false, 0, "", 0},
        {"QN-1062", kSwitch, "CQ129SwitchPanel", "1-48E,49-52O", true, 0, "", 0},
        {"QN-1063", kSwitch, "CQ135SwitchPanel", "1-54O", false, 0, "", 0},
        {"QN-1064", kSwitch, "CQ131SwitchPanel", "1-24E,25-28O", true, 0, "", 0},
        {"QN-1065", kSwitch, "CQ130SwitchPanel", "1-28O,31-38M", false, 0, "", 0},
        {"QN-1066", kSwitch, "CQ132SwitchPanel", "1-48E,49-52O", false, 0, "", 0},
        {"QN-1067", kSwitch, "CQ126SwitchPanel", "1-28E", true, 0, "", 0},
        {"QN-1068", kSwitch, "CQ126SwitchPanel", "1-28E", true, 0, "", 0},
        {"QN-1069", kSwitch, "CQ128SwitchPanel", "1-48E,49-52O", false, 0, "", 0},
        // Switches matched on the model they report, whole text.
        {"QN-1070", kSwitch, "CQ116SwitchPanel", "1-10E,11-12O", false, 0, "", 0},
        {"QN-1071", kSwitch, "CQ120SwitchPanel", "1-26E,27-28O", true, 0, "", 0},
        {"QN-1072", kSwitch, "CQ117SwitchPanel", "1-18E,19-20O", false, 0, "", 0},
        {"QN-1073", kSwitch, "CQ115SwitchPanel", "1-10E,11-12M", true, 0, "", 0},
        {"QN-1074", kSwitch, "CQ119SwitchPanel", "1-24E,25-26M", true, 0, "", 0},
        {"QN-1075", kSwitch, "CQ119SwitchPanel", "1-24E,25-26M", true, 0, "", 0},
        {"QN-1076", kSwitch, "CQ118SwitchPanel", "1-24E,25-28M", false, 0, "", 0},
        {"QN-1077", kSwitch, "CQ123SwitchPanel", "1-8E,9-10O", true, 0, "", 0},
        {"QN-1078", kSwitch, "CQ124SwitchPanel", "1-16E,17-18O", true, 0, "", 0},
        {"QN-1079", kSwitch, "CQ125SwitchPanel", "1-24E,25-26O", true, 0, "", 0},
        {"QN-1080", kSwitch, "CQ134SwitchPanel", "1-24E,25-28O", false, 0, "", 0},
        {"QN-1081", kSwitch, "CQ121SwitchPanel", "1-8E,9-10M", true, 0, "", 0},
        {"QN-1082", kSwitch, "CQ122SwitchPanel", "1-8E,9-10M", true, 0, "", 0},
        {"QN-1083", kSwitch, "CQ119SwitchPanel", "1-24E,25-26M", false, 0, "", 0},
        {"QN-1084", kSwitch, "CQ121SwitchPanel", "1-8E,9-10M", false, 0, "", 0},
        {"QN-1085", kSwitch, "CQ122SwitchPanel", "1-8E,9-10M", false, 0, "", 0},
        {"QN-1086", kSwitch, "CQ127SwitchPanel", "1-24E,25-32M", true, 0, "", 0},
        {"QN-1087", kSwitch, "CQ137SwitchPanel", "1-8E,9-36O", false, 0, "", 0},
        {"QN-1088", kSwitch, "CQ139SwitchPanel", "1-8O,9-32E,33-36O", false, 0, "", 0},
        {"QN-1089", kSwitch, "CQ142SwitchPanel", "1-24O,25-48E,49-52O", false, 0, "", 0},
        {"QN-1090", kSwitch, "CQ203SwitchPanel", "1-8E,9-12O", true, 0, "", 0},
        {"QN-1091", kSwitch, "CQ201SwitchPanel", "1-4E,5-6O", false, 0, "", 0},
        {"QN-1092", kSwitch, "CQ202SwitchPanel", "1-24E,25-28O", true, 0, "", 0},
        // Chassis switches: boards in slots (slot numbers from 0), 24 ports per interface board.
        {"QN-1093", kSwitch, "CQ145SwitchPanel", "", false, 4, "0,1", 0},
        {"QN-1094", kSwitch, "CQ146SwitchPanel", "", false, 5, "0,1", 0},
        {"QN-1095", kSwitch, "CQ147SwitchPanel", "", false, 8, "0,1", 0},
        {"QN-1096", kSwitch, "CQ148SwitchPanel", "", false, 10, "", 0},
        {"QN-1097", kSwitch, "CQ102SwitchPanel", "", false, 10, "4,5", 0},
        // Wireless bridges; the wireless card is one more port of type "wireless".
        {"QN-1098", kBridge, "CSinglePortElevatorBridgePanelStatus", "1E,2W", false, 0, "", 0},
        {"QN-1099", kBridge, "CThreePortElevatorBridgePanelStatus", "1-3E,4W", false, 0, "", 0},
        {"QN-1100", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", true, 0, "", 0},
        {"QN-1101", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", true, 0, "", 0},
        {"QN-1102", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", true, 0, "", 0},
        {"QN-1103", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", true, 0, "", 0},
        {"QN-1104", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1105", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1106", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1107", kBridge, "CSiteBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1108", kBridge, "CPairedBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1109", kBridge, "CPairedBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1110", kBridge, "CPairedBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1111", kBridge, "CPairedBridgePanelStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1112", kBridge, "CACElevatorBridgePanelStatus", "1-3E,4W", false, 0, "", 0},
        {"QN-1113", kBridge, "CACElevatorBridgePanelStatus", "1-3E,4W", false, 0, "", 0},
        {"QN-1114", kBridge, "C2D4G100MElevatorBridgePannel", "1E,2W", false, 0, "", 0},
        {"QN-1115", kBridge, "C2D4G1KMOutDoorBridgePannel", "1-2E,3W", false, 0, "", 0},
        {"QN-1116", kBridge, "C2D4G500MElevatorBridgePannel", "1-3E,4W", false, 0, "", 0},
        {"QN-1117", kBridge, "C2D4G200MElevatorBridgePannel", "1E,2W", false, 0, "", 0},
        {"QN-1118", kBridge, "C5D8G1KMOutDoorBridgePannel", "1-2E,3W", false, 0, "", 0},
        {"QN-1119", kBridge, "C5D8G3KMOutDoorBridgePannel", "1-2E,3W", false, 0, "", 0},
        {"QN-1120", kBridge, "C5D8G3KMOutDoorBridgePannel", "1-2E,3W", false, 0, "", 0},
        {"QN-1121", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1122", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1123", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1124", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1125", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1126", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1127", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1128", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1129", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1130", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1131", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1132", kBridge, "C5KMGigabitBridgeChassisStatus", "1-2E,3W", false, 0, "", 0},
        {"QN-1133", kBridge, "CMutliPortBridgePanelStatus", "1-4E,5W", true, 0, "", 0},
        {"QN-1134", kBridge, "CMutliPortBridgePanelStatus", "1-4E,5W", true, 0, "", 0},
        {"QN-1135", kBridge, "CLowEnd1KMOutDoorBridgePannel", "1E,2W", false, 0, "", 0},
        {"QN-1136", kBridge, "CLowEnd1KMOutDoorBridgePannel", "1E,2W", false, 0, "", 0},
        // Fiber converters, matched as substrings of the client model.
        {"QN-1137", kFiberConverter, "CFiberNetMgCardPanelStatus", "1-2E", false, 0, "", 0},
        {"QN-1138", kFiberConverter, "CFiberReceiveCardPanelStatus", "1E,2O", false, 0, "", 0},
        {"QN-1139", kFiberConverter, "CFiberSendMachinePanelStatus", "1E,2O", false, 0, "", 0},
        // A fiber converter chassis of 21 card slots, managed through its network card.
        {"QN-1137-21S", kFiberConverter, "CFiberNetMgCardPanelStatus", "1-2E,3-22O", false, 21, "", 0},
        // Access points (two radios; three on the QN-115x models).
        {"QN-1140", kWirelessAp, "CQ302APPannel", "1-2E", false, 0, "", 2},
        {"QN-1141", kWirelessAp, "CQ302APPannel", "1-2E", false, 0, "", 2},
        {"QN-1142", kWirelessAp, "CQ304APPannel", "1-2E", false, 0, "", 2},
        {"QN-1143", kWirelessAp, "CQ304APPannel", "1-2E", false, 0, "", 2},
        {"QN-1144", kWirelessAp, "CQ303APPannel", "1-2E", false, 0, "", 2},
        {"QN-1145", kWirelessAp, "CQ303APPannel", "1-2E", false, 0, "", 2},
        {"QN-1146", kWirelessAp, "CQ301APPannel", "1E", false, 0, "", 2},
        {"QN-1147", kWirelessAp, "CQ301APPannel", "1E", false, 0, "", 2},
        {"QN-1148", kWirelessAp, "CQ301APPannel", "1E", false, 0, "", 2},
        {"QN-1149", kWirelessAp, "CQ301APPannel", "1E", false, 0, "", 2},
        {"QN-1150", kWirelessAp, "CQ305APPannel", "1E", false, 0, "", 3},
        {"QN-1151", kWirelessAp, "CQ305APPannel", "1E", false, 0, "", 3},
        {"QN-1152", kWirelessAp, "CQ306APPannel", "1E", false, 0, "", 3},
        {"QN-1153", kWirelessAp, "CQ306APPannel", "1E", false, 0, "", 3},
        {"QN-1154", kWirelessAp, "CQ306APPannel", "1E", false, 0, "", 3},
        {"QN-1155", kWirelessAp, "CQ306APPannel", "1E", false, 0, "", 3},
        // Wireless controllers (gateway routers with AP management).
        {"QN-1156", kWirelessController, "CQ505GRouter", "1-5E", false, 0, "", 0},
        {"QN-1157", kWirelessController, "CQ505GRouter", "1-5E", false, 0, "", 0},
        {"QN-1158", kWirelessController, "CQ506GRouter", "1-5E", true, 0, "", 0},
        {"QN-1159", kWirelessController, "CQ506GRouter", "1-5E", true, 0, "", 0},
        {"QN-1160", kWirelessController, "CQ501GRouter", "1-5E", false, 0, "", 0},
        {"QN-1161", kWirelessController, "CQ501GRouter", "1-5E", false, 0, "", 0},
        {"QN-1162", kWirelessController, "CQ503GRouter", "1-5E", false, 0, "", 0},
        {"QN-1163", kWirelessController, "CQ503GRouter", "1-5E", false, 0, "", 0},
        {"QN-1164", kWirelessController, "CQ502GRouter", "1-5E", true, 0, "", 0},
        {"QN-1165", kWirelessController, "CQ502GRouter", "1-5E", true, 0, "", 0},
        {"QN-1166", kWirelessController, "CQ502GRouter", "1-5E", true, 0, "", 0},
        {"QN-1167", kWirelessController, "CQ502GRouter", "1-5E", true, 0, "", 0},
        {"QN-1168", kWirelessController, "CQ504GRouter", "1-5E", false, 0, "", 0},
        {"QN-1169", kWirelessController, "CQ504GRouter", "1-5E", false, 0, "", 0},
        // Wireless routers.
        {"QN-1170", kWirelessRouter, "CQ401Pannel", "1-2E", false, 0, "", 2},
        {"QN-1171", kWirelessRouter, "CQ401Pannel", "1-2E", false, 0, "", 2},
        {"QN-1172", kWirelessRouter, "CQ403Pannel", "1-2E", false, 0, "", 2},
        {"QN-1173", kWirelessRouter, "CQ402Pannel", "1E", false, 0, "", 2},
        {"QN-1174", kWirelessRouter, "CQ433Pannel", "1E", false, 0, "", 2},
        {"QN-1175", kWirelessRouter, "CQ431Pannel", "1-4E", false, 0, "", 2},
        {"QN-1176", kWirelessRouter, "CQ431Pannel", "1-4E", false, 0, "", 2},
        {"QN-1177", kWirelessRouter, "CQ432Pannel", "1-4E", false, 0, "", 2},
        {"QN-1178", kWirelessRouter, "CQ434Pannel", "1-5E", false, 0, "", 2},
        // Enterprise routers: no front panel in the client, WAN ports 1 and 2.
        {"QN-1180", kEnterpriseRouter, "", "1-8E,9-10O", true, 0, "", 0},
        {"QN-1181", kEnterpriseRouter, "", "1-4E,5-6O", false, 0, "", 0},
        // Switches that describe their own front panel; the model plays no part there.
        {"QN-2024", kSwitch, "CSwitchLogicalPanel", "1-24E,25-28O", true, 0, "", 0},
        {"QN-2048", kSwitch, "CSwitchLogicalPanel", "1-48E,49-52O", false, 0, "", 0},
        {"QN-2208", kBridge, "CSwitchLogicalPanel", "1-8E,9-10O,11W", false, 0, "", 0},
    };
    return catalog;
}

const ModelInfo* findModel(const std::string& model)
{
    for (const ModelInfo& info : modelCatalog())
        if (model == info.model)
            return &info;
    return nullptr;
}

std::vector<PortRun> parsePortRuns(const std::string& text)
{
    std::vector<PortRun> runs;
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find(',', start);
        if (end == std::string::npos)
            end = text.size();
        const std::string piece = text.substr(start, end - start);
        start = end + 1;
        if (piece.empty())
            continue;
        const char type = piece.back();
        if (type != 'E' && type != 'O' && type != 'M' && type != 'W')
            continue;
        const std::string numbers = piece.substr(0, piece.size() - 1);
        const size_t dash = numbers.find('-');
        const int first = std::atoi(numbers.c_str());
        const int last = dash == std::string::npos ? first : std::atoi(numbers.c_str() + dash + 1);
        if (first < 0 || last < first)
            continue;
        runs.push_back({first, last, type});
    }
    return runs;
}

const char* portTypeText(char type)
{
    switch (type) {
    case 'O': return "optical";
    case 'M': return "multiplex";
    case 'W': return "wireless";
    default: return "electrical";
    }
}

} // namespace emulator
