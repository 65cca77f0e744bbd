// The time, and waiting for it to pass.
#pragma once

#include <cstdint>

namespace qx::platform {

struct LocalTime {
    int year;        // 2008
    int month, day;  // 1 to 12, 1 to 31
    int hour, minute, second;
};

std::int64_t SecondsSince1970();                       // UTC
LocalTime ToLocalTime(std::int64_t secondsSince1970);  // from year 1 to 9999

// The calling thread does nothing meanwhile; messages to its windows wait, too.
void Wait(unsigned milliseconds);

}  // namespace qx::platform
