// Buttons that are drawn from an icon and a caption.
#include "windows/panel_fixture.h"

#include <gtest/gtest.h>

using namespace qx::test;

namespace {

// How many points of an area have a colour.
int Count(const Panel& panel, const RECT& area, COLORREF color)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y)
        for (int x = area.left; x < area.right; ++x)
            count += panel.Pixel(x, y) == color;
    return count;
}

TEST(QuickImage, DrawsIconCaptionAndTheStatesEdges)
{
    const Pictures replaced;
    const Panel panel(
        Button(0, 0, Quick("<icon>9</icon><text>Start</text>") + replaced.Three(), 140, 50) +
        Button(0, 60, Quick("<icon size=\"small\" x=\"4\" y=\"5\">9</icon>", "border=\"1\""), 140,
               50));
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), text = ::GetSysColor(COLOR_BTNTEXT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW), light = ::GetSysColor(COLOR_3DLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_3DSHADOW);
    EXPECT_TRUE(panel.Becomes(kBlue, 8, 9)) << "the icon, 8 from the left and in the middle";
    EXPECT_EQ(kBlue, panel.Pixel(39, 40));
    EXPECT_EQ(face, panel.Pixel(40, 40));
    EXPECT_LT(20, Count(panel, {50, 10, 140, 40}, text)) << "the caption";
    EXPECT_EQ(0, Count(panel, {40, 0, 50, 50}, text)) << "which begins at 50";
    EXPECT_EQ(face, panel.Pixel(139, 25)) << "no border";
    EXPECT_EQ(kBlue, panel.Pixel(4, 65)) << "small, where it is wanted";
    EXPECT_EQ(face, panel.Pixel(20, 81));
    EXPECT_EQ(dark, panel.Pixel(139, 100)) << "border";
    panel.Send(WM_MOUSEMOVE, 5, 5);
    EXPECT_EQ(light, panel.Pixel(0, 25)) << "hover: raised";
    EXPECT_EQ(dark, panel.Pixel(139, 25));
    EXPECT_EQ(kBlue, panel.Pixel(8, 9));
    panel.Send(WM_LBUTTONDOWN, 5, 5);
    EXPECT_EQ(shadow, panel.Pixel(0, 25)) << "pressed: sunken";
    EXPECT_EQ(face, panel.Pixel(9, 10)) << "moved by 2";
    EXPECT_EQ(kBlue, panel.Pixel(10, 11));
    EXPECT_EQ(kBlue, panel.Pixel(41, 42));
}

TEST(QuickImage, CaptionAloneIsCentredInTheRightHalf)
{
    const Panel panel(Button(0, 0, Quick("<text>ii</text>"), 200, 40));
    const COLORREF text = ::GetSysColor(COLOR_BTNTEXT);
    EXPECT_TRUE(PumpUntil([&] { return Count(panel, {140, 0, 160, 40}, text) > 5; }));
    EXPECT_EQ(0, Count(panel, {0, 0, 140, 40}, text));
    EXPECT_EQ(0, Count(panel, {160, 0, 200, 40}, text));
}

TEST(QuickImage, AddressesAndFilesHaveAnIcon)
{
    for (const char* source : {"www.example.com", "HTTP://example.com", "mailto:a@example.com",
                               "no_such_file.txt", "no extension", "notepad"}) {
        const Panel panel(Button(0, 0, Quick(std::string("<icon>") + source + "</icon>"), 40, 40));
        ::UpdateWindow(panel.window);
        EXPECT_GT(1500, Count(panel, {0, 0, 40, 40}, ::GetSysColor(COLOR_BTNFACE))) << source;
    }
}

}  // namespace
