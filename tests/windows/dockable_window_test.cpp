// Floating windows of a real frame, moved with the real mouse.
#include "support/win32_screen.h"
#include "support/window_spy.h"

#include <qxutility/ui/dockable_window.h>

#include <commctrl.h>

#include <algorithm>
#include <gmock/gmock.h>
#include <memory>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;

static constexpr int kId = 77;

static RECT ScreenArea(HWND window)
{
    RECT area;
    ::GetWindowRect(window, &area);
    return area;
}

static COLORREF ScreenPixel(int x, int y)
{
    const HDC screen = ::GetDC(nullptr);
    const COLORREF color = ::GetPixel(screen, x, y);
    ::ReleaseDC(nullptr, screen);
    return color;
}

// A frame with a toolbar that floats at (600, 300). It notes what it is asked and told; all of the
// screen above y = 200 is its dock area.
struct Frame {
    explicit Frame(const char* className = TOOLBARCLASSNAMEA)
        : hosted(MakeChild(window, className, "", CCS_NORESIZE | CCS_NOPARENTALIGN, kId))
    {
        ::MoveWindow(hosted, 0, 0, 220, 26, TRUE);
        ::SetForegroundWindow(window);
        dockable = std::make_unique<DockableWindow>(window, hosted);
        dockable->SetX(600);
        dockable->SetY(300);
        floating = ::GetParent(hosted);
        PumpWaiting();
        moves = 0;
    }
    std::optional<LRESULT> Note(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == UM_DOCKQUERY) {
            asked.push_back(*reinterpret_cast<const RECT*>(wParam));
            flags = lParam;
            whenAsked();
            return asked.back().top < 200;
        }
        if (message == UM_DOCKREQUEST) {
            requests.push_back({wParam, lParam});
            whenRequested();
        }
        moves += message == UM_FLOATMOVED;
        return {};
    }

    std::vector<RECT> asked;
    std::vector<std::pair<WPARAM, LPARAM>> requests;
    LPARAM flags = -1;
    int moves = 0;
    std::function<void()> whenAsked = [] {}, whenRequested = [] {};
    TestWindow window{"Frame"};
    Spy spy{window, [this](UINT m, WPARAM w, LPARAM l) { return Note(m, w, l); }};
    HWND hosted;
    std::unique_ptr<DockableWindow> dockable;
    HWND floating;
};

// ---- The mouse

// Steps of the mouse, taken by a timer inside the system's own loop of moving a window.
static std::vector<std::function<void()>> steps;

static void CALLBACK TakeStep(HWND, UINT, UINT_PTR id, DWORD)
{
    if (steps.empty()) {
        ::KillTimer(nullptr, id);
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        return;
    }
    const auto step = steps.front();
    steps.erase(steps.begin());
    step();
}

static std::function<void()> To(int x, int y)
{
    return [=] {
        ::SetCursorPos(x, y);
        ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0);
    };
}

// Presses the button at a point of the screen, takes the steps and lets go.
static void Drag(POINT from, std::vector<std::function<void()>> through)
{
    steps = std::move(through);
    To(from.x, from.y)();
    PumpWaiting();
    ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
    ::SetTimer(nullptr, 0, 20, TakeStep);
    EXPECT_TRUE(PumpUntil([] { return steps.empty() && ::GetKeyState(VK_LBUTTON) >= 0; }));
    PumpWaiting();
}

static POINT CaptionOf(HWND window)
{
    const RECT area = ScreenArea(window);
    return {area.left + 40, area.top + 10};
}

TEST(DockableWindow, MoveOverTheDockAreaAsksAndGoesBack)
{
    Frame frame;
    const RECT start = ScreenArea(frame.floating);
    Drag(CaptionOf(frame.floating), {To(660, 330), To(700, 250), To(720, 100), To(720, 90)});
    ASSERT_TRUE(PumpUntil([&] { return !frame.requests.empty(); }));
    EXPECT_THAT(frame.requests, ElementsAre(std::pair<WPARAM, LPARAM>{kId, 1}));
    EXPECT_EQ(1, frame.flags);
    const RECT end = ScreenArea(frame.floating);
    EXPECT_TRUE(::EqualRect(&start, &end));
    HWND owner = nullptr;
    RECT dock;
    frame.dockable->Dock(&owner, &dock);
    EXPECT_EQ(frame.window, owner);
    ASSERT_FALSE(frame.asked.empty());
    EXPECT_TRUE(::EqualRect(&frame.asked.back(), &dock));
    EXPECT_EQ(680, dock.left);
    EXPECT_EQ(80, dock.top);
}

