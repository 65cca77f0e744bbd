// The language in the INI file and the INI sections of languages.
#include "config/process.h"
#include "platform/profile.h"
#include "support/guarded_buffer.h"
#include "support/language_fixture.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>

#include <gtest/gtest.h>

namespace qx {
namespace {

using test::GuardedBuffer;

class LanguageSettings : public testing::Test {
  protected:
    LanguageSettings() { ChangeINIFileName(m_folder.Path("settings.ini").c_str()); }
    ~LanguageSettings() override { Process().language = CLanguage(); }

    test::TemporaryFolder m_folder;
    CLanguage m_language;
};

TEST_F(LanguageSettings, ComeBackAsTheyWereSaved)
{
    m_language.SetLanguage(0x0407);
    m_language.SaveDefault("Program");
    EXPECT_EQ(m_folder.Read("settings.ini"), "[Program]\r\nLANGUAGE=1031\r\n");
    EXPECT_EQ(m_language.GetDefault("Program"), 0x0407u);
    EXPECT_EQ(CLanguage().GetDefault("PROGRAM"), 0x0407u);
}

TEST_F(LanguageSettings, DefaultIsReadAsDecimal)
{
    EXPECT_EQ(m_language.GetDefault("Program"), 901u);
    EXPECT_EQ(m_language.SetLanguage(m_language.GetDefault("Program")), -1);
    EXPECT_EQ(m_language.GetLanguage(), 1033u);
}

TEST_F(LanguageSettings, ReadFromABufferOfTwentyBytes)
{
    m_folder.Write("settings.ini",
                   "[P]\r\nLANGUAGE=0000000000000000010319\r\n[Q]\r\nLANGUAGE=x\r\n");
    EXPECT_EQ(m_language.GetDefault("P"), 10u);
    EXPECT_EQ(m_language.GetDefault("Q"), 0u);
}

TEST_F(LanguageSettings, SectionOfALanguageOnlyWhenItHasKeys)
{
    const test::TestLanguage german(
        "IDS\t09-01\t07-01\t12-01\r\nL\tEnglish\tDeutsch\tFran\347ais\r\n", test::kGerman);
    Process().language = german.language;
    const std::string iniFile = m_folder.Write(
        "sections.ini",
        "[Units - Deutsch]\r\nk=v\r\n[Empty - Deutsch]\r\n[Units - English]\r\nk=v\r\n");
    struct Case {
        const char* section;
        DWORD lcid;
        const char* expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"Units", 0, "Units - Deutsch"},
             {"Units", test::kGerman, "Units - Deutsch"},
             {"Units", test::kEnglish, "Units"},
             {"Units", test::kFrench, "Units"},
             {"Empty", 0, "Empty"},
             {"Absent", 0, "Absent"},
         }) {
        GuardedBuffer section(40);
        section = c.section;
        german.language.INISection(iniFile.c_str(), section, 40, c.lcid);
        EXPECT_STREQ(section.data(), c.expected) << c.section << " " << c.lcid;
    }
    GuardedBuffer cut(10);
    cut = "Units";
    german.language.INISection(iniFile.c_str(), cut, 10, 0);
    EXPECT_STREQ(cut.data(), "Units - D");
    for (const auto& [lcid, name] :
         {std::pair{test::kGerman, "Un - Deuts"}, {test::kEnglish, "Un"}}) {
        GuardedBuffer section(11);
        section = "Un";
        german.language.INISection(section, 11, lcid);
        EXPECT_STREQ(section.data(), name);
    }
}

}  // namespace
}  // namespace qx
