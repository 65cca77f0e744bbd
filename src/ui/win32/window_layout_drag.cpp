// The mouse on the splitters of a window's panes.
#include "ui/area.h"
#include "ui/panes.h"

#include <utility>

using namespace qx;

static bool IsSizable(const Pane& pane)
{
    return (pane.flags & kPaneSizable) != 0;
}

bool WindowLayout::ShowSizingCursor() const
{
    POINT cursor;
    ::GetCursorPos(&cursor);
    ::ScreenToClient(m_host, &cursor);
    const Pane* pane = HasSplitter() ? HitTest(cursor) : nullptr;
    if (!pane || !IsSizable(*pane))
        return false;
    ::SetCursor(::LoadCursorA(nullptr, TakesWidth(pane->flags) ? IDC_SIZEWE : IDC_SIZENS));
    return true;
}

void WindowLayout::ButtonDown(POINT point)
{
    if (!HasSplitter())
        return;
    if (Pane* pane = HitTest(point); pane && IsSizable(*pane))
        StartDrag(pane);
    ClientPaint();
}

void WindowLayout::StartDrag(Pane* pane)
{
    ::SetCapture(m_host);
    m_dragged = pane;
}

void WindowLayout::DragPaint(int position)
{
    m_dragged->size = DraggedSize(*m_dragged, position);
    ReCalcLayout();
}

static void ReportSize(HWND host, const Pane& pane)
{
    const RECT slot = SlotRect(pane);
    ::SendMessageA(host, UM_PANESIZED, static_cast<WPARAM>(Width(slot)),
                   static_cast<LPARAM>(Height(slot)));
}

void WindowLayout::MouseMove(POINT point)
{
    const std::weak_ptr<void> life = m_life;
    DragPaint(TakesWidth(m_dragged->flags) ? point.x : point.y);
    if (!life.expired() && m_dragged)
        ReportSize(m_host, *m_dragged);
}

// The pane counts as dragged until the layout is done, so that it is known whether it still exists.
void WindowLayout::StopDrag()
{
    const std::weak_ptr<void> life = m_life;
    m_releasing = true;
    ::ReleaseCapture();
    if (life.expired())
        return;
    m_releasing = false;
    ReCalcLayout();
    if (life.expired() || !m_dragged)
        return;
    const Pane& pane = *std::exchange(m_dragged, nullptr);
    ReportSize(m_host, pane);
}
