// Translation of wordings.
#include "config/language_code.h"
#include "config/language_table.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/core/numbers.h>
#include <qxutility/core/text.h>

#include <algorithm>
#include <cstring>

namespace {

// Cuts a final ':' off; true when there was one.
bool CutColon(char* text)
{
    const std::size_t length = std::strlen(text);
    if (length == 0 || text[length - 1] != ':')
        return false;
    text[length - 1] = '\0';
    return true;
}

// Adds ':' when it still fits `size`.
void AddColon(char* text, int size)
{
    if (size <= 0)
        return;
    const std::size_t length = std::strlen(text);
    if (length + 1 < static_cast<std::size_t>(size))
        std::memcpy(text + length, ":", 2);
}

// A wording as the table holds it, cut to size - 1 characters.
std::string KeyOf(const char* wording, int size)
{
    std::string key(3 * std::strlen(wording) + 6, '\0');
    PurifyText(wording, key.data(), "\t\r\n");
    key.resize(std::min(std::strlen(key.c_str()), static_cast<std::size_t>(std::max(size, 1)) - 1));
    return key;
}

const char* FindWording(const qx::Table& table, std::string& key, const char* keyCode,
                        const char* resultCode)
{
    qx::RemoveJunk(key.data(), table.Delimiter());
    key.resize(std::strlen(key.c_str()));
    return table.FindFirst(table.FindColumn(keyCode), key.c_str(), true,
                           table.FindColumn(resultCode));
}

// Writes a translation. With one character less than would fit it counts as cut, and takes no ':'.
void PutTranslation(const std::string& translation, bool colon, char* out, int size)
{
    qx::CopyText(out, size, translation.c_str());
    const bool cut = static_cast<long long>(translation.size()) >= size - 2LL;
    if (colon && !cut && (translation.empty() || translation.back() != ':'))
        AddColon(out, size);
}

}  // namespace

bool CLanguage::Text(char* english, char* out, int size, DWORD lcid) const
{
    const bool asIs = !m_table || *english == '\0' || (IsEnglish(0) && lcid == 0) ||
                      std::strstr(english, ":\\") || IsNumber(english, nullptr) != 0;
    if (asIs) {
        qx::CopyText(out, size, english);
        return true;
    }
    const qx::LanguageCode other = qx::CodeOf(lcid);
    const char* keyCode = lcid == 0 ? qx::kEnglishCode : m_code;
    const char* resultCode = lcid == 0 ? m_code : other.text;
    const qx::Table& table = *m_table->m_table;
    const bool colon = CutColon(english);
    std::string key = KeyOf(english, size);
    const char* cell = FindWording(table, key, keyCode, resultCode);
    if (!cell && colon && key.size() + 1 < static_cast<std::size_t>(std::max(size, 0)))
        cell = FindWording(table, key += ':', keyCode, resultCode);
    if (cell) {
        PutTranslation(qx::Unescaped(cell), colon, out, size);
        return true;
    }
    qx::CopyText(out, size, english);
    if (colon)
        AddColon(out, size);
    return false;
}

bool CLanguage::Text(std::string english, std::string& out, DWORD lcid) const
{
    const std::size_t size = std::max<std::size_t>(4 * english.size(), 256);
    std::string translation(size, '\0');
    const bool result = Text(english.data(), translation.data(), static_cast<int>(size), lcid);
    out = translation.c_str();
    return result;
}
