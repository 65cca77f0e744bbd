#include "ui/toolbar_strip.h"

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

using namespace qx;

namespace {

StripBar Bar(int x, int y, int width, int height = 24)
{
    return {true, true, false, 0, x, y, {width, height}};
}

// Lays out until no further layout is posted; returns how many were.
int Settle(std::vector<StripBar>& bars, int width)
{
    int further = 0, height = 22;
    for (;; ++further) {
        const StripLayout layout = LayOut(bars, {width, height}, further);
        height = layout.height;
        if (!layout.again)
            return further;
    }
}

std::string Text(const std::vector<StripBar>& bars)
{
    std::string text;
    for (const StripBar& b : bars)
        text += std::to_string(b.x) + "," + std::to_string(b.y) + " ";
    return text;
}

TEST(StripSizes, OfButtonsAndChildren)
{
    const ToolbarButton buttons[] = {
        {0, 1, 0, 0}, {0, 0, 0, 1}, {0, 1, 4, 8}, {0, 1, 8, 0}, {0, 1, 0, 10}};
    EXPECT_EQ(25 + 9 + 38 + 38, ButtonsWidth(buttons));
    EXPECT_EQ(0, ButtonsWidth({}));
    const std::pair<int, int> heights[] = {{0, 24}, {24, 24}, {25, 25}, {200, 200}};
    for (const auto& [child, height] : heights)
        EXPECT_EQ(height, HostSize({50, child}).cy) << child;
}

TEST(StripSearch, EndsAtAnEmptyRecord)
{
    std::vector<StripBar> bars(3, Bar(0, 3, 50));
    for (int i = 0; i < 3; ++i)
        bars[i].id = 10 + i;
    EXPECT_EQ(2, FindBar(bars, 12));
    EXPECT_EQ(3, FindBar(bars, 99));
    bars[1].exists = false;
    EXPECT_EQ(0, FindBar(bars, 10));
    EXPECT_EQ(1, FindBar(bars, 12));
    EXPECT_EQ(1, CountLeading(bars));
}

TEST(StripHitTest, GripAndClient)
{
    std::vector<StripBar> bars = {Bar(200, 3, 50), Bar(10, 3, 50), Bar(10, 3, 90), StripBar{},
                                  Bar(10, 55, 50)};
    bars[0].shown = false;
    struct {
        POINT point;
        StripHit code;
        int index;
    } const cases[] = {
        {{9, 3}, StripHit::Nothing, -1},   {{10, 3}, StripHit::Grip, 1},
        {{16, 26}, StripHit::Grip, 1},     {{17, 3}, StripHit::Client, 1},
        {{66, 26}, StripHit::Client, 1},   {{67, 3}, StripHit::Client, 2},
        {{17, 27}, StripHit::Nothing, -1}, {{17, 2}, StripHit::Nothing, -1},
        {{210, 5}, StripHit::Nothing, -1}, {{20, 60}, StripHit::Client, 4},
    };
    for (const auto& c : cases) {
        const StripHitResult hit = HitTest(bars, c.point);
        EXPECT_EQ(c.code, hit.code) << c.point.x << ',' << c.point.y;
        EXPECT_EQ(c.index, hit.index) << c.point.x << ',' << c.point.y;
    }
    bars[1].floating = true;
    EXPECT_EQ(2, HitTest(bars, {17, 3}).index);
}

TEST(StripLayout, PlacesOfOneLayout)
{
    struct {
        const char* what;
        std::vector<StripBar> bars;
        const char* places;
        int height;
        bool again;
    } const cases[] = {
        {"none", {}, "", 26, false},
        {"alone in the second row", {Bar(20, 29, 50)}, "20,3 ", 29, false},
        {"alone far down", {Bar(20, 1000, 50)}, "20,3 ", 29, false},
        {"above the strip", {Bar(20, -500, 50)}, "20,3 ", 29, false},
        {"between rows", {Bar(20, 3, 50), Bar(20, 54, 50)}, "20,3 20,29 ", 55, false},
        {"left of the strip", {Bar(6, 3, 50)}, "1,3 ", 29, false},
        {"14 pixels from the right", {Bar(343, 3, 50)}, "343,3 ", 29, false},
        {"13 pixels from the right", {Bar(20, 3, 50), Bar(344, 3, 50)}, "20,3 343,29 ", 55, false},
        {"on another bar", {Bar(20, 3, 50), Bar(40, 3, 60)}, "20,3 79,3 ", 29, false},
        {"8 pixels behind another", {Bar(20, 3, 50), Bar(78, 3, 60)}, "20,3 79,3 ", 29, false},
        {"9 pixels behind another", {Bar(20, 3, 50), Bar(79, 3, 60)}, "20,3 79,3 ", 29, false},
        {"no room behind it", {Bar(20, 3, 200), Bar(40, 3, 194)}, "20,3 0,53 ", 79, true},
        {"two below an empty row",
         {Bar(20, 3, 50), Bar(20, 55, 50), Bar(120, 55, 50)},
         "20,3 20,29 120,55 ",
         81,
         false},
        {"too wide for any row", {Bar(20, 3, 50), Bar(50, 3, 393)}, "20,3 1,29 ", 55, false},
        {"two too wide, below an empty row",
         {Bar(50, 29, 500), Bar(50, 29, 393)},
         "1,3 1,29 ",
         55,
         false},
        {"on one that is too wide", {Bar(1, 3, 393), Bar(20, -9, 50)}, "1,29 20,3 ", 55, false},
    };
    for (const auto& c : cases) {
        std::vector<StripBar> bars = c.bars;
        const StripLayout layout = LayOut(bars, {400, 29});
        EXPECT_EQ(c.places, Text(bars)) << c.what;
        EXPECT_EQ(c.height, layout.height) << c.what;
        EXPECT_EQ(c.again, layout.again) << c.what;
    }
}

TEST(StripLayout, FloatingBarsTakeNoPart)
{
    std::vector<StripBar> bars = {Bar(20, 3, 50), Bar(20, 3, 50)};
    bars[1].floating = true;
    EXPECT_FALSE(LayOut(bars, {400, 29}).again);
    EXPECT_EQ("20,3 20,3 ", Text(bars));
}

StripBar RandomBar(std::mt19937& random, int width)
{
    const auto upTo = [&](int n) { return static_cast<int>(random() % (n + 1U)); };
    StripBar bar = Bar(upTo(width + 100) - 50, upTo(400) - 50, upTo(width / (1 + upTo(5)) + 20));
    if (upTo(5) == 0)
        bar.size.cy = upTo(200);
    if (upTo(50) == 0)
        bar.x = static_cast<int>(random()), bar.y = static_cast<int>(random());
    bar.exists = upTo(9) > 0;
    bar.shown = upTo(4) > 0;
    bar.floating = upTo(9) == 0;
    return bar;
}

// QX_STRIP_ROUNDS sets the number of arrangements.
TEST(StripLayout, EndsForAnyArrangement)
{
    const char* rounds = std::getenv("QX_STRIP_ROUNDS");
    const unsigned count = rounds ? static_cast<unsigned>(std::atoi(rounds)) : 5'000;
    for (unsigned seed = 0; seed < count; ++seed) {
        std::mt19937 random(seed);
        const int width = static_cast<int>(random() % 1500);
        std::vector<StripBar> bars(random() % (seed % 50 ? 12 : 129));
        for (StripBar& bar : bars)
            bar = RandomBar(random, width);
        ASSERT_LE(Settle(bars, width), kMostFurtherLayouts) << seed;
        const auto bad = std::ranges::find_if(bars, [=](const StripBar& bar) {
            return bar.IsVisible() && bar.size.cx > width - 8 && bar.x != 1;
        });
        EXPECT_EQ(bars.end(), bad) << seed;
    }
}

}  // namespace
