// Placing windows, and running dialogs.
#include "config/process.h"
#include "ui/placement.h"

#include <qxutility/config/startup.h>
#include <qxutility/ui/dialog_fields.h>

static constexpr int kNotOpened = 7;  // the string that says so

void CenterWindow(HWND window, HWND over)
{
    if (!over)
        over = ::GetDesktopWindow();
    RECT own{}, area{};
    ::GetWindowRect(window, &own);
    ::GetClientRect(over, &area);
    const int width = own.right - own.left, height = own.bottom - own.top;
    POINT place{qx::CentredStart(area.right, width), qx::CentredStart(area.bottom, height)};
    ::ClientToScreen(over, &place);
    ::MoveWindow(window, place.x, place.y, width, height, TRUE);
}

void CenterTool(HWND window, RECT& area)
{
    ::GetWindowRect(window, &area);
    ::InflateRect(&area, -((area.right - area.left) / 6), -((area.bottom - area.top) / 6));
}

BOOL CALLBACK MoveDialogChildren(HWND child, LPARAM dx)
{
    RECT area{};
    ::GetWindowRect(child, &area);
    ::MapWindowPoints(nullptr, ::GetParent(child), reinterpret_cast<POINT*>(&area), 2);
    ::MoveWindow(child, area.left + static_cast<int>(dx), area.top, area.right - area.left,
                 area.bottom - area.top, FALSE);
    ::UpdateWindow(child);
    return TRUE;
}

int ShowDialogBox(HINSTANCE module, HWND owner, DLGPROC procedure, int dialogId, LPARAM param)
{
    const auto result = static_cast<int>(
        ::DialogBoxParamA(module, MAKEINTRESOURCEA(dialogId), owner, procedure, param));
    if (result < 0) {
        std::string title = "Error!";
        qx::Process().language.Text(title, title, 0);
        ErrorMessage(nullptr, title, owner, kNotOpened, MB_SYSTEMMODAL, "Dialog");
    }
    return result;
}
