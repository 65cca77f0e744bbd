// Start tags: where their names and they themselves end.
#pragma once

#include "formats/xml_scan.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <string_view>

namespace qx {

struct XmlTagEnds {
    const char* name;  // the first space or '>', or the end of the text; other white space is part
    const char* tag;   // the '>', or the end of the text
};

inline XmlTagEnds TagEnds(const char* tag)
{
    const char* const name = tag + 1;
#if QX_SCAN_SSE2
    // Most tags are short.
    const unsigned tagEnds = FindInSixteen<'>', '\0'>(name);
    const unsigned nameEnds = FindInSixteen<' '>(name) | tagEnds;
    if (tagEnds != 0)
        return {name + std::countr_zero(nameEnds), name + std::countr_zero(tagEnds)};
#endif
    const char* const end = Find<'>', '\0'>(name);
    return {FindBefore<' '>(name, end), end};
}

// The name of a tag that ends there, cut to `longest` characters. Only a letter, as isalpha has it
// for ASCII, or '_' begins a name; everything else is nameless.
inline std::string_view NameInTag(const char* tag, const char* end, std::size_t longest)
{
    const char* const name = tag + 1;
    const bool isNamed =
        (*name >= 'a' && *name <= 'z') || (*name >= 'A' && *name <= 'Z') || *name == '_';
    const std::size_t length = isNamed ? static_cast<std::size_t>(end - name) : 0;
    return {name, std::min(length, longest)};
}

}  // namespace qx
