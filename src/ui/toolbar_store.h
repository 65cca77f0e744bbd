// The user's toolbar file on the disk.
#pragma once

#include "ui/toolbar_file.h"

namespace qx {

// The bars of a file; none when there is no file, or none can be made from what it holds.
std::vector<ToolbarRecord> LoadToolbarFile(const std::string& path);

// Replaces the file in one step; its folder is made. Without any bar nothing is done. A file that
// was there and could not be read in full, however it came about, is kept: under its name with
// ".unreadable" added, or
// ".unreadable2" ... when there is one already. False when the bars could not be saved; the file is
// then still there, under one of these names.
bool SaveToolbarFile(const std::string& path, std::span<const ToolbarRecord> bars);

}  // namespace qx
