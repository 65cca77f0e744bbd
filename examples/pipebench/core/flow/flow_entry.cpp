#include "core/flow/flow_entry.h"

#include "ids.h"

namespace pipebench {

// Of a new wall, in millimetres, in the order of kMaterials.
static constexpr std::array<double, kMaterials.size()> kRoughness = {0.045, 0.015, 0.0015, 0.0015,
                                                                     0.26};
// A rougher wall is no wall any more: the formula for the friction ends there.
static constexpr double kMostRelativeRoughness = 0.05;

std::variant<FlowCase, BadFlowEntry> CheckFlowEntry(const CLanguage& language,
                                                    const FlowEntry& entry, DT_UNITS units,
                                                    const FlowCase& shown)
{
    FlowCase flowCase;
    for (std::size_t i = 0; i < entry.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        const auto value = CheckField(language, field, entry[i], units, shown.*field.value);
        if (const auto* fault = std::get_if<Fault>(&value))
            return BadFlowEntry{i, *fault};
        flowCase.*field.value = std::get<double>(value);
        if (flowCase.roughness > kMostRelativeRoughness * flowCase.diameter)
            return BadFlowEntry{i, {IDS_BAD_ROUGHNESS, entry[i]}};
    }
    return flowCase;
}

FlowEntry ToFlowEntry(const CLanguage& language, const FlowCase& flowCase, DT_UNITS units)
{
    FlowEntry entry;
    for (std::size_t i = 0; i < entry.size(); ++i)
        entry[i] = FieldText(language, kFlowFields[i], flowCase.*kFlowFields[i].value, units);
    return entry;
}

FlowEntry ConvertEntry(const CLanguage& language, FlowEntry entry, DT_UNITS from, DT_UNITS to,
                       FlowCase& shown)
{
    for (std::size_t i = 0; i < entry.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        const auto value = TypedValue(language, field, entry[i], from, shown.*field.value);
        if (!value)
            continue;
        shown.*field.value = *value;
        entry[i] = FieldText(language, field, *value, to);
    }
    return entry;
}

FlowCase ProposeFlow(FlowCase last, const Pipe& pipe)
{
    last.diameter = pipe.diameter;
    last.length = pipe.length;
    last.roughness = kRoughness[pipe.material];
    return last;
}

}  // namespace pipebench
