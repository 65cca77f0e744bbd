// Numbers, money and dates in the user's form.
#include "config/language_table.h"
#include "platform/locale.h"

#include <qxutility/config/language.h>

#include <cstring>

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

// Replaces each `from` that is the decimal character of a number: one with a digit after it that
// stands at the start, after a space or after a digit.
char* ReplaceDecimals(char* text, char from, char to)
{
    if (!text || from == to)
        return text;
    for (char* p = text; *p != '\0'; ++p) {
        const bool opens = p == text || p[-1] == ' ' || IsDigit(p[-1]);
        if (*p == from && IsDigit(p[1]) && opens)
            *p = to;
    }
    return text;
}

// Cuts the first decimal character and the digits that follow it out of a text.
void CutDecimals(char* text, char decimal)
{
    char* const from = std::strchr(text, decimal);
    if (!from)
        return;
    const char* to = from + 1;
    while (IsDigit(*to))
        ++to;
    std::memmove(from, to, std::strlen(to) + 1);
}

// Copies a text that must not be shown in part: all of it, or nothing.
char* PutWhole(const std::string& text, char* out, int size)
{
    const bool fits = size > 0 && text.size() < static_cast<std::size_t>(size);
    qx::CopyText(out, size, fits ? text.c_str() : "");
    return out;
}

}  // namespace

char CLanguage::Decimal() const
{
    const std::string separator = qx::platform::DecimalSeparator(m_lcid);
    return separator.empty() ? '.' : separator[0];
}

char CLanguage::Separator() const
{
    const std::string separator = qx::platform::ThousandsSeparator(m_lcid);
    return separator.empty() ? '\0' : separator[0];
}

char* CLanguage::Number(char* text) const
{
    return ReplaceDecimals(text, '.', Decimal());
}

char* CLanguage::EnglishNumber(char* text) const
{
    return ReplaceDecimals(text, Decimal(), '.');
}

char* CLanguage::Money(const char* value, char* out, int size, bool keepDecimals) const
{
    PutWhole(qx::platform::FormatCurrency(m_lcid, value), out, size);
    if (!keepDecimals && size > 0)
        CutDecimals(out, Decimal());
    return out;
}

char* CLanguage::Date(char* out, int size, DWORD flags) const
{
    return PutWhole(qx::platform::FormatToday(m_lcid, flags), out, size);
}
