// What users do with a strip of toolbars: the mouse, the menu, the customise dialog, floating bars.
#include "support/toolbar_host.h"

#include <qxutility/config/startup.h>

#include <algorithm>
#include <gmock/gmock.h>

using namespace qx::test;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using ToolbarMenu = ToolbarTest;
using ToolbarDrag = ToolbarTest;
using ToolbarMouse = ToolbarTest;
using ToolbarTexts = ToolbarTest;
using ToolbarCustomise = ToolbarTest;

enum Command { kCustomize = 2000, kLock, kNew, kDelete, kReset, kFirstBar };

static const char kPlaces[] = "8 3 105 27; 147 3 197 27; 8 29 8 53; -207 29 232 53; ";
static constexpr POINT kOnFile{3, 10}, kOnEdit{143, 10}, kBeside{300, 10};

// ---- The menu

// "2003- Delete Toolbar: Edit": "-" for grayed, "+" for checked.
static std::string ItemText(HMENU menu, int position, const std::string& text)
{
    const UINT state = ::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
    return std::to_string(::GetMenuItemID(menu, position)) + (state & MF_GRAYED ? "-" : "") +
           (state & MF_CHECKED ? "+" : "") + " " + text;
}

// Opens the menu at a point, chooses an item with the keys, 0 for none, and returns all items.
static std::vector<std::string> Choose(ToolbarHost& host, POINT at, UINT command)
{
    std::vector<std::string> items;
    const Spy spy(host.strip, [&](UINT message, WPARAM wParam, LPARAM) {
        if (message != WM_INITMENUPOPUP)
            return std::optional<LRESULT>();
        const auto menu = reinterpret_cast<HMENU>(wParam);
        const auto texts = TextsOf(menu);
        bool reached = command == 0;
        for (int i = 0; i < static_cast<int>(texts.size()); ++i) {
            const bool separator = texts[static_cast<std::size_t>(i)] == "-";
            if (!separator && !reached)
                ::PostMessageA(host.strip, WM_KEYDOWN, VK_DOWN, 0);
            reached = reached || ::GetMenuItemID(menu, i) == command;
            items.push_back(separator ? "-"
                                      : ItemText(menu, i, texts[static_cast<std::size_t>(i)]));
        }
        ::PostMessageA(host.strip, WM_KEYDOWN, command ? VK_RETURN : VK_ESCAPE, 0);
        return std::optional<LRESULT>();
    });
    ::SendMessageA(host.strip, WM_RBUTTONDOWN, 0, MAKELPARAM(at.x, at.y));
    PumpWaiting();
    return items;
}

TEST_F(ToolbarMenu, ShowsWhatCanBeDone)
{
    LoadedHost host;
    EXPECT_THAT(Choose(host, kOnFile, 0),
                ElementsAre("2002 New Toolbar", "2003 Delete Toolbar: File", "-",
                            "2001 Lock Toolbars", "-", "2000 Customize...", "2004 Reset Toolbars",
                            "-", "2005+ File", "2006-+ Edit", "2007+ Scale", "2008 Extra"));
    EXPECT_EQ(1, host.Count("changed")) << "also when the menu is dismissed";
    EXPECT_THAT(Choose(host, kOnEdit, 0), Contains("2003- Delete Toolbar: Edit"));
    EXPECT_THAT(Choose(host, kBeside, kLock), Contains("2000- Customize..."));
    EXPECT_THAT(Choose(host, kBeside, 0), Contains("2001+ Lock Toolbars"));
    ::SendMessageA(host.strip, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 10));
    EXPECT_NE(host.strip, ::GetCapture()) << "locked";
}

TEST_F(ToolbarMenu, TellsTheStatusLineAboutItems)
{
    LoadedHost host;
    host.told.clear();
    Choose(host, kOnFile, kFirstBar + 3);
    EXPECT_THAT(host.told, Contains("status: Create a new toolbar"));
    EXPECT_THAT(host.told, Contains("status: Hide Edit toolbar"));
    EXPECT_EQ("changed", host.told.back());
    EXPECT_EQ(1, host.Count("status: Show Extra toolbar"));
}

TEST_F(ToolbarMenu, HidesAndShowsBarsButNeverTheLast)
{
    user.Write(
        "<a ID=\"101\" Editable=\"1\" Name=\"A\"><b><idCommand>1</idCommand></b></a>"
        "<a ID=\"102\" Editable=\"1\" Name=\"B\" Y=\"29\"><b><idCommand>1</idCommand></b>"
        "</a>");
    LoadedHost host;
    EXPECT_EQ("8 3 33 27; 8 29 33 53; ", host.Places());
    EXPECT_THAT(Choose(host, kBeside, kFirstBar), Contains("2005+ A"));
    EXPECT_EQ("-8 3 33 27; 8 3 33 27; ", host.Places()) << "the empty row is closed";
    EXPECT_THAT(Choose(host, kBeside, kFirstBar), Contains("2006-+ B"));
    EXPECT_TRUE(::IsWindowVisible(host.Toolbar(kFile)));
}

