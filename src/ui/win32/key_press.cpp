// Edit controls that report a pause after typing. Their state stands in window properties.
#include <qxutility/ui/dialog_fields.h>

#include <algorithm>

namespace {

constexpr char kOldProcedure[] = "OLDPROC";
constexpr char kDelay[] = "DELAY";
constexpr char kRunningTimer[] = "TIMER";  // the window that owns the timer
constexpr UINT_PTR kTimerId = 5;
constexpr long kUsualDelay = 2000;

bool StopTimer(HWND edit)
{
    const auto owner = static_cast<HWND>(::GetPropA(edit, kRunningTimer));
    if (!owner)
        return false;
    ::KillTimer(owner, kTimerId);
    ::SetPropA(edit, kRunningTimer, nullptr);
    return true;
}

void RestartTimer(HWND edit)
{
    StopTimer(edit);
    const auto delay = reinterpret_cast<UINT_PTR>(::GetPropA(edit, kDelay));
    if (::SetTimer(edit, kTimerId, static_cast<UINT>(delay), nullptr))
        ::SetPropA(edit, kRunningTimer, edit);
}

void ReportPause(HWND edit)
{
    ::SendMessageA(::GetParent(edit), WM_COMMAND, MAKEWPARAM(::GetDlgCtrlID(edit), EN_KILLFOCUS),
                   reinterpret_cast<LPARAM>(edit));
}

void Forget(HWND edit)
{
    StopTimer(edit);
    ::RemovePropA(edit, kRunningTimer);
}

LRESULT End(HWND edit, WNDPROC old, WPARAM wParam, LPARAM lParam)
{
    ::RemovePropA(edit, kOldProcedure);
    ::RemovePropA(edit, kDelay);
    if (!old)
        return ::DefWindowProcA(edit, WM_NCDESTROY, wParam, lParam);
    ::SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(old));
    return ::CallWindowProcA(old, edit, WM_NCDESTROY, wParam, lParam);
}

LRESULT CALLBACK KeyPressProcedure(HWND edit, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    const auto old = reinterpret_cast<WNDPROC>(::GetPropA(edit, kOldProcedure));
    switch (message) {
        case WM_CHAR:
            RestartTimer(edit);
            break;
        case WM_TIMER:
            // The control has timers of its own, and one that was stopped may still be on its way.
            if (wParam == kTimerId && StopTimer(edit))
                ReportPause(edit);
            break;
        case WM_KILLFOCUS:
            StopTimer(edit);
            break;
        case WM_DESTROY:
            Forget(edit);
            break;
        case WM_NCDESTROY:
            return End(edit, old, wParam, lParam);
        default:
            break;
    }
    if (!::IsWindow(edit))  // whoever heard of the pause may have destroyed it
        return 0;
    return old ? ::CallWindowProcA(old, edit, message, wParam, lParam)
               : ::DefWindowProcA(edit, message, wParam, lParam);
}

}  // namespace

void MakeKeyPress(HWND dialog, unsigned id)
{
    MakeKeyPressDelay(dialog, id, kUsualDelay);
}

void MakeKeyPressDelay(HWND dialog, unsigned id, long delay)
{
    const HWND edit = ::GetDlgItem(dialog, static_cast<int>(id));
    if (!edit)
        return;
    ::SetPropA(edit, kDelay, reinterpret_cast<HANDLE>(static_cast<UINT_PTR>(std::max(delay, 0L))));
    if (::GetPropA(edit, kOldProcedure))
        return;
    const LONG_PTR old = ::GetWindowLongPtrA(edit, GWLP_WNDPROC);
    ::SetPropA(edit, kOldProcedure, reinterpret_cast<HANDLE>(old));
    ::SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(KeyPressProcedure));
}

void ClearKeyPress(HWND, unsigned) {}
