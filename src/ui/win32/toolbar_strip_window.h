// The window that toolbars stand in, and all that is done with them.
//
// Every message to the host or to a toolbar may end the object or its window, or load other bars:
// who calls a member holds the object (the callers of Strips do), and a member that goes on after
// such a message looks its bar up anew.
#pragma once

#include "ui/toolbar_menus.h"
#include "ui/toolbar_strip.h"

#include <qxutility/ui/dockable_window.h>
#include <qxutility/ui/toolbar_master.h>

#include <commctrl.h>

#include <array>
#include <memory>

namespace qx {

// A record; it is empty as long as it has no toolbar.
struct Bar {
    std::unique_ptr<DockableWindow> floating;  // made when the bar floats for the first time
    HWND toolbar = nullptr;
    HWND child = nullptr;  // a window of the host in place of buttons
    ToolbarRecord record;

    bool Floats() const { return floating && floating->IsUnDocked(); }
};

// What the host says when it makes the strip.
struct StripResources {
    int defaultToolbars = 0;
    int controlId = 0;
    int bitmap = 0;
    int images = 0;      // in the bitmap
    int catalogue = -1;  // none
};

class StripWindow : public std::enable_shared_from_this<StripWindow> {
  public:
    StripWindow();
    StripWindow(const StripWindow&) = delete;
    StripWindow& operator=(const StripWindow&) = delete;
    ~StripWindow();
    bool Create(HWND parent, const StripResources& resources);
    // Its owner gives it up: from now on messages go elsewhere. It lives on as long as its window.
    static void Leave(const std::shared_ptr<StripWindow>& strip);

    // The operations of ToolBarMaster.
    void LoadToolbars(const std::string& fileName);
    void SaveToolbars(const std::string& fileName);
    bool CreateToolBar(int id, HWND child);
    void UpdateButtonStates();
    void ToggleDock(int x, int y, int id, int index);
    void ToggleLockControls(bool customisable);
    bool HandleToolTip(NMTTDISPINFOA& tip);
    LRESULT HandleNotifiers(WPARAM wParam, NMHDR& notification);
    SIZE BandSize(HWND toolbar) const;
    bool IsWrapable(HWND toolbar) const;
    HWND Window() const { return m_window; }

  private:
    // Life and messages: toolbar_strips.cpp
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept;
    LRESULT Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void BeingDestroyed();
    void Destroyed();
    static void FollowLife(HWND window, UINT message);
    // The object whose window it is; null for any other window.
    static std::shared_ptr<StripWindow> Own(HWND strip);

    // Bars: toolbar_bars.cpp
    std::vector<StripBar> StripBars() const;
    std::vector<MenuBar> MenuBars() const;
    int GetBandID(HWND toolbar) const;
    int GetBandID(int id) const;
    Bar& GetToolBarInfo(int id);
    const Bar* BarOf(HWND toolbar) const;
    Bar* BarOf(HWND toolbar);
    HWND NewToolbar(int id, int images) const;
    HWND CreateToolBar(int id);
    void InsertWindow(HWND toolbar, int width);
    void FreeBar(Bar& bar);
    void KeepOneShown();
    void UpdateBar(HWND toolbar);
    void CollapseSeparators(HWND toolbar);
    HWND Parent() const { return ::GetParent(m_window); }
    RECT AreaOf(HWND toolbar) const;

    // Loading and saving: toolbar_loading.cpp
    bool InitializeToolbars(const std::string& path);
    bool GetXMLToolbars(const std::string& path);
    bool InitializeToDefaults();
    bool Take(std::vector<ToolbarRecord> records);
    void LoadBuildButtons();
    std::vector<std::pair<HWND, int>> TakeBarsAway();
    void CarryOut(const LoadStep& step);
    ToolbarRecord WrittenRecord(const Bar& bar) const;
    void LoadDefaults();

    // Layout and picture: toolbar_layout.cpp
    void RestoreBandPositions();
    void RelayOut(WPARAM further);
    bool LayOutOnce(int further);
    void PlaceBar(int index, const StripBar& place);
    void Resize(const StripLayout& layout, const RECT& client);
    void NotifyAutoSize() const;
    void Sized();
    void InvalidateBar(HWND toolbar) const;
    void InvalidateFrame(HWND toolbar) const;
    void Paint(HWND window) const;

    // Mouse and menu: toolbar_mouse.cpp, toolbar_commands.cpp
    LRESULT HitTestMessage(RBHITTESTINFO* test) const;
    void ButtonDown(POINT mouse);
    void MouseMove(POINT mouse);
    void ButtonUp();
    void ShowMenu(POINT at);
    void Command(int command, POINT at, HWND hit);
    void NewBarCommand();
    void DeleteCommand(HWND hit);
    void ResetCommand();
    void ToggleShown(int index);
    void Customize(POINT at);
    void MenuSelect(WPARAM wParam, HMENU menu) const;
    void TellChanged() const;

    // Notifications and the customise dialog: toolbar_notifications.cpp, toolbar_customise.cpp
    LRESULT PassOn(WPARAM wParam, NMHDR& notification) const;
    std::string TextOfCommand(int command);
    bool ButtonInfo(NMTOOLBARA& info);
    void EndAdjust(HWND toolbar);
    void ResetAfterDialog();
    void CustomizeCustomizeWindow(HWND toolbar);
    void DialogEnds(HWND dialog);
    void LeaveToDialog(HWND toolbar);
    static LRESULT CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam,
                                            LPARAM lParam) noexcept;

    // Floating: toolbar_floating.cpp
    int HitTestBar(POINT screen) const;
    void ToggleDock(int index);
    void Float(int index);
    void Dock(Bar& bar);
    static void ShowFloating(const Bar& bar);

    HINSTANCE m_module = nullptr;  // of the host
    HWND m_window = nullptr;       // null when it was destroyed
    bool m_locked = false;
    bool m_customisable = true;
    StripResources m_resources;
    ButtonCatalogue m_catalogue{};
    std::array<Bar, kMostBars> m_bars;

    int m_dragged = -1;
    int m_loads = 0;                      // so far
    int m_nested = 0;                     // layouts in progress, one within the other
    int m_passes = 0;                     // of all of these
    bool m_resizing = false;              // the layout gives the strip its height
    bool m_sized = false;                 // and it has changed by that
    bool m_inMenu = false;                // the menu is open
    bool m_resets = false;                // Reset was pressed in the customise dialog
    HWND m_dialog = nullptr;              // the customise dialog, once it was extended
    HWND m_customised = nullptr;          // the toolbar that it changes
    std::string m_unread;                 // the file that could not be read when it was loaded
    std::string m_tip;                    // the text given to a tooltip last
    std::shared_ptr<StripWindow> m_self;  // once its owner gave it up
};

// Sent by the strip to itself, to act when the notification that it is in has ended: the toolbar
// that sent it may be destroyed then.
inline constexpr UINT kShowMenuMessage = WM_USER + 1678;  // lParam: the point
inline constexpr UINT kResetMessage = WM_USER + 1679;

// The toolbar control's form of a button, and back.
TBBUTTON ToControl(const ToolbarButton& button);
std::vector<ToolbarButton> ReadButtons(HWND toolbar);

}  // namespace qx
