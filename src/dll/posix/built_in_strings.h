// The library's own strings, in English, for when its language table is missing.
#pragma once

#include <qxutility/types.h>

namespace qx {

// Makes them resources of `module`, as string tables are on Windows.
void RegisterBuiltInStrings(HINSTANCE module);

}  // namespace qx
