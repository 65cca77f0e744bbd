#include "config/table.h"

#include "core/text_key.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <cstring>
#include <limits>

namespace qx {

namespace {

constexpr std::size_t kLineSize = 4096;  // a longer line is cut to this, terminator included
constexpr std::size_t kShortestHeader = 3;

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
        m_columns.emplace_back(RemoveJunk(piece, m_delimiter));
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
        column->Add(static_cast<std::uint32_t>(m_rowCount), RemoveJunk(piece, m_delimiter));
        return ++column != m_columns.end();
    });
    ++m_rowCount;
}

int Table::FindColumn(std::string_view name) const
{
    const auto found = std::find_if(m_columns.begin(), m_columns.end(), [name](const Column& c) {
        return EqualKeys<Case::Ignored>(c.Name(), name);
    });
    return found == m_columns.end() ? 0 : static_cast<int>(found - m_columns.begin());
}

bool Table::HasColumn(std::string_view name) const
{
    return std::any_of(m_columns.begin(), m_columns.end(),
                       [name](const Column& column) { return column.Name() == name; });
}

Cell Table::CellAt(std::uint32_t row, int column) const
{
    return Valid() ? m_columns[static_cast<std::size_t>(column)].Of(row) : Cell{};
}

}  // namespace qx
