// Arithmetic of placing windows.
#pragma once

#include <span>
#include <vector>

namespace qx {

// Where something `inner` wide starts to be centred in `outer`: negative when it is wider; halves
// are cut towards zero.
constexpr int CentredStart(int outer, int inner)
{
    return (outer - inner) / 2;
}

// The left edges of buttons set side by side, the first with its right edge at `right`, each next
// one left of it with `gap` between.
inline std::vector<int> FromTheRight(int right, int gap, std::span<const int> widths)
{
    std::vector<int> lefts;
    for (const int width : widths) {
        lefts.push_back(right - width);
        right = lefts.back() - gap;
    }
    return lefts;
}

}  // namespace qx
