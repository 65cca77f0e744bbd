#include "formats/suffix_search.h"

#include "formats/common_prefix.h"
#include "formats/prefetch.h"
#include "formats/suffix_array.h"

#include <algorithm>
#include <new>

namespace qx {

namespace {

constexpr int kBlockBits = 4;
constexpr std::int32_t kBlock = 1 << kBlockBits;

// The last of `values` before `end` that is below `bound`; -1 when there is none from `begin` on.
std::int32_t LastBelow(std::span<const std::int32_t> values, std::int32_t begin, std::int32_t end,
                       std::int32_t bound)
{
    while (end > begin) {
        if (values[static_cast<std::size_t>(--end)] < bound)
            return end;
    }
    return -1;
}
std::int32_t FirstBelow(std::span<const std::int32_t> values, std::int32_t begin, std::int32_t end,
                        std::int32_t bound)
{
    end = std::min(end, static_cast<std::int32_t>(values.size()));
    for (; begin < end; ++begin) {
        if (values[static_cast<std::size_t>(begin)] < bound)
            return begin;
    }
    return -1;
}

}  // namespace

EarliestTree::EarliestTree(std::span<const std::int32_t> order)
{
    m_levels.push_back(order);
    while (m_levels.back().size() > kBlock) {
        const std::span<const std::int32_t> below = m_levels.back();
        std::vector<std::int32_t> least;
        least.reserve(below.size() / kBlock + 1);
        for (std::size_t at = 0; at < below.size(); at += kBlock) {
            const auto block = below.subspan(at, std::min<std::size_t>(kBlock, below.size() - at));
            least.push_back(*std::min_element(block.begin(), block.end()));
        }
        m_least.push_back(std::move(least));
        m_levels.emplace_back(m_least.back());
    }
}

std::int32_t EarliestTree::Below(std::int32_t rank, std::int32_t place) const
{
    for (std::size_t level = 0; level < m_levels.size(); ++level, rank >>= kBlockBits) {
        std::int32_t found = LastBelow(m_levels[level], rank & -kBlock, rank, place);
        if (found < 0)
            continue;
        while (level > 0) {
            const auto& below = m_levels[--level];
            const std::int32_t begin = found << kBlockBits;
            const auto end = std::min(begin + kBlock, static_cast<std::int32_t>(below.size()));
            found = LastBelow(below, begin, end, place);
        }
        return found;
    }
    return -1;
}

std::int32_t EarliestTree::Above(std::int32_t rank, std::int32_t place) const
{
    for (std::size_t level = 0; level < m_levels.size(); ++level, rank >>= kBlockBits) {
        std::int32_t found =
            FirstBelow(m_levels[level], rank + 1, (rank & -kBlock) + kBlock, place);
        if (found < 0)
            continue;
        while (level > 0) {
            const std::int32_t begin = found << kBlockBits;
            found = FirstBelow(m_levels[--level], begin, begin + kBlock, place);
        }
        return found;
    }
    return -1;
}

std::unique_ptr<SuffixSearch> SuffixSearch::Make(std::string_view text)
{
    try {
        std::vector<std::int32_t> order(text.size());
        if (!SortSuffixes(text, order))
            return nullptr;
        return std::unique_ptr<SuffixSearch>(new SuffixSearch(text, std::move(order)));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

SuffixSearch::SuffixSearch(std::string_view text, std::vector<std::int32_t> order)
    : m_text(text),
      m_order(std::move(order)),
      m_rank(text.size()),
      m_common(text.size() + 1),
      m_earliest(m_order)
{
    for (std::size_t rank = 0; rank < m_order.size(); ++rank)
        m_rank[static_cast<std::size_t>(m_order[rank])] = static_cast<std::int32_t>(rank);
    CompareNeighbours();
}

void SuffixSearch::CompareNeighbours()
{
    constexpr std::size_t kAhead = 16;
    for (std::size_t rank = 1; rank < m_order.size(); ++rank) {
        if (rank + kAhead < m_order.size())
            Prefetch(&m_text[static_cast<std::size_t>(m_order[rank + kAhead])]);
        const auto one = static_cast<std::size_t>(m_order[rank - 1]);
        const auto other = static_cast<std::size_t>(m_order[rank]);
        const std::size_t limit = std::min(m_text.size() - std::max(one, other), kManyCommon);
        m_common[rank] = static_cast<std::uint8_t>(
            CommonPrefix(&m_text[one], &m_text[other], static_cast<std::uint32_t>(limit)));
    }
}

// The nearest suffix in one direction that begins before the place, if one is among the next ranks
// and has some bytes in common: how many, and in `rank` where. 0 when there is none with that many.
template <int Direction>
std::uint32_t SuffixSearch::CommonNearby(std::uint32_t place, std::int32_t& rank) const
{
    constexpr int kNearby = 16;
    std::uint32_t common = kManyCommon;
    for (int steps = 0; steps < kNearby; ++steps) {
        const std::int32_t next = rank + Direction;
        common = std::min<std::uint32_t>(
            common, m_common[static_cast<std::size_t>(Direction < 0 ? rank : next)]);
        if (common < kShortestMatch)
            return 0;
        rank = next;
        if (static_cast<std::uint32_t>(m_order[static_cast<std::size_t>(rank)]) < place)
            return common;
    }
    return kManyCommon;  // perhaps
}

// Improves `length` by what stands on one side in the order; the further off, the less is in
// common. A match ends before the place, so that one at a small distance may have to give way to
// one further off.
template <int Direction>
std::uint32_t SuffixSearch::LongestBeside(std::uint32_t place, std::uint32_t length) const
{
    const auto rest = static_cast<std::uint32_t>(m_text.size()) - place;
    std::int32_t rank = m_rank[place];
    std::int32_t nearby = rank;
    const std::uint32_t most = CommonNearby<Direction>(place, nearby);
    if (most < kManyCommon) {
        if (most <= length)
            return length;
        if (place - static_cast<std::uint32_t>(m_order[static_cast<std::size_t>(nearby)]) >= most)
            return most;
    }
    while (length < place) {
        const auto before = static_cast<std::int32_t>(place - length);
        rank = Direction < 0 ? m_earliest.Below(rank, before) : m_earliest.Above(rank, before);
        if (rank < 0)
            break;
        const auto earlier = static_cast<std::uint32_t>(m_order[static_cast<std::size_t>(rank)]);
        const std::uint32_t distance = place - earlier;
        const std::uint32_t common =
            CommonPrefix(&m_text[earlier], &m_text[place], std::min(distance, rest));
        if (common < distance)
            return std::max(length, common);
        length = std::max(length, LongestInRun(place, distance));
    }
    return length;
}

// The bytes before the place repeat after it with a period: the longest match that is a multiple of
// the period back, within the stretch that has the period.
std::uint32_t SuffixSearch::LongestInRun(std::uint32_t place, std::uint32_t period) const
{
    const auto rest = static_cast<std::uint32_t>(m_text.size()) - place;
    const std::uint32_t earlier = place - period;
    const std::uint32_t ahead = CommonPrefix(&m_text[earlier], &m_text[place], rest, period);
    std::uint32_t back = 0;
    while (back < std::min(ahead, earlier) &&
           m_text[earlier - 1 - back] == m_text[place - 1 - back])
        ++back;
    return std::min(ahead, period * (1 + back / period));
}

// From the rank of a place on in one direction, the last one whose suffix has `length` bytes in
// common with the text there.
template <int Direction>
std::int32_t SuffixSearch::LastSharing(std::uint32_t place, std::uint32_t length) const
{
    constexpr int kNearby = 32;
    std::int64_t rank = m_rank[place];
    for (int steps = 0; length <= kManyCommon && steps < kNearby; ++steps) {
        if (m_common[static_cast<std::size_t>(Direction < 0 ? rank : rank + 1)] < length)
            return static_cast<std::int32_t>(rank);
        rank += Direction;
    }
    const auto shares = [&](std::int64_t other) {
        if (other < 0 || other >= static_cast<std::int64_t>(m_order.size()))
            return false;
        const auto start = static_cast<std::size_t>(m_order[static_cast<std::size_t>(other)]);
        return m_text.size() - start >= length &&
               CommonPrefix(&m_text[start], &m_text[place], length) == length;
    };
    std::int64_t step = Direction;
    for (; shares(rank + step); step *= 2)
        rank += step;
    while ((step /= 2) != 0) {
        if (shares(rank + step))
            rank += step;
    }
    return static_cast<std::int32_t>(rank);
}

// The last place not after `limit` with a rank from `first` to `last`. Looks through the ranks and,
// in turns, through the places: where one is long the other is short, but for contrived texts.
std::uint32_t SuffixSearch::Latest(std::int32_t first, std::int32_t last, std::uint32_t limit) const
{
    const std::int32_t* at = &m_order[static_cast<std::size_t>(first)];
    const std::int32_t* const end = at + (last - first) + 1;
    const auto width = static_cast<std::uint32_t>(last - first);
    std::uint32_t place = limit;
    std::int32_t best = -1;
    for (std::ptrdiff_t chunk = 64;; chunk *= 2) {
        for (const std::int32_t* const stop = at + std::min(chunk, end - at); at < stop; ++at)
            best = *at <= static_cast<std::int32_t>(limit) ? std::max(best, *at) : best;
        if (at == end)
            return static_cast<std::uint32_t>(best);
        for (std::ptrdiff_t left = chunk; left > 0; --left, --place) {
            if (static_cast<std::uint32_t>(m_rank[place] - first) <= width)
                return place;
        }
    }
}

// The nearest match of four bytes that saves space, if there is one.
Match SuffixSearch::FourNearby(std::uint32_t place) const
{
    const std::uint32_t bytes = Load4(&m_text[place]);
    for (std::uint32_t distance = 4; distance <= std::min(place, kFarthestFour); ++distance) {
        if (Load4(&m_text[place - distance]) == bytes)
            return {4, distance};
    }
    return {};
}

Match SuffixSearch::Longest(std::uint32_t place) const
{
    // Where nothing is found, the next places are asked about next.
    if (m_text.size() - place > 12) {
        const auto rank = static_cast<std::size_t>(m_rank[place + 12]);
        Prefetch(&m_common[rank]);
        Prefetch(&m_order[rank]);
    }
    const auto rank = static_cast<std::size_t>(m_rank[place]);
    const std::uint32_t most = std::max(m_common[rank], m_common[rank + 1]);
    if (most <= kShortestMatch)
        return most < kShortestMatch ? Match{} : FourNearby(place);
    const std::uint32_t length = LongestBeside<+1>(place, LongestBeside<-1>(place, 0));
    if (length <= kShortestMatch)
        return length < kShortestMatch ? Match{} : FourNearby(place);
    const std::uint32_t latest =
        Latest(LastSharing<-1>(place, length), LastSharing<+1>(place, length), place - length);
    return {length, place - latest};
}

}  // namespace qx
