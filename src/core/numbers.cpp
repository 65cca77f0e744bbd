#include "core/decimal_writer.h"
#include "platform/c_locale.h"

#include <qxutility/core/numbers.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <locale>
#include <string>

namespace {

using qx::Printed;

// Truncated toward zero. What does not fit (NaN included) is the smallest integer, which is what
// the processor's own conversion gives.
template <typename Integer>
Integer Truncate(double value)
{
    constexpr double kLimit = -static_cast<double>(std::numeric_limits<Integer>::min());
    if (!(value < kLimit && value > -kLimit - 1))
        return std::numeric_limits<Integer>::min();
    return static_cast<Integer>(value);
}

// 10^digits < magnitude, strictly, for a negative number of digits.
[[gnu::noinline]] bool ExceedsNegativePower(double magnitude, int digits)
{
    return qx::ParseDouble(("1e" + std::to_string(digits)).c_str(), '.') < magnitude;
}

// magnitude >= limit as 1 or 0, by the order of their bits: values of mixed sizes would make the
// processor guess a branch wrong.
int AtLeast(double magnitude, double limit)
{
    return static_cast<int>(
        (std::bit_cast<std::uint64_t>(limit) - 1 - std::bit_cast<std::uint64_t>(magnitude)) >> 63);
}

// One rule for all bands below 1e7: "%1.3f" below 1, "%1.4g" below 1000 and "%1.0f" above differ in
// their places only, and in whether final zeros go.
Printed PrintFixedByRoundDblBands(double value, double magnitude, char point, char* text)
{
    const int above = 1 - AtLeast(0.999, magnitude);
    const int places = 3 + above - AtLeast(magnitude, 1) - AtLeast(magnitude, 10) -
                       AtLeast(magnitude, 100) - AtLeast(magnitude, 1000);
    return qx::WriteFixed(value, places, above != 0, point, text);
}

Printed PrintByRoundDblBands(double value, char* text)
{
    const double a = std::fabs(value);
    if (a < 0.001) {
        std::memcpy(text, "0", 2);
        return {.value = 0, .length = 1, .point = -1, .endsInZero = true};
    }
    const char point = qx::platform::CLocalePoint();
    if (a < 9999999.5) [[likely]]
        return PrintFixedByRoundDblBands(value, a, point, text);
    // What "%1.7g" rounds up to 1e7 is shown with an exponent, too.
    return a < 1e7 ? qx::PrintGeneral(value, 7, point, text)
                   : qx::WriteExponent(value, 4, false, point, text);
}

char StandardLocalePoint()
{
    static const std::locale& classic = std::locale::classic();
    const std::locale global;
    if (global == classic)  // a facet is looked up far more slowly
        return '.';
    return std::use_facet<std::numpunct<char>>(global).decimal_point();
}

bool Holds(const char* text, const Printed& printed, char c)
{
    return printed.point >= 0 && text[printed.point] == c ? true : std::strchr(text, c) != nullptr;
}

// Drops the zeros at the very end of a text.
void DropZeros(char* text, int length)
{
    while (length > 0 && text[length - 1] == '0')
        text[--length] = '\0';
}

// Unlike RoundIt, RoundDbl takes the point from the standard library's locale; the zeros go from
// the very end, also from an exponent, and the point itself stays. Deliberate.
[[gnu::noinline]] void DropZerosIfStandardPoint(char* text, const Printed& printed)
{
    if (Holds(text, printed, StandardLocalePoint()))
        DropZeros(text, printed.length);
}

[[gnu::noinline]] double RoundDblWithoutText(double value)
{
    char unwanted[qx::kPrintedSize];
    return RoundDbl(unwanted, value);
}

}  // namespace

bool EqualDbl(double a, double b)
{
    constexpr double kTolerance = 9.999999747378752e-06;  // 1e-5 as a float
    constexpr double kZero = 1e-9;
    if (a != 0 && b != 0)
        return std::fabs(a - b) < std::fabs(kTolerance * a);
    return std::fabs(a == 0 ? b : a) < kZero;
}

double DPlaces(double value, int places)
{
    return qx::RoundToPlaces(value, places);
}

double Precision(double value, int digits)
{
    const double a = std::fabs(value);
    if (a > 1e9)
        return qx::RoundToDigits(value, 5);
    if (digits < 0 && ExceedsNegativePower(a, digits))
        return qx::RoundToPlaces(value, 0);
    // A value with more whole digits than asked for keeps them all.
    return qx::RoundToDigits(value, digits, 0);
}

int Digits(double value)
{
    const double a = std::fabs(value);
    if (a == Truncate<std::int32_t>(a) || a >= 100)
        return 0;
    return a >= 10 ? 1 : a >= 1 ? 2 : 3;
}

double RoundIt(double value, char* text)
{
    if (value == 0) {
        std::strcpy(text, std::signbit(value) ? "-0" : "0");
        return value;
    }
    const char point = qx::platform::CLocalePoint();
    const double a = std::fabs(value);
    if (a < 1e7) {
        const int places = 4 - AtLeast(a, 0.1) - AtLeast(a, 1) - AtLeast(a, 10) - AtLeast(a, 100);
        return qx::WriteFixed(value, places, true, point, text).value;
    }
    const Printed printed = qx::WriteExponent(Precision(value, 0), 4, true, point, text);
    // The trimming knows nothing of exponents: "2.5e+010" becomes "2.5e+01". Deliberate: reports in
    // the field show it so.
    if (printed.endsInZero && printed.point >= 0)
        DropZeros(text, printed.length);
    return printed.value;
}

double RoundDbl(char* text, double value)
{
    if (!text)
        return RoundDblWithoutText(value);
    const Printed printed = PrintByRoundDblBands(value, text);
    if (printed.endsInZero)
        DropZerosIfStandardPoint(text, printed);
    return printed.value;
}

double CleanDbl(double value)
{
    return qx::RoundToDigits(value, 7);
}

double EvenMultiple(double value, double step)
{
    // Unsigned, because the sums and products may wrap around.
    using Wrapping = std::uint64_t;
    const auto millionths = [](double x) {
        const auto whole = static_cast<Wrapping>(Truncate<std::int64_t>(x * 1e6));
        return whole + (whole & 1);  // made even: deliberate, the results in the field depend on it
    };
    const Wrapping x = millionths(value), s = millionths(step);
    if (s == 0)
        return value;
    const auto quotient = static_cast<std::int32_t>(static_cast<std::uint32_t>(
        static_cast<Wrapping>(static_cast<std::int64_t>(x) / static_cast<std::int64_t>(s))));
    const auto q = static_cast<Wrapping>(static_cast<std::int64_t>(quotient));
    if (static_cast<std::uint32_t>(x - q * s) == 0)
        return value;
    const auto multiple = static_cast<std::int64_t>((q + 1) * s);
    return static_cast<float>(static_cast<double>(multiple) / 1e6);
}

double ParensForNegNum(const char* text)
{
    const char point = qx::platform::CLocalePoint();
    return *text == '(' ? -qx::ParseDouble(text + 1, point) : qx::ParseDouble(text, point);
}

double Number(const char* text)
{
    return ParensForNegNum(text);
}
