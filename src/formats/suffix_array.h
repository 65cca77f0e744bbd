// Sorting the suffixes of a text.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qx {

// Writes the starts of all suffixes of `text` in their order (bytes unsigned, an end before any
// byte) to `order`, which has one element for each byte; less than 2 GiB of text. Linear time;
// beside `order` at most half its memory is used. False when there is no memory.
bool SortSuffixes(std::string_view text, std::span<std::int32_t> order);

}  // namespace qx
