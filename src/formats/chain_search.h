// The compressor's search for texts of modest size: chains of the places that begin alike.
#pragma once

#include "formats/common_prefix.h"
#include "formats/match.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace qx {

// Links each place to the nearest earlier ones whose first eight and first four bytes have the same
// hash. Place: an unsigned type whose largest value is no place of the text.
template <class Place>
class ChainSearch {
  public:
    // `effort` is how many steps are taken in all before the search gives up.
    ChainSearch(std::string_view text, std::uint64_t effort)
        : m_text(text.data()),
          m_size(static_cast<std::uint32_t>(text.size())),
          m_effort(effort),
          m_links(std::make_unique_for_overwrite<Links[]>(text.size()))
    {
        Link();
    }

    // False when too much effort went into it all; `match` then means nothing.
    bool Longest(std::uint32_t place, Match& match)
    {
        match = {};
        if (m_links[place].four == kNone)
            return true;
        if (m_size - place < 8)
            return LongestNearEnd(place, match);
        const std::uint64_t bytes = Load8(m_text + place);
        return LongestFromEight(place, bytes, match) &&
               (match.length > 0 || LongestBelowEight(place, bytes, match));
    }

  private:
    static constexpr Place kNone = static_cast<Place>(~Place{0});
    struct Links {
        Place four, eight;
    };

    void Link()
    {
        int bits = 8;
        while (bits < 16 && (std::uint32_t{1} << bits) < m_size)
            ++bits;
        std::vector<Links> heads(std::size_t{1} << bits, Links{kNone, kNone});
        std::uint32_t i = 0;
        for (; m_size - i >= 8; ++i) {
            const std::uint64_t bytes = Load8(m_text + i);
            Place& four = heads[HashOfFour(Load4(m_text + i), bits)].four;
            Place& eight = heads[HashOfEight(bytes, bits)].eight;
            m_links[i] = {four, eight};
            four = eight = static_cast<Place>(i);
        }
        for (; i < m_size; ++i) {
            m_links[i] = {kNone, kNone};
            if (m_size - i >= 4)
                m_links[i].four = heads[HashOfFour(Load4(m_text + i), bits)].four;
        }
    }
    static std::uint32_t HashOfFour(std::uint32_t bytes, int bits)
    {
        return (bytes * 2654435761u) >> (32 - bits);
    }
    static std::uint32_t HashOfEight(std::uint64_t bytes, int bits)
    {
        return static_cast<std::uint32_t>((bytes * 0x9E3779B185EBCA87u) >> (64 - bits));
    }

    bool Spend(std::uint32_t steps)
    {
        if (steps > m_effort)
            return false;
        m_effort -= steps;
        return true;
    }

    bool LongestFromEight(std::uint32_t place, std::uint64_t bytes, Match& match)
    {
        const char* const here = m_text + place;
        const std::uint32_t rest = m_size - place;
        std::uint32_t wanted = 8, steps = 0;
        for (Place c = m_links[place].eight; c != kNone; c = m_links[c].eight) {
            ++steps;
            const std::uint32_t limit = std::min<std::uint32_t>(rest, place - c);
            if (limit < wanted || Load8(m_text + c) != bytes ||
                Load8(m_text + c + wanted - 8) != Load8(here + wanted - 8))
                continue;
            const std::uint32_t length = CommonPrefix(m_text + c, here, limit, 8);
            if (length < wanted)
                continue;
            match = {length, place - c};
            wanted = length + 1;
            if (length == rest)
                break;
            if (!Spend(length / 8))
                return false;
        }
        return Spend(steps);
    }

    // Where no eight bytes or more are found.
    bool LongestBelowEight(std::uint32_t place, std::uint64_t bytes, Match& match)
    {
        std::uint32_t steps = 0, wanted = kShortestMatch;
        for (Place c = m_links[place].four; c != kNone; c = m_links[c].four) {
            ++steps;
            const std::uint64_t difference = Load8(m_text + c) ^ bytes;
            const std::uint32_t distance = place - c;
            const std::uint32_t length =
                difference == 0 ? distance : std::min(EqualBytes(difference), distance);
            if (length < wanted)
                continue;
            match = {length, distance};
            wanted = length + 1;
            if (length == 7)
                break;
        }
        return Spend(steps);
    }

    bool LongestNearEnd(std::uint32_t place, Match& match)
    {
        std::uint32_t steps = 0, wanted = kShortestMatch;
        for (Place c = m_links[place].four; c != kNone; c = m_links[c].four) {
            ++steps;
            const std::uint32_t length = CommonPrefix(
                m_text + c, m_text + place, std::min<std::uint32_t>(m_size - place, place - c));
            if (length >= wanted) {
                match = {length, place - c};
                wanted = length + 1;
            }
        }
        return Spend(steps);
    }

    const char* m_text;
    std::uint32_t m_size;
    std::uint64_t m_effort;
    std::unique_ptr<Links[]> m_links;
};

}  // namespace qx
