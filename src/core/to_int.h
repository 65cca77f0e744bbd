// Results of arithmetic as 32-bit numbers: what does not fit becomes the nearest value that does.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace qx {

inline std::int32_t ToInt(std::int64_t value)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

// Rounded as the processor converts by default: to the nearest, halves to the even one. What is no
// number becomes the smallest value, as there.
inline std::int32_t Rounded(double value)
{
    if (!(value > INT32_MIN))
        return INT32_MIN;
    return value < INT32_MAX ? static_cast<std::int32_t>(std::lrint(value)) : INT32_MAX;
}

}  // namespace qx
