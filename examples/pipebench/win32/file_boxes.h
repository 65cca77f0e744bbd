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
// Where a file of a kind is to be saved; `path` is proposed.
struct FileKind {
    int filter;  // string of the kinds of files
    const char* extension;
};
std::optional<std::string> ChooseToSave(HWND owner, const Localisation& localisation,
                                        const FileKind& kind, const std::string& path);

}  // namespace pipebench
