#include "doubles/clock_double.h"
#include "support/temporary_folder.h"

#include <qxutility/formats/log_file.h>

#include <filesystem>
#include <gmock/gmock.h>

using qx::test::ClockDouble;
using qx::test::TemporaryFolder;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace fs = std::filesystem;

namespace {

constexpr std::int64_t kDay = 24 * 60 * 60;

// The lines of a file, however the stream ends them; one that has no end is marked with "...".
std::vector<std::string> Lines(const std::string& path)
{
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line + (file.eof() ? "..." : ""));
    return lines;
}

std::vector<std::string> Names(const TemporaryFolder& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder.Path()))
        names.push_back(entry.path().filename().string());
    return names;
}

struct LogFileTest : testing::Test {
    TemporaryFolder folder;
    ClockDouble clock;
    const std::string path = folder.Path("app.log");
    const std::string header = "[1226568000] Log entry for 11/13/08 at 09:20:00";
};

}  // namespace

TEST_F(LogFileTest, BeginsWithItsHeaderInLocalTime)
{
    const LogFile log(path.c_str());
    EXPECT_FALSE(log.is_open());
    EXPECT_THAT(Lines(path), ElementsAre(header));

    clock.now = 4102444799;  // 2099-12-31 23:59:59 UTC
    clock.secondsAheadOfUtc = 3600;
    const LogFile next(folder.Path("next.log").c_str());
    EXPECT_THAT(Lines(folder.Path("next.log")),
                ElementsAre("[4102444799] Log entry for 01/01/00 at 00:59:59"));
}

TEST_F(LogFileTest, DropsEntriesOfMoreThanTenDays)
{
    clock.now -= 12 * kDay;
    LogFile(path.c_str()) << "twelve days\n";
    clock.now += 11 * kDay;
    LogFile(path.c_str()) << "a day\n";
    clock.now += kDay;
    const LogFile log(path.c_str());
    EXPECT_THAT(Lines(path),
                ElementsAre("[1226481600] Log entry for 11/12/08 at 09:20:00", "a day", header));
    EXPECT_THAT(Names(folder), ElementsAre("app.log"));
}

TEST_F(LogFileTest, ATextStaysOpenUntilItEndsWithALineFeed)
{
    LogFile log(path.c_str());
    log << "abc";
    EXPECT_TRUE(log.is_open());
    log << "";
    EXPECT_TRUE(log.is_open());
    log << "def\n";
    EXPECT_FALSE(log.is_open());
    log << "two\nlines\n";
    EXPECT_THAT(Lines(path), ElementsAre(header, "abcdef", "two", "lines"));
}

TEST_F(LogFileTest, ALineFeedCharacterClosesTheFile)
{
    LogFile log(path.c_str());
    log << 'a' << 'b';
    EXPECT_TRUE(log.is_open());
    log << '\n';
    EXPECT_FALSE(log.is_open());
    EXPECT_THAT(Lines(path), ElementsAre(header, "ab"));
}

TEST_F(LogFileTest, ALineFeedCharacterIsLostWhenTheFileIsClosed)
{
    LogFile log(path.c_str());
    log << '\n' << "next\n" << '\n';
    EXPECT_THAT(Lines(path), ElementsAre(header, "next"));
}

TEST_F(LogFileTest, NumbersStayOpen)
{
    LogFile log(path.c_str());
    log << 12;
    EXPECT_TRUE(log.is_open());
    log << ' ' << 0.1 << ' ' << 1234567.0 << '\n';
    log << -1.5;
    EXPECT_TRUE(log.is_open());
    log << "\n";
    EXPECT_THAT(Lines(path), ElementsAre(header, "12 0.1 1.23457e+06", "-1.5"));
}

TEST_F(LogFileTest, WriteIsAlwaysComplete)
{
    LogFile log(path.c_str());
    log.write("one");
    EXPECT_FALSE(log.is_open());
    log << " two";
    log.write(" three\n");
    EXPECT_FALSE(log.is_open());
    EXPECT_THAT(Lines(path), ElementsAre(header, "one two three"));
}

TEST_F(LogFileTest, ClearEndsALineThatWasBegun)
{
    LogFile log(path.c_str());
    log << "begun";
    log.clear();
    log << "next\n";
    EXPECT_THAT(Lines(path), ElementsAre(header, "begun", "next"));
}

TEST_F(LogFileTest, SeveralObjectsWriteToOneLog)
{
    LogFile first(path.c_str()), second(path.c_str());
    first << "first\n";
    second << "second\n";
    first << "third\n";
    EXPECT_THAT(Lines(path), ElementsAre(header, header, "first", "second", "third"));
}

TEST_F(LogFileTest, ClosesWhenItEnds)
{
    LogFile(path.c_str()) << "no end";
    EXPECT_THAT(Lines(path), ElementsAre(header, "no end..."));
}

TEST_F(LogFileTest, LongLinesAreWrittenWholeAndCutByTheNextObject)
{
    const std::string longLine(10'000'000, 'x');
    LogFile(path.c_str()) << longLine.c_str() << "\n";
    EXPECT_EQ(longLine, Lines(path).at(1));
    const LogFile next(path.c_str());
    EXPECT_THAT(Lines(path), ElementsAre(header, longLine.substr(0, 511)));
}

TEST_F(LogFileTest, LosesWhatCannotBeWrittenUntilItCan)
{
    const std::string inside = folder.Path("missing");
    const std::string unborn = (fs::path(inside) / "app.log").string();
    LogFile log(unborn.c_str());
    log << "lost" << '\n' << "lost\n";
    log.write("lost\n");
    fs::create_directory(inside);
    log << "found\n";
    EXPECT_THAT(Lines(unborn), ElementsAre("found"));
}

TEST_F(LogFileTest, UsesThePathUpToIts259thCharacter)
{
    const std::string longPath = folder.Path(std::string(300, 'x'));
    LogFile(longPath.c_str()) << "cut\n";
    EXPECT_THAT(Lines(longPath.substr(0, 259)), ElementsAre(header, "cut"));
    EXPECT_EQ(1u, Names(folder).size());
}

TEST_F(LogFileTest, LeavesOtherFilesAloneButForItsOwnLeftovers)
{
    clock.now -= 12 * kDay;
    LogFile(path.c_str()) << "old\n";
    clock.now += 12 * kDay;
    folder.Write("app.log.1a2b3c.tmp", "left by a crash");
    for (const char* name : {"app.log.tmp", "app.log.notes.tmp", "app.log.123456789.tmp",
                             "other.log.1a2b3c.tmp", "newFile.txt"})
        folder.Write(name, "mine");
    const LogFile log(path.c_str());
    EXPECT_THAT(Lines(path), ElementsAre(header));
    EXPECT_THAT(Names(folder), UnorderedElementsAre("app.log", "app.log.tmp", "app.log.notes.tmp",
                                                    "app.log.123456789.tmp", "other.log.1a2b3c.tmp",
                                                    "newFile.txt"));
}

TEST_F(LogFileTest, AutologIsMadeInTheCurrentFolderOnFirstUse)
{
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    {
        Autolog log;
        EXPECT_THAT(Names(folder), ElementsAre());
        log << 'n' << " = " << 3 << ", x = " << 0.5 << '\n';
        log << "done\n";
    }
    fs::current_path(before);
    EXPECT_THAT(Lines(folder.Path("marvend.log")), ElementsAre(header, "n = 3, x = 0.5", "done"));
}
