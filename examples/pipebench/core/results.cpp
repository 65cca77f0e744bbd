#include "core/results.h"

#include "core/texts.h"

namespace pipebench {

ResultRow ResultHeaders(const CLanguage& language, DT_UNITS units)
{
    ResultRow headers;
    for (std::size_t i = 0; i < headers.size(); ++i) {
        const ResultColumn& column = kResultColumns[i];
        headers[i] = column.quantity == Quantity::Number
                         ? Wording(language, column.wording)
                         : WithUnit(language, column.wording, column.quantity, units);
    }
    return headers;
}

ResultRow ResultCells(const CLanguage& language, const Pipe& pipe, const Settings& settings)
{
    const FlowResult flow = ComputeFlow(ProposeFlow(settings.flow, pipe));
    const auto text = [&](Quantity quantity, double metric) {
        return ValueText(language, quantity, metric, settings.units, settings.decimals);
    };
    return {pipe.name,
            Wording(language, kMaterials[pipe.material]),
            text(Quantity::Length, pipe.length),
            DiameterText(language, pipe.diameter, settings.units, settings.decimals),
            text(Quantity::Volume, Content(pipe)),
            text(Quantity::Velocity, flow.velocity),
            text(Quantity::Pressure, flow.pressureDrop),
            MoneyText(language, Price(pipe), true)};
}

std::string ValueWithUnit(const CLanguage& language, Quantity quantity, double metric,
                          const Settings& settings)
{
    return ValueText(language, quantity, metric, settings.units, settings.decimals) + ' ' +
           UnitName(quantity, settings.units);
}

}  // namespace pipebench
