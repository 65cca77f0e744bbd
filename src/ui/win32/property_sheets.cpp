// Property sheets that are translated and turned to a page by message.
#include "config/process.h"
#include "ui/dialog_template.h"

#include <qxutility/ui/dialog_fields.h>

#include <cstddef>
#include <cstring>
#include <map>

namespace {

// What an application's own procedure sees of a sheet that has become the library's; the parameter
// is that procedure. Nobody can have the library take over a sheet by sending it.
constexpr UINT kTakenOver = 2701;

// The record of a page with its header's titles: what every system that has sheets knows.
constexpr DWORD kPageSize = offsetof(PROPSHEETPAGEA, pszHeaderSubTitle) + sizeof(char*);
static_assert(sizeof(void*) != 4 || kPageSize == 48);

// The dialog procedure that each of the open sheets had before.
std::map<HWND, LONG_PTR>& OldProcedures()
{
    static std::map<HWND, LONG_PTR> procedures;
    return procedures;
}

INT_PTR CallOld(LONG_PTR procedure, HWND sheet, UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::CallWindowProcA(reinterpret_cast<WNDPROC>(procedure), sheet, message, wParam, lParam);
}

INT_PTR PassOn(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = OldProcedures().find(sheet);
    return found == OldProcedures().end() ? FALSE
                                          : CallOld(found->second, sheet, message, wParam, lParam);
}

INT_PTR TurnToPage(HWND sheet, WPARAM index)
{
    const LRESULT wanted = ::SendMessageA(sheet, PSM_INDEXTOHWND, index, 0);
    const LRESULT current = ::SendMessageA(sheet, PSM_GETCURRENTPAGEHWND, 0, 0);
    const BOOL posted = wanted == current ? FALSE : ::PostMessageA(sheet, PSM_SETCURSEL, index, 0);
    ::SetWindowLongPtrA(sheet, DWLP_MSGRESULT, posted);
    return posted;
}

INT_PTR Leave(HWND sheet, WPARAM wParam, LPARAM lParam)
{
    const auto node = OldProcedures().extract(sheet);
    if (!node)
        return FALSE;
    ::SetWindowLongPtrA(sheet, DWLP_DLGPROC, node.mapped());
    return CallOld(node.mapped(), sheet, WM_DESTROY, wParam, lParam);
}

INT_PTR CALLBACK SheetProcedure(HWND sheet, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
        case kTurnToPage:
            return TurnToPage(sheet, wParam);
        case WM_DESTROY:
            return Leave(sheet, wParam, lParam);
        default:
            return PassOn(sheet, message, wParam, lParam);
    }
}

void TakeOver(HWND sheet)
{
    const LONG_PTR old = ::GetWindowLongPtrA(sheet, DWLP_DLGPROC);
    if (!OldProcedures().emplace(sheet, old).second)
        return;
    qx::Process().language.Dialog(sheet);
    PassOn(sheet, kTakenOver, static_cast<WPARAM>(old), 0);
    ::SetWindowLongPtrA(sheet, DWLP_DLGPROC, reinterpret_cast<LONG_PTR>(SheetProcedure));
}

}  // namespace

void PropSheetPageFirst(HINSTANCE module, PROPSHEETPAGEA* page, int dialogId, DLGPROC procedure,
                        LPARAM param, bool premature, const char* title)
{
    std::memset(static_cast<void*>(page), 0, kPageSize);
    page->dwSize = kPageSize;
    page->dwFlags = PSP_HASHELP | (premature ? PSP_PREMATURE : 0u) | (title ? PSP_USETITLE : 0u);
    page->hInstance = module;
    page->pszTemplate = MAKEINTRESOURCEA(dialogId);
    page->pszTitle = title;
    page->pfnDlgProc = procedure;
    page->lParam = param;
}

void PropSheetPage(HINSTANCE module, PROPSHEETPAGEA* page, int dialogId, DLGPROC procedure,
                   LPARAM param)
{
    PropSheetPageFirst(module, page, dialogId, procedure, param, false, nullptr);
}

int CALLBACK PropSheetProc(HWND sheet, UINT message, LPARAM param)
{
    if (message == PSCB_PRECREATE)
        qx::ClearContextHelp(reinterpret_cast<void*>(param));
    else if (message == PSCB_INITIALIZED)
        TakeOver(sheet);
    return 1;
}
