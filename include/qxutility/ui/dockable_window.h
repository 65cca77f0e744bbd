// Child windows of an application that float in a small captioned window of their own and are
// docked back: toolbars, for one.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

// What a floating window tells the main frame. The frame does the docking itself.

// Sent at each step of a move; wParam: pointer to the proposed RECT on the screen; lParam: 1 when
// the hosted window is a toolbar control, else 0. Not 0 as answer: that is over the dock area.
inline constexpr UINT UM_DOCKQUERY = 1125;  // WM_USER + 101
// The hosted window is to be docked. wParam: its control id; lParam: 1 for a toolbar control, else
// 0, plus 0x10000 when the close button was pressed. Sent by the close button, posted at the end of
// a move over the dock area.
inline constexpr UINT UM_DOCKREQUEST = 1126;  // WM_USER + 102
// Posted whenever the floating window has moved; no parameters.
inline constexpr UINT UM_FLOATMOVED = 1128;  // WM_USER + 104

#if QX_WINDOWS

#include <memory>

// A floating window for one child window. While the user moves it only an inverted outline follows
// the mouse, and the main frame is asked whether that lies over its dock area. The caption of the
// main frame stays active while the floating window has the focus; floating windows of one frame
// share one subclass of it, and they and the frame may be destroyed in any order.
//
// The object owns the floating window, the hosted window belongs to the caller. Only for the thread
// of the main frame. Up to 32 objects are registered with their frames; a further one works, but
// its frame's caption does not stay active.
class QX_API DockableWindow {
  public:
    // Makes the floating window at (50, 50), visible, with the focus at `owner`. The hosted window
    // (null: none yet) is undocked into it in its own size.
    DockableWindow(HWND owner, HWND hosted);
    DockableWindow(const DockableWindow&) = delete;
    DockableWindow& operator=(const DockableWindow&) = delete;
    // A window that still floats becomes a hidden child of its owner.
    ~DockableWindow();

    // Floats a window. The owner gets the commands, the context menu messages and all messages from
    // WM_USER + 1 up that reach the floating window; the main frame is the owner or the first
    // window above it that has a border. Width and height of the client area in pixels; both 0: the
    // hosted window's size.
    void UnDock(HWND owner, HWND hosted, int width, int height);
    // Hides the floating window. The hosted window is still in it: the caller takes it out. Gives
    // the owner, and where on the screen the last move ended (all 0 before the first); both outputs
    // may be null.
    void Dock(HWND* owner, RECT* dock);
    bool IsUnDocked() const;

    // The floating window on the screen, in pixels, its frame included. All 0 once it was
    // destroyed.
    int GetX() const;
    int GetY() const;
    int GetWidth() const;
    int GetHeight() const;
    void SetX(int x);
    void SetY(int y);
    void SetWidth(int width);
    void SetHeight(int height);

    // The floating window's caption.
    void SetWindowTextA(const char* text);
    // Enables the floating window, or disables it; its caption is drawn anew.
    void Disable(bool enable);

  private:
    struct hwndToobj {
        HWND window;
        DockableWindow* object;
    };

    static LRESULT CALLBACK FloatProcedure(HWND window, UINT message, WPARAM wParam,
                                           LPARAM lParam) noexcept;
    static LRESULT CALLBACK FrameProcedure(HWND frame, UINT message, WPARAM wParam,
                                           LPARAM lParam) noexcept;
    static DockableWindow* ObjectOf(HWND window);
    static bool IsFollowed(HWND frame);
    static bool KeepsCaption(HWND frame, UINT message, WPARAM wParam, LPARAM lParam);
    static void FrameDestroyed(HWND frame);

    void RegisterWindowClass();
    void CreateFloat();
    void Created(HWND window);
    void FloatDestroyed();
    void FollowFrame(HWND frame);
    void LeaveFrame();
    bool Register(HWND frame);
    void Unregister();

    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT WhileMoving(UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Default(UINT message, WPARAM wParam, LPARAM lParam) const;
    LRESULT ButtonDown(WPARAM hit, LPARAM lParam);
    void EnterMove();
    void ExitMove();
    void ShowInstead();
    void DrawOutline(const RECT& area, bool erase);
    void DrawRopRect(const RECT& area, HDC dc, bool erase);
    LRESULT DrawCaption(LPARAM lParam) const;
    void SizeHosted() const;
    bool HoldsHosted() const;
    RECT FloatArea() const;
    void MoveFloat(int x, int y, int width, int height) const;
    WPARAM HostedId() const;
    LPARAM ToolbarFlag() const;

    static hwndToobj windToThis[32];
    static bool initial;

    WNDPROC m_previous =
        nullptr;  // the frame's own procedure; null as long as that is not followed
    HWND m_frame = nullptr;
    HWND m_owner;
    HWND m_hosted;
    HWND m_window = nullptr;  // null once it was destroyed
    bool m_outlineDrawn = false;
    RECT m_lastOutline{};
    bool m_active = true;
    bool m_moving = false;
    bool m_undocked = false;
    RECT m_dock{};
    HINSTANCE m_module;            // of the owner: that of the floating window's class
    std::shared_ptr<void> m_life;  // ends with the object, which may go during any call of a window
};

#endif
