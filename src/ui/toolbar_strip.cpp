#include "ui/toolbar_strip.h"

#include "core/to_int.h"

#include <algorithm>
#include <vector>

namespace qx {

// ---- Sizes

static int ButtonWidth(const ToolbarButton& button)
{
    if (button.IsHidden())
        return 0;
    return (button.IsSeparator() ? 9 : 25) + (button.style & kStyleDropDown ? 13 : 0);
}

int ButtonsWidth(std::span<const ToolbarButton> buttons)
{
    int width = 0;
    for (const ToolbarButton& button : buttons)
        width += ButtonWidth(button);
    return width;
}

SIZE HostSize(SIZE child)
{
    return {child.cx, child.cy < 25 ? kBarHeight : child.cy};
}

// ---- Finding bars

int CountLeading(std::span<const StripBar> bars)
{
    const auto end = std::ranges::find(bars, false, &StripBar::exists);
    return static_cast<int>(end - bars.begin());
}

int FindBar(std::span<const StripBar> bars, int id)
{
    const auto found =
        std::ranges::find_if(bars, [=](const auto& bar) { return !bar.exists || bar.id == id; });
    return static_cast<int>(found - bars.begin());
}

static StripHit HitTest(const StripBar& bar, POINT point)
{
    const std::int64_t x = std::int64_t{point.x} - bar.x - kGripWidth;
    const std::int64_t y = std::int64_t{point.y} - bar.y;
    if (!bar.IsVisible() || y < 0 || y >= bar.size.cy || x < -kGripWidth || x >= bar.size.cx)
        return StripHit::Nothing;
    return x < 0 ? StripHit::Grip : StripHit::Client;
}

StripHitResult HitTest(std::span<const StripBar> bars, POINT point)
{
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const StripHit code = HitTest(bars[i], point);
        if (code != StripHit::Nothing)
            return {code, static_cast<int>(i)};
    }
    return {StripHit::Nothing, -1};
}

// ---- Layout

namespace {

// What a bar covers as the layout reckons: deliberately 14 pixels left of its toolbar, as the
// arrangements that users have saved came about that way.
struct BarRect {
    std::int64_t left, top, right, bottom;

    explicit BarRect(const StripBar& bar)
        : left(std::int64_t{bar.x} - kGripWidth),
          top(bar.y),
          right(left + bar.size.cx),
          bottom(top + bar.size.cy)
    {
    }
};

}  // namespace

// Windows have no coordinates further out.
static int Near(std::int64_t coordinate)
{
    return static_cast<int>(std::clamp<std::int64_t>(coordinate, -kFarthest, kFarthest));
}

static int RowTop(int y)
{
    return std::max(y - (y - kFirstRow) % kRowHeight, kFirstRow);
}

static bool FitsInNoRow(const StripBar& bar, int clientWidth)
{
    return bar.size.cx > std::int64_t{clientWidth} - 8;
}

// A visible bar, other than `bar`, that lies beside it; null without one. As wide as `bar` is, it
// then lies on it.
static const StripBar* Neighbour(std::span<const StripBar> bars, const StripBar& bar)
{
    const BarRect r(bar);
    for (const StripBar& other : bars) {
        const BarRect o(other);
        if (&other != &bar && other.IsVisible() && o.top <= r.bottom && r.top <= o.bottom)
            return &other;
    }
    return nullptr;
}

static void PlaceInFreeRow(std::span<const StripBar> bars, StripBar& bar)
{
    bar.x = 1;
    bar.y = kFirstRow;
    while (bar.y < kFarthest && Neighbour(bars, bar))
        bar.y = Near(std::int64_t{bar.y} + kRowHeight);
}

static void PlaceInRow(StripBar& bar, int clientWidth)
{
    const BarRect r(bar);
    std::int64_t y = bar.y;
    if (r.right + 14 > clientWidth) {
        y += kRowHeight;
        bar.x = Near(std::int64_t{clientWidth} - bar.size.cx - kGripWidth);
    }
    if (r.left < 0)
        bar.x = 1;
    bar.y = RowTop(Near(y));
}

