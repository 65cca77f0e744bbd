// Wide steps through an XML text. From the NUL that ends it on, kScanPadding bytes may be read.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__) || defined(_M_X64)
#define QX_SCAN_SSE2 1
#include <emmintrin.h>
#else
#define QX_SCAN_SSE2 0
#endif

namespace qx {

inline constexpr std::size_t kScanPadding = 64;

// White space as isspace has it for ASCII, whatever the host's locale is.
constexpr bool IsSpace(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

#if QX_SCAN_SSE2

inline __m128i LoadSixteen(const char* p)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}

inline unsigned MaskOf(__m128i bytes)
{
    return static_cast<unsigned>(_mm_movemask_epi8(bytes));
}

// Not zero in the bytes whose character, of the sixteen at p, is wanted.
template <char... kWanted>
inline __m128i WantedInSixteen(const char* p)
{
    const __m128i characters = LoadSixteen(p);
    __m128i found = _mm_setzero_si128();
    ((found = _mm_or_si128(found, _mm_cmpeq_epi8(characters, _mm_set1_epi8(kWanted)))), ...);
    return found;
}

// A bit for each of the sixteen characters at p that is wanted.
template <char... kWanted>
inline unsigned FindInSixteen(const char* p)
{
    return MaskOf(WantedInSixteen<kWanted...>(p));
}

#endif

// A bit for each of the 64 characters at p that is wanted.
template <char... kWanted>
inline std::uint64_t FindIn64(const char* p)
{
#if QX_SCAN_SSE2
    const __m128i a = WantedInSixteen<kWanted...>(p), b = WantedInSixteen<kWanted...>(p + 16);
    const __m128i c = WantedInSixteen<kWanted...>(p + 32), d = WantedInSixteen<kWanted...>(p + 48);
    if (MaskOf(_mm_or_si128(_mm_or_si128(a, b), _mm_or_si128(c, d))) == 0)
        return 0;
    return MaskOf(a) | std::uint64_t{MaskOf(b)} << 16 | std::uint64_t{MaskOf(c)} << 32 |
           std::uint64_t{MaskOf(d)} << 48;
#else
    std::uint64_t found = 0;
    for (unsigned i = 0; i < 64; ++i)
        found |= std::uint64_t{((p[i] == kWanted) || ...)} << i;
    return found;
#endif
}

// The first of the wanted characters at or after p. There must be one: NUL is wanted too.
template <char... kWanted>
inline const char* Find(const char* p)
{
    static_assert(((kWanted == '\0') || ...));
    for (;; p += 64)
        if (const std::uint64_t found = FindIn64<kWanted...>(p))
            return p + std::countr_zero(found);
}

// The first of the wanted characters in [p, end), or `end`.
template <char... kWanted>
inline const char* FindBefore(const char* p, const char* end)
{
#if QX_SCAN_SSE2
    for (; p < end; p += 16)
        if (const unsigned found = FindInSixteen<kWanted...>(p))
            return std::min(p + std::countr_zero(found), end);
    return end;
#else
    return std::find_if(p, end, [](char c) { return ((c == kWanted) || ...); });
#endif
}

// Whether the text at p begins with the `length` characters at `other`, none of which is NUL.
inline bool BeginsWith(const char* p, const char* other, std::size_t length)
{
#if QX_SCAN_SSE2
    if (length <= 16) {
        const unsigned same = MaskOf(_mm_cmpeq_epi8(LoadSixteen(p), LoadSixteen(other)));
        return (~same & ((1U << length) - 1)) == 0;
    }
#endif
    return std::strncmp(p, other, length) == 0;
}

}  // namespace qx
