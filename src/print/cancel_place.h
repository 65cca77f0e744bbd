// Where the window that cancels a print job stands.
#pragma once

#include "ui/placement.h"

#include <qxutility/types.h>

namespace qx {

// Its left top corner on the screen: centred over the owner's client area, a twentieth of that
// area's height below its top; not above the screen's top or left of its left edge.
constexpr POINT CancelWindowPlace(const RECT& client, int width)
{
    constexpr int kPart = 20;
    const int ownerWidth = client.right - client.left, ownerHeight = client.bottom - client.top;
    const int x = client.left + CentredStart(ownerWidth, width);
    const int y = client.top + ownerHeight / kPart;
    return {std::max(x, 0), std::max(y, 0)};
}

}  // namespace qx
