#include "support/win32_ui.h"

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

static bool IsCombo(HWND control)
{
    char className[32] = "";
    ::GetClassNameA(control, className, sizeof className);
    return std::string(className) == "ComboBox";
}

std::vector<std::string> ItemsOf(HWND control)
{
    const bool combo = IsCombo(control);
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
    ::KillTimer(dialog, id);
    ++answered;
    if (answer)
        answer(dialog);
}

// A dialog is not always complete when it is activated, so a timer of its own loop looks at it.
static LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam)
{
    const auto window = reinterpret_cast<HWND>(wParam);
    char className[16] = "";
    if (code == HCBT_ACTIVATE && ::GetClassNameA(window, className, sizeof className) &&
        std::string(className) == "#32770" && !::GetPropA(window, "QX_ANSWERED")) {
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
