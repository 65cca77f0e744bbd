#include "config/table.h"
#include "config/table_query.h"
#include "platform/resources.h"

#include <qxutility/config/table_reader.h>

#include <cstdarg>
#include <cstring>
#include <string_view>

namespace {

char* NewText(std::string_view text)
{
    char* copy = new char[text.size() + 1];
    std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
}

std::shared_ptr<const qx::Table> LoadTable(const char* name, char delimiter, HINSTANCE module,
                                           const char* resourceType)
{
    auto table = std::make_shared<qx::Table>(delimiter);
    if (!name)
        return table;
    if (!module || !resourceType)
        table->LoadFile(name);
    else if (const auto bytes = qx::platform::ResourceBytes(module, name, resourceType))
        table->LoadBytes(*bytes);
    return table;
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
    return m_table->Valid();
}

int CTableReader::Query(char*& result, int maxResults, DWORD flags, const char* returnColumn,
                        ...) const
{
    qx::TableQuery query;
    query.maxResults = maxResults;
    query.unique = (flags & kQueryUnique) != 0;
    query.ignoreCase = (flags & kQueryIgnoreCase) != 0;
    query.returnColumn = m_table->FindColumn(returnColumn);
    std::va_list criteria;
    va_start(criteria, returnColumn);
    while (const char* column = va_arg(criteria, const char*)) {
        char* value = va_arg(criteria, char*);
        query.criteria.push_back({m_table->FindColumn(column), RemoveJunk(value)});
    }
    va_end(criteria);
    const qx::QueryResult found = RunQuery(*m_table, query);
    result = NewText(found.text);
    return found.count;
}

bool CTableReader::Query(char* out, int outSize, int row, int column) const
{
    if (!out || row < 0 || column < 0 || row >= m_table->RowCount() ||
        column >= m_table->ColumnCount())
        return false;
    const char* cell = m_table->Cell(row, column);
    const std::size_t length = cell ? std::strlen(cell) : 0;
    if (!cell || outSize <= 0 || length >= static_cast<std::size_t>(outSize))
        return false;
    std::memcpy(out, cell, length + 1);
    return true;
}

int CTableReader::GetHeader(char*& header) const
{
    std::string names;
    for (int column = 0; column < m_table->ColumnCount(); ++column)
        names += m_table->ColumnName(column) + '\t';
    header = NewText(names);
    return m_table->ColumnCount();
}

char* CTableReader::RemoveJunk(char* text) const
{
    return qx::RemoveJunk(text, m_table->Delimiter());
}
