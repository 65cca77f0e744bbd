// How many bytes two places of a text have in common.
#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

namespace qx {

inline std::uint32_t Load4(const char* bytes)
{
    std::uint32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}
inline std::uint64_t Load8(const char* bytes)
{
    std::uint64_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// The number of equal bytes before the first different one, from two words read from memory.
inline std::uint32_t EqualBytes(std::uint64_t difference)
{
    const int bits = std::endian::native == std::endian::little ? std::countr_zero(difference)
                                                                : std::countl_zero(difference);
    return static_cast<std::uint32_t>(bits) / 8;
}

// The length of the common prefix, at most `limit`; `length` bytes are known to be equal.
inline std::uint32_t CommonPrefix(const char* a, const char* b, std::uint32_t limit,
                                  std::uint32_t length = 0)
{
    for (; length + 8 <= limit; length += 8) {
        if (const std::uint64_t difference = Load8(a + length) ^ Load8(b + length))
            return length + EqualBytes(difference);
    }
    while (length < limit && a[length] == b[length])
        ++length;
    return length;
}

}  // namespace qx