void PlaceInRows(std::span<StripBar> bars, int clientWidth)
{
    for (StripBar& bar : bars) {
        if (!bar.TakesRoom())
            continue;
        if (FitsInNoRow(bar, clientWidth))
            PlaceInFreeRow(bars, bar);
        else
            PlaceInRow(bar, clientWidth);
    }
}

int LastRow(std::span<const StripBar> bars)
{
    int last = 0;
    for (const StripBar& bar : bars) {
        if (bar.IsVisible())
            last = std::max(last, bar.y);
    }
    return last;
}

static bool AnyAt(std::span<const StripBar> bars, int y)
{
    return std::ranges::any_of(bars, [=](const auto& b) { return b.IsVisible() && b.y == y; });
}

int CloseEmptyRows(std::span<StripBar> bars, int clientWidth, int lastRow)
{
    const auto at = [&](int y) {
        return std::ranges::find_if(bars, [=](const auto& b) { return b.IsVisible() && b.y == y; });
    };
    int row = lastRow;
    while (row > kFirstRow) {
        const auto bar = at(row);
        if (bar == bars.end())
            break;
        if (FitsInNoRow(*bar, clientWidth) || AnyAt(bars, row - kRowHeight) ||
            (row == kRowHeight && AnyAt(bars, kFirstRow))) {
            row -= kRowHeight;
            continue;
        }
        bar->y = row == kRowHeight ? kFirstRow : row - kRowHeight;
        // Deliberately not "y = row": other bars of this row are left to the next layout.
        if (!AnyAt(bars, row + kFirstRow))
            lastRow -= kRowHeight;
        row = lastRow;
    }
    return lastRow;
}

static bool BeginsOn(const BarRect& bar, const BarRect& other)
{
    return bar.top >= other.top && bar.top <= other.bottom && bar.left >= other.left &&
           bar.left <= other.right + 8;
}

static void MoveBehind(StripBar& bar, const BarRect& other, int clientWidth)
{
    if (other.right + bar.size.cx - kGripWidth >= clientWidth) {
        bar.x = 0;
        bar.y = Near(other.bottom + kRowHeight);
    } else {
        bar.x = Near(other.right + 16);
    }
}

bool ResolveOverlaps(std::span<StripBar> bars, int clientWidth, int& lastRow)
{
    bool moved = false;
    for (const StripBar& bar : bars) {
        if (!bar.IsVisible())
            continue;
        const BarRect r(bar);
        for (StripBar& other : bars) {
            if (&other == &bar || !other.IsVisible() || FitsInNoRow(other, clientWidth) ||
                !BeginsOn(BarRect(other), r))
                continue;
            MoveBehind(other, r, clientWidth);
            moved = true;
        }
        lastRow = std::max(lastRow, bar.y);
    }
    return moved;
}

static bool SamePlaces(std::span<const StripBar> a, std::span<const StripBar> b)
{
    return std::ranges::equal(
        a, b, [](const auto& p, const auto& q) { return p.x == q.x && p.y == q.y; });
}

static bool Move(std::span<StripBar> bars, int clientWidth, int& lastRow)
{
    PlaceInRows(bars, clientWidth);
    lastRow = CloseEmptyRows(bars, clientWidth, LastRow(bars));
    return ResolveOverlaps(bars, clientWidth, lastRow);
}

static bool WouldChange(std::span<const StripBar> bars, int clientWidth, int lastRow)
{
    std::vector<StripBar> next(bars.begin(), bars.end());
    int nextLastRow = 0;
    Move(next, clientWidth, nextLastRow);
    return nextLastRow != lastRow || !SamePlaces(bars, next);
}

StripLayout LayOut(std::span<StripBar> bars, SIZE client, int further)
{
    int lastRow = 0;
    const bool moved = Move(bars, client.cx, lastRow);
    return {lastRow + kRowHeight, lastRow + kBarHeight != client.cy, lastRow >= client.cy,
            moved && further < kMostFurtherLayouts && WouldChange(bars, client.cx, lastRow)};
}

}  // namespace qx