TEST_F(ToolbarMenu, DeletesABarWhenTheUserAgrees)
{
    LoadedHost host;
    std::string question;
    int answer = IDNO;
    const ModalAnswer modal([&](HWND box) {
        question = TextOf(box) + ": " + MessageOf(box);
        Press(box, answer);
    });
    Choose(host, kOnFile, kDelete);
    EXPECT_EQ("Toolbar: Are you sure you want to delete toolbar: File?", question);
    EXPECT_TRUE(host.Toolbar(kFile));
    answer = IDYES;
    Choose(host, kOnFile, kDelete);
    EXPECT_EQ("147 3 197 27; 8 29 8 53; -207 29 232 53; ", host.Places());
    EXPECT_THAT(Choose(host, kOnEdit, 0), Contains("2006-+ Edit")) << "keeps its record";
    host.master->ToggleDock(-1, -1, kEdit, -1);
    EXPECT_TRUE(host.Toolbar(kEdit)) << "is no longer found behind the empty record";
}

TEST_F(ToolbarMenu, ResetBringsBackTheProgramsBars)
{
    user.Write("<a ID=\"101\" Name=\"A\"><b><idCommand>1</idCommand></b></a>");
    LoadedHost host;
    std::string question;
    const ModalAnswer modal([&](HWND box) {
        question = TextOf(box) + ": " + MessageOf(box);
        Press(box, IDYES);
    });
    Choose(host, kBeside, kReset);
    EXPECT_EQ("Toolbars: Are you sure you want to reset all toolbars to the program defaults?",
              question);
    EXPECT_EQ(kPlaces, host.Places());
    EXPECT_TRUE(::IsWindowVisible(host.strip));
    EXPECT_EQ("changed", host.told.back());
}

// ---- The mouse

TEST_F(ToolbarDrag, BarFollowsTheRealMouse)
{
    LoadedHost host;
    MoveMouse(host.strip, 3, 10);
    EXPECT_TRUE(PumpUntil([] { return ::GetCursor() == ::LoadCursorA(nullptr, IDC_SIZEALL); }));
    MouseButton(true);
    ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() == host.strip; }));
    MoveMouse(host.strip, 20, 60);
    const char* const moved = "27 55 124 79; 147 3 197 27; 8 29 8 53; -207 29 232 53; ";
    EXPECT_TRUE(PumpUntil([&] { return host.Places() == moved; })) << host.Places();
    EXPECT_EQ(0, host.Count("changed"));
    MouseButton(false);
    EXPECT_TRUE(PumpUntil([&] { return host.Count("changed") == 1; }));
    EXPECT_EQ(nullptr, ::GetCapture());
    MoveMouse(host.strip, 200, 40);
    EXPECT_EQ(moved, host.Places());
    EXPECT_TRUE(PumpUntil([] { return ::GetCursor() == ::LoadCursorA(nullptr, IDC_ARROW); }));
}

TEST_F(ToolbarDrag, EndsWithTheButtonAlsoInAStripThatWasLocked)
{
    LoadedHost host;
    ::SendMessageA(host.strip, WM_LBUTTONDOWN, 0, MAKELPARAM(3, 10));
    ASSERT_EQ(host.strip, ::GetCapture());
    host.master->ToggleLockControls(1);
    ::SendMessageA(host.strip, WM_LBUTTONUP, 0, MAKELPARAM(3, 10));
    EXPECT_EQ(nullptr, ::GetCapture());
    EXPECT_EQ(1, host.Count("changed"));
}

TEST_F(ToolbarMouse, ClicksTooltipsAndTheMenuOfAToolbarReachTheHost)
{
    LoadedHost host;
    host.master->UpdateButtonStates();
    const HWND bar = host.Toolbar(kFile);
    MoveMouse(bar, 12, 12);
    const auto tip = reinterpret_cast<HWND>(::SendMessageA(bar, TB_GETTOOLTIPS, 0, 0));
    EXPECT_TRUE(PumpUntil([&] { return ::IsWindowVisible(tip); }));
    MouseButton(true);
    MouseButton(false);
    EXPECT_TRUE(PumpUntil([&] { return host.Count("command 10") == 1; }));
    const Spy spy(host.strip, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_INITMENUPOPUP)
            ::PostMessageA(host.strip, WM_KEYDOWN, VK_ESCAPE, 0);
        return std::optional<LRESULT>();
    });
    ::mouse_event(MOUSEEVENTF_RIGHTDOWN, 0, 0, 0, 0);
    ::mouse_event(MOUSEEVENTF_RIGHTUP, 0, 0, 0, 0);
    EXPECT_TRUE(PumpUntil([&] { return host.Count("changed") == 1; })) << "the menu was open";
}

TEST_F(ToolbarTexts, ComeFromTheHostElseFromItsStrings)
{
    LoadedHost host;
    const auto text = [&](UINT_PTR command) {
        NMTTDISPINFOA tip{};
        tip.hdr = {host.strip, command, static_cast<UINT>(TTN_NEEDTEXTA)};
        tip.lpszText = const_cast<char*>("stale");
        return host.master->HandleToolTip(&tip.hdr) ? std::string(tip.lpszText) : "none";
    };
    EXPECT_EQ("New drawing", text(10));
    EXPECT_EQ("none", text(11));
    host.tip = "by the host";
    EXPECT_EQ("by the host", text(10));
    NMHDR other{host.strip, 10, NM_CLICK};
    EXPECT_FALSE(host.master->HandleToolTip(&other));
}

