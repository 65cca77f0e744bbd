// The window classes that the library registers while it is loaded.
#pragma once

#include <qxutility/types.h>

namespace qx::win32 {

// "QX_PLEASEWAIT": a popup for work that takes a while. Shows its window text above a bar that
// moves as long as messages are dispatched. Any size, any style; no parameters.
LRESULT CALLBACK PleaseWaitProcedure(HWND window, UINT message, WPARAM wParam,
                                     LPARAM lParam) noexcept;

// "XYZZY": the surprise of about boxes, a column of water with bubbles; each click brings more.
LRESULT CALLBACK SurpriseProcedure(HWND window, UINT message, WPARAM wParam,
                                   LPARAM lParam) noexcept;

// "QX_CUSTOMTRACKBAR": a trackbar for dialogs, moved with the mouse, its wheel and the keys. Tells
// its parent WM_HSCROLL (WM_VSCROLL with TBS_VERT) with the TB_* codes as the standard control
// does, and answers TBM_GETPOS, SETPOS, the RANGE, LINESIZE, PAGESIZE, TICFREQ, NUMTICS,
// THUMBLENGTH, THUMBRECT and CHANNELRECT messages. Styles: TBS_VERT, TBS_AUTOTICKS, TBS_NOTICKS.
LRESULT CALLBACK TrackbarProcedure(HWND window, UINT message, WPARAM wParam,
                                   LPARAM lParam) noexcept;

// On the library's module; failures are ignored: windows of the class can then not be created.
void RegisterWindowClasses(HINSTANCE module);
void UnregisterWindowClasses(HINSTANCE module);

}  // namespace qx::win32
