// Panes of a real window, resized with the real mouse.
#include "support/win32_screen.h"
#include "support/window_spy.h"

#include <qxutility/ui/window_layout.h>

#include <gmock/gmock.h>
#include <memory>
#include <optional>

using namespace qx;
using namespace qx::test;
using testing::ElementsAre;

static constexpr DWORD kLeft = kPaneLeft | kPaneAcross, kTop = kPaneTop | kPaneAlong;
static constexpr DWORD kBottom = kPaneBottom | kPaneAlong;
static const HWND kNoWindow = reinterpret_cast<HWND>(~std::uintptr_t{0});

// Answers WM_GETMINMAXINFO with a minimum size.
static Handler Minimum(int width, int height)
{
    return [=](UINT message, WPARAM, LPARAM lParam) -> std::optional<LRESULT> {
        if (message != WM_GETMINMAXINFO)
            return {};
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {width, height};
        return 0;
    };
}

static std::string Text(const RECT& r)
{
    return std::to_string(r.left) + " " + std::to_string(r.top) + " " + std::to_string(r.right) +
           " " + std::to_string(r.bottom);
}

static RECT ClientArea(HWND window)
{
    RECT area;
    ::GetClientRect(window, &area);
    return area;
}

static void SetClientSize(HWND window, int width, int height)
{
    RECT area;
    ::GetWindowRect(window, &area);
    const RECT client = ClientArea(window);
    ::SetWindowPos(window, nullptr, 0, 0, area.right - area.left - client.right + width,
                   area.bottom - area.top - client.bottom + height, SWP_NOMOVE | SWP_NOZORDER);
    PumpWaiting();
}

// A host of 400 x 300 with a pane of 150 at the left, a splitter, and the rest with an edge. It
// notes the sizes that it is told.
struct SplitHost {
    explicit SplitHost(DWORD flags = kLeft, int size = 150)
    {
        ::SetForegroundWindow(window);
        SetClientSize(window, 400, 300);
        layout->AddWindow(first, size, flags | kPaneSizable, nullptr);
        layout->AddWindow(rest, 10, (flags & kPaneTop ? kTop : kBottom) | kPaneFill | kPaneEdge,
                          nullptr);
        layout->ReCalcLayout();
        PumpWaiting();
    }
    ~SplitHost() { ::ReleaseCapture(); }

    std::vector<std::pair<int, int>> Take() { return std::exchange(told, {}); }

    std::vector<std::pair<int, int>> told;
    std::function<void()> whenTold = [] {};
    TestWindow window{"Panes"};
    HWND first = MakeChild(window, "Static", "First", 0, 101);
    HWND rest = MakeChild(window, "Static", "Rest", 0, 102);
    std::optional<Spy> spy{
        std::in_place, window,
        [this](UINT message, WPARAM wParam, LPARAM lParam) -> std::optional<LRESULT> {
            if (message == UM_PANESIZED) {
                told.push_back({static_cast<int>(wParam), static_cast<int>(lParam)});
                whenTold();
            }
            return {};
        }};
    std::unique_ptr<WindowLayout> layout = std::make_unique<WindowLayout>(window);
};

TEST(WindowLayout, PlacesWindowsAndFollowsTheHostsSize)
{
    SplitHost host;
    EXPECT_EQ("0 0 150 300", Text(AreaOf(host.first)));
    EXPECT_EQ("158 2 398 298", Text(AreaOf(host.rest)));
    SetClientSize(host.window, 600, 200);
    EXPECT_EQ("0 0 150 200", Text(AreaOf(host.first)));
    EXPECT_EQ("158 2 598 198", Text(AreaOf(host.rest)));
}

