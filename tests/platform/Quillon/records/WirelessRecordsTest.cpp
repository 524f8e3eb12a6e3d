// The wireless records read the device's answers as the wire protocol writes them, and the
// search conditions write their request bodies.
#include <gtest/gtest.h>

#include <string>

#include "Quillon/WirelessRecords.h"

namespace {

TEST(WirelessRecordsTest, ApSearchResultReadsApsAndRadios)
{
    Quillon::ApInfoSearchResult result(std::string{});
    result.Parse(R"({"ApInfoSearchResult": {"searchID": "S", "responseStatus": "OK", "numOfMatches": 1, "apList": [
        {"deviceName": "\u5927\u5385", "model": "QA-210", "macAddress": "aa:bb:cc:00:00:01", "ipAddress": "10.1.0.11",
         "serialNumber": "SN1", "softwareVersion": "V1.2", "state": "online", "runTime": 3600, "cpuUsage": 12,
         "memoryUsage": 48, "rfList": [
            {"band": 0, "transmitPower": 20, "channel": 6, "channelInterference": 12, "onlineCount": 3,
             "sendUtilization": 30, "receiveUtilization": 20},
            {"band": 1, "transmitPower": 23, "channel": 149, "channelInterference": 2, "onlineCount": 0,
             "sendUtilization": 5, "receiveUtilization": 4}]}]}})");
    EXPECT_EQ(result.responseStatus, "OK");
    EXPECT_EQ(result.numOfMatches, 1);
    ASSERT_EQ(result.apList.size(), 1u);
    const Quillon::ApInfo& ap = result.apList[0];
    EXPECT_EQ(ap.deviceName, "\xE5\xA4\xA7\xE5\x8E\x85");
    EXPECT_EQ(ap.model, "QA-210");
    EXPECT_EQ(ap.macAddress, "aa:bb:cc:00:00:01");
    EXPECT_EQ(ap.ipAddress, "10.1.0.11");
    EXPECT_EQ(ap.serialNumber, "SN1");
    EXPECT_EQ(ap.softwareVersion, "V1.2");
    EXPECT_EQ(ap.state, "online");
    EXPECT_EQ(ap.runTime, 3600);
    EXPECT_EQ(ap.cpuUsage, 12);
    EXPECT_EQ(ap.memoryUsage, 48);
    ASSERT_EQ(ap.rfList.size(), 2u);
    EXPECT_EQ(ap.rfList[0].channelInterference, 12u);
    EXPECT_EQ(ap.rfList[0].onlineCount, 3);
    EXPECT_EQ(ap.rfList[1].band, 1);
    EXPECT_EQ(ap.rfList[1].channel, 149);
    EXPECT_EQ(ap.rfList[1].transmitPower, 23);
    EXPECT_EQ(ap.rfList[1].sendUtilization, 5);
    EXPECT_EQ(ap.rfList[1].receiveUtilization, 4);
}

TEST(WirelessRecordsTest, SearchConditionsWriteJsonBodiesUnderTheirRoot)
{
    Quillon::ApInfoSearchCond ap;
    ap.searchID = "G-1";
    ap.maxResults = 50;
    ap.searchResultPosition = 0;
    EXPECT_EQ(ap.Make(), R"({"ApInfoSearchCond":{"searchID":"G-1","maxResults":50,"searchResultPosition":0}})");

    Quillon::APGroupBssSearchCond group;
    group.searchID = "G-2";
    group.maxResults = 15;
    group.searchResultPosition = 16;
    EXPECT_EQ(group.Make(),
              R"({"APGroupBssSearchCond":{"searchID":"G-2","maxResults":15,"searchResultPosition":16}})");

    Quillon::TerminalInfoSearchCond terminal;
    terminal.searchID = "G-3";
    terminal.maxResults = 50;
    terminal.searchResultPosition = 1;
    EXPECT_EQ(terminal.Make(),
              R"({"TerminalInfoSearchCond":{"searchID":"G-3","maxResults":50,"searchResultPosition":1}})");

    Quillon::BssParaCfgSearchCond bss;
    bss.searchKey = "Office \"5G\"";
    EXPECT_EQ(bss.Make(), R"({"BssParaCfgSearchCond":{"searchKey":"Office \"5G\""}})");
}

