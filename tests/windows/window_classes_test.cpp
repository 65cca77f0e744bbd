// Real windows of the classes that the library registers.
#include "support/win32_ui.h"

#include <qxutility/config/startup.h>

#include <commctrl.h>

#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;
using Reports = std::vector<std::pair<int, int>>;  // code and position

static HINSTANCE Library()
{
    SetAssertsOff();  // the program needs the library: it is loaded
    return ::GetModuleHandleA("QXUtility.dll");
}

// A window without a frame, shown and painted; destroyed with the object.
class ShownWindow {
  public:
    ShownWindow(const char* className, const char* text, int width, int height)
        : m_window(::CreateWindowExA(0, className, text, WS_POPUP | WS_VISIBLE, 50, 50, width,
                                     height, nullptr, nullptr, Library(), nullptr))
    {
        ::UpdateWindow(m_window);
    }
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;
    ~ShownWindow() { ::DestroyWindow(m_window); }

    operator HWND() const { return m_window; }

  private:
    HWND m_window;
};

// The colours of every third pixel of every third row.
static std::vector<COLORREF> Picture(HWND window)
{
    RECT area;
    ::GetClientRect(window, &area);
    std::vector<COLORREF> pixels;
    const HDC dc = ::GetDC(window);
    for (int y = 0; y < area.bottom; y += 3) {
        for (int x = 0; x < area.right; x += 3)
            pixels.push_back(::GetPixel(dc, x, y));
    }
    ::ReleaseDC(window, dc);
    return pixels;
}

static bool Changes(HWND window)
{
    const auto before = Picture(window);
    return PumpUntil([&] { return Picture(window) != before; });
}

// ---- Please wait, and the surprise

TEST(PleaseWait, MovesItsBarByItself)
{
    const ShownWindow window("QX_PLEASEWAIT", "Calculating the network", 240, 90);
    ASSERT_NE(nullptr, static_cast<HWND>(window));
    EXPECT_TRUE(Changes(window));
}

// The columns above the bar that hold a pixel of the text's colour.
static int InkedColumns(HWND window)
{
    RECT area;
    ::GetClientRect(window, &area);
    const HDC dc = ::GetDC(window);
    int columns = 0;
    for (int x = 0; x < area.right; ++x) {
        bool inked = false;
        for (int y = 0; y < area.bottom / 2; ++y)
            inked = inked || ::GetPixel(dc, x, y) == ::GetSysColor(COLOR_BTNTEXT);
        columns += inked;
    }
    ::ReleaseDC(window, dc);
    return columns;
}

TEST(PleaseWait, ShowsItsTextAndANewOne)
{
    const ShownWindow window("QX_PLEASEWAIT", "", 300, 100);
    EXPECT_EQ(0, InkedColumns(window));
    ::SetWindowTextA(window, "Short");
    ::UpdateWindow(window);
    const int few = InkedColumns(window);
    EXPECT_LT(10, few);
    ::SetWindowTextA(window, "A much longer text in one line");
    ::UpdateWindow(window);
    EXPECT_LT(3 * few, InkedColumns(window));
}

