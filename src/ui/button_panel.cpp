#include "ui/button_panel.h"

#include "ui/area.h"

#include <algorithm>

namespace qx {

bool Contains(const ButtonArea& area, int x, int y)
{
    const std::int64_t fromLeft = std::int64_t{x} - area.x, fromTop = std::int64_t{y} - area.y;
    return 0 <= fromLeft && fromLeft <= area.width && 0 <= fromTop && fromTop <= area.height;
}

void Enclose(SIZE& size, const ButtonArea& area)
{
    size.cx = std::max(size.cx, decltype(size.cx){ToInt(std::int64_t{area.x} + area.width)});
    size.cy = std::max(size.cy, decltype(size.cy){ToInt(std::int64_t{area.y} + area.height)});
}

RECT Centred(SIZE size, const RECT& within)
{
    const std::int64_t width = std::min<std::int64_t>(size.cx, Width(within));
    const std::int64_t height = std::min<std::int64_t>(size.cy, Height(within));
    const std::int64_t x = within.left + std::max<std::int64_t>(Width(within) / 2 - width / 2, 0);
    const std::int64_t y = within.top + std::max<std::int64_t>(Height(within) / 2 - height / 2, 0);
    return {ToInt(x), ToInt(y), ToInt(x + width), ToInt(y + height)};
}

}  // namespace qx
