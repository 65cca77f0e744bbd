// The text of CRC tables: a line for each file, its name, a tab and its CRC in decimal, and at the
// end, without a line end, the CRC of all these lines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

// What a CRC table says.
struct CrcTable {
    std::string lines;      // those of files, each with CR LF
    std::size_t files = 0;  // their number
    bool isIntact = false;  // the CRC at the end is theirs
};

// The CRC of a listed file, and what the caller is told: see CCrc::Progress.
using CrcOfName = std::function<std::uint32_t(std::string_view name)>;
using CrcProgress = std::function<bool(std::size_t done, std::size_t count)>;

// The pieces between the commas of a text; none for an empty one.
std::vector<std::string_view> SplitNames(std::string_view names);

// The text of a table; nothing when `progress`, which may be null, stopped the work.
std::optional<std::string> CrcTableText(const std::vector<std::string_view>& names,
                                        const CrcOfName& crcOf, const CrcProgress& progress);

// Nothing when there is no table that can be read, or it is larger than any real one.
std::optional<CrcTable> ReadCrcTable(const char* path);

// Whether the table is intact and all files have the CRCs that it says. All are looked at.
bool CheckCrcTable(const CrcTable& table, const CrcOfName& crcOf, const CrcProgress& progress);

}  // namespace qx
