#include "ui/warning_file.h"

#include "doubles/files_double.h"

#include <gtest/gtest.h>

using qx::test::FilesDouble;

TEST(WarningFile, HoldsALineForEach)
{
    FilesDouble disk;
    disk.Put("list.txt", "something that is longer than the new list");
    EXPECT_TRUE(qx::SaveLines("list.txt", std::vector<std::string>{"a", "", "b%s"}));
    EXPECT_EQ("a\r\n\r\nb%s\r\n", disk.Text("list.txt"));
}

TEST(WarningFile, IsNotLeftHalfWritten)
{
    for (const char* fault : {"open", "write", "close"}) {
        FilesDouble disk;
        disk.failing[fault] = 1;
        EXPECT_FALSE(qx::SaveLines("list.txt", std::vector<std::string>{"a"})) << fault;
        EXPECT_EQ("(none)", disk.Text("list.txt")) << fault;
    }
    FilesDouble disk;
    disk.capacity = 4;
    EXPECT_FALSE(qx::SaveLines("list.txt", std::vector<std::string>{"abc"}));
    EXPECT_EQ("(none)", disk.Text("list.txt"));
}

TEST(WarningFile, ThatIsRefusedStaysAsItIs)
{
    FilesDouble disk;
    disk.Put("list.txt", "old");
    disk.failing["open"] = 1;
    EXPECT_FALSE(qx::SaveLines("list.txt", std::vector<std::string>{"a"}));
    EXPECT_EQ("old", disk.Text("list.txt"));
}