// ---- The customise dialog

TEST_F(ToolbarCustomise, DialogHasTheNameAndGivesButtons)
{
    LoadedHost host;
    std::vector<std::string> seen;
    const ModalAnswer modal([&](HWND dialog) {
        seen = {TextOfItem(dialog, 1000), TextOfItem(dialog, 202), TextOfItem(dialog, 2),
                std::to_string(ItemsOf(::GetDlgItem(dialog, 201)).size()),
                std::to_string(ItemsOf(::GetDlgItem(dialog, 203)).size())};
        ::SetDlgItemTextA(dialog, 1000, "My bar");
        Press(dialog, 202);
        ::SendDlgItemMessageA(dialog, 203, LB_SETCURSEL, 0, 0);
        ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(203, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, 203)));
        Press(dialog, 204);
        Press(dialog, 2);
    });
    Choose(host, kOnFile, kCustomize);
    ASSERT_TRUE(PumpUntil([&] { return host.Count("changed") == 2; })) << "of menu and dialog";
    EXPECT_THAT(seen, ElementsAre("File", "Help", "OK", "4", "5"));
    EXPECT_EQ(1, host.Count("help"));
    EXPECT_EQ("8 3 80 27", host.Places().substr(0, 9));
    EXPECT_THAT(Choose(host, kOnFile, 0), Contains("2005+ My bar"));
    host.master->SaveToolbars(UserToolbars::kName);
    EXPECT_THAT(user.Read(), HasSubstr("Name=\"My bar\""));
}

TEST_F(ToolbarTexts, AreInTheUsersLanguageAndFit)
{
    const struct {
        DWORD lcid;
        const char *entry, *label;
    } cases[] = {{0x0407, "2003 Symbolleiste l\366schen: File", "Leistenname: "},
                 {0x040C, "2003 Supprimer la barre d'outils\240: File", "Nom\240: "},
                 {0x040A, "2003 Eliminar barra de herramientas: File", "Nombre: "},
                 {0x0410, "2003 Elimina barra degli strumenti: File", "Nome: "},
                 {0x0416, "2003 Excluir barra de ferramentas: File", "Nome: "},
                 {0x0413, "2003 Werkbalk verwijderen: File", "Naam: "},
                 {0x041D, "2003 Ta bort verktygsf\344lt: File", "Namn: "},
                 {0x0409, "2003 Delete Toolbar: File", "Toolbar name: "}};
    for (const auto& c : cases) {
        LoadedHost host;
        QXUtility_SetLanguage(c.lcid);
        EXPECT_THAT(Choose(host, kOnFile, 0), Contains(c.entry));
        const ModalAnswer modal([&](HWND dialog) {
            std::vector<std::string> texts;
            for (const HWND child : ChildrenOf(dialog))
                texts.push_back(TextOf(child));
            EXPECT_THAT(texts, Contains(c.label));
            EXPECT_THAT(CutTexts(dialog), Not(Contains(c.label)));
            Press(dialog, 2);
        });
        ::SendMessageA(host.Toolbar(kFile), TB_CUSTOMIZE, 0, 0);
        EXPECT_EQ(1, modal.Count());
    }
}

TEST_F(ToolbarCustomise, NewBarIsFilledByTheUser)
{
    LoadedHost host;
    const ModalAnswer modal([&](HWND dialog) {
        ::SendDlgItemMessageA(dialog, 201, LB_SETCURSEL, 1, 0);
        ::SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(201, LBN_SELCHANGE),
                       reinterpret_cast<LPARAM>(::GetDlgItem(dialog, 201)));
        Press(dialog, 1);
        Press(dialog, 2);
    });
    Choose(host, kBeside, kNew);
    ASSERT_TRUE(PumpUntil([&] { return host.Count("changed") == 2; }));
    const HWND bar = host.Toolbar(105);
    EXPECT_TRUE(::IsWindowVisible(bar));
    EXPECT_EQ(1, ::SendMessageA(bar, TB_BUTTONCOUNT, 0, 0));
    EXPECT_THAT(Choose(host, kBeside, 0), Contains("2009+ New Toolbar"));
}

TEST_F(ToolbarCustomise, ResetOfTheDialogBringsTheDefaults)
{
    user.Write("<a ID=\"101\" Editable=\"1\"><b><idCommand>1</idCommand></b></a>");
    LoadedHost host;
    const ModalAnswer modal([&](HWND) {
        NMHDR reset{host.Toolbar(kFile), kFile, static_cast<UINT>(TBN_RESET)};
        EXPECT_EQ(1, host.master->HandleNotifiers(kFile, &reset));
    });
    ::SendMessageA(host.Toolbar(kFile), TB_CUSTOMIZE, 0, 0);
    EXPECT_TRUE(PumpUntil([&] { return host.Places() == kPlaces; })) << host.Places();
}
