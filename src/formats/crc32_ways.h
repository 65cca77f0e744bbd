// The ways of computing a CRC register; see CrcWays.
#pragma once

#include <cstddef>
#include <cstdint>

namespace qx {

// With tables and plain arithmetic: everywhere.
std::uint32_t CrcByTables(std::uint32_t reg, const void* bytes, std::size_t size);

// With carry-less multiplication of 128-bit and of 512-bit registers.
bool HasFolding128();
bool HasFolding512();
std::uint32_t CrcByFolding128(std::uint32_t reg, const void* bytes, std::size_t size);
std::uint32_t CrcByFolding512(std::uint32_t reg, const void* bytes, std::size_t size);

}  // namespace qx
