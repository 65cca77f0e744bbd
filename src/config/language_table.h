// The language table's layout over a plain table, and copying of its cells.
#pragma once

#include "config/table.h"

#include <string>

namespace qx {

// What a string number without a text in the language shows.
inline constexpr char kMissingString[] = "###";

// The cell of string `id` in the column named `code`; kMissingString when there is none.
const char* FindString(const Table& table, unsigned id, const char* code);
// The name of the language with this column; empty when there is none.
std::string LanguageName(const Table& table, const char* code);

// A cell's text as it is shown.
std::string Unescaped(const char* cell);
// Copies a text cut to size - 1 characters; nothing when there is no room at all. Returns its full
// length. The texts may overlap.
std::size_t CopyText(char* out, int size, const char* text);

}  // namespace qx
