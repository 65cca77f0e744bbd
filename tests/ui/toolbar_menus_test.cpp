#include "ui/toolbar_menus.h"

#include <gtest/gtest.h>

using namespace qx;

namespace {

MenuBar Bar(const char* name, bool editable, bool shown, bool hasChild = false, int id = 0)
{
    return {true, editable, shown, hasChild, id, name};
}

// One word for each entry: its command, with '-' when grayed and '+' when checked.
std::string Text(const std::vector<MenuEntry>& menu)
{
    std::string text;
    for (const MenuEntry& entry : menu) {
        text += entry.command ? std::to_string(entry.command) : "|";
        text += std::string(entry.grayed ? "-" : "") + (entry.isChecked ? "+" : "") + " ";
    }
    return text;
}

TEST(StripMenu, EntriesWithTheirStates)
{
    const std::vector<MenuBar> two = {Bar("A", true, true), Bar("B", false, true), MenuBar{},
                                      Bar("C", true, false), Bar("D", true, true, true)};
    const std::vector<MenuBar> one = {Bar("A", true, true), Bar("", true, false)};
    const std::vector<MenuBar> full(127, Bar("", true, true));
    struct {
        const char* what;
        std::vector<MenuBar> bars;
        StripMenuState state;
        const char* text;
    } const cases[] = {
        {"no catalogue", one, {}, "2001 | 2000- 2004 | 2005-+ "},
        {"last with a toolbar",
         {Bar("A", true, true), MenuBar{false, true, true, false, 0, "B"}},
         {},
         "2001 | 2000- 2004 | 2005-+ 2006-+ "},
        {"locked", one, {true, false, 0}, "2001+ | 2000 2004 | 2005-+ "},
        {"editable hit",
         two,
         {false, true, 0},
         "2002 2003 | 2001 | 2000 2004 | 2005+ 2006-+ 2008 2009+ "},
        {"fixed hit",
         two,
         {false, true, 1},
         "2002 2003- | 2001 | 2000- 2004 | 2005+ 2006-+ 2008 2009+ "},
        {"child hit",
         two,
         {false, true, 4},
         "2002 2003- | 2001 | 2000- 2004 | 2005+ 2006-+ 2008 2009+ "},
        {"full", full, {false, true, 127}, "2002- 2003- | 2001 | 2000- 2004 | "},
    };
    for (const auto& c : cases)
        EXPECT_EQ(c.text, Text(StripMenu(c.bars, c.state))) << c.what;
    EXPECT_EQ("Delete Toolbar: B", StripMenu(two, {false, true, 1})[1].text);
    EXPECT_EQ("Delete Toolbar: ", StripMenu(two, {false, true, -1})[1].text);
}

TEST(StripMenu, StatusTexts)
{
    EXPECT_EQ("Create a new toolbar", StatusText({kCommandNew, "x", false, false}));
    EXPECT_EQ("Hide 100%s toolbar", StatusText({2005, "100%s", false, true}));
    EXPECT_EQ("Show " + std::string(64, 'n') + " toolbar",
              StatusText({2132, std::string(65, 'n'), false, false}));
}

TEST(StripMenu, NewBarTakesTheFirstEmptyRecord)
{
    std::vector<MenuBar> bars(128, Bar("", true, true, false, 5));
    EXPECT_FALSE(PlaceForNewBar(bars));
    bars[127].exists = false;
    EXPECT_FALSE(PlaceForNewBar(bars));
    bars[126].exists = false;
    bars[127].id = 40;
    ASSERT_TRUE(PlaceForNewBar(bars));
    EXPECT_EQ(126, PlaceForNewBar(bars)->index);
    EXPECT_EQ(41, PlaceForNewBar(bars)->id);
    bars[0].id = INT32_MAX;
    EXPECT_EQ(INT32_MAX, PlaceForNewBar(bars)->id);
}

TEST(ToolbarButtons, StatesFromAnswers)
{
    const std::tuple<int, int, int> cases[] = {
        {4, 0, 0}, {13, 0, 9}, {0, 4, 4}, {8, 4, 4}, {0, 5, 5}, {9, 6, 15}, {7, 8, 8}, {4, 1, 1},
    };
    for (const auto& [state, answer, expected] : cases)
        EXPECT_EQ(expected, ButtonState(static_cast<std::uint8_t>(state), answer))
            << state << ' ' << answer;
}

TEST(ToolbarButtons, SeparatorsPartedByHiddenButtons)
{
    const ToolbarButton button{0, 1, 4, 0}, hidden{0, 1, 8, 0}, separator{0, 0, 0, 1};
    const std::pair<std::vector<ToolbarButton>, int> cases[] = {
        {{}, -1},
        {{separator, separator}, 1},
        {{separator, hidden, hidden, separator, button}, 3},
        {{separator, button, separator}, -1},
        {{button, separator, hidden}, -1},
        {{separator, button, separator, separator}, 3},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_EQ(cases[i].second, DoubledSeparator(cases[i].first)) << i;
}

// A text for a menu and back: '|' a separator, '(' and ')' around a submenu, else a command.
Menu Parsed(const char*& text)
{
    Menu menu;
    for (; *text && *text != ')'; ++text) {
        if (*text == '(')
            menu.push_back({MenuItem::Submenu, 0, 0, Parsed(++text)});
        else
            menu.push_back({*text == '|' ? MenuItem::Separator : MenuItem::Command, *text, 0, {}});
    }
    return menu;
}

std::string Text(const Menu& menu)
{
    std::string text;
    for (const MenuItem& item : menu)
        text += item.kind == MenuItem::Submenu ? "(" + Text(item.items) + ")"
                                               : std::string(1, static_cast<char>(item.command));
    return text;
}

TEST(HostMenu, SeparatorsCollapse)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},      {"a|b", "a|b"}, {"a||b", "a|b"},          {"|||a", "|a"},
        {"a|||", "a"}, {"|", ""},      {"a|(b||c)|", "a|(b|c)"}, {"(|)|(a)", "()|(a)"},
    };
    for (const auto& [before, after] : cases) {
        const char* text = before;
        Menu menu = Parsed(text);
        EXPECT_EQ(std::string(before) != after, CollapseSeparators(menu)) << before;
        EXPECT_EQ(after, Text(menu)) << before;
    }
}

TEST(HostMenu, AnswersDeleteAndGray)
{
    const char* text = "a|xxb|(xc)";
    Menu menu = Parsed(text);
    menu[0].state = kItemChecked;
    UpdateMenu(menu, [](int command) { return command == 'x' ? 8 : command == 'a' ? 0 : 5; });
    // The second 'x' moved to the place of the first, which had been examined; 'c' likewise.
    EXPECT_EQ("a|xb|(c)", Text(menu));
    EXPECT_EQ(kItemChecked | kItemGrayed | kItemDisabled, menu[0].state);
    EXPECT_EQ(0U, menu[3].state);
    UpdateMenu(menu, [](int) { return 4; });
    EXPECT_EQ(kItemChecked, menu[0].state);
}

}  // namespace
