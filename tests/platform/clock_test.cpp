#include "platform/clock.h"

#include <cstdlib>
#include <gtest/gtest.h>

using qx::platform::LocalTime;
using qx::platform::ToLocalTime;

TEST(Clock, KnowsTheYears1To9999)
{
    // Noon UTC in the middle of a month: the day may differ with the time zone, the month not.
    static constexpr struct {
        std::int64_t time;
        int year, month, day;
    } kCases[] = {
        {-62110756800, 1, 10, 15},  {-11645812800, 1600, 12, 16}, {-3785486400, 1850, 1, 16},
        {-1339200, 1969, 12, 16},   {1205582400, 2008, 3, 15},    {4865572800, 2124, 3, 8},
        {32536209600, 3001, 1, 12}, {48293582400, 3500, 5, 13},   {253387742400, 9999, 7, 16},
    };
    for (const auto& each : kCases) {
        const LocalTime local = ToLocalTime(each.time);
        EXPECT_EQ(each.year, local.year) << each.time;
        EXPECT_EQ(each.month, local.month) << each.time;
        EXPECT_GE(1, std::abs(each.day - local.day)) << each.time << " day " << local.day;
    }
}
