#include "ui/typed_number.h"

#include <gtest/gtest.h>

using qx::CheckTypedNumber;
using qx::NumberRules;

static constexpr NumberRules kAll{'.', true, true, true};

namespace {

struct Case {
    const char* text;
    NumberRules rules;
    const char* left;  // what the control shows in the end
    bool good;
};

std::string Left(const char* text, const qx::TypedNumber& typed)
{
    if (typed.wrong)
        return std::string(text).substr(0, *typed.wrong);
    return (typed.needsZero ? "0" : "") + std::string(text);
}

}  // namespace

TEST(TypedNumber, IsCutAtTheFirstWrongCharacter)
{
    const NumberRules whole{'.', false, true, true}, nonZero{'.', true, false, true},
        positive{'.', true, true, false}, comma{',', true, true, true};
    const Case cases[] = {
        {"", kAll, "", false},
        {"12", kAll, "12", true},
        {"12a4", kAll, "12", true},
        {"a", kAll, "", false},
        {"12 ", kAll, "12", true},
        {"1 2 ", kAll, "1 2", true},  // a blank at the end is all that is looked at
        {"1 2", kAll, "1", true},
        {" ", kAll, "", false},
        // decimal characters
        {"1.5", kAll, "1.5", true},
        {"1.5", whole, "1", true},
        {"1.5.5", kAll, "1.5", true},
        {"1,5", kAll, "1", true},
        {"1,5", comma, "1,5", true},
        {"1.5", comma, "1", true},
        {"0,5", comma, "0,5", true},
        {".5", kAll, "0.5", true},
        {",5", comma, "0,5", true},
        {".5", whole, "", false},
        {"..5", kAll, "0..5", false},
        {".5.5", kAll, "0.5.5", true},
        {".5a", kAll, ".5", true},
        // signs
        {"-5", kAll, "-5", true},
        {"-5", positive, "", false},
        {"+5", positive, "+5", true},
        {"5-", kAll, "5", true},
        {"5+2", kAll, "5", true},
        {"--5", kAll, "-", false},
        {"1e-3", positive, "1e-3", true},
        {"1e+3", positive, "1e+3", true},
        {"1e3-", kAll, "1e3", true},
        // exponents
        {"e5", kAll, "", false},
        {"1e5e", kAll, "1e5", true},
        {"1E5", kAll, "1", true},
        {"1e", kAll, "1e", true},  // a zero as long as it is not complete
        {"1e", nonZero, "1e", false},
        // zero
        {"0", kAll, "0", true},
        {"0", nonZero, "", false},
        {"0.0", kAll, "0.0", true},
        {"0.0", nonZero, "0.0", false},
        {"05", nonZero, "05", true},
        {"00", nonZero, "00", false},
        {"-0", kAll, "-0", false},
        {".0", kAll, "0.0", false},
    };
    for (const Case& c : cases) {
        const qx::TypedNumber typed = CheckTypedNumber(c.text, c.rules);
        EXPECT_EQ(c.left, Left(c.text, typed)) << '"' << c.text << '"';
        EXPECT_EQ(c.good, typed.good) << '"' << c.text << '"';
    }
}
