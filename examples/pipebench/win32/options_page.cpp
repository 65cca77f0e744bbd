#include "win32/options_page.h"

#include "core/texts.h"
#include "win32/dialog_items.h"

#include <qxutility/ui/dialog_fields.h>

namespace pipebench {

OptionsPage::OptionsPage(const Localisation& localisation, int resource, const char* title)
    : m_localisation(localisation),
      m_resource(resource),
      m_title(Wording(localisation.Language(), title))
{
}

HPROPSHEETPAGE OptionsPage::Handle(std::function<void()> onHelp)
{
    m_onHelp = std::move(onHelp);
    PROPSHEETPAGEA page{};
    PropSheetPageFirst(m_localisation.Module(), &page, m_resource, Procedure,
                       reinterpret_cast<LPARAM>(this), false, m_title.c_str());
    return ::CreatePropertySheetPageA(&page);
}

INT_PTR CALLBACK OptionsPage::Procedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        const LPARAM object = reinterpret_cast<const PROPSHEETPAGEA*>(lParam)->lParam;
        ::SetWindowLongPtrA(dialog, GWLP_USERDATA, object);
        return reinterpret_cast<OptionsPage*>(object)->Open(dialog), TRUE;
    }
    auto* page = reinterpret_cast<OptionsPage*>(::GetWindowLongPtrA(dialog, GWLP_USERDATA));
    switch (page ? message : WM_NULL) {
        case WM_COMMAND:
            return page->OnCommand(LOWORD(wParam), HIWORD(wParam)), TRUE;
        case WM_NOTIFY:
            return page->OnNotify(reinterpret_cast<const NMHDR*>(lParam)->code), TRUE;
        default:
            return FALSE;
    }
}

void OptionsPage::Open(HWND dialog)
{
    m_dialog = dialog;
    Language().Dialog(dialog);
    OnInit();
}

void OptionsPage::OnNotify(UINT code)
{
    LONG_PTR answer = 0;
    if (code == static_cast<UINT>(PSN_KILLACTIVE))
        answer = !Take();
    else if (code == static_cast<UINT>(PSN_APPLY))
        m_accepted = true;
    else if (code == static_cast<UINT>(PSN_HELP))
        m_onHelp();
    ::SetWindowLongPtrA(m_dialog, DWLP_MSGRESULT, answer);
}

bool OptionsPage::Refuse(const Fault& fault, int control) const
{
    ShowFault(::GetParent(m_dialog), m_localisation, fault);
    FocusItem(m_dialog, control);
    return false;
}

}  // namespace pipebench
