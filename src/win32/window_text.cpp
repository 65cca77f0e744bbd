#include "win32/window_text.h"

namespace qx::win32 {

std::string WindowText(HWND window)
{
    const int most = ::GetWindowTextLengthA(window);
    std::string text(static_cast<std::size_t>(most) + 1, '\0');
    const int length = ::GetWindowTextA(window, text.data(), most + 1);
    text.resize(static_cast<std::size_t>(length));
    return text;
}

}  // namespace qx::win32
