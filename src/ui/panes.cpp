#include "ui/panes.h"

#include "ui/area.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace qx {

static constexpr int kEdge = 2, kSplitter = 6, kGripLength = 32;  // pixels

static bool Has(const PaneData& pane, DWORD flag)
{
    return (pane.flags & flag) != 0;
}

Pane::~Pane()
{
    while (next)  // not one inside the other: a chain may be long
        next = std::move(next->next);
}

// ---- One pane

DWORD SideOf(DWORD flags)
{
    for (const DWORD side : {kPaneRight, kPaneLeft, kPaneTop}) {
        if (flags & side)
            return side;
    }
    return kPaneBottom;
}

bool TakesWidth(DWORD flags)
{
    const DWORD side = SideOf(flags);
    return side == kPaneLeft || side == kPaneRight;
}

RECT SlotRect(const PaneData& pane)
{
    const std::int64_t size = pane.size;
    RECT slot = pane.area;
    switch (SideOf(pane.flags)) {
        case kPaneRight:
            slot.left = ToInt(slot.right - size);
            break;
        case kPaneLeft:
            slot.right = ToInt(slot.left + size);
            break;
        case kPaneTop:
            slot.bottom = ToInt(slot.top + size);
            break;
        default:
            slot.top = ToInt(slot.bottom - size);
            break;
    }
    return slot;
}

RECT PaneRect(const PaneData& pane)
{
    return Has(pane, kPaneEdge) ? Grown(SlotRect(pane), -kEdge) : SlotRect(pane);
}

RECT RestArea(const PaneData& pane)
{
    return Subtract(pane.area, SlotRect(pane));
}

static bool IsEmpty(const RECT& r)
{
    return r.left >= r.right || r.top >= r.bottom;
}

RECT Subtract(const RECT& from, const RECT& cut)
{
    if (IsEmpty(from))
        return {};
    const RECT both{std::max(from.left, cut.left), std::max(from.top, cut.top),
                    std::min(from.right, cut.right), std::min(from.bottom, cut.bottom)};
    if (IsEmpty(both) || IsEmpty(cut))
        return from;
    const bool left = both.left == from.left, right = both.right == from.right;
    const bool top = both.top == from.top, bottom = both.bottom == from.bottom;
    if (left && right && top && bottom)
        return {};
    RECT rest = from;
    if (top && bottom && left)
        rest.left = both.right;
    else if (top && bottom && right)
        rest.right = both.left;
    else if (left && right && top)
        rest.top = both.bottom;
    else if (left && right && bottom)
        rest.bottom = both.top;
    return rest;
}

int DraggedSize(const PaneData& pane, int position)
{
    const std::int64_t at = position;
    switch (SideOf(pane.flags)) {
        case kPaneLeft:
            return ToInt(at - pane.area.left);
        case kPaneRight:
            return ToInt(pane.area.right - at);
        case kPaneTop:
            return ToInt(at - pane.area.top);
        default:
            return ToInt(pane.area.bottom - at);
    }
}

std::array<GripLine, 4> Grip(const PaneData& splitter)
{
    const RECT bar = PaneRect(splitter);
    const bool upright = TakesWidth(splitter.flags);
    const int first = ToInt((upright ? bar.left : bar.top) + std::int64_t{1});
    const int middle =
        upright ? ToInt(bar.top + Height(bar) / 2) : ToInt(bar.left + Width(bar) / 2);
    const int from = ToInt(std::int64_t{middle} - kGripLength / 2);
    const int to = ToInt(std::int64_t{middle} + kGripLength / 2);
    std::array<GripLine, 4> lines;
    for (int k = 0; k < 4; ++k) {
        const int at = ToInt(std::int64_t{first} + k);
        lines[static_cast<std::size_t>(k)] = {upright ? POINT{at, from} : POINT{from, at},
                                              upright ? POINT{at, to} : POINT{to, at}, k % 2 == 0};
    }
    return lines;
}

// ---- The chain

static DWORD SplitterFlags(DWORD flags)
{
    const DWORD side = SideOf(flags);
    if (flags & kPaneAcross)
        return kPaneAcross | kPaneSplitter | (side == kPaneRight ? kPaneRight : kPaneLeft);
    return kPaneAlong | kPaneSplitter | (side == kPaneTop ? kPaneTop : kPaneBottom);
}

// The end of the chain, and the area of a pane that is added there.
static std::unique_ptr<Pane>& End(std::unique_ptr<Pane>& first, RECT& area)
{
    std::unique_ptr<Pane>* end = &first;
    for (; *end; end = &(*end)->next)
        area = RestArea(**end);
    return *end;
}

void AddPane(std::unique_ptr<Pane>& first, const RECT& client, const PaneData& data)
{
    auto pane = std::make_unique<Pane>(data);
    pane->area = client;
    std::unique_ptr<Pane>& end = End(first, pane->area);
    if (Has(data, kPaneSizable)) {
        const DWORD flags = SplitterFlags(data.flags);
        pane->next =
            std::make_unique<Pane>(PaneData{NoWindow(), flags, RestArea(*pane), kSplitter, {}});
    }
    end = std::move(pane);
}

Pane* FindPane(Pane* pane, HWND window)
{
    while (pane && pane->window != window)
        pane = pane->next.get();
    return pane;
}

static void RemoveNext(Pane& before)
{
    before.next = std::move(before.next->next);
}

bool RemovePane(Pane* before, HWND window)
{
    while (before && before->next && before->next->window != window)
        before = before->next.get();
    if (!before || !before->next)
        return false;
    Pane& pane = *before->next;
    if (Has(pane, kPaneSizable) && pane.next && Has(*pane.next, kPaneSplitter))
        RemoveNext(pane);
    RemoveNext(*before);
    return true;
}

bool HasSplitter(const Pane* pane)
{
    while (pane && !Has(*pane, kPaneSplitter))
        pane = pane->next.get();
    return pane != nullptr;
}

Pane* HitTest(Pane* first, POINT point)
{
    Pane* hit = nullptr;
    for (Pane* pane = first; pane; pane = pane->next.get()) {
        const RECT rest = RestArea(*pane);
        if (rest.left <= point.x && point.x < rest.right && rest.top <= point.y &&
            point.y < rest.bottom)
            hit = pane;
    }
    return hit;
}

std::vector<PaneData> PanesOf(const Pane* first)
{
    std::vector<PaneData> panes;
    for (const Pane* pane = first; pane; pane = pane->next.get())
        panes.push_back(*pane);
    return panes;
}

DWORD NearestSide(const RECT& rectangle, const RECT& client)
{
    const std::int64_t x = rectangle.left + Width(rectangle) / 2;
    const std::int64_t y = rectangle.top + Height(rectangle) / 2;
    const std::pair<std::int64_t, DWORD> distances[] = {{std::abs(x), kPaneLeft},
                                                        {std::abs(client.right - x), kPaneRight},
                                                        {std::abs(y), kPaneTop},
                                                        {std::abs(client.bottom - y), kPaneBottom}};
    const auto nearest = std::min_element(std::begin(distances), std::end(distances));
    const auto asNear = [&](const auto& other) { return other.first == nearest->first; };
    const bool strictly = std::count_if(std::begin(distances), std::end(distances), asNear) == 1;
    return strictly ? nearest->second : kPaneBottom;
}

}  // namespace qx
