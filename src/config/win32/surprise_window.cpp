#include "config/animation.h"
#include "config/win32/window_classes.h"
#include "win32/gdi.h"
#include "win32/window_text.h"

#include <algorithm>
#include <cstdlib>

namespace qx::win32 {

static constexpr UINT_PTR kTimer = 1;
static constexpr UINT kFrame = 40;                             // milliseconds
static constexpr int kStartTime = 0, kSeed = 4, kBubbles = 8;  // places in the 12 extra bytes
static constexpr LONG kFirstBubbles = 12, kMoreBubbles = 6, kMostBubbles = 96;

static constexpr COLORREF kWater = RGB(16, 78, 139), kFoam = RGB(176, 224, 255);

static void Start(HWND window)
{
    ::SetWindowLongA(window, kStartTime, static_cast<LONG>(::GetTickCount()));
    ::SetWindowLongA(window, kSeed, std::rand());
    ::SetWindowLongA(window, kBubbles, kFirstBubbles);
    ::SetTimer(window, kTimer, kFrame, nullptr);
}

static void AddBubbles(HWND window)
{
    const LONG bubbles = ::GetWindowLongA(window, kBubbles) + kMoreBubbles;
    ::SetWindowLongA(window, kBubbles, std::min(bubbles, kMostBubbles));
}

static void DrawBubble(HDC dc, const RECT& column, const Bubble& bubble)
{
    const auto x = static_cast<int>(bubble.x * column.right);
    const auto y = static_cast<int>(bubble.y * column.bottom);
    const int radius = std::max(static_cast<int>(bubble.radius * column.bottom), 1);
    ::Ellipse(dc, x - radius, y - radius, x + radius + 1, y + radius + 1);
}

static void DrawBubbles(HDC dc, const RECT& column, HWND window)
{
    const PenHandle pen(::CreatePen(PS_SOLID, 1, kFoam));
    const Selection outline(dc, pen.get()), inside(dc, ::GetStockObject(NULL_BRUSH));
    const auto seed = static_cast<std::uint32_t>(::GetWindowLongA(window, kSeed));
    const auto start = static_cast<DWORD>(::GetWindowLongA(window, kStartTime));
    const DWORD elapsed = ::GetTickCount() - start;
    for (int i = 0; i < ::GetWindowLongA(window, kBubbles); ++i)
        DrawBubble(dc, column, BubbleAt(seed, i, elapsed));
}

static void Paint(HWND window)
{
    const BufferedPaint paint(window);
    RECT area = paint.client();
    const BrushHandle water(::CreateSolidBrush(kWater));
    ::FillRect(paint.dc(), &area, water.get());
    DrawBubbles(paint.dc(), area, window);

    const FontHandle font = CreateMessageFont();
    const Selection selection(paint.dc(), font.get());
    ::SetBkMode(paint.dc(), TRANSPARENT);
    ::SetTextColor(paint.dc(), RGB(255, 255, 255));
    ::DrawTextA(paint.dc(), WindowText(window).c_str(), -1, &area,
                DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
}

LRESULT CALLBACK SurpriseProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept
{
    switch (message) {
        case WM_CREATE:
            return Start(window), 0;
        case WM_PAINT:
            return Paint(window), 0;
        case WM_ERASEBKGND:
            return 1;
        case WM_TIMER:
            return ::InvalidateRect(window, nullptr, FALSE), 0;
        case WM_LBUTTONDOWN:
            return AddBubbles(window), 0;
        case WM_DESTROY:
            return ::KillTimer(window, kTimer), 0;
        default:
            return ::DefWindowProcA(window, message, wParam, lParam);
    }
}

}  // namespace qx::win32
