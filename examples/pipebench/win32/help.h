// The program's help: compiled files, one for each language, beside the program.
#pragma once

#include "core/localisation.h"

#include <qxutility/config/help.h>

namespace pipebench {

// The types of help: the manual with its contents, and a page beside a dialog. The library's own
// dialogs open pages of the type "Dialog".
inline constexpr char kManual[] = "Manual", kDialogHelp[] = "Dialog";

// Registers both; `help` must not outlive `localisation`.
void RegisterHelp(HTML_HELP& help, Localisation& localisation, HWND owner);

}  // namespace pipebench