TEST(WirelessRecordsTest, RadioAndSsidSettingsRead)
{
    Quillon::RfParaCfgList rf(std::string{});
    rf.Parse(R"({"RfParaCfgList": {"rfList": [{"band": 0, "enabled": true, "wirelessMode": "2", "transmitPower": 20,
        "channel": 0}, {"band": 1, "enabled": false, "wirelessMode": "3", "transmitPower": 17, "channel": 36}]}})");
    ASSERT_EQ(rf.rfList.size(), 2u);
    EXPECT_TRUE(rf.rfList[0].enabled);
    EXPECT_EQ(rf.rfList[0].wirelessMode, "2");
    EXPECT_EQ(rf.rfList[0].channel, 0);
    EXPECT_FALSE(rf.rfList[1].enabled);
    EXPECT_EQ(rf.rfList[1].channel, 36);

    Quillon::BssParaCfg bss(std::string{});
    bss.Parse(R"({"BssParaCfg": {"bssList": [{"macAddress": "aa", "band": 1, "enabled": true, "ssid": "Guest",
        "securityMode": "none"}]}})");
    ASSERT_EQ(bss.bssList.size(), 1u);
    EXPECT_EQ(bss.bssList[0].macAddress, "aa");
    EXPECT_EQ(bss.bssList[0].band, 1);
    EXPECT_EQ(bss.bssList[0].ssid, "Guest");
    EXPECT_EQ(bss.bssList[0].securityMode, "none");
}

TEST(WirelessRecordsTest, GroupListsAndCapabilitiesRead)
{
    Quillon::APGroupBSSList groups(std::string{});
    groups.Parse(R"({"APGroupBSSList": {"groupList": [{"groupName": "F1", "bssList": [
        {"ssidIndex": 1, "band": 0, "enabled": true, "ssid": "Staff", "securityMode": "WPA2-personal"},
        {"ssidIndex": 1, "band": 1, "enabled": false, "ssid": "Staff", "securityMode": "WPA2-personal"}]}]}})");
    ASSERT_EQ(groups.groupList.size(), 1u);
    EXPECT_EQ(groups.groupList[0].groupName, "F1");
    ASSERT_EQ(groups.groupList[0].bssList.size(), 2u);
    EXPECT_EQ(groups.groupList[0].bssList[1].ssidIndex, 1);
    EXPECT_FALSE(groups.groupList[0].bssList[1].enabled);

    Quillon::AcCapabilities caps(std::string{});
    EXPECT_FALSE(caps.isSupportSearchAPGroup);
    caps.Parse(R"({"AcCapabilities": {"isSupportSearchAPGroup": true, "maxAPNum": 512}})");
    EXPECT_TRUE(caps.isSupportSearchAPGroup);
    EXPECT_EQ(caps.maxAPNum, 512);

    Quillon::APGroupInfoList info;
    info.Parse(R"({"APGroupInfoList": {"groupList": [{"groupId": 4, "groupName": "F4", "apNum": 2}]}})");
    ASSERT_EQ(info.groupList.size(), 1u);
    EXPECT_EQ(info.groupList[0].groupId, 4);
}

