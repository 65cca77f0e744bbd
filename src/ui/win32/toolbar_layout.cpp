// The layout of a strip carried out, and its picture.
#include "ui/win32/toolbar_strip_window.h"
#include "win32/gdi.h"

#include <algorithm>
#include <utility>

namespace qx {

static constexpr COLORREF kLineColor = RGB(191, 188, 177);

// A host may size the strip while it is told of a layout, which leads to the next one.
static constexpr int kMostNested = 8;

// ---- Layout

void StripWindow::RestoreBandPositions()
{
    ::SendMessageA(m_window, UM_RELAYOUT, 0, 0);
}

void StripWindow::Sized()
{
    if (m_resizing)
        m_sized = true;
    else
        RelayOut(0);
}

// Layouts that follow from the strip's own change of height come one after the other.
void StripWindow::RelayOut(WPARAM furtherLayouts)
{
    if (!m_window || m_nested >= kMostNested)
        return;
    const auto further = static_cast<int>(std::min<WPARAM>(furtherLayouts, kMostFurtherLayouts));
    if (m_nested++ == 0)
        m_passes = 0;
    while (m_window && m_passes++ < kMostFurtherLayouts && LayOutOnce(further)) {
    }
    --m_nested;
}

// True when the strip's height has changed by it.
bool StripWindow::LayOutOnce(int further)
{
    RECT client{};
    ::GetClientRect(m_window, &client);
    if (client.right <= 0)
        return false;  // of a minimised host, say: it would end the user's arrangement
    std::vector<StripBar> places = StripBars();
    const StripLayout layout = LayOut(places, {client.right, client.bottom}, further);
    for (int i = 0; i < kMostBars; ++i)
        PlaceBar(i, places[static_cast<std::size_t>(i)]);
    Resize(layout, client);
    if (layout.again && m_window)
        ::PostMessageA(m_window, UM_RELAYOUT, static_cast<WPARAM>(further) + 1, 0);
    NotifyAutoSize();
    return std::exchange(m_sized, false);
}

void StripWindow::PlaceBar(int index, const StripBar& place)
{
    Bar& bar = m_bars[static_cast<std::size_t>(index)];
    const HWND toolbar = bar.toolbar;
    if (!toolbar || !place.TakesRoom())
        return;
    bar.record.x = place.x;
    bar.record.y = place.y;
    ::ShowWindow(toolbar, bar.record.shown ? SW_SHOWNA : SW_HIDE);
    InvalidateFrame(toolbar);
    ::MoveWindow(toolbar, place.x + kGripWidth, place.y, place.size.cx, place.size.cy, TRUE);
    InvalidateFrame(toolbar);
    ::UpdateWindow(toolbar);
}

void StripWindow::Resize(const StripLayout& layout, const RECT& client)
{
    if (layout.resize && m_window) {
        RECT area{};
        ::GetWindowRect(m_window, &area);
        ::MapWindowPoints(nullptr, Parent(), reinterpret_cast<POINT*>(&area), 2);
        m_resizing = true;
        ::MoveWindow(m_window, area.left, area.top, client.right, layout.height, TRUE);
        m_resizing = false;
    }
    if (layout.repaint && m_window)
        ::InvalidateRect(m_window, nullptr, TRUE);
}

void StripWindow::NotifyAutoSize() const
{
    if (!m_window)
        return;
    NMRBAUTOSIZE notification{};
    notification.hdr.hwndFrom = m_window;
    notification.hdr.idFrom = static_cast<UINT_PTR>(::GetDlgCtrlID(m_window));
    notification.hdr.code = RBN_AUTOSIZE;
    ::SendMessageA(Parent(), WM_NOTIFY, notification.hdr.idFrom,
                   reinterpret_cast<LPARAM>(&notification));
}

// ---- Picture

void StripWindow::InvalidateFrame(HWND toolbar) const
{
    if (!m_window || !toolbar)
        return;
    const RECT area = AreaOf(toolbar);
    const win32::RegionHandle frame(
        ::CreateRectRgn(area.left - 10, area.top - 2, area.right + 10, area.bottom + 2));
    const win32::RegionHandle inside(::CreateRectRgnIndirect(&area));
    ::CombineRgn(frame.get(), frame.get(), inside.get(), RGN_XOR);
    ::InvalidateRgn(m_window, frame.get(), TRUE);
}

void StripWindow::InvalidateBar(HWND toolbar) const
{
    if (!m_window || !toolbar)
        return;
    RECT inner = AreaOf(toolbar);
    ::InflateRect(&inner, 2, 2);
    ::InvalidateRect(m_window, &inner, TRUE);
    InvalidateFrame(toolbar);
}

static void Line(HDC dc, int x1, int y1, int x2, int y2)
{
    ::MoveToEx(dc, x1, y1, nullptr);
    ::LineTo(dc, x2, y2);
}

static void DrawGrip(HDC dc, const RECT& bar)
{
    for (int k = 0; k < 8; ++k)
        Line(dc, bar.left - 5, bar.top + 4 + 2 * k, bar.left - 2, bar.top + 4 + 2 * k);
    const int left = bar.left - 8, top = bar.top - 1, right = bar.right + 1,
              bottom = bar.bottom + 1;
    const POINT frame[] = {{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}};
    ::Polyline(dc, frame, 5);
}

void StripWindow::Paint(HWND window) const
{
    PAINTSTRUCT paint;
    const HDC dc = ::BeginPaint(window, &paint);
    RECT client{};
    ::GetClientRect(window, &client);
    const win32::PenHandle pen(::CreatePen(PS_SOLID, 1, kLineColor));
    {
        const win32::Selection line(dc, pen.get());
        Line(dc, 0, 0, client.right, 0);
        for (const Bar& bar : m_bars) {
            if (bar.toolbar && bar.record.shown && !bar.Floats())
                DrawGrip(dc, AreaOf(bar.toolbar));
        }
        const win32::Selection white(dc, ::GetStockObject(WHITE_PEN));
        Line(dc, 0, 1, client.right, 1);
    }
    ::EndPaint(window, &paint);
}

}  // namespace qx
