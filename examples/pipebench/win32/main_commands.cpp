// The commands of the main window.
#include "core/texts.h"
#include "ids.h"
#include "win32/dialogs.h"
#include "win32/help.h"
#include "win32/main_window.h"
#include "win32/settings_store.h"

#include <algorithm>

namespace pipebench {

// What a command runs; a row may stand for several numbers in a row.
struct MainWindow::Command {
    int first, last;
    void (MainWindow::*run)(int command);
};

const MainWindow::Command* MainWindow::FindCommand(int command)
{
    static constexpr Command kCommands[] = {
        {IDM_NEW, IDM_NEW, &MainWindow::NewLine},
        {IDM_SAMPLE, IDM_SAMPLE, &MainWindow::OpenSample},
        {IDM_OPEN, IDM_OPEN, &MainWindow::OpenLine},
        {IDM_SAVE, IDM_SAVE, &MainWindow::SaveLine},
        {IDM_SAVE_AS, IDM_SAVE_AS, &MainWindow::SaveLineAs},
        {IDM_PAGE_SETUP, IDM_SAVE_PDF, &MainWindow::PrintReport},
        {IDM_SEND, IDM_SEND, &MainWindow::PrintReport},
        {IDM_START_PAGE, IDM_START_PAGE, &MainWindow::CloseLine},
        {IDM_EXIT, IDM_EXIT, &MainWindow::Exit},
        {IDM_DUPLICATE, IDM_DUPLICATE, &MainWindow::DuplicateSelected},
        {IDM_DELETE, IDM_DELETE, &MainWindow::DeleteSelected},
        {IDM_ADD, IDM_ADD, &MainWindow::AddPipe},
        {IDM_EDIT, IDM_EDIT, &MainWindow::EditSelected},
        {IDM_FLOW, IDM_FLOW, &MainWindow::ShowFlowOfSelected},
        {IDM_CHECK, IDM_CHECK, &MainWindow::CheckLine},
        {IDM_SORT_NAME, IDM_SORT_DIAMETER, &MainWindow::Sort},
        {IDM_DECIMALS_0, IDM_DECIMALS_3, &MainWindow::UseDecimals},
        {IDM_SKETCH, IDM_STATUS_BAR, &MainWindow::TogglePart},
        {IDM_TREE, IDM_TREE, &MainWindow::TogglePart},
        {IDM_FLOATING_TOOLS, IDM_FLOATING_TOOLS, &MainWindow::ToggleTools},
        {IDM_OPTIONS, IDM_OPTIONS, &MainWindow::ChangeOptions},
        {IDM_HELP, IDM_HELP, &MainWindow::ShowHelp},
        {IDM_ABOUT, IDM_ABOUT, &MainWindow::ShowAbout},
        {IDM_LANGUAGE_FIRST, IDM_LANGUAGE_LAST, &MainWindow::UseLanguage},
    };
    const auto found = std::ranges::find_if(kCommands, [command](const Command& row) {
        return command >= row.first && command <= row.last;
    });
    return found == std::end(kCommands) ? nullptr : found;
}

// Accelerators come also for commands that cannot be used now.
void MainWindow::OnCommand(int command)
{
    const CommandState state = StateOf(command);
    const Command* found = FindCommand(command);
    if (found && (state == CommandState::Enabled || state == CommandState::Checked))
        (this->*found->run)(command);
    m_toolbars.ShowStates();
}

void MainWindow::OnSelection()
{
    m_toolbars.ShowStates();
}

CommandState MainWindow::StateOf(int command) const
{
    return pipebench::StateOf(command, Now());
}

Situation MainWindow::Now() const
{
    const auto choices = m_localisation.Choices();
    const auto language =
        std::ranges::find(choices, m_localisation.Language().GetLanguage(), &LanguageChoice::lcid);
    return {.lineOpen = m_line.has_value(),
            .lineChanged = m_line && m_line->changed,
            .anyPipe = m_line && !m_line->pipes.empty(),
            .pipeSelected = m_line && m_workspace.Selected(),
            .toolsFloat = m_toolbars.ToolsFloat(),
            .settings = m_settings,
            .languages = choices.size(),
            .language = static_cast<std::size_t>(language - choices.begin())};
}

void MainWindow::Exit(int)
{
    ::PostMessageA(Window(), WM_CLOSE, 0, 0);
}

void MainWindow::Changed()
{
    m_line->changed = true;
    ShowLine();
}

void MainWindow::AddPipe(int)
{
    std::vector<Pipe>& pipes = m_line->pipes;
    const Pipe proposal{
        .name = FreeName(pipes), .length = 10, .diameter = 100, .pricePerMetre = 25.5};
    const auto pipe = EditPipe(Window(), m_localisation, m_settings.units, proposal, pipes);
    if (!pipe)
        return;
    pipes.push_back(*pipe);
    Changed();
    m_workspace.Select(pipes.size() - 1);
}

void MainWindow::EditSelected(int)
{
    const std::size_t index = *m_workspace.Selected();
    Pipe& edited = m_line->pipes[index];
    std::vector<Pipe> others = m_line->pipes;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(index));
    const auto pipe = EditPipe(Window(), m_localisation, m_settings.units, edited, others);
    if (!pipe)
        return;
    edited = *pipe;
    Changed();
}

