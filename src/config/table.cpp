#include "config/table.h"

#include "core/ascii_case.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace qx {

namespace {

constexpr std::size_t kLineSize = 4096;  // a longer line is cut to this, terminator included
constexpr std::size_t kShortestHeader = 3;

bool IsJunk(char c, char delimiter)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == '"' || byte == '\'' || byte == 0xB4 || c == delimiter;
}

// Calls take(piece) for each piece of a line, terminated in place, until it returns false.
template <class Take>
void ForEachPiece(char* line, char delimiter, Take take)
{
    char* const end = line + std::strlen(line);
    for (char* piece = line;;) {
        char* const pieceEnd = std::find(piece, end, delimiter);
        *pieceEnd = '\0';
        if (!take(piece) || pieceEnd == end)
            return;
        piece = pieceEnd + 1;
    }
}

// Copies a line of bytes as a text of a bounded line buffer.
void CopyLine(char* line, std::string_view bytes)
{
    const std::size_t length = std::min(bytes.size(), kLineSize - 1);
    std::copy_n(bytes.data(), length, line);
    line[length] = '\0';
}

}  // namespace

char* RemoveJunk(char* text, char delimiter)
{
    const std::size_t length = text ? std::strlen(text) : 0;
    if (length < 2)
        return text;
    const auto junk = [delimiter](char c) { return IsJunk(c, delimiter); };
    char* const end = text + length;
    char* const first = std::find_if_not(text, end, junk);
    if (first == end) {
        *text = '\0';
        return text;
    }
    if (first != text)
        std::fill(std::copy(first, end, text), end, end[-1]);
    for (char* last = end - 1; junk(*last); --last)
        *last = '\0';
    return text;
}

void Table::LoadFile(const char* path)
{
    TextFile file(path);
    if (!file.ValidFile())
        return;
    char line[kLineSize];
    while (!Valid()) {
        if (file.eof())
            return;
        file.ReadLine(line, kLineSize);
        TakeHeader(line);
    }
    while (!file.eof()) {
        file.ReadLine(line, kLineSize);
        AddRow(line);
    }
}

void Table::LoadBytes(std::string_view bytes)
{
    char line[kLineSize];
    while (!Valid()) {
        if (bytes.empty())
            return;
        const std::size_t lineEnd = bytes.find('\n');
        CopyLine(line, bytes.substr(0, lineEnd));
        bytes.remove_prefix(lineEnd == bytes.npos ? bytes.size() : lineEnd + 1);
        TakeHeader(line);
    }
    // The line feed that goes on must be two bytes on or later: a short last line, or one without a
    // line feed, is not a row. Tables in the field rely on it.
    while (!bytes.empty() && bytes[0] != '\0' && bytes.find('\n', 2) != bytes.npos) {
        const std::size_t lineEnd = bytes.find('\n');
        CopyLine(line, bytes.substr(0, lineEnd));
        bytes.remove_prefix(lineEnd + 1);
        AddRow(line);
    }
}

bool Table::TakeHeader(char* line)
{
    if (std::strlen(line) < kShortestHeader)
        return false;
    ForEachPiece(line, m_delimiter, [this](char* piece) {
        m_columns.emplace_back().name = RemoveJunk(piece, m_delimiter);
        return true;
    });
    return true;
}

void Table::AddRow(char* line)
{
    if (m_rowCount == std::numeric_limits<int>::max())
        return;
    auto column = m_columns.begin();
    ForEachPiece(line, m_delimiter, [&](char* piece) {
        AddCell(*column, RemoveJunk(piece, m_delimiter));
        return ++column != m_columns.end();
    });
    ++m_rowCount;
}

// A column holds 4 GiB of text at most; a cell beyond that is missing.
void Table::AddCell(Column& column, const char* text) const
{
    const std::size_t size = std::strlen(text) + 1;
    if (column.text.size() + size > kNoCell)
        return;
    column.cells.resize(static_cast<std::size_t>(m_rowCount), kNoCell);
    column.cells.push_back(static_cast<std::uint32_t>(column.text.size()));
    column.text.insert(column.text.end(), text, text + size);
}

int Table::FindColumn(const char* name) const
{
    for (int column = 0; name && column < ColumnCount(); ++column) {
        if (EqualIgnoringCase(ColumnName(column).c_str(), name))
            return column;
    }
    return 0;
}

bool Table::HasColumn(std::string_view name) const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [name](const Column& column) { return column.name == name; });
}

const char* Table::Cell(int row, int column) const
{
    const Column& cells = At(column);
    const auto index = static_cast<std::size_t>(row);
    if (index >= cells.cells.size() || cells.cells[index] == kNoCell)
        return nullptr;
    return cells.text.data() + cells.cells[index];
}

const char* Table::FindFirst(int keyColumn, const char* key, bool ignoreCase,
                             int resultColumn) const
{
    for (int row = 0; Valid() && row < m_rowCount; ++row) {
        const char* cell = Cell(row, keyColumn);
        if (!cell || !(ignoreCase ? EqualIgnoringCase(cell, key) : std::strcmp(cell, key) == 0))
            continue;
        const char* result = Cell(row, resultColumn);
        if (result && *result != '\0')
            return result;
    }
    return nullptr;
}

}  // namespace qx
