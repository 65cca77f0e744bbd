// Tells the demo what stands on the screen: lists the controls of the visible window of a class and
// title, one line each, with the window's own first:
//     identifier <tab> class <tab> x <tab> y <tab> left <tab> top <tab> right <tab> bottom <tab>
//     text
// x, y is the middle on the screen, left ... bottom its rectangle there; the text of a list view is
// its number of rows and, from 1 on, the selected one. An empty title stands for any. Status 1 when
// there is no such window.
#include <windows.h>
#include <commctrl.h>
#include <shellapi.h>

#include <cstdio>
#include <string>

static std::string Utf8(const std::wstring& text)
{
    const int size = static_cast<int>(text.size());
    const int length =
        ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), size, nullptr, 0, nullptr, nullptr);
    std::string utf8(static_cast<std::size_t>(length), '\0');
    ::WideCharToMultiByte(CP_UTF8, 0, text.c_str(), size, utf8.data(), length, nullptr, nullptr);
    return utf8;
}

// GetWindowText does not reach the controls of other programs, the message does.
static std::wstring TextOf(HWND window)
{
    wchar_t text[1024] = L"";
    ::SendMessageW(window, WM_GETTEXT, std::size(text), reinterpret_cast<LPARAM>(text));
    return text;
}

static std::string RowsOf(HWND list)
{
    const LRESULT selected =
        ::SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED);
    return std::to_string(::SendMessageW(list, LVM_GETITEMCOUNT, 0, 0)) + ' ' +
           (selected < 0 ? "" : std::to_string(selected + 1));
}

static BOOL CALLBACK Print(HWND window, LPARAM)
{
    wchar_t windowClass[64] = L"";
    ::GetClassNameW(window, windowClass, std::size(windowClass));
    if (!::IsWindowVisible(window))
        return TRUE;
    std::string text = Utf8(TextOf(window));
    if (std::wstring(windowClass) == WC_LISTVIEWW)
        text = RowsOf(window);
    RECT rectangle;
    ::GetWindowRect(window, &rectangle);
    std::printf("%d\t%s\t%ld\t%ld\t%ld\t%ld\t%ld\t%ld\t%s\n", ::GetDlgCtrlID(window),
                Utf8(windowClass).c_str(), (rectangle.left + rectangle.right) / 2,
                (rectangle.top + rectangle.bottom) / 2, rectangle.left, rectangle.top,
                rectangle.right, rectangle.bottom, text.c_str());
    return TRUE;
}

int main()
{
    int count = 0;
    LPWSTR* arguments = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    if (count != 3) {
        std::fputs("usage: pipebench_probe CLASS TITLE\n", stderr);
        return 2;
    }
    const HWND window = ::FindWindowW(arguments[1], *arguments[2] ? arguments[2] : nullptr);
    if (!window || !::IsWindowVisible(window))
        return 1;
    Print(window, 0);
    ::EnumChildWindows(window, Print, 0);
    return 0;
}
