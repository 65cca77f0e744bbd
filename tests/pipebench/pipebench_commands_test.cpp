#include "core/commands.h"
#include "ids.h"

#include <gtest/gtest.h>

using namespace pipebench;

TEST(Commands, AreAvailableWhereTheyMakeSense)
{
    using enum CommandState;
    Situation start;
    start.languages = 3;
    start.language = 1;
    Situation empty = start, line = start;
    empty.lineOpen = line.lineOpen = true;
    line.lineChanged = line.anyPipe = line.pipeSelected = true;
    line.settings.view.tree = line.settings.view.statusBar = false;
    struct Case {
        int command;
        CommandState onStartPage, inEmptyLine, withPipe;
    };
    const Case cases[] = {
        {IDM_NEW, Enabled, Enabled, Enabled},
        {IDM_SAVE, Disabled, Disabled, Enabled},
        {IDM_SAVE_AS, Disabled, Enabled, Enabled},
        {IDM_START_PAGE, Disabled, Enabled, Enabled},
        {IDM_ADD, Disabled, Enabled, Enabled},
        {IDM_DELETE, Disabled, Disabled, Enabled},
        {IDM_SORT_LENGTH, Disabled, Disabled, Enabled},
        {IDM_SKETCH, Disabled, Checked, Checked},
        {IDM_TREE, Disabled, Checked, Enabled},
        {IDM_STATUS_BAR, Checked, Checked, Enabled},
        {IDM_DECIMALS_0 + 2, Checked, Checked, Checked},
        {IDM_DECIMALS_3, Enabled, Enabled, Enabled},
        {IDM_LANGUAGE_FIRST, Enabled, Enabled, Enabled},
        {IDM_LANGUAGE_FIRST + 1, Checked, Checked, Checked},
        {IDM_LANGUAGE_FIRST + 3, Hidden, Hidden, Hidden},
        {0, Hidden, Hidden, Hidden},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(c.onStartPage, StateOf(c.command, start)) << c.command;
        EXPECT_EQ(c.inEmptyLine, StateOf(c.command, empty)) << c.command;
        EXPECT_EQ(c.withPipe, StateOf(c.command, line)) << c.command;
    }
}

TEST(Commands, ButtonsThatConcernALineAreNotOnTheStartPage)
{
    using enum CommandState;
    Situation start, line;
    line.lineOpen = line.anyPipe = true;
    for (const int command : {IDM_START_PAGE, IDM_SORT_NAME, IDM_TREE, IDM_SKETCH}) {
        EXPECT_EQ(Hidden, ButtonStateOf(command, start)) << command;
        EXPECT_EQ(StateOf(command, line), ButtonStateOf(command, line)) << command;
    }
    EXPECT_EQ(Disabled, ButtonStateOf(IDM_ADD, start));
    line.toolsFloat = true;
    EXPECT_EQ(Checked, ButtonStateOf(IDM_FLOATING_TOOLS, line));
}
