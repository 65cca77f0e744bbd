// Panels of real picture buttons under the real mouse.
#include "support/temporary_folder.h"
#include "support/win32_screen.h"

#include <qxutility/formats/xml_document.h>
#include <qxutility/ui/button_panel.h>

#include <array>
#include <gmock/gmock.h>
#include <memory>

using namespace qx::test;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kGreen = RGB(0, 255, 0), kBlue = RGB(0, 0, 255);
constexpr COLORREF kOrange = RGB(255, 128, 0), kViolet = RGB(128, 0, 255);

void Append(std::string& bytes, std::uint32_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> 8 * i);
}

// A bitmap file of one colour. With a palette its first entry is the colour.
std::string Bitmap(COLORREF color, std::uint32_t width, std::uint32_t height, bool palette = false)
{
    const std::uint32_t bits = palette ? 8 : 24, stride = (width * bits / 8 + 3) / 4 * 4;
    const std::uint32_t header = 54 + (palette ? 4 : 0);
    std::string bytes = "BM";
    for (const std::uint32_t value : {header + stride * height, 0U, header, 40U, width, height})
        Append(bytes, value, 4);
    Append(bytes, 1, 2);
    Append(bytes, bits, 2);
    for (const std::uint32_t value : {0U, 0U, 0U, 0U, palette ? 1U : 0U, 0U})
        Append(bytes, value, 4);
    std::string pixel{static_cast<char>(GetBValue(color)), static_cast<char>(GetGValue(color)),
                      static_cast<char>(GetRValue(color))};
    if (palette) {
        bytes += pixel + '\0';
        pixel = '\0';
    }
    for (std::uint32_t y = 0; y < height; ++y) {
        std::string row;
        while (row.size() < width * bits / 8)
            row += pixel;
        row.resize(stride);
        bytes += row;
    }
    return bytes;
}

// Files of one colour each, large enough for the buttons of the tests.
class Pictures {
  public:
    Pictures()
    {
        m_folder.Write("red.bmp", Bitmap(kRed, 64, 64));
        m_folder.Write("green.bmp", Bitmap(kGreen, 64, 64));
        m_folder.Write("blue.bmp", Bitmap(kBlue, 64, 64));
        m_folder.Write("grey.bmp", Bitmap(RGB(192, 192, 192), 64, 64, true));
        m_folder.Write("damaged.bmp", Bitmap(kRed, 64, 64).substr(0, 20));
    }
    // A picture element, with attributes.
    std::string Xml(const std::string& state, const std::string& file,
                    const std::string& attributes = "") const
    {
        return "<" + state + " " + attributes + "><filename>" + m_folder.Path(file) +
               "</filename></" + state + ">";
    }
    // Red, green while the mouse is over it, blue while it is pressed.
    std::string Three() const
    {
        return Xml("standard", "red") + Xml("rollover", "green") + Xml("pushed", "blue");
    }

  private:
    TemporaryFolder m_folder;
};

std::string Button(int x, int y, const std::string& content, int width = 40, int height = 30)
{
    return "<b x=\"" + std::to_string(x) + "\" y=\"" + std::to_string(y) + "\" width=\"" +
           std::to_string(width) + "\" height=\"" + std::to_string(height) + "\">" + content +
           "</b>";
}

// A window with a panel of the buttons; it gets the commands as well.
struct Panel {
    explicit Panel(const std::string& buttons) : document(std::make_unique<XMLDocument>())
    {
        ::SetForegroundWindow(parent);
        ::SetWindowLongPtrA(parent, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
        ::SetWindowLongPtrA(parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ParentProcedure));
        MoveMouse(parent, 1, 1);
        const std::string xml = "<layout>" + buttons + "</layout>";
        document->UseData(xml.data(), static_cast<int>(xml.size()));
        layout =
            std::make_unique<Layout>(parent, parent, ::GetModuleHandleA(nullptr), document.get());
        document.reset();  // not used any more
        window = ::GetDlgItem(parent, 5000);
        PumpWaiting();
    }

