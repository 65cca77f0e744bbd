// Fields for numbers: what may be typed into them, in the user's form and units.
#pragma once

#include "core/fault.h"
#include "core/units.h"

#include <qxutility/config/language.h>

#include <optional>
#include <string>
#include <variant>

namespace pipebench {

// What a field may hold, in metric units.
struct NumberField {
    Quantity quantity;
    double least, most;
};

// A number in the form of the library's language ("12,5" where the decimal character is a comma);
// nothing when the text holds anything else.
std::optional<double> ReadNumber(const std::string& text);

// The text of a field that holds a metric value.
std::string FieldText(const CLanguage& language, const NumberField& field, double metric,
                      DT_UNITS units);

// The metric value of what was typed; nothing when it is no number. A text that is still the one of
// `shown` stands for that value with all its digits, so that nothing drifts when units change.
std::optional<double> TypedValue(const CLanguage& language, const NumberField& field,
                                 const std::string& text, DT_UNITS units, double shown);

// The same, or why it cannot be taken. `language` is for the numbers that the message quotes.
std::variant<double, Fault> CheckField(const CLanguage& language, const NumberField& field,
                                       const std::string& text, DT_UNITS units, double shown);

}  // namespace pipebench
