// Bytes are taken as a polynomial over GF(2), first bit first; the register is the remainder of its
// product with x^32 divided by the generator G. A block of 128 bits is carried over a distance of D
// bits to a place behind it when it is multiplied by x^D modulo G and added there: that takes two
// carry-less multiplications, one for each half. The register before is added to the first 32 bits.
//
// All is reflected: bit i of n bits stands for x^(n - 1 - i). A product of two 64-bit halves thus
// comes out multiplied by x, and the constants have one x less for it.
#include "formats/crc32.h"
#include "formats/crc32_ways.h"

#if defined(__GNUC__) && (defined(__x86_64__) || defined(__i386__))

#include <immintrin.h>
#include <utility>

#define QX_FOLD128 gnu::target("pclmul,sse4.1,ssse3")
#define QX_FOLD512 gnu::target("pclmul,sse4.1,ssse3,avx512f,avx512vl,avx512bw,vpclmulqdq")

namespace qx {

namespace {

using Bytes = const unsigned char*;

// x^n mod G in a 64-bit half.
consteval std::uint64_t PowerOfX(int n)
{
    std::uint32_t power = 0x80000000;  // x^0
    for (; n > 0; --n)
        power = CrcBitStep(power);
    return std::uint64_t{power} << 32;
}

// The constants that carry a block over a distance in bits.
struct alignas(16) Carry {
    std::uint64_t firstHalf, secondHalf;
};
consteval Carry CarryOver(int distance)
{
    return {PowerOfX(distance + 63), PowerOfX(distance - 1)};
}
constexpr Carry kCarry128 = CarryOver(128);

// The constants that carry the last 8, 7 ... 1 blocks over the 32 bits behind the last one.
consteval auto MakeToEnd()
{
    std::array<Carry, 8> carries{};
    int distance = 32;
    for (auto carry = carries.rbegin(); carry != carries.rend(); ++carry, distance += 128)
        *carry = CarryOver(distance);
    return carries;
}
constexpr auto kToEnd = MakeToEnd();

// Those of the last `count` blocks.
const Carry* LastCarries(std::size_t count)
{
    return kToEnd.data() + kToEnd.size() - count;
}

// G, and the bits from x^64 to x^1 of x^96 / G, both beginning with bit 0.
constexpr std::uint64_t kDivisor = std::uint64_t{kCrcGenerator} << 1 | 1;
consteval std::uint64_t Reciprocal()
{
    std::uint64_t quotient = 1;
    std::uint32_t remainder = kCrcGenerator;  // of x^32
    for (int bit = 1; bit < 64; ++bit, remainder = CrcBitStep(remainder))
        quotient |= std::uint64_t{remainder & 1} << bit;
    return quotient;
}

[[QX_FOLD128]] inline __m128i Load(const void* p)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(p));
}

[[QX_FOLD128]] inline __m128i Constants(std::uint64_t first, std::uint64_t second)
{
    return _mm_set_epi64x(static_cast<long long>(second), static_cast<long long>(first));
}

[[QX_FOLD128]] inline __m128i Multiply(__m128i block, const Carry& carry)
{
    const __m128i factors = Load(&carry);
    return _mm_xor_si128(_mm_clmulepi64_si128(block, factors, 0x00),
                         _mm_clmulepi64_si128(block, factors, 0x11));
}

// The remainder of 96 bits. The quotient comes from their upper 64 bits times the reciprocal
// (Barrett's reduction, exact for polynomials); of its product with G, 32 bits are of interest.
[[QX_FOLD128]] inline std::uint32_t Remainder(__m128i bits)
{
    const __m128i constants = Constants(Reciprocal(), kDivisor);
    const __m128i quotient = _mm_clmulepi64_si128(bits, constants, 0x00);
    const __m128i product = _mm_clmulepi64_si128(quotient, constants, 0x10);
    return static_cast<std::uint32_t>(_mm_extract_epi32(_mm_xor_si128(product, bits), 2));
}

// The same for `sum`, which is carried to the end, and a last block: it goes there by 32 bits, for
// which its second half is only shifted.
[[QX_FOLD128]] inline std::uint32_t Remainder(__m128i sum, __m128i last)
{
    const __m128i first = _mm_clmulepi64_si128(last, Constants(PowerOfX(32 + 63), 0), 0x00);
    return Remainder(
        _mm_xor_si128(_mm_srli_si128(_mm_xor_si128(sum, first), 4), _mm_srli_si128(last, 8)));
}

