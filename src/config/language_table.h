// The language table's layout over a plain table, and copying of its texts.
#pragma once

#include "config/language_code.h"
#include "config/table_index.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace qx {

// What a string number without a text in the language shows.
inline constexpr std::string_view kMissingString = "###";

// The name of the language whose column has this name; empty when there is none.
std::string LanguageName(const IndexedTable& table, std::string_view code);

// A cell's text as it is shown.
std::string ShownText(std::string_view cell);

// Copies a text cut to size - 1 characters; nothing when there is no room at all. The texts may
// overlap.
void CopyText(char* out, int size, std::string_view text);
// A copy that is freed with delete[].
char* NewText(std::string_view text);

}  // namespace qx
