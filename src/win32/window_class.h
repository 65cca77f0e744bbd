// Classes of plain windows.
#pragma once

#include <windows.h>

namespace qx::win32 {

// A class with the arrow and the background of dialogs; false when it cannot be registered, as one
// of this name may be already.
inline bool RegisterPlainClass(HINSTANCE module, const char* name, WNDPROC procedure)
{
    WNDCLASSA description{};
    description.hInstance = module;
    description.lpszClassName = name;
    description.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    description.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    description.lpfnWndProc = procedure;
    return ::RegisterClassA(&description) != 0;
}

}  // namespace qx::win32