TEST(WirelessRecordsTest, TerminalsAndClientsRead)
{
    Quillon::TerminalInfoSearchResult terminals(std::string{});
    terminals.Parse(R"({"TerminalInfoSearchResult": {"responseStatus": "MORE", "terminalList": [
        {"ipAddress": "10.2.0.5", "macAddress": "AA-BB-CC-11-22-33", "apMacAddress": "aa:bb:cc:00:00:01",
         "rssi": -61, "receiveRate": 866.5, "sendRate": 433.25, "connectSeconds": 360000, "band": 2,
         "ssid": "Staff"}]}})");
    EXPECT_EQ(terminals.responseStatus, "MORE");
    ASSERT_EQ(terminals.terminalList.size(), 1u);
    const Quillon::AcTerminalInfo& t = terminals.terminalList[0];
    EXPECT_EQ(t.ipAddress, "10.2.0.5");
    EXPECT_EQ(t.macAddress, "AA-BB-CC-11-22-33");
    EXPECT_EQ(t.apMacAddress, "aa:bb:cc:00:00:01");
    EXPECT_EQ(t.rssi, -61);
    EXPECT_DOUBLE_EQ(t.receiveRate, 866.5);
    EXPECT_DOUBLE_EQ(t.sendRate, 433.25);
    EXPECT_EQ(t.connectSeconds, 360000);
    EXPECT_EQ(t.band, 2);
    EXPECT_EQ(t.ssid, "Staff");

    Quillon::BssClientInfoList clients(std::string{});
    clients.Parse(R"({"BssClientInfoList": {"bssList": [{"ssid": "Home", "band": 0, "clientList": [
        {"ipAddress": "192.168.1.9", "macAddress": "11-22-33-44-55-66", "rssi": -40, "receiveRate": 72.0,
         "sendRate": 65.0, "connectSeconds": 61}]}, {"ssid": "Home5", "band": 1, "clientList": []}]}})");
    ASSERT_EQ(clients.bssList.size(), 2u);
    ASSERT_EQ(clients.bssList[0].clientList.size(), 1u);
    EXPECT_EQ(clients.bssList[0].clientList[0].rssi, -40);
    EXPECT_DOUBLE_EQ(clients.bssList[0].clientList[0].sendRate, 65.0);
    EXPECT_EQ(clients.bssList[0].clientList[0].connectSeconds, 61);
    EXPECT_TRUE(clients.bssList[1].clientList.empty());

    Quillon::TerminalInfoList routerTerminals;
    routerTerminals.Parse(R"({"TerminalInfoList": {"terminalList": [{"ipAddress": "a", "connectType": "wired",
        "band": -1, "onlineSeconds": 9}]}})");
    ASSERT_EQ(routerTerminals.terminalList.size(), 1u);
    EXPECT_EQ(routerTerminals.terminalList[0].band, -1);
}

TEST(WirelessRecordsTest, BridgeWirelessAbsentValuesHaveTheirMarkers)
{
    const Quillon::Wireless empty(static_cast<_xmlNode*>(nullptr));
    EXPECT_EQ(empty.ssid, "");
    EXPECT_EQ(empty.securityMode, "");
    EXPECT_EQ(empty.workScene, "");
    EXPECT_EQ(empty.wirelessMode, "");
    EXPECT_EQ(empty.channelWidthMode, "");
    EXPECT_EQ(empty.channel, "");
    EXPECT_EQ(empty.transmitPower, -1);
    EXPECT_EQ(empty.noise, -1);
    EXPECT_FALSE(empty.antennaGainPresent);
    EXPECT_EQ(empty.antennaGain, -1);

    Quillon::Wireless sparse(static_cast<_xmlNode*>(nullptr));
    sparse.Parse("<Wireless><channelWidth>40</channelWidth></Wireless>");
    EXPECT_EQ(sparse.channelWidth, "40");
    EXPECT_EQ(sparse.transmitPower, -1);
    EXPECT_EQ(sparse.noise, -1);
    EXPECT_EQ(sparse.antennaGain, -1);
    EXPECT_FALSE(sparse.antennaGainPresent);

    Quillon::Transmission peer;
    EXPECT_EQ(peer.noise, -1000);
    EXPECT_LT(peer.distance, 0.0f);
    Quillon::TransmissionList list(std::string{});
    list.Parse("<TransmissionList><transmissionList><Transmission><macAddress>m</macAddress><signal>-55</signal>"
               "</Transmission></transmissionList></TransmissionList>");
    ASSERT_EQ(list.transmissionList.size(), 1u);
    EXPECT_EQ(list.transmissionList[0].signal, -55);
    EXPECT_EQ(list.transmissionList[0].noise, -1000);
    EXPECT_LT(list.transmissionList[0].distance, 0.0f);
}

