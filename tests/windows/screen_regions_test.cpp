#include "support/win32_ui.h"

#include <qxutility/engineering/geometry.h>

#include <gtest/gtest.h>
#include <memory>

using qx::test::CountObjects;

struct RegionDeleter {
    void operator()(HRGN region) const { ::DeleteObject(region); }
};
using Region = std::unique_ptr<HRGN__, RegionDeleter>;

TEST(RegionArea, OfAnEllipseIsItsNumberOfPoints)
{
    const Region ellipse(::CreateEllipticRgn(-20, 5, 41, 77));
    int points = 0;
    for (int y = 0; y < 80; ++y) {
        for (int x = -25; x < 45; ++x)
            points += ::PtInRegion(ellipse.get(), x, y) ? 1 : 0;
    }
    EXPECT_LT(3000, points);
    EXPECT_EQ(points, GetRegionArea(ellipse.get()));
}

TEST(RegionArea, IsZeroWithoutRectangles)
{
    const Region empty(::CreateRectRgn(0, 0, 0, 0));
    EXPECT_EQ(0, GetRegionArea(empty.get()));
    EXPECT_EQ(0, GetRegionArea(static_cast<HRGN>(nullptr)));
}

TEST(PtOnScreen, AsksForTheRegionOfTheDesktopWindow)
{
    const Region region(::CreateRectRgn(0, 0, 0, 0));
    const bool hasRegion = ::GetWindowRgn(::GetDesktopWindow(), region.get()) != ERROR;
    const int before = CountObjects().drawing;
    for (int x : {-10, 0, 10, 100'000})
        EXPECT_EQ(hasRegion && ::PtInRegion(region.get(), x, 10), PtOnScreen(x, 10)) << x;
    EXPECT_EQ(before, CountObjects().drawing);
}
