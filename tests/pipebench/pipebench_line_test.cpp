#include "core/line.h"
#include "core/results.h"

#include <gmock/gmock.h>

using namespace pipebench;
using testing::ElementsAre;
using testing::FieldsAre;

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
    language.SetLanguage(0x0407);
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
