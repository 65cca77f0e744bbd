// Values and sentences as the user reads them.
#pragma once

#include "core/units.h"

#include <qxutility/config/language.h>

#include <string>

namespace pipebench {

// The value with so many decimals and the user's decimal character: "12,50".
std::string NumberText(const CLanguage& language, double value, int decimals);
// The value as files hold it, with a '.': as few digits as give it back.
std::string PlainNumberText(double value);
// The value as it is best typed again: as few digits as give it back.
std::string ShortNumberText(const CLanguage& language, double value);
// A metric value in the user's units, with so many decimals; a diameter in whole millimetres.
std::string ValueText(const CLanguage& language, Quantity quantity, double metric, DT_UNITS units,
                      int decimals);
std::string DiameterText(const CLanguage& language, double metric, DT_UNITS units, int decimals);
// "Length (m)": the translation of a wording with the unit of its values.
std::string WithUnit(const CLanguage& language, const char* wording, Quantity quantity,
                     DT_UNITS units);
std::string MoneyText(const CLanguage& language, double value, bool keepDecimals);
std::string DateText(const CLanguage& language, DWORD flags);
// The translation of an English wording; the wording where there is none.
std::string Wording(const CLanguage& language, const std::string& english);
// String `id` of `module` with the argument in its place, in the language of the library.
std::string Sentence(HINSTANCE module, int id, const std::string& argument);
// What was typed, without blanks at its ends.
std::string Trimmed(const std::string& text);

}  // namespace pipebench
