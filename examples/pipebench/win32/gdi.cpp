#include "win32/gdi.h"

#include <cstring>

namespace pipebench {

HFONT MessageFont()
{
    static const HFONT font = [] {
        NONCLIENTMETRICSA metrics{};
        metrics.cbSize = sizeof metrics;
        ::SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0);
        return ::CreateFontIndirectA(&metrics.lfMessageFont);
    }();
    return font;
}

int Scaled(int pixels)
{
    static const int dotsPerInch = [] {
        const HDC screen = ::GetDC(nullptr);
        const int dots = ::GetDeviceCaps(screen, LOGPIXELSX);
        ::ReleaseDC(nullptr, screen);
        return dots;
    }();
    return ::MulDiv(pixels, dotsPerInch, 96);
}

int TextWidth(HWND window, const char* text)
{
    const HDC dc = ::GetDC(window);
    SIZE size{};
    {
        const Selected font(dc, MessageFont());
        ::GetTextExtentPoint32A(dc, text, static_cast<int>(std::strlen(text)), &size);
    }
    ::ReleaseDC(window, dc);
    return size.cx;
}

static TRIVERTEX Vertex(LONG x, LONG y, COLORREF colour)
{
    return {x,
            y,
            static_cast<COLOR16>(GetRValue(colour) << 8),
            static_cast<COLOR16>(GetGValue(colour) << 8),
            static_cast<COLOR16>(GetBValue(colour) << 8),
            0};
}

void FillShaded(HDC dc, const RECT& area, COLORREF from, COLORREF to, ULONG direction)
{
    TRIVERTEX corners[] = {Vertex(area.left, area.top, from), Vertex(area.right, area.bottom, to)};
    GRADIENT_RECT rectangle{0, 1};
    ::GradientFill(dc, corners, 2, &rectangle, 1, direction);
}

}  // namespace pipebench
