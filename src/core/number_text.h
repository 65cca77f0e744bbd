// The check of a typed number, for any decimal character.
#pragma once

#include <string_view>

namespace qx {

enum class NumberKind : int { None = 0, Whole = 1, Decimal = 2, Exponent = -1 };

NumberKind ClassifyNumber(std::string_view text, char decimal);

}  // namespace qx
