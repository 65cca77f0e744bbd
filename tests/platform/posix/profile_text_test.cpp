#include "platform/posix/profile_text.h"

#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace qx::profile {
namespace {

using namespace std::string_literals;

TEST(ProfileText, KeepsTheLineEndsOfTheFile)
{
    struct Case {
        std::string before, after;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"[s]\na=1\n[t]\n", "[s]\na=1\nk=v\n[t]\n"},
             {"[s]\na=1", "[s]\na=1\nk=v\n"},
             {"[s]\ra=1\r[t]\r", "[s]\ra=1\rk=v\r\n[t]\r"},
             {"[s]\r\n\r\na=1\r\n\r\n\r\n[t]\r\n", "[s]\r\n\r\na=1\r\nk=v\r\n\r\n\r\n[t]\r\n"},
             {"[t]\na=1", "[t]\na=1\n[s]\nk=v\n"},
             {"\xEF\xBB\xBF[s]\r\n", "\xEF\xBB\xBF[s]\r\nk=v\r\n"},
             {"\xEF\xBB\xBF", "\xEF\xBB\xBF[s]\r\nk=v\r\n"},
         }) {
        std::string text = c.before;
        SetValue(text, "s", "k", "v");
        EXPECT_EQ(text, c.after) << testing::PrintToString(c.before);
    }
}

TEST(ProfileText, KeepsTheSpellingOfALine)
{
    std::string text = "[S]\r\n\t Key = old value \t\r\nnext=1\r\n";
    SetValue(text, "s", "KEY", "new");
    EXPECT_EQ(text, "[S]\r\n\t Key = new\r\nnext=1\r\n");
}

TEST(ProfileText, DeletesWhatBelongsToASection)
{
    std::string text = "; top\r\n[a]\r\n; of a\r\nk=1\r\n\r\n[b]\r\n; of b\r\nk=2";
    DeleteSection(text, "A");
    EXPECT_EQ(text, "; top\r\n[b]\r\n; of b\r\nk=2");
    DeleteSection(text, "b");
    EXPECT_EQ(text, "; top\r\n");
}

TEST(ProfileText, NulEndsNamesAndValues)
{
    const std::string text = "[s\0x]\r\nk\0y=v\0w\r\n\0\r\nl=2\0\r\n"s;
    EXPECT_EQ(FindValue(text, "s", "k"), "v");
    EXPECT_EQ(FindValue(text, "s", "l"), "2");
    EXPECT_EQ(KeyNames(text, "s"), "k\0l\0"s);
    EXPECT_EQ(SectionLines(text, "s"), "k=v\0\0l=2\0"s);
}

std::string RandomText(std::mt19937& random)
{
    const std::string parts[] = {
        "[",     "]",       "=", ";",  "\n",        "\n",  "\r\n", "\r",   " ", "\t",
        "[s]\n", "[T]\r\n", "k", "K=", "other=1\n", "\0"s, "\x1A", "\xE9", "\""};
    std::string text;
    for (auto i = random() % 30; i > 0; --i)
        text += parts[random() % std::size(parts)];
    return text;
}

// The lists of all sections but "s", and of "s" all lines but those of "k".
std::string Unconcerned(const std::string& text)
{
    std::string result, list = SectionNames(text);
    for (std::size_t i = 0; i < list.size(); i += std::strlen(&list[i]) + 1)
        if (const std::string section = &list[i]; section != "s" && section != "S")
            result += "[" + section + "]" + SectionLines(text, section);
    const std::string lines = SectionLines(text, "s");
    for (std::size_t i = 0; i < lines.size(); i += std::strlen(&lines[i]) + 1)
        if (const std::string line = &lines[i]; !line.starts_with("k") && !line.starts_with("K"))
            result += line + "\n";
    return result;
}

TEST(ProfileText, ChangesConcernNothingElse)
{
    std::mt19937 random(1);
    for (int run = 0; run < 20000; ++run) {
        const std::string before = RandomText(random);
        std::string text = before;
        SetValue(text, "s", "k", "value");
        EXPECT_EQ(FindValue(text, "s", "k"), "value") << testing::PrintToString(before);
        EXPECT_EQ(Unconcerned(text), Unconcerned(before)) << testing::PrintToString(before);
        for (int i = 0; FindValue(text, "s", "k") && i < 40; ++i)
            DeleteKey(text, "s", "k");
        EXPECT_EQ(FindValue(text, "s", "k"), std::nullopt) << testing::PrintToString(before);
        EXPECT_EQ(Unconcerned(text), Unconcerned(before)) << testing::PrintToString(before);
        ASSERT_FALSE(HasFailure());
    }
}

TEST(ProfileText, ManyMegabytes)
{
    std::string text = "[s]\r\n";
    for (int i = 0; i < 300000; ++i)
        text += "key" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
    const std::string before = text;
    SetValue(text, "s", "KEY299999", "changed");
    EXPECT_EQ(FindValue(text, "s", "key299999"), "changed");
    SetValue(text, "s", "key299999", "299999");
    EXPECT_EQ(text, before);
    EXPECT_EQ(KeyNames(text, "s").substr(0, 10), "key0\0key1\0"s);
}

}  // namespace
}  // namespace qx::profile
