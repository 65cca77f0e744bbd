// All ways of computing the CRC register against the loop over single bytes.
#include "formats/crc32.h"

#include "support/guarded_buffer.h"

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

using qx::CrcWay;

namespace {

std::uint32_t ByteLoop(std::uint32_t reg, const unsigned char* bytes, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        reg = (reg >> 8) ^ qx::kCrcTable[(reg ^ bytes[i]) & 0xFF];
    return reg;
}

// Those of this processor.
std::vector<CrcWay> AvailableWays()
{
    std::vector<CrcWay> ways = {{"dispatched", qx::CrcUpdate, nullptr}};
    for (const CrcWay& way : qx::CrcWays()) {
        if (way.isAvailable())
            ways.push_back(way);
    }
    return ways;
}

std::vector<unsigned char> RandomBytes(std::mt19937& random, std::size_t size)
{
    std::vector<unsigned char> bytes(size);
    for (unsigned char& byte : bytes)
        byte = static_cast<unsigned char>(random());
    return bytes;
}

std::string Describe(const CrcWay& way, std::size_t size, std::size_t offset)
{
    return std::string(way.name) + ", " + std::to_string(size) + " bytes, " +
           std::to_string(offset) + " from a boundary";
}

}  // namespace

TEST(Crc32, TableIsThatOfTheGenerator)
{
    EXPECT_EQ(0u, qx::kCrcTable[0]);
    EXPECT_EQ(0x77002C96u, qx::kCrcTable[1]);
    EXPECT_EQ(0xEDB68320u, qx::kCrcTable[128]);
    EXPECT_EQ(0x2D001B8Du, qx::kCrcTable[255]);
}

TEST(Crc32, EveryWayHasTheKnownValues)
{
    static constexpr struct {
        std::string_view text;
        std::uint32_t crc;
    } kCases[] = {{"", 0}, {"a", 0xE8B6D643}, {"123456789", 0x46E302BB}};
    for (const CrcWay& way : AvailableWays()) {
        for (const auto& each : kCases) {
            EXPECT_EQ(each.crc, ~way.update(qx::kCrcStart, each.text.data(), each.text.size()))
                << way.name << ": " << each.text;
        }
    }
}

// Every length that the ways treat in a way of their own, at every offset from a cache line.
TEST(Crc32, WaysAgreeOnEveryShortLengthAndOffset)
{
    std::mt19937 random(1);
    const std::vector<unsigned char> bytes = RandomBytes(random, 4096);
    alignas(64) static unsigned char lines[4096 + 64];
    for (const CrcWay& way : AvailableWays()) {
        for (std::size_t offset = 0; offset < 64; offset += offset < 17 ? 1 : 7) {
            std::memcpy(lines + offset, bytes.data(), bytes.size());
            for (std::size_t size = 0; size <= 1300; size += 1 + size / 700) {
                const auto reg = static_cast<std::uint32_t>(random());
                ASSERT_EQ(ByteLoop(reg, bytes.data(), size), way.update(reg, lines + offset, size))
                    << Describe(way, size, offset);
            }
        }
    }
}

TEST(Crc32, WaysAgreeOnRandomLengthsAndOffsets)
{
    std::mt19937 random(2);
    const std::vector<unsigned char> bytes = RandomBytes(random, 300000);
    for (int i = 0; i < 2000; ++i) {
        const std::size_t longest = i % 10 == 0 ? 200000 : 20000;
        const std::size_t size = random() % longest, offset = random() % 1000;
        const auto reg = static_cast<std::uint32_t>(random());
        const std::uint32_t expected = ByteLoop(reg, bytes.data() + offset, size);
        for (const CrcWay& way : AvailableWays()) {
            ASSERT_EQ(expected, way.update(reg, bytes.data() + offset, size)) << Describe(
                way, size, (reinterpret_cast<std::uintptr_t>(bytes.data()) + offset) % 64);
        }
    }
}

TEST(Crc32, NoWayReadsBehindTheBytes)
{
    std::mt19937 random(4);
    for (std::size_t size = 0; size < 40000; size += 1 + size / 100) {
        const std::vector<unsigned char> bytes = RandomBytes(random, size);
        qx::test::GuardedBuffer guarded(size);
        std::copy(bytes.begin(), bytes.end(), guarded.data());
        for (const CrcWay& way : AvailableWays()) {
            ASSERT_EQ(ByteLoop(0, bytes.data(), size), way.update(0, guarded.data(), size))
                << way.name << ", " << size << " bytes";
        }
    }
}
