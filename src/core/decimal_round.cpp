#include "core/decimal_scaling.h"

#include <charconv>

namespace qx {

namespace {

// Every double is printed exactly by this many places or digits; more change nothing.
constexpr int kExactPrecision = 1100;

// a * b - product, exactly, where nothing over- or underflows.
double ProductError(double a, double b, double product)
{
    const auto high = [](double x) {
        const double t = 134217729.0 * x;  // 2^27 + 1: the upper half of the bits
        return t - (t - x);
    };
    const double aHigh = high(a), aLow = a - aHigh;
    const double bHigh = high(b), bLow = b - bHigh;
    return ((aHigh * bHigh - product) + aHigh * bLow + aLow * bHigh) + aLow * bLow;
}

// The way through a text, for what scaling does not decide.
[[gnu::noinline]] double RoundThroughText(double value, std::chars_format format, int precision)
{
    char text[kExactPrecision + 400];
    const auto written = std::to_chars(text, text + sizeof text, value, format,
                                       std::min(precision, kExactPrecision));
    double result = 0;
    if (std::from_chars(text, written.ptr, result).ec == std::errc::result_out_of_range)
        return std::copysign(HUGE_VAL, value);  // rounded up past the largest double
    return result;
}

}  // namespace

[[gnu::noinline]] double BreakTie(double magnitude, double up, double down, double scaled,
                                  double nearest)
{
    // What the rounding to `scaled` took away, times `down`.
    const double product = scaled * down;
    const double error = down == 1 ? ProductError(magnitude, up, scaled)
                                   : (magnitude - product) - ProductError(scaled, down, product);
    const double rest = scaled - nearest;
    if (error == 0 || (error > 0) != (rest > 0))
        return nearest;
    return nearest + (rest > 0 ? 1.0 : -1.0);
}

double RoundToPlaces(double value, int places)
{
    if (places < 0)
        places = kDefaultPrecision;
    if (places > kLastPower)
        return RoundThroughText(value, std::chars_format::fixed, places);
    const double magnitude = std::fabs(value);
    const double power = kPowersOfTen[static_cast<unsigned>(places)];
    const double scaled = magnitude * power;
    // From 2^53 units on, the units are finer than the doubles around the value: its text, cut to
    // them, still reads back to it. (Infinities and NaN take this way too.)
    if (!(scaled < kTwo53))
        return value;
    return std::copysign(ScaleUp(magnitude, power, scaled) / power, value);
}

double RoundToDigits(double value, int digits, int leastPlaces)
{
    if (digits < 0)
        digits = kDefaultPrecision;
    digits = std::max(digits, 1);
    const Significant rounded = RoundSignificant(std::fabs(value), digits, leastPlaces);
    if (rounded.proven) [[likely]]
        return std::copysign(rounded.Value(), value);
    return RoundThroughText(value, std::chars_format::general, digits);
}

}  // namespace qx
