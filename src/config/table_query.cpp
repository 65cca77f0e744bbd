#include "config/table_query.h"

#include <algorithm>
#include <unordered_set>

namespace qx {

namespace {

// Collects values. The result is a list whose items end in tabs: a value is in it already when its
// text and a tab stand at the result's start or after a tab.
class Collector {
  public:
    explicit Collector(const TableQuery& query) : m_query(query) {}

    bool Full() const { return m_query.maxResults != 0 && m_result.count == m_query.maxResults; }

    void Add(std::string_view value)
    {
        if (value.empty() || (m_query.unique && !IsNew(value)))
            return;
        m_result.text.append(value) += '\t';
        ++m_result.count;
    }

    QueryResult Take()
    {
        if (m_query.maxResults == 1 && m_result.count == 1)
            m_result.text.pop_back();
        return std::move(m_result);
    }

  private:
    // Also notes the items that the value is going to be. With tabs of its own it is several.
    bool IsNew(std::string_view value)
    {
        if (value.find('\t') == value.npos)
            return m_items.insert(value).second;
        if (Holds(std::string(value) + '\t'))
            return false;
        for (std::size_t tab; (tab = value.find('\t')) != value.npos; value.remove_prefix(tab + 1))
            m_items.insert(value.substr(0, tab));
        m_items.insert(value);
        return true;
    }

    bool Holds(const std::string& items) const
    {
        const std::string& text = m_result.text;
        std::size_t at = text.find(items);
        while (at != text.npos && at != 0 && text[at - 1] != '\t')
            at = text.find(items, at + 1);
        return at != text.npos;
    }

    const TableQuery& m_query;
    QueryResult m_result;
    std::unordered_set<std::string_view> m_items;
};

bool MeetsAll(const Table& table, std::uint32_t row, const TableQuery& query)
{
    return std::all_of(query.criteria.begin(), query.criteria.end(), [&](const Criterion& c) {
        const Cell cell = table.CellAt(row, c.column);
        return !cell.Missing() && c.value.data() && EqualKeys(cell.View(), c.value, query.rule);
    });
}

}  // namespace

QueryResult RunQuery(const IndexedTable& table, const TableQuery& query)
{
    Collector collector(query);
    const Table& cells = table.Cells();
    const auto take = [&](std::uint32_t row) {
        collector.Add(cells.CellAt(row, query.returnColumn).View());
    };
    if (cells.Valid() && !query.criteria.empty()) {
        const Criterion& first = query.criteria.front();
        const KeyIndex& keys = table.Keys(first.column, query.rule);
        for (std::uint32_t row = keys.First(first.value);
             row != KeyIndex::kNone && !collector.Full(); row = keys.Next(row)) {
            if (MeetsAll(cells, row, query))
                take(row);
        }
    } else {
        const auto rows = static_cast<std::uint32_t>(cells.RowCount());
        for (std::uint32_t row = 0; row < rows && !collector.Full(); ++row)
            take(row);
    }
    return collector.Take();
}

}  // namespace qx
