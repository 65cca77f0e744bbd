// A strip of toolbars across the top of an application's window, which users arrange as they like.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

// What a strip tells its parent, the host window.

// What about this command? wParam: the command. The answer: 0 disabled, 4 enabled, 5 enabled and
// checked, 6 enabled and pressed, 8 hidden.
inline constexpr UINT UM_COMMANDSTATE = 1124;  // WM_USER + 100
// After every change by the user: a drag has ended, a menu was used, a bar was customised. Hosts
// save the toolbars then.
inline constexpr UINT UM_TOOLBARSCHANGED = 1129;  // WM_USER + 105
// wParam: a text for the status line, valid during the call.
inline constexpr UINT UM_STATUSTEXT = 1131;  // WM_USER + 107
// WM_NOTIFY with RBN_AUTOSIZE comes after every layout; the strip has its new height then.
// TTN_NEEDTEXTA, TBN_DROPDOWN and TBN_CUSTHELP are passed on by WM_NOTIFY.

// Sent to the strip: lay the bars out anew.
inline constexpr UINT UM_RELAYOUT = 1130;  // WM_USER + 106

#if QX_WINDOWS

#include <memory>

namespace qx {
class StripWindow;
}

// The toolbars of a host window. They stand in rows in a strip, a child window of the class
// "ZREBARWIND" at the top of the host; the user drags them by their grips, and shows, hides, locks,
// makes, deletes, customises and resets them through the strip's menu. They float in a
// DockableWindow of their own while undocked.
//
// The host brings resources of the type "XML": its default toolbars (the layout of a toolbar file)
// and the catalogue of all buttons; and a bitmap with the buttons' pictures, 18 by 18 pixels each.
// It calls CreateRebar, LoadToolbars, CreateToolBar for each window that it puts into a bar, and
// UpdateButtonStates whenever the state of a command may have changed.
//
// Object and strip may be destroyed in either order; in that of the strip its floating windows go
// as well. At most 128 bars and 128 entries of the catalogue. Up to 16 strips are registered; a
// further one shares the object that was used last. Only for the host's thread.
class QX_API ToolBarMaster {
  public:
    ToolBarMaster();
    ToolBarMaster(const ToolBarMaster&) = delete;
    ToolBarMaster& operator=(const ToolBarMaster&) = delete;
    ~ToolBarMaster();

    // Makes the strip, without bars, and reads the catalogue (resource -1: none; one that is
    // missing locks the strip for good). `images` is the number of pictures in the bitmap. The
    // resources are those of the parent's module. 1, or 0 when there is no strip.
    int CreateRebar(HWND parent, int defaultToolbars, int controlId, int bitmap, int images,
                    int catalogue);
    // Loads the user's toolbars from a file in the folder "ZRW" of the application data, the
    // default ones when there is no such file or none could be read from it ("": always). Windows
    // that stood in bars stand in them again. All are laid out in the strip's width: give it that
    // before.
    void LoadToolbars(const char* fileName);
    // Saves them there, unless the strip cannot be customised. The file is replaced in one step;
    // one that could not be read in full is kept under the name with ".unreadable" added. Failures
    // are not reported.
    void SaveToolbars(const char* fileName);

    // Puts a window of the host, a combo box say, into the bar of that ID in place of buttons; it
    // keeps its width. A bar that there is not yet is made. The last argument is not used. False,
    // with a message, when there is no bar.
    bool CreateToolBar(int barId, HWND child, int);
    // Asks the host about every button (UM_COMMANDSTATE). A separator that only hidden buttons part
    // from the one before is removed.
    void UpdateButtonStates();

    // Floats a bar, or docks one that floats. The bar is the record of that index; with index -1
    // the one at a point of the screen; with x and y -1 as well, that of the ID.
    void ToggleDock(int x, int y, int barId, int index);
    // Locks the bars where they are, or lets them loose. While the strip is locked and cannot be
    // customised there is no menu.
    void ToggleLockControls(int customisable);

    // Answers TTN_NEEDTEXTA: the host's text, or the string of the command + 2000 of the language
    // table or of the host's module. False for anything else, and without a text.
    bool HandleToolTip(NMHDR* notification);
    // Handles a notification of a toolbar; 0 when it is none of the strip's concern. The strip
    // calls it itself.
    int HandleNotifiers(WPARAM wParam, NMHDR* notification);

    // The strip on the screen; all 0 without one.
    void GetWindowRect(RECT* area) const;
    // Null without a strip.
    HWND GetRebarHWND() const;
    // Moves the strip to the top left corner of the host, in that size.
    void SizeRebarWindow(int width, int height);

    // The size of a bar, by its toolbar window: the height is 24 but for a window of the host that
    // is higher; the width 0 for an unknown one.
    int GetBandHeight(HWND toolbar) const;
    int GetBandWidth(HWND toolbar) const;
    // Whether it is a bar of buttons, which may stand in several rows while it floats.
    bool IsWrapable(HWND toolbar) const;

  private:
    std::shared_ptr<qx::StripWindow> m_strip;
};

#endif
