// Panes of a real window, resized with the real mouse.
#include "support/win32_screen.h"
#include "support/window_spy.h"

#include <qxutility/ui/window_layout.h>

#include <gmock/gmock.h>
#include <memory>
#include <optional>
#include <tuple>

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
        if (message == WM_GETMINMAXINFO)
            reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {width, height};
        return message == WM_GETMINMAXINFO ? std::optional<LRESULT>(0) : std::nullopt;
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
    RECT area{0, 0, width, height};
    ::AdjustWindowRect(&area, WS_OVERLAPPEDWINDOW, FALSE);
    ::SetWindowPos(window, nullptr, 0, 0, area.right - area.left, area.bottom - area.top,
                   SWP_NOMOVE | SWP_NOZORDER);
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

    auto Take() { return std::exchange(told, {}); }
    // Waits until the host was told of the first pane's width.
    bool IsTold(int width) const
    {
        return PumpUntil([=, this] {
            return !told.empty() && told.back() == std::pair{width, 300};
        });
    }

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
    static constexpr std::tuple<UINT, WPARAM, bool> kCases[] = {
        {WM_SHOWWINDOW, TRUE, true},
        {WM_ACTIVATE, WA_ACTIVE, true},
        {WM_SHOWWINDOW, FALSE, false},
        {WM_ACTIVATE, WA_CLICKACTIVE, true},
        {WM_SIZE, SIZE_MINIMIZED, false},
        {WM_ACTIVATE, WA_INACTIVE, false},
        {WM_ACTIVATE, MAKEWPARAM(WA_ACTIVE, 1), false}};
    for (const auto& [message, wParam, laidOut] : kCases) {
        ::MoveWindow(host.first, 5, 5, 5, 5, FALSE);
        ::SendMessageA(host.window, message, wParam, 0);
        EXPECT_EQ(laidOut ? "0 0 150 300" : "5 5 10 10", Text(AreaOf(host.first)))
            << message << ' ' << wParam;
    }
}

TEST(WindowLayout, PanesAreRemovedByWindowAndById)
{
    SplitHost host;
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(host.first)) << "the first pane";
    EXPECT_EQ(nullptr, host.layout->RemoveWindow(0)) << "a splitter has no id";
    EXPECT_EQ(kNoWindow, host.layout->RemoveWindow(kNoWindow)) << "but may go by itself";
    EXPECT_EQ(host.rest, host.layout->RemoveWindow(102));
    EXPECT_TRUE(::IsWindow(host.rest));
    EXPECT_EQ(0, host.layout->GetWindowProps(host.rest, nullptr, nullptr, nullptr));
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
    EXPECT_EQ(0, host.layout->GetWindowProps(host.window, &flags, &size, &area));
}

TEST(WindowLayout, KnowsTheSideOfARectangleOnTheScreen)
{
    SplitHost host;
    RECT area{5, 145, 15, 155};
    ::MapWindowPoints(host.window, nullptr, reinterpret_cast<POINT*>(&area), 2);
    EXPECT_EQ(kPaneLeft, host.layout->WhichSide(area));
}

// ---- The mouse

TEST(WindowLayout, SplitterIsDraggedWithTheMouse)
{
    SplitHost host;
    MoveMouse(host.window, 153, 100);
    MouseButton(true);
    ASSERT_TRUE(PumpUntil([&] { return ::GetCapture() == host.window; }));
    MoveMouse(host.window, 200, 100);
    EXPECT_TRUE(host.IsTold(200));
    EXPECT_EQ("0 0 200 300", Text(AreaOf(host.first)));
    EXPECT_EQ("208 2 398 298", Text(AreaOf(host.rest)));
    host.Take();
    MouseButton(false);
    ASSERT_TRUE(PumpUntil([] { return ::GetCapture() == nullptr; }));
    EXPECT_TRUE(host.IsTold(200)) << "once more at the end";
    host.Take();
    MoveMouse(host.window, 50, 100);
    EXPECT_TRUE(host.told.empty());
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

TEST(WindowLayout, OnlyAHeldSplitterIsDragged)
{
    SplitHost host;
    for (const int x : {149, 156, 390})
        ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, 100));
    EXPECT_EQ(nullptr, ::GetCapture()) << "pressed beside it";
    ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(153, 100));
    ::SetCapture(host.rest);
    ::SendMessageA(host.window, WM_MOUSEMOVE, 0, MAKELPARAM(200, 100));
    EXPECT_TRUE(host.told.empty()) << "the mouse was taken away";
}

// ---- The host's size and picture

TEST(WindowLayout, HostCannotBeSmallerThanItsPanes)
{
    SplitHost host;
    const Spy first(host.first, Minimum(120, 40)), rest(host.rest, Minimum(200, 150));
    SetClientSize(host.window, 10, 10);
    EXPECT_EQ("0 0 326 150", Text(ClientArea(host.window)));
    for (const int show : {SW_MINIMIZE, SW_RESTORE}) {
        ::ShowWindow(host.window, show);
        PumpWaiting();
    }
    EXPECT_EQ("0 0 326 150", Text(ClientArea(host.window))) << "restored";
}

TEST(WindowLayout, HostMayWantALargerMinimumItself)
{
    const TestWindow window("Wide");
    const Spy own(window, Minimum(500, 90));
    const WindowLayout layout(window);
    SetClientSize(window, 10, 10);
    EXPECT_EQ(500, AreaOf(window).right - AreaOf(window).left);
}

