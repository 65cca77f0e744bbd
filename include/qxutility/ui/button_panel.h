// A panel of picture buttons on a window, a start page for instance, described in XML:
//
//   <layout>
//     <button x="10" y="10" width="120" height="40">
//       <standard><filename>open</filename></standard>
//       <pushed><filename>pictures.dll</filename><resource>7</resource></pushed>
//       <rollover ButtonColor="1"> ... </rollover>
//       <command>1001</command>
//       <link>www.example.com</link>
//     </button>
//     <other x="10" y="60" width="120" height="40">
//       <quickimage border="1">
//         <icon size="small" x="4" y="4">manual.pdf</icon>
//         <text size="14" x="30" align="left">Manual</text>
//       </quickimage>
//     </other>
//   </layout>
//
// Every element in "layout" is a button, whatever its name; later ones lie above earlier ones.
// x, y, width and height default to 0. A picture is a bitmap file (found as the system searches for
// files, ".bmp" is added to a name without extension), bitmap "resource" of a module of that name,
// or of the library or the panel's module when there is no such file. ButtonColor: its greys become
// the colours of buttons; WindowColor: the colour of its first pixel becomes that of windows. Of a
// module nothing but the bitmap is used, its code never runs. A picture that cannot be had is none.
//
// "quickimage" replaces the pictures by drawn ones: an icon (the number of a resource of the
// panel's module; else a file, a program or an address) and a caption. size: height of the font,
// default 18; align: left, center or right. "command" is posted, "link" opened when the button is
// pressed. Texts are cut to 259 characters, "align" to 79.
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

#include <memory>
#include <string>

class XMLElement;

namespace qx {
struct ButtonArea;
}

// One button; used by Layout.
class QX_API SmartButton {
  public:
    enum BtnState { standard = 0, pushed = 1, rollover = 2 };

    // Empty: no place, pictures or action.
    SmartButton(HINSTANCE module, HWND panel);
    SmartButton(const SmartButton&) = delete;
    SmartButton& operator=(const SmartButton&) = delete;
    ~SmartButton();

    // Takes everything from the button's element; null changes nothing.
    void ReadXML(XMLElement* element);
    // A state without a picture becomes the standard one. Draws the button if the state changed.
    void SetState(BtnState state);
    // Draws the picture of the state, if there is one; with a null context on the panel.
    void Draw(HDC dc);
    // Opens the link, then posts the command to `target` as WM_COMMAND; whichever there is.
    // Failures are not reported.
    void Go(HWND target);
    bool HasAction() const;
    // Right and bottom edge included.
    bool bInRect(int x, int y) const;
    // Raises a size so that the button lies within.
    void CalcSize(int& width, int& height) const;

  private:
    friend class Layout;
    qx::ButtonArea Area() const;

    std::unique_ptr<SmartButton> m_next;
    HWND m_panel;
    HINSTANCE m_module;
    BtnState m_state = standard;
    int m_command = 0;
    std::string m_link;
    HBITMAP m_pictures[3] = {};  // owned
    int m_x = 0, m_y = 0, m_width = 0, m_height = 0;
};

// The panel: a child of `parent`, in the middle of it and behind its other children, control id
// 5000. It lives until the object ends or its parent destroys it. For the thread of the parent.
class QX_API Layout {
  public:
    // `element` is the one that contains "layout"; when it does not, there is no panel. Commands go
    // to `target`. The element is not used afterwards.
    Layout(HWND parent, HWND target, HINSTANCE module, XMLElement* element);
    Layout(const Layout&) = delete;
    Layout& operator=(const Layout&) = delete;
    ~Layout();

    void Show(bool show);
    // Moves the panel to the middle of a rectangle in the parent's client area, cut to it.
    void Center(const RECT& within);

  private:
    static LRESULT CALLBACK Procedure(HWND panel, UINT message, WPARAM wParam, LPARAM lParam);
    void RegisterPanelClass();
    void ReadButtons(XMLElement& layout);

    void CalcSize(int& width, int& height) const;
    void Paint(HDC dc);
    SmartButton* FindButton(int x, int y) const;
    void MouseDown(int x, int y);
    void MouseUp(int x, int y);
    void MouseMove(int x, int y, bool held);
    void MouseLeave();
    void SetCursor() const;
    void WindowDestroyed();

    std::unique_ptr<SmartButton> m_first;
    bool m_registered = false;
    SmartButton* m_tracked = nullptr;
    HINSTANCE m_module;
    HWND m_parent;
    HWND m_target;
    HWND m_panel = nullptr;
};

#endif
