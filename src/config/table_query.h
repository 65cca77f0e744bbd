// Look-ups in a table: the values of a column in the rows that meet all criteria.
#pragma once

#include "config/table_index.h"

#include <string>
#include <string_view>
#include <vector>

namespace qx {

struct Criterion {
    int column;
    std::string_view value;  // one without data (null) is met by no cell
};

struct TableQuery {
    int returnColumn = 0;
    int maxResults = 0;               // 0: all
    bool unique = false;              // a value that is in the result already is skipped
    Case rule = Case::Matters;        // of the criteria
    std::vector<Criterion> criteria;  // none: every row
};

struct QueryResult {
    std::string text;  // each value followed by a tab; the bare value for one of one asked for
    int count = 0;
};

QueryResult RunQuery(const IndexedTable& table, const TableQuery& query);

}  // namespace qx
