// Each double stands in for its service: this program is linked with the library's archives, and
// every function of every service is the double's.
#include "doubles/clock_double.h"
#include "doubles/files_double.h"
#include "doubles/locale_double.h"
#include "doubles/message_box_double.h"
#include "doubles/module_double.h"
#include "doubles/path_search_double.h"
#include "doubles/resources_double.h"

#include <qxutility/config/language.h>

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace qx::test {
namespace {

using namespace platform;

// The language object lives in an archive and asks for locale data.
TEST(Doubles, AnswerTheLibrarysOwnCalls)
{
    LocaleDouble locales;
    locales.installed[0x1FFF] = {"#", "~", "<", ">", "short", "long"};
    CLanguage language;
    ASSERT_EQ(0, language.SetLanguage(0x1FFF));
    EXPECT_EQ('#', language.Decimal());
    EXPECT_EQ('~', language.Separator());
    char text[32];
    EXPECT_STREQ("<1#5>", language.Money("1.5", text, sizeof text, true));
    EXPECT_STREQ("long", language.Date(text, sizeof text, DATE_LONGDATE));
}

TEST(Doubles, ForgetTheirStateAtTheEndOfTheirScope)
{
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
    EXPECT_NE(5, SecondsSince1970());
}

TEST(ClockDouble, GivesTheDateInItsZone)
{
    ClockDouble clock;
    clock.secondsAheadOfUtc = 15 * 3600;
    const LocalTime time = ToLocalTime(SecondsSince1970());
    EXPECT_EQ(2008, time.year);
    EXPECT_EQ(11, time.month);
    EXPECT_EQ(14, time.day);
    EXPECT_EQ(0, time.hour);
    EXPECT_EQ(20, time.minute);
    EXPECT_EQ(0, time.second);
}

TEST(MessageBoxDouble, RecordsBoxesAndAnswersInOrder)
{
    MessageBoxDouble boxes({IDYES, IDNO});
    EXPECT_EQ(IDYES, ShowMessageBox(nullptr, "text", "caption", MB_YESNO));
    EXPECT_EQ(IDNO, ShowMessageBox(nullptr, "second", nullptr, MB_YESNO));
    ASSERT_EQ(2u, boxes.shown.size());
    EXPECT_EQ("text", boxes.shown[0].text);
    EXPECT_EQ("caption", boxes.shown[0].caption);
    EXPECT_EQ("Error", boxes.shown[1].caption);
    EXPECT_EQ(MB_YESNO, boxes.shown[1].style);
}

TEST(MessageBoxDouble, FailsTheTestOnAnUnexpectedBox)
{
    EXPECT_NONFATAL_FAILURE(ShowMessageBox(nullptr, "surprise", "caption", MB_OK), "surprise");
}

TEST(MessageBoxDouble, FailsTheTestWhenABoxIsMissing)
{
    EXPECT_NONFATAL_FAILURE({ MessageBoxDouble boxes({IDOK}); }, "1 expected boxes");
}

TEST(FilesDouble, KeepsFilesInMemory)
{
    FilesDouble disk;
    disk.Put("d/a", "one");
    File append("d/a", FileMode::Append);
    EXPECT_TRUE(append.Write(" two"));
    EXPECT_TRUE(append.Flush() && append.Close());
    EXPECT_EQ("one two", disk.Text("d/a"));
    EXPECT_FALSE(File("d/a", FileMode::CreateNew));
    EXPECT_FALSE(File("d/b", FileMode::Read));

    File read("d/a", FileMode::Read);
    char text[16];
    EXPECT_TRUE(read.Seek(4));
    EXPECT_EQ(3u, read.Read(text, sizeof text));
    EXPECT_EQ(0u, read.Read(text, sizeof text));
    EXPECT_EQ(7u, read.Size());

    const std::string temporary = TemporaryNameBeside("d/a");
    ASSERT_TRUE(File(temporary.c_str(), FileMode::CreateNew).Write("new"));
    EXPECT_EQ(2u, ListDirectory("d")->size());
    EXPECT_EQ(0u, ListDirectory(".")->size());
    EXPECT_TRUE(MoveOver(temporary.c_str(), "d/a"));
    EXPECT_EQ("new", disk.Text("d/a"));
    EXPECT_FALSE(FileExists(temporary.c_str()));

    for (const char* name : {"b", "d/b"}) {
        disk.Put(name, "");
        disk.Put(TemporaryNameBeside(name), "");
        RemoveTemporariesBeside(name);
    }
    EXPECT_EQ(1u, ListDirectory(".")->size());
    EXPECT_EQ(2u, ListDirectory("d/")->size());
}

TEST(FilesDouble, InjectsFaults)
{
    FilesDouble disk;
    disk.capacity = 8;
    disk.failing["flush"] = 2;
    File file("a", FileMode::Create);
    EXPECT_TRUE(file.Flush());
    EXPECT_FALSE(file.Flush());
    EXPECT_TRUE(file.Flush());
    EXPECT_TRUE(file.Write("12345"));
    EXPECT_FALSE(file.Write("6789a"));  // cut by the full disk
    EXPECT_EQ("12345678", disk.Text("a"));

    disk.callsUntilCrash = 1;
    EXPECT_TRUE(file.Close());
    EXPECT_FALSE(MoveOver("a", "b"));
    EXPECT_FALSE(RemoveFile("a"));
    EXPECT_EQ("remove a", disk.calls.back());
}

TEST(OtherDoubles, SayWhatTheTestGaveThem)
{
    ModuleDouble modules;
    modules.paths[modules.program] = "/opt/app/app";
    EXPECT_EQ("/opt/app/app", ModulePath(nullptr));
    EXPECT_EQ("/opt/app/", ModuleFolder(ProgramModule()));
    EXPECT_EQ("", ModulePath(ThisModule()));

    ResourcesDouble resources;
    resources.strings[{ThisModule(), 5}] = "five";
    resources.bytes[{nullptr, "#300", "XML"}] = "<x/>";
    EXPECT_EQ("five", ResourceString(ThisModule(), 5));
    EXPECT_EQ(std::nullopt, ResourceString(nullptr, 5));
    EXPECT_EQ("<x/>", ResourceBytes(nullptr, "#300", "XML"));

    PathSearchDouble search;
    search.programs["tool"] = "/bin/tool";
    EXPECT_EQ("/bin/tool", FindProgram("tool", ".exe"));
    EXPECT_EQ("", FindProgram("tool -x", ".exe"));
    EXPECT_EQ((std::vector<std::string>{"tool|.exe", "tool -x|.exe"}), search.asked);
}

}  // namespace
}  // namespace qx::test
