// Opening what a person wants to see in the program that is meant for it. Windows only.
#pragma once

#include <qxutility/types.h>

namespace qx::platform {

// Opens a document, a web or mail address, or starts a program with arguments, as the system's own
// desktop does. `owner` is the window for messages of the system. Failures are not reported.
void OpenDocument(HWND owner, const char* file, const char* arguments);

}  // namespace qx::platform
