// Tooltips for the controls of a window, with texts that are asked for when they are shown.
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

#include <commctrl.h>

// The tooltip window belongs to the owner: it goes with that, not with the object. The owner is
// asked for each text by WM_NOTIFY, TTN_GETDISPINFO.
class QX_API ToolTipper {
  public:
    explicit ToolTipper(HWND owner);
    ~ToolTipper();

    // A tooltip for a window, a control of the owner for instance.
    void AddTip(HWND window);
    void DeleteTip(HWND window);
    // For whatever the caller's record says.
    void AddTip(TOOLINFOA* tool);
    void DeleteTip(TOOLINFOA* tool);

    // Makes a new tooltip window, for another owner.
    void Init(HWND owner);

  private:
    HWND m_tooltip = nullptr;
    HWND m_owner = nullptr;
};

#endif
