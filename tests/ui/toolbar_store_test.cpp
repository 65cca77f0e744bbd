#include "ui/toolbar_store.h"

#include "support/temporary_folder.h"

#include <filesystem>
#include <gtest/gtest.h>

using namespace qx;
using qx::test::TemporaryFolder;

static std::vector<ToolbarRecord> OneBar()
{
    ToolbarRecord bar;
    bar.id = 7;
    bar.name = "A & B";
    bar.shown = 1;
    bar.buttons = {{3, 30, 0, 0}};
    return {bar};
}

TEST(ToolbarStore, ASavedFileLoadsAgainAndItsFolderIsMade)
{
    const TemporaryFolder folder;
    const std::string path = (std::filesystem::path(folder.Path("a")) / "b" / "bars.xml").string();
    EXPECT_TRUE(LoadToolbarFile(path).bars.empty());
    ASSERT_TRUE(SaveToolbarFile(path, OneBar()));
    EXPECT_EQ(OneBar(), LoadToolbarFile(path).bars);
    EXPECT_TRUE(LoadToolbarFile(folder.Path("a")).bars.empty()) << "a folder";
    EXPECT_FALSE(SaveToolbarFile(path, {}));
    EXPECT_EQ(OneBar(), LoadToolbarFile(path).bars) << "no bars were there to be saved";
}

TEST(ToolbarStore, OnlyWhatWasNotReadInFullIsKept)
{
    struct {
        const char* text;
        bool kept, bars;
    } const cases[] = {
        {"", false, false},
        {"<Toolbar ID=\"1\" HasChild=\"1\"></Toolbar>", false, true},
        {"<Toolbar ID=\"1\"></Toolbar>", true, false},
        {"text", true, false},
        {"<Toolbar ID='1' HasChild=\"1\"></Toolbar>", true, false},
        {"<Toolbar ID=\"1\" HasChild=\"1\"></Toolbar><Toolbar ID=", true, true},
        {"<?xml version=\"1.0\"?><Toolbar HasChild=\"1\"></Toolbar>", true, true},
    };
    for (const auto& c : cases) {
        const TemporaryFolder folder;
        const std::string path = folder.Write("bars.xml", c.text);
        EXPECT_EQ(c.bars, !LoadToolbarFile(path).bars.empty()) << c.text;
        EXPECT_TRUE(SaveToolbarFile(path, OneBar())) << c.text;
        EXPECT_EQ(c.kept ? c.text : "", folder.Read("bars.xml.unreadable")) << c.text;
        EXPECT_EQ(OneBar(), LoadToolbarFile(path).bars) << c.text;
    }
}

TEST(ToolbarStore, KeptFilesStayWhereTheyAre)
{
    const TemporaryFolder folder;
    for (const char* text : {"first", "second"}) {
        EXPECT_TRUE(SaveToolbarFile(folder.Write("bars.xml", text), OneBar()));
    }
    EXPECT_EQ("first", folder.Read("bars.xml.unreadable"));
    EXPECT_EQ("second", folder.Read("bars.xml.unreadable2"));
    const std::string whole = folder.Read("bars.xml");
    EXPECT_TRUE(SaveToolbarFile(folder.Path("bars.xml"), OneBar(), true));
    EXPECT_EQ(whole, folder.Read("bars.xml.unreadable3")) << "could not be read before";
}
