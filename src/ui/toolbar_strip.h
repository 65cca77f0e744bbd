// The strip in which toolbars lie in rows, without its windows.
//
// Rows are 26 pixels apart, the first at y = 3. The toolbar of a bar stands 7 pixels right of the
// bar's x; the 7 pixels left of it are the bar's grip.
#pragma once

#include "ui/toolbar_file.h"

#include <qxutility/types.h>

#include <span>

namespace qx {

inline constexpr int kGripWidth = 7;
inline constexpr int kRowHeight = 26;
inline constexpr int kFirstRow = 3;
inline constexpr int kBarHeight = 24;
// Layouts that one layout may cause, one after the other.
inline constexpr int kMostFurtherLayouts = 128;

struct StripBar {
    bool exists = false;  // has a toolbar; a record without one is empty
    bool shown = false;
    bool floating = false;  // takes no part in anything here
    int id = 0;
    int x = 0, y = 0;
    SIZE size{};  // of the toolbar

    bool TakesRoom() const { return exists && !floating; }
    bool IsVisible() const { return TakesRoom() && shown; }
};

// ---- Sizes

// The width of the buttons that are not hidden.
int ButtonsWidth(std::span<const ToolbarButton> buttons);
// The size of a toolbar in which a child window of that size stands.
SIZE HostSize(SIZE child);

// ---- Finding bars

// Bars in front of the first empty record.
int CountLeading(std::span<const StripBar> bars);
// The first bar with that ID. Searches end at the first empty record and then give its index; the
// number of records when none is empty. So bars behind a deleted one are not found.
int FindBar(std::span<const StripBar> bars, int id);

enum class StripHit { Nothing = 1, Client = 3, Grip = 4 };  // codes of RB_HITTEST
struct StripHitResult {
    StripHit code;
    int index;  // -1 for nothing
};
StripHitResult HitTest(std::span<const StripBar> bars, POINT point);

// ---- Layout

struct StripLayout {
    int height;    // that the strip is to have
    bool resize;   // it has another one
    bool repaint;  // the strip as a whole
    bool again;    // a further layout is to be posted
};

// Moves the bars to where they belong in a strip with that client area. `further` is the number of
// layouts in a row that led to this one.
//
// Each layout that is asked for may ask for a further one. None is asked for that would change
// nothing, nor more than 128 in a row, as some arrangements never come to rest.
StripLayout LayOut(std::span<StripBar> bars, SIZE client, int further = 0);

// The steps of a layout, in their order.

// Bars that stick out at the right go to the next row, those at the left to x = 1, all into a row.
// A bar that no row can hold goes to x = 1 of the first row where it meets no visible bar; the
// further steps leave it there.
void PlaceInRows(std::span<StripBar> bars, int clientWidth);
// The largest y of a visible bar; 0 without one.
int LastRow(std::span<const StripBar> bars);
// Moves bars up where the row above them is empty. Returns the last row then.
int CloseEmptyRows(std::span<StripBar> bars, int clientWidth, int lastRow);
// Moves visible bars that begin where another one is. True when any was moved; `lastRow` grows.
bool ResolveOverlaps(std::span<StripBar> bars, int clientWidth, int& lastRow);

}  // namespace qx
