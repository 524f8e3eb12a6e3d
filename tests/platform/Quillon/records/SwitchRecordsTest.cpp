// The switch records read the device's answers as the wire protocol writes them.
#include <gtest/gtest.h>

#include <string>

#include "Quillon/SwitchRecords.h"

namespace {

const char* const kDeviceStatusXml = R"(<?xml version="1.0" encoding="UTF-8"?>
<DeviceStatus>
  <deviceUpTime>93784</deviceUpTime>
  <cpuList><DeviceCpuInfo><cpuUtilization>37</cpuUtilization></DeviceCpuInfo></cpuList>
  <memoryList><DeviceMemoryInfo><memoryUsage>412.5</memoryUsage><memoryAvailable>611.5</memoryAvailable></DeviceMemoryInfo></memoryList>
  <poeList><DevicePoeInfo><poeUsed>123.4</poeUsed><poeTotal>370.0</poeTotal><poePeak>201.0</poePeak></DevicePoeInfo></poeList>
</DeviceStatus>
)";

TEST(SwitchRecordsTest, DeviceStatusReadsUpTimeAndFirstElements)
{
    Quillon::DeviceStatus status(static_cast<_xmlNode*>(nullptr));
    status.Parse(kDeviceStatusXml);
    EXPECT_EQ(status.deviceUpTime, 93784);
    ASSERT_EQ(status.cpuList.size(), 1u);
    EXPECT_EQ(status.cpuList[0].cpuUtilization, 37);
    ASSERT_EQ(status.memoryList.size(), 1u);
    EXPECT_FLOAT_EQ(status.memoryList[0].memoryUsage, 412.5f);
    EXPECT_FLOAT_EQ(status.memoryList[0].memoryAvailable, 611.5f);
    ASSERT_EQ(status.poeList.size(), 1u);
    EXPECT_FLOAT_EQ(status.poeList[0].poeUsed, 123.4f);
    EXPECT_FLOAT_EQ(status.poeList[0].poeTotal, 370.0f);
    EXPECT_FLOAT_EQ(status.poeList[0].poePeak, 201.0f);
}

TEST(SwitchRecordsTest, DeviceWithoutPoeHasEmptyList)
{
    Quillon::DeviceStatus status;
    status.Parse("<DeviceStatus><deviceUpTime>5</deviceUpTime><cpuList/><memoryList></memoryList><poeList/></DeviceStatus>");
    EXPECT_EQ(status.deviceUpTime, 5);
    EXPECT_TRUE(status.cpuList.empty());
    EXPECT_TRUE(status.memoryList.empty());
    EXPECT_TRUE(status.poeList.empty());
}

const char* const kWorkStateXml = R"(<?xml version="1.0" encoding="UTF-8"?>
<SwitchesWorkState>
  <portList>
    <SwitchesWorkStateItem>
      <portId>1</portId><portEnabled>true</portEnabled><linkState>connected</linkState><rate>1000M</rate>
      <flowCtrl>false</flowCtrl><duplex>duplex</duplex><portType>electrical</portType>
      <bytesSent>18446744073709551615</bytesSent><sendRate>4294967295</sendRate><packetsSent>12</packetsSent>
      <sendReserved>0</sendReserved><bytesReceived>77</bytesReceived><receiveRate>1200</receiveRate>
      <packetsReceived>3</packetsReceived><counterReserved><item>4</item><item>5</item><item>6</item></counterReserved>
      <peakSendRate>9000</peakSendRate><peakReceiveRate>8000</peakReceiveRate><poePower>15.4</poePower>
      <portRemark>connected</portRemark>
    </SwitchesWorkStateItem>
    <SwitchesWorkStateItem><portId>2</portId><linkState>disconnected</linkState><portType>optical</portType><rate></rate></SwitchesWorkStateItem>
  </portList>
  <portOrder>portNO1</portOrder>
</SwitchesWorkState>
)";

