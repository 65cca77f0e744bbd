#include "ui/browse_list.h"

#include "platform/path_text.h"

#include <cstring>
#include <gmock/gmock.h>
#include <ostream>

using testing::ElementsAre;

static std::string P(std::string path)
{
    for (char& c : path) {
        if (c == '/')
            c = qx::platform::kSeparator;
    }
    return path;
}

TEST(BrowseList, TakesTheFolderWithOrWithoutItsSeparator)
{
    const struct {
        const char *folder, *without;
    } cases[] = {{"c/data/", "c/data"}, {"c/data", "c/data"}, {"c/data//", "c/data/"}, {"", ""}};
    for (const auto& c : cases)
        EXPECT_EQ(P(c.without), qx::WithoutFinalSeparator(P(c.folder))) << c.folder;
    EXPECT_EQ(P("c/data/a.dat"), qx::JoinPath(P("c/data"), "a.dat"));
}

TEST(BrowseList, GivesNamesTheExtensionOfThePattern)
{
    const struct {
        const char *name, *pattern, *selected;
    } cases[] = {
        {"report", "*.dat", "report.dat"},
        {"report.DAT", "*.dat", "report.DAT"},
        {"report.txt", "*.dat", "report.txt.dat"},
        {"dat", "*.dat", "dat.dat"},
        {".dat", "*.dat", ".dat"},
        {"", "*.dat", ""},
        {"report", "*.*", "report"},
        {"report", "*", "report"},
        {"report", "*.d?t", "report"},
        {"report", "a.b.c", "report.c"},
        {"report", "", "report"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.selected, qx::SelectedName(c.name, c.pattern)) << c.name << ' ' << c.pattern;
}

TEST(BrowseList, WritesDatesWithTwoDigits)
{
    EXPECT_EQ("03/05/08", qx::FileDate(3, 5, 2008));
    EXPECT_EQ("12/31/99", qx::FileDate(12, 31, 1999));
    EXPECT_EQ("01/01/00", qx::FileDate(1, 1, 2000));
}

namespace qx {
static void PrintTo(const ListedFile& file, std::ostream* out)
{
    *out << file.name << '|' << file.description << '|' << file.date;
}
static bool operator==(const ListedFile& a, const ListedFile& b)
{
    return a.name == b.name && a.description == b.description && a.date == b.date;
}
}  // namespace qx

TEST(BrowseList, HoldsWhatIsApprovedByName)
{
    std::vector<std::string> asked;
    const auto approve = [&](const char* path, char* description) {
        asked.push_back(path);
        std::strcpy(description, std::strstr(path, "b.") ? "second" : "");
        return !std::strstr(path, "hidden");
    };
    const auto date = [](const char* path, std::uint64_t written, char* text) {
        EXPECT_EQ(std::strstr(path, "A."), written == 4 ? std::strstr(path, "A.") : nullptr);
        std::strcpy(text, "03/05/08");
        return !std::strstr(path, "C.");
    };
    const auto files =
        qx::ListFiles(P("c/data"), {{"b.dat", 1}, {"C.dat", 2}, {"hidden.dat", 3}, {"A.dat", 4}},
                      {approve, date});
    EXPECT_THAT(files, ElementsAre(qx::ListedFile{"A.dat", "", "03/05/08"},
                                   qx::ListedFile{"b.dat", "second", "03/05/08"},
                                   qx::ListedFile{"C.dat", "", "?\?/?\?/?\?"}));
    EXPECT_EQ(P("c/data/b.dat"), asked.front());
}

TEST(BrowseList, SplitsDescriptionsAtTheFirstTab)
{
    using Parts = std::pair<std::string_view, std::string_view>;
    EXPECT_EQ(Parts("Pump", ""), qx::SplitDescription("Pump"));
    EXPECT_EQ(Parts("Pump", "7 kW"), qx::SplitDescription("Pump\t7 kW"));
    EXPECT_EQ(Parts("", "a\tb"), qx::SplitDescription("\ta\tb"));
    EXPECT_EQ(Parts("", ""), qx::SplitDescription(""));
}

TEST(BrowseList, FindsEntriesByKey)
{
    const std::vector<std::string> names = {"Alpha", "beta", "Bravo", "bulk", "delta", ""};
    const struct {
        int current;
        char key;
        int found;
    } cases[] = {
        {-1, 'b', 1}, {0, 'B', 1}, {1, 'b', 2}, {2, 'b', 3},  {3, 'b', 1},
        {4, 'b', 1},  {4, 'a', 0}, {0, 'a', 0}, {1, 'z', -1}, {5, 'd', 4},
    };
    for (const auto& c : cases) {
        const auto nameAt = [&](int i) { return names[static_cast<std::size_t>(i)].c_str(); };
        EXPECT_EQ(c.found, qx::FindByKey(6, c.current, c.key, nameAt)) << c.current << c.key;
    }
    EXPECT_EQ(-1, qx::FindByKey(0, -1, 'a', [](int) { return ""; }));
}

TEST(BrowseList, DecidesWhatOkIsAbout)
{
    EXPECT_EQ(qx::Choice::NotFound, qx::DecideChoice("", false).kind);
    const qx::Choice folder = qx::DecideChoice(P("c/data/old"), true);
    EXPECT_EQ(qx::Choice::Folder, folder.kind);
    EXPECT_EQ(P("c/data/old"), folder.folder);
    const qx::Choice file = qx::DecideChoice(P("c/data/old/a.dat"), false);
    EXPECT_EQ(qx::Choice::File, file.kind);
    EXPECT_EQ(P("c/data/old"), file.folder);
    EXPECT_EQ("a.dat", file.name);
}

static std::vector<int> Edges(const RECT& area)
{
    return {static_cast<int>(area.left), static_cast<int>(area.top), static_cast<int>(area.right),
            static_cast<int>(area.bottom)};
}

TEST(BrowseList, LaysOutEntriesOfOneAndTwoLines)
{
    const qx::EntryLayout one = qx::LayOutEntry({10, 100, 410, 120}, 32, 16, false, 1);
    EXPECT_EQ(10 + 8 + 2, one.icon.x);
    EXPECT_EQ(102, one.icon.y);
    EXPECT_THAT(Edges(one.text), ElementsAre(46, 100, 410, 120));
    EXPECT_THAT(Edges(one.name), ElementsAre(46, 100, 346, 120));
    EXPECT_THAT(Edges(one.date), ElementsAre(350, 100, 410, 120));

    const qx::EntryLayout two = qx::LayOutEntry({10, 100, 410, 136}, 32, 32, true, 1);
    EXPECT_EQ(12, two.icon.x);
    EXPECT_THAT(Edges(two.name), ElementsAre(46, 100, 346, 118));
    EXPECT_THAT(Edges(two.date), ElementsAre(350, 100, 410, 118));
    EXPECT_THAT(Edges(two.description), ElementsAre(46, 118, 346, 136));
    EXPECT_THAT(Edges(two.detail), ElementsAre(350, 118, 410, 136));

    const qx::EntryLayout large = qx::LayOutEntry({0, 0, 600, 28}, 48, 24, false, 1.5);
    EXPECT_THAT(Edges(large.name), ElementsAre(52, 0, 504, 28));
    EXPECT_THAT(Edges(large.date), ElementsAre(510, 0, 600, 28));
}
