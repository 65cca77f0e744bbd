// Loading and saving the bars of a strip.
#include "ui/toolbar_store.h"
#include "ui/win32/toolbar_strip_window.h"

#include <qxutility/env/directories.h>
#include <qxutility/formats/xml_document.h>

#include <algorithm>

namespace qx {

static constexpr char kResourceType[] = "XML";

static std::string UserFile(const std::string& fileName)
{
    char folder[MAX_PATH] = "";
    ::GetDirectory(DIR_APPDATA, folder, 0);
    return std::string(folder) + "\\ZRW\\" + fileName;
}

// ---- Reading

bool StripWindow::Take(std::vector<ToolbarRecord> records)
{
    for (Bar& bar : m_bars)
        bar = {};
    for (std::size_t i = 0; i < records.size(); ++i)
        m_bars[i].record = std::move(records[i]);
    return !records.empty();
}

bool StripWindow::GetXMLToolbars(const std::string& path)
{
    ToolbarFile file = LoadToolbarFile(path);
    if (!file.isWhole)
        m_unread = path;
    else if (m_unread == path)
        m_unread.clear();
    return Take(std::move(file.bars));
}

bool StripWindow::InitializeToDefaults()
{
    XMLDocument document;
    return document.LoadResource(m_module, MAKEINTRESOURCEA(m_resources.defaultToolbars),
                                 kResourceType) &&
           Take(ReadToolbars(document));
}

// Without its catalogue a strip stays as it is.
void StripWindow::LoadBuildButtons()
{
    if (m_resources.catalogue == -1)
        return;
    XMLDocument document;
    if (document.LoadResource(m_module, MAKEINTRESOURCEA(m_resources.catalogue), kResourceType))
        m_catalogue = ReadCatalogue(document);
    else
        ToggleLockControls(false);
}

// ---- Loading

// The host's windows and the IDs of their bars.
std::vector<std::pair<HWND, int>> StripWindow::TakeBarsAway()
{
    std::vector<std::pair<HWND, int>> children;
    m_dragged = -1;
    for (Bar& bar : m_bars) {
        if (bar.toolbar && ::IsWindow(bar.child)) {
            children.emplace_back(bar.child, bar.record.id);
            ::ShowWindow(bar.child, SW_HIDE);
            ::SetParent(bar.child, nullptr);
        }
        FreeBar(bar);
    }
    return children;
}

void StripWindow::CarryOut(const LoadStep& step)
{
    Bar& bar = m_bars[static_cast<std::size_t>(step.index)];
    bar.toolbar = NewToolbar(bar.record.id, m_resources.images);
    if (!bar.toolbar)
        return;
    std::vector<TBBUTTON> buttons;
    std::ranges::transform(bar.record.buttons, std::back_inserter(buttons), ToControl);
    if (!buttons.empty())
        ::SendMessageA(bar.toolbar, TB_ADDBUTTONSA, buttons.size(),
                       reinterpret_cast<LPARAM>(buttons.data()));
    if (step.kind == LoadStep::Float)
        Float(step.index);
    else if (step.kind == LoadStep::Insert)
        InsertWindow(bar.toolbar, 0);
}

bool StripWindow::InitializeToolbars(const std::string& path)
{
    const auto children = TakeBarsAway();
    const bool isFile = !path.ends_with('\\');
    if (!(isFile && GetXMLToolbars(path)) && !InitializeToDefaults())
        return false;
    std::vector<ToolbarRecord> records;
    for (const Bar& bar : m_bars)
        records.push_back(bar.record);
    const int load = ++m_loads;
    for (const LoadStep& step : PlanLoading(records)) {
        if (load == m_loads)  // the host may load other bars while it is told of these
            CarryOut(step);
    }
    KeepOneShown();
    for (const auto& [child, id] : children) {
        if (!m_window)
            break;
        ::ShowWindow(child, SW_SHOW);
        CreateToolBar(id, child);
    }
    return true;
}

void StripWindow::LoadToolbars(const std::string& fileName)
{
    InitializeToolbars(UserFile(fileName));
    RestoreBandPositions();
}

// The program's own bars, whatever the user has. The strip is left hidden.
void StripWindow::LoadDefaults()
{
    ::ShowWindow(m_window, SW_HIDE);
    LoadToolbars("");
}

// ---- Saving

ToolbarRecord StripWindow::WrittenRecord(const Bar& bar) const
{
    ToolbarRecord record = bar.record;
    record.hasChild = bar.child != nullptr;
    if (!bar.toolbar) {
        record.buttons.clear();
        return record;
    }
    record.undocked = bar.Floats();
    const RECT area = AreaOf(bar.toolbar);
    record.x = record.undocked ? bar.floating->GetX() : area.left - kGripWidth;
    record.y = record.undocked ? bar.floating->GetY() : area.top;
    return record;
}

void StripWindow::SaveToolbars(const std::string& fileName)
{
    if (!m_customisable || !m_window || fileName.empty())
        return;
    std::vector<ToolbarRecord> records;
    for (const Bar& bar : m_bars)
        records.push_back(WrittenRecord(bar));
    const std::string path = UserFile(fileName);
    const bool wasUnread = m_unread == path;
    if (SaveToolbarFile(path, records, wasUnread) && wasUnread)
        m_unread.clear();
}

}  // namespace qx
