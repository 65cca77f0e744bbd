#include "win32/report_drawing.h"

#include "win32/curve_view.h"
#include "win32/gdi.h"

#include <qxutility/print/page_text.h>

#include <cmath>

namespace pipebench {

static constexpr COLORREF kBand = RGB(226, 233, 241), kInk = RGB(20, 24, 32);
static constexpr COLORREF kFineRule = RGB(190, 196, 204), kStrongRule = RGB(38, 70, 110);

static HFONT ReportFontOf(int height)
{
    return ::CreateFontA(height, 0, 0, 0, FW_SEMIBOLD, FALSE, FALSE, FALSE, ANSI_CHARSET,
                         OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY,
                         DEFAULT_PITCH | FF_SWISS, "Arial");
}

// The new device context of a page has its own settings again, see Draw.
ReportCanvas::ReportCanvas(const QXPrint& print, const CLanguage& language, const Report& report,
                           DT_UNITS units)
    : m_print(print),
      m_language(language),
      m_report(report),
      m_units(units),
      m_dc(print.GetDC()),
      m_dotsPerInch(::GetDeviceCaps(m_dc, LOGPIXELSY)),
      m_heading(ReportFontOf(m_dotsPerInch / 6)),
      m_title(ReportFontOf(m_dotsPerInch / 4))
{
}

ReportCanvas::~ReportCanvas()
{
    ::SelectObject(m_dc, ::GetStockObject(SYSTEM_FONT));
    ::DeleteObject(m_heading);
    ::DeleteObject(m_title);
}

int ReportCanvas::X(int thousandths) const
{
    return m_print.left + ::MulDiv(m_print.right - m_print.left, thousandths, 1000);
}

int ReportCanvas::Y(double line) const
{
    return m_print.top + static_cast<int>(std::lround(line * m_print.lineHeight));
}

void ReportCanvas::Select(ReportFont font) const
{
    const HFONT fonts[] = {m_print.normalFont, m_print.boldFont, m_heading, m_title};
    ::SelectObject(m_dc, fonts[static_cast<std::size_t>(font)]);
}

void ReportCanvas::Fill(const RECT& area, COLORREF colour) const
{
    const HBRUSH brush = ::CreateSolidBrush(colour);
    ::FillRect(m_dc, &area, brush);
    ::DeleteObject(brush);
}

void ReportCanvas::Draw(const ReportPage& page) const
{
    ::SetBkMode(m_dc, TRANSPARENT);
    ::SetTextColor(m_dc, kInk);
    DrawAll(page.bands);
    DrawAll(page.rules);
    DrawAll(page.plots);
    DrawAll(page.sketches);
    DrawAll(page.boxes);
    DrawAll(page.titles);
    DrawAll(page.texts);
    DrawAll(page.facts);
    DrawAll(page.rows);
    DrawAll(page.paragraphs);
}

void ReportCanvas::Draw(const PlacedText& item) const
{
    Select(item.font);
    const int width = X(item.width) - X(0);
    std::string text(item.text.size() + static_cast<std::size_t>(width) + 2, '\0');
    ClipString(m_dc, width, item.text.c_str(), text.data());
    ::SetTextAlign(m_dc, item.right ? TA_RIGHT : TA_LEFT);
    ::TextOutA(m_dc, X(item.x), Y(item.line), text.c_str(), ::lstrlenA(text.c_str()));
    ::SetTextAlign(m_dc, TA_LEFT);
}

void ReportCanvas::Draw(const PlacedTitle& item) const
{
    Select(ReportFont::Title);
    const char* const text = item.text.c_str();
    CenterPrint(m_dc, m_print.left, m_print.right, static_cast<float>(Y(item.line)),
                2 * m_print.lineHeight, text);
    Underline(m_dc, CenterX(m_dc, m_print.left, m_print.right, text), Y(item.line), text);
}

void ReportCanvas::Draw(const PlacedFact& item) const
{
    Select(ReportFont::Normal);
    const char* const text = item.text.c_str();
    ::TextOutA(m_dc, LeftOfColon(m_dc, X(item.colon), text), Y(item.line), text,
               static_cast<int>(item.text.size()));
}

void ReportCanvas::Draw(const PlacedRow& item) const
{
    Select(item.font);
    std::vector<int> stops;
    for (const int stop : item.stops)
        stops.push_back(X(stop) - X(0));
    SmartTabbedTextOut(m_dc, X(0), Y(item.line), item.fields.c_str(), 0,
                       static_cast<int>(stops.size()), stops.data(), X(0), X(item.right) - X(0));
}

void ReportCanvas::Draw(const PlacedParagraph& item) const
{
    Select(ReportFont::Normal);
    LeftPrint(m_dc, X(item.left), X(1000), static_cast<float>(Y(item.line)), m_print.lineHeight,
              item.text.c_str());
}

void ReportCanvas::Draw(const PlacedRule& item) const
{
    const int top = Y(item.line), thickness = m_dotsPerInch / (item.strong ? 72 : 200) + 1;
    Fill({m_print.left, top, m_print.right, top + thickness},
         item.strong ? kStrongRule : kFineRule);
}

void ReportCanvas::Draw(const PlacedBand& item) const
{
    Fill({m_print.left, Y(item.line), m_print.right, Y(item.line + item.height)}, kBand);
}

void ReportCanvas::Draw(const PlacedBox& item) const
{
    static constexpr COLORREF kColours[] = {RGB(82, 130, 184), RGB(214, 122, 48), kStrongRule};
    Fill({X(item.x), Y(item.line), X(item.x + item.width), Y(item.line + item.height)},
         kColours[static_cast<std::size_t>(item.role)]);
}

void ReportCanvas::Draw(const PlacedPlot& item) const
{
    const RECT area{m_print.left, Y(item.line), m_print.right, Y(item.line + item.height)};
    Select(ReportFont::Normal);
    DrawCurves(m_dc, area, m_dotsPerInch, m_language, m_units, *m_report.plot);
    ::SetTextColor(m_dc, kInk);
}

// In strips from the rim to a light line above the middle and back: printers know no gradients.
void ReportCanvas::DrawPipe(const Area& area) const
{
    constexpr int kStrips = 40, kLightest = 14;
    const auto edge = [&](int strip) {
        return area.top + ::MulDiv(area.bottom - area.top, strip, kStrips);
    };
    for (int strip = 0; strip < kStrips; ++strip) {
        const double light = strip < kLightest ? 1. * strip / kLightest
                                               : 1. * (kStrips - strip) / (kStrips - kLightest);
        const auto shade = [light](int rim, int middle) {
            return static_cast<int>(std::lround(rim + (middle - rim) * light));
        };
        Fill({area.left, edge(strip), area.right, edge(strip + 1)},
             RGB(shade(70, 226), shade(92, 234), shade(122, 243)));
    }
}

void ReportCanvas::DrawCentred(const Area& column, double line, const std::string& text) const
{
    std::string clipped(text.size() + static_cast<std::size_t>(column.right - column.left) + 2,
                        '\0');
    ClipString(m_dc, column.right - column.left, text.c_str(), clipped.data());
    const int x = CenterX(m_dc, column.left, column.right, clipped.c_str());
    ::TextOutA(m_dc, x, Y(line), clipped.c_str(), ::lstrlenA(clipped.c_str()));
}

// The names above the pipes, length and diameter below.
void ReportCanvas::Draw(const PlacedSketch& item) const
{
    constexpr double kAbove = 2, kBelow = 3.4;
    const Area canvas{m_print.left, Y(item.line + kAbove), m_print.right,
                      Y(item.line + item.height - kBelow)};
    const std::vector<Area> sketch = LayOutSketch(m_report.sketch, canvas);
    const int flange = m_dotsPerInch / 24, rise = m_dotsPerInch / 20;
    for (std::size_t i = 0; i < sketch.size(); ++i) {
        const auto& [left, top, right, bottom] = sketch[i];
        DrawPipe(sketch[i]);
        DrawPipe({left, top - rise, left + flange, bottom + rise});
        DrawPipe({right - flange, top - rise, right, bottom + rise});
        const std::vector<std::string>& row = m_report.pipes.rows[i];
        Select(ReportFont::Bold);
        DrawCentred(sketch[i], item.line, row[0]);
        Select(ReportFont::Normal);
        const double below = item.line + item.height - 2.2;
        DrawCentred(sketch[i], below, row[2] + ' ' + m_report.pipes.columns[2].unit);
        DrawCentred(sketch[i], below + 1, row[3] + ' ' + m_report.pipes.columns[3].unit);
    }
}

}  // namespace pipebench
