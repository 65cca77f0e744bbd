// Strings by number.
#include "config/language_table.h"
#include "platform/resources.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <charconv>
#include <cstring>

namespace {

unsigned Put(std::string_view text, char* buffer, int size)
{
    if (!text.empty())
        qx::CopyText(buffer, size, text);
    return static_cast<unsigned>(text.size());
}

unsigned Allocate(std::string_view text, char*& copy)
{
    copy = qx::NewText(text);
    return static_cast<unsigned>(text.size());
}

// A string by its number's text. Signed, as numbers have always been looked up: 4294967295 is "-1".
std::string FindByText(const qx::IndexedTable& table, unsigned id, const char* code)
{
    char key[16];
    const char* const end = std::to_chars(key, key + sizeof key, static_cast<int>(id)).ptr;
    const qx::Cell cell =
        table.FindFirst(table.Cells().FindColumn("IDS"), {key, static_cast<std::size_t>(end - key)},
                        qx::Case::Matters, table.Cells().FindColumn(code));
    return cell.Missing() ? std::string(qx::kMissingString) : qx::ShownText(cell.View());
}

}  // namespace

CTableReader* CLanguage::TableOf(HINSTANCE module) const
{
    if (!module || module == m_module)
        return m_table;
    return pLanguages ? (*pLanguages)[module] : nullptr;  // an unknown module gets a null entry
}

// Calls use(text) with a string of the language: nearly always one in the index of its table.
template <class Use>
inline unsigned CLanguage::WithString(HINSTANCE module, unsigned id, const char* code,
                                      Use use) const
{
    const CTableReader* table = !module || module == m_module ? m_table : TableOf(module);
    if (!table) {
        const auto text = qx::platform::ResourceString(module ? module : m_module, id);
        return use(text.value_or(""));
    }
    qx::LanguageCode column;
    std::memcpy(&column, code, sizeof column);
    const qx::StringIndex& strings = table->m_table->Strings(column);
    return strings.Covers(id) ? use(strings[id]) : use(FindByText(*table->m_table, id, code));
}

unsigned CLanguage::String(HINSTANCE module, unsigned id, char*& text) const
{
    return WithString(module, id, m_code,
                      [&text](std::string_view found) { return Allocate(found, text); });
}

unsigned CLanguage::String(HINSTANCE module, unsigned id, char* buffer, int size) const
{
    return WithString(module, id, m_code,
                      [=](std::string_view found) { return Put(found, buffer, size); });
}

std::string CLanguage::String(HINSTANCE module, unsigned id) const
{
    std::string text;
    WithString(module, id, m_code, [&text](std::string_view found) {
        text = found;
        return 0U;
    });
    return text;
}

unsigned CLanguage::EnglishString(HINSTANCE module, unsigned id, char*& text) const
{
    return WithString(module, id, qx::kEnglishCode.text,
                      [&text](std::string_view found) { return Allocate(found, text); });
}
