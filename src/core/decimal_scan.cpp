#include "core/decimal_scan.h"

#include "core/decimal.h"

#include <algorithm>
#include <cctype>
#include <string>

namespace qx {

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

const char* SkipSign(const char* p)
{
    return *p == '+' || *p == '-' ? p + 1 : p;
}

const char* SkipDigits(const char* p)
{
    while (IsDigit(*p))
        ++p;
    return p;
}

const char* NameEnd(const char* first)
{
    std::string name;
    const char* p = first;
    for (; std::isalpha(static_cast<unsigned char>(*p)); ++p)
        name += static_cast<char>(*p | 0x20);  // lower case
    return name == "inf" || name == "infinity" || name == "nan" ? p : nullptr;
}

// The end of the number that starts at `p`; null when none does.
const char* NumberEnd(const char* p, char point)
{
    const char* const first = SkipSign(p);
    p = SkipDigits(first);
    if (*p == point)
        p = SkipDigits(p + 1);
    if (std::none_of(first, p, IsDigit))
        return NameEnd(first);
    if (*p != 'e' && *p != 'E')
        return p;
    const char* const exponent = SkipSign(p + 1);
    return IsDigit(*exponent) ? SkipDigits(exponent) : nullptr;
}

}  // namespace

int ScanDoubles(const char* text, char point, std::span<double> values)
{
    int count = 0;
    for (double& value : values) {
        while (std::isspace(static_cast<unsigned char>(*text)))
            ++text;
        const char* const end = NumberEnd(text, point);
        if (!end)
            break;
        value = ParseDouble(std::string(text, end).c_str(), point);
        text = end;
        ++count;
    }
    return count;
}

}  // namespace qx
