// The connected time of a bridge's peer: units from the largest one that the time reaches.
#include <gtest/gtest.h>

#include "FormatConnectTime.h"

using velmora::formatConnectTime;

TEST(FormatConnectTime, BelowAMinuteIsSecondsOnly)
{
    EXPECT_EQ(formatConnectTime(0), "0s");
    EXPECT_EQ(formatConnectTime(1), "1s");
    EXPECT_EQ(formatConnectTime(59), "59s");
}

TEST(FormatConnectTime, MinutesComeInFrontOfSeconds)
{
    EXPECT_EQ(formatConnectTime(60), "1m 0s");
    EXPECT_EQ(formatConnectTime(3599), "59m 59s");
}

TEST(FormatConnectTime, AnHourShowsEmptyMinutesAndSeconds)
{
    EXPECT_EQ(formatConnectTime(3600), "1h 0m 0s");
    EXPECT_EQ(formatConnectTime(86399), "23h 59m 59s");
}

TEST(FormatConnectTime, DaysAndWeeks)
{
    EXPECT_EQ(formatConnectTime(86400), "1Daythdetynday 0h 0m 0s");
    EXPECT_EQ(formatConnectTime(604799), "6Daythdetynday 23h 59m 59s");
    EXPECT_EQ(formatConnectTime(604800), "1Week 0Daythdetynday 0h 0m 0s");
    EXPECT_EQ(formatConnectTime(604800 + 86400 + 3600 + 60 + 1), "1Week 1Daythdetynday 1h 1m 1s");
}

TEST(FormatConnectTime, WeeksAreNotCapped)
{
    EXPECT_EQ(formatConnectTime(60 * 604800 + 5), "60Week 0Daythdetynday 0h 0m 5s");
}
