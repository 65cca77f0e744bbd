#include "core/decimal.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <string>

namespace qx {

namespace {

bool IsBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}
bool IsDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

// The digits of a number without their point: number * 10^exponent, unless there are so many that
// `number` wrapped around.
struct Digits {
    std::uint64_t number = 0;
    int exponent = 0;
    std::ptrdiff_t count = 0;
};

const char* ReadRun(const char* p, Digits& digits)
{
    for (; IsDigit(*p); ++p)
        digits.number = digits.number * 10 + static_cast<unsigned>(*p - '0');
    return p;
}

const char* ReadDigits(const char* p, char point, Digits& digits)
{
    const char* const first = p;
    p = ReadRun(p, digits);
    digits.count = p - first;
    if (*p != point || point == '\0')
        return p;
    const char* const fraction = p + 1;
    p = ReadRun(fraction, digits);
    const auto places = std::min<std::ptrdiff_t>(p - fraction, 100000);
    digits.count += places;
    digits.exponent = -static_cast<int>(places);
    return p;
}

// The exponent behind the digits; `p` stays where none follows.
const char* ReadExponent(const char* p, Digits& digits)
{
    if (*p != 'e' && *p != 'E')
        return p;
    const char* q = p + 1;
    const bool negative = *q == '-';
    if (*q == '-' || *q == '+')
        ++q;
    if (!IsDigit(*q))
        return p;
    int exponent = 0;
    for (; IsDigit(*q); ++q) {
        if (exponent < 100000)
            exponent = exponent * 10 + (*q - '0');
    }
    digits.exponent += negative ? -exponent : exponent;
    return q;
}

// The exponent of the leading digit of a plain number text tells which way it is out of range.
double OutOfRange(const char* first, const char* last)
{
    Digits digits;
    const char* p = first;
    while (p < last && *p == '0')
        ++p;
    long leading = 0;
    for (const char* q = p; q < last && IsDigit(*q); ++q)
        ++leading;
    if (p < last && *p == '.') {
        for (++p; p < last && *p == '0'; ++p)
            --leading;
    }
    while (p < last && *p != 'e' && *p != 'E')
        ++p;
    if (p < last)
        ReadExponent(p, digits);
    return leading + digits.exponent > 0 ? HUGE_VAL : 0.0;
}

double FromChars(const char* first, const char* last, std::chars_format format)
{
    double value = 0;
    const auto read = std::from_chars(first, last, value, format);
    if (read.ec == std::errc::result_out_of_range)
        return OutOfRange(first, last);
    return value;
}

// Numbers that the fast way does not decide, once more by the library, which wants a '.'.
[[gnu::noinline]] double ParseSlowly(const char* first, const char* last, char point)
{
    std::string text(first, last);
    for (char& c : text) {
        if (c == point)
            c = '.';
    }
    return FromChars(text.data(), text.data() + text.size(), std::chars_format::general);
}

bool IsHexadecimal(const char* p)
{
    return p[0] == '0' && (p[1] == 'x' || p[1] == 'X');
}

// What follows "0x"; the 0 itself is the number when no hexadecimal digits follow.
double ParseHexadecimal(const char* p, char point)
{
    std::string text = p;
    const auto at = text.find_first_not_of("0123456789abcdefABCDEF");
    if (at != std::string::npos && text[at] == point)
        text[at] = '.';
    else if (at != std::string::npos && (at == 0 || (text[at] != 'p' && text[at] != 'P')))
        text.resize(at);
    double value = 0;
    const auto read =
        std::from_chars(text.data(), text.data() + text.size(), value, std::chars_format::hex);
    if (read.ec == std::errc::result_out_of_range)
        return text.find("p-") != std::string::npos ? 0.0 : HUGE_VAL;
    return value;
}

std::optional<double> ParseName(const char* p)  // "inf", "nan"
{
    double value = 0;
    if (*p == '-' || std::from_chars(p, p + std::strlen(p), value).ec != std::errc())
        return std::nullopt;
    return value;
}

// One to eight characters in one register, the first in its lowest byte, zeros behind the last.
std::uint64_t LoadUpToEight(const char* p, std::size_t length)
{
    const auto byte = [&](std::size_t i) {
        return std::uint64_t{static_cast<unsigned char>(p[i])} << 8 * i;
    };
    if (length < 4)
        return byte(0) | byte(length / 2) | byte(length - 1);
    std::uint32_t first, last;
    std::memcpy(&first, p, 4);
    std::memcpy(&last, p + length - 4, 4);
    return first | std::uint64_t{last} << 8 * (length - 4);
}

constexpr std::uint64_t kEachByte = 0x0101010101010101;

// All bits from bit 8 * bytes on; up to 8 bytes.
std::uint64_t Above(unsigned bytes)
{
    return ~std::uint64_t{0} << 4 * bytes << 4 * bytes;
}

// A text of up to eight digits with at most one point among them, and nothing else: most of the
// numbers that users see. Without loops and branches, which the processor would guess wrong.
bool ParseShort(const char* p, std::size_t length, char point, double& value)
{
    std::uint64_t word = LoadUpToEight(p, length);
    const std::uint64_t match = word ^ kEachByte * static_cast<unsigned char>(point);
    const std::uint64_t zeroByte = (match - kEachByte) & ~match & kEachByte << 7;
    // The topmost bit stands for no point: of 0 the processor has no count, a branch would do.
    const std::uint64_t mark = zeroByte >> 1 | std::uint64_t{1} << 63;
    const auto whole = (static_cast<unsigned>(std::countr_zero(mark)) + 1) / 8;  // 8: no point
    const unsigned digits = static_cast<unsigned>(length) - (whole < 8);
    if (digits == 0 || point == '\0')
        return false;
    word = (word & ~Above(whole)) | ((word >> 8) & Above(whole));  // without the point
    const unsigned missing = 8 - digits;
    word = word << 8 * missing | (kEachByte * '0' & ~Above(missing));  // "0" in front
    if ((((word + kEachByte * 0x46) | (word - kEachByte * '0')) & kEachByte << 7) != 0)
        return false;
    word -= kEachByte * '0';
    word = word * 10 + (word >> 8);
    word = ((word & 0x000000FF000000FF) * 0x000F424000000064 +
            ((word >> 16) & 0x000000FF000000FF) * 0x0000271000000001) >>
           32;
    value = static_cast<double>(static_cast<std::uint32_t>(word)) /
            kPowersOfTen[std::max(digits, whole) - whole];
    return true;
}

std::optional<double> ParseMagnitude(const char* p, char point)
{
    if (IsHexadecimal(p))
        return ParseHexadecimal(p + 2, point);
    Digits digits;
    const char* end = ReadDigits(p, point, digits);
    if (digits.count == 0)
        return ParseName(p);
    end = ReadExponent(end, digits);
    const int exponent = digits.exponent;
    // Both factors exact: the one rounding of the product or quotient is the right one.
    if (digits.count <= 19 && digits.number <= (std::uint64_t{1} << 53) && exponent >= -22 &&
        exponent <= 22) [[likely]] {
        const auto number = static_cast<double>(digits.number);
        return exponent < 0 ? number / kPowersOfTen[static_cast<unsigned>(-exponent)]
                            : number * kPowersOfTen[static_cast<unsigned>(exponent)];
    }
    return ParseSlowly(p, end, point);
}

}  // namespace

double ParseDouble(const char* text, char point)
{
    while (IsBlank(*text))
        ++text;
    const bool negative = *text == '-';
    text += negative | (*text == '+');
    static constexpr double kSigns[] = {1, -1};  // no branch: signs come at random
    const std::size_t length = std::strlen(text);
    double magnitude;
    if (length - 1 < 8 && ParseShort(text, length, point, magnitude)) [[likely]]
        return magnitude * kSigns[negative];
    const std::optional<double> number = ParseMagnitude(text, point);
    return number ? *number * kSigns[negative] : 0;
}

}  // namespace qx
