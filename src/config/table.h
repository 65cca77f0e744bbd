// A delimited text table in memory: its cells, column by column, and how it is read.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class TextFile;

namespace qx {

// Strips junk (control characters, quotes, apostrophes, acute accents and the delimiter) from both
// ends of a text, in place; returns it. A text of less than two characters, or null, stays as it
// is; one made of junk alone becomes empty. Each junk character removed from the front leaves the
// last character doubled ("abc with its opening quote only becomes abcc): tables in the field rely
// on it. Nothing is written when nothing changes.
char* RemoveJunk(char* text, char delimiter);

// Immutable once loaded.
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
    const std::string& ColumnName(int column) const { return At(column).name; }
    // The first column of this name, ignoring case; 0 when there is none.
    int FindColumn(const char* name) const;
    // Whether a column has exactly this name.
    bool HasColumn(std::string_view name) const;
    // A cell's text; null when the row's line was too short to have it.
    const char* Cell(int row, int column) const;
    // The first cell of `resultColumn` in row order that is not empty and whose row has the key in
    // `keyColumn`; null when there is none.
    const char* FindFirst(int keyColumn, const char* key, bool ignoreCase, int resultColumn) const;

  private:
    // The cells of a column lie together, as a language reads one column of its table.
    struct Column {
        std::string name;
        std::vector<char> text;            // the cells' texts, each with its terminator
        std::vector<std::uint32_t> cells;  // by row: where its text begins, or kNoCell; rows beyond
                                           // the end have no cell
    };
    static constexpr std::uint32_t kNoCell = 0xFFFFFFFF;

    const Column& At(int column) const { return m_columns[static_cast<std::size_t>(column)]; }
    bool TakeHeader(char* line);
    void AddRow(char* line);
    void AddCell(Column& column, const char* text) const;

    std::vector<Column> m_columns;
    int m_rowCount = 0;
    char m_delimiter;
};

}  // namespace qx
