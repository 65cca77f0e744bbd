// Delimited text tables held in memory, with look-ups by column values.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

// Bits of the flags of CTableReader::Query.
inline constexpr DWORD kQueryUnique = 0x80000000;      // a value already in the result is skipped
inline constexpr DWORD kQueryIgnoreCase = 0x40000000;  // cells and criteria compare without case

class QX_API CTableReader {
 public:
    CTableReader(const char* name, char delimiter, HINSTANCE module, const char* resourceType);
    CTableReader(const CTableReader&);
    CTableReader& operator=(const CTableReader&);
    ~CTableReader();

    bool Valid() const;
    int Query(char*& result, int maxResults, DWORD flags, const char* returnColumn, ...) const;
    bool Query(char* out, int outSize, int row, int column) const;
    int GetHeader(char*& header) const;
    char* RemoveJunk(char* text) const;
#if QX_WINDOWS
    static void Fill(bool comboBox, HWND control, const char* list, char delimiter,
                     bool addLastSorted);
#endif

 private:
    struct Data;
    Data* m_data;
};
