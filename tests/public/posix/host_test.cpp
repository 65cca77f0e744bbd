// What a host gives the library in place of Windows' resources and message boxes.
#include <qxutility/host.h>
#include <qxutility/qxutility.h>

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace qx::host;

HINSTANCE ThisProgram()
{
    static const int marker = 0;
    return ModuleOf(&marker);
}

TEST(Host, FindsTheLibrarysModule)
{
    EXPECT_NE(nullptr, LibraryModule());
    EXPECT_NE(ThisProgram(), LibraryModule());
    EXPECT_EQ(LibraryModule(), ModuleOf(reinterpret_cast<const void*>(&SetAssertsOff)));
}

TEST(Host, GivesTheLanguageObjectItsStrings)
{
    RegisterString(ThisProgram(), 7, "Valve");
    RegisterString(LibraryModule(), 7, "another");
    CLanguage language;
    EXPECT_EQ("Valve", language.String(ThisProgram(), 7));
    EXPECT_EQ("", language.String(ThisProgram(), 8));
}

std::string shownText;

int AnswerNo(HWND, const char* text, const char*, UINT)
{
    shownText = text;
    return IDNO;
}

TEST(Host, AnswersTheLibrarysBoxes)
{
    SetMessageBoxHandler(AnswerNo);
    EXPECT_EQ(IDNO, ErrorMessage(nullptr, "title", nullptr, 0, MB_YESNO, "Delete the pipe?"));
    EXPECT_EQ("Delete the pipe?", shownText);
    EXPECT_EQ(AnswerNo, SetMessageBoxHandler(nullptr));
}

}  // namespace
