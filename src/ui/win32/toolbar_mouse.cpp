// The mouse on a strip, outside of its toolbars.
#include "ui/toolbar_drag.h"
#include "ui/win32/toolbar_strip_window.h"

namespace qx {

static void ShowCursor(bool sizing)
{
    ::SetCursor(::LoadCursorA(nullptr, sizing ? IDC_SIZEALL : IDC_ARROW));
}

// As a rebar answers RB_HITTEST.
LRESULT StripWindow::HitTestMessage(RBHITTESTINFO* test) const
{
    if (!test)
        return -1;
    const StripHitResult hit = HitTest(StripBars(), test->pt);
    test->flags = static_cast<UINT>(hit.code);
    test->iBand = hit.index;
    return hit.index;
}

void StripWindow::ButtonDown(POINT mouse)
{
    const int hit = DragBegun(StripBars(), mouse, m_locked);
    if (hit < 0)
        return;
    ::SetCapture(m_window);
    m_dragged = hit;
    ShowCursor(true);
}

void StripWindow::MouseMove(POINT mouse)
{
    if (m_locked)
        return;
    std::vector<StripBar> bars = StripBars();
    if (m_dragged < 0)
        return ShowCursor(HitTest(bars, mouse).code == StripHit::Grip);
    RECT client{};
    ::GetClientRect(m_window, &client);
    if (!DragTo(bars, m_dragged, mouse, client.right))
        return;
    const auto index = static_cast<std::size_t>(m_dragged);
    Bar& bar = m_bars[index];
    bar.record.x = bars[index].x;
    bar.record.y = bars[index].y;
    InvalidateFrame(bar.toolbar);
    RestoreBandPositions();
    if (bar.toolbar)
        ::UpdateWindow(bar.toolbar);
}

// A drag ends even when the host has locked the strip since it began.
void StripWindow::ButtonUp()
{
    if (m_locked && m_dragged < 0)
        return;
    m_dragged = -1;
    if (::GetCapture() == m_window)
        ::ReleaseCapture();
    TellChanged();
}

void StripWindow::TellChanged() const
{
    ::SendMessageA(Parent(), UM_TOOLBARSCHANGED, 0, 0);
}

}  // namespace qx
