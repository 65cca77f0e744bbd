#include "formats/byte_window.h"

#include <qxutility/formats/compression.h>

#include <algorithm>
#include <bit>
#include <cstring>
#include <exception>
#include <string_view>

namespace qx {

namespace {

using Fault = Compression::Fault;

// What may be written behind a text, or read behind a token, by copying whole blocks.
constexpr std::size_t kSlack = 64;
// How far a text grows at once: it is cleared before it is written, and so stays in the nearest
// cache in between.
constexpr std::size_t kGrowth = std::size_t{32} << 10;
// The longest token of those that are taken quickly: the escape byte, one byte for the length and
// four for the distance.
constexpr std::size_t kShortToken = 6;

// The low seven bits of the first `count` of four bytes, as one number.
inline std::uint32_t JoinGroups(const char* bytes, unsigned count)
{
    const auto byte = [&](int i) { return std::uint32_t{static_cast<unsigned char>(bytes[i])}; };
    const std::uint32_t four = byte(0) << 24 | byte(1) << 16 | byte(2) << 8 | byte(3);
    const std::uint32_t number = four >> (32 - 8 * count);
    return (number & 0x7F) | (number >> 1 & 0x3F80) | (number >> 2 & 0x1FC000) |
           (number >> 3 & 0xFE00000);
}

// Copies what stands `distance` bytes back, byte by byte where that reaches into the copy; up to
// kSlack bytes behind it are overwritten.
inline void CopyBack(char* to, std::size_t distance, std::size_t length)
{
    const char* const from = to - distance;
    if (distance < 16) {
        for (std::size_t i = 0; i < length; ++i)
            to[i] = from[i];
        return;
    }
    std::memcpy(to, from, 16);
    std::memcpy(to + 16, from + 16, 16);
    if (length <= 32)
        return;
    std::memcpy(to + 32, from + 32, 16);
    std::memcpy(to + 48, from + 48, 16);
    for (std::size_t i = 64; i < length; i += 16)
        std::memcpy(to + i, from + i, 16);
}

// A text that is being restored: its start, its end as yet, and the end of the room for it.
struct Restored {
    char* begin;
    char* end;
    char* room;

    std::size_t Size() const { return static_cast<std::size_t>(end - begin); }
    std::size_t Room() const { return static_cast<std::size_t>(room - end); }
};

// The number of the lowest bit; 63 when there is none.
inline unsigned BitNumber(std::uint64_t bits)
{
    return static_cast<unsigned>(std::countr_zero(bits | std::uint64_t{1} << 63));
}

// Takes `literals`, up to `token`, and the match there, whose distance has so many groups. False,
// with nothing done, for a token that is no match, numbers that are longer than usual, a fault, and
// without room.
inline bool TakeMatch(const char* token, unsigned literals, unsigned groups, Restored& text)
{
    const std::size_t length = static_cast<unsigned char>(token[1]);
    if (length - 1 >= 127 || groups > 4)
        return false;
    const std::size_t distance = JoinGroups(token + 2, groups);
    if (text.Size() + literals < distance || distance == 0 || text.Room() < literals + length)
        return false;
    std::memcpy(text.end, token - literals, 16);
    if (literals > 16)
        std::memcpy(text.end + 16, token - literals + 16, 48);
    text.end += literals;
    CopyBack(text.end, distance, length);
    text.end += length;
    return true;
}

// Takes the tokens in a window as long as TakeMatch does; returns how many bytes were read.
inline unsigned TakeMatches(const char* in, const ByteWindow& window, Restored& text)
{
    const std::uint64_t others = ~window.equal, high = ~window.low;
    const std::uint64_t whole = window.equal & ~std::uint64_t{0} >> kShortToken;
    unsigned at = 0;
    for (std::uint64_t next = 1;;) {
        // The carry runs through what is no escape byte to the first that is one, and then from the
        // distance's first byte through those above 127 to its last.
        const std::uint64_t token = (others + next) & whole;
        if (token == 0)
            return at;
        const std::uint64_t last = (high + 4 * token) & window.low;
        const unsigned begin = BitNumber(token), end = BitNumber(last);
        if (!TakeMatch(in + begin, begin - at, end - begin - 1, text))
            return at;
        next = 2 * last;
        at = end + 1;
    }
}

// Reads the tokens of a compressed text.
class Uncompressor {
  public:
    Uncompressor(std::string_view input, std::size_t limit)
        : m_escape(input.front()),
          m_in(input.data() + 1),
          m_inEnd(input.data() + input.size()),
          m_limit(limit)
    {
    }

    Fault Run()
    {
        try {
            return TakeAll();
        } catch (const std::exception&) {  // out of memory, or longer than any string
            return Fault::NoMemory;
        }
    }

    // All that was restored.
    std::string Text()
    {
        m_text.resize(m_size);
        return std::move(m_text);
    }
    // Whether there may be NUL bytes in it.
    bool MayHaveNul() const { return m_escape != '\0' || m_hasEscape; }

  private:
    Fault TakeAll()
    {
        m_text.reserve(std::min(m_limit, Left() * 4) + kSlack);
        MakeRoom(0);
        while (m_in < m_inEnd) {
            TakeWindows();
            if (const Fault fault = TakeToken(); fault != Fault::None)
                return fault;
        }
        return Fault::None;
    }

