// Loaded modules: the program, this library, others.
#pragma once

#include <qxutility/types.h>

#include <string>

namespace qx::platform {

// The module that this code was linked into: the library, or a test program.
HINSTANCE ThisModule();
// The module of the process's program.
HINSTANCE ProgramModule();
// The full path of a module's file, of the program's for null; empty when `module` is the handle
// of no loaded module.
std::string ModulePath(HINSTANCE module);
// The folder of a module's file with its final separator; empty as ModulePath.
std::string ModuleFolder(HINSTANCE module);

}  // namespace qx::platform
