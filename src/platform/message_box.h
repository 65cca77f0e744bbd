// Boxes that the user answers, and text for whoever debugs.
#pragma once

#include <qxutility/types.h>

namespace qx::platform {

// Shows a modal box with MB_* style bits; returns the button pressed (IDOK, IDYES ...), 0 when the
// system could show none. A null text is empty, a null caption "Error"; a null owner is allowed.
// Where there are no windows, the host's handler is asked (qxutility/host.h); the built-in one
// writes "caption: text" to standard error and answers with the button that changes nothing: OK
// when there is only that, No for Yes and No, Abort for Abort, Retry and Ignore, otherwise Cancel.
int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style);
// Hands a text as it is to an attached debugger, to standard error on systems where debuggers are
// told nothing. Null is ignored.
void DebugOutput(const char* text);

}  // namespace qx::platform
