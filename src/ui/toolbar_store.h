// The user's toolbar file on the disk.
#pragma once

#include "ui/toolbar_file.h"

namespace qx {

struct ToolbarFile {
    std::vector<ToolbarRecord> bars;  // none when there is no file, or none can be made from it
    bool isWhole = true;              // all that stands in the file was read
};
ToolbarFile LoadToolbarFile(const std::string& path);

// Replaces the file in one step; its folder is made. Without any bar nothing is done. A file that
// is there and cannot be read in full is kept, any file with `keepOld`: under its name with
// ".unreadable" added, or ".unreadable2" ... when there is one already. False when the bars could
// not be saved; what was there then still is, under one of these names.
bool SaveToolbarFile(const std::string& path, std::span<const ToolbarRecord> bars,
                     bool keepOld = false);

}  // namespace qx
