#include "config/process.h"
#include "platform/c_locale.h"

#include <qxutility/core/numbers.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <random>
#include <string>

namespace {

char cLocalePoint = '.';

}  // namespace

// In place of the C library's locale.
char qx::platform::CLocalePoint()
{
    return cLocalePoint;
}

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNaN = std::nan("");

std::string RoundItText(double value)
{
    char text[40];
    RoundIt(value, text);
    return text;
}

std::string RoundDblText(double value)
{
    char text[40];
    RoundDbl(text, value);
    return text;
}

class CommaPoint : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
};

}  // namespace

TEST(EqualDbl, ComparesWithinTheToleranceOfTheFirst)
{
    const struct {
        double a, b;
        bool expected;
    } cases[] = {
        {0, -0.0, true},          {5e-10, 0, true},        {0, 1e-9, false},
        {100000, 100000.9, true}, {100000, 100001, false}, {1e-12, 2e-12, false},
        {-1, -1.000001, true},    {kNaN, kNaN, false},     {0, kNaN, false},
        {1.00001, 1, true},       {1, 1.00001, false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, EqualDbl(c.a, c.b)) << c.a << " and " << c.b;
}

TEST(Precision, KeepsWholeDigitsAndShortensLargeValues)
{
    const struct {
        double value;
        int digits;
        double expected;
    } cases[] = {
        {12345.6, 4, 12346}, {0.36, 0, 0.4},
        {9.99, 1, 10},       {1234567.25, 9, 1234567.25},
        {0.5, -1, 0},        {123456789.5, 20, 123456789.5},
        {0.05, -1, 0.05},    {2.5, -400, 2},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, Precision(c.value, c.digits)) << c.value << ", " << c.digits;
    EXPECT_TRUE(std::isnan(Precision(kNaN, 3)));
    EXPECT_EQ(-kInfinity, Precision(-kInfinity, 3));
}

TEST(DPlaces, RoundsExactTiesToEven)
{
    EXPECT_EQ(0.12, DPlaces(0.125, 2));
    EXPECT_EQ(0.38, DPlaces(0.375, 2));
    EXPECT_EQ(2, DPlaces(2.5, 0));
    EXPECT_EQ(1.0, DPlaces(1.005, 2));  // just below the tie
    EXPECT_TRUE(std::signbit(DPlaces(-0.001, 2)));
    EXPECT_EQ(1.234568, DPlaces(1.2345678, -3));
    EXPECT_EQ(1e300, DPlaces(1e300, 5));
    EXPECT_EQ(0.1, DPlaces(0.1, std::numeric_limits<int>::max()));
}

TEST(Digits, FallWithMagnitude)
{
    const struct {
        double value;
        int expected;
    } cases[] = {{3, 0},    {-12.5, 1}, {0.5, 3},  {150.25, 0},    {1.5, 2},
                 {-0.0, 0}, {1e300, 0}, {kNaN, 3}, {kInfinity, 0}, {2147483648.0, 0}};
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, Digits(c.value)) << c.value;
}

TEST(RoundIt, ShowsFewerDecimalsForLargerValues)
{
    const struct {
        double value;
        const char* text;
        double result;
    } cases[] = {
        {0, "0", 0},
        {-0.0, "-0", -0.0},
        {0.00001, "0", 0},
        {0.12345, "0.123", 0.123},
        {99.95, "100", 100},
        {99.94, "99.9", 99.9},
        {9999999.5, "10000000", 10000000},
        {12345678, "1.235e+007", 12350000},
        {2.5e10, "2.5e+01", 2.5e10},  // the exponent loses its zero
        {-2.5e100, "-2.5e+1", -2.5e100},
        {kInfinity, "inf", kInfinity},
    };
    for (const auto& c : cases) {
        char text[40];
        const double result = RoundIt(c.value, text);
        EXPECT_STREQ(c.text, text) << c.value;
        EXPECT_EQ(std::bit_cast<std::uint64_t>(c.result), std::bit_cast<std::uint64_t>(result))
            << c.value;
    }
}

TEST(RoundDbl, ShowsFourDigits)
{
    const struct {
        double value;
        const char* text;
        double result;
    } cases[] = {
        {0, "0", 0},
        {-0.0004, "0", 0},
        {0.999, "0.999", 0.999},
        {999.96, "1000", 1000},
        {1234567.8, "1234568", 1234568},
        {1e7, "1.000e+007", 1e7},
        {1.5e10, "1.500e+01", 1.5e10},  // the exponent loses its zero
    };
    for (const auto& c : cases) {
        EXPECT_EQ(c.text, RoundDblText(c.value)) << c.value;
        EXPECT_EQ(c.result, RoundDbl(nullptr, c.value)) << c.value;
    }
}

