#include "support/win32_ui.h"

#include <cctype>
#include <ostream>

namespace qx::test {

static constexpr char kWindowClass[] = "QX_TEST_WINDOW";
static constexpr UINT_PTR kAnswerTimer = 0x7A11;
static constexpr UINT_PTR kMenuLimitTimer = 0x7A12;

void PumpWaiting()
{
    MSG message;
    while (::PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        ::TranslateMessage(&message);
        ::DispatchMessageA(&message);
    }
}

bool PumpUntil(const std::function<bool()>& done, unsigned limit)
{
    const ULONGLONG end = ::GetTickCount64() + limit;
    for (;;) {
        PumpWaiting();
        if (done())
            return true;
        if (::GetTickCount64() >= end)
            return false;
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

static void RegisterWindowClass()
{
    WNDCLASSA info{};
    info.lpfnWndProc = ::DefWindowProcA;
    info.hInstance = ::GetModuleHandleA(nullptr);
    info.lpszClassName = kWindowClass;
    info.hCursor = ::LoadCursorA(nullptr, IDC_ARROW);
    info.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
    ::RegisterClassA(&info);  // fails from the second time on, which is fine
}

TestWindow::TestWindow(const char* title, int width, int height)
{
    RegisterWindowClass();
    m_window =
        ::CreateWindowExA(0, kWindowClass, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, width,
                          height, nullptr, nullptr, ::GetModuleHandleA(nullptr), nullptr);
    PumpWaiting();
}

TestWindow::~TestWindow()
{
    ::DestroyWindow(m_window);
}

HWND MakeChild(HWND parent, const char* className, const char* text, DWORD style, int id)
{
    return ::CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, 10, 10, 200, 120,
                             parent, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                             ::GetModuleHandleA(nullptr), nullptr);
}

std::string TextOf(HWND window)
{
    std::string text(static_cast<std::size_t>(::GetWindowTextLengthA(window)) + 1, '\0');
    const int length = ::GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(length));
    return text;
}

std::string TextOfItem(HWND parent, int id)
{
    return TextOf(::GetDlgItem(parent, id));
}

std::vector<std::string> TextsOf(HMENU menu)
{
    std::vector<std::string> texts;
    for (int i = 0; i < ::GetMenuItemCount(menu); ++i) {
        const auto position = static_cast<UINT>(i);
        const int length = ::GetMenuStringA(menu, position, nullptr, 0, MF_BYPOSITION);
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        ::GetMenuStringA(menu, position, text.data(), length + 1, MF_BYPOSITION);
        text.resize(static_cast<std::size_t>(length));
        const bool separator = ::GetMenuState(menu, position, MF_BYPOSITION) & MF_SEPARATOR;
        texts.push_back(separator ? "-" : text);
    }
    return texts;
}

static std::string ClassOf(HWND window)
{
    char className[64] = "";
    ::GetClassNameA(window, className, sizeof className);
    return className;
}

std::vector<std::string> ItemsOf(HWND control)
{
    const bool combo = ClassOf(control) == "ComboBox";
    const auto count = ::SendMessageA(control, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
    std::vector<std::string> items;
    for (WPARAM i = 0; i < static_cast<WPARAM>(count); ++i) {
        const auto length = ::SendMessageA(control, combo ? CB_GETLBTEXTLEN : LB_GETTEXTLEN, i, 0);
        std::string text(static_cast<std::size_t>(length) + 1, '\0');
        ::SendMessageA(control, combo ? CB_GETLBTEXT : LB_GETTEXT, i,
                       reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(length));
        items.push_back(text);
    }
    return items;
}

static std::function<void(HWND)> answer;
static int answered;

static void CALLBACK Answer(HWND dialog, UINT, UINT_PTR id, DWORD)
{
    if (!::IsWindowVisible(dialog))
        return;  // a dialog shows itself when no message waits any more: the timer comes again
    ::KillTimer(dialog, id);
    ++answered;
    if (answer)
        answer(dialog);
}

// A dialog is not always complete when it is activated, so a timer of its own loop looks at it.
static LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && ClassOf(window) == "#32770" &&
        !::GetPropA(window, "QX_ANSWERED")) {
        ::SetPropA(window, "QX_ANSWERED", window);
        ::SetTimer(window, kAnswerTimer, 20, Answer);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

ModalAnswer::ModalAnswer(std::function<void(HWND dialog)> function)
{
    answer = std::move(function);
    answered = 0;
    m_hook = ::SetWindowsHookExA(WH_CBT, OnActivation, nullptr, ::GetCurrentThreadId());
}

ModalAnswer::~ModalAnswer()
{
    ::UnhookWindowsHookEx(m_hook);
    answer = nullptr;
}

int ModalAnswer::Count() const
{
    return answered;
}

static INT_PTR CALLBACK DialogProcedure(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        (*reinterpret_cast<const std::function<void(HWND)>*>(lParam))(dialog);
        return TRUE;
    }
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
        return ::EndDialog(dialog, LOWORD(wParam));
    return FALSE;
}

INT_PTR RunDialog(const char* caption, const std::function<void(HWND dialog)>& onInit)
{
    struct {
        DLGTEMPLATE header;
        WORD menu, windowClass, title;
    } const dialog{
        {WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_VISIBLE, 0, 0, 20, 20, 200, 150}, 0, 0, 0};
    const std::function<void(HWND)> init = [&](HWND window) {
        ::SetWindowTextA(window, caption);
        onInit(window);
    };
    return ::DialogBoxIndirectParamA(::GetModuleHandleA(nullptr), &dialog.header, nullptr,
                                     DialogProcedure, reinterpret_cast<LPARAM>(&init));
}

void Press(HWND dialog, int buttonId)
{
    ::PostMessageA(dialog, WM_COMMAND, static_cast<WPARAM>(buttonId),
                   reinterpret_cast<LPARAM>(::GetDlgItem(dialog, buttonId)));
}

std::string MessageOf(HWND box)
{
    for (HWND child = nullptr; (child = ::FindWindowExA(box, child, "Static", nullptr));) {
        const std::string text = TextOf(child);
        if (!text.empty())
            return text;
    }
    return {};
}

static BOOL CALLBACK AddChild(HWND child, LPARAM children)
{
    reinterpret_cast<std::vector<HWND>*>(children)->push_back(child);
    return TRUE;
}

std::vector<HWND> ChildrenOf(HWND window)
{
    std::vector<HWND> children;
    ::EnumChildWindows(window, AddChild, reinterpret_cast<LPARAM>(&children));
    return children;
}

static SIZE SizeOfText(HWND window, HFONT font, const std::string& text, int width, UINT flags)
{
    const HDC dc = ::GetDC(window);
    const HGDIOBJ previous = ::SelectObject(dc, font);
    RECT area{0, 0, width, 0};
    ::DrawTextA(dc, text.c_str(), -1, &area, DT_CALCRECT | flags);
    ::SelectObject(dc, previous);
    ::ReleaseDC(window, dc);
    return {area.right, area.bottom};
}

// What a button draws beside its text: a box to tick, the frame of a group, its own border.
static int ButtonMargin(LONG style)
{
    switch (style & BS_TYPEMASK) {
        case BS_GROUPBOX:
            return 16;
        case BS_PUSHBUTTON:
        case BS_DEFPUSHBUTTON:
            return 8;
        default:
            return 20;
    }
}

static bool FitsItsControl(HWND control)
{
    const std::string className = ClassOf(control);
    const LONG style = ::GetWindowLongA(control, GWL_STYLE);
    const bool button = className == "Button";
    if ((!button && className != "Static") || (button && (style & BS_BITMAP)))
        return true;
    RECT client;
    ::GetClientRect(control, &client);
    const auto font = reinterpret_cast<HFONT>(::SendMessageA(control, WM_GETFONT, 0, 0));
    const UINT flags = button ? DT_SINGLELINE : DT_WORDBREAK;
    const UINT prefix = !button && (style & SS_NOPREFIX) ? DT_NOPREFIX : 0;
    const SIZE size = SizeOfText(control, font, TextOf(control), client.right, flags | prefix);
    return size.cx + (button ? ButtonMargin(style) : 0) <= client.right && size.cy <= client.bottom;
}

static bool CaptionFits(HWND dialog)
{
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
    const HFONT font = ::CreateFontIndirectA(&metrics.lfCaptionFont);
    const SIZE size = SizeOfText(dialog, font, TextOf(dialog), 0, DT_SINGLELINE | DT_NOPREFIX);
    ::DeleteObject(font);
    RECT client;
    ::GetClientRect(dialog, &client);
    return size.cx + 2 * metrics.iCaptionWidth <= client.right;
}

std::vector<std::string> CutTexts(HWND dialog)
{
    std::vector<std::string> cut;
    if (!CaptionFits(dialog))
        cut.push_back(TextOf(dialog));
    for (const HWND child : ChildrenOf(dialog)) {
        if (!FitsItsControl(child))
            cut.push_back(TextOf(child));
    }
    return cut;
}

std::string SharedMnemonics(const std::vector<std::string>& texts)
{
    std::string seen, shared;
    for (const std::string& text : texts) {
        const std::size_t ampersand = text.find('&');
        if (ampersand == std::string::npos || ampersand + 1 == text.size())
            continue;
        const char key =
            static_cast<char>(std::tolower(static_cast<unsigned char>(text[ampersand + 1])));
        (seen.find(key) == std::string::npos ? seen : shared) += key;
    }
    return shared;
}

// Menus, cursors and icons: what is asked of the process itself, not of Wine's server.
static bool IsUserObject(UINT_PTR handle)
{
    if (::IsMenu(reinterpret_cast<HMENU>(handle)))
        return true;
    ICONINFO icon;
    if (!::GetIconInfo(reinterpret_cast<HICON>(handle), &icon))
        return false;
    ::DeleteObject(icon.hbmMask);
    ::DeleteObject(icon.hbmColor);
    return true;
}

static BOOL CALLBACK CountWindow(HWND window, LPARAM count)
{
    DWORD process = 0;
    ::GetWindowThreadProcessId(window, &process);
    if (process == ::GetCurrentProcessId())
        *reinterpret_cast<int*>(count) += 1 + static_cast<int>(ChildrenOf(window).size());
    return TRUE;
}

static int CountWindows()
{
    int count = 0;
    const auto parameter = reinterpret_cast<LPARAM>(&count);
    ::EnumWindows(CountWindow, parameter);
    for (HWND window = nullptr; (window = ::FindWindowExA(HWND_MESSAGE, window, nullptr, nullptr));)
        CountWindow(window, parameter);
    return count;
}

ObjectCounts CountObjects()
{
    const HANDLE process = ::GetCurrentProcess();
    ObjectCounts counts{static_cast<int>(::GetGuiResources(process, GR_GDIOBJECTS)),
                        static_cast<int>(::GetGuiResources(process, GR_USEROBJECTS))};
    if (counts.drawing != 0)
        return counts;
    // Wine keeps no count, but takes the low halves of handles for the whole; those of menus,
    // cursors and icons are even. A window would cost a call of the server for every number.
    counts.user = CountWindows();
    for (UINT_PTR handle = 1; handle < 0x10000; ++handle) {
        counts.drawing += ::GetObjectType(reinterpret_cast<HGDIOBJ>(handle)) != 0;
        counts.user += handle % 2 == 0 && IsUserObject(handle);
    }
    return counts;
}

std::ostream& operator<<(std::ostream& out, const ObjectCounts& counts)
{
    return out << counts.drawing << " drawing objects, " << counts.user << " user objects";
}

static void CALLBACK EndOpenMenu(HWND owner, UINT, UINT_PTR id, DWORD)
{
    ::KillTimer(owner, id);
    ::EndMenu();
}

UINT ChooseWithKeys(HMENU menu, HWND owner, const std::vector<WORD>& keys)
{
    ::SetForegroundWindow(owner);
    ::SetTimer(owner, kMenuLimitTimer, kWaitLimit, EndOpenMenu);
    for (const WORD key : keys)
        ::PostMessageA(owner, WM_KEYDOWN, key, 0);
    const auto flags = TPM_RETURNCMD | TPM_NONOTIFY;
    const BOOL command = ::TrackPopupMenu(menu, flags, 100, 100, 0, owner, nullptr);
    ::KillTimer(owner, kMenuLimitTimer);
    return static_cast<UINT>(command);
}

}  // namespace qx::test