TEST(WindowLayout, IsLaidOutWhenTheHostIsShownAndActivated)
{
    SplitHost host;
    for (const auto& [message, wParam] : {std::pair<UINT, WPARAM>{WM_SHOWWINDOW, TRUE},
                                          {WM_ACTIVATE, WA_ACTIVE},
                                          {WM_ACTIVATE, WA_CLICKACTIVE}}) {
        ::MoveWindow(host.first, 5, 5, 5, 5, FALSE);
        ::SendMessageA(host.window, message, wParam, 0);
        EXPECT_EQ("0 0 150 300", Text(AreaOf(host.first))) << message;
    }
    for (const auto& [message, wParam] : {std::pair<UINT, WPARAM>{WM_SHOWWINDOW, FALSE},
                                          {WM_ACTIVATE, WA_INACTIVE},
                                          {WM_ACTIVATE, MAKEWPARAM(WA_ACTIVE, 1)},  // minimised
                                          {WM_SIZE, SIZE_MINIMIZED}}) {
        ::MoveWindow(host.first, 5, 5, 5, 5, FALSE);
        ::SendMessageA(host.window, message, wParam, 0);
        EXPECT_EQ("5 5 10 10", Text(AreaOf(host.first))) << message;
    }
}

TEST(WindowLayout, PanesAreRemovedByWindowAndById)
{
    SplitHost host;
    const HWND third = MakeChild(host.window, "Static", "Third", 0, 103);
    host.layout->AddWindow(third, 20, kTop, nullptr);
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(host.first)) << "the first pane";
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(102)) << "behind the splitter";
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(0)) << "a splitter has no id";
    EXPECT_EQ(third, host.layout->RemoveWindow(third));
    EXPECT_EQ(0, host.layout->GetWindowProps(third, nullptr, nullptr, nullptr));
    EXPECT_EQ(kNoWindow, host.layout->RemoveWindow(kNoWindow));
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(101));
    EXPECT_EQ(host.rest, host.layout->RemoveWindow(102));
    EXPECT_TRUE(::IsWindow(host.rest));
}

TEST(WindowLayout, TellsWhatAPaneIs)
{
    SplitHost host;
    DWORD flags = 0;
    int size = 0;
    RECT area{};
    EXPECT_EQ(1, host.layout->GetWindowProps(host.first, &flags, &size, &area));
    EXPECT_EQ(kLeft | kPaneSizable, flags);
    EXPECT_EQ(150, size);
    EXPECT_EQ("0 0 400 300", Text(area));
    EXPECT_EQ(1, host.layout->GetWindowProps(host.rest, &flags, &size, nullptr));
    EXPECT_EQ(300, size);
    EXPECT_EQ(0, host.layout->GetWindowProps(host.window, &flags, &size, &area));
}

TEST(WindowLayout, KnowsTheSideOfARectangleOnTheScreen)
{
    SplitHost host;
    const auto side = [&](int x, int y) {
        RECT area{x - 5, y - 5, x + 5, y + 5};
        ::MapWindowPoints(host.window, nullptr, reinterpret_cast<POINT*>(&area), 2);
        return host.layout->WhichSide(area);
    };
    EXPECT_EQ(kPaneLeft, side(10, 150));
    EXPECT_EQ(kPaneRight, side(390, 150));
    EXPECT_EQ(kPaneTop, side(200, 10));
    EXPECT_EQ(kPaneBottom, side(200, 290));
    EXPECT_EQ(kPaneBottom, side(200, 150));
}

// ---- The mouse

TEST(WindowLayout, SplitterIsDraggedWithTheMouse)
{
    SplitHost host;
    const auto isTold = [&](int width) {
        return PumpUntil([&] {
            return !host.told.empty() && host.told.back() == std::pair{width, 300};
        });
    };
    MoveMouse(host.window, 153, 100);
    MouseButton(true);
    ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() == host.window; }));
    MoveMouse(host.window, 200, 100);
    EXPECT_TRUE(isTold(200));
    EXPECT_EQ("0 0 200 300", Text(AreaOf(host.first)));
    EXPECT_EQ("208 2 398 298", Text(AreaOf(host.rest)));
    MoveMouse(host.window, 120, 100);
    EXPECT_TRUE(isTold(120));
    host.Take();
    MouseButton(false);
    ASSERT_TRUE(PumpUntil([] { return ::GetCapture() == nullptr; }));
    EXPECT_TRUE(isTold(120)) << "once more at the end";
    host.Take();
    MoveMouse(host.window, 50, 100);
    EXPECT_EQ("0 0 120 300", Text(AreaOf(host.first)));
    EXPECT_TRUE(host.told.empty());
}

