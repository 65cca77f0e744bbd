// The module handle of this program.
#pragma once

#include <windows.h>

inline const HINSTANCE program = ::GetModuleHandleA(nullptr);
