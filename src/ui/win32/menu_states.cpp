#include "ui/toolbar_menus.h"

#include <qxutility/ui/menu_states.h>
#include <qxutility/ui/toolbar_master.h>

#include <set>

using namespace qx;

static_assert(kItemGrayed == MF_GRAYED && kItemDisabled == MF_DISABLED &&
              kItemChecked == MF_CHECKED);

// ---- Reading

using Menus = std::set<HMENU>;

static Menu Read(HMENU menu, Menus& seen);

// A submenu's flags hold its number of items, which makes some look like separators.
static MenuItem ReadItem(HMENU menu, int position, Menus& seen)
{
    if (const HMENU submenu = ::GetSubMenu(menu, position))
        return {MenuItem::Submenu, 0, 0, Read(submenu, seen), position};
    const UINT state = ::GetMenuState(menu, static_cast<UINT>(position), MF_BYPOSITION);
    if (state & MF_SEPARATOR)
        return {MenuItem::Separator, 0, 0, {}, position};
    const auto command = static_cast<int>(::GetMenuItemID(menu, position));
    return {MenuItem::Command, command, state, {}, position};
}

// A menu that stands somewhere in itself or twice is read once, and empty from then on.
static Menu Read(HMENU menu, Menus& seen)
{
    Menu items;
    if (!seen.insert(menu).second)
        return items;
    const int count = ::GetMenuItemCount(menu);
    for (int position = 0; position < count; ++position)
        items.push_back(ReadItem(menu, position, seen));
    return items;
}

static Menu Read(HMENU menu)
{
    Menus seen;
    return Read(menu, seen);
}

// ---- Applying

static void EnableItem(HMENU menu, const MenuItem& item)
{
    ::EnableMenuItem(menu, static_cast<UINT>(item.position),
                     MF_BYPOSITION | (item.state & (kItemGrayed | kItemDisabled)));
}

// Makes a menu that was as `before` what `after` is. From the end, so that positions stay.
static void Apply(HMENU menu, const Menu& before, const Menu& after)
{
    auto kept = after.rbegin();
    for (auto item = before.rbegin(); item != before.rend(); ++item) {
        if (kept == after.rend() || kept->position != item->position) {
            ::DeleteMenu(menu, static_cast<UINT>(item->position), MF_BYPOSITION);
            continue;
        }
        if (item->kind == MenuItem::Submenu)
            Apply(::GetSubMenu(menu, item->position), item->items, kept->items);
        else if (item->kind == MenuItem::Command)
            EnableItem(menu, *kept);
        ++kept;
    }
}

void UpdateMenuStates(HMENU menu, HWND window)
{
    const Menu before = Read(menu);
    Menu after = before;
    UpdateMenu(after, [&](int command) {
        const auto id = static_cast<WPARAM>(static_cast<UINT>(command));
        return static_cast<int>(::SendMessageA(window, UM_COMMANDSTATE, id, 0));
    });
    Apply(menu, before, after);
}

bool RemoveMultipleSeperators(HMENU menu)
{
    const Menu before = Read(menu);
    Menu after = before;
    const bool anyDeleted = CollapseSeparators(after);
    Apply(menu, before, after);
    return anyDeleted;
}