void MainWindow::DuplicateSelected(int)
{
    std::vector<Pipe>& pipes = m_line->pipes;
    Pipe copy = pipes[*m_workspace.Selected()];
    copy.name = FreeName(pipes);
    pipes.push_back(copy);
    Changed();
    m_workspace.Select(pipes.size() - 1);
}

void MainWindow::DeleteSelected(int)
{
    std::vector<Pipe>& pipes = m_line->pipes;
    pipes.erase(pipes.begin() + static_cast<std::ptrdiff_t>(*m_workspace.Selected()));
    Changed();
}

void MainWindow::ShowFlowOfSelected(int)
{
    ShowPipeFlow(Window(), m_localisation, m_help, m_line->pipes[*m_workspace.Selected()],
                 m_settings);
    Save(Window(), m_localisation, m_settings);
    ShowLine();  // flow and units may be others now
}

void MainWindow::Sort(int command)
{
    SortBy(static_cast<SortKey>(command - IDM_SORT_NAME), m_line->pipes);
    Changed();
}

void MainWindow::UseDecimals(int command)
{
    m_settings.decimals = command - IDM_DECIMALS_0;
    Save(Window(), m_localisation, m_settings);
    ShowLine();
}

void MainWindow::TogglePart(int command)
{
    View& view = m_settings.view;
    m_workspace.ReadSizes(view);
    bool& part = command == IDM_TREE     ? view.tree
                 : command == IDM_SKETCH ? view.sketch
                                         : view.statusBar;
    part = !part;
    m_workspace.Arrange(view);
    ShowView();
}

void MainWindow::ToggleTools(int)
{
    m_toolbars.ToggleTools();
}

void MainWindow::UseUnits(DT_UNITS units)
{
    m_settings.units = units;
    pipebench::Save(Window(), m_localisation, m_settings);
    ShowLine();
    ::SetFocus(Window());
}

void MainWindow::Speak(DWORD lcid)
{
    m_localisation.Use(lcid);
    m_localisation.Store();
    ShowTexts();
}

void MainWindow::UseLanguage(int command)
{
    Speak(m_localisation.Choices()[static_cast<std::size_t>(command - IDM_LANGUAGE_FIRST)].lcid);
}

void MainWindow::ChangeOptions(int)
{
    ProgramOptions options = {m_localisation.Language().GetLanguage(), m_settings,
                              ReadDirectories()};
    if (!EditOptions(Window(), m_localisation, m_help, options))
        return;
    m_settings = options.settings;
    Save(Window(), m_localisation, m_settings);
    SaveDirectories(Window(), m_localisation, options.directories);
    Speak(options.lcid);
}

void MainWindow::ShowHelp(int)
{
    m_help.Contents(kManual);
}

void MainWindow::ShowAbout(int)
{
    ::MessageBoxA(Window(), m_localisation.String(IDS_ABOUT).c_str(),
                  m_localisation.String(IDS_PROGRAM).c_str(), MB_OK | MB_ICONINFORMATION);
}

}  // namespace pipebench
