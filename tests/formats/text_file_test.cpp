#include "formats/oracle/plain_text_reader.h"
#include "support/guarded_buffer.h"
#include "support/temporary_folder.h"

#include <qxutility/formats/text_file.h>

#include <cstring>
#include <gmock/gmock.h>
#include <memory>
#include <random>
#include <utility>

using qx::test::GuardedBuffer;
using qx::test::PlainTextReader;
using qx::test::TemporaryFolder;
using testing::ElementsAre;

namespace {

// Every line of a file, and what eof() said after it; reads on a little after the end.
using Lines = std::vector<std::pair<std::string, bool>>;

Lines ReadAsAlways(const std::string& bytes)
{
    Lines lines;
    PlainTextReader reader(bytes);
    const auto line = std::make_unique<char[]>(bytes.size() + 1);
    for (int after = 0; after < 3; after += reader.Eof()) {
        reader.ReadLine(line.get());
        lines.emplace_back(line.get(), reader.Eof());
    }
    return lines;
}

template <typename ReadLine>
Lines ReadAll(const std::string& path, ReadLine readLine)
{
    Lines lines;
    TextFile file(path.c_str());
    for (int after = 0; after < 3; after += file.eof()) {
        std::string line = readLine(file);
        lines.emplace_back(std::move(line), file.eof());
    }
    return lines;
}

std::vector<std::string> LinesOf(const std::string& bytes)
{
    const TemporaryFolder folder;
    TextFile file(folder.Write("lines.txt", bytes).c_str());
    std::vector<std::string> lines;
    while (!file.eof())
        file.ReadLine(lines.emplace_back());
    return lines;
}

// Compares all three forms of reading with the plain reader.
void ExpectAsAlways(const TemporaryFolder& folder, const std::string& bytes,
                    const std::string& what)
{
    const std::string path = folder.Write("lines.txt", bytes);
    const Lines expected = ReadAsAlways(bytes);
    const auto buffer = std::make_unique<char[]>(bytes.size() + 1);
    const auto whole = [&](TextFile& file) {
        file.ReadLine(buffer.get());
        return std::string(buffer.get());
    };
    const auto growing = [](TextFile& file) {
        std::string line = "left over";
        file.ReadLine(line);
        return line;
    };
    ASSERT_EQ(expected, ReadAll(path, whole)) << what;
    ASSERT_EQ(expected, ReadAll(path, growing)) << what;

    GuardedBuffer small(50);
    std::size_t i = 0;
    const auto bounded = [&](TextFile& file) {
        EXPECT_EQ(expected[i].first.size(), file.ReadLine(small, small.size())) << what;
        EXPECT_EQ(expected[i].first.substr(0, 49), small.data()) << what;
        return expected[i++].first;
    };
    ASSERT_EQ(expected, ReadAll(path, bounded)) << what;
}

// A text of random runs that favours what readers get wrong: line ends of all kinds, NUL bytes.
std::string RandomText(std::mt19937& random, std::size_t length)
{
    static const std::string kEnds[] = {"\r\n", "\r\n", "\r", "\n", "\n\n", std::string(1, '\0')};
    const std::size_t longestRun = std::uniform_int_distribution<std::size_t>(0, 3000)(random);
    std::string text;
    while (text.size() < length) {
        text.append(std::uniform_int_distribution<std::size_t>(0, longestRun)(random), 'x');
        text += kEnds[random() % std::size(kEnds)];
        text += std::to_string(text.size());
    }
    text.resize(length);
    return text;
}

}  // namespace

TEST(TextFile, EndsLinesAtCrAndSkipsOneLf)
{
    EXPECT_THAT(LinesOf("a\r\nb\r\nc"), ElementsAre("a", "b", "c"));
    EXPECT_THAT(LinesOf("a\rb"), ElementsAre("a", "b"));
    EXPECT_THAT(LinesOf("a\nb"), ElementsAre("a\nb"));
    EXPECT_THAT(LinesOf("\na\r\n\nb\r\r"), ElementsAre("a", "\nb", ""));
    EXPECT_THAT(LinesOf(""), ElementsAre());
}

TEST(TextFile, HasOneMoreEmptyLineAfterAFinalLineEnd)
{
    EXPECT_THAT(LinesOf("a\r\n"), ElementsAre("a", ""));
    EXPECT_THAT(LinesOf("a\r"), ElementsAre("a"));
}

TEST(TextFile, ReadsAsAlwaysWhereBlocksMeet)
{
    const TemporaryFolder folder;
    static const std::string kMiddles[] = {"",
                                           "\r",
                                           "\r\n",
                                           "\n",
                                           "\n\n",
                                           "\r\n\r\n",
                                           std::string("\0", 1),
                                           "\r\r",
                                           "\r\n\n",
                                           "b\r",
                                           "\nb\r\n",
                                           "\r\nb",
                                           std::string("\0\r\n\0", 4)};
    for (const std::size_t meeting : {4095U, 8190U, 32U * 4095U}) {
        for (std::size_t before = meeting - 3; before <= meeting + 1; ++before) {
            for (const std::string& middle : kMiddles) {
                for (const char* end : {"", "tail\r\n"}) {
                    const std::string text = std::string(before, 'a') + middle + end;
                    ExpectAsAlways(folder, text,
                                   std::to_string(before) + testing::PrintToString(middle) + end);
                }
            }
        }
    }
}