    COLORREF Pixel(int x, int y) const { return PixelOf(window, x, y); }
    bool Becomes(COLORREF color, int x, int y) const
    {
        return PumpUntil([=, this] { return Pixel(x, y) == color; }, 3000);
    }
    // Commands that the parent got, in order.
    std::vector<WPARAM> Commands()
    {
        PumpWaiting();
        return std::exchange(commands, {});
    }
    void Send(UINT message, int x, int y, WPARAM wParam = 0) const
    {
        ::SendMessageA(window, message, wParam, MAKELPARAM(x, y));
    }
    void Click(int fromX, int toX) const
    {
        Send(WM_MOUSEMOVE, fromX, 5);
        Send(WM_LBUTTONDOWN, fromX, 5, MK_LBUTTON);
        Send(WM_MOUSEMOVE, toX, 5, MK_LBUTTON);
        Send(WM_LBUTTONUP, toX, 5);
    }

    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* panel = reinterpret_cast<Panel*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message == WM_COMMAND)
            panel->commands.push_back(wParam);
        return ::DefWindowProcA(window, message, wParam, lParam);
    }

    std::vector<WPARAM> commands;
    TestWindow parent{"Panel"};
    std::unique_ptr<XMLDocument> document;
    std::unique_ptr<Layout> layout;
    HWND window = nullptr;
};

std::string Command(int id)
{
    return "<command>" + std::to_string(id) + "</command>";
}

TEST(ButtonPanel, IsInTheMiddleOfItsParent)
{
    const Panel panel(Button(10, 20, "") + Button(60, 0, ""));
    ASSERT_NE(nullptr, panel.window);
    char name[20];
    ::GetClassNameA(panel.window, name, sizeof name);
    EXPECT_STREQ("BtnLayout", name);
    RECT client;
    ::GetClientRect(panel.parent, &client);
    RECT area = AreaOf(panel.window);
    EXPECT_EQ(client.right / 2 - 50, area.left);
    EXPECT_EQ(client.bottom / 2 - 25, area.top);
    EXPECT_EQ(100, area.right - area.left);
    EXPECT_EQ(50, area.bottom - area.top);
    EXPECT_TRUE(::IsWindowVisible(panel.window));
    panel.layout->Show(false);
    EXPECT_FALSE(::IsWindowVisible(panel.window));
    panel.layout->Center({0, 0, 90, 40});
    area = AreaOf(panel.window);
    EXPECT_EQ(90, area.right);
    EXPECT_EQ(40, area.bottom);
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
}

TEST(ButtonPanel, HoverEndsWhenTheMouseLeavesThePanel)
{
    const Pictures pictures;
    const Panel panel(Button(0, 0, pictures.Three()));
    MoveMouse(panel.window, 10, 10);
    EXPECT_TRUE(panel.Becomes(kGreen, 5, 5));
    MoveMouse(panel.parent, 1, 1);
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5));
}

TEST(ButtonPanel, ReleaseOnAnotherButtonDoesNothing)
{
    Panel panel(Button(0, 0, Command(1)) + Button(50, 0, Command(2)) + Button(99, 0, ""));
    panel.Click(5, 60);
    panel.Click(105, 105);
    EXPECT_THAT(panel.Commands(), testing::IsEmpty());
    panel.Click(5, 6);
    panel.Click(60, 90);
    EXPECT_THAT(panel.Commands(), testing::ElementsAre(1U, 2U));
}

TEST(ButtonPanel, LaterButtonsLieAboveAndEdgesBelongToThem)
{
    const Pictures pictures;
    Panel panel(Button(0, 0, Command(1) + pictures.Xml("standard", "red")) +
                "<!-- x=\"0\" y=\"0\" width=\"99\" height=\"99\" -->" +
                Button(20, 0, Command(2) + pictures.Xml("standard", "blue")));
    EXPECT_TRUE(panel.Becomes(kRed, 19, 5));
    EXPECT_TRUE(panel.Becomes(kBlue, 20, 5));
    for (const int x : {19, 20, 59, 60, 61})
        panel.Click(x, x);
    EXPECT_THAT(panel.Commands(), testing::ElementsAre(1U, 2U, 2U, 2U));
}

