// The product's INI file.
#pragma once

#include <string>

namespace qx {

// Its path. The first caller fixes it for the whole process: `file` in the subfolder `folder` of
// the application data; what later callers ask for does not matter.
const std::string& ProductIni(const char* folder, const char* file);
// The same for the library's own settings.
inline const std::string& ProductIni()
{
    return ProductIni("ZRW", "Kvl.ini");
}

}  // namespace qx