TEST(WirelessRecordsTest, BridgeWirelessReadsFullAnswer)
{
    Quillon::Wireless wireless(static_cast<_xmlNode*>(nullptr));
    wireless.Parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?><Wireless><ssid>Link-01</ssid>"
                   "<securityMode>WPA2-personal</securityMode><workScene>monitorTerminal</workScene>"
                   "<wirelessMode>802.11ac</wirelessMode><channelWidthMode>auto</channelWidthMode>"
                   "<channelWidth>80</channelWidth><channel>5745MHz</channel><transmitPower>27</transmitPower>"
                   "<noise>-95</noise><antennaGainPresent>true</antennaGainPresent><antennaGain>14</antennaGain>"
                   "</Wireless>");
    EXPECT_EQ(wireless.ssid, "Link-01");
    EXPECT_EQ(wireless.securityMode, "WPA2-personal");
    EXPECT_EQ(wireless.workScene, "monitorTerminal");
    EXPECT_EQ(wireless.wirelessMode, "802.11ac");
    EXPECT_EQ(wireless.channelWidthMode, "auto");
    EXPECT_EQ(wireless.channelWidth, "80");
    EXPECT_EQ(wireless.channel, "5745MHz");
    EXPECT_EQ(wireless.transmitPower, 27);
    EXPECT_EQ(wireless.noise, -95);
    EXPECT_TRUE(wireless.antennaGainPresent);
    EXPECT_EQ(wireless.antennaGain, 14);

    // A gain sent without its flag still counts as present.
    Quillon::Wireless gainOnly;
    gainOnly.Parse("<Wireless><antennaGain>9</antennaGain></Wireless>");
    EXPECT_TRUE(gainOnly.antennaGainPresent);
    EXPECT_EQ(gainOnly.antennaGain, 9);
}

TEST(WirelessRecordsTest, GainBesideAFalseFlagKeepsTheFlagFalse)
{
    Quillon::Wireless xml(static_cast<_xmlNode*>(nullptr));
    xml.Parse("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<Wireless><ssid>Link-02</ssid><channel>6</channel>"
              "<noise>-92</noise><antennaGainPresent>false</antennaGainPresent><antennaGain>5</antennaGain>"
              "</Wireless>\n");
    EXPECT_FALSE(xml.antennaGainPresent);
    EXPECT_EQ(xml.antennaGain, 5);

    // The flag after the gain, and in JSON, wrapped or not.
    Quillon::Wireless reversed(static_cast<_xmlNode*>(nullptr));
    reversed.Parse("<Wireless><antennaGain>5</antennaGain><antennaGainPresent>false</antennaGainPresent></Wireless>");
    EXPECT_FALSE(reversed.antennaGainPresent);
    EXPECT_EQ(reversed.antennaGain, 5);

    Quillon::Wireless json(static_cast<_xmlNode*>(nullptr));
    json.Parse(R"({"Wireless": {"ssid": "Link-02", "antennaGainPresent": false, "antennaGain": 5}})");
    EXPECT_FALSE(json.antennaGainPresent);
    EXPECT_EQ(json.antennaGain, 5);
    Quillon::Wireless bare(static_cast<_xmlNode*>(nullptr));
    bare.Parse(R"({"antennaGain": 5, "antennaGainPresent": false})");
    EXPECT_FALSE(bare.antennaGainPresent);
    EXPECT_EQ(bare.antennaGain, 5);

    // A gain without a flag still counts as present in JSON too; a true flag stays true.
    Quillon::Wireless gainOnly(static_cast<_xmlNode*>(nullptr));
    gainOnly.Parse(R"({"Wireless": {"antennaGain": 7}})");
    EXPECT_TRUE(gainOnly.antennaGainPresent);
    Quillon::Wireless flagOnly(static_cast<_xmlNode*>(nullptr));
    flagOnly.Parse("<Wireless><antennaGainPresent>true</antennaGainPresent></Wireless>");
    EXPECT_TRUE(flagOnly.antennaGainPresent);
    EXPECT_EQ(flagOnly.antennaGain, -1);
}