TEST(DockableWindow, MoveElsewhereMovesIt)
{
    Frame frame;
    Drag(CaptionOf(frame.floating), {To(720, 100), To(660, 330), To(740, 510)});
    EXPECT_TRUE(PumpUntil([&] { return frame.moves > 0; }));
    EXPECT_THAT(frame.requests, IsEmpty());
    EXPECT_EQ(700, frame.dockable->GetX());
    EXPECT_EQ(500, frame.dockable->GetY());
}

TEST(DockableWindow, OnlyAnInvertedOutlineIsSeenWhileItMoves)
{
    Frame frame;
    const auto inverted = [](COLORREF color) { return color ^ 0xFFFFFF; };
    const RECT start = ScreenArea(frame.floating);
    const POINT onTop{720, 450}, insideIt{720, 460};
    const COLORREF before = ScreenPixel(onTop.x, onTop.y), inside = ScreenPixel(720, 460);
    Drag({start.left + 40, start.top + 10},
         {To(690, 460), To(740, 460),
          [&] {
              EXPECT_EQ(inverted(before), ScreenPixel(onTop.x, onTop.y));
              EXPECT_EQ(inside, ScreenPixel(insideIt.x, insideIt.y));
              EXPECT_EQ(inverted(before), ScreenPixel(700, 455)) << "left";
              EXPECT_EQ(inverted(before), ScreenPixel(699 + frame.dockable->GetWidth(), 455));
              EXPECT_EQ(before, ScreenPixel(653, 450)) << "the one before is erased";
              EXPECT_FALSE(::IsWindowVisible(frame.hosted));
          },
          To(740, 560)});
    EXPECT_EQ(before, ScreenPixel(onTop.x, onTop.y)) << "erased at the end";
    EXPECT_TRUE(::IsWindowVisible(frame.hosted));
    const HRGN region = ::CreateRectRgn(0, 0, 0, 0);
    EXPECT_EQ(ERROR, ::GetWindowRgn(frame.floating, region)) << "restored";
    ::DeleteObject(region);
}

TEST(DockableWindow, BordersResizeWithoutAQuestion)
{
    Frame frame;
    const RECT start = ScreenArea(frame.floating);
    Drag({start.right - 2, start.bottom - 2}, {To(start.right + 38, 100), To(900, 420)});
    RECT client;
    ::GetClientRect(frame.floating, &client);
    EXPECT_THAT(frame.asked, IsEmpty());
    EXPECT_THAT(frame.requests, IsEmpty());
    EXPECT_EQ(900 - start.right + 2 + start.right - start.left, frame.dockable->GetWidth());
    EXPECT_EQ(client.right, AreaOf(frame.hosted).right);
    EXPECT_EQ(client.bottom, AreaOf(frame.hosted).bottom);
    Drag(CaptionOf(frame.floating), {To(700, 320), To(720, 100)});
    EXPECT_TRUE(PumpUntil([&] { return !frame.requests.empty(); })) << "a move after it asks again";
}

// ---- Docking

TEST(DockableWindow, FloatsInTheSizeOfItsWindowAndIsDockedAgain)
{
    Frame frame;
    RECT client;
    ::GetClientRect(frame.floating, &client);
    EXPECT_EQ(220, client.right);
    EXPECT_EQ(26, client.bottom);
    EXPECT_TRUE(frame.dockable->IsUnDocked());
    EXPECT_EQ(frame.window, ::GetFocus());

    frame.dockable->Dock(nullptr, nullptr);
    ::SetParent(frame.hosted, frame.window);
    ::MoveWindow(frame.hosted, 5, 6, 70, 20, TRUE);
    EXPECT_FALSE(frame.dockable->IsUnDocked());
    EXPECT_FALSE(::IsWindowVisible(frame.floating));
    frame.dockable->SetWidth(400);
    EXPECT_EQ(75, AreaOf(frame.hosted).right) << "a docked window is not touched";

    frame.dockable->UnDock(frame.window, frame.hosted, 300, 50);
    EXPECT_EQ(frame.floating, ::GetParent(frame.hosted));
    EXPECT_EQ(300, AreaOf(frame.hosted).right);
    EXPECT_EQ(600, frame.dockable->GetX());
    EXPECT_TRUE(::IsWindowVisible(frame.floating) && frame.dockable->IsUnDocked());
}

