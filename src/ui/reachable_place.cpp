#include "ui/reachable_place.h"

#include "ui/area.h"

#include <algorithm>
#include <cstdlib>

namespace qx {

static bool Meet(const RECT& a, const RECT& b)
{
    return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

static POINT MovedInto(const RECT& r, const RECT& screen)
{
    const auto start = [](std::int64_t from, std::int64_t size, int low, int high) {
        return ToInt(std::max<std::int64_t>(std::min(from, high - size), low));
    };
    return {start(r.left, Width(r), screen.left, screen.right),
            start(r.top, Height(r), screen.top, screen.bottom)};
}

static std::int64_t Way(const RECT& r, POINT to)
{
    return std::abs(std::int64_t{to.x} - r.left) + std::abs(std::int64_t{to.y} - r.top);
}

POINT ReachablePlace(const RECT& caption, std::span<const RECT> screens)
{
    const POINT place{caption.left, caption.top};
    if (screens.empty() ||
        std::ranges::any_of(screens, [&](const RECT& screen) { return Meet(caption, screen); }))
        return place;
    const auto way = [&](const RECT& screen) { return Way(caption, MovedInto(caption, screen)); };
    return MovedInto(caption, *std::ranges::min_element(screens, {}, way));
}

}  // namespace qx
