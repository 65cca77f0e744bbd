#include "print/win32/cancel_window.h"

#include "config/process.h"
#include "print/cancel_place.h"
#include "print/win32/print_system.h"

namespace qx::win32 {

namespace {

enum Resource { kDialog = 104, kDocumentName = 501, kCancel = 504 };

struct State {
    HWND window = nullptr;
    HWND disabled = nullptr;  // the owner, unless it was disabled already
    int opened = 0;
    bool cancelled = false;
    int asked = 0;  // calls of the abort procedure that have not returned
} state;

void DisableOwner(HWND owner)
{
    state.disabled = ::IsWindowEnabled(owner) ? owner : nullptr;
    ::EnableWindow(owner, FALSE);
}

void PlaceOver(HWND owner, HWND window)
{
    RECT own{}, client{};
    ::GetWindowRect(window, &own);
    ::GetClientRect(owner, &client);
    ::MapWindowPoints(owner, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const POINT place = CancelWindowPlace(client, own.right - own.left);
    ::SetWindowPos(window, nullptr, place.x, place.y, 0, 0,
                   SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Start(HWND window, const char* documentName)
{
    state.window = window;
    state.cancelled = false;
    const HWND owner = ::GetParent(window);
    DisableOwner(owner);
    PlaceOver(owner, window);
    Process().language.Dialog(window);
    ::SetDlgItemTextA(window, kDocumentName, documentName);  // a name is not translated
}

void EnableOwner()
{
    if (state.disabled)
        ::EnableWindow(state.disabled, TRUE);
    state.disabled = nullptr;
}

// The owner first: the system activates it then, and not another program's window.
void Close()
{
    EnableOwner();
    System().DestroyWindow(state.window);
}

// When nobody closed the window its owner was destroyed, and so was the job's.
void End()
{
    state.cancelled = state.cancelled || state.opened > 0;
    state.opened = 0;
    state.window = nullptr;
    EnableOwner();
}

void Cancel()
{
    state.cancelled = true;
    if (state.window)
        Close();
}

BOOL OnCommand(int command)
{
    if (command != kCancel && command != IDCANCEL)  // the Esc key and the caption's button
        return FALSE;
    Cancel();
    return TRUE;
}

INT_PTR CALLBACK CancelProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
        case WM_INITDIALOG:
            return Start(window, reinterpret_cast<const char*>(lParam)), TRUE;
        case WM_COMMAND:
            return OnCommand(LOWORD(wParam));
        case WM_DESTROY:
            return End(), TRUE;
        default:
            return FALSE;
    }
}

}  // namespace

bool OpenCancelWindow(HWND owner, const char* documentName)
{
    if (state.opened == 0) {
        const HWND window =
            System().CreateDialogParamA(Process().module, MAKEINTRESOURCEA(kDialog), owner,
                                        CancelProcedure, reinterpret_cast<LPARAM>(documentName));
        if (!window)
            return false;
        ::ShowWindow(window, SW_SHOW);
        ::UpdateWindow(window);
    }
    ++state.opened;
    return true;
}

void CloseCancelWindow()
{
    if (state.opened > 0 && --state.opened == 0)
        Close();
}

bool IsCancelled()
{
    return state.cancelled;
}

void ForgetCancel()
{
    state.cancelled = false;
}

BOOL CALLBACK AbortProcedure(HDC, int) noexcept
{
    ++state.asked;
    MSG message{};
    while (!state.cancelled && ::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            ::PostQuitMessage(static_cast<int>(message.wParam));  // for the program's own loop
            Cancel();
        } else if (!state.window || !::IsDialogMessageA(state.window, &message)) {
            ::TranslateMessage(&message);
            ::DispatchMessageA(&message);
        }
    }
    --state.asked;
    return !state.cancelled;
}

bool IsInAbortProcedure()
{
    return state.asked > 0;
}

}  // namespace qx::win32
