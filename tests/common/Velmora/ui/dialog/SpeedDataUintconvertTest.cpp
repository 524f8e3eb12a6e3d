// Speed texts in the largest unit below 1000, kept in single precision, and digit grouping.
#include <gtest/gtest.h>

#include "SpeedDataUintconvert.h"

using velmora::groupDigits;
using velmora::SpeedDataUintconvert;

namespace {
QString speed(unsigned int value, int unit)
{
    return SpeedDataUintconvert::speedDataAdaptiveUintconvert(value, static_cast<SpeedDataUintconvert::SpeedUint>(unit));
}
} // namespace

TEST(SpeedDataUintconvert, KeepsValuesBelowAThousandInTheirUnit)
{
    EXPECT_EQ(speed(0, SpeedDataUintconvert::bps), "0.000bps");
    EXPECT_EQ(speed(999, SpeedDataUintconvert::bps), "999.000bps");
    EXPECT_EQ(speed(999, SpeedDataUintconvert::Kbps), "999.000Kbps");
    EXPECT_EQ(speed(12, SpeedDataUintconvert::Mbps), "12.000Mbps");
}

TEST(SpeedDataUintconvert, ScalesAtExactlyOneThousand)
{
    EXPECT_EQ(speed(1000, SpeedDataUintconvert::bps), "1.000Kbps");
    EXPECT_EQ(speed(1000000, SpeedDataUintconvert::bps), "1.000Mbps");
    EXPECT_EQ(speed(1000000000, SpeedDataUintconvert::bps), "1.000Gbps");
}

TEST(SpeedDataUintconvert, StartsFromTheGivenUnit)
{
    EXPECT_EQ(speed(1500, SpeedDataUintconvert::Kbps), "1.500Mbps");
    EXPECT_EQ(speed(2500000, SpeedDataUintconvert::Kbps), "2.500Gbps");
}

TEST(SpeedDataUintconvert, RoundsInSinglePrecision)
{
    // 16777217 has no single-precision form and is held as 16777216.
    EXPECT_EQ(speed(16777217, SpeedDataUintconvert::bps), "16.777Mbps");
    EXPECT_EQ(speed(16777217, SpeedDataUintconvert::bps), speed(16777216, SpeedDataUintconvert::bps));
    EXPECT_EQ(speed(16777217, SpeedDataUintconvert::Gbps), "16777216.000Gbps");
    EXPECT_EQ(speed(999999, SpeedDataUintconvert::bps), "999.999Kbps");
    EXPECT_EQ(speed(1000000, SpeedDataUintconvert::bps), "1.000Mbps");
}

TEST(SpeedDataUintconvert, KeepsValuesWithTheTopBitPositive)
{
    EXPECT_EQ(speed(4294967295u, SpeedDataUintconvert::bps), "4.295Gbps");
    EXPECT_EQ(speed(2147483648u, SpeedDataUintconvert::Gbps), "2147483648.000Gbps");
}

TEST(SpeedDataUintconvert, NeverScalesGigabits)
{
    EXPECT_EQ(speed(1000, SpeedDataUintconvert::Gbps), "1000.000Gbps");
    EXPECT_EQ(speed(123456, SpeedDataUintconvert::Gbps), "123456.000Gbps");
}

TEST(SpeedDataUintconvert, WritesNoSuffixAboveGigabits)
{
    EXPECT_EQ(speed(1500, 4), "1500.000");
    EXPECT_EQ(speed(7, 9), "7.000");
}

TEST(GroupDigits, PutsACommaBeforeEveryGroupOfThreeFromTheRight)
{
    EXPECT_EQ(groupDigits("1234567"), "1,234,567");
    EXPECT_EQ(groupDigits("1234"), "1,234");
    EXPECT_EQ(groupDigits("123456"), "123,456");
    EXPECT_EQ(groupDigits("18446744073709551615"), "18,446,744,073,709,551,615");
}

TEST(GroupDigits, LeavesThreeOrFewerCharactersAlone)
{
    EXPECT_EQ(groupDigits("123"), "123");
    EXPECT_EQ(groupDigits("7"), "7");
    EXPECT_EQ(groupDigits(""), "");
}
