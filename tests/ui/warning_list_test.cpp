#include "support/guarded_buffer.h"
#include "support/language_fixture.h"

#include <qxutility/ui/warning_list.h>

#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;
using testing::IsEmpty;

static QXWarningList PlainList()
{
    return {nullptr, 0, 0, nullptr, nullptr};
}

TEST(WarningList, PutsTheInsertIntoTheText)
{
    const struct {
        const char *format, *insert, *warning;
    } cases[] = {
        {"Pipe %s is too long", "P1", "Pipe P1 is too long"},
        {"Done", nullptr, "Done"},
        {"100 %s", nullptr, "100 %s"},
        {"Done", "P1", "Done"},
        {"%d of %s and %s%n", "P1", "%d of P1 and %s%n"},
        {"%-4s|50 %%", "P1", "P1  |50 %"},
        {"%s", "%s%n", "%s%n"},
        {"", "", ""},
    };
    for (const auto& c : cases) {
        QXWarningList warnings = PlainList();
        warnings.add(c.format, c.insert);
        EXPECT_STREQ(c.warning, warnings.text(0)) << c.format;
    }
}

TEST(WarningList, TakesTemplatesFromALanguage)
{
    const std::string longText(300, 'x');
    TestLanguage german(
        "IDS\t09-01\t07-01\r\n"
        "20\tPipe %s\tRohr %s\r\n"
        "21\t" +
            longText + "\t" + longText + "\r\n",
        kGerman);
    QXWarningList warnings = PlainList();
    warnings.add(20, "P1", &german.language);
    warnings.add(20, nullptr, &german.language);
    warnings.add(21, nullptr, &german.language);
    warnings.add(99, "P1", &german.language);
    EXPECT_THAT(warnings.list(), ElementsAre("Rohr P1", "Rohr %s", longText.substr(0, 255), "###"));
}

TEST(WarningList, KeepsItsOrderAndTellsItsEnds)
{
    QXWarningList warnings = PlainList();
    EXPECT_EQ(nullptr, warnings.text(0));
    for (const char* text : {"b", "a", "b"})
        warnings.add(text, nullptr);
    EXPECT_THAT(warnings.list(), ElementsAre("b", "a", "b"));
    EXPECT_STREQ("a", warnings.text(1));
    EXPECT_EQ(nullptr, warnings.text(3));
    EXPECT_EQ(nullptr, warnings.text(-1));
    warnings.clear();
    EXPECT_THAT(warnings.list(), IsEmpty());
}

TEST(WarningList, CopiesAreIndependent)
{
    QXWarningList warnings = PlainList();
    warnings.add("a", nullptr);
    QXWarningList copy = warnings;
    copy.add("b", nullptr);
    EXPECT_THAT(warnings.list(), ElementsAre("a"));
    warnings = copy;
    copy.clear();
    EXPECT_THAT(warnings.list(), ElementsAre("a", "b"));
}

TEST(WarningList, IsCutToTheBuffer)
{
    QXWarningList warnings = PlainList();
    warnings.add("a", nullptr);
    warnings.add("bc", nullptr);
    const struct {
        unsigned size;
        const char *separator, *text;
        bool fits;
    } cases[] = {
        {100, ", ", "a,bc,", true}, {6, ", ", "a,bc,", true}, {5, ",", "a,bc", false},
        {1, ",", "", false},        {4, "", "abc", true},     {4, nullptr, "abc", true},
    };
    for (const auto& c : cases) {
        GuardedBuffer buffer(c.size);
        EXPECT_EQ(c.fits, warnings.list(buffer, c.size, c.separator)) << c.size;
        EXPECT_STREQ(c.text, buffer) << c.size;
    }
    EXPECT_FALSE(warnings.list(nullptr, 0, ","));
    EXPECT_TRUE(PlainList().list(GuardedBuffer(1), 1, ","));
}

TEST(WarningList, TakesAnyNumberOfAnyLength)
{
    QXWarningList warnings = PlainList();
    const std::string insert(100'000, 'x');
    warnings.add("%s", insert.c_str());
    for (int i = 0; i < 10'000; ++i)
        warnings.add("Pipe %s is too long", std::to_string(i).c_str());
    EXPECT_EQ(insert, warnings.text(0));
    EXPECT_STREQ("Pipe 9999 is too long", warnings.text(10'000));
}
