// Menus and dialogs are written in English; the library translates them as they open.
#include <qxutility/config/language.h>

#include <windows.h>

static constexpr int kLanguageBox = 100;

void OnInitDialog(HWND dialog, const CLanguage& language)
{
    // [README]
    language.Dialog(dialog);  // caption and labels, in WM_INITDIALOG
    language.LanguageList(::GetDlgItem(dialog, kLanguageBox));  // a combo box with the languages
    language.Menu(::GetMenu(::GetParent(dialog)), 0);           // the main menu and its submenus
    // [/README]
}