    std::size_t Left() const { return static_cast<std::size_t>(m_inEnd - m_in); }

    // Makes room for `count` bytes, which the limit allows, and kSlack behind them.
    void MakeRoom(std::size_t count)
    {
        const std::size_t needed = m_size + count + kSlack;
        if (needed > m_text.size())
            m_text.resize(needed + std::min({m_limit - m_size - count, Left() * 4, kGrowth}));
    }

    // Takes windows as long as TakeWindow does.
    void TakeWindows()
    {
        char* const begin = m_text.data();
        Restored text{begin, begin + m_size, begin + m_text.size() - kSlack};
        const char* in = m_in;
        bool going = true;
        while (going && m_inEnd - in >= 2 * 64)
            going = TakeWindow(in, in, 64, text);
        while (going && in < m_inEnd) {  // what stands behind the input may not be read
            char last[3 * 64] = {};
            const std::ptrdiff_t left = m_inEnd - in;
            std::memcpy(last, in, static_cast<std::size_t>(left));
            going = TakeWindow(last, in, static_cast<unsigned>(std::min<std::ptrdiff_t>(64, left)),
                               text);
        }
        m_in = in;
        m_size = text.Size();
    }

    // Takes tokens as long as TakeMatch does, and the literals between them, from `count` bytes of
    // a window; `in` moves on. Where tokens begin and numbers end is looked up for all at once.
    // False when a token was refused, or without room.
    bool TakeWindow(const char* bytes, const char*& in, unsigned count, Restored& text) const
    {
        ByteWindow window = LookAt64(bytes, m_escape);
        if (count < 64)
            window.Cut(count);
        const unsigned at = TakeMatches(bytes, window, text);
        const std::uint64_t token = window.equal >> at;
        const unsigned literals = token ? BitNumber(token) : count - at;
        in += at;
        if ((token && at + literals < 64 - kShortToken) || text.Room() < 64)
            return false;
        std::memcpy(text.end, bytes + at, 64);
        text.end += literals;
        in += literals;
        return true;
    }

    // Takes the literals up to the next escape byte, and the token there, of whatever form.
    Fault TakeToken()
    {
        const void* const escape = std::memchr(m_in, m_escape, Left());
        const char* const token = escape ? static_cast<const char*>(escape) : m_inEnd;
        if (!TakeLiterals(m_in, static_cast<std::size_t>(token - m_in)))
            return Fault::TooLong;
        m_in = token;
        if (!escape)
            return Fault::None;
        if (++m_in < m_inEnd && *m_in == '\0') {
            ++m_in;
            m_hasEscape = true;
            return TakeLiterals(&m_escape, 1) ? Fault::None : Fault::TooLong;
        }
        std::uint32_t length = 0, distance = 0;
        if (const Fault fault = TakeNumber(length); fault != Fault::None)
            return fault;
        if (const Fault fault = TakeNumber(distance); fault != Fault::None)
            return fault;
        return Copy(length, distance);
    }

    // As many literals as the limit allows; false when those are not all.
    bool TakeLiterals(const char* bytes, std::size_t count)
    {
        const std::size_t allowed = std::min(count, m_limit - m_size);
        MakeRoom(allowed);
        std::copy_n(bytes, allowed, m_text.begin() + static_cast<std::ptrdiff_t>(m_size));
        m_size += allowed;
        return allowed == count;
    }

    Fault TakeNumber(std::uint32_t& number)
    {
        for (int groups = 0; groups < 5; ++groups) {
            if (m_in == m_inEnd)
                return Fault::Cut;
            const auto byte = static_cast<unsigned char>(*m_in++);
            if (number >> 25)
                return Fault::NumberTooLarge;
            number = number << 7 | (byte & 0x7F);
            if (byte < 0x80)
                return Fault::None;
        }
        return Fault::NumberTooLarge;
    }

    Fault Copy(std::uint32_t length, std::uint32_t distance)
    {
        if (distance == 0 || distance > m_size)
            return Fault::BadDistance;
        if (length > m_limit - m_size)
            return Fault::TooLong;
        MakeRoom(length);
        CopyBack(&m_text[m_size], distance, length);
        m_size += length;
        return Fault::None;
    }

    char m_escape;
    bool m_hasEscape = false;
    const char* m_in;
    const char* m_inEnd;
    std::size_t m_limit, m_size = 0;
    std::string m_text;  // m_size bytes of text, and room
};

}  // namespace

}  // namespace qx

Compression::Fault Compression::Uncompress(const std::string& input, std::string& output,
                                           std::size_t limit) noexcept
{
    if (input.empty()) {
        output.clear();
        return Fault::None;
    }
    qx::Uncompressor uncompressor(input, limit);
    const Fault fault = uncompressor.Run();
    output = uncompressor.Text();
    return fault;
}

std::string Compression::Uncompress(const std::string& input) noexcept
{
    if (input.empty())
        return {};
    qx::Uncompressor uncompressor(input, kUncompressLimit);
    uncompressor.Run();
    std::string text = uncompressor.Text();
    if (uncompressor.MayHaveNul())
        text.resize(std::min(text.size(), text.find('\0')));
    return text;
}
