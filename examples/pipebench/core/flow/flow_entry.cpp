#include "core/flow/flow_entry.h"

#include "core/entry.h"
#include "core/texts.h"
#include "ids.h"

#include <qxutility/core/numbers.h>

namespace pipebench {

// Of a new wall, in millimetres, in the order of kMaterials.
static constexpr std::array<double, kMaterials.size()> kRoughness = {0.045, 0.015, 0.0015, 0.0015,
                                                                     0.26};
// A rougher wall is no wall any more: the formula for the friction ends there.
static constexpr double kMostRelativeRoughness = 0.05;

static std::string FieldText(const CLanguage& language, const FlowField& field,
                             const FlowCase& flowCase, DT_UNITS units)
{
    const double value = ToUser(field.quantity, flowCase.*field.value, units);
    return ShortNumberText(language, CleanDbl(value));
}

// The metric value of a field's text, whose number is `typed`.
static double MetricValue(const CLanguage& language, const FlowField& field,
                          const std::string& text, double typed, DT_UNITS units,
                          const FlowCase& shown)
{
    const bool untouched = text == FieldText(language, field, shown, units);
    return untouched ? shown.*field.value : FromUser(field.quantity, typed, units);
}

struct Range {
    double least, most;
};

// Rounded, so that the bounds that a message shows may themselves be typed.
static Range RangeOf(const FlowField& field, DT_UNITS units)
{
    return {Precision(ToUser(field.quantity, field.least, units), 4),
            Precision(ToUser(field.quantity, field.most, units), 4)};
}

// "0.001 - 100000 m3/h"
static std::string RangeText(const CLanguage& language, const FlowField& field, DT_UNITS units)
{
    const Range range = RangeOf(field, units);
    return ShortNumberText(language, range.least) + " \226 " +
           ShortNumberText(language, range.most) + " " + UnitName(field.quantity, units);
}

std::variant<FlowCase, BadFlowEntry> CheckFlowEntry(const CLanguage& language,
                                                    const FlowEntry& entry, DT_UNITS units,
                                                    const FlowCase& shown)
{
    FlowCase flowCase;
    for (std::size_t i = 0; i < entry.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        const Range range = RangeOf(field, units);
        const auto typed = ReadNumber(entry[i]);
        if (!typed)
            return BadFlowEntry{i, {IDS_NOT_A_NUMBER, entry[i]}};
        if (!(*typed >= range.least && *typed <= range.most))
            return BadFlowEntry{i, {IDS_OUT_OF_RANGE, RangeText(language, field, units)}};
        const double value = MetricValue(language, field, entry[i], *typed, units, shown);
        if (field.value == &FlowCase::roughness &&
            value > kMostRelativeRoughness * flowCase.diameter)
            return BadFlowEntry{i, {IDS_BAD_ROUGHNESS, entry[i]}};
        flowCase.*field.value = value;
    }
    return flowCase;
}

FlowEntry ToFlowEntry(const CLanguage& language, const FlowCase& flowCase, DT_UNITS units)
{
    FlowEntry entry;
    for (std::size_t i = 0; i < entry.size(); ++i)
        entry[i] = FieldText(language, kFlowFields[i], flowCase, units);
    return entry;
}

FlowEntry ConvertEntry(const CLanguage& language, FlowEntry entry, DT_UNITS from, DT_UNITS to,
                       FlowCase& shown)
{
    for (std::size_t i = 0; i < entry.size(); ++i) {
        const FlowField& field = kFlowFields[i];
        const auto typed = ReadNumber(entry[i]);
        if (!typed)
            continue;
        shown.*field.value = MetricValue(language, field, entry[i], *typed, from, shown);
        entry[i] = FieldText(language, field, shown, to);
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
