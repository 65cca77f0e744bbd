#include "config/process.h"
#include "doubles/directories_double.h"
#include "platform/path_text.h"
#include "platform/profile.h"
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/config/ini_file.h>
#include <qxutility/env/directories.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qx {
namespace {

using platform::UserFolder;
using test::GuardedBuffer;
using test::TemporaryFolder;

// A path of the test in the system's form.
std::string Native(std::string path)
{
    std::replace(path.begin(), path.end(), '/', platform::kSeparator);
    return path;
}

class Directories : public testing::Test {
  protected:
    Directories()
    {
        Process().directories = {};
        Process().iniFileName.clear();
        m_system.users[UserFolder::AppData] = m_folder.Path();
    }
    static std::string Get(int kind, int reload = 0)
    {
        GuardedBuffer dir(MAX_PATH);
        GetDirectory(static_cast<DirTypes>(kind), dir, reload);
        return dir.data();
    }
    void Set(const char* key, const char* value)
    {
        char iniFile[MAX_PATH];
        GetINIFileName("ZRW", "Kvl.ini", iniFile);
        SmartCreateDir(m_folder.Path("ZRW").c_str());
        ASSERT_TRUE(platform::WriteProfileString("ID", key, value, iniFile));
    }

    TemporaryFolder m_folder;
    test::DirectoriesDouble m_system;
};

TEST_F(Directories, OfTheUserComeFromTheSystem)
{
    const std::pair<DirTypes, UserFolder> kinds[] = {
        {DIR_APPDATA, UserFolder::AppData},
        {DIR_LOCALAPPDATA, UserFolder::LocalAppData},
        {DIR_DOCUMENTS, UserFolder::Documents},
        {DIR_COOKIES, UserFolder::Cookies},
        {DIR_INTERNETCACHE, UserFolder::InternetCache}};
    m_system.system = "system";
    for (const auto& [kind, folder] : kinds) {
        m_system.users = {{folder, "user's"}};
        EXPECT_EQ(Get(kind), "user's") << kind;
        m_system.users.clear();
        const bool isAskedOnce = kind == DIR_APPDATA || kind == DIR_LOCALAPPDATA;
        EXPECT_EQ(Get(kind, 1), isAskedOnce ? "user's" : "system") << kind;
    }
}

TEST_F(Directories, UnknownKindsAreEmpty)
{
    for (const int kind : {-1, 11, 1000, -2147483647})
        EXPECT_EQ(Get(kind, 1), "") << kind;
}

TEST_F(Directories, WorkDirectoriesComeFromTheIniFileAndAreReadAgainOnRequest)
{
    const std::pair<DirTypes, const char*> kinds[] = {
        {DIR_PROJECTS, "Projects"}, {DIR_TABLES, "Tables"}, {DIR_CATALOGS, "Catalogs"},
        {DIR_DESIGNS, "Designs"},   {DIR_CURVES, "Curves"}, {DIR_TOOLS, "Tools"}};
    for (const auto& [kind, key] : kinds) {
        EXPECT_EQ(Get(kind), "") << key;
        Set(key, (std::string("in ") + key + platform::kSeparator).c_str());
        EXPECT_EQ(Get(kind), std::string("in ") + key) << "without the separator";
        Set(key, "second");
        EXPECT_EQ(Get(kind), std::string("in ") + key);
        EXPECT_EQ(Get(kind, 1), "second") << key;
        EXPECT_EQ(Get(kind), "second") << key;
    }
}

TEST_F(Directories, LongPathsAreCut)
{
    m_system.users[UserFolder::Documents] = std::string(1000, 'd');
    EXPECT_EQ(Get(DIR_DOCUMENTS), std::string(MAX_PATH - 1, 'd'));
    Set("Tools", std::string(1000, 't').c_str());
    EXPECT_EQ(Get(DIR_TOOLS), std::string(MAX_PATH - 1, 't'));
}

TEST_F(Directories, ProductIniIsFixedByItsFirstCaller)
{
    const std::string first = m_folder.Path("ZRW") + Native("/Kvl.ini");
    GuardedBuffer out(MAX_PATH);
    GetINIFileName("ZRW", "Kvl.ini", out);
    EXPECT_EQ(out.data(), first);
    GetINIFileName("Other", "Other.ini", out);
    EXPECT_EQ(out.data(), first);
    ChangeINIFileName("changed.ini");
    GetINIFileName("ZRW", "Kvl.ini", out);
    EXPECT_STREQ(out.data(), "changed.ini");
    ChangeINIFileName(std::string(1000, 'x').c_str());
    GetINIFileName("ZRW", "Kvl.ini", out);
    EXPECT_EQ(out.data(), std::string(MAX_PATH - 1, 'x'));
    ChangeINIFileName("");
    GetINIFileName("Other", "Other.ini", out);
    EXPECT_EQ(out.data(), m_folder.Path("Other") + Native("/Other.ini"));
}

TEST_F(Directories, SmartCreateDirMakesWhatIsMissing)
{
    const std::string root = m_folder.Path();
    for (const char* path : {"/a/b/c", "/a/b/c", "/a/b/d/", "/e", "/f/", "/g//h", "/i/j//"}) {
        SmartCreateDir((root + Native(path)).c_str());
        EXPECT_TRUE(std::filesystem::is_directory(root + Native(path))) << path;
    }
    EXPECT_TRUE(std::filesystem::is_directory(root + Native("/a/b")));
}

TEST_F(Directories, SmartCreateDirFailsQuietly)
{
    m_folder.Write("file", "content");
    const std::string root = m_folder.Path() + platform::kSeparator;
    std::string deep = root;
    for (int i = 0; i < 500; ++i)
        deep += std::string("d") + platform::kSeparator;
    const std::string cases[] = {"",
                                 std::string(1, platform::kSeparator),
                                 std::string(5, platform::kSeparator),
                                 root + Native("file/below/it"),
                                 root + std::string(1000, 'n'),
                                 root + std::string(1000, 'n') + Native("/below"),
                                 std::string(10000, platform::kSeparator) + "x/y"};
    for (const std::string& path : cases)
        SmartCreateDir(path.c_str());
    SmartCreateDir(nullptr);
    SmartCreateDir(deep.c_str());  // 1,000 characters: too long for some systems
    EXPECT_EQ(m_folder.Read("file"), "content");
}

TEST(GetDataFile, ReplacesTheExtension)
{
    struct Case {
        const char *name, *extension, *expected;
    };
    for (const Case& c : std::initializer_list<Case>{
             {"C:/x/report.txt", "csv", "C:/x/report.csv"},
             {"report.", "csv", "report.csv"},
             {"folder.x/report", "csv", "folder.x/report.csv"},
             {".hidden", "csv", ".csv"},
             {"", "csv", ".csv"},
             {"report.txt", "", "report."},
         }) {
        const std::string name = Native(c.name), expected = Native(c.expected);
        GuardedBuffer buffer(std::max(name.size(), expected.size()) + 1);
        buffer = name.c_str();
        EXPECT_EQ(GetDataFile(buffer, c.extension), buffer.data());
        EXPECT_EQ(buffer.data(), expected) << c.name;
    }
}

}  // namespace
}  // namespace qx
