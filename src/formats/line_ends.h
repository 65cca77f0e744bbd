// The two inner loops of reading lines. They hardly branch on the length of a line: with lines of
// mixed lengths such a branch is mispredicted again and again, and costs more than the work.
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace qx {

// For how many places more than its characters FindLineEnds needs room.
inline constexpr std::size_t kLineEndSpare = 2;

namespace line_ends {

inline constexpr std::size_t kStep = 64;
inline constexpr int kAtOnce = 2;

// Where a character stands among 64: a bit for each place, and their number.
struct Places {
    std::uint64_t bits = 0;
    std::size_t count = 0;
};

inline Places Find(char wanted, const char* text)
{
    Places places;
#if defined(__SSE2__)
    __m128i counts = _mm_setzero_si128();
#pragma GCC unroll 4
    for (int part = 0; part < 4; ++part) {
        const auto chunk = _mm_loadu_si128(reinterpret_cast<const __m128i*>(text) + part);
        const __m128i found = _mm_cmpeq_epi8(chunk, _mm_set1_epi8(wanted));
        const auto bits = static_cast<unsigned>(_mm_movemask_epi8(found));
        places.bits |= std::uint64_t{bits} << (16 * part);
        counts = _mm_sub_epi8(counts, found);
    }
    counts = _mm_sad_epu8(counts, _mm_setzero_si128());
    counts = _mm_add_epi64(counts, _mm_unpackhi_epi64(counts, counts));
    places.count = static_cast<unsigned>(_mm_cvtsi128_si32(counts));
#else
    for (std::size_t i = 0; i < kStep; ++i)
        places.bits |= std::uint64_t{text[i] == wanted} << i;
    places.count = static_cast<std::size_t>(std::popcount(places.bits));
#endif
    return places;
}

// Writes the places, and behind them up to one that means nothing.
inline std::uint16_t* Append(Places found, std::size_t base, std::uint16_t* places)
{
    std::uint16_t* const end = places + found.count;
    do {
#pragma GCC unroll 2
        for (int i = 0; i < kAtOnce; ++i) {
            *places++ = static_cast<std::uint16_t>(base + std::countr_zero(found.bits));
            found.bits &= found.bits - 1;
        }
    } while (found.bits != 0);
    return end;
}

}  // namespace line_ends

// Writes the places of all CR of a text of less than 64 KiB, in rising order; returns the end of
// what it wrote.
inline std::uint16_t* FindLineEnds(const char* text, std::size_t size, std::uint16_t* places)
{
    using namespace line_ends;
    std::size_t i = 0;
    for (; size - i >= kStep; i += kStep)
        places = Append(Find('\r', text + i), i, places);
    for (; i < size; ++i) {
        *places = static_cast<std::uint16_t>(i);
        places += text[i] == '\r';
    }
    return places;
}

// Copies a line: exactly its characters are written.
inline void CopyLine(const char* line, std::size_t size, char* out)
{
    constexpr std::size_t kPart = 16, kParts = 8;
    if (size < kPart || size > kPart * kParts) {
        std::char_traits<char>::copy(out, line, size);
        return;
    }
    // Always eight parts; those that would begin too late are the last one once more.
#pragma GCC unroll 8
    for (std::size_t part = 0; part < kParts; ++part) {
        const std::size_t offset = std::min(part * kPart, size - kPart);
        std::memcpy(out + offset, line + offset, kPart);
    }
}

}  // namespace qx
