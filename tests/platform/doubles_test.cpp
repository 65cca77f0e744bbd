// The doubles of platform services that find faults themselves.
#include "doubles/clock_double.h"
#include "doubles/files_double.h"
#include "doubles/message_box_double.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace qx::test {
namespace {

using namespace platform;

TEST(Doubles, ForgetTheirStateAtTheEndOfTheirScope)
{
    ClockDouble outer;
    outer.now = 5;
    {
        ClockDouble inner;
        inner.now = 7;
        EXPECT_EQ(7, SecondsSince1970());
    }
    EXPECT_EQ(5, SecondsSince1970());
}

TEST(MessageBoxDouble, FailsTheTestOnAnUnexpectedOrMissingBox)
{
    EXPECT_NONFATAL_FAILURE(ShowMessageBox(nullptr, "surprise", "caption", MB_OK), "surprise");
    EXPECT_NONFATAL_FAILURE({ MessageBoxDouble boxes({IDOK}); }, "1 expected boxes");
}

TEST(FilesDouble, InjectsFaults)
{
    FilesDouble disk;
    disk.capacity = 8;
    disk.failing["flush"] = 2;
    File file("a", FileMode::Create);
    EXPECT_TRUE(file.Flush());
    EXPECT_FALSE(file.Flush());
    EXPECT_TRUE(file.Write("12345"));
    EXPECT_FALSE(file.Write("6789a"));  // cut by the full disk
    EXPECT_EQ("12345678", disk.Text("a"));

    disk.callsUntilCrash = 1;
    EXPECT_TRUE(file.Close());
    EXPECT_FALSE(MoveOver("a", "b"));
    EXPECT_EQ("move a b", disk.calls.back());
}

}  // namespace
}  // namespace qx::test
