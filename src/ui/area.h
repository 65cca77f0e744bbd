// Arithmetic on rectangles that may have any coordinates.
#pragma once

#include <qxutility/types.h>

#include <algorithm>
#include <cstdint>

namespace qx {

// The nearest value that fits 32 bits.
inline std::int32_t ToInt(std::int64_t value)
{
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, INT32_MIN, INT32_MAX));
}

// Negative for a rectangle that is turned inside out.
inline std::int64_t Width(const RECT& r)
{
    return std::int64_t{r.right} - r.left;
}
inline std::int64_t Height(const RECT& r)
{
    return std::int64_t{r.bottom} - r.top;
}

inline RECT Grown(const RECT& r, int by)
{
    const std::int64_t n = by;
    return {ToInt(r.left - n), ToInt(r.top - n), ToInt(r.right + n), ToInt(r.bottom + n)};
}

}  // namespace qx