TEST(SwitchRecordsTest, WorkStateReadsEveryMemberOfItsItems)
{
    Quillon::SwitchesWorkState state(std::string{});
    state.Parse(kWorkStateXml);
    ASSERT_EQ(state.portList.size(), 2u);
    const Quillon::SwitchesWorkStateItem& first = state.portList[0];
    EXPECT_EQ(first.portId, 1);
    EXPECT_TRUE(first.portEnabled);
    EXPECT_EQ(first.linkState, "connected");
    EXPECT_EQ(first.rate, "1000M");
    EXPECT_FALSE(first.flowCtrl);
    EXPECT_EQ(first.duplex, "duplex");
    EXPECT_EQ(first.portType, "electrical");
    EXPECT_EQ(first.bytesSent, "18446744073709551615");
    EXPECT_EQ(first.sendRate, 4294967295u);
    EXPECT_EQ(first.packetsSent, "12");
    EXPECT_EQ(first.bytesReceived, "77");
    EXPECT_EQ(first.receiveRate, 1200u);
    EXPECT_EQ(first.packetsReceived, "3");
    EXPECT_EQ(first.counterReserved[0], 4);
    EXPECT_EQ(first.counterReserved[1], 5);
    EXPECT_EQ(first.counterReserved[2], 6);
    EXPECT_EQ(first.peakSendRate, 9000u);
    EXPECT_EQ(first.peakReceiveRate, 8000u);
    EXPECT_FLOAT_EQ(first.poePower, 15.4f);
    EXPECT_EQ(first.portRemark, "connected");
    const Quillon::SwitchesWorkStateItem& second = state.portList[1];
    EXPECT_EQ(second.portId, 2);
    EXPECT_EQ(second.linkState, "disconnected");
    EXPECT_EQ(second.portType, "optical");
    EXPECT_EQ(second.rate, "");
    EXPECT_EQ(second.portRemark, "");
    EXPECT_EQ(second.sendRate, 0u);
    EXPECT_EQ(state.portOrder, "portNO1");
}

TEST(SwitchRecordsTest, ListItemsAreTakenWhateverTheirElementName)
{
    Quillon::SwitchesWorkState state;
    state.Parse("<Anything><portList><a><portId>7</portId></a><!-- note --><b><portId>8</portId></b>text</portList></Anything>");
    ASSERT_EQ(state.portList.size(), 2u);
    EXPECT_EQ(state.portList[0].portId, 7);
    EXPECT_EQ(state.portList[1].portId, 8);
}

TEST(SwitchRecordsTest, SearchResultReadsStatusAndPage)
{
    Quillon::SwitchesWorkStateSearchRes result(std::string{});
    result.Parse("<SwitchesWorkStateSearchRes><searchID>G</searchID><responseStatus>MORE</responseStatus>"
                 "<numOfMatches>2</numOfMatches><portList><SwitchesWorkStateItem><portId>3</portId></SwitchesWorkStateItem>"
                 "<SwitchesWorkStateItem><portId>4</portId></SwitchesWorkStateItem></portList></SwitchesWorkStateSearchRes>");
    EXPECT_EQ(result.responseStatus, "MORE");
    EXPECT_EQ(result.searchID, "G");
    EXPECT_EQ(result.numOfMatches, 2);
    ASSERT_EQ(result.portList.size(), 2u);
    EXPECT_EQ(result.portList[1].portId, 4);
}

TEST(SwitchRecordsTest, SearchConditionWritesXmlBody)
{
    Quillon::SwitchesWorkStateSearchCond cond;
    cond.searchID = "0A1B";
    cond.maxResults = -1;
    cond.searchResultPosition = 64;
    const std::string xml = cond.createXml();
    EXPECT_EQ(xml, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                   "<SwitchesWorkStateSearchCond><searchID>0A1B</searchID><maxResults>-1</maxResults>"
                   "<searchResultPosition>64</searchResultPosition></SwitchesWorkStateSearchCond>\n");
}

