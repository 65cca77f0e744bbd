// For hosts on systems without Windows' own resources and message boxes.
#pragma once

#include <qxutility/types.h>

#if !QX_WINDOWS
#include <qxutility/export.h>

#include <string_view>

namespace qx::host {

// The module (program or library) that holds `address`; null when none does.
QX_API HINSTANCE ModuleOf(const void* address);
// The library's own module.
QX_API HINSTANCE LibraryModule();

// Gives `module` string `id` or the resource (`name`, `type`); the bytes are copied, a later
// registration of the same key replaces an earlier one. A numbered resource is named "#300".
QX_API void RegisterString(HINSTANCE module, unsigned id, std::string_view text);
QX_API void RegisterResource(HINSTANCE module, const char* name, const char* type,
                             std::string_view bytes);

// Called for every message box; returns the button pressed (IDOK, IDYES ...).
using MessageBoxHandler = int (*)(HWND owner, const char* text, const char* caption, UINT style);

// Replaces the handler and returns the previous one. With null the built-in one is used: it writes
// the text to standard error and answers with the button that changes nothing.
QX_API MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace qx::host
#endif