// What is to be added to the blocks from p + odd on, for the register and the `odd` bytes before,
// 0 to 15. These go to the end of a block behind zeros, which count for nothing. There are 16 bytes
// at p.
[[QX_FOLD128]] inline __m128i Begin(std::uint32_t reg, Bytes p, std::size_t odd)
{
    alignas(16) static constexpr signed char kShifts[48] = {
        -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1,  //
        0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 11, 12, 13, 14, 15,  //
        -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    const __m128i begin = _mm_cvtsi32_si128(static_cast<int>(reg));
    if (odd == 0)
        return begin;
    const __m128i front = _mm_shuffle_epi8(_mm_xor_si128(begin, Load(p)), Load(kShifts + odd));
    return _mm_xor_si128(Multiply(front, kCarry128),
                         _mm_shuffle_epi8(begin, Load(kShifts + 16 + odd)));
}

// The register at `end`: for `sum`, which is carried to the end, `last` before p, and up to seven
// blocks from p on. None of them waits for another one.
[[QX_FOLD128]] inline std::uint32_t Finish(__m128i sum, __m128i last, Bytes p, Bytes end)
{
    const Carry* carry = LastCarries(static_cast<std::size_t>(end - p) / 16 + 1);
    for (; p != end; p += 16, ++carry) {
        sum = _mm_xor_si128(sum, Multiply(last, *carry));
        last = Load(p);
    }
    return Remainder(sum, last);
}

// A block can do without a multiplication: it counts as much at its place as when it is added at
// all of these distances, in blocks, behind it. Additions are done beside the multiplications, by
// other units of the processor, and so the first blocks of each piece of the bytes are spread over
// the rest of it. The distances are the fewest that there are within some hundred blocks.
constexpr std::array kSpread = {21, 26, 41, 51, 52, 70, 75};
constexpr int kSpreadBlocks = 20, kPieceBlocks = 96;
constexpr int kPieceRows = (kPieceBlocks - kSpreadBlocks) / 4;
constexpr std::size_t kPieceSize = 16 * kPieceBlocks, kPiecesFrom = 64 + kPieceSize;

consteval bool IsSpreadRight()
{
    std::uint64_t sum = 0;
    for (const int distance : kSpread)
        sum ^= PowerOfX(128 * (kSpread.back() - distance));
    return sum == PowerOfX(128 * kSpread.back());
}
static_assert(IsSpreadRight());
static_assert(kSpread.front() >= kSpreadBlocks && kSpread.back() <= kPieceBlocks - kSpreadBlocks);

// A block of a piece if it is one of the first ones, which are spread.
template <int block>
[[QX_FOLD128, gnu::always_inline]] inline __m128i LoadIfSpread(Bytes piece)
{
    if constexpr (block >= 0 && block < kSpreadBlocks)
        return Load(piece + 16 * block);
    else
        return _mm_setzero_si128();
}

// Four lanes side by side, because a multiplication takes its time.
struct Lanes {
    __m128i a, b, c, d;
};
constexpr Carry kNextRow = CarryOver(512);
constexpr Carry kOverSpread = CarryOver(512 + 128 * kSpreadBlocks);

// A lane at a block of a piece, to which others are spread.
template <int block, std::size_t... i>
[[QX_FOLD128, gnu::always_inline]] inline __m128i FoldSpread(__m128i lane, const Carry& carry,
                                                             Bytes piece, std::index_sequence<i...>)
{
    const __m128i sum = (Load(piece + 16 * block) ^ ... ^ LoadIfSpread<block - kSpread[i]>(piece));
    return _mm_xor_si128(Multiply(lane, carry), sum);
}

template <int block>
[[QX_FOLD128, gnu::always_inline]] inline void FoldRow(Lanes& lanes, Bytes piece)
{
    constexpr const Carry& carry = block == kSpreadBlocks ? kOverSpread : kNextRow;
    constexpr auto kEach = std::make_index_sequence<kSpread.size()>();
    lanes.a = FoldSpread<block>(lanes.a, carry, piece, kEach);
    lanes.b = FoldSpread<block + 1>(lanes.b, carry, piece, kEach);
    lanes.c = FoldSpread<block + 2>(lanes.c, carry, piece, kEach);
    lanes.d = FoldSpread<block + 3>(lanes.d, carry, piece, kEach);
}

// The register at `end`, for lanes that hold what stands before p.
[[QX_FOLD128, gnu::always_inline]] inline std::uint32_t FoldLanes(Lanes lanes, Bytes p, Bytes end)
{
    auto [a, b, c, d] = lanes;
    for (; end - p >= 64; p += 64) {
        a = _mm_xor_si128(Multiply(a, kNextRow), Load(p));
        b = _mm_xor_si128(Multiply(b, kNextRow), Load(p + 16));
        c = _mm_xor_si128(Multiply(c, kNextRow), Load(p + 32));
        d = _mm_xor_si128(Multiply(d, kNextRow), Load(p + 48));
    }
    const Carry* carry = LastCarries(static_cast<std::size_t>(end - p) / 16 + 4);
    const __m128i sum = _mm_xor_si128(_mm_xor_si128(Multiply(a, carry[0]), Multiply(b, carry[1])),
                                      Multiply(c, carry[2]));
    return Finish(sum, d, p, end);
}

[[QX_FOLD128, gnu::always_inline]] inline Lanes BeginLanes(__m128i begin, Bytes p)
{
    return {_mm_xor_si128(begin, Load(p)), Load(p + 16), Load(p + 32), Load(p + 48)};
}

// For kPiecesFrom bytes and more.
template <int... row>
[[QX_FOLD128, gnu::noinline]] std::uint32_t FoldPieces(std::uint32_t reg, Bytes p, std::size_t size,
                                                       std::integer_sequence<int, row...>)
{
    const Bytes end = p + size;
    const __m128i begin = Begin(reg, p, size % 16);
    p += size % 16;
    Lanes lanes = BeginLanes(begin, p);
    for (p += 64; static_cast<std::size_t>(end - p) >= kPieceSize; p += kPieceSize)
        (FoldRow<kSpreadBlocks + 4 * row>(lanes, p), ...);
    return FoldLanes(lanes, p, end);
}

[[QX_FOLD128, gnu::always_inline]] inline std::uint32_t FoldNarrow(std::uint32_t reg, Bytes p,
                                                                   std::size_t size)
{
    if (size < 16)
        return CrcByTables(reg, p, size);
    const Bytes end = p + size;
    const __m128i begin = Begin(reg, p, size % 16);
    p += size % 16;
    if (size < 64)
        return Finish(_mm_setzero_si128(), _mm_xor_si128(begin, Load(p)), p + 16, end);
    return FoldLanes(BeginLanes(begin, p), p + 64, end);
}

// Wide registers hold four blocks each. As many lanes as there are registers for.
constexpr std::size_t kWideLanes = sizeof(void*) == 8 ? 8 : 4;
constexpr std::size_t kWideFrom = 64 * kWideLanes;
constexpr std::size_t kAlignFrom = 16384;  // bytes, from which it pays to align the loads

// kWideCarries[n] carries over n wide registers; n is not 0.
consteval auto MakeWideCarries()
{
    std::array<Carry, kWideLanes + 1> carries{};
    for (std::size_t n = 1; n < carries.size(); ++n)
        carries[n] = CarryOver(static_cast<int>(512 * n));
    return carries;
}
constexpr auto kWideCarries = MakeWideCarries();

[[QX_FOLD512, gnu::always_inline]] inline __m512i LoadWide(const void* p)
{
    return _mm512_loadu_si512(p);
}

[[QX_FOLD512, gnu::always_inline]] inline __m512i ToAllLanes(const Carry& carry)
{
    return _mm512_maskz_broadcast_i32x4(0xFFFF, Load(&carry));
}

// The products of four blocks with a constant each, plus four blocks.
[[QX_FOLD512, gnu::always_inline]] inline __m512i Fold(__m512i blocks, __m512i carry, __m512i next)
{
    const __m512i first = _mm512_clmulepi64_epi128(blocks, carry, 0x00);
    const __m512i second = _mm512_clmulepi64_epi128(blocks, carry, 0x11);
    return _mm512_ternarylogic_epi64(first, second, next, 0x96);  // exclusive or of the three
}

[[QX_FOLD512, gnu::always_inline]] inline __m128i SumOfBlocks(__m512i blocks)
{
    const __m256i half = _mm256_xor_si256(_mm512_maskz_extracti64x4_epi64(0xF, blocks, 0),
                                          _mm512_maskz_extracti64x4_epi64(0xF, blocks, 1));
    return _mm_xor_si128(_mm256_castsi256_si128(half), _mm256_extracti128_si256(half, 1));
}

// The register at `end`: for four blocks before p and up to three from p on.
[[QX_FOLD512, gnu::always_inline]] inline std::uint32_t Finish(__m512i blocks, Bytes p, Bytes end)
{
    const Carry* carry = LastCarries(static_cast<std::size_t>(end - p) / 16 + 4);
    __m128i sum = SumOfBlocks(Fold(blocks, LoadWide(carry), _mm512_setzero_si512()));
    for (carry += 4; p != end; p += 16, ++carry)
        sum = _mm_xor_si128(sum, Multiply(Load(p), *carry));
    return Remainder(_mm_srli_si128(sum, 4));
}

// For kWideFrom bytes and more.
[[QX_FOLD512]] std::uint32_t FoldWide(std::uint32_t reg, Bytes p, std::size_t size)
{
    const Bytes end = p + size;
    const __m128i begin = Begin(reg, p, size % 16);
    p += size % 16;
    __m512i lanes[kWideLanes];
    lanes[0] = _mm512_xor_si512(LoadWide(p), _mm512_zextsi128_si512(begin));
#pragma GCC unroll 8
    for (std::size_t i = 1; i < kWideLanes; ++i)
        lanes[i] = LoadWide(p + 64 * i);

    const __m512i next = ToAllLanes(kWideCarries[kWideLanes]);
    for (p += kWideFrom; static_cast<std::size_t>(end - p) >= kWideFrom; p += kWideFrom) {
#pragma GCC unroll 8
        for (std::size_t i = 0; i < kWideLanes; ++i)
            lanes[i] = Fold(lanes[i], next, LoadWide(p + 64 * i));
    }
    __m512i last = lanes[kWideLanes - 1];
#pragma GCC unroll 8
    for (std::size_t i = 1; i < kWideLanes; ++i)
        last = Fold(lanes[kWideLanes - 1 - i], ToAllLanes(kWideCarries[i]), last);
    for (; end - p >= 64; p += 64)
        last = Fold(last, ToAllLanes(kWideCarries[1]), LoadWide(p));
    return Finish(last, p, end);
}

}  // namespace

