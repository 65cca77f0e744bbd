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

void ShowFault(HWND owner, const Localisation& localisation, const Fault& fault)
{
    ErrorMessage(localisation.Module(), localisation.String(IDS_PROGRAM), owner, fault.stringId,
                 MB_OK | MB_ICONEXCLAMATION, fault.text.c_str());
}

}  // namespace pipebench
