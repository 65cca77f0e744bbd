#include "config/process.h"
#include "doubles/choice_box_double.h"
#include "doubles/directories_double.h"
#include "doubles/key_state_double.h"
#include "doubles/message_box_double.h"
#include "doubles/module_double.h"
#include "doubles/process_end_double.h"
#include "platform/files.h"
#include "platform/library.h"
#include "platform/profile.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/env/first_run.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qx {
namespace {

using platform::HeldKey;
using platform::kSeparator;
using testing::ElementsAre;
using testing::HasSubstr;

const HWND kOwner = reinterpret_cast<HWND>(0x1234);
constexpr char kKeep[] = "Keep the current settings";
constexpr char kRestore[] = "Restore the last good copy of the settings";
constexpr char kStartOver[] = "Start over with the default settings";
constexpr char kClose[] = "Close the program";

// The library, its packages and the INI file "settings.ini" are in one folder, the documents in
// another; the program is nowhere.
class FirstRun : public testing::Test {
  protected:
    FirstRun()
    {
        Process().directories = {};
        m_directories.users[platform::UserFolder::AppData] = m_folder.Path("appdata");
        m_directories.users[platform::UserFolder::Documents] = m_documents.Path();
        m_modules.paths[m_modules.library] = m_folder.Path("QXUtility.dll");
        ChangeINIFileName(m_folder.Path("settings.ini").c_str());
    }
    void InstallRunner(const char* folder = "runner", const std::string& to = {})
    {
        const std::string file = platform::ComponentFile("script");
        std::filesystem::copy_file(std::filesystem::path(QX_TEST_RUNNERS) / folder / file,
                                   to.empty() ? m_folder.Path(file) : to);
    }
    bool Init(HWND owner = nullptr) { return InitINI(owner, "Company", "Product.ini"); }
    // Init where nothing about packages matters.
    bool InitWithoutRunner()
    {
        test::MessageBoxDouble boxes({IDOK});
        return Init();
    }
    std::string Settings() const { return m_folder.Read("settings.ini"); }
    std::string Value(const char* section, const char* key) const
    {
        return platform::ProfileValue(section, key, "", 300, m_folder.Path("settings.ini").c_str());
    }

