#include "config/template_text.h"

#include <cstdio>
#include <gtest/gtest.h>
#include <random>

using qx::ExpandPointer;
using qx::ExpandText;

struct Case {
    const char* format;
    const char* expected;
};

TEST(ExpandText, PutsTheArgumentIntoTheFirstStringConversionOnly)
{
    const Case cases[] = {
        {"", ""},
        {"%s", "pump"},
        {"[%8s] [%-8s]", "[    pump] [%-8s]"},
        {"[%.s]", "[]"},
        {"%s and %s", "pump and %s"},
        {"%%s", "%s"},
        {"%%%s%%", "%pump%"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ExpandText(c.format, "pump")) << c.format;
}

TEST(ExpandText, CopiesWhatItDoesNotKnowAsItStands)
{
    const Case cases[] = {
        {"%n%n%s%s", "%n%npump%s"},
        {"%d %i %u %x %p %f %c", "%d %i %u %x %p %f %c"},
        {"%ls %hs %S %s", "%ls %hs %S pump"},
        {"%*s", "%*s"},
        {"%.*s|%s", "%.*s|pump"},
        {"%", "%"},
        {"%5", "%5"},
        {"%.", "%."},
        {"%5%s", "%5pump"},
        {"%4096s", "%4096s"},
        {"%99999999999999999999s", "%99999999999999999999s"},
        {"%\x80%s", "%\x80pump"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ExpandText(c.format, "pump")) << c.format;
    EXPECT_EQ("a %s b", ExpandText("a %s b", "%s"));
    EXPECT_EQ(4095U, ExpandText("%4095s", "pump").size());
}

// What printf makes of a format that the compiler cannot check.
template <class Argument>
static std::string Printed(const std::string& format, Argument argument)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    char text[256];
    std::snprintf(text, sizeof text, format.c_str(), argument);
#pragma GCC diagnostic pop
    return text;
}

// Builds well-formed conversions out of random parts.
class RandomFormat {
  public:
    std::string Conversion(const std::string& flags, const std::string& letters)
    {
        std::string format = "%";
        for (const char flag : flags) {
            if (Roll(3) == 0)
                format += flag;
        }
        if (Roll(2) == 0)
            format += std::to_string(1 + Roll(30));
        if (Roll(3) == 0)
            format += "." + std::to_string(Roll(25));
        return format + letters[Roll(letters.size())];
    }

  private:
    std::size_t Roll(std::size_t sides) { return m_random() % sides; }
    std::mt19937 m_random{4711};
};

TEST(ExpandText, AgreesWithPrintfOnWellFormedTemplates)
{
    RandomFormat random;
    for (int i = 0; i < 2000; ++i) {
        const std::string format = "<" + random.Conversion("-", "s") + "> %%";
        for (const char* argument : {"", "x", "a longer argument than most"})
            ASSERT_EQ(Printed(format, argument), ExpandText(format, argument)) << format;
    }
}

static const void* const kAddresses[] = {
    nullptr, reinterpret_cast<const void*>(std::uintptr_t{1}),
    reinterpret_cast<const void*>(std::uintptr_t{0x7FFFFFFF}),
    reinterpret_cast<const void*>(~std::uintptr_t{0}),
    reinterpret_cast<const void*>(static_cast<std::uintptr_t>(0x00007F12ABCDEF08ULL))};

TEST(ExpandPointer, PrintsTheAddressAsPrintfPrintsAnIntegerOfItsSize)
{
    RandomFormat random;
    for (int i = 0; i < 3000; ++i) {
        const std::string integer = random.Conversion("-+ 0", "di");
        const std::string natural = random.Conversion("-0#", "xXo");
        const std::string plain = random.Conversion("-0", "u");
        for (const void* address : kAddresses) {
            const auto value = static_cast<unsigned>(reinterpret_cast<std::uintptr_t>(address));
            const int number = static_cast<int>(value);
            ASSERT_EQ(Printed(integer, number), ExpandPointer(integer, address)) << integer;
            if (value != 0) {  // libraries differ in what "%#.0o" makes of nothing
                ASSERT_EQ(Printed(natural, value), ExpandPointer(natural, address)) << natural;
            }
            ASSERT_EQ(Printed(plain, value), ExpandPointer(plain, address)) << plain;
        }
    }
}

TEST(ExpandPointer, PrintsPointerConversionsAsPrintfDoes)
{
    for (const void* address : kAddresses) {
        const std::string plain = Printed("%p", address);
        EXPECT_EQ(plain, ExpandPointer("%p", address));
        // What the run-time libraries do with a width differs; here it is one of blanks.
        const std::string blanks(24 - plain.size(), ' ');
        EXPECT_EQ(blanks + plain, ExpandPointer("%24p", address));
        EXPECT_EQ(plain + blanks + "|", ExpandPointer("%-24p|", address));
    }
}

TEST(ExpandPointer, PrintsNothingAtAllAsTheStandardSays)
{
    const Case cases[] = {{"<%d>", "<0>"},         {"<%.0d>", "<>"},     {"<%+.0d>", "<+>"},
                          {"<%#x>", "<0>"},        {"<%#o>", "<0>"},     {"<%#.0o>", "<0>"},
                          {"<%#5.3x>", "<  000>"}, {"<%05u>", "<00000>"}};
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ExpandPointer(c.format, nullptr)) << c.format;
}

TEST(ExpandPointer, HonoursTheSizeOfTheConversion)
{
    const auto* address = reinterpret_cast<const void*>(std::uintptr_t{0x89ABCDEF});
    const std::string whole = sizeof(void*) == 8 ? "2309737967" : "-1985229329";
    const Case cases[] = {
        {"%hhd", "-17"},         {"%hd", "-12817"},      {"%hx", "cdef"},
        {"%d", "-1985229329"},   {"%zd", whole.c_str()}, {"%Id", whole.c_str()},
        {"%I32u", "2309737967"}, {"%lld", "2309737967"}, {"%I64x", "89abcdef"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ExpandPointer(c.format, address)) << c.format;
}

TEST(ExpandPointer, ReadsNothingThroughThePointerAndPrintsItOnce)
{
    const auto* address = reinterpret_cast<const void*>(std::uintptr_t{16});
    const Case cases[] = {
        {"%n%n%s%s", "%n%n%s%s"}, {"%f %g %e %c", "%f %g %e %c"}, {"%s %x", "%s 10"},
        {"%%%d%%", "%16%"},       {"%5000d", "%5000d"},           {"%", "%"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(c.expected, ExpandPointer(c.format, address)) << c.format;
}
