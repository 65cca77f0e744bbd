// A look at the messages of a window, in front of its own procedure.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>
#include <utility>

namespace qx::test {

// What a test wants to know of a window's messages: an answer, or none to go on.
using Handler = std::function<std::optional<LRESULT>(UINT, WPARAM, LPARAM)>;

// Puts a handler in front of a window's procedure, as an application does. One for each window.
class Spy {
  public:
    Spy(HWND window, Handler handler) : m_window(window), m_handler(std::move(handler))
    {
        ::SetPropA(window, kProperty, this);
        m_previous = reinterpret_cast<WNDPROC>(
            ::SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    }
    Spy(const Spy&) = delete;
    Spy& operator=(const Spy&) = delete;
    ~Spy()
    {
        if (!::IsWindow(m_window))
            return;
        ::SetWindowLongPtrA(m_window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_previous));
        ::RemovePropA(m_window, kProperty);
    }

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const auto* spy = static_cast<const Spy*>(::GetPropA(window, kProperty));
        if (!spy)
            return ::DefWindowProcA(window, message, wParam, lParam);
        const WNDPROC previous = spy->m_previous;
        if (const auto answer = spy->m_handler(message, wParam, lParam))
            return *answer;
        return ::CallWindowProcA(previous, window, message, wParam, lParam);
    }

    static constexpr char kProperty[] = "QX_TEST_SPY";
    HWND m_window;
    Handler m_handler;
    WNDPROC m_previous;
};

inline WNDPROC ProcedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(::GetWindowLongPtrA(window, GWLP_WNDPROC));
}

}  // namespace qx::test
