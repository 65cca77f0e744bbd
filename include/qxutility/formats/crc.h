// CRC-32 of texts and files, and CRC tables: lists of files with their CRCs, by which an
// application can tell whether a set of installed files is unchanged.
//
// The checksum is reflected, starts with 0xFFFFFFFF and is inverted at the end, as the common
// CRC-32 is, but its generator is 0xEDB68320: the digits "123456789" give 0x46E302BB. CRC tables in
// the field were written with it. It finds accidents, not forgeries.
#pragma once

#include <qxutility/export.h>

#include <cstddef>
#include <functional>

// Results lie in the lower 32 bits of an unsigned long, whatever its size. Objects hold nothing:
// they may be copied freely, and used by any thread.
class QX_API CCrc {
  public:
    CCrc() noexcept;
    virtual ~CCrc();
    CCrc(const CCrc&) noexcept;
    CCrc& operator=(const CCrc&) noexcept;

    // The CRC of a text without its NUL; 0 for an empty or null one. Returns 0.
    unsigned long StringCrc32(const char* text, unsigned long& crc) const noexcept;

    // The CRC of a file, of any size; others may read it meanwhile. Returns 0, or the system's
    // error code (of GetLastError on Windows, of errno elsewhere) when the file cannot be opened,
    // and then its CRC is 0. A read that fails ends the file there. Both functions do the same.
    unsigned long FileCrc32Win32(const char* path, unsigned long& crc) const noexcept;
    unsigned long FileCrc32Assembly(const char* path, unsigned long& crc) const noexcept;

    // Returns the CRC of the last file that a pattern such as "data\*.dat" finds, plus the error
    // code that FileCrc32Win32 has for it; 0 when nothing is found. The file is looked for by its
    // bare name, in the current folder, whatever the pattern's folder. `crc` is left as it is.
    // Which file is the last one is the file system's affair on Windows; elsewhere names are sorted
    // by their bytes.
    unsigned long DirectoryCrc32(const char* pattern, unsigned long& crc) const noexcept;

    // Told after each file how many files of how many are done; the work goes on for as long as it
    // returns true. It must not throw.
    using Progress = std::function<bool(std::size_t done, std::size_t count)>;

    // Writes a CRC table, in place of an older one. `names` are the files' names with commas in
    // between, taken as they stand, spaces included: "a," names "a" and "". They are looked for in
    // the folder of the table, which is everything up to the last separator of its path: a
    // backslash on Windows, a slash elsewhere. Files that cannot be opened count as empty. False
    // when the table cannot be written, when `names` is empty or null, or when `progress` stopped
    // the work; in the latter cases the table is empty.
    static bool BuildCRCTable(const char* names, const char* tablePath) noexcept;
    static bool BuildCRCTable(const char* names, const char* tablePath,
                              const Progress& progress) noexcept;

    // Whether all files listed in a CRC table, and the table itself, are unchanged. False also when
    // the table cannot be read, is in use by a program that writes it, or is larger than 256 MiB.
    // Every file is read, also after a difference, unless `progress` stops the work.
    static bool CheckCRCTable(const char* tablePath) noexcept;
    static bool CheckCRCTable(const char* tablePath, const Progress& progress) noexcept;

  protected:
    // Takes one more byte into a register, which starts as 0xFFFFFFFF and is inverted at the end.
    void CalcCrc32(unsigned char byte, unsigned long& crc) const noexcept;

    // The size of an open file in bytes. `handle` is a HANDLE on Windows; elsewhere a descriptor,
    // converted. False and size 0 when it has none.
    static bool GetFileSizeQW(void* handle, long long& size) noexcept;
};
