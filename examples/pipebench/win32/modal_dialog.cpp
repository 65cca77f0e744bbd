#include "win32/modal_dialog.h"

namespace pipebench {

bool ModalDialog::Run(HWND owner, int resource)
{
    return ::DialogBoxParamA(m_localisation.Module(), MAKEINTRESOURCEA(resource), owner, Procedure,
                             reinterpret_cast<LPARAM>(this)) == IDOK;
}

INT_PTR CALLBACK ModalDialog::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrA(dialog, GWLP_USERDATA, lParam);
        return reinterpret_cast<ModalDialog*>(lParam)->Open(dialog), TRUE;
    }
    auto* self = reinterpret_cast<ModalDialog*>(::GetWindowLongPtrA(dialog, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam) : FALSE;
}

INT_PTR ModalDialog::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_COMMAND:
            LOWORD(wParam) == IDCANCEL ? Close(IDCANCEL)
                                       : OnCommand(LOWORD(wParam), HIWORD(wParam));
            return TRUE;
        case WM_DRAWITEM:
            return OnDraw(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam)), TRUE;
        default:
            return FALSE;
    }
}

void ModalDialog::Open(HWND dialog)
{
    m_dialog = dialog;
    Language().Dialog(dialog);
    OnInit();
}

}  // namespace pipebench
