#include <qxutility/engineering/geometry.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <gtest/gtest.h>
#include <iterator>
#include <random>

namespace {

using Random = std::mt19937;

int Between(int least, int most, Random& random)
{
    return std::uniform_int_distribution<int>(least, most)(random);
}

POINT RandomPoint(Random& random)
{
    return {Between(-6, 6, random), Between(-6, 6, random)};
}

// As described, step by step.
bool PlainLinesIntersect(POINT p1, POINT p2, POINT p3, POINT p4)
{
    double m1 = 0, m2 = 0;
    if (p1.x != p2.x)
        m1 = static_cast<double>(p2.y - p1.y) / static_cast<double>(p2.x - p1.x);
    const double b1 = p1.y - p1.x * m1;
    if (p3.x != p4.x)
        m2 = static_cast<double>(p4.y - p3.y) / static_cast<double>(p4.x - p3.x);
    const double b2 = p3.y - p3.x * m2;
    if (m1 == 0 && m2 == 0 && b1 != b2)
        return false;
    const double x = (b2 - b1) / (m1 - m2), y = m1 * x + b1;
    return !(x > std::max(p1.x, p2.x)) && !(x < std::min(p1.x, p2.x)) &&
           !(x > std::max(p3.x, p4.x)) && !(x < std::min(p3.x, p4.x)) &&
           !(y > std::max(p1.y, p2.y)) && !(y < std::min(p1.y, p2.y)) &&
           !(y > std::max(p3.y, p4.y)) && !(y < std::min(p3.y, p4.y));
}

bool PlainTextOverlap(RECT a, RECT b)
{
    const int q = std::abs(static_cast<int>(a.bottom - a.top)) / 4;
    if (b.left >= a.right || b.right <= a.left)
        return false;
    if (a.top < a.bottom) {
        if (b.top >= a.bottom - q || b.bottom <= a.top + q)
            return false;
    } else {
        if (b.top <= a.bottom + q || b.bottom >= a.top - q)
            return false;
    }
    return true;
}

}  // namespace

TEST(LinesIntersect, MeetsOnceEndsIncluded)
{
    static constexpr struct {
        const char* what;
        POINT p1, p2, p3, p4;
        bool meet;
    } kCases[] = {
        {"parallel", {0, 0}, {10, 10}, {20, 0}, {30, 10}, false},
        {"on one level line, apart", {0, 5}, {4, 5}, {6, 5}, {9, 5}, true},
        {"on one sloped line, apart", {0, 0}, {1, 1}, {5, 5}, {6, 6}, true},
        {"ends touch", {0, 0}, {4, 4}, {4, 4}, {8, 0}, true},
        {"two levels", {0, 5}, {4, 5}, {0, 6}, {4, 6}, false},
        {"vertical counts as level at its first point", {2, 0}, {2, 9}, {0, 1}, {4, 0}, false},
        {"vertical, other end first", {2, 9}, {2, 0}, {2, 9}, {2, 4}, true},
        {"points", {3, 3}, {3, 3}, {3, 3}, {3, 3}, true},
        {"the whole plane",
         {INT_MIN, INT_MIN},
         {INT_MAX, INT_MAX},
         {INT_MIN, INT_MAX},
         {INT_MAX, INT_MIN},
         true},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(each.meet, LinesIntersect(each.p1, each.p2, each.p3, each.p4)) << each.what;
}

TEST(LinesIntersect, DecidesAsDescribed)
{
    Random random(24);
    for (int round = 0; round < 200'000; ++round) {
        const POINT p1 = RandomPoint(random), p2 = RandomPoint(random), p3 = RandomPoint(random),
                    p4 = RandomPoint(random);
        ASSERT_EQ(PlainLinesIntersect(p1, p2, p3, p4), LinesIntersect(p1, p2, p3, p4))
            << p1.x << ',' << p1.y << ' ' << p2.x << ',' << p2.y << "  " << p3.x << ',' << p3.y
            << ' ' << p4.x << ',' << p4.y;
    }
}

TEST(TextOverlap, LeavesAQuarterOfTheHeight)
{
    static constexpr struct {
        const char* what;
        RECT a, b;
        bool collide;
    } kCases[] = {
        {"lower quarter", {0, 0, 100, 20}, {50, 15, 150, 35}, false},
        {"upper quarter", {0, 0, 100, 20}, {50, -15, 150, 5}, false},
        {"one more", {0, 0, 100, 20}, {50, -15, 150, 6}, true},
        {"upward, upper quarter", {0, 20, 100, 0}, {50, 40, 150, 16}, false},
        {"side by side", {0, 0, 100, 20}, {100, 0, 200, 20}, false},
        {"only the height of a counts", {0, 0, 100, 20}, {0, 14, 100, 400}, true},
        {"and not that of b", {0, 14, 100, 400}, {0, 0, 100, 20}, false},
        {"tallest box", {0, INT_MIN, 1, INT_MAX}, {0, 0, 1, 1}, true},
        {"tallest box upward", {0, INT_MAX, 1, INT_MIN}, {0, 1, 1, 0}, true},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(each.collide, TextOverlap(each.a, each.b)) << each.what;
}

TEST(TextOverlap, DecidesAsDescribed)
{
    Random random(25);
    const auto box = [&] {
        const POINT p = RandomPoint(random), q = RandomPoint(random);
        return RECT{p.x, p.y, q.x, q.y};
    };
    for (int round = 0; round < 200'000; ++round) {
        const RECT a = box(), b = box();
        ASSERT_EQ(PlainTextOverlap(a, b), TextOverlap(a, b))
            << a.left << ',' << a.top << ',' << a.right << ',' << a.bottom << "  " << b.left << ','
            << b.top << ',' << b.right << ',' << b.bottom;
    }
}

TEST(RegionArea, SumsItsRectangles)
{
    const RECT rectangles[] = {
        {0, 0, 10, 5}, {-10, -10, 0, 0}, {3, 3, 3, 9}, {0, 0, 40'000, 50'000}};
    EXPECT_EQ(0, GetRegionArea(nullptr, 0));
    EXPECT_EQ(150, GetRegionArea(rectangles, 3));
    // Each product wraps at 32 bits: 2,000,000,000 fits, 2,500,000,000 does not.
    EXPECT_EQ(2'000'000'150.0, GetRegionArea(rectangles, 4));
    const RECT large = {0, 0, 50'000, 50'000};
    EXPECT_EQ(2'500'000'000.0 - 4'294'967'296.0, GetRegionArea(&large, 1));
    const RECT two[] = {rectangles[3], rectangles[3]};
    EXPECT_EQ(4e9, GetRegionArea(two, 2));
}

TEST(PtOnScreen, LeavesOutRightAndBottomEdges)
{
    const RECT screens[] = {{0, 0, 100, 50}, {100, 10, 200, 60}};
    static constexpr struct {
        int x, y;
        bool on;
    } kCases[] = {{0, 0, true},    {99, 49, true},  {100, 49, true},  {100, 9, false},
                  {99, 50, false}, {199, 59, true}, {200, 59, false}, {199, 60, false},
                  {-1, 0, false},  {150, 5, false}};
    for (const auto& each : kCases)
        EXPECT_EQ(each.on, PtOnScreen(each.x, each.y, screens, 2)) << each.x << ',' << each.y;
    EXPECT_FALSE(PtOnScreen(0, 0, nullptr, 0));
}
