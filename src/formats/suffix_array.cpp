// Induced sorting (Nong, Zhang and Chan, 2009). A suffix is of type S when it is smaller than the
// next one, of type L when it is larger; the last is of type L. An S after an L is leftmost
// ("LMS"). Once the LMS suffixes are in order, one pass upwards through the order induces that of
// the L's, a pass downwards that of the S's. The LMS suffixes themselves are put in order by
// sorting the pieces between them in the same way, and then, where pieces are equal, the text of
// the pieces' names. Passes leave marks in the order: an element that has nothing to induce is
// complemented.
#include "formats/suffix_array.h"

#include "formats/prefetch.h"

#include <algorithm>
#include <memory>
#include <new>

namespace qx {

namespace {

using Index = std::int32_t;

// How many elements ahead the passes ask for the text, which they read in the order's order.
constexpr Index kAhead = 24;

template <class Letter>
class Sorter {
  public:
    Sorter(const Letter* text, Index* order, Index size, Index letters)
        : m_text(text), m_order(order), m_size(size), m_letters(letters)
    {
    }

    bool Sort()
    {
        const auto letters = static_cast<std::size_t>(m_letters);
        m_counts.reset(new (std::nothrow) Index[letters]);
        m_bucket.reset(new (std::nothrow) Index[letters]);
        if (!m_counts || !m_bucket)
            return false;
        std::fill_n(m_counts.get(), letters, 0);
        for (Index i = 0; i < m_size; ++i)
            ++m_counts[Key(i)];
        const Index pieces = SortPieces();
        if (pieces > 1 && !SortLeftmost(pieces))
            return false;
        PlaceLeftmost(pieces);
        Induce<true>();
        return true;
    }

  private:
    std::size_t Key(Index i) const { return static_cast<std::size_t>(m_text[i]); }

    void BucketStarts()
    {
        Index sum = 0;
        for (Index letter = 0; letter < m_letters; ++letter) {
            m_bucket[letter] = sum;
            sum += m_counts[letter];
        }
    }
    void BucketEnds()
    {
        Index sum = 0;
        for (Index letter = 0; letter < m_letters; ++letter)
            m_bucket[letter] = sum += m_counts[letter];
    }

    // Calls use(i) for the LMS places from the last to the first.
    template <class Use>
    void ForLeftmost(Use use) const
    {
        bool nextIsS = false;
        for (Index i = m_size - 2; i >= 0; --i) {
            const bool isS = m_text[i] < m_text[i + 1] || (m_text[i] == m_text[i + 1] && nextIsS);
            if (nextIsS && !isS)
                use(i + 1);
            nextIsS = isS;
        }
    }

    void AddL(Index i)
    {
        const Letter letter = m_text[i];
        const bool beforeIsS = i > 0 && m_text[i - 1] < letter;
        m_order[m_bucket[static_cast<std::size_t>(letter)]++] = beforeIsS ? ~i : i;
    }
    void AddS(Index i, bool markFirst)
    {
        const Letter letter = m_text[i];
        const bool beforeIsL = i > 0 ? m_text[i - 1] > letter : markFirst;
        m_order[--m_bucket[static_cast<std::size_t>(letter)]] = beforeIsL ? ~i : i;
    }
    void Ahead(Index at) const
    {
        const Index i = m_order[at];
        Prefetch(m_text + (i < 0 ? ~i : i));
    }

    // Leaves the LMS places in the order of their pieces at the start of the order; returns how
    // many.
    Index SortPieces()
    {
        std::fill_n(m_order, m_size, 0);
        BucketEnds();
        ForLeftmost([this](Index i) { m_order[--m_bucket[Key(i)]] = i; });
        Induce<false>();
        Index pieces = 0;
        for (Index at = 0; at < m_size; ++at) {
            if (m_order[at] < 0)
                m_order[pieces++] = ~m_order[at];
        }
        return pieces;
    }

    // From pieces in order to suffixes in order. No two LMS places are neighbours, so that what
    // belongs to one is kept at half its place, behind the pieces.
    bool SortLeftmost(Index pieces)
    {
        Index* const half = m_order + pieces;
        const Index names = NamePieces(pieces);
        Index* const reduced = m_order + m_size - pieces;
        if (names < pieces) {
            Index* to = m_order + m_size;
            for (Index at = (m_size >> 1); at >= 0; --at) {
                if (pieces + at < m_size && half[at] != 0)
                    *--to = half[at] - 1;
            }
            if (!Sorter<Index>(reduced, m_order, pieces, names).Sort())
                return false;
            Index* place = m_order + m_size;
            ForLeftmost([&place](Index i) { *--place = i; });
            for (Index at = 0; at < pieces; ++at)
                m_order[at] = reduced[m_order[at]];
        }
        return true;
    }

    // Leaves the name of each piece, counted from 1, at half its place; returns how many there are.
    Index NamePieces(Index pieces)
    {
        Index* const half = m_order + pieces;
        std::fill_n(half, m_size - pieces, 0);
        Index next = m_size - 1;
        ForLeftmost([&](Index i) {
            half[i >> 1] = next - i + 1;  // the length, the first letter of the next piece included
            next = i;
        });
        Index names = 0, before = 0, beforeLength = 0;
        for (Index at = 0; at < pieces; ++at) {
            const Index place = m_order[at], length = half[place >> 1];
            if (length != beforeLength ||
                !std::equal(m_text + place, m_text + place + length, m_text + before)) {
                ++names;
                before = place;
                beforeLength = length;
            }
            half[place >> 1] = names;
        }
        return names;
    }

    // Moves the sorted LMS places from the start of the order to the ends of their buckets.
    void PlaceLeftmost(Index pieces)
    {
        std::fill(m_order + pieces, m_order + m_size, 0);
        BucketEnds();
        for (Index at = pieces - 1; at >= 0; --at) {
            const Index i = m_order[at];
            m_order[at] = 0;
            m_order[--m_bucket[Key(i)]] = i;
        }
    }

    // Induces the order of the L's and then of the S's. Leaves all places in order, or else the LMS
    // ones only, complemented, and 0 elsewhere.
    template <bool leavesAll>
    void Induce()
    {
        BucketStarts();
        AddL(m_size - 1);
        for (Index at = 0; at < m_size; ++at) {
            if (at + kAhead < m_size)
                Ahead(at + kAhead);
            const Index i = m_order[at];
            m_order[at] = leavesAll || i < 0 ? ~i : 0;
            if (i > 0)
                AddL(i - 1);
        }
        BucketEnds();
        for (Index at = m_size - 1; at >= 0; --at) {
            if (at >= kAhead)
                Ahead(at - kAhead);
            const Index i = m_order[at];
            if (leavesAll ? i <= 0 : i > 0)
                m_order[at] = leavesAll ? ~i : 0;
            if (i > 0)
                AddS(i - 1, leavesAll);
        }
    }

    const Letter* m_text;
    Index* m_order;
    Index m_size, m_letters;
    std::unique_ptr<Index[]> m_counts, m_bucket;
};

}  // namespace

bool SortSuffixes(std::string_view text, std::span<std::int32_t> order)
{
    const auto size = static_cast<Index>(text.size());
    if (size == 0)
        return true;
    const auto* const bytes = reinterpret_cast<const unsigned char*>(text.data());
    return Sorter<unsigned char>(bytes, order.data(), size, 256).Sort();
}

}  // namespace qx
