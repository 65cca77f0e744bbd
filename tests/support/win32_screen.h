// The real mouse, what is seen on the screen, and what a process holds of the system's objects.
#pragma once

#include "support/win32_ui.h"

namespace qx::test {

// Moves the mouse to a point of a window's client area, and handles the messages of that.
inline void MoveMouse(HWND window, int x, int y)
{
    POINT at{x, y};
    ::ClientToScreen(window, &at);
    ::SetCursorPos(at.x, at.y);
    ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0);  // a message even if it was there already
    PumpWaiting();
}

// Presses or releases the left button where the mouse is.
inline void MouseButton(bool down)
{
    ::mouse_event(down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
    PumpWaiting();
}

// A point of a window's client area as it is on the screen.
inline COLORREF PixelOf(HWND window, int x, int y)
{
    const HDC dc = ::GetDC(window);
    const COLORREF color = ::GetPixel(dc, x, y);
    ::ReleaseDC(window, dc);
    return color;
}

// A window's place in the client area of its parent.
inline RECT AreaOf(HWND window)
{
    RECT area;
    ::GetWindowRect(window, &area);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

}  // namespace qx::test
