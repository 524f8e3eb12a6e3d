// The run time line: weeks, days, hours and minutes, each from the first non-zero unit on.
#include <gtest/gtest.h>

#include "FormatRunTime.h"

using velmora::formatRunTime;

namespace {
constexpr int kMinute = 60;
constexpr int kHour = 3600;
constexpr int kDay = 86400;
constexpr int kWeek = 604800;
} // namespace

TEST(FormatRunTime, ShowsOnlyMinutesBelowAnHour)
{
    EXPECT_EQ(formatRunTime(0), "0m");
    EXPECT_EQ(formatRunTime(59), "0m");
    EXPECT_EQ(formatRunTime(61), "1m");
    EXPECT_EQ(formatRunTime(kHour - 1), "59m");
}

TEST(FormatRunTime, AddsHoursFromOneHourOn)
{
    EXPECT_EQ(formatRunTime(kHour), "1h 0m");
    EXPECT_EQ(formatRunTime(5 * kHour + 7 * kMinute + 42), "5h 7m");
    EXPECT_EQ(formatRunTime(kDay - 1), "23h 59m");
}

TEST(FormatRunTime, AddsDaysFromOneDayOn)
{
    EXPECT_EQ(formatRunTime(kDay), "1Daythdetynday 0h 0m");
    EXPECT_EQ(formatRunTime(3 * kDay + 2 * kHour + 5 * kMinute), "3Daythdetynday 2h 5m");
}

TEST(FormatRunTime, AddsWeeksFromOneWeekOn)
{
    EXPECT_EQ(formatRunTime(kWeek), "1Week 0Daythdetynday 0h 0m");
    EXPECT_EQ(formatRunTime(12 * kWeek + 6 * kDay + 23 * kHour + 59 * kMinute + 59),
              "12Week 6Daythdetynday 23h 59m");
}

TEST(FormatRunTime, AWeekAndADayWithoutHoursStillShowsTheZeroHour)
{
    EXPECT_EQ(formatRunTime(kWeek + kDay), "1Week 1Daythdetynday 0h 0m");
    EXPECT_EQ(formatRunTime(kWeek + kDay + 3 * kMinute), "1Week 1Daythdetynday 0h 3m");
}

TEST(FormatRunTime, DropsTheSeconds)
{
    EXPECT_EQ(formatRunTime(2 * kHour + 30 * kMinute + 59), "2h 30m");
}

TEST(FormatRunTime, WritesNumbersWithoutFill)
{
    EXPECT_EQ(formatRunTime(100 * kWeek + 1 * kHour + 1 * kMinute), "100Week 0Daythdetynday 1h 1m");
}
