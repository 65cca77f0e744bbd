// Names that differ by the case of the letters A to Z only are one name: hashing, comparing and
// ordering them, eight characters at a time.
#pragma once

#include "core/ascii_case.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qx {

// The letters A to Z among eight characters become small.
constexpr std::uint64_t FoldEight(std::uint64_t characters)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    const std::uint64_t low = characters & (0x7F * kOnes);
    const std::uint64_t fromA = low + (0x80 - 'A') * kOnes;       // high bit: 'A' or above
    const std::uint64_t aboveZ = low + (0x80 - 'Z' - 1) * kOnes;  // high bit: above 'Z'
    const std::uint64_t letters = (fromA ^ aboveZ) & ~characters & (0x80 * kOnes);
    return characters | letters >> 2;
}

inline std::uint64_t LoadEight(const char* text)
{
    std::uint64_t result;
    std::memcpy(&result, text, sizeof result);
    return result;
}

// A text of less than eight characters as a number; texts of one length give different numbers.
inline std::uint64_t LoadFew(const char* text, std::size_t length)
{
    if (length >= 4) {
        std::uint32_t first, last;
        std::memcpy(&first, text, sizeof first);
        std::memcpy(&last, text + length - sizeof last, sizeof last);
        return first | std::uint64_t{last} << 32;
    }
    if (length == 0)
        return 0;
    const auto byte = [=](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    return byte(0) | byte(length / 2) << 8 | std::uint64_t{byte(length - 1)} << 16;
}

// Eight characters of a text from position `i`, or its last eight: the same ones for texts of one
// length. All of a text shorter than that.
inline std::uint64_t LoadPart(std::string_view text, std::size_t i)
{
    if (text.size() < 8)
        return LoadFew(text.data(), text.size());
    return LoadEight(text.data() + std::min(i, text.size() - 8));
}

// The same for all spellings of a name. `seed` is the hash of what stands before it. The high half
// is the one that depends on every character.
inline std::uint64_t HashName(std::string_view name, std::uint64_t seed)
{
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    constexpr std::uint64_t kSmall = 0x2020202020202020;  // the bit in which A differs from a
    std::uint64_t hash = seed ^ name.size();
    for (std::size_t i = 0; i < name.size(); i += 8)
        hash = (std::rotl(hash, 32) ^ (LoadPart(name, i) | kSmall)) * kFactor;
    return hash;
}

inline bool SameName(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); i += 8) {
        const std::uint64_t ofA = LoadPart(a, i), ofB = LoadPart(b, i);
        if (ofA != ofB && FoldEight(ofA) != FoldEight(ofB))
            return false;
    }
    return true;
}

// Alphabetical; a name stands before those that it is the start of. Characters above 127 stand
// before all others, as signed characters do.
inline bool NameBefore(std::string_view a, std::string_view b)
{
    const auto before = [](char x, char y) {
        return static_cast<signed char>(FoldCase(x)) < static_cast<signed char>(FoldCase(y));
    };
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), before);
}

}  // namespace qx
