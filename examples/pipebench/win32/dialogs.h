// The dialogs: templates in English, translated as they open.
#pragma once

#include "core/entry.h"
#include "core/localisation.h"

#include <windows.h>

#include <optional>

namespace pipebench {

// Edits a pipe; nothing when the user cancels. `others` are the pipes whose names are taken.
std::optional<Pipe> EditPipe(HWND owner, const Localisation& localisation, const Pipe& pipe,
                             const std::vector<Pipe>& others);

// The page "pipe flow at a glance" for a pipe.
void ShowPipeFlow(HWND owner, const Localisation& localisation, const Pipe& pipe);

// Lets the user choose a language; nothing when the user cancels.
std::optional<DWORD> ChooseLanguage(HWND owner, const Localisation& localisation);

}  // namespace pipebench
