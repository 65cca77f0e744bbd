// The module handle of this program.
#pragma once

#include <qxutility/host.h>

inline const char inThisProgram = 0;
inline const HINSTANCE program = qx::host::ModuleOf(&inThisProgram);
