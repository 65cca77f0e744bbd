// Load and unload of the DLL. Both run under the loader's lock, on the thread that loads it.
#include "config/process.h"
#include "config/win32/window_classes.h"

static void Attach(HINSTANCE module)
{
    qx::AttachProcess(module);
    qx::win32::RegisterWindowClasses(module);
}

static void Detach(HINSTANCE module)
{
    qx::DetachProcess();
    qx::win32::UnregisterWindowClasses(module);
}

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, void*)
{
    switch (reason) {
        case DLL_PROCESS_ATTACH:
            Attach(module);
            break;
        case DLL_PROCESS_DETACH:
            Detach(module);
            break;
        default:
            break;
    }
    return TRUE;
}
