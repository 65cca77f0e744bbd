#include "platform/date_order.h"

#include <cstdlib>
#include <gtest/gtest.h>

TEST(DateOrder, IsThatOfTheUsersLocaleForDates)
{
    static constexpr struct {
        const char *all, *time, *lang;
        char first;
    } kCases[] = {
        {"en_US.UTF-8", "", "", 'M'},
        {"de_DE.UTF-8", "", "", 'd'},
        {"fr_FR@euro", "", "", 'd'},
        {"ja_JP.UTF-8", "", "", 'y'},
        {"", "en_GB", "en_US", 'd'},
        {"en_US", "de_DE", "de_DE", 'M'},
        {"", "", "en_US.ISO-8859-1", 'M'},
        {"C", "de_DE", "de_DE", 'M'},
        {"C.UTF-8", "", "", 'M'},
        {"POSIX", "", "", 'M'},
        {"", "", "", 'M'},
    };
    for (const auto& each : kCases) {
        ::setenv("LC_ALL", each.all, 1);
        ::setenv("LC_TIME", each.time, 1);
        ::setenv("LANG", each.lang, 1);
        const std::string pattern = qx::platform::ShortDatePattern();
        EXPECT_EQ(each.first, pattern[0])
            << pattern << " for " << each.all << '/' << each.time << '/' << each.lang;
    }
    ::setenv("LC_ALL", "no such locale", 1);
    EXPECT_NE("", qx::platform::ShortDatePattern());
}
