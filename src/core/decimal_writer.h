// Texts of decimals, put together in registers: what the functions that print share.
#pragma once

#include "core/decimal_scaling.h"

#include <charconv>
#include <cstring>

namespace qx {

static_assert(std::endian::native == std::endian::little, "texts are assembled in registers");

inline constexpr std::uint64_t kZeros = 0x3030303030303030;  // "00000000"

// The eight digits of a number below 10^8 as a text, its first character in the lowest byte.
inline std::uint64_t EightDigits(std::uint32_t number)
{
    std::uint64_t n = (std::uint64_t{number % 10000} << 32) | number / 10000;
    const std::uint64_t hundreds = ((n * 10486) >> 20) & 0x0000007F0000007F;
    n = ((n - hundreds * 100) << 16) | hundreds;
    const std::uint64_t tens = ((n * 103) >> 10) & 0x000F000F000F000F;
    return (((n - tens * 10) << 8) | tens) + kZeros;
}

inline int CountDigits(std::uint32_t number)  // below 10^8; 0 has one
{
    static constexpr std::uint32_t kPowers[] = {0,      10,      100,      1000,     10000,
                                                100000, 1000000, 10000000, 100000000};
    const int estimate = (std::bit_width(number | 1) * 1233) >> 12;  // * log10(2)
    return estimate + (number >= kPowers[estimate]);
}

inline constexpr int kMaxWriterPlaces = 7;

// A text in the making; kPrintedSize leaves room for whole registers to be stored.
struct Writer {
    char* out;
    char point;
    char* end = out;
    int pointAt = -1;
    bool endsInZero = false;  // from the registers: reading it back would wait for the whole text

    void Sign(double value)
    {
        *end = '-';
        end += std::signbit(value);
    }

    // number / 10^places, with or without the final zeros behind the point. Free of branches, which
    // values of mixed sizes would make the processor guess wrong.
    [[gnu::always_inline]] void Number(std::uint32_t number, int places, bool trimmed)
    {
        std::uint64_t text = EightDigits(number);
        int count = std::max(CountDigits(number), places + 1);
        const int leading = 8 * (8 - count);
        const int zeros = std::min(std::countl_zero(text ^ kZeros) / 8, places) & -int{trimmed};
        endsInZero = text << 8 * zeros >> 56 == '0';
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
        const std::uint64_t sign = exponent < 0 ? std::uint64_t{'-'} : std::uint64_t{'+'};
        const std::uint64_t hundreds = size / 100, tens = size / 10 % 10, ones = size % 10;
        const std::uint64_t text =
            ('e' | sign << 8 | hundreds << 16 | tens << 24 | ones << 32) + (kZeros << 40 >> 24);
        std::memcpy(end, &text, sizeof text);
        end += 5;
        endsInZero = ones == 0;
    }

    Printed Finish(double value)
    {
        *end = '\0';
        return {value, static_cast<int>(end - out), pointAt, endsInZero};
    }
};

// For what scaling does not decide. With `trimmed`, without final zeros behind the point.
Printed PrintThroughLibrary(double value, std::chars_format format, int precision, bool trimmed,
                            char point, char* out);

// PrintFixed, for callers whom a call would cost too much.
inline Printed WriteFixed(double value, int places, bool trimmed, char point, char* out)
{
    const double magnitude = std::fabs(value);
    const double power = kPowersOfTen[static_cast<unsigned>(places)];
    const double scaled = magnitude * power;
    if (!(scaled < 99999999.0 && places <= kMaxWriterPlaces)) [[unlikely]]
        return PrintThroughLibrary(value, std::chars_format::fixed, places, trimmed, point, out);
    const double number = ScaleUp(magnitude, power, scaled);
    Writer writer{out, point};
    writer.Sign(value);
    writer.Number(static_cast<std::uint32_t>(number), places, trimmed);
    return writer.Finish(std::copysign(number / power, value));
}

// A value rounded to up to 7 digits, in the form of printf's e; `trimmed` as its g writes it.
[[gnu::always_inline]] inline Printed WriteExponent(double value, int digits, bool trimmed,
                                                    char point, char* out)
{
    const Significant rounded = RoundSignificant(std::fabs(value), digits, kAnyPlaces);
    if (!rounded.proven) [[unlikely]] {
        return trimmed ? PrintThroughLibrary(value, std::chars_format::general, digits, false,
                                             point, out)
                       : PrintThroughLibrary(value, std::chars_format::scientific, digits - 1,
                                             false, point, out);
    }
    // Rounded up to the next power of ten, the number has one digit more.
    const bool oneMore = rounded.number >= kPowersOfTen[static_cast<unsigned>(digits)];
    const auto number = static_cast<std::uint32_t>(rounded.number);
    Writer writer{out, point};
    writer.Sign(value);
    writer.Number(oneMore ? number / 10 : number, digits - 1, trimmed);
    writer.Exponent(digits - 1 - rounded.places + oneMore);
    return writer.Finish(std::copysign(rounded.Value(), value));
}

}  // namespace qx
