// Window procedures in front of a window's own one, that can be taken away in any order.
#pragma once

#include <qxutility/types.h>

namespace qx::win32 {

// Puts `procedure` in front of the window's own one and returns that. As often as it is put there
// it must be removed; it stands there once. Null for an invalid window.
WNDPROC AddSubclass(HWND window, WNDPROC procedure);
// When somebody else's procedure stands before it by now, `procedure` is still called afterwards:
// it then finds nothing to do and calls NextProcedure, as it does with all else.
void RemoveSubclass(HWND window, WNDPROC procedure);
// To be called by `procedure` for WM_NCDESTROY, after that was passed on.
void ForgetSubclass(HWND window, WNDPROC procedure);
// Passes a message on to the procedure behind `procedure`.
LRESULT NextProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam);

}  // namespace qx::win32