TEST(WirelessRecordsTest, NegativeChannelInterferenceIsReadAsItsUnsignedForm)
{
    Quillon::ApInfoSearchResult json(std::string{});
    json.Parse(R"({"ApInfoSearchResult": {"responseStatus": "OK", "apList": [{"ipAddress": "10.1.0.11", "rfList": [
        {"band": 0, "channel": 6, "channelInterference": -3},
        {"band": 1, "channel": 149, "channelInterference": -2147483648},
        {"band": 2, "channel": 161, "channelInterference": 4294967295}]}]}})");
    ASSERT_EQ(json.apList.size(), 1u);
    ASSERT_EQ(json.apList[0].rfList.size(), 3u);
    EXPECT_EQ(json.apList[0].rfList[0].channelInterference, static_cast<uint32_t>(-3));
    EXPECT_EQ(json.apList[0].rfList[1].channelInterference, 0x80000000u);
    EXPECT_EQ(json.apList[0].rfList[2].channelInterference, 0xFFFFFFFFu);

    Quillon::ApInfoList xml(std::string{});
    xml.Parse("<ApInfoList><apList><ApInfo><rfList><rfInfo><band>0</band><channelInterference> -1 "
              "</channelInterference></rfInfo></rfList></ApInfo></apList></ApInfoList>");
    ASSERT_EQ(xml.apList.size(), 1u);
    ASSERT_EQ(xml.apList[0].rfList.size(), 1u);
    EXPECT_EQ(xml.apList[0].rfList[0].channelInterference, 0xFFFFFFFFu);

    // Beyond 32 bits either way, or not a whole number, the level keeps its value.
    Quillon::rfInfo radio;
    radio.channelInterference = 7;
    radio.Parse(R"({"channelInterference": -2147483649})");
    radio.Parse(R"({"channelInterference": 4294967296})");
    radio.Parse(R"({"channelInterference": -1.5})");
    radio.Parse("<rfInfo><channelInterference>-x</channelInterference></rfInfo>");
    EXPECT_EQ(radio.channelInterference, 7u);
    // Other unsigned members still refuse a negative number.
    Quillon::SwitchesWorkStateItem item;
    item.Parse("<SwitchesWorkStateItem><sendRate>-1</sendRate></SwitchesWorkStateItem>");
    EXPECT_EQ(item.sendRate, 0u);
}

TEST(WirelessRecordsTest, WanStatusReads)
{
    Quillon::PPPoEStatusList list(static_cast<_xmlNode*>(nullptr));
    list.Parse("<PPPoEStatusList><statusList><PPPoEStatus><id>5</id><ipAddress>100.64.1.2</ipAddress>"
               "<subnetMask>255.255.255.0</subnetMask><gateway>100.64.1.1</gateway><primaryDNS>8.8.8.8</primaryDNS>"
               "<secondaryDNS></secondaryDNS><status>connected</status><addressingType>DialUpInternet</addressingType>"
               "<uplinkRate>1024.5</uplinkRate><downlinkRate>20480.0</downlinkRate></PPPoEStatus></statusList>"
               "</PPPoEStatusList>");
    ASSERT_EQ(list.statusList.size(), 1u);
    const Quillon::PPPoEStatus& wan = list.statusList[0];
    EXPECT_EQ(wan.id, "5");
    EXPECT_EQ(wan.ipAddress, "100.64.1.2");
    EXPECT_EQ(wan.subnetMask, "255.255.255.0");
    EXPECT_EQ(wan.gateway, "100.64.1.1");
    EXPECT_EQ(wan.primaryDNS, "8.8.8.8");
    EXPECT_EQ(wan.secondaryDNS, "");
    EXPECT_EQ(wan.status, "connected");
    EXPECT_EQ(wan.addressingType, "DialUpInternet");
    EXPECT_FLOAT_EQ(wan.uplinkRate, 1024.5f);
    EXPECT_FLOAT_EQ(wan.downlinkRate, 20480.0f);
}