    test::TemporaryFolder m_folder, m_documents;
    test::DirectoriesDouble m_directories;
    test::ModuleDouble m_modules;
    test::KeyStateDouble m_keys;
    test::ChoiceBoxDouble m_questions;
};

TEST_F(FirstRun, MakesSettingsAndFolders)
{
    m_folder.Write("Default.cfg", "[Units]\r\nLength=m\r\n[ID]\r\nTools=\r\n");
    InstallRunner();
    EXPECT_TRUE(Init());
    EXPECT_EQ(Value("Units", "Length"), "m");
    const std::string base = m_documents.Path("My Engineering Files") + kSeparator;
    for (const char* key : {"Catalogs", "Curves", "Projects", "Tables", "Designs", "Tools"}) {
        EXPECT_EQ(Value("ID", key), base + key);
        EXPECT_TRUE(std::filesystem::is_directory(base + key)) << key;
    }
    EXPECT_TRUE(std::filesystem::is_directory(m_folder.Path("appdata") + kSeparator + "Company"));
}

TEST_F(FirstRun, KeepsTheUsersSettingsButForDefaults)
{
    const std::string tables = m_folder.Path("my") + kSeparator + "tables";
    m_folder.Write("Default.cfg", "[A]\r\nd=new\r\n");
    m_folder.Write("settings.ini", "[ID]\r\nTables=" + tables + "\r\n[A]\r\nd=old\r\nmine=1\r\n");
    InstallRunner();
    EXPECT_TRUE(Init());
    EXPECT_EQ(Value("A", "d"), "new");
    EXPECT_EQ(Value("A", "mine"), "1");
    EXPECT_EQ(Value("ID", "Tables"), tables);
    EXPECT_TRUE(std::filesystem::is_directory(tables));
}

TEST_F(FirstRun, PackagesRunOnceEach)
{
    for (const char* name : {"b.PKG", "A.pkg", "c.PKGX", "pkg", "readme.txt"})
        m_folder.Write(name, "");
    std::filesystem::create_directory(m_folder.Path("folder.PKG"));
    InstallRunner();
    for (int start = 0; start < 2; ++start) {
        EXPECT_TRUE(Init(kOwner));
        for (const char* name : {"b.PKG", "A.pkg"}) {
            EXPECT_EQ(m_folder.Read(std::string(name) + ".run"), "4660 1;") << name;
            EXPECT_EQ(Value("PACKAGES", name), "EXECUTED");
        }
    }
    for (const char* name : {"c.PKGX", "pkg", "readme.txt", "folder.PKG"})
        EXPECT_FALSE(std::filesystem::exists(m_folder.Path(std::string(name) + ".run"))) << name;
    const std::string atFirst = m_folder.Read("A.pkg.ini");
    EXPECT_THAT(atFirst, HasSubstr("A.pkg=EXECUTED")) << "marked before it runs";
    EXPECT_THAT(atFirst, testing::Not(HasSubstr("b.PKG")));
    m_folder.Write("later.PKG", "");
    EXPECT_TRUE(Init());
    EXPECT_EQ(m_folder.Read("later.PKG.run"), "0 1;");
    EXPECT_EQ(m_folder.Read("b.PKG.run"), "4660 1;");
}

TEST_F(FirstRun, TellsThatThePackagesCannotRun)
{
    m_folder.Write("a.PKG", "");
    for (const bool installed : {false, true}) {
        if (installed)
            InstallRunner("runner_without_entry");
        test::MessageBoxDouble boxes({IDOK});
        EXPECT_TRUE(Init(kOwner));
        EXPECT_THAT(boxes.shown[0].text,
                    testing::StrCaseEq("The file " + platform::ComponentFile("script") +
                                       (installed ? " could not be linked." : " is missing.") +
                                       "  Some components may not have been installed."));
        EXPECT_EQ(boxes.shown[0].caption, "Install Packages");
        EXPECT_EQ(boxes.shown[0].style, 16u);
        EXPECT_EQ(boxes.shown[0].owner, kOwner);
        EXPECT_EQ(Value("PACKAGES", "a.PKG"), "");
    }
}

TEST_F(FirstRun, RunnerIsLookedForBesideTheProgramAndInTheSystemsFolder)
{
    test::TemporaryFolder elsewhere;
    m_folder.Write("a.PKG", "");
    InstallRunner("runner", elsewhere.Path(platform::ComponentFile("script")));
    m_modules.paths[m_modules.program] = elsewhere.Path("program.exe");
    EXPECT_TRUE(Init());
    EXPECT_EQ(m_folder.Read("a.PKG.run"), "0 1;");
    m_modules.paths.erase(m_modules.program);
    m_directories.libraries = elsewhere.Path();
    m_folder.Write("b.PKG", "");
    EXPECT_TRUE(Init());
    EXPECT_EQ(m_folder.Read("b.PKG.run"), "0 1;");
}

TEST_F(FirstRun, RunnerInTheCurrentFolderIsNotLoaded)
{
    test::TemporaryFolder current;
    const auto before = std::filesystem::current_path();
    InstallRunner("runner", current.Path(platform::ComponentFile("script")));
    std::filesystem::current_path(current.Path());
    {
        test::MessageBoxDouble boxes({IDOK});
        EXPECT_TRUE(Init());
        EXPECT_THAT(boxes.shown[0].text, HasSubstr("is missing."));
    }
    std::filesystem::current_path(before);
}

TEST_F(FirstRun, IniFileThatCannotBeMade)
{
    InstallRunner();
    const std::string path = m_folder.Write("file", "") + kSeparator + "settings.ini";
    ChangeINIFileName(path.c_str());
    EXPECT_FALSE(Init(nullptr));
    test::MessageBoxDouble boxes({IDOK});
    EXPECT_FALSE(Init(kOwner));
    EXPECT_EQ(boxes.shown[0].caption, "Configuration Error");
    EXPECT_EQ(boxes.shown[0].style, 16u);
    EXPECT_EQ(boxes.shown[0].owner, kOwner);
    EXPECT_THAT(boxes.shown[0].text, HasSubstr(path));
}

TEST_F(FirstRun, NamesThatMakeNoGoodPath)
{
    InstallRunner();
    const std::string separator(1, kSeparator), longName(1000, 'n');
    struct Case {
        std::string company, iniName;
        bool succeeds;
    };
    for (const Case& c : {Case{"Company" + separator, "a.ini", true},
                          Case{"Com" + separator + "pany", "b.ini", true},
                          Case{longName, "c.ini", false}, Case{"Company", longName, false}}) {
        ChangeINIFileName("");
        EXPECT_EQ(InitINI(nullptr, c.company.c_str(), c.iniName.c_str()), c.succeeds)
            << c.company << " " << c.iniName;
        std::error_code ignored;
        EXPECT_EQ(std::filesystem::exists(
                      m_folder.Path("appdata") + kSeparator + c.company + kSeparator + c.iniName,
                      ignored),
                  c.succeeds);
    }
}

TEST_F(FirstRun, BinaryJunkBecomesSettings)
{
    std::string junk;
    for (int i = 0; i < 5000; ++i)
        junk += static_cast<char>(i * i / 7);
    for (const std::string& text : {junk, "[open\r\n" + junk, std::string(100000, '\0')}) {
        m_folder.Write("settings.ini", text);
        EXPECT_TRUE(InitWithoutRunner());
        EXPECT_NE(Value("ID", "Tables"), "");
    }
}

TEST_F(FirstRun, ResetPackagesForgetsThemAll)
{
    std::string text = "[PACKAGES]\r\n; note\r\ntwice=EXECUTED\r\n";
    for (int i = 0; i < 200; ++i)
        text += "package" + std::to_string(i) + ".PKG=EXECUTED\r\n";
    m_folder.Write("settings.ini",
                   text + std::string(300, 'x') + "=1\r\nTWICE=EXECUTED\r\n[A]\r\nb=1\r\n");
    m_folder.Write("other.ini", "[PACKAGES]\r\na=1\r\n");
    ResetPackages(nullptr);
    EXPECT_EQ(Settings(), "[PACKAGES]\r\n; note\r\n[A]\r\nb=1\r\n");
    ResetPackages(m_folder.Path("other.ini").c_str());
    EXPECT_EQ(m_folder.Read("other.ini"), "[PACKAGES]\r\n");
    ResetPackages(m_folder.Path("missing.ini").c_str());
    EXPECT_FALSE(std::filesystem::exists(m_folder.Path("missing.ini")));
}

TEST_F(FirstRun, ResetPackagesEndsWhenNothingCanBeWritten)
{
    m_folder.Write("settings.ini", "[PACKAGES]\r\na=1\r\nb=1\r\n");
    // In the way of writers: on Windows an open file, elsewhere what has the new file's name.
    const platform::File open(m_folder.Path("settings.ini").c_str(), platform::FileMode::Read);
    std::filesystem::create_directory(m_folder.Path("settings.ini.new"));
    ResetPackages(nullptr);
    EXPECT_EQ(Settings(), "[PACKAGES]\r\na=1\r\nb=1\r\n");
}

TEST_F(FirstRun, BothKeysCallTheRecoveryQuestion)
{
    InstallRunner();
    for (const auto& held : {std::set<HeldKey>{}, {HeldKey::Shift}, {HeldKey::Control}}) {
        m_keys.down = held;
        EXPECT_TRUE(Init());
    }
    EXPECT_TRUE(m_questions.offered.empty());
    m_keys.down = {HeldKey::Shift, HeldKey::Control};
    m_questions.answers = {kKeep, kClose};
    EXPECT_TRUE(Init());
    try {
        Init();
        ADD_FAILURE() << "the program goes on";
    } catch (const test::ProcessEnded& end) {
        EXPECT_EQ(end.code, 911);
    }
}

TEST_F(FirstRun, RestoresTheLastGoodCopy)
{
    m_folder.Write("settings.ini", "[A]\r\nk=good\r\n");
    EXPECT_TRUE(InitWithoutRunner());
    const std::string good = Settings();
    m_folder.Write("settings.ini", "[A]\r\nk=bad\r\n");
    m_questions.answers = {kRestore};
    EXPECT_EQ(TroubleShoot("Company", "Product.ini"), 1);
    EXPECT_EQ(Settings(), good);
    EXPECT_EQ(m_folder.Read("settings.ini.old"), "[A]\r\nk=bad\r\n");
}

TEST_F(FirstRun, StartsOverWithDefaults)
{
    m_folder.Write("Default.cfg", "[A]\r\nk=default\r\n");
    m_folder.Write("settings.ini", "[A]\r\nmine=1\r\n");
    m_keys.down = {HeldKey::Shift, HeldKey::Control};
    m_questions.answers = {kStartOver};
    EXPECT_TRUE(InitWithoutRunner());
    EXPECT_EQ(Value("A", "k"), "default");
    EXPECT_EQ(Value("A", "mine"), "");
    EXPECT_EQ(m_folder.Read("settings.ini.old"), "[A]\r\nmine=1\r\n");
}

TEST_F(FirstRun, OffersWhatThereIs)
{
    m_questions.answers = {kKeep, kKeep, kClose};
    EXPECT_EQ(TroubleShoot("Company", "Product.ini"), 0);
    EXPECT_TRUE(InitWithoutRunner());
    EXPECT_EQ(TroubleShoot("Company", "Product.ini"), 0);
    EXPECT_EQ(TroubleShoot("Company", "Product.ini"), 2);
    EXPECT_THAT(m_questions.offered[0], ElementsAre(kKeep, kStartOver, kClose));
    EXPECT_THAT(m_questions.offered[1], ElementsAre(kKeep, kRestore, kStartOver, kClose));
}

TEST_F(FirstRun, DamagedSettingsDoNotReplaceTheGoodCopy)
{
    using namespace std::string_literals;
    m_folder.Write("settings.ini", "[A]\r\nk=good\r\n");
    EXPECT_TRUE(InitWithoutRunner());
    const std::string good = m_folder.Read("settings.ini.good");
    EXPECT_THAT(good, HasSubstr("k=good"));
    for (const std::string& damaged : {""s, "\0\0\0[A]\r\nk=1\r\n"s, "garb]age["s}) {
        m_folder.Write("settings.ini", damaged);
        EXPECT_TRUE(InitWithoutRunner());
        EXPECT_EQ(m_folder.Read("settings.ini.good"), good) << testing::PrintToString(damaged);
    }
    m_folder.Write("settings.ini", "[A]\r\nk=changed\r\n");
    EXPECT_TRUE(InitWithoutRunner());
    EXPECT_EQ(m_folder.Read("settings.ini.good"), Settings());
}

TEST_F(FirstRun, FailedRecoveryIsReported)
{
    m_folder.Write("settings.ini.good", "[A]\r\nk=good\r\n");
    std::filesystem::create_directory(m_folder.Path("settings.ini"));
    m_questions.answers = {kRestore};
    test::MessageBoxDouble boxes({IDOK});
    EXPECT_EQ(TroubleShoot("Company", "Product.ini"), 0);
    EXPECT_EQ(boxes.shown[0].caption, "Configuration Recovery");
    EXPECT_THAT(boxes.shown[0].text, HasSubstr(m_folder.Path("settings.ini")));
}

}  // namespace
}  // namespace qx