TEST(PleaseWait, IsMadeByAnyModuleAndClosesWithClose)
{
    const HWND window =
        ::CreateWindowExA(WS_EX_TOPMOST, "QX_PLEASEWAIT", "Wait", WS_POPUP | WS_DLGFRAME, 0, 0, 0,
                          0, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(nullptr, window);
    ::ShowWindow(window, SW_SHOWNA);
    ::UpdateWindow(window);
    ::SendMessageA(window, WM_CLOSE, 0, 0);
    EXPECT_FALSE(::IsWindow(window));
}

TEST(Surprise, MovesAndGetsLivelierWithEachClick)
{
    const ShownWindow window("XYZZY", "Hello", 120, 200);
    EXPECT_TRUE(Changes(window));
    const LONG before = ::GetWindowLongA(window, 8);
    ::SendMessageA(window, WM_LBUTTONDOWN, 0, MAKELPARAM(10, 10));
    EXPECT_LT(before, ::GetWindowLongA(window, 8));
    for (int i = 0; i < 1000; ++i)
        ::SendMessageA(window, WM_LBUTTONDOWN, 0, MAKELPARAM(10, 10));
    EXPECT_GE(100, ::GetWindowLongA(window, 8));
}

TEST(WindowClasses, LeaveNothingBehind)
{
    const auto round = [](const char* className) {
        const ShownWindow window(className, "Text", 100, 50);
        ::SendMessageA(window, WM_TIMER, 1, 0);
        ::UpdateWindow(window);
    };
    for (const char* name : {"QX_PLEASEWAIT", "XYZZY", "QX_CUSTOMTRACKBAR"}) {
        round(name);
        const ObjectCounts before = CountObjects();
        for (int i = 0; i < 200; ++i)
            round(name);
        EXPECT_EQ(before, CountObjects()) << name;
    }
}

// ---- Trackbar

// A trackbar in a window that keeps what it is told.
class TrackbarWindow {
  public:
    TrackbarWindow(const char* className, DWORD style, int width, int height)
        : m_parent("Trackbar"),
          m_bar(MakeChild(m_parent, className, "", WS_TABSTOP | style, 100)),
          m_parentProcedure(reinterpret_cast<WNDPROC>(::SetWindowLongPtrA(
              m_parent, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ParentProcedure))))
    {
        s_current = this;
        ::MoveWindow(m_bar, 0, 0, width, height, TRUE);
        ::SetFocus(m_bar);
        ::UpdateWindow(m_bar);
    }
    TrackbarWindow(const TrackbarWindow&) = delete;
    TrackbarWindow& operator=(const TrackbarWindow&) = delete;
    ~TrackbarWindow() { s_current = nullptr; }

    LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const
    {
        return ::SendMessageA(m_bar, message, wParam, lParam);
    }
    int Position() const { return static_cast<int>(Send(TBM_GETPOS)); }
    void Key(WPARAM key) const
    {
        Send(WM_KEYDOWN, key, 1);
        Send(WM_KEYUP, key, 1);
    }
    void Mouse(UINT message, POINT at) const { Send(message, MK_LBUTTON, MAKELPARAM(at.x, at.y)); }
    POINT ThumbMiddle() const
    {
        RECT thumb{};
        Send(TBM_GETTHUMBRECT, 0, reinterpret_cast<LPARAM>(&thumb));
        return {(thumb.left + thumb.right) / 2, (thumb.top + thumb.bottom) / 2};
    }
    Reports Take() { return std::exchange(m_reports, {}); }

    HWND window() const { return m_bar; }
    bool destroyOnReport = false;
    UINT reportedWith = 0;
    bool toldReleasedCapture = false;

  private:
    static LRESULT CALLBACK ParentProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return s_current->Handle(window, message, wParam, lParam);
    }
    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if ((message == WM_HSCROLL || message == WM_VSCROLL) && lParam != 0) {
            reportedWith = message;
            m_reports.push_back({LOWORD(wParam), static_cast<short>(HIWORD(wParam))});
            if (destroyOnReport)
                ::DestroyWindow(m_bar);
        }
        if (message == WM_NOTIFY)
            toldReleasedCapture =
                toldReleasedCapture || reinterpret_cast<const NMHDR*>(lParam)->code ==
                                           static_cast<UINT>(NM_RELEASEDCAPTURE);
        return ::CallWindowProcA(m_parentProcedure, window, message, wParam, lParam);
    }

    static inline TrackbarWindow* s_current = nullptr;
    TestWindow m_parent;
    HWND m_bar;
    WNDPROC m_parentProcedure;
    Reports m_reports;
};

static const char kOurs[] = "QX_CUSTOMTRACKBAR";

