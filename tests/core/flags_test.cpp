#include <qxutility/core/flags.h>

#include <gtest/gtest.h>

namespace {

QXFlags With(unsigned long mask)
{
    QXFlags flags;
    flags.Set(mask);
    return flags;
}

}  // namespace

TEST(Flags, AreEmptyAtFirstAndAfterReset)
{
    EXPECT_EQ(0u, QXFlags().Value());
    EXPECT_EQ(0, QXFlags().Count());
    QXFlags flags = With(0x80000001);
    flags.ResetFlags();
    EXPECT_EQ(0u, flags.Value());
}

TEST(Flags, ComparisonAsksForMembershipNotEquality)
{
    const QXFlags flags = With(0x5);
    EXPECT_EQ(4u, flags == 0x6);
    EXPECT_EQ(0u, flags == 0x2);
    EXPECT_EQ(1u, flags != 0x2);
    EXPECT_EQ(0u, flags != 0x4);
    EXPECT_EQ(4u, flags.Test(0x4));
    EXPECT_EQ(0u, flags.Test(0x2));
}

TEST(Flags, SetAndClearTouchOnlyTheMask)
{
    QXFlags flags = With(0xF0);
    flags += 0x03;
    EXPECT_EQ(0xF3u, flags.Value());
    flags -= 0x11;
    EXPECT_EQ(0xE2u, flags.Value());
    flags.Clear(0x1D);  // none of these is set
    EXPECT_EQ(0xE2u, flags.Value());
    flags.Set(0x02);  // already set
    EXPECT_EQ(0xE2u, flags.Value());
}

TEST(Flags, CountsThirtyTwoBitsWhateverTheWidthOfLong)
{
    QXFlags flags = With(~0ul);
    EXPECT_EQ(0xFFFFFFFFu, flags.Value());
    EXPECT_EQ(32, flags.Count());
    EXPECT_EQ(0xFFFFFFFFu, flags.Test(~0ul));
    flags.Clear(0x80000000);
    EXPECT_EQ(31, flags.Count());
}

TEST(Flags, CopiesAreIndependent)
{
    QXFlags first = With(0x8);
    QXFlags second;
    second = first;
    first.Clear(0x8);
    EXPECT_EQ(0x8u, second.Value());
}
