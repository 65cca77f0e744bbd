// The bars of a strip: their records, toolbars and buttons.
#include "env/wording.h"
#include "platform/message_box.h"
#include "ui/win32/toolbar_strip_window.h"

#include <algorithm>
#include <utility>

namespace qx {

static constexpr DWORD kToolbarStyle = WS_CHILD | WS_VISIBLE | TBSTYLE_FLAT | TBSTYLE_ALTDRAG |
                                       TBSTYLE_TOOLTIPS | CCS_NODIVIDER | CCS_ADJUSTABLE |
                                       CCS_NOPARENTALIGN | CCS_NORESIZE;
static constexpr int kPictureSize = 18;

// ---- Buttons of a toolbar

// The number of a button's string is its command; the control would take a larger one for a
// pointer.
TBBUTTON ToControl(const ToolbarButton& button)
{
    constexpr INT_PTR kNoString = -1;
    const bool isNumber = button.command >= 0 && button.command <= 0xFFFF;
    TBBUTTON control{};
    control.iBitmap = button.image;
    control.idCommand = button.command;
    control.fsState = button.state;
    control.fsStyle = button.style;
    control.iString = isNumber ? button.command : kNoString;
    return control;
}

std::vector<ToolbarButton> ReadButtons(HWND toolbar)
{
    const auto count = static_cast<WPARAM>(::SendMessageA(toolbar, TB_BUTTONCOUNT, 0, 0));
    std::vector<ToolbarButton> buttons;
    for (WPARAM i = 0; i < count; ++i) {
        TBBUTTON control{};
        ::SendMessageA(toolbar, TB_GETBUTTON, i, reinterpret_cast<LPARAM>(&control));
        buttons.push_back({control.iBitmap, control.idCommand, control.fsState, control.fsStyle});
    }
    return buttons;
}

// ---- Records

static SIZE BarSize(const Bar& bar)
{
    if (!bar.child)
        return {ButtonsWidth(bar.record.buttons), kBarHeight};
    RECT area{};
    ::GetWindowRect(bar.child, &area);
    return HostSize({area.right - area.left, area.bottom - area.top});
}

std::vector<StripBar> StripWindow::StripBars() const
{
    std::vector<StripBar> bars;
    for (const Bar& bar : m_bars) {
        const ToolbarRecord& r = bar.record;
        bars.push_back({bar.toolbar != nullptr, r.shown != 0, bar.Floats(), r.id, r.x, r.y,
                        bar.toolbar ? BarSize(bar) : SIZE{}});
    }
    return bars;
}

std::vector<MenuBar> StripWindow::MenuBars() const
{
    std::vector<MenuBar> bars;
    for (const Bar& bar : m_bars) {
        const ToolbarRecord& r = bar.record;
        bars.push_back({bar.toolbar != nullptr, r.editable != 0, r.shown != 0, bar.child != nullptr,
                        r.id, r.name});
    }
    return bars;
}

// Both searches end at the first empty record, and then give its index: deliberately, what is
// behind a deleted bar is not found.
int StripWindow::GetBandID(HWND toolbar) const
{
    const auto found = std::ranges::find_if(
        m_bars, [=](const Bar& bar) { return !bar.toolbar || bar.toolbar == toolbar; });
    return static_cast<int>(found - m_bars.begin());
}

int StripWindow::GetBandID(int id) const
{
    return FindBar(StripBars(), id);
}

Bar& StripWindow::GetToolBarInfo(int id)
{
    return m_bars[static_cast<std::size_t>(GetBandID(id)) % kMostBars];
}

// Also behind an empty record; null when it is no longer there.
const Bar* StripWindow::BarOf(HWND toolbar) const
{
    const auto found = std::ranges::find(m_bars, toolbar, &Bar::toolbar);
    return toolbar && found != m_bars.end() ? &*found : nullptr;
}

Bar* StripWindow::BarOf(HWND toolbar)
{
    return const_cast<Bar*>(std::as_const(*this).BarOf(toolbar));
}

SIZE StripWindow::BandSize(HWND toolbar) const
{
    const Bar* bar = BarOf(toolbar);
    return bar ? BarSize(*bar) : SIZE{0, kBarHeight};
}

bool StripWindow::IsWrapable(HWND toolbar) const
{
    const Bar* bar = BarOf(toolbar);
    return bar && !bar->child;
}

// In the strip's coordinates.
RECT StripWindow::AreaOf(HWND toolbar) const
{
    RECT area{};
    ::GetWindowRect(toolbar, &area);
    ::MapWindowPoints(nullptr, m_window, reinterpret_cast<POINT*>(&area), 2);
    return area;
}

// ---- Toolbars

HWND StripWindow::NewToolbar(int id, int images) const
{
    if (!m_window)
        return nullptr;
    return ::CreateToolbarEx(m_window, kToolbarStyle, static_cast<UINT>(id), images, m_module,
                             static_cast<UINT_PTR>(m_resources.bitmap), nullptr, 0, kPictureSize,
                             kPictureSize, kPictureSize, kPictureSize, sizeof(TBBUTTON));
}

HWND StripWindow::CreateToolBar(int id)
{
    const HWND toolbar = NewToolbar(id, CountImages(m_catalogue));
    if (toolbar)
        InsertWindow(toolbar, 0);
    return toolbar;
}

void StripWindow::InsertWindow(HWND toolbar, int)
{
    const auto index = static_cast<std::size_t>(GetBandID(toolbar));
    if (index < m_bars.size() && !m_bars[index].toolbar) {
        m_bars[index].toolbar = toolbar;
        m_bars[index].record.buttons.clear();
        m_bars[index].floating.reset();
    }
    ::SendMessageA(toolbar, TB_SETEXTENDEDSTYLE, 0,
                   TBSTYLE_EX_DRAWDDARROWS | TBSTYLE_EX_HIDECLIPPEDBUTTONS);
}

// A window of the host stands 2 pixels below the toolbar's top and is 18 high.
static void Host(HWND toolbar, HWND child)
{
    RECT area{};
    ::GetWindowRect(child, &area);
    const int width = area.right - area.left;
    ::SetParent(child, toolbar);
    ::MoveWindow(child, 0, 2, width, 18, TRUE);
    ::SetWindowPos(toolbar, nullptr, 0, 0, width, kBarHeight,
                   SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

bool StripWindow::CreateToolBar(int id, HWND child)
{
    Bar& bar = GetToolBarInfo(id);
    if (!bar.toolbar) {
        bar.record.id = id;
        bar.record.shown = 1;  // no file knows this bar
        bar.toolbar = CreateToolBar(id);
    }
    if (!bar.toolbar) {
        platform::ShowMessageBox(m_window, Translated("Toolbar not created!").c_str(), nullptr,
                                 MB_OK);
        return false;
    }
    bar.record.buttons.clear();
    bar.child = child;
    const HWND toolbar = bar.toolbar;
    Host(toolbar, child);
    InsertWindow(toolbar, 0);
    RestoreBandPositions();
    return true;
}

// Ends what stands for a bar on the screen, and empties its record in place.
void StripWindow::FreeBar(Bar& bar)
{
    const Bar gone = std::exchange(bar, {});
    if (gone.toolbar && gone.toolbar == m_customised)
        LeaveToDialog(gone.toolbar);
    else if (gone.toolbar)
        ::DestroyWindow(gone.toolbar);
}

// No arrangement hides all bars.
void StripWindow::KeepOneShown()
{
    const auto shown = [](const Bar& bar) { return bar.toolbar && bar.record.shown; };
    const auto first = std::ranges::find_if(m_bars, [](const Bar& bar) { return bar.toolbar; });
    if (first == m_bars.end() || std::ranges::any_of(m_bars, shown))
        return;
    first->record.shown = 1;
    ShowFloating(*first);
}

// ---- States of the buttons

void StripWindow::UpdateButtonStates()
{
    for (const Bar& bar : m_bars) {
        if (!bar.toolbar)
            break;
        UpdateBar(bar.toolbar);
    }
    RestoreBandPositions();
    if (m_window)
        ::UpdateWindow(m_window);
}

void StripWindow::UpdateBar(HWND toolbar)
{
    InvalidateBar(toolbar);
    std::vector<ToolbarButton> buttons = BarOf(toolbar)->record.buttons;
    UpdateStates(buttons, [this](int command) {
        const auto wParam = static_cast<WPARAM>(command);
        return static_cast<int>(::SendMessageA(Parent(), UM_COMMANDSTATE, wParam, 0));
    });
    Bar* bar = BarOf(toolbar);
    if (!bar)
        return;
    bar->record.buttons = buttons;
    for (const ToolbarButton& button : buttons) {
        if (!button.IsSeparator())
            ::SendMessageA(toolbar, TB_SETSTATE, static_cast<WPARAM>(button.command), button.state);
    }
    CollapseSeparators(toolbar);
    ::SendMessageA(toolbar, TB_AUTOSIZE, 0, 0);
}

// The customise dialog counts the buttons of its toolbar itself.
void StripWindow::CollapseSeparators(HWND toolbar)
{
    for (Bar* bar; toolbar != m_customised && (bar = BarOf(toolbar)) != nullptr;) {
        const int doubled = DoubledSeparator(bar->record.buttons);
        if (doubled < 0 ||
            !::SendMessageA(toolbar, TB_DELETEBUTTON, static_cast<WPARAM>(doubled), 0))
            break;
        if ((bar = BarOf(toolbar)) != nullptr)
            bar->record.buttons = ReadButtons(toolbar);
    }
}

}  // namespace qx
