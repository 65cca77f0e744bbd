// What the picture of a pump curve shows, in the user's units.
#pragma once

#include "core/flow/pump_curve.h"
#include "core/sketch.h"

#include <qxutility/engineering/units.h>

namespace pipebench {

// From 0 to `top`, with a line at each multiple of `step`.
struct Axis {
    double top, step;
};
// The axis for values up to `highest`: four to six steps of 1, 2 or 5 times a power of ten.
Axis MakeAxis(double highest);

struct CurvePlot {
    Axis flow, head;
    std::vector<CurvePoint> pump, pipe;  // lines
    std::optional<CurvePoint> operating;
};
CurvePlot MakePlot(const PumpCurve& curve, const FlowCase& flowCase, DT_UNITS units);

struct Pixel {
    int x, y;
};
// Where a point of the plot stands in its frame, whose lower left corner is the origin.
Pixel PlaceIn(const Area& frame, const CurvePlot& plot, const CurvePoint& point);

}  // namespace pipebench
