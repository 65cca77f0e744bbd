// The CRC-32 of CRC tables: reflected, generator 0xEDB68320. This differs in three bits from the
// common CRC-32's constant, and the difference is part of the format: every CRC table in the field
// was written with it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace qx {

// Bit 31 - n stands for x^n; x^32 is left out.
inline constexpr std::uint32_t kCrcGenerator = 0xEDB68320;
inline constexpr std::uint32_t kCrcStart = 0xFFFFFFFF;  // of the register; the CRC is its inverse

// The register after one more bit, 0, or what is the same: its value times x modulo the generator.
constexpr std::uint32_t CrcBitStep(std::uint32_t reg)
{
    return (reg >> 1) ^ (reg & 1 ? kCrcGenerator : 0);
}

// What each value of the register's low byte becomes in eight such steps.
consteval std::array<std::uint32_t, 256> MakeCrcTable()
{
    std::array<std::uint32_t, 256> table{};
    for (std::uint32_t i = 0; i < 256; ++i) {
        table[i] = i;
        for (int bit = 0; bit < 8; ++bit)
            table[i] = CrcBitStep(table[i]);
    }
    return table;
}
inline constexpr std::array<std::uint32_t, 256> kCrcTable = MakeCrcTable();

inline std::uint32_t CrcByteStep(std::uint32_t reg, unsigned char byte)
{
    return (reg >> 8) ^ kCrcTable[(reg ^ byte) & 0xFF];
}

// The register after `size` more bytes, in the fastest way that this processor has.
std::uint32_t CrcUpdate(std::uint32_t reg, const void* bytes, std::size_t size);

// The ways, all with the same result, the faster ones later.
using CrcFunction = std::uint32_t (*)(std::uint32_t reg, const void* bytes, std::size_t size);
struct CrcWay {
    const char* name;
    CrcFunction update;
    bool (*isAvailable)();  // on this processor; a way that is not must not be called
};
std::array<CrcWay, 3> CrcWays();

}  // namespace qx
