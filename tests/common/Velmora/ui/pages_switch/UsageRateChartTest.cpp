// The round usage gauge: clamping, its label text, and where each arc is painted.
#include <QImage>
#include <QPixmap>
#include <QtMath>
#include <gtest/gtest.h>

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
