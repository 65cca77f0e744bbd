#include "ui/typed_number.h"

#include "core/decimal_scan.h"

#include <algorithm>

namespace qx {

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Whether the text up to and with its last character holds it more than once.
bool IsRepeated(std::string_view upTo)
{
    return std::count(upTo.begin(), upTo.end(), upTo.back()) > 1;
}

bool IsWrongDecimal(std::string_view upTo, const NumberRules& rules)
{
    if (!rules.allowDecimal)
        return true;
    // After one at the start no other is refused: "..5" and ".5.5" pass, as they always did.
    return upTo.front() != rules.decimal && IsRepeated(upTo.substr(1));
}

bool IsWrongSign(std::string_view upTo, bool allowedFirst)
{
    return upTo.size() == 1 ? !allowedFirst : upTo[upTo.size() - 2] != 'e';
}

// Whether the character at `position` may not stand there.
bool IsWrong(std::string_view text, std::size_t position, const NumberRules& rules)
{
    const std::string_view upTo = text.substr(0, position + 1);
    const char c = text[position];
    if (c == rules.decimal)
        return IsWrongDecimal(upTo, rules);
    switch (c) {
        case '+':
            return IsWrongSign(upTo, true);
        case '-':
            return IsWrongSign(upTo, rules.allowNegative);
        case '0':
            return text.size() == 1 && !rules.allowZero;
        case 'e':
            return position == 0 || IsRepeated(upTo);
        default:
            return !IsDigit(c);
    }
}

bool IsUsable(std::string_view text, const NumberRules& rules)
{
    if (text.empty())
        return false;
    double value = 0;
    ScanDoubles(std::string(text).c_str(), rules.decimal, {&value, 1});
    return value != 0 || (rules.allowZero && IsDigit(text.front()));
}

}  // namespace

TypedNumber CheckTypedNumber(std::string_view text, const NumberRules& rules)
{
    TypedNumber result;
    if (text.ends_with(' ')) {
        result.wrong = text.size() - 1;
    } else {
        for (std::size_t i = 0; i < text.size() && !result.wrong; ++i) {
            if (IsWrong(text, i, rules))
                result.wrong = i;
        }
        result.needsZero = text.starts_with(rules.decimal) && rules.allowDecimal;
    }
    result.good = IsUsable(text.substr(0, result.wrong.value_or(text.size())), rules);
    return result;
}

}  // namespace qx
