#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/dialogs.h"

namespace pipebench {

namespace {

struct OptionsState {
    const Localisation& localisation;
    DWORD chosen;
};

DWORD ChosenLanguage(HWND dialog)
{
    const HWND combo = ::GetDlgItem(dialog, IDC_LANGUAGE);
    const LRESULT row = ::SendMessageA(combo, CB_GETCURSEL, 0, 0);
    return static_cast<DWORD>(::SendMessageA(combo, CB_GETITEMDATA, static_cast<WPARAM>(row), 0));
}

// How numbers, money and dates look in the language that is chosen in the box.
void ShowPreview(HWND dialog, const OptionsState& state)
{
    CLanguage language = state.localisation.Language();
    language.SetLanguage(ChosenLanguage(dialog));
    SetItemText(dialog, IDC_PREVIEW_NUMBER, NumberText(language, 1234.5, 2));
    SetItemText(dialog, IDC_PREVIEW_MONEY, MoneyText(language, 1234.5, true));
    SetItemText(dialog, IDC_PREVIEW_DATE, DateText(language, DATE_LONGDATE));
}

void OnInit(HWND dialog, const OptionsState& state)
{
    const CLanguage& language = state.localisation.Language();
    language.Dialog(dialog);
    language.LanguageList(::GetDlgItem(dialog, IDC_LANGUAGE));
    ShowPreview(dialog, state);
}

void OnCommand(HWND dialog, OptionsState& state, int id, int notification)
{
    switch (id) {
        case IDC_LANGUAGE:
            if (notification == CBN_SELCHANGE)
                ShowPreview(dialog, state);
            break;
        case IDOK:
            state.chosen = ChosenLanguage(dialog);
            [[fallthrough]];
        case IDCANCEL:
            ::EndDialog(dialog, id);
    }
}

INT_PTR CALLBACK OptionsProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(dialog, GWLP_USERDATA, lParam);
        return OnInit(dialog, *reinterpret_cast<OptionsState*>(lParam)), TRUE;
    }
    auto* state = reinterpret_cast<OptionsState*>(::GetWindowLongPtrA(dialog, GWLP_USERDATA));
    if (message != WM_COMMAND || !state)
        return FALSE;
    return OnCommand(dialog, *state, LOWORD(wParam), HIWORD(wParam)), TRUE;
}

}  // namespace

std::optional<DWORD> ChooseLanguage(HWND owner, const Localisation& localisation)
{
    OptionsState state{localisation, 0};
    const INT_PTR result =
        ::DialogBoxParamA(localisation.Module(), MAKEINTRESOURCEA(IDD_OPTIONS), owner,
                          OptionsProcedure, reinterpret_cast<LPARAM>(&state));
    if (result != IDOK)
        return {};
    return state.chosen;
}

}  // namespace pipebench
