#include <qxutility/core/text.h>

#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

using qx::test::GuardedBuffer;

TEST(Rstrncpy, CutsAndTerminatesWithinTheSize)
{
    GuardedBuffer buffer(3);
    EXPECT_STREQ("he", rstrncpy(buffer, "hello", 3));
    EXPECT_STREQ("", rstrncpy(buffer, "hello", 1));
    EXPECT_STREQ("", rstrncpy(buffer, "x", 0));
}
