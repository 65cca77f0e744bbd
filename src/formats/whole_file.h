// Files that are written anew.
#pragma once

#include <string_view>

namespace qx {

// Makes `bytes` the contents of a file. The file that was there is replaced in one step when all is
// on the disk; when this returns false it is unchanged.
bool WriteWholeFile(const char* path, std::string_view bytes);

}  // namespace qx
