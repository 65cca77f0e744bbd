#include "ui/toolbar_menus.h"

#include "config/template_text.h"
#include "env/wording.h"

#include <algorithm>

namespace qx {

// ---- The strip's menu

static constexpr std::size_t kMostItemBytes = 64;  // of an item's text in the status line

static int CountLeading(std::span<const MenuBar> bars)
{
    return static_cast<int>(std::ranges::find(bars, false, &MenuBar::exists) - bars.begin());
}

static bool IsRecord(std::span<const MenuBar> bars, int index)
{
    return index >= 0 && static_cast<std::size_t>(index) < bars.size();
}

bool IsCustomizable(std::span<const MenuBar> bars, int index)
{
    if (!IsRecord(bars, index))
        return false;
    const MenuBar& bar = bars[static_cast<std::size_t>(index)];
    return bar.exists && bar.editable && !bar.hasChild;
}

static std::string NameOf(std::span<const MenuBar> bars, int index)
{
    return IsRecord(bars, index) ? bars[static_cast<std::size_t>(index)].name : std::string();
}

static void AddBars(std::vector<MenuEntry>& menu, std::span<const MenuBar> bars)
{
    const auto shown =
        std::ranges::count_if(bars, [](const MenuBar& bar) { return bar.exists && bar.shown; });
    for (std::size_t i = 0; i < bars.size(); ++i) {
        const MenuBar& bar = bars[i];
        if (bar.name.empty())
            continue;
        // The last bar that is shown cannot be hidden.
        const bool stays = bar.shown && (!bar.editable || shown <= 1);
        menu.push_back({kCommandFirstBar + static_cast<int>(i), bar.name, stays, bar.shown});
    }
}

std::vector<MenuEntry> StripMenu(std::span<const MenuBar> bars, const StripMenuState& state)
{
    const bool fixed = !IsCustomizable(bars, state.hit);
    std::vector<MenuEntry> menu;
    if (state.hasCatalogue) {
        const bool full = CountLeading(bars) >= kMostBars - 1;
        menu.push_back({kCommandNew, Translated("New Toolbar"), full, false});
        menu.push_back({kCommandDelete, Translated("Delete Toolbar: ") + NameOf(bars, state.hit),
                        fixed, false});
        menu.push_back({});
    }
    menu.push_back({kCommandLock, Translated("Lock Toolbars"), false, state.locked});
    menu.push_back({});
    menu.push_back({kCommandCustomize, Translated("Customize") + "...", fixed, false});
    menu.push_back({kCommandReset, Translated("Reset Toolbars"), false, false});
    menu.push_back({});
    AddBars(menu, bars);
    return menu;
}

static std::string ShownText(const MenuEntry& entry)
{
    const std::string verb = Translated(entry.isChecked ? "Hide" : "Show");
    return ExpandText(ExpandText(Translated("%s %s toolbar"), verb),
                      entry.text.substr(0, kMostItemBytes));
}

std::string StatusText(const MenuEntry& entry)
{
    switch (entry.command) {
        case kCommandCustomize:
            return Translated("Customize the selected toolbar");
        case kCommandLock:
            return Translated("Lock the toolbar positions");
        case kCommandNew:
            return Translated("Create a new toolbar");
        case kCommandDelete:
            return Translated("Remove the selected toolbar");
        case kCommandReset:
            return Translated("Return all toolbars to their defaults");
        default:
            return ShownText(entry);
    }
}

std::optional<NewBar> PlaceForNewBar(std::span<const MenuBar> bars)
{
    const int index = CountLeading(bars);
    if (index >= kMostBars - 1 || !IsRecord(bars, index))
        return {};
    const int largest = std::ranges::max_element(bars, {}, &MenuBar::id)->id;
    return NewBar{index, largest < INT32_MAX ? largest + 1 : largest};
}

std::string DeleteQuestion(const std::string& name)
{
    return Translated("Are you sure you want to delete toolbar: ") + name + "?";
}

std::string ResetQuestion()
{
    return Translated("Are you sure you want to reset all toolbars to the program defaults?");
}

// ---- Buttons

std::uint8_t ButtonState(std::uint8_t state, int answer)
{
    switch (answer) {
        case 0:
            return state & static_cast<std::uint8_t>(~kButtonEnabled);
        case 6:
            return state | 6;
        default:
            return static_cast<std::uint8_t>(answer);
    }
}

void UpdateStates(std::span<ToolbarButton> buttons, const std::function<int(int command)>& answer)
{
    for (ToolbarButton& button : buttons) {
        if (!button.IsSeparator())
            button.state = ButtonState(button.state, answer(button.command));
    }
}

int DoubledSeparator(std::span<const ToolbarButton> buttons)
{
    bool behindSeparator = false;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (buttons[i].IsHidden())
            continue;
        if (behindSeparator && buttons[i].IsSeparator())
            return static_cast<int>(i);
        behindSeparator = buttons[i].IsSeparator();
    }
    return -1;
}

// ---- Menus of the host

std::optional<unsigned> ItemState(unsigned state, int answer)
{
    switch (answer) {
        case 8:
            return {};
        case 0:
            return state | kItemGrayed | kItemDisabled;
        case 4:
            return state & ~(kItemGrayed | kItemDisabled);
        case 5:
        case 6:
            return state | kItemChecked;
        default:
            return state;
    }
}

// Deliberately without the check mark, which hosts set themselves.
static void Apply(MenuItem& item, unsigned state)
{
    constexpr unsigned kApplied = kItemGrayed | kItemDisabled;
    item.state = (item.state & ~kApplied) | (state & kApplied);
}

void UpdateMenu(Menu& menu, const std::function<int(int command)>& answer)
{
    // The position counts on past a deleted item: deliberately, the next one is left as it is.
    for (std::size_t i = 0; i < menu.size(); ++i) {
        MenuItem& item = menu[i];
        if (item.kind == MenuItem::Submenu)
            UpdateMenu(item.items, answer);
        if (item.kind != MenuItem::Command)
            continue;
        if (const auto state = ItemState(item.state, answer(item.command)))
            Apply(item, *state);
        else
            menu.erase(menu.begin() + static_cast<std::ptrdiff_t>(i));
    }
    CollapseSeparators(menu);
}

bool CollapseSeparators(Menu& menu)
{
    bool deleted = false;
    for (std::size_t i = 0; i < menu.size();) {
        if (menu[i].kind == MenuItem::Submenu && CollapseSeparators(menu[i].items))
            deleted = true;
        const bool doubled = menu[i].kind == MenuItem::Separator &&
                             (i + 1 == menu.size() || menu[i + 1].kind == MenuItem::Separator);
        if (doubled) {
            menu.erase(menu.begin() + static_cast<std::ptrdiff_t>(i));
            deleted = true;
        } else {
            ++i;
        }
    }
    return deleted;
}

}  // namespace qx