TEST(ButtonPanel, MissingPicturesFallBack)
{
    const Pictures pictures;
    const Panel panel(
        Button(0, 0, pictures.Xml("standard", "red") + pictures.Xml("pushed", "damaged")) +
        Button(50, 0, pictures.Xml("rollover", "green") + pictures.Xml("standard", "none")) +
        Button(99, 0, "<standard><resource>70000</resource></standard>") +
        Button(99, 40, "<standard><resource>-1</resource></standard>") +
        Button(50, 40, "<standard><resource>55</resource></standard>"));
    EXPECT_TRUE(panel.Becomes(kRed, 5, 5));
    panel.Send(WM_MOUSEMOVE, 5, 5);
    EXPECT_EQ(kRed, panel.Pixel(5, 5)) << "hover";
    panel.Send(WM_LBUTTONDOWN, 5, 5);
    EXPECT_EQ(kRed, panel.Pixel(5, 5)) << "pressed";
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(55, 5)) << "nothing to draw";
    panel.Send(WM_MOUSEMOVE, 55, 5);
    EXPECT_EQ(kGreen, panel.Pixel(55, 5));
    for (const POINT at : {POINT{104, 5}, {104, 45}, {55, 45}})
        EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(at.x, at.y)) << at.x << " " << at.y;
}

TEST(ButtonPanel, PicturesComeFromModulesAsData)
{
    const auto resource = [](const char* file, int id) {
        return "<standard><filename>" + std::string(file) + "</filename><resource>" +
               std::to_string(id) + "</resource></standard>";
    };
    const Panel panel(Button(0, 0, resource("test_pictures.dll", 7), 8, 8) +
                      Button(10, 0, resource("test_pictures.dll", 6), 8, 8) +
                      Button(20, 0, resource("", 8), 8, 8) +
                      Button(30, 0, resource("no_such_module.dll", 8), 8, 8));
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
    const Panel panel(Button(0, 0, pictures.Xml("standard", "grey")) +
                      Button(50, 0, pictures.Xml("standard", "grey", "ButtonColor=\"1\"")) +
                      Button(99, 0, pictures.Xml("standard", "grey", "WindowColor=\"1\"")));
    EXPECT_TRUE(panel.Becomes(RGB(192, 192, 192), 5, 5));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), panel.Pixel(55, 5));
    EXPECT_EQ(::GetSysColor(COLOR_WINDOW), panel.Pixel(105, 5));
}

TEST(ButtonPanel, CursorIsAHandOverAButtonWithAnAction)
{
    const Panel panel(Button(0, 0, Command(1)) + Button(50, 0, ""));
    const HCURSOR hand = ::LoadCursorA(nullptr, IDC_HAND);
    MoveMouse(panel.window, 10, 10);
    MoveMouse(panel.window, 11, 10);
    EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == hand; }));
    MoveMouse(panel.window, 60, 10);
    MoveMouse(panel.window, 61, 10);
    const HCURSOR arrow = ::LoadCursorA(nullptr, IDC_ARROW);
    EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == arrow; }));
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
    EXPECT_EQ(kBlue, ::GetPixel(dc, 3, 4));
    EXPECT_EQ(kBlue, ::GetPixel(dc, 42, 33));
    EXPECT_NE(kBlue, ::GetPixel(dc, 43, 33));
    ::ReleaseDC(window, dc);
    int width = 10, height = 100;
    button.CalcSize(width, height);
    EXPECT_EQ(43, width);
    EXPECT_EQ(100, height);
}

// ---- Quick images

