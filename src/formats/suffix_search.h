// The compressor's search for texts that chains are too slow for: large ones, and those in which
// many earlier places begin like the present one.
#pragma once

#include "formats/match.h"

#include <memory>
#include <span>
#include <string_view>
#include <vector>

namespace qx {

// For any block of the order of suffixes, which of them stands first in the text.
class EarliestTree {
  public:
    explicit EarliestTree(std::span<const std::int32_t> order);

    // The rank nearest to `rank` and below (above) it of a suffix that begins before `place`;
    // -1 when there is none.
    std::int32_t Below(std::int32_t rank, std::int32_t place) const;
    std::int32_t Above(std::int32_t rank, std::int32_t place) const;

  private:
    std::vector<std::span<const std::int32_t>> m_levels;  // the order, then the least of each block
    std::vector<std::vector<std::int32_t>> m_least;
};

// All suffixes of a text in order. Takes 9.3 bytes of memory for each byte of the text, which must
// be shorter than 2 GiB and outlive the search.
class SuffixSearch {
  public:
    // Nothing when there is no memory.
    static std::unique_ptr<SuffixSearch> Make(std::string_view text);

    // A match of four bytes is only told where it saves space.
    Match Longest(std::uint32_t place) const;

  private:
    static constexpr std::size_t kManyCommon = 255;  // or more

    SuffixSearch(std::string_view text, std::vector<std::int32_t> order);
    void CompareNeighbours();
    template <int Direction>
    std::uint32_t CommonNearby(std::uint32_t place, std::int32_t& rank) const;
    template <int Direction>
    std::uint32_t LongestBeside(std::uint32_t place, std::uint32_t length) const;
    std::uint32_t LongestInRun(std::uint32_t place, std::uint32_t period) const;
    template <int Direction>
    std::int32_t LastSharing(std::uint32_t place, std::uint32_t length) const;
    Match FourNearby(std::uint32_t place) const;
    std::uint32_t Latest(std::int32_t first, std::int32_t last, std::uint32_t limit) const;

    std::string_view m_text;
    std::vector<std::int32_t> m_order, m_rank;
    std::vector<std::uint8_t>
        m_common;  // of a suffix and the one before it in the order; 0 at the ends
    EarliestTree m_earliest;
};

}  // namespace qx
