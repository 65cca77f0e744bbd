// What the user typed about a pipe flow, and its check.
#pragma once

#include "core/fault.h"
#include "core/flow/pipe_flow.h"
#include "core/number_field.h"
#include "core/pipe.h"

#include <qxutility/config/language.h>

#include <array>
#include <string>
#include <variant>

namespace pipebench {

// One field of the page: its label in English, its key in the INI file (null for what belongs to
// the pipe and is not kept), and where its value is.
struct FlowField : NumberField {
    const char* wording;
    const char* key;
    double FlowCase::*value;
};

inline constexpr std::array<FlowField, 7> kFlowFields = {{
    {{Quantity::Flow, 0.001, 100'000}, "Flow:", "Flow", &FlowCase::flow},
    {{Quantity::Size, 1, 10'000}, "Bore:", nullptr, &FlowCase::diameter},
    {{Quantity::Length, 0.01, 1'000'000}, "Pipe length:", nullptr, &FlowCase::length},
    {{Quantity::Size, 0, 50}, "Wall roughness:", nullptr, &FlowCase::roughness},
    {{Quantity::Length, -5'000, 5'000}, "Lift:", "Lift", &FlowCase::lift},
    {{Quantity::Density, 0.01, 25'000}, "Density:", "Density", &FlowCase::density},
    {{Quantity::Viscosity, 0.001, 1'000'000}, "Viscosity:", "Viscosity", &FlowCase::viscosity},
}};

using FlowEntry = std::array<std::string, kFlowFields.size()>;

struct BadFlowEntry {
    std::size_t field;  // index into kFlowFields
    Fault fault;
};

// The flow, or the first field that cannot be taken. Numbers are in the form of the library's
// language. `shown` is the flow that the fields showed last, see CheckField.
std::variant<FlowCase, BadFlowEntry> CheckFlowEntry(const CLanguage& language,
                                                    const FlowEntry& entry, DT_UNITS units,
                                                    const FlowCase& shown);

// A flow as the page's fields show it.
FlowEntry ToFlowEntry(const CLanguage& language, const FlowCase& flowCase, DT_UNITS units);

// The same entry after a change of units; `shown` takes up its values. What is no number stays
// as it was typed.
FlowEntry ConvertEntry(const CLanguage& language, FlowEntry entry, DT_UNITS from, DT_UNITS to,
                       FlowCase& shown);

// Water, and what the page starts with before the user has entered anything.
inline constexpr FlowCase kFirstFlow = {
    .flow = 60, .lift = 12, .density = 998.2, .viscosity = 1.002};

// The flow that the page proposes for a pipe: the last one, with the pipe's dimensions and the
// roughness of its material.
FlowCase ProposeFlow(FlowCase last, const Pipe& pipe);

}  // namespace pipebench
