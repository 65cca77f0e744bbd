// The main menu in the user's language.
#pragma once

#include "core/commands.h"
#include "core/localisation.h"

#include <windows.h>

#include <functional>

namespace pipebench {

// The menu of the resources, translated, with the languages of the table in its language menu. The
// translation starts from the English resource each time, as the wordings of a translated menu are
// no keys. The caller owns the menu.
HMENU LoadTranslatedMenu(const Localisation& localisation);

// Shows which commands of the menu and its submenus can be used and which are checked.
void ShowStates(HMENU menu, const std::function<CommandState(int command)>& stateOf);

}  // namespace pipebench
