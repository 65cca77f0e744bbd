// What a strip's toolbars tell it, and tooltips.
#include "config/process.h"
#include "ui/win32/toolbar_strip_window.h"

#include <cstring>
#include <string_view>
#include <utility>

namespace qx {

static constexpr int kMostText = 260;           // bytes of a tooltip, with the terminator
static constexpr int kFirstCommandText = 2000;  // number of a command's string, less the command

LRESULT StripWindow::PassOn(WPARAM wParam, NMHDR& notification) const
{
    return ::SendMessageA(Parent(), WM_NOTIFY, wParam, reinterpret_cast<LPARAM>(&notification));
}

// ---- Texts of commands

// From the language table, else from the resources of the host's module; empty without one.
static std::string StringOfCommand(HINSTANCE module, int command)
{
    const auto id = static_cast<unsigned>(command) + kFirstCommandText;
    char text[kMostText] = "";
    if (Process().language.String(module, id, text, kMostText) == 0 ||
        std::string_view(text) == "###") {
        text[0] = '\0';
        ::LoadStringA(module, id, text, kMostText);
    }
    return text;
}

bool StripWindow::HandleToolTip(NMTTDISPINFOA& tip)
{
    tip.lpszText = nullptr;
    tip.szText[0] = '\0';
    PassOn(tip.hdr.idFrom, tip.hdr);
    if (tip.lpszText)
        return true;
    if (tip.szText[0] == '\0') {
        m_tip = StringOfCommand(m_module, static_cast<int>(tip.hdr.idFrom));
        tip.lpszText = m_tip.data();
        return !m_tip.empty();
    }
    tip.lpszText = tip.szText;
    return true;
}

// As its tooltip says.
std::string StripWindow::TextOfCommand(int command)
{
    NMTTDISPINFOA tip{};
    tip.hdr = {m_window, static_cast<UINT_PTR>(command), static_cast<UINT>(TTN_NEEDTEXTA)};
    if (!HandleToolTip(tip))
        return {};
    if (!IS_INTRESOURCE(tip.lpszText))
        return tip.lpszText;
    char text[kMostText] = "";
    ::LoadStringA(tip.hinst, LOWORD(tip.lpszText), text, kMostText);
    return text;
}

// ---- Notifications

// The entry of the catalogue that the customise dialog asks for.
bool StripWindow::ButtonInfo(NMTOOLBARA& info)
{
    if (!m_dialog)
        CustomizeCustomizeWindow(info.hdr.hwndFrom);
    const auto index = static_cast<std::size_t>(info.iItem);
    if (index >= m_catalogue.size() || m_catalogue[index].command == 0)
        return false;
    info.tbButton = ToControl(m_catalogue[index]);
    const std::string text = TextOfCommand(m_catalogue[index].command);
    if (!info.pszText || info.cchText <= 0)
        return true;
    const bool fits = text.size() + 1 < static_cast<std::size_t>(info.cchText);
    std::memcpy(info.pszText, fits ? text.c_str() : "", fits ? text.size() + 1 : 1);
    return true;
}

// The dialog has ended; the toolbar has the buttons that the user gave it.
void StripWindow::EndAdjust(HWND toolbar)
{
    m_dialog = nullptr;
    m_customised = nullptr;
    if (m_resets) {
        ::PostMessageA(m_window, kResetMessage, 0, 0);
        return;
    }
    if (Bar* bar = BarOf(toolbar)) {
        bar->record.buttons = ReadButtons(toolbar);
        ::ShowWindow(toolbar, SW_SHOW);
    }
    UpdateButtonStates();
    TellChanged();
    RestoreBandPositions();
}

void StripWindow::ResetAfterDialog()
{
    if (!std::exchange(m_resets, false))
        return;
    LoadDefaults();
    ::ShowWindow(m_window, SW_SHOW);
    NotifyAutoSize();
    UpdateButtonStates();
    RestoreBandPositions();
}

// The toolbar may be destroyed only when it has done with its notification: what destroys it comes
// with a message of its own.
static void PostMenu(HWND strip)
{
    POINT mouse{};
    ::GetCursorPos(&mouse);
    ::ScreenToClient(strip, &mouse);
    ::PostMessageA(strip, kShowMenuMessage, 0, MAKELPARAM(mouse.x, mouse.y));
}

LRESULT StripWindow::HandleNotifiers(WPARAM wParam, NMHDR& notification)
{
    switch (notification.code) {
        case TBN_QUERYDELETE:
        case TBN_INITCUSTOMIZE:
            return 1;
        case TBN_BEGINADJUST:
            m_customised = notification.hwndFrom;
            return 1;
        case TBN_DROPDOWN:
            return PassOn(wParam, notification);
        case NM_RCLICK:
            return PostMenu(m_window), 1;
        case NM_CLICK:
            return ::SendMessageA(notification.hwndFrom, TB_AUTOSIZE, 0, 0), 1;
        case TTN_NEEDTEXTA:
            return HandleToolTip(reinterpret_cast<NMTTDISPINFOA&>(notification));
        case TBN_QUERYINSERT:
            return RestoreBandPositions(), 1;
        case TBN_RESET:
            m_resets = true;
            return ::SendMessageA(::GetActiveWindow(), WM_CLOSE, 0, 0), 1;
        case TBN_ENDADJUST:
            return EndAdjust(notification.hwndFrom), 1;
        case TBN_GETBUTTONINFOA:
            return ButtonInfo(reinterpret_cast<NMTOOLBARA&>(notification));
        default:
            return 0;
    }
}

}  // namespace qx
