// A delimited text table in memory, and how it is read.
#pragma once

#include "config/column.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace qx {

// Strips junk (control characters, quotes, apostrophes, acute accents and the delimiter) from both
// ends of a text, in place; returns it. A text of less than two characters, or null, stays as it
// is; one made of junk alone becomes empty. Each junk character removed from the front leaves the
// last character doubled ("abc with its opening quote only becomes abcc): tables in the field rely
// on it. Nothing is written when nothing changes.
char* RemoveJunk(char* text, char delimiter);
inline bool IsJunk(char c, char delimiter)
{
    const auto byte = static_cast<unsigned char>(c);
    return byte < 32 || byte == '"' || byte == '\'' || byte == 0xB4 || c == delimiter;
}

// Not changed once it is loaded.
class Table {
  public:
    explicit Table(char delimiter) : m_delimiter(delimiter) {}

    // Each reads a header line and the rows; the table stays invalid when there is no header line.
    void LoadFile(const char* path);
    void LoadBytes(std::string_view bytes);

    bool Valid() const { return !m_columns.empty(); }
    char Delimiter() const { return m_delimiter; }
    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    int RowCount() const { return m_rowCount; }
    const std::vector<Column>& Columns() const { return m_columns; }
    // The first column of this name, ignoring case; 0 when there is none.
    int FindColumn(std::string_view name) const;
    // Whether a column has exactly this name.
    bool HasColumn(std::string_view name) const;
    // A cell of a column that FindColumn gave; missing in an invalid table.
    Cell CellAt(std::uint32_t row, int column) const;

  private:
    bool TakeHeader(char* line);
    void AddRow(char* line);

    std::vector<Column> m_columns;
    int m_rowCount = 0;
    char m_delimiter;
};

}  // namespace qx
