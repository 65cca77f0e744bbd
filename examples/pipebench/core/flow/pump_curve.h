// A pump's curve, head over flow, from a table file.
#pragma once

#include "core/fault.h"
#include "core/flow/pipe_flow.h"

#include <qxutility/engineering/point_array.h>

#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace pipebench {

struct CurvePoint {
    double flow;  // m3/h
    double head;  // m
};

struct PumpCurve {
    std::vector<CurvePoint> points;  // two at least, by ascending flow
    CPointArray heads;               // the same, for heads between the points
};

// Reads a table of the form that CTableReader reads, tab-delimited with a '.' in numbers. Its
// columns "m3/h" or "gpm" and "m" or "ft" hold the points in any order; other columns are not
// looked at, and neither are rows without any text.
std::variant<PumpCurve, Fault> ReadPumpCurve(const std::string& path);

// Where the pump delivers exactly the head that the pipe asks for; nothing when that is not within
// the curve.
std::optional<CurvePoint> OperatingPoint(const PumpCurve& curve, const FlowCase& flowCase);

}  // namespace pipebench
