#include "config/table_query.h"

#include "core/ascii_case.h"

#include <algorithm>
#include <cstring>

namespace qx {

namespace {

bool Meets(const char* cell, const char* value, bool ignoreCase)
{
    if (!cell || !value)
        return false;
    return ignoreCase ? EqualIgnoringCase(cell, value) : std::strcmp(cell, value) == 0;
}

bool MeetsAll(const Table& table, int row, const TableQuery& query)
{
    return std::all_of(query.criteria.begin(), query.criteria.end(), [&](const Criterion& c) {
        return Meets(table.Cell(row, c.column), c.value, query.ignoreCase);
    });
}

// Whether "value<tab>" stands in the result, at its start or after a tab.
bool HoldsValue(const std::string& result, const std::string& valueAndTab)
{
    for (std::size_t at = result.find(valueAndTab); at != result.npos;
         at = result.find(valueAndTab, at + 1)) {
        if (at == 0 || result[at - 1] == '\t')
            return true;
    }
    return false;
}

void AddValue(QueryResult& result, const char* value, bool unique)
{
    if (!value || *value == '\0')
        return;
    const std::string valueAndTab = std::string(value) + '\t';
    if (unique && HoldsValue(result.text, valueAndTab))
        return;
    result.text += valueAndTab;
    ++result.count;
}

}  // namespace

QueryResult RunQuery(const Table& table, const TableQuery& query)
{
    QueryResult result;
    const auto full = [&] { return query.maxResults != 0 && result.count == query.maxResults; };
    for (int row = 0; row < table.RowCount() && !full(); ++row) {
        if (MeetsAll(table, row, query))
            AddValue(result, table.Cell(row, query.returnColumn), query.unique);
    }
    if (query.maxResults == 1 && result.count == 1)
        result.text.pop_back();
    return result;
}

}  // namespace qx
