// Draws a pump curve, the curve of the pipe and their operating point.
#pragma once

#include "core/flow/curve_plot.h"

#include <qxutility/config/language.h>

#include <windows.h>

namespace pipebench {

// In the rectangle of an owner-drawn control; an empty frame without a plot.
void DrawCurves(const DRAWITEMSTRUCT& item, const CLanguage& language, DT_UNITS units,
                const std::optional<CurvePlot>& plot);
// On any device, with the font that is selected, which is about an eighth of an inch high.
void DrawCurves(HDC dc, const RECT& area, int dotsPerInch, const CLanguage& language,
                DT_UNITS units, const CurvePlot& plot);

}  // namespace pipebench
