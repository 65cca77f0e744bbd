// The states of real menus, by a window's answers.
#include "support/win32_ui.h"
#include "support/window_spy.h"

#include <qxutility/ui/menu_states.h>
#include <qxutility/ui/toolbar_master.h>

#include <gmock/gmock.h>

using namespace qx::test;
using testing::ElementsAre;

namespace {

// A menu of a text: '|' a separator, '(' and ')' around a submenu, else a command.
HMENU MenuOf(const char*& text)
{
    const HMENU menu = ::CreatePopupMenu();
    for (; *text && *text != ')'; ++text) {
        const char caption[] = {*text, '\0'};
        const auto id = static_cast<UINT_PTR>(*text);
        if (*text == '(')
            ::AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(MenuOf(++text)), "(");
        else
            ::AppendMenuA(menu, *text == '|' ? MF_SEPARATOR : MF_STRING, id, caption);
    }
    return menu;
}

std::string TextOfMenu(HMENU menu)
{
    std::string text;
    const auto captions = TextsOf(menu);
    for (int i = 0; i < static_cast<int>(captions.size()); ++i) {
        const UINT state = ::GetMenuState(menu, static_cast<UINT>(i), MF_BYPOSITION);
        if (const HMENU submenu = ::GetSubMenu(menu, i)) {
            text += "(" + TextOfMenu(submenu) + ")";
        } else if (state & MF_SEPARATOR) {
            text += '|';
        } else {
            text += captions[static_cast<std::size_t>(i)];
            text += state & MF_GRAYED ? "-" : "";
            text += state & MF_CHECKED ? "+" : "";
        }
    }
    return text;
}

struct RealMenu {
    explicit RealMenu(const char* text) : menu(MenuOf(text)) {}
    ~RealMenu() { ::DestroyMenu(menu); }
    HMENU menu;
};

TEST(MenuStates, SeparatorsCollapse)
{
    const std::pair<const char*, const char*> cases[] = {
        {"", ""},
        {"a|b", "a|b"},
        {"a||b", "a|b"},
        {"|||a|", "|a"},
        {"|", ""},
        {"a|(b||c|)|", "a|(b|c)"},
        {"a|(12345678)|(1234567890abcdef)|b", "a|(12345678)|(1234567890abcdef)|b"},
        {"(12345678)(12345678)||", "(12345678)(12345678)"},
    };
    for (const auto& [before, after] : cases) {
        const RealMenu menu(before);
        EXPECT_EQ(std::string(before) != after, RemoveMultipleSeperators(menu.menu)) << before;
        EXPECT_EQ(after, TextOfMenu(menu.menu)) << before;
    }
}

TEST(MenuStates, FollowTheWindowsAnswers)
{
    const TestWindow window("Menus", 100, 80);
    std::string asked;
    const Spy spy(window, [&](UINT message, WPARAM command, LPARAM) -> std::optional<LRESULT> {
        if (message != UM_COMMANDSTATE)
            return {};
        asked += static_cast<char>(command);
        return command == 'x' ? 8 : command == 'd' ? 0 : command == 'e' ? 4 : 5;
    });
    const RealMenu menu("d|xxe|(xc|12345678)|x");
    for (const UINT position : {0U, 4U}) {
        ::CheckMenuItem(menu.menu, position, MF_BYPOSITION | MF_CHECKED);
        ::EnableMenuItem(menu.menu, position, MF_BYPOSITION | MF_GRAYED);
    }
    UpdateMenuStates(menu.menu, window);
    EXPECT_EQ("dxex12345678x", asked) << "not what stands behind a deleted one";
    EXPECT_EQ("d-+|xe+|(c|12345678)", TextOfMenu(menu.menu));
    UpdateMenuStates(menu.menu, window);
    EXPECT_EQ("d-+|e+|(c|12345678)", TextOfMenu(menu.menu)) << "checked is not shown";
}

TEST(MenuStates, MenusThatHoldThemselvesAndNone)
{
    const TestWindow window("Menus", 100, 80);
    RealMenu menu("a||b");
    const auto self = reinterpret_cast<UINT_PTR>(menu.menu);
    ::AppendMenuA(menu.menu, MF_POPUP, self, "self");
    ::AppendMenuA(menu.menu, MF_SEPARATOR, 0, nullptr);
    UpdateMenuStates(menu.menu, window);
    EXPECT_THAT(TextsOf(menu.menu), ElementsAre("a", "-", "b", "self"));
    ::RemoveMenu(menu.menu, 3, MF_BYPOSITION);
    UpdateMenuStates(nullptr, window);
    EXPECT_FALSE(RemoveMultipleSeperators(nullptr));
}

}  // namespace
