#include "formats/log_pruning.h"

#include "doubles/files_double.h"

#include <array>
#include <gmock/gmock.h>

using qx::PruneLog;
using qx::test::FilesDouble;
using testing::AnyOf;
using testing::Contains;
using testing::Eq;
using testing::HasSubstr;
using testing::Not;

static constexpr char kPath[] = "logs/app.log";
static constexpr std::int64_t kNow = 1226534400;
static constexpr std::int64_t kTenDays = 864000;

static std::string Header(std::int64_t age)
{
    return "[" + std::to_string(kNow - age) + "] Log entry for 11/13/08 at 09:20:00";
}

// What pruning leaves of a log.
static std::string Pruned(const std::string& log)
{
    FilesDouble disk;
    disk.Put(kPath, log);
    PruneLog(kPath, kNow);
    EXPECT_EQ(1u, disk.files.size()) << log;
    return disk.Text(kPath);
}

TEST(PruneLog, KeepsOrDropsEntriesAsAWhole)
{
    const std::string now = Header(0) + "\nx\n\ny\n";
    const std::string old = Header(kTenDays + 1) + "\nold\n\n";
    const std::string last = Header(kTenDays) + "\nlast moment\n";
    const std::array<std::array<std::string, 2>, 7> cases = {{
        {now, now},
        {old + now, now},
        {now + old, now},
        {old + last + old + now + old, last + now},
        {old, ""},
        {"before the first header\n" + now, now},
        {"", ""},
    }};
    for (const auto& [log, expected] : cases)
        EXPECT_EQ(expected, Pruned(log)) << log;
}

TEST(PruneLog, ReadsTheNumberOfAHeader)
{
    const std::string young = std::to_string(kNow);
    const std::array<std::array<std::string, 2>, 10> cases = {{
        {"[" + young + "\n", "kept"},
        {"[" + young + "no bracket\n", "kept"},
        {"[ " + young + "]\n", "kept"},
        {"[000000000" + young + "]\n", "kept"},
        {"[0000000000" + young + "]\n", "dropped"},  // the 20th character is not read
        {"[99999999999999999999999]\n", "kept"},
        {"[]\n", "dropped"},
        {"[\n", "dropped"},
        {"[-999999999999999999999]\n", "dropped"},
        {" [" + young + "]\n", "dropped"},  // no header
    }};
    for (const auto& [log, expected] : cases)
        EXPECT_EQ(expected == "kept" ? log : "", Pruned(log)) << log;
}

TEST(PruneLog, KeepsLineEndsAndBytesAsTheyAre)
{
    const std::string old = Header(kTenDays + 1) + "\r\n";
    const std::string kept = Header(5) + "\r\n" + std::string("a\0b\x1a\xff\r c\r\n\n", 11) + "\n";
    EXPECT_EQ(kept, Pruned(old + kept));
    EXPECT_EQ(kept + "end\n", Pruned(old + kept + "end"));
    EXPECT_EQ(Header(5) + "\r\nend\r\n", Pruned(Header(5) + "\r\nend"));
}

TEST(PruneLog, CutsALongLineAndEndsThere)
{
    const std::string start = Header(5) + "\n";
    const std::string longest(511, 'x');
    const std::array<std::array<std::string, 2>, 5> cases = {{
        {start + longest + "\nmore\n", start + longest + "\nmore\n"},
        {start + longest + "\r\nmore\r\n", start + longest + "\r\nmore\r\n"},
        {start + longest + "y\nmore\n", start + longest + "\n"},
        {start + std::string(10'000'000, 'x') + "\nmore\n" + start, start + longest + "\n"},
        {longest + "y\n" + start, ""},
    }};
    for (const auto& [log, expected] : cases)
        EXPECT_TRUE(expected == Pruned(log)) << log.substr(0, 1000);
}

