// Which commands can be used now: one answer for menus and toolbars.
#pragma once

#include "core/settings.h"

#include <cstddef>
#include <optional>

namespace pipebench {

enum class CommandState { Disabled, Enabled, Checked, Hidden };

// What the answer depends on.
struct Situation {
    bool lineOpen = false;  // otherwise the start page is shown
    bool lineChanged = false;
    bool anyPipe = false;
    bool pipeSelected = false;
    bool toolsFloat = false;
    Settings settings;
    std::size_t languages = 0;  // of the language table
    std::optional<std::size_t> language;
};

// Hidden for a number that is no command.
CommandState StateOf(int command, const Situation& situation);
// The same for a button: what only concerns a line is not there on the start page.
CommandState ButtonStateOf(int command, const Situation& situation);
// Whether the command is one choice of several, of which one is always checked.
bool IsChoice(int command);
// Whether the command first asks for something in a dialog: its menu item ends in "...".
bool OpensDialog(int command);

}  // namespace pipebench
