#include "win32/dialog_items.h"

#include "ids.h"

#include <qxutility/config/startup.h>

namespace pipebench {

std::string TextOfItem(HWND dialog, int id)
{
    char text[MAX_PATH] = "";
    ::GetDlgItemTextA(dialog, id, text, sizeof text);
    return text;
}

void SetItemText(HWND dialog, int id, const std::string& text)
{
    ::SetDlgItemTextA(dialog, id, text.c_str());
}

void FocusItem(HWND dialog, int id)
{
    const HWND control = ::GetDlgItem(dialog, id);
    ::SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

void FillUnits(HWND dialog, const Localisation& localisation, DT_UNITS units)
{
    for (const unsigned id : {IDS_METRIC_UNITS, IDS_US_UNITS}) {
        const std::string name = localisation.String(id);
        ::SendDlgItemMessageA(dialog, IDC_UNITS, CB_ADDSTRING, 0,
                              reinterpret_cast<LPARAM>(name.c_str()));
    }
    ::SendDlgItemMessageA(dialog, IDC_UNITS, CB_SETCURSEL, units == DT_METRIC ? 0 : 1, 0);
}

DT_UNITS ChosenUnits(HWND dialog)
{
    return ::SendDlgItemMessageA(dialog, IDC_UNITS, CB_GETCURSEL, 0, 0) == 0 ? DT_METRIC
                                                                             : DT_ENGLISH;
}

void ShowFault(HWND owner, const Localisation& localisation, const Fault& fault)
{
    ErrorMessage(localisation.Module(), localisation.String(IDS_PROGRAM), owner, fault.stringId,
                 MB_OK | MB_ICONEXCLAMATION, fault.text.c_str());
}

}  // namespace pipebench
