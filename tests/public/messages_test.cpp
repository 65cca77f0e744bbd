// The library's own texts, through its interface, with its language table beside it.
#include "support/guarded_buffer.h"

#include <qxutility/qxutility.h>

#include <gmock/gmock.h>

using qx::test::GuardedBuffer;
using testing::EndsWith;
using testing::HasSubstr;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407, kFrench = 0x040C, kSpanish = 0x040A,
                       kItalian = 0x0410, kBrazilian = 0x0416, kPortugal = 0x0816, kDutch = 0x0413,
                       kSwedish = 0x041D;

static HINSTANCE Library()
{
#if QX_WINDOWS
    return ::GetModuleHandleA("QXUtility.dll");
#else
    return qx::host::LibraryModule();
#endif
}

static std::string Message(DWORD language, int id, const char* argument = "")
{
    GuardedBuffer out(512);
    QXUtility_SetLanguage(language);
    return FormatString(nullptr, id, out, 512, argument);
}

TEST(Messages, SpeakTheLanguageThatWasSet)
{
    const std::pair<DWORD, const char*> cases[] = {
        {kEnglish, "Cancel"},   {kGerman, "Abbrechen"},  {kFrench, "Annuler"},
        {kSpanish, "Cancelar"}, {kItalian, "Annulla"},   {kBrazilian, "Cancelar"},
        {kDutch, "Annuleren"},  {kPortugal, "Cancelar"}, {kSwedish, "Avbryt"},
        {0x0C0C, "Annuler"},    {0x0415, "Cancel"}};
    for (const auto& [language, text] : cases)
        EXPECT_EQ(text, Message(language, 10)) << std::hex << language;
    const CLanguage application;  // no table of its own
    EXPECT_EQ("Cancel", application.String(Library(), 10));
}

TEST(Messages, ExistInEveryLanguageForEveryNumber)
{
    for (const DWORD language :
         {kEnglish, kGerman, kFrench, kSpanish, kItalian, kBrazilian, kDutch, kSwedish}) {
        for (const int id : {2,   4,    5,    6,    7,    8,    9,    10,   111,  112, 113,
                             114, 1004, 1005, 1006, 1007, 1008, 1009, 1010, 1011, 1012}) {
            const std::string text = Message(language, id, "Pipe.dat");
            EXPECT_NE("###", text) << id << " in " << std::hex << language;
            EXPECT_NE("", text) << id << " in " << std::hex << language;
        }
    }
}

TEST(Messages, NameWhatTheyAreAbout)
{
    EXPECT_EQ(
        "Im Ordner\nC:\\Kurven\ngibt es unter diesem Namen keine Datei, die ge\366ffnet werden "
        "kann.\n\nW\344hlen Sie eine Datei aus der Liste, pr\374fen Sie die Schreibweise des "
        "Namens "
        "oder wechseln Sie den Ordner.",
        Message(kGerman, 1011, "C:\\Kurven"));
    EXPECT_THAT(Message(kFrench, 1010, "Can't send: %l"), EndsWith("Cause\240: Can't send: %l"));
    EXPECT_THAT(Message(kEnglish, 2, "C:\\kvl.ini"), HasSubstr("\nC:\\kvl.ini\n"));
}

TEST(Messages, TheFileFilterHasNamesAndPatternsInEveryLanguage)
{
    for (const DWORD language : {kEnglish, kGerman, kSwedish}) {
        GuardedBuffer filter(255);
        QXUtility_SetLanguage(language);
        LoadFileFilter(nullptr, filter, 1004);
        std::vector<std::string> parts;
        for (const char* part = filter; *part; part += parts.back().size() + 1)
            parts.push_back(part);
        ASSERT_EQ(4U, parts.size());
        EXPECT_EQ("*.txt", parts[1]);
        EXPECT_EQ("*.*", parts[3]);
    }
}
