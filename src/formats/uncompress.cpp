#include "formats/byte_window.h"
#include "formats/common_prefix.h"

#include <qxutility/formats/compression.h>

#include <algorithm>
#include <cstring>
#include <exception>
#include <string_view>

namespace qx {

namespace {

using Fault = Compression::Fault;

// What may be written behind a text, or read behind a token, by copying whole blocks.
constexpr std::size_t kSlack = 64;
// How far a text grows at once; it is cleared before it is written.
constexpr std::size_t kGrowth = std::size_t{256} << 10;
// The longest token of those that are taken quickly: the escape byte, one byte for the length and
// four for the distance.
constexpr std::size_t kShortToken = 6;

// The low seven bits of the first `count` of four bytes, as one number.
inline std::uint32_t JoinGroups(const char* bytes, unsigned count)
{
    std::uint32_t number = 0;
    for (unsigned i = 0; i < 4; ++i)
        number = number << 8 | static_cast<unsigned char>(bytes[i]);
    number >>= 32 - 8 * count;
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
    for (std::size_t i = 0; i < length; i += 16)
        std::memcpy(to + i, from + i, 16);
}

// A text that is being restored: its start, its end as yet, and the end of the room for it.
struct Restored {
    const char* begin;
    char* end;
    const char* room;
};

// Takes the literals up to the next escape byte and the match there, from what is `at` bytes into
// the window. False, with nothing done, for another token, numbers that are longer than usual, a
// fault, and without room.
inline bool TakeMatch(const char* in, const ByteWindow& window, unsigned& at, Restored& text)
{
    const auto literals = static_cast<unsigned>(std::countr_zero(window.equal >> at));
    const unsigned token = at + literals;
    const std::uint64_t ends = window.low >> (token + 1);
    const std::size_t length = static_cast<unsigned char>(in[token + 1]);
    const auto groups = static_cast<unsigned>(std::countr_zero(ends >> 1)) + 1;
    if (!(ends & 1) || length == 0 || groups > 4)
        return false;
    const std::size_t distance = JoinGroups(in + token + 2, groups);
    const auto size = static_cast<std::size_t>(text.end - text.begin) + literals;
    if (distance - 1 >= size || static_cast<std::size_t>(text.room - text.end) < literals + length)
        return false;
    std::memcpy(text.end, in + at, 16);
    if (literals > 16)
        std::memcpy(text.end + 16, in + at + 16, 48);
    text.end += literals;
    CopyBack(text.end, distance, length);
    text.end += length;
    at = token + 2 + groups;
    return true;
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
        m_text.reserve(std::min(m_limit, Left() * 3) + kSlack);
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
            m_text.resize(needed + std::min({m_limit - m_size - count, Left() * 3, kGrowth}));
    }

    // Takes tokens as long as TakeMatch does, and the literals between them. Where tokens begin and
    // numbers end is looked up for 64 bytes at once.
    void TakeWindows()
    {
        const char* const begin = m_text.data();
        Restored text{begin, &m_text[m_size], begin + m_text.size() - kSlack};
        const char* in = m_in;
        while (m_inEnd - in >= 128 && text.room - text.end >= 64) {
            const ByteWindow window = LookAt64(in, m_escape);
            constexpr std::uint64_t kWhole = ~std::uint64_t{0} >> kShortToken;
            unsigned at = 0;
            bool taken = true;
            while (taken && (window.equal & kWhole) >> at)
                taken = TakeMatch(in, window, at, text);
            in += at;
            if (!taken || text.room - text.end < 64)
                break;
            const std::uint64_t cutToken = window.equal >> at;
            const unsigned literals =
                cutToken ? static_cast<unsigned>(std::countr_zero(cutToken)) : 64 - at;
            std::memcpy(text.end, in, 64);
            text.end += literals;
            in += literals;
        }
        m_in = in;
        m_size = static_cast<std::size_t>(text.end - begin);
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
