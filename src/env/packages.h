// Packages: files beside the library that are run once, at the first start after they came.
#pragma once

#include <qxutility/types.h>

namespace qx {

// Runs those that the INI file does not know yet, each after it was marked there.
void RunNewPackages(HWND owner, const char* iniFile);

}  // namespace qx
