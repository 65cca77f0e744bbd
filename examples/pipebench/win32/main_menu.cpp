#include "win32/main_menu.h"

#include "ids.h"

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
    const DWORD current = localisation.Language().GetLanguage();
    ::DeleteMenu(languages, IDM_LANGUAGE_FIRST, MF_BYCOMMAND);
    UINT id = IDM_LANGUAGE_FIRST;
    for (const LanguageChoice& choice : localisation.Choices()) {
        const UINT flags = MF_STRING | (choice.lcid == current ? MF_CHECKED : MF_UNCHECKED);
        if (id <= IDM_LANGUAGE_LAST)
            ::AppendMenuA(languages, flags, id++, choice.name.c_str());
    }
}

HMENU LoadTranslatedMenu(const Localisation& localisation)
{
    const HMENU menu = ::LoadMenuA(localisation.Module(), MAKEINTRESOURCEA(IDR_MAIN_MENU));
    localisation.Language().Menu(menu, 0);
    AddLanguages(menu, localisation);
    return menu;
}

}  // namespace pipebench
