// Panels of real picture buttons under the real mouse.
#include "windows/panel_fixture.h"

#include <gmock/gmock.h>

using namespace qx::test;

namespace {

TEST(ButtonPanel, IsInTheMiddleOfItsParent)
{
    const Panel panel(Button(10, 20, "") + Button(60, 0, ""));
    RECT client;
    ::GetClientRect(panel.parent, &client);
    const RECT area = AreaOf(panel.window);
    EXPECT_EQ(client.right / 2 - 50, area.left);
    EXPECT_EQ(client.bottom / 2 - 25, area.top);
    EXPECT_EQ(area.left + 100, area.right);
    EXPECT_EQ(area.top + 50, area.bottom);
    EXPECT_TRUE(::IsWindowVisible(panel.window));
    panel.layout->Show(false);
    EXPECT_FALSE(::IsWindowVisible(panel.window));
    panel.layout->Center({0, 0, 90, 40});
    EXPECT_EQ(90, AreaOf(panel.window).right);
}

TEST(ButtonPanel, ShowsThePictureOfEachState)
{
    const Pictures pictures;
    Panel panel(Button(0, 0, pictures.Three() + Command(7)) + Button(60, 0, ""));
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5));
    EXPECT_TRUE(panel.Becomes(kRed, 39, 29));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(40, 29)) << "cut to the button";
    MoveMouse(panel.window, 10, 10);
    EXPECT_TRUE(panel.Becomes(kGreen, 5, 5)) << "hover";
    MouseButton(true);
    EXPECT_TRUE(panel.Becomes(kBlue, 5, 5)) << "pressed";
    MoveMouse(panel.window, 70, 10);
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5)) << "moved away";
    MoveMouse(panel.window, 10, 10);
    EXPECT_TRUE(panel.Becomes(kBlue, 5, 5)) << "and back";
    MouseButton(false);
    EXPECT_TRUE(PumpUntil([&] { return !panel.commands.empty(); }));
    EXPECT_THAT(panel.Commands(), testing::ElementsAre(7U));
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5)) << "released";
    MoveMouse(panel.window, 11, 10);
    EXPECT_TRUE(panel.Becomes(kGreen, 5, 5));
    MoveMouse(panel.parent, 1, 1);
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5)) << "left the panel";
}

TEST(ButtonPanel, LaterButtonsLieAboveAndEdgesBelongToThem)
{
    const Pictures pictures;
    Panel panel(Button(0, 0, Command(1) + pictures.Xml("standard", "red")) +
                "<!-- x=\"0\" y=\"0\" width=\"99\" height=\"99\" -->" +
                Button(20, 0, Command(2) + pictures.Xml("standard", "blue")));
    EXPECT_TRUE(panel.Becomes(kRed, 19, 5));
    EXPECT_TRUE(panel.Becomes(kBlue, 20, 5));
    for (const int x : {19, 20, 60, 61})
        for (const UINT message : {WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP})
            panel.Send(message, x, 5);
    EXPECT_THAT(panel.Commands(), testing::ElementsAre(1U, 2U, 2U));
}

TEST(ButtonPanel, MissingPicturesFallBack)
{
    const Pictures pictures;
    std::string buttons =
        Button(0, 0, pictures.Xml("standard", "red") + pictures.Xml("pushed", "damaged")) +
        Button(50, 0, pictures.Xml("rollover", "green") + pictures.Xml("standard", "none"));
    int x = 50;
    for (const char* resource : {"70000", "-1", "55"})
        buttons += Button(x += 50, 0, Resource("", resource));
    const Panel panel(buttons);
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5));
    panel.Send(WM_MOUSEMOVE, 5, 5);
    ::RedrawWindow(panel.window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
    EXPECT_EQ(kRed, panel.Pixel(5, 5)) << "hover";
    panel.Send(WM_LBUTTONDOWN, 5, 5);
    EXPECT_EQ(kRed, panel.Pixel(5, 5)) << "pressed";
    for (; x > 0; x -= 50)
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(x + 5, 5)) << x;
    panel.Send(WM_MOUSEMOVE, 55, 5);
    EXPECT_EQ(kGreen, panel.Pixel(55, 5));
}

TEST(ButtonPanel, PicturesComeFromModulesAsData)
{
    std::string buttons;
    int x = 0;
    for (const auto& [file, id] : {std::pair{"test_pictures.dll", "7"},
                                   {"test_pictures.dll", "6"},
                                   {"", "8"},
                                   {"no_such_module.dll", "8"}})
        buttons += Button(std::exchange(x, x + 10), 0, Resource(file, id), 8, 8);
    const Panel panel(buttons);
    EXPECT_TRUE(panel.Becomes(kOrange, 4, 4));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(14, 4));
    EXPECT_EQ(kViolet, panel.Pixel(24, 4)) << "from the panel's module";
    EXPECT_EQ(kViolet, panel.Pixel(34, 4)) << "no such file";
    EXPECT_EQ(0U, ::GetEnvironmentVariableA("QX_PICTURES_RAN", nullptr, 0));
    EXPECT_EQ(nullptr, ::GetModuleHandleA("test_pictures.dll"));
}

