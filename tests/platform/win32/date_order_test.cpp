#include "platform/date_order.h"

#include <windows.h>

#include <gtest/gtest.h>

TEST(DateOrder, IsTheUsersShortDatePatternCutToNineteenCharacters)
{
    const std::string usual = qx::platform::ShortDatePattern();
    for (const std::string pattern :
         {"dd.MM.yyyy", "M/d/yyyy", "yyyy 'is the year, and MM month'"}) {
        ASSERT_TRUE(::WriteProfileStringA("Intl", "sShortDate", pattern.c_str()));
        EXPECT_EQ(pattern.substr(0, 19), qx::platform::ShortDatePattern());
    }
    ASSERT_TRUE(::WriteProfileStringA("Intl", "sShortDate", usual.c_str()));
}
