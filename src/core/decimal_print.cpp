#include "core/decimal_scaling.h"

#include <charconv>
#include <cstring>

namespace qx {

namespace {

static_assert(std::endian::native == std::endian::little, "texts are assembled in registers");

constexpr std::uint64_t kZeros = 0x3030303030303030;  // "00000000"

// The eight digits of a number below 10^8 as a text, its first character in the lowest byte.
std::uint64_t EightDigits(std::uint32_t number)
{
    std::uint64_t n = (std::uint64_t{number % 10000} << 32) | number / 10000;
    const std::uint64_t hundreds = ((n * 10486) >> 20) & 0x0000007F0000007F;
    n = ((n - hundreds * 100) << 16) | hundreds;
    const std::uint64_t tens = ((n * 103) >> 10) & 0x000F000F000F000F;
    return (((n - tens * 10) << 8) | tens) + kZeros;
}

int CountDigits(std::uint32_t number)  // below 10^8; 0 has one
{
    static constexpr std::uint32_t kPowers[] = {0,      10,      100,      1000,     10000,
                                                100000, 1000000, 10000000, 100000000};
    const int estimate = (std::bit_width(number | 1) * 1233) >> 12;  // * log10(2)
    return estimate + (number >= kPowers[estimate]);
}

constexpr int kMaxWriterPlaces = 7;

// A text in the making; kPrintedSize leaves room for whole registers to be stored.
struct Writer {
    char* out;
    char point;
    char* end = out;
    int pointAt = -1;

    void Sign(double value)
    {
        *end = '-';
        end += std::signbit(value);
    }

    // number / 10^places, with or without the final zeros behind the point. Free of branches, which
    // values of mixed sizes would make the processor guess wrong.
    void Number(std::uint32_t number, int places, bool trimmed)
    {
        std::uint64_t text = EightDigits(number);
        int count = std::max(CountDigits(number), places + 1);
        const int leading = 8 * (8 - count);
        const int zeros = std::min(std::countl_zero(text ^ kZeros) / 8, places) & -int{trimmed};
        places -= zeros;
        count -= zeros;
        text >>= leading;
        std::memcpy(end, &text, sizeof text);
        const int whole = count - places;
        text = text >> 4 * whole >> 4 * whole;  // by up to 64 bits
        std::memcpy(end + whole + 1, &text, sizeof text);
        end[whole] = point;
        pointAt = places ? static_cast<int>(end - out) + whole : -1;
        end += count + (places != 0);
    }

    void Exponent(int exponent)
    {
        const auto size = static_cast<unsigned>(std::abs(exponent));
        const char text[] = {'e', exponent < 0 ? '-' : '+', static_cast<char>('0' + size / 100),
                             static_cast<char>('0' + size / 10 % 10),
                             static_cast<char>('0' + size % 10)};
        std::memcpy(end, text, sizeof text);
        end += sizeof text;
    }

    Printed Finish(double value)
    {
        *end = '\0';
        return {value, static_cast<int>(end - out), pointAt};
    }
};

// "e+07" becomes "e+007".
char* WidenExponent(char* text, char* end)
{
    char* const e =
        static_cast<char*>(std::memchr(text, 'e', static_cast<std::size_t>(end - text)));
    if (!e || end - e != 4)
        return end;
    std::memmove(e + 3, e + 2, 2);
    e[2] = '0';
    return end + 1;
}

// For what scaling does not decide.
[[gnu::noinline]] Printed PrintThroughLibrary(double value, std::chars_format format, int precision,
                                              char point, char* out)
{
    const auto written = std::to_chars(out, out + kPrintedSize - 2, value, format, precision);
    double readBack = value;
    if (std::from_chars(out, written.ptr, readBack).ec == std::errc::result_out_of_range)
        readBack = std::copysign(HUGE_VAL, value);
    Writer writer{out, point};
    writer.end = WidenExponent(out, written.ptr);
    if (auto* dot =
            static_cast<char*>(std::memchr(out, '.', static_cast<std::size_t>(writer.end - out)))) {
        *dot = point;
        writer.pointAt = static_cast<int>(dot - out);
    }
    return writer.Finish(readBack);
}

// Takes the final zeros, and a point in front of nothing, off a text of the library's.
[[gnu::noinline]] Printed Trim(Printed printed, char* text)
{
    if (printed.point < 0)
        return printed;
    while (text[printed.length - 1] == '0')
        --printed.length;
    if (printed.length - 1 == printed.point) {
        --printed.length;
        printed.point = -1;
    }
    text[printed.length] = '\0';
    return printed;
}

// The text of a rounded value of up to 8 digits, in the form that printf's e or g chooses.
Printed PrintSignificant(double value, int digits, bool general, char point, char* out)
{
    const Significant rounded =
        digits <= 7 ? RoundSignificant(std::fabs(value), digits, kAnyPlaces) : Significant{};
    if (!rounded.proven) {
        return general ? PrintThroughLibrary(value, std::chars_format::general, digits, point, out)
                       : PrintThroughLibrary(value, std::chars_format::scientific, digits - 1,
                                             point, out);
    }
    auto number = static_cast<std::uint32_t>(rounded.number);
    int exponent = digits - 1 - rounded.places;
    if (rounded.number >= kPowersOfTen[static_cast<unsigned>(digits)]) {
        number /= 10;
        ++exponent;
    }
    const int places = digits - 1 - exponent;
    const bool fixed = general && exponent >= -4 && exponent < digits;
    if (fixed && places > kMaxWriterPlaces)
        return PrintThroughLibrary(value, std::chars_format::general, digits, point, out);
    Writer writer{out, point};
    writer.Sign(value);
    writer.Number(number, fixed ? places : digits - 1, general);
    if (!fixed)
        writer.Exponent(exponent);
    return writer.Finish(std::copysign(rounded.Value(), value));
}

}  // namespace

Printed PrintFixed(double value, int places, bool trimmed, char point, char* out)
{
    const double magnitude = std::fabs(value);
    const double power = kPowersOfTen[static_cast<unsigned>(places)];
    const double scaled = magnitude * power;
    if (!(scaled < 99999999.0 && places <= kMaxWriterPlaces)) [[unlikely]] {
        const Printed printed =
            PrintThroughLibrary(value, std::chars_format::fixed, places, point, out);
        return trimmed ? Trim(printed, out) : printed;
    }
    const double number = ScaleUp(magnitude, power, scaled);
    Writer writer{out, point};
    writer.Sign(value);
    writer.Number(static_cast<std::uint32_t>(number), places, trimmed);
    return writer.Finish(std::copysign(number / power, value));
}

Printed PrintExponent(double value, int places, char point, char* out)
{
    return PrintSignificant(value, places + 1, false, point, out);
}

Printed PrintGeneral(double value, int digits, char point, char* out)
{
    return PrintSignificant(value, digits, true, point, out);
}

}  // namespace qx
