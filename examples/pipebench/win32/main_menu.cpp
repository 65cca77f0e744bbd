#include "win32/main_menu.h"

#include "ids.h"

#include <algorithm>
#include <array>
#include <string>

namespace pipebench {

// The submenu that holds a command as one of its own items; null when none does.
static HMENU SubmenuWith(HMENU menu, UINT command)
{
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        if (::GetMenuItemID(menu, i) == command)
            return menu;
        if (const HMENU found = SubmenuWith(::GetSubMenu(menu, i), command))
            return found;
    }
    return nullptr;
}

// Added after the translation: language names stand in their own language.
static void AddLanguages(HMENU menu, const Localisation& localisation)
{
    const HMENU languages = SubmenuWith(menu, IDM_LANGUAGE_FIRST);
    ::DeleteMenu(languages, IDM_LANGUAGE_FIRST, MF_BYCOMMAND);
    UINT id = IDM_LANGUAGE_FIRST;
    for (const LanguageChoice& choice : localisation.Choices()) {
        if (id <= IDM_LANGUAGE_LAST)
            ::AppendMenuA(languages, MF_STRING, id++, choice.name.c_str());
    }
}

// Added after the translation: once an item has "..." the library gives it to all that follow.
static void AddEllipses(HMENU menu)
{
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        if (const HMENU submenu = ::GetSubMenu(menu, i))
            AddEllipses(submenu);
        if (!OpensDialog(static_cast<int>(::GetMenuItemID(menu, i))))
            continue;
        std::array<char, 300> text{};
        ::GetMenuStringA(menu, static_cast<UINT>(i), text.data(), text.size(), MF_BYPOSITION);
        std::string label = text.data();
        label.insert(std::min(label.find('\t'), label.size()), "...");
        MENUITEMINFOA item{};
        item.cbSize = sizeof item;
        item.fMask = MIIM_STRING;
        item.dwTypeData = label.data();
        ::SetMenuItemInfoA(menu, static_cast<UINT>(i), TRUE, &item);
    }
}

HMENU LoadTranslatedMenu(const Localisation& localisation)
{
    const HMENU menu = ::LoadMenuA(localisation.Module(), MAKEINTRESOURCEA(IDR_MAIN_MENU));
    localisation.Language().Menu(menu, 0);
    AddEllipses(menu);
    AddLanguages(menu, localisation);
    return menu;
}

static void ShowState(HMENU menu, int position, int command, CommandState state)
{
    MENUITEMINFOA item{};
    item.cbSize = sizeof item;
    item.fMask = MIIM_STATE | MIIM_FTYPE;
    ::GetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &item);
    if (item.fType & MFT_SEPARATOR)
        return;
    const bool usable = state == CommandState::Enabled || state == CommandState::Checked;
    item.fState = static_cast<UINT>(usable ? MFS_ENABLED : MFS_GRAYED) |
                  (state == CommandState::Checked ? MFS_CHECKED : MFS_UNCHECKED);
    if (IsChoice(command))
        item.fType |= MFT_RADIOCHECK;
    ::SetMenuItemInfoA(menu, static_cast<UINT>(position), TRUE, &item);
}

void ShowStates(HMENU menu, const std::function<CommandState(int command)>& stateOf)
{
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        const int command = static_cast<int>(::GetMenuItemID(menu, i));
        if (const HMENU submenu = ::GetSubMenu(menu, i))
            ShowStates(submenu, stateOf);
        else
            ShowState(menu, i, command, stateOf(command));
    }
}

}  // namespace pipebench
