#include "platform/name_pattern.h"

#include <gtest/gtest.h>
#include <string>

using qx::platform::MatchesPattern;

TEST(NamePattern, DescribesNames)
{
    static constexpr struct {
        const char *pattern, *name;
        bool matches;
    } kCases[] = {{"", "", true},
                  {"", "a", false},
                  {"a.dat", "a.dat", true},
                  {"a.dat", "A.dat", false},
                  {"a.dat", "a.da", false},
                  {"a.da", "a.dat", false},
                  {"*", "", true},
                  {"*.dat", ".dat", true},
                  {"*.dat", "a.dat.x", false},
                  {"*.dat", "a.dat.dat", true},
                  {"a*", "ba", false},
                  {"a*b*c", "a_b_b_c", true},
                  {"a*b*c", "a_c_b", false},
                  {"?", "", false},
                  {"?", "ab", false},
                  {"a?c", "abc", true},
                  {"*?", "", false},
                  {"*.*", "README", true},
                  {"[ab]", "a", false},
                  {"[ab]", "[ab]", true}};
    for (const auto& each : kCases)
        EXPECT_EQ(each.matches, MatchesPattern(each.name, each.pattern))
            << each.pattern << " and " << each.name;
}

TEST(NamePattern, TakesItsTimeInProportion)
{
    std::string pattern;
    for (int i = 0; i < 30; ++i)
        pattern += "a*";
    EXPECT_FALSE(MatchesPattern(std::string(100000, 'a') + "b", pattern + "c"));
}
