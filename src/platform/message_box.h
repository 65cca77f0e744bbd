// Boxes that the user answers, and text for whoever debugs.
#pragma once

#include <qxutility/types.h>

namespace qx::platform {

// Shows a modal box with MB_* style bits; returns the button pressed (IDOK, IDYES ...).
int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style);
// Hands a text to an attached debugger.
void DebugOutput(const char* text);

}  // namespace qx::platform
