// The library's own formatter and parser against the C library's, digit by digit and bit by bit.
#include "core/decimal.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

namespace {

constexpr int kRounds = 200000;

using Random = std::mt19937_64;

double RandomMagnitude(Random& random)
{
    const auto pick = [&](std::uint64_t n) { return static_cast<double>(random() % n); };
    switch (random() % 6) {
        case 0:  // any bits: all magnitudes, denormals, infinities, NaN
            return std::bit_cast<double>(random());
        case 1:  // a few decimals
            return pick(2000000) / 1000 * std::pow(10.0, pick(20) - 10);
        case 2:  // ties of decimals
            return pick(100000) / std::pow(2.0, pick(12));
        case 3:
            return std::ldexp(pick(4096) + 0.5, static_cast<int>(random() % 60) - 30);
        case 4:  // around powers of ten
            return std::pow(10.0, pick(300) / 10 - 15);
        default:  // neighbours of decimals
            return std::nextafter(pick(10000000) / std::pow(10.0, pick(10)), pick(2) * 1e300);
    }
}

double RandomDouble(Random& random)
{
    const double magnitude = RandomMagnitude(random);
    return random() & 1 ? magnitude : -magnitude;
}

// Equal to the bit, or both NaN.
bool Same(double a, double b)
{
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

// printf's text with at least three exponent digits.
std::string Printf(const char* conversion, int precision, double value)
{
    std::string text(2000, '\0');
    const std::string format = std::string("%.*") + conversion;
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int length = std::snprintf(text.data(), text.size(), format.c_str(), precision, value);
#pragma GCC diagnostic pop
    text.resize(static_cast<std::size_t>(length));
    if (const auto e = text.find('e'); e != std::string::npos && text.size() - e == 4)
        text.insert(e + 2, "0");
    return text;
}

std::string Trimmed(std::string text)
{
    if (text.find('.') == std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.')
        text.pop_back();
    return text;
}

void ExpectPrinted(const std::string& expected, const qx::Printed& printed, const char* text)
{
    ASSERT_EQ(expected, text);
    ASSERT_EQ(static_cast<int>(expected.size()), printed.length) << text;
    const auto point = expected.find('.');
    ASSERT_EQ(point == std::string::npos ? -1 : static_cast<int>(point), printed.point) << text;
    ASSERT_EQ(expected.back() == '0', printed.endsInZero) << text;
    ASSERT_TRUE(Same(std::strtod(text, nullptr), printed.value)) << text;
}

}  // namespace

TEST(Decimal, RoundsToWhatIsPrinted)
{
    Random random(1);
    for (int i = 0; i < kRounds; ++i) {
        const double value = RandomDouble(random);
        const int precision = static_cast<int>(random() % (random() % 50 ? 26 : 400));
        const auto readBack = [&](const char* conversion) {
            return std::strtod(Printf(conversion, precision, value).c_str(), nullptr);
        };
        ASSERT_TRUE(Same(readBack("f"), qx::RoundToPlaces(value, precision)))
            << std::hexfloat << value << ", places: " << precision;
        ASSERT_TRUE(Same(readBack("g"), qx::RoundToDigits(value, precision)))
            << std::hexfloat << value << ", digits: " << precision;
    }
}

TEST(Decimal, PrintsWhatPrintfPrints)
{
    Random random(2);
    char text[qx::kPrintedSize];
    for (int i = 0; i < kRounds; ++i) {
        const double value = RandomDouble(random);
        const int places = static_cast<int>(random() % 10);
        if (std::isnan(value))  // C libraries differ about its sign
            continue;
        ExpectPrinted(Printf("e", places, value), qx::PrintExponent(value, places, '.', text),
                      text);
        ExpectPrinted(Printf("g", places + 1, value),
                      qx::PrintGeneral(value, places + 1, '.', text), text);
        if (std::isinf(value) || std::fabs(value) >= 1e15)
            continue;
        const std::string fixed = Printf("f", places, value);
        ExpectPrinted(fixed, qx::PrintFixed(value, places, false, '.', text), text);
        ExpectPrinted(Trimmed(fixed), qx::PrintFixed(value, places, true, '.', text), text);
    }
}

TEST(Decimal, ParsesWhatIsPrinted)
{
    Random random(3);
    for (int i = 0; i < kRounds; ++i) {
        const double value = RandomDouble(random);
        const std::string text =
            random() & 1 ? Printf("g", 17, value)
                         : " +" + Printf("e", static_cast<int>(random() % 30), std::fabs(value));
        ASSERT_TRUE(Same(std::strtod(text.c_str(), nullptr), qx::ParseDouble(text.c_str(), '.')))
            << text;
    }
}

TEST(Decimal, ParsesAnyTextAsTheCLibraryDoes)
{
    // No "x": not every C library reads hexadecimal numbers.
    static const std::string alphabet = "0123456789.eE+-pinfa \t";
    Random random(4);
    for (int i = 0; i < kRounds; ++i) {
        std::string text(static_cast<std::size_t>(random() % 12), '\0');
        for (char& c : text)
            c = alphabet[static_cast<std::size_t>(random() % alphabet.size())];
        const double expected = std::strtod(text.c_str(), nullptr);
        const double parsed = qx::ParseDouble(text.c_str(), '.');
        // C libraries differ about the sign of nothing ("-.").
        ASSERT_TRUE(Same(expected, parsed) || (expected == 0 && parsed == 0)) << text;
    }
}

TEST(Decimal, ParsesExtremes)
{
    const std::string manyDigits = "0." + std::string(10000, '0') + std::string(10000, '7');
    const std::string manyWhole = std::string(400, '9') + "." + std::string(10000, '9');
    const struct {
        std::string text;
        double expected;
    } cases[] = {
        {"", 0},
        {"-", 0},
        {"-.e5", 0},
        {"1e", 1},
        {"1e99999999999", HUGE_VAL},
        {"1e-99999999999", 0},
        {"0e99999999999", 0},
        {manyDigits, 0},
        {manyDigits + "e10000", 0.7777777777777778},
        {manyWhole + "e-399", 10},
        {"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()},
        {"2e-324", 0},
        {"1.7976931348623159e308", HUGE_VAL},
        {"9007199254740993", 9007199254740992.0},
        {"0x1p4", 16},
        {"0x", 0},
        {"-0xg", -0.0},
    };
    for (const auto& c : cases)
        EXPECT_TRUE(Same(c.expected, qx::ParseDouble(c.text.c_str(), '.'))) << c.text.substr(0, 60);
    EXPECT_EQ(1.5, qx::ParseDouble("1,5", ','));
    EXPECT_EQ(1, qx::ParseDouble("1.5", ','));
    EXPECT_EQ(1.5e30, qx::ParseDouble("1,500000000000000000000000e30", ','));
}
