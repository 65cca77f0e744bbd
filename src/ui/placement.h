// Arithmetic of placing windows.
#pragma once

#include <algorithm>
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

// By how much a list box can be lower and still show its rows, of which it always has room for
// four. Never negative: a list does not grow.
constexpr int SpareHeight(int listHeight, int rows, int rowHeight, int edge)
{
    constexpr int kLeastRows = 4;
    return std::max(listHeight - (rowHeight * std::max(rows, kLeastRows) + 2 * edge), 0);
}

}  // namespace qx
