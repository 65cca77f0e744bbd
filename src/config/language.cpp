#include "config/language_code.h"
#include "config/language_table.h"
#include "platform/locale.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <cstring>

std::map<HINSTANCE, CTableReader*>* CLanguage::pLanguages = nullptr;

CLanguage::CLanguage() : m_table(nullptr), m_module(nullptr)
{
    SetAsserts(false);
    SetLanguage(9, 1);
}

CLanguage::CLanguage(const CLanguage&) = default;
CLanguage& CLanguage::operator=(const CLanguage&) = default;

CLanguage::~CLanguage()
{
    if (pLanguages && pLanguages->empty()) {
        delete pLanguages;
        pLanguages = nullptr;
    }
}

void CLanguage::Attach(HINSTANCE module, CTableReader* table)
{
    m_module = module;
    m_table = table;
    if (!pLanguages)
        pLanguages = new std::map<HINSTANCE, CTableReader*>;
    (*pLanguages)[module] = table;
}

void CLanguage::SetStringTable(CTableReader* table)
{
    m_table = table;
}

void CLanguage::Detach(HINSTANCE)
{
    if (pLanguages)
        pLanguages->erase(m_module);
}

int CLanguage::SetLanguage(unsigned short primary, unsigned short sub)
{
    return SetLanguage(static_cast<DWORD>((sub << 10 | primary) & 0xFFFF));
}

int CLanguage::SetLanguage(DWORD lcid)
{
    const bool installed = qx::platform::IsInstalledLocale(lcid);
    m_lcid = installed ? lcid : qx::kEnglishLocale;
    int result = installed ? 0 : -1;
    qx::LanguageCode code = qx::CodeOf(m_lcid);
    if (m_table && !m_table->m_table->Cells().HasColumn(code.text)) {
        code = qx::CodeOf(qx::PrimaryLanguage(m_lcid), 1);
        if (!m_table->m_table->Cells().HasColumn(code.text)) {
            m_lcid = qx::kEnglishLocale;
            code = qx::CodeOf(m_lcid);
            result = -1;
        }
    }
    std::memcpy(m_code, code.text, sizeof m_code);
    return result;
}

DWORD CLanguage::GetLanguage() const
{
    return m_lcid;
}

DWORD CLanguage::WEB_GetDefaultLCID(int primary)
{
    return static_cast<DWORD>(primary | 0x400);
}

void CLanguage::SetAsserts(bool)
{
    m_asserts = false;
}

bool CLanguage::IsEnglish(DWORD lcid) const
{
    return qx::PrimaryLanguage(lcid != 0 ? lcid : m_lcid) == 9;
}

std::string CLanguage::GetLanguageName(DWORD lcid) const
{
    if (!m_table || lcid == 0)
        return "English";
    return qx::LanguageName(*m_table->m_table, qx::CodeOf(lcid).text);
}

std::string CLanguage::GetLanguageName() const
{
    return GetLanguageName(m_lcid);
}

char* CLanguage::GetLanguageName(char* buffer, int size, DWORD lcid) const
{
    qx::CopyText(buffer, size, "English");
    if (!m_table)
        return buffer;
    const qx::LanguageCode code = qx::CodeOf(lcid);
    const std::string name = qx::LanguageName(*m_table->m_table, lcid != 0 ? code.text : m_code);
    if (size > 0 && name.size() < static_cast<std::size_t>(size))
        qx::CopyText(buffer, size, name.c_str());
    return buffer;
}
