// Comparing texts without regard to case, as the C runtime does in its "C" locale: only the letters
// A to Z have two cases, every other byte is itself. The result is the same on every system and in
// every code page.
#pragma once

namespace qx {

constexpr char FoldCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

constexpr bool EqualIgnoringCase(const char* a, const char* b)
{
    while (*a != '\0' && FoldCase(*a) == FoldCase(*b)) {
        ++a;
        ++b;
    }
    return FoldCase(*a) == FoldCase(*b);
}

}  // namespace qx
