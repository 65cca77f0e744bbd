#include "ui/toolbar_drag.h"

#include <gtest/gtest.h>

using namespace qx;

namespace {

const auto kYes = [](const RECT&) { return true; };
const auto kNo = [](const RECT&) { return false; };

TEST(BarDrag, FollowsTheMouseAsFarAsItMay)
{
    const StripBar dragged{true, true, false, 1, 10, 3, {50, 24}};
    const StripBar other{true, true, false, 2, 200, 29, {50, 24}};
    struct {
        POINT mouse;
        bool moves;
        POINT place;
    } const cases[] = {
        {{20, 5}, true, {20, 5}},    {{342, 40}, true, {342, 40}},
        {{343, 40}, true, {10, 40}}, {{100, 76}, true, {100, 76}},
        {{100, 77}, true, {100, 3}}, {{-9, -9}, true, {-9, -9}},
        {{210, 30}, false, {10, 3}}, {{INT32_MAX, INT32_MAX}, true, {10, 3}},
    };
    for (const auto& c : cases) {
        StripBar bars[] = {dragged, other};
        EXPECT_EQ(c.moves, DragTo(bars, 0, c.mouse, 400)) << c.mouse.x << ',' << c.mouse.y;
        EXPECT_EQ(c.place.x, bars[0].x) << c.mouse.x << ',' << c.mouse.y;
        EXPECT_EQ(c.place.y, bars[0].y) << c.mouse.x << ',' << c.mouse.y;
    }
    const StripBar bars[] = {dragged, other};
    EXPECT_EQ(1, DragBegun(bars, {201, 30}, false));
    EXPECT_EQ(-1, DragBegun(bars, {201, 30}, true));
    EXPECT_EQ(-1, DragBegun(bars, {100, 3}, false));
}

TEST(FloatDrag, EndsOverTheDockArea)
{
    FloatDrag drag;
    ASSERT_TRUE(drag.Enter({1, 2, 3, 4}));
    EXPECT_TRUE(drag.Step({5, 6, 7, 8}, kNo));
    EXPECT_TRUE(drag.Step({9, 6, 11, 8}, kYes));
    const FloatEnd end = drag.Exit();
    EXPECT_TRUE(end.wasMove && end.moveBack && end.requestDock);
    EXPECT_EQ(1, end.start.left);
    EXPECT_EQ(9, end.dock.left);
    EXPECT_FALSE(drag.IsMoving());
}

TEST(FloatDrag, AnswerOfAnEarlierMoveIsForgotten)
{
    FloatDrag drag;
    drag.Enter({});
    drag.Step({}, kYes);
    drag.Exit();
    drag.Enter({});
    EXPECT_FALSE(drag.Exit().requestDock);
}

TEST(FloatDrag, ForcedOnceGoesBackWithoutDocking)
{
    FloatDrag drag;
    drag.Force();
    for (const bool back : {true, false}) {
        drag.Enter({});
        drag.Step({}, kNo);
        const FloatEnd end = drag.Exit();
        EXPECT_EQ(back, end.moveBack);
        EXPECT_FALSE(end.requestDock);
    }
}

TEST(FloatDrag, BordersSizeAndNeverAsk)
{
    for (int code = 0; code <= 21; ++code) {
        FloatDrag drag;
        drag.Press(code);
        const bool sizes = code == 4 || (code >= 10 && code <= 17);
        EXPECT_EQ(!sizes, drag.Enter({})) << code;
        EXPECT_EQ(!sizes, drag.Step({}, kYes)) << code;
        EXPECT_EQ(!sizes, drag.Exit().requestDock) << code;
        EXPECT_TRUE(drag.Enter({})) << code;
    }
}

TEST(FloatDrag, PressesAndEndsAtOddTimes)
{
    FloatDrag drag;
    drag.Press(10);
    drag.Release();
    ASSERT_TRUE(drag.Enter({})) << "the button was let go before a loop began";
    drag.Press(10);
    EXPECT_TRUE(drag.Step({}, kYes)) << "a press elsewhere while a window is moved";
    EXPECT_TRUE(drag.Exit().requestDock);
    EXPECT_FALSE(drag.Exit().wasMove) << "nothing was begun";
}

}  // namespace
