#include "win32/workspace.h"

#include "core/results.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/gdi.h"

#include <windows.h>
#include <commctrl.h>

namespace pipebench {

static constexpr int kListId = 1, kTreeId = 2;

// A pane that the user cannot make smaller than this.
static LRESULT CALLBACK LimitedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                                         UINT_PTR, DWORD_PTR)
{
    if (message == WM_GETMINMAXINFO) {
        const LONG least = Scaled(kLeastPane);
        reinterpret_cast<MINMAXINFO*>(lParam)->ptMinTrackSize = {least, least};
    }
    return ::DefSubclassProc(window, message, wParam, lParam);
}

void Workspace::Create(HWND parent, std::function<void()> onSelection)
{
    m_onSelection = std::move(onSelection);
    CreateObjectWindow({"PIPEBENCH_WORKSPACE"}, parent);
}

LRESULT Workspace::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_CREATE:
            return OnCreate(), 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam)), 0;
        default:
            return ObjectWindow::Handle(message, wParam, lParam);
    }
}

void Workspace::OnCreate()
{
    m_tree.Create(Window(), kTreeId);
    m_sketch.Create(Window(), [this](std::size_t pipe) {
        Select(pipe);
        TakeFocus();
    });
    m_list.Create(Window(), kListId);
    for (const HWND part : {m_tree.Window(), m_sketch.Window(), m_list.Window()})
        ::SetWindowSubclass(part, LimitedProcedure, 0, 0);
}

// The last pane takes what the others leave.
void Workspace::Arrange(const View& view)
{
    using namespace qx;
    m_layout = std::make_unique<WindowLayout>(Window());
    if (view.sketch)
        m_layout->AddWindow(m_list.Window(), Scaled(view.resultsHeight),
                            kPaneBottom | kPaneAlong | kPaneSizable | kPaneEdge, nullptr);
    if (view.tree)
        m_layout->AddWindow(m_tree.Window(), Scaled(view.treeWidth),
                            kPaneLeft | kPaneAcross | kPaneSizable | kPaneEdge, nullptr);
    m_layout->AddWindow(view.sketch ? m_sketch.Window() : m_list.Window(), 0,
                        kPaneBottom | kPaneAlong | kPaneFill | kPaneEdge, nullptr);
    ::ShowWindow(m_tree.Window(), view.tree ? SW_SHOWNA : SW_HIDE);
    ::ShowWindow(m_sketch.Window(), view.sketch ? SW_SHOWNA : SW_HIDE);
    m_layout->ReCalcLayout();
}

static int InStandardPixels(int pixels)
{
    return ::MulDiv(pixels, 96, Scaled(96));
}

void Workspace::ReadSizes(View& view) const
{
    int size = 0;
    if (view.tree && m_layout->GetWindowProps(m_tree.Window(), nullptr, &size, nullptr))
        view.treeWidth = InStandardPixels(size);
    if (view.sketch && m_layout->GetWindowProps(m_list.Window(), nullptr, &size, nullptr))
        view.resultsHeight = InStandardPixels(size);
}

void Workspace::Show(const CLanguage& language, const std::vector<Pipe>& pipes,
                     const Settings& settings)
{
    m_filling = true;
    m_list.Show(language, pipes, settings);
    m_tree.Show(language, pipes);
    ShowSketch(language, pipes, settings);
    m_filling = false;
    OnSelection();
}

void Workspace::ShowSketch(const CLanguage& language, const std::vector<Pipe>& pipes,
                           const Settings& settings)
{
    const DT_UNITS units = settings.units;
    SketchView::Content content{.pipes = &pipes, .labels = {}, .selected = {}};
    for (const Pipe& pipe : pipes) {
        const std::string size =
            units == DT_METRIC ? "DN " + NumberText(language, pipe.diameter, 0)
                               : ValueWithUnit(language, Quantity::Size, pipe.diameter, settings);
        content.labels.push_back(
            {size, ValueWithUnit(language, Quantity::Length, pipe.length, settings)});
    }
    m_sketch.Show(std::move(content));
}

void Workspace::Select(std::size_t pipe)
{
    m_list.Select(pipe);
}

// The list holds the selection, the other parts show it.
void Workspace::OnNotify(const NMHDR& header)
{
    if (m_filling)
        return;
    const bool onTree = header.hwndFrom == m_tree.Window();
    if (header.code == NM_DBLCLK && Selected() && (!onTree || m_tree.Selected()))
        ::SendMessageA(::GetParent(Window()), WM_COMMAND, IDM_EDIT, 0);
    else if (onTree && header.code == TVN_SELCHANGEDA && m_tree.Selected())
        m_list.Select(*m_tree.Selected());
    else if (!onTree && header.code == LVN_ITEMCHANGED)
        OnSelection();
}

void Workspace::OnSelection()
{
    const auto selected = Selected();
    m_sketch.Select(selected);
    if (selected)
        m_tree.Select(*selected);
    m_onSelection();
}

}  // namespace pipebench