// RoundIt asks the C locale; RoundDbl asks it for the text, and the standard locale for the
// trimming; Number asks the C locale; IsNumber asks the language object.
TEST(DecimalCharacter, ComesFromWhereEachFunctionTakesIt)
{
    cLocalePoint = ',';
    qx::Process().language.SetLanguage(0x0409);
    EXPECT_EQ("0,5", RoundItText(0.5));
    EXPECT_EQ("0,500", RoundDblText(0.5));  // no '.' in it, so nothing is trimmed
    EXPECT_EQ(1.5, Number("1,5"));
    EXPECT_EQ(1, Number("1.5"));
    EXPECT_EQ(2, IsNumber(std::string("1.5").data(), nullptr));
    EXPECT_EQ(0, IsNumber(std::string("1,5").data(), nullptr));

    const std::locale before =
        std::locale::global(std::locale(std::locale::classic(), new CommaPoint));
    EXPECT_EQ("0,5", RoundDblText(0.5));
    cLocalePoint = '.';
    EXPECT_EQ("0.5", RoundItText(0.5));
    EXPECT_EQ("0.500", RoundDblText(0.5));
    std::locale::global(before);
}

TEST(EvenMultiple, RaisesToTheNextMultiple)
{
    const struct {
        double value, step, expected;
    } cases[] = {
        {2.5, 1, 3},       {-2.5, 1, -1}, {0.1, 0.1, 0.1},
        {7, 0, 7},         {7, 4e-7, 7},  {7, kNaN, static_cast<float>(-9223372036854.775)},
        {0.15, 0.1, 0.2f},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.expected, EvenMultiple(c.value, c.step)) << c.value << ", " << c.step;
    for (const double odd : {kNaN, kInfinity, -kInfinity, 1e300, -1e300})
        EvenMultiple(odd, 0.3), EvenMultiple(0.3, odd), EvenMultiple(odd, odd);
}

TEST(Number, TakesAnOpeningParenthesisForAMinus)
{
    const struct {
        const char* text;
        double expected;
    } cases[] = {{"(12)", -12}, {"(12", -12}, {"12)", 12},    {" 7", 7},   {"-(3)", 0},
                 {"(-3)", 3},   {"", 0},      {"1e3x", 1000}, {"((3)", 0}, {"( 4)", -4}};
    for (const auto& c : cases) {
        EXPECT_EQ(c.expected, Number(c.text)) << c.text;
        EXPECT_EQ(c.expected, ParensForNegNum(c.text)) << c.text;
    }
}

// Every build gives the same bits and characters. The digest was taken where it agreed with the C
// library's printf and scanf in every digit.
TEST(Numbers, AreTheSameInEveryBuild)
{
    std::uint64_t state = 1, digest = 14695981039346656037u;
    const auto random = [&] {  // splitmix64
        std::uint64_t z = (state += 0x9e3779b97f4a7c15);
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    };
    const auto add = [&](const void* bytes, std::size_t size) {
        for (std::size_t i = 0; i < size; ++i)
            digest = (digest ^ static_cast<const unsigned char*>(bytes)[i]) * 1099511628211u;
    };
    const auto addValue = [&](double value) {
        if (std::isnan(value))
            value = 0;
        add(&value, sizeof value);
    };
    for (int i = 0; i < 100000; ++i) {
        double value = std::bit_cast<double>(random());
        if (i % 4)  // mostly engineering values
            value = static_cast<double>(static_cast<std::int64_t>(random()) >> (random() % 60)) /
                    static_cast<double>(1u << (random() % 31));
        const int precision = static_cast<int>(random() % 12);
        char text[40];
        addValue(RoundIt(value, text));
        add(text, std::string(text).size());
        addValue(Number(text));
        addValue(RoundDbl(text, value));
        add(text, std::string(text).size());
        addValue(DPlaces(value, precision));
        addValue(Precision(value, precision));
        addValue(CleanDbl(value));
        addValue(EvenMultiple(value, static_cast<double>(random() % 1000) / 256));
    }
    EXPECT_EQ(16236279623751254077u, digest);
}
