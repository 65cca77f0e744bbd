#include "platform/c_locale.h"

#include <clocale>
#include <gtest/gtest.h>

TEST(CLocalePoint, FollowsSetlocale)
{
    EXPECT_EQ('.', qx::platform::CLocalePoint());
    for (const char* name : {"de_DE.UTF-8", "de_DE", "German_Germany.1252", "German"}) {
        if (std::setlocale(LC_NUMERIC, name)) {
            EXPECT_EQ(',', qx::platform::CLocalePoint()) << name;
            std::setlocale(LC_NUMERIC, "C");
            return;
        }
    }
}
