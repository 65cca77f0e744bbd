// The table of results: what is known and computed of each pipe, in the user's form and units.
#pragma once

#include "core/pipe.h"
#include "core/settings.h"

#include <qxutility/config/language.h>

#include <array>
#include <string>

namespace pipebench {

struct ResultColumn {
    const char* wording;
    bool number;
    Quantity quantity;  // Number: the header has no unit
};
inline constexpr std::array<ResultColumn, 8> kResultColumns = {{
    {"Name", false, Quantity::Number},
    {"Material", false, Quantity::Number},
    {"Length", true, Quantity::Length},
    {"Diameter", true, Quantity::Size},
    {"Content", true, Quantity::Volume},
    {"Flow velocity", true, Quantity::Velocity},
    {"Pressure loss", true, Quantity::Pressure},
    {"Price", true, Quantity::Number},
}};
using ResultRow = std::array<std::string, kResultColumns.size()>;

ResultRow ResultHeaders(const CLanguage& language, DT_UNITS units);
// Velocity and pressure drop are those of the flow in the settings.
ResultRow ResultCells(const CLanguage& language, const Pipe& pipe, const Settings& settings);

// A metric value with its unit, as the user has chosen to see values.
std::string ValueWithUnit(const CLanguage& language, Quantity quantity, double metric,
                          const Settings& settings);

}  // namespace pipebench
