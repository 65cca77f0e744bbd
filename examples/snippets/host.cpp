// What a host gives the library where the system has no resources and message boxes of its own.
#include "program.h"

#include <qxutility/config/startup.h>
#include <qxutility/host.h>

#include <cstdio>

// [README]
static int PrintBox(HWND, const char* text, const char* caption, UINT)
{
    std::printf("[%s] %s\n", caption, text);
    return IDOK;
}

int main()
{
    qx::host::SetMessageBoxHandler(PrintBox);
    qx::host::RegisterString(program, 11, "%s is no number.");
    ErrorMessage(program, "Host", nullptr, 11, MB_OK, "12x");  // prints [Host] 12x is no number.
}
// [/README]