TEST(PruneLog, ReadsLogsOfManyBlocks)
{
    std::string log, expected;
    for (int i = 0; i < 20000; ++i) {
        const std::string entry = Header(i % 3 == 0 ? 5 : kTenDays + i) + "\nline " +
                                  std::to_string(i) + std::string(i % 60, '.') + "\n";
        log += entry;
        expected += i % 3 == 0 ? entry : "";
    }
    EXPECT_TRUE(expected == Pruned(log));
}

TEST(PruneLog, WritesNothingWhenNothingIsDropped)
{
    FilesDouble disk;
    disk.Put(kPath, Header(0) + "\nx\n");
    PruneLog(kPath, kNow);
    EXPECT_THAT(disk.calls, Not(Contains(AnyOf(HasSubstr("write"), HasSubstr("move")))));
}

TEST(PruneLog, MakesAnEmptyLogOfOneThatCannotBeRead)
{
    FilesDouble disk;
    PruneLog(kPath, kNow);
    EXPECT_EQ("", disk.Text(kPath));

    disk.Put(kPath, "secret\n");
    disk.failing["open"] = 2;  // the first asks whether the log may be written
    PruneLog(kPath, kNow);
    EXPECT_EQ("", disk.Text(kPath));
    EXPECT_EQ(1u, disk.files.size());
}

struct PruneLogFailing : testing::Test {
    const std::string old = Header(kTenDays + 1) + "\n" + std::string(100'000, '\n');
    const std::string young = Header(1) + "\n" + std::string(100'000, '\n');
    FilesDouble disk;

    PruneLogFailing() { disk.Put(kPath, old + young); }
};

TEST_F(PruneLogFailing, LeavesTheOldLogAndNoOtherFile)
{
    for (const char* kind : {"open", "read", "write", "flush", "close", "move"}) {
        bool isPruned = false;
        for (int n = 1; !isPruned; ++n) {
            const FilesDouble::Contents before = std::make_shared<std::string>(old + young);
            disk.files = {{kPath, before}};
            disk.failing = {{kind, n}};
            PruneLog(kPath, kNow);
            isPruned = disk.failing[kind] > 0;  // it was not called so often
            const std::string emptied = std::string(kind) == "open" && n == 2 ? "" : "never";
            EXPECT_THAT(disk.Text(kPath), AnyOf(Eq(old + young), Eq(young), Eq(emptied)))
                << kind << n;
            EXPECT_EQ(1u, disk.files.size()) << kind << n;
            ASSERT_LT(n, 100) << kind;
        }
        EXPECT_TRUE(disk.Text(kPath) == young) << kind;
    }
}

TEST_F(PruneLogFailing, LeavesTheOldLogOnAFullDisk)
{
    for (const std::size_t room : {std::size_t{0}, std::size_t{1000}, young.size() - 1}) {
        disk.capacity = (old + young).size() + room;
        PruneLog(kPath, kNow);
        EXPECT_TRUE(disk.Text(kPath) == old + young) << room;
        EXPECT_EQ(1u, disk.files.size()) << room;
    }
}

TEST_F(PruneLogFailing, LeavesAWholeLogWhenTheMachineGoesDown)
{
    bool isPruned = false;
    for (int calls = 0; !isPruned; ++calls) {
        disk.files.clear();
        disk.Put(kPath, old + young);
        disk.callsUntilCrash = calls;
        PruneLog(kPath, kNow);
        isPruned = disk.callsUntilCrash > 0;
        EXPECT_TRUE(disk.Text(kPath) == old + young || disk.Text(kPath) == young) << calls;
        ASSERT_LT(calls, 100);
    }
    EXPECT_TRUE(disk.Text(kPath) == young);
}

TEST_F(PruneLogFailing, ReplacesTheLogOnlyByWhatIsOnTheDisk)
{
    PruneLog(kPath, kNow);
    const std::string temporary = "logs/app.log.tmp";
    std::vector<std::string> last(disk.calls.end() - 4, disk.calls.end());
    EXPECT_THAT(last, testing::ElementsAre("flush " + temporary, "close " + temporary,
                                           std::string("close ") + kPath,
                                           "move " + temporary + " " + kPath));
}
