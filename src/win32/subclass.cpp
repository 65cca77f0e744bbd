#include "win32/subclass.h"

#include <map>

namespace qx::win32 {

namespace {

struct Subclass {
    WNDPROC next;
    int users;
};

}  // namespace

// Belongs to the user-interface thread, as windows do.
static std::map<std::pair<HWND, WNDPROC>, Subclass>& Subclasses()
{
    static std::map<std::pair<HWND, WNDPROC>, Subclass> subclasses;
    return subclasses;
}

static WNDPROC Exchange(HWND window, WNDPROC procedure)
{
    return reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

WNDPROC AddSubclass(HWND window, WNDPROC procedure)
{
    const auto known = Subclasses().find({window, procedure});
    if (known != Subclasses().end()) {
        ++known->second.users;
        return known->second.next;
    }
    const WNDPROC next = Exchange(window, procedure);
    if (next)
        Subclasses()[{window, procedure}] = {next, 1};
    return next;
}

void RemoveSubclass(HWND window, WNDPROC procedure)
{
    const auto known = Subclasses().find({window, procedure});
    if (known == Subclasses().end() || --known->second.users > 0)
        return;
    const LONG_PTR current = ::GetWindowLongPtrA(window, GWLP_WNDPROC);
    if (current != reinterpret_cast<LONG_PTR>(procedure))
        return;
    Exchange(window, known->second.next);
    Subclasses().erase(known);
}

void ForgetSubclass(HWND window, WNDPROC procedure)
{
    Subclasses().erase({window, procedure});
}

LRESULT NextProcedure(WNDPROC procedure, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto known = Subclasses().find({window, procedure});
    if (known == Subclasses().end())
        return ::DefWindowProcA(window, message, wParam, lParam);
    return ::CallWindowProcA(known->second.next, window, message, wParam, lParam);
}

}  // namespace qx::win32
