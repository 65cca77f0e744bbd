#include "core/console.h"
#include "core/entry.h"
#include "core/localisation.h"
#include "core/options.h"
#include "core/sketch.h"
#include "core/texts.h"
#include "ids.h"

#include <qxutility/config/startup.h>

#include <gmock/gmock.h>

using namespace pipebench;
using testing::ElementsAre;

static constexpr DWORD kEnglish = 0x0409, kGerman = 0x0407, kFrench = 0x040C;

// Stands for the program; only its table is asked for.
static const HINSTANCE kModule = reinterpret_cast<HINSTANCE>(std::uintptr_t{0x1000});

TEST(Entry, ReadsNumbersInTheUsersForm)
{
    struct Case {
        DWORD lcid;
        const char* text;
        std::optional<double> value;
    };
    const Case cases[] = {
        {kEnglish, "12.5", 12.5}, {kEnglish, " 7 ", 7},     {kEnglish, "1e3", 1000},
        {kEnglish, "12,5", {}},   {kGerman, "12,5", 12.5},  {kGerman, ",25", 0.25},
        {kGerman, "1.000", {}},   {kFrench, "12,5", 12.5},  {kEnglish, "", {}},
        {kEnglish, "   ", {}},    {kEnglish, "twelve", {}}, {kEnglish, "12.5 m", {}},
        {kEnglish, "%n%s", {}},   {kGerman, "1,5,5", {}},   {kEnglish, "nan", {}},
        {kEnglish, "inf", {}},
    };
    for (const Case& c : cases) {
        QXUtility_SetLanguage(c.lcid);
        EXPECT_EQ(c.value, ReadNumber(c.text)) << '"' << c.text << "\" in " << c.lcid;
    }
}

TEST(Entry, IsRefusedWithItsFirstFault)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    QXUtility_SetLanguage(kGerman);
    struct Case {
        PipeEntry entry;
        Field field;
        int stringId;
        const char* text;
    };
    const Case cases[] = {
        {{"", "1", "50", "1"}, Field::Name, IDS_NAME_MISSING, ""},
        {{"  ", "1", "50", "1"}, Field::Name, IDS_NAME_MISSING, ""},
        {{"P-101", "x", "50", "1"}, Field::Name, IDS_NAME_TAKEN, "P-101"},
        {{"a", "x", "y", "1"}, Field::Length, IDS_NOT_A_NUMBER, "x"},
        {{"a", "0,09", "50", "1"}, Field::Length, IDS_OUT_OF_RANGE, "0,1 \226 10000 m"},
        {{"a", "10001", "50", "1"}, Field::Length, IDS_OUT_OF_RANGE, "0,1 \226 10000 m"},
        {{"a", "1e999", "50", "1"}, Field::Length, IDS_OUT_OF_RANGE, "0,1 \226 10000 m"},
        {{"a", "1", "4,9", "1"}, Field::Diameter, IDS_OUT_OF_RANGE, "5 \226 2000 mm"},
        {{"a", "1", "50", "-1"}, Field::Price, IDS_OUT_OF_RANGE, "0 \226 100000 / m"},
        {{"a", "1", "50", "%s"}, Field::Price, IDS_NOT_A_NUMBER, "%s"},
    };
    const std::vector<Pipe> others = {{.name = "P-101"}};
    for (const Case& c : cases) {
        const auto checked = CheckEntry(language, c.entry, DT_METRIC, {}, others);
        const auto* bad = std::get_if<BadEntry>(&checked);
        ASSERT_TRUE(bad) << c.entry.name << ' ' << c.entry.length;
        EXPECT_EQ(c.field, bad->field) << c.text;
        EXPECT_EQ(c.stringId, bad->fault.stringId) << c.text;
        EXPECT_EQ(c.text, bad->fault.text);
    }
}

TEST(Entry, ComesBackFromItsTextsUnchanged)
{
    CLanguage language;
    for (const DWORD lcid : {kEnglish, kGerman}) {
        language.SetLanguage(lcid);
        QXUtility_SetLanguage(lcid);
        for (const Pipe& pipe : SamplePipes()) {
            for (const DT_UNITS units : {DT_METRIC, DT_ENGLISH}) {
                const auto checked =
                    CheckEntry(language, ToEntry(language, pipe, units), units, pipe, {});
                const auto* back = std::get_if<Pipe>(&checked);
                ASSERT_TRUE(back) << pipe.name << ' ' << lcid;
                EXPECT_EQ(pipe.length, back->length);
                EXPECT_EQ(pipe.diameter, back->diameter);
                EXPECT_EQ(pipe.pricePerMetre, back->pricePerMetre);
                EXPECT_EQ(pipe.material, back->material);
            }
        }
    }
}

