// The help control of the tests: shows nothing and notes what it is asked for.
#pragma once

#include <windows.h>

// Exported by name: what the control was asked for since the last call, a line each, as
// "command target data" with "for OWNER" behind it when there is one; valid until the next call.
using TakeHelpCalls = const char*();
