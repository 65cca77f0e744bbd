// The file that a list of warnings is saved to.
#pragma once

#include <span>
#include <string>

namespace qx {

// Writes the texts to a new or emptied file, each with CR LF behind it. When that fails nothing of
// them stays: half a list would pass for a whole one.
bool SaveLines(const char* path, std::span<const std::string> texts);

}  // namespace qx
