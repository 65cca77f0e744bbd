// A strip of real toolbars: layout, picture, states of the buttons, files, life.
#include "support/toolbar_host.h"

#include <gmock/gmock.h>
#include <optional>

using namespace qx::test;
using testing::HasSubstr;
using ToolStrip = ToolbarTest;

static const char kPlaces[] = "8 3 105 27; 147 3 197 27; 8 29 8 53; -207 29 232 53; ";

static HWND MakeCombo(HWND parent)
{
    const HWND combo = MakeChild(parent, "ComboBox", "", CBS_DROPDOWNLIST, 60);
    ::SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("100 %"));
    ::MoveWindow(combo, 0, 0, 90, 120, FALSE);
    return combo;
}

// The states of a toolbar's buttons in order, "|" for separators.
static std::string States(HWND toolbar)
{
    std::string text;
    const auto count = static_cast<WPARAM>(::SendMessageA(toolbar, TB_BUTTONCOUNT, 0, 0));
    for (WPARAM i = 0; i < count; ++i) {
        TBBUTTON button{};
        ::SendMessageA(toolbar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&button));
        text += button.fsStyle & TBSTYLE_SEP ? "| " : std::to_string(button.fsState) + " ";
    }
    return text;
}

TEST_F(ToolStrip, LaysOutTheDefaultToolbars)
{
    ToolbarHost host;
    EXPECT_EQ(1, host.created);
    EXPECT_EQ(50, ::GetDlgCtrlID(host.strip));
    host.Load();
    EXPECT_EQ(kPlaces, host.Places());
    RECT client;
    ::GetClientRect(host.window, &client);
    EXPECT_EQ("0 0 " + std::to_string(client.right) + " 55", Text(AreaOf(host.strip)));
    EXPECT_EQ(97, host.master->GetBandWidth(host.Toolbar(kFile)));
    EXPECT_EQ(24, host.master->GetBandHeight(host.Toolbar(kFile)));
    RBHITTESTINFO test{{3, 10}, 0, 77};
    EXPECT_EQ(0, ::SendMessageA(host.strip, RB_HITTEST, 0, reinterpret_cast<LPARAM>(&test)));
    EXPECT_EQ(4U, test.flags) << "the grip";
    EXPECT_TRUE(host.master->IsWrapable(host.Toolbar(kFile)));
    EXPECT_FALSE(host.master->IsWrapable(host.window));
}

TEST_F(ToolStrip, FollowsTheStripsWidth)
{
    LoadedHost host;
    host.told.clear();
    host.master->SizeRebarWindow(190, 60);
    EXPECT_EQ("8 3 105 27; 140 29 190 53; 8 29 8 53; -165 55 190 79; ", host.Places());
    host.master->SizeRebarWindow(0, 0);  // as hosts do while they are minimised
    host.master->SizeRebarWindow(190, 0);
    EXPECT_EQ("8 3 105 27; 140 29 190 53; 8 29 8 53; -165 55 190 79; ", host.Places());
    EXPECT_EQ("0 0 190 55", Text(AreaOf(host.strip)));
    EXPECT_LE(1, host.Count("autosize"));
    RECT area;
    host.master->GetWindowRect(&area);
    EXPECT_EQ(190, area.right - area.left);
}

TEST_F(ToolStrip, LayoutEndsWhateverTheHostMakesOfIt)
{
    LoadedHost host;
    host.told.clear();
    host.whenTold = [&, size = 0](UINT message) mutable {
        size = 1 - size;
        if (message == WM_NOTIFY)
            host.master->SizeRebarWindow(200 + size, size ? 22 : 90);
    };
    ::SendMessageA(host.strip, UM_RELAYOUT, 0, 0);
    PumpWaiting();
    EXPECT_GT(1000, host.Count("autosize"));
}

TEST_F(ToolStrip, PaintsGripsAndFrames)
{
    LoadedHost host;
    ::InvalidateRect(host.strip, nullptr, TRUE);
    ::UpdateWindow(host.strip);
    const COLORREF line = RGB(191, 188, 177), white = RGB(255, 255, 255);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    struct {
        int x, y;
        COLORREF color;
    } const cases[] = {
        {130, 0, line},  {130, 1, white}, {130, 2, face},   // across the top
        {2, 7, face},    {3, 7, line},    {5, 7, line},     // the grip of File: 3 wide,
        {6, 7, face},    {3, 8, face},    {3, 21, line},    // 8 lines from 4 below the top
        {3, 23, face},   {0, 10, line},   {1, 10, face},    // its frame
        {105, 10, face}, {106, 10, line}, {107, 10, face},  //
        {60, 2, line},   {60, 28, line},  {139, 10, line},  // that of Edit
        {142, 7, line},  {199, 30, face}, {202, 33, face},  // Extra is hidden
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.color, PixelOf(host.strip, c.x, c.y)) << c.x << ' ' << c.y;
}

TEST_F(ToolStrip, ButtonsFollowTheHostsAnswers)
{
    user.Write(
        "<a ID=\"101\"><b><idCommand>1</idCommand></b><b><Style>separator</Style></b>"
        "<b><idCommand>2</idCommand></b><b><Style>separator</Style></b>"
        "<b><idCommand>3</idCommand></b></a>");
    LoadedHost host;
    EXPECT_EQ("0 | 0 | 0 ", States(host.Toolbar(kFile)));
    host.answers = {{1, 5}, {2, 0}, {3, 6}};
    host.master->UpdateButtonStates();
    EXPECT_EQ("5 | 0 | 6 ", States(host.Toolbar(kFile)));
    EXPECT_EQ("8 3 101 27; ", host.Places());
    host.answers = {{2, 8}};
    host.master->UpdateButtonStates();
    EXPECT_EQ("4 | 8 4 ", States(host.Toolbar(kFile))) << "the second separator is removed";
    EXPECT_EQ("8 3 67 27; ", host.Places());
}

