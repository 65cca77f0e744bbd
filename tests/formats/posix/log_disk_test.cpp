// Logs on disks that are full or must not be written.
#include "doubles/clock_double.h"
#include "support/temporary_folder.h"

#include <qxutility/formats/log_file.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using qx::test::ClockDouble;
using qx::test::TemporaryFolder;
using testing::ElementsAre;

namespace fs = std::filesystem;

namespace {

std::vector<std::string> Names(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    return names;
}

// A disk of 64 KiB in memory, over a folder.
class SmallDisk {
  public:
    explicit SmallDisk(const std::string& path) : m_path(path)
    {
        m_isMounted = ::mount("tmpfs", path.c_str(), "tmpfs", 0, "size=64k") == 0;
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;
    ~SmallDisk()
    {
        if (m_isMounted)
            ::umount2(m_path.c_str(), MNT_DETACH);
    }
    explicit operator bool() const { return m_isMounted; }

  private:
    std::string m_path;
    bool m_isMounted;
};

// Gives up the rights of the superuser, whom no file's mode stops.
class AsNobody {
  public:
    AsNobody()
    {
        if (m_user == 0 && ::seteuid(65534) != 0)
            std::abort();
    }
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;
    ~AsNobody()
    {
        if (::seteuid(m_user) != 0)
            std::abort();
    }

  private:
    uid_t m_user = ::geteuid();
};

struct LogOnDisk : testing::Test {
    TemporaryFolder folder;
    ClockDouble clock;
    const std::string path = folder.Path("app.log");
    const std::string header = "[1226568000] Log entry for 11/13/08 at 09:20:00\n";
    const std::string old = "[1] old\nold\n";
};

}  // namespace

TEST_F(LogOnDisk, StaysReadableWhenTheDiskIsFull)
{
    const SmallDisk disk(folder.Path());
    if (!disk)
        GTEST_SKIP() << "no small disk to be had here: " << std::strerror(errno);
    const std::string log = old + header + std::string(40000, '\n');
    folder.Write("app.log", log);
    const LogFile next(path.c_str());  // there is no room for a second log of this size
    EXPECT_EQ(log + header, folder.Read("app.log"));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("app.log"));

    // And none for anything more.
    folder.Write("rest", std::string(100'000, 'x'));
    LogFile last(path.c_str());
    last << std::string(10000, 'y').c_str() << "\n";
    EXPECT_EQ(log + header, folder.Read("app.log").substr(0, (log + header).size()));
    EXPECT_EQ(2u, Names(folder.Path()).size());
}

TEST_F(LogOnDisk, StaysWholeInAReadOnlyFolder)
{
    folder.Write("app.log", old);
    ::chmod(path.c_str(), 0666);
    ::chmod(folder.Path().c_str(), 0555);
    {
        const AsNobody nobody;
        LogFile log(path.c_str());
        log << "new\n";
    }
    ::chmod(folder.Path().c_str(), 0755);
    EXPECT_EQ(old + header + "new\n", folder.Read("app.log"));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("app.log"));
}

TEST_F(LogOnDisk, StaysWholeWhenItIsReadOnly)
{
    folder.Write("app.log", old);
    ::chmod(path.c_str(), 0444);
    ::chmod(folder.Path().c_str(), 0777);
    {
        const AsNobody nobody;
        LogFile log(path.c_str());
        log << "lost\n";
    }
    EXPECT_EQ(old, folder.Read("app.log"));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("app.log"));
}

TEST_F(LogOnDisk, IsEmptiedWhenItCanBeWrittenButNotRead)
{
    folder.Write("app.log", old);
    ::chmod(path.c_str(), 0222);
    ::chmod(folder.Path().c_str(), 0777);
    {
        const AsNobody nobody;
        const LogFile log(path.c_str());
    }
    EXPECT_EQ(0u, fs::file_size(path));
    EXPECT_THAT(Names(folder.Path()), ElementsAre("app.log"));
}
