// What the system makes of files in ways that callers must not notice.
#include "platform/files.h"
#include "support/temporary_folder.h"

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace qx::test {
namespace {

using namespace platform;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

// Interrupts system calls of the thread while it lives.
class Interruptions {
  public:
    explicit Interruptions(pthread_t thread) : m_thread([=, this] { Send(thread); }) {}
    ~Interruptions()
    {
        m_done = true;
        m_thread.join();
    }

  private:
    void Send(pthread_t thread)
    {
        while (!m_done) {
            ::pthread_kill(thread, SIGUSR1);
            std::this_thread::sleep_for(1ms);
        }
    }

    std::atomic<bool> m_done = false;
    std::thread m_thread;
};

TEST(PosixFile, ReadsAllThatArrivesInPortions)
{
    struct sigaction action {};
    action.sa_handler = [](int) {};  // without SA_RESTART: calls fail with EINTR
    ASSERT_EQ(0, ::sigaction(SIGUSR1, &action, nullptr));
    const TemporaryFolder folder;
    const std::string pipe = folder.Path("pipe");
    ASSERT_EQ(0, ::mkfifo(pipe.c_str(), 0600));
    std::thread writer([&] {
        File file(pipe.c_str(), FileMode::Append);
        for (const char* portion : {"one ", "two ", "three"}) {
            file.Write(portion);
            std::this_thread::sleep_for(20ms);
        }
    });
    char text[100];
    {
        const Interruptions interruptions(::pthread_self());
        File file(pipe.c_str(), FileMode::Read);
        EXPECT_EQ(13u, file.Read(text, sizeof text));
    }
    writer.join();
    EXPECT_EQ("one two three", std::string(text, 13));
}

TEST(PosixFile, ReportsAFullDisk)
{
    File file("/dev/full", FileMode::Append);
    ASSERT_TRUE(file);
    EXPECT_FALSE(file.Write("x"));
    EXPECT_TRUE(file.Write(""));
}

TEST(PosixFile, ReportsAPartialWrite)
{
    const TemporaryFolder folder;
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit old;
    ASSERT_EQ(0, ::getrlimit(RLIMIT_FSIZE, &old));
    const rlimit small{10, old.rlim_max};
    ASSERT_EQ(0, ::setrlimit(RLIMIT_FSIZE, &small));
    File file(folder.Path("a").c_str(), FileMode::Create);
    EXPECT_TRUE(file.Write("1234567"));
    EXPECT_FALSE(file.Write("890abc"));
    ::setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_EQ("1234567890", folder.Read("a"));
}

TEST(PosixFile, LeavesNoDescriptorBehind)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("a", "x");
    const int before = ::dup(0);
    ::close(before);
    {
        File file(path.c_str(), FileMode::Read), other(path.c_str(), FileMode::Read);
        file = std::move(other);
        EXPECT_FALSE(File(folder.Path().c_str(), FileMode::Read));
        MoveOver(path.c_str(), folder.Path("b").c_str());
        ListDirectory(folder.Path().c_str());
    }
    const int after = ::dup(0);
    ::close(after);
    EXPECT_EQ(before, after);
}

TEST(PosixMoveOver, KeepsTheRightsOfTheFileThatItReplaces)
{
    const TemporaryFolder folder;
    const std::string from = folder.Write("new", "new"), to = folder.Write("old", "old");
    fs::permissions(to, fs::perms::owner_read);
    EXPECT_TRUE(MoveOver(from.c_str(), to.c_str()));
    EXPECT_EQ("new", folder.Read(to));
    EXPECT_EQ(fs::perms::owner_read, fs::status(to).permissions());
}

TEST(PosixMoveOver, ReplacesNothingThatIsNoFile)
{
    const TemporaryFolder folder;
    const std::string from = folder.Write("new", "new"), to = folder.Path("pipe");
    ASSERT_EQ(0, ::mkfifo(to.c_str(), 0600));
    EXPECT_FALSE(MoveOver(from.c_str(), to.c_str()));
    EXPECT_TRUE(fs::is_fifo(to));
}

TEST(PosixListDirectory, ListsALinkThatLeadsNowhere)
{
    const TemporaryFolder folder;
    fs::create_symlink("none", folder.Path("dangling"));
    fs::create_directory_symlink("/", folder.Path("root"));
    const auto entries = ListDirectory(folder.Path().c_str());
    ASSERT_TRUE(entries && entries->size() == 2);
    EXPECT_EQ("dangling", entries->at(0).name);
    EXPECT_FALSE(entries->at(0).isDirectory);
    EXPECT_TRUE(entries->at(1).isDirectory);
}

TEST(PosixReadFrom, ReadsAtAnOffset)
{
    const TemporaryFolder folder;
    const int handle = ::open(folder.Write("a", "0123456789").c_str(), O_RDONLY);
    char text[8];
    EXPECT_EQ(8u, ReadFrom(handle, 1, text, 8));
    EXPECT_EQ("12345678", std::string(text, 8));
    EXPECT_EQ(1u, ReadFrom(handle, 9, text, 8));
    EXPECT_EQ(0u, ReadFrom(handle, 10, text, 8));
    EXPECT_EQ(std::nullopt, ReadFrom(handle, ~std::uint64_t{0}, text, 8));
    ::close(handle);
    EXPECT_EQ(std::nullopt, ReadFrom(handle, 0, text, 8));
    EXPECT_EQ(std::nullopt, ReadFrom(-1, 0, text, 8));
}

}  // namespace
}  // namespace qx::test
