#include "formats/crc_file.h"

#include "formats/crc32.h"
#include "platform/files.h"

#include <algorithm>
#include <memory>

namespace qx {

// Large enough to ask the system seldom; what it copied is still in the processor's second cache.
static constexpr std::uint64_t kLargestBlock = 262144;
static constexpr std::uint64_t kSmallestBlock = 4096;

// A block with room for one byte more than the file, if that is not too much: then one read finds
// its end. Files may grow, and devices have no size.
static std::size_t BlockSizeFor(const platform::File& file)
{
    const std::uint64_t size = std::min(file.Size().value_or(0), kLargestBlock);
    return static_cast<std::size_t>(std::clamp(size + 1, kSmallestBlock, kLargestBlock));
}

FileCrc CrcOfFile(const char* path)
{
    FileCrc result{};
    platform::File file(path, platform::FileMode::Read, result.systemError);
    if (!file)
        return result;
    const std::size_t blockSize = BlockSizeFor(file);
    const auto block = std::make_unique_for_overwrite<unsigned char[]>(blockSize);
    std::uint32_t reg = kCrcStart;
    std::size_t count = blockSize;
    while (count == blockSize) {
        count = file.Read(block.get(), blockSize).value_or(0);
        reg = CrcUpdate(reg, block.get(), count);
    }
    result.crc = ~reg;
    return result;
}

}  // namespace qx
