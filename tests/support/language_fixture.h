// A language object on a small table of its own, for tests of what is translated.
#pragma once

#include "support/temporary_folder.h"

#include <qxutility/config/language.h>
#include <qxutility/config/table_reader.h>

#include <string>

namespace qx::test {

inline constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407, kFrench = 0x040C;

// A table file that is there as long as the object is.
class TableFile {
  public:
    explicit TableFile(const std::string& content) : m_path(m_folder.Write("table.dat", content)) {}

    const std::string& Path() const { return m_path; }

  private:
    TemporaryFolder m_folder;
    std::string m_path;
};

// Speaks `lcid` with the table; attached to no module.
class TestLanguage {
  public:
    TestLanguage(const std::string& table, DWORD lcid)
        : m_file(table), m_reader(m_file.Path().c_str(), '\t', nullptr, nullptr)
    {
        language.SetStringTable(&m_reader);
        language.SetLanguage(lcid);
    }

    CLanguage language;

  private:
    TableFile m_file;
    CTableReader m_reader;
};

}  // namespace qx::test
