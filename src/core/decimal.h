// Decimal texts of doubles: the one place that formats and parses them. The digits are those of the
// standard's printf and scanf (correctly rounded, exact ties to even) whatever the host's runtime
// library; exponents are written with at least three digits, as the applications' files and reports
// have always shown them.
#pragma once

#include <array>

namespace qx {

// 10^n for n from 0 to 22: all of them are exact doubles.
inline constexpr std::array<double, 23> kPowersOfTen = {
    1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// The precision that printf takes in place of a negative one.
inline constexpr int kDefaultPrecision = 6;

// The values that "%.*f" and "%.*g" texts of a value read back to. Any value, any precision. With
// `leastPlaces`, rounding to digits keeps at least that many decimals (0: all whole digits).
inline constexpr int kAnyPlaces = -1000;
double RoundToPlaces(double value, int places);
double RoundToDigits(double value, int digits, int leastPlaces = kAnyPlaces);

// What was written: the value that the text reads back to, its length, where its decimal character
// stands (-1: nowhere), whether its last character is a zero.
struct Printed {
    double value;
    int length;
    int point;
    bool endsInZero;
};

// Texts are written to a buffer of this size and NUL-terminated; `point` is the decimal character.
inline constexpr int kPrintedSize = 40;

// As "%.*f" writes it; |value| below 1e15, places 0 to 9. Trimmed, it loses its final zeros and a
// point in front of nothing: "2.50" is "2.5", "3.00" is "3".
Printed PrintFixed(double value, int places, bool trimmed, char point, char* out);
// As "%.*e" (places 0 to 9) and "%.*g" (digits 1 to 10) write it; any value.
Printed PrintExponent(double value, int places, char point, char* out);
Printed PrintGeneral(double value, int digits, char point, char* out);

// As atof reads it: the longest number at the start of the text after blanks, with `point` as the
// decimal character; 0 when there is none. Infinities, NaN and hexadecimal numbers are numbers too;
// what is out of range becomes an infinity or 0.
double ParseDouble(const char* text, char point);

}  // namespace qx
