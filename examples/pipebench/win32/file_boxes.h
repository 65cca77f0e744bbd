// The dialogs in which the user chooses a file of the program's own.
#pragma once

#include "core/localisation.h"
#include "core/settings.h"

#include <qxutility/config/help.h>

#include <windows.h>

#include <optional>
#include <string>

namespace pipebench {

// List the files of the folder for projects or for curves that can be opened, and say what is in
// them; nothing when the user cancels.
std::optional<std::string> ChooseLine(HWND owner, const Localisation& localisation, HTML_HELP& help,
                                      const Settings& settings);
std::optional<std::string> ChooseCurve(HWND owner, const Localisation& localisation,
                                       HTML_HELP& help, const Settings& settings);
// Where a line is to be saved; `path` is proposed.
std::optional<std::string> ChooseLineToSave(HWND owner, const Localisation& localisation,
                                            const std::string& path);

}  // namespace pipebench
