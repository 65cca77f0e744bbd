#include "platform/clock.h"

#include <chrono>
#include <ctime>
#include <thread>

namespace qx::platform {

std::int64_t SecondsSince1970()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::seconds>(now).count();
}

LocalTime ToLocalTime(std::int64_t secondsSince1970)
{
    const std::time_t time = secondsSince1970;
    std::tm local{};
    ::localtime_r(&time, &local);
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
}

void Wait(unsigned milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

}  // namespace qx::platform
