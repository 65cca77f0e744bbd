#include "core/flow/flow_report.h"

#include "core/texts.h"
#include "core/units.h"
#include "ids.h"

#include <qxutility/core/numbers.h>

namespace pipebench {

static std::string ValueWithUnit(const CLanguage& language, Quantity quantity, double metric,
                                 DT_UNITS units)
{
    const std::string unit = UnitName(quantity, units);
    const double value = Precision(ToUser(quantity, metric, units), 4);
    return ShortNumberText(language, value) + (unit.empty() ? "" : " " + unit);
}

std::array<std::string, kResults.size()> ResultTexts(const CLanguage& language,
                                                     const FlowResult& result, DT_UNITS units)
{
    const auto text = [&](Quantity quantity, double value) {
        return ValueWithUnit(language, quantity, value, units);
    };
    return {text(Quantity::Velocity, result.velocity), text(Quantity::Number, result.reynolds),
            text(Quantity::Number, result.friction), text(Quantity::Pressure, result.pressureDrop),
            text(Quantity::Length, result.headLoss)};
}

std::string OperatingPointText(HINSTANCE module, const CLanguage& language,
                               const std::optional<CurvePoint>& point, DT_UNITS units)
{
    if (!point)
        return language.String(module, IDS_NO_OPERATING_POINT);
    return Sentence(module, IDS_OPERATING_POINT,
                    ValueWithUnit(language, Quantity::Flow, point->flow, units) + ", " +
                        ValueWithUnit(language, Quantity::Length, point->head, units));
}

}  // namespace pipebench
