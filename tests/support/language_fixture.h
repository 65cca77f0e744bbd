// A language object on a small table of its own, for tests of what is translated.
#pragma once

#include "support/scratch_folder.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <string>

namespace qx::test {

inline constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407, kFrench = 0x040C;

// Speaks `lcid` with the table; attached to no module.
class TestLanguage {
  public:
    TestLanguage(const std::string& table, DWORD lcid)
        : m_reader(m_folder.Add("language.dat", table).c_str(), '\t', nullptr, nullptr)
    {
        language.SetStringTable(&m_reader);
        language.SetLanguage(lcid);
    }

    CLanguage language;

  private:
    ScratchFolder m_folder;
    CTableReader m_reader;
};

}  // namespace qx::test