TEST(ButtonPanel, PictureColorsFollowTheSystem)
{
    const Pictures pictures;
    const std::pair<const char*, COLORREF> cases[] = {
        {"", RGB(192, 192, 192)},
        {"ButtonColor=\"1\"", ::GetSysColor(COLOR_3DFACE)},
        {"WindowColor=\"1\"", ::GetSysColor(COLOR_WINDOW)}};
    for (const auto& [attribute, color] : cases) {
        const Panel panel(Button(0, 0, pictures.Xml("standard", "grey", attribute)));
        EXPECT_TRUE(panel.Becomes(color, 5, 5)) << attribute;
    }
}

TEST(ButtonPanel, CursorIsAHandOverAButtonWithAnAction)
{
    const Panel panel(Button(0, 0, Command(1)) + Button(50, 0, ""));
    const HCURSOR hand = ::LoadCursorA(nullptr, IDC_HAND);
    for (const int x : {10, 11})
        MoveMouse(panel.window, x, 10);
    EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == hand; }));
    for (const int x : {60, 61})
        MoveMouse(panel.window, x, 10);
    EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() != hand; }));
}

TEST(SmartButtonAlone, DrawsWhereItIsTold)
{
    const Pictures pictures;
    XMLDocument document;
    document.UseData(Button(3, 4, pictures.Three()).c_str(), -1);
    SmartButton button(::GetModuleHandleA(nullptr), nullptr);
    button.ReadXML(nullptr);
    button.ReadXML(document.FirstElement());
    const COLORREF screen = PixelOf(nullptr, 10, 10);
    button.SetState(SmartButton::pushed);
    EXPECT_EQ(screen, PixelOf(nullptr, 10, 10)) << "without a panel nowhere by itself";

    const TestWindow window("Alone");
    const HDC dc = ::GetDC(window);
    button.Draw(dc);
    ::ReleaseDC(window, dc);
    EXPECT_EQ(kBlue, PixelOf(window, 3, 4));
    EXPECT_EQ(kBlue, PixelOf(window, 42, 33));
    EXPECT_NE(kBlue, PixelOf(window, 43, 33));
    int width = 10, height = 100;
    button.CalcSize(width, height);
    EXPECT_EQ(43, width);
    EXPECT_EQ(100, height);
}

TEST(ButtonPanel, WithoutALayoutThereIsNoPanel)
{
    const TestWindow parent("Bare");
    XMLDocument document;
    document.UseData("<start><b/></start>", -1);
    for (XMLElement* element : {document.FirstElement(), static_cast<XMLElement*>(nullptr)}) {
        Layout layout(parent, parent, ::GetModuleHandleA(nullptr), element);
        layout.Show(true);
        layout.Center({0, 0, 10, 10});
        EXPECT_EQ(nullptr, ::GetWindow(parent, GW_CHILD));
    }
}

TEST(ButtonPanel, EndsInAnyOrderWithItsParentAndOthers)
{
    auto parent = std::make_unique<TestWindow>("Parent");
    XMLDocument document;
    document.UseData("<layout><b width=\"9\" height=\"9\"><command>1</command></b></layout>", -1);
    std::unique_ptr<Layout> layouts[4];
    for (auto& layout : layouts)
        layout = std::make_unique<Layout>(*parent, *parent, ::GetModuleHandleA(nullptr), &document);
    ::DestroyWindow(::GetDlgItem(*parent, 5000));
    layouts[2].reset();
    layouts[0].reset();
    parent.reset();
    for (const auto& layout : {layouts[1].get(), layouts[3].get()}) {
        layout->Show(true);
        layout->Center({0, 0, 10, 10});
    }
}

TEST(ButtonPanel, ClassIsTakenAwayByWhoRegisteredIt)
{
    WNDCLASSA info;
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    ::UnregisterClassA("BtnLayout", module);
    {
        const Panel alone("");
        EXPECT_TRUE(::GetClassInfoA(module, "BtnLayout", &info));
    }
    EXPECT_FALSE(::GetClassInfoA(module, "BtnLayout", &info));
}

TEST(ButtonPanel, TakesAnyDescription)
{
    const std::string longText(100'000, 'W');
    for (const std::string number : {"2147483647", "-2147483648", "99999999999999", "x", ""}) {
        const std::string place = " x=\"" + number + "\" y=\"" + number + "\"";
        const std::string content = Quick("<icon" + place + ">9</icon><text size=\"" + number +
                                          "\"" + place + ">" + longText + "</text>") +
                                    "<command>" + number + "</command><link>" + longText +
                                    "</link>";
        const Panel panel(Button(0, 0, content) + "<b width=\"50\" height=\"20\"" + place + ">" +
                          content + "</b><b width=\"" + number + "\" height=\"" + number + "\">" +
                          content + "</b>");
        ::RedrawWindow(panel.window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        panel.Send(WM_MOUSEMOVE, 5, 5);
        panel.Send(WM_MOUSELEAVE, 0, 0);
        EXPECT_TRUE(::IsWindow(panel.window)) << number;
    }
}

}  // namespace
