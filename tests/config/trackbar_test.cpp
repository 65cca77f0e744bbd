#include "config/trackbar.h"

#include <climits>
#include <gmock/gmock.h>

using qx::Trackbar;
using Code = qx::TrackbarCode;
using testing::ElementsAre;
using testing::IsEmpty;

// 0 to 100 on 211 pixels with a thumb of 11: two pixels for each position.
static Trackbar StandardBar(int position)
{
    Trackbar bar;
    bar.SetSize(211, 11);
    bar.SetPosition(position);
    return bar;
}

TEST(Trackbar, KeepsThePositionWithinTheRange)
{
    Trackbar bar;
    bar.SetPosition(150);
    EXPECT_EQ(100, bar.position());
    bar.SetRange(-20, 30);
    EXPECT_EQ(30, bar.position());
    bar.SetPosition(-50);
    EXPECT_EQ(-20, bar.position());
    bar.SetRange(7, 3);
    EXPECT_EQ(7, bar.maximum());
    EXPECT_EQ(7, bar.position());
}

TEST(Trackbar, MovesByLinesPagesAndToTheEnds)
{
    struct {
        int from;
        Code code;
        int to;
    } const cases[] = {
        {50, Code::LineUp, 49},   {50, Code::LineDown, 51},  {0, Code::LineUp, 0},
        {50, Code::PageUp, 30},   {50, Code::PageDown, 70},  {95, Code::PageDown, 100},
        {50, Code::Top, 0},       {50, Code::Bottom, 100},   {100, Code::Bottom, 100},
        {50, Code::EndTrack, 50}, {50, Code::ThumbTrack, 50}};
    for (const auto& c : cases) {
        Trackbar bar = StandardBar(c.from);
        const auto told = bar.Move(c.code);
        EXPECT_EQ(c.to, bar.position()) << c.from << " code " << static_cast<int>(c.code);
        EXPECT_EQ(c.from != c.to, told.has_value()) << c.from;
    }
}

TEST(Trackbar, PageIsAFifthOfTheRangeUnlessSet)
{
    Trackbar bar;
    EXPECT_EQ(20, bar.pageSize());
    bar.SetRange(0, 3);
    EXPECT_EQ(1, bar.pageSize());
    for (const auto& [set, size] : {std::pair{2, 2}, {-1, 1}}) {
        bar.SetPageSize(set);
        EXPECT_EQ(size, bar.pageSize());
    }
}

TEST(Trackbar, PixelsAndPositionsMeet)
{
    const Trackbar bar = StandardBar(50);
    const std::pair<int, int> pairs[] = {{0, 5}, {1, 7}, {50, 105}, {100, 205}};
    for (const auto& [position, pixel] : pairs) {
        EXPECT_EQ(pixel, bar.PixelOf(position)) << position;
        EXPECT_EQ(position, bar.PositionAt(pixel)) << pixel;
    }
    EXPECT_EQ(0, bar.PositionAt(-1000));
    EXPECT_EQ(100, bar.PositionAt(1000));
    EXPECT_EQ(std::make_pair(100, 111), bar.Thumb());
}

TEST(Trackbar, SurvivesExtremeRangesAndSizes)
{
    Trackbar bar;
    for (const int length : {-5, 0, 1, 10, INT_MAX}) {
        bar.SetSize(length, 11);
        bar.SetRange(INT_MIN, INT_MAX);
        bar.SetLineSize(INT_MAX);
        bar.Move(Code::Bottom);
        bar.Move(Code::LineDown);
        EXPECT_EQ(INT_MAX, bar.position()) << length;
        EXPECT_GE(bar.PixelOf(INT_MAX), bar.PixelOf(INT_MIN)) << length;
        EXPECT_EQ(INT_MAX, bar.TickCount());
        bar.SetRange(4, 4);
        EXPECT_EQ(4, bar.PositionAt(3)) << length;
    }
}

TEST(Trackbar, DraggingFollowsTheMouseFromWhereTheThumbWasTaken)
{
    Trackbar bar = StandardBar(50);
    EXPECT_EQ(std::nullopt, bar.Press(108));  // three pixels right of its middle
    EXPECT_TRUE(bar.dragging());
    EXPECT_EQ(std::nullopt, bar.MouseTo(108));
    EXPECT_EQ(Code::ThumbTrack, bar.MouseTo(128));
    EXPECT_EQ(60, bar.position());
    bar.MouseTo(-400);
    EXPECT_EQ(0, bar.position());
    EXPECT_THAT(bar.Release(), ElementsAre(Code::ThumbPosition, Code::EndTrack));
    EXPECT_EQ(std::nullopt, bar.MouseTo(128));
    EXPECT_THAT(bar.Release(), IsEmpty());
}

TEST(Trackbar, PagesTowardsTheMouseAndNeverBack)
{
    Trackbar bar = StandardBar(50);
    EXPECT_EQ(Code::PageDown, bar.Press(150));
    EXPECT_EQ(70, bar.position());
    EXPECT_EQ(Code::PageDown, [&] {
        bar.MouseTo(180);
        return bar.Repeat();
    }());
    EXPECT_EQ(90, bar.position());
    EXPECT_EQ(std::nullopt, bar.Repeat());
    bar.MouseTo(0);
    EXPECT_EQ(std::nullopt, bar.Repeat());
    EXPECT_THAT(bar.Release(), ElementsAre(Code::EndTrack));

    EXPECT_EQ(Code::PageUp, bar.Press(0));
    EXPECT_EQ(70, bar.position());
}

TEST(Trackbar, LosingTheMouseEndsTheTracking)
{
    Trackbar bar = StandardBar(50);
    bar.Press(105);
    EXPECT_THAT(bar.Cancel(), ElementsAre(Code::EndTrack));
    EXPECT_FALSE(bar.pressed());
    EXPECT_THAT(bar.Cancel(), IsEmpty());
}

TEST(Trackbar, CountsTicksWithBothEnds)
{
    struct {
        int maximum, step, count;
    } const cases[] = {{10, 1, 11}, {10, 5, 3}, {10, 3, 5}, {10, 20, 2}, {0, 1, 2}, {10, 0, 11}};
    for (const auto& c : cases) {
        Trackbar bar;
        bar.SetRange(0, c.maximum);
        bar.SetTickStep(c.step);
        EXPECT_EQ(c.count, bar.TickCount()) << c.maximum << " by " << c.step;
    }
}
