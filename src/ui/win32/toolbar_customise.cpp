// The customise dialog of the common controls, with a field for the bar's name.
#include "env/wording.h"
#include "ui/win32/toolbar_strip_window.h"
#include "win32/gdi.h"
#include "win32/subclass.h"
#include "win32/window_text.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace qx {

// Controls of the dialog.
static constexpr int kAvailable = 201, kReset = 202, kChosen = 203, kRemove = 204, kClose = 2;
static constexpr int kAnyLabel = 65535;
static constexpr int kName = 1000;  // the field that is added
static constexpr int kMoreHeight = 40;

// Properties of the dialog.
static constexpr char kOwner[] = "QX_STRIP";
static constexpr char kToolbar[] = "QX_TOOLBAR";  // that is to go with it

// ---- Finding it

static bool IsCustomiseDialog(HWND window)
{
    char className[16] = "";
    ::GetClassNameA(window, className, sizeof className);
    if (std::string_view(className) != "#32770")
        return false;
    for (const int id : {kAvailable, kReset, kChosen, kRemove, kClose}) {
        if (!::GetDlgItem(window, id))
            return false;
    }
    return true;
}

static BOOL CALLBACK FindDialog(HWND window, LPARAM found)
{
    if (!IsCustomiseDialog(window) || ::GetPropA(window, kOwner))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

// By its controls, as its title is in the system's language.
static HWND FindCustomiseDialog()
{
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), FindDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

// ---- Extending it

static HFONT FontOf(HWND dialog)
{
    return reinterpret_cast<HFONT>(::SendDlgItemMessageA(dialog, kAnyLabel, WM_GETFONT, 0, 0));
}

// Usually 75; more for a text that needs it, as far as there is room.
static int LabelWidth(HWND dialog, const std::string& text)
{
    const HDC dc = ::GetDC(dialog);
    SIZE size{};
    {
        const win32::Selection font(dc, FontOf(dialog));
        ::GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    }
    ::ReleaseDC(dialog, dc);
    return std::clamp<int>(size.cx, 75, 84);
}

static HWND AddControl(HWND dialog, const char* className, const std::string& text, DWORD style,
                       DWORD extendedStyle, const RECT& place, int id)
{
    const HWND control = ::CreateWindowExA(
        extendedStyle, className, text.c_str(), WS_CHILD | WS_VISIBLE | style, place.left,
        place.top, place.right, place.bottom, dialog,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
        reinterpret_cast<HINSTANCE>(::GetWindowLongPtrA(dialog, GWLP_HINSTANCE)), nullptr);
    ::SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(FontOf(dialog)), TRUE);
    return control;
}

static void MakeHigher(HWND dialog)
{
    RECT area{};
    ::GetWindowRect(dialog, &area);
    ::SetWindowPos(dialog, nullptr, 0, 0, area.right - area.left,
                   area.bottom - area.top + kMoreHeight, SWP_NOMOVE | SWP_NOZORDER);
}

void StripWindow::CustomizeCustomizeWindow(HWND toolbar)
{
    const Bar* bar = BarOf(toolbar);
    const HWND dialog = bar ? FindCustomiseDialog() : nullptr;
    if (!dialog)
        return;
    m_dialog = dialog;
    m_customised = toolbar;
    MakeHigher(dialog);
    const std::string label = Translated("Toolbar name: ");
    AddControl(dialog, "Static", label, WS_GROUP, 0, {10, 210, LabelWidth(dialog, label), 20}, -1);
    const HWND name = AddControl(dialog, "EDIT", bar->record.name, WS_TABSTOP | ES_AUTOHSCROLL,
                                 WS_EX_CLIENTEDGE, {95, 208, 185, 20}, kName);
    ::SendMessageA(name, EM_LIMITTEXT, kMostNameBytes, 0);
    ::SetDlgItemTextA(dialog, kReset, Translated("Help").c_str());
    ::SetDlgItemTextA(dialog, kClose, "OK");
    ::SetPropA(dialog, kOwner, m_window);
    win32::AddSubclass(dialog, DialogProcedure);
}

// ---- Its messages

void StripWindow::DialogEnds(HWND dialog)
{
    if (Bar* bar = dialog == m_dialog ? BarOf(m_customised) : nullptr)
        bar->record.name = win32::WindowText(::GetDlgItem(dialog, kName)).substr(0, kMostNameBytes);
    m_dialog = nullptr;
}

// The control is still within its call that shows the dialog, and needs its window until that has
// returned: it is destroyed by the first message after the dialog's end.
void StripWindow::LeaveToDialog(HWND toolbar)
{
    const HWND dialog = std::exchange(m_dialog, nullptr);
    m_customised = nullptr;
    ::ShowWindow(toolbar, SW_HIDE);
    ::SetParent(toolbar, HWND_MESSAGE);
    if (dialog && ::SetPropA(dialog, kToolbar, toolbar))
        ::SendMessageA(dialog, WM_CLOSE, 0, 0);
    else
        ::PostMessageA(toolbar, WM_CLOSE, 0, 0);
}

static void AskForHelp(HWND strip, HWND dialog)
{
    NMHDR help{strip, static_cast<UINT_PTR>(::GetDlgCtrlID(strip)),
               static_cast<UINT>(TBN_CUSTHELP)};
    ::SendMessageA(::GetParent(strip), WM_NOTIFY, help.idFrom, reinterpret_cast<LPARAM>(&help));
    ::SetFocus(dialog);
}

LRESULT CALLBACK StripWindow::DialogProcedure(HWND dialog, UINT message, WPARAM wParam,
                                              LPARAM lParam) noexcept
{
    const auto strip = static_cast<HWND>(::GetPropA(dialog, kOwner));
    if (message == WM_COMMAND && LOWORD(wParam) == kReset && ::IsWindow(strip))
        return AskForHelp(strip, dialog), 0;
    if (message == WM_DESTROY) {
        if (const auto object = Own(strip))
            object->DialogEnds(dialog);
        ::RemovePropA(dialog, kOwner);
        if (const HANDLE toolbar = ::RemovePropA(dialog, kToolbar))
            ::PostMessageA(static_cast<HWND>(toolbar), WM_CLOSE, 0, 0);
    }
    const LRESULT result = win32::NextProcedure(DialogProcedure, dialog, message, wParam, lParam);
    if (message == WM_NCDESTROY)
        win32::ForgetSubclass(dialog, DialogProcedure);
    return result;
}

}  // namespace qx
