// The five entities of XML texts.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qx {

// Decodes the entities of a text without NUL into `out`, as far as `room` characters, without a
// terminator. Returns the length of the result: more than `room` (but no matter how much) when it
// did not fit. It is never longer than the text.
std::size_t XmlUnescape(std::string_view text, char* out, std::size_t room);

// Appends the text with < > & ' " replaced by entities.
void AppendXmlEscaped(std::string_view text, std::string& escaped);

}  // namespace qx
