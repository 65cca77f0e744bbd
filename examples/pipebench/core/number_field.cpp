#include "core/number_field.h"

#include "core/texts.h"
#include "ids.h"

#include <qxutility/core/numbers.h>

namespace pipebench {

struct Range {
    double least, most;
};

// Rounded, so that the bounds that a message shows may themselves be typed.
static Range RangeOf(const NumberField& field, DT_UNITS units)
{
    return {Precision(ToUser(field.quantity, field.least, units), 4),
            Precision(ToUser(field.quantity, field.most, units), 4)};
}

// "0.001 - 100000 m3/h"
static std::string RangeText(const CLanguage& language, const NumberField& field, DT_UNITS units)
{
    const Range range = RangeOf(field, units);
    return ShortNumberText(language, range.least) + " \226 " +
           ShortNumberText(language, range.most) + " " + UnitName(field.quantity, units);
}

std::optional<double> ReadNumber(const std::string& text)
{
    std::string number = Trimmed(text);
    double value = 0;
    if (number.empty() || IsNumber(number.data(), &value) == 0)
        return {};
    return value;
}

std::string FieldText(const CLanguage& language, const NumberField& field, double metric,
                      DT_UNITS units)
{
    return ShortNumberText(language, CleanDbl(ToUser(field.quantity, metric, units)));
}

std::optional<double> TypedValue(const CLanguage& language, const NumberField& field,
                                 const std::string& text, DT_UNITS units, double shown)
{
    if (text == FieldText(language, field, shown, units))
        return shown;
    const auto typed = ReadNumber(text);
    if (!typed)
        return {};
    return FromUser(field.quantity, *typed, units);
}

std::variant<double, Fault> CheckField(const CLanguage& language, const NumberField& field,
                                       const std::string& text, DT_UNITS units, double shown)
{
    const auto typed = ReadNumber(text);
    if (!typed)
        return Fault{IDS_NOT_A_NUMBER, text};
    const Range range = RangeOf(field, units);
    if (!(*typed >= range.least && *typed <= range.most))
        return Fault{IDS_OUT_OF_RANGE, RangeText(language, field, units)};
    return *TypedValue(language, field, text, units, shown);
}

}  // namespace pipebench
