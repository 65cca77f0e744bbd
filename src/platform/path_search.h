// Where the system finds a program.
#pragma once

#include <string>

namespace qx::platform {

// The full path of the file that the system's search order finds for `name`, with `extension`
// (".exe") added to a name that has none; empty when it finds none.
std::string FindProgram(const char* name, const char* extension);

}  // namespace qx::platform
