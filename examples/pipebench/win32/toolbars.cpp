#include "win32/toolbars.h"

#include "core/texts.h"
#include "ids.h"
#include "win32/gdi.h"

#include <qxutility/ui/dockable_window.h>
#include <qxutility/ui/menu_states.h>

#include <windows.h>
#include <commctrl.h>

#include <utility>

namespace pipebench {

static constexpr char kFile[] = "PipeBenchToolbars.xml";
static constexpr int kImages = 19;
static constexpr int kToolsBar = 404, kUnitsBar = 405;  // IDs of bars in toolbars.xml
static constexpr int kUnitsWidth = 120;

void Toolbars::Create(HWND parent, const Localisation& localisation, Host host)
{
    m_parent = parent;
    m_localisation = &localisation;
    m_host = std::move(host);
    m_master.CreateRebar(parent, IDR_TOOLBARS, IDC_TOOLBARS, IDB_TOOLBAR, kImages,
                         IDR_TOOLBAR_BUTTONS);
    m_master.LoadToolbars(kFile);
    m_units = ::CreateWindowExA(0, WC_COMBOBOXA, "", WS_CHILD | WS_VISIBLE | CBS_DROPDOWNLIST, 0, 0,
                                kUnitsWidth, 200, parent, reinterpret_cast<HMENU>(IDC_UNITS_BAR),
                                localisation.Module(), nullptr);
    ::SendMessageA(m_units, WM_SETFONT, reinterpret_cast<WPARAM>(MessageFont()), FALSE);
    m_master.CreateToolBar(kUnitsBar, m_units, 0);
}

void Toolbars::ShowTexts()
{
    ::SendMessageA(m_units, CB_RESETCONTENT, 0, 0);
    for (const int name : {IDS_METRIC_UNITS, IDS_US_UNITS}) {
        const std::string text = m_localisation->String(static_cast<unsigned>(name));
        ::SendMessageA(m_units, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
    }
}

void Toolbars::ShowUnits(DT_UNITS units)
{
    ::SendMessageA(m_units, CB_SETCURSEL, units == DT_METRIC ? 0 : 1, 0);
}

void Toolbars::ShowStates()
{
    m_master.UpdateButtonStates();
}

// ---- Place

int Toolbars::Height() const
{
    RECT area{};
    m_master.GetWindowRect(&area);
    return area.bottom - area.top;
}

// The strip finds its height itself.
void Toolbars::Arrange(int width)
{
    RECT area{};
    m_master.GetWindowRect(&area);
    if (area.right - area.left != width)
        m_master.SizeRebarWindow(width, Height());
}

bool Toolbars::ToolsFloat() const
{
    return !::GetDlgItem(m_master.GetRebarHWND(), kToolsBar);
}

void Toolbars::ToggleTools()
{
    const HWND toolbar = ::GetDlgItem(m_master.GetRebarHWND(), kToolsBar);
    RECT strip{}, place{};
    m_master.GetWindowRect(&strip);
    ::GetWindowRect(toolbar, &place);
    m_master.ToggleDock(-1, -1, kToolsBar, -1);
    if (toolbar && ToolsFloat())
        ::SetWindowPos(::GetParent(toolbar), nullptr, place.left, strip.bottom + Scaled(24), 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    ::SetFocus(m_parent);
    Save();
}

bool Toolbars::IsOverStrip(const RECT& area) const
{
    RECT strip{}, common;
    m_master.GetWindowRect(&strip);
    return ::IntersectRect(&common, &strip, &area);
}

// The window that a bar floats in; null without one.
static HWND FrameOf(int bar, HWND parent)
{
    HWND frame = nullptr;
    while ((frame = ::FindWindowExA(nullptr, frame, "DOCKABLEWND", nullptr)) != nullptr) {
        if (::GetWindow(frame, GW_OWNER) == parent && ::GetDlgItem(frame, bar))
            return frame;
    }
    return nullptr;
}

// The window of a bar that was dropped is back where the move began: the bar is to be where the
// outline was.
void Toolbars::Dock(int bar, bool dropped)
{
    if (dropped)
        ::SetWindowPos(FrameOf(bar, m_parent), nullptr, m_dropped.left, m_dropped.top, 0, 0,
                       SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    m_master.ToggleDock(-1, -1, bar, -1);
    Save();
}

void Toolbars::Save()
{
    m_master.SaveToolbars(kFile);
}

// ---- Messages

static LRESULT AnswerOf(CommandState state)
{
    switch (state) {
        case CommandState::Enabled:
            return 4;
        case CommandState::Checked:
            return 5;
        case CommandState::Hidden:
            return 8;
        case CommandState::Disabled:
            break;
    }
    return 0;
}

// A floating bar tells more than once that it has moved.
static void SkipFurtherMoves(HWND window)
{
    MSG message;
    while (::PeekMessageA(&message, window, UM_FLOATMOVED, UM_FLOATMOVED, PM_REMOVE)) {
    }
}

std::optional<LRESULT> Toolbars::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case UM_COMMANDSTATE:
            return AnswerOf(m_host.stateOf(static_cast<int>(wParam)));
        case UM_STATUSTEXT:
            return m_host.explain(reinterpret_cast<const char*>(wParam)), 0;
        case UM_TOOLBARSCHANGED:
            return Save(), m_host.changed(), 0;
        case UM_DOCKQUERY:
            m_dropped = *reinterpret_cast<const RECT*>(wParam);
            return IsOverStrip(m_dropped);
        case UM_DOCKREQUEST:
            return Dock(static_cast<int>(wParam), HIWORD(lParam) == 0), 0;
        case UM_FLOATMOVED:
            return SkipFurtherMoves(m_parent), Save(), 0;
        case WM_COMMAND:
            if (LOWORD(wParam) != IDC_UNITS_BAR)
                return {};
            if (HIWORD(wParam) == CBN_SELCHANGE)
                UseChosenUnits();
            return 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<NMHDR*>(lParam));
        default:
            return {};
    }
}

void Toolbars::UseChosenUnits()
{
    const LRESULT choice = ::SendMessageA(m_units, CB_GETCURSEL, 0, 0);
    m_host.useUnits(choice == 0 ? DT_METRIC : DT_ENGLISH);
}

std::optional<LRESULT> Toolbars::OnNotify(NMHDR& header)
{
    switch (header.code) {
        case RBN_AUTOSIZE:
            return OnHeight(), 0;
        case TTN_NEEDTEXTA:
            return ShowTip(header), 0;
        case TBN_DROPDOWN:
            return ShowSortMenu(header), TBDDRET_DEFAULT;
        default:
            return {};
    }
}

void Toolbars::OnHeight()
{
    const int previous = std::exchange(m_height, Height());
    if (previous != m_height)
        m_host.changed();
}

void Toolbars::ShowTip(NMHDR& header)
{
    m_tip = m_localisation->String(static_cast<unsigned>(IDS_TIPS + header.idFrom));
    reinterpret_cast<NMTTDISPINFOA&>(header).lpszText = m_tip.data();
}

// Below the button, in the user's language.
void Toolbars::ShowSortMenu(const NMHDR& header) const
{
    const HMENU menu = ::CreatePopupMenu();
    ::AppendMenuA(menu, MF_STRING, IDM_SORT_NAME, "By &name");
    ::AppendMenuA(menu, MF_STRING, IDM_SORT_LENGTH, "By &length");
    ::AppendMenuA(menu, MF_STRING, IDM_SORT_DIAMETER, "By &diameter");
    m_localisation->Language().Menu(menu, 0);
    UpdateMenuStates(menu, m_parent);
    RECT button{};
    ::SendMessageA(header.hwndFrom, TB_GETRECT, IDM_SORT_NAME, reinterpret_cast<LPARAM>(&button));
    ::MapWindowPoints(header.hwndFrom, nullptr, reinterpret_cast<POINT*>(&button), 2);
    ::TrackPopupMenu(menu, TPM_RIGHTBUTTON, button.left, button.bottom, 0, m_parent, nullptr);
    ::DestroyMenu(menu);
}

}  // namespace pipebench
