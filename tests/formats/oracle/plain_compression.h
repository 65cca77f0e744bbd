// The compressor and its counterpart written out step by step, as slow as the steps are: what the
// real ones are compared with.
#pragma once

#include <qxutility/formats/compression.h>

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qx::test {

inline void PlainNumber(std::string& out, std::uint32_t number)
{
    std::string groups(1, static_cast<char>(number & 0x7F));
    while (number >>= 7)
        groups.insert(groups.begin(), static_cast<char>((number & 0x7F) | 0x80));
    out += groups;
}

inline char PlainEscape(const std::string& s)
{
    std::size_t counts[256] = {};
    for (const unsigned char c : s)
        ++counts[c];
    unsigned char escape = 0;
    for (unsigned value = 1; value <= 255; ++value) {
        if (counts[value] < counts[escape])
            escape = static_cast<unsigned char>(value);
    }
    return static_cast<char>(escape);
}

// Links each place to the nearest earlier one with the same two bytes.
inline std::vector<std::uint32_t> PlainChain(const std::string& s)
{
    std::unordered_map<unsigned, std::uint32_t> head;
    std::vector<std::uint32_t> prev(s.size(), ~0u);
    for (std::uint32_t i = 0; i + 1 < s.size(); ++i) {
        const unsigned key =
            static_cast<unsigned char>(s[i]) * 256u + static_cast<unsigned char>(s[i + 1]);
        const auto [found, isNew] = head.try_emplace(key, i);
        prev[i] = isNew ? ~0u : std::exchange(found->second, i);
    }
    return prev;
}

inline std::string PlainCompress(const std::string& s)
{
    if (s.empty())
        return {};
    const std::vector<std::uint32_t> prev = PlainChain(s);
    const char escape = PlainEscape(s);
    std::string out(1, escape);
    const auto literal = [&](char c) {
        out += c;
        if (c == escape)
            out += '\0';
    };
    std::uint32_t pos = 0, remaining = static_cast<std::uint32_t>(s.size());
    while (remaining > 3) {
        std::uint32_t best = 3, distance = 0;
        for (std::uint32_t c = prev[pos]; c != ~0u; c = prev[c]) {
            if (s[c + best] != s[pos + best])
                continue;
            const std::uint32_t limit = remaining < pos - c ? remaining : pos - c;
            std::uint32_t length = 2;
            while (length < limit && s[c + length] == s[pos + length])
                ++length;
            if (length > best) {
                best = length;
                distance = pos - c;
            }
        }
        if (best >= 8 || (best == 4 && distance <= 127) || (best == 5 && distance <= 16383) ||
            (best == 6 && distance <= 2097151) || (best == 7 && distance <= 268435455)) {
            out += escape;
            PlainNumber(out, best);
            PlainNumber(out, distance);
        } else {
            best = 1;
            literal(s[pos]);
        }
        pos += best;
        remaining -= best;
    }
    for (; remaining > 0; --remaining)
        literal(s[pos++]);
    return out;
}

// Reads tokens until the first fault or the end; `text` has what was restored until then.
struct PlainRestored {
    explicit PlainRestored(const std::string& compressed, std::size_t most)
        : in(compressed), limit(most)
    {
        for (at = 1; at < in.size() && fault == Fault::None;)
            Token();
    }

    using Fault = Compression::Fault;
    Fault fault = Fault::None;
    std::string text;

  private:
    void Token()
    {
        const char byte = in[at++];
        if (byte == in[0] && (at == in.size() || in[at] != '\0'))
            return Match();
        if (text.size() == limit)
            return void(fault = Fault::TooLong);
        text += byte;
        at += byte == in[0];
    }

    void Match()
    {
        std::uint32_t length = Number();
        const std::uint32_t distance = Number();
        if (fault == Fault::None && (distance == 0 || distance > text.size()))
            fault = Fault::BadDistance;
        if (fault == Fault::None && length > limit - text.size())
            fault = Fault::TooLong;
        for (; fault == Fault::None && length > 0; --length)
            text += text[text.size() - distance];
    }

    std::uint32_t Number()
    {
        std::uint64_t value = 0;
        for (int groups = 0; groups < 5 && fault == Fault::None; ++groups) {
            if (at == in.size())
                return fault = Fault::Cut, 0;
            const auto byte = static_cast<unsigned char>(in[at++]);
            value = value << 7 | (byte & 0x7F);
            if (value >> 32)
                return fault = Fault::NumberTooLarge, 0;
            if (byte < 0x80)
                return static_cast<std::uint32_t>(value);
        }
        if (fault == Fault::None)
            fault = Fault::NumberTooLarge;
        return 0;
    }

    const std::string& in;
    std::size_t at = 1, limit;
};

}  // namespace qx::test
