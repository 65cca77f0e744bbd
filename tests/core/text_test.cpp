#include "doubles/path_search_double.h"
#include "support/guarded_buffer.h"

#include <qxutility/core/text.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <gmock/gmock.h>

using qx::test::GuardedBuffer;
using qx::test::PathSearchDouble;
using testing::ElementsAre;
using testing::IsEmpty;

// What `clean` makes of a text in a buffer that ends right after it.
static std::string InPlace(char* (*clean)(char*), const std::string& text)
{
    GuardedBuffer buffer(text.size() + 1);
    buffer = text.c_str();
    EXPECT_EQ(buffer.data(), clean(buffer));
    return buffer.data();
}

TEST(Sanitize, ReplacesWhatFileNamesCannotHold)
{
    const std::string all = "\x01\x1f<>:/\\\"|*?&' ~a\x7f\x80\xff";
    EXPECT_EQ("______________~a\x7f\x80\xff", InPlace(Sanitize, all));
    EXPECT_EQ("___________&' ~a\x7f\x80\xff", InPlace(SanitizeNoAsp, all));
    EXPECT_EQ("a_b_c_d_e", InPlace(Sanitize, "a b&c'd:e"));
    EXPECT_EQ("a b&c'd_e", InPlace(SanitizeNoAsp, "a b&c'd:e"));
    EXPECT_EQ("", InPlace(Sanitize, ""));
}

TEST(PurifyText, EscapesAllButLettersDigitsAndPoints)
{
    static const std::array<std::array<const char*, 2>, 6> kCases = {{
        {"a b.c", "a%20b.c"},
        {"Zz09", "Zz09"},
        {"", ""},
        {"\x01\t\r\n%\x7f", "%01%09%0d%0a%25%7f"},
        {"\xe9", "%ff"},
        {"a\x80z\xff", "a%ffz%ff"},
    }};
    for (const auto& [text, expected] : kCases) {
        GuardedBuffer buffer(std::strlen(expected) + 1);
        PurifyText(text, buffer);
        EXPECT_STREQ(expected, buffer) << text;
    }
}

TEST(PurifyText, EscapesExactlyTheGivenSet)
{
    GuardedBuffer buffer(18);
    PurifyText("a\tb\nc d\xe9\xea", buffer, "\t\n\xe9");
    EXPECT_STREQ("a%09b%0ac d%ff\xea", buffer);
    PurifyText("a b", buffer, "");
    EXPECT_STREQ("a b", buffer);
}

TEST(UnPurifyText, TurnsEscapesBackAndKeepsOtherPercentSigns)
{
    static const std::array<std::array<const char*, 2>, 7> kCases = {{
        {"a%20b%zz", "a b%zz"},
        {"%41%4a%4A%e9", "AJJ\xe9"},
        {"", ""},
        {"%", "%"},
        {"%2", "%2"},
        {"%%20", "% "},
        {"%2%20", "%2 "},
    }};
    for (const auto& [text, expected] : kCases) {
        GuardedBuffer in(std::strlen(text) + 1), out(std::strlen(expected) + 1);
        in = text;
        UnPurifyText(in, out);
        EXPECT_STREQ(expected, out) << text;
        UnPurifyText(in, in);
        EXPECT_STREQ(expected, in) << text << " in place";
    }
    GuardedBuffer zero(4);
    UnPurifyText("a%00b", zero);
    EXPECT_EQ(std::string("a\0b\0", 4), std::string(zero, 4));
}

TEST(CleanString, GoesAndComesBackAsPairs)
{
    static const std::array<std::array<const char*, 3>, 4> kCases = {{
        {"x\r\ny", "x||y", "x\r\ny"},
        {"x\ny\rz", "x|y|z", "x|y|z"},
        {"|||", "|||", "\r\n|"},
        {"", "", ""},
    }};
    for (const auto& [text, cleaned, restored] : kCases) {
        EXPECT_EQ(cleaned, InPlace(nCleanString, text)) << text;
        EXPECT_EQ(restored, InPlace(nRestoreString, cleaned)) << text;
    }
}

TEST(UnquoteString, TakesOffAQuoteAtEitherEnd)
{
    static const std::array<std::array<const char*, 2>, 7> kCases = {{
        {"\"abc\"", "abc"},
        {"\"abc", "abc"},
        {"a\"c", "a\"c"},
        {"\"\"abc\"\"", "\"abc\""},
        {"\"\"", ""},
        {"\"", ""},
        {"", ""},
    }};
    for (const auto& [text, expected] : kCases) {
        GuardedBuffer buffer(std::strlen(text) + 1);
        buffer = text;
        EXPECT_EQ(buffer + (*text == '"'), UnquoteString(buffer)) << text;
        EXPECT_STREQ(expected, buffer + (*text == '"')) << text;
    }
    EXPECT_EQ(nullptr, UnquoteString(nullptr));
    char before[] = "\"\0";
    EXPECT_STREQ("", UnquoteString(before + 1));
    EXPECT_EQ('"', before[0]) << "the byte before an empty text";
}

TEST(AddAnotherAmpersand, DoublesEachRunBetweenTexts)
{
    const std::string longPart(2000, 'x');
    const std::array<std::array<std::string, 2>, 7> cases = {{
        {"A&B", "A&&B"},
        {"A&&&&&B", "A&&B"},
        {"&File", "File"},
        {"Save&", "Save"},
        {"&&", ""},
        {"", ""},
        {longPart + "&" + longPart, longPart + "&&" + longPart},
    }};
    for (const auto& [text, expected] : cases) {
        GuardedBuffer buffer(std::max(text.size(), expected.size()) + 1);
        buffer = text.c_str();
        AddAnotherAmpersand(buffer);
        EXPECT_EQ(expected, buffer.data()) << text;
    }
}