TEST(WindowLayout, DragStopsAtTheMinimumSizes)
{
    SplitHost host(kTop | kPaneEdge, 100);
    const Spy first(host.first, Minimum(0, 60)), rest(host.rest, Minimum(0, 70));
    const auto drag = [&](int y) {
        ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(100, y));
        return host.Take().back();
    };
    ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 103));
    EXPECT_EQ((std::pair{400, 120}), drag(120)) << "the slot with its edge";
    EXPECT_EQ("2 2 398 118", Text(AreaOf(host.first)));
    EXPECT_EQ((std::pair{400, 60}), drag(-20)) << "the window's minimum, as it is corrected";
    EXPECT_EQ((std::pair{400, 224}), drag(290)) << "76 are left for splitter and rest";
    ::SendMessageA(host.window, WM_LBUTTONUP, 0, MAKELPARAM(100, 290));
    EXPECT_THAT(host.Take(), ElementsAre(std::pair{400, 224}));
}

TEST(WindowLayout, CursorShowsThatASplitterCanBeDragged)
{
    struct {
        DWORD flags;
        LPCSTR cursor;
        POINT on;
    } const cases[] = {{kLeft, IDC_SIZEWE, {153, 100}}, {kTop, IDC_SIZENS, {100, 153}}};
    for (const auto& c : cases) {
        const SplitHost host(c.flags);
        MoveMouse(host.window, c.on.x, c.on.y);
        const HCURSOR sizing = ::LoadCursorA(nullptr, c.cursor);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() == sizing; }));
        MoveMouse(host.window, 20, 20);
        EXPECT_TRUE(PumpUntil([&] { return ::GetCursor() != sizing; }));
    }
}

TEST(WindowLayout, LosingTheMouseEndsTheDrag)
{
    SplitHost host;
    ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(153, 100));
    ::SetCapture(host.rest);
    ::SendMessageA(host.window, WM_MOUSEMOVE, 0, MAKELPARAM(200, 100));
    EXPECT_EQ("0 0 150 300", Text(AreaOf(host.first)));
    EXPECT_TRUE(host.told.empty());
}

TEST(WindowLayout, PressBesideASplitterDragsNothing)
{
    SplitHost host;
    for (const int x : {149, 156, 390})
        ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 100));
    EXPECT_EQ(nullptr, ::GetCapture());
}

// ---- The host's size and picture

TEST(WindowLayout, HostCannotBeSmallerThanItsPanes)
{
    SplitHost host;
    const Spy first(host.first, Minimum(120, 40)), rest(host.rest, Minimum(200, 150));
    SetClientSize(host.window, 10, 10);
    EXPECT_EQ("0 0 326 150", Text(ClientArea(host.window)));
    ::ShowWindow(host.window, SW_MINIMIZE);
    PumpWaiting();
    ::ShowWindow(host.window, SW_RESTORE);
    PumpWaiting();
    EXPECT_EQ("0 0 326 150", Text(ClientArea(host.window))) << "restored";
}

TEST(WindowLayout, HostMayWantALargerMinimumItself)
{
    SplitHost host;
    const Spy first(host.first, Minimum(120, 40));
    host.layout.reset();
    host.spy.reset();
    const Spy own(host.window, Minimum(500, 90));
    const WindowLayout layout(host.window);
    SetClientSize(host.window, 10, 10);
    RECT area;
    ::GetWindowRect(host.window, &area);
    EXPECT_EQ(500, area.right - area.left);
}

TEST(WindowLayout, PaintsEdgesAndGrips)
{
    SplitHost host;
    ::InvalidateRect(host.window, nullptr, TRUE);
    ::UpdateWindow(host.window);
    const COLORREF white = RGB(255, 255, 255), grey = RGB(128, 128, 128);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    std::vector<COLORREF> across, along;
    for (int x = 150; x < 156; ++x)
        across.push_back(PixelOf(host.window, x, 150));
    EXPECT_THAT(across, ElementsAre(face, white, grey, white, grey, face));
    for (const int y : {133, 134, 165, 166})
        along.push_back(PixelOf(host.window, 152, y));
    EXPECT_THAT(along, ElementsAre(face, grey, grey, face)) << "32 long";

    EXPECT_EQ(::GetSysColor(COLOR_3DSHADOW), PixelOf(host.window, 156, 150)) << "sunken";
    EXPECT_EQ(::GetSysColor(COLOR_3DDKSHADOW), PixelOf(host.window, 157, 150));
    EXPECT_EQ(::GetSysColor(COLOR_3DHIGHLIGHT), PixelOf(host.window, 399, 150));
    EXPECT_EQ(::GetSysColor(COLOR_3DHIGHLIGHT), PixelOf(host.window, 200, 299));
}