TEST(DockableWindow, CloseButtonAsksAndClosesNothing)
{
    for (const bool toolbar : {true, false}) {
        Frame frame(toolbar ? TOOLBARCLASSNAMEA : "Static");
        const RECT area = ScreenArea(frame.floating);
        To(area.right - 14, area.top + 12)();
        ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
        ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        EXPECT_TRUE(PumpUntil([&] { return !frame.requests.empty(); }));
        EXPECT_THAT(frame.requests,
                    ElementsAre(std::pair<WPARAM, LPARAM>{kId, toolbar ? 0x10001 : 0x10000}));
        EXPECT_TRUE(::IsWindowVisible(frame.floating));
    }
}

TEST(DockableWindow, OwnerGetsCommandsAndOwnMessages)
{
    std::vector<UINT> seen;
    Frame frame;
    const HWND owner = MakeChild(frame.window, "Static", "", 0, 5);
    frame.dockable->UnDock(owner, frame.hosted, 0, 0);
    const Spy spy(owner, [&](UINT message, WPARAM wParam, LPARAM lParam) {
        seen.push_back(message);
        EXPECT_TRUE(wParam == 3 && lParam == 4) << message;
        return std::optional<LRESULT>(9);
    });
    for (const UINT message : {WM_COMMAND, WM_CONTEXTMENU, WM_USER + 1, WM_APP + 5, 0xC123})
        EXPECT_EQ(9, ::SendMessageA(frame.floating, message, 3, 4)) << message;
    EXPECT_EQ(0, ::SendMessageA(frame.floating, WM_USER, 3, 4));
    EXPECT_THAT(seen,
                ElementsAre(WM_COMMAND, WM_CONTEXTMENU, WM_USER + 1, WM_APP + 5, UINT{0xC123}));
}

