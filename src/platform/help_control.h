// The system's control for compiled HTML help. Where there is none every request fails.
#pragma once

#include <qxutility/types.h>

namespace qx::platform {

// With the numbers that the control gives them.
enum class HelpCommand : UINT {
    Topic = 0,     // the file's first page
    Contents = 1,  // its contents
    Context = 15,  // the page of a context number
    CloseAll = 18  // closes every help window of the process; without owner and target
};

// Return the help window; null when nothing is shown. `target` is a file, or "file>window".
// The control is loaded by the first call; when that fails every later call fails at once.
HWND SendHelp(HWND owner, const char* target, HelpCommand command, unsigned contextId = 0);
// Shows what a search of the whole file for `query` finds.
HWND SendHelpSearch(HWND owner, const char* target, const char* query);

}  // namespace qx::platform
