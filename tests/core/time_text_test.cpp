#include "doubles/clock_double.h"
#include "doubles/in_force.h"
#include "platform/date_order.h"
#include "support/guarded_buffer.h"

#include <qxutility/core/time_text.h>

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>

using namespace qx::test;

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct DateOrderDouble : InForce<DateOrderDouble> {
    std::string pattern = "M/d/yyyy";
};

std::string Formatted(double hours, bool showSeconds, bool twoDigitHours)
{
    GuardedBuffer text(24);
    return QXFormatTime(hours, text, showSeconds, twoDigitHours);
}

std::string DateText(long long time)
{
    GuardedBuffer text(40);
    DateAndTime(time, text);
    return text.data();
}

}  // namespace

std::string qx::platform::ShortDatePattern()
{
    return DateOrderDouble::Current().pattern;
}

TEST(FormatTime, WritesHoursMinutesAndSecondsThatAreNotZero)
{
    static constexpr struct {
        double hours;
        bool showSeconds, twoDigitHours;
        const char* text;
    } kCases[] = {
        {0.0, false, false, "0:00"},
        {1.5, false, false, "1:30"},
        {1.5, true, false, "1:30:00"},
        {12.75, true, true, "12:45:00"},
        {0.2541666, false, false, "0:15:15"},
        {0.999999, false, false, "1:00"},
        {0.0166665, false, false, "0:01"},   // 59.9994 seconds
        {0.00013, false, false, "0:00"},     // 0.468 seconds
        {0.00014, false, false, "0:00:01"},  // 0.504 seconds
        {-1.5, false, false, "-1:-30"},
        {-0.2541666, false, false, "0:-15:-14"},
        {-0.0, true, true, "00:00:00"},
        {2147483646.9999999, false, false, "2147483647:00"},
        {-2147483647.99, false, true, "-2147483647:-59:-23"},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(each.text, Formatted(each.hours, each.showSeconds, each.twoDigitHours))
            << each.hours;
}

TEST(FormatTime, ShowsTheNearestTimeThatFits)
{
    for (double hours : {2147483647.0, 2147483647.5, 3e9, 1e300, kInfinity})
        EXPECT_EQ("2147483647:00", Formatted(hours, false, false)) << hours;
    for (double hours : {-2147483648.0, -3e9, -1e300, -kInfinity})
        EXPECT_EQ("-2147483648:00", Formatted(hours, false, false)) << hours;
    EXPECT_EQ("0:00", Formatted(kNan, false, false));
    EXPECT_EQ("0:00", Formatted(5e-324, false, false));
}

TEST(ReadTime, AddsMinutesAndSecondsToTheHours)
{
    static constexpr struct {
        const char* text;
        double hours;
    } kCases[] = {
        {"", 0},
        {"2.5", 2.5},
        {"1:30", 1.5},
        {"1;30;36", 1.51},
        {"1:30.9", 1.5},
        {"1:30:35.99", 1.5 + 35 / 3600.0},
        {"1::36", 1.01},
        {"1:0:0:59", 1},  // later separators do not count
        {":30", 0.5},
        {"abc", 0},
        {"-1:30", -0.5},  // the minutes are added
        {"99999999999:99:99", 99999999999 + 99 / 60.0 + 99 / 3600.0},
        {"1:99999999999", 1 + 99999999999 / 60.0},
        {"1e300:1e300", 1e300 + 1e300 / 60},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(each.hours, QXReadTime(each.text)) << each.text;
}

TEST(ReadTime, TakesAnyText)
{
    EXPECT_FALSE(std::signbit(QXReadTime("-0:-0.5")));
    EXPECT_EQ(kInfinity, QXReadTime("1e999:0"));
    EXPECT_EQ(1e30, QXReadTime((std::string("1") + std::string(30, '0') + ":").c_str()));
    EXPECT_EQ(5 + 1 / 60.0, QXReadTime(("5:1" + std::string(100'000, ':')).c_str()));
}

TEST(DateAndTime, WritesTwelveHoursWithMonthOrDayFirst)
{
    constexpr long long kMarch5 = 1204675200;  // 2008-03-05 00:00:00 UTC
    ClockDouble clock;
    DateOrderDouble order;
    static constexpr struct {
        const char* pattern;
        int hour, minute;
        const char* text;
    } kCases[] = {
        {"M/d/yyyy", 14, 7, "03/05/08  2:07 pm"},
        {"MM.dd.yy", 9, 59, "03/05/08  9:59 am"},
        {"m", 0, 0, "03/05/08 12:00 am"},
        {"M", 12, 0, "03/05/08 12:00 pm"},
        {"dd.MM.yyyy", 23, 59, "05/03/08 11:59 pm"},
        {"yyyy-MM-dd", 11, 5, "05/03/08 11:05 am"},
        {"", 13, 0, "05/03/08  1:00 pm"},
    };
    for (const auto& each : kCases) {
        order.pattern = each.pattern;
        EXPECT_EQ(each.text, DateText(kMarch5 + each.hour * 3600 + each.minute * 60))
            << each.pattern;
    }
}

TEST(DateAndTime, IsLocalAndNowForZero)
{
    ClockDouble clock;
    clock.now = 1226568000;
    clock.secondsAheadOfUtc = -5 * 3600;
    EXPECT_EQ("11/13/08  4:20 am", DateText(0));
}

TEST(DateAndTime, TakesEveryTime)
{
    ClockDouble clock;
    static constexpr struct {
        long long time;
        const char* text;
    } kCases[] = {
        {-1, "12/31/69 11:59 pm"},
        {946684800, "01/01/00 12:00 am"},
        {4102444800, "01/01/100 12:00 am"},   // 2100
        {-3786825600, "01/01/-50 12:00 am"},  // 1850
        {std::numeric_limits<long long>::max(), "12/30/7999 11:59 pm"},
        {std::numeric_limits<long long>::min(), "01/02/-1899 12:00 am"},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(each.text, DateText(each.time)) << each.time;
}
