// Several processes that write one INI file: no setting is ever lost.
#include "platform/profile.h"
#include "support/temporary_folder.h"

#include <windows.h>

#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

namespace qx::platform {
namespace {

constexpr int kKeys = 60;

// Not a test by itself: what the processes started below do.
TEST(ProfileWriters, DISABLED_Writer)
{
    const char *path = std::getenv("QX_WRITER_PATH"), *prefix = std::getenv("QX_WRITER_PREFIX");
    ASSERT_TRUE(path && prefix);
    for (int i = 0; i < kKeys; ++i)
        ASSERT_TRUE(WriteProfileString("s", (prefix + std::to_string(i)).c_str(), "1", path));
}

HANDLE StartWriter(const std::string& path, const char* prefix)
{
    ::SetEnvironmentVariableA("QX_WRITER_PATH", path.c_str());
    ::SetEnvironmentVariableA("QX_WRITER_PREFIX", prefix);
    char program[MAX_PATH];
    ::GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string command = "\"" + std::string(program) +
                          "\" --gtest_also_run_disabled_tests --gtest_filter=*DISABLED_Writer";
    STARTUPINFOA start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    EXPECT_TRUE(::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS,
                                 nullptr, nullptr, &start, &process));
    ::CloseHandle(process.hThread);
    return process.hProcess;
}

DWORD End(HANDLE process)
{
    DWORD code = 0;
    EXPECT_EQ(::WaitForSingleObject(process, 120'000), WAIT_OBJECT_0);
    ::GetExitCodeProcess(process, &code);
    ::CloseHandle(process);
    return code;
}

TEST(ProfileWriters, AtOnceLoseNothing)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.Path("p.ini");
    const HANDLE first = StartWriter(path, "a"), second = StartWriter(path, "b");
    EXPECT_EQ(End(first), 0u);
    EXPECT_EQ(End(second), 0u);
    for (const std::string prefix : {"a", "b"})
        for (int i = 0; i < kKeys; ++i)
            EXPECT_EQ(
                ProfileValue("s", (prefix + std::to_string(i)).c_str(), "lost", 9, path.c_str()),
                "1")
                << prefix << i;
}

TEST(ProfileWriters, KilledOneLeavesTheOldOrTheNewFile)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.Path("p.ini");
    const std::string tail = "[t]\r\nlong=" + std::string(200000, 'x') + "\r\n";
    folder.Write("p.ini", "[s]\r\n" + tail);
    for (unsigned i = 0; i < 40; ++i) {
        const HANDLE writer = StartWriter(path, "k");
        ::Sleep(60 + 5 * (i % 20));
        ::TerminateProcess(writer, 1);
        End(writer);
        ASSERT_TRUE(folder.Read("p.ini").ends_with(tail)) << i;
        ASSERT_TRUE(WriteProfileString("s", "own", std::to_string(i).c_str(), path.c_str()));
        ASSERT_EQ(ProfileValue("s", "own", "lost", 9, path.c_str()), std::to_string(i));
    }
    EXPECT_FALSE(std::filesystem::exists(path + ".new"));
}

TEST(ProfileWriters, FilesThatCannotBeReplacedAreWrittenInPlace)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.Write("p.ini", "[s]\r\nk=old\r\n");
    const HANDLE open =
        ::CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                      OPEN_EXISTING, 0, nullptr);
    EXPECT_TRUE(WriteProfileString("s", "k", "new", path.c_str()));
    ::CloseHandle(open);
    EXPECT_EQ(folder.Read("p.ini"), "[s]\r\nk=new\r\n");
    EXPECT_FALSE(std::filesystem::exists(path + ".new"));
}

TEST(ProfileWriters, ReadOnlyFilesAreRefused)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.Write("p.ini", "[s]\r\nk=old\r\n");
    ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(WriteProfileString("s", "k", "new", path.c_str()));
    ::SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(folder.Read("p.ini"), "[s]\r\nk=old\r\n");
}

}  // namespace
}  // namespace qx::platform
