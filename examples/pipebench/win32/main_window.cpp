#include "win32/main_window.h"

#include "core/texts.h"
#include "ids.h"
#include "win32/dialogs.h"
#include "win32/gdi.h"
#include "win32/main_menu.h"

#include <windows.h>
#include <commctrl.h>

namespace pipebench {

static constexpr int kListId = 1;
static constexpr char kClass[] = "PIPEBENCH_MAIN";

MainWindow::MainWindow(Localisation& localisation, std::optional<DWORD> lcid)
    : m_localisation(localisation), m_lcid(lcid)
{
    WNDCLASSA info{};
    info.lpfnWndProc = Procedure;
    info.hInstance = localisation.Module();
    info.lpszClassName = kClass;
    info.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    info.hIcon = ::LoadIconA(localisation.Module(), MAKEINTRESOURCEA(IDI_PIPEBENCH));
    info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    ::RegisterClassA(&info);
    ::CreateWindowExA(0, kClass, "", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                      CW_USEDEFAULT, Scaled(820), Scaled(540), nullptr, nullptr,
                      localisation.Module(), this);
}

int MainWindow::Run(int show)
{
    ::ShowWindow(m_window, show);
    const HACCEL accelerators =
        ::LoadAcceleratorsA(m_localisation.Module(), MAKEINTRESOURCEA(IDR_ACCELERATORS));
    MSG message{};
    while (::GetMessageA(&message, nullptr, 0, 0) > 0) {
        if (::TranslateAcceleratorA(m_window, accelerators, &message))
            continue;
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
    return static_cast<int>(message.wParam);
}

LRESULT CALLBACK MainWindow::Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCCREATE) {
        auto* self = static_cast<MainWindow*>(
            reinterpret_cast<const CREATESTRUCTA*>(lParam)->lpCreateParams);
        self->m_window = window;
        ::SetWindowLongPtrA(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    }
    auto* self = reinterpret_cast<MainWindow*>(::GetWindowLongPtrA(window, GWLP_USERDATA));
    return self ? self->Handle(message, wParam, lParam)
                : ::DefWindowProcA(window, message, wParam, lParam);
}

LRESULT MainWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
        case WM_CREATE:
            return OnCreate(), 0;
        case WM_SIZE:
            return OnSize(), 0;
        case WM_SETFOCUS:
            return ::SetFocus(m_list.Window()), 0;
        case WM_COMMAND:
            return OnCommand(LOWORD(wParam)), 0;
        case WM_NOTIFY:
            return OnNotify(*reinterpret_cast<const NMHDR*>(lParam)), 0;
        case WM_INITMENU:
            return OnInitMenu(reinterpret_cast<HMENU>(wParam)), 0;
        case WM_DESTROY:
            return ::PostQuitMessage(0), 0;
        default:
            return ::DefWindowProcA(m_window, message, wParam, lParam);
    }
}

void MainWindow::OnCreate()
{
    m_settings = Start(m_window, m_localisation);
    if (m_lcid)
        m_localisation.Use(*m_lcid);
    m_sketch.Create(m_window, [this](std::size_t index) {
        m_list.Select(index);
        ::SetFocus(m_list.Window());
    });
    m_list.Create(m_window, kListId);
    m_statusBar =
        ::CreateWindowExA(0, STATUSCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | SBARS_SIZEGRIP, 0, 0, 0,
                          0, m_window, nullptr, m_localisation.Module(), nullptr);
    ShowTexts();
    m_list.Select(0);
}

// The sketch takes the upper part, the list the rest above the status bar.
void MainWindow::OnSize()
{
    RECT client, status{};
    ::GetClientRect(m_window, &client);
    ::SendMessageA(m_statusBar, WM_SIZE, 0, 0);
    if (::GetWindowLongA(m_statusBar, GWL_STYLE) & WS_VISIBLE)
        ::GetWindowRect(m_statusBar, &status);
    const int height = static_cast<int>(client.bottom - (status.bottom - status.top));
    const bool sketch = ::GetWindowLongA(m_sketch.Window(), GWL_STYLE) & WS_VISIBLE;
    const int split = sketch ? height * 45 / 100 : 0;
    ::MoveWindow(m_sketch.Window(), 0, 0, client.right, split, TRUE);
    ::MoveWindow(m_list.Window(), 0, split, client.right, height - split, TRUE);
    ShowStatus();
}