TEST_F(ToolStrip, NumbersOfAFileMayBeAnything)
{
    user.Write(
        "<a ID=\"101\" X=\"99999999\" Y=\"-1\"><b><iBitmap>99999</iBitmap>"
        "<idCommand>0x7fffffff</idCommand></b><b><iBitmap>-1</iBitmap>"
        "<idCommand>-5</idCommand></b></a>");
    LoadedHost host;
    host.master->UpdateButtonStates();
    EXPECT_EQ("4 4 ", States(host.Toolbar(kFile)));
    ::UpdateWindow(host.Toolbar(kFile));
}

TEST_F(ToolStrip, ComesBackAsItWasSaved)
{
    {
        ToolbarHost host;
        host.Load();
        host.master->CreateToolBar(kScale, MakeCombo(host.window), 0);
        host.master->SizeRebarWindow(190, 60);
        host.master->SaveToolbars(UserToolbars::kName);
    }
    EXPECT_THAT(user.Read(), HasSubstr("<Toolbar ID=\"102\" Editable=\"0\" Name=\"Edit\" "
                                       "Hidden=\"1\" UnDocked=\"0\" X=\"133\" Y=\"29\">\r\n"
                                       "  <Button>\r\n    <iBitmap>3</iBitmap>\r\n"));
    EXPECT_THAT(user.Read(), HasSubstr("Name=\"Scale\" Hidden=\"1\" UnDocked=\"0\" X=\"1\" "
                                       "Y=\"29\" HasChild=\"1\"></Toolbar>\r\n"));
    ToolbarHost again;
    again.master->SizeRebarWindow(190, 60);
    again.Load();
    again.master->CreateToolBar(kScale, MakeCombo(again.window), 0);
    EXPECT_EQ("8 3 105 27; 140 29 190 53; 8 29 98 53; -165 55 190 79; ", again.Places());
}

TEST_F(ToolStrip, HostsAWindowAndKeepsItOverALoad)
{
    LoadedHost host;
    const HWND combo = MakeCombo(host.window);
    EXPECT_TRUE(host.master->CreateToolBar(kScale, combo, 0));
    for (int i = 0; i < 2; ++i) {
        const HWND bar = host.Toolbar(kScale);
        EXPECT_EQ("8 3 105 27; 147 3 197 27; 8 29 98 53; -207 29 232 53; ", host.Places());
        EXPECT_EQ(bar, ::GetParent(combo));
        EXPECT_EQ("0 2", Text(AreaOf(combo)).substr(0, 3));
        EXPECT_TRUE(::IsWindowVisible(combo));
        EXPECT_EQ(90, host.master->GetBandWidth(bar));
        EXPECT_FALSE(host.master->IsWrapable(bar));
        ::SendMessageA(bar, WM_COMMAND, MAKEWPARAM(60, CBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(combo));
        PumpWaiting();
        EXPECT_EQ(i + 1, host.Count("command 60"));
        host.Load();
    }
    EXPECT_TRUE(host.master->CreateToolBar(500, MakeCombo(host.window), 0)) << "a bar of its own";
    EXPECT_TRUE(::IsWindowVisible(host.Toolbar(500)));
}

TEST_F(ToolStrip, FileThatWasLockedIsNotOverwritten)
{
    user.Write("<a ID=\"101\"><b><idCommand>1</idCommand></b></a>");
    const std::string own = user.Read();
    const HANDLE lock =
        ::CreateFileA((ToolbarFolder() / UserToolbars::kName).string().c_str(), GENERIC_READ, 0,
                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    LoadedHost host;
    EXPECT_EQ(kPlaces, host.Places()) << "the default toolbars";
    ::CloseHandle(lock);
    for (int i = 0; i < 2; ++i)
        host.master->SaveToolbars(UserToolbars::kName);
    EXPECT_EQ(own, user.Read("bars.xml.unreadable"));
    EXPECT_EQ("", user.Read("bars.xml.unreadable2"));
    EXPECT_THAT(user.Read(), HasSubstr("ID=\"104\""));
}

TEST_F(ToolStrip, FileThatHidesAllBarsShowsTheFirst)
{
    user.Write(
        "<a ID=\"101\" Hidden=\"0\"><b><idCommand>1</idCommand></b></a>"
        "<a ID=\"102\" Hidden=\"0\"><b><idCommand>1</idCommand></b></a>");
    LoadedHost host;
    EXPECT_EQ("8 3 33 27; -8 3 33 27; ", host.Places());
}

TEST_F(ToolStrip, WithoutItsCatalogueItIsLockedAndNotSaved)
{
    ToolbarHost host(kDefaults, 999);
    host.Load();
    EXPECT_EQ(kPlaces, host.Places());
    host.master->SaveToolbars(UserToolbars::kName);
    EXPECT_EQ("", user.Read());
    ::SendMessageA(host.strip, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 10));
    EXPECT_NE(host.strip, ::GetCapture());
    ::SendMessageA(host.strip, WM_RBUTTONDOWN, 0, MAKELPARAM(3, 10));
    EXPECT_EQ(0, host.Count("changed")) << "no menu";
}