TEST(TrackbarWindow, AnswersKeysAsTheStandardControlDoes)
{
    TrackbarWindow ours(kOurs, TBS_AUTOTICKS, 200, 40);
    const std::pair<WPARAM, Reports> cases[] = {
        {VK_RIGHT, {{TB_LINEDOWN, 0}, {TB_ENDTRACK, 0}}},
        {VK_DOWN, {{TB_LINEDOWN, 0}, {TB_ENDTRACK, 0}}},
        {VK_LEFT, {{TB_LINEUP, 0}, {TB_ENDTRACK, 0}}},
        {VK_NEXT, {{TB_PAGEDOWN, 0}, {TB_ENDTRACK, 0}}},
        {VK_PRIOR, {{TB_PAGEUP, 0}, {TB_ENDTRACK, 0}}},
        {VK_END, {{TB_BOTTOM, 0}, {TB_ENDTRACK, 0}}},
        {VK_HOME, {{TB_TOP, 0}, {TB_ENDTRACK, 0}}},
        {'A', {}},
    };
    std::vector<int> positions;
    for (const auto& [key, reports] : cases) {
        ours.Key(key);
        positions.push_back(ours.Position());
        EXPECT_EQ(reports, ours.Take()) << key;
    }
    EXPECT_THAT(positions, ElementsAre(1, 2, 1, 21, 1, 100, 0, 0));

    TrackbarWindow standard(TRACKBAR_CLASSA, TBS_AUTOTICKS, 200, 40);
    for (std::size_t i = 0; i < positions.size(); ++i) {
        standard.Key(cases[i].first);
        EXPECT_EQ(positions[i], standard.Position()) << cases[i].first;
        EXPECT_EQ(cases[i].second, standard.Take()) << cases[i].first;
    }
}

TEST(TrackbarWindow, IsDraggedWithTheMouse)
{
    for (const bool vertical : {false, true}) {
        TrackbarWindow bar(kOurs, vertical ? TBS_VERT : 0, vertical ? 40 : 210,
                           vertical ? 210 : 40);
        const POINT start = bar.ThumbMiddle();
        const auto moved = [&](int by) {
            return vertical ? POINT{start.x, start.y + by} : POINT{start.x + by, start.y};
        };
        bar.Mouse(WM_LBUTTONDOWN, start);
        EXPECT_EQ(bar.window(), ::GetCapture());
        bar.Mouse(WM_MOUSEMOVE, moved(40));
        bar.Mouse(WM_MOUSEMOVE, moved(80));
        EXPECT_EQ(40, bar.Position());
        bar.Mouse(WM_LBUTTONUP, moved(80));
        EXPECT_EQ(nullptr, ::GetCapture());
        EXPECT_EQ((Reports{{TB_THUMBTRACK, 20},
                           {TB_THUMBTRACK, 40},
                           {TB_THUMBPOSITION, 40},
                           {TB_ENDTRACK, 0}}),
                  bar.Take());
        EXPECT_EQ(vertical ? WM_VSCROLL : WM_HSCROLL, static_cast<int>(bar.reportedWith));
        EXPECT_TRUE(bar.toldReleasedCapture);
        bar.Mouse(WM_MOUSEMOVE, moved(0));
        EXPECT_THAT(bar.Take(), IsEmpty());
    }
}

TEST(TrackbarWindow, TurnsPagesWhileTheButtonIsHeldBesideTheThumb)
{
    TrackbarWindow bar(kOurs, 0, 210, 40);
    bar.Mouse(WM_LBUTTONDOWN, {130, 10});
    EXPECT_EQ(20, bar.Position());
    EXPECT_TRUE(PumpUntil([&] { return bar.Position() == 60; }));
    bar.Mouse(WM_LBUTTONUP, {130, 10});
    EXPECT_EQ((Reports{{TB_PAGEDOWN, 0}, {TB_PAGEDOWN, 0}, {TB_PAGEDOWN, 0}, {TB_ENDTRACK, 0}}),
              bar.Take());
}

TEST(TrackbarWindow, TakesTheWheelByNotches)
{
    TrackbarWindow bar(kOurs, 0, 210, 40);
    bar.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -300));
    EXPECT_EQ(2, bar.Position());
    bar.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -60));
    EXPECT_EQ(3, bar.Position());
    bar.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, 120));
    EXPECT_EQ((Reports{{TB_LINEDOWN, 0}, {TB_LINEDOWN, 0}, {TB_LINEDOWN, 0}, {TB_LINEUP, 0}}),
              bar.Take());
}

