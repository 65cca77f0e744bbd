// What the menus around toolbars contain, without a menu: the strip's own menu, and the states of a
// host's menus and of the buttons, which follow the host's answers. Texts are in the user's
// language.
#pragma once

#include "ui/toolbar_file.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace qx {

// ---- The strip's menu

inline constexpr int kCommandCustomize = 2000, kCommandLock = 2001, kCommandNew = 2002,
                     kCommandDelete = 2003, kCommandReset = 2004, kCommandFirstBar = 2005;

// A record as the menu sees it.
struct MenuBar {
    bool exists = false;  // has a toolbar
    bool editable = false;
    bool shown = false;
    bool hasChild = false;
    int id = 0;
    std::string name;
};

struct MenuEntry {
    int command = 0;  // 0: a separator
    std::string text;
    bool grayed = false;
    bool isChecked = false;

    bool operator==(const MenuEntry&) const = default;
};

// `hit` is the index of the bar under the mouse, -1 for none.
struct StripMenuState {
    bool locked = false;
    bool hasCatalogue = false;
    int hit = -1;
};
std::vector<MenuEntry> StripMenu(std::span<const MenuBar> bars, const StripMenuState& state);

// Whether the bar may be customised: it has a toolbar of buttons and the user may edit it.
bool IsCustomizable(std::span<const MenuBar> bars, int index);
// What the status line says about an entry. The text of a bar's entry is cut to 64 characters.
std::string StatusText(const MenuEntry& entry);

// The record and ID of a bar that the user makes; nothing when no record but the last is empty.
struct NewBar {
    int index;
    int id;
};
std::optional<NewBar> PlaceForNewBar(std::span<const MenuBar> bars);

std::string DeleteQuestion(const std::string& name);
std::string ResetQuestion();

// ---- Buttons

// The state of a button after the host's answer about its command: 0 disabled, 4 enabled, 5 and
// checked, 6 and pressed, 8 hidden.
std::uint8_t ButtonState(std::uint8_t state, int answer);
// The next separator to delete: one that only hidden buttons part from the one before; -1 for none.
int DoubledSeparator(std::span<const ToolbarButton> buttons);
// Sets the states of all but the separators from the host's answers.
void UpdateStates(std::span<ToolbarButton> buttons, const std::function<int(int command)>& answer);

// ---- Menus of the host

// Bits of an item's state, with the values of menu flags.
inline constexpr unsigned kItemGrayed = 1, kItemDisabled = 2, kItemChecked = 8;

struct MenuItem {
    enum Kind { Command, Separator, Submenu } kind = Command;
    int command = 0;
    unsigned state = 0;
    std::vector<MenuItem> items = {};  // of a submenu
    int position = 0;                  // for the caller: where the item was before
};
using Menu = std::vector<MenuItem>;

// The flags of an item after the host's answer about its command; nothing when it is to be deleted.
std::optional<unsigned> ItemState(unsigned state, int answer);
// Asks the host about each command. The item behind a deleted one is not examined. Then separators
// are collapsed. Check marks are not applied: only whether an item is grayed and disabled changes.
void UpdateMenu(Menu& menu, const std::function<int(int command)>& answer);
// Deletes each separator that another one follows, or nothing; those at the start stay. True when
// anything was deleted in this menu or below.
bool CollapseSeparators(Menu& menu);

}  // namespace qx
