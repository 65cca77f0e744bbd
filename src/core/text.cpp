#include "platform/path_search.h"

#include <qxutility/core/text.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <string_view>

namespace {

// Size of the buffers that hold a path, terminator included.
constexpr unsigned kPathSize = 260;
constexpr char kHexDigits[] = "0123456789abcdef";

unsigned char Byte(char c)
{
    return static_cast<unsigned char>(c);
}

bool IsAlphanumeric(char c)
{
    return std::isalnum(Byte(c)) != 0;
}

bool IsHexDigit(char c)
{
    return std::isxdigit(Byte(c)) != 0;
}

unsigned HexValue(char digit)
{
    const unsigned value = Byte(digit);
    return digit <= '9' ? value - '0' : (value | 0x20) - 'a' + 10;
}

char* ReplaceForFileName(char* text, std::string_view forbidden)
{
    for (char* p = text; *p; ++p) {
        if (Byte(*p) < 0x20 || forbidden.find(*p) != std::string_view::npos)
            *p = '_';
    }
    return text;
}

template <typename MustEscape>
void EscapePercent(const char* src, char* dst, MustEscape mustEscape)
{
    for (; *src; ++src) {
        if (!mustEscape(*src)) {
            *dst++ = *src;
            continue;
        }
        // Bytes from 0x80 up all become "%ff": files in the field hold them so.
        const unsigned value = Byte(*src) < 0x80 ? Byte(*src) : 0xFF;
        *dst++ = '%';
        *dst++ = kHexDigits[value >> 4];
        *dst++ = kHexDigits[value & 0xF];
    }
    *dst = '\0';
}

}  // namespace

char* Sanitize(char* text)
{
    return ReplaceForFileName(text, "<>:/\\\"|*?&' ");
}

char* SanitizeNoAsp(char* text)
{
    return ReplaceForFileName(text, "<>:/\\\"|*?");
}

void PurifyText(const char* src, char* dst)
{
    // No locale makes a letter of a byte from 0x80 up here: the result is the same everywhere.
    EscapePercent(src, dst,
                  [](char c) { return Byte(c) >= 0x80 || (!IsAlphanumeric(c) && c != '.'); });
}

void PurifyText(const char* src, char* dst, const char* escapeSet)
{
    const std::string_view set = escapeSet;
    EscapePercent(src, dst, [set](char c) { return set.find(c) != std::string_view::npos; });
}

void UnPurifyText(const char* src, char* dst)
{
    while (*src) {
        if (*src == '%' && IsHexDigit(src[1]) && IsHexDigit(src[2])) {
            *dst++ = static_cast<char>(HexValue(src[1]) << 4 | HexValue(src[2]));
            src += 3;
        } else {
            *dst++ = *src++;
        }
    }
    *dst = '\0';
}

char* nCleanString(char* text)
{
    for (char* p = text; *p; ++p) {
        if (*p == '\r' || *p == '\n')
            *p = '|';
    }
    return text;
}

char* nRestoreString(char* text)
{
    for (char* p = std::strstr(text, "||"); p; p = std::strstr(p + 2, "||")) {
        p[0] = '\r';
        p[1] = '\n';
    }
    return text;
}

char* UnquoteString(char* text)
{
    if (!text)
        return nullptr;
    if (*text == '"')
        ++text;
    const std::size_t length = std::strlen(text);
    if (length > 0 && text[length - 1] == '"')
        text[length - 1] = '\0';
    return text;
}

void AddAnotherAmpersand(char* text) noexcept
{
    std::string label;
    for (const std::string& part : tokenize(text, "&")) {
        if (!label.empty())
            label += "&&";
        label += part;
    }
    std::memcpy(text, label.c_str(), label.size() + 1);
}

char* ASPit(const char* src, char* dst, unsigned size)
{
    if (size == 0)
        return dst;
    char* out = dst;
    const char* const end = dst + (size - 1);
    for (; *src && out < end; ++src) {
        if (IsAlphanumeric(*src)) {
            *out++ = *src;
        } else if (end - out >= 3) {
            // Below 0x10 padded with a blank, not a zero: what receives the text expects it so.
            *out++ = '%';
            *out++ = Byte(*src) < 0x10 ? ' ' : kHexDigits[Byte(*src) >> 4];
            *out++ = kHexDigits[Byte(*src) & 0xF];
        }
    }
    *out = '\0';
    return dst;
}

char* rstrncpy(char* dst, const char* src, unsigned size)
{
    if (size == 0)
        return dst;
    const void* end = std::memchr(src, '\0', size - 1);
    const std::size_t length =
        end ? static_cast<std::size_t>(static_cast<const char*>(end) - src) : size - 1;
    std::memmove(dst, src, length);
    dst[length] = '\0';
    return dst;
}

char* Path(const char* fileName)
{
    static std::array<char, kPathSize> buffer;
    char* p = rstrncpy(buffer.data(), fileName, kPathSize);
    p += std::strlen(p);
    // A name without a backslash keeps its first character: applications rely on the folder of a
    // bare name not being empty.
    while (p != buffer.data() && *p != '\\')
        *p-- = '\0';
    if (*p == '\\')
        *p = '\0';
    return buffer.data();
}

// The part of a command line up to a blank that the system finds as a program, or the whole.
static std::string FindProgramPart(const std::string& line)
{
    std::string part = line;
    while (qx::platform::FindProgram(part.c_str(), ".exe").empty()) {
        const std::size_t blank = part.rfind(' ');
        if (blank == std::string::npos)
            return line;
        part.resize(blank);
    }
    return part;
}

void SplitName(const char* commandLine, char* program, char* arguments) noexcept
{
    std::array<char, kPathSize> line;
    const std::string part = FindProgramPart(rstrncpy(line.data(), commandLine, kPathSize));
    const char* rest = commandLine + part.size();
    if (program)
        std::memcpy(program, part.c_str(), part.size() + 1);
    if (arguments)
        std::memmove(arguments, rest, std::strlen(rest) + 1);
}

std::vector<std::string> tokenize(const std::string& text, const std::string& delimiters) noexcept
{
    std::vector<std::string> tokens;
    std::size_t start = text.find_first_not_of(delimiters);
    while (start != std::string::npos) {
        const std::size_t end = std::min(text.find_first_of(delimiters, start), text.size());
        tokens.push_back(text.substr(start, end - start));
        start = text.find_first_not_of(delimiters, end);
    }
    return tokens;
}
