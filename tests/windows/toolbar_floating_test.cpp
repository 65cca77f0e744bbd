// Toolbars that float, and the life of strips: whatever goes first, and messages at odd times.
#include "support/toolbar_host.h"

#include <gmock/gmock.h>
#include <list>

using namespace qx::test;
using testing::HasSubstr;
using FloatingToolbars = ToolbarTest;
using StripLife = ToolbarTest;

static const char kFloatingBars[] =
    "<a ID=\"101\" Name=\"A\" UnDocked=\"1\" X=\"620\" "
    "Y=\"310\"><b><idCommand>1</idCommand></b></a>"
    "<a ID=\"102\" Name=\"B\" X=\"-5000\" Y=\"400\"><b><idCommand>2</idCommand></b></a>"
    "<a ID=\"103\" Name=\"C\" Hidden=\"0\"><b><idCommand>3</idCommand></b></a>";

// The floating window of a bar that is nowhere in the strip; null when there is none.
static HWND FloatOf(const ToolbarHost& host, int id)
{
    HWND window = nullptr;
    while ((window = ::FindWindowExA(nullptr, window, "DOCKABLEWND", nullptr)) != nullptr) {
        if (::GetWindow(window, GW_OWNER) == host.window && ::GetDlgItem(window, id))
            break;
    }
    return window;
}

static POINT PlaceOf(HWND window)
{
    RECT area{};
    ::GetWindowRect(window, &area);
    return {area.left, area.top};
}