TEST(DockableWindow, CaptionOfTheFrameStaysActive)
{
    Frame frame;
    const auto caption = [&] {
        const HDC dc = ::GetWindowDC(frame.window);
        const COLORREF color = ::GetPixel(dc, 200, 8);
        ::ReleaseDC(frame.window, dc);
        return color;
    };
    const COLORREF active = caption();
    ::DefWindowProcA(frame.window, WM_NCACTIVATE, FALSE, 0);
    const COLORREF inactive = caption();
    ASSERT_NE(active, inactive);
    ::SetForegroundWindow(frame.floating);
    PumpWaiting();
    EXPECT_EQ(active, caption());
    ::SendMessageA(frame.window, WM_ACTIVATEAPP, FALSE, 0);
    EXPECT_EQ(inactive, caption()) << "another application";
    ::SendMessageA(frame.window, WM_ACTIVATEAPP, TRUE, 0);
    EXPECT_EQ(active, caption());
    ::SendMessageA(frame.window, WM_NCACTIVATE, FALSE, 0);
    EXPECT_EQ(active, caption());
    const TestWindow other("Other", 200, 400);
    ::SetWindowPos(other, nullptr, 700, 600, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    for (const HWND window : {HWND{frame.window}, HWND{other}})
        ::SetForegroundWindow(window);
    EXPECT_EQ(inactive, caption()) << "no floating window";
}

// ---- Life

TEST(DockableWindow, ShareOneSubclassInAnyOrderOfDestruction)
{
    std::string order = "0123";
    do {
        auto window = std::make_unique<TestWindow>("Order", 100, 80);
        const HWND frame = *window;
        const WNDPROC original = ProcedureOf(frame);
        std::unique_ptr<DockableWindow> floats[3];
        for (auto& one : floats)
            one = std::make_unique<DockableWindow>(frame, MakeChild(frame, "Static", "", 0, 1));
        EXPECT_NE(original, ProcedureOf(frame));
        for (const char which : order) {
            which == '3' ? window.reset() : floats[which - '0'].reset();
            const bool follows =
                std::any_of(floats, floats + 3, [](auto& f) { return f != nullptr; });
            EXPECT_TRUE(!window || follows == (ProcedureOf(frame) != original))
                << order << " after " << which;
        }
    } while (std::next_permutation(order.begin(), order.end()));
}

TEST(DockableWindow, HostedWindowSurvivesInItsOwner)
{
    Frame frame;
    frame.dockable.reset();
    EXPECT_FALSE(::IsWindow(frame.floating));
    EXPECT_EQ(frame.window, ::GetParent(frame.hosted));
    EXPECT_FALSE(::IsWindowVisible(frame.hosted));
}

TEST(DockableWindow, MayEndInsideTheCallsOfItsFrame)
{
    {
        Frame frame;
        frame.whenRequested = [&] { frame.dockable.reset(); };
        ::SendMessageA(frame.floating, WM_CLOSE, 0, 0);
        EXPECT_FALSE(::IsWindow(frame.floating));
    }
    Frame frame;
    frame.whenAsked = [&] { frame.dockable.reset(); };
    const COLORREF before = ScreenPixel(720, 450);
    Drag(CaptionOf(frame.floating), {To(690, 460), To(740, 460), To(140, 260)});
    EXPECT_EQ(1u, frame.asked.size());
    EXPECT_FALSE(::IsWindow(frame.floating));
    EXPECT_EQ(before, ScreenPixel(720, 450));
}

TEST(DockableWindow, MoreFramesThanThereIsRoomForAreNotFollowed)
{
    std::vector<std::unique_ptr<TestWindow>> windows;
    std::vector<std::unique_ptr<DockableWindow>> floats;
    for (int i = 0; i < 35; ++i) {
        const HWND frame = *windows.emplace_back(std::make_unique<TestWindow>("Many", 100, 80));
        const WNDPROC original = ProcedureOf(frame);
        const HWND hosted = MakeChild(frame, "Static", "", 0, 1);
        floats.push_back(std::make_unique<DockableWindow>(frame, hosted));
        EXPECT_EQ(i < 32, ProcedureOf(frame) != original) << i;
        EXPECT_EQ(frame, ::GetWindow(::GetParent(hosted), GW_OWNER)) << "floats all the same";
    }
}

TEST(DockableWindow, BearsMessagesAtOddTimes)
{
    Frame frame;
    const RECT start = ScreenArea(frame.floating);
    RECT proposed{10, 10, 50, 50};
    const auto step = reinterpret_cast<LPARAM>(&proposed);
    const struct {
        UINT message;
        LPARAM lParam;
    } messages[] = {{WM_EXITSIZEMOVE, 0},  {WM_MOVING, step},   {WM_CREATE, 0},
                    {WM_ENTERSIZEMOVE, 0}, {WM_SIZING, step},   {WM_MOVING, 0},
                    {WM_MOVING, step},     {WM_CLOSE, 0},       {WM_PAINT, 0},
                    {WM_EXITSIZEMOVE, 0},  {WM_EXITSIZEMOVE, 0}};
    for (const auto& m : messages)
        ::SendMessageA(frame.floating, m.message, 0, m.lParam);
    PumpWaiting();
    EXPECT_EQ(1u, frame.asked.size()) << "only in a move, and with a rectangle";
    EXPECT_EQ(1u, frame.requests.size());
    const RECT end = ScreenArea(frame.floating);
    EXPECT_TRUE(::EqualRect(&start, &end));

    ::SendMessageA(frame.floating, WM_ENTERSIZEMOVE, 0, 0);
    ::DestroyWindow(frame.floating);
    EXPECT_FALSE(frame.dockable->IsUnDocked());
    frame.dockable->UnDock(frame.window, frame.hosted, 0, 0);
    frame.dockable->Dock(nullptr, nullptr);
    frame.dockable->SetWindowTextA("Gone");
    EXPECT_EQ(0, frame.dockable->GetWidth());
}

TEST(DockableWindow, NothingIsLeft)
{
    const TestWindow window("Leaks", 200, 100);
    const auto round = [&] {
        const HWND hosted = MakeChild(window, "Static", "", 0, 1);
        DockableWindow dockable(window, hosted);
        const HWND floating = ::GetParent(hosted);
        ::SendMessageA(floating, WM_ENTERSIZEMOVE, 0, 0);
        RECT proposed{10, 10, 50, 50};
        ::SendMessageA(floating, WM_MOVING, 0, reinterpret_cast<LPARAM>(&proposed));
        ::SendMessageA(floating, WM_EXITSIZEMOVE, 0, 0);
        ::DestroyWindow(hosted);
    };
    round();
    PumpWaiting();
    const ObjectCounts before = CountObjects();
    for (int i = 0; i < 1000; ++i)
        round();
    PumpWaiting();
    EXPECT_EQ(before, CountObjects());
}
