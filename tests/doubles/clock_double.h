// A clock that stands still at a time that the test sets.
#pragma once

#include "doubles/in_force.h"
#include "platform/clock.h"

#include <chrono>
#include <functional>

namespace qx::test {

struct ClockDouble : InForce<ClockDouble> {
    std::int64_t now = 1226568000;       // seconds since 1970 UTC: 2008-11-13 09:20:00
    std::int64_t secondsAheadOfUtc = 0;  // of the local time
    unsigned waited = 0;                 // milliseconds, which take no time
    std::function<void()> meanwhile = [] {};
};

}  // namespace qx::test

namespace qx::platform {

std::int64_t SecondsSince1970()
{
    return test::ClockDouble::Current().now;
}

void Wait(unsigned milliseconds)
{
    auto& clock = test::ClockDouble::Current();
    clock.waited += milliseconds;
    clock.meanwhile();
}

LocalTime ToLocalTime(std::int64_t secondsSince1970)
{
    using namespace std::chrono;
    const sys_seconds time{
        seconds(secondsSince1970 + test::ClockDouble::Current().secondsAheadOfUtc)};
    const auto midnight = floor<days>(time);
    const year_month_day date(midnight);
    const hh_mm_ss ofDay(time - midnight);
    return {static_cast<int>(date.year()),
            static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day())),
            static_cast<int>(ofDay.hours().count()),
            static_cast<int>(ofDay.minutes().count()),
            static_cast<int>(ofDay.seconds().count())};
}

}  // namespace qx::platform
