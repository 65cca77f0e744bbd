#include "config/language_table.h"
#include "config/table_query.h"
#include "platform/resources.h"

#include <qxutility/config/table_reader.h>

#include <cstdarg>
#include <cstring>
#include <string_view>

namespace {

std::shared_ptr<const qx::IndexedTable> LoadTable(const char* name, char delimiter,
                                                  HINSTANCE module, const char* resourceType)
{
    qx::Table table(delimiter);
    if (!name)
        ;
    else if (!module || !resourceType)
        table.LoadFile(name);
    else if (const auto bytes = qx::platform::ResourceBytes(module, name, resourceType))
        table.LoadBytes(*bytes);
    return std::make_shared<const qx::IndexedTable>(std::move(table));
}

// The column of a name; the first one for a name of none, and for null.
int FindColumn(const qx::Table& table, const char* name)
{
    return name ? table.FindColumn(name) : 0;
}

std::string_view ViewOf(const char* text)
{
    return text ? std::string_view(text) : std::string_view();
}

}  // namespace

CTableReader::CTableReader(const char* name, char delimiter, HINSTANCE module,
                           const char* resourceType)
    : m_table(LoadTable(name, delimiter, module, resourceType))
{
}

CTableReader::CTableReader(const CTableReader&) = default;
CTableReader& CTableReader::operator=(const CTableReader&) = default;
CTableReader::~CTableReader() = default;

bool CTableReader::Valid() const
{
    return m_table->Cells().Valid();
}

int CTableReader::Query(char*& result, int maxResults, DWORD flags, const char* returnColumn,
                        ...) const
{
    const qx::Table& table = m_table->Cells();
    qx::TableQuery query;
    query.maxResults = maxResults;
    query.unique = (flags & kQueryUnique) != 0;
    query.rule = (flags & kQueryIgnoreCase) != 0 ? qx::Case::Ignored : qx::Case::Matters;
    query.returnColumn = FindColumn(table, returnColumn);
    std::va_list criteria;
    va_start(criteria, returnColumn);
    while (const char* column = va_arg(criteria, const char*)) {
        char* value = va_arg(criteria, char*);
        query.criteria.push_back({FindColumn(table, column), ViewOf(RemoveJunk(value))});
    }
    va_end(criteria);
    const qx::QueryResult found = RunQuery(*m_table, query);
    result = qx::NewText(found.text);
    return found.count;
}

bool CTableReader::Query(char* out, int outSize, int row, int column) const
{
    const qx::Table& table = m_table->Cells();
    if (!out || row < 0 || column < 0 || row >= table.RowCount() || column >= table.ColumnCount())
        return false;
    const qx::Cell cell = table.CellAt(static_cast<std::uint32_t>(row), column);
    if (cell.Missing() || outSize <= 0 || cell.length >= static_cast<std::size_t>(outSize))
        return false;
    std::memcpy(out, cell.text, cell.length + std::size_t{1});
    return true;
}

int CTableReader::GetHeader(char*& header) const
{
    std::string names;
    for (const qx::Column& column : m_table->Cells().Columns())
        names += column.Name() + '\t';
    header = qx::NewText(names);
    return m_table->Cells().ColumnCount();
}

char* CTableReader::RemoveJunk(char* text) const
{
    return qx::RemoveJunk(text, m_table->Cells().Delimiter());
}