void MainWindow::OnCommand(int id)
{
    if (id >= IDM_LANGUAGE_FIRST && id <= IDM_LANGUAGE_LAST)
        return UseLanguage(
            m_localisation.Choices()[static_cast<std::size_t>(id - IDM_LANGUAGE_FIRST)].lcid);
    if (id >= IDM_DECIMALS_0 && id <= IDM_DECIMALS_3) {
        m_settings.decimals = id - IDM_DECIMALS_0;
        Save(m_window, m_localisation, m_settings);
        return ShowPipes();
    }
    switch (id) {
        case IDM_NEW:
            m_pipes.clear();
            return ShowPipes();
        case IDM_EXIT:
            ::DestroyWindow(m_window);
            return;
        case IDM_DUPLICATE:
            return DuplicateSelected();
        case IDM_DELETE:
            return DeleteSelected();
        case IDM_ADD:
            return AddPipe();
        case IDM_EDIT:
            return EditSelected();
        case IDM_FLOW:
            return ShowFlowOfSelected();
        case IDM_SORT_NAME:
            return Sort(SortKey::Name);
        case IDM_SORT_LENGTH:
            return Sort(SortKey::Length);
        case IDM_SORT_DIAMETER:
            return Sort(SortKey::Diameter);
        case IDM_SKETCH:
            return Toggle(m_sketch.Window());
        case IDM_STATUS_BAR:
            return Toggle(m_statusBar);
        case IDM_OPTIONS:
            return ChangeOptions();
        case IDM_ABOUT:
            return ShowAbout();
    }
}

void MainWindow::OnNotify(const NMHDR& header)
{
    if (header.idFrom != kListId)
        return;
    if (header.code == LVN_ITEMCHANGED)
        ShowSketch();
    if (header.code == NM_DBLCLK)
        EditSelected();
}

void MainWindow::OnInitMenu(HMENU menu) const
{
    const auto enable = [menu](UINT id, bool on) {
        ::EnableMenuItem(menu, id, on ? MF_ENABLED : MF_GRAYED);
    };
    const auto check = [menu](UINT id, HWND child) {
        const bool on = ::GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE;
        ::CheckMenuItem(menu, id, on ? MF_CHECKED : MF_UNCHECKED);
    };
    const bool selected = m_list.Selected().has_value();
    for (const UINT id : {IDM_EDIT, IDM_DUPLICATE, IDM_DELETE, IDM_FLOW})
        enable(id, selected);
    check(IDM_SKETCH, m_sketch.Window());
    check(IDM_STATUS_BAR, m_statusBar);
    ::CheckMenuRadioItem(menu, IDM_DECIMALS_0, IDM_DECIMALS_3,
                         static_cast<UINT>(IDM_DECIMALS_0 + m_settings.decimals), MF_BYCOMMAND);
}

void MainWindow::ShowTexts()
{
    ::SetWindowTextA(m_window, m_localisation.String(IDS_PROGRAM).c_str());
    ShowMenu();
    ShowPipes();
}

void MainWindow::ShowMenu()
{
    const HMENU previous = ::GetMenu(m_window);
    ::SetMenu(m_window, LoadTranslatedMenu(m_localisation));
    ::DestroyMenu(previous);
}

void MainWindow::ShowPipes()
{
    m_list.Show(m_localisation.Language(), m_pipes, m_settings.units, m_settings.decimals);
    ShowSketch();
    ShowStatus();
}

std::string MainWindow::Value(Quantity quantity, double metric) const
{
    const DT_UNITS units = m_settings.units;
    return ValueText(m_localisation.Language(), quantity, metric, units, m_settings.decimals) +
           ' ' + UnitName(quantity, units);
}

void MainWindow::ShowSketch()
{
    SketchView::Content content{.pipes = &m_pipes, .labels = {}, .selected = m_list.Selected()};
    for (const Pipe& pipe : m_pipes) {
        const std::string size =
            m_settings.units == DT_METRIC
                ? "DN " + NumberText(m_localisation.Language(), pipe.diameter, 0)
                : Value(Quantity::Size, pipe.diameter);
        content.labels.push_back({size, Value(Quantity::Length, pipe.length)});
    }
    m_sketch.Show(std::move(content));
}

