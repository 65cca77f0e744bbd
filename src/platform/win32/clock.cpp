#include "platform/clock.h"

#include <qxutility/types.h>

#include <chrono>
#include <ctime>

namespace qx::platform {

std::int64_t SecondsSince1970()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

// The runtime library knows no time before 1970 nor after 3000, but the calendar repeats itself
// every 400 years.
LocalTime ToLocalTime(std::int64_t secondsSince1970)
{
    constexpr std::int64_t kCycle = std::int64_t{146'097} * 86'400;
    std::int64_t cycles = secondsSince1970 / kCycle;
    if (secondsSince1970 % kCycle < 0)
        --cycles;
    const __time64_t time = secondsSince1970 - cycles * kCycle;
    std::tm local{};
    ::_localtime64_s(&local, &time);
    const int year = local.tm_year + 1900 + static_cast<int>(cycles) * 400;
    return {year, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

void Wait(unsigned milliseconds)
{
    ::Sleep(milliseconds);
}

}  // namespace qx::platform
