// Translation of wordings.
#include "config/language_table.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>
#include <qxutility/core/numbers.h>
#include <qxutility/core/text.h>

#include <algorithm>
#include <cstring>

namespace {

bool IsLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Paths and numbers are the same in every language.
bool IsUniversal(char* text, std::string_view view)
{
    // No number starts with a letter, whatever the decimal character: most texts are settled here.
    return view.find(":\\") != view.npos || (!IsLetter(*text) && IsNumber(text, nullptr) != 0);
}

std::size_t Capacity(int size)
{
    return size > 0 ? static_cast<std::size_t>(size) - 1 : 0;
}

// A wording as the table has it. Refers to the text given when nothing has to be changed.
class Key {
  public:
    Key(std::string_view wording, std::size_t capacity, char delimiter) : m_delimiter(delimiter)
    {
        if (qx::HasControl(wording))
            Escape(wording);
        else
            m_view = wording;
        m_view = m_view.substr(0, capacity);
        if (m_view.size() >= 2 && (IsJunk(m_view.front()) || IsJunk(m_view.back())))
            Clean(std::string(m_view));
    }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    void AppendColon() { Clean(std::string(m_view) + ':'); }
    std::string_view View() const { return m_view; }

  private:
    void Escape(std::string_view wording)
    {
        m_own.resize(3 * wording.size() + 6);
        PurifyText(std::string(wording).c_str(), m_own.data(), "\t\r\n");
        m_view = m_own.c_str();
    }
    void Clean(std::string text)
    {
        m_own = std::move(text);
        m_view = qx::RemoveJunk(m_own.data(), m_delimiter);
    }
    bool IsJunk(char c) const { return qx::IsJunk(c, m_delimiter); }

    std::string m_own;
    std::string_view m_view;
    char m_delimiter;
};

// The translation of a wording whose final ':' was cut off: without it, else with it.
std::string_view Find(const qx::WordingIndex& wordings, std::string_view wording, bool colon,
                      std::size_t capacity, char delimiter)
{
    Key key(wording, capacity, delimiter);
    const std::string_view found = wordings.Find(key.View());
    if (found.data() || !colon || key.View().size() == capacity)
        return found;
    key.AppendColon();
    return wordings.Find(key.View());
}

// Puts a ':' behind a text when it still fits.
void AddColon(char* out, std::size_t length, std::size_t capacity)
{
    if (length < capacity)
        std::memcpy(out + length, ":", 2);
}

void PutTranslation(std::string_view translation, bool colon, char* out, int size)
{
    qx::CopyText(out, size, translation);
    // A translation that leaves room for one character only counts as cut, and takes no ':'.
    if (colon && translation.size() + 1 < Capacity(size) && !translation.ends_with(':'))
        AddColon(out, translation.size(), Capacity(size));
}

}  // namespace

bool CLanguage::Text(char* english, char* out, int size, DWORD lcid) const
{
    std::string_view wording(english);
    if (!m_table || wording.empty() || (lcid == 0 && IsEnglish(0)) ||
        IsUniversal(english, wording)) {
        qx::CopyText(out, size, wording);
        return true;
    }
    const bool colon = wording.back() == ':';
    if (colon) {
        wording.remove_suffix(1);
        english[wording.size()] = '\0';
    }
    qx::LanguageCode current;
    std::memcpy(&current, m_code, sizeof current);
    const qx::IndexedTable& table = *m_table->m_table;
    const qx::WordingIndex& wordings = lcid == 0 ? table.Wordings(qx::kEnglishCode, current)
                                                 : table.Wordings(current, qx::CodeOf(lcid));
    const std::string_view translation =
        Find(wordings, wording, colon, Capacity(size), table.Cells().Delimiter());
    if (translation.data()) {
        PutTranslation(translation, colon, out, size);
        return true;
    }
    qx::CopyText(out, size, wording);
    if (colon)
        AddColon(out, wording.size(), Capacity(size));
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
