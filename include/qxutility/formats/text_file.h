// Line reader and text writer on files, a block at a time.
#pragma once

#include <qxutility/export.h>

#include <cstddef>
#include <cstdint>

// Reads lines that end at CR (CR LF or a bare CR; a bare LF ends none). Move-only.
class QX_API TextFile {
 public:
    explicit TextFile(const char* path);
    TextFile(TextFile&& other) noexcept;
    TextFile& operator=(TextFile&& other) noexcept;
    ~TextFile();

    bool ValidFile() const;
    // The next line, without its end; `line` must hold the longest line.
    void ReadLine(char* line);
    // The bounded form: at most size - 1 characters and the terminator; the rest of a longer line
    // is skipped. Returns the full length of the line.
    std::size_t ReadLine(char* line, std::size_t size);
    bool eof() const;
    std::uint64_t Size() const;
    void Restart();

 private:
    struct State;
    State* m_state;
};

// Writes texts through a buffer of the capacity given.
class QX_API QXTextOutput {
 public:
    QXTextOutput(const char* path, int capacity);
    QXTextOutput(QXTextOutput&& other) noexcept;
    QXTextOutput& operator=(QXTextOutput&& other) noexcept;
    ~QXTextOutput();

    explicit operator bool() const;
    void AddString(const char* text);
    bool Flush();

 private:
    struct State;
    State* m_state;
};
