// The main window: menu, sketch, list of pipes, status bar.
#pragma once

#include "core/localisation.h"
#include "core/pipe.h"
#include "core/settings.h"
#include "win32/pipe_list.h"
#include "win32/sketch_view.h"

#include <windows.h>

#include <optional>
#include <vector>

namespace pipebench {

class MainWindow {
  public:
    // Starts in the stored language, or in `lcid`.
    MainWindow(Localisation& localisation, std::optional<DWORD> lcid);
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    // Shows the window and handles messages until it is closed; returns the exit status.
    int Run(int show);

  private:
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam);
    void OnCreate();
    void OnSize();
    void OnCommand(int id);
    void OnNotify(const NMHDR& header);
    void OnInitMenu(HMENU menu) const;

    void ShowTexts();
    void ShowMenu();
    void ShowPipes();
    void ShowSketch();
    void ShowStatus();
    // A metric value with its unit, as the user has chosen to see values.
    std::string Value(Quantity quantity, double metric) const;

    void UseLanguage(DWORD lcid);
    void ChangeOptions();
    void AddPipe();
    void EditSelected();
    void DuplicateSelected();
    void DeleteSelected();
    void ShowFlowOfSelected();
    void Sort(SortKey key);
    void Toggle(HWND child);
    void ShowAbout();

    Localisation& m_localisation;
    std::optional<DWORD> m_lcid;
    HWND m_window = nullptr;
    HWND m_statusBar = nullptr;
    SketchView m_sketch;
    PipeList m_list;
    std::vector<Pipe> m_pipes = SamplePipes();
    Settings m_settings;
};

}  // namespace pipebench
