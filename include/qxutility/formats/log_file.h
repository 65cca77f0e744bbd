// Diagnostic logs: text files that keep the entries of the last ten days.
#pragma once

#include <qxutility/export.h>

#include <cstdint>
#include <fstream>
#include <memory>

// A log that is appended to. Every object adds an entry of its own, with a header line such as
// "[1226534400] Log entry for 11/13/08 at 09:20:00" (seconds since 1970 UTC, then local time), and
// what is written through the object follows it. The file is open, for others to write too, only
// while a line is incomplete. What cannot be written is lost silently.
//
// Not for use by two threads at once.
class QX_API LogFile : public std::ofstream {
  public:
    // Adds the header line to the log, which is created when there is none, and prunes it. `path`
    // is used up to its 259th character.
    explicit LogFile(const char* path) noexcept;

    // Writes a character. A line feed ends the line and closes the file; when the file is closed
    // already, it is lost.
    LogFile& operator<<(char c);
    // Writes a text. When it ends with a line feed, the file is closed.
    LogFile& operator<<(const char* text);
    // Writes a number as the stream formats it; the line stays open.
    LogFile& operator<<(double value);
    LogFile& operator<<(int value);

    // Writes a text and closes the file.
    void write(const char* text);

    // Prunes the log, after closing it. Entries go that were begun more than ten days before this
    // object was made, and what stands before the first entry. A line of more than 511 characters
    // is cut there and what follows it goes too. A log that can be written but not read is replaced
    // by an empty one. When the new log cannot be written in full, the old one stays as it is.
    void clear() noexcept;

  private:
    void OpenToAppend();
    void CloseIfOpen();

    char m_path[260];
    std::int64_t m_created;  // seconds since 1970 UTC
};

// A log in the file "marvend.log" of the current folder, made when the first thing is written.
class QX_API Autolog {
  public:
    Autolog() noexcept;
    Autolog(Autolog&& other) noexcept;
    Autolog& operator=(Autolog&& other) noexcept;
    ~Autolog();

    // As the operators of LogFile.
    Autolog& operator<<(char c);
    Autolog& operator<<(const char* text);
    Autolog& operator<<(double value);
    Autolog& operator<<(int value);

  private:
    LogFile& Log() noexcept;

    std::unique_ptr<LogFile> m_log;
};