bool HasFolding128()
{
    __builtin_cpu_init();
    return __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
}

// Without optimisation, wide values would live on the stack, which 64-bit Windows does not align
// for them.
#if defined(__OPTIMIZE__)
static constexpr bool kIsOptimised = true;
#else
static constexpr bool kIsOptimised = false;
#endif

bool HasFolding512()
{
    return kIsOptimised && HasFolding128() && __builtin_cpu_supports("avx512f") &&
           __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512bw") &&
           __builtin_cpu_supports("vpclmulqdq");
}

[[QX_FOLD128]] std::uint32_t CrcByFolding128(std::uint32_t reg, const void* bytes, std::size_t size)
{
    const auto p = static_cast<Bytes>(bytes);
    if (size < kPiecesFrom)
        return FoldNarrow(reg, p, size);
    return FoldPieces(reg, p, size, std::make_integer_sequence<int, kPieceRows>());
}

[[QX_FOLD512]] std::uint32_t CrcByFolding512(std::uint32_t reg, const void* bytes, std::size_t size)
{
    auto p = static_cast<Bytes>(bytes);
    if (size < kWideFrom)
        return FoldNarrow(reg, p, size);
    if (size < kAlignFrom)
        return FoldWide(reg, p, size);
    const std::size_t before = -reinterpret_cast<std::uintptr_t>(p) % 64;
    const std::size_t after = (size - before) % 64;
    reg = CrcByFolding128(reg, p, before);
    reg = FoldWide(reg, p + before, size - before - after);
    return CrcByFolding128(reg, p + size - after, after);
}

}  // namespace qx

#else

namespace qx {

bool HasFolding128()
{
    return false;
}

bool HasFolding512()
{
    return false;
}

std::uint32_t CrcByFolding128(std::uint32_t reg, const void* bytes, std::size_t size)
{
    return CrcByTables(reg, bytes, size);
}

std::uint32_t CrcByFolding512(std::uint32_t reg, const void* bytes, std::size_t size)
{
    return CrcByTables(reg, bytes, size);
}

}  // namespace qx

#endif
