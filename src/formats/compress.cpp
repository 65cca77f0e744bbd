#include "formats/chain_search.h"
#include "formats/match.h"
#include "formats/suffix_search.h"

#include <qxutility/formats/compression.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace qx {

namespace {

// Texts up to here are searched along chains first, with so many steps for each byte.
constexpr std::size_t kLongestChained = std::size_t{256} << 10;
constexpr std::uint64_t kEffort = 16;
// Places are counted in 31 or 32 bits: longer texts are searched in pieces of this size.
constexpr std::size_t kLongestSorted = std::numeric_limits<std::int32_t>::max();
constexpr std::size_t kPiece = std::numeric_limits<std::uint32_t>::max();

// The rarest byte, the lowest of equally rare ones, and whether it occurs at all.
struct Escape {
    char byte = '\0';
    bool occurs = false;
};
Escape FindEscape(std::string_view text)
{
    if (!std::memchr(text.data(), '\0', text.size()))
        return {};
    std::array<std::size_t, 256> counts{};
    for (const char c : text)
        ++counts[static_cast<unsigned char>(c)];
    const auto least = std::min_element(counts.begin(), counts.end());
    return {static_cast<char>(least - counts.begin()), *least > 0};
}

// Whether the token is shorter than the bytes it stands for.
bool Saves(const Match& match)
{
    switch (match.length) {
        case 4:
            return match.distance <= kFarthestFour;
        case 5:
            return match.distance <= 16383;
        case 6:
            return match.distance <= 2097151;
        case 7:
            return match.distance <= 268435455;
        default:
            return match.length >= 8;
    }
}

// Writes the tokens. No token is longer than what it stands for, but for the escape byte itself,
// which is at most each 256th.
class Tokens {
  public:
    Tokens(std::string_view text, Escape escape)
        : m_escape(escape),
          m_begin(std::make_unique_for_overwrite<char[]>(text.size() + text.size() / 256 + 1)),
          m_end(m_begin.get())
    {
        *m_end++ = escape.byte;
    }

    void AddLiterals(const char* bytes, std::size_t count)
    {
        if (!m_escape.occurs) {
            m_end = std::copy_n(bytes, count, m_end);
            return;
        }
        for (; count > 0; --count, ++bytes) {
            *m_end++ = *bytes;
            if (*bytes == m_escape.byte)
                *m_end++ = '\0';
        }
    }
    void AddMatch(const Match& match)
    {
        *m_end++ = m_escape.byte;
        AddNumber(match.length);
        AddNumber(match.distance);
    }
    std::string Text() const { return {m_begin.get(), m_end}; }

  private:
    void AddNumber(std::uint32_t number)
    {
        for (int shift = 28; shift > 0; shift -= 7) {
            if (number >> shift)
                *m_end++ = static_cast<char>(((number >> shift) & 0x7F) | 0x80);
        }
        *m_end++ = static_cast<char>(number & 0x7F);
    }

    Escape m_escape;
    std::unique_ptr<char[]> m_begin;
    char* m_end;
};

// Writes the tokens of a text from `place` on; returns where the search gave up, or the text's end.
template <class Search>
std::uint32_t Encode(std::string_view text, std::uint32_t place, Search&& search, Tokens& tokens)
{
    const auto size = static_cast<std::uint32_t>(text.size());
    std::uint32_t literals = place;  // from here on nothing is written
    while (size - place >= kShortestMatch) {
        Match match;
        if (!search(place, match))
            break;
        if (!Saves(match)) {
            ++place;
            continue;
        }
        tokens.AddLiterals(&text[literals], place - literals);
        tokens.AddMatch(match);
        literals = place += match.length;
    }
    if (size - place < kShortestMatch)
        place = size;
    tokens.AddLiterals(text.data() + literals, place - literals);
    return place;
}

template <class Place>
std::uint32_t EncodeByChains(std::string_view text, std::uint32_t place, std::uint64_t effort,
                             Tokens& tokens)
{
    ChainSearch<Place> chains(text, effort);
    return Encode(
        text, place, [&](std::uint32_t at, Match& match) { return chains.Longest(at, match); },
        tokens);
}

void EncodeBySuffixes(std::string_view text, std::uint32_t place, Tokens& tokens)
{
    const auto search = text.size() <= kLongestSorted ? SuffixSearch::Make(text) : nullptr;
    if (!search) {  // slow, but it takes less memory
        EncodeByChains<std::uint32_t>(text, place, ~std::uint64_t{0}, tokens);
        return;
    }
    const auto longest = [&](std::uint32_t at, Match& match) {
        match = search->Longest(at);
        return true;
    };
    Encode(text, place, longest, tokens);
}

void EncodePiece(std::string_view text, Tokens& tokens)
{
    std::uint32_t place = 0;
    if (text.size() < std::numeric_limits<std::uint16_t>::max())
        place = EncodeByChains<std::uint16_t>(text, place, kEffort * text.size(), tokens);
    else if (text.size() <= kLongestChained)
        place = EncodeByChains<std::uint32_t>(text, place, kEffort * text.size(), tokens);
    if (place < text.size())
        EncodeBySuffixes(text, place, tokens);
}

}  // namespace

}  // namespace qx

std::string Compression::Compress(const std::string& input) noexcept
{
    if (input.empty())
        return {};
    qx::Tokens tokens(input, qx::FindEscape(input));
    for (std::size_t at = 0; at < input.size(); at += qx::kPiece)
        qx::EncodePiece(std::string_view(input).substr(at, qx::kPiece), tokens);
    return tokens.Text();
}