TEST(SwitchRecordsTest, SearchCapabilityReadsPageSize)
{
    Quillon::SwitchesWorkStateSearchCap cap(std::string{});
    cap.Parse("<SwitchesWorkStateSearchCap><maxResults>32</maxResults></SwitchesWorkStateSearchCap>");
    EXPECT_EQ(cap.maxResults, 32);
}

TEST(SwitchRecordsTest, BaseInfoReadsModelAndPortNames)
{
    const char* answer = "<SwitchBaseInfo><deviceModel>QN-1040</deviceModel><portList>"
                         "<SwitchBasePort><portId>1</portId><portName>GE1/0/1</portName></SwitchBasePort>"
                         "<SwitchBasePort><portId>25</portId><portName>XGE1/0/25</portName></SwitchBasePort></portList>"
                         "<deviceName>\xE6\xA0\xB8\xE5\xBF\x83</deviceName><portNum>2</portNum></SwitchBaseInfo>";
    Quillon::CSwitchBaseInfo info(std::string{});
    info.Parse(answer);
    EXPECT_EQ(info.deviceModel, "QN-1040");
    ASSERT_EQ(info.portList.size(), 2u);
    EXPECT_EQ(info.portList[1].portId, 25);
    EXPECT_EQ(info.portList[1].portName, "XGE1/0/25");
    EXPECT_EQ(info.deviceName, "\xE6\xA0\xB8\xE5\xBF\x83");
    // The other record of the same answer reads it the same way.
    Quillon::SwitchesBasicInfo basic;
    basic.Parse(answer);
    EXPECT_EQ(basic.deviceModel, "QN-1040");
    EXPECT_EQ(basic.portList.size(), 2u);
    EXPECT_EQ(basic.portNum, 2);
}

TEST(SwitchRecordsTest, PoeListAndCapabilitiesReadJson)
{
    Quillon::PortPoeInfoList list(std::string{});
    list.Parse(R"({"PortPoeInfoList": {"portList": [
        {"portId": 1, "poeEnable": true, "poeStatus": "powering", "poePower": 6.5, "poeMaxPower": 30.0},
        {"portId": 2, "poeEnable": false, "poeStatus": "disabled", "poePower": 0.0, "poeMaxPower": 30.0}]}})");
    ASSERT_EQ(list.portList.size(), 2u);
    EXPECT_TRUE(list.portList[0].poeEnable);
    EXPECT_FALSE(list.portList[1].poeEnable);
    EXPECT_EQ(list.portList[0].poeStatus, "powering");
    EXPECT_FLOAT_EQ(list.portList[0].poePower, 6.5f);

    Quillon::PortPoeInfoListCap cap(std::string{});
    cap.Parse(R"({"PortPoeInfoListCap": {"isSupportPoe": true, "portList": [
        {"portId": 1, "poeEnableOptions": [true, false]},
        {"portId": 9, "poeEnableOptions": [false]}]}})");
    EXPECT_TRUE(cap.isSupportPoe);
    ASSERT_EQ(cap.portList.size(), 2u);
    EXPECT_EQ(cap.portList[0].poeEnableOptions.size(), 2u);
    ASSERT_EQ(cap.portList[1].poeEnableOptions.size(), 1u);
    EXPECT_FALSE(cap.portList[1].poeEnableOptions[0]);
}

