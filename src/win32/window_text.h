// The text of a window.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx::win32 {

// The whole text, whatever its length.
std::string WindowText(HWND window);

}  // namespace qx::win32
