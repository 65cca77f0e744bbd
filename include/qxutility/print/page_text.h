// Text on a printed page, drawn with the font, colour and alignment that are selected into the
// device context (for aligned texts: TA_LEFT | TA_TOP, a new one's own). All coordinates, widths
// and results are in the units of the device context. A null text counts as an empty one.
#pragma once

#include <qxutility/types.h>

#if QX_WINDOWS
#include <qxutility/export.h>

// ---- Paragraphs
//
// Both wrap a text at its spaces in the column from `left` to `right`, the first line at `y`, and
// return the number of lines. Text that needs more lines is dropped, and so is all that follows
// from a word that is wider than the column; the result is then one more than there may be lines.

// Centred, 1.25 line heights from line to line: at most nine lines, 10 when text was dropped.
QX_API int CenterPrint(HDC dc, int left, int right, float y, int lineHeight, const char* text);
// From `left`, one line height from line to line: at most three lines of 254 characters, 4 when
// text was dropped.
QX_API int LeftPrint(HDC dc, int left, int right, float y, int lineHeight, const char* text);

// ---- Single texts

// Draws the line below a text that stands at (x, y): as long as the text, 1.25 character heights of
// the font below `y`.
QX_API void Underline(HDC dc, int x, int y, const char* text);

// Where a text starts that is centred between `left` and `right`; `left` when half of it is as wide
// as the x of the middle.
QX_API int CenterX(HDC dc, int left, int right, const char* text);

// Puts into `out` what of a text stands in a column `width` wide, and returns `out`: the text when
// it is narrower, else its start and as many dots as fill the column. These can be more characters
// than the text has: strlen(text) + (width + 2) / (width of a dot) + 1 bytes are always enough.
// `out` may be `text`.
QX_API char* ClipString(HDC dc, int width, const char* text, char* out);

// `x` less, and plus, the width of a label up to and with its first colon; of the whole label when
// it has none. To write labels below each other with their colons at `x`, start each at
// LeftOfColon.
QX_API int LeftOfColon(HDC dc, int x, const char* text);
QX_API int ColonAt(HDC dc, int x, const char* text);

// ---- Columns

// Draws at (x, y) a line of fields separated by tabs. Each field is clipped, as ClipString does, to
// its column, which ends at its tab stop; all that follows the last stop, tabs included, is clipped
// to the space up to `rightEdge`. Lines of 249 characters or more are drawn as they are.
//   tabStops   `tabCount` places, measured from `tabOrigin`; null when there are none
//   tabOrigin  the x that tab stops are measured from, most often `x`
//   rightEdge  measured as the tab stops are
QX_API void SmartTabbedTextOut(HDC dc, int x, int y, const char* text, int unused, int tabCount,
                               const int* tabStops, int tabOrigin, int rightEdge);
#endif
