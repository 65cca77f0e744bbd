// The dialogs: templates in English, translated as they open.
#pragma once

#include "core/entry.h"
#include "core/localisation.h"
#include "core/settings.h"
#include "win32/settings_store.h"

#include <qxutility/config/help.h>

#include <windows.h>

#include <optional>

namespace pipebench {

// Edits a pipe; nothing when the user cancels. `others` are the pipes whose names are taken.
std::optional<Pipe> EditPipe(HWND owner, const Localisation& localisation, DT_UNITS units,
                             const Pipe& pipe, const std::vector<Pipe>& others);

// The page "pipe flow at a glance" for a pipe; what was entered last is in `settings` afterwards.
void ShowPipeFlow(HWND owner, const Localisation& localisation, HTML_HELP& help, const Pipe& pipe,
                  Settings& settings);

struct ProgramOptions {
    DWORD lcid;
    Settings settings;
    DirectoryPaths directories;
};
// Edits the options; false, and nothing is changed, when the user cancels. `help` is for the Help
// buttons.
bool EditOptions(HWND owner, const Localisation& localisation, HTML_HELP& help,
                 ProgramOptions& options);

}  // namespace pipebench
