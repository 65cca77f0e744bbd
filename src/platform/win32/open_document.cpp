#include "platform/open_document.h"

#include <shellapi.h>

namespace qx::platform {

void OpenDocument(HWND owner, const char* file, const char* arguments)
{
    ::ShellExecuteA(owner, nullptr, file, arguments, nullptr, SW_SHOWNORMAL);
}

}  // namespace qx::platform
