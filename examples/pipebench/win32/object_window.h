// A window of the program's own whose messages go to an object.
#pragma once

#include <windows.h>

namespace pipebench {

class ObjectWindow {
  public:
    ObjectWindow() = default;
    ObjectWindow(const ObjectWindow&) = delete;
    ObjectWindow& operator=(const ObjectWindow&) = delete;
    virtual ~ObjectWindow() = default;

    HWND Window() const { return m_window; }

  protected:
    // What the class of the window is to be, beside its procedure.
    struct Look {
        const char* className;
        UINT classStyle = 0;
        HBRUSH background = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        HICON icon = nullptr;
    };
    // Creates a child of `parent` without a size; a window of its own, `size` large, when `parent`
    // is null. The object must outlive the window.
    void CreateObjectWindow(const Look& look, HWND parent, SIZE size = {});
    // Passes on to DefWindowProc what it does not handle.
    virtual LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    HWND m_window = nullptr;
};

}  // namespace pipebench
