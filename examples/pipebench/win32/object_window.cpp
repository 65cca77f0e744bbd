#include "win32/object_window.h"

namespace pipebench {

void ObjectWindow::CreateObjectWindow(const Look& look, HWND parent, SIZE size)
{
    const HINSTANCE module = ::GetModuleHandleA(nullptr);
    WNDCLASSA info{};
    info.style = look.classStyle;
    info.lpfnWndProc = Procedure;
    info.hInstance = module;
    info.lpszClassName = look.className;
    info.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    info.hIcon = look.icon;
    info.hbrBackground = look.background;
    ::RegisterClassA(&info);
    const DWORD style = parent ? WS_CHILD | WS_CLIPCHILDREN : WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
    const int place = parent ? 0 : CW_USEDEFAULT;
    ::CreateWindowExA(parent ? WS_EX_CONTROLPARENT : 0, look.className, "", style, place, place,
                      size.cx, size.cy, parent, nullptr, module, this);
}

LRESULT ObjectWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    return ::DefWindowProcA(m_window, message, wParam, lParam);
}

LRESULT CALLBACK ObjectWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* created = static_cast<ObjectWindow*>(
            reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams);
        created->m_window = window;
        ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    }
    auto* object = reinterpret_cast<ObjectWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    return object ? object->Handle(message, wParam, lParam)
                  : ::DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace pipebench
