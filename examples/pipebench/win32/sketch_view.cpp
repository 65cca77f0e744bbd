#include "win32/sketch_view.h"

#include "win32/gdi.h"

#include <windows.h>
#include <windowsx.h>

namespace pipebench {

// Shade at the rim and in the middle of a pipe, in the order of kMaterials.
struct Colours {
    COLORREF rim, middle;
};
static constexpr Colours kColours[] = {
    {RGB(58, 72, 92), RGB(176, 190, 208)},  {RGB(112, 120, 128), RGB(238, 241, 244)},
    {RGB(122, 62, 28), RGB(236, 172, 122)}, {RGB(84, 98, 84), RGB(206, 218, 204)},
    {RGB(38, 38, 42), RGB(124, 124, 130)},
};
static constexpr COLORREF kSelection = RGB(0, 102, 204);
static constexpr COLORREF kDimensions = RGB(90, 90, 90);

void SketchView::Create(HWND parent, std::function<void(std::size_t)> onClick)
{
    m_onClick = std::move(onClick);
    CreateObjectWindow({"PIPEBENCH_SKETCH", CS_HREDRAW | CS_VREDRAW, nullptr}, parent);
}

void SketchView::Show(Content content)
{
    m_content = std::move(content);
    ::InvalidateRect(Window(), nullptr, FALSE);
}

void SketchView::Select(std::optional<std::size_t> pipe)
{
    m_content.selected = pipe;
    ::InvalidateRect(Window(), nullptr, FALSE);
}

LRESULT SketchView::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_PAINT:
            return OnPaint(), 0;
        case WM_LBUTTONDOWN:
            return OnClick(GET_X_LPARAM(lParam)), 0;
        case WM_ERASEBKGND:
            return 1;  // painting covers everything
        default:
            return ObjectWindow::Handle(message, wParam, lParam);
    }
}

std::vector<Area> SketchView::Sketch(const RECT& client) const
{
    const Area canvas{client.left + Scaled(24), client.top + Scaled(40), client.right - Scaled(24),
                      client.bottom - Scaled(52)};
    return LayOutSketch(*m_content.pipes, canvas);
}

void SketchView::OnClick(int x) const
{
    RECT client;
    ::GetClientRect(Window(), &client);
    if (!m_content.pipes)
        return;
    if (const auto index = PipeAt(Sketch(client), x))
        m_onClick(*index);
}

// Drawn beside the screen first: no flicker.
void SketchView::OnPaint()
{
    PAINTSTRUCT paint;
    const HDC screen = ::BeginPaint(Window(), &paint);
    RECT client;
    ::GetClientRect(Window(), &client);
    const HDC dc = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = ::CreateCompatibleBitmap(screen, client.right, client.bottom);
    {
        const Selected selected(dc, bitmap);
        Draw(dc, client);
        ::BitBlt(screen, 0, 0, client.right, client.bottom, dc, 0, 0, SRCCOPY);
    }
    ::DeleteObject(bitmap);
    ::DeleteDC(dc);
    ::EndPaint(Window(), &paint);
}

void SketchView::Draw(HDC dc, const RECT& client) const
{
    ::FillRect(dc, &client, ::GetSysColorBrush(COLOR_WINDOW));
    if (!m_content.pipes)
        return;
    const Selected font(dc, MessageFont());
    ::SetBkMode(dc, TRANSPARENT);
    const std::vector<Area> sketch = Sketch(client);
    for (std::size_t i = 0; i < sketch.size(); ++i) {
        DrawPipe(dc, i, sketch[i]);
        DrawLabels(dc, i, sketch[i], client);
    }
}

// A round body with a flange at either end.
static void FillRound(HDC dc, const Area& area, const Colours& colours)
{
    const int middle = area.top + (area.bottom - area.top) / 3;
    FillShaded(dc, {area.left, area.top, area.right, middle}, colours.rim, colours.middle,
               GRADIENT_FILL_RECT_V);
    FillShaded(dc, {area.left, middle, area.right, area.bottom}, colours.middle, colours.rim,
               GRADIENT_FILL_RECT_V);
}

void SketchView::DrawPipe(HDC dc, std::size_t index, const Area& area) const
{
    const Colours& colours = kColours[(*m_content.pipes)[index].material];
    const int flange = Scaled(4), rise = Scaled(5);
    FillRound(dc, area, colours);
    FillRound(dc, {area.left, area.top - rise, area.left + flange, area.bottom + rise}, colours);
    FillRound(dc, {area.right - flange, area.top - rise, area.right, area.bottom + rise}, colours);
}

void SketchView::DrawLabels(HDC dc, std::size_t index, const Area& area, const RECT& client) const
{
    const bool selected = m_content.selected == index;
    const auto draw = [&](int top, const std::string& text) {
        RECT line{area.left, top, area.right, top + Scaled(18)};
        ::DrawTextA(dc, text.c_str(), -1, &line,
                    DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
    };
    ::SetTextColor(dc, selected ? kSelection : ::GetSysColor(COLOR_WINDOWTEXT));
    draw(client.top + Scaled(10), (*m_content.pipes)[index].name);
    ::SetTextColor(dc, kDimensions);
    draw(client.bottom - Scaled(40), m_content.labels[index].size);
    draw(client.bottom - Scaled(22), m_content.labels[index].length);
    if (!selected)
        return;
    RECT underline{area.left + Scaled(8), client.top + Scaled(28), area.right - Scaled(8),
                   client.top + Scaled(30)};
    const HBRUSH brush = ::CreateSolidBrush(kSelection);
    ::FillRect(dc, &underline, brush);
    ::DeleteObject(brush);
}

}  // namespace pipebench
