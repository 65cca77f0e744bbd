// How a program speaks its user's language: its own table on its own language object, and the
// library switched together with it.
#pragma once

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <string>
#include <vector>

namespace pipebench {

struct LanguageChoice {
    std::string name;  // in that language
    DWORD lcid;
};

class Localisation {
  public:
    // `module` is the program; `tablePath` its language table. Without a readable table all texts
    // are English, and numbered strings come from the module's string resources.
    Localisation(HINSTANCE module, const std::string& tablePath);
    Localisation(const Localisation&) = delete;
    Localisation& operator=(const Localisation&) = delete;
    ~Localisation();

    // Switches the program and the library; false when they fell back to English.
    bool Use(DWORD lcid);
    // Switches to the language that the product's INI file holds, and stores the one in use there.
    void UseStored();
    void Store();
    // The languages of the table, in its order.
    std::vector<LanguageChoice> Choices() const;

    const CLanguage& Language() const { return m_language; }
    CLanguage& Language() { return m_language; }
    HINSTANCE Module() const { return m_module; }
    std::string String(unsigned id) const { return m_language.String(m_module, id); }

  private:
    HINSTANCE m_module;
    CTableReader m_table;
    CLanguage m_language;
};

}  // namespace pipebench