TEST(Entry, IsReadInTheUsersUnits)
{
    QXUtility_SetLanguage(kEnglish);
    const auto checked = CheckEntry({}, {"a", "32.8", "4", "10"}, DT_ENGLISH, {}, {});
    const auto* pipe = std::get_if<Pipe>(&checked);
    ASSERT_TRUE(pipe);
    EXPECT_DOUBLE_EQ(10, pipe->length);
    EXPECT_EQ(4 * 25.4, pipe->diameter);
    EXPECT_DOUBLE_EQ(32.8, pipe->pricePerMetre) << "10 a foot";
}

TEST(Texts, ShowValuesInTheUsersUnits)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    EXPECT_EQ("41,00", ValueText(language, Quantity::Length, 12.5, DT_ENGLISH, 2));
    EXPECT_EQ("264,17", ValueText(language, Quantity::Volume, 1000, DT_ENGLISH, 2));
    EXPECT_EQ("5,91", DiameterText(language, 150, DT_ENGLISH, 2));
    EXPECT_EQ("150", DiameterText(language, 150, DT_METRIC, 2));
    EXPECT_EQ("Length (ft)", WithUnit(language, "Length", Quantity::Length, DT_ENGLISH));
}

// The table stands beside the program; tests run in its folder.
TEST(Localisation, OffersTheLanguagesOfItsTableAndSpeaksThem)
{
    Localisation localisation(kModule, "PIPEBENCH_LANGUAGE.DAT");
    std::vector<std::string> names;
    for (const LanguageChoice& choice : localisation.Choices()) {
        names.push_back(choice.name);
        EXPECT_TRUE(localisation.Use(choice.lcid)) << choice.name;
        EXPECT_EQ(choice.lcid, localisation.Language().GetLanguage());
    }
    EXPECT_THAT(names, ElementsAre("English", "Deutsch", "Fran\347ais"));
    EXPECT_EQ("Longueur", Wording(localisation.Language(), "Length"));
    EXPECT_EQ("Tuyaux\240: 5", Sentence(kModule, IDS_PIPE_COUNT, "5"));
    EXPECT_FALSE(localisation.Use(0x0419)) << "Russian is not in the table";
    EXPECT_EQ("Length", Wording(localisation.Language(), "Length"));
}

TEST(Localisation, IsEnglishWithoutItsTable)
{
    Localisation localisation(kModule, "no such table");
    localisation.Use(kGerman);
    EXPECT_THAT(localisation.Choices(), testing::IsEmpty());
    EXPECT_EQ("Length", Wording(localisation.Language(), "Length"));
}

TEST(Sketch, FillsItsCanvasFromLeftToRight)
{
    const Area canvas{24, 40, 796, 200};
    std::vector<Pipe> pipes = SamplePipes();
    for (; !pipes.empty(); pipes.pop_back()) {
        const std::vector<Area> sketch = LayOutSketch(pipes, canvas);
        int x = canvas.left;
        for (const Area& area : sketch) {
            EXPECT_EQ(x, area.left);
            EXPECT_LT(area.left, area.right);
            EXPECT_GE(area.top, canvas.top);
            EXPECT_LE(area.bottom, canvas.bottom);
            x = area.right;
        }
        EXPECT_EQ(canvas.right, x) << pipes.size() << " pipes";
        EXPECT_EQ(pipes.size() - 1, PipeAt(sketch, canvas.right - 1));
        EXPECT_EQ(std::nullopt, PipeAt(sketch, canvas.right));
    }
    EXPECT_TRUE(LayOutSketch({}, canvas).empty());
}

TEST(Options, AreReadFromTheCommandLine)
{
    struct Case {
        std::vector<std::string> arguments;
        bool console;
        std::optional<DWORD> lcid;
        const char* error;
    };
    const Case cases[] = {
        {{}, false, {}, ""},
        {{"--console", "--language", "de"}, true, kGerman, ""},
        {{"--language", "1036"}, false, kFrench, ""},
        {{"--language", "klingon"}, false, {}, "unknown language: klingon"},
        {{"--language"}, false, {}, "unknown option: --language"},
        {{"--help"}, false, {}, "unknown option: --help"},
    };
    for (const Case& c : cases) {
        const Options options = ReadOptions(c.arguments);
        EXPECT_EQ(c.console, options.console) << c.error;
        EXPECT_EQ(c.lcid, options.lcid) << c.error;
        EXPECT_EQ(c.error, options.error);
    }
}

TEST(Console, WritesUtf8)
{
    EXPECT_EQ(reinterpret_cast<const char*>(u8"L\u00E4nge \u20AC 5, \u201Ex\u201C \u0178 \u00FF"),
              Utf8("L\344nge \200 5, \204x\223 \237 \377"));
}

TEST(Pipes, GetNamesThatAreFree)
{
    std::vector<Pipe> pipes = SamplePipes();
    EXPECT_EQ("P-106", FreeName(pipes));
    pipes.erase(pipes.begin() + 1);
    EXPECT_EQ("P-102", FreeName(pipes));
}
