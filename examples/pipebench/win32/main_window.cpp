#include "win32/main_window.h"

#include "core/results.h"
#include "core/texts.h"
#include "ids.h"
#include "win32/gdi.h"
#include "win32/help.h"
#include "win32/main_menu.h"
#include "win32/settings_store.h"

#include <windows.h>
#include <commctrl.h>

#include <algorithm>

namespace pipebench {

static constexpr SIZE kSize = {940, 640}, kLeastSize = {480, 360};

MainWindow::MainWindow(Localisation& localisation, std::optional<DWORD> lcid)
    : m_localisation(localisation), m_lcid(lcid)
{
    const Look look{.className = "PIPEBENCH_MAIN",
                    .icon = ::LoadIconA(localisation.Module(), MAKEINTRESOURCEA(IDI_PIPEBENCH))};
    CreateObjectWindow(look, nullptr, {Scaled(kSize.cx), Scaled(kSize.cy)});
}

int MainWindow::Run(int show)
{
    ::ShowWindow(Window(), show);
    const HACCEL accelerators =
        ::LoadAcceleratorsA(m_localisation.Module(), MAKEINTRESOURCEA(IDR_ACCELERATORS));
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (::TranslateAcceleratorA(Window(), accelerators, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (const auto answer = m_toolbars.Handle(message, wParam, lParam))
        return *answer;
    switch (message) {
        case WM_CREATE:
            return OnCreate(), 0;
        case WM_SIZE:
            return Arrange(), 0;
        case WM_GETMINMAXINFO:
            return OnLimits(*reinterpret_cast<MINMAXINFO*>(lParam)), 0;
        case WM_SETFOCUS:
            if (m_line)
                m_workspace.TakeFocus();
            return 0;
        case WM_COMMAND:
            return OnCommand(LOWORD(wParam)), 0;
        case WM_INITMENU:
            return OnInitMenu(reinterpret_cast<HMENU>(wParam)), 0;
        case WM_CLOSE:
            return OnClose(), 0;
        case WM_DESTROY:
            return OnDestroy(), 0;
        default:
            return ObjectWindow::Handle(message, wParam, lParam);
    }
}

void MainWindow::OnCreate()
{
    m_settings = Start(Window(), m_localisation);
    if (m_lcid)
        m_localisation.Use(*m_lcid);
    RegisterHelp(m_help, m_localisation, Window());
    m_startPage.Create(Window());
    m_workspace.Create(Window(), [this] { OnSelection(); });
    m_statusBar =
        ::CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0,
                          0, Window(), nullptr, m_localisation.Module(), nullptr);
    m_workspace.Arrange(m_settings.view);
    CreateToolbars();
    ShowTexts();
    ShowView();
    m_toolbars.ShowStates();
}

void MainWindow::CreateToolbars()
{
    const auto changed = [this] {
        ::SendMessageA(m_statusBar, SB_SIMPLE, FALSE, 0);
        Arrange();
    };
    const auto explain = [this](const char* text) {
        ::SendMessageA(m_statusBar, SB_SIMPLE, TRUE, 0);
        ::SendMessageA(m_statusBar, SB_SETTEXTA, SB_SIMPLEID, reinterpret_cast<LPARAM>(text));
    };
    m_toolbars.Create(Window(), m_localisation,
                      {[this](int command) { return ButtonStateOf(command, Now()); },
                       [this](DT_UNITS units) { UseUnits(units); }, changed, explain});
}

void MainWindow::OnClose()
{
    if (MayLeave())
        ::DestroyWindow(Window());
}

void MainWindow::OnDestroy()
{
    m_workspace.ReadSizes(m_settings.view);
    Save(Window(), m_localisation, m_settings);
    ::PostQuitMessage(0);
}

void MainWindow::OnInitMenu(HMENU menu) const
{
    ShowStates(menu, [this](int command) { return StateOf(command); });
}

// What is left of the client area: bars at the top come off first, the status bar at the bottom.
RECT MainWindow::ViewArea() const
{
    RECT area, status{};
    ::GetClientRect(Window(), &area);
    if (m_settings.view.statusBar)
        ::GetWindowRect(m_statusBar, &status);
    area.top += m_toolbars.Height();
    area.bottom -= status.bottom - status.top;
    return area;
}

void MainWindow::Arrange()
{
    ::SendMessageA(m_statusBar, WM_SIZE, 0, 0);
    m_toolbars.Arrange(ViewArea().right);
    const RECT area = ViewArea();
    for (const HWND view : {m_startPage.Window(), m_workspace.Window()})
        ::MoveWindow(view, area.left, area.top, area.right - area.left, area.bottom - area.top,
                     TRUE);
    ShowStatus();
}

// As large as the parts need, and what stands round them.
void MainWindow::OnLimits(MINMAXINFO& limits)
{
    MINMAXINFO parts{};
    RECT window;
    ::SendMessageA(m_workspace.Window(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&parts));
    ::GetWindowRect(Window(), &window);
    const RECT area = ViewArea();
    const LONG width = parts.ptMinTrackSize.x + (window.right - window.left) - area.right;
    const LONG height =
        parts.ptMinTrackSize.y + (window.bottom - window.top) - (area.bottom - area.top);
    limits.ptMinTrackSize = {std::max<LONG>(width, Scaled(kLeastSize.cx)),
                             std::max<LONG>(height, Scaled(kLeastSize.cy))};
}

void MainWindow::ShowTexts()
{
    ShowMenu();
    m_toolbars.ShowTexts();
    m_startPage.Show(m_localisation);
    ShowLine();
}

void MainWindow::ShowMenu()
{
    const HMENU previous = ::GetMenu(Window());
    ::SetMenu(Window(), LoadTranslatedMenu(m_localisation));
    ::DestroyMenu(previous);
}

void MainWindow::ShowLine()
{
    const std::string program = m_localisation.String(IDS_PROGRAM);
    const std::string title =
        m_line ? TitleOf(*m_line, m_localisation.String(IDS_UNTITLED), program) : program;
    ::SetWindowTextA(Window(), title.c_str());
    m_toolbars.ShowUnits(m_settings.units);
    if (m_line)
        m_workspace.Show(m_localisation.Language(), m_line->pipes, m_settings);
    ShowStatus();
}

void MainWindow::ShowView()
{
    ::ShowWindow(m_statusBar, m_settings.view.statusBar ? SW_SHOWNA : SW_HIDE);
    ::ShowWindow(m_workspace.Window(), m_line ? SW_SHOWNA : SW_HIDE);
    ::ShowWindow(m_startPage.Window(), m_line ? SW_HIDE : SW_SHOWNA);
    Arrange();
}

// Each part as wide as its text; the date takes what is left.
void MainWindow::ShowStatus()
{
    const CLanguage& language = m_localisation.Language();
    const auto sentence = [this](int id, const std::string& value) {
        return Sentence(m_localisation.Module(), id, value);
    };
    const auto value = [&](Quantity quantity, double metric) {
        return ValueWithUnit(language, quantity, metric, m_settings);
    };
    std::vector<std::string> texts;
    if (m_line) {
        const Totals totals = Sum(m_line->pipes);
        texts = {sentence(IDS_PIPE_COUNT, std::to_string(m_line->pipes.size())),
                 sentence(IDS_TOTAL_LENGTH, value(Quantity::Length, totals.length)),
                 sentence(IDS_TOTAL_CONTENT, value(Quantity::Volume, totals.content)),
                 sentence(IDS_TOTAL_PRICE, MoneyText(language, totals.price, false))};
    }
    texts.push_back(DateText(language, DATE_LONGDATE));
    std::vector<int> ends;
    for (const std::string& text : texts)
        ends.push_back((ends.empty() ? 0 : ends.back()) + TextWidth(m_statusBar, text.c_str()) +
                       Scaled(16));
    ends.back() = -1;
    ::SendMessageA(m_statusBar, SB_SETPARTS, ends.size(), reinterpret_cast<LPARAM>(ends.data()));
    for (std::size_t i = 0; i < texts.size(); ++i)
        ::SendMessageA(m_statusBar, SB_SETTEXTA, i, reinterpret_cast<LPARAM>(texts[i].c_str()));
}

}  // namespace pipebench
