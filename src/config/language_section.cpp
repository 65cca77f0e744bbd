#include "config/language_section.h"

#include "config/language_table.h"
#include "config/process.h"

#include <qxutility/config/language.h>

#include <algorithm>

void CLanguage::INISection(char* section, int size, DWORD lcid) const
{
    if (!IsEnglish(lcid))
        qx::CopyText(section, size, qx::LanguageSection(section, size, lcid).c_str());
}

namespace qx {

std::string LanguageSection(const char* section, int size, DWORD lcid)
{
    std::string name(static_cast<std::size_t>(std::max(size, 1)), '\0');
    Process().language.GetLanguageName(name.data(), size, lcid);
    return std::string(section) + " - " + name.c_str();
}

}  // namespace qx
