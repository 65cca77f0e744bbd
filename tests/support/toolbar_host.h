// A host window with a strip of toolbars, that answers and notes what the strip asks and tells.
// Its program has the toolbars of windows/toolbars as resources: File (101), Edit (102, not
// editable), Scale (103, for a child) and Extra (104, hidden).
#pragma once

#include "support/win32_screen.h"
#include "support/window_spy.h"

#include <qxutility/ui/dockable_window.h>
#include <qxutility/ui/toolbar_master.h>

#include <commctrl.h>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <map>
#include <memory>

namespace qx::test {

enum ToolbarResource { kDefaults = 300, kCatalogue = 301, kPictures = 302 };
enum ToolbarId { kFile = 101, kEdit = 102, kScale = 103, kExtra = 104 };

inline std::string Text(const RECT& r)
{
    return std::to_string(r.left) + " " + std::to_string(r.top) + " " + std::to_string(r.right) +
           " " + std::to_string(r.bottom);
}

// The folder in which the library keeps users' toolbars.
inline std::filesystem::path ToolbarFolder()
{
    return std::filesystem::path(std::getenv("APPDATA")) / "ZRW";
}

// The user's file, not there at first.
class UserToolbars {
  public:
    UserToolbars() { std::filesystem::remove_all(ToolbarFolder()); }
    UserToolbars(const UserToolbars&) = delete;
    UserToolbars& operator=(const UserToolbars&) = delete;
    ~UserToolbars() { std::filesystem::remove_all(ToolbarFolder()); }

    void Write(const std::string& text) const
    {
        std::filesystem::create_directories(ToolbarFolder());
        std::ofstream(ToolbarFolder() / kName, std::ios::binary) << text;
    }
    std::string Read(const char* name = kName) const
    {
        std::ifstream file(ToolbarFolder() / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    static constexpr char kName[] = "bars.xml";
};

struct ToolbarHost {
    explicit ToolbarHost(int defaults = kDefaults, int catalogue = kCatalogue)
    {
        ::SetForegroundWindow(window);
        created = master->CreateRebar(window, defaults, 50, kPictures, 6, catalogue);
        strip = master->GetRebarHWND();
    }
    // With the toolbars of the user's file or the default ones.
    void Load()
    {
        master->LoadToolbars(UserToolbars::kName);
        PumpWaiting();
    }
    HWND Toolbar(int id) const { return ::GetDlgItem(strip, id); }
    // The places of the toolbars in the strip, with "-" for a hidden one.
    std::string Places() const
    {
        std::string text;
        for (const int id : {kFile, kEdit, kScale, kExtra}) {
            const HWND bar = Toolbar(id);
            const bool shown = (::GetWindowLongA(bar, GWL_STYLE) & WS_VISIBLE) != 0;
            if (bar)
                text += (shown ? "" : "-") + Text(AreaOf(bar)) + "; ";
        }
        return text;
    }
    int Count(const std::string& what) const
    {
        return static_cast<int>(std::count(told.begin(), told.end(), what));
    }

    std::vector<std::string> told;  // "changed", "autosize", "status: ..." ...
    std::map<int, int> answers;     // to UM_COMMANDSTATE; 4 unless it stands here
    std::string tip;                // for every command; empty: none
    std::function<void(UINT)> whenTold = [](UINT) {};
    TestWindow window{"Toolbars", 500, 300};
    std::unique_ptr<ToolBarMaster> master = std::make_unique<ToolBarMaster>();
    int created = 0;
    HWND strip = nullptr;

  private:
    void NoteNotification(NMHDR* header)
    {
        if (header->code == static_cast<UINT>(RBN_AUTOSIZE))
            told.push_back("autosize");
        if (header->code == static_cast<UINT>(TBN_CUSTHELP))
            told.push_back("help");
        if (header->code == static_cast<UINT>(TTN_NEEDTEXTA) && !tip.empty())
            reinterpret_cast<NMTTDISPINFOA*>(header)->lpszText = tip.data();
    }
    std::optional<LRESULT> Note(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == UM_COMMANDSTATE) {
            whenTold(message);
            const auto known = answers.find(static_cast<int>(wParam));
            return known == answers.end() ? 4 : known->second;
        }
        if (message == UM_TOOLBARSCHANGED)
            told.push_back("changed");
        if (message == UM_STATUSTEXT)
            told.push_back(std::string("status: ") + reinterpret_cast<const char*>(wParam));
        if (message == UM_DOCKREQUEST)
            told.push_back("dock " + std::to_string(wParam));
        if (message == WM_NOTIFY)
            NoteNotification(reinterpret_cast<NMHDR*>(lParam));
        if (message == WM_COMMAND)
            told.push_back("command " + std::to_string(LOWORD(wParam)));
        whenTold(message);
        return {};
    }
    Spy m_spy{window, [this](UINT message, WPARAM wParam, LPARAM lParam) {
                  return Note(message, wParam, lParam);
              }};
};

struct LoadedHost : ToolbarHost {
    LoadedHost() { Load(); }
};

struct ToolbarTest : testing::Test {
    const UserToolbars user;
};

}  // namespace qx::test