std::string Quick(const std::string& content, const std::string& attributes = "")
{
    return "<quickimage " + attributes + ">" + content + "</quickimage>";
}

// How many points of an area have a colour.
int Count(const Panel& panel, const RECT& area, COLORREF color)
{
    int count = 0;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x)
            count += panel.Pixel(x, y) == color;
    }
    return count;
}

TEST(QuickImage, DrawsIconCaptionAndTheStatesEdges)
{
    const Panel panel(Button(0, 0, Quick("<icon>9</icon><text>Start</text>"), 140, 50) +
                      Button(0, 60,
                             Quick("<icon size=\"small\" x=\"4\" y=\"5\">9</icon>", "border=\"1\""),
                             140, 50));
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE), text = ::GetSysColor(COLOR_BTNTEXT);
    const COLORREF dark = ::GetSysColor(COLOR_3DDKSHADOW), light = ::GetSysColor(COLOR_3DLIGHT);
    const COLORREF shadow = ::GetSysColor(COLOR_3DSHADOW);
    EXPECT_TRUE(panel.Becomes(kBlue, 8, 9)) << "the icon, 8 from the left and in the middle";
    EXPECT_EQ(kBlue, panel.Pixel(39, 40));
    EXPECT_EQ(face, panel.Pixel(7, 9));
    EXPECT_EQ(face, panel.Pixel(40, 40));
    EXPECT_LT(20, Count(panel, {50, 10, 140, 40}, text)) << "the caption";
    EXPECT_EQ(0, Count(panel, {40, 0, 50, 50}, text)) << "which begins at 50";
    EXPECT_EQ(face, panel.Pixel(139, 25)) << "no border";

    EXPECT_EQ(kBlue, panel.Pixel(4, 65)) << "small, where it is wanted";
    EXPECT_EQ(kBlue, panel.Pixel(19, 80));
    EXPECT_EQ(face, panel.Pixel(20, 81));
    EXPECT_EQ(dark, panel.Pixel(139, 100)) << "border";

    panel.Send(WM_MOUSEMOVE, 5, 5);
    EXPECT_EQ(light, panel.Pixel(0, 25)) << "hover: raised";
    EXPECT_EQ(dark, panel.Pixel(139, 25));
    EXPECT_EQ(kBlue, panel.Pixel(8, 9));
    panel.Send(WM_LBUTTONDOWN, 5, 5, MK_LBUTTON);
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
    std::string buttons;
    const char* const sources[] = {"www.example.com",  "HTTP://example.com", "mailto:a@example.com",
                                   "no_such_file.txt", "no extension",       "notepad"};
    int y = 0;
    for (const char* source : sources)
        buttons += Button(std::exchange(y, y + 40), 0,
                          Quick(std::string("<icon>") + source + "</icon>"), 40, 40);
    const Panel panel(buttons);
    ::UpdateWindow(panel.window);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    for (int i = 0; i < y / 40; ++i)
        EXPECT_GT(1500, Count(panel, {40 * i, 0, 40 * i + 40, 40}, face)) << sources[i];
}

TEST(QuickImage, ReplacesThePictures)
{
    const Pictures pictures;
    const Panel panel(Button(0, 0, Quick("<icon>9</icon>") + pictures.Three()));
    EXPECT_TRUE(panel.Becomes(kBlue, 20, 15));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), panel.Pixel(1, 1));
}

// ---- Life and bad input

TEST(ButtonPanel, WithoutALayoutThereIsNoPanel)
{
    const TestWindow parent("Bare");
    XMLDocument document;
    document.UseData("<start><b/></start>", -1);
    for (XMLElement* element : {static_cast<XMLElement*>(&document), document.FirstElement(),
                                static_cast<XMLElement*>(nullptr)}) {
        Layout layout(parent, parent, ::GetModuleHandleA(nullptr), element);
        layout.Show(true);
        layout.Center({0, 0, 10, 10});
        EXPECT_EQ(nullptr, ::GetWindow(parent, GW_CHILD));
    }
}

