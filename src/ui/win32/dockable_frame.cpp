// The main frame of floating windows: its caption stays active while one of them has the focus.
#include "win32/subclass.h"

#include <qxutility/ui/dockable_window.h>

#include <algorithm>

using namespace qx;

// ---- Registration

// In the entry that the object has already, or in the first free one.
bool DockableWindow::Register(HWND frame)
{
    Unregister();
    const auto free = std::find_if(std::begin(windToThis), std::end(windToThis),
                                   [](const hwndToobj& entry) { return !entry.object; });
    if (free == std::end(windToThis))
        return false;
    *free = {frame, this};
    return true;
}

void DockableWindow::Unregister()
{
    for (hwndToobj& entry : windToThis) {
        if (entry.object == this)
            entry = {};
    }
}

bool DockableWindow::IsFollowed(HWND frame)
{
    return std::any_of(std::begin(windToThis), std::end(windToThis), [&](const hwndToobj& entry) {
        return entry.object && entry.window == frame;
    });
}

void DockableWindow::FollowFrame(HWND frame)
{
    if (m_previous && frame == m_frame)
        return;
    LeaveFrame();
    m_frame = frame;
    if (frame && Register(frame))
        m_previous = win32::AddSubclass(frame, FrameProcedure);
}

void DockableWindow::LeaveFrame()
{
    if (m_previous)
        win32::RemoveSubclass(m_frame, FrameProcedure);
    Unregister();
    m_previous = nullptr;
    m_frame = nullptr;
}

void DockableWindow::FrameDestroyed(HWND frame)
{
    for (const hwndToobj& entry : windToThis) {
        if (entry.object && entry.window == frame)
            entry.object->LeaveFrame();
    }
}

// ---- Messages

static void DrawFrameCaption(HWND frame, bool active)
{
    ::DefWindowProcA(frame, WM_NCACTIVATE, active, 0);
}

// Whether the message is done with.
bool DockableWindow::KeepsCaption(HWND frame, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto isOwn = [&](HWND window) {
        const DockableWindow* object = ObjectOf(window);
        return object && object->m_frame == frame;
    };
    const auto isFloatActive = [&] {
        return isOwn(::GetForegroundWindow()) && ::IsWindowEnabled(frame);
    };
    switch (message) {
        case WM_ACTIVATE:
            if (LOWORD(wParam) != WA_INACTIVE || !isOwn(reinterpret_cast<HWND>(lParam)))
                return false;
            DrawFrameCaption(frame, true);
            return true;
        case WM_NCACTIVATE:
            if (!isFloatActive())
                return false;
            DrawFrameCaption(frame, true);
            return true;
        case WM_ACTIVATEAPP:
            if (!wParam || isFloatActive())
                DrawFrameCaption(frame, wParam != 0);
            return false;
        default:
            return false;
    }
}

LRESULT CALLBACK DockableWindow::FrameProcedure(HWND frame, UINT message, WPARAM wParam,
                                                LPARAM lParam) noexcept
{
    if (IsFollowed(frame) && KeepsCaption(frame, message, wParam, lParam))
        return 0;
    const LRESULT result = win32::NextProcedure(FrameProcedure, frame, message, wParam, lParam);
    if (message == WM_DESTROY || message == WM_NCDESTROY)
        FrameDestroyed(frame);
    if (message == WM_NCDESTROY)
        win32::ForgetSubclass(frame, FrameProcedure);
    return result;
}
