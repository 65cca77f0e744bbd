#include "formats/crc_table.h"

#include "formats/crc32.h"
#include "platform/files.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <charconv>

namespace qx {

// A list of a million files has some 30 MiB.
static constexpr std::uint64_t kLargestTable = std::uint64_t{256} << 20;

static std::uint32_t CrcOf(std::string_view text)
{
    return ~CrcUpdate(kCrcStart, text.data(), text.size());
}

std::vector<std::string_view> SplitNames(std::string_view names)
{
    std::vector<std::string_view> pieces;
    if (names.empty())
        return pieces;
    for (std::size_t comma; (comma = names.find(',')) != names.npos;) {
        pieces.push_back(names.substr(0, comma));
        names.remove_prefix(comma + 1);
    }
    pieces.push_back(names);
    return pieces;
}

std::optional<std::string> CrcTableText(const std::vector<std::string_view>& names,
                                        const CrcOfName& crcOf, const CrcProgress& progress)
{
    std::string text;
    std::size_t done = 0;
    for (const std::string_view name : names) {
        text.append(name).append("\t").append(std::to_string(crcOf(name))).append("\r\n");
        if (progress && !progress(++done, names.size()))
            return std::nullopt;
    }
    return text + std::to_string(CrcOf(text));
}

// A number as scanf's %u reads it: after white space and a sign, up to the first other character.
// Nothing without a digit, and for a number of more than 32 bits.
static std::optional<std::uint32_t> ReadNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+'))
        text.remove_prefix(1);
    std::uint32_t number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc())
        return std::nullopt;
    return isNegative ? 0 - number : number;
}

std::optional<CrcTable> ReadCrcTable(const char* path)
{
    // A table that someone else has open is not to be trusted.
    const auto size = platform::File(path, platform::FileMode::ReadExclusive).Size();
    if (!size || *size > kLargestTable)
        return std::nullopt;
    TextFile file(path);
    if (!file.ValidFile())
        return std::nullopt;
    CrcTable table;
    std::string line;
    while (!file.eof()) {
        file.ReadLine(line);
        if (line.find('\t') == line.npos)
            continue;
        table.lines.append(line).append("\r\n");
        ++table.files;
    }
    // The number at the end is that of the line read last, whatever else it holds: files in the
    // field may have lines without a tab, which are skipped.
    table.isIntact = ReadNumber(line) == CrcOf(table.lines);
    return table;
}

bool CheckCrcTable(const CrcTable& table, const CrcOfName& crcOf, const CrcProgress& progress)
{
    bool isUnchanged = table.isIntact;
    std::string_view rest = table.lines;
    for (std::size_t done = 1; !rest.empty(); ++done) {
        const std::size_t end = rest.find('\r');  // no line holds one
        const std::string_view line = rest.substr(0, end);
        const std::size_t tab = line.find('\t');
        const auto expected = ReadNumber(line.substr(tab + 1));
        isUnchanged = expected == crcOf(line.substr(0, tab)) && isUnchanged;
        if (progress && !progress(done, table.files))
            return false;
        rest.remove_prefix(end + 2);
    }
    return isUnchanged;
}

}  // namespace qx
