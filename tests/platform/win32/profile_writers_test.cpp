// Several processes that write one INI file: the library's writers take turns.
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

// What the file then holds is up to the system: Windows changes it in place, Wine writes it anew.
TEST(ProfileWriters, KilledOneDoesNotKeepOthersWaiting)
{
    const test::TemporaryFolder folder;
    const std::string path = folder.Path("p.ini");
    for (unsigned i = 0; i < 10; ++i) {
        const HANDLE writer = StartWriter(path, "k");
        ::Sleep(20 + 15 * i);
        ::TerminateProcess(writer, 1);
        End(writer);
        EXPECT_TRUE(WriteProfileString("s", "own", std::to_string(i).c_str(), path.c_str()));
        EXPECT_EQ(ProfileValue("s", "own", "lost", 9, path.c_str()), std::to_string(i));
    }
}

}  // namespace
}  // namespace qx::platform
