#include "ui/panes.h"

#include <gtest/gtest.h>

TEST(Subtract, AgreesWithTheSystem)
{
    unsigned state = 1;
    const auto next = [&] { return static_cast<LONG>((state = state * 69069 + 1) >> 29) - 1; };
    for (int i = 0; i < 200'000; ++i) {
        const RECT from{next(), next(), next(), next()}, cut{next(), next(), next(), next()};
        RECT expected;
        ::SubtractRect(&expected, &from, &cut);
        const RECT rest = qx::Subtract(from, cut);
        ASSERT_TRUE(::EqualRect(&expected, &rest))
            << from.left << " " << from.top << " " << from.right << " " << from.bottom << " minus "
            << cut.left << " " << cut.top << " " << cut.right << " " << cut.bottom;
    }
}
