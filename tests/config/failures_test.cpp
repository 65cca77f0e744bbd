#include "config/process.h"
#include "doubles/message_box_double.h"
#include "doubles/module_double.h"
#include "doubles/resources_double.h"
#include "support/guarded_buffer.h"

#include <qxutility/config/startup.h>

#include <algorithm>
#include <array>
#include <gmock/gmock.h>

using qx::test::GuardedBuffer;
using qx::test::MessageBoxDouble;

static const HINSTANCE kModule = qx::test::FakeModule(7);
static const HWND kOwner = reinterpret_cast<HWND>(0x1234);

// A freshly attached library without a table; kModule has the strings given.
class Failures : public testing::Test {
  protected:
    Failures() { qx::AttachProcess(qx::test::FakeModule(1)); }
    ~Failures() override { qx::DetachProcess(); }

    void HaveString(unsigned id, const std::string& text)
    {
        m_resources.strings[{kModule, id}] = text;
    }

  private:
    qx::test::ModuleDouble m_modules;
    qx::test::ResourcesDouble m_resources;
};

using Assertions = Failures;

static int Assert(int line, int* ignored, bool withExpression)
{
    return withExpression ? AssertMessage("pump.cpp", line, "Flow", ignored, "q > 0")
                          : AssertMessage("pump.cpp", line, "Flow", ignored);
}

TEST_F(Assertions, SayWhatFailedWhere)
{
    MessageBoxDouble boxes({IDYES, IDNO});
    int ignored[10] = {};
    EXPECT_EQ(IDYES, Assert(42, ignored, true));
    EXPECT_EQ(IDNO, Assert(-1, ignored, false));
    EXPECT_EQ("**Flow**\nExpression \"q > 0\" failed.\nLine 42 of pump.cpp.\n\nDrop to debugger?",
              boxes.shown[0].text);
    EXPECT_EQ("**Flow**\nLine 4294967295 of pump.cpp.\nDrop to debugger?", boxes.shown[1].text);
    for (const auto& box : boxes.shown) {
        EXPECT_EQ("DEBUG BUILD", box.caption);
        EXPECT_EQ(0x1013U, box.style);
        EXPECT_EQ(nullptr, box.owner);
    }
    EXPECT_THAT(ignored, testing::Each(0));
}

TEST_F(Assertions, ACancelledLineIsNeverAskedAboutAgain)
{
    for (const bool withExpression : {true, false}) {
        MessageBoxDouble boxes({IDCANCEL, IDNO});
        int ignored[10] = {};
        EXPECT_EQ(IDCANCEL, Assert(42, ignored, withExpression));
        EXPECT_EQ(IDNO, Assert(42, ignored, withExpression));
        EXPECT_EQ(IDNO, Assert(43, ignored, withExpression));
        EXPECT_EQ(2U, boxes.shown.size());
        EXPECT_EQ(42, ignored[0]);
        EXPECT_EQ(0, ignored[1]);
    }
}

TEST_F(Assertions, CancellingAnEleventhLineSilencesThatOverloadOnly)
{
    for (const bool withExpression : {true, false}) {
        MessageBoxDouble boxes({IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL,
                                IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL, IDNO});
        int ignored[10] = {}, others[10] = {};
        for (int line = 1; line <= 11; ++line)
            EXPECT_EQ(IDCANCEL, Assert(line, ignored, withExpression)) << line;
        EXPECT_EQ(10, ignored[9]);
        EXPECT_EQ(IDNO, Assert(12, others, withExpression));
        EXPECT_EQ(11U, boxes.shown.size());
        Assert(13, others, !withExpression);
        EXPECT_EQ(12U, boxes.shown.size());
        qx::DetachProcess();
        qx::AttachProcess(qx::test::FakeModule(1));
    }
}

