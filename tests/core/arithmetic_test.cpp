// Results are the same to the last bit in every build only if nothing is computed in more digits
// than a double has, as the x87 unit of 32-bit processors would do.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>

static_assert(FLT_EVAL_METHOD == 0, "compile for SSE2 arithmetic");

TEST(Arithmetic, IntermediateResultsAreDoubles)
{
    const volatile double huge = 1e308, ten = 10;
    EXPECT_TRUE(std::isinf(huge * ten / ten));
    const volatile double twoTo53 = 9007199254740992.0, one = 1;
    EXPECT_EQ(0, (twoTo53 + one) - twoTo53);
}

TEST(Arithmetic, MultiplyAndAddAreRoundedEach)
{
    const volatile double x = 1 + 0x1p-30;
    const double square = x * x;
    EXPECT_EQ(0, x * x - square);
}
