// Comparing and hashing of keys, with case or without. Without case means as the C runtime compares
// in its "C" locale: only the letters A to Z have two cases, every other byte is itself. The result
// is the same on every system and in every code page.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qx {

enum class Case { Matters, Ignored };

// Eight characters with A to Z as a to z.
constexpr std::uint64_t FoldEight(std::uint64_t characters)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    const std::uint64_t low = characters & 0x7F * kOnes;
    const std::uint64_t fromA = low + (0x80 - 'A') * kOnes;
    const std::uint64_t beyondZ = low + (0x7F - 'Z') * kOnes;
    const std::uint64_t capitals = fromA & ~beyondZ & ~characters & 0x80 * kOnes;
    return characters | capitals >> 2;
}

// All characters of a text of less than eight.
inline std::uint64_t LoadShort(const char* text, std::size_t size)
{
    const auto byte = [text](std::size_t at) {
        return std::uint64_t{static_cast<unsigned char>(text[at])};
    };
    if (size < 4)
        return size == 0 ? 0 : byte(0) << 16 | byte(size / 2) << 8 | byte(size - 1);
    std::uint32_t first, last;
    std::memcpy(&first, text, sizeof first);
    std::memcpy(&last, text + size - sizeof last, sizeof last);
    return std::uint64_t{first} << 32 | last;
}

inline std::uint64_t LoadEight(const char* text)
{
    std::uint64_t characters;
    std::memcpy(&characters, text, sizeof characters);
    return characters;
}

template <Case rule>
constexpr std::uint64_t Ruled(std::uint64_t characters)
{
    return rule == Case::Ignored ? FoldEight(characters) : characters;
}

// Both go through a text eight characters at a time; the last eight overlap those before.
template <Case rule>
bool EqualKeys(std::string_view a, std::string_view b)
{
    const std::size_t size = a.size();
    const auto differ = [](std::uint64_t x, std::uint64_t y) {
        return Ruled<rule>(x) != Ruled<rule>(y);
    };
    if (size != b.size())
        return false;
    if (size < 8)
        return !differ(LoadShort(a.data(), size), LoadShort(b.data(), size));
    for (std::size_t at = 0; at + 8 < size; at += 8) {
        if (differ(LoadEight(&a[at]), LoadEight(&b[at])))
            return false;
    }
    return !differ(LoadEight(&a[size - 8]), LoadEight(&b[size - 8]));
}

template <Case rule>
std::uint32_t HashKey(std::string_view key)
{
    constexpr std::uint64_t kOdd = 0x9E3779B97F4A7C15;  // 2^64 / golden ratio
    const std::size_t size = key.size();
    std::uint64_t hash = size;
    const auto mix = [&hash](std::uint64_t characters) {
        hash = (hash ^ Ruled<rule>(characters)) * kOdd;
        hash ^= hash >> 32;
    };
    for (std::size_t at = 0; at + 8 < size; at += 8)
        mix(LoadEight(&key[at]));
    mix(size < 8 ? LoadShort(key.data(), size) : LoadEight(&key[size - 8]));
    return static_cast<std::uint32_t>((hash * kOdd) >> 32);
}

// Whether a text has a character below the space.
inline bool HasControl(std::string_view text)
{
    constexpr std::uint64_t kOnes = 0x0101010101010101;
    const auto below = [](std::uint64_t characters) {
        return (characters - ' ' * kOnes) & ~characters & 0x80 * kOnes;
    };
    std::uint64_t found = 0;
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8)
        found |= below(LoadEight(&text[at]));
    for (; at < text.size(); ++at)
        found |= static_cast<unsigned char>(text[at]) < ' ';
    return found != 0;
}

inline bool EqualKeys(std::string_view a, std::string_view b, Case rule)
{
    return rule == Case::Ignored ? EqualKeys<Case::Ignored>(a, b) : a == b;
}

inline std::uint32_t HashKey(std::string_view key, Case rule)
{
    return rule == Case::Ignored ? HashKey<Case::Ignored>(key) : HashKey<Case::Matters>(key);
}

}  // namespace qx
