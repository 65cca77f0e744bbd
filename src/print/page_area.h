// The part of a page that is printed on: margins, which are kept per kind of report in the
// product's INI file, and what they leave of a page.
#pragma once

#include <string>
#include <string_view>

namespace qx {

// Thousandths of an inch, from the edges of the paper.
struct Margins {
    int left = 150, top = 150, right = 150, bottom = 150;
};

// Between these and what people with metric units are shown.
int ToHundredthsOfMm(int thousandthsOfInch);
int FromHundredthsOfMm(int hundredthsOfMm);

// As they stand in the file: "left,right,top,bottom".
std::string MarginsText(const Margins& margins);
// Reads as "%d,%d,%d,%d" does, up to the first number that is missing; the margins after it stay
// 0.15 inch. A number too large for an int is the largest one.
Margins ParseMargins(std::string_view text);

// Those of a kind of report: 0.15 inch on every side until they are saved.
Margins LoadMargins(std::string_view kind);
void SaveMargins(std::string_view kind, const Margins& margins);

// What a printer says of its page, in its own units (GetDeviceCaps).
struct PageDevice {
    int physicalWidth, physicalHeight;  // of the paper
    int offsetX, offsetY;               // of the printable part, in which coordinates start at 0
    int width, height;                  // of the printable part
    int dpiX, dpiY;                     // units per inch
};

struct PageArea {
    int left, top, right;  // the first and last column, the first line's y
    int lastLine;          // lines on a page, less one: -1 when not one fits
};

// What the margins leave. A margin inside the part that the printer cannot reach counts as none.
PageArea PrintableArea(const PageDevice& device, const Margins& margins, int lineHeight);

// The height of a job's fonts: one eighth of an inch.
constexpr int FontHeight(const PageDevice& device)
{
    return device.dpiY / 8;
}

}  // namespace qx
