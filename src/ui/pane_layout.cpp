// Limits of panes, and the layout pass.
#include "ui/area.h"
#include "ui/panes.h"

#include <algorithm>

namespace qx {

static constexpr int kSplitterLimit = 6;  // pixels

using Coordinate = decltype(POINT::x);

static void LockWidth(MINMAXINFO& limits, Coordinate width)
{
    limits.ptMinTrackSize.x = limits.ptMaxTrackSize.x = width;
}

static void LockHeight(MINMAXINFO& limits, Coordinate height)
{
    limits.ptMinTrackSize.y = limits.ptMaxTrackSize.y = height;
}

// ---- Limits

static MINMAXINFO LimitsOfSplitter(DWORD flags)
{
    MINMAXINFO limits{};
    if (flags & kPaneAcross)
        LockWidth(limits, kSplitterLimit);
    if (flags & kPaneAlong)
        LockHeight(limits, kSplitterLimit);
    return limits;
}

static MINMAXINFO LimitsOfFixed(DWORD flags, SIZE size)
{
    MINMAXINFO limits{};
    if (flags & kPaneAlong)
        LockHeight(limits, size.cy);
    else if (flags & kPaneAcross)
        LockWidth(limits, size.cx);
    return limits;
}

static MINMAXINFO LimitsOf(const PaneData& pane, PaneWindows& windows)
{
    if (pane.window == NoWindow())
        return pane.flags & kPaneSplitter ? LimitsOfSplitter(pane.flags) : pane.limits;
    if (pane.flags & kPaneFixed)
        return LimitsOfFixed(pane.flags, windows.Size(pane.window));
    return windows.Limits(pane.window);
}

std::vector<MINMAXINFO> OwnLimits(const std::vector<PaneData>& panes, PaneWindows& windows)
{
    std::vector<MINMAXINFO> own;
    for (const PaneData& pane : panes) {
        MINMAXINFO limits = LimitsOf(pane, windows);
        if (pane.flags & kPaneHeightLocked)
            LockHeight(limits, pane.size);
        if (pane.flags & kPaneWidthLocked)
            LockWidth(limits, pane.size);
        own.push_back(limits);
    }
    return own;
}

static Coordinate Sum(Coordinate a, Coordinate b)
{
    return ToInt(std::int64_t{a} + b);
}

static Coordinate SumOfMaxima(Coordinate a, Coordinate b)
{
    return a != 0 && b != 0 ? Sum(a, b) : 0;
}

static MINMAXINFO Together(const PaneData& pane, const MINMAXINFO& own, const MINMAXINFO& rest)
{
    const POINT a = own.ptMinTrackSize, b = rest.ptMinTrackSize;
    MINMAXINFO both{};
    both.ptMaxTrackSize = {SumOfMaxima(own.ptMaxTrackSize.x, rest.ptMaxTrackSize.x),
                           SumOfMaxima(own.ptMaxTrackSize.y, rest.ptMaxTrackSize.y)};
    both.ptMinTrackSize = TakesWidth(pane.flags) ? POINT{Sum(a.x, b.x), std::max(a.y, b.y)}
                                                 : POINT{std::max(a.x, b.x), Sum(a.y, b.y)};
    return both;
}

std::vector<MINMAXINFO> ChainLimits(const std::vector<PaneData>& panes,
                                    const std::vector<MINMAXINFO>& own)
{
    std::vector<MINMAXINFO> chain(panes.size() + 1);
    for (std::size_t i = panes.size(); i-- > 0;)
        chain[i] = i + 1 == panes.size() ? own[i] : Together(panes[i], own[i], chain[i + 1]);
    return chain;
}

// ---- Layout pass

static bool Fits(DWORD flags, const RECT& area, POINT own, POINT rest)
{
    const POINT both = TakesWidth(flags) ? POINT{Sum(own.x, rest.x), std::max(own.y, rest.y)}
                                         : POINT{std::max(own.x, rest.x), Sum(own.y, rest.y)};
    return Width(area) >= both.x && Height(area) >= both.y;
}

// Left and right are deliberately no mirror images: a fixed left pane leaves the others only their
// minimum. Applications rely on it.
static int LeftSize(const PaneData& pane, POINT own, POINT rest)
{
    int size = pane.size;
    if (rest.x > Width(RestArea(pane)) || (pane.flags & kPaneFixed))
        size = ToInt(std::int64_t{pane.area.right} - rest.x);
    if (own.x > Width(PaneRect(pane)))
        size = own.x;
    return size;
}

// The widths of a pane at the right, or the heights of one at the top or the bottom: the minimum
// sizes of its window and of the rest, and what these and the whole area have.
struct Extent {
    std::int64_t own, rest, ofWindow, ofRest, ofArea;
};

static int UsualSize(const PaneData& pane, const Extent& extent)
{
    int size = pane.size;
    if (extent.own > extent.ofWindow || (pane.flags & kPaneFixed))
        size = ToInt(extent.own);
    if (extent.rest > extent.ofRest)
        size = ToInt(extent.ofArea - extent.rest);
    return size;
}

static int CorrectedSize(const PaneData& pane, POINT own, POINT rest)
{
    switch (SideOf(pane.flags)) {
        case kPaneLeft:
            return LeftSize(pane, own, rest);
        case kPaneRight:
            return UsualSize(pane, {own.x, rest.x, Width(PaneRect(pane)), Width(RestArea(pane)),
                                    Width(pane.area)});
        default:
            return UsualSize(pane, {own.y, rest.y, Height(PaneRect(pane)), Height(RestArea(pane)),
                                    Height(pane.area)});
    }
}

std::vector<PaneMove> LayOut(Pane* first, const RECT& client, const std::vector<MINMAXINFO>& own)
{
    const auto chain = ChainLimits(PanesOf(first), own);
    std::vector<PaneMove> moves;
    RECT area = client;
    std::size_t i = 0;
    for (Pane* pane = first; pane; pane = pane->next.get(), ++i) {
        const POINT minimum = own[i].ptMinTrackSize, rest = chain[i + 1].ptMinTrackSize;
        if (!Fits(pane->flags, area, minimum, rest))
            break;
        pane->area = area;
        pane->size = CorrectedSize(*pane, minimum, rest);
        area = RestArea(*pane);
        // The bottom rather than the height: deliberate, the two are the same at the top.
        if (!pane->next && (pane->flags & kPaneFill))
            pane->size = pane->area.bottom;
        if (pane->window != NoWindow())
            moves.push_back({pane->window, PaneRect(*pane)});
    }
    std::reverse(moves.begin(), moves.end());  // from the inside out
    return moves;
}

}  // namespace qx
