#include "config/process.h"
#include "doubles/module_double.h"
#include "doubles/resources_double.h"
#include "support/temporary_folder.h"

#include <qxutility/config/startup.h>

#include <filesystem>
#include <gtest/gtest.h>

using qx::Process;

static const HINSTANCE kLibrary = qx::test::FakeModule(1);
static constexpr DWORD kGerman = 0x0407, kPolish = 0x0415;

// The library in a folder of its own, not attached yet.
class Startup : public testing::Test {
  protected:
    Startup()
    {
        m_modules.paths[kLibrary] = m_folder.Path("library");
        m_resources.strings[{kLibrary, 9}] = "from the resources";
    }
    ~Startup() override { qx::DetachProcess(); }

    void WriteTable(const std::string& content) const
    {
        m_folder.Write("QXUTILITY_LANGUAGE_c.DAT", content);
    }
    static std::string String(unsigned id) { return Process().language.String(kLibrary, id); }

    const qx::test::TemporaryFolder m_folder;

  private:
    qx::test::ModuleDouble m_modules;
    qx::test::ResourcesDouble m_resources;
};

static const char kTable[] = "IDS\t09-01\t07-01\r\n9\tfrom the table\taus der Tabelle\r\n";

TEST_F(Startup, OpensTheTableBesideTheLibrary)
{
    WriteTable(kTable);
    qx::AttachProcess(kLibrary);
    ASSERT_NE(nullptr, Process().table);
    EXPECT_TRUE(Process().table->Valid());
    EXPECT_EQ("from the table", String(9));
    EXPECT_EQ("###", String(10));
    EXPECT_EQ(Process().table.get(), CLanguage::pLanguages->at(kLibrary));
}

TEST_F(Startup, WithoutAUsableTableTextsComeFromTheResources)
{
    for (const char* content : {"", "\r\n", "a\r\nb\r\n", "no"}) {
        WriteTable(content);
        qx::AttachProcess(kLibrary);
        EXPECT_EQ(nullptr, Process().table) << content;
        EXPECT_EQ("from the resources", String(9)) << content;
        EXPECT_EQ("", String(10)) << content;
        EXPECT_EQ(nullptr, CLanguage::pLanguages->at(kLibrary));
        qx::DetachProcess();
    }
}

TEST_F(Startup, NeverTakesATableFromTheCurrentFolder)
{
    WriteTable(kTable);
    const qx::test::ModuleDouble nowhere;
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(m_folder.Path());
    qx::AttachProcess(kLibrary);
    std::filesystem::current_path(before);
    EXPECT_EQ(nullptr, Process().table);
}

TEST_F(Startup, ASecondAttachDoesNothing)
{
    WriteTable(kTable);
    qx::AttachProcess(kLibrary);
    const auto* table = Process().table.get();
    Process().iniFileName = "kept.ini";
    qx::AttachProcess(qx::test::FakeModule(2));
    EXPECT_EQ(table, Process().table.get());
    EXPECT_EQ(kLibrary, Process().module);
    EXPECT_EQ("kept.ini", Process().iniFileName);
}

TEST_F(Startup, AfterADetachEverythingStartsFromNothing)
{
    WriteTable(kTable);
    qx::AttachProcess(kLibrary);
    QXUtility_SetLanguage(kGerman);
    SetAssertsOff();
    Process().iniFileName = "old.ini";
    qx::DetachProcess();
    qx::DetachProcess();
    EXPECT_EQ(nullptr, Process().table);
    EXPECT_EQ("from the resources", String(9));

    qx::AttachProcess(kLibrary);
    EXPECT_EQ("from the table", String(9));
    EXPECT_FALSE(Process().assertsOff);
    EXPECT_EQ("", Process().iniFileName);
}

TEST_F(Startup, SetLanguageChangesTheLibrarysTexts)
{
    WriteTable(kTable);
    qx::AttachProcess(kLibrary);
    QXUtility_SetLanguage(kGerman);
    EXPECT_EQ("aus der Tabelle", String(9));
    QXUtility_SetLanguage(kPolish);  // no column
    EXPECT_EQ("from the table", String(9));
    EXPECT_EQ(0x0409U, Process().language.GetLanguage());
}
