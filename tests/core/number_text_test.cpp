#include "core/number_text.h"

#include <gtest/gtest.h>

TEST(NumberText, IsClassified)
{
    using enum qx::NumberKind;
    const struct {
        const char* text;
        qx::NumberKind kind;
    } cases[] = {
        {"", Whole},           {"0", Whole},     {"+5", Whole},     {"-5", Whole},
        {"(12)", Whole},       {"((1", Whole},   {"1(2", Whole},    {"12\tabc", Whole},
        {"\t", Whole},         {"-", Whole},     {"1.5", Decimal},  {".", Decimal},
        {".5.5", Decimal},     {"5.", Decimal},  {"1\t.", Whole},   {"1e5", Exponent},
        {"-1.5e-3", Exponent}, {"1e", Exponent}, {"1e+", Exponent}, {".e", Exponent},
        {"1\te", Whole},       {"1.2.3", None},  {".5.5.5", None},  {"..", Decimal},
        {"5-", None},          {"1+1", None},    {"--1", None},     {"e5", None},
        {"1e5e", None},        {"E5", None},     {"1E5", None},     {"1 000", None},
        {" 1", None},          {"1,5", None},    {"1)", None},      {"()", None},
        {"(1))", None},        {"(1.)", None},   {"(1)(2)", Whole}, {"0x1", None},
        {"\xB2", None},
    };
    for (const auto& each : cases)
        EXPECT_EQ(each.kind, qx::ClassifyNumber(each.text, '.')) << each.text;
    EXPECT_EQ(Decimal, qx::ClassifyNumber("1,5", ','));
    EXPECT_EQ(None, qx::ClassifyNumber("1.5", ','));
    EXPECT_EQ(None, qx::ClassifyNumber("(1,5))", ','));
}
