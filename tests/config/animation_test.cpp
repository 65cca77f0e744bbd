#include "config/animation.h"

#include <gtest/gtest.h>

using qx::BarSpan;
using qx::Bubble;

TEST(MarqueeSpan, EntersCrossesLeavesAndComesAgain)
{
    struct {
        std::uint32_t time;
        int start, end;
    } const cases[] = {{0, 0, 0},        {160, 0, 20},   {320, 0, 40},
                       {400, 10, 50},    {800, 60, 100}, {1280, 120, 160},
                       {1440, 140, 160}, {1600, 0, 0},   {1600 + 400, 10, 50}};
    for (const auto& c : cases) {
        const BarSpan span = qx::MarqueeSpan(160, c.time);
        EXPECT_EQ(c.start, span.start) << c.time;
        EXPECT_EQ(c.end, span.end) << c.time;
    }
}

TEST(MarqueeSpan, StaysWithinBarsOfAnyWidth)
{
    for (const int width : {-3, 0, 1, 2, 7, 0x7FFFFFFF}) {
        for (std::uint32_t time = 0; time < 1700; time += 7) {
            const BarSpan span = qx::MarqueeSpan(width, time);
            ASSERT_LE(0, span.start) << width << " at " << time;
            ASSERT_LE(span.start, span.end) << width << " at " << time;
            ASSERT_LE(span.end, width > 0 ? width : 0) << width << " at " << time;
        }
    }
}

TEST(BubbleAt, RisesThroughTheWholeColumnAndAgain)
{
    for (int index = 0; index < 100; ++index) {
        bool wrapped = false;
        double last = qx::BubbleAt(7, index, 0).y;
        for (std::uint32_t time = 40; time < 7000; time += 40) {
            const Bubble bubble = qx::BubbleAt(7, index, time);
            wrapped = wrapped || bubble.y > last;
            last = bubble.y;
            ASSERT_GE(bubble.x, 0) << index << " at " << time;
            ASSERT_LE(bubble.x, 1) << index << " at " << time;
            ASSERT_GE(bubble.y, -bubble.radius - 1e-9) << index << " at " << time;
            ASSERT_LE(bubble.y, 1 + bubble.radius + 1e-9) << index << " at " << time;
        }
        EXPECT_TRUE(wrapped) << index;
    }
}
