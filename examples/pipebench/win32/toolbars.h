// The toolbars across the top of the main window.
#pragma once

#include "core/commands.h"
#include "core/localisation.h"
#include "core/settings.h"

#include <qxutility/ui/toolbar_master.h>

#include <windows.h>

#include <functional>
#include <optional>
#include <string>

namespace pipebench {

class Toolbars {
  public:
    // What the window around them does for them.
    struct Host {
        std::function<CommandState(int command)> stateOf;
        std::function<void(DT_UNITS units)> useUnits;
        // They have another height, or the user has changed them.
        std::function<void()> changed;
        // A text for the status bar.
        std::function<void(const char* text)> explain;
    };

    // As the user left them.
    void Create(HWND parent, const Localisation& localisation, Host host);
    // Messages that are sent to the parent; nothing for those that are none of theirs.
    std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam);

    void ShowTexts();
    void ShowUnits(DT_UNITS units);
    // After what the states of commands depend on has changed.
    void ShowStates();
    void Arrange(int width);
    int Height() const;

    bool ToolsFloat() const;
    // Out of the strip, below it, and back.
    void ToggleTools();

  private:
    bool IsOverStrip(const RECT& area) const;
    void Dock(int bar, bool dropped);
    void UseChosenUnits();
    std::optional<LRESULT> OnNotify(NMHDR& header);
    void OnHeight();
    void ShowTip(NMHDR& header);
    void ShowSortMenu(const NMHDR& header) const;
    void Save();

    ToolBarMaster m_master;
    Host m_host;
    const Localisation* m_localisation = nullptr;
    HWND m_parent = nullptr;
    HWND m_units = nullptr;
    int m_height = 0;
    RECT m_dropped{};   // where the outline of a bar was last
    std::string m_tip;  // of the button that was asked for last
};

}  // namespace pipebench
