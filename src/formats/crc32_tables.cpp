#include "formats/crc32.h"
#include "formats/crc32_ways.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <utility>

namespace qx {

namespace {

static_assert(std::endian::native == std::endian::little);  // the first byte is a word's lowest

// kSlices[n][b]: the register after byte b and n zero bytes.
consteval auto MakeSlices()
{
    std::array<std::array<std::uint32_t, 256>, 16> slices{};
    slices[0] = kCrcTable;
    for (std::size_t n = 1; n < slices.size(); ++n) {
        for (std::size_t b = 0; b < 256; ++b)
            slices[n][b] = (slices[n - 1][b] >> 8) ^ kCrcTable[slices[n - 1][b] & 0xFF];
    }
    return slices;
}
alignas(64) constexpr auto kSlices = MakeSlices();

std::uint32_t Word(const unsigned char* p)
{
    std::uint32_t word;
    std::memcpy(&word, p, sizeof word);
    return word;
}

// The register after the four bytes of a word and `after` zero bytes.
template <std::size_t after>
std::uint32_t Slice(std::uint32_t word)
{
    return (kSlices[after + 3][word & 0xFF] ^ kSlices[after + 2][word >> 8 & 0xFF]) ^
           (kSlices[after + 1][word >> 16 & 0xFF] ^ kSlices[after][word >> 24]);
}

// The next block waits for what depends on the register, so that this comes last.
std::uint32_t SliceBlock(std::uint32_t reg, const unsigned char* p)
{
    const std::uint32_t rest =
        Slice<8>(Word(p + 4)) ^ Slice<4>(Word(p + 8)) ^ Slice<0>(Word(p + 12));
    return rest ^ Slice<12>(Word(p) ^ reg);
}

std::uint32_t BySlices(std::uint32_t reg, const unsigned char* p, std::size_t size)
{
    for (; size >= 16; size -= 16, p += 16)
        reg = SliceBlock(reg, p);
    for (; size >= 4; size -= 4, p += 4)
        reg = Slice<0>(Word(p) ^ reg);
    for (; size > 0; --size)
        reg = CrcByteStep(reg, *p++);
    return reg;
}

// Long division by the generator is a rule for single bits: each bit of the quotient is the bit of
// the dividend there plus certain ones of the 32 quotient bits before it. As G(x)^128 = G(x^128)
// in this arithmetic, the same rule divides by a multiple of the generator when it is applied to
// blocks of 128 bits: only additions, and no block waits for the five before it. What remains are
// the 32 blocks of a remainder.
#if defined(__GNUC__)
using Block = std::uint64_t __attribute__((vector_size(16)));
#else
using Block = std::uint64_t;  // any power of two will do
#endif
constexpr std::size_t kTaps = 32;

template <std::size_t... bit>
Block Divide(Block block, const Block* quotient, std::index_sequence<bit...>)
{
    const auto add = [&](auto distance) { block ^= *(quotient - distance); };
    ((kCrcGenerator >> bit & 1 ? add(bit + 1) : void()), ...);
    return block;
}

Block LoadBlock(const unsigned char* p)
{
    Block block;
    std::memcpy(&block, p, sizeof block);
    return block;
}

// What is left of `blocks` blocks, at least kTaps. The register is added to the first one.
std::array<Block, kTaps> Remainder(std::uint32_t reg, const unsigned char* p, std::size_t blocks)
{
    constexpr auto kEachTap = std::make_index_sequence<kTaps>();
    std::array<Block, kTaps + 256> quotient{};  // the last kTaps blocks of it, and the next ones
    Block* const next = quotient.data() + kTaps;
    Block begin{};
    std::memcpy(&begin, &reg, sizeof reg);
    for (std::size_t left = blocks - kTaps; left > 0;) {
        const std::size_t count = std::min(left, quotient.size() - kTaps);
        for (std::size_t i = 0; i < count; ++i, p += sizeof(Block), begin = Block{})
            next[i] = Divide(LoadBlock(p) ^ begin, next + i, kEachTap);
        std::copy_n(next + count - kTaps, kTaps, quotient.data());
        left -= count;
    }
    std::fill_n(next, kTaps, Block{});  // the quotient has ended
    std::array<Block, kTaps> remainder;
    for (std::size_t i = 0; i < kTaps; ++i, p += sizeof(Block))
        remainder[i] = Divide(LoadBlock(p), next + i, kEachTap);
    return remainder;
}

// From here on, that is faster.
constexpr std::size_t kDivideFrom = 2048;

}  // namespace

std::uint32_t CrcByTables(std::uint32_t reg, const void* bytes, std::size_t size)
{
    const auto* p = static_cast<const unsigned char*>(bytes);
    if (size < kDivideFrom)
        return BySlices(reg, p, size);
    const std::array<Block, kTaps> remainder = Remainder(reg, p, size / sizeof(Block));
    reg = BySlices(0, reinterpret_cast<const unsigned char*>(remainder.data()), sizeof remainder);
    const std::size_t rest = size % sizeof(Block);
    return BySlices(reg, p + size - rest, rest);
}

}  // namespace qx
