// A module with a picture in it. It tells when its code runs, which nobody is to make it do.
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE, DWORD, void*)
{
    ::SetEnvironmentVariableA("QX_PICTURES_RAN", "1");
    return TRUE;
}
