// What goes into list boxes and combo boxes: the items of a delimited list, the languages to choose
// from.
#pragma once

#include "config/table_index.h"

#include <qxutility/types.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

// The pieces of a list such as Query returns, "a<tab>b<tab>"; what follows the last delimiter is an
// item only when it is not empty.
std::vector<std::string> ListItems(std::string_view list, char delimiter);

// What a control is told to reserve for a list.
struct ListStorage {
    int items;
    std::size_t bytes;
};
ListStorage StorageFor(std::string_view list, char delimiter);

struct ListedLanguage {
    std::string name;
    DWORD lcid;
    bool current;  // its column is the current one
};

// The languages of a language table, in the order of its columns: each column after the first, as
// far as one named "testing", which is left out with all that follow it.
std::vector<ListedLanguage> ListLanguages(const IndexedTable& table, const char* currentCode);

}  // namespace qx
