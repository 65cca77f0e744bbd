// For hosts on systems without Windows' own resources and message boxes.
#pragma once

#include <qxutility/types.h>

#if !QX_WINDOWS
#include <qxutility/export.h>

#include <string_view>

namespace qx::host {

// The module (program or library) that holds `address`, a function's or a static object's; null
// when none does.
QX_API HINSTANCE ModuleOf(const void* address);
// The library's own module.
QX_API HINSTANCE LibraryModule();

// Gives `module` (null: the program) string `id` or the resource (`name`, `type`); the bytes are
// copied, a later registration of the same key replaces an earlier one and ends the validity of
// its bytes. An empty string counts as none. Names and types do not differ by the case of their
// letters; a numbered one is written "#300". To be called on the thread that uses the library.
QX_API void RegisterString(HINSTANCE module, unsigned id, std::string_view text);
QX_API void RegisterResource(HINSTANCE module, const char* name, const char* type,
                             std::string_view bytes);

// Called for every message box; returns the button pressed (IDOK, IDYES ...). Text and caption are
// never null and valid during the call. It must not throw.
using MessageBoxHandler = int (*)(HWND owner, const char* text, const char* caption, UINT style);

// Replaces the handler and returns the previous one. With null the built-in one is used: it writes
// "caption: text" to standard error and answers with the button that changes nothing.
QX_API MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace qx::host
#endif
