#include "platform/message_box.h"

namespace qx::platform {

int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style)
{
    return ::MessageBoxA(owner, text, caption, style);
}

void DebugOutput(const char* text)
{
    if (text)
        ::OutputDebugStringA(text);
}

}  // namespace qx::platform
