// Text on a page, measured and drawn with what is selected into a device context.
#include "print/page_text.h"

#include <qxutility/print/page_text.h>

#include <cstring>

using namespace qx;

namespace {

struct FontMeasure final : TextMeasure {
    explicit FontMeasure(HDC context) : dc(context) {}

    int Width(std::string_view text) override
    {
        SIZE size{};
        ::GetTextExtentPoint32A(dc, text.data(), static_cast<int>(text.size()), &size);
        return size.cx;
    }

    HDC dc;
};

std::string_view TextOf(const char* text)
{
    return text ? text : "";
}

int Draw(HDC dc, const Paragraph& paragraph)
{
    for (const auto& [x, y, text] : paragraph.lines)
        ::TextOutA(dc, x, y, text.data(), static_cast<int>(text.size()));
    return paragraph.result;
}

}  // namespace

int CenterPrint(HDC dc, int left, int right, float y, int lineHeight, const char* text)
{
    FontMeasure measure(dc);
    return Draw(dc, CenterLines(measure, left, right, y, lineHeight, TextOf(text)));
}

int LeftPrint(HDC dc, int left, int right, float y, int lineHeight, const char* text)
{
    FontMeasure measure(dc);
    return Draw(dc, LeftLines(measure, left, right, y, lineHeight, TextOf(text)));
}

void Underline(HDC dc, int x, int y, const char* text)
{
    FontMeasure measure(dc);
    TEXTMETRICA font{};
    ::GetTextMetricsA(dc, &font);
    const HorizontalLine line = UnderlineOf(measure, x, y, font.tmHeight, TextOf(text));
    ::MoveToEx(dc, line.from, line.y, nullptr);
    ::LineTo(dc, line.to, line.y);
}

int CenterX(HDC dc, int left, int right, const char* text)
{
    FontMeasure measure(dc);
    return CenterX(measure, left, right, TextOf(text));
}

char* ClipString(HDC dc, int width, const char* text, char* out)
{
    FontMeasure measure(dc);
    const std::string clipped = ClipText(measure, width, TextOf(text));
    std::memcpy(out, clipped.c_str(), clipped.size() + 1);
    return out;
}

int LeftOfColon(HDC dc, int x, const char* text)
{
    FontMeasure measure(dc);
    return LeftOfColon(measure, x, TextOf(text));
}

int ColonAt(HDC dc, int x, const char* text)
{
    FontMeasure measure(dc);
    return ColonAt(measure, x, TextOf(text));
}

void SmartTabbedTextOut(HDC dc, int x, int y, const char* text, int, int tabCount,
                        const int* tabStops, int tabOrigin, int rightEdge)
{
    FontMeasure measure(dc);
    const auto stops = static_cast<std::size_t>(tabStops && tabCount > 0 ? tabCount : 0);
    const std::string line = ClipFields(measure, TextOf(text), {tabStops, stops}, rightEdge);
    ::TabbedTextOutA(dc, x, y, line.c_str(), static_cast<int>(line.size()), static_cast<int>(stops),
                     tabStops, tabOrigin);
}
