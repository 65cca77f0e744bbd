// Bars of a strip that float in a window of their own.
#include "env/wording.h"
#include "ui/reachable_place.h"
#include "ui/win32/toolbar_strip_window.h"

namespace qx {

// Hidden bars too.
int StripWindow::HitTestBar(POINT screen) const
{
    for (std::size_t i = 0; i < m_bars.size() && m_bars[i].toolbar; ++i) {
        RECT area{};
        ::GetWindowRect(m_bars[i].toolbar, &area);
        if (::PtInRect(&area, screen))
            return static_cast<int>(i);
    }
    return -1;
}

void StripWindow::ToggleDock(int x, int y, int id, int index)
{
    if (index == -1)
        index = x == -1 && y == -1 ? GetBandID(id) : HitTestBar({x, y});
    if (index < 0 || index >= kMostBars || !m_bars[static_cast<std::size_t>(index)].toolbar)
        return;
    ToggleDock(index);
    RestoreBandPositions();
}

void StripWindow::ToggleDock(int index)
{
    Bar& bar = m_bars[static_cast<std::size_t>(index)];
    if (bar.Floats())
        Dock(bar);
    else
        Float(index);
}

static void SetWrapable(HWND toolbar, bool wrapable)
{
    const auto style = static_cast<DWORD>(::GetWindowLongA(toolbar, GWL_STYLE));
    const DWORD changed = wrapable ? style | TBSTYLE_WRAPABLE : style & ~DWORD{TBSTYLE_WRAPABLE};
    ::SetWindowLongA(toolbar, GWL_STYLE, static_cast<LONG>(changed));
}

// Hiding the floating window sends messages to the host: the bar may be gone then.
void StripWindow::Dock(Bar& bar)
{
    POINT place{bar.floating->GetX(), bar.floating->GetY()};
    const HWND toolbar = bar.toolbar;
    bar.floating->Dock(nullptr, nullptr);
    if (bar.toolbar != toolbar)
        return;
    ::ScreenToClient(m_window, &place);
    bar.record.x = place.x;
    bar.record.y = place.y < 0 ? 0 : place.y;
    ::SetParent(toolbar, m_window);
    SetWrapable(toolbar, false);
    InsertWindow(toolbar, 0);
}

// A floating bar is hidden with its frame.
void StripWindow::ShowFloating(const Bar& bar)
{
    if (bar.Floats())
        ::ShowWindow(::GetParent(bar.toolbar), bar.record.shown ? SW_SHOWNA : SW_HIDE);
}

// ---- On the screen

static BOOL CALLBACK AddScreen(HMONITOR monitor, HDC, RECT*, LPARAM screens)
{
    MONITORINFO info{};
    info.cbSize = sizeof info;
    ::GetMonitorInfoA(monitor, &info);
    reinterpret_cast<std::vector<RECT>*>(screens)->push_back(info.rcWork);
    return TRUE;
}

static void MoveOnScreen(DockableWindow& window)
{
    std::vector<RECT> screens;
    ::EnumDisplayMonitors(nullptr, nullptr, AddScreen, reinterpret_cast<LPARAM>(&screens));
    const RECT caption{window.GetX(), window.GetY(), window.GetX() + window.GetWidth(),
                       window.GetY() + ::GetSystemMetrics(SM_CYSMCAPTION)};
    const POINT place = ReachablePlace(caption, screens);
    if (place.x == caption.left && place.y == caption.top)
        return;
    window.SetX(place.x);
    window.SetY(place.y);
}

// Making the floating window sends messages to the host: the bar may be gone then.
void StripWindow::Float(int index)
{
    Bar& bar = m_bars[static_cast<std::size_t>(index)];
    const HWND toolbar = bar.toolbar;
    const SIZE size = BandSize(toolbar);
    InvalidateBar(toolbar);
    ::SetWindowPos(toolbar, nullptr, 0, 0, size.cx, size.cy,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    if (bar.floating) {
        bar.floating->UnDock(Parent(), toolbar, 0, 0);
    } else {
        auto floating = std::make_unique<DockableWindow>(Parent(), toolbar);
        floating->SetWindowTextA(Translated("Toolbar").c_str());
        if (bar.toolbar == toolbar)
            bar.floating = std::move(floating);
    }
    if (bar.toolbar != toolbar || !bar.floating)
        return;
    bar.floating->SetX(bar.record.x);
    bar.floating->SetY(bar.record.y);
    MoveOnScreen(*bar.floating);
    SetWrapable(toolbar, true);
    ::SendMessageA(toolbar, TB_AUTOSIZE, 0, 0);
    ::InvalidateRect(toolbar, nullptr, TRUE);
    ::UpdateWindow(toolbar);
    ShowFloating(bar);
}

}  // namespace qx
