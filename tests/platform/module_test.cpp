#include "platform/module.h"

#include "platform/files.h"
#include "platform/path_text.h"

#include <qxutility/host.h>

#include <filesystem>

#if !QX_WINDOWS
#include <unicode/utypes.h>
#endif
#include <gtest/gtest.h>

namespace qx::test {
namespace {

using namespace platform;

TEST(Modules, ThisProgramHoldsTheCodeOfTheTest)
{
    EXPECT_NE(nullptr, ThisModule());
    EXPECT_EQ(ProgramModule(), ThisModule());
}

TEST(ModulePath, NamesTheProgramsFileInFull)
{
    const std::string path = ModulePath(nullptr);
    EXPECT_TRUE(FileExists(path.c_str())) << path;
    EXPECT_TRUE(std::filesystem::path(path).is_absolute()) << path;
    EXPECT_EQ("module_test", std::filesystem::path(path).stem().string());
    EXPECT_EQ(path, ModulePath(ThisModule()));
}

TEST(ModulePath, IsEmptyForWhatIsNoModule)
{
    int local = 0;
    EXPECT_EQ("", ModulePath(reinterpret_cast<HINSTANCE>(&local)));
    EXPECT_EQ("", ModulePath(reinterpret_cast<HINSTANCE>(std::uintptr_t{0x10})));
    EXPECT_EQ("", ModuleFolder(reinterpret_cast<HINSTANCE>(&local)));
}

TEST(ModuleFolder, EndsWithASeparator)
{
    const std::string folder = ModuleFolder(nullptr);
    const std::string path = ModulePath(nullptr);
    EXPECT_EQ(folder, path.substr(0, folder.size()));
    EXPECT_EQ(std::string::npos, path.find_first_of("/\\", folder.size()));
    EXPECT_TRUE(DirectoryExists(folder.c_str())) << folder;
}

TEST(FolderPart, IsThePathUpToItsLastSeparator)
{
    const struct {
        const char *path, *folder;
    } cases[] = {
        {"", ""},
        {"name", ""},
        {"/name", "/"},
        {"a/b/name", "a/b/"},
        {"a/b/", "a/b/"},
#if QX_WINDOWS
        {"C:\\dir\\name", "C:\\dir\\"},
        {"C:name", "C:"},
        {"a\\b/name", "a\\b/"},
#else
        {"a\\b", ""},
        {"C:name", ""},
#endif
    };
    for (const auto& [path, folder] : cases)
        EXPECT_EQ(folder, FolderPart(path)) << path;
}

#if QX_WINDOWS

TEST(ModulePath, NamesALoadedLibrary)
{
    const std::string path = ModulePath(::GetModuleHandleA("kernel32"));
    EXPECT_EQ("kernel32", std::filesystem::path(path).stem().string());
}

#else

TEST(ModulePath, NamesALoadedLibrary)
{
    const HINSTANCE library = host::ModuleOf(reinterpret_cast<const void*>(&u_errorName));
    ASSERT_NE(nullptr, library);
    EXPECT_NE(ProgramModule(), library);
    const std::string path = ModulePath(library);
    EXPECT_NE(std::string::npos, path.find("libicuuc")) << path;
    EXPECT_TRUE(FileExists(path.c_str())) << path;
}

TEST(ModuleOf, FindsTheModuleOfCodeAndData)
{
    static const int data = 0;
    EXPECT_EQ(ProgramModule(), host::ModuleOf(&data));
    EXPECT_EQ(ProgramModule(), host::LibraryModule());
    EXPECT_EQ(nullptr, host::ModuleOf(nullptr));
    int local = 0;
    EXPECT_EQ(nullptr, host::ModuleOf(&local));
}

#endif

}  // namespace
}  // namespace qx::test
