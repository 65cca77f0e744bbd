#include "core/localisation.h"

#include <qxutility/config/startup.h>
#include <qxutility/core/text.h>

#include <cstdlib>
#include <memory>

namespace pipebench {

Localisation::Localisation(HINSTANCE module, const std::string& tablePath)
    : m_module(module), m_table(tablePath.c_str(), '\t', nullptr, nullptr)
{
    m_language.Attach(module, m_table.Valid() ? &m_table : nullptr);
}

Localisation::~Localisation()
{
    m_language.Detach(m_module);
}

bool Localisation::Use(DWORD lcid)
{
    const bool found = m_language.SetLanguage(lcid) == 0;
    QXUtility_SetLanguage(m_language.GetLanguage());
    return found;
}

static constexpr char kSection[] = "ID";

void Localisation::UseStored()
{
    Use(m_language.GetDefault(kSection));
}

void Localisation::Store()
{
    m_language.SaveDefault(kSection);
}

// A column is named by primary language and sublanguage: "07-01".
static DWORD ToLcid(const std::string& column)
{
    if (column.size() != 5)
        return 0;
    const int primary = std::atoi(column.substr(0, 2).c_str());
    const int sub = std::atoi(column.substr(3).c_str());
    return static_cast<DWORD>(sub << 10 | primary);
}

std::vector<LanguageChoice> Localisation::Choices() const
{
    char* header = nullptr;
    m_table.GetHeader(header);
    const std::unique_ptr<char[]> owner(header);
    std::vector<LanguageChoice> choices;
    const auto columns = tokenize(header ? header : "", "\t");
    for (std::size_t i = 1; i < columns.size(); ++i) {  // the first is the key column
        const DWORD lcid = ToLcid(columns[i]);
        choices.push_back({m_language.GetLanguageName(lcid), lcid});
    }
    return choices;
}

}  // namespace pipebench
