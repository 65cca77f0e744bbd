// Text on a page: where lines stand and what of a text is drawn there. Coordinates and widths are
// in device units. Whoever draws also measures; nothing here knows of a device.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qx {

struct TextMeasure {
    // The width of a text in the current font, on one line: never negative, and the sum of the
    // widths of its parts.
    virtual int Width(std::string_view text) = 0;

  protected:
    ~TextMeasure() = default;
};

// ---- Paragraphs

struct PlacedLine {
    int x, y;
    std::string_view text;  // in the paragraph's text
};

struct Paragraph {
    std::vector<PlacedLine> lines;
    int result;  // how many lines; one more than there may be when text had to be dropped
};

// Wrap a text at its spaces in the column from `left` to `right`, the first line at `y`. Each line
// takes as much before a space as fits, and that space is left out. A word that is wider than the
// column ends the paragraph: there is no space to cut at, so the word and what follows is dropped.
// No word is measured more than twice.

// Centred, 1.25 line heights from line to line, nine lines at most.
Paragraph CenterLines(TextMeasure& measure, int left, int right, float y, int lineHeight,
                      std::string_view text);
// From `left`, one line height from line to line, three lines of at most 254 characters.
Paragraph LeftLines(TextMeasure& measure, int left, int right, float y, int lineHeight,
                    std::string_view text);

// ---- Columns

// Where a text starts that is centred between two x; `left` for one as wide as twice the x of the
// middle, which is measured from 0 and not from `left`: kept, as reports are laid out with it.
int CenterX(TextMeasure& measure, int left, int right, std::string_view text);

// The text if it is narrower than `width`, else as much of its start as leaves room for dots, and
// as many dots as the rest of the width takes. Can have more characters than `text`.
std::string ClipText(TextMeasure& measure, int width, std::string_view text);

// A line of fields, separated by tabs, in which each field that a tab stop ends is clipped to its
// column, and all text after the last stop, tabs included, to what is left as far as `rightEdge`.
// Lines of 249 characters or more stay as they are.
std::string ClipFields(TextMeasure& measure, std::string_view text, std::span<const int> tabStops,
                       int rightEdge);

// `x` less, and plus, the width of the text up to and with its first colon; of the whole text when
// it has none.
int LeftOfColon(TextMeasure& measure, int x, std::string_view text);
int ColonAt(TextMeasure& measure, int x, std::string_view text);

// ---- Underlining

struct HorizontalLine {
    int from, to, y;
};
// The line below a text drawn at (x, y), 1.25 heights of the font's characters further down.
HorizontalLine UnderlineOf(TextMeasure& measure, int x, int y, int charHeight,
                           std::string_view text);

}  // namespace qx
