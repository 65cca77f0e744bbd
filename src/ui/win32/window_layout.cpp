#include "ui/area.h"
#include "ui/panes.h"
#include "win32/gdi.h"
#include "win32/subclass.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

using namespace qx;

static_assert(UM_PANESIZED == WM_USER + 108);

hwndToobj WindowLayout::windToThis[32];
bool WindowLayout::initial = true;

namespace {

// Limits and sizes as the windows themselves tell them.
struct RealWindows final : PaneWindows {
    MINMAXINFO Limits(HWND window) override
    {
        MINMAXINFO limits{};
        ::SendMessageA(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
        return limits;
    }
    SIZE Size(HWND window) override
    {
        RECT area{};
        ::GetWindowRect(window, &area);
        return {ToInt(Width(area)), ToInt(Height(area))};
    }
};

}  // namespace

static RECT ClientArea(HWND window)
{
    RECT area{};
    ::GetClientRect(window, &area);
    return area;
}

static RECT FromScreen(HWND window, const RECT& screen)
{
    RECT area = screen;
    ::MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

static RECT WindowArea(HWND window, HWND host)
{
    RECT area{};
    ::GetWindowRect(window, &area);
    return FromScreen(host, area);
}

// ---- Life

WindowLayout::WindowLayout(HWND host)
    : m_host(host), m_previous(nullptr), m_life(std::make_shared<char>())
{
    if (Register())
        m_previous = win32::AddSubclass(host, Procedure);
}

WindowLayout::~WindowLayout()
{
    if (!Unregister() || !m_host)
        return;
    win32::RemoveSubclass(m_host, Procedure);
    if (m_dragged && ::GetCapture() == m_host)
        ::ReleaseCapture();
}

bool WindowLayout::Register()
{
    if (std::exchange(initial, false))
        std::fill(std::begin(windToThis), std::end(windToThis), hwndToobj{});
    for (hwndToobj& entry : windToThis) {
        if (!entry.object) {
            entry = {m_host, this};
            return true;
        }
    }
    return false;
}

bool WindowLayout::Unregister()
{
    for (hwndToobj& entry : windToThis) {
        if (entry.object == this) {
            entry = {};
            return true;
        }
    }
    return false;
}

WindowLayout* WindowLayout::GetMe(HWND host)
{
    for (const hwndToobj& entry : windToThis) {
        if (entry.object && entry.window == host)
            return entry.object;
    }
    return nullptr;
}

void WindowLayout::HostDestroyed()
{
    Unregister();
    m_host = nullptr;
    m_dragged = nullptr;
}

// ---- Panes

void WindowLayout::AddWindow(HWND window, int size, DWORD flags, const MINMAXINFO* limits)
{
    AddPane(m_first, ClientArea(m_host),
            {window, flags, {}, size, limits ? *limits : MINMAXINFO{}});
}

HWND WindowLayout::RemoveWindow(HWND window)
{
    const Pane* pane = m_first ? FindPane(m_first->next.get(), window) : nullptr;
    if (!pane)
        return nullptr;
    const bool dragged = pane == m_dragged;
    if (dragged)
        m_dragged = nullptr;
    RemovePane(m_first.get(), window);
    if (dragged)
        ::ReleaseCapture();
    return window;
}

HWND WindowLayout::RemoveWindow(int controlId)
{
    const Pane* second = m_first ? m_first->next.get() : nullptr;
    if (!second || second->window == NoWindow() ||
        ::GetWindowLongA(second->window, GWL_ID) != controlId)
        return nullptr;
    return RemoveWindow(second->window);
}

int WindowLayout::GetWindowProps(HWND window, DWORD* flags, int* size, RECT* area) const
{
    const Pane* pane = FindPane(m_first.get(), window);
    if (!pane)
        return 0;
    if (flags)
        *flags = pane->flags;
    if (size)
        *size = pane->size;
    if (area)
        *area = pane->area;
    return 1;
}

bool WindowLayout::HasSplitter() const
{
    return qx::HasSplitter(m_first.get());
}

Pane* WindowLayout::HitTest(POINT point) const
{
    return qx::HitTest(m_first.get(), point);
}

DWORD WindowLayout::WhichSide(const RECT& screen) const
{
    return NearestSide(FromScreen(m_host, screen), ClientArea(m_host));
}

// ---- Layout

static bool SameWindows(const std::vector<PaneData>& a, const std::vector<PaneData>& b)
{
    const auto same = [](const PaneData& x, const PaneData& y) { return x.window == y.window; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

// Windows that are asked or moved may change the panes or end the layout; then it stops.
void WindowLayout::ReCalcLayout()
{
    const RECT client = ClientArea(m_host);
    if (::IsRectEmpty(&client))
        return;
    const std::weak_ptr<void> life = m_life;
    RealWindows windows;
    const auto panes = PanesOf(m_first.get());
    const auto own = OwnLimits(panes, windows);
    if (life.expired() || !SameWindows(panes, PanesOf(m_first.get())))
        return;
    for (const PaneMove& move : LayOut(m_first.get(), client, own)) {
        SetWindowSize(move.window, move.area);
        if (life.expired())
            return;
    }
    RedrawAll();
}

void WindowLayout::SetWindowSize(HWND window, const RECT& area)
{
    ::MoveWindow(window, area.left, area.top, ToInt(Width(area)), ToInt(Height(area)), TRUE);
}

void WindowLayout::RedrawAll()
{
    const HWND host = m_host;
    if (!host)
        return;  // no window would be all of them
    if (m_first && m_first->window != NoWindow())
        ::UpdateWindow(m_first->window);
    ::InvalidateRect(host, nullptr, TRUE);
    ::UpdateWindow(host);
}

// What a window has around its client area. A minimised one has no client area: then it is what the
// styles call for.
static SIZE Margins(HWND window)
{
    const RECT client = ClientArea(window);
    RECT area = WindowArea(window, window);
    if (::IsRectEmpty(&client)) {
        const auto style = static_cast<DWORD>(::GetWindowLongA(window, GWL_STYLE));
        const bool hasMenu = !(style & WS_CHILD) && ::GetMenu(window);
        area = client;
        ::AdjustWindowRectEx(&area, style, hasMenu,
                             static_cast<DWORD>(::GetWindowLongA(window, GWL_EXSTYLE)));
    }
    return {ToInt(Width(area) - Width(client)), ToInt(Height(area) - Height(client))};
}

// The host is not to be made smaller than its panes, whatever it says itself.
void WindowLayout::RaiseMinimum(MINMAXINFO& host) const
{
    const SIZE margins = Margins(m_host);
    const auto panes = PanesOf(m_first.get());
    RealWindows windows;
    const POINT least = ChainLimits(panes, OwnLimits(panes, windows)).front().ptMinTrackSize;
    POINT& minimum = host.ptMinTrackSize;
    minimum.x = std::max<LONG>(minimum.x, ToInt(std::int64_t{least.x} + margins.cx));
    minimum.y = std::max<LONG>(minimum.y, ToInt(std::int64_t{least.y} + margins.cy));
}

// ---- Painting

static void DrawGrip(HDC dc, const PaneData& splitter)
{
    for (const GripLine& line : Grip(splitter)) {
        const win32::PenHandle pen(
            ::CreatePen(PS_SOLID, 1, line.white ? RGB(255, 255, 255) : RGB(128, 128, 128)));
        const win32::Selection selection(dc, pen.get());
        ::MoveToEx(dc, line.from.x, line.from.y, nullptr);
        ::LineTo(dc, line.to.x, line.to.y);
    }
}

void WindowLayout::ClientPaint()
{
    const HDC dc = ::GetDC(m_host);
    for (const Pane* pane = m_first.get(); pane; pane = pane->next.get()) {
        if (pane->window != NoWindow() && (pane->flags & kPaneEdge)) {
            RECT edge = Grown(WindowArea(pane->window, m_host), 2);
            ::DrawEdge(dc, &edge, EDGE_SUNKEN, BF_RECT);
        } else if (pane->flags & kPaneSplitter) {
            DrawGrip(dc, *pane);
        }
    }
    ::ReleaseDC(m_host, dc);
}

// ---- Messages of the host

static POINT PointOf(LPARAM lParam)
{
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

static bool Activates(WPARAM wParam)
{
    const WORD how = LOWORD(wParam);
    return (how == WA_ACTIVE || how == WA_CLICKACTIVE) && HIWORD(wParam) == 0;  // not minimised
}

// What the layout does before the host's own procedure: whether the message is done with.
bool WindowLayout::Before(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_SIZE:
            if (LOWORD(lParam) != 0 && HIWORD(lParam) != 0)
                ReCalcLayout();
            break;
        case WM_ACTIVATE:
            if (Activates(wParam))
                ReCalcLayout();
            break;
        case WM_SHOWWINDOW:
            if (wParam)
                ReCalcLayout();
            break;
        case WM_SETCURSOR:
            return ShowSizingCursor();
        case WM_LBUTTONDOWN:
            ButtonDown(PointOf(lParam));
            break;
        case WM_MOUSEMOVE:
            if (m_dragged)
                MouseMove(PointOf(lParam));
            break;
        case WM_LBUTTONUP:
            if (m_dragged)
                StopDrag();
            break;
        case WM_CAPTURECHANGED:  // by whatever took the mouse away
            if (!m_releasing)
                m_dragged = nullptr;
            break;
        default:
            break;
    }
    return false;
}

void WindowLayout::After(UINT message, LPARAM lParam)
{
    switch (message) {
        case WM_PAINT:
            return ClientPaint();
        case WM_GETMINMAXINFO:
            return RaiseMinimum(*reinterpret_cast<MINMAXINFO*>(lParam));
        case WM_NCDESTROY:
            return HostDestroyed();
        default:
            return;
    }
}

// Any handler may end the layout: it is looked up anew each time.
LRESULT CALLBACK WindowLayout::Procedure(HWND host, UINT message, WPARAM wParam, LPARAM lParam)
{
    WindowLayout* layout = GetMe(host);
    if (layout && layout->Before(message, wParam, lParam))
        return TRUE;
    const LRESULT result = win32::NextProcedure(Procedure, host, message, wParam, lParam);
    while ((layout = GetMe(host)) != nullptr) {
        layout->After(message, lParam);
        if (message != WM_NCDESTROY)
            break;
    }
    if (message == WM_NCDESTROY)
        win32::ForgetSubclass(host, Procedure);
    return result;
}
