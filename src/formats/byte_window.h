// Which of 64 bytes have some property: a bit for each, that of the first byte lowest.
#pragma once

#include <cstdint>

#if defined(__SSE2__) || defined(_M_X64)
#include <emmintrin.h>
#endif

namespace qx {

struct ByteWindow {
    std::uint64_t equal = 0;  // equal to the byte that is looked for
    std::uint64_t low = 0;    // below 128

    // Leaves the first `count` bytes, fewer than 64.
    void Cut(unsigned count)
    {
        const std::uint64_t kept = (std::uint64_t{1} << count) - 1;
        equal &= kept;
        low &= kept;
    }
};

#if defined(__SSE2__) || defined(_M_X64)
inline ByteWindow LookAt64(const char* bytes, char wanted)
{
    const __m128i each = _mm_set1_epi8(wanted);
    ByteWindow window;
    const auto look = [&](int at) {
        const __m128i some = _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes + at));
        const int equal = _mm_movemask_epi8(_mm_cmpeq_epi8(some, each));
        window.equal |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(equal)) << at;
        const int high = _mm_movemask_epi8(some);
        window.low |= static_cast<std::uint64_t>(static_cast<std::uint32_t>(high)) << at;
    };
    look(0), look(16), look(32), look(48);
    window.low = ~window.low;
    return window;
}
#else
inline ByteWindow LookAt64(const char* bytes, char wanted)
{
    ByteWindow window;
    for (int i = 0; i < 64; ++i) {
        window.equal |= std::uint64_t{bytes[i] == wanted} << i;
        window.low |= std::uint64_t{static_cast<unsigned char>(bytes[i]) < 128} << i;
    }
    return window;
}
#endif

}  // namespace qx
