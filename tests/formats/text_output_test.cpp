#include "doubles/files_double.h"

#include <qxutility/formats/text_file.h>

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>

using qx::test::FilesDouble;

static constexpr char kPath[] = "out.txt";

TEST(QXTextOutput, HoldsTextsUntilTheyReachTheCapacity)
{
    const FilesDouble disk;
    QXTextOutput out(kPath, 10);
    EXPECT_TRUE(out);
    struct Step {
        const char* text;
        const char* onDisk;
    };
    static const Step kSteps[] = {
        {"12345", ""},
        {"6789", ""},  // 9 are held
        {"a", "123456789"},
        {"", "123456789"},
        {"bcdefghij", "123456789a"},                      // 10 together
        {"0123456789", "123456789abcdefghij0123456789"},  // reaches the capacity alone
        {"x", "123456789abcdefghij0123456789"},
        {"longer than ten", "123456789abcdefghij0123456789xlonger than ten"},
    };
    for (const Step& step : kSteps) {
        out.AddString(step.text);
        EXPECT_EQ(step.onDisk, disk.Text(kPath)) << step.text;
    }
}

TEST(QXTextOutput, WritesTheRestWhenFlushedAndAtItsEnd)
{
    const FilesDouble disk;
    {
        QXTextOutput out(kPath, 100);
        EXPECT_TRUE(out.Flush());
        out.AddString("a\r\n");
        EXPECT_TRUE(out.Flush());
        EXPECT_EQ("a\r\n", disk.Text(kPath));
        out.AddString("b");
        QXTextOutput moved(std::move(out));
        moved.AddString("c");
        EXPECT_EQ("a\r\n", disk.Text(kPath));
    }
    EXPECT_EQ("a\r\nbc", disk.Text(kPath));
}

TEST(QXTextOutput, MovedOverWritesWhatItHeldToItsOwnFile)
{
    const FilesDouble disk;
    {
        QXTextOutput first("first", 100), second("second", 100);
        first.AddString("1");
        second.AddString("2");
        first = std::move(second);
        first.AddString("3");
    }
    EXPECT_EQ("1", disk.Text("first"));
    EXPECT_EQ("23", disk.Text("second"));
}

TEST(QXTextOutput, EmptiesAnExistingFile)
{
    FilesDouble disk;
    disk.Put(kPath, "old");
    QXTextOutput(kPath, 10).AddString("new");
    EXPECT_EQ("new", disk.Text(kPath));
}

TEST(QXTextOutput, TakesAnyCapacity)
{
    constexpr int kMost = std::numeric_limits<int>::max();
    for (const int capacity : {0, -1, -kMost, 1, kMost}) {
        const FilesDouble disk;
        {
            QXTextOutput out(kPath, capacity);
            for (const char* text : {"", "a", "bc", ""})
                out.AddString(text);
        }
        EXPECT_EQ("abc", disk.Text(kPath)) << capacity;
    }
}

TEST(QXTextOutput, FlushTellsOfEveryLostText)
{
    FilesDouble disk;
    QXTextOutput out(kPath, 4);
    out.AddString("abc");
    disk.failing["write"] = 1;
    EXPECT_FALSE(out.Flush());
    EXPECT_TRUE(out.Flush()) << "nothing was lost since";

    disk.failing["write"] = 1;
    out.AddString("def");
    out.AddString("ghi");  // pushes out and loses "def"
    EXPECT_FALSE(out.Flush());
    EXPECT_EQ("ghi", disk.Text(kPath));

    disk.capacity = 5;
    out.AddString("too long for the disk");
    EXPECT_FALSE(out.Flush());
}

TEST(QXTextOutput, WithoutAFileLosesAll)
{
    const FilesDouble disk;
    QXTextOutput out("", 4);
    EXPECT_FALSE(out);
    out.AddString("a");
    out.AddString("longer");
    EXPECT_FALSE(out.Flush());
    EXPECT_FALSE(out.Flush());
}
