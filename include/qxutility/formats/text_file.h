// Line readers and a buffered writer of 8-bit text files. Bytes are taken as they are, without any
// conversion. No object is for use by two threads at once.
#pragma once

#include <qxutility/export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

// Reads lines that end with CR LF or a bare CR; a bare LF ends none. The last line needs no end.
// After a final line end the reader is not yet at its end: one more, empty line follows.
//
// Move-only; an object that was moved from may only be assigned to or destroyed.
class QX_API TextFile {
  public:
    // Opens an existing file; others may read it meanwhile. Without one, there are no lines.
    explicit TextFile(const char* path) noexcept;
    TextFile(TextFile&& other) noexcept;
    TextFile& operator=(TextFile&& other) noexcept;
    ~TextFile();

    bool ValidFile() const;

    // Delivers the next line without its end; the empty text at the end of the file. A NUL byte
    // cuts a line: what follows it within the same 4095 bytes of the file (counted from the file's
    // start) is lost. `line` must hold the longest line.
    void ReadLine(char* line);
    // The same line cut to size - 1 characters; the rest of it is skipped. Size 0 writes nothing.
    // Returns the length of the whole line.
    std::size_t ReadLine(char* line, std::size_t size);
    // The same line, however long.
    void ReadLine(std::string& line) noexcept;

    // True when as many bytes were consumed as the file had when it was opened, or no more can be
    // read.
    bool eof() const;
    // The size in bytes when the file was opened; 0 without a file.
    std::uint64_t Size() const;
    // Goes back to the first line.
    void Restart();

  private:
    class Reader;
    std::unique_ptr<Reader> m_reader;
};

// Collects texts in a buffer and writes them to a file when it is full.
//
// Move-only; an object that was moved from may only be assigned to or destroyed.
class QX_API QXTextOutput {
  public:
    // Creates the file or empties an existing one; others may write to it meanwhile. `capacity` is
    // the size of the buffer in bytes; with 0 or less every text is written at once.
    QXTextOutput(const char* path, int capacity) noexcept;
    QXTextOutput(QXTextOutput&& other) noexcept;
    QXTextOutput& operator=(QXTextOutput&& other) noexcept;
    // Writes what is held and closes the file.
    ~QXTextOutput();

    // True when the file opened.
    operator bool() const;
    // Holds the text, and writes what was held before when both together reach the capacity. A text
    // that reaches it alone is written at once.
    void AddString(const char* text) noexcept;
    // Writes what is held. False when this failed, or writing by AddString since the last Flush:
    // the texts in question are lost.
    bool Flush();

  private:
    struct State;
    std::unique_ptr<State> m_state;
};

// Reads the next line of a file that the application opened itself: `file` is a handle of _lopen on
// Windows, a descriptor of open elsewhere. Lines end with CR and one more byte (LF); a line without
// is not delivered. Returns 0 when `line` received a line, without its end, and 1 when there is
// none or reading failed.
//
// `buffer` is a work buffer of at least 1024 bytes, the same on every call. What is kept between
// calls is static: one file is read at a time, and `restart` is true on the first call for a file.
// Lines of up to 383 characters are always found; `line` must hold the longest line.
QX_API int GetNextLine(int file, char* buffer, char* line, bool restart);
