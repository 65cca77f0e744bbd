// Keeping a log short.
#pragma once

#include <cstdint>

namespace qx {

// Replaces a log by its entries that are at most ten days old at `now` (seconds since 1970 UTC), in
// one step: at every moment the log is the old or the new one in full. See LogFile::clear.
void PruneLog(const char* path, std::int64_t now);

}  // namespace qx
