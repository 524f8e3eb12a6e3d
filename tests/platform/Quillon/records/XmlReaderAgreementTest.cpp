// The one-pass XML reader fills every record exactly as libxml2's tree reader does: for
// the plain answers that it reads itself and for every text that it leaves to the tree.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "SwitchFields.h"
#include "WirelessFields.h"

namespace {

template <typename R>
void expectSameAsTree(const std::string& text)
{
    R streamed;
    streamed.Parse(text);
    R tree;
    Quillon::detail::parseAnswerTree(tree, text);
    EXPECT_EQ(Quillon::detail::toJson(streamed), Quillon::detail::toJson(tree)) << "answer: " << text;
}

void expectAllSameAsTree(const std::string& text)
{
#define QUILLON_AGREE(Type) expectSameAsTree<Quillon::Type>(text);
    QUILLON_SWITCH_RECORDS(QUILLON_AGREE)
    QUILLON_WIRELESS_RECORDS(QUILLON_AGREE)
#undef QUILLON_AGREE
}

const char kItem[] =
    "<SwitchesWorkStateItem><portId>7</portId><portEnabled> true </portEnabled><linkState>connected</linkState>"
    "<rate>1000M</rate><bytesSent>123456789012</bytesSent><sendRate>+1000</sendRate>"
    "<counterReserved><item>1</item><item>x</item><item>2</item><item>3</item><item>4</item></counterReserved>"
    "<poePower>3.5</poePower><portRemark>a &amp; b &lt;c&gt; &#x4E2D;&#25991;</portRemark></SwitchesWorkStateItem>";

TEST(XmlReaderAgreementTest, PlainAnswersReadAsTheTreeReadsThem)
{
    const std::vector<std::string> answers = {
        std::string("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<SwitchesWorkStateSearchRes version=\"2.0\" "
                    "xmlns=\"urn:x\">\n  <responseStatus>MORE</responseStatus>\n  <portList>\n    ") +
            kItem + "\n    " + kItem + "\n  </portList>\n</SwitchesWorkStateSearchRes>\n",
        "\xEF\xBB\xBF<DeviceStatus><deviceUpTime>86400</deviceUpTime><cpuList><DeviceCpuInfo><cpuUtilization>5"
        "</cpuUtilization></DeviceCpuInfo><x/></cpuList><memoryList/><unknown><a>1</a></unknown></DeviceStatus>",
        "<Wireless><ssid>  </ssid><channel/><noise>-95</noise><transmitPower>27<b/></transmitPower>"
        "<antennaGain>1e3</antennaGain></Wireless>",
        "<CBridgeRegionCapabilities><regionList><r>CN</r><r></r><r><s/></r><r>\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"
        "</r></regionList></CBridgeRegionCapabilities>",
        "<PortPoeInfoListCap><isSupportPoe>true</isSupportPoe><portList><PortPoeInfoCap><portId>1</portId>"
        "<poeEnableOptions><o>true</o><o>no</o><o>false</o></poeEnableOptions></PortPoeInfoCap></portList>"
        "</PortPoeInfoListCap>",
        "<rfInfo a='1' b=\"2\"><channelInterference>-3</channelInterference><band>]</band></rfInfo>",
    };
    for (const std::string& answer : answers) {
        expectAllSameAsTree(answer);
    }
}

TEST(XmlReaderAgreementTest, TextsOutsideThePlainFormAreLeftToTheTree)
{
    const std::vector<std::string> answers = {
        // Read by the tree: members given twice, comments, CDATA, CR, prefixes, other encodings.
        "<Wireless><ssid>a</ssid><noise>1</noise><ssid>b</ssid></Wireless>",
        "<SwitchBasePort><portName>p</portName><portId>1</portId><portId>2</portId></SwitchBasePort>",
        "<Wireless><ssid>a<!-- c -->b</ssid></Wireless>",
        "<Wireless><ssid><![CDATA[x<y]]></ssid></Wireless>",
        "<Wireless><ssid>a\r\nb\rc</ssid></Wireless>",
        "<p:Wireless xmlns:p=\"urn:x\"><p:ssid>s</p:ssid></p:Wireless>",
        "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><Wireless><ssid>\xE9</ssid></Wireless>",
        "<!DOCTYPE Wireless [<!ENTITY e \"E\">]><Wireless><ssid>&e;</ssid></Wireless>",
        "<Wireless><?pi x?><ssid>s</ssid></Wireless>",
        "<Wireless><ssid>s</ssid></Wireless><!-- after -->",
        "<Wireless><ssid>\xD0\x96</ssid><channel>\xE4\xB8</channel></Wireless>",
        // Refused by both: not well-formed.
        "<Wireless><ssid>s</Wireless>",
        "<Wireless><ssid>s</ssid>",
        "<Wireless a=\"1\" a=\"2\"><ssid>s</ssid></Wireless>",
        "<Wireless><ssid>a]]>b</ssid></Wireless>",
        "<Wireless><ssid>a&bogus;b</ssid></Wireless>",
        "<Wireless><ssid>&#0;</ssid></Wireless>",
        "<Wireless><ssid>\x01</ssid></Wireless>",
        "<Wireless><ssid>\xED\xA0\x80</ssid></Wireless>",
        "<Wireless><ssid>\xEF\xBF\xBE</ssid></Wireless>",
        "<Wireless><ssid>s</ssid></Wireless>trailing",
        "<Wireless><ssid>s</ssid></Wireless><Wireless/>",
        " <?xml version=\"1.0\"?><Wireless/>",
        "<Wireless b=\"<\"/>",
        "<Wireless b=\"1\"c=\"2\"/>",
        std::string("<Wireless><ssid>a") + std::string(1, '\0') + "</ssid></Wireless>",
        std::string(300, '<'),
    };
    for (const std::string& answer : answers) {
        expectAllSameAsTree(answer);
    }
    std::string deep;
    for (int i = 0; i < 300; ++i) {
        deep += "<a>";
    }
    for (int i = 0; i < 300; ++i) {
        deep += "</a>";
    }
    expectAllSameAsTree("<DeviceStatus><cpuList>" + deep + "</cpuList><deviceUpTime>4</deviceUpTime></DeviceStatus>");
}

// Tags that look almost like the member the reader expects next, and values that end almost
// like a plain end tag.
TEST(XmlReaderAgreementTest, TagsAndValuesCloseToTheUsualOnesReadAsTheTreeReadsThem)
{
    const std::vector<std::string> items = {
        "<portIdX>5</portIdX><portId>6</portId>",     // the expected name, longer
        "<portI>5</portI><portId>6</portId>",         // shorter
        "<portid>5</portid>",                         // another case
        "<portId >5</portId>",                        // a blank before '>'
        "<portId\n>5</portId\t>",
        "<portId a=\"1\">5</portId>",                 // an attribute
        "<portId/><portEnabled/>",                     // empty
        "<portId></portId><portEnabled></portEnabled>",
        "<portId>5</portId ><portEnabled>true</portEnabled  >",
        "<portId>5</portIdX>",                        // malformed: other end tag
        "<portId>5</portI>",
        "<portId>5</port",                            // the text ends
        "<portId>5</",
        "<portId>5<",
        "<portId>5",
        "<portId>1&#50;</portId><rate>1&lt;2</rate>", // references
        "<portId>7<x/></portId><rate>a<b>c</b>d</rate>",
        "<rate>]]</rate><duplex>a]b</duplex>",
        "<portRemark>last</portRemark><rate>r</rate><portId>3</portId>", // out of order
        "<bogus>1</bogus><portId>3</portId><bogus/><portEnabled>true</portEnabled>",
        "<counterReserved><item>1</item><itemX>2</itemX><item>3</item><item >4</item></counterReserved>",
        "<linkState>\xE4\xB8\xAD</linkState><rate>\xC3</rate>",
    };
    const std::vector<std::string> blanks = {"", "\n", "\n      ", "\n        \n", "\t \n", "        ",
                                             "\n               x", "\n\r  "};
    for (const std::string& item : items) {
        for (const std::string& blank : blanks) {
            expectAllSameAsTree("<SwitchesWorkStateSearchRes><portList>" + blank + "<SwitchesWorkStateItem>" + blank +
                                item + blank + "</SwitchesWorkStateItem>" + blank +
                                "</portList></SwitchesWorkStateSearchRes>");
            expectAllSameAsTree("<SwitchesWorkStateItem>" + blank + item + blank + "</SwitchesWorkStateItem>");
        }
    }
}

// Lists of many items, of like and of unlike sizes, and items that follow a small first one.
TEST(XmlReaderAgreementTest, LongListsReadAsTheTreeReadsThem)
{
    std::string small = "<SwitchesWorkStateSearchRes><portList><SwitchesWorkStateItem/>";
    std::string mixed = "<SwitchesWorkStateSearchRes><portList>";
    for (int i = 0; i < 6000; ++i) {
        small += "<SwitchesWorkStateItem><portId>" + std::to_string(i) + "</portId></SwitchesWorkStateItem>";
        mixed += i % 3 == 0 ? std::string("<SwitchesWorkStateItem/>") : std::string(kItem);
    }
    small += "</portList></SwitchesWorkStateSearchRes>";
    mixed += "</portList><responseStatus>OK</responseStatus></SwitchesWorkStateSearchRes>";
    expectSameAsTree<Quillon::SwitchesWorkStateSearchRes>(small);
    expectSameAsTree<Quillon::SwitchesWorkStateSearchRes>(mixed);

    Quillon::SwitchesWorkStateSearchRes read(small);
    ASSERT_EQ(read.portList.size(), 6001u);
    EXPECT_EQ(read.portList[6000].portId, 5999);
    Quillon::SwitchesWorkStateSearchRes readMixed(mixed);
    EXPECT_EQ(readMixed.portList.size(), 6000u);
    EXPECT_EQ(readMixed.responseStatus, "OK");
}

TEST(XmlReaderAgreementTest, AnAnswerOutsideThePlainFormLeavesTheRecordToTheTree)
{
    // A member given twice: the tree's order of look-up decides, and nothing read by the one-
    // pass reader before it gave up stays behind.
    Quillon::SwitchBasePort port;
    port.portName = "before";
    port.Parse("<SwitchBasePort><portName>p</portName><portId>1</portId><portId>2</portId></SwitchBasePort>");
    EXPECT_EQ(port.portId, 1);
    EXPECT_EQ(port.portName, "p");

    // A malformed answer leaves what the record held.
    Quillon::SwitchBasePort kept;
    kept.portId = 9;
    kept.Parse("<SwitchBasePort><portId>1</portId><portName>p</portName>");
    EXPECT_EQ(kept.portId, 9);
    EXPECT_EQ(kept.portName, "");
}

} // namespace
