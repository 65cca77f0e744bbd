// The library in a folder without its language table: it speaks English out of its own resources.
#include <qxutility/qxutility.h>

#include <gtest/gtest.h>

static constexpr DWORD kGerman = 0x0407;

static std::string Message(int id, const char* argument)
{
    char out[512] = "";
    return FormatString(nullptr, id, out, sizeof out, argument);
}

TEST(MissingTable, TextsComeFromTheResources)
{
    EXPECT_EQ("Cancel", Message(10, ""));
    EXPECT_EQ(
        "There is no file of this name that can be opened in the folder\nC:\\Curves\n\nSelect a "
        "file from the list, check the spelling of its name, or choose another folder.",
        Message(1011, "C:\\Curves"));
    EXPECT_EQ("", Message(4711, ""));
}

TEST(MissingTable, AnyInstalledLanguageIsAcceptedAndTextsStayEnglish)
{
    QXUtility_SetLanguage(kGerman);
    EXPECT_EQ("Cancel", Message(10, ""));
}

TEST(MissingTable, TheFileFilterIsThereAndAMissingOneIsEmpty)
{
    char filter[255];
    LoadFileFilter(nullptr, filter, 1004);
    EXPECT_STREQ("Text files (*.txt)", filter);
    EXPECT_STREQ("*.txt", filter + sizeof "Text files (*.txt)");
    EXPECT_STREQ("", LoadFileFilter(nullptr, filter, 4711));
}