TEST(TextFile, ReadsRandomFilesAsAlways)
{
    const TemporaryFolder folder;
    std::mt19937 random(1);
    for (int i = 0; i < 300; ++i) {
        const std::size_t length = 4095 * (random() % 40) + random() % 5 - (i % 2 ? 2 : 0);
        const std::string text = RandomText(random, std::min<std::size_t>(length, 200000));
        ExpectAsAlways(folder, text, "file " + std::to_string(i));
    }
}

TEST(TextFile, DeliversLongLinesWholeOrCut)
{
    const TemporaryFolder folder;
    const std::string longLine(10'000'000, 'x');
    const std::string path = folder.Write("long.txt", longLine + "\r\nb");
    TextFile file(path.c_str());
    std::string line;
    file.ReadLine(line);
    EXPECT_TRUE(longLine == line);
    file.ReadLine(line);
    EXPECT_EQ("b", line);

    file.Restart();
    GuardedBuffer buffer(4096);
    EXPECT_EQ(longLine.size(), file.ReadLine(buffer, buffer.size()));
    EXPECT_EQ(longLine.substr(0, 4095), buffer.data());
    EXPECT_EQ(1u, file.ReadLine(buffer, buffer.size()));
    EXPECT_STREQ("b", buffer);
}

TEST(TextFile, HonoursTheBufferSize)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("lines.txt", "hello\r\nworld");
    for (std::size_t size = 1; size <= 7; ++size) {
        TextFile file(path.c_str());
        GuardedBuffer nothing(0), buffer(size);
        EXPECT_EQ(5u, file.ReadLine(buffer, size));
        EXPECT_EQ(std::string("hello").substr(0, size - 1), buffer.data());
        EXPECT_EQ(5u, file.ReadLine(nothing, 0));
        EXPECT_TRUE(file.eof());
    }
}

TEST(TextFile, RestartGoesBackToTheFirstLine)
{
    const TemporaryFolder folder;
    TextFile file(folder.Write("lines.txt", "a\r\nb").c_str());
    std::string line;
    for (const char* expected : {"a", "b", "", ""}) {
        file.ReadLine(line);
        EXPECT_EQ(expected, line);
    }
    file.Restart();
    EXPECT_FALSE(file.eof());
    file.ReadLine(line);
    EXPECT_EQ("a", line);
}

TEST(TextFile, KnowsItsSize)
{
    const TemporaryFolder folder;
    TextFile file(folder.Write("lines.txt", "a\r\nb").c_str());
    EXPECT_TRUE(file.ValidFile());
    EXPECT_EQ(4u, file.Size());
}

TEST(TextFile, WithoutAFileIsAtItsEnd)
{
    const TemporaryFolder folder;
    for (const std::string& path : {folder.Path("missing.txt"), folder.Path(), std::string()}) {
        TextFile file(path.c_str());
        EXPECT_FALSE(file.ValidFile()) << path;
        EXPECT_TRUE(file.eof()) << path;
        EXPECT_EQ(0u, file.Size()) << path;
        char line[8] = "?";
        file.ReadLine(line);
        EXPECT_STREQ("", line) << path;
        file.Restart();
        EXPECT_TRUE(file.eof()) << path;
    }
}

TEST(TextFile, EndsWhenAFileShrinksMeanwhile)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("lines.txt", std::string(1'000'000, 'x'));
    TextFile file(path.c_str());
    std::error_code refused;
    std::filesystem::resize_file(path, 10, refused);
    if (refused)
        GTEST_SKIP() << "this system does not let a file shrink while it is read";
    std::string line;
    file.ReadLine(line);
    EXPECT_EQ(std::string(10, 'x'), line);
    EXPECT_TRUE(file.eof());
}

TEST(TextFile, KeepsItsPlaceWhenMoved)
{
    const TemporaryFolder folder;
    TextFile first(folder.Write("lines.txt", "a\r\nb").c_str());
    std::string line;
    first.ReadLine(line);
    TextFile second(std::move(first));
    second.ReadLine(line);
    EXPECT_EQ("b", line);
}

TEST(TextFile, KnowsSizeAndEndBeyondFourGibibytes)
{
    const TemporaryFolder folder;
    const std::string path = folder.Write("huge.txt", "12345678\r\n");
    const std::uint64_t size = (std::uint64_t{1} << 32) + 10;
    std::error_code error;  // the file is sparse: it takes no room where the system can
    std::filesystem::resize_file(path, size, error);
    if (error)
        GTEST_SKIP() << "no room for a large file: " << error.message();
    TextFile file(path.c_str());
    EXPECT_EQ(size, file.Size());
    std::string line;
    file.ReadLine(line);
    EXPECT_EQ("12345678", line);
    EXPECT_FALSE(file.eof());
}
