// The language in the INI file, and the INI sections of languages.
#include "config/language_section.h"
#include "config/language_table.h"
#include "config/product_ini.h"
#include "platform/profile.h"

#include <qxutility/config/language.h>

#include <cstdlib>

static constexpr char kLanguageKey[] = "LANGUAGE";

DWORD CLanguage::GetDefault(std::string section) const
{
    // Read as decimal, the default is no installed locale: the language is then English.
    const std::string value = qx::platform::ProfileValue(section.c_str(), kLanguageKey, "0901", 20,
                                                         qx::ProductIni().c_str());
    return static_cast<DWORD>(std::atol(value.c_str()));
}

void CLanguage::SaveDefault(std::string section)
{
    qx::platform::WriteProfileString(section.c_str(), kLanguageKey, std::to_string(m_lcid).c_str(),
                                     qx::ProductIni().c_str());
}

static bool HasKeys(const char* iniFile, const std::string& section)
{
    char keys[16];
    return qx::platform::ProfileString(section.c_str(), nullptr, "", keys, sizeof keys, iniFile) >
           0;
}

void CLanguage::INISection(const char* iniFile, char* section, int size, DWORD lcid) const
{
    if (IsEnglish(lcid))
        return;
    const std::string ofLanguage = qx::LanguageSection(section, size, lcid);
    if (HasKeys(iniFile, ofLanguage))
        qx::CopyText(section, size, ofLanguage.c_str());
}