TEST(TrackbarWindow, AnswersTheMessagesOfTheStandardControlAlike)
{
    for (const char* name : {kOurs, TRACKBAR_CLASSA}) {
        TrackbarWindow bar(name, TBS_AUTOTICKS, 210, 40);
        EXPECT_EQ(20, bar.Send(TBM_GETPAGESIZE)) << name;
        bar.Send(TBM_SETRANGE, TRUE, MAKELPARAM(static_cast<WORD>(-10), 30));
        EXPECT_EQ(-10, bar.Send(TBM_GETRANGEMIN)) << name;
        EXPECT_EQ(30, bar.Send(TBM_GETRANGEMAX)) << name;
        bar.Send(TBM_SETPOS, TRUE, 1000);
        EXPECT_EQ(30, bar.Position()) << name;
        bar.Send(TBM_SETPOS, TRUE, -7);
        EXPECT_EQ(-7, bar.Position()) << name;
        EXPECT_EQ(1, bar.Send(TBM_SETLINESIZE, 0, 3)) << name;
        EXPECT_EQ(3, bar.Send(TBM_GETLINESIZE)) << name;
        EXPECT_EQ(8, bar.Send(TBM_SETPAGESIZE, 0, 5)) << name;
        EXPECT_EQ(5, bar.Send(TBM_GETPAGESIZE)) << name;
        EXPECT_EQ(41, bar.Send(TBM_GETNUMTICS)) << name;
        bar.Send(TBM_SETTICFREQ, 10);
        EXPECT_EQ(5, bar.Send(TBM_GETNUMTICS)) << name;
        bar.Send(TBM_SETRANGEMAX, TRUE, 100'000);
        bar.Send(TBM_SETRANGEMIN, TRUE, 50'000);
        EXPECT_EQ(50'000, bar.Position()) << name;
        EXPECT_EQ(DLGC_WANTARROWS, bar.Send(WM_GETDLGCODE)) << name;
        EXPECT_THAT(bar.Take(), IsEmpty()) << name;
    }
}

TEST(TrackbarWindow, LosingTheMouseEndsTheDrag)
{
    TrackbarWindow bar(kOurs, 0, 210, 40);
    bar.Mouse(WM_LBUTTONDOWN, bar.ThumbMiddle());
    ::ReleaseCapture();
    EXPECT_EQ((Reports{{TB_ENDTRACK, 0}}), bar.Take());
    bar.Mouse(WM_MOUSEMOVE, {150, 10});
    EXPECT_EQ(0, bar.Position());
}

TEST(TrackbarWindow, MayBeDestroyedByItsParentDuringAnyReport)
{
    const auto act = [](const TrackbarWindow& bar, int way) {
        switch (way) {
            case 0:
                return bar.Key(VK_RIGHT);
            case 1:
                return void(bar.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, -600)));
            case 2:
                return bar.Mouse(WM_LBUTTONDOWN, {150, 10});
            default:
                bar.Mouse(WM_LBUTTONDOWN, bar.ThumbMiddle());
                return bar.Mouse(WM_LBUTTONUP, bar.ThumbMiddle());
        }
    };
    for (int way = 0; way < 4; ++way) {
        TrackbarWindow bar(kOurs, 0, 210, 40);
        bar.destroyOnReport = true;
        act(bar, way);
        EXPECT_FALSE(::IsWindow(bar.window())) << way;
        EXPECT_EQ(1U, bar.Take().size()) << way;
    }
}

TEST(TrackbarWindow, ShowsWhereItsThumbIs)
{
    TrackbarWindow bar(kOurs, TBS_AUTOTICKS, 210, 40);
    const auto before = Picture(bar.window());
    bar.Send(TBM_SETPOS, TRUE, 80);
    ::UpdateWindow(bar.window());
    EXPECT_TRUE(before != Picture(bar.window())) << "moved";
    const auto focused = Picture(bar.window());
    ::SetFocus(nullptr);
    ::UpdateWindow(bar.window());
    EXPECT_TRUE(focused != Picture(bar.window())) << "without the focus";
}