TEST(ButtonPanel, EndsInAnyOrderWithItsParentAndOthers)
{
    WNDCLASSA info;
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    {
        auto parent = std::make_unique<TestWindow>("Parent");
        XMLDocument document;
        document.UseData("<layout><b width=\"9\" height=\"9\"><command>1</command></b></layout>",
                         -1);
        std::vector<std::unique_ptr<Layout>> layouts;
        for (int i = 0; i < 4; ++i)
            layouts.push_back(std::make_unique<Layout>(*parent, *parent, module, &document));
        ::DestroyWindow(::GetDlgItem(*parent, 5000));
        layouts[2].reset();
        layouts[0].reset();
        parent.reset();
        for (const auto& layout : layouts) {
            if (layout) {
                layout->Show(true);
                layout->Center({0, 0, 10, 10});
            }
        }
    }
    {
        const Panel alone("");
        EXPECT_NE(nullptr, alone.window);
    }
    ::UnregisterClassA("BtnLayout", module);
    {
        const Panel alone("");
        EXPECT_TRUE(::GetClassInfoA(module, "BtnLayout", &info));
    }
    EXPECT_FALSE(::GetClassInfoA(module, "BtnLayout", &info)) << "taken away by who registered it";
}

TEST(ButtonPanel, TakesAnyDescription)
{
    const std::string long_text(100'000, 'W');
    const char* const numbers[] = {"2147483647", "-2147483648", "99999999999999", "x", ""};
    for (const std::string number : numbers) {
        const std::string content =
            Quick("<icon x=\"" + number + "\" y=\"" + number + "\">9</icon><text size=\"" + number +
                  "\" x=\"" + number + "\">" + long_text + "</text>") +
            "<command>" + number + "</command><link>" + long_text + "</link>";
        std::string buttons;
        for (const auto& [name, other] : {std::pair{"x", "y"}, {"width", "height"}})
            buttons += std::string("<b width=\"50\" height=\"20\" ") + name + "=\"" + number +
                       "\" " + other + "=\"" + number + "\">" + content + "</b>" + "<b " + name +
                       "=\"" + number + "\">" + content + "</b>";
        const Panel panel(Button(0, 0, content) + buttons);
        ::InvalidateRect(panel.window, nullptr, TRUE);
        ::UpdateWindow(panel.window);
        panel.Send(WM_MOUSEMOVE, 5, 5);
        panel.Send(WM_MOUSELEAVE, 0, 0);
        EXPECT_TRUE(::IsWindow(panel.window)) << number;
    }
}

TEST(ButtonPanel, LeavesNothingBehind)
{
    const Pictures pictures;
    const TestWindow parent("Rounds");
    const std::string contents[] = {
        pictures.Three(),
        "<standard><filename>test_pictures.dll</filename><resource>7</resource></standard>",
        Quick("<icon>9</icon><text>T</text>"), Quick("<icon>no extension</icon>")};
    XMLDocument documents[4];
    for (std::size_t i = 0; i < 4; ++i)
        documents[i].UseData(("<layout>" + Button(0, 0, contents[i]) + "</layout>").c_str(), -1);
    const auto round = [&](int i) {
        auto layout = std::make_unique<Layout>(parent, parent, ::GetModuleHandleA(nullptr),
                                               &documents[i % 4]);
        const HWND panel = ::GetDlgItem(parent, 5000);
        ::SendMessageA(panel, WM_MOUSEMOVE, 0, MAKELPARAM(5, 5));
        ::UpdateWindow(panel);
        if (i % 8 < 4)
            ::DestroyWindow(panel);
    };
    for (int i = 0; i < 8; ++i)
        round(i);
    const ObjectCounts before = CountObjects();
    for (int i = 0; i < 1000; ++i)
        round(i);
    EXPECT_EQ(before, CountObjects());
}

}  // namespace
