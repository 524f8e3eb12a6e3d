// The radio tab of the AP status page: the tiles, the two gauges and the verdict on the
// channel's interference, for the radios the emulated controllers report and for the
// edges of each band of levels.
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "RfInfoTab.h"
#include "UsageRateChart.h"
#include "WirelessPagesTestFleet.h"
#include "support/LogCapture.h"

using velmora::CRfInfoTab;
using velmora::CUsageRateChart;
using velmora::test::LogCapture;
using velmora::test::WirelessPageTest;
using velmora::test::labelText;
using velmora::test::part;

namespace {

const char kNormalStyle[] = "color: rgb(41, 204, 64);font: bold 21px;";
const char kInterferenceStyle[] = "color: rgb(203, 94, 94);font: bold 21px;";
const char kOutOfRange[] = "Out of channel interference range";

// What the tab must show for an interference level: text, image, style (empty: untouched).
enum class Verdict { Normal, Interference, Blank };

Verdict expectedVerdict(uint32_t level)
{
    if (level == 0 || (level >= 15 && level <= 20))
        return Verdict::Normal;
    if (level >= 10 && level <= 14)
        return Verdict::Interference;
    return Verdict::Blank;
}

Quillon::rfInfo radio(uint32_t interference, int channel = 6, int power = 20, int send = 12, int receive = 34)
{
    Quillon::rfInfo rf{std::string()};
    rf.band = 0;
    rf.channel = channel;
    rf.transmitPower = power;
    rf.channelInterference = interference;
    rf.sendUtilization = send;
    rf.receiveUtilization = receive;
    return rf;
}

QImage imageOf(QWidget& tab)
{
    QLabel* label = part<QLabel>(tab, "m_pChannelStatusPixLabel");
    return label ? label->pixmap(Qt::ReturnByValue).toImage() : QImage();
}

QString styleOf(QWidget& tab)
{
    QLabel* label = part<QLabel>(tab, "m_pChannelStatusLabel");
    return label ? label->styleSheet() : QString();
}

// Checks the verdict shown for `level`; `previousStyle` is what a blank verdict keeps.
void expectVerdict(CRfInfoTab& tab, uint32_t level, const QString& previousStyle)
{
    SCOPED_TRACE(level);
    const QImage normal(":/Tarvex7300/Velmora/Images/APDevice/channel_status_normal.png");
    const QImage interference(":/Tarvex7300/Velmora/Images/APDevice/channel_status_interference.png");
    ASSERT_FALSE(normal.isNull());
    ASSERT_FALSE(interference.isNull());
    switch (expectedVerdict(level)) {
    case Verdict::Normal:
        EXPECT_EQ(labelText(tab, "m_pChannelStatusLabel"), "Normal");
        EXPECT_EQ(styleOf(tab), kNormalStyle);
        EXPECT_EQ(imageOf(tab).convertToFormat(QImage::Format_ARGB32), normal.convertToFormat(QImage::Format_ARGB32));
        break;
    case Verdict::Interference:
        EXPECT_EQ(labelText(tab, "m_pChannelStatusLabel"), "InterferenceULcuQKdYGZ");
        EXPECT_EQ(styleOf(tab), kInterferenceStyle);
        EXPECT_EQ(imageOf(tab).convertToFormat(QImage::Format_ARGB32),
                  interference.convertToFormat(QImage::Format_ARGB32));
        break;
    case Verdict::Blank:
        EXPECT_EQ(labelText(tab, "m_pChannelStatusLabel"), "");
        EXPECT_EQ(styleOf(tab), previousStyle);
        EXPECT_TRUE(imageOf(tab).isNull());
        break;
    }
}

bool logged(const LogCapture& log, const char* level, const char* message)
{
    for (const auto& line : log.lines(level)) {
        if (line.message == message)
            return true;
    }
    return false;
}

class RfInfoTabTest : public WirelessPageTest {};

} // namespace

TEST_F(RfInfoTabTest, TheFormHasItsTilesCaptionsAndSizes)
{
    CRfInfoTab tab;
    EXPECT_EQ(tab.objectName(), "RfInfoTab");
    EXPECT_EQ(tab.size(), QSize(607, 342));
    const std::map<const char*, QSize> fixed = {{"m_pChannelFrame", {74, 116}},       {"m_pTransmitPowerFrame", {74, 116}},
                                                {"m_pSendRateFrame", {160, 116}},     {"m_pRecRateFrame", {160, 116}},
                                                {"m_pChannelStatusFrame", {217, 105}}, {"m_pSendRateValueLabel", {75, 75}},
                                                {"m_pReceiveRateLabel", {75, 75}}};
    for (const auto& [name, size] : fixed) {
        QWidget* widget = part<QWidget>(tab, name);
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(widget->minimumSize(), size) << name;
        EXPECT_EQ(widget->maximumSize(), size) << name;
    }
    EXPECT_NE(tab.findChild<CUsageRateChart*>("m_pSendRateValueLabel"), nullptr);
    EXPECT_NE(tab.findChild<CUsageRateChart*>("m_pReceiveRateLabel"), nullptr);
    const std::map<const char*, const char*> captions = {
        {"label_4", "ChannelOX54KMQ8"},           {"label_5", "SendThePowernyjbsHqe"},
        {"label_7", "dBm"},                       {"label_8", "TransmissionChannelUCQyiMcrM"},
        {"label_10", "ReceivingChannelUtilzZTLbJtC"}, {"label_13", "ChannelInterferenceCxNqnewIU"}};
    for (const auto& [name, key] : captions)
        EXPECT_EQ(labelText(tab, name), key) << name;
    EXPECT_EQ(part<QLabel>(tab, "label_4")->font().pointSize(), 9);
    EXPECT_EQ(part<QLabel>(tab, "label_7")->font().pointSize(), 16);
    EXPECT_EQ(part<QLabel>(tab, "m_pChannelLabel")->font().pointSize(), 24);
    EXPECT_EQ(part<QLabel>(tab, "m_pChannelLabel")->font().weight(), 50);
    // The two section titles.
    QStringList texts;
    for (QLabel* label : tab.findChildren<QLabel*>())
        texts << label->text();
    EXPECT_TRUE(texts.contains("RadioFrequencyrfStateyHKLESFF"));
    EXPECT_TRUE(texts.contains("ChannelStategiObASxASH"));
}

