// Several numbers in one text.
#pragma once

#include <span>

namespace qx {

// Reads numbers as scanf does with "%lg %lg ...": blanks between them are optional, and a number
// that breaks off ("5e") is none. Stops before the first that is none; returns how many were read,
// the other values stay. `point` is the decimal character.
int ScanDoubles(const char* text, char point, std::span<double> values);

}  // namespace qx
