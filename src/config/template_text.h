// Templates with one argument, whose texts come from tables and files and are never trusted: at
// most the argument given is read, whatever the template says. For a well-formed template the
// result is what printf prints.
#pragma once

#include <string>
#include <string_view>

namespace qx {

// The first `%s`, with flags, width and precision as printf takes them, becomes `argument`; `%%` a
// percent sign. Everything else is copied as it stands: other conversions, a second `%s`, a `%`
// at the end, a width or precision above 4095 (the most that every printf can do).
std::string ExpandText(std::string_view format, std::string_view argument);

// The first integer or pointer conversion (d i u o x X p, with flags, width, precision and length)
// prints the value of `pointer` itself, cut to the size of the conversion; nothing is read through
// it. `%%` is a percent sign, everything else is copied as it stands.
std::string ExpandPointer(std::string_view format, const void* pointer);

}  // namespace qx
