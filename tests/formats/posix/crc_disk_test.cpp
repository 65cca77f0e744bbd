// CRCs of files and tables that the system refuses to read or to write.
#include "support/temporary_folder.h"

#include <qxutility/formats/crc.h>

#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using qx::test::TemporaryFolder;

namespace fs = std::filesystem;

namespace {

// Gives up the rights of the superuser, whom no file's mode stops.
class AsNobody {
  public:
    AsNobody() : m_user(::geteuid()) { m_isNobody = m_user != 0 || ::seteuid(65534) == 0; }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody()
    {
        if (m_isNobody && ::seteuid(m_user) != 0)
            std::abort();
    }
    explicit operator bool() const { return m_isNobody; }

  private:
    uid_t m_user;
    bool m_isNobody;
};

}  // namespace

TEST(CrcDisk, TellsTheErrorOfAFileThatMayNotBeRead)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("secret.dat", "123456789");
    ASSERT_EQ(0, ::chmod(path.c_str(), 0));
    const AsNobody nobody;
    if (!nobody)
        GTEST_SKIP() << "the superuser's rights cannot be given up";
    unsigned long crc = 4711;
    EXPECT_EQ(static_cast<unsigned long>(EACCES), CCrc().FileCrc32Assembly(path.c_str(), crc));
    EXPECT_EQ(0u, crc);
}

TEST(CrcDisk, TellsThatAFolderIsNoFile)
{
    const TemporaryFolder folder;
    unsigned long crc = 4711;
    EXPECT_EQ(static_cast<unsigned long>(EISDIR),
              CCrc().FileCrc32Win32(folder.Path().c_str(), crc));
    EXPECT_EQ(0u, crc);
}

// On a disk in memory, which keeps nothing of what was never written.
TEST(CrcDisk, ReadsFilesBeyondFourGibibytes)
{
    const std::string path = "/dev/shm/qx" + std::to_string(::getpid()) + ".dat";
    std::ofstream(path) << "begin";
    std::error_code error;
    fs::resize_file(path, (std::uint64_t{1} << 32) + 10, error);
    if (error)
        GTEST_SKIP() << "no room for a large file: " << error.message();
    unsigned long crc = 4711;
    EXPECT_EQ(0u, CCrc().FileCrc32Win32(path.c_str(), crc));
    EXPECT_EQ(0x5667A36Cu, crc);
    fs::remove(path);
}

TEST(CrcDisk, TableOnAFullDiskIsAFailure)
{
    EXPECT_FALSE(CCrc::BuildCRCTable("a.dat", "/dev/full"));
}