TEST_F(RfInfoTabTest, TilesAndGaugesShowTheRadio)
{
    CRfInfoTab tab;
    tab.setRfInfo(radio(0, 149, 23, 41, 7));
    EXPECT_EQ(labelText(tab, "m_pChannelLabel"), "149");
    EXPECT_EQ(labelText(tab, "m_pTransmitPowerLabel"), "23");
    EXPECT_DOUBLE_EQ(tab.findChild<CUsageRateChart*>("m_pSendRateValueLabel")->usageRate(), 41.0);
    EXPECT_DOUBLE_EQ(tab.findChild<CUsageRateChart*>("m_pReceiveRateLabel")->usageRate(), 7.0);

    tab.setRfInfo(radio(0, 1, -3, 250, -5));
    EXPECT_EQ(labelText(tab, "m_pTransmitPowerLabel"), "-3");
    EXPECT_DOUBLE_EQ(tab.findChild<CUsageRateChart*>("m_pSendRateValueLabel")->usageRate(), 100.0);
    EXPECT_DOUBLE_EQ(tab.findChild<CUsageRateChart*>("m_pReceiveRateLabel")->usageRate(), 0.0);
}

TEST_F(RfInfoTabTest, OnlyTenToFourteenIsInterference)
{
    CRfInfoTab tab;
    tab.setRfInfo(radio(0));
    QString style = styleOf(tab);
    for (uint32_t level : {0u, 9u, 10u, 14u, 15u, 20u, 21u, 1u, 12u, 30u, 0xFFFFFFFFu, 19u, 0x80000000u}) {
        LogCapture log;
        tab.setRfInfo(radio(level));
        expectVerdict(tab, level, style);
        style = styleOf(tab);
        EXPECT_EQ(logged(log, "ERROR", kOutOfRange), expectedVerdict(level) == Verdict::Blank) << level;
    }
}

TEST_F(RfInfoTabTest, ABlankVerdictKeepsTheColourOfThePreviousOne)
{
    CRfInfoTab tab;
    tab.setRfInfo(radio(10));
    tab.setRfInfo(radio(21));
    EXPECT_EQ(styleOf(tab), kInterferenceStyle);
    EXPECT_EQ(labelText(tab, "m_pChannelStatusLabel"), "");
    EXPECT_TRUE(imageOf(tab).isNull());
    tab.setRfInfo(radio(15));
    tab.setRfInfo(radio(9));
    EXPECT_EQ(styleOf(tab), kNormalStyle);
}

// The controllers report levels from 0 to 30, changing every ten minutes of device time.
// Walk device time until each edge of the bands has come up on some radio, and check the
// verdict on the radio exactly as the device reported it.
TEST_F(RfInfoTabTest, LevelsReportedByTheControllerGetTheirVerdict)
{
    const std::set<uint32_t> edges = {0, 9, 10, 14, 15, 20, 21};
    std::set<uint32_t> seen;
    CRfInfoTab tab;
    QString style = styleOf(tab);
    int checked = 0;
    for (long long window = 0; window < 400 && seen != edges; ++window) {
        ASSERT_TRUE(emulator().freezeClock(kFrozenTick + window * 600));
        for (const Quillon::ApInfo& ap : fleet().managedAps("ac-search")) {
            for (const Quillon::rfInfo& rf : ap.rfList) {
                const bool edge = edges.count(rf.channelInterference) && !seen.count(rf.channelInterference);
                if (!edge && checked > 200)
                    continue;
                tab.setRfInfo(rf);
                expectVerdict(tab, rf.channelInterference, style);
                style = styleOf(tab);
                EXPECT_EQ(labelText(tab, "m_pChannelLabel"), QString::number(rf.channel));
                EXPECT_EQ(labelText(tab, "m_pTransmitPowerLabel"), QString::number(rf.transmitPower));
                if (edges.count(rf.channelInterference))
                    seen.insert(rf.channelInterference);
                ++checked;
            }
        }
    }
    for (uint32_t edge : edges)
        EXPECT_TRUE(seen.count(edge)) << "the controller never reported " << edge;
}
