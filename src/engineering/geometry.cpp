#include <qxutility/engineering/geometry.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

namespace {

// The line y = slope * x + intercept through a segment. A vertical segment gets slope 0:
// deliberate, drawings in the field are laid out with it.
struct Line {
    double slope, intercept;
};

Line Through(POINT from, POINT to)
{
    double slope = 0;
    if (from.x != to.x) {
        slope = static_cast<double>(std::int64_t{to.y} - from.y) /
                static_cast<double>(std::int64_t{to.x} - from.x);
    }
    return {slope, from.y - from.x * slope};
}

// Only a comparison that holds puts a value outside: NaN never is.
bool Outside(double value, double a, double b)
{
    return value > std::max(a, b) || value < std::min(a, b);
}

bool OutsideBox(double x, double y, POINT a, POINT b)
{
    return Outside(x, a.x, b.x) || Outside(y, a.y, b.y);
}

}  // namespace

bool LinesIntersect(POINT p1, POINT p2, POINT p3, POINT p4)
{
    const Line first = Through(p1, p2), second = Through(p3, p4);
    if (first.slope == 0 && second.slope == 0 && first.intercept != second.intercept)
        return false;
    // One and the same line gives 0 / 0: a NaN, which is not outside of any segment.
    const double x = (second.intercept - first.intercept) / (first.slope - second.slope);
    const double y = first.slope * x + first.intercept;
    return !OutsideBox(x, y, p1, p2) && !OutsideBox(x, y, p3, p4);
}

bool TextOverlap(RECT a, RECT b)
{
    const std::int64_t top = a.top, bottom = a.bottom;
    const std::int64_t tolerance = std::abs(bottom - top) / 4;
    if (b.left >= a.right || b.right <= a.left)
        return false;
    if (top < bottom)
        return b.top < bottom - tolerance && b.bottom > top + tolerance;
    return b.top > bottom + tolerance && b.bottom < top - tolerance;
}

double GetRegionArea(const RECT* rectangles, std::size_t count)
{
    const auto side = [](auto from, auto to) {
        return static_cast<std::uint32_t>(to) - static_cast<std::uint32_t>(from);
    };
    double area = 0;
    for (const RECT* r = rectangles; r != rectangles + count; ++r)
        area += static_cast<std::int32_t>(side(r->left, r->right) * side(r->top, r->bottom));
    return area;
}

bool PtOnScreen(int x, int y, const RECT* rectangles, std::size_t count)
{
    return std::any_of(rectangles, rectangles + count, [&](const RECT& r) {
        return r.left <= x && x < r.right && r.top <= y && y < r.bottom;
    });
}
