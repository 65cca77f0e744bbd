// Cleaning and escaping of 8-bit texts for a given use, and small helpers on texts and paths.
//
// Texts are NUL-terminated, never null but where it is said, and belong to the caller. Functions
// that work in place return the text they were given. None of these functions reports an error.
#pragma once

#include <qxutility/export.h>

#include <string>
#include <vector>

// Makes a text fit for a file name, in place: control characters and each of <>:/\"|*?&' and the
// blank become "_". Bytes from 0x80 up are kept.
QX_API char* Sanitize(char* text);
// The same, but "&", "'" and the blank are kept.
QX_API char* SanitizeNoAsp(char* text);

// Copies `src` to `dst`; every character but letters, digits (as the runtime's locale has them) and
// "." becomes "%" and two lower-case hexadecimal digits. Every byte from 0x80 up becomes "%ff": its
// value is lost. `dst` must hold three times the length of `src` plus six characters.
QX_API void PurifyText(const char* src, char* dst);
// The same, but it escapes exactly the characters that occur in `escapeSet`.
QX_API void PurifyText(const char* src, char* dst, const char* escapeSet);
// Copies `src` to `dst`; "%" and two hexadecimal digits become the byte of that value, also 0. Any
// other "%" is copied. `dst` may be `src`, otherwise it must hold the length of `src` plus one.
QX_API void UnPurifyText(const char* src, char* dst);

// Puts a text of several lines on one, in place: each CR and each LF becomes "|".
QX_API char* nCleanString(char* text);
// Takes that back, in place: each "||" becomes CR LF; a single "|" stays.
QX_API char* nRestoreString(char* text);

// The text between its double quotes, either of which may be missing. The result points into
// `text`, where a quote at the end is overwritten with NUL. Null gives null.
QX_API char* UnquoteString(char* text);

// Makes a label show its ampersands, in place: every run of "&" becomes "&&", runs at the start and
// at the end disappear. The buffer must hold the result: at most half as long again as the text.
QX_API void AddAnotherAmpersand(char* text) noexcept;

// Escapes `src` for a query string into the `size` characters at `dst`, terminator included, and
// returns `dst`. Letters and digits (as the runtime's locale has them) are copied, any other
// character becomes "%" and its lower-case hexadecimal value, padded with a blank to two places (a
// tab gives "% 9"). Stops when `dst` is full; an escape that no longer fits is left out, later
// letters may still fit. Size 0 writes nothing.
QX_API char* ASPit(const char* src, char* dst, unsigned size);

// Copies at most size - 1 characters, terminates them and returns `dst`. Size 0 writes nothing.
QX_API char* rstrncpy(char* dst, const char* src, unsigned size);

// The folder of a file name, without its final backslash: the text up to the last backslash, or the
// first character of a name that has none. The result, of at most 259 characters, stands in one
// static buffer that the next call overwrites, from whatever thread.
QX_API char* Path(const char* fileName);

// Splits a command line whose program may contain blanks and is not quoted: the program is the
// longest part up to a blank that the system finds (".exe" is added to a name without extension),
// the whole line when it finds none. `program` receives it as typed, at most 259 characters;
// `arguments` all that follows, from the blank on. Either may be null.
QX_API void SplitName(const char* commandLine, char* program, char* arguments) noexcept;

// The parts of a text between any of the delimiters; empty parts are left out.
QX_API std::vector<std::string> tokenize(const std::string& text,
                                         const std::string& delimiters) noexcept;
