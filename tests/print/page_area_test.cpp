#include "print/page_area.h"

#include "print/cancel_place.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>

#include <climits>
#include <gtest/gtest.h>

using namespace qx;

TEST(Margins, AreReadAsFarAsTheyAreGood)
{
    const char* const cases[][2] = {{"1,2,3,4", "1,2,3,4"},
                                    {" 1,\t+2, -3,4 inch", "1,2,-3,4"},
                                    {"", "150,150,150,150"},
                                    {"1,2", "1,2,150,150"},
                                    {"1 ,2,3,4", "1,150,150,150"},
                                    {"1,+-2", "1,150,150,150"},
                                    {"99999999999,-99999999999", "2147483647,-2147483648,150,150"}};
    for (const auto& [text, read] : cases)
        EXPECT_EQ(read, MarginsText(ParseMargins(text))) << text;
}

TEST(Margins, AreKeptPerKindOfReport)
{
    test::TemporaryFolder folder;
    ChangeINIFileName(folder.Path("kvl.ini").c_str());
    SaveMargins("Pumps", {.left = 1, .top = 2, .right = 3, .bottom = 4});
    EXPECT_EQ("[KVL PRINT]\r\nMargins-Pumps=1,3,2,4\r\n", folder.Read("kvl.ini"));
    EXPECT_EQ("1,3,2,4", MarginsText(LoadMargins("Pumps")));
    EXPECT_EQ("150,150,150,150", MarginsText(LoadMargins("DEF")));
    ChangeINIFileName("");
}

TEST(Margins, ComeBackFromMetricUnits)
{
    EXPECT_EQ(381, ToHundredthsOfMm(150));
    EXPECT_EQ(394, FromHundredthsOfMm(1000));
    for (int margin = 0; margin < 20000; ++margin)
        ASSERT_EQ(margin, FromHundredthsOfMm(ToHundredthsOfMm(margin)));
    EXPECT_EQ(INT_MAX, ToHundredthsOfMm(INT_MAX));
}

TEST(CancelWindow, StandsOverItsOwnersTop)
{
    const auto place = [](const RECT& client, int width) {
        const POINT at = CancelWindowPlace(client, width);
        return std::to_string(at.x) + ',' + std::to_string(at.y);
    };
    EXPECT_EQ("200,119", place({100, 100, 500, 499}, 200));
    EXPECT_EQ("0,100", place({100, 100, 200, 110}, 400));
    EXPECT_EQ("0,0", place({-32000, -32000, -32000, -32000}, 400));  // a minimised owner
}

TEST(PrintableArea, IsThePageWithoutItsMargins)
{
    // A4 at 300 dpi with unprintable edges of 40 and 30, 50 and 60
    const PageDevice a4{2480, 3508, 40, 50, 2410, 3398, 300, 300};
    struct {
        PageDevice device;
        Margins margins;
        int lineHeight;
        PageArea area;
    } const cases[] = {
        {a4, {200, 300, 400, 500}, 50, {20, 40, 2319, 64}},
        {a4, {0, 0, 0, 0}, 50, {0, 0, 2409, 66}},              // inside the edges
        {a4, {205, 215, 175, 265}, 1, {22, 14, 2387, 3363}},   // halves go to the even number
        {a4, {0, 0, 0, 0}, 3398, {0, 0, 2409, 0}},             // a line as high as the page
        {a4, {0, 0, 0, 0}, 3399, {0, 0, 2409, -1}},            // and higher
        {a4, {0, 9000, 9000, 9000}, 50, {0, 2650, -261, -1}},  // no page is left
        {{}, {150, 150, 150, 150}, 0, {0, 0, -1, -1}},         // no resolution
        {{0, 0, 0, 0, 0, 0, INT_MAX, 1}, {INT_MAX, 0, 1, 1}, 1, {INT_MAX, 0, -2147485, -1}}};
    for (const auto& [device, margins, lineHeight, expected] : cases) {
        const PageArea area = PrintableArea(device, margins, lineHeight);
        EXPECT_EQ(std::tuple(expected.left, expected.top, expected.right, expected.lastLine),
                  std::tuple(area.left, area.top, area.right, area.lastLine))
            << MarginsText(margins) << ' ' << lineHeight;
    }
}
