// The text of a private profile: look-ups and changes, without files. What a line means is what the
// Windows functions make of it.
#pragma once

#include <qxutility/types.h>

#include <optional>
#include <string>
#include <string_view>

namespace qx::profile {

std::optional<std::string_view> FindValue(std::string_view text, std::string_view section,
                                          std::string_view key);

// Lists: every entry ended by NUL.
std::string SectionNames(std::string_view text);
std::string KeyNames(std::string_view text, std::string_view section);
std::string SectionLines(std::string_view text, std::string_view section);  // "key=value"

// Changes; a line that they do not concern stays byte for byte.
void SetValue(std::string& text, std::string_view section, std::string_view key,
              std::string_view value);
void DeleteKey(std::string& text, std::string_view section, std::string_view key);
void DeleteSection(std::string& text, std::string_view section);

// A value as it is handed out: without a pair of quotes around it.
std::string_view WithoutQuotes(std::string_view value);

// Copy into a buffer of `size` bytes, cut as the Windows functions cut.
DWORD CopyValue(std::string_view value, char* out, DWORD size);
DWORD CopyList(std::string_view list, char* out, DWORD size);

}  // namespace qx::profile