TEST_F(Assertions, SwitchedOffOnlyTheOneWithAnExpressionIsSilent)
{
    MessageBoxDouble boxes({IDYES});
    int ignored[10] = {};
    SetAssertsOff();
    EXPECT_EQ(IDNO, Assert(42, ignored, true));
    EXPECT_EQ(IDYES, Assert(42, ignored, false));
}

TEST_F(Assertions, WithoutAnExpressionAreToldToTheDebuggerEvenWhenNotAsked)
{
    MessageBoxDouble boxes;
    int ignored[10] = {5};
    Assert(5, ignored, false);
    Assert(5, ignored, true);
    EXPECT_EQ("**Flow**, line 5 of pump.cpp\n", boxes.debugOutput);
}

TEST_F(Assertions, TakeTextsOfAnyLengthAndNone)
{
    MessageBoxDouble boxes({IDNO, IDCANCEL});
    const std::string longText(1'000'000, '%');
    EXPECT_EQ(IDNO,
              AssertMessage(longText.c_str(), 1, longText.c_str(), nullptr, longText.c_str()));
    EXPECT_LT(3'000'000U, boxes.shown[0].text.size());
    EXPECT_EQ(IDCANCEL, AssertMessage(nullptr, 1, nullptr, nullptr));
    EXPECT_EQ("****\nLine 1 of .\nDrop to debugger?", boxes.shown[1].text);
}

using ErrorBox = Failures;

TEST_F(ErrorBox, MakesItsTextOfStringAndArgument)
{
    struct {
        const char* string;  // null: number 0
        const char* text;
        const char* expected;
    } const cases[] = {
        {"Cannot open %s.", "a.pip", "Cannot open a.pip."},
        {"Cannot open", "a.pip", "Cannot open a.pip"},
        {"Cannot open %s.", nullptr, "Cannot open ."},
        {"50 %% left", "a.pip", "50 % left"},
        {"Cause: %s", "Can't send: %l", "Cause: Can't send: %l"},
        {nullptr, "100% of %s", "100% of %s"},
        {nullptr, nullptr, ""},
        {"", "a.pip", " a.pip"},
    };
    for (const auto& c : cases) {
        MessageBoxDouble boxes({IDOK});
        if (c.string)
            HaveString(5, c.string);
        ErrorMessage(kModule, "Title", kOwner, c.string ? 5 : 0, MB_OK, c.text);
        EXPECT_EQ(c.expected, boxes.shown[0].text) << (c.string ? c.string : "no string");
    }
}

TEST_F(ErrorBox, ShowsTheHandUnlessAnotherIconIsNamed)
{
    const std::pair<UINT, UINT> cases[] = {{MB_YESNO, MB_YESNO | MB_ICONHAND},
                                           {MB_SYSTEMMODAL, MB_SYSTEMMODAL | MB_ICONHAND},
                                           {MB_ICONQUESTION, MB_ICONQUESTION}};
    for (const auto& [given, shown] : cases) {
        MessageBoxDouble boxes({IDYES});
        EXPECT_EQ(IDYES, ErrorMessage(kModule, std::string("Title"), kOwner, 0,
                                      static_cast<int>(given), "text"));
        EXPECT_EQ(shown, boxes.shown[0].style) << given;
        EXPECT_EQ("Title", boxes.shown[0].caption);
        EXPECT_EQ(kOwner, boxes.shown[0].owner);
    }
}

