// Locale identifiers and the names of their columns in a language table.
#pragma once

#include <qxutility/types.h>

#include <bit>
#include <cstdint>

namespace qx {

inline constexpr DWORD kEnglishLocale = 0x0409;

constexpr DWORD PrimaryLanguage(DWORD lcid)
{
    return lcid & 0x3FF;
}
constexpr DWORD SubLanguage(DWORD lcid)
{
    return (lcid & 0xFFFF) >> 10;
}

// A column's name: primary and sublanguage in decimal, two digits or more each.
struct LanguageCode {
    char text[8];  // padded with NULs

    friend constexpr bool operator==(const LanguageCode& a, const LanguageCode& b)
    {
        return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
    }
};
inline constexpr LanguageCode kEnglishCode = {"09-01"};

LanguageCode CodeOf(DWORD primary, DWORD sub);
inline LanguageCode CodeOf(DWORD lcid)
{
    return CodeOf(PrimaryLanguage(lcid), SubLanguage(lcid));
}

// The locale of a column, read from its digits 1-2 and 4-5.
DWORD LocaleOfCode(const char* code);

}  // namespace qx
