// Panes of a window: its child windows side by side, with splitters that the user drags.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

namespace qx {

// Flags of a pane, combined by or. A pane has one side, looked for in the order right, left, top,
// bottom; without any it is at the bottom.
inline constexpr DWORD kPaneLeft = 0x04000000;    // its size is a width
inline constexpr DWORD kPaneRight = 0x02000000;   // its size is a width
inline constexpr DWORD kPaneTop = 0x01000000;     // its size is a height
inline constexpr DWORD kPaneBottom = 0x00800000;  // its size is a height
// Left and right panes are to have "across", the others "along": that is the direction of their
// splitter, and of what a fixed pane keeps.
inline constexpr DWORD kPaneAcross = 0x40000000;
inline constexpr DWORD kPaneAlong = 0x80000000;
inline constexpr DWORD kPaneSizable = 0x08000000;   // followed by a splitter that resizes it
inline constexpr DWORD kPaneSplitter = 0x00100000;  // is such a splitter, and has no window
inline constexpr DWORD kPaneEdge = 0x00080000;      // a sunken edge of 2 pixels round the window
inline constexpr DWORD kPaneFixed = 0x00400000;     // cannot be other than its window is now
// The last pane: its size becomes the bottom of its area, which is the area's height when that
// begins at 0. Deliberate: applications rely on it.
inline constexpr DWORD kPaneFill = 0x00200000;
inline constexpr DWORD kPaneHeightLocked = 0x10000000;  // cannot be higher or lower than its size
inline constexpr DWORD kPaneWidthLocked = 0x20000000;   // cannot be wider or narrower than its size

}  // namespace qx

// Sent to the host window while the user drags a splitter and once more at the end. wParam and
// lParam: width and height of the pane's place, its edge included.
inline constexpr UINT UM_PANESIZED = 1132;  // WM_USER + 108

#if QX_WINDOWS

#include <memory>

namespace qx {
struct Pane;
}

class WindowLayout;
struct hwndToobj {
    HWND window;
    WindowLayout* object;
};

// Arranges the child windows of one host window into panes. Each takes a strip at one side of the
// space that the panes before it left; the host follows its panes' minimum sizes (which the windows
// tell by WM_GETMINMAXINFO). The host is subclassed as long as the object lives; object and host
// may go in either order. The child windows belong to the caller. Only for the host's thread.
//
// Up to 32 layouts are registered. A further one does not follow its host's messages, its own
// functions work; so with a second one on the same host, as long as the first lives.
class QX_API WindowLayout {
  public:
    explicit WindowLayout(HWND host);
    WindowLayout(const WindowLayout&) = delete;
    WindowLayout& operator=(const WindowLayout&) = delete;
    ~WindowLayout();

    // Adds a pane behind the others; `size` in pixels, `flags` as above. The all-ones handle stands
    // for a pane without a window, the only one for which `limits` matter (null: none). Nothing is
    // moved before ReCalcLayout.
    void AddWindow(HWND window, int size, DWORD flags, const MINMAXINFO* limits);
    // Takes a pane, and its splitter, out of the layout; returns its window, null when there is no
    // such pane. The first pane is never removed.
    HWND RemoveWindow(HWND window);
    // Looks only at the pane right after the first one: deliberate, applications rely on it.
    HWND RemoveWindow(int controlId);
    // Flags, size and area (the space given to the pane and to those after it) of a window's pane:
    // 1, or 0 when it has none. Outputs may be null; with 0 they are left as they are.
    int GetWindowProps(HWND window, DWORD* flags, int* size, RECT* area) const;

    // Moves the windows to where they belong in the host's client area. Panes that find less room
    // than their minimum sizes need stay where they were, with those after them.
    void ReCalcLayout();
    // Repaints the host.
    void RedrawAll();
    // The side (qx::kPaneLeft ...) at which a rectangle in screen coordinates lies: the one nearest
    // to its middle; the bottom when two are equally near.
    DWORD WhichSide(const RECT& screen) const;

    // The registered layout of a host window, null when it has none.
    static WindowLayout* GetMe(HWND host);

  private:
    static LRESULT CALLBACK Procedure(HWND host, UINT message, WPARAM wParam, LPARAM lParam);
    bool Before(UINT message, WPARAM wParam, LPARAM lParam);
    void After(UINT message, LPARAM lParam);
    void HostDestroyed();
    bool Register();
    bool Unregister();

    void SetWindowSize(HWND window, const RECT& area);
    bool HasSplitter() const;
    void ClientPaint();
    void DragPaint(int position);
    qx::Pane* HitTest(POINT point) const;
    void StartDrag(qx::Pane* pane);
    void StopDrag();
    bool ShowSizingCursor() const;
    void ButtonDown(POINT point);
    void MouseMove(POINT point);
    void RaiseMinimum(MINMAXINFO& host) const;

    static hwndToobj windToThis[32];
    static bool initial;

    HWND m_host;  // null once it was destroyed
    WNDPROC m_previous;
    qx::Pane* m_dragged = nullptr;
    std::unique_ptr<qx::Pane> m_first;
    std::shared_ptr<void> m_life;  // ends with the object, which may go during any call of a window
    bool m_releasing = false;      // gives the mouse back itself
};

#endif
