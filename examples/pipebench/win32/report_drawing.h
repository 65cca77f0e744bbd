// Draws the pages of a report on a printer.
#pragma once

#include "core/report_layout.h"

#include <qxutility/print/print_job.h>

#include <windows.h>

namespace pipebench {

// Where and with what: the job that is running, its two fonts, and two larger ones.
class ReportCanvas {
  public:
    ReportCanvas(const QXPrint& print, const CLanguage& language, const Report& report,
                 DT_UNITS units);
    ReportCanvas(const ReportCanvas&) = delete;
    ReportCanvas& operator=(const ReportCanvas&) = delete;
    ~ReportCanvas();

    int LinesPerPage() const { return m_print.lastLine + 1; }
    void Draw(const ReportPage& page) const;

  private:
    int X(int thousandths) const;
    int Y(double line) const;
    void Select(ReportFont font) const;
    void Fill(const RECT& area, COLORREF colour) const;

    template <typename Item>
    void DrawAll(const std::vector<Item>& items) const
    {
        for (const Item& item : items)
            Draw(item);
    }
    void Draw(const PlacedText& item) const;
    void Draw(const PlacedTitle& item) const;
    void Draw(const PlacedFact& item) const;
    void Draw(const PlacedRow& item) const;
    void Draw(const PlacedParagraph& item) const;
    void Draw(const PlacedRule& item) const;
    void Draw(const PlacedBand& item) const;
    void Draw(const PlacedPlot& item) const;
    void Draw(const PlacedSketch& item) const;
    void Draw(const PlacedBox& item) const;
    void DrawPipe(const Area& area) const;
    void DrawCentred(const Area& column, double line, const std::string& text) const;

    const QXPrint& m_print;
    const CLanguage& m_language;
    const Report& m_report;
    DT_UNITS m_units;
    HDC m_dc;
    int m_dotsPerInch;
    HFONT m_heading, m_title;
};

}  // namespace pipebench
