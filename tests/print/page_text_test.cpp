#include "print/page_text.h"

#include <climits>
#include <gtest/gtest.h>

using namespace qx;

namespace {

struct FixedWidth final : TextMeasure {
    int Width(std::string_view text) override
    {
        measured += text.size();
        return static_cast<int>(text.size()) * 10;
    }
    std::size_t measured = 0;  // characters
};

struct Proportional final : TextMeasure {
    int Width(std::string_view text) override
    {
        int width = 0;
        for (const char c : text)
            width += c == 'W' ? 20 : c == '.' || c == ' ' ? 5 : 10;
        return width;
    }
};

// "x,y text" of each line, and the result.
std::string Shown(const Paragraph& paragraph)
{
    std::string shown;
    for (const auto& [x, y, text] : paragraph.lines)
        shown += std::to_string(x) + ',' + std::to_string(y) + ' ' + std::string(text) + '|';
    return shown + std::to_string(paragraph.result);
}

}  // namespace

TEST(Paragraph, IsCutAtSpaces)
{
    FixedWidth measure;  // five characters go into the column
    const char* const cases[][2] = {{"", "0,0 |1"},
                                    {"ab cd ef", "0,0 ab cd|0,1 ef|2"},
                                    {"abcd ef", "0,0 abcd|0,1 ef|2"},
                                    {"ab  cd", "0,0 ab |0,1 cd|2"},
                                    {" abcde ", "0,0 |0,1 abcde|0,2 |3"},
                                    {"ab cdefgh i", "0,0 ab|4"},
                                    {"abcd efgh ijkl m", "0,0 abcd|0,1 efgh|0,2 ijkl|4"},
                                    {"abcd efgh ijklm ", "0,0 abcd|0,1 efgh|0,2 ijklm|3"}};
    for (const auto& [text, lines] : cases)
        EXPECT_EQ(lines, Shown(LeftLines(measure, 0, 50, 0, 1, text))) << '"' << text << '"';
}

TEST(Paragraph, HasSoManyLinesAndCharacters)
{
    FixedWidth measure;
    const std::string nine = "1 2 3 4 5 6 7 8 9", word(254, 'w');
    EXPECT_EQ(9, CenterLines(measure, 0, 20, 0, 1, nine).result);
    EXPECT_EQ(10, CenterLines(measure, 0, 20, 0, 1, nine + " 10").result);
    EXPECT_EQ(9u, CenterLines(measure, 0, 20, 0, 1, nine + " 10 11 12").lines.size());
    EXPECT_EQ(2, LeftLines(measure, 0, 100000, 0, 1, word + " w").result);
    EXPECT_EQ(4, LeftLines(measure, 0, 100000, 0, 1, word + "w").result);
}

TEST(Paragraph, StandsAtRoundedPlaces)
{
    Proportional measure;
    const char* const text = "ab WW abc";  // widths 20, 40, 30
    EXPECT_EQ("115,0 ab|105,2 WW|110,5 abc|3", Shown(CenterLines(measure, 100, 151, 0, 2, text)));
    EXPECT_EQ("9,-2 ab|9,4 WW|9,8 abc|3", Shown(LeftLines(measure, 9, 49, -1.5F, 5, text)));
    EXPECT_EQ("0,2147483647 a|1", Shown(LeftLines(measure, 0, 10, 1e30F, 10, "a")));
    EXPECT_EQ("10", Shown(CenterLines(measure, INT_MAX, INT_MIN, 0, INT_MAX, "a b")));
}

TEST(Paragraph, MeasuresNoWordMoreThanTwice)
{
    FixedWidth measure;
    std::string text;
    for (int n = 0; n < 100000; ++n)
        text += "w ";
    EXPECT_EQ(9u, CenterLines(measure, 0, 200000, 0, 1, text).lines.size());
    EXPECT_LE(measure.measured, 2 * text.size());
}

TEST(ClippedText, EndsInDots)
{
    FixedWidth f;    // dots of 10, counted as 8
    Proportional p;  // dots of 5, counted as 3
    struct {
        TextMeasure& measure;
        int width;
        const char *text, *clipped;
    } const cases[] = {{f, 41, "abcd", "abcd"},    {p, 81, "WWWW", "WWWW"},
                       {f, 40, "abcd", "ab.."},    {p, 80, "WWWW", "WWW...."},
                       {f, 49, "abcdef", "abc.."}, {p, 67, "WWWW", "WWW."},
                       {f, 48, "abcdef", "abc."},  {p, 66, "WWWW", "WW....."},
                       {f, 8, "abcd", ""},         {f, INT_MIN, "", ""}};
    for (const auto& c : cases)
        EXPECT_EQ(c.clipped, ClipText(c.measure, c.width, c.text)) << c.text << ' ' << c.width;
    const std::string path(10000, 'w');
    f.measured = 0;
    EXPECT_TRUE(ClipText(f, 50000, path) == path.substr(0, 4998) + "..");
    EXPECT_LT(f.measured, 40 * path.size());
}

TEST(Fields, AreClippedToTheirColumns)
{
    FixedWidth measure;
    const std::string most(248, 'w'), tooLong(249, 'w');
    const std::vector<int> stops{50, 80, 130}, descending{50, 20}, none;
    struct {
        const std::vector<int>& stops;
        std::string text, line;
    } const cases[] = {{stops, "", ""},
                       {stops, "abcdef\tabc\tabcdef", "abc..\ta..\tabc.."},
                       {stops, "a\tb\tc\tabc\td", "a\tb\tc\tabc\td"},
                       {stops, "a\tb\tc\tabc\tdef", "a\tb\tc\tabc\t.."},
                       {stops, "\t\t\t\t\t\t\t\t\t\t", "\t\t\t\t\t\t\t.."},
                       {descending, "a\tb\tc", "a\t\tc"},
                       {none, "a\tb", "a\tb"},
                       {stops, most, "www.."},
                       {stops, tooLong, tooLong}};
    for (const auto& c : cases)
        EXPECT_EQ(c.line, ClipFields(measure, c.text, c.stops, 190)) << c.text;
}

TEST(PlaceOnPage, FollowsTheTextsWidth)
{
    FixedWidth measure;
    EXPECT_EQ(35, CenterX(measure, 0, 101, "abc"));
    EXPECT_EQ(5, CenterX(measure, 10, 30, "abc"));
    EXPECT_EQ(10, CenterX(measure, 10, 30, "abcd"));
    EXPECT_EQ(-50, CenterX(measure, -50, -10, "a"));
    EXPECT_EQ(70, LeftOfColon(measure, 100, "ab: c:"));
    EXPECT_EQ(130, ColonAt(measure, 100, "ab: c:"));
    EXPECT_EQ(130, ColonAt(measure, 100, "abc"));
    EXPECT_EQ(INT_MIN, LeftOfColon(measure, INT_MIN, ":"));
    const HorizontalLine even = UnderlineOf(measure, 7, 0, 2, "abc"),
                         odd = UnderlineOf(measure, 7, 1, 2, "abc");
    EXPECT_EQ(std::tuple(7, 37, 2, 4), std::tuple(even.from, even.to, even.y, odd.y));
}
