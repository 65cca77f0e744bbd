#include "win32/curve_view.h"

#include "core/texts.h"
#include "core/units.h"
#include "win32/gdi.h"

#include <qxutility/core/numbers.h>

#include <cmath>

namespace pipebench {

static constexpr COLORREF kPump = RGB(0, 102, 204), kPipe = RGB(122, 62, 28);
static constexpr COLORREF kGrid = RGB(225, 225, 225), kText = RGB(90, 90, 90);

namespace {

class CurveDrawing {
  public:
    CurveDrawing(HDC dc, int dotsPerInch, const RECT& client, const CLanguage& language,
                 DT_UNITS units)
        : m_dc(dc),
          m_dotsPerInch(dotsPerInch),
          m_frame{client.left + Scaled(34), client.top + Scaled(24), client.right - Scaled(14),
                  client.bottom - Scaled(38)},
          m_language(language),
          m_units(units)
    {
    }
    void Draw(const CurvePlot& plot) const;

  private:
    // Pixels of the device for pixels at 96 dots per inch.
    int Scaled(int pixels) const { return ::MulDiv(pixels, m_dotsPerInch, 96); }
    void DrawAxes(const CurvePlot& plot) const;
    void DrawCurve(const CurvePlot& plot, const std::vector<CurvePoint>& points,
                   COLORREF colour) const;
    void DrawOperatingPoint(const CurvePlot& plot) const;
    void DrawNames() const;
    void Line(Pixel from, Pixel to, COLORREF colour) const;
    void Text(const RECT& place, const std::string& text, UINT alignment, COLORREF colour) const;

    HDC m_dc;
    int m_dotsPerInch;
    Area m_frame;
    const CLanguage& m_language;
    DT_UNITS m_units;
};

void CurveDrawing::Line(Pixel from, Pixel to, COLORREF colour) const
{
    const HPEN pen = ::CreatePen(PS_SOLID, Scaled(1) / 2, colour);  // 0: one pixel
    {
        const Selected selected(m_dc, pen);
        ::MoveToEx(m_dc, from.x, from.y, nullptr);
        ::LineTo(m_dc, to.x, to.y);
    }
    ::DeleteObject(pen);
}

void CurveDrawing::Text(const RECT& place, const std::string& text, UINT alignment,
                        COLORREF colour) const
{
    RECT rectangle = place;
    ::SetTextColor(m_dc, colour);
    ::DrawTextA(m_dc, text.c_str(), -1, &rectangle,
                alignment | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_NOCLIP);
}

// A grid line and its number per step.
void CurveDrawing::DrawAxes(const CurvePlot& plot) const
{
    const int half = Scaled(24), line = Scaled(16), gap = Scaled(4);
    const auto number = [&](double value) { return ShortNumberText(m_language, CleanDbl(value)); };
    for (int i = 0; i <= std::lround(plot.flow.top / plot.flow.step); ++i) {
        const double flow = i * plot.flow.step;
        const Pixel foot = PlaceIn(m_frame, plot, {flow, 0});
        Line(foot, {foot.x, m_frame.top}, kGrid);
        Text({foot.x - half, foot.y + gap, foot.x + half, foot.y + line}, number(flow), DT_CENTER,
             kText);
    }
    for (int i = 0; i <= std::lround(plot.head.top / plot.head.step); ++i) {
        const double head = i * plot.head.step;
        const Pixel foot = PlaceIn(m_frame, plot, {0, head});
        Line(foot, {m_frame.right, foot.y}, kGrid);
        Text({foot.x - 2 * half, foot.y - line / 2, foot.x - gap, foot.y + line / 2}, number(head),
             DT_RIGHT, kText);
    }
}

void CurveDrawing::DrawCurve(const CurvePlot& plot, const std::vector<CurvePoint>& points,
                             COLORREF colour) const
{
    std::vector<POINT> line;
    for (const CurvePoint& point : points) {
        const Pixel pixel = PlaceIn(m_frame, plot, point);
        line.push_back({pixel.x, pixel.y});
    }
    const HPEN pen = ::CreatePen(PS_SOLID, Scaled(2), colour);
    {
        const Selected selected(m_dc, pen);
        ::Polyline(m_dc, line.data(), static_cast<int>(line.size()));
    }
    ::DeleteObject(pen);
}

void CurveDrawing::DrawOperatingPoint(const CurvePlot& plot) const
{
    const Pixel middle = PlaceIn(m_frame, plot, *plot.operating);
    const int radius = Scaled(5);
    Line(middle, {middle.x, m_frame.bottom}, kText);
    Line(middle, {m_frame.left, middle.y}, kText);
    const Selected brush(m_dc, ::GetStockObject(DC_BRUSH));
    const Selected pen(m_dc, ::GetStockObject(WHITE_PEN));
    ::SetDCBrushColor(m_dc, RGB(204, 0, 0));
    ::Ellipse(m_dc, middle.x - radius, middle.y - radius, middle.x + radius + 1,
              middle.y + radius + 1);
}

// The axes' names outside the frame, the curves' names in its upper right corner.
void CurveDrawing::DrawNames() const
{
    const int line = Scaled(16);
    const LONG left = m_frame.left, right = m_frame.right;
    Text({left - Scaled(30), m_frame.top - line - Scaled(6), right, m_frame.top - Scaled(6)},
         WithUnit(m_language, "Head", Quantity::Length, m_units), DT_LEFT, kText);
    const LONG below = m_frame.bottom + Scaled(18);
    Text({left, below, right, below + line},
         WithUnit(m_language, "Flow rate", Quantity::Flow, m_units), DT_RIGHT, kText);
    const LONG top = m_frame.top - line - Scaled(6);
    Text({left, top, right, top + line}, Wording(m_language, "System"), DT_RIGHT, kPipe);
    const LONG end = right - Scaled(60);
    Text({left, top, end, top + line}, Wording(m_language, "Pump"), DT_RIGHT, kPump);
}

void CurveDrawing::Draw(const CurvePlot& plot) const
{
    DrawAxes(plot);
    DrawNames();
    const int saved = ::SaveDC(m_dc);
    ::IntersectClipRect(m_dc, m_frame.left, m_frame.top, m_frame.right + 1, m_frame.bottom + 1);
    DrawCurve(plot, plot.pipe, kPipe);
    DrawCurve(plot, plot.pump, kPump);
    ::RestoreDC(m_dc, saved);
    if (plot.operating)
        DrawOperatingPoint(plot);
}

}  // namespace

void DrawCurves(const DRAWITEMSTRUCT& item, const CLanguage& language, DT_UNITS units,
                const std::optional<CurvePlot>& plot)
{
    const Selected font(item.hDC, MessageFont());
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::FillRect(item.hDC, &item.rcItem, ::GetSysColorBrush(COLOR_WINDOW));
    ::FrameRect(item.hDC, &item.rcItem, ::GetSysColorBrush(COLOR_3DSHADOW));
    if (plot)
        DrawCurves(item.hDC, item.rcItem, ::GetDeviceCaps(item.hDC, LOGPIXELSY), language, units,
                   *plot);
}

void DrawCurves(HDC dc, const RECT& area, int dotsPerInch, const CLanguage& language,
                DT_UNITS units, const CurvePlot& plot)
{
    ::SetBkMode(dc, TRANSPARENT);
    CurveDrawing(dc, dotsPerInch, area, language, units).Draw(plot);
}

}  // namespace pipebench
