#include "config/language_table.h"

#include <qxutility/core/text.h>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace qx {

const char* FindString(const Table& table, unsigned id, const char* code)
{
    char key[16] = {};
    std::to_chars(key, key + sizeof key, static_cast<int>(id));
    const char* cell = table.FindFirst(table.FindColumn("IDS"), key, false, table.FindColumn(code));
    return cell ? cell : kMissingString;
}

std::string LanguageName(const Table& table, const char* code)
{
    if (!table.HasColumn(code))
        return {};
    const char* cell = table.FindFirst(table.FindColumn("IDS"), "L", false, table.FindColumn(code));
    return cell ? cell : "";
}

std::string Unescaped(const char* cell)
{
    std::string text(cell);
    if (text.find('%') != text.npos) {
        UnPurifyText(cell, text.data());
        text.resize(std::strlen(text.c_str()));
    }
    return text;
}

std::size_t CopyText(char* out, int size, const char* text)
{
    const std::size_t length = std::strlen(text);
    if (size <= 0)
        return length;
    const std::size_t copied = std::min(length, static_cast<std::size_t>(size) - 1);
    std::memmove(out, text, copied);
    out[copied] = '\0';
    return length;
}

}  // namespace qx
