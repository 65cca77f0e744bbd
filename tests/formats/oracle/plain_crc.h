// The CRC of CRC tables, bit by bit, and the check of a table as it was always done.
#pragma once

#include <qxutility/formats/text_file.h>

#include <cstdint>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace qx::test {

inline std::uint32_t PlainCrc(std::string_view bytes)
{
    std::uint32_t reg = 0xFFFFFFFF;
    for (const char byte : bytes) {
        reg ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            reg = reg & 1 ? (reg >> 1) ^ 0xEDB68320 : reg >> 1;
    }
    return ~reg;
}

// Numbers of more than 32 bits, of which scanf may make anything, are none.
inline std::optional<std::uint32_t> PlainDecimal(const char* text)
{
    char* end = nullptr;
    const long long number = std::strtoll(text, &end, 10);
    if (end == text || number > 0xFFFFFFFF || number < -0xFFFFFFFFLL)
        return std::nullopt;
    return static_cast<std::uint32_t>(number);
}

// `crcs` are those of the files that there are.
inline bool PlainCheck(const char* table, const std::map<std::string, std::uint32_t>& crcs)
{
    TextFile file(table);
    std::string line, collected;
    bool isUnchanged = true;
    while (!file.eof()) {
        file.ReadLine(line);
        const std::size_t tab = line.find('\t');
        if (tab == line.npos)
            continue;
        collected += line + "\r\n";
        const auto found = crcs.find(line.substr(0, tab));
        const std::uint32_t crc = found == crcs.end() ? 0 : found->second;
        if (PlainDecimal(line.c_str() + tab + 1) != crc)
            isUnchanged = false;
    }
    return PlainDecimal(line.c_str()) == PlainCrc(collected) && isUnchanged;
}

}  // namespace qx::test
