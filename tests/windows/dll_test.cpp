// The DLL as the loader sees it: what its load and unload do, and what lies in its file. Nothing of
// it is called, so this program is not linked with it and can load and unload it at will.
#include "support/win32_ui.h"

#include <windows.h>

#include <cstdlib>
#include <ctime>
#include <gmock/gmock.h>
#include <string>
#include <vector>

using qx::test::CountObjects;
using qx::test::ObjectCounts;
using testing::HasSubstr;

namespace {

class LoadedLibrary {
  public:
    LoadedLibrary() : m_module(::LoadLibraryA("QXUtility.dll")) {}
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() { ::FreeLibrary(m_module); }

    operator HMODULE() const { return m_module; }

  private:
    HMODULE m_module;
};

}  // namespace

static const char* const kClasses[] = {"QX_PLEASEWAIT", "XYZZY", "QX_CUSTOMTRACKBAR"};

static bool IsRegistered(HMODULE module, const char* name)
{
    WNDCLASSA description;
    return ::GetClassInfoA(module, name, &description) != 0;
}

TEST(Dll, RegistersItsWindowClassesWhileItIsLoaded)
{
    for (int round = 0; round < 3; ++round) {
        HMODULE module = nullptr;
        {
            const LoadedLibrary library;
            module = library;
            ASSERT_NE(nullptr, module);
            for (const char* name : kClasses)
                EXPECT_TRUE(IsRegistered(module, name)) << name;
        }
        ASSERT_EQ(nullptr, ::GetModuleHandleA("QXUtility.dll"));
        for (const char* name : kClasses)
            EXPECT_FALSE(IsRegistered(module, name)) << name;
    }
}

TEST(Dll, DescribesItsWindowClassesAsApplicationsRelyOn)
{
    const LoadedLibrary library;
    const struct {
        const char* name;
        UINT style;
        const char* cursor;
        INT_PTR background;
        int extraBytes;
        bool forAllModules;
    } cases[] = {
        {"QX_PLEASEWAIT", CS_HREDRAW | CS_VREDRAW | CS_GLOBALCLASS, IDC_WAIT, COLOR_BTNFACE + 1, 4,
         true},
        {"XYZZY", CS_HREDRAW | CS_VREDRAW, IDC_ARROW, COLOR_WINDOW + 1, 12, false},
        {"QX_CUSTOMTRACKBAR", CS_GLOBALCLASS, IDC_ARROW, COLOR_BTNFACE + 1, 0, true},
    };
    for (const auto& c : cases) {
        WNDCLASSA found{};
        ASSERT_TRUE(::GetClassInfoA(library, c.name, &found)) << c.name;
        EXPECT_EQ(c.style, found.style) << c.name;
        EXPECT_EQ(::LoadCursorA(nullptr, c.cursor), found.hCursor) << c.name;
        EXPECT_EQ(c.background, reinterpret_cast<INT_PTR>(found.hbrBackground)) << c.name;
        EXPECT_EQ(c.extraBytes, found.cbWndExtra) << c.name;
        EXPECT_EQ(nullptr, found.hIcon) << c.name;
        EXPECT_EQ(nullptr, found.lpszMenuName) << c.name;
        EXPECT_EQ(c.forAllModules, IsRegistered(::GetModuleHandleA(nullptr), c.name)) << c.name;
    }
}

TEST(Dll, SeedsTheRandomGeneratorWithTheTime)
{
    const auto before = static_cast<unsigned>(std::time(nullptr));
    std::srand(1);
    const LoadedLibrary library;
    const int drawn = std::rand();
    bool found = false;
    for (unsigned seed = before; seed <= static_cast<unsigned>(std::time(nullptr)); ++seed) {
        std::srand(seed);
        found = found || std::rand() == drawn;
    }
    EXPECT_TRUE(found);
}

TEST(Dll, LeavesNothingBehindAfterManyLoads)
{
    {
        const LoadedLibrary first;
    }
    const ObjectCounts objects = CountObjects();
    DWORD before = 0, after = 0;
    ::GetProcessHandleCount(::GetCurrentProcess(), &before);
    for (int round = 0; round < 50; ++round)
        const LoadedLibrary library;
    ::GetProcessHandleCount(::GetCurrentProcess(), &after);
    EXPECT_LE(after, before + 5);
    EXPECT_EQ(objects, CountObjects());
}

// ---- Resources

static std::string PathOf(HMODULE module)
{
    char path[MAX_PATH];
    return {path, ::GetModuleFileNameA(module, path, MAX_PATH)};
}

static std::string VersionText(const std::vector<char>& information, const std::string& name)
{
    void* text = nullptr;
    UINT length = 0;
    const std::string block = "\\StringFileInfo\\040904E4\\" + name;
    ::VerQueryValueA(information.data(), block.c_str(), &text, &length);
    return text ? static_cast<const char*>(text) : "";
}

TEST(Dll, CarriesItsVersion)
{
    const LoadedLibrary library;
    const std::string path = PathOf(library);
    std::vector<char> information(::GetFileVersionInfoSizeA(path.c_str(), nullptr));
    ASSERT_TRUE(::GetFileVersionInfoA(path.c_str(), 0, static_cast<DWORD>(information.size()),
                                      information.data()));
    void* fixed = nullptr;
    UINT length = 0;
    ASSERT_TRUE(::VerQueryValueA(information.data(), "\\", &fixed, &length));
    const auto& numbers = *static_cast<const VS_FIXEDFILEINFO*>(fixed);
    EXPECT_EQ(std::to_string(HIWORD(numbers.dwFileVersionMS)) + "." +
                  std::to_string(LOWORD(numbers.dwFileVersionMS)) + "." +
                  std::to_string(HIWORD(numbers.dwFileVersionLS)),
              VersionText(information, "FileVersion"));
    EXPECT_EQ("QXUtility.dll", VersionText(information, "OriginalFilename"));
}

TEST(Dll, AsksForCommonControls6)
{
    const LoadedLibrary library;
    const HRSRC found = ::FindResourceA(library, MAKEINTRESOURCEA(2), MAKEINTRESOURCEA(24));
    ASSERT_NE(nullptr, found);
    const std::string manifest(
        static_cast<const char*>(::LockResource(::LoadResource(library, found))),
        ::SizeofResource(library, found));
    EXPECT_THAT(manifest, HasSubstr("name=\"Microsoft.Windows.Common-Controls\""));
    EXPECT_THAT(manifest, HasSubstr("version=\"6.0.0.0\""));
}

TEST(Dll, HoldsTheEnglishStrings)
{
    const LoadedLibrary library;
    char text[512];
    for (const UINT id : {2,   4,    5,    6,    7,    8,    9,    10,   111,  112, 113,
                          114, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012})
        EXPECT_LT(0, ::LoadStringA(library, id, text, sizeof text)) << id;
    ::LoadStringA(library, 1011, text, sizeof text);
    EXPECT_STREQ(
        "There is no file of this name that can be opened in the folder\n%s\n\nSelect a file from "
        "the list, check the spelling of its name, or choose another folder.",
        text);
}
