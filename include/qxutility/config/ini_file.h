// INI files: text files of [section] lines with key=value lines below them. INIFile reads one as a
// whole; the functions keep settings in a file with the operating system's profile functions
// (elsewhere than on Windows, with the same behaviour of the library's own).
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

class CLanguage;

// An INI file as it was when it was read. Names are found without regard to the case of the letters
// A to Z; of several values of a key the last one counts. Every line of a section is key=value:
// there are no comments.
//
// Look-ups with a `language` or an `lcid` other than 0 try the language's own section first, named
// "section - language name" by CLanguage::INISection (of the process's language object when
// `language` is null), and then the section itself. An empty value counts as none.
class QX_API INIFile {
  public:
    INIFile();  // empty
    explicit INIFile(const char* path);
    INIFile(const INIFile&);
    INIFile& operator=(const INIFile&);
    ~INIFile();

    // Reads a file in place of what was read before. False when it cannot be opened; also at a
    // section name without ']' and at a line without '=', where what stands before is kept.
    bool Read(const char* path);
    bool Exists() const;  // the last Read succeeded

    // The value, valid while the object is unchanged; never null, empty for a missing key whatever
    // the default.
    const char* GetPrivateProfileStringA(const char* section, const char* key,
                                         const char* defaultValue, const CLanguage* language,
                                         DWORD lcid) const;

    // Copies the value and its terminator and returns how many bytes that were: unlike the system's
    // function of this name, it counts the terminator. With a null `key`: the names of the
    // section's keys in alphabetical order, each ended by NUL, and one more NUL; `size` must be 3
    // at least. A text that fills `size` bytes or more is cut to size - 1 and gives `size`. A
    // missing key, or a section without keys, gives `defaultValue` and its length (without
    // terminator), cut in the same way.
    DWORD GetPrivateProfileStringA(const char* section, const char* key, const char* defaultValue,
                                   char* out, DWORD size, const CLanguage* language,
                                   DWORD lcid) const;

    // The number that the value starts with (its first 63 or 127 characters count), 0 for one that
    // starts with none; decimals as the C locale writes them. `lcid` is not looked at: with a
    // `language` the object's current language counts, without it there is none.
    int GetPrivateProfileIntA(const char* section, const char* key, int defaultValue,
                              const CLanguage* language, DWORD lcid) const;
    double GetPrivateProfileDouble(const char* section, const char* key, double defaultValue,
                                   const CLanguage* language, DWORD lcid) const;

  private:
    struct Data;
    Data* m_data;
};

// The path of the product's INI file: the file `file` in the subfolder `folder` of the application
// data. The first call fixes it for the whole process; after that `folder` and `file` are not
// looked at. `out` must hold MAX_PATH bytes; a longer path is cut.
QX_API void GetINIFileName(const char* folder, const char* file, char* out);
// Sets the path of the product's INI file; with an empty path the next GetINIFileName fixes it.
QX_API void ChangeINIFileName(const char* path);

// Copies a value of any length, quotes and all, cut to size - 1 characters, and returns its full
// length. The key is compared with its case. When it is missing, `out` becomes `defaultValue`
// (null: empty, cut as well), whose length in `out` is returned.
QX_API DWORD GetPrivateProfileBigString(const char* section, const char* key,
                                        const char* defaultValue, char* out, DWORD size,
                                        const char* path);

// Writes every key of one file into the same section of another; keys that are only there stay.
// Of the list of sections and of each list of keys the first 1,022 bytes are looked at, of each
// value the first 259 characters.
QX_API void MergeINIFiles(const char* from, const char* to);

// The 16 custom colours of the colour dialog (0x00BBGGRR), in section "ID" under "Colors". Those
// that the file does not have are read as white.
QX_API void ReadCustomColors(COLORREF colors[16], const char* path);
QX_API void WriteCustomColors(const COLORREF colors[16], const char* path);
