#include "formats/crc32.h"

#include "formats/crc32_ways.h"

#include <atomic>

namespace qx {

std::array<CrcWay, 3> CrcWays()
{
    return {{{"tables", CrcByTables, [] { return true; }},
             {"128-bit folding", CrcByFolding128, HasFolding128},
             {"512-bit folding", CrcByFolding512, HasFolding512}}};
}

static std::uint32_t Choose(std::uint32_t reg, const void* bytes, std::size_t size);

// Threads that are first at the same time choose the same.
static std::atomic<CrcFunction> fastest = Choose;

static std::uint32_t Choose(std::uint32_t reg, const void* bytes, std::size_t size)
{
    for (const CrcWay& way : CrcWays()) {
        if (way.isAvailable())
            fastest.store(way.update, std::memory_order_relaxed);
    }
    return CrcUpdate(reg, bytes, size);
}

std::uint32_t CrcUpdate(std::uint32_t reg, const void* bytes, std::size_t size)
{
    return fastest.load(std::memory_order_relaxed)(reg, bytes, size);
}

}  // namespace qx
