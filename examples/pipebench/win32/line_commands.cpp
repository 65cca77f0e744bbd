// The commands of the main window that open, save and check a line.
#include "core/checks.h"
#include "core/line_file.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/dialog_items.h"
#include "win32/file_boxes.h"
#include "win32/files.h"
#include "win32/main_window.h"

#include <qxutility/ui/warning_list.h>

namespace pipebench {

void MainWindow::Open(std::optional<Line> line)
{
    m_line = std::move(line);
    ShowLine();
    ShowView();
    if (m_line && !m_line->pipes.empty())
        m_workspace.Select(0);
    ::SetFocus(Window());
}

void MainWindow::NewLine(int)
{
    if (MayLeave())
        Open(Line{});
}

void MainWindow::OpenSample(int)
{
    if (MayLeave())
        Open(Line{.pipes = SamplePipes(), .path = {}});
}

void MainWindow::CloseLine(int)
{
    if (MayLeave())
        Open({});
}

void MainWindow::OpenLine(int)
{
    if (!MayLeave())
        return;
    const auto path = ChooseLine(Window(), m_localisation, m_help, m_settings);
    if (!path)
        return;
    auto read = ReadLine(*path);
    if (const auto* fault = std::get_if<Fault>(&read))
        return ShowFault(Window(), m_localisation, *fault);
    Open(Line{.pipes = std::get<std::vector<Pipe>>(std::move(read)), .path = *path});
}

void MainWindow::SaveLine(int)
{
    if (m_line->path.empty())
        SaveLineAs(0);
    else
        Write(m_line->path);
}

void MainWindow::SaveLineAs(int)
{
    if (const auto path =
            ChooseToSave(Window(), m_localisation, {IDS_LINE_FILTER, "pbl"}, m_line->path))
        Write(*path);
}

void MainWindow::Write(const std::string& path)
{
    if (!WriteLine(path, m_line->pipes))
        return ShowFault(Window(), m_localisation, {IDS_LINE_NOT_SAVED, path});
    m_line->path = path;
    m_line->changed = false;
    ShowLine();
}

// Offers to save what would be lost; false when the user wants to stay.
bool MainWindow::MayLeave()
{
    if (!m_line || !m_line->changed)
        return true;
    const std::string program = m_localisation.String(IDS_PROGRAM);
    const std::string question = Sentence(m_localisation.Module(), IDS_SAVE_CHANGES,
                                          NameOf(*m_line, m_localisation.String(IDS_UNTITLED)));
    const int answer = ::MessageBoxA(Window(), question.c_str(), program.c_str(),
                                     MB_YESNOCANCEL | MB_ICONQUESTION);
    if (answer == IDYES)
        SaveLine(0);
    return answer == IDNO || (answer == IDYES && !m_line->changed);
}

void MainWindow::CheckLine(int)
{
    const auto found = CheckPipes(m_localisation.Language(), m_line->pipes, m_settings);
    if (found.empty()) {
        ::MessageBoxA(Window(), m_localisation.String(IDS_ALL_WELL).c_str(),
                      m_localisation.String(IDS_PROGRAM).c_str(), MB_OK | MB_ICONINFORMATION);
        return;
    }
    QXWarningList warnings(m_localisation.Module(), IDS_CHECKED, IDH_CHECKS, &m_help,
                           WorkDirectoryOf(DIR_PROJECTS).c_str());
    for (const Fault& warning : found)
        warnings.add(warning.stringId, warning.text.c_str(), nullptr);
    warnings.display(Window());
}

}  // namespace pipebench
