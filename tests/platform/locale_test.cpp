#include "platform/locale.h"

#include "doubles/clock_double.h"

#include <gtest/gtest.h>
#include <ostream>
#include <thread>
#include <vector>

namespace qx::test {
namespace {

using namespace platform;

// A locale identifier that shows in hexadecimal, as they are known.
struct Id {
    DWORD value;
    friend std::ostream& operator<<(std::ostream& out, Id id)
    {
        return out << "locale 0x" << std::hex << id.value << std::dec;
    }
};

TEST(IsInstalledLocale, KnowsLanguagesWithOrWithoutCountry)
{
    for (const DWORD lcid : {0x0409u, 0x0407u, 0x0C0Cu, 0x0415u, 0x040Cu, 0x0C0Au, 0x040Au, 0x0416u,
                             0x0411u, 0x0804u, 0x041Du, 0x0413u, 0x0007u, 0x0009u, 0x10407u})
        EXPECT_TRUE(IsInstalledLocale(lcid)) << Id{lcid};
}

TEST(IsInstalledLocale, RefusesWhatIsNone)
{
    for (const DWORD lcid :
         {901u, 0x1FFFu, 0u, 0x0400u, 0x0800u, 0x03FFu, 0xFFFFu, 0x40000409u, 0xFFFFFFFFu})
        EXPECT_FALSE(IsInstalledLocale(lcid)) << Id{lcid};
}

TEST(Separators, AreInTheLocalesCodePage)
{
    const struct {
        DWORD lcid;
        const char *decimal, *thousands;
    } cases[] = {
        {0x0409, ".", ","},    {0x0809, ".", ","},    {0x0407, ",", "."},    {0x0410, ",", "."},
        {0x0C0A, ",", "."},    {0x0413, ",", "."},    {0x040C, ",", "\xA0"}, {0x0C0C, ",", "\xA0"},
        {0x041D, ",", "\xA0"}, {0x0415, ",", "\xA0"}, {0x0416, ",", "."},    {0x0007, ",", "."},
        {0x0411, ".", ","},    {0x10407, ",", "."},   {901, "", ""},         {0xFFFFFFFF, "", ""},
    };
    for (const auto& [lcid, decimal, thousands] : cases) {
        EXPECT_EQ(decimal, DecimalSeparator(lcid)) << Id{lcid};
        EXPECT_EQ(thousands, ThousandsSeparator(lcid)) << Id{lcid};
    }
}

TEST(Separators, MayBeAskedForFromAnyThread)
{
    std::vector<std::thread> threads;
    for (DWORD t = 0; t < 4; ++t)
        threads.emplace_back([=] {
            for (DWORD i = 0; i < 400; ++i)
                DecimalSeparator(0x0400 + (i + 7 * t) % 0x40);
        });
    for (auto& thread : threads)
        thread.join();
    EXPECT_EQ(",", DecimalSeparator(0x0407));
}

TEST(FormatCurrency, WritesTheLocalesMoney)
{
    const struct {
        DWORD lcid;
        const char *value, *text;
    } cases[] = {
        {0x0409, "-5", "($5.00)"},
        {0x0409, "0.00499999999999999999999999", "$0.00"},
        {0x0409, "0.125", "$0.13"},  // halves are rounded away from zero
        {0x0409, "998.995", "$999.00"},
        {0x0409, "00012.5", "$12.50"},
        {0x0409, ".", "$0.00"},
        {0x0407, "-123.45", "-123,45 \x80"},
        {0x040C, "123.45", "123,45 \x80"},
        {0x0809, "123.45", "\243123.45"},
        {0x0413, "123.45", "\x80 123,45"},
        {0x041D, "-123.45", "-123,45 kr"},
        {0x0405, "123.45", "123,45 K\xE8"},
        {0x0407, "1234.5", "1.234,50 \x80"},
        {0x040C, "1234.5", "1\240234,50 \x80"},
    };
    for (const auto& [lcid, value, text] : cases)
        EXPECT_EQ(text, FormatCurrency(lcid, value)) << value << " in " << Id{lcid};
}

TEST(FormatCurrency, LosesNoDigit)
{
    std::string text = FormatCurrency(0x0409, "-123456789012345678901234567890123.46");
    std::erase(text, ',');  // grouping is another matter
    EXPECT_EQ("($123456789012345678901234567890123.46)", text);
}

TEST(FormatCurrency, IsEmptyForWhatIsNoNumber)
{
    for (const char* value : {"abc", "+1", " 1", "1 ", "1e5", "1,5", "--1", "1-", "1.2.3", "0x1",
                              "inf", "nan", "%s", "\xB2"})
        EXPECT_EQ("", FormatCurrency(0x0409, value)) << value;
    EXPECT_EQ("", FormatCurrency(0x0409, nullptr));
    EXPECT_EQ("", FormatCurrency(901, "1"));
}

#if !QX_WINDOWS  // where Wine groups the digits before the decimals once only, or differs in detail

TEST(FormatCurrency, GroupsAllDigits)
{
    const struct {
        DWORD lcid;
        const char* text;  // of -1234567.891
    } cases[] = {
        {0x0409, "($1,234,567.89)"},
        {0x0407, "-1.234.567,89 \x80"},
        {0x040C, "(1\240234\240567,89 \x80)"},
        {0x0439, "-?12,34,567.89"},  // the rupee sign is in no code page
        {0x0411, "(\\1,234,568)"},   // the yen sign is where others have the backslash
        {0x041D, "-1\240234\240567,89 kr"},
        {0x040D, "-1,234,567.89 \xA4"},
        {0x0401, "(1,234,567.89 \xD1.\xD3.)"},
    };
    for (const auto& [lcid, text] : cases)
        EXPECT_EQ(text, FormatCurrency(lcid, "-1234567.891")) << Id{lcid};
    EXPECT_EQ("$0.00", FormatCurrency(0x0409, "-0.001"));

    const std::string many(5000, '7');
    std::string text = FormatCurrency(0x0409, many.c_str());
    std::erase(text, ',');
    EXPECT_EQ("$" + many + ".00", text);
}

TEST(FormatToday, FollowsTheScriptOfTheLocale)
{
    ClockDouble clock;
    clock.now = 1204718400;  // 2008-03-05 12:00 UTC
    EXPECT_EQ("\xF1\xF0\xE5\xE4\xE0, 5. \xEC\xE0\xF0\xF2 2008.", FormatToday(0x0C1A, 2));
    EXPECT_EQ("sreda, 5. mart 2008.", FormatToday(0x081A, 2));
    EXPECT_EQ("\xF1\xF0\xE5\xE4\xE0, 5 \xEC\xE0\xF0\xF2\xE0 2008 \xE3.", FormatToday(0x0419, 2));
    EXPECT_EQ("05.03.2008", FormatToday(0x0407, DATE_SHORTDATE));
    EXPECT_EQ("05/03/2008", FormatToday(0x0410, DATE_SHORTDATE));
}

#endif

TEST(FormatToday, WritesTheDateOfTheClock)
{
    ClockDouble clock;
    clock.now = 1204718400;  // 2008-03-05 12:00 UTC
    const struct {
        DWORD lcid, flags;
        const char* text;
    } cases[] = {
        {0x0409, DATE_SHORTDATE, "3/5/2008"},
        {0x0409, DATE_LONGDATE, "Wednesday, March 5, 2008"},
        {0x0407, DATE_LONGDATE, "Mittwoch, 5. M\xE4rz 2008"},
        {0x0C0A, DATE_LONGDATE, "mi\xE9rcoles, 5 de marzo de 2008"},
        {0x041D, 0, "2008-03-05"},
        {0x0415, DATE_LONGDATE, "\x9Croda, 5 marca 2008"},
        {0x0411, DATE_LONGDATE,
         "2008\x94N"
         "3\x8C\2165\x93\xFA\x90\x85\x97j\x93\xFA"},
        {0x0409, DATE_SHORTDATE | DATE_LONGDATE, ""},
        {901, 0, ""},
    };
    for (const auto& [lcid, flags, text] : cases)
        EXPECT_EQ(text, FormatToday(lcid, flags)) << Id{lcid} << ", flags " << flags;
}

TEST(FormatToday, IsTheLocalDateOfAnyYear)
{
    ClockDouble clock;
    clock.now = 951868799;  // 2000-02-29 23:59:59 UTC
    EXPECT_EQ("Tuesday, February 29, 2000", FormatToday(0x0409, DATE_LONGDATE));
    clock.secondsAheadOfUtc = 1;
    EXPECT_EQ("Wednesday, March 1, 2000", FormatToday(0x0409, DATE_LONGDATE));
    clock.now = 4102444799;  // beyond 32 bits
    EXPECT_EQ("Friday, January 1, 2100", FormatToday(0x0409, DATE_LONGDATE));
}

}  // namespace
}  // namespace qx::test
