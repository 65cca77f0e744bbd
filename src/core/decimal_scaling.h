// Rounding of a double to a decimal by one exact scaling: number / 10^places with an integer
// number. The rest of the decimal code turns that into a value or a text.
#pragma once

#include "core/decimal.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace qx {

inline constexpr int kLastPower = static_cast<int>(kPowersOfTen.size()) - 1;
inline constexpr double kTwo52 = 4503599627370496.0;
inline constexpr double kTwo53 = 9007199254740992.0;

// The nearest integer, ties to even; 0 <= value < 2^52. (Adding 2^52 leaves no room for a
// fraction.)
inline double RoundToInteger(double value)
{
    return (value + kTwo52) - kTwo52;
}

// Decides where magnitude * up / down (one factor is 1) rounds to `scaled`, a midpoint between
// integers of which `nearest` is the even one: the rounding error tells on which side of the
// midpoint the exact value lies.
double BreakTie(double magnitude, double up, double down, double scaled, double nearest);

// The integer nearest to magnitude * power, ties to even; `scaled`, their product, is below 2^53.
// It lies on the same side of every midpoint as the exact product, or on the midpoint.
inline double ScaleUp(double magnitude, double power, double scaled)
{
    if (scaled >= kTwo52)
        return scaled;
    const double nearest = RoundToInteger(scaled);
    if (std::fabs(scaled - nearest) != 0.5) [[likely]]
        return nearest;
    return BreakTie(magnitude, power, 1, scaled, nearest);
}

// For each binary exponent from kFirstBinary on: floor(log10(2^exponent)), and the power of ten
// from which on the decimal exponent is one more.
struct DecimalExponentEntry {
    double next;
    int exponent;
};
inline constexpr int kFirstBinary = -66;  // 2^-66 > 1e-20
inline constexpr int kLastBinary = 66;    // 2^67 < 1e21

consteval auto DecimalExponents()
{
    std::array<DecimalExponentEntry, kLastBinary - kFirstBinary + 1> table{};
    for (int binary = kFirstBinary; binary <= kLastBinary; ++binary) {
        const int exponent = (binary * 78913) >> 18;  // 78913 / 2^18 is log10(2) to 6 digits
        const int next = exponent + 1;
        table[static_cast<unsigned>(binary - kFirstBinary)] = {
            next >= 0 ? kPowersOfTen[static_cast<unsigned>(next)]
                      : 1.0 / kPowersOfTen[static_cast<unsigned>(-next)],
            exponent};
    }
    return table;
}
inline constexpr auto kDecimalExponents = DecimalExponents();

// 10^places as up / down, of which one is 1, for places from -kLastPower to kLastPower. Looked up,
// as values on both sides of 1 would make the processor guess a branch wrong.
struct Factors {
    double up, down;
};

consteval auto AllFactors()
{
    std::array<Factors, 2 * kLastPower + 1> table{};
    for (int power = 0; power <= kLastPower; ++power) {
        table[static_cast<unsigned>(kLastPower + power)] = {
            kPowersOfTen[static_cast<unsigned>(power)], 1};
        table[static_cast<unsigned>(kLastPower - power)] = {
            1, kPowersOfTen[static_cast<unsigned>(power)]};
    }
    return table;
}
inline constexpr auto kFactors = AllFactors();

// A magnitude rounded to `digits` significant digits: number / 10^places, number having `digits`
// digits or being the next power of ten.
struct Significant {
    double number;
    double up, down;  // 10^places is up / down; one of them is 1
    int places;
    bool proven;  // false: this way does not decide it

    // Only exact factors and one rounding: the double nearest to the decimal.
    double Value() const { return number * down / up; }
};

// Decides magnitudes in the table's range and digits 1 to 15, of which scaling keeps neighbours
// apart; fewer places than `leastPlaces` are raised to it.
inline Significant RoundSignificant(double magnitude, int digits, int leastPlaces)
{
    const auto row = static_cast<unsigned>(
        static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> 52) - 1023 - kFirstBinary);
    if (row >= kDecimalExponents.size() || digits > 15)
        return {};
    // Next to a power of ten the exponent may be one too large: such a magnitude is rounded to that
    // power anyway.
    const DecimalExponentEntry& entry = kDecimalExponents[row];
    const int exponent = entry.exponent + (magnitude >= entry.next);
    const int places = std::max(digits - 1 - exponent, leastPlaces);
    if (places > kLastPower)
        return {};
    const auto [up, down] = kFactors[static_cast<unsigned>(kLastPower + places)];
    const double scaled = magnitude * up / down;
    double number = RoundToInteger(scaled);
    if (std::fabs(scaled - number) == 0.5) [[unlikely]]
        number = BreakTie(magnitude, up, down, scaled, number);
    return {number, up, down, places, true};
}

}  // namespace qx
