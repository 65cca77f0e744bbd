// The results of a pipe flow as the user reads them.
#pragma once

#include "core/flow/pipe_flow.h"
#include "core/flow/pump_curve.h"

#include <qxutility/config/language.h>
#include <qxutility/engineering/units.h>

#include <array>
#include <optional>
#include <string>

namespace pipebench {

// English wordings of the labels, in the order of ResultTexts.
inline constexpr std::array<const char*, 5> kResults = {
    "Velocity:", "Reynolds number:", "Friction factor:", "Pressure drop:", "Head loss:"};

// Each result with its unit, four significant digits: "2,122 m/s".
std::array<std::string, kResults.size()> ResultTexts(const CLanguage& language,
                                                     const FlowResult& result, DT_UNITS units);

// The sentence about the operating point: where it is, or that there is none.
std::string OperatingPointText(HINSTANCE module, const CLanguage& language,
                               const std::optional<CurvePoint>& point, DT_UNITS units);

}  // namespace pipebench
