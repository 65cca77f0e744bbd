#include "config/list_items.h"

#include "config/language_code.h"
#include "config/language_table.h"
#include "core/ascii_case.h"

#include <algorithm>

namespace qx {

std::vector<std::string> ListItems(std::string_view list, char delimiter)
{
    std::vector<std::string> items;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(delimiter), list.size());
        items.emplace_back(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return items;
}

ListStorage StorageFor(std::string_view list, char delimiter)
{
    const auto items = std::count(list.begin(), list.end(), delimiter);
    return {static_cast<int>(items), list.size() + static_cast<std::size_t>(items)};
}

std::vector<ListedLanguage> ListLanguages(const IndexedTable& table, const char* currentCode)
{
    std::vector<ListedLanguage> languages;
    const std::vector<Column>& columns = table.Cells().Columns();
    for (std::size_t i = 1; i < columns.size(); ++i) {
        const std::string& code = columns[i].Name();
        std::string name = LanguageName(table, code);
        if (EqualIgnoringCase(name.c_str(), "testing"))
            break;
        languages.push_back({std::move(name), LocaleOfCode(code.c_str()), code == currentCode});
    }
    return languages;
}

}  // namespace qx
