#include "core/number_text.h"

namespace qx {

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// What the scan has met so far.
struct Seen {
    bool decimal = false;        // anywhere
    int decimalsAfterFirst = 0;  // the first position is deliberately not counted: ".5.5" passes
    int exponents = 0;
    bool parenthesis = false;
};

// Whether the character may stand where it does; `before` is NUL for the first.
bool Allowed(char c, char before, char decimal, Seen& seen)
{
    const bool first = before == '\0';
    if (c == decimal) {
        seen.decimal = true;
        seen.decimalsAfterFirst += !first;
        return seen.decimalsAfterFirst <= 1;
    }
    switch (c) {
        case '(':
            seen.parenthesis = true;
            return true;
        case ')':
            return seen.parenthesis && IsDigit(before);
        case '+':
        case '-':
            return first || before == 'e';
        case 'e':
            return !first && ++seen.exponents == 1;
        default:
            return IsDigit(c);
    }
}

}  // namespace

NumberKind ClassifyNumber(std::string_view text, char decimal)
{
    Seen seen;
    char before = '\0';
    for (const char c : text.substr(0, text.find('\t'))) {
        if (!Allowed(c, before, decimal, seen))
            return NumberKind::None;
        before = c;
    }
    if (seen.exponents != 0)
        return NumberKind::Exponent;
    return seen.decimal ? NumberKind::Decimal : NumberKind::Whole;
}

}  // namespace qx
