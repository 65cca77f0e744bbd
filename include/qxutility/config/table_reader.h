// Delimited text tables held in memory, with look-ups by column values.
//
// The first line of three or more characters names the columns; every later line is a row, a blank
// one included. There is no quoting: a delimiter always separates cells. Cells beyond the header's
// columns are dropped, cells that a line is too short for are missing (not empty). Lines are cut to
// 4095 characters, at a NUL byte, and each cell and name is cleaned by RemoveJunk.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <memory>

namespace qx {
class IndexedTable;
}

// Bits of the flags of CTableReader::Query.
inline constexpr DWORD kQueryUnique = 0x80000000;      // a value already in the result is skipped
inline constexpr DWORD kQueryIgnoreCase = 0x40000000;  // cells and criteria compare without case

// A table, read once by the constructor and never changed. Copies share what was read.
class QX_API CTableReader {
  public:
    // Reads file `name`, whose lines end at CR (a LF behind it is skipped); or, when `module` and
    // `resourceType` are both given, that resource of the module, whose lines end at LF and must
    // have that end. A final CR LF of a file is followed by one more, blank, row.
    CTableReader(const char* name, char delimiter, HINSTANCE module, const char* resourceType);
    CTableReader(const CTableReader&);
    CTableReader& operator=(const CTableReader&);
    ~CTableReader();

    // Whether there was a header line. Every look-up in an invalid table finds nothing.
    bool Valid() const;

    // The cells of `returnColumn`, in row order, of the rows in which each criterion's column
    // equals its value. Criteria are pairs (const char* column, const char* value) ended by a null
    // column; without any, every row matches. A missing cell matches nothing; a missing or empty
    // result cell adds nothing. A name of no column means the first column (case does not matter in
    // names). `maxResults` ends the search, 0 means all. Values are cleaned in place by RemoveJunk.
    // `result` gets each value followed by a tab, or for `maxResults` 1 the bare value; it is
    // always allocated, the caller frees it with delete[]. Returns the number of values. Without
    // case means A to Z as a to z; other bytes, accented letters too, are only themselves.
    int Query(char*& result, int maxResults, DWORD flags, const char* returnColumn, ...) const;

    // Copies a cell. False, and `out` untouched, when there is no such row, column or cell, or when
    // text and terminator are longer than `outSize`.
    bool Query(char* out, int outSize, int row, int column) const;

    // Every column name followed by a tab (the caller frees it with delete[]); returns their
    // number.
    int GetHeader(char*& header) const;

    // Strips junk (characters below 32, quotes, apostrophes, acute accents, the delimiter) from
    // both ends of a text in place and returns it. A text of less than two characters, or null, is
    // left as it is. Each character taken from the front leaves the last one doubled, as it always
    // did.
    char* RemoveJunk(char* text) const;

#if QX_WINDOWS
    // Puts the items of a list (as Query returns it) into a combo box or list box, their numbers in
    // the user's form; with `addLastSorted` the last item goes where the control sorts it.
    static void Fill(bool comboBox, HWND control, const char* list, char delimiter,
                     bool addLastSorted);
#endif

  private:
    friend class CLanguage;
    std::shared_ptr<const qx::IndexedTable> m_table;  // never null
};
