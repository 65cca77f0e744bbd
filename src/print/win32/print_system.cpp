#include "print/win32/print_system.h"

namespace qx::win32 {

PrintSystem& System()
{
    static PrintSystem system;
    return system;
}

void FreeGlobal(HGLOBAL block)
{
    if (block)
        System().GlobalFree(block);
}

}  // namespace qx::win32
