// The check of a number while it is typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qx {

struct NumberRules {
    char decimal;  // the user's decimal character
    bool allowDecimal, allowZero, allowNegative;
};

struct TypedNumber {
    // The control's text gets a "0" in front, as it starts with the decimal character.
    bool needsZero = false;
    // Where the first wrong character stands: the text as it was typed is cut there.
    std::optional<std::size_t> wrong;
    bool good = false;  // what is left is a number that the rules allow
};

TypedNumber CheckTypedNumber(std::string_view text, const NumberRules& rules);

}  // namespace qx
