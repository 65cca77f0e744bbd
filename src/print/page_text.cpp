#include "print/page_text.h"

#include "core/to_int.h"

#include <algorithm>
#include <functional>
#include <optional>

namespace qx {

static constexpr double kLeading = 1.25;  // line heights

// ---- Paragraphs

namespace {

struct Style {
    std::size_t mostLines;
    std::size_t mostCharacters;  // in a line
    double advance;              // line heights from line to line
};

struct Line {
    std::string_view text;
    std::int64_t width;
};

// All of the text if that fits, else as much before a space as does. Nothing when its first word
// does not fit.
std::optional<Line> FirstLine(TextMeasure& measure, std::int64_t width, std::size_t mostCharacters,
                              std::string_view text)
{
    std::optional<Line> line;
    std::int64_t used = 0;
    std::size_t start = 0, end = text.find(' ');
    for (;;) {
        end = std::min(end, text.size());
        used += measure.Width(text.substr(start, end - start));  // a word and the space before it
        if (used > width || end > mostCharacters)
            return line;
        line = Line{text.substr(0, end), used};
        if (end == text.size())
            return line;
        start = end;
        end = text.find(' ', end + 1);
    }
}

// `xOf` says where a line of a certain width starts.
Paragraph Wrap(TextMeasure& measure, std::int64_t width, const Style& style,
               const std::function<int(std::int64_t)>& xOf, float y, int lineHeight,
               std::string_view text)
{
    Paragraph paragraph{};
    while (paragraph.lines.size() < style.mostLines) {
        const auto line = FirstLine(measure, width, style.mostCharacters, text);
        if (!line)
            break;
        paragraph.lines.push_back({xOf(line->width), Rounded(y), line->text});
        paragraph.result = static_cast<int>(paragraph.lines.size());
        if (line->text.size() == text.size())
            return paragraph;
        text.remove_prefix(line->text.size() + 1);
        y = static_cast<float>(y + lineHeight * style.advance);
    }
    if (!text.empty())
        paragraph.result = static_cast<int>(style.mostLines) + 1;
    return paragraph;
}

}  // namespace

Paragraph CenterLines(TextMeasure& measure, int left, int right, float y, int lineHeight,
                      std::string_view text)
{
    const Style style{9, std::string_view::npos, kLeading};
    const std::int64_t width = std::int64_t{right} - left;
    const auto centred = [=](std::int64_t line) { return ToInt(left + width / 2 - line / 2); };
    return Wrap(measure, std::max<std::int64_t>(width, 0), style, centred, y, lineHeight, text);
}

Paragraph LeftLines(TextMeasure& measure, int left, int right, float y, int lineHeight,
                    std::string_view text)
{
    const Style style{3, 254, 1.0};
    const std::int64_t width = std::max<std::int64_t>(std::int64_t{right} - left, 0);
    return Wrap(
        measure, width, style, [=](std::int64_t) { return left; }, y, lineHeight, text);
}

// ---- Columns

int CenterX(TextMeasure& measure, int left, int right, std::string_view text)
{
    const int half = measure.Width(text) / 2;
    const std::int64_t centre = (std::int64_t{right} - left) / 2 + left;
    return half >= centre ? left : ToInt(centre - half);
}

// How many characters from its start are narrower than `width` together.
static std::size_t Narrower(TextMeasure& measure, int width, std::string_view text)
{
    std::size_t least = 0, most = text.size();
    while (least < most) {
        const std::size_t middle = most - (most - least) / 2;
        if (measure.Width(text.substr(0, middle)) < width)
            least = middle;
        else
            most = middle - 1;
    }
    return least;
}

std::string ClipText(TextMeasure& measure, int width, std::string_view text)
{
    if (measure.Width(text) < width)
        return std::string(text);
    std::size_t length = Narrower(measure, width, text);
    const int dotWidth = measure.Width(".");
    const std::int64_t dot = std::int64_t{dotWidth} - 2;
    if (length > 0 && measure.Width(text.substr(0, length)) + 2 * dot >= width)
        --length;
    std::string clipped(text.substr(0, length));
    std::int64_t used = measure.Width(clipped);
    for (; dotWidth > 0 && used + dot < width; used += dotWidth)
        clipped += '.';
    return clipped;
}

std::string ClipFields(TextMeasure& measure, std::string_view text, std::span<const int> tabStops,
                       int rightEdge)
{
    constexpr std::size_t kTooLong = 249;
    if (text.size() >= kTooLong)
        return std::string(text);
    std::string line;
    std::int64_t start = 0;  // of the field's column
    for (const int stop : tabStops) {
        const std::size_t end = std::min(text.find('\t'), text.size());
        line += ClipText(measure, ToInt(stop - start), text.substr(0, end));
        if (end == text.size())
            return line;
        line += '\t';
        text.remove_prefix(end + 1);
        start = stop;
    }
    return line + ClipText(measure, ToInt(rightEdge - start), text);
}

static std::int64_t WidthToColon(TextMeasure& measure, std::string_view text)
{
    const std::size_t colon = text.find(':');
    return measure.Width(colon == text.npos ? text : text.substr(0, colon + 1));
}

int LeftOfColon(TextMeasure& measure, int x, std::string_view text)
{
    return ToInt(x - WidthToColon(measure, text));
}

int ColonAt(TextMeasure& measure, int x, std::string_view text)
{
    return ToInt(x + WidthToColon(measure, text));
}

// ---- Underlining

HorizontalLine UnderlineOf(TextMeasure& measure, int x, int y, int charHeight,
                           std::string_view text)
{
    return {x, ToInt(std::int64_t{x} + measure.Width(text)), Rounded(y + charHeight * kLeading)};
}

}  // namespace qx