TEST_F(FloatingToolbars, FloatAndDockAgain)
{
    LoadedHost host;
    const HWND bar = host.Toolbar(kFile);
    host.master->ToggleDock(-1, -1, kFile, -1);
    const HWND floating = FloatOf(host, kFile);
    ASSERT_TRUE(floating);
    EXPECT_EQ("Toolbar", TextOf(floating));
    EXPECT_TRUE(::GetWindowLongA(bar, GWL_STYLE) & TBSTYLE_WRAPABLE);
    EXPECT_EQ("147 3 197 27; 8 29 8 53; -207 29 232 53; ", host.Places());

    ::SendMessageA(floating, WM_CLOSE, 0, 0);
    EXPECT_EQ(1, host.Count("dock 101"));
    ::SetWindowPos(floating, nullptr, 300, 40, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    host.master->ToggleDock(-1, -1, -1, 0);
    EXPECT_EQ(host.strip, ::GetParent(bar));
    EXPECT_FALSE(::IsWindowVisible(floating));
    EXPECT_FALSE(::GetWindowLongA(bar, GWL_STYLE) & TBSTYLE_WRAPABLE);
    EXPECT_THAT(host.Places(), HasSubstr(" 3 ")) << "in the first row";

    const POINT on = PlaceOf(host.Toolbar(kEdit));
    host.master->ToggleDock(on.x, on.y, -1, -1);
    EXPECT_TRUE(FloatOf(host, kEdit));
    host.master->ToggleDock(5, 5, -1, -1);
    EXPECT_FALSE(FloatOf(host, kFile)) << "no bar at the point";
}

TEST_F(FloatingToolbars, ComeBackWhereTheyWereOrWhereAScreenShowsThem)
{
    user.Write(kFloatingBars);
    LoadedHost host;
    EXPECT_EQ(620, PlaceOf(FloatOf(host, 101)).x);
    EXPECT_EQ(310, PlaceOf(FloatOf(host, 101)).y);
    EXPECT_EQ(0, PlaceOf(FloatOf(host, 102)).x) << "floats as it comes after a floating one";
    EXPECT_EQ(400, PlaceOf(FloatOf(host, 102)).y);
    EXPECT_FALSE(::IsWindowVisible(FloatOf(host, 103)));
    host.master->SaveToolbars(UserToolbars::kName);
    EXPECT_THAT(user.Read(), HasSubstr("UnDocked=\"1\" X=\"620\" Y=\"310\""));
    const HWND before = FloatOf(host, 101);
    host.Load();
    EXPECT_FALSE(::IsWindow(before)) << "a load replaces floating windows";
    EXPECT_TRUE(::IsWindowVisible(FloatOf(host, 101)));
}

// ---- Life

TEST_F(StripLife, ObjectStripAndHostMayGoInAnyOrder)
{
    const TestWindow window("Rounds");
    ::ShowWindow(window, SW_HIDE);  // nothing is painted: that takes most of the time
    const auto round = [&](int i) {
        const HWND host = MakeChild(window, "Static", "", WS_BORDER, 70);
        auto master = std::make_unique<ToolBarMaster>();
        master->CreateRebar(host, kDefaults, 50, kPictures, 6, kCatalogue);
        const HWND strip = master->GetRebarHWND();
        master->CreateToolBar(500, MakeChild(host, "Static", "", 0, 60), 0);
        if (i % 8 == 0) {
            master->LoadToolbars("");
            master->ToggleDock(-1, -1, i % 16 == 0 ? kFile : kScale, -1);
        }
        for (int step = 0; step < 3; ++step) {
            switch ((i / 8 + step) % 3) {
                case 0:
                    master.reset();
                    break;
                case 1:
                    ::DestroyWindow(strip);
                    break;
                default:
                    ::DestroyWindow(host);
            }
        }
    };
    for (int i = 0; i < 48; ++i)
        round(i);
    const ObjectCounts before = CountObjects();
    for (int i = 0; i < 1000; ++i)
        round(i);
    EXPECT_EQ(before, CountObjects());
}

TEST_F(StripLife, HostMayEndItInAnyMessage)
{
    const std::vector<std::function<void(ToolbarHost&, ToolBarMaster&)>> actions = {
        [](ToolbarHost&, ToolBarMaster& master) { master.UpdateButtonStates(); },
        [](ToolbarHost&, ToolBarMaster& master) { master.LoadToolbars(UserToolbars::kName); },
        [](ToolbarHost&, ToolBarMaster& master) { master.ToggleDock(-1, -1, kFile, -1); },
        [](ToolbarHost& host, ToolBarMaster&) {
            ::PostMessageA(host.strip, WM_KEYDOWN, VK_DOWN, 0);
            ::PostMessageA(host.strip, WM_KEYDOWN, VK_ESCAPE, 0);
            ::SendMessageA(host.strip, WM_RBUTTONDOWN, 0, MAKELPARAM(3, 10));
        }};
    const UINT messages[] = {WM_NOTIFY,     UM_COMMANDSTATE, UM_TOOLBARSCHANGED, UM_STATUSTEXT,
                             WM_NCACTIVATE, WM_KILLFOCUS,    WM_WINDOWPOSCHANGED};
    int ended = 0;
    for (const UINT message : messages) {
        for (std::size_t i = 0; i < 3 * actions.size(); ++i) {
            LoadedHost host;
            bool armed = true;
            host.whenTold = [&](UINT told) {
                if (told != message || !std::exchange(armed, false))
                    return;
                ++ended;
                if (i % 3 != 0)
                    ::DestroyWindow(host.strip);
                if (i % 3 != 1)
                    host.master.reset();
            };
            ToolBarMaster& master = *host.master;
            actions[i / 3](host, master);
            PumpWaiting();
        }
    }
    EXPECT_LE(24, ended);
}

TEST_F(StripLife, BarMayGoWhileItIsCustomised)
{
    const std::vector<std::function<void(ToolbarHost&)>> ends = {
        [](ToolbarHost& host) { host.master->LoadToolbars(""); },
        [](ToolbarHost& host) { ::DestroyWindow(host.strip); },
        [](ToolbarHost& host) { ::DestroyWindow(host.window); }};
    // But for the last: the window of a floating bar goes before the host's other windows.
    for (std::size_t i = 0; i < 2 * ends.size() - 1; ++i) {
        LoadedHost host;
        const HWND bar = host.Toolbar(kFile);
        if (i % 2 == 1)
            host.master->ToggleDock(-1, -1, kFile, -1);
        bool isThere = false;
        const ModalAnswer modal([&](HWND) {
            ends[i / 2](host);
            isThere = ::IsWindow(bar);
        });
        ::SendMessageA(bar, TB_CUSTOMIZE, 0, 0);
        EXPECT_EQ(1, modal.Count()) << i;
        EXPECT_TRUE(isThere) << i << ": the control's call has not returned";
        PumpWaiting();
        EXPECT_FALSE(::IsWindow(bar)) << i;
    }
}

TEST_F(StripLife, MessagesAtOddTimesDoNoHarm)
{
    ToolbarHost host;
    const Spy spy(host.strip, [&](UINT message, WPARAM, LPARAM) {
        if (message == WM_INITMENUPOPUP)
            ::PostMessageA(host.strip, WM_KEYDOWN, VK_ESCAPE, 0);
        return std::optional<LRESULT>();
    });
    for (const bool loaded : {false, true}) {
        if (loaded)
            host.Load();
        for (UINT message = 0; message < WM_USER + 1700; ++message) {
            const bool isLife =
                message == WM_DESTROY || message == WM_NCDESTROY || message == WM_CLOSE;
            if (message != WM_QUIT && !isLife)
                ::SendMessageA(host.strip, message, 0, 0);
        }
        ::SendMessageA(host.strip, 2701, 0x1234, 0);  // names an object that there is not
    }
    host.Load();
    EXPECT_EQ("8 3 105 27", host.Places().substr(0, 10));
}

TEST_F(StripLife, MayBeUsedWhileItIsCreated)
{
    ToolbarHost host;
    host.master = std::make_unique<ToolBarMaster>();
    bool armed = true;
    host.whenTold = [&](UINT message) {
        if (message != WM_NOTIFY || !std::exchange(armed, false))
            return;
        host.master->LoadToolbars("");
        host.master->UpdateButtonStates();
        host.master->ToggleDock(-1, -1, kFile, -1);
    };
    EXPECT_EQ(1, host.master->CreateRebar(host.window, kDefaults, 51, kPictures, 6, kCatalogue));
    EXPECT_FALSE(armed);
    EXPECT_EQ(0, host.master->CreateRebar(host.window, kDefaults, 51, kPictures, 6, kCatalogue));
    EXPECT_TRUE(FloatOf(host, kFile));
}

TEST_F(StripLife, MoreThanSixteenStripsShareAnObject)
{
    std::list<ToolbarHost> hosts(18);
    for (ToolbarHost& host : hosts) {
        EXPECT_EQ(1, host.created);
        host.Load();
        host.master->UpdateButtonStates();
    }
    EXPECT_EQ("8 3 105 27", hosts.front().Places().substr(0, 10));
    while (!hosts.empty()) {
        hosts.pop_front();
        for (const ToolbarHost& host : hosts)
            ::SendMessageA(host.strip, UM_RELAYOUT, 0, 0);
    }
}