TEST(WindowLayout, PaintsEdgesAndGrips)
{
    const COLORREF white = RGB(255, 255, 255), grey = RGB(128, 128, 128);
    const COLORREF face = ::GetSysColor(COLOR_BTNFACE);
    const COLORREF light = ::GetSysColor(COLOR_3DHIGHLIGHT);
    const SplitHost upright, level(kTop, 100);
    const struct {
        const SplitHost& host;
        int x, y;
        COLORREF color;
    } cases[] = {
        {upright, 150, 150, face},  {upright, 151, 150, white},
        {upright, 152, 150, grey},  {upright, 155, 150, face},
        {upright, 152, 133, face},  {upright, 152, 134, grey},
        {upright, 152, 165, grey},  {upright, 152, 166, face},
        {upright, 399, 150, light}, {upright, 200, 299, light},
        {level, 200, 101, white},   {level, 184, 104, grey},
        {level, 183, 104, face},    {upright, 156, 150, ::GetSysColor(COLOR_3DSHADOW)},
    };
    for (const auto& c : cases) {
        ::RedrawWindow(c.host.window, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        EXPECT_EQ(c.color, PixelOf(c.host.window, c.x, c.y)) << c.x << ' ' << c.y;
    }
}

// ---- Life

TEST(WindowLayout, ProceduresAreRestoredInAnyOrder)
{
    // Ends the layout, the second one and the application's own procedure in each order.
    std::string order = "012";
    do {
        const TestWindow window("Order");
        const HWND child = MakeChild(window, "Static", "", 0, 101);
        const LONG_PTR original = ::GetWindowLongPtrA(window, GWLP_WNDPROC);
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
            ::MoveWindow(child, 0, 0, 5, 5, FALSE);
            SetClientSize(window, 300 + which, 200);
            EXPECT_EQ(second && !first ? 50 : 5, AreaOf(child).bottom) << order;
        }
        EXPECT_TRUE(order.back() == '2' || ::GetWindowLongPtrA(window, GWLP_WNDPROC) == original);
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
    for (int i = 0; i < 33; ++i) {
        windows.push_back(std::make_unique<TestWindow>("Many", 100, 80));
        layouts.push_back(std::make_unique<WindowLayout>(*windows.back()));
        EXPECT_EQ(i < 32 ? layouts.back().get() : nullptr, WindowLayout::GetMe(*windows.back()));
    }
    layouts[3].reset();
    layouts[32] = std::make_unique<WindowLayout>(*windows[32]);
    EXPECT_EQ(layouts[32].get(), WindowLayout::GetMe(*windows[32])) << "in the place that is free";
}

TEST(WindowLayout, MayEndInsideTheCallsOfItsWindows)
{
    using Act = void (*)(SplitHost&, HWND extra);
    static constexpr Act kActs[] = {
        [](SplitHost& host, HWND) { host.layout.reset(); },
        [](SplitHost& host, HWND) { ::DestroyWindow(host.window); },
        [](SplitHost& host, HWND extra) {
            host.layout->RemoveWindow(extra);
            host.layout->RemoveWindow(host.rest);
        },
        [](SplitHost& host, HWND extra) {
            for (int i = 0; i < 1000; ++i)
                host.layout->AddWindow(extra, 20, kTop, nullptr);
        },
    };
    for (const UINT message : {UM_PANESIZED, UINT{WM_GETMINMAXINFO}, UINT{WM_SIZE}}) {
        for (const Act& act : kActs) {
            SplitHost host;
            const HWND extra = MakeChild(host.window, "Static", "", 0, 104);
            host.layout->AddWindow(extra, 20, kTop | kPaneSizable, nullptr);
            ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(153, 100));
            bool armed = true;
            host.whenTold = [&] {
                if (message == UM_PANESIZED && std::exchange(armed, false))
                    act(host, extra);
            };
            const Spy spy(host.first, [&](UINT m, WPARAM, LPARAM) {
                if (m == message && std::exchange(armed, false))
                    act(host, extra);
                return std::optional<LRESULT>();
            });
            ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(170, 100));
            EXPECT_FALSE(armed) << message << ", act " << &act - kActs;
            ::SendMessageA(host.window, WM_LBUTTONUP, 0, MAKELPARAM(175, 100));
            ::SendMessageA(host.window, WM_SIZE, 0, MAKELPARAM(10, 10));
        }
    }
}

TEST(WindowLayout, DraggedPaneMayBeRemoved)
{
    SplitHost host(kTop, 50);
    const HWND last = MakeChild(host.window, "Static", "", 0, 104);
    host.layout->RemoveWindow(host.rest);
    host.layout->AddWindow(host.rest, 100, kTop | kPaneSizable, nullptr);
    host.layout->AddWindow(last, 10, kTop, nullptr);
    host.layout->ReCalcLayout();
    ::SendMessageA(host.window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(200, 159));
    ASSERT_EQ(static_cast<HWND>(host.window), ::GetCapture());
    host.whenTold = [&] { host.layout->RemoveWindow(host.rest); };
    for (const int y : {170, 180})
        ::SendMessageA(host.window, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(200, y));
    EXPECT_EQ(nullptr, ::GetCapture());
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
