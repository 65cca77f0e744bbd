// What moves in the library's small windows, as functions of the time since they opened.
#pragma once

#include <cstdint>

namespace qx {

// The lit part of a progress bar that shows activity, not progress: a block of a quarter of the
// width that enters at the left, crosses the bar in 1.6 seconds and leaves at the right.
struct BarSpan {
    int start, end;  // pixels, end exclusive; both within the bar, equal when nothing is lit
};
BarSpan MarqueeSpan(int width, std::uint32_t elapsedMilliseconds);

// A bubble that rises through a column of water, again and again.
struct Bubble {
    double x, y;    // its centre, in widths and heights of the column; y is 0 at the top
    double radius;  // in heights of the column
};
Bubble BubbleAt(std::uint32_t seed, int index, std::uint32_t elapsedMilliseconds);

}  // namespace qx
