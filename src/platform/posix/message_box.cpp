#include "platform/message_box.h"

#include <qxutility/host.h>

#include <atomic>
#include <cstdio>

namespace qx::platform {

// The answer that changes nothing: the button by which a box of the style is cancelled.
static int SafeAnswer(UINT style)
{
    constexpr UINT kButtons = 0x000F, kAbortRetryIgnore = 2;
    constexpr int kAbort = 3;
    switch (style & kButtons) {
        case MB_OK:
            return IDOK;
        case MB_YESNO:
            return IDNO;
        case kAbortRetryIgnore:
            return kAbort;
        default:
            return IDCANCEL;
    }
}

static int WriteToStandardError(HWND, const char* text, const char* caption, UINT style)
{
    std::fprintf(stderr, "%s: %s\n", caption, text);
    return SafeAnswer(style);
}

static std::atomic<host::MessageBoxHandler> messageBoxHandler{WriteToStandardError};

int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style)
{
    return messageBoxHandler.load()(owner, text ? text : "", caption ? caption : "Error", style);
}

void DebugOutput(const char* text)
{
    if (text)
        std::fputs(text, stderr);
}

}  // namespace qx::platform

namespace qx::host {

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler)
{
    return platform::messageBoxHandler.exchange(handler ? handler : platform::WriteToStandardError);
}

}  // namespace qx::host
