// The messages of a floating window, and its outline while it is moved.
#include "ui/toolbar_drag.h"
#include "win32/handle.h"

#include <qxutility/ui/dockable_window.h>

#include <utility>

using namespace qx;

// Of the one move or sizing that there can be at a time.
static FloatDrag drag;
static win32::RegionHandle savedRegion;

// ---- Moving

void DockableWindow::Created(HWND window)
{
    m_window = window;
    ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    drag = {};
    ::ShowWindow(window, SW_SHOW);
}

LRESULT DockableWindow::Default(UINT message, WPARAM wParam, LPARAM lParam) const
{
    return ::DefWindowProcA(m_window, message, wParam, lParam);
}

// Borders are sized within the default handling.
LRESULT DockableWindow::ButtonDown(WPARAM hit, LPARAM lParam)
{
    drag.Press(static_cast<int>(hit));
    const LRESULT result = Default(WM_NCLBUTTONDOWN, hit, lParam);
    drag.Release();
    return result;
}

static win32::RegionHandle RegionOf(HWND window)
{
    win32::RegionHandle region(::CreateRectRgn(0, 0, 0, 0));
    return ::GetWindowRgn(window, region.get()) == ERROR ? win32::RegionHandle()
                                                         : std::move(region);
}

// With an empty region nothing but the outline is seen.
void DockableWindow::EnterMove()
{
    if (!drag.Enter(FloatArea()))
        return;
    m_moving = true;
    ::ShowWindow(m_hosted, SW_HIDE);
    savedRegion = RegionOf(m_window);
    ::SetWindowRgn(m_window, ::CreateRectRgn(0, 0, 0, 0), TRUE);
}

// The window, in place of its outline.
void DockableWindow::ShowInstead()
{
    m_moving = false;
    ::ShowWindow(m_hosted, SW_SHOW);
    DrawOutline({}, true);
    ::SetWindowRgn(m_window, savedRegion.Release(), TRUE);
}

void DockableWindow::ExitMove()
{
    if (!m_moving)
        return drag.Release();
    const FloatEnd end = drag.Exit();
    ShowInstead();
    if (end.wasMove)
        m_dock = end.dock;
    if (end.moveBack)
        ::SetWindowPos(m_window, nullptr, end.start.left, end.start.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (end.requestDock && m_frame)
        ::PostMessageA(m_frame, UM_DOCKREQUEST, HostedId(), ToolbarFlag());
    ::InvalidateRect(nullptr, nullptr, TRUE);
}

// While the window is moved nothing but the steps of the move is handled. The frame may end the
// object when it is asked.
LRESULT DockableWindow::WhileMoving(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_PAINT)
        ::ValidateRect(m_window, nullptr);  // or it would come for ever
    if ((message != WM_MOVING && message != WM_SIZING) || !lParam)
        return 0;
    const RECT proposed = *reinterpret_cast<const RECT*>(lParam);
    const auto overDock = [&](const RECT& area) {
        RECT asked = area;
        return message == WM_MOVING &&
               ::SendMessageA(m_frame, UM_DOCKQUERY, reinterpret_cast<WPARAM>(&asked),
                              ToolbarFlag()) != 0;
    };
    const std::weak_ptr<void> life = m_life;
    const bool isStep = drag.Step(proposed, overDock);
    if (life.expired() || !m_window)
        return 0;
    if (isStep)
        DrawOutline(proposed, false);
    return Default(message, wParam, lParam);
}

void DockableWindow::DrawOutline(const RECT& area, bool erase)
{
    const HDC screen = ::GetDC(nullptr);
    DrawRopRect(area, screen, erase);
    ::ReleaseDC(nullptr, screen);
}

static void InvertOutline(HDC dc, const RECT& r)
{
    const LONG right = r.right - 1, bottom = r.bottom - 1;
    const POINT corners[] = {
        {r.left, r.top}, {right, r.top}, {right, bottom}, {r.left, bottom}, {r.left, r.top}};
    ::Polyline(dc, corners, static_cast<int>(std::size(corners)));
}

void DockableWindow::DrawRopRect(const RECT& area, HDC dc, bool erase)
{
    const int previous = ::SetROP2(dc, R2_NOT);
    if (std::exchange(m_outlineDrawn, false))
        InvertOutline(dc, m_lastOutline);
    if (!erase) {
        InvertOutline(dc, area);
        m_outlineDrawn = true;
        m_lastOutline = area;
    }
    ::SetROP2(dc, previous);
}

// ---- Messages

LRESULT DockableWindow::DrawCaption(LPARAM lParam) const
{
    Default(WM_NCACTIVATE, m_active && ::IsWindowEnabled(m_window), lParam);
    return TRUE;
}

// The owner and the frame may end the object when a message is passed on to them.
LRESULT DockableWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_ENTERSIZEMOVE:
            EnterMove();
            return 0;
        case WM_EXITSIZEMOVE:
            ExitMove();
            return 0;
        case WM_NCLBUTTONDOWN:
            return ButtonDown(wParam, lParam);
        case WM_MOVE:
            if (m_frame)
                ::PostMessageA(m_frame, UM_FLOATMOVED, 0, 0);
            return 0;
        case WM_SIZE:
            SizeHosted();
            return 0;
        case WM_CLOSE:
            ::SendMessageA(m_frame, UM_DOCKREQUEST, HostedId(), 0x10000 + ToolbarFlag());
            return 0;
        case WM_ACTIVATEAPP:
            m_active = wParam != 0;
            ::SendMessageA(m_window, WM_NCACTIVATE, TRUE, 0);
            return 0;
        case WM_NCACTIVATE:
            return DrawCaption(lParam);
        case WM_LBUTTONDOWN:
            m_active = !m_active;
            return 0;
        case WM_COMMAND:
        case WM_CONTEXTMENU:
            return ::SendMessageA(m_owner, message, wParam, lParam);
        default:
            return message > WM_USER ? ::SendMessageA(m_owner, message, wParam, lParam)
                                     : Default(message, wParam, lParam);
    }
}

LRESULT CALLBACK DockableWindow::FloatProcedure(HWND window, UINT message, WPARAM wParam,
                                                LPARAM lParam) noexcept
{
    auto* object = reinterpret_cast<DockableWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    if (!object && message == WM_CREATE && lParam) {
        const auto* creation = reinterpret_cast<const CREATESTRUCTA*>(lParam);
        static_cast<DockableWindow*>(creation->lpCreateParams)->Created(window);
        return 0;
    }
    if (!object)
        return ::DefWindowProcA(window, message, wParam, lParam);
    if (message == WM_NCDESTROY) {
        object->FloatDestroyed();
        return ::DefWindowProcA(window, message, wParam, lParam);
    }
    return object->m_moving && message != WM_EXITSIZEMOVE
               ? object->WhileMoving(message, wParam, lParam)
               : object->Handle(message, wParam, lParam);
}