TEST(WirelessRecordsTest, BridgeRegionReadsAndWrites)
{
    Quillon::CBridgeRegion region;
    region.Parse("<BridgeRegion><region>CN</region></BridgeRegion>");
    EXPECT_EQ(region.region, "CN");
    region.region = "EU";
    EXPECT_EQ(region.createXml(),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<BridgeRegion><region>EU</region></BridgeRegion>\n");

    Quillon::CBridgeRegionCapabilities caps;
    caps.Parse("<BridgeRegionCapabilities><regionList><item>CN</item><item>US</item></regionList>"
               "</BridgeRegionCapabilities>");
    ASSERT_EQ(caps.regionList.size(), 2u);
    EXPECT_EQ(caps.regionList[1], "US");

    Quillon::CBridgeRegionRes res;
    res.Parse("<BridgeRegionRes><statusCode>1</statusCode><statusString>OK</statusString><region>EU</region>"
              "<needReboot>true</needReboot></BridgeRegionRes>");
    EXPECT_EQ(res.statusCode, 1);
    EXPECT_EQ(res.statusString, "OK");
    EXPECT_EQ(res.region, "EU");
    EXPECT_TRUE(res.needReboot);
}

TEST(WirelessRecordsTest, RecordFromEmptyTextIsValidAndEmpty)
{
    EXPECT_TRUE(Quillon::ApInfoList(std::string{}).apList.empty());
    EXPECT_TRUE(Quillon::ApInfo(std::string{}).rfList.empty());
    EXPECT_EQ(Quillon::rfInfo(std::string{}).band, 0);
    EXPECT_TRUE(Quillon::RfParaCfgList(std::string{}).rfList.empty());
    EXPECT_TRUE(Quillon::BssParaCfg(std::string{}).bssList.empty());
    EXPECT_FALSE(Quillon::AcCapabilities(std::string{}).isSupportSearchAPGroup);
    EXPECT_TRUE(Quillon::AcTerminalInfoList(std::string{}).terminalList.empty());
    EXPECT_TRUE(Quillon::APGroupBSSList(std::string{}).groupList.empty());
    EXPECT_TRUE(Quillon::BssClientInfoList(std::string{}).bssList.empty());
    EXPECT_TRUE(Quillon::TransmissionList(std::string{}).transmissionList.empty());
    EXPECT_TRUE(Quillon::PPPoEStatusList(static_cast<_xmlNode*>(nullptr)).statusList.empty());
}

TEST(WirelessRecordsTest, MalformedAnswersLeaveDefaults)
{
    Quillon::ApInfoList list;
    list.Parse(R"({"ApInfoList": {"apList": [{"ipAddress": "1.2.3.4", "runTime": )");
    EXPECT_TRUE(list.apList.empty());

    Quillon::Wireless wireless;
    wireless.Parse("<Wireless><transmitPower>27</transmitPower><noise>");
    EXPECT_EQ(wireless.transmitPower, -1);
    EXPECT_EQ(wireless.noise, -1);

    Quillon::AcTerminalInfoList terminals;
    terminals.Parse(R"({"terminalList": [{"rssi": "-61", "band": 1.5, "ssid": 7, "receiveRate": "fast"}]})");
    ASSERT_EQ(terminals.terminalList.size(), 1u);
    EXPECT_EQ(terminals.terminalList[0].rssi, 0);
    EXPECT_EQ(terminals.terminalList[0].band, 0);
    EXPECT_EQ(terminals.terminalList[0].ssid, "");
    EXPECT_DOUBLE_EQ(terminals.terminalList[0].receiveRate, 0.0);
}

} // namespace