TEST(WindowLayout, GripOfALevelSplitterIsLevel)
{
    const SplitHost host(kTop, 100);
    ::InvalidateRect(host.window, nullptr, TRUE);
    ::UpdateWindow(host.window);
    EXPECT_EQ(RGB(255, 255, 255), PixelOf(host.window, 200, 101));
    EXPECT_EQ(RGB(128, 128, 128), PixelOf(host.window, 184, 104));
    EXPECT_EQ(::GetSysColor(COLOR_BTNFACE), PixelOf(host.window, 183, 104));
}

// ---- Life

TEST(WindowLayout, ProceduresAreRestoredInAnyOrder)
{
    // Ends the layout, the second one and the application's own procedure in each order.
    std::string order = "012";
    do {
        const TestWindow window("Order");
        const HWND child = MakeChild(window, "Static", "", 0, 101);
        const WNDPROC original = ProcedureOf(window);
        auto first = std::make_unique<WindowLayout>(window);
        int seen = 0;
        std::optional<Spy> spy(std::in_place, window, [&](UINT message, WPARAM, LPARAM) {
            seen += message == WM_APP;
            return std::optional<LRESULT>();
        });
        auto second = std::make_unique<WindowLayout>(window);
        second->AddWindow(child, 50, kTop, nullptr);
        for (const char which : order) {
            which == '0' ? first.reset() : which == '1' ? second.reset() : spy.reset();
            seen = 0;
            ::SendMessageA(window, WM_APP, 0, 0);
            EXPECT_EQ(spy ? 1 : 0, seen) << order;
            ::SetWindowTextA(window, order.c_str());
            EXPECT_EQ(order, TextOf(window)) << "the window's own procedure is reached";
            if (second && !first) {
                SetClientSize(window, 300, 200);
                EXPECT_EQ("0 0 300 50", Text(AreaOf(child))) << order << ": the second one follows";
                SetClientSize(window, 350, 200);
            }
        }
        EXPECT_TRUE(order.back() == '2' || ProcedureOf(window) == original) << order;
        EXPECT_EQ(nullptr, WindowLayout::GetMe(window));
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(WindowLayout, HostMayGoFirst)
{
    auto window = std::make_unique<TestWindow>("Gone");
    WindowLayout layout(*window);
    const HWND child = MakeChild(*window, "Static", "", 0, 101), host = *window;
    layout.AddWindow(child, 50, kTop | kPaneSizable, nullptr);
    layout.AddWindow(child, 50, kTop | kPaneEdge, nullptr);
    window.reset();
    EXPECT_EQ(nullptr, WindowLayout::GetMe(host));
    layout.ReCalcLayout();
    layout.RedrawAll();
    layout.AddWindow(child, 50, kTop, nullptr);
    EXPECT_EQ(qx::kPaneBottom, layout.WhichSide({0, 0, 10, 10}));
    EXPECT_EQ(child, layout.RemoveWindow(child));
}

TEST(WindowLayout, MoreThanThereIsRoomForAreNotRegistered)
{
    std::vector<std::unique_ptr<TestWindow>> windows;
    std::vector<std::unique_ptr<WindowLayout>> layouts;
    for (int i = 0; i < 40; ++i) {
        windows.push_back(std::make_unique<TestWindow>("Many", 100, 80));
        layouts.push_back(std::make_unique<WindowLayout>(*windows.back()));
        EXPECT_EQ(i < 32 ? layouts.back().get() : nullptr, WindowLayout::GetMe(*windows.back()));
    }
    const HWND child = MakeChild(*windows[35], "Static", "", 0, 101);
    layouts[35]->AddWindow(child, 10, kTop, nullptr);
    layouts[35]->ReCalcLayout();
    EXPECT_EQ(10, AreaOf(child).bottom);
    layouts[3].reset();
    layouts[39] = std::make_unique<WindowLayout>(*windows[39]);
    EXPECT_EQ(layouts[39].get(), WindowLayout::GetMe(*windows[39])) << "in the place that is free";
    for (std::size_t i = 0; i < 40; i += 2)
        windows[i].reset();
}

TEST(WindowLayout, MayEndInsideTheCallsOfItsWindows)
{
    enum class Act { End, DestroyHost, RemovePane, RemoveAll, AddPanes };
    for (const UINT message : {UM_PANESIZED, UINT{WM_GETMINMAXINFO}, UINT{WM_SIZE}}) {
        for (const Act act :
             {Act::End, Act::DestroyHost, Act::RemovePane, Act::RemoveAll, Act::AddPanes}) {
            SplitHost host;
            const HWND extra = MakeChild(host.window, "Static", "", 0, 104);
            host.layout->AddWindow(extra, 20, kTop | kPaneSizable, nullptr);
            bool armed = false;
            const auto actNow = [&] {
                if (!std::exchange(armed, false))
                    return;
                if (act == Act::End)
                    host.layout.reset();
                else if (act == Act::DestroyHost)
                    ::DestroyWindow(host.window);
                else if (act == Act::AddPanes)
                    for (int i = 0; i < 1000; ++i)
                        host.layout->AddWindow(extra, 20, kTop, nullptr);
                else
                    host.layout->RemoveWindow(extra);
                if (act == Act::RemoveAll)
                    host.layout->RemoveWindow(host.rest);
            };
            std::optional<Spy> spy;
            if (message == UM_PANESIZED) {
                host.whenTold = actNow;
            } else {
                spy.emplace(host.first, [&](UINT m, WPARAM, LPARAM) {
                    if (m == message)
                        actNow();
                    return std::optional<LRESULT>();
                });
            }
            ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(153, 100));
            armed = true;
            ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(170, 100));
            EXPECT_FALSE(armed) << message << " " << static_cast<int>(act);
            ::SendMessageA(host.window, WM_LBUTTONUP, 0, MAKELPARAM(175, 100));
            ::SendMessageA(host.window, WM_SIZE, 0, MAKELPARAM(10, 10));
        }
    }
}

