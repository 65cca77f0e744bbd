#include "core/checks.h"
#include "core/line.h"
#include "core/line_file.h"
#include "core/results.h"
#include "ids.h"
#include "support/temporary_folder.h"

#include <gmock/gmock.h>

using namespace pipebench;
using testing::ElementsAre;
using testing::FieldsAre;

static constexpr DWORD kGerman = 0x0407;
// Stands for the program; only its table is asked for.
static const HINSTANCE kModule = reinterpret_cast<HINSTANCE>(std::uintptr_t{0x1000});

TEST(Line, IsNamedByItsFile)
{
    EXPECT_EQ("New - Bench", TitleOf({}, "New", "Bench"));
    for (const char* path : {"C:\\Lines\\Ring main.pbl", "/lines.d/Ring main.pbl", "Ring main"})
        EXPECT_EQ("Ring main - Bench", TitleOf({.pipes = {}, .path = path}, "New", "Bench"))
            << path;
}

TEST(Line, BranchesByMaterial)
{
    std::vector<Pipe> pipes(4);
    pipes[0].material = pipes[3].material = 2;
    pipes[1].material = 4;
    EXPECT_THAT(ByMaterial(pipes),
                ElementsAre(FieldsAre(0, ElementsAre(2)), FieldsAre(2, ElementsAre(0, 3)),
                            FieldsAre(4, ElementsAre(1))));
    EXPECT_THAT(ByMaterial({}), testing::IsEmpty());
}

TEST(Results, AreInTheUsersFormAndUnits)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    const Pipe pipe{"P-1", 3, 32.75, 100, 9.95};
    Settings settings;
    settings.decimals = 1;
    EXPECT_THAT(ResultCells(language, pipe, settings),
                ElementsAre("P-1", "PVC", "32,8", "100", "257,2", "2,1", "11,5", testing::_));
    settings.units = DT_ENGLISH;
    EXPECT_THAT(ResultCells(language, pipe, settings),
                ElementsAre("P-1", "PVC", "107,4", "3,9", "67,9", "7,0", "1,7", testing::_));
    EXPECT_EQ("Flow velocity (ft/s)", ResultHeaders(language, DT_ENGLISH)[5]);
}

TEST(LineFile, GivesBackWhatWasWritten)
{
    const qx::test::TemporaryFolder folder;
    const std::string path = folder.Path("line.pbl");
    std::vector<Pipe> pipes = SamplePipes();
    pipes[0].name = "<\"P\" & 'Q'> \344\366\374";
    pipes[1].length = 0.1 + 0.2;
    ASSERT_TRUE(WriteLine(path, pipes));
    const auto read = ReadLine(path);
    const auto* back = std::get_if<std::vector<Pipe>>(&read);
    ASSERT_TRUE(back);
    EXPECT_EQ(pipes, *back);
    EXPECT_FALSE(WriteLine(folder.Path("no such folder/line.pbl"), pipes));
}

TEST(LineFile, IsRefusedWithAReason)
{
    const qx::test::TemporaryFolder folder;
    const auto pipe = [](const std::string& attributes) {
        return "<PipeLine><Pipe " + attributes + "/></PipeLine>";
    };
    const std::string good = "Name=\"A\" Material=\"PVC\" Diameter=\"50\" Price=\"0\" ";
    struct Case {
        std::string bytes;
        int stringId;
        const char* text;
    };
    const Case cases[] = {
        {"", IDS_NO_LINE, "line.pbl"},
        {std::string(10'000, '<'), IDS_NO_LINE, "line.pbl"},
        {"<Toolbar></Toolbar>", IDS_NO_LINE, "line.pbl"},
        {"<PipeLine><Pipe></PipeLine>", IDS_NO_LINE, "line.pbl"},
        {pipe(good), IDS_BAD_PIPE, "A"},
        {pipe(good + "Length=\"ten\""), IDS_BAD_PIPE, "A"},
        {pipe(good + "Length=\"nan\""), IDS_BAD_PIPE, "A"},
        {pipe(good + "Length=\"1e999\""), IDS_BAD_PIPE, "A"},
        {pipe(good + "Length=\"-1\""), IDS_BAD_PIPE, "A"},
        {pipe("Name=\"A\" Material=\"Wood\" Length=\"1\" Diameter=\"50\" Price=\"1\""),
         IDS_BAD_PIPE, "A"},
        {pipe("Material=\"PVC\" Length=\"1\" Diameter=\"50\" Price=\"1\""), IDS_BAD_PIPE, ""},
        {pipe(good + "Length=\"1\"/><Pipe " + good + "Length=\"1\""), IDS_BAD_PIPE, "A"},
    };
    for (const Case& c : cases) {
        const auto read = ReadLine(folder.Write("line.pbl", c.bytes));
        const auto* fault = std::get_if<Fault>(&read);
        ASSERT_TRUE(fault) << c.bytes;
        EXPECT_EQ(c.stringId, fault->stringId) << c.bytes;
        EXPECT_EQ(c.text, fault->text) << c.bytes;
    }
    const auto missing = ReadLine(folder.Path("missing.pbl"));
    EXPECT_EQ(IDS_LINE_UNREADABLE, std::get<Fault>(missing).stringId);
}

// The table and the samples stand beside the program; tests run in its folder.
TEST(LineFile, IsDescribedInTheUsersFormAndUnits)
{
    Localisation localisation(kModule, "PIPEBENCH_LANGUAGE.DAT");
    localisation.Use(kGerman);
    Settings settings;
    EXPECT_EQ("Rohre: 4, L\344nge: 328,50 m",
              LineDescription(localisation, settings, "FIRE_MAIN.PBL"));
    EXPECT_EQ("bis 100 m\263/h, 24,4 m",
              CurveDescription(localisation, settings, "PUMP_CURVE.DAT"));
    settings.units = DT_ENGLISH;
    EXPECT_EQ("bis 350 gpm, 131 ft", CurveDescription(localisation, settings, "BOOSTER_PUMP.DAT"));
    EXPECT_FALSE(LineDescription(localisation, settings, "PUMP_CURVE.DAT"));
    EXPECT_FALSE(CurveDescription(localisation, settings, "FIRE_MAIN.PBL"));
}

TEST(Checks, WarnOfWhatIsUnusual)
{
    CLanguage language;
    language.SetLanguage(kGerman);
    const std::vector<Pipe> pipes = {{"A", 2, 10, 65, 1},
                                     {"B", 0, 10, 131, 0},
                                     {"C", 4, 10, 100, 1},
                                     {"D", 3, 10, 100, 1},
                                     {"E", 2, 10, 300, 1}};
    const Settings settings;  // 60 m3/h
    EXPECT_THAT(
        CheckPipes(language, pipes, settings),
        ElementsAre(FieldsAre(IDS_TOO_FAST, "A (5,02 m/s)"), FieldsAre(IDS_GREAT_STEP, "A \226 B"),
                    FieldsAre(IDS_CORROSION, "A \226 B"), FieldsAre(IDS_NO_PRICE, "B"),
                    FieldsAre(IDS_GREAT_STEP, "D \226 E"),
                    FieldsAre(IDS_TOO_SLOW, "E (0,24 m/s)")));
    EXPECT_THAT(CheckPipes(language, {}, settings), testing::IsEmpty());
}