// Each part as wide as its text; the date takes what is left.
void MainWindow::ShowStatus()
{
    const CLanguage& language = m_localisation.Language();
    const Totals totals = Sum(m_pipes);
    const HINSTANCE module = m_localisation.Module();
    const std::string texts[] = {
        Sentence(module, IDS_PIPE_COUNT, std::to_string(m_pipes.size())),
        Sentence(module, IDS_TOTAL_LENGTH, Value(Quantity::Length, totals.length)),
        Sentence(module, IDS_TOTAL_CONTENT, Value(Quantity::Volume, totals.content)),
        Sentence(module, IDS_TOTAL_PRICE, MoneyText(language, totals.price, false)),
        DateText(language, DATE_LONGDATE)};
    int ends[std::size(texts)];
    int x = 0;
    for (std::size_t i = 0; i < std::size(texts); ++i)
        ends[i] = x += TextWidth(m_statusBar, texts[i].c_str()) + Scaled(16);
    ends[std::size(texts) - 1] = -1;
    ::SendMessageA(m_statusBar, SB_SETPARTS, std::size(texts), reinterpret_cast<LPARAM>(ends));
    for (std::size_t i = 0; i < std::size(texts); ++i)
        ::SendMessageA(m_statusBar, SB_SETTEXTA, i, reinterpret_cast<LPARAM>(texts[i].c_str()));
}

void MainWindow::UseLanguage(DWORD lcid)
{
    m_localisation.Use(lcid);
    m_localisation.Store();
    ShowTexts();
}

void MainWindow::ChangeOptions()
{
    ProgramOptions options = {m_localisation.Language().GetLanguage(), m_settings,
                              ReadDirectories()};
    if (!EditOptions(m_window, m_localisation, options))
        return;
    m_settings = options.settings;
    Save(m_window, m_localisation, m_settings);
    SaveDirectories(m_window, m_localisation, options.directories);
    UseLanguage(options.lcid);
}

void MainWindow::AddPipe()
{
    const Pipe proposal{
        .name = FreeName(m_pipes), .length = 10, .diameter = 100, .pricePerMetre = 25.5};
    const auto pipe = EditPipe(m_window, m_localisation, m_settings.units, proposal, m_pipes);
    if (!pipe)
        return;
    m_pipes.push_back(*pipe);
    ShowPipes();
    m_list.Select(m_pipes.size() - 1);
}

void MainWindow::EditSelected()
{
    const auto index = m_list.Selected();
    if (!index)
        return;
    std::vector<Pipe> others = m_pipes;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(*index));
    const auto pipe = EditPipe(m_window, m_localisation, m_settings.units, m_pipes[*index], others);
    if (!pipe)
        return;
    m_pipes[*index] = *pipe;
    ShowPipes();
}

void MainWindow::DuplicateSelected()
{
    const auto index = m_list.Selected();
    if (!index)
        return;
    Pipe copy = m_pipes[*index];
    copy.name = FreeName(m_pipes);
    m_pipes.push_back(copy);
    ShowPipes();
    m_list.Select(m_pipes.size() - 1);
}

void MainWindow::DeleteSelected()
{
    const auto index = m_list.Selected();
    if (!index)
        return;
    m_pipes.erase(m_pipes.begin() + static_cast<std::ptrdiff_t>(*index));
    ShowPipes();
}

void MainWindow::ShowFlowOfSelected()
{
    const auto index = m_list.Selected();
    if (!index)
        return;
    ShowPipeFlow(m_window, m_localisation, m_pipes[*index], m_settings);
    Save(m_window, m_localisation, m_settings);
    ShowPipes();  // the units may be others now
}

void MainWindow::Sort(SortKey key)
{
    SortBy(key, m_pipes);
    ShowPipes();
}

void MainWindow::Toggle(HWND child)
{
    const bool visible = ::GetWindowLongA(child, GWL_STYLE) & WS_VISIBLE;
    ::ShowWindow(child, visible ? SW_HIDE : SW_SHOW);
    OnSize();
}

void MainWindow::ShowAbout()
{
    ::MessageBoxA(m_window, m_localisation.String(IDS_ABOUT).c_str(),
                  m_localisation.String(IDS_PROGRAM).c_str(), MB_OK | MB_ICONINFORMATION);
}

}  // namespace pipebench