TEST(WindowLayout, DraggedPaneMayBeRemoved)
{
    SplitHost host;
    const HWND second = MakeChild(host.window, "Static", "", 0, 104);
    host.layout->RemoveWindow(host.rest);
    host.layout->AddWindow(second, 100, kTop | kPaneSizable, nullptr);
    host.layout->AddWindow(host.rest, 10, kTop, nullptr);
    host.layout->ReCalcLayout();
    ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 103));
    ASSERT_EQ(static_cast<HWND>(host.window), ::GetCapture());
    host.whenTold = [&] { host.layout->RemoveWindow(second); };
    ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(200, 120));
    EXPECT_EQ(nullptr, ::GetCapture());
    ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(200, 130));
    EXPECT_EQ(1U, host.told.size());
}

TEST(WindowLayout, WindowsThatWereDestroyedAreLeftAlone)
{
    SplitHost host;
    ::DestroyWindow(host.rest);
    SetClientSize(host.window, 380, 280);
    EXPECT_EQ("0 0 150 280", Text(AreaOf(host.first)));
    EXPECT_EQ(host.rest, host.layout->RemoveWindow(host.rest));
}

TEST(WindowLayout, LeavesNothingBehind)
{
    const TestWindow window("Rounds");
    const HWND child = MakeChild(window, "Static", "", 0, 101);
    const auto round = [&](int i) {
        const HWND host =
            i % 2 ? static_cast<HWND>(window) : MakeChild(window, "Static", "", WS_BORDER, 102);
        auto layout = std::make_unique<WindowLayout>(host);
        layout->AddWindow(child, 50, kLeft | kPaneSizable | kPaneEdge, nullptr);
        layout->AddWindow(kNoWindow, 50, kTop, nullptr);
        layout->ReCalcLayout();
        if (i % 4 == 0)
            layout.reset();
        if (i % 2 == 0)
            ::DestroyWindow(host);
    };
    for (int i = 0; i < 8; ++i)
        round(i);
    const ObjectCounts before = CountObjects();
    for (int i = 0; i < 1000; ++i)
        round(i);
    EXPECT_EQ(before, CountObjects());
}
