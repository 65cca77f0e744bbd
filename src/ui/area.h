// Arithmetic on rectangles that may have any coordinates.
#pragma once

#include "core/to_int.h"

#include <qxutility/types.h>

#include <cstdint>

namespace qx {

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
