#include "ui/placement.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

TEST(Placement, CentresWithHalvesCutTowardsZero)
{
    EXPECT_EQ(50, qx::CentredStart(200, 100));
    EXPECT_EQ(49, qx::CentredStart(199, 100));
    EXPECT_EQ(0, qx::CentredStart(100, 101));
    EXPECT_EQ(-50, qx::CentredStart(100, 200));
    EXPECT_EQ(-49, qx::CentredStart(100, 199));
}

TEST(Placement, FindsTheSpareHeightOfAList)
{
    EXPECT_EQ(200 - 4 * 13 - 4, qx::SpareHeight(200, 1, 13, 2)) << "room for four rows stays";
    EXPECT_EQ(200 - 4 * 13 - 4, qx::SpareHeight(200, 4, 13, 2));
    EXPECT_EQ(200 - 5 * 13 - 4, qx::SpareHeight(200, 5, 13, 2));
    EXPECT_EQ(0, qx::SpareHeight(200, 20, 13, 2));
    EXPECT_EQ(0, qx::SpareHeight(40, 1, 13, 2));
}

TEST(Placement, SetsButtonsFromTheRight)
{
    EXPECT_THAT(qx::FromTheRight(400, 6, std::vector<int>{80, 75, 60}), ElementsAre(320, 239, 173));
    EXPECT_THAT(qx::FromTheRight(50, 0, std::vector<int>{80}), ElementsAre(-30));
    EXPECT_THAT(qx::FromTheRight(50, 6, {}), ElementsAre());
}