TEST(SwitchRecordsTest, PanelReadsGridAndCells)
{
    Quillon::PanelStatus status(std::string{});
    status.Parse(R"({"PanelStatus": {"panelList": [{"rowCount": 2, "cellList": [
        {"cellType": "border", "portType": "", "portId": 0, "label": "", "direction": ""},
        {"cellType": "border", "portType": "", "portId": 0, "label": "", "direction": ""},
        {"cellType": "port", "portType": "electrical", "portId": 1, "label": "1", "direction": "up"},
        {"cellType": "port", "portType": "optical", "portId": 2, "label": "2", "direction": "down"}],
        "columnCount": 2, "portMargin": 3}]}})");
    ASSERT_EQ(status.panelList.size(), 1u);
    const Quillon::Panel panel = status.panelList[0];
    EXPECT_EQ(panel.rowCount, 2);
    EXPECT_EQ(panel.columnCount, 2);
    EXPECT_EQ(panel.portMargin, 3);
    ASSERT_EQ(panel.cellList.size(), 4u);
    EXPECT_EQ(panel.cellList[3].cellType, "port");
    EXPECT_EQ(panel.cellList[3].portType, "optical");
    EXPECT_EQ(panel.cellList[3].portId, 2);
    EXPECT_EQ(panel.cellList[3].label, "2");
    EXPECT_EQ(panel.cellList[3].direction, "down");
}

TEST(SwitchRecordsTest, SlotListsReadJson)
{
    Quillon::SwitchSlotInfolList slots(std::string{});
    slots.Parse(R"({"SwitchSlotInfolList": {"slotList": [
        {"slotId": 0, "boardType": "mainBoard", "inserted": true, "boardName": "MPU", "portNum": 0},
        {"slotId": 1, "boardType": "interfaceBoard", "inserted": false, "boardName": "", "portNum": 0}]}})");
    ASSERT_EQ(slots.slotList.size(), 2u);
    EXPECT_EQ(slots.slotList[0].boardType, "mainBoard");
    EXPECT_TRUE(slots.slotList[0].inserted);
    EXPECT_FALSE(slots.slotList[1].inserted);

    Quillon::FiberConvertSlotList fiber;
    fiber.Parse(R"({"FiberConvertSlotList": {"slotList": [{"slotId": 3, "receivingCardIP": "10.0.0.3",
        "receiveCardSerialNumber": "RC3", "transmitterIP": "10.0.1.3", "transmitterSerialNumber": "TX3",
        "senderName": "\u4e1c\u95e8"}]}})");
    ASSERT_EQ(fiber.slotList.size(), 1u);
    EXPECT_EQ(fiber.slotList[0].slotId, 3);
    EXPECT_EQ(fiber.slotList[0].receivingCardIP, "10.0.0.3");
    EXPECT_EQ(fiber.slotList[0].receiveCardSerialNumber, "RC3");
    EXPECT_EQ(fiber.slotList[0].transmitterIP, "10.0.1.3");
    EXPECT_EQ(fiber.slotList[0].transmitterSerialNumber, "TX3");
    EXPECT_EQ(fiber.slotList[0].senderName, "\xE4\xB8\x9C\xE9\x97\xA8");
}

TEST(SwitchRecordsTest, PortBasicAndRateListsRead)
{
    Quillon::PortBasicList basic;
    basic.Parse("<PortBasicList><portList><PortBasic><portId>4</portId><portName>GE4</portName>"
                "<portEnabled>true</portEnabled><maxSpeed>1000M</maxSpeed></PortBasic></portList></PortBasicList>");
    ASSERT_EQ(basic.portList.size(), 1u);
    EXPECT_EQ(basic.portList[0].portName, "GE4");
    EXPECT_TRUE(basic.portList[0].portEnabled);
    EXPECT_EQ(basic.portList[0].maxSpeed, "1000M");

    Quillon::PortRateList rates;
    rates.Parse("<PortRateList><portList><PortRate><portId>4</portId><rateLimitEnabled>true</rateLimitEnabled>"
                "<ingressRate>512</ingressRate><egressRate>0</egressRate></PortRate></portList></PortRateList>");
    ASSERT_EQ(rates.portList.size(), 1u);
    EXPECT_TRUE(rates.portList[0].rateLimitEnabled);
    EXPECT_EQ(rates.portList[0].ingressRate, 512u);
}