TEST_F(ErrorBox, UsesAtMost254CharactersOfTheStringAndAllOfTheArgument)
{
    MessageBoxDouble boxes({IDOK, IDOK});
    HaveString(5, std::string(300, 'x'));
    HaveString(6, std::string(253, 'x') + "%s");
    ErrorMessage(kModule, "Title", nullptr, 5, MB_OK, std::string(100'000, 'y').c_str());
    ErrorMessage(kModule, "Title", nullptr, 6, MB_OK, "y");
    EXPECT_EQ(std::string(254, 'x') + " " + std::string(100'000, 'y'), boxes.shown[0].text);
    EXPECT_EQ(std::string(253, 'x') + "%", boxes.shown[1].text);
}

using FormattedString = Failures;

TEST_F(FormattedString, PutsTheArgumentIntoTheStringWithinTheSize)
{
    struct {
        const char* string;
        const char* argument;
        int size;
        const char* expected;
    } const cases[] = {
        {"Open %s", "a.pip", 64, "Open a.pip"},
        {"Open %s", "a.pip", 13, "Open a.pip"},  // the template fits exactly
        {"Open %s", "a.pip", 12, "Open %"},      // one character less of it
        {"Open %s", "a.pip", 5, "Open"},         // no room for the argument: the string itself
        {"%20s", "a.pip", 12, "           "},    // wider than the buffer
        {"%s%s", "a.pip", 32, "a.pip%s"},
        {"Open", "", 4, "Ope"},
        {"Open %s", nullptr, 64, "Open "},
    };
    for (const auto& c : cases) {
        HaveString(5, c.string);
        GuardedBuffer out(static_cast<std::size_t>(c.size));
        EXPECT_EQ(out.data(), FormatString(kModule, 5, out, c.size, c.argument));
        EXPECT_STREQ(c.expected, out) << c.string << " in " << c.size;
    }
}

TEST_F(FormattedString, LeavesTheBufferAloneWhenThereIsNothingToPutIntoIt)
{
    GuardedBuffer nothing(0), out(4);
    HaveString(5, "Open %s");
    for (const int size : {0, -1})
        EXPECT_EQ(nothing.data(), FormatString(kModule, 5, nothing, size, "a"));
    out = "old";
    FormatString(kModule, 6, out, 4, "too long");  // no such string, and the argument does not fit
    EXPECT_STREQ("old", out);
}

TEST_F(FormattedString, PrintsThePointerItselfAndNeverWhatItPointsTo)
{
    double value = 2.5;
    const auto address = reinterpret_cast<std::uintptr_t>(&value);
    const auto shown = std::to_string(static_cast<unsigned>(address));
    GuardedBuffer out(64);
    HaveString(5, "at %u, %f, %s");
    EXPECT_EQ(out.data(), FormatString(kModule, 5, out, 64, &value));
    EXPECT_EQ("at " + shown + ", %f, %s", std::string(out));
    HaveString(5, "%n%s%n%g");
    FormatString(kModule, 5, out, 64, static_cast<double*>(nullptr));
    EXPECT_STREQ("%n%s%n%g", out);
}

TEST_F(FormattedString, KeepsRoomForThePointer)
{
    double value = 2.5;
    HaveString(5, "abcdef%2000d");
    const std::pair<int, std::string> cases[] = {{14, "abc"},  // 14 - 11 characters of the template
                                                 {24, "abcdef" + std::string(17, ' ')},
                                                 {11, ""},
                                                 {10, "old"}};
    for (const auto& [size, expected] : cases) {
        GuardedBuffer out(static_cast<std::size_t>(size));
        out = "old";
        FormatString(kModule, 5, out, size, &value);
        EXPECT_EQ(expected, out.data()) << size;
    }
}

using FileFilter = Failures;

TEST_F(FileFilter, EndsEachPartWithNulAndTheListWithTwo)
{
    const std::pair<std::string, std::string> cases[] = {
        {"Text|*.txt|All|*.*|", std::string("Text\0*.txt\0All\0*.*\0\0?", 21)},
        {"###", std::string("###\0\0?", 6)},
        {std::string(1000, '|'), std::string(255, '\0')},  // cut at 254 characters
    };
    for (const auto& [string, filter] : cases) {
        HaveString(5, string);
        GuardedBuffer buffer(255);
        EXPECT_EQ(buffer.data(), LoadFileFilter(kModule, buffer, 5));
        EXPECT_EQ(filter, std::string(buffer.data(), filter.size()));
    }
    GuardedBuffer least(1);
    LoadFileFilter(kModule, least, 6);
    EXPECT_STREQ("", least) << "no string";
}
