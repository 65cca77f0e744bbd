// The dialog that shows a list of warnings.
#include "config/process.h"
#include "ui/placement.h"
#include "ui/warning_file.h"
#include "win32/gdi.h"
#include "win32/window_text.h"

#include <qxutility/config/help.h>
#include <qxutility/config/startup.h>
#include <qxutility/ui/dialog_fields.h>
#include <qxutility/ui/warning_list.h>

#include <commdlg.h>

#include <algorithm>
#include <initializer_list>

namespace {

enum Resource {
    kDialog = 1000,
    kExplanation = 1001,
    kList = 1002,
    kHelp = 6,
    kSave = 1003,
};

enum String {
    kUsualExplanation = 4,
    kSaveTitle = 113,
    kTitle = 114,
    kFilter = 1004,
    kNotSaved = 1111
};

constexpr int kTitleBuffer = 40;
constexpr int kFilterBuffer = 255;

std::string LibraryString(String id)
{
    return qx::Process().language.String(nullptr, id);
}

std::string Title(String id)
{
    return LibraryString(id).substr(0, kTitleBuffer - 1);
}

// The width of the widest text in a list box's font.
int WidestText(HWND list, const std::vector<std::string>& texts)
{
    const HDC dc = ::GetDC(list);
    int widest = 0;
    {
        const qx::win32::Selection font(
            dc, reinterpret_cast<HFONT>(::SendMessageA(list, WM_GETFONT, 0, 0)));
        for (const std::string& text : texts) {
            SIZE size{};
            ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
            widest = std::max(widest, static_cast<int>(size.cx));
        }
    }
    ::ReleaseDC(list, dc);
    return widest;
}

void FillList(HWND list, const std::vector<std::string>& texts)
{
    constexpr LPARAM kUsualLength = 80;
    ::SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    ::SendMessageA(list, LB_INITSTORAGE, texts.size(),
                   static_cast<LPARAM>(texts.size()) * kUsualLength);
    for (const std::string& text : texts)
        ::SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    const int margin = 4 * ::GetSystemMetrics(SM_CXEDGE);
    ::SendMessageA(list, LB_SETHORIZONTALEXTENT,
                   static_cast<WPARAM>(WidestText(list, texts) + margin), 0);
    ::SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    ::InvalidateRect(list, nullptr, TRUE);
}

// Moves and grows a window (in its parent's coordinates, if it has one).
void Adjust(HWND window, int down, int taller)
{
    RECT area{};
    ::GetWindowRect(window, &area);
    if (::GetWindowLongA(window, GWL_STYLE) & WS_CHILD)
        ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&area), 2);
    ::MoveWindow(window, area.left, area.top + down, area.right - area.left,
                 area.bottom - area.top + taller, TRUE);
}

void FitHeight(HWND dialog)
{
    const HWND list = ::GetDlgItem(dialog, kList);
    RECT row{}, area{};
    ::SendMessageA(list, LB_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&row));
    ::GetWindowRect(list, &area);
    const auto rows = static_cast<int>(::SendMessageA(list, LB_GETCOUNT, 0, 0));
    const int spare = qx::SpareHeight(area.bottom - area.top, rows, row.bottom - row.top,
                                      ::GetSystemMetrics(SM_CXEDGE));
    if (spare == 0)
        return;
    Adjust(list, 0, -spare);
    for (const int button : {int{IDOK}, int{kSave}, int{kHelp}})
        Adjust(::GetDlgItem(dialog, button), -spare, 0);
    Adjust(dialog, 0, -spare);
}

// The explanation is in the user's language already, and stays as it is.
void Translate(HWND dialog)
{
    const HWND explanation = ::GetDlgItem(dialog, kExplanation);
    const std::string text = qx::win32::WindowText(explanation);
    qx::Process().language.Dialog(dialog);
    ::SetWindowTextA(explanation, text.c_str());
}

void Start(HWND dialog, QXWarningList* list)
{
    ::SetWindowLongPtrA(dialog, DWLP_USER, reinterpret_cast<LONG_PTR>(list));
    list->FillDialog(dialog);
    CenterWindow(dialog, ::GetParent(dialog));
    ::SetWindowTextA(dialog, Title(kTitle).c_str());
    list->InitButtons(dialog);
    FitHeight(dialog);
    Translate(dialog);
}

INT_PTR OnCommand(HWND dialog, QXWarningList& list, int command)
{
    switch (command) {
        case IDOK:
        case IDCANCEL:
            return ::EndDialog(dialog, command);
        case kHelp:
            return list.Help(dialog), TRUE;
        case kSave:
            return list.SaveList(dialog), TRUE;
        default:
            return FALSE;
    }
}

INT_PTR CALLBACK WarningProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    auto* const list = reinterpret_cast<QXWarningList*>(::GetWindowLongPtrA(dialog, DWLP_USER));
    switch (message) {
        case WM_INITDIALOG:
            return Start(dialog, reinterpret_cast<QXWarningList*>(lParam)), TRUE;
        case WM_COMMAND:
            return list ? OnCommand(dialog, *list, LOWORD(wParam)) : FALSE;
        default:
            return FALSE;
    }
}

// The file that the user chooses; empty when none.
std::string AskForFile(HWND owner, const char* folder)
{
    char path[MAX_PATH] = "", filter[kFilterBuffer];
    const std::string title = Title(kSaveTitle);
    OPENFILENAMEA request{};
    request.lStructSize = sizeof request;
    request.hwndOwner = owner;
    request.lpstrFilter = LoadFileFilter(nullptr, filter, kFilter);
    request.nFilterIndex = 1;
    request.lpstrFile = path;
    request.nMaxFile = sizeof path;
    request.lpstrInitialDir = *folder ? folder : nullptr;
    request.lpstrTitle = title.c_str();
    request.lpstrDefExt = "TXT";
    request.Flags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_NOCHANGEDIR |
                    OFN_NOREADONLYRETURN | OFN_PATHMUSTEXIST;
    return ::GetSaveFileNameA(&request) ? path : "";
}

}  // namespace

void QXWarningList::display(HWND owner)
{
    if (!m_warnings.empty())
        ShowDialogBox(qx::Process().module, owner, WarningProcedure, kDialog,
                      reinterpret_cast<LPARAM>(this));
}

void QXWarningList::FillDialog(HWND dialog)
{
    const std::string text =
        m_textId != 0 ? qx::Process().language.String(m_module, static_cast<unsigned>(m_textId))
                      : LibraryString(kUsualExplanation);
    ::SetDlgItemTextA(dialog, kExplanation, text.c_str());
    FillList(::GetDlgItem(dialog, kList), m_warnings);
}

// Save is always there, also without a folder to start from: it always has been.
void QXWarningList::InitButtons(HWND dialog)
{
    if (m_helpId == 0)
        ::ShowWindow(::GetDlgItem(dialog, kHelp), SW_HIDE);
}

void QXWarningList::Help(HWND)
{
    if (m_help && m_helpId != 0)
        m_help->Open("Dialog", static_cast<unsigned>(m_helpId));
}

void QXWarningList::SaveList(HWND owner)
{
    const std::string path = AskForFile(owner, m_folder);
    if (!path.empty() && !qx::SaveLines(path.c_str(), m_warnings))
        ErrorMessage(nullptr, Title(kTitle), owner, kNotSaved, MB_OK, path.c_str());
}
