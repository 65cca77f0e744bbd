// The main window: menu, a line in its panes or the start page, status bar.
#pragma once

#include "core/commands.h"
#include "core/line.h"
#include "core/localisation.h"
#include "win32/report_print.h"
#include "win32/start_page.h"
#include "win32/toolbars.h"
#include "win32/workspace.h"

#include <qxutility/config/help.h>

#include <windows.h>

#include <optional>

namespace pipebench {

class MainWindow : public ObjectWindow {
  public:
    // Starts in the stored language, or in `lcid`.
    MainWindow(Localisation& localisation, std::optional<DWORD> lcid);

    // Shows the window and handles messages until it is closed; returns the exit status.
    int Run(int show);

  private:
    // Messages: main_window.cpp
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    void OnCreate();
    void OnInitMenu(HMENU menu) const;
    void OnLimits(MINMAXINFO& limits);
    void OnClose();
    void OnDestroy();
    void CreateToolbars();
    // Lays out what the window holds, from the top to the bottom.
    void Arrange();
    RECT ViewArea() const;

    // What is shown: main_window.cpp
    void ShowTexts();
    void ShowMenu();
    void ShowLine();
    void ShowStatus();
    void ShowView();

    // Commands: main_commands.cpp, line_commands.cpp. Menus and toolbars ask StateOf and send
    // WM_COMMAND.
    struct Command;
    static const Command* FindCommand(int command);
    CommandState StateOf(int command) const;
    Situation Now() const;
    void OnCommand(int command);
    void OnSelection();

    void NewLine(int);
    void OpenSample(int);
    void OpenLine(int);
    void SaveLine(int);
    void SaveLineAs(int);
    void CloseLine(int);
    void CheckLine(int);
    void Exit(int);
    void PrintReport(int command);  // report_commands.cpp
    void AddPipe(int);
    void EditSelected(int);
    void DuplicateSelected(int);
    void DeleteSelected(int);
    void ShowFlowOfSelected(int);
    void Sort(int command);
    void UseDecimals(int command);
    void TogglePart(int command);
    void ToggleTools(int);
    void UseUnits(DT_UNITS units);
    void UseLanguage(int command);
    void ChangeOptions(int);
    void ShowHelp(int);
    void ShowAbout(int);

    void Open(std::optional<Line> line);
    void Write(const std::string& path);
    bool MayLeave();
    // After a change of the pipes.
    void Changed();
    void Speak(DWORD lcid);

    Localisation& m_localisation;
    std::optional<DWORD> m_lcid;
    HTML_HELP m_help;
    Toolbars m_toolbars;
    HWND m_statusBar = nullptr;
    StartPage m_startPage;
    Workspace m_workspace;
    std::optional<Line> m_line;  // without one the start page is shown
    Settings m_settings;
    ReportPrinter m_printer;
};

}  // namespace pipebench
