// Plane geometry of drawings and of the screen. Coordinates may take any value.
#pragma once

#include <qxutility/export.h>
#include <qxutility/types.h>

#include <cstddef>

// Whether the segment p1-p2 meets the segment p3-p4, ends included. Works with slopes; callers rely
// on what follows from that:
//   - a vertical segment counts as the horizontal line through its first point
//   - segments on one straight line always meet, even when they are apart
QX_API bool LinesIntersect(POINT p1, POINT p2, POINT p3, POINT p4);

// Whether text box b collides with text box a; y may run downward or upward. Up to a quarter of the
// height of a may be covered at its top and at its bottom without a collision, so the order of the
// boxes matters. Boxes that touch side by side do not collide.
QX_API bool TextOverlap(RECT a, RECT b);

// The area of a region given by its `count` rectangles, in square units. The area of each rectangle
// is a 32-bit integer and wraps around beyond that; the sum does not.
QX_API double GetRegionArea(const RECT* rectangles, std::size_t count);
// Whether a point is on a screen that consists of `count` rectangles, right and bottom edges not
// included.
QX_API bool PtOnScreen(int x, int y, const RECT* rectangles, std::size_t count);

#if QX_WINDOWS
// The area of a region; 0 for one without rectangles and for an invalid handle.
QX_API double GetRegionArea(HRGN region);
// Whether a point is in the window region that was set for the desktop window; false when there is
// none.
QX_API bool PtOnScreen(int x, int y);
#endif
