// Sharing as Windows enforces it, and handles of the _lopen family.
#include "platform/files.h"
#include "support/temporary_folder.h"
#include "win32/handle.h"

#include <gtest/gtest.h>

namespace qx::test {
namespace {

using namespace platform;

TEST(Win32File, SharesAsItsModeSays)
{
    const struct {
        FileMode mode;
        bool allowsReading, allowsWriting;
    } cases[] = {
        {FileMode::Read, true, false},           {FileMode::ReadShared, true, true},
        {FileMode::ReadExclusive, false, false}, {FileMode::Create, false, true},
        {FileMode::CreateNew, true, false},      {FileMode::Append, true, true},
    };
    for (const auto& [mode, allowsReading, allowsWriting] : cases) {
        SCOPED_TRACE(static_cast<int>(mode));
        const TemporaryFolder folder;
        const std::string path = folder.Path("a");
        if (mode != FileMode::CreateNew)
            folder.Write("a", "x");
        const File file(path.c_str(), mode);
        ASSERT_TRUE(file);
        const auto opens = [&](DWORD access) {
            const win32::FileHandle other(::CreateFileA(path.c_str(), access,
                                                        FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                                                        OPEN_EXISTING, 0, nullptr));
            return static_cast<bool>(other);
        };
        EXPECT_EQ(allowsReading, opens(GENERIC_READ));
        EXPECT_EQ(allowsWriting, opens(GENERIC_WRITE));
    }
}

TEST(Win32MoveOver, ChangesNothingWhileTheOldFileIsOpen)
{
    const TemporaryFolder folder;
    const std::string from = folder.Write("new", "new"), to = folder.Write("old", "old");
    const File reader(to.c_str(), FileMode::Read);
    EXPECT_FALSE(MoveOver(from.c_str(), to.c_str()));
    EXPECT_EQ("new", folder.Read(from));
    EXPECT_EQ("old", folder.Read(to));
}

TEST(Win32ReadFrom, ReadsAtAnOffset)
{
    const TemporaryFolder folder;
    const HFILE handle = ::_lopen(folder.Write("a", "0123456789").c_str(), OF_READ);
    char text[8];
    EXPECT_EQ(8u, ReadFrom(handle, 1, text, 8));
    EXPECT_EQ("12345678", std::string(text, 8));
    EXPECT_EQ(1u, ReadFrom(handle, 9, text, 8));
    EXPECT_EQ(0u, ReadFrom(handle, 10, text, 8));
    EXPECT_EQ(std::nullopt, ReadFrom(handle, ~std::uint64_t{0}, text, 8));
    ::_lclose(handle);
    EXPECT_EQ(std::nullopt, ReadFrom(HFILE_ERROR, 0, text, 8));
}

TEST(UniqueHandle, ClosesOnceAndMoves)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "x");
    const auto open = [&] {
        return win32::FileHandle(
            ::CreateFileA(path.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    };
    win32::FileHandle first = open();
    ASSERT_TRUE(first);
    EXPECT_FALSE(open());
    win32::FileHandle second = std::move(first);
    EXPECT_FALSE(first);
    EXPECT_TRUE(second);
    second = win32::FileHandle();
    EXPECT_FALSE(second);
    EXPECT_TRUE(open());
}

}  // namespace
}  // namespace qx::test
