#include "config/process.h"
#include "doubles/locale_double.h"
#include "support/guarded_buffer.h"

#include <qxutility/config/language.h>
#include <qxutility/core/numbers.h>

#include <cmath>
#include <gtest/gtest.h>

using qx::test::GuardedBuffer;

namespace {

constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407;

class LocalisedFormat : public testing::Test {
  protected:
    LocalisedFormat()
    {
        m_locales.installed[kGerman] = {",", ".", "ca. ", " \x80", "13.11.2008", "13. November"};
        german.SetLanguage(kGerman);
    }
    ~LocalisedFormat() override { qx::Process().language = CLanguage(); }

    qx::test::LocaleDouble m_locales;
    CLanguage english, german;
};

}  // namespace

TEST_F(LocalisedFormat, PutsDecimalCharactersIntoNumbersOnly)
{
    const struct {
        const char *english, *german;
    } cases[] = {
        {"1.5 .25 x.5", "1,5 ,25 x.5"},
        {"1.2.3", "1,2,3"},
        {"5.", "5."},
        {"v.1 (.5 -.5", "v.1 (.5 -.5"},
        {".5", ",5"},
        {"", ""},
        {".", "."},
        {"\xE4.5", "\xE4.5"},
    };
    for (const auto& each : cases) {
        GuardedBuffer text(std::strlen(each.english) + 1);
        EXPECT_STREQ(each.english, english.Number(text = each.english));
        EXPECT_STREQ(each.german, german.Number(text));
        EXPECT_STREQ(each.english, german.EnglishNumber(text)) << each.german;
    }
    char mixed[] = "1.5,5 a,5";
    EXPECT_STREQ("1.5.5 a,5", german.EnglishNumber(mixed));
    EXPECT_STREQ("1.5.5 a,5", english.EnglishNumber(mixed));
}

TEST_F(LocalisedFormat, KnowsSeparators)
{
    EXPECT_EQ('.', english.Decimal());
    EXPECT_EQ(',', english.Separator());
    EXPECT_EQ(',', german.Decimal());
    EXPECT_EQ('.', german.Separator());
    m_locales.installed[kGerman].thousands = "";
    EXPECT_EQ('\0', german.Separator());
}

TEST_F(LocalisedFormat, WritesMoneyWithOrWithoutDecimals)
{
    m_locales.installed[kGerman].beforeMoney = "";
    const struct {
        const char* value;
        bool keep;
        const char* out;
    } cases[] = {
        {"1234.56", true, "1234,56 \x80"},
        {"1234.56", false, "1234 \x80"},
        {"12", false, "12 \x80"},
    };
    for (const auto& each : cases) {
        GuardedBuffer out(11);
        EXPECT_EQ(out.data(), german.Money(each.value, out, 11, each.keep));
        EXPECT_STREQ(each.out, out) << each.value;
    }
    GuardedBuffer small(9);
    EXPECT_STREQ("", german.Money("1234.56", small, 9, false));  // too long with its decimals
    EXPECT_STREQ("1234 \x80", german.Money("1234", small, 9, false));
    GuardedBuffer none(0);
    EXPECT_EQ(none.data(), german.Money("1", none, 0, false));
}

TEST_F(LocalisedFormat, WritesTheDate)
{
    GuardedBuffer out(11);
    EXPECT_STREQ("13.11.2008", german.Date(out, 11, DATE_SHORTDATE));
    EXPECT_STREQ("", german.Date(out, 11, DATE_LONGDATE));
}

TEST_F(LocalisedFormat, ChecksNumbersInTheLanguageOfTheProcess)
{
    const struct {
        const char* text;
        int kind;
        double value;
        const char* after;
    } cases[] = {
        {"1,5", 2, 1.5, "1.5"},
        {"(1,25)", 2, -1.25, "(1.25)"},
        {"-1,5e-3", -1, -0.0015, "-1.5e-3"},
        {"12\t3,4", 1, 12, "12\t3.4"},
        {"", 1, 0, ""},
        {",5", 2, 0.5, ".5"},
        {"(,5)", 2, 0, "(,5)"},
        {"1.5", 0, NAN, "1.5"},
    };
    qx::Process().language = german;
    for (const auto& each : cases) {
        GuardedBuffer text(std::strlen(each.text) + 1);
        double value = NAN;
        EXPECT_EQ(each.kind, IsNumber(text = each.text, nullptr)) << each.text;
        EXPECT_STREQ(each.text, text);
        EXPECT_EQ(each.kind, IsNumber(text, &value)) << each.text;
        EXPECT_STREQ(each.after, text);
        EXPECT_TRUE(value == each.value || (std::isnan(value) && std::isnan(each.value)))
            << each.text << " gave " << value;
    }
}
