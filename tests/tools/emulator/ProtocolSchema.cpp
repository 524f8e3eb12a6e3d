#include "ProtocolSchema.h"

#include "EmulatorClient.h"

#include <cmath>
#include <map>
#include <cctype>

namespace velmora {
namespace test {

namespace {

FieldSchema f(const char* name, const char* type) { return FieldSchema{name, type, false}; }
FieldSchema opt(const char* name, const char* type) { return FieldSchema{name, type, true}; }

const std::map<std::string, std::vector<FieldSchema>>& schemas()
{
    static const std::map<std::string, std::vector<FieldSchema>> s = {
        {"ResponseStatus", {f("requestURL", "text"), f("statusCode", "int"), f("statusString", "text"), f("subStatusCode", "text")}},
        {"DeviceStatus", {f("deviceUpTime", "int"), f("cpuList", "list:DeviceCpuInfo"), f("memoryList", "list:DeviceMemoryInfo"),
                          f("poeList", "list:DevicePoeInfo")}},
        {"DeviceCpuInfo", {f("cpuUtilization", "int")}},
        {"DeviceMemoryInfo", {f("memoryUsage", "real"), f("memoryAvailable", "real")}},
        {"DevicePoeInfo", {f("poeUsed", "real"), f("poeTotal", "real"), f("poePeak", "real")}},
        {"SwitchBaseInfo", {f("deviceModel", "text"), f("portList", "list:SwitchBasePort"), f("deviceName", "text"),
                            f("serialNumber", "text"), f("macAddress", "text"), f("firmwareVersion", "text"),
                            f("hardwareVersion", "text"), f("portNum", "int")}},
        {"SwitchBasePort", {f("portId", "int"), f("portName", "text")}},
        {"SwitchesWorkState", {f("portList", "list:SwitchesWorkStateItem"), f("portOrder", "text")}},
        {"SwitchesWorkStateItem",
         {f("portId", "int"), f("portEnabled", "bool"), f("linkState", "text"), f("rate", "text"), f("flowCtrl", "bool"),
          f("duplex", "text"), f("portType", "text"), f("bytesSent", "counter"), f("sendRate", "uint"),
          f("packetsSent", "counter"), f("sendReserved", "int"), f("bytesReceived", "counter"), f("receiveRate", "uint"),
          f("packetsReceived", "counter"), f("counterReserved", "plain:int"), f("peakSendRate", "uint"),
          f("peakReceiveRate", "uint"), f("poePower", "real"), f("portRemark", "text")}},
        {"SwitchesWorkStateSearchRes", {f("searchID", "text"), f("responseStatus", "text"), f("numOfMatches", "int"),
                                        f("portList", "list:SwitchesWorkStateItem")}},
        {"SwitchesWorkStateSearchCap", {f("maxResults", "int")}},
        {"PortBasicList", {f("portList", "list:PortBasic")}},
        {"PortBasic", {f("portId", "int"), f("portName", "text"), f("portEnabled", "bool"), f("portType", "text"),
                       f("maxSpeed", "text"), f("duplex", "text"), f("flowCtrl", "bool"), f("portDescription", "text")}},
        {"PortRateList", {f("portList", "list:PortRate")}},
        {"PortRate", {f("portId", "int"), f("rateLimitEnabled", "bool"), f("ingressRate", "uint"), f("egressRate", "uint")}},
        {"PortPoeInfoList", {f("portList", "list:PortPoeInfo")}},
        {"PortPoeInfo", {f("portId", "int"), f("poeEnable", "bool"), f("poeStatus", "text"), f("poePower", "real"),
                         f("poeMaxPower", "real")}},
        {"PortPoeInfoListCap", {f("isSupportPoe", "bool"), f("portList", "list:PortPoeInfoCap")}},
        {"PortPoeInfoCap", {f("portId", "int"), f("poeEnableOptions", "plain:bool")}},
        {"SwitchSlotInfolList", {f("slotList", "list:SwitchSlotInfo")}},
        {"SwitchSlotInfo", {f("slotId", "int"), f("boardType", "text"), f("inserted", "bool"), f("boardName", "text"),
                            f("portNum", "int")}},
        {"PanelStatus", {f("panelList", "list:Panel")}},
        {"Panel", {f("rowCount", "int"), f("cellList", "list:Cell"), f("columnCount", "int"), f("portMargin", "int")}},
        {"Cell", {f("cellType", "text"), f("portType", "text"), f("portId", "int"), f("label", "text"), f("direction", "text")}},
        {"FiberConvertSlotList", {f("slotList", "list:FiberConvertSlot")}},
        {"FiberConvertSlot", {f("slotId", "int"), f("receivingCardIP", "text"), f("receiveCardSerialNumber", "text"),
                              f("transmitterIP", "text"), f("transmitterSerialNumber", "text"), f("senderName", "text")}},
        {"AcCapabilities", {f("isSupportSearchAPGroup", "bool"), f("maxAPNum", "int"), f("maxAPGroupNum", "int"),
                            f("maxTerminalNum", "int")}},
        {"APGroupInfoList", {f("groupList", "list:APGroupInfo")}},
        {"APGroupInfo", {f("groupId", "int"), f("groupName", "text"), f("apNum", "int"), f("description", "text")}},
        {"APGroupBSSList", {f("groupList", "list:APGroupBSS")}},
        {"APGroupBSS", {f("groupName", "text"), f("bssList", "list:APGroupBssParaCfg")}},
        {"APGroupBssParaCfg", {f("ssidIndex", "int"), f("band", "int"), f("enabled", "bool"), f("ssid", "text"),
                               f("securityMode", "text")}},
        {"APGroupBssSearchResult", {f("searchID", "text"), f("responseStatus", "text"), f("numOfMatches", "int"),
                                    f("groupList", "list:APGroupBSS")}},
        {"ApInfoSearchResult", {f("searchID", "text"), f("responseStatus", "text"), f("numOfMatches", "int"),
                                f("apList", "list:ApInfo")}},
        {"ApInfo", {f("deviceName", "text"), f("model", "text"), f("macAddress", "text"), f("ipAddress", "text"),
                    f("serialNumber", "text"), f("softwareVersion", "text"), f("state", "text"), f("runTime", "int"),
                    f("cpuUsage", "int"), f("memoryUsage", "int"), f("rfList", "list:rfInfo")}},
        {"rfInfo", {f("band", "int"), f("transmitPower", "int"), f("channel", "int"), f("channelInterference", "uint"),
                    f("onlineCount", "int"), f("sendUtilization", "int"), f("receiveUtilization", "int")}},
        {"TerminalInfoSearchResult", {f("searchID", "text"), f("responseStatus", "text"), f("numOfMatches", "int"),
                                      f("terminalList", "list:AcTerminalInfo")}},
        {"AcTerminalInfo", {f("ipAddress", "text"), f("macAddress", "text"), f("apMacAddress", "text"), f("rssi", "int"),
                            f("receiveRate", "real"), f("sendRate", "real"), f("connectSeconds", "int"), f("band", "int"),
                            f("ssid", "text")}},
        {"RfParaCfgList", {f("rfList", "list:RfParaCfg")}},
        {"RfParaCfg", {f("band", "int"), f("enabled", "bool"), f("wirelessMode", "text"), f("transmitPower", "int"),
                       f("channel", "int")}},
        {"BssParaCfg", {f("bssList", "list:BssParaCfgInfo")}},
        {"BssParaCfgInfo", {f("macAddress", "text"), f("band", "int"), f("enabled", "bool"), f("ssid", "text"),
                            f("securityMode", "text")}},
        {"BssClientInfoList", {f("bssList", "list:BssClientInfo")}},
        {"BssClientInfo", {f("ssid", "text"), f("band", "int"), f("clientList", "list:BssClient")}},
        {"BssClient", {f("ipAddress", "text"), f("macAddress", "text"), f("rssi", "int"), f("receiveRate", "real"),
                       f("sendRate", "real"), f("connectSeconds", "int")}},
        {"TerminalInfoList", {f("terminalList", "list:TerminalInfo")}},
        {"TerminalInfo", {f("ipAddress", "text"), f("macAddress", "text"), f("deviceName", "text"), f("connectType", "text"),
                          f("band", "int"), f("onlineSeconds", "int")}},
        {"PPPoEStatusList", {f("statusList", "list:PPPoEStatus")}},
        {"PPPoEStatus", {f("id", "text"), f("ipAddress", "text"), f("subnetMask", "text"), f("gateway", "text"),
                         f("primaryDNS", "text"), f("secondaryDNS", "text"), f("status", "text"), f("addressingType", "text"),
                         f("uplinkRate", "real"), f("downlinkRate", "real")}},
        {"Wireless", {opt("ssid", "text"), opt("securityMode", "text"), opt("workScene", "text"), opt("wirelessMode", "text"),
                      opt("channelWidthMode", "text"), opt("channelWidth", "text"), opt("channel", "text"),
                      opt("transmitPower", "int"), opt("noise", "int"), opt("antennaGainPresent", "bool"),
                      opt("antennaGain", "int")}},
        {"TransmissionList", {f("transmissionList", "list:Transmission")}},
        {"Transmission", {f("macAddress", "text"), f("ipAddress", "text"), f("signal", "int"), opt("noise", "int"),
                          f("sendRate", "real"), f("receiveRate", "real"), opt("distance", "real"),
                          f("connectSeconds", "int")}},
        {"BridgeRegion", {f("region", "text")}},
        {"BridgeRegionCapabilities", {f("regionList", "plain:text")}},
        {"BridgeRegionRes", {f("statusCode", "int"), f("statusString", "text"), f("region", "text"), f("needReboot", "bool")}},
        // The client's services (data objects of the envelope).
        {"DeviceNode", {f("guid", "text"), f("name", "text"), f("ip", "text"), f("deviceCategory", "int"),
                        f("sdkDeviceType", "int"), f("deviceClassType", "int"), f("bridgeWorkType", "int"),
                        f("dataSource", "int"), f("online", "bool"), f("wifiStrength", "int"), f("serialNo", "text"),
                        f("longSerialNo", "text"), f("isRoot", "bool"), f("portNodeList", "list:PortNode"),
                        f("lineList", "list:Line"), f("clientCount2_4", "int"), f("clientCount5", "int"),
                        f("aPclientCount", "int"), f("isSupportSafe", "bool"), f("isSafe", "bool"), f("safeMode", "bool")}},
        {"PortNode", {f("guid", "text"), f("linkPort", "int"), f("portName", "text"), f("portType", "int"),
                      f("nodePosType", "int"), f("lineGuid", "text"), f("peerNodeList", "list:PeerNode")}},
        {"PeerNode", {f("guid", "text"), f("linkPort", "int"), f("portName", "text"), f("portType", "int")}},
        {"Line", {f("lineGuid", "text"), f("enable", "int"), f("online", "int"), f("lineType", "int"), f("uploadSpeed", "int"),
                  f("downSpeed", "int"), f("sendUseRatio", "int"), f("recvUseRatio", "int"),
                  f("portDeviceList", "list:PortDevice")}},
        {"PortDevice", {f("portDeviceType", "int"), f("guid", "text"), f("ip", "text"), f("linkPort", "int"),
                        f("portName", "text"), f("portType", "int"), f("portBandWidth", "text")}},
        {"SwitchAlarmListData", {f("switchAlarmList", "list:SwitchAlarm")}},
        {"SwitchAlarm", {f("port", "int"), f("isAlarm", "bool")}},
    };
    return s;
}

bool allDigits(const std::string& value, size_t from = 0)
{
    if (value.size() <= from)
        return false;
    for (size_t i = from; i < value.size(); ++i)
        if (!std::isdigit(static_cast<unsigned char>(value[i])))
            return false;
    return true;
}

bool isInteger(const std::string& value) { return allDigits(value, !value.empty() && value[0] == '-' ? 1 : 0); }

// Decimal with a point and digits on both sides ("12.5", "-0.25").
bool isDecimal(const std::string& value)
{
    const size_t point = value.find('.');
    return point != std::string::npos && isInteger(value.substr(0, point)) && value.substr(0, point) != "-" &&
           allDigits(value, point + 1);
}

std::string checkScalarText(const std::string& value, const std::string& type)
{
    if (type == "int" && !isInteger(value))
        return "not an integer: \"" + value + "\"";
    if (type == "uint" && (!allDigits(value) || value.size() > 10 || std::stoull(value) > 4294967295ULL))
        return "not an unsigned 32-bit integer: \"" + value + "\"";
    if (type == "counter" && !allDigits(value))
        return "not a decimal counter: \"" + value + "\"";
    if (type == "real" && !isDecimal(value))
        return "not a decimal with a point: \"" + value + "\"";
    if (type == "bool" && value != "true" && value != "false")
        return "not a boolean: \"" + value + "\"";
    return std::string();
}

std::string checkXml(const xmlNode* node, const std::string& record, const std::string& where);

std::string checkXmlField(const xmlNode* e, const FieldSchema& field, const std::string& where)
{
    const std::string at = where + "." + field.name;
    if (field.type.rfind("list:", 0) == 0) {
        const std::string item = field.type.substr(5);
        for (const xmlNode* c : children(e)) {
            if (nodeName(c) != item)
                return at + ": item <" + nodeName(c) + "> is not <" + item + ">";
            const std::string error = checkXml(c, item, at);
            if (!error.empty())
                return error;
        }
        return std::string();
    }
    if (field.type.rfind("plain:", 0) == 0) {
        for (const xmlNode* c : children(e)) {
            if (nodeName(c) != "item")
                return at + ": plain value in <" + nodeName(c) + ">, not <item>";
            const std::string error = checkScalarText(text(c), field.type.substr(6));
            if (!error.empty())
                return at + ": " + error;
        }
        return std::string();
    }
    if (!children(e).empty())
        return at + ": a scalar with element children";
    const std::string error = checkScalarText(text(e), field.type);
    return error.empty() ? error : at + ": " + error;
}

std::string checkXml(const xmlNode* node, const std::string& record, const std::string& where)
{
    const auto* schema = recordSchema(record);
    if (!schema)
        return where + ": no schema for " + record;
    const std::vector<xmlNode*> elements = children(node);
    size_t i = 0;
    for (const FieldSchema& field : *schema) {
        if (i < elements.size() && nodeName(elements[i]) == field.name) {
            const std::string error = checkXmlField(elements[i], field, where);
            if (!error.empty())
                return error;
            ++i;
        } else if (!field.optional) {
            return where + ": missing <" + field.name + "> (found <" + (i < elements.size() ? nodeName(elements[i]) : "end") + ">)";
        }
    }
    if (i < elements.size())
        return where + ": unexpected or misplaced <" + nodeName(elements[i]) + ">";
    return std::string();
}

std::string checkJsonScalar(const cJSON* v, const std::string& type)
{
    if (type == "text")
        return cJSON_IsString(v) ? std::string() : "not a string";
    if (type == "counter")
        return cJSON_IsString(v) && allDigits(v->valuestring) ? std::string() : "not a counter string";
    if (type == "bool")
        return cJSON_IsBool(v) ? std::string() : "not a boolean";
    if (!cJSON_IsNumber(v))
        return "not a number";
    if ((type == "int" || type == "uint") && v->valuedouble != std::floor(v->valuedouble))
        return "not an integer";
    if (type == "uint" && (v->valuedouble < 0 || v->valuedouble > 4294967295.0))
        return "not an unsigned 32-bit integer";
    return std::string();
}

std::string checkJson(const cJSON* object, const std::string& record, const std::string& where)
{
    const auto* schema = recordSchema(record);
    if (!schema)
        return where + ": no schema for " + record;
    if (!cJSON_IsObject(object))
        return where + ": not an object";
    // Keys in order, none missing, none extra.
    const cJSON* member = object->child;
    for (const FieldSchema& field : *schema) {
        const std::string at = where + "." + field.name;
        if (!member || !member->string || field.name != member->string) {
            if (field.optional)
                continue;
            return where + ": missing \"" + field.name + "\" (found \"" + (member && member->string ? member->string : "end") + "\")";
        }
        if (field.type.rfind("list:", 0) == 0) {
            if (!cJSON_IsArray(member))
                return at + ": not an array";
            const cJSON* item = nullptr;
            cJSON_ArrayForEach(item, member)
            {
                const std::string error = checkJson(item, field.type.substr(5), at);
                if (!error.empty())
                    return error;
            }
        } else if (field.type.rfind("plain:", 0) == 0) {
            if (!cJSON_IsArray(member))
                return at + ": not an array";
            const cJSON* item = nullptr;
            cJSON_ArrayForEach(item, member)
            {
                const std::string error = checkJsonScalar(item, field.type.substr(6));
                if (!error.empty())
                    return at + ": " + error;
            }
        } else {
            const std::string error = checkJsonScalar(member, field.type);
            if (!error.empty())
                return at + ": " + error;
        }
        member = member->next;
    }
    if (member)
        return where + ": unexpected or misplaced \"" + std::string(member->string ? member->string : "?") + "\"";
    return std::string();
}

} // namespace

const std::vector<FieldSchema>* recordSchema(const std::string& record)
{
    const auto it = schemas().find(record);
    return it == schemas().end() ? nullptr : &it->second;
}

std::string checkXmlRecord(const xmlNode* root, const std::string& record)
{
    if (!root)
        return "no root element";
    if (nodeName(root) != record)
        return "root <" + nodeName(root) + "> is not <" + record + ">";
    return checkXml(root, record, record);
}

std::string checkJsonRecord(const cJSON* object, const std::string& record)
{
    return checkJson(object, record, record);
}

std::string checkAnswer(const std::string& body, const std::string& record, bool json)
{
    if (json) {
        const JsonPtr root = parseJson(body);
        if (!root)
            return "not valid JSON";
        if (cJSON_GetArraySize(root.get()) != 1)
            return "the JSON answer is not a single wrapped record";
        const cJSON* object = jsonRecord(root.get(), record);
        if (!object)
            return "no \"" + record + "\" object";
        return checkJsonRecord(object, record);
    }
    if (body.rfind("<?xml version=\"1.0\" encoding=\"UTF-8\"?>", 0) != 0)
        return "no XML declaration";
    const XmlDoc doc = parseXml(body);
    if (!doc.ok())
        return "not well-formed XML";
    return checkXmlRecord(doc.root(), record);
}

} // namespace test
} // namespace velmora
