#include "ui/reachable_place.h"

#include <gtest/gtest.h>
#include <vector>

using namespace qx;

TEST(ReachablePlace, OnlyACaptionThatNoScreenShowsIsMoved)
{
    const std::vector<RECT> screens = {{0, 0, 1000, 700}, {1000, -200, 1800, 500}};
    struct {
        const char* what;
        POINT place;
        int width;
        POINT expected;
    } const cases[] = {
        {"inside", {20, 20}, 100, {20, 20}},
        {"one pixel shown", {-99, -15}, 100, {-99, -15}},
        {"left of all", {-100, 20}, 100, {0, 20}},
        {"below the first", {300, 700}, 100, {300, 684}},
        {"above the second", {1200, -900}, 100, {1200, -200}},
        {"right of all", {5000, 100}, 100, {1700, 100}},
        {"wider than a screen", {-3000, 5000}, 2000, {0, 684}},
        {"far out", {INT32_MAX - 100, INT32_MAX - 100}, 100, {1700, 484}},
    };
    for (const auto& c : cases) {
        const RECT caption{c.place.x, c.place.y, c.place.x + c.width, c.place.y + 16};
        const POINT place = ReachablePlace(caption, screens);
        EXPECT_EQ(c.expected.x, place.x) << c.what;
        EXPECT_EQ(c.expected.y, place.y) << c.what;
    }
    EXPECT_EQ(-500, ReachablePlace({-500, 0, -400, 16}, {}).x) << "no screen is known";
}
