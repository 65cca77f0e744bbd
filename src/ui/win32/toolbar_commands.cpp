// The menu of a strip.
#include "env/wording.h"
#include "platform/message_box.h"
#include "ui/win32/toolbar_strip_window.h"
#include "win32/handle.h"

#include <algorithm>

namespace qx {

namespace {

struct MenuTraits {
    static HMENU None() { return nullptr; }
    static void Close(HMENU menu) { ::DestroyMenu(menu); }
};
using MenuHandle = win32::UniqueHandle<MenuTraits>;

}  // namespace

static void Append(HMENU menu, const MenuEntry& entry)
{
    if (entry.command == 0) {
        ::AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
        return;
    }
    const UINT flags =
        (entry.grayed ? MF_GRAYED : MF_ENABLED) | (entry.isChecked ? MF_CHECKED : MF_UNCHECKED);
    ::AppendMenuA(menu, MF_STRING | flags, static_cast<UINT_PTR>(entry.command),
                  entry.text.c_str());
}

// The point is in the strip's coordinates. The host is told of items by WM_MENUSELECT, hence
// without TPM_NONOTIFY.
static int Track(HWND strip, const std::vector<MenuEntry>& entries, POINT at)
{
    const MenuHandle menu(::CreatePopupMenu());
    for (const MenuEntry& entry : entries)
        Append(menu.get(), entry);
    ::ClientToScreen(strip, &at);
    return ::TrackPopupMenu(menu.get(), TPM_RIGHTBUTTON | TPM_RETURNCMD | TPM_VERPOSANIMATION, at.x,
                            at.y, 0, strip, nullptr);
}

void StripWindow::ShowMenu(POINT at)
{
    if (!m_window || m_inMenu || (m_locked && !m_customisable))
        return;
    const int hit = HitTest(StripBars(), at).index;
    const HWND toolbar = hit < 0 ? nullptr : m_bars[static_cast<std::size_t>(hit)].toolbar;
    const bool hasCatalogue = m_catalogue.front().command != 0;
    m_inMenu = true;
    const int command = Track(m_window, StripMenu(MenuBars(), {m_locked, hasCatalogue, hit}), at);
    m_inMenu = false;
    Command(command, at, toolbar);
    TellChanged();
}

void StripWindow::Command(int command, POINT at, HWND hit)
{
    switch (command) {
        case 0:
            return;
        case kCommandCustomize:
            return Customize(at);
        case kCommandLock:
            return ToggleLockControls(true);
        case kCommandNew:
            return NewBarCommand();
        case kCommandDelete:
            return DeleteCommand(hit);
        case kCommandReset:
            return ResetCommand();
        default:
            return ToggleShown(command - kCommandFirstBar);
    }
}

void StripWindow::ToggleLockControls(bool customisable)
{
    m_locked = !m_locked;
    m_customisable = customisable;
}

// At the mouse when both coordinates are -1.
void StripWindow::Customize(POINT at)
{
    if (at.x == -1 && at.y == -1) {
        ::GetCursorPos(&at);
        ::ScreenToClient(m_window, &at);
    }
    const int hit = HitTest(StripBars(), at).index;
    if (IsCustomizable(MenuBars(), hit))
        ::PostMessageA(m_bars[static_cast<std::size_t>(hit)].toolbar, TB_CUSTOMIZE, 0, 0);
}

// The new bar is hidden until the user has given it buttons.
void StripWindow::NewBarCommand()
{
    const auto place = PlaceForNewBar(MenuBars());
    const HWND toolbar = place ? NewToolbar(place->id, m_resources.images) : nullptr;
    if (!toolbar)
        return;
    ::ShowWindow(toolbar, SW_HIDE);
    InsertWindow(toolbar, 50);
    ToolbarRecord& record = m_bars[static_cast<std::size_t>(place->index)].record;
    record = {};
    record.id = place->id;
    record.editable = record.shown = 1;
    record.name = Translated("New Toolbar");
    ::PostMessageA(toolbar, TB_CUSTOMIZE, 0, 0);
}

static bool Agrees(HWND strip, const std::string& question, const char* title)
{
    return platform::ShowMessageBox(strip, question.c_str(), Translated(title).c_str(),
                                    MB_YESNO | MB_ICONQUESTION) == IDYES;
}

void StripWindow::DeleteCommand(HWND hit)
{
    if (!BarOf(hit) || !Agrees(m_window, DeleteQuestion(BarOf(hit)->record.name), "Toolbar"))
        return;
    Bar* bar = BarOf(hit);
    if (!bar)
        return;
    InvalidateBar(hit);
    FreeBar(*bar);
    KeepOneShown();
    RestoreBandPositions();
    if (m_window)
        ::UpdateWindow(m_window);
}

void StripWindow::ResetCommand()
{
    if (!Agrees(m_window, ResetQuestion(), "Toolbars"))
        return;
    LoadDefaults();
    NotifyAutoSize();
    ::ShowWindow(m_window, SW_SHOW);
    UpdateButtonStates();
}

void StripWindow::ToggleShown(int index)
{
    if (index < 0 || index >= kMostBars)
        return;
    Bar& bar = m_bars[static_cast<std::size_t>(index)];
    bar.record.shown = !bar.record.shown;
    ShowFloating(bar);
    InvalidateBar(bar.toolbar);
    RestoreBandPositions();
    if (m_window)
        ::UpdateWindow(m_window);
}

// ---- Status line

static MenuEntry EntryOf(HMENU menu, UINT command)
{
    char text[128] = "";
    MENUITEMINFOA info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_STATE | MIIM_STRING;
    info.dwTypeData = text;
    info.cch = sizeof text - 1;  // of a text that does not fit, not every system ends the copy
    ::GetMenuItemInfoA(menu, command, FALSE, &info);
    return {static_cast<int>(command), text, false, (info.fState & MFS_CHECKED) != 0};
}

void StripWindow::MenuSelect(WPARAM wParam, HMENU menu) const
{
    if (!menu || (HIWORD(wParam) & (MF_POPUP | MF_SEPARATOR)) != 0)
        return;
    const std::string text = StatusText(EntryOf(menu, LOWORD(wParam)));
    ::SendMessageA(Parent(), UM_STATUSTEXT, reinterpret_cast<WPARAM>(text.c_str()), 0);
}

}  // namespace qx
