// No setting is ever lost: writers that are killed, several at once, full disks, missing rights.
#include "platform/profile.h"
#include "support/temporary_folder.h"

#include <fstream>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace qx::platform {
namespace {

constexpr int kSkipped = 77;  // exit code of a child that could not try

pid_t Start(const std::function<int()>& work)
{
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(work());
    return child;
}

int ExitCode(pid_t child)
{
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

class ProfileDurability : public testing::Test {
  protected:
    bool Write(const std::string& key, const std::string& value) const
    {
        return WriteProfileString("s", key.c_str(), value.c_str(), m_path.c_str());
    }
    std::string Read(const std::string& key) const
    {
        return ProfileValue("s", key.c_str(), "missing", 100, m_path.c_str());
    }
    // Writes `count` keys of this prefix.
    int WriteKeys(const std::string& prefix, int count) const
    {
        for (int i = 0; i < count; ++i)
            if (!Write(prefix + std::to_string(i), std::to_string(i)))
                return 1;
        return 0;
    }
    void ExpectKeys(const std::string& prefix, int count) const
    {
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(Read(prefix + std::to_string(i)), std::to_string(i)) << prefix << i;
    }

    test::TemporaryFolder m_folder;
    std::string m_path = m_folder.Path("p.ini");
};

TEST_F(ProfileDurability, KilledWriterLeavesTheOldOrTheNewFile)
{
    const std::string before = "; comment\r\n[s]\r\ncounter=", after = "\r\n[t]\r\nlong=";
    const std::string tail = std::string(200000, 'x') + "\r\n";
    m_folder.Write("p.ini", before + "0" + after + tail);
    std::mt19937 random(2);
    int last = 0;
    for (int run = 0; run < 100; ++run) {
        const pid_t writer = Start([&] {
            for (int i = last + 1;; ++i)
                Write("counter", std::to_string(i));
            return 0;
        });
        ::usleep(static_cast<useconds_t>(random() % 8000));
        ::kill(writer, SIGKILL);
        ExitCode(writer);
        const std::string text = m_folder.Read("p.ini");
        ASSERT_GE(std::stoi(Read("counter")), last);
        last = std::stoi(Read("counter"));
        ASSERT_EQ(text, before + std::to_string(last) + after + tail) << "run " << run;
    }
    EXPECT_GT(last, 0);
    EXPECT_TRUE(Write("counter", "end"));
    EXPECT_FALSE(std::filesystem::exists(m_path + ".new"));
}

TEST_F(ProfileDurability, WritersAtOnceLoseNothing)
{
    const pid_t first = Start([&] { return WriteKeys("a", 60); });
    const pid_t second = Start([&] { return WriteKeys("b", 60); });
    for (int i = 0; i < 20; ++i) {  // and a third one that is killed again and again
        const pid_t killed = Start([&] { return WriteKeys("killed", 1000); });
        ::usleep(3000);
        ::kill(killed, SIGKILL);
        ExitCode(killed);
    }
    EXPECT_EQ(ExitCode(first), 0);
    EXPECT_EQ(ExitCode(second), 0);
    ExpectKeys("a", 60);
    ExpectKeys("b", 60);
}

TEST_F(ProfileDurability, WhatAKilledWriterLeftIsTakenOver)
{
    m_folder.Write("p.ini", "[s]\r\nk=old\r\n");
    m_folder.Write("p.ini.new", "half of a fi");
    EXPECT_TRUE(Write("k", "new"));
    EXPECT_EQ(m_folder.Read("p.ini"), "[s]\r\nk=new\r\n");
    EXPECT_FALSE(std::filesystem::exists(m_path + ".new"));
}

TEST_F(ProfileDurability, FullDiskKeepsTheOldFile)
{
    const int result = ExitCode(Start([&] {
        const std::string disk = m_folder.Path("disk"), path = disk + "/p.ini";
        ::mkdir(disk.c_str(), 0777);
        // A file system of 32 KB that only this child sees.
        if (::unshare(CLONE_NEWNS) != 0 ||
            ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            ::mount("tmpfs", disk.c_str(), "tmpfs", 0, "size=32k") != 0)
            return kSkipped;
        const std::string text = "[s]\r\nk=old\r\nlong=" + std::string(15000, 'x') + "\r\n";
        std::ofstream(path) << text;
        const bool small = WriteProfileString("s", "k", "new", path.c_str());
        const std::string value(15000, 'y');
        const bool large = WriteProfileString("s", "more", value.c_str(), path.c_str());
        const bool kept = ProfileValue("s", "k", "", 9, path.c_str()) == "new" &&
                          ProfileValue("s", "long", "", 20000, path.c_str()).size() == 15000 &&
                          ProfileValue("s", "more", "none", 9, path.c_str()) == "none";
        const bool clean = !std::filesystem::exists(path + ".new");
        return !small ? 1 : large ? 2 : !kept ? 3 : !clean ? 4 : 0;
    }));
    if (result == kSkipped)
        GTEST_SKIP() << "only root may mount a small disk";
    EXPECT_EQ(result, 0);
}

TEST_F(ProfileDurability, ReadOnlyFilesAndFoldersAreRefused)
{
    m_folder.Write("p.ini", "[s]\r\nk=old\r\n");
    ::chmod(m_path.c_str(), 0444);
    ::chmod(m_folder.Path().c_str(), 0777);
    const auto asNobody = [&] {
        // For root nothing is read-only.
        if (::geteuid() == 0 && (::setegid(65534) != 0 || ::seteuid(65534) != 0))
            return kSkipped;
        return Write("k", "new") ? 1 : Read("k") != "old" ? 2 : 0;
    };
    EXPECT_EQ(ExitCode(Start(asNobody)), 0) << "file";
    ::chmod(m_path.c_str(), 0666);
    ::chmod(m_folder.Path().c_str(), 0555);
    EXPECT_EQ(ExitCode(Start(asNobody)), 0) << "folder";
    ::chmod(m_folder.Path().c_str(), 0777);
    EXPECT_EQ(m_folder.Read("p.ini"), "[s]\r\nk=old\r\n");
    EXPECT_FALSE(std::filesystem::exists(m_path + ".new"));
}

TEST_F(ProfileDurability, LinksStayLinksAndPermissionsStay)
{
    const std::string target = m_folder.Write("target.ini", "[s]\r\nk=old\r\n");
    ::chmod(target.c_str(), 0640);
    ASSERT_EQ(::symlink(target.c_str(), m_path.c_str()), 0);
    EXPECT_TRUE(Write("k", "new"));
    EXPECT_TRUE(std::filesystem::is_symlink(m_path));
    EXPECT_EQ(m_folder.Read("target.ini"), "[s]\r\nk=new\r\n");
    struct stat status;
    ASSERT_EQ(::stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(ProfileDurability, UnchangedFilesAreNotWritten)
{
    m_folder.Write("p.ini", "[s]\nk=v\n");
    struct stat before, after;
    ASSERT_EQ(::stat(m_path.c_str(), &before), 0);
    EXPECT_TRUE(Write("k", "v"));
    ASSERT_EQ(::stat(m_path.c_str(), &after), 0);
    EXPECT_EQ(before.st_ino, after.st_ino);
}

TEST_F(ProfileDurability, LongPaths)
{
    std::string folder = m_folder.Path();
    while (folder.size() < 1000)
        folder += "/" + std::string(100, 'f');
    std::filesystem::create_directories(folder);
    m_path = folder + "/p.ini";
    EXPECT_TRUE(Write("k", "v"));
    EXPECT_EQ(Read("k"), "v");
    m_path = m_folder.Path(std::string(1000, 'n'));
    EXPECT_FALSE(Write("k", "v"));
    EXPECT_EQ(Read("k"), "missing");
    m_path = m_folder.Path();
    EXPECT_FALSE(Write("k", "v")) << "a folder";
}

}  // namespace
}  // namespace qx::platform
