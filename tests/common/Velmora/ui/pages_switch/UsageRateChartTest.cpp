// The round usage gauge: clamping, its label text, and where each arc is painted.
#include <QImage>
#include <QPixmap>
#include <QtMath>
#include <QPainter>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "support/LogCapture.h"

#include "UsageRateChart.h"

namespace {

const QRgb kUsed = 0xFF007AFE;
const QRgb kFree = 0xFFAECEFE;

QImage render(velmora::CUsageRateChart& chart)
{
    return chart.grab().toImage().convertToFormat(QImage::Format_ARGB32);
}

// The pixel at `distance` from the centre (r, r), at `degrees` counter-clockwise from 3 o'clock.
QRgb pixelAt(const QImage& image, int r, double distance, double degrees)
{
    const double a = qDegreesToRadians(degrees);
    return image.pixel(qRound(r + distance * qCos(a)), qRound(r - distance * qSin(a)));
}

} // namespace

TEST(UsageRateChart, StartsAtZeroWithTransparentCentredLabel)
{
    velmora::CUsageRateChart chart(nullptr);
    EXPECT_EQ(chart.usageRate(), 0.0);
    EXPECT_EQ(chart.styleSheet(), QString("QLabel {background-color: transparent;}"));
    EXPECT_EQ(int(chart.alignment()), 132);
}

TEST(UsageRateChart, ClampsToZeroAndHundred)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.setUsageRate(-5);
    EXPECT_EQ(chart.usageRate(), 0.0);
    EXPECT_EQ(chart.text(), QString("0.00%"));
    chart.setUsageRate(250);
    EXPECT_EQ(chart.usageRate(), 100.0);
    EXPECT_EQ(chart.text(), QString("100.00%"));
}

TEST(UsageRateChart, NotANumberChangesNothingAndIsLoggedOnce)
{
    velmora::test::LogCapture log;
    velmora::CUsageRateChart chart(nullptr);
    chart.resize(100, 100);
    chart.setUsageRate(42.5);
    const QImage before = render(chart);
    chart.setUsageRate(std::nan(""));
    chart.setUsageRate(-std::nan(""));
    EXPECT_EQ(chart.usageRate(), 42.5);
    EXPECT_EQ(chart.text(), QString("42.50%"));
    EXPECT_EQ(render(chart), before);
    // Infinities are numbers: they clamp.
    chart.setUsageRate(std::numeric_limits<double>::infinity());
    EXPECT_EQ(chart.usageRate(), 100.0);
    chart.setUsageRate(-std::numeric_limits<double>::infinity());
    EXPECT_EQ(chart.usageRate(), 0.0);
    const auto lines = log.lines("WARN");
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].message, "Usage rate is not a number; the chart keeps 42.500000.");
}

TEST(UsageRateChart, PaintedTextIsTheShortestFormOfTheRate)
{
    // The label keeps two decimals; the number painted in the ring is the shortest form with
    // six significant digits.
    struct Case {
        double rate;
        const char* label;
        const char* painted;
    };
    for (const Case& c : {Case{12.5, "12.50%", "12.5%"}, Case{33.333333, "33.33%", "33.3333%"},
                          Case{100, "100.00%", "100%"}, Case{0, "0.00%", "0%"}, Case{7.25, "7.25%", "7.25%"}}) {
        velmora::CUsageRateChart chart(nullptr);
        chart.resize(120, 120);
        chart.setUsageRate(c.rate);
        EXPECT_EQ(chart.text(), QString(c.label));
        // What the ring shows: the text drawn in its centre, in the chart's pen colour.
        QImage drawn = render(chart);
        QImage expected(drawn.size(), QImage::Format_ARGB32);
        expected.fill(Qt::transparent);
        {
            QPainter p(&expected);
            p.setRenderHint(QPainter::Antialiasing, true);
            p.setFont(chart.font());
            p.setPen(QColor::fromRgba(0xFFE6E6E6));
            p.drawText(QRect(0, 0, 120, 120), Qt::AlignHCenter | Qt::AlignVCenter, QString(c.painted));
        }
        // Every pixel of the expected text is painted in the chart too, and nothing of the
        // label's longer form is.
        int textPixels = 0;
        for (int y = 0; y < 120; ++y)
            for (int x = 0; x < 120; ++x)
                if (qAlpha(expected.pixel(x, y)) == 255) {
                    ++textPixels;
                    EXPECT_EQ(drawn.pixel(x, y), expected.pixel(x, y)) << c.painted << " at " << x << "," << y;
                }
        EXPECT_GT(textPixels, 0) << c.painted;
    }
}

TEST(UsageRateChart, LabelTextKeepsTwoDecimals)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.setUsageRate(12.5);
    EXPECT_EQ(chart.usageRate(), 12.5);
    EXPECT_EQ(chart.text(), QString("12.50%"));
    chart.setUsageRate(33.333);
    EXPECT_EQ(chart.text(), QString("33.33%"));
}

TEST(UsageRateChart, AtZeroTheFreeArcClosesTheCircle)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.resize(100, 100);
    chart.setUsageRate(0);
    const QImage image = render(chart);
    for (double degrees : {90.0, 0.0, 180.0, 270.0, 45.0})
        EXPECT_EQ(pixelAt(image, 50, 40.5, degrees), kFree) << degrees;
}

TEST(UsageRateChart, AtHundredTheUsedArcClosesTheCircle)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.resize(100, 100);
    chart.setUsageRate(100);
    const QImage image = render(chart);
    for (double degrees : {90.0, 0.0, 180.0, 270.0, 45.0})
        EXPECT_EQ(pixelAt(image, 50, 41, degrees), kUsed) << degrees;
}

TEST(UsageRateChart, UsedArcStartsAtTheTopAndGrowsClockwise)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.resize(100, 100);
    chart.setUsageRate(25);
    const QImage image = render(chart);
    // A quarter: from 12 o'clock to 3 o'clock.
    EXPECT_EQ(pixelAt(image, 50, 41, 45), kUsed);
    EXPECT_EQ(pixelAt(image, 50, 40.5, 135), kFree);
    EXPECT_EQ(pixelAt(image, 50, 40.5, 225), kFree);
    EXPECT_EQ(pixelAt(image, 50, 40.5, 315), kFree);
    // The used ring is thicker: beyond the free ring's outer edge only the used arc paints.
    EXPECT_EQ(pixelAt(image, 50, 48, 45), kUsed);
    EXPECT_NE(pixelAt(image, 50, 48, 225), kFree);
}

TEST(UsageRateChart, UnequalSidesDrawInTheTopLeftSquare)
{
    velmora::CUsageRateChart chart(nullptr);
    chart.resize(200, 100);
    chart.setUsageRate(100);
    const QImage image = render(chart);
    EXPECT_EQ(pixelAt(image, 50, 41, 90), kUsed);
    EXPECT_EQ(pixelAt(image, 50, 41, 180), kUsed);
    EXPECT_EQ(pixelAt(image, 50, 41, 0), kUsed);
    EXPECT_NE(image.pixel(150, 50), kUsed);
    EXPECT_NE(image.pixel(191, 50), kUsed);
}
