#include "core/flow/curve_plot.h"

#include "core/units.h"

#include <qxutility/core/numbers.h>

#include <algorithm>
#include <cmath>

namespace pipebench {

static constexpr int kPipePoints = 60;

Axis MakeAxis(double highest)
{
    if (!(highest > 0))
        return {1, 0.25};
    const double least = highest / 6;
    const double power = std::pow(10, std::floor(std::log10(least)));
    double step = 10 * power;
    for (const double factor : {5, 2, 1}) {
        if (factor * power >= least)
            step = factor * power;
    }
    return {EvenMultiple(highest, step), step};
}

static CurvePoint InUsersUnits(const CurvePoint& point, DT_UNITS units)
{
    return {ToUser(Quantity::Flow, point.flow, units), ToUser(Quantity::Length, point.head, units)};
}

// What the pipe asks for, from no flow to the end of the pump's curve.
static std::vector<CurvePoint> PipeCurve(const FlowCase& flowCase, double mostFlow)
{
    std::vector<CurvePoint> points;
    for (int i = 0; i <= kPipePoints; ++i) {
        const double flow = mostFlow * i / kPipePoints;
        points.push_back({flow, SystemHead(flowCase, flow)});
    }
    return points;
}

CurvePlot MakePlot(const PumpCurve& curve, const FlowCase& flowCase, DT_UNITS units)
{
    const auto convert = [units](std::vector<CurvePoint> points) {
        for (CurvePoint& point : points)
            point = InUsersUnits(point, units);
        return points;
    };
    CurvePlot plot;
    plot.pump = convert(curve.points);
    plot.pipe = convert(PipeCurve(flowCase, curve.points.back().flow));
    if (const auto point = OperatingPoint(curve, flowCase))
        plot.operating = InUsersUnits(*point, units);
    plot.flow = MakeAxis(plot.pump.back().flow);
    plot.head = MakeAxis(std::ranges::max(plot.pump, {}, &CurvePoint::head).head);
    return plot;
}

// Far outside the frame it does not matter where exactly, but the number must fit.
static int Placed(int from, int length, double share)
{
    return from + static_cast<int>(std::lround(length * std::clamp(share, -10., 10.)));
}

Pixel PlaceIn(const Area& frame, const CurvePlot& plot, const CurvePoint& point)
{
    return {Placed(frame.left, frame.right - frame.left, point.flow / plot.flow.top),
            Placed(frame.bottom, frame.top - frame.bottom, point.head / plot.head.top)};
}

}  // namespace pipebench