TEST(ASPit, EscapesIntoTheSizeGiven)
{
    struct Case {
        const char* text;
        unsigned size;
        const char* expected;
    };
    static const Case kCases[] = {
        {"a b", 64, "a%20b"}, {"a\tb", 64, "a% 9b"}, {"\xe9.%", 64, "%e9%2e%25"},
        {"abcdef", 4, "abc"}, {"a b", 6, "a%20b"},   {"a b", 5, "a%20"},
        {"a b", 4, "ab"},  // the escape no longer fits, the letter does
        {" ", 4, "%20"},      {" ", 3, ""},          {"abc", 2, "a"},
        {"abc", 1, ""},       {"", 1, ""},
    };
    for (const Case& each : kCases) {
        GuardedBuffer buffer(each.size);
        EXPECT_EQ(buffer.data(), ASPit(each.text, buffer, each.size));
        EXPECT_STREQ(each.expected, buffer) << each.text << " into " << each.size;
    }
    GuardedBuffer nothing(0);
    EXPECT_EQ(nothing.data(), ASPit("abc", nothing, 0));
}

TEST(Rstrncpy, CutsAndTerminatesWithinTheSize)
{
    GuardedBuffer source(6);
    source = "hello";
    GuardedBuffer nothing(0);
    EXPECT_EQ(nothing.data(), rstrncpy(nothing, source, 0));
    for (unsigned size = 1; size <= 8; ++size) {
        GuardedBuffer buffer(size);
        EXPECT_EQ(buffer.data(), rstrncpy(buffer, source, size));
        EXPECT_EQ(std::string("hello").substr(0, size - 1), buffer.data()) << size;
    }
}

TEST(Path, IsTheTextBeforeTheLastBackslash)
{
    static const std::array<std::array<const char*, 2>, 6> kCases = {{
        {"C:\\dir\\file.txt", "C:\\dir"},
        {"C:\\dir\\", "C:\\dir"},
        {"\\file", ""},
        {"\\", ""},
        {"file.txt", "f"},
        {"", ""},
    }};
    for (const auto& [name, folder] : kCases)
        EXPECT_STREQ(folder, Path(name)) << name;
}

TEST(Path, KeepsLongNamesInItsBuffer)
{
    const std::string folder(300, 'd');
    EXPECT_STREQ("d", Path(folder.c_str()));
    EXPECT_EQ(folder.substr(0, 250), Path((folder.substr(0, 250) + "\\" + folder).c_str()));
    EXPECT_STREQ("a", Path(Path("a\\b\\c")));
}

TEST(SplitName, ProgramIsTheLongestPartThatIsFound)
{
    PathSearchDouble search;
    search.programs = {{"C:\\My", "found"}, {"C:\\My Tools\\pump", "found"}, {"calc", "found"}};
    static const std::array<std::array<const char*, 3>, 5> kCases = {{
        {"C:\\My Tools\\pump -v 1", "C:\\My Tools\\pump", " -v 1"},
        {"C:\\My Toys\\pump", "C:\\My", " Toys\\pump"},
        {"calc", "calc", ""},
        {"calc  x", "calc", "  x"},
        {"no such thing", "no such thing", ""},
    }};
    for (const auto& [line, program, arguments] : kCases) {
        GuardedBuffer first(std::strlen(program) + 1), second(std::strlen(arguments) + 1);
        SplitName(line, first, second);
        EXPECT_STREQ(program, first) << line;
        EXPECT_STREQ(arguments, second) << line;
        SplitName(line, nullptr, nullptr);
    }
}

TEST(SplitName, LooksUpShorterAndShorterParts)
{
    const PathSearchDouble search;
    SplitName("a b  c", nullptr, nullptr);
    EXPECT_THAT(search.asked, ElementsAre("a b  c|.exe", "a b |.exe", "a b|.exe", "a|.exe"));
}

TEST(SplitName, LongLinesStayWithinAPathBuffer)
{
    PathSearchDouble search;
    search.programs = {{"calc", "found"}};
    const std::string arguments = " " + std::string(5000, 'x');
    GuardedBuffer program(260), rest(arguments.size() + 1);
    SplitName(("calc" + arguments).c_str(), program, rest);
    EXPECT_STREQ("calc", program);
    EXPECT_EQ(arguments, rest.data());

    const std::string unknown(300, 'y');
    SplitName(unknown.c_str(), program, rest);
    EXPECT_EQ(unknown.substr(0, 259), program.data());
    EXPECT_EQ(unknown.substr(259), rest.data());
}

TEST(Tokenize, LeavesOutEmptyParts)
{
    EXPECT_THAT(tokenize(",,a,,b,", ","), ElementsAre("a", "b"));
    EXPECT_THAT(tokenize("a b\tc", "\t "), ElementsAre("a", "b", "c"));
    EXPECT_THAT(tokenize("abc", ""), ElementsAre("abc"));
    EXPECT_THAT(tokenize(std::string("a\0b", 3), std::string(1, '\0')), ElementsAre("a", "b"));
    EXPECT_THAT(tokenize("", ","), IsEmpty());
    EXPECT_THAT(tokenize(",,", ","), IsEmpty());
}
