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
