#include "platform/path_search.h"

#include "platform/module.h"
#include "support/temporary_folder.h"

#include <qxutility/types.h>

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>

namespace qx::test {
namespace {

using platform::FindFile;
using platform::FindProgram;

TEST(FindProgram, FindsNothingForNothing)
{
    for (const char* name : {"", " ", "no-such-program-anywhere", "no/such/program"})
        EXPECT_EQ("", FindProgram(name, ".exe")) << name;
    EXPECT_EQ("", FindProgram(nullptr, ".exe"));
}

TEST(FindProgram, FindsAFullPath)
{
    const std::string path = platform::ModulePath(nullptr);
    EXPECT_EQ(path, FindProgram(path.c_str(), ".exe"));
    EXPECT_EQ(path, FindProgram(path.c_str(), nullptr));
    const std::string stem = std::filesystem::path(path).replace_extension().string();
    EXPECT_EQ(path, FindProgram(stem.c_str(), ".exe"));
}

#if QX_WINDOWS

TEST(FindProgram, SearchesTheSystemsFolders)
{
    const std::string path = FindProgram("notepad", ".exe");
    EXPECT_EQ("notepad.exe", std::filesystem::path(path).filename().string());
    EXPECT_TRUE(std::filesystem::path(path).is_absolute()) << path;
    EXPECT_EQ("", FindProgram("notepad", ".none"));
    EXPECT_EQ("", FindProgram("notepad", ""));
    EXPECT_EQ("", FindProgram("notepad file.txt", ".exe"));
}

#else

namespace fs = std::filesystem;

// PATH with two folders and an empty one, which is the current folder.
class SearchPath : public testing::Test {
  protected:
    SearchPath()
    {
        fs::create_directory(m_folder.Path("one"));
        fs::create_directory(m_folder.Path("two"));
        ::setenv("PATH", (m_folder.Path("one") + ":" + m_folder.Path("two") + ":").c_str(), 1);
        fs::current_path(m_folder.Path());
    }
    ~SearchPath() override
    {
        ::setenv("PATH", m_oldPath.c_str(), 1);
        fs::current_path(m_oldFolder);
    }

    std::string AddProgram(const char* name, bool isExecutable = true)
    {
        const std::string path = m_folder.Write(name, "");
        fs::permissions(path, isExecutable ? fs::perms::owner_all : fs::perms::owner_read);
        return path;
    }

    std::string Find(const char* name) { return FindProgram(name, ".exe"); }

    TemporaryFolder m_folder;
    std::string m_oldPath = std::getenv("PATH");
    fs::path m_oldFolder = fs::current_path();
};

TEST_F(SearchPath, FindsTheFirstExecutableFile)
{
    AddProgram("one/data", false);
    fs::create_directory(m_folder.Path("one/folder"));
    const std::string data = AddProgram("two/data"), both = AddProgram("one/both");
    AddProgram("two/both");
    EXPECT_EQ(data, Find("data"));
    EXPECT_EQ(both, Find("both"));
    EXPECT_EQ("", Find("folder"));
    EXPECT_EQ("", Find("both "));
}

TEST_F(SearchPath, AddsTheExtensionToANameThatHasNone)
{
    AddProgram("one/tool.exe");
    EXPECT_EQ(m_folder.Path("one/tool.exe"), Find("tool"));
    EXPECT_EQ(m_folder.Path("one/tool.exe"), Find("tool.exe"));
    EXPECT_EQ("", FindProgram("tool", ""));
    EXPECT_EQ("", FindProgram("tool", nullptr));
    const std::string plain = AddProgram("two/tool");
    EXPECT_EQ(plain, Find("tool"));
    AddProgram("one/tool.bin.exe");
    EXPECT_EQ("", Find("tool.bin"));
}

TEST_F(SearchPath, LooksInTheCurrentFolderForAnEmptyEntry)
{
    const std::string here = AddProgram("here");
    EXPECT_EQ(here, Find("here"));
    ::setenv("PATH", m_folder.Path("one").c_str(), 1);
    EXPECT_EQ("", Find("here"));
}

TEST_F(SearchPath, TakesANameWithAFolderAsItIs)
{
    const std::string tool = AddProgram("one/tool");
    EXPECT_EQ(tool, Find(tool.c_str()));
    EXPECT_EQ(tool, Find("one/tool"));
    EXPECT_EQ("", Find("two/tool"));
}

TEST_F(SearchPath, FindsFilesThatAreNoPrograms)
{
    const std::string data = AddProgram("two/data.chm", false);
    fs::create_directory(m_folder.Path("one/data.chm"));
    EXPECT_EQ(data, FindFile("data", ".chm"));
    EXPECT_EQ("", FindFile("data", ".txt"));
    EXPECT_EQ(data, FindFile("two/data", ".chm"));
    const std::string here = AddProgram("data.chm", false);
    EXPECT_EQ(here, FindFile("data", ".chm")) << "the current folder comes before PATH";
    const std::string program = platform::ModulePath(nullptr);
    EXPECT_EQ(program, FindFile(fs::path(program).filename().c_str(), ".chm"));
    EXPECT_EQ("", FindFile("", ".chm"));
    EXPECT_EQ("", FindFile(nullptr, ".chm"));
}

TEST_F(SearchPath, HasADefaultWithoutPath)
{
    ::unsetenv("PATH");
    EXPECT_NE("", Find("sh"));
}

#endif

}  // namespace
}  // namespace qx::test
