#include "platform/help_control.h"

namespace qx::platform {

HWND SendHelp(HWND, const char*, HelpCommand, unsigned)
{
    return nullptr;
}

HWND SendHelpSearch(HWND, const char*, const char*)
{
    return nullptr;
}

}  // namespace qx::platform
