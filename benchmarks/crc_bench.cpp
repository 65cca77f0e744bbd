// The CRC against libdeflate's CRC-32: another generator, the same work. Each way that this
// processor has is measured by itself.
#include "formats/crc32.h"
#include "formats/crc_file.h"
#include "platform/files.h"
#include "support/bench.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <libdeflate.h>
#include <random>
#include <string>
#include <vector>

namespace {

using qx::bench::Faster;
using qx::bench::Goal;

std::vector<char> RandomBytes(std::size_t size)
{
    std::mt19937 random(1);
    std::vector<char> bytes(size);
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

std::uint32_t ByteLoop(const char* bytes, std::size_t size)
{
    std::uint32_t reg = qx::kCrcStart;
    for (std::size_t i = 0; i < size; ++i)
        reg = qx::CrcByteStep(reg, static_cast<unsigned char>(bytes[i]));
    return reg;
}

std::string SizeText(std::size_t size)
{
    if (size < 1024)
        return std::to_string(size) + " B";
    return size < 1048576 ? std::to_string(size / 1024) + " KiB"
                          : std::to_string(size / 1048576) + " MiB";
}

// What is asked of a way beside libdeflate.
Goal GoalOf(std::size_t way, std::size_t size)
{
    if (way == 0)
        return size >= 4096 ? Faster(0.22) : Goal{};
    return Faster(way == 2 && size >= 4096 ? 3.0 : 1.0);
}

void CompareWays(qx::bench::Table& table, const std::vector<char>& bytes)
{
    const auto ways = qx::CrcWays();
    for (std::size_t i = 0; i < ways.size(); ++i) {
        if (!ways[i].isAvailable())
            continue;
        for (const std::size_t size : {64U, 100U, 256U, 1024U, 4096U, 65536U, 1048576U}) {
            std::vector<qx::bench::Peer> peers = {{"libdeflate",
                                                   [&bytes, size] {
                                                       qx::bench::DoNotOptimize(
                                                           libdeflate_crc32(0, bytes.data(), size));
                                                   },
                                                   GoalOf(i, size)}};
            if (i == 0 && size >= 4096)
                peers.push_back(
                    {"byte loop",
                     [&bytes, size] { qx::bench::DoNotOptimize(ByteLoop(bytes.data(), size)); },
                     Faster(7)});
            table.Compare(
                std::string(ways[i].name) + ", " + SizeText(size),
                [&bytes, size, update = ways[i].update] {
                    qx::bench::DoNotOptimize(update(qx::kCrcStart, bytes.data(), size));
                },
                peers);
        }
    }
}

std::uint32_t FileByLibdeflate(const char* path, std::vector<char>& block)
{
    qx::platform::File file(path, qx::platform::FileMode::Read);
    std::uint32_t crc = 0;
    while (const std::size_t count = file.Read(block.data(), block.size()).value_or(0))
        crc = libdeflate_crc32(crc, block.data(), count);
    return crc;
}

void CompareFile(qx::bench::Table& table, const std::vector<char>& bytes)
{
    const std::string path = std::filesystem::temp_directory_path() / "qx_crc_bench.bin";
    {
        std::ofstream file(path, std::ios::binary);
        for (int i = 0; i < 64; ++i)
            file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
    std::vector<char> block(262144);
    table.Compare(
        "a cached file of 64 MiB",
        [&] { qx::bench::DoNotOptimize(qx::CrcOfFile(path.c_str()).crc); },
        {{"libdeflate, 256 KiB reads",
          [&] { qx::bench::DoNotOptimize(FileByLibdeflate(path.c_str(), block)); }, Faster(1.3)}});
    std::filesystem::remove(path);
}

}  // namespace

int main(int argc, char** argv)
{
    qx::bench::Table table("CRC", argc, argv);
    const std::vector<char> bytes = RandomBytes(1048576);
    CompareWays(table, bytes);
    CompareFile(table, bytes);
    return table.Print();
}
