#include "formats/match.h"

#include <qxutility/formats/compression.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace qx {

namespace {

constexpr std::uint32_t kNone = ~std::uint32_t{0};
constexpr std::uint32_t kShortest = 4;

std::uint32_t Load4(const char* bytes)
{
    std::uint32_t value = 0;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

// The earlier places with the same four bytes, nearest first.
class Chain {
  public:
    explicit Chain(std::string_view text) : m_text(text), m_earlier(text.size(), kNone)
    {
        std::vector<std::uint32_t> heads(std::size_t{1} << kHashBits, kNone);
        for (std::uint32_t i = 0; i + kShortest <= text.size(); ++i) {
            std::uint32_t& head = heads[(Load4(&text[i]) * 2654435761u) >> (32 - kHashBits)];
            m_earlier[i] = head;
            head = i;
        }
    }

    Match Longest(std::uint32_t place) const
    {
        const auto rest = static_cast<std::uint32_t>(m_text.size()) - place;
        Match best;
        for (std::uint32_t c = m_earlier[place]; c != kNone; c = m_earlier[c]) {
            const std::uint32_t limit = std::min(rest, place - c);
            if (limit <= best.length || m_text[c + best.length] != m_text[place + best.length])
                continue;
            std::uint32_t length = 0;
            while (length < limit && m_text[c + length] == m_text[place + length])
                ++length;
            if (length > best.length)
                best = {length, place - c};
        }
        return best;
    }

  private:
    static constexpr int kHashBits = 16;
    std::string_view m_text;
    std::vector<std::uint32_t> m_earlier;
};

// The rarest byte, the lowest of equally rare ones.
char EscapeByte(std::string_view text)
{
    std::array<std::size_t, 256> counts{};
    for (const char c : text)
        ++counts[static_cast<unsigned char>(c)];
    return static_cast<char>(std::min_element(counts.begin(), counts.end()) - counts.begin());
}

// Whether the token is shorter than the bytes it stands for.
bool Saves(const Match& match)
{
    switch (match.length) {
        case 4:
            return match.distance <= 127;
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

void AppendNumber(std::string& out, std::uint32_t number)
{
    for (int shift = 28; shift > 0; shift -= 7) {
        if (number >> shift)
            out += static_cast<char>(((number >> shift) & 0x7F) | 0x80);
    }
    out += static_cast<char>(number & 0x7F);
}

std::string CompressText(std::string_view text)
{
    const char escape = EscapeByte(text);
    const Chain chain(text);
    std::string out(1, escape);
    const auto size = static_cast<std::uint32_t>(text.size());
    for (std::uint32_t place = 0; place < size;) {
        const Match match = size - place >= kShortest ? chain.Longest(place) : Match{};
        if (Saves(match)) {
            out += escape;
            AppendNumber(out, match.length);
            AppendNumber(out, match.distance);
            place += match.length;
            continue;
        }
        out += text[place];
        if (text[place] == escape)
            out += '\0';
        ++place;
    }
    return out;
}

}  // namespace

}  // namespace qx

std::string Compression::Compress(const std::string& input) noexcept
{
    return input.empty() ? std::string() : qx::CompressText(input);
}
