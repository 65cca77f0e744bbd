// Strings by number.
#include "config/language_code.h"
#include "config/language_table.h"
#include "platform/resources.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <cstring>

namespace {

unsigned NewText(const std::string& text, char*& copy)
{
    copy = new char[text.size() + 1];
    std::memcpy(copy, text.c_str(), text.size() + 1);
    return static_cast<unsigned>(text.size());
}

}  // namespace

CTableReader* CLanguage::TableOf(HINSTANCE module) const
{
    if (!module || module == m_module)
        return m_table;
    return pLanguages ? (*pLanguages)[module] : nullptr;  // an unknown module gets a null entry
}

std::string CLanguage::Fetch(HINSTANCE module, unsigned id, const char* code) const
{
    if (const CTableReader* table = TableOf(module))
        return qx::Unescaped(qx::FindString(*table->m_table, id, code));
    return qx::platform::ResourceString(module ? module : m_module, id).value_or("");
}

unsigned CLanguage::String(HINSTANCE module, unsigned id, char*& text) const
{
    return NewText(Fetch(module, id, m_code), text);
}

unsigned CLanguage::String(HINSTANCE module, unsigned id, char* buffer, int size) const
{
    const std::string text = Fetch(module, id, m_code);
    if (!text.empty())
        qx::CopyText(buffer, size, text.c_str());
    return static_cast<unsigned>(text.size());
}

std::string CLanguage::String(HINSTANCE module, unsigned id) const
{
    return Fetch(module, id, m_code);
}

unsigned CLanguage::EnglishString(HINSTANCE module, unsigned id, char*& text) const
{
    return NewText(Fetch(module, id, qx::kEnglishCode), text);
}
