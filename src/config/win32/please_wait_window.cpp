#include "config/animation.h"
#include "config/win32/window_classes.h"
#include "win32/gdi.h"
#include "win32/window_text.h"

#include <algorithm>

namespace qx::win32 {

static constexpr UINT_PTR kTimer = 1;
static constexpr UINT kFrame = 40;    // milliseconds
static constexpr int kStartTime = 0;  // the extra bytes: the tick count when the window was made

static void Start(HWND window)
{
    ::SetWindowLongA(window, kStartTime, static_cast<LONG>(::GetTickCount()));
    ::SetTimer(window, kTimer, kFrame, nullptr);
}

static DWORD Elapsed(HWND window)
{
    return ::GetTickCount() - static_cast<DWORD>(::GetWindowLongA(window, kStartTime));
}

static void DrawBar(HDC dc, RECT bar, DWORD elapsed)
{
    ::DrawEdge(dc, &bar, BDR_SUNKENOUTER, BF_RECT | BF_ADJUST);
    ::FillRect(dc, &bar, ::GetSysColorBrush(COLOR_WINDOW));
    const BarSpan lit = MarqueeSpan(bar.right - bar.left, elapsed);
    const RECT block = {bar.left + lit.start, bar.top, bar.left + lit.end, bar.bottom};
    ::FillRect(dc, &block, ::GetSysColorBrush(COLOR_HIGHLIGHT));
}

static void DrawMessage(HDC dc, RECT area, const std::string& text)
{
    ::SetBkMode(dc, TRANSPARENT);
    ::SetTextColor(dc, ::GetSysColor(COLOR_BTNTEXT));
    RECT needed = area;
    const UINT format = DT_CENTER | DT_WORDBREAK | DT_NOPREFIX;
    const int height = ::DrawTextA(dc, text.c_str(), -1, &needed, format | DT_CALCRECT);
    area.top += std::max((area.bottom - area.top - height) / 2, 0L);
    ::DrawTextA(dc, text.c_str(), -1, &area, format);
}

// All measures come from the height of the text.
static void Paint(HWND window)
{
    const BufferedPaint paint(window);
    const FontHandle font = CreateMessageFont();
    const Selection selection(paint.dc(), font.get());
    TEXTMETRICA metrics{};
    ::GetTextMetricsA(paint.dc(), &metrics);

    RECT area = paint.client();
    ::FillRect(paint.dc(), &area, ::GetSysColorBrush(COLOR_BTNFACE));
    ::InflateRect(&area, -metrics.tmHeight, -metrics.tmHeight);
    RECT bar = area;
    bar.top = std::max(bar.bottom - metrics.tmHeight, 0L);
    area.bottom = bar.top - metrics.tmHeight / 2;
    DrawMessage(paint.dc(), area, WindowText(window));
    DrawBar(paint.dc(), bar, Elapsed(window));
}

static LRESULT SetText(HWND window, WPARAM wParam, LPARAM lParam)
{
    const LRESULT result = ::DefWindowProcA(window, WM_SETTEXT, wParam, lParam);
    ::InvalidateRect(window, nullptr, FALSE);
    return result;
}

LRESULT CALLBACK PleaseWaitProcedure(HWND window, UINT message, WPARAM wParam,
                                     LPARAM lParam) noexcept
{
    switch (message) {
        case WM_CREATE:
            return Start(window), 0;
        case WM_PAINT:
            return Paint(window), 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_SETTEXT:
            return SetText(window, wParam, lParam);
        case WM_TIMER:
            return ::InvalidateRect(window, nullptr, FALSE), 0;
        case WM_DESTROY:
            return ::KillTimer(window, kTimer), 0;
        default:
            return ::DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace qx::win32
