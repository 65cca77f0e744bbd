// The states of a host window's menus, by its answers to UM_COMMANDSTATE (toolbar_master.h), as
// those of its toolbars.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#if QX_WINDOWS

// Asks `window` about the command of each item of a menu and of its submenus, then grays the items
// of commands that are disabled, enables those that are enabled and deletes those that are hidden;
// any other answer leaves an item as it is. The item behind a deleted one is not asked about, and
// no check mark is set or taken away: both deliberate, applications rely on them. Then
// RemoveMultipleSeperators is called. The caller draws its menu bar anew.
QX_API void UpdateMenuStates(HMENU menu, HWND window);
// Deletes every separator of a menu and of its submenus that another one follows, or nothing; those
// at the start stay. True when any was deleted.
QX_API bool RemoveMultipleSeperators(HMENU menu);

#endif