TEST(SwitchRecordsTest, RecordFromEmptyTextIsValidAndEmpty)
{
    const Quillon::SwitchesWorkState state(std::string{});
    EXPECT_TRUE(state.portList.empty());
    EXPECT_TRUE(state.portOrder.empty());
    const Quillon::CSwitchBaseInfo info(std::string{});
    EXPECT_TRUE(info.deviceModel.empty());
    EXPECT_TRUE(info.portList.empty());
    const Quillon::PortPoeInfoListCap cap(std::string{});
    EXPECT_FALSE(cap.isSupportPoe);
    EXPECT_TRUE(cap.portList.empty());
    const Quillon::PanelStatus panel(std::string{});
    EXPECT_TRUE(panel.panelList.empty());
    const Quillon::SwitchesWorkStateSearchCond cond;
    EXPECT_TRUE(cond.searchID.empty());
    const Quillon::FiberConvertSlotList fiber;
    EXPECT_TRUE(fiber.slotList.empty());
}

TEST(SwitchRecordsTest, ValuesOfTheWrongTypeKeepTheirDefaults)
{
    Quillon::SwitchesWorkState state;
    state.Parse("<SwitchesWorkState><portList><SwitchesWorkStateItem>"
                "<portId>one</portId><portEnabled>yes</portEnabled><sendRate>-5</sendRate>"
                "<receiveRate>4294967296</receiveRate><poePower>1,5</poePower><flowCtrl>true</flowCtrl>"
                "<linkState><b>x</b></linkState><peakSendRate> 77 </peakSendRate>"
                "</SwitchesWorkStateItem></portList></SwitchesWorkState>");
    ASSERT_EQ(state.portList.size(), 1u);
    const Quillon::SwitchesWorkStateItem& item = state.portList[0];
    EXPECT_EQ(item.portId, 0);
    EXPECT_FALSE(item.portEnabled);
    EXPECT_EQ(item.sendRate, 0u);
    EXPECT_EQ(item.receiveRate, 0u);
    EXPECT_FLOAT_EQ(item.poePower, 0.0f);
    EXPECT_EQ(item.linkState, "");
    EXPECT_TRUE(item.flowCtrl);          // the members around a bad one are still read
    EXPECT_EQ(item.peakSendRate, 77u);   // blanks around a number are allowed

    Quillon::PortPoeInfoListCap cap;
    cap.Parse(R"({"isSupportPoe": "true", "portList": {"portId": 1}})");
    EXPECT_FALSE(cap.isSupportPoe);
    EXPECT_TRUE(cap.portList.empty());

    Quillon::PanelStatus panel;
    panel.Parse(R"({"panelList": [{"rowCount": 2.5, "portMargin": 1e12, "columnCount": "4"}, 7, "x"]})");
    ASSERT_EQ(panel.panelList.size(), 1u); // elements that aren't objects are skipped
    EXPECT_EQ(panel.panelList[0].rowCount, 0);
    EXPECT_EQ(panel.panelList[0].portMargin, 0);
    EXPECT_EQ(panel.panelList[0].columnCount, 0);
}

TEST(SwitchRecordsTest, MalformedAnswerLeavesDefaults)
{
    Quillon::DeviceStatus status;
    const std::string text = kDeviceStatusXml;
    status.Parse(text.substr(0, text.size() - 20)); // cut short
    EXPECT_EQ(status.deviceUpTime, 0);
    EXPECT_TRUE(status.cpuList.empty());
    EXPECT_FLOAT_EQ(Quillon::DevicePoeInfo().poePeak, -1.0f);

    Quillon::PortPoeInfoList list;
    list.Parse(R"({"PortPoeInfoList": {"portList": [{"portId": 1, "poeEnable": true},)");
    EXPECT_TRUE(list.portList.empty());

    Quillon::SwitchesWorkState state;
    state.Parse("<!DOCTYPE x [<!ENTITY e SYSTEM \"file:///etc/passwd\">]><x><portOrder>&e;</portOrder></x>");
    EXPECT_EQ(state.portOrder, "");
}

} // namespace
