// The dialogs: templates in English, translated as they open.
#pragma once

#include "core/entry.h"
#include "core/localisation.h"

#include <windows.h>

#include <optional>

namespace pipebench {

// Shows the message of a bad entry with the program's name as title.
void ReportBadEntryBox(HWND owner, const Localisation& localisation, const BadEntry& bad);

// Edits a pipe; nothing when the user cancels. `others` are the pipes whose names are taken.
std::optional<Pipe> EditPipe(HWND owner, const Localisation& localisation, const Pipe& pipe,
                             const std::vector<Pipe>& others);

// Lets the user choose a language; nothing when the user cancels.
std::optional<DWORD> ChooseLanguage(HWND owner, const Localisation& localisation);

}  // namespace pipebench
