// Keeping windows where the user can take hold of them.
#pragma once

#include <qxutility/types.h>

#include <span>

namespace qx {

// Where a floating window belongs whose caption is that: there, when a screen shows any of the
// caption; otherwise moved just so far that the nearest screen shows all of it, or its left part.
POINT ReachablePlace(const RECT& caption, std::span<const RECT> screens);

}  // namespace qx
