#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/formats/text_file.h>

#include <gmock/gmock.h>
#include <random>
#include <utility>

#if defined(_WIN32)
#include <windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

using qx::test::GuardedBuffer;
using qx::test::TemporaryFolder;
using testing::ElementsAre;

namespace {

// A file with a handle of the kind that applications pass.
class OpenedFile {
  public:
    explicit OpenedFile(const std::string& bytes)
    {
        const std::string path = m_folder.Write("lines.txt", bytes);
#if defined(_WIN32)
        m_handle = ::_lopen(path.c_str(), OF_READ);
#else
        m_handle = ::open(path.c_str(), O_RDONLY);
#endif
    }
    OpenedFile(const OpenedFile&) = delete;
    OpenedFile& operator=(const OpenedFile&) = delete;
    ~OpenedFile()
    {
#if defined(_WIN32)
        ::_lclose(m_handle);
#else
        ::close(m_handle);
#endif
    }
    int Handle() const
    {
        return m_handle;
    }

  private:
    TemporaryFolder m_folder;
    int m_handle;
};

std::vector<std::string> LinesOf(const std::string& bytes)
{
    const OpenedFile file(bytes);
    GuardedBuffer buffer(1024), line(1024);
    std::vector<std::string> lines;
    for (bool first = true; GetNextLine(file.Handle(), buffer, line, first) == 0; first = false)
        lines.emplace_back(line.data());
    return lines;
}

}  // namespace

TEST(GetNextLine, EndsLinesAtCrAndSkipsTheNextByte)
{
    EXPECT_THAT(LinesOf("a\r\nb\r\n"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf("a\r\n\r\nb\r\n"), ElementsAre("a", "", "b"));
    EXPECT_THAT(LinesOf("a\rbc\r\n"), ElementsAre("a", "c"));
    EXPECT_THAT(LinesOf("a\nb\r\n"), ElementsAre("a\nb"));
    EXPECT_THAT(LinesOf("a\r"), ElementsAre("a"));
    EXPECT_THAT(LinesOf(std::string("a\0b\r\nc\r\n", 8)), ElementsAre("a", "c"));
}

TEST(GetNextLine, DeliversNoLineWithoutAnEnd)
{
    EXPECT_THAT(LinesOf("a\r\nb"), ElementsAre("a"));
    EXPECT_THAT(LinesOf("b"), ElementsAre());
    EXPECT_THAT(LinesOf(""), ElementsAre());
}

TEST(GetNextLine, FindsAllLinesOfUpTo383Characters)
{
    std::mt19937 random(1);
    for (int i = 0; i < 50; ++i) {
        const std::size_t longest = i % 2 ? 383 : 1 + random() % 100;
        std::vector<std::string> lines;
        std::string bytes;
        for (int n = 0; n < 100; ++n) {
            lines.emplace_back(i % 5 ? random() % (longest + 1) : longest, 'x');
            bytes += lines.back() + "\r\n";
        }
        EXPECT_EQ(lines, LinesOf(bytes)) << "file " << i;
    }
}

TEST(GetNextLine, FillsItsBufferAnewFromPosition641)
{
    // A line of 400 characters that starts at the position given.
    const auto linesBefore = [](std::size_t position) {
        return LinesOf(std::string(position - 2, 'a') + "\r\n" + std::string(400, 'b') + "\r\n")
            .size();
    };
    EXPECT_EQ(2u, linesBefore(600));
    EXPECT_EQ(1u, linesBefore(640)) << "its end is not in the buffer";
    EXPECT_EQ(2u, linesBefore(641));
    EXPECT_THAT(LinesOf(std::string(1023, 'a') + "\r\nb\r\n"),
                ElementsAre(std::string(1023, 'a'), "b"));
    EXPECT_THAT(LinesOf(std::string(1024, 'a') + "\r\nb\r\n"), ElementsAre());
}

TEST(GetNextLine, StartsAnewOnAnotherFile)
{
    const OpenedFile first("a\r\nb\r\nc\r\n"), second("1\r\n2\r\n");
    GuardedBuffer buffer(1024), line(2);
    const std::pair<const OpenedFile*, bool> steps[] = {
        {&first, true}, {&first, false}, {&second, true}, {&second, false}, {&first, true}};
    std::string read;
    for (const auto& [file, restart] : steps) {
        EXPECT_EQ(0, GetNextLine(file->Handle(), buffer, line, restart));
        read += line;
    }
    EXPECT_EQ("ab12a", read);
}

TEST(GetNextLine, SaysWhenNothingCanBeRead)
{
    GuardedBuffer buffer(1024), line(1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(1, GetNextLine(-1, buffer, line, i == 0));
}
